#include "core/store/DE.h"
#include "core/store/Session.h"
#include "jobcards/JobCard.h"
#include "support/Shop.h"

#include <QDeadlineTimer>
#include <QProcess>
#include <QRandomGenerator>
#include <QTest>

#include <cstdio>
#include <sqlcipher/sqlite3.h>

namespace {

constexpr int lines = 5;

/// The engine's own word on the file: it reports damage in its rows.
QByteArray integrity()
{
    QByteArray report;
    const auto keep = [](void* kept, int, char** values, char**) {
        *static_cast<QByteArray*>(kept) += values[0];
        return 0;
    };
    sqlite3_exec(DE.connection().handle(), "PRAGMA integrity_check", keep, &report, nullptr);
    return report;
}

/// The other life of this program: saves cards on the shop of `folder` without end, editing each once, and
/// tells the number of each card that it was told is saved.
[[noreturn]] void saveCardsUntilKilled(const QString& folder)
{
    session.appFolder = folder;
    session.WorkingDate = QDate(2024, 2, 10);
    DE.open(session.databasePath());
    for (;;) {
        JobCard card;
        for (int i = 0; i < lines; ++i)
            card.JobRows.AddNewRow(0, "Shirt", 1, 1, 100, 100, {}, "Length", QString(2000, u'x'), 0, {}, {},
                                   {}, {}, {}, 0, 0, 0, {}, {}, {}, {}, 0, {}, {});
        JobCardHead head;
        head.Number = JobCard::GetNewNum();
        head.Date = head.DeliveryDate = head.TrialDate = session.WorkingDate;
        head.Client = "Asha";
        head.Total = Currency::fromDouble(500);
        head.Paid = Currency::fromDouble(200);
        head.ReceiptAccount = "Cash";
        card.SaveNew(head);
        std::printf("%d\n", head.Number);
        std::fflush(stdout);
        head.Paid = Currency::fromDouble(500);
        card.SaveEdit(head);
    }
}

} // namespace

/// The program dies in the middle of its saves, again and again.
class tst_powercut : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void cardsAreWholeOrNotThere()
    {
        Shop shop;
        shop.addClient("Asha");
        shop.addItem("Shirt");
        int acknowledged = 0;
        for (int round = 0; round < 12; ++round) {
            DE.close();
            QProcess saver;
            saver.start(QCoreApplication::applicationFilePath(), {"--save-in", shop.folder()});
            QVERIFY(saver.waitForReadyRead(15000)); // the first card of this life is saved
            const QDeadlineTimer end(QRandomGenerator::global()->bounded(1, 60));
            while (!end.hasExpired())
                saver.waitForReadyRead(1);
            saver.kill();
            saver.waitForFinished();
            const QList<QByteArray> told = saver.readAllStandardOutput().split('\n');
            acknowledged = qMax(acknowledged, told.value(told.size() - 2).toInt());

            shop.reopen();
            QCOMPARE(integrity(), QByteArray("ok"));
            QCOMPARE(Shop::value("Select sum(Amount) from Postings").toDouble(), 0.0);
            const QStringList paid = Shop::rows("Select AmountPaid from Jobs order by id");
            QVERIFY2(paid.size() >= acknowledged, qPrintable(QString("of %1 cards").arg(acknowledged)));
            QCOMPARE(Shop::rows("Select Amount from Postings where vtype=1 and sr=4 order by vid"), paid);
            QCOMPARE(Shop::count("Select * from Postings"), 4 * paid.size());
            QCOMPARE(Shop::count("Select * from Jobs_Detail"), lines * paid.size());
            const QStringList whole(paid.size(), QString::number(lines));
            QCOMPARE(Shop::rows("Select count(*) from Jobs_Detail group by JobID"), whole);
        }
    }
};

int main(int argc, char* argv[])
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == "--save-in")
        saveCardsUntilKilled(arguments.value(2));
    tst_powercut test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_powercut.moc"
