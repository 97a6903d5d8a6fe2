#pragma once

#include "platform/ado/Connection.h"
#include "platform/ado/Recordset.h"
#include "platform/values/Literals.h"

/// The one owner of the connection to the shop's database and of the recordsets that all screens share.
///
/// The shared recordsets are part of the system's definition. What the program itself reads and writes goes
/// through core/store/Rows.h, with a recordset of its own each time; the lists of names (FillList) and the
/// tests still take the shared ones: Open (which closes it first), read or write, Close. Some have no user
/// today (`rsItems2`, `rsReport2_Grouping`, and those of the staged papers).
class DataEnvironment
{
    ado::Connection m_connection;
    QString m_refusal; ///< of a file that is only looked at

public:
    /// Opens the database file. Throws ado::DatabaseError, whose text names the file.
    void open(const QString& path);
    /// Opens a file that holds the shop as it was, to be looked at: each write is refused with this sentence,
    /// but into the tables that lists and papers are put together in.
    void openToLook(const QString& path, const QString& refusal);
    void close();
    /// Throws ado::DatabaseError with that sentence when the file is only looked at: for work that would
    /// begin long before its first write.
    void refuseIfLookedAt() const;
    ado::Connection& connection() { return m_connection; }

    /// Makes the indexes that speed the look-ups, where they are missing. They carry no rule: a file that
    /// cannot be written goes without them, only slower.
    void ensureIndexes();

    ado::Recordset rsITEMS{m_connection, u"ITEMS"_s};
    ado::Recordset rsItems2{m_connection, u"ITEMS"_s};
    ado::Recordset rsJOBS{m_connection, u"SHAPE {SELECT * FROM `JOBS`}  AS JOBS APPEND ({SELECT * FROM "
                                        "`JOBS_DETAIL`}  AS PD RELATE 'Id' TO 'JobID') AS PD"_s};
    ado::Recordset rsJobs2{m_connection, u"JOBS"_s};
    ado::Recordset rsJOBS_DETAIL{m_connection, u"JOBS_DETAIL"_s};
    ado::Recordset rsJOBS_DETAIL2{m_connection, u"JOBS_DETAIL"_s};
    ado::Recordset rsSHOP{m_connection, u"SHOP"_s};
    ado::Recordset rsSettings{m_connection, u"Settings"_s};
    ado::Recordset rsPrintHead{m_connection,
                               u"SHAPE {SELECT * FROM `tmpHead`}  AS PrintHead APPEND ({SELECT * FROM "
                               "`tmpBody`}  AS PrintDetails RELATE 'JOBID' TO 'JOBID') AS PrintDetails"_s};
    ado::Recordset rsPrintBody{m_connection, u"tmpBody"_s};
    ado::Recordset rspostings{m_connection, u"postings"_s};
    ado::Recordset rspostings2{m_connection, u"postings"_s};
    ado::Recordset rsrank{m_connection, u"rank"_s};
    ado::Recordset rsaccounts{m_connection, u"Accounts"_s};
    ado::Recordset rstmpWagesRegister{m_connection, u"wagesregister"_s};
    ado::Recordset rsaccountbooks{m_connection, u"accountbook"_s};
    ado::Recordset rsReport2_Grouping{m_connection,
                                      u"SHAPE {SELECT * FROM `JOBS_DETAIL`}  AS Report2 COMPUTE Report2, "
                                      "SUM(Report2.'WorkerID') AS jtotal BY 'WorkerID'"_s};
};

extern DataEnvironment DE;
