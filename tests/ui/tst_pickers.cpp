#include "support/ShopTest.h"
#include "ui/frmSelectDate.h"
#include "ui/frmSelectFile.h"

#include <QDir>

class tst_pickers : public ShopTest
{
    Q_OBJECT
private Q_SLOTS:
    void dates()
    {
        const QDate monday(2024, 2, 12);
        QDate from = monday;
        QDate to = monday;
        const auto select = [&](int mode, std::function<void(frmSelectDate&)> act) {
            onNextModal<frmSelectDate>(std::move(act));
            frmSelectDate().SelectDate(from, to, mode);
        };
        prompts->expect("Invalid Dates!");
        select(frmSelectDate::Range, [&](frmSelectDate& dialog) {
            date(dialog, "DateFrom").setValue(monday.addDays(1));
            save();
            QVERIFY(dialog.isVisible());
            date(dialog, "DateFrom").setValue(monday.addDays(-7));
            save();
            QVERIFY(!dialog.isVisible());
        });
        QCOMPARE(from.daysTo(to), 7);
        select(frmSelectDate::Range, [&](frmSelectDate& dialog) {
            date(dialog, "DateTo").setValue(monday.addDays(9));
            press(Qt::Key_Escape);
        });
        QCOMPARE(to, monday);
        select(frmSelectDate::SingleDate, [](frmSelectDate& dialog) {
            QVERIFY(!date(dialog, "DateTo").isEnabled());
            date(dialog, "DateFrom").setFocus();
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
        QImage coat(40, 20, QImage::Format_RGB32);
        coat.fill(Qt::red);
        QVERIFY(coat.save(pictures + "/coat.bmp"));
        QVERIFY(QImage(1600, 800, QImage::Format_Mono).save(pictures + "/wall.jpg"));
        writeFile(pictures + "/broken.bmp", "not a picture");
        qputenv("HOME", pictures.toLocal8Bit());
        const auto select = [](std::function<void(frmSelectFile&)> act) {
            onNextModal<frmSelectFile>(std::move(act));
            return frmSelectFile().SelFile();
        };

        const QString chosen = select([](frmSelectFile& dialog) {
            forms::ListBox& files = listBox(dialog, "files");
            const auto preview = [&](int index) {
                files.setListIndex(index);
                return control<QLabel>(dialog, "pic1").pixmap().deviceIndependentSize().toSize();
            };
            QCOMPARE(files.ListCount(), 3);
            const auto thumbnail = [&](int index) {
                const auto shown = files.model()->index(index, 0).data(Qt::DecorationRole).value<QPixmap>();
                return shown.toImage().pixelColor(shown.width() / 2, shown.height() / 2);
            };
            QTRY_COMPARE(thumbnail(1), Qt::red);
            QTRY_COMPARE(thumbnail(2).alpha(), 255);
            QCOMPARE(thumbnail(0).alpha(), 0); // no picture
            QVERIFY(preview(0).isEmpty());
            QCOMPARE(preview(1), QSize(40, 20));
            const int width = preview(2).width();
            QVERIFY(width > 200 && width <= control<QFrame>(dialog, "prv").width());

            fillIn(dialog, "cmbFIletype", "*.BMP");
            QCOMPARE(files.ListCount(), 2);
            listBox(dialog, "Dir").setFocus();
            for (const int folder : {1, 0}) { // down into "old" and up again
                listBox(dialog, "Dir").setListIndex(folder);
                press(Qt::Key_Return);
                QCOMPARE(files.ListCount(), folder == 1 ? 0 : 2);
            }
            fillIn(dialog, "cmbFIletype", "*.jpg");
            files.setListIndex(0);
            files.setFocus();
            press(Qt::Key_Return);
            QVERIFY(!dialog.isVisible());
        });
        QCOMPARE(chosen, QDir::toNativeSeparators(pictures + "/wall.jpg"));
        QCOMPARE(select([](frmSelectFile&) { press(Qt::Key_Escape); }), "Cancel");
    }
};

QTEST_MAIN(tst_pickers)
#include "tst_pickers.moc"
