#pragma once

#include "platform/report/Report.h"

#include <memory>

class AccountBook;

/// The account statement: at the head of each page the shop ("Section4"), the account and the titles of the
/// columns ("Section2"), a row for each staged posting ("Section1"), the totals of the days at the end, never
/// alone on a page ("Section3"), and the page's number ("Section5").
class rptAccountsBooks : public report::Report
{
public:
    rptAccountsBooks()
        : rptAccountsBooks(false)
    {
    }

protected:
    explicit rptAccountsBooks(bool withRemark);

private:
    void designShop();
    void designHead();
    void designPosting();
    void designTotals();

    const bool m_withRemark;
};

/// The same with the remarks.
class rptAccountsBooks2 : public rptAccountsBooks
{
public:
    rptAccountsBooks2()
        : rptAccountsBooks(true)
    {
    }
};

/// Stages the postings of a book and gives the statement of it. `period` is in words. Throws
/// ado::DatabaseError.
std::unique_ptr<report::Report> StatementPaper(const AccountBook& book, const QString& account,
                                               const QString& period, bool withRemark);
