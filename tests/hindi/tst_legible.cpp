#include "jobcards/rptWorkerJobCard.h"
#include "platform/ado/Connection.h"
#include "platform/ado/Recordset.h"
#include "platform/forms/Theme.h"
#include "support/Files.h"
#include "support/Pdf.h"

#include <QImage>
#include <QPainter>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>
#include <algorithm>

/// The translators' file: the Hindi, in Unicode, of each English message.
static QMap<QString, QString> readMessages()
{
    QMap<QString, QString> messages;
    QString english;
    for (const QString& line : QString::fromUtf8(contents(MESSAGES)).split(u'\n')) {
        const QString text = line.mid(4).replace("\\r\\n", "\r\n");
        if (line.startsWith("en: "))
            english = text;
        else if (line.startsWith("hi: "))
            messages[english] = text;
    }
    return messages;
}

/// Black on white in the font that the dialog asks for, large enough for a reader of print.
static QImage rendered(const QString& encoded)
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
static QStringList readAloud(const QList<QImage>& pages)
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

/// The worker's slip, in Hindi as far as there are words for it.
static QImage slip()
{
    rptWorkerJobCard paper;
    paper.useHindi();
    report::Row line;
    for (const auto& [field, value] : std::initializer_list<std::pair<QString, QVariant>>{
             {"DATE", QDate(2024, 2, 1)},
             {"JobDelDate", QDate(2024, 2, 20)},
             {"JobID", 1436},
             {"ItemSr", 2},
             {"QNT", 1},
             {"ClintName", "Asha"},
             {"WorkerName", "Ravi"},
             {"ItemName", "salwar kameez"},
             {"ItemDetails", "Length\r\n CHEST \r\nFront Neck\r\nCoat Tail\r\nSleeve"},
             {"ItemDetailsValue", "40\r\n38\r\n7\r\n9\r\n24"},
             {"Remarks", ""},
             {"ClientRemarks", ""},
             {"LineCode", "1436/2"}})
        line.set(field, value);
    paper.setLine(line);
    return printed(paper, 300);
}

/// The letters alone: a reader may take the full stop for a stroke, and blanks and line breaks differ.
static QString letters(QString text)
{
    static const QRegularExpression rest("[\\s|।!?.,'‘’\\x{200c}\\x{200d}]");
    return text.remove(rest).normalized(QString::NormalizationForm_D);
}

/// The share of letters that two texts have in common: 1 when all are.
static double similarity(const QString& a, const QString& b)
{
    QHash<QChar, int> left;
    for (const QChar letter : a)
        ++left[letter];
    const auto common = std::count_if(b.begin(), b.end(), [&](QChar letter) { return left[letter]-- > 0; });
    return double(common) / double(std::max<qsizetype>({a.size(), b.size(), 1}));
}

/// Whether an operator can read the Hindi of the message dialog: it is drawn and read back by a text reader.
class TestLegible : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { forms::applyTheme(*qApp, PROGRAM_FOLDER "/fonts"); }

    void workersSlip()
    {
        const QString read = letters(readAloud({slip()}).join(u' '));
        for (const char* word :
             {"सलवार कमीज", "लंबाई", "छाती", "आगे का गला", "आस्तीन", "ग्राहक", "कारीगर", "टिप्पणी"})
            QVERIFY2(read.contains(letters(QString::fromUtf8(word))), qPrintable(word + (" in " + read)));
    }

    void everyMessage()
    {
        const QMap<QString, QString> messages = readMessages();
        QVERIFY(messages.size() > 50);
        ado::Connection beside; // the table beside the program: what the dialog gets for each message
        beside.open(PROGRAM_FOLDER "/Lang.mdb", {}, ado::Connection::Mode::ReadOnly);
        ado::Recordset table(beside, "messages");
        table.Open();
        QCOMPARE(table.RecordCount(), messages.size());
        QStringList english;
        QList<QImage> pages;
        for (; !table.AtEOF(); table.MoveNext()) {
            english << table["EngMessage"].text();
            pages << rendered(table["HindiMessage"].text());
        }
        const QStringList read = readAloud(pages);
        QCOMPARE(read.size(), messages.size());
        double sum = 0;
        for (qsizetype i = 0; i < read.size(); ++i) {
            const QString hindi = messages.value(english[i]);
            const double alike = similarity(letters(hindi), letters(read[i]));
            sum += alike;
            QVERIFY2(alike >= 0.93, qPrintable(english[i] + ": " + hindi + " reads as " + read[i]));
        }
        const double average = sum / double(messages.size());
        QVERIFY2(average >= 0.99, qPrintable(QString::number(average)));
    }
};

QTEST_MAIN(TestLegible)
#include "tst_legible.moc"
