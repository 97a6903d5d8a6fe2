#include "core/store/ShopCheck.h"

#include "core/store/DE.h"
#include "core/store/Schema.h"
#include "core/store/Session.h"
#include "core/store/ShopChecks.h"
#include "core/store/ShopPictures.h"
#include "core/store/Texts.h"
#include "platform/ado/Connection.h"
#include "platform/ado/Integrity.h"
#include "platform/ado/Recordset.h"
#include "platform/values/Errors.h"

#include <memory>

using namespace Qt::StringLiterals;

namespace shopcheck {

namespace {

QStringList cells(ado::Recordset& row)
{
    QStringList texts;
    for (int column = 0; column < row.FieldCount(); ++column)
        texts << row[column].text();
    return texts;
}

/// The text with its %1, %2 ... replaced by the row's cells; what a cell holds is not looked into again.
QString filled(QStringView text, const QStringList& row)
{
    QString whole;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const int column = text[i] == u'%' && i + 1 < text.size() ? text[i + 1].digitValue() : -1;
        if (column < 1) {
            whole += text[i];
        } else {
            whole += row.value(column - 1);
            ++i;
        }
    }
    return whole;
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
            m_all.push_back({u"... and %1 more of this kind."_s.arg(m_count - mostOfAKind),
                             u"They are named when those above are put right."_s,
                             nullptr,
                             {},
                             m_all.back().mayBeMeant});
    }

private:
    std::vector<Finding>& m_all;
    int m_count = 0;
};

/// The shop as a check reads it. A part that cannot be read ends only the question that came upon it.
class Reader
{
public:
    Reader(const Progress& progress, const QString& database)
        : m_progress(progress)
        , m_database(database.isEmpty() ? session.databasePath() : database)
    {
    }

    Report look()
    {
        m_progress.step(u"Reading the whole file"_s, [this] { readFile(); });
        if (m_unreadable)
            return std::move(m_report);
        m_progress.step(u"Looking at accounts and items"_s, [this] { ask(recordChecks()); });
        m_progress.step(u"Looking at the job cards"_s, [this] { ask(cardChecks()); });
        m_progress.step(u"Looking at the books"_s, [this] { ask(bookChecks()); });
        m_progress.step(u"Looking at the wages"_s, [this] { ask(wageChecks()); });
        m_progress.step(u"Looking for the pictures"_s, [this] { attempt([this] { lookAtPictures(); }); });
        return std::move(m_report);
    }

private:
    void open()
    {
        m_connection = std::make_unique<ado::Connection>();
        m_connection->open(m_database, databasePassword(), ado::Connection::Mode::ReadOnly);
        m_connection->endWhenAsked(m_progress.stop);
        m_connection->Execute(u"BEGIN"_s); // all that is read is of one moment
    }

    void readFile()
    {
        try {
            open();
        } catch (ado::DatabaseError& error) {
            m_unreadable = true;
            return addDamage(error.text());
        }
        if (const QString damage = ado::damage(*m_connection); !damage.isEmpty())
            addDamage(damage);
        m_report.cards = countOf(u"JOBS"_s);
        m_report.lines = countOf(u"JOBS_DETAIL"_s);
        m_report.postings = countOf(u"Postings"_s);
    }

    void addDamage(const QString& damage)
    {
        m_damaged = true;
        m_report.findings.push_back({u"The file is damaged: "_s + damage,
                                     u"Restore the last backup. Keep the file as it is until then."_s});
    }

    /// In a damaged file a question may meet a page that cannot be read. The engine takes no other on that
    /// connection then.
    void attempt(const std::function<void()>& question)
    {
        try {
            question();
        } catch (ado::DatabaseError&) {
            if (!m_damaged || m_progress.stop.stop_requested())
                throw;
            open();
        }
    }

    int countOf(const QString& table)
    {
        int rows = 0;
        attempt([&] {
            ado::Recordset row(*m_connection);
            row.Open(u"Select count(*) from "_s + table);
            rows = row[0].integer();
        });
        return rows;
    }

    void ask(const std::vector<Check>& checks)
    {
        for (const Check& check : checks) {
            attempt([&] {
                Findings findings(m_report.findings);
                ado::Recordset row(*m_connection);
                for (row.Open(check.query); !row.AtEOF(); row.MoveNext())
                    findings.add(found(check, cells(row)));
            });
        }
    }

    Finding found(const Check& check, const QStringList& row) const
    {
        if (m_damaged)
            return {filled(check.what, row), u"Restore the last backup."_s};
        return {filled(check.what, row), filled(check.remedy, row), &check, row, check.mayBeMeant};
    }

    void lookAtPictures()
    {
        Findings findings(m_report.findings);
        ado::Recordset row(*m_connection);
        for (row.Open(u"Select JobID, ItemSr, Img1, Img2 from JOBS_DETAIL where Img1<>'' or Img2<>''"_s);
             !row.AtEOF(); row.MoveNext()) {
            if (m_progress.stop.stop_requested())
                throw Cancelled();
            for (const char* column : {"Img1", "Img2"})
                lookAtPicture(row, row[column].text(), findings);
        }
    }

    void lookAtPicture(ado::Recordset& line, const QString& link, Findings& findings)
    {
        if (link.isEmpty())
            return;
        ++m_report.pictures;
        if (shownPicture(link).isEmpty())
            findings.add(
                {u"A picture of %1/%2 is gone: %3"_s.arg(line["JobID"].text(), line["ItemSr"].text(), link),
                 u"\"Restore Database\" brings back pictures that a backup has. Or open the card, press Enter on the garment, take the picture anew or press Clear, then OK, and save."_s,
                 nullptr,
                 {},
                 true});
    }

    const Progress& m_progress;
    const QString m_database;
    std::unique_ptr<ado::Connection> m_connection;
    Report m_report;
    bool m_damaged = false;
    bool m_unreadable = false;
};

bool stillFinds(const Finding& finding)
{
    ado::Recordset row(DE.connection());
    for (row.Open(finding.check->query); !row.AtEOF(); row.MoveNext()) {
        if (cells(row) == finding.row)
            return true;
    }
    return false;
}

} // namespace

bool Finding::canBeMended() const { return check && !check->mend.isEmpty(); }

Report run(const Progress& progress, const QString& database) { return Reader(progress, database).look(); }

void mend(const Finding& finding)
{
    QStringList values;
    for (const QString& cell : finding.row)
        values << sqlText(cell);
    DE.connection().writeBatch([&] {
        if (!finding.canBeMended() || !stillFinds(finding))
            throw OperatorError(u"The shop has changed since it was looked over."_s);
        for (const QString& statement : finding.check->mend)
            DE.connection().Execute(filled(statement, values));
    });
    session.RefreshLists = true;
}

} // namespace shopcheck
