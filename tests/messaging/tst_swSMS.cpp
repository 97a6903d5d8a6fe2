#include "core/store/Contacts.h"
#include "jobcards/JobProgress.h"
#include "messaging/frmByPhone.h"
#include "messaging/modSMS.h"
#include "messaging/swSMS.h"
#include "support/Modem.h"
#include "support/ShopTest.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>
#include <QUrl>

/// The wording of messages, what they look up, and their way through a real line to a modem that only
/// listens.
class tst_swSMS : public ShopTest
{
    Q_OBJECT

    QString device(const QString& name) const { return m_devices->filePath(name); }

    swSMS* sender()
    {
        auto* sms = new swSMS(m_screen.get());
        sms->setDeviceFolder(m_devices->path());
        return sms;
    }

    void lay() override
    {
        m_devices = std::make_unique<QTemporaryDir>();
        m_screen = std::make_unique<QWidget>();
    }
    std::unique_ptr<QTemporaryDir> m_devices;
    std::unique_ptr<QWidget> m_screen;

private Q_SLOTS:
    void portsByNumber()
    {
        QCOMPARE(devices::serialPortName(1, m_devices->path()), device("ttyS0"));
        for (const char* name : {"ttyS1", "ttyACM1", "ttyUSB1"}) { // each goes before the earlier ones
            writeFile(device(name), {});
            QCOMPARE(devices::serialPortName(2, m_devices->path()), device(name));
        }
    }

    void bytesOfAMessage()
    {
        for (const auto& [number, digits] :
             {std::pair("09812345678", "9812345678"), std::pair("+91 98123 45678", "919812345678"),
              std::pair("call her", "0"), std::pair("98123-45678 home", "98123")}) {
            Modem modem(device("ttyUSB2"));
            const std::unique_ptr<swSMS> sms(sender());
            sms->SendSMS(3, number, "Dear Customer\r Rs. 301\r");
            QTRY_COMPARE(modem.heard(),
                         QByteArray("AT+CMGF=1\rAT+CMGS=\"") + digits + "\"\rDear Customer\r Rs. 301\r\x1a");
            QVERIFY(QFile::remove(device("ttyUSB2")));
        }
    }

    void portStaysOpenUntilTheScreenGoes()
    {
        Modem modem(device("ttyUSB0"));
        swSMS* sms = sender();
        sms->SendSMS(1, "98", "one");
        QTRY_VERIFY(modem.heard().endsWith("one\x1a"));
        prompts->expect("Device is already open");
        sms->SendSMS(1, "98", "two");

        QWidget otherScreen; // the line is busy there
        swSMS other(&otherScreen);
        other.setDeviceFolder(m_devices->path());
        prompts->expect("Permission error while locking the device");
        other.SendSMS(1, "98", "meanwhile");

        m_screen = std::make_unique<QWidget>();
        sender()->SendSMS(1, "98", "three");
        QTRY_VERIFY(modem.heard().endsWith("three\x1a"));
        QVERIFY(!modem.heard().contains("two") && !modem.heard().contains("meanwhile"));
    }

    /// A modem that goes in the middle of a message is told of once, however often the system reports it.
    void failuresAreToldOnce()
    {
        prompts->expect("No such file or directory\n\nThere is no " + device("ttyS-6") +
                        ". Is the modem plugged in, and is its number right (Settings, SMS)?");
        sender()->SendSMS(-5, "98", "nobody hears");
        auto modem = std::make_unique<Modem>(device("ttyUSB0"));
        swSMS* sms = sender();
        sms->SendSMS(1, "98", QString(200000, u'x'));
        QVERIFY(sms->isOpen());
        prompts->expect("Input/output error");
        modem.reset();
        QTRY_VERIFY(!sms->isOpen() && prompts->allMet());
    }

    /// A port that another program has open: it is named.
    void whoHoldsThePort()
    {
        writeFile(device("ttyS0"), {});
        QProcess holder;
        holder.setStandardInputFile(device("ttyS0"));
        holder.start("sleep", {"60"});
        QVERIFY(holder.waitForStarted());
        QTRY_COMPARE(devices::serialPortAdvice(device("ttyS0")),
                     "The program \"sleep\" holds the port. Close it, then send again.");
        holder.kill();
        holder.waitForFinished();
        QCOMPARE(devices::serialPortAdvice(device("ttyS0")), "");
    }

    /// What the phone's camera reads from the screen is what would have been sent, letter by letter.
    void phoneReadsTheScreen_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QString>("read");
        const QString hindi = QString::fromUtf8("नमस्ते जी, आपके कपड़े तैयार हैं। ₹1,250 बाकी।");
        const auto longText = [](const QString& part, int size) -> QString {
            return part.repeated(size / part.size() + 1).left(size - 1) + "x";
        };
        QTest::newRow("plain") << "Dear Customer\r Job ID # 7\r\rRangoli"
                               << "SMS"
                               << "SMSTO:9829012345:Dear Customer\n Job ID # 7\n\nRangoli";
        for (const int size : {160, 500}) {
            const QString plain = longText("Your clothes are ready; 100% & more: a+b=c? ", size);
            const QString inHindi = longText(hindi, size);
            QTest::addRow("%d letters", size) << plain << "SMS"
                                              << "SMSTO:9829012345:" + plain;
            QTest::addRow("%d letters, Hindi", size) << inHindi << "SMS"
                                                     << "SMSTO:9829012345:" + inHindi;
            QTest::addRow("%d letters, chat", size)
                << plain << "Chat (wa.me)"
                << "https://wa.me/919829012345?text=" + QString(QUrl::toPercentEncoding(plain));
        }
        QTest::newRow("160 letters, Hindi, chat")
            << longText(hindi, 160) << "Chat (wa.me)"
            << "https://wa.me/919829012345?text=" + QString(QUrl::toPercentEncoding(longText(hindi, 160)));
    }
    void phoneReadsTheScreen()
    {
        QFETCH(QString, text);
        QFETCH(QString, kind);
        QFETCH(QString, read);
        SetSetting(settings::ByPhone, kind);
        const QString picture = shop->folder() + "/code.png";
        onNextModal<frmByPhone>([&picture](frmByPhone& screen) {
            QVERIFY(screen.grab().save(picture));
            press(Qt::Key_Return);
        });
        ShowByPhone(m_screen.get(), "+91 98290-12345", text);
        QProcess reader;
        reader.start("zbarimg", {"-q", "--raw", picture});
        QVERIFY(reader.waitForFinished());
        QString found = QString::fromUtf8(reader.readAllStandardOutput());
        found.chop(1);
        QCOMPARE(found, read);
    }

    void phoneCannotTakeAll()
    {
        prompts->expect("Mobile Number Not Found!\r\nSMS Sending has been Failed.");
        ShowByPhone(m_screen.get(), {}, "hello");
        const QString text(2000, QChar(0x928));
        prompts->expect(
            "2017 letters are too many for one QR code. Of plain letters 2953 fit, of Hindi about 984.");
        ShowByPhone(m_screen.get(), "9829012345", text);
    }

    void messageToAClient()
    {
        shop->addClient("Asha", "0981");
        shop->addClient("Ravi");
        swSMS* sms = sender();
        prompts->expectAll({"Mobile Number Not Found!\r\nSMS Sending has been Failed.",
                            "Modem Com Port Error!\r\nSMS Sending has been Failed."});
        for (const char* client : {"Ravi", "Asha"}) // the number is asked for first
            QVERIFY(!SendSmsToClient(*sms, client, 0, "hello"));
        SetSetting(4, "2");
        Modem modem(device("ttyACM1"));
        QVERIFY(SendSmsToClient(*sms, "Asha", 0, "hello"));
        QTRY_COMPARE(modem.heard(), QByteArray("AT+CMGF=1\rAT+CMGS=\"981\"\rhello\x1a"));
        prompts->expect(
            "The modem can't send all letters of this message. The client would read:\n\n?5\n? Caf\u00e9\n\n"
            "Send it all the same?",
            Answer::No);
        QVERIFY(!SendSmsToClient(*sms, "Asha", 0, QString::fromUtf8("₹5\r𝄞 Café")));
    }

    void draftsAreFilledIn()
    {
        QCOMPARE(MakeJobRegisteredSms(1000, 301),
                 "Dear Customer\r Your Job ID # 1000\r of Rs. 301 has been booked. To track job status call "
                 "us with this ID.\r\r\r");
        QVERIFY(MakeJobFinishedSms(7, 0).startsWith("Dear Customer Your Job ID # 7 has been completed."));
        QCOMPARE(MakeDueBalanceSms("250.00 Dr"), "Dear Customer\r Your Due Balance is : Rs. 250.00 Dr\r\r\r");
        SetSetting(10, "O'Neil Tailors");
        SetSetting(24, "%eid%/%eid%: %amount%");
        QCOMPARE(MakeJobRegisteredSms(12, 0.5), "12/12: 0.5\rO'Neil Tailors");
    }

    void whatIsLookedUp()
    {
        const auto oneil = qint16(shop->addClient("Sean O'Neil", "98"));
        const auto asha = qint16(shop->addClient("Asha", "97"));
        const auto ravi = qint16(shop->addWorker("Ravi"));
        Shop::run("Update Accounts set Mobile=Null where Title='Ravi'");
        Shop::run("Update Accounts set Address='Lane 3', City='Agra' where Title='Asha'");
        QCOMPARE(GetClientMobile("sean o'neil", 0), "98");
        QCOMPARE(GetClientMobile("Sean O'Neil", asha), "97"); // the id wins
        QCOMPARE(GetClientMobile({}, oneil), "98");
        QCOMPARE(GetClientMobile("Asha", 999), "97");
        QVERIFY(GetClientMobile("Ravi", ravi).isEmpty()); // no worker is a client
        QCOMPARE(GetClientContact(asha), "97   Lane 3   Agra    ");
        QCOMPARE(GetClientContact(ravi) + GetClientContact(999), "No Information Found");
        QVERIFY(AllItemsCompleted(1) && AllItemsDelivered(1)); // a card without lines counts as both
    }

    void aProgramIsWaitedFor()
    {
        QTimer::singleShot(0, this, [this] { writeFile(device("screens live"), {}); });
        RunAndWait(QString("sh -c \"until mv '%1' '%1 on'; do sleep 0.01; done 2> /dev/null\"")
                       .arg(device("screens live")));
        QVERIFY(QFile::exists(device("screens live on")));
        RunAndWait("/no/such/program");
    }
};

QTEST_MAIN(tst_swSMS)
#include "tst_swSMS.moc"
