#pragma once

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
    /// A line of job card 1.
    qint32 addJobLine(qint32 client, qint32 item, qint32 worker = 0);
    /// The two lines of a receipt: `main` is credited with the amount, `ref` debited.
    void addVoucher(qint32 vid, qint32 main, qint32 ref, double amount);

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
