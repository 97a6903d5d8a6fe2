#include "core/DE.h"
#include "core/Session.h"
#include "jobcards/JobCard.h"
#include "support/Shop.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QRandomGenerator>
#include <QTest>

#include <cstdio>
#include <sqlcipher/sqlite3.h>

namespace {

constexpr int lines = 5;

QString query(const char* sql, int number) { return QString::fromLatin1(sql).arg(number); }

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
            card.JobRows.AddNewRow(0, QStringLiteral("Shirt"), 1, 1, 100, 100, {}, QStringLiteral("Length"),
                                   QString(2000, u'x'), 0, {}, {}, {}, {}, {}, 0, 0, 0, {}, {}, {}, {}, 0, {},
                                   {});
        JobCardHead head;
        head.Number = JobCard::GetNewNum();
        head.Date = head.DeliveryDate = head.TrialDate = session.WorkingDate;
        head.Client = QStringLiteral("Asha");
        head.Total = Currency::fromDouble(500);
        head.Paid = Currency::fromDouble(200);
        head.ReceiptAccount = QStringLiteral("Cash");
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
    void cardsAreWholeOrNotThere();
};

void tst_powercut::cardsAreWholeOrNotThere()
{
    Shop shop;
    shop.addClient(QStringLiteral("Asha"));
    shop.addItem(QStringLiteral("Shirt"));
    int acknowledged = 0;
    for (int round = 0; round < 12; ++round) {
        DE.close();
        QProcess saver;
        saver.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--save-in"), shop.folder()});
        QVERIFY(saver.waitForReadyRead(15000)); // the first card of this life is saved
        QElapsedTimer life;
        life.start();
        const qint64 span = QRandomGenerator::global()->bounded(1, 60);
        while (life.elapsed() < span)
            saver.waitForReadyRead(1);
        saver.kill();
        saver.waitForFinished();
        const QList<QByteArray> told = saver.readAllStandardOutput().split('\n');
        acknowledged = qMax(acknowledged, told.value(told.size() - 2).toInt());

        shop.reopen();
        QCOMPARE(integrity(), QByteArray("ok"));
        QCOMPARE(Shop::value(QStringLiteral("Select sum(Amount) from Postings")).toDouble(), 0.0);
        const int cards = Shop::count(QStringLiteral("Select * from Jobs"));
        QVERIFY2(cards >= acknowledged,
                 qPrintable(QStringLiteral("%1 of %2 cards").arg(cards).arg(acknowledged)));
        QCOMPARE(Shop::count(QStringLiteral("Select * from Jobs_Detail")), cards * lines);
        for (int number = 1; number <= cards; ++number) {
            QCOMPARE(Shop::count(query("Select * from Jobs_Detail where JobID=%1", number)), lines);
            QCOMPARE(Shop::count(query("Select * from Postings where vid=%1and vtype=1", number)), 4);
            const double paid =
                Shop::value(query("Select AmountPaid from Jobs where id=%1", number)).toDouble();
            QCOMPARE(
                Shop::value(query("Select Amount from Postings where vid=%1and vtype=1 and sr=4", number))
                    .toDouble(),
                paid);
        }
    }
}

int main(int argc, char* argv[])
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == QLatin1String("--save-in"))
        saveCardsUntilKilled(arguments.value(2));
    tst_powercut test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_powercut.moc"
