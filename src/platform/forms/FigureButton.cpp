#include "platform/forms/FigureButton.h"

#include "platform/values/Literals.h"

#include <QLabel>
#include <QPainter>
#include <QStyle>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace forms {

namespace {

/// A line that ends in an ellipsis where the room does not do.
class CutLabel : public QLabel
{
    using QLabel::QLabel;

    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        style()->drawItemText(&painter, contentsRect(), int(alignment()), palette(), isEnabled(),
                              fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width()),
                              foregroundRole());
    }
};

} // namespace

FigureButton::FigureButton(QWidget* parent)
    : QPushButton(parent)
    , m_caption(new QLabel(this))
    , m_figure(new QLabel(this))
    , m_more(new CutLabel(this))
{
    setProperty("figure", true);
    m_caption->setProperty("caption", true);
    m_figure->setProperty("large", true);
    m_more->setProperty("hint", true);
    m_more->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred); // a long one is cut
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(14, 8, 14, 8);
    column->setSpacing(0);
    for (QLabel* label : {m_caption, m_figure, m_more}) {
        label->setAttribute(Qt::WA_TransparentForMouseEvents);
        column->addWidget(label);
    }
}

QString FigureButton::caption() const { return m_caption->text(); }

void FigureButton::setCaption(const QString& caption)
{
    m_caption->setText(caption);
    setAccessibleName(caption);
}

void FigureButton::show(const QString& figure, const QString& more, bool urgent)
{
    m_figure->setText(figure);
    m_more->setText(more);
    setToolTip(more);
    setAccessibleDescription(figure + u". "_s + more);
    m_figure->setProperty("urgent", urgent);
    m_figure->style()->unpolish(m_figure);
    m_figure->style()->polish(m_figure);
}

QString FigureButton::figure() const { return m_figure->text(); }

QString FigureButton::more() const { return m_more->text(); }

QSize FigureButton::sizeHint() const { return layout()->sizeHint(); }

} // namespace forms
