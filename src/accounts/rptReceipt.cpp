#include "accounts/rptReceipt.h"

#include "core/store/AmountInWords.h"
#include "core/store/PaymentLink.h"
#include "core/store/Session.h"
#include "core/store/Settings.h"
#include "core/store/Texts.h"
#include "platform/report/PaperDesign.h"
#include "platform/report/Preview.h"
#include "platform/report/Printing.h"
#include "ui/PaperPrinters.h"

#include <QStringList>
#include <cmath>

using namespace Qt::StringLiterals;

using namespace report;

namespace {

constexpr QSizeF a6(105, 148);
constexpr QSizeF a5Across(210, 148);
constexpr int Margin = mm(8);
constexpr int Width = mm(105) - 2 * Margin;
constexpr int CaptionWidth = 1500;
constexpr int CodeEdge = mm(31);

QString rupees(double amount) { return u"Rs. "_s + formatted(amount, u"#,##0.00"_s); }

QString dueCaption(double balance)
{
    return balance < 0 ? u"Still Due :"_s : balance > 0 ? u"Paid in Advance :"_s : u"Nothing is due"_s;
}

QString numbers(const std::vector<qint32>& cards)
{
    QStringList texts;
    for (const qint32 card : cards)
        texts << QString::number(card);
    return texts.join(u", "_s);
}

} // namespace

rptReceipt::rptReceipt(const Receipt& receipt, const QString& payment, bool twice)
    : Report(u"Receipt"_s)
    , m_receipt(receipt)
    , m_payment(payment)
    , m_page(addSection(u"Section1"_s, Band::ReportHead))
{
    Kind = int(PaperKind::Receipt);
    PageSize = twice ? a5Across : a6;
    LeftMargin = RightMargin = TopMargin = BottomMargin = Margin;
    Subject = u"Receipt %1 %2"_s.arg(receipt.number, receipt.payer);
    for (const int left : twice ? std::vector{0, mm(105)} : std::vector{0}) {
        m_top = 0;
        designShop(left);
        designMoney(left);
        designDue(left);
        designFoot(left);
    }
    m_page.Height = m_top;
    if (twice) {
        Shape& cut = paper::rule(m_page, u"Cut"_s, mm(105) - Margin, 0, 0, palette::onPaper::quietInk);
        cut.Height = m_top;
        cut.Dashed = true;
    }
}

/// A line of text, or several; the next stands below it.
Label& rptReceipt::addText(const QString& name, const QString& text, int left, int width, double size)
{
    constexpr double lineHeight = 25; // twips a point
    Label& label = m_page.addLabel(name, text);
    label.place(left, m_top, width, int(size * lineHeight));
    label.FontSize = size;
    label.Color = palette::onPaper::ink;
    label.CanGrow = true;
    m_top += label.Height;
    return label;
}

void rptReceipt::designShop(int left)
{
    addText(u"lblCompany"_s, session.ShopName, left, Width, 15).Bold = true;
    for (const QString& line :
         {session.ShopAddress1, session.ShopAddress2, session.ShopAddress3, session.ShopContacts}) {
        if (!line.isEmpty())
            addText(u"lblAddress"_s, line, left, Width, 8).Color = palette::onPaper::quietInk;
    }
    m_top += 80;
    paper::rule(m_page, u"Line1"_s, left, m_top, Width, palette::onPaper::ink).Weight = 20;
    m_top += 100;
}

void rptReceipt::designMoney(int left)
{
    paper::caption(m_page, u"Label1"_s, u"Receipt #"_s, left, m_top, CaptionWidth);
    Label& day = paper::caption(m_page, u"lblDate"_s, dateText(m_receipt.date), left, m_top, Width);
    day.Alignment = Qt::AlignRight;
    day.Color = palette::onPaper::ink;
    Label& number =
        addText(u"lblNumber"_s, m_receipt.number, left + CaptionWidth, Width - CaptionWidth - 1300, 11);
    number.Bold = true;
    m_top += 60;
    paper::caption(m_page, u"Label2"_s, u"Received from :"_s, left, m_top, CaptionWidth);
    addText(u"lblPayer"_s, m_receipt.payer, left + CaptionWidth, Width - CaptionWidth, 10).Bold = true;
    if (!m_receipt.cards.empty()) {
        m_top += 40;
        paper::caption(m_page, u"Label3"_s, u"For Job Card # :"_s, left, m_top, CaptionWidth);
        addText(u"lblCards"_s, numbers(m_receipt.cards), left + CaptionWidth, Width - CaptionWidth, 10);
    }
    m_top += 120;
    constexpr int barHeight = 500;
    paper::bar(m_page, u"Shape1"_s, left, m_top, Width, barHeight);
    m_top += 75;
    paper::caption(m_page, u"Label4"_s, u"Amount"_s, left + 100, m_top + 60, CaptionWidth);
    Label& amount = addText(u"lblAmount"_s, rupees(m_receipt.amount), left + CaptionWidth,
                            Width - CaptionWidth - 100, 14);
    amount.Bold = true;
    amount.Alignment = Qt::AlignRight;
    m_top += 130;
    addText(u"lblWords"_s, amountInWords(m_receipt.amount), left, Width, 10).Italic = true;
    m_top += 140;
}

void rptReceipt::designDue(int left)
{
    if (!m_receipt.balance)
        return;
    const double balance = shownMoney(*m_receipt.balance);
    constexpr int captionWidth = 2000;
    paper::rule(m_page, u"Line2"_s, left, m_top, Width);
    m_top += 90;
    paper::caption(m_page, u"lblDueCaption"_s, dueCaption(balance), left, m_top, captionWidth);
    Label& due = addText(u"lblDue"_s, balance == 0 ? QString() : rupees(std::abs(balance)),
                         left + captionWidth, Width - captionWidth - 100, 11);
    due.Bold = true;
    due.Alignment = Qt::AlignRight;
    m_top += 220;
}

/// The code to pay by at the left, the signature at the right.
void rptReceipt::designFoot(int left)
{
    constexpr int signatureLeft = CodeEdge + 200;
    constexpr int signatureWidth = Width - signatureLeft;
    if (!m_payment.isEmpty())
        paper::qrCode(m_page, u"Payment"_s, m_payment, u"Scan to pay what is due"_s, left, m_top, CodeEdge);
    const int top = m_top;
    Label& shop =
        addText(u"lblForCompany"_s, u"For "_s + session.ShopName, left + signatureLeft, signatureWidth, 9);
    shop.Alignment = Qt::AlignRight;
    m_top = top + CodeEdge - 240;
    paper::rule(m_page, u"Line3"_s, left + signatureLeft + 700, m_top, signatureWidth - 700,
                palette::onPaper::quietInk);
    paper::caption(m_page, u"Label5"_s, u"Auth Sig"_s, left + signatureLeft, m_top + 30, signatureWidth)
        .Alignment = Qt::AlignRight;
    m_top = top + CodeEdge + 260;
}

std::unique_ptr<Report> ReceiptPaper(qint32 posting)
{
    const Receipt receipt = receiptOf(posting);
    const QString payment = paymentLink(GetSetting(settings::PaymentAddress), -receipt.balance.value_or(0));
    return std::make_unique<rptReceipt>(receipt, payment, IsOn(settings::TwoReceipts));
}

void PrintReceipt(qint32 posting)
{
    const auto receipt = ReceiptPaper(posting);
    if (GetSetting(settings::PrintPreview) == "0"_L1)
        printDirect(*receipt);
    else
        Preview(*receipt).showModal();
}
