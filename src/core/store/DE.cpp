#include "core/store/DE.h"

#include "core/store/Schema.h"

using namespace Qt::StringLiterals;

DataEnvironment DE;

void DataEnvironment::open(const QString& path)
{
    m_connection.open(path, databasePassword());
    m_refusal.clear();
}

void DataEnvironment::openToLook(const QString& path, const QString& refusal)
{
    m_connection.openToLook(path, databasePassword(), refusal);
    m_refusal = refusal;
    makeTemporaryTables(m_connection);
}

void DataEnvironment::close() { m_connection.close(); }

void DataEnvironment::refuseIfLookedAt() const
{
    if (!m_refusal.isEmpty())
        throw ado::DatabaseError(m_refusal);
}

void DataEnvironment::ensureIndexes()
{
    struct Index
    {
        const char* name;
        const char* columns;
    };
    static constexpr Index indexes[] = {
        {"Accounts_Title", "Accounts (Title)"},
        {"Accounts_Type", "Accounts (Type, Title)"},
        {"Accounts_Kind", "Accounts (Type)"}, // in order of insertion, without sorting
        {"Items_Name", "ITEMS (NAME)"},
        {"Jobs_Id", "JOBS (Id)"},
        {"Jobs_Clint", "JOBS (ClintID)"},
        {"Jobs_Detail_Job", "JOBS_DETAIL (JobID)"},
        {"Jobs_Detail_Clint", "JOBS_DETAIL (ClintID, ItemID)"},
        {"Jobs_Detail_Date", "JOBS_DETAIL (DATE, ClintID, WorkerID)"},
        {"Jobs_Detail_Delivery", "JOBS_DETAIL (JobDelDate, ClintID, WorkerID)"},
        {"Jobs_Detail_Item", "JOBS_DETAIL (ItemID, DATE, WorkerID, QNT, DoneByWorker)"},
        {"Jobs_Detail_Payroll", "JOBS_DETAIL (PayrollID)"},
        {"Jobs_Detail_Score", "JOBS_DETAIL (WorkerID, Score)"},
        {"Jobs_Detail_State", "JOBS_DETAIL (DoneByWorker, WorkerID, DATE, JobDelDate)"},
        {"Jobs_Detail_Completed", "JOBS_DETAIL (CompletedDate, WorkerID)"},
        {"Jobs_Detail_Worker", "JOBS_DETAIL (WorkerID, DATE)"},
        {"Postings_Balance", "postings (AccID, Status, Date, Amount)"},
        {"Postings_Reference", "postings (RefID)"},
        {"Postings_Voucher", "postings (VID, Vtype)"},
        {"Settings_Setting", "Settings (SETTING)"},
    };
    try {
        QStringList present;
        ado::Recordset names(m_connection);
        for (names.Open(u"Select name from sqlite_master where type='index'"_s); !names.AtEOF();
             names.MoveNext())
            present << names[0].text();
        names.Close();
        QStringList statements;
        for (const Index& index : indexes)
            if (const QLatin1String name(index.name); !present.contains(name))
                statements << u"CREATE INDEX %1 ON %2"_s.arg(name, QLatin1String(index.columns));
        if (statements.isEmpty()) // the usual start takes no lock on the file
            return;
        m_connection.writeBatch([&] {
            for (const QString& statement : statements)
                m_connection.Execute(statement);
        });
    } catch (const ado::DatabaseError&) {
        // Without them every look-up still finds the same rows.
    }
}
