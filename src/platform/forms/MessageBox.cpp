#include "platform/forms/MessageBox.h"

#include "platform/forms/ListBox.h"

#include <QBoxLayout>
#include <QGuiApplication>
#include <QInputDialog>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>

using namespace Qt::StringLiterals;

namespace forms {

namespace {

constexpr qsizetype longestText = 1200;
constexpr qsizetype mostLines = 25;

/// What a screen can hold of a text.
QString cut(const QString& text)
{
    QString shown = text.section(u'\n', 0, mostLines - 1).left(longestText);
    if (shown.size() < text.size())
        shown += QChar(0x2026);
    return shown;
}

QWidget* windowBelow(const QWidget* parent)
{
    return parent && parent->isVisible() ? parent->window() : nullptr;
}

/// Shows a box and returns its result. The box may die with its parent meanwhile.
int show(const QPointer<QDialog>& box)
{
    const QPointer<QWidget> below = box->parentWidget();
    box->setWindowModality(Qt::ApplicationModal);
    const int result = box->exec();
    if (below)
        below->activateWindow();
    return result;
}

/// Shows a box and returns the button pressed.
int run(QWidget* parent, QMessageBox::Icon icon, const QString& text, QMessageBox::StandardButtons buttons)
{
    const QPointer<QMessageBox> box = new QMessageBox(icon, QGuiApplication::applicationDisplayName(),
                                                      cut(text), buttons, windowBelow(parent));
    box->setTextFormat(Qt::PlainText);
    const int button = show(box.data());
    delete box;
    return button;
}

/// Up and Down in a box choose from the list below it.
class ArrowsIntoList : public QObject
{
public:
    ArrowsIntoList(QLineEdit& box, ListBox& list)
        : QObject(&box)
        , m_list(list)
    {
        box.installEventFilter(this);
    }

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() != QEvent::KeyPress)
            return false;
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key != Qt::Key_Down && key != Qt::Key_Up)
            return false;
        const int step = key == Qt::Key_Down ? 1 : -1;
        m_list.setListIndex(qBound(0, m_list.ListIndex() + step, m_list.ListCount() - 1));
        return true;
    }

private:
    ListBox& m_list;
};

/// Lays a list of answers between the box and its buttons.
void offer(const QStringList& earlier, QInputDialog& dialog)
{
    dialog.sizeHint(); // lays out the dialog
    auto* column = qobject_cast<QBoxLayout*>(dialog.layout());
    auto* box = dialog.findChild<QLineEdit*>();
    if (!column || !box)
        return;
    auto* list = new ListBox;
    list->setObjectName(u"lstEarlier"_s);
    list->setAccessibleName(u"Used lately"_s);
    list->setFocusPolicy(Qt::NoFocus);
    list->AddItems(earlier);
    auto* caption = new QLabel(u"Used lately (Up and Down choose):"_s);
    column->insertWidget(2, caption);
    column->insertWidget(3, list);
    new ArrowsIntoList(*box, *list);
    QObject::connect(list, &ListBox::indexChanged, box, [box, list] {
        box->setText(list->Text());
        box->selectAll();
    });
    QObject::connect(list, &ListBox::dblClicked, &dialog, &QDialog::accept);
}

} // namespace

void plainMessage(QWidget* parent, const QString& text)
{
    run(parent, QMessageBox::Information, text, QMessageBox::Ok);
}

void criticalMessage(QWidget* parent, const QString& text)
{
    run(parent, QMessageBox::Critical, text, QMessageBox::Ok);
}

bool askPlain(QWidget* parent, const QString& text)
{
    return run(parent, QMessageBox::Question, text, QMessageBox::Yes | QMessageBox::No) == QMessageBox::Yes;
}

std::optional<bool> askPlainOrCancel(QWidget* parent, const QString& text)
{
    const int button =
        run(parent, QMessageBox::Question, text, QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
    if (button != QMessageBox::Yes && button != QMessageBox::No)
        return {};
    return button == QMessageBox::Yes;
}

QString inputBox(QWidget* parent, const QString& prompt, const QString& title, const QStringList& earlier)
{
    const QPointer<QInputDialog> box = new QInputDialog(windowBelow(parent));
    box->setWindowTitle(title);
    box->setLabelText(prompt);
    if (!earlier.isEmpty())
        offer(earlier, *box);
    const bool accepted = show(box.data()) == QDialog::Accepted;
    const QString text = accepted && box ? box->textValue() : QString();
    delete box;
    return text;
}

} // namespace forms
