#pragma once

#include "platform/values/ListTarget.h"

#include <QListView>
#include <functional>

namespace forms {

/// A list of texts, one of which can be selected. Its model is light: 30,000 entries are no trouble.
class ListBox : public QListView, public ListTarget
{
    Q_OBJECT
public:
    explicit ListBox(QWidget* parent = nullptr);

    void Clear() override;
    void AddItems(const QStringList& texts) override;
    void AddItem(const QString& text);
    int ListCount() const;
    /// The selected entry, -1 for none.
    int ListIndex() const;
    /// Selects an entry and brings it into view; -1, or an index outside the list, selects none.
    void setListIndex(int index);
    /// The text of an entry; empty outside the list.
    QString List(int index) const;
    /// The text of the selected entry, or "".
    QString Text() const;
    /// The first entry behind `startAfter` that begins with `prefix` in any case; the search wraps round and
    /// tries the entry `startAfter` itself last. -1: none, as for an empty prefix.
    int findString(const QString& prefix, int startAfter = -1) const;

    /// Shows a picture in front of each entry, `size` pixels of the layout large; `of` gets the entry's text.
    /// It is asked for what is in view, each time this is painted.
    void setPictures(const QSize& size, std::function<QPixmap(const QString& text)> of);

Q_SIGNALS:
    /// An entry was double-clicked.
    void dblClicked();
    /// An entry was clicked.
    void clickedEntry();
    /// Another entry is selected, or none.
    void indexChanged();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;

private:
    class Texts;
    Texts* m_texts;
};

/// The prefix search of list boxes and combos.
int findPrefix(const QStringList& texts, const QString& prefix, int startAfter);

} // namespace forms
