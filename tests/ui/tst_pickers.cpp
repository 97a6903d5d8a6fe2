#include "platform/forms/ComboBox.h"
#include "platform/forms/DatePicker.h"
#include "platform/forms/ListBox.h"
#include "support/KeysTo.h"
#include "support/Modal.h"
#include "support/Prompts.h"
#include "support/Shop.h"
#include "ui/frmSelectDate.h"
#include "ui/frmSelectFile.h"

#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

namespace {

const QDate monday(2024, 2, 12);

void write(const QString& path, const QByteArray& content)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
}

/// A picture of 25,000 by 25,000 points that says so and holds no more.
QByteArray hugeBitmap()
{
    QByteArray header(54, '\0');
    const auto put = [&header](int at, quint32 value) {
        for (int i = 0; i < 4; ++i)
            header[at + i] = char(value >> (8 * i));
    };
    header[0] = 'B';
    header[1] = 'M';
    put(10, 54);
    put(14, 40);
    put(18, 25000);
    put(22, 25000);
    header[26] = 1;
    header[28] = 24;
    return header;
}

} // namespace

class tst_pickers : public QObject
{
    Q_OBJECT

    void selectDate(QDate& from, QDate& to, int mode, const std::function<void(frmSelectDate&)>& act)
    {
        onNextModal<frmSelectDate>([&](frmSelectDate& dialog) { act(dialog); });
        frmSelectDate().SelectDate(from, to, mode);
    }
    QString selectFile(const std::function<void(frmSelectFile&)>& act)
    {
        onNextModal<frmSelectFile>([&](frmSelectFile& dialog) { act(dialog); });
        return frmSelectFile().SelFile();
    }

private Q_SLOTS:
    void init()
    {
        m_shop.emplace();
        m_prompts.emplace();
    }
    void cleanup()
    {
        QVERIFY(m_prompts->allMet());
        m_prompts.reset();
        m_shop.reset();
    }

    void rangeOfDates()
    {
        QDate from = monday;
        QDate to = monday;
        selectDate(from, to, frmSelectDate::Range, [&](frmSelectDate& dialog) {
            auto& dateFrom = control<forms::DatePicker>(dialog, "DateFrom");
            QCOMPARE(dateFrom.text(), QStringLiteral("12-Feb-2024"));
            dateFrom.setValue(monday.addDays(1));
            QCOMPARE(control<forms::DatePicker>(dialog, "DateTo").value(), monday);
            m_prompts->expect(QStringLiteral("Invalid Dates!"));
            press(Qt::Key_S, Qt::AltModifier);
            QVERIFY(dialog.isVisible());
            dateFrom.setValue(monday.addDays(-7));
            press(Qt::Key_S, Qt::AltModifier);
            QVERIFY(!dialog.isVisible());
        });
        QCOMPARE(from, monday.addDays(-7));
        QCOMPARE(to, monday);

        selectDate(from, to, frmSelectDate::Range, [&](frmSelectDate& dialog) { // equal dates are a range too
            control<forms::DatePicker>(dialog, "DateFrom").setValue(monday);
            press(Qt::Key_S, Qt::AltModifier);
        });
        QCOMPARE(from, monday);
    }

    void escKeepsTheDates()
    {
        QDate from = monday;
        QDate to = monday.addDays(2);
        selectDate(from, to, frmSelectDate::Range, [&](frmSelectDate& dialog) {
            control<forms::DatePicker>(dialog, "DateTo").setValue(monday.addDays(9));
            press(Qt::Key_Escape);
            QVERIFY(!dialog.isVisible());
        });
        QCOMPARE(from, monday);
        QCOMPARE(to, monday.addDays(2));
    }

    void singleDate()
    {
        QDate from = monday;
        QDate to = monday.addDays(5);
        selectDate(from, to, frmSelectDate::SingleDate, [&](frmSelectDate& dialog) {
            auto& dateFrom = control<forms::DatePicker>(dialog, "DateFrom");
            QVERIFY(!control<forms::DatePicker>(dialog, "DateTo").isEnabled());
            dateFrom.setFocus();
            dateFrom.setSelectedSection(QDateTimeEdit::DaySection);
            press(Qt::Key_Up);
            QCOMPARE(control<forms::DatePicker>(dialog, "DateTo").value(), monday.addDays(1));
            press(Qt::Key_S, Qt::AltModifier);
        });
        QCOMPARE(from, monday.addDays(1));
        QCOMPARE(to, from);
    }

    void pictureFile()
    {
        const QString pictures = m_shop->folder() + QStringLiteral("/pictures");
        QVERIFY(QDir().mkpath(pictures + QStringLiteral("/old")));
        QImage image(40, 20, QImage::Format_RGB32);
        image.fill(Qt::red);
        QVERIFY(image.save(pictures + QStringLiteral("/coat.bmp")));
        QVERIFY(image.scaled(1600, 800).save(pictures + QStringLiteral("/wall.jpg")));
        write(pictures + QStringLiteral("/broken.gif"), "not a picture");
        write(pictures + QStringLiteral("/huge.bmp"), hugeBitmap());
        write(pictures + QStringLiteral("/notes"), "text");
        qputenv("HOME", pictures.toLocal8Bit());

        const QString answer = selectFile([&](frmSelectFile& dialog) {
            auto& files = control<forms::ListBox>(dialog, "files");
            auto& folders = control<forms::ListBox>(dialog, "Dir");
            auto& types = control<forms::ComboBox>(dialog, "cmbFIletype");
            const auto& picture = control<QLabel>(dialog, "pic1");
            const auto choose = [&](const QString& name) {
                files.setListIndex(-1);
                for (int i = 0; i < files.ListCount(); ++i)
                    if (files.List(i) == name)
                        files.setListIndex(i);
                return picture.pixmap().size() / picture.pixmap().devicePixelRatio();
            };
            QCOMPARE(types.text(), QStringLiteral("*.*"));
            QCOMPARE(files.ListCount(), 5);
            QCOMPARE(choose(QStringLiteral("coat.bmp")), QSize(40, 20));
            const QSize large = choose(QStringLiteral("wall.jpg"));
            QVERIFY(large.width() > 200 && large.width() <= control<QFrame>(dialog, "prv").width());
            QVERIFY(choose(QStringLiteral("broken.gif")).isEmpty());
            QVERIFY(choose(QStringLiteral("huge.bmp")).isEmpty() || picture.pixmap().width() < 2000);

            types.setFocus();
            types.select(0, 3);
            typeText(QStringLiteral("*.BMP"));
            QCOMPARE(files.ListCount(), 2);
            types.setListIndex(0);
            QCOMPARE(files.List(0), QStringLiteral("broken.gif"));

            folders.setListIndex(1);
            QCOMPARE(folders.Text(), QStringLiteral("old"));
            folders.setFocus();
            press(Qt::Key_Return);
            QCOMPARE(files.ListCount(), 0);
            folders.setListIndex(0);
            press(Qt::Key_Return);
            types.setText(QStringLiteral("*.jpg"));
            files.setListIndex(0);
            QTest::mouseClick(&control<QPushButton>(dialog, "cmdOK"), Qt::LeftButton);
        });
        QCOMPARE(answer, QDir::toNativeSeparators(pictures + QStringLiteral("/wall.jpg")));
    }

    void answersWithoutAFile()
    {
        const auto clicking = [this](const char* button) {
            return selectFile([button](frmSelectFile& dialog) {
                QTest::mouseClick(&control<QPushButton>(dialog, button), Qt::LeftButton);
            });
        };
        QCOMPARE(clicking("Command1"), QStringLiteral("Cancel"));
        QCOMPARE(clicking("cmdOK"), QString());
        QCOMPARE(selectFile([](frmSelectFile&) { press(Qt::Key_Escape); }), QStringLiteral("Cancel"));
        const QString typed = selectFile([](frmSelectFile& dialog) {
            control<QLineEdit>(dialog, "txtfilename").setFocus();
            typeText(QStringLiteral("any text"));
            QTest::mouseClick(&control<QPushButton>(dialog, "cmdOK"), Qt::LeftButton);
        });
        QCOMPARE(typed, QStringLiteral("any text"));
    }

private:
    std::optional<Shop> m_shop;
    std::optional<Prompts> m_prompts;
};

QTEST_MAIN(tst_pickers)
#include "tst_pickers.moc"
