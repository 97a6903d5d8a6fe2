#pragma once

#include <QLabel>

/// The line at the foot of a screen that tells its keys, as "Ctrl+A new client  ·  Esc close". It takes the
/// room that is there and shows as many of its parts, from the left, as fit into it whole; the pointer on it
/// shows all.
class HelpLine : public QLabel
{
    Q_OBJECT
public:
    explicit HelpLine(QWidget* parent = nullptr);

    /// What the operator should know at the moment: it stands in front of the keys and stands out from them.
    /// Empty when there is nothing to know.
    void setNotice(const QString& notice);
    QString notice() const { return m_notice; }

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_notice;
};
