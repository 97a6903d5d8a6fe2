#include "core/Session.h"
#include "core/Settings.h"
#include "platform/forms/Theme.h"
#include "support/Files.h"
#include "support/Modal.h"
#include "support/Shop.h"
#include "ui/ModOtherFUN.h"
#include "ui/frmMsg.h"

#include <QImage>
#include <QPainter>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>
#include <numeric>
#include <sqlcipher/sqlite3.h>

namespace {

struct Message
{
    QString english;
    QString hindi; // Unicode
};

/// The translators' file, in order.
QList<Message> readMessages()
{
    QFile file(QStringLiteral(MESSAGES));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QList<Message> messages;
    for (const QString& line : QString::fromUtf8(file.readAll()).split(u'\n')) {
        const QString text = line.mid(4).replace("\\r\\n", "\r\n");
        if (line.startsWith("en: "))
            messages.append({text, {}});
        else if (line.startsWith("hi: "))
            messages.last().hindi = text;
    }
    return messages;
}

/// The rows of the table beside the program: what the dialog gets for each message.
QHash<QString, QString> readTable()
{
    sqlite3* database = nullptr;
    sqlite3_open_v2(PROGRAM_FOLDER "/Lang.mdb", &database, SQLITE_OPEN_READONLY, nullptr);
    QHash<QString, QString> table;
    const auto addRow = [](void* rows, int, char** values, char**) {
        static_cast<QHash<QString, QString>*>(rows)->insert(QString::fromUtf8(values[0]),
                                                            QString::fromUtf8(values[1]));
        return 0;
    };
    sqlite3_exec(database, "Select EngMessage, HindiMessage from messages", addRow, &table, nullptr);
    sqlite3_close(database);
    return table;
}

/// Black on white in the font that the dialog asks for, large enough for a reader of print.
QImage rendered(const QString& encoded)
{
    QFont font("Kruti Dev 010");
    font.setPixelSize(56);
    const QString text = QString(encoded).remove(u'\r');
    const QRect box = QFontMetrics(font).boundingRect(QRect(0, 0, 4000, 1000), 0, text);
    QImage page(box.size() + QSize(80, 80), QImage::Format_RGB32);
    page.fill(Qt::white);
    QPainter painter(&page);
    painter.setFont(font);
    painter.drawText(box.translated(40, 40), 0, text);
    return page;
}

/// What a reader of Hindi print makes of each picture.
QStringList readAloud(const QList<QImage>& pages)
{
    const QTemporaryDir folder;
    QByteArray paths;
    for (qsizetype i = 0; i < pages.size(); ++i) {
        const QString path = folder.filePath(QString("%1.png").arg(i));
        if (pages[i].save(path))
            paths += path.toUtf8() + '\n';
    }
    QProcess reader;
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert("OMP_THREAD_LIMIT", "1");
    reader.setProcessEnvironment(environment);
    reader.start("tesseract",
                 {writeFile(folder.filePath("pages.txt"), paths), "stdout", "-l", "hin", "--psm", "6"});
    if (!reader.waitForFinished(120'000) || reader.exitCode() != 0)
        return {};
    QStringList texts = QString::fromUtf8(reader.readAllStandardOutput()).split(u'\f');
    texts.resize(pages.size());
    return texts;
}

/// The letters alone: a reader may take the full stop for a stroke, and blanks and line breaks differ.
QString letters(QString text)
{
    static const QRegularExpression rest("[\\s|।!?.,'‘’\\x{200c}\\x{200d}]");
    return text.remove(rest).normalized(QString::NormalizationForm_D);
}

/// 1 for equal texts, 0 for texts with nothing in common: by the number of characters to change.
double similarity(const QString& a, const QString& b)
{
    std::vector<qsizetype> row(static_cast<size_t>(b.size()) + 1);
    std::iota(row.begin(), row.end(), 0);
    for (qsizetype i = 0; i < a.size(); ++i) {
        qsizetype diagonal = std::exchange(row[0], i + 1);
        for (qsizetype j = 0; j < b.size(); ++j) {
            const auto at = static_cast<size_t>(j);
            const qsizetype changed = diagonal + (a[i] == b[j] ? 0 : 1);
            diagonal = row[at + 1];
            row[at + 1] = std::min({changed, row[at] + 1, row[at + 1] + 1});
        }
    }
    return 1.0 - double(row.back()) / double(std::max<qsizetype>({a.size(), b.size(), 1}));
}

} // namespace

/// Whether an operator can read the Hindi of the message dialog: it is drawn and read back by a text reader.
class TestLegible : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { forms::applyTheme(*qApp, PROGRAM_FOLDER "/fonts"); }

    void everyMessage()
    {
        const QList<Message> messages = readMessages();
        QVERIFY(messages.size() > 50);
        const QHash<QString, QString> table = readTable();
        QCOMPARE(table.size(), messages.size());
        QList<QImage> pages;
        for (const Message& message : messages)
            pages.append(rendered(table.value(message.english)));

        const QStringList read = readAloud(pages);
        QCOMPARE(read.size(), messages.size());
        double sum = 0;
        for (qsizetype i = 0; i < messages.size(); ++i) {
            const double alike = similarity(letters(messages[i].hindi), letters(read[i]));
            sum += alike;
            QVERIFY2(alike >= 0.85,
                     qPrintable(messages[i].english + ": " + messages[i].hindi + " reads as " + read[i]));
        }
        const double average = sum / double(messages.size());
        QVERIFY2(average >= 0.97, qPrintable(QString::number(average)));
    }

    void dialogOnScreen()
    {
        const Shop shop;
        QVERIFY(QFile::copy(PROGRAM_FOLDER "/Lang.mdb", session.languageDatabasePath()));
        SetSetting(0, "Hindi");
        session.Language = "Hindi";
        QImage page;
        onNextModal<frmMsg>([&page](frmMsg& dialog) {
            constexpr int larger = 3; // print size: what a screen shows is small for a text reader
            page = QImage(dialog.size() * larger, QImage::Format_RGB32);
            QPainter painter(&page);
            painter.scale(larger, larger);
            dialog.render(&painter);
        });
        ShowMsg("This Job has been registered.\r\nWould you like to Inform Client via SMS?", 2);
        session.Language = "English";
        const QString read = letters(readAloud({page}).value(0));
        for (const char* words : {"सुचना", "यह जॉब कार्ड दर्ज हो गया है", "क्या आप ग्राहक को"})
            QVERIFY2(read.contains(letters(words)), qPrintable(read));
    }
};

QTEST_MAIN(TestLegible)
#include "tst_legible.moc"
