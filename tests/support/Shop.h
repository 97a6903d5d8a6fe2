#pragma once

#include "core/store/DE.h"
#include "core/store/Lookups.h"
#include "core/store/Session.h"
#include "core/store/Settings.h"
#include "jobcards/JobCard.h"
#include "platform/values/Literals.h"

#include <QDate>
#include <QString>
#include <QTemporaryDir>
#include <QVariant>

#include <utility>
#include <vector>

/// A fresh shop in a temporary folder of its own, opened as the program opens it: real encrypted file,
/// working date 10 February 2024. One at a time; gone with the object.
class Shop
{
public:
    Shop();
    ~Shop();
    Shop(const Shop&) = delete;
    Shop& operator=(const Shop&) = delete;

    QString folder() const { return m_folder.path(); }
    /// Closes and opens the file anew, as a restart of the program does.
    void reopen();

    /// Lay a record and give back its Id.
    static qint32 add(const QString& table, const std::vector<std::pair<const char*, QVariant>>& fields);
    qint32 addClient(const QString& title, const QString& mobile = {});
    qint32 addWorker(const QString& title);
    qint32 addItem(const QString& name, double fees = 100, double workerFees = 40,
                   const QString& details = u"Length\r\nChest=40"_s);
    /// A line of job card 1, with the fields that `set` names as in an Update: "Score=4, Loc='A1'".
    qint32 addJobLine(qint32 client, qint32 item, qint32 worker = 0, const QString& set = {});
    /// A card of 1 February, to be delivered on the 20th.
    void addJob(qint32 number, qint32 client = 1);
    /// The two lines of a receipt: `main` is credited with the amount, `ref` debited.
    void addVoucher(qint32 vid, qint32 main, qint32 ref, double amount);

    /// Puts pieces of an item on a card, for that amount together.
    static void order(clsJobCardData& lines, const QString& item, double amount, int quantity = 2);
    /// The head of such a card, to be delivered in a week.
    static JobCardHead head(qint32 number, const QString& client, double total, double paid = 0);

    /// The first value of a query, and the number of its rows.
    static QVariant value(const QString& sql);
    static int count(const QString& sql);
    /// The rows of a query, each with its values joined by blanks.
    static QStringList rows(const QString& sql);
    /// Changes what lies in the tables behind the program's back.
    static void run(const QString& sql);

private:
    QTemporaryDir m_folder;
};
