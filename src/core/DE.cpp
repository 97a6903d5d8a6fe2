#include "core/DE.h"

#include "core/Schema.h"

DataEnvironment DE;

void DataEnvironment::open(const QString& path) { m_connection.open(path, databasePassword()); }

void DataEnvironment::close() { m_connection.close(); }

void DataEnvironment::ensureIndexes()
{
    static const char* const indexes[] = {
        "Accounts_Title ON Accounts (Title)",
        "Accounts_Type ON Accounts (Type, Title)",
        "Items_Name ON ITEMS (NAME)",
        "Jobs_Id ON JOBS (Id)",
        "Jobs_Clint ON JOBS (ClintID)",
        "Jobs_Detail_Job ON JOBS_DETAIL (JobID)",
        "Jobs_Detail_Clint ON JOBS_DETAIL (ClintID, ItemID)",
        "Jobs_Detail_Item ON JOBS_DETAIL (ItemID)",
        "Jobs_Detail_Worker ON JOBS_DETAIL (WorkerID)",
        "Postings_Account ON postings (AccID)",
        "Postings_Reference ON postings (RefID)",
        "Postings_Voucher ON postings (VID, Vtype)",
        "Settings_Setting ON Settings (SETTING)",
    };
    try {
        m_connection.writeBatch([this] {
            for (const char* index : indexes)
                m_connection.Execute(QStringLiteral("CREATE INDEX IF NOT EXISTS ") + QLatin1String(index));
        });
    } catch (const ado::DatabaseError&) {
        // Without them every look-up still finds the same rows.
    }
}
