#include "platform/forms/ComboBox.h"
#include "platform/forms/DatePicker.h"
#include "platform/forms/ListBox.h"
#include "support/ShopTest.h"
#include "ui/frmSelectDate.h"
#include "ui/frmSelectFile.h"

#include <QDir>
#include <QLabel>
#include <QPushButton>
#include <QTest>

namespace {

const QDate monday(2024, 2, 12);

forms::DatePicker& picker(QWidget& dialog, const char* name)
{
    return control<forms::DatePicker>(dialog, name);
}

QString selectFile(std::function<void(frmSelectFile&)> act)
{
    onNextModal<frmSelectFile>(std::move(act));
    return frmSelectFile().SelFile();
}

} // namespace

class tst_pickers : public ShopTest
{
    Q_OBJECT
private Q_SLOTS:
    void dates()
    {
        QDate from = monday;
        QDate to = monday;
        const auto select = [&](int mode, std::function<void(frmSelectDate&)> act) {
            onNextModal<frmSelectDate>(std::move(act));
            frmSelectDate().SelectDate(from, to, mode);
        };
        prompts->expect("Invalid Dates!");
        select(frmSelectDate::Range, [](frmSelectDate& dialog) {
            picker(dialog, "DateFrom").setValue(monday.addDays(1));
            save();
            QVERIFY(dialog.isVisible());
            picker(dialog, "DateFrom").setValue(monday.addDays(-7));
            save();
            QVERIFY(!dialog.isVisible());
        });
        QCOMPARE(from, monday.addDays(-7));
        QCOMPARE(to, monday);
        select(frmSelectDate::Range, [](frmSelectDate& dialog) {
            picker(dialog, "DateTo").setValue(monday.addDays(9));
            press(Qt::Key_Escape);
            QVERIFY(!dialog.isVisible());
        });
        QCOMPARE(to, monday);
        select(frmSelectDate::SingleDate, [](frmSelectDate& dialog) {
            QVERIFY(!picker(dialog, "DateTo").isEnabled());
            picker(dialog, "DateFrom").setFocus();
            picker(dialog, "DateFrom").setSelectedSection(QDateTimeEdit::DaySection);
            press(Qt::Key_Up);
            save();
        });
        QCOMPARE(from, monday.addDays(-6));
        QCOMPARE(to, from);
    }

    void pictureFile()
    {
        const QString pictures = shop->folder() + "/pictures";
        QVERIFY(QDir().mkpath(pictures + "/old"));
        QImage image(40, 20, QImage::Format_RGB32);
        image.fill(Qt::red);
        QVERIFY(image.save(pictures + "/coat.bmp"));
        QVERIFY(image.scaled(1600, 800).save(pictures + "/wall.jpg"));
        QFile broken(pictures + "/broken.bmp");
        QVERIFY(broken.open(QIODevice::WriteOnly) && broken.write("not a picture") > 0);
        broken.close();
        qputenv("HOME", pictures.toLocal8Bit());

        const QString answer = selectFile([](frmSelectFile& dialog) {
            auto& files = control<forms::ListBox>(dialog, "files");
            auto& folders = control<forms::ListBox>(dialog, "Dir");
            auto& types = control<forms::ComboBox>(dialog, "cmbFIletype");
            const auto preview = [&](int index) {
                files.setListIndex(index);
                return control<QLabel>(dialog, "pic1").pixmap().deviceIndependentSize().toSize();
            };
            QCOMPARE(files.ListCount(), 3);
            QVERIFY(preview(0).isEmpty());
            QCOMPARE(preview(1), QSize(40, 20));
            const int width = preview(2).width();
            QVERIFY(width > 200 && width <= control<QFrame>(dialog, "prv").width());

            types.setFocus();
            types.select(0, 3);
            typeText("*.BMP");
            QCOMPARE(files.ListCount(), 2);
            folders.setListIndex(1);
            folders.setFocus();
            press(Qt::Key_Return);
            QCOMPARE(files.ListCount(), 0);
            folders.setListIndex(0);
            press(Qt::Key_Return);
            types.setText("*.jpg");
            files.setListIndex(0);
            control<QPushButton>(dialog, "cmdOK").click();
        });
        QCOMPARE(answer, QDir::toNativeSeparators(pictures + "/wall.jpg"));
        QCOMPARE(selectFile([](frmSelectFile&) { press(Qt::Key_Escape); }), "Cancel");
        QCOMPARE(selectFile([](frmSelectFile& dialog) {
                     control<QLineEdit>(dialog, "txtfilename").setFocus();
                     typeText("any text");
                     control<QPushButton>(dialog, "cmdOK").click();
                 }),
                 "any text");
    }
};

QTEST_MAIN(tst_pickers)
#include "tst_pickers.moc"
