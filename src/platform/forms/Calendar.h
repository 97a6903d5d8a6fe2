#pragma once

#include <QFrame>

class QCalendarWidget;

namespace forms {

/// A month's calendar that drops down from a field: six whole weeks, the days of other months dimmed. Arrows
/// walk, Enter or a click takes a day, Esc takes none.
class Calendar : public QFrame
{
    Q_OBJECT
public:
    explicit Calendar(QWidget* field);

    /// Opens below the field, or above it where there is no room.
    void open(const QDate& date);

Q_SIGNALS:
    void chosen(const QDate& date);
    void closed();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    void take(const QDate& date);

    QCalendarWidget* m_month;
};

} // namespace forms
