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
        const QSize small(200, 120), large(1200, 3000);
        QVERIFY(QImage(small, QImage::Format_Mono).save(folder.filePath("small.bmp")));
        QVERIFY(QImage(large, QImage::Format_Mono).save(folder.filePath("large.png")));
        QVERIFY(QImage(16000, 12500, QImage::Format_Mono).save(folder.filePath("200 million pixels.png")));
        for (const auto& [name, shown] :
             {std::pair("small.bmp", small), std::pair("large.png", large),
              std::pair("200 million pixels.png", QSize(0, 0)), std::pair("gone.bmp", QSize(0, 0)),
              std::pair("", QSize(0, 0))}) { // the folder
            onNextModal<frmPreview>([shown = shown](frmPreview& screen) {
                QCOMPARE(control<QLabel>(screen, "Image2").pixmap().size(), shown);
                const auto* scroller = screen.findChild<QScrollArea*>(); // larger than the display
                QCOMPARE(scroller != nullptr, shown.width() > 1000);
                press(Qt::Key_PageDown);
                press(Qt::Key_Right);
                QVERIFY(!scroller || (scroller->verticalScrollBar()->value() > 300 &&
                                      scroller->horizontalScrollBar()->value() > 0));
                press(Qt::Key_Escape);
                QVERIFY(!screen.isVisible());
            });
            frmPreview().ShowImage(folder.filePath(name));
            QCOMPARE(modal::pending(), 0);
        }
    }
};

QTEST_MAIN(tst_frmPreview)
#include "tst_frmPreview.moc"
