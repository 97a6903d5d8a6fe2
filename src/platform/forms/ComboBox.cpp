#include "platform/forms/ComboBox.h"

#include "platform/forms/ListBox.h"
#include "platform/forms/PopupPress.h"
#include "platform/forms/SpokenName.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QSignalBlocker>
#include <QStringListModel>
#include <QStyleOptionComboBox>
#include <QWheelEvent>
#include <algorithm>
#include <utility>

namespace forms {

ComboBox::ComboBox(QWidget* parent)
    : QComboBox(parent)
    , m_texts(new QStringListModel(this))
{
    auto* line = new QLineEdit(this);
    line->setPalette(palette());
    setLineEdit(line); // setEditable() would make the list, too, which most boxes are never asked for
    setInsertPolicy(NoInsert);
    setCompleter(nullptr);
    setMaxVisibleItems(12);
    setModel(m_texts);
    // A typed text that happens to be an entry is no choice of that entry.
    disconnect(line, &QLineEdit::editingFinished, this, nullptr);
    line->installEventFilter(this);
    connect(this, &QComboBox::activated, this, [this] {
        select(0, int(text().size())); // typing replaces the choice
        Q_EMIT clicked();
    });
    connect(this, &QComboBox::editTextChanged, this, &ComboBox::changed);
}

void ComboBox::Clear()
{
    closeUp();
    m_texts->setStringList({});
    setText({});
}

void ComboBox::AddItems(const QStringList& texts)
{
    const QString shown = text();
    const int chosen = ListIndex();
    {
        const QSignalBlocker quiet(this);
        m_texts->setStringList(m_texts->stringList() + texts);
        setCurrentIndex(chosen);
        if (isEditable())
            lineEdit()->setText(shown);
    }
}

void ComboBox::AddItem(const QString& text) { AddItems({text}); }

QSize ComboBox::sizeHint() const
{
    constexpr int letters = 12;
    constexpr int leastHeight = 14;
    QStyleOptionComboBox option;
    initStyleOption(&option);
    const QFontMetrics metrics(fontMetrics());
    const QSize text(letters * metrics.horizontalAdvance(u'X'), std::max(metrics.height(), leastHeight) + 2);
    return style()->sizeFromContents(QStyle::CT_ComboBox, &option, text, this);
}

QSize ComboBox::minimumSizeHint() const { return sizeHint(); }

QStringList ComboBox::texts() const { return m_texts->stringList(); }

int ComboBox::ListIndex() const { return itemText(currentIndex()) == currentText() ? currentIndex() : -1; }

void ComboBox::setListIndex(int index)
{
    const int entry = index < count() ? qMax(index, -1) : -1;
    setCurrentIndex(entry);
    if (isEditable())
        setText(itemText(entry)); // also when that entry is the current one, but the box has another text
    if (isDroppedDown())
        m_list->setCurrentIndex(m_texts->index(entry));
}

int ComboBox::findString(const QString& prefix, int startAfter) const
{
    return findPrefix(m_texts->stringList(), prefix, startAfter);
}

void ComboBox::setText(const QString& text)
{
    if (isEditable())
        setEditText(text);
    else
        setCurrentIndex(findText(text, Qt::MatchFixedString));
}

int ComboBox::selStart() const
{
    if (!isEditable())
        return 0;
    return lineEdit()->hasSelectedText() ? lineEdit()->selectionStart() : lineEdit()->cursorPosition();
}

int ComboBox::selLength() const { return isEditable() ? lineEdit()->selectionLength() : 0; }

void ComboBox::select(int start, int length)
{
    if (!isEditable())
        return;
    lineEdit()->deselect();
    lineEdit()->setCursorPosition(start);
    if (length > 0)
        lineEdit()->setSelection(start, length);
}

void ComboBox::dropDown()
{
    if (QGuiApplication::mouseButtons() != Qt::NoButton)
        m_dropOnRelease = true; // a list opened now would take the release for a click beside it, and close
    else if (!isDroppedDown() && isVisible())
        showPopup();
}

void ComboBox::closeUp()
{
    m_dropOnRelease = false;
    if (isDroppedDown())
        hidePopup();
}

bool ComboBox::isDroppedDown() const { return m_list && m_list->isVisible(); }

/// The first time that it is opened.
void ComboBox::makeList()
{
    m_list = view();
    if (auto* list = qobject_cast<QListView*>(m_list))
        list->setUniformItemSizes(true);
    m_list->setAccessibleName(spokenName(*this));
    m_list->setFocusProxy(this); // the focus stays with the box while the list is open
    m_list->window()->installEventFilter(this);
}

void ComboBox::showPopup()
{
    m_dropOnRelease = false;
    if (!m_list)
        makeList();
    QComboBox::showPopup();
    if (!isEditable() || !isDroppedDown())
        return;
    if (ListIndex() < 0)
        m_list->setCurrentIndex({});
    QFocusEvent stillTyping(QEvent::FocusIn, Qt::PopupFocusReason); // keeps the caret in sight
    QCoreApplication::sendEvent(lineEdit(), &stillTyping);
}

bool ComboBox::eventFilter(QObject* watched, QEvent* event)
{
    if (m_list && watched == m_list->window() && event->type() == QEvent::MouseButtonPress) {
        const auto& press = static_cast<QMouseEvent&>(*event);
        if (!m_list->window()->geometry().contains(press.globalPosition().toPoint())) {
            passOnPress(*m_list->window(), press);
            return true;
        }
    }
    const bool released = watched == lineEdit() && event->type() == QEvent::MouseButtonRelease;
    const bool handled = QComboBox::eventFilter(watched, event);
    if (released && std::exchange(m_selectOnRelease, false) && !lineEdit()->hasSelectedText())
        lineEdit()->selectAll();
    if (released && std::exchange(m_dropOnRelease, false))
        QMetaObject::invokeMethod(this, &ComboBox::dropDown, Qt::QueuedConnection);
    return handled;
}

/// The click that brings the focus selects the text, as the Tab key does.
void ComboBox::focusInEvent(QFocusEvent* event)
{
    QComboBox::focusInEvent(event);
    m_selectOnRelease = event->reason() == Qt::MouseFocusReason;
}

void ComboBox::focusOutEvent(QFocusEvent* event)
{
    if (event->reason() != Qt::PopupFocusReason)
        closeUp();
    QComboBox::focusOutEvent(event);
}

void ComboBox::keyPressEvent(QKeyEvent* event)
{
    const int page = maxVisibleItems() - 1;
    const int current = ListIndex();
    if (event->modifiers() & Qt::AltModifier) {
        if (event->key() == Qt::Key_Down)
            return dropDown();
        if (event->key() == Qt::Key_Up)
            return closeUp();
    }
    switch (event->key()) {
    case Qt::Key_Up:
        return walk(current - 1);
    case Qt::Key_Down:
        return walk(current + 1);
    case Qt::Key_PageUp:
        return walk(current - page);
    case Qt::Key_PageDown:
        return walk(current + page);
    case Qt::Key_F4:
        return isDroppedDown() ? closeUp() : dropDown();
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Escape:
        return event->ignore();
    default:
        QComboBox::keyPressEvent(event);
    }
}

/// The wheel of a mouse that passes over must not change a closed box.
void ComboBox::wheelEvent(QWheelEvent* event) { event->ignore(); }

/// Takes an entry as the operator's choice, as near to `index` as the list has one.
void ComboBox::walk(int index)
{
    if (count() == 0)
        return;
    const int entry = qBound(0, index, count() - 1);
    if (entry == ListIndex())
        return;
    setListIndex(entry);
    select(0, int(text().size()));
    Q_EMIT clicked();
}

} // namespace forms
