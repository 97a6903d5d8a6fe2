#include "platform/report/ListKeys.h"

#include "platform/forms/ListBox.h"
#include "platform/forms/ListSheet.h"
#include "platform/forms/ListView.h"
#include "platform/forms/MessageBox.h"
#include "platform/forms/Screen.h"
#include "platform/report/ListPaper.h"
#include "platform/report/Pdf.h"
#include "platform/report/Preview.h"
#include "platform/report/SaveDialog.h"
#include "platform/report/Workbook.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDir>
#include <QMenu>

using namespace Qt::StringLiterals;

namespace report {

namespace {

QAbstractItemView* asList(QObject* object)
{
    if (auto* view = qobject_cast<forms::ListView*>(object))
        return view;
    return qobject_cast<forms::ListBox*>(object);
}

/// The list that has the focus, else the screen's first that is seen.
QAbstractItemView* listOf(QWidget* widget)
{
    if (QAbstractItemView* list = asList(widget))
        return list;
    for (QAbstractItemView* each : widget->window()->findChildren<QAbstractItemView*>())
        if (QAbstractItemView* list = asList(each); list && list->isVisible())
            return list;
    return nullptr;
}

void copy(const QAbstractItemView& list)
{
    std::vector<int> chosen;
    for (const QModelIndex& each : list.selectionModel()->selectedRows())
        chosen.push_back(each.row());
    std::sort(chosen.begin(), chosen.end());
    const forms::ListSheet sheet = chosen.empty() ? forms::sheetOf(list) : forms::sheetOf(list, chosen);
    if (!sheet.rows.empty())
        QGuiApplication::clipboard()->setText(forms::tabbed(sheet));
}

void print(QAbstractItemView& list)
{
    const forms::ListSheet sheet = forms::sheetOf(list);
    showPaper(list.window(), sheet.rows.size(),
              [&sheet, heading = listHeading()] { return listPaper(sheet, heading); });
    list.setFocus();
}

void save(QAbstractItemView& list)
{
    const forms::ListSheet sheet = forms::sheetOf(list);
    const QString path = askSavePath(
        list.window(), u"Save List"_s, sheet.title,
        {{u"xlsx"_s, u"Spreadsheet (*.xlsx)"_s}, {u"csv"_s, u"Comma-separated values (*.csv)"_s}});
    if (path.isEmpty())
        return;
    const bool asText = path.endsWith(u".csv"_s, Qt::CaseInsensitive);
    saveFile(asText ? forms::commaSeparated(sheet) : workbook(sheet, listHeading().owner), path);
    forms::plainMessage(list.window(),
                        u"The list was saved for a spreadsheet:\n\n"_s + QDir::toNativeSeparators(path));
}

struct Way
{
    QString text;
    QKeySequence key;
    void (*leave)(QAbstractItemView& list);
};

const Way& printing()
{
    static const Way way{u"Print List"_s, Qt::Key_F9, print};
    return way;
}

const Way& saving()
{
    static const Way way{u"Save List for a Spreadsheet"_s, Qt::Key_F12, save};
    return way;
}

void leave(QAbstractItemView& list, void (*way)(QAbstractItemView& list))
{
    forms::guarded(list.window(), [&] { way(list); });
}

} // namespace

void ListKeys::install()
{
    static QPointer<ListKeys> installed;
    if (installed)
        return;
    installed = new ListKeys(qApp);
    qApp->installEventFilter(installed);
}

void ListKeys::addTo(QMenu& menu, QAbstractItemView& list)
{
    if (!menu.isEmpty())
        menu.addSeparator();
    const Way copying{u"Copy"_s, QKeySequence::Copy, [](QAbstractItemView& from) { copy(from); }};
    for (const Way& way : {copying, saving(), printing()}) {
        QAction* action = menu.addAction(way.text);
        action->setShortcut(way.key);
        action->setShortcutContext(Qt::WidgetShortcut); // shown; the key itself comes through the filter
        QObject::connect(action, &QAction::triggered, &list, [&list, act = way.leave] { leave(list, act); });
    }
}

bool ListKeys::eventFilter(QObject* watched, QEvent* event)
{
    auto* widget = qobject_cast<QWidget*>(watched);
    if (!widget)
        return false;
    if (event->type() == QEvent::ContextMenu) {
        auto* list = asList(watched->parent());
        const auto* view = qobject_cast<forms::ListView*>(list);
        if (!list || (view && view->hasMenu()))
            return false;
        QMenu menu(list);
        addTo(menu, *list);
        menu.exec(static_cast<QContextMenuEvent*>(event)->globalPos());
        return true;
    }
    if (event->type() != QEvent::KeyPress || !qobject_cast<forms::Screen*>(widget->window()))
        return false;
    const auto& key = *static_cast<QKeyEvent*>(event);
    if (key.matches(QKeySequence::Copy)) {
        if (const QAbstractItemView* list = asList(widget))
            copy(*list);
        return asList(widget) != nullptr;
    }
    if (key.modifiers() != Qt::NoModifier)
        return false;
    for (const Way& way : {printing(), saving()}) {
        if (way.key != QKeySequence(key.key()))
            continue;
        if (QAbstractItemView* list = listOf(widget))
            leave(*list, way.leave);
        return true;
    }
    return false;
}

} // namespace report
