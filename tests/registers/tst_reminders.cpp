#include "core/shell/frmMenu.h"
#include "core/store/Session.h"
#include "jobcards/frmEditJOB.h"
#include "messaging/swSMS.h"
#include "registers/frmBirthDayRimenders.h"
#include "registers/frmTrailDate.h"
#include "support/Modem.h"
#include "support/ShopTest.h"
#include "ui/HelpLine.h"
#include "ui/frmSelectDate.h"
#include "ui/swTextBoxMultiLine.h"

#include <QMenu>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

forms::ListView& list(QWidget& screen) { return listView(screen, "lvSummary"); }

QStringList rows(QWidget& screen)
{
    QStringList texts;
    for (int row = 0; row < list(screen).rowCount(); ++row) {
        QStringList cells;
        for (int column = 0; column < 5; ++column)
            cells << list(screen).cell(row, column);
        texts << cells.join(u'|');
    }
    return texts;
}

swTextBoxMultiLine& message(QWidget& screen) { return control<swTextBoxMultiLine>(screen, "txtMessage"); }

} // namespace

/// The trials and birthdays of a day, and the messages that remind of them.
class tst_reminders : public ShopTest
{
    Q_OBJECT

    void lay() override
    {
        session.ShownShopName = u"Needle & Co"_s;
        shop->addClient(u"Asha"_s, u"0981"_s);
        shop->addClient(u"Ravi"_s);
        shop->addClient(u"Zoya"_s, u"0982"_s);
    }
    static void addCard(int number, const QString& trial, const char* appeared)
    {
        Shop::run(u"Insert into Jobs select %1, '2024-02-01', Id, Title, '2024-02-20', null, '%2', %3, 0, 0, "
                  u"0, '', "
                  "0, 0, '' from Accounts where Title='Asha'"_s.arg(number)
                      .arg(trial, QLatin1String(appeared)));
    }
    static QStringList trials()
    {
        return Shop::rows(u"Select appeared, appearedDate, TrialDate from Jobs"_s);
    }

private Q_SLOTS:
    void whatBecameOfATrial()
    {
        addCard(1, u"1900-01-01"_s, "0, null");
        addCard(2, u"2024-02-10"_s, "2, null");
        addCard(3, u"2024-02-10"_s, "0, null");
        addCard(4, u"2199-12-31"_s, "1, '2024-02-09'");
        onNextModal<frmTrailDate>([this](frmTrailDate& screen) {
            QCOMPARE(rows(screen), QStringList({u"Asha|10-Feb-2024|Trial Canceled|2|0981"_s,
                                                u"Asha|10-Feb-2024|Not Appeared|3|0981"_s}));
            const auto choose = [&](int entry) {
                press(Qt::Key_F10, Qt::ShiftModifier);
                auto& menu = control<QMenu>(screen, "mnuS");
                QTRY_VERIFY(menu.isVisible());
                while (menu.activeAction() != menu.actions().at(entry))
                    press(Qt::Key_Down);
                press(Qt::Key_Return);
            };
            press(Qt::Key_Down);
            choose(0);
            QCOMPARE(trials().at(2), u"1 2024-02-10 2024-02-10"_s);
            QCOMPARE(rows(screen).at(1), u"Asha|10-Feb-2024|Appeared [10-Feb-2024 ]|3|0981"_s);
            QCOMPARE(list(screen).selectedRow(), 1);

            onNextModal<frmSelectDate>([](frmSelectDate&) { press(Qt::Key_Escape); });
            choose(4); // a new day, but then not
            QCOMPARE(trials().at(2), u"1 2024-02-10 2024-02-10"_s);
            choose(3);
            QCOMPARE(trials().at(2), u"2  2024-02-10"_s);
            choose(1);
            QCOMPARE(trials().at(2), u"0  2024-02-10"_s);
            choose(0);
            onNextModal<frmSelectDate>([](frmSelectDate& days) {
                QCOMPARE(date(days, "DateFrom").value(), QDate(2024, 2, 10));
                typeText(u"5/2"_s);
                press(Qt::Key_Up);                                         // the month
                QCOMPARE(date(days, "DateTo").value(), QDate(2025, 3, 5)); // of a coming year
                date(days, "DateFrom").selectAll();
                typeText(u"12-2-24"_s);
                press(Qt::Key_Return);
                press(Qt::Key_Return);
                QVERIFY(!days.isVisible());
            });
            choose(4);
            QCOMPARE(trials().at(2), u"0  2024-02-12"_s);
            QCOMPARE(list(screen).rowCount(), 1); // it is not of these days any more

            onNextModal<frmEditJOB>(
                [](frmEditJOB& card) { QCOMPARE(field(card, "txtJOBID").text(), u"2"_s); });
            press(Qt::Key_Return);
            date(screen, "DateTo").setFocus();
            date(screen, "DateTo").setValue(QDate(1900, 1, 1));
            press(Qt::Key_Return);
            prompts->expect(u"Invalid date selection!"_s);
            press(Qt::Key_Return);
            date(screen, "DateFrom").setValue(QDate(1900, 1, 1));
            date(screen, "DateTo").setValue(QDate(2199, 12, 31));
            click(screen, "Command1");
            QCOMPARE(rows(screen).last(), u"Asha|31-Dec-2199|Appeared [09-Feb-2024 ]|4|0981"_s);
            QCOMPARE(list(screen).rowCount(), 4);
        });
        inModal<frmMenu>([](frmMenu&) { press(Qt::Key_T, Qt::AltModifier); });
    }

    void birthdaysOfADay()
    {
        Shop::run(u"Update Accounts set dob='1990-02-10' where Title='Zoya'"_s);
        Shop::run(u"Update Accounts set dob='2000-02-29' where Title='Ravi'"_s);
        Shop::run(u"Update Accounts set dob='1980-02-10', Type=1 where Title='Cash'"_s); // no client
        onNextModal<frmBirthDayRimenders>([](frmBirthDayRimenders& screen) {
            const auto on = [&](const QDate& day) {
                date(screen, "DateSel").setValue(day);
                click(screen, "Command1");
                return rows(screen).join(u'\n');
            };
            QCOMPARE(rows(screen), QStringList(u"Zoya|10-Feb-1990|0982||"_s));
            QCOMPARE(on(QDate(2199, 2, 10)), u"Zoya|10-Feb-1990|0982||"_s);
            QCOMPARE(on(QDate(2024, 2, 29)), u"Ravi|29-Feb-2000|||"_s);
            QCOMPARE(on(QDate(2023, 2, 28)) + on(QDate(2023, 3, 1)), QString());
            click(screen, "Command2"); // nobody is selected
            Shop::run(u"Update Accounts set dob='2023-02-11' where Title='Asha'"_s);
            Shop::run(u"Update Accounts set dob='2023-02-10' where Title='Ravi'"_s);
            for (const auto& [day, dimmed] : {std::pair(QDate(2024, 2, 10), u"Ravi no, Zoya no"_s),
                                              std::pair(QDate(2023, 2, 11), u"Asha yes"_s),
                                              std::pair(QDate(2024, 2, 11), u"Asha no"_s)}) {
                on(day);
                QStringList seen;
                for (int row = 0; row < list(screen).rowCount(); ++row)
                    seen << list(screen).cell(row, 0) + (list(screen).look(row, 1).colour ? u" yes" : u" no");
                QCOMPARE(seen.join(u", "_s), dimmed);
                QCOMPARE(control<HelpLine>(screen, "lblHelp").notice().isEmpty(), !dimmed.contains(u"yes"_s));
            }
        });
        inModal<frmMenu>([](frmMenu&) { press(Qt::Key_B, Qt::AltModifier); });
    }

    void theShopsTextGoesToTheSelectedRow()
    {
        addCard(1, u"2024-02-10"_s, "0, null");
        for (const char* client : {"Ravi", "Zoya"})
            Shop::run(u"Update Accounts set dob='1990-02-10' where Title='%1'"_s.arg(QLatin1String(client)));
        QTemporaryDir devices;
        Modem modem(devices.filePath(u"ttyUSB0"_s));
        inModal<frmBirthDayRimenders>([&](frmBirthDayRimenders& screen) {
            screen.findChild<swSMS*>()->setDeviceFolder(devices.path());
            QCOMPARE(message(screen).Text(), u"Needle & Co\r\nwishes you a very Happy Birthday..."_s);
            message(screen).setText(u"Be happy"_s);
            click(screen, "Command3");
            prompts->expect(u"Mobile Number Not Found!\r\nSMS Sending has been Failed."_s);
            click(screen, "Command2");
            list(screen).selectRow(1);
            prompts->expect(u"Modem Com Port Error!\r\nSMS Sending has been Failed."_s);
            click(screen, "Command2");
            SetSetting(settings::ModemPort, u"1"_s);
            prompts->expectAll({u"Message Sent"_s, u"Device is already open"_s, u"Message Sent"_s});
            click(screen, "Command2");
            QTRY_COMPARE(modem.heard(), QByteArray("AT+CMGF=1\rAT+CMGS=\"982\"\rBe happy\x1a"));
            click(screen, "Command2"); // also when it did not go
        });
        inModal<frmTrailDate>([&](frmTrailDate& screen) {
            screen.findChild<swSMS*>()->setDeviceFolder(devices.path());
            QCOMPARE(message(screen).Text(), u"Needle & Co\r\nDear Customer\r\nYour Trial Date is : \r\n"
                                             "Please don't forgot visit our shop for a trial."_s);
            message(screen).setText(u"₹\r\nCome"_s);
            prompts->expect(u"The modem can't send all letters of this message. The client would "
                            "read:\n\n?\nCome\n\nSend it all the same?"_s,
                            Answer::Yes);
            prompts->expect(u"Message Sent"_s);
            click(screen, "Command2");
            QTRY_VERIFY(modem.heard().endsWith("AT+CMGS=\"0\"\r?\r\nCome\x1a")); // the number is the status
        });
        inModal<frmBirthDayRimenders>(
            [](frmBirthDayRimenders& screen) { QCOMPARE(message(screen).Text(), u"Be happy"_s); });
    }
};

QTEST_MAIN(tst_reminders)
#include "tst_reminders.moc"
