#pragma once

#include <QObject>
#include <QPointer>

class QAbstractItemView;
class QMenu;

namespace report {

/// Lets every list of every screen leave the program: F9 prints it, F12 saves it for a spreadsheet, wherever
/// on the screen the focus is; Ctrl+C in the list copies the chosen row, or all without one. Lists without a
/// menu of their own get one of these.
class ListKeys : public QObject
{
    Q_OBJECT
public:
    /// For all screens of the program, once.
    static void install();

    /// Puts the three into a screen's own menu of a list.
    static void addTo(QMenu& menu, QAbstractItemView& list);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    using QObject::QObject;
};

} // namespace report
