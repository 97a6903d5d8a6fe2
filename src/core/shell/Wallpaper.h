#pragma once

#include <QPixmap>
#include <QWidget>

/// The wall of the main screen's desktop area: the built-in drawing, covering all of it, or a picture of the
/// shop's own, centred at its own size. Fills its parent.
class Wallpaper : public QWidget
{
public:
    explicit Wallpaper(QWidget* desktop);

    /// Shows the picture of a file. One that cannot be read leaves the wall as it stands.
    void loadPicture(const QString& path);

protected:
    void paintEvent(QPaintEvent*) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void drawBuiltIn(const QSize& size);

    QPixmap m_picture;
    QPixmap m_builtIn;
};
