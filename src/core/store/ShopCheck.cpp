#include "core/store/ShopCheck.h"

#include "core/store/Schema.h"
#include "core/store/Session.h"
#include "core/store/ShopPictures.h"
#include "platform/ado/Connection.h"
#include "platform/ado/Integrity.h"
#include "platform/ado/Recordset.h"

using namespace Qt::StringLiterals;

namespace shopcheck {

namespace {

/// A query that finds what does not fit; %1, %2 ... in the sentence are its columns.
struct Check
{
    const char16_t* query;
    const char16_t* what;
    const char16_t* remedy;
};

constexpr Check cards[] = {
    Check{u"Select Id, count(*) from JOBS group by Id having count(*)>1",
          u"The number %1 is that of %2 job cards.",
          u"Only one of them opens. Enter the other one anew under another number."},
    Check{
        u"Select Id, ClintName from JOBS as c where not exists (Select 1 from JOBS_DETAIL where JobID=c.Id)",
        u"Job card %1 (%2) has no garments.", u"Open the card and add them, or delete it."},
    Check{
        u"Select ItemName, ClintName, JobID from JOBS_DETAIL as l where not exists (Select 1 from JOBS where "
        "Id=l.JobID)",
        u"%1 of %2 stands on job card %3, which is not there.", u"Enter the garment on a new card."},
    Check{u"Select c.Id, AmountDue, Total from JOBS as c, (Select JobID, total(Amount) as Total from "
          u"JOBS_DETAIL "
          u"group by JobID) as l where l.JobID=c.Id and abs(AmountDue-Total)>=0.005",
          u"Job card %1 comes to %2, its garments to %3.",
          u"Open the card and save it: it is added up anew."},
    Check{u"Select Id, ClintName from JOBS as c where not exists (Select 1 from Accounts where Id=c.ClintID)",
          u"The client of job card %1 (%2) is not there.", u"Open the card and choose a client."},
    Check{u"Select JobID, ItemSr, ItemName from JOBS_DETAIL as l where not exists (Select 1 from ITEMS where "
          "Id=l.ItemID)",
          u"The item of %1/%2 (%3) is not in the catalogue.",
          u"Open the card and choose an item for this garment."},
    Check{
        u"Select JobID, ItemSr, WorkerName from JOBS_DETAIL as l where WorkerID<>0 and not exists (Select 1 "
        u"from "
        "Accounts where Id=l.WorkerID)",
        u"The worker of %1/%2 (%3) is not there.",
        u"Open the garment in the JOB Register and choose a worker."},
};

constexpr Check books[] = {
    Check{u"Select Total from (Select total(Amount) as Total from Postings) where abs(Total)>=0.005",
          u"All postings together come to %1, not to zero.",
          u"What is named below, if anything, tells where."},
    Check{u"Select VID, case Vtype when 1 then 'job card' else 'voucher' end from Postings group by VID, "
          u"Vtype, "
          "(sr+1)/2 having count(*)<>2 or abs(total(Amount))>=0.005",
          u"The postings of %2 %1 do not make up pairs.",
          u"Open it in the Day Book and save it: it is posted anew."},
    Check{u"Select Id, ClintName, AmountDue from JOBS as c where AmountDue<>0 and not exists (Select 1 from "
          u"Postings "
          "where VID=c.Id and Vtype=1)",
          u"Job card %1 (%2, %3) is not in the books.", u"Open the card and save it."},
    Check{
        u"Select c.Id, AmountDue, -p.Amount from JOBS as c, Postings as p where p.VID=c.Id and p.Vtype=1 and "
        "p.sr=1 and abs(AmountDue+p.Amount)>=0.005",
        u"Job card %1 comes to %2, the books say %3.", u"Open the card and save it: it is posted anew."},
    Check{u"Select VID from Postings as p where Vtype=1 and sr=1 and not exists (Select 1 from JOBS where "
          u"Id=p.VID)",
          u"Job card %1 is in the books, but not there.",
          u"Enter a card with this number and delete it: that takes it out of the books."},
    Check{u"Select VID, particulars from Postings as p where not exists (Select 1 from Accounts where "
          u"Id=p.AccID)",
          u"An account of voucher %1 (%2) is not there.", u"Open it in the Day Book and choose an account."},
};

constexpr Check wages[] = {
    Check{u"Select JobID, ItemSr, WorkerName from JOBS_DETAIL where MarkAsPaid>0 and PayrollID=0",
          u"%1/%2 (%3) is marked as paid without a payroll.",
          u"If it was not marked by hand, open it in the JOB Register and take the mark off."},
    Check{u"Select JobID, ItemSr, PayrollID from JOBS_DETAIL as l where PayrollID>0 and not exists (Select 1 "
          u"from "
          "Postings where VID=l.PayrollID and isPayroll<>0)",
          u"%1/%2 was paid by payroll %3, which is not in the books.",
          u"Open it in the JOB Register and take the mark off; the next payroll pays it."},
};

QString sentence(QStringView text, ado::Recordset& row)
{
    QString told;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] == u'%')
            told += row[text[++i].digitValue() - 1].text();
        else
            told += text[i];
    }
    return told;
}

class Findings
{
public:
    explicit Findings(std::vector<Finding>& all)
        : m_all(all)
    {
    }
    void add(const Finding& finding)
    {
        if (++m_count <= mostOfAKind)
            m_all.push_back(finding);
    }
    ~Findings()
    {
        if (m_count > mostOfAKind)
            m_all.push_back(
                Finding{u"... and %1 more of this kind."_s.arg(m_count - mostOfAKind), m_all.back().remedy});
    }

private:
    std::vector<Finding>& m_all;
    int m_count = 0;
};

template <size_t Count>
void look(ado::Connection& connection, const Check (&checks)[Count], Report& report)
{
    for (const Check& check : checks) {
        Findings findings(report.findings);
        ado::Recordset row(connection);
        for (row.Open(QString::fromUtf16(check.query)); !row.AtEOF(); row.MoveNext())
            findings.add(Finding{sentence(check.what, row), QString::fromUtf16(check.remedy)});
    }
}

void lookAtPictures(ado::Connection& connection, const std::stop_token& stop, Report& report)
{
    Findings findings(report.findings);
    ado::Recordset row(connection);
    for (row.Open(u"Select JobID, ItemSr, Img1, Img2 from JOBS_DETAIL where Img1<>'' or Img2<>''"_s);
         !row.AtEOF(); row.MoveNext()) {
        if (stop.stop_requested())
            throw GivenUp();
        for (const char* column : {"Img1", "Img2"}) {
            const QString link = row[column].text();
            if (link.isEmpty())
                continue;
            ++report.pictures;
            if (shownPicture(link).isEmpty())
                findings.add(
                    {u"A picture of %1/%2 is gone: %3"_s.arg(row["JobID"].text(), row["ItemSr"].text(), link),
                     u"\"Restore Database\" brings back pictures that a backup has; or take it anew."_s});
        }
    }
}

int countOf(ado::Connection& connection, const QString& table)
{
    ado::Recordset row(connection);
    row.Open(u"Select count(*) from "_s + table);
    return row[0].integer();
}

} // namespace

Report run(const Watch& watch)
{
    Report report;
    ado::Connection connection;
    connection.open(session.databasePath(), databasePassword(), ado::Connection::Mode::ReadOnly);
    ado::endWhenAsked(connection, watch.stop);
    connection.Execute(u"BEGIN"_s); // all that is read is of one moment
    watch.step(u"Reading the whole file"_s, [&] {
        if (const QString damage = ado::damage(connection); !damage.isEmpty())
            report.findings.push_back(
                Finding{u"The file is damaged: "_s + damage,
                        u"Restore the last backup. Keep the file as it is until then."_s});
        report.cards = countOf(connection, u"JOBS"_s);
        report.lines = countOf(connection, u"JOBS_DETAIL"_s);
        report.postings = countOf(connection, u"Postings"_s);
    });
    watch.step(u"Looking at the job cards"_s, [&] { look(connection, cards, report); });
    watch.step(u"Looking at the books"_s, [&] { look(connection, books, report); });
    watch.step(u"Looking at the wages"_s, [&] { look(connection, wages, report); });
    watch.step(u"Looking for the pictures"_s, [&] { lookAtPictures(connection, watch.stop, report); });
    return report;
}

} // namespace shopcheck
