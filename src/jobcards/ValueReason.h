#pragma once

#include <QWidget>

class QLineEdit;

/// A short reason at the right end of a box, beside the value that it is about, which it leaves room for.
/// Where it does not fit it is shortened, and whole when the mouse rests on it. It goes as the value is typed
/// anew.
class ValueReason : public QWidget
{
    Q_OBJECT
public:
    explicit ValueReason(QLineEdit* box);

    /// Empty for none.
    void setReason(const QString& reason);
    QString reason() const { return m_reason; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QFont smallFont() const;
    void place();

    QLineEdit& m_box;
    QString m_reason;
    bool m_fits = true;
};
