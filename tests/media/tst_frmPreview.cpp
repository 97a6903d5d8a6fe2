#include "media/frmPreview.h"
#include "support/Fields.h"
#include "support/Modal.h"

#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTest>

/// A picture at full size, whatever stands under its path.
class tst_frmPreview : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void whatIsShown()
    {
        const QTemporaryDir folder;
        const auto show = [&](const char* name, const QSize& stored, const QSize& shown) {
            if (!stored.isEmpty()) {
                QImage image(stored, QImage::Format_Mono);
                image.fill(0);
                QVERIFY(image.save(folder.filePath(name)));
            }
            onNextModal<frmPreview>([&](frmPreview& screen) {
                QCOMPARE(control<QLabel>(screen, "Image2").pixmap().size(), shown);
                const auto* scroller = screen.findChild<QScrollArea*>();
                QCOMPARE(scroller != nullptr, shown.width() > 1000);
                if (scroller) {
                    press(Qt::Key_PageDown);
                    press(Qt::Key_Right);
                    QVERIFY(scroller->verticalScrollBar()->value() > 300);
                    QVERIFY(scroller->horizontalScrollBar()->value() > 0);
                } else if (!shown.isEmpty()) {
                    QCOMPARE(screen.size(), shown + QSize(33, 33)); // 500 twips
                }
                press(Qt::Key_Escape);
                QVERIFY(!screen.isVisible());
            });
            frmPreview().ShowImage(folder.filePath(name));
            QCOMPARE(modal::pending(), 0);
        };
        show("small.bmp", {200, 120}, {200, 120});
        show("larger than the display.png", {1200, 3000}, {1200, 3000});
        show("200 million pixels.png", {16000, 12500}, {0, 0});
        show("gone.bmp", {}, {0, 0});
        show("", {}, {0, 0}); // the folder
    }
};

QTEST_MAIN(tst_frmPreview)
#include "tst_frmPreview.moc"
