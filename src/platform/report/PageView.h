#pragma once

#include <QAbstractScrollArea>

namespace report {

class Pages;

/// Shows one page of paper on a grey ground, at any size.
class PageView : public QAbstractScrollArea
{
    Q_OBJECT
public:
    enum class Fit { Free, Width, Page };

    explicit PageView(const Pages& pages, QWidget* parent = nullptr);

    int page() const { return m_page; }
    /// Turns to a page (from 0), brought into range, and to its top.
    void turnTo(int page);
    /// 1 is the paper's own size. Between a quarter and five times.
    double zoom() const { return m_zoom; }
    void setZoom(double zoom);
    void setFit(Fit fit);

Q_SIGNALS:
    /// Another page or another size is shown.
    void viewChanged();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    QRectF paper() const;
    double pixelsPerTwip() const;
    void arrange();

    const Pages& m_pages;
    int m_page = 0;
    double m_zoom = 1;
    Fit m_fit = Fit::Page;
};

} // namespace report
