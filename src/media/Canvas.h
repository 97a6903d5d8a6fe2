#pragma once

#include <QImage>
#include <QWidget>
#include <vector>

/// A sheet of white paper to draw on with the mouse or the pen of a tablet. What is drawn stays in an image
/// of the sheet's own size, whatever the scale of the display.
class Canvas : public QWidget
{
    Q_OBJECT
public:
    enum class Tool { Pen, Eraser };

    explicit Canvas(QWidget* parent = nullptr);
    ~Canvas() override;

    /// Puts the picture on a clean sheet, which grows to hold all of it. It can't be taken back.
    void load(const QImage& picture);
    const QImage& image() const { return m_sheet; }

    void setTool(Tool tool);
    /// A clean sheet.
    void clear();
    /// Takes back the last stroke, or the last cleaning; false when there is none left.
    bool undo();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void tabletEvent(QTabletEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void begin(const QPointF& at, Tool tool);
    void drawTo(const QPointF& at);
    void end(const QPointF& at);
    void draw(const QPainterPath& path);
    void keep();

    QImage m_sheet;
    std::vector<QImage> m_before; ///< the sheet as it was, the latest last
    Tool m_tool = Tool::Pen;
    bool m_drawing = false;
    Tool m_inHand = Tool::Pen; ///< of the stroke that is being drawn
    QPointF m_last;            ///< where the pointer was last
    QPointF m_drawn;           ///< how far the stroke stands in the image
};
