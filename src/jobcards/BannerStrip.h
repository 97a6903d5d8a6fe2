#pragma once

#include <QWidget>

class QLabel;
class QTimer;

/// The strip that greets the client: one line of text that walks through it from right to left for as long as
/// the strip can be seen.
class BannerStrip : public QWidget
{
    Q_OBJECT
public:
    explicit BannerStrip(QWidget* parent = nullptr);

    void setText(const QString& text);
    QSize sizeHint() const override;

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void begin();
    void step();

    QLabel* lblLastvisit;
    QTimer* Timer1;
};
