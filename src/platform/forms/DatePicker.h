#pragma once

#include <QDateEdit>
#include <QPointer>

namespace forms {

/// A date box with a drop-down calendar; English month names whatever the locale, "dd-MMM-yyyy" by default.
/// The month can be typed as a number too.
class DatePicker : public QDateEdit
{
    Q_OBJECT
public:
    explicit DatePicker(QWidget* parent = nullptr);

    /// A pattern such as "dd-MMM-yyyy".
    void setCustomFormat(const QString& pattern);
    QDate value() const { return date(); }
    void setValue(const QDate& value) { setDate(value); }

Q_SIGNALS:
    /// The date changed, by whatever means.
    void changed();
    void calendarClosed();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    bool typeMonth(const QKeyEvent& event);

    QPointer<QWidget> m_popup; // of the calendar
    int m_monthTyped = 0;
};

} // namespace forms
