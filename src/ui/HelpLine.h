#pragma once

#include <QLabel>

/// The line at the foot of a screen that tells its keys, as "Ctrl+A new client  ·  Esc close". It takes the
/// room that is there and shows as many of its parts, from the left, as fit into it whole.
class HelpLine : public QLabel
{
    Q_OBJECT
public:
    explicit HelpLine(QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
};
