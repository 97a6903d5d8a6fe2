#pragma once

#include "accounts/Receipt.h"
#include "platform/report/Report.h"

#include <memory>

/// The paper for money that a client pays: the shop, the receipt's number and day, from whom, how much in
/// figures and in words, for which cards, what is still due, and how to pay that by phone. A6; or twice side
/// by side on A5, to be cut: one for the client, one for the shop.
class rptReceipt : public report::Report
{
public:
    /// `payment` is the link to pay what is due; empty for none.
    rptReceipt(const Receipt& receipt, const QString& payment, bool twice);

private:
    void designShop(int left);
    void designMoney(int left);
    void designDue(int left);
    void designFoot(int left);
    report::Label& addText(const QString& name, const QString& text, int left, int width, double size);

    const Receipt m_receipt;
    const QString m_payment;
    report::Section& m_page;
    int m_top = 0; ///< where the next line of a receipt stands
};

/// The receipt of a posting, as the settings have it. Throws OperatorError as receiptOf() does.
std::unique_ptr<report::Report> ReceiptPaper(qint32 posting);

/// Prints it: at once where setting 15 is "0", else it shows first.
void PrintReceipt(qint32 posting);
