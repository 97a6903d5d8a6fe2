#include "media/Canvas.h"
#include "media/frmHandNote.h"
#include "support/Fields.h"
#include "support/Files.h"
#include "support/Modal.h"
#include "support/Prompts.h"

#include <QFileInfo>
#include <QPushButton>
#include <QTabletEvent>
#include <QTemporaryDir>
#include <QTest>

namespace {

void stroke(Canvas& sheet, const QList<QPoint>& points, Qt::MouseButton button = Qt::LeftButton)
{
    QTest::mousePress(&sheet, button, {}, points.front());
    for (const QPoint& point : points) {
        QMouseEvent move(QEvent::MouseMove, point, sheet.mapToGlobal(point), Qt::NoButton, button, {});
        QCoreApplication::sendEvent(&sheet, &move);
    }
    QTest::mouseRelease(&sheet, button, {}, points.back());
}

/// The turned pen of a tablet, between the display's own dots.
void rub(Canvas& sheet, const QPointF& at)
{
    static const QPointingDevice pen(u"pen"_qs, 1, QInputDevice::DeviceType::Stylus,
                                     QPointingDevice::PointerType::Eraser, {}, 1, 1);
    for (const QEvent::Type type : {QEvent::TabletPress, QEvent::TabletMove, QEvent::TabletRelease}) {
        QTabletEvent event(type, &pen, at, sheet.mapToGlobal(at), 1, 0, 0, 0, 0, 0, {}, Qt::LeftButton,
                           type == QEvent::TabletRelease ? Qt::NoButton : Qt::LeftButton);
        QCoreApplication::sendEvent(&sheet, &event);
    }
}

bool isInk(const Canvas& sheet, int x, int y) { return qGray(sheet.image().pixel(x, y)) < 100; }

} // namespace

/// The pad for notes of a garment, and the files that it writes.
class tst_frmHandNote : public QObject
{
    Q_OBJECT
    std::optional<Prompts> m_prompts;
    QTemporaryDir m_folder;

    /// Opens the pad, acts on it; whether it was left without writing.
    bool cancelled(const QString& file, const std::function<void(frmHandNote&, Canvas&)>& act)
    {
        bool cancelled = false;
        onNextModal<frmHandNote>([&](frmHandNote& pad) { act(pad, control<Canvas>(pad, "picCanvas")); });
        frmHandNote().TakeSnap(file, cancelled);
        return cancelled;
    }
    static void accept() { press(Qt::Key_O, Qt::AltModifier); }

private Q_SLOTS:
    void init() { m_prompts.emplace(); }
    void cleanup() { QVERIFY(m_prompts->allMet()); }

    void strokesAreRoundAndCanBeTakenBack()
    {
        QVERIFY(cancelled(m_folder.filePath("left"), [](frmHandNote& pad, Canvas& sheet) {
            const QImage clean = sheet.image();
            stroke(sheet, {{100, 100}, {200, 200}}, Qt::RightButton);
            QCOMPARE(sheet.image(), clean);
            stroke(sheet, {{20, 20}});
            QVERIFY(isInk(sheet, 20, 20)); // a press alone is a dot
            stroke(sheet, {{100, 100}, {200, 100}, {200, 200}});
            QVERIFY(isInk(sheet, 140, 100) && isInk(sheet, 200, 180));
            QVERIFY(!isInk(sheet, 199, 101)); // a fast turn has no corner
            rub(sheet, {140.4, 100.2});
            QVERIFY(!isInk(sheet, 140, 100));
            QVERIFY(control<QPushButton>(pad, "Command1").isChecked()); // the pen's other end is no choice
            for (int left : {1, 1, 0}) {
                press(Qt::Key_Z, Qt::ControlModifier);
                QCOMPARE(isInk(sheet, 20, 20), left == 1);
            }
            QCOMPARE(sheet.image(), clean);
            press(Qt::Key_Z, Qt::ControlModifier); // nothing left to take back
            stroke(sheet, {{20, 20}});
        }));
        QVERIFY(!QFileInfo::exists(m_folder.filePath("left")));
    }

    void anEarlierNoteIsAddedTo()
    {
        const QString file = m_folder.filePath("note.bmp");
        QVERIFY(!cancelled(file, [](frmHandNote&, Canvas&) { accept(); })); // a blank one is a note
        QVERIFY(contents(file).startsWith("BM"));
        QVERIFY(QImage(file).allGray() && qGray(QImage(file).pixel(9, 9)) == 255);
        QVERIFY(!(QFileInfo(file).permissions() & (QFile::ReadGroup | QFile::ReadOther)));

        QVERIFY(!cancelled(file, [](frmHandNote&, Canvas& sheet) {
            stroke(sheet, {{50, 50}, {90, 50}});
            accept();
        }));
        const QByteArray first = contents(file);
        QVERIFY(cancelled(file, [](frmHandNote& pad, Canvas& sheet) {
            QVERIFY(isInk(sheet, 70, 50));
            control<QPushButton>(pad, "Command3").click();
            QVERIFY(!isInk(sheet, 70, 50));
            control<QPushButton>(pad, "Command5").click();
        }));
        QCOMPARE(contents(file), first);
        QVERIFY(!cancelled(file, [](frmHandNote& pad, Canvas& sheet) {
            control<QPushButton>(pad, "Command2").click();
            stroke(sheet, {{70, 40}, {70, 60}});
            accept();
        }));
        const QImage last(file);
        QVERIFY(qGray(last.pixel(70, 50)) > 200 && qGray(last.pixel(55, 50)) < 100);

        QImage photograph(900, 600, QImage::Format_RGB32);
        photograph.fill(Qt::red);
        QVERIFY(photograph.save(file, "BMP"));
        QVERIFY(!cancelled(file, [](frmHandNote&, Canvas&) { accept(); }));
        QCOMPARE(QImage(file).size(), photograph.size()); // nothing is cut off
    }

    void aFileThatCannotBeWritten()
    {
        const QString file = m_folder.filePath("none/note.bmp");
        m_prompts->expect("The picture cannot be written to " + file +
                          ": No such file or directory\n\nNothing has been saved.");
        QVERIFY(cancelled(file, [](frmHandNote& pad, Canvas& sheet) {
            stroke(sheet, {{50, 50}, {90, 50}});
            accept();
            QVERIFY(pad.isVisible() && isInk(sheet, 70, 50));
        }));
    }
};

QTEST_MAIN(tst_frmHandNote)
#include "tst_frmHandNote.moc"
