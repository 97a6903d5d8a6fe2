#pragma once

#include "platform/ado/Connection.h"
#include "platform/ado/Recordset.h"

/// The one owner of the connection to the shop's database and of the recordsets that all screens share.
///
/// A screen borrows the recordset it needs: Open (which closes it first), read or write, Close. Recordsets
/// are lent strictly one at a time; nobody may count on one staying open across a call of another operation.
class DataEnvironment
{
    ado::Connection m_connection;

public:
    /// Opens the database file. Throws ado::DatabaseError, whose text names the file.
    void open(const QString& path);
    void close();
    ado::Connection& connection() { return m_connection; }

    /// Makes the indexes that the look-ups lean on, where they are missing. They carry no rule: a file that
    /// cannot be written goes without them, only slower.
    void ensureIndexes();

    ado::Recordset rsITEMS{m_connection, QStringLiteral("ITEMS")};
    ado::Recordset rsItems2{m_connection, QStringLiteral("ITEMS")};
    ado::Recordset rsJOBS{m_connection,
                          QStringLiteral("SHAPE {SELECT * FROM `JOBS`}  AS JOBS APPEND ({SELECT * FROM "
                                         "`JOBS_DETAIL`}  AS PD RELATE 'Id' TO 'JobID') AS PD")};
    ado::Recordset rsJobs2{m_connection, QStringLiteral("JOBS")};
    ado::Recordset rsJOBS_DETAIL{m_connection, QStringLiteral("JOBS_DETAIL")};
    ado::Recordset rsJOBS_DETAIL2{m_connection, QStringLiteral("JOBS_DETAIL")};
    ado::Recordset rsSHOP{m_connection, QStringLiteral("SHOP")};
    ado::Recordset rsSettings{m_connection, QStringLiteral("Settings")};
    ado::Recordset rsPrintHead{
        m_connection,
        QStringLiteral("SHAPE {SELECT * FROM `tmpHead`}  AS PrintHead APPEND ({SELECT * FROM "
                       "`tmpBody`}  AS PrintDetails RELATE 'JOBID' TO 'JOBID') AS PrintDetails")};
    ado::Recordset rsPrintBody{m_connection, QStringLiteral("tmpBody")};
    ado::Recordset rspostings{m_connection, QStringLiteral("postings")};
    ado::Recordset rspostings2{m_connection, QStringLiteral("postings")};
    ado::Recordset rsrank{m_connection, QStringLiteral("rank")};
    ado::Recordset rsaccounts{m_connection, QStringLiteral("Accounts")};
    ado::Recordset rstmpWagesRegister{m_connection, QStringLiteral("wagesregister")};
    ado::Recordset rsaccountbooks{m_connection, QStringLiteral("accountbook")};
    ado::Recordset rsReport2_Grouping{
        m_connection, QStringLiteral("SHAPE {SELECT * FROM `JOBS_DETAIL`}  AS Report2 COMPUTE Report2, "
                                     "SUM(Report2.'WorkerID') AS jtotal BY 'WorkerID'")};
};

extern DataEnvironment DE;
