#pragma once

#include <QObject>

class QPushButton;
class QWidget;
namespace forms {
class ListView;
}

/// A panel that opens over a list, at its right edge and below its headings, and stays there as the list is
/// resized. Belongs to its screen.
class DetailsPanel : public QObject
{
public:
    /// The panel is a sibling of the list; it is closed until the first button is pressed. The focus goes to
    /// the second while it is open, and then to the list.
    DetailsPanel(QWidget* panel, forms::ListView* list, QPushButton* opens, QPushButton* closes);

    void setOpen(bool open);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void place();

    QWidget* m_panel;
    forms::ListView* m_list;
    QPushButton* m_closes;
};
