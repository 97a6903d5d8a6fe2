#include "jobcards/ItemDetails.h"

#include "jobcards/ValueReason.h"
#include "platform/forms/Metrics.h"
#include "platform/values/Errors.h"
#include "platform/values/Numbers.h"
#include "ui/swTextBox.h"

#include <QEvent>
#include <QFrame>
#include <QHBoxLayout>
#include <QStyle>
#include <QTextDocument>
#include <QWheelEvent>

using namespace Qt::StringLiterals;

namespace {

// All in twips.
constexpr int EmptyPanelHeight = 8175;
constexpr int PanelGrowth = 1000;
constexpr int RowGap = 100;
constexpr int CaptionDrop = 50;

constexpr int CaptionIndent = 6; // pixels

constexpr int twipsOf(int pixels) { return pixels * 15; }

QFont captionFont(bool hindi)
{
    QFont font(hindi ? u"Kruti Dev 010"_s : u"Verdana"_s);
    font.setPointSizeF(forms::points(hindi ? 14 : 10));
    return font;
}

void paint(QLabel& label, bool selected)
{
    const QFont font = label.font(); // polishing would lose it
    label.setProperty("selected", selected);
    label.style()->unpolish(&label);
    label.style()->polish(&label);
    label.setFont(font);
}

} // namespace

ItemDetails::ItemDetails(QWidget* parent)
    : QWidget(parent)
    , Picture2(new QFrame(this))
    , Picture1(new QWidget(Picture2))
    , VScroll1(new QScrollBar(Qt::Vertical, this))
    , m_panelHeight(EmptyPanelHeight)
{
    Picture1->setObjectName(u"Picture1"_s);
    Picture2->setObjectName(u"Picture2"_s);
    VScroll1->setObjectName(u"VScroll1"_s);
    Picture2->setProperty("card", true);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(4);
    layout->addWidget(Picture2);
    layout->addWidget(VScroll1);
    QSizePolicy keepsItsPlace = VScroll1->sizePolicy();
    keepsItsPlace.setRetainSizeWhenHidden(true);
    VScroll1->setSizePolicy(keepsItsPlace);

    Picture2->installEventFilter(this);
    connect(VScroll1, &QScrollBar::valueChanged, this, &ItemDetails::movePanel);
    makeRow();
    ClearList();
    setFocusProxy(m_rows.front().txtValue.get()); // for the tab order of the screen that is being made
}

ItemDetails::~ItemDetails() = default;

// Rows

void ItemDetails::AddFeild(const QString& caption, const QString& value)
{
    const qint16 count = values::toInt16(m_count + 1, u"Number of measurements"_s);
    const bool hindi = m_language == "Hindi"_L1;
    if (m_count > 0) {
        makeRow();
        m_panelHeight += PanelGrowth;
    }
    m_rows.back().lblCap->setFont(captionFont(hindi));
    m_count = count;
    fillRow(m_rows.back(), caption, value);
    placeRow(m_rows.size() - 1);
    updateScrollBar();
    updateFocusProxy();
}

void ItemDetails::ClearList()
{
    m_rows.erase(m_rows.begin() + 1, m_rows.end());
    m_count = 0;
    m_rows.front().lblCap->hide();
    m_rows.front().txtValue->hide();
    m_panelHeight = EmptyPanelHeight;
    VScroll1->setValue(0);
    updateScrollBar();
    updateFocusProxy();
}

void ItemDetails::ListItemText(QString& name, QString& value, qint32 index) const
{
    if (index < 0 || static_cast<size_t>(index) >= m_rows.size())
        throw SubscriptError();
    const Row& row = m_rows[static_cast<size_t>(index)];
    name = row.caption;
    value = row.txtValue->displayText();
}

void ItemDetails::setReasons(const QStringList& reasons)
{
    for (size_t i = 0; i < m_rows.size(); ++i)
        m_rows[i].reason->setReason(reasons.value(static_cast<qsizetype>(i)));
}

void ItemDetails::makeRow()
{
    const size_t index = m_rows.size();
    Row row{std::make_unique<QLabel>(Picture1), std::make_unique<swTextBox>(Picture1), nullptr, {}};
    row.reason = new ValueReason(row.txtValue.get());
    row.lblCap->setObjectName(u"lblCap_%1"_s.arg(index));
    row.lblCap->setTextFormat(Qt::PlainText);
    row.lblCap->setIndent(CaptionIndent);
    row.txtValue->setObjectName(u"txtValue_%1"_s.arg(index));
    row.txtValue->setAccessibleName(u"Measurement"_s);

    QLabel* label = row.lblCap.get();
    swTextBox* box = row.txtValue.get();
    connect(box, &swTextBox::GotFocus, this, [this, label, index] {
        rowGotFocus(index);
        lblGotFocus(*label);
    });
    connect(box, &swTextBox::LostFocus, label, [this, label] {
        lbllostFocus(*label);
        Q_EMIT valueLeft();
    });
    if (index > 0)
        setTabOrder(m_rows.back().txtValue.get(), box);
    m_rows.push_back(std::move(row));
}

void ItemDetails::fillRow(Row& row, const QString& caption, const QString& value)
{
    row.caption = caption;
    row.txtValue->setText(value);
    row.txtValue->setCursorPosition(0);
    row.txtValue->setAccessibleName(caption);
    row.reason->setReason({});
    row.lblCap->show();
    row.txtValue->show();
}

// Focus and scrolling

void ItemDetails::SetFocusToList()
{
    if (m_count > 0)
        m_rows.front().txtValue->setFocus();
}

/// A hidden proxy would hold the Tab key up in front of an empty grid.
void ItemDetails::updateFocusProxy() { setFocusProxy(m_count > 0 ? m_rows.front().txtValue.get() : nullptr); }

/// A row that lies below the first panelful is scrolled to the top, as far as the bar reaches. Rows above
/// that line leave the scroll bar alone; where one would stay out of sight the panel is moved just as far as
/// it takes to see it.
void ItemDetails::rowGotFocus(size_t index)
{
    const int top = rowTop(index);
    const int visible = twipsOf(Picture2->height());
    if (top > visible && top <= VScroll1->maximum())
        VScroll1->setValue(top);
    const int highest = rowTop(index + 1) - visible;
    movePanel(qBound(highest, VScroll1->value(), qMax(highest, top)));
}

void ItemDetails::lblGotFocus(QLabel& label) { paint(label, true); }

void ItemDetails::lbllostFocus(QLabel& label) { paint(label, false); }

/// The wheel turns as far as the last row, also where the bar does not reach it.
bool ItemDetails::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Wheel) {
        const int turned = static_cast<QWheelEvent*>(event)->angleDelta().y();
        const int shift =
            qBound(0, m_shift - turned * VScroll1->singleStep() / 120, qMax(m_shift, hiddenHeight()));
        VScroll1->setValue(shift);
        movePanel(shift);
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

void ItemDetails::movePanel(int shift)
{
    m_shift = shift;
    Picture1->move(0, -forms::twips(shift));
}

/// The bar reaches a third of the panel; it shows when the rows do not fit.
void ItemDetails::updateScrollBar()
{
    VScroll1->setMaximum(values::CLng(m_panelHeight / 3.0));
    const int step = values::CLng(m_panelHeight / qMax(1.0, static_cast<double>(m_count)));
    VScroll1->setPageStep(step);
    VScroll1->setSingleStep(step);
    const bool scrolls = hiddenHeight() > 0;
    VScroll1->setVisible(scrolls);
    if (!scrolls)
        VScroll1->setValue(0);
    Picture1->resize(Picture2->width(), forms::twips(m_panelHeight));
}

// Layout

void ItemDetails::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    layOut();
}

void ItemDetails::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    updateFocusProxy();
    layOut();
}

void ItemDetails::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        layOut();
}

void ItemDetails::layOut()
{
    layout()->activate();
    for (size_t index = 0; index < m_rows.size(); ++index)
        placeRow(index);
    updateScrollBar();
}

void ItemDetails::placeRow(size_t index)
{
    const Row& row = m_rows[index];
    const int margin = forms::twips(RowGap) * 2;
    const int captionWidth = Picture2->width() / 2 - margin;
    const int top = rowTop(index);
    const int height = rowHeight();
    row.txtValue->setGeometry(captionWidth + 2 * margin, forms::twips(top),
                              Picture2->width() - captionWidth - 3 * margin, forms::twips(height));
    row.lblCap->setGeometry(margin, forms::twips(top + CaptionDrop), captionWidth,
                            forms::twips(height - 2 * CaptionDrop));

    QString shown = row.caption;
    for (QChar& c : shown)
        c = c < u' ' ? QChar(u' ') : c;
    row.lblCap->setText(
        row.lblCap->fontMetrics().elidedText(shown, Qt::ElideRight, captionWidth - 2 * CaptionIndent));
    row.lblCap->setToolTip(row.lblCap->text() == shown ? QString() : Qt::convertFromPlainText(shown));
}

int ItemDetails::rowHeight() const
{
    const swTextBox& box = *m_rows.front().txtValue;
    box.ensurePolished();
    return twipsOf(box.sizeHint().height());
}

int ItemDetails::rowTop(size_t index) const
{
    return RowGap + static_cast<int>(index) * (rowHeight() + RowGap);
}

/// How much of the rows does not fit; 0 or less when all are in sight.
int ItemDetails::hiddenHeight() const
{
    return m_count > 0 ? rowTop(static_cast<size_t>(m_count)) - twipsOf(Picture2->height()) : 0;
}
