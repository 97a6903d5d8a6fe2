#pragma once

#include "platform/values/ListTarget.h"

#include <QComboBox>

class QStringListModel;

namespace forms {

/// A combo with a drop-down list, editable by default. An open list never takes the typing away from the box:
/// keys go to the screen and the box as if it were closed, the arrow and page keys walk the list, Esc closes
/// it.
class ComboBox : public QComboBox, public ListTarget
{
    Q_OBJECT
public:
    explicit ComboBox(QWidget* parent = nullptr);

    /// Empties the list and the box.
    void Clear() override;
    /// Adds entries at the end. The box keeps its text.
    void AddItems(const QStringList& texts) override;
    void AddItem(const QString& text);
    int ListCount() const { return count(); }
    /// All entries.
    QStringList texts() const;
    /// The text of an entry; empty outside the list.
    QString List(int index) const { return itemText(index); }
    /// The entry whose text stands in the box by choice or search; -1 when the text is another.
    int ListIndex() const;
    /// Takes an entry into the box without counting as the operator's choice; -1 empties the box.
    void setListIndex(int index);
    /// See ListBox::findString.
    int findString(const QString& prefix, int startAfter = -1) const;

    QString text() const { return currentText(); }
    /// Sets the box's text; the list isn't searched.
    void setText(const QString& text);
    int selStart() const;
    int selLength() const;
    /// Selects part of the box's text and puts the caret behind it.
    void select(int start, int length);

    /// Opens the list; an empty list stays closed. While a mouse button is down it opens when the button is
    /// released.
    void dropDown();
    void closeUp();
    bool isDroppedDown() const;

    void showPopup() override;
    /// As wide as a name, whatever its entries are: asked of Qt's own, which measures them, it would make the
    /// list, too.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// The operator picked an entry of the list, by mouse or by arrow keys.
    void clicked();
    /// The box's text changed, by whatever means.
    void changed();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void makeList();
    void walk(int index);

    QStringListModel* m_texts;
    QAbstractItemView* m_list = nullptr; ///< made when it is opened first
    bool m_dropOnRelease = false;
    bool m_selectOnRelease = false;
};

} // namespace forms
