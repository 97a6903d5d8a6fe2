#include "core/Settings.h"
#include "messaging/swSMS.h"
#include "support/Prompts.h"
#include "support/Shop.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <memory>

#include <fcntl.h>
#include <stdlib.h>
#include <unistd.h>

namespace {

/// The modem's end of a pseudo-terminal that stands as a port in a folder of devices.
class Modem
{
public:
    explicit Modem(const QString& device)
        : m_end(posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK))
    {
        if (m_end < 0 || grantpt(m_end) != 0 || unlockpt(m_end) != 0 ||
            !QFile::link(QFile::decodeName(ptsname(m_end)), device))
            qFatal("no pseudo-terminal");
    }
    ~Modem() { hangUp(); }
    Modem(const Modem&) = delete;
    Modem& operator=(const Modem&) = delete;

    /// All that has arrived so far.
    QByteArray heard()
    {
        char buffer[4096];
        for (ssize_t got; (got = ::read(m_end, buffer, sizeof buffer)) > 0;)
            m_heard.append(buffer, got);
        return m_heard;
    }
    void hangUp()
    {
        if (m_end >= 0)
            ::close(m_end);
        m_end = -1;
    }

private:
    int m_end;
    QByteArray m_heard;
};

} // namespace

/// Sending through a real line to a modem that only listens.
class tst_swSMS : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_prompts = std::make_unique<Prompts>();
        m_devices = std::make_unique<QTemporaryDir>();
        m_screen = std::make_unique<QWidget>();
    }

    void cleanup()
    {
        m_screen.reset();
        QVERIFY(m_prompts->allMet());
    }

    void portsByNumber()
    {
        QCOMPARE(devices::serialPortName(1, m_devices->path()), device(QStringLiteral("ttyS0")));
        for (const char* name :
             {"ttyS1", "ttyACM1", "ttyUSB1"}) { // each goes before those of the rounds before
            QVERIFY(QFile(device(QLatin1String(name))).open(QIODevice::WriteOnly));
            QCOMPARE(devices::serialPortName(2, m_devices->path()), device(QLatin1String(name)));
        }
    }

    void bytesOfAMessage()
    {
        const std::pair<const char*, const char*> dialled[] = {{"09812345678", "9812345678"},
                                                               {"+919812345678", "919812345678"},
                                                               {"call her", "0"},
                                                               {"98123-45678 home", "98123"}};
        for (const auto& [number, digits] : dialled) {
            Modem modem(device(QStringLiteral("ttyUSB2")));
            swSMS* sms = sender();
            sms->SendSMS(3, QString::fromLatin1(number), QStringLiteral("Dear Customer\r Rs. 301\r"));
            const QByteArray expected =
                QByteArray("AT+CMGF=1\rAT+CMGS=\"") + digits + "\"\rDear Customer\r Rs. 301\r\x1a";
            QTRY_COMPARE(modem.heard(), expected);
            delete sms;
            QVERIFY(QFile::remove(device(QStringLiteral("ttyUSB2"))));
        }
    }

    void portStaysOpenUntilTheScreenGoes()
    {
        Modem modem(device(QStringLiteral("ttyUSB0")));
        swSMS* sms = sender();
        sms->SendSMS(1, QStringLiteral("98"), QStringLiteral("one"));
        QTRY_VERIFY(modem.heard().endsWith("one\x1a"));
        m_prompts->expect(QStringLiteral("Device is already open"));
        sms->SendSMS(1, QStringLiteral("98"), QStringLiteral("two"));

        m_screen = std::make_unique<QWidget>();
        sender()->SendSMS(1, QStringLiteral("98"), QStringLiteral("three"));
        QTRY_VERIFY(modem.heard().endsWith("three\x1a"));
        QVERIFY(!modem.heard().contains("two"));
    }

    void failuresAreToldOnce()
    {
        m_prompts->expect(QStringLiteral("No such file or directory"));
        sender()->SendSMS(-5, QStringLiteral("98"), QStringLiteral("nobody hears"));

        // A modem that goes in the middle of a message is told of once, however often the system reports it.
        auto modem = std::make_unique<Modem>(device(QStringLiteral("ttyUSB0")));
        swSMS* sms = sender();
        sms->SendSMS(1, QStringLiteral("98"), QString(200000, QLatin1Char('x')));
        QVERIFY(sms->isOpen());
        m_prompts->expect(QStringLiteral("Input/output error"));
        modem.reset();
        QTRY_VERIFY(!sms->isOpen());
        QTRY_VERIFY(m_prompts->allMet());
    }

    void standardStep()
    {
        Shop shop;
        shop.addClient(QStringLiteral("Asha"), QStringLiteral("0981"));
        shop.addClient(QStringLiteral("Ravi"));
        swSMS* sms = sender();
        const auto send = [&](const QString& client) {
            return SendSmsToClient(*sms, client, 0, QStringLiteral("hello"));
        };

        m_prompts->expect(QStringLiteral("Mobile Number Not Found!\r\nSMS Sending has been Failed."));
        QVERIFY(!send(QStringLiteral("Ravi"))); // the number is asked for first
        m_prompts->expect(QStringLiteral("Modem Com Port Error!\r\nSMS Sending has been Failed."));
        QVERIFY(!send(QStringLiteral("Asha")));

        SetSetting(4, QStringLiteral("2"));
        Modem modem(device(QStringLiteral("ttyACM1")));
        QVERIFY(send(QStringLiteral("Asha")));
        QTRY_COMPARE(modem.heard(), QByteArray("AT+CMGF=1\rAT+CMGS=\"981\"\rhello\x1a"));
    }

private:
    QString device(const QString& name) const { return m_devices->filePath(name); }

    swSMS* sender()
    {
        auto* sms = new swSMS(m_screen.get());
        sms->setDeviceFolder(m_devices->path());
        return sms;
    }

    std::unique_ptr<Prompts> m_prompts;
    std::unique_ptr<QTemporaryDir> m_devices;
    std::unique_ptr<QWidget> m_screen;
};

QTEST_MAIN(tst_swSMS)
#include "tst_swSMS.moc"
