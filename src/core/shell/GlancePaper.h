#pragma once

#include "platform/report/Report.h"
#include "registers/ShopFigures.h"

/// The shop at a glance on paper: the figures of the day, what is due, the money of the weeks and the dues as
/// bars with their numbers, all debtors and workers that the screen lists.
class GlancePaper : public report::Report
{
public:
    GlancePaper(const figures::Shop& shop, const QDate& day);

private:
    /// A part of a bar.
    struct Piece
    {
        double value;
        QRgb colour;
    };
    /// Where a table stands in the head.
    struct Place
    {
        int left;
        int width;
        int top;
    };

    void addHead(const QDate& day);
    int addFigures(const figures::Shop& shop, const QString& when, int top);
    int addDue(const figures::Shop& shop, const QDate& day, Place place);
    int addDues(const figures::Shop& shop, Place place);
    int addMoney(const figures::Shop& shop, Place place);
    int addDebtors(const figures::Shop& shop, Place place);
    void addWorkers(const figures::Shop& shop);
    void addFoot(const figures::Shop& shop);

    void addHeading(const QString& text, Place& place);
    void addBar(const QString& label, const std::vector<Piece>& pieces, double highest, const QString& text,
                Place& place);
    report::Label& addText(const QString& text, int left, int top, int width, double fontSize);
    QString newName();

    report::Section& m_head;
    int m_names = 0;
};
