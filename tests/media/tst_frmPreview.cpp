#include "media/frmPreview.h"
#include "support/KeysTo.h"
#include "support/Modal.h"

#include <QImage>
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
    void whatIsShown_data();
    void whatIsShown();

private:
    QString picture(const QSize& size, const char* name)
    {
        QImage image(size, QImage::Format_Mono);
        image.fill(0);
        return image.save(m_folder.filePath(name)) ? m_folder.filePath(name) : QString();
    }
    QTemporaryDir m_folder;
};

void tst_frmPreview::whatIsShown_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QSize>("shown");
    QTest::newRow("small") << picture({200, 120}, "a.bmp") << QSize(200, 120);
    QTest::newRow("larger than the display") << picture({1200, 3000}, "b.png") << QSize(1200, 3000);
    QTest::newRow("200 million pixels") << picture({16000, 12500}, "c.png") << QSize();
    QTest::newRow("gone") << m_folder.filePath("gone.bmp") << QSize();
    QTest::newRow("a folder") << m_folder.path() << QSize();
    QTest::newRow("none") << QString() << QSize();
}

void tst_frmPreview::whatIsShown()
{
    QFETCH(QString, path);
    QFETCH(QSize, shown);
    onNextModal<frmPreview>([&](frmPreview& screen) {
        const QPixmap picture = control<QLabel>(screen, "Image2").pixmap();
        QCOMPARE(picture.size(), shown.isValid() ? shown : QSize(0, 0));
        const auto* scroller = screen.findChild<QScrollArea*>();
        QCOMPARE(scroller != nullptr, shown.width() > 1000);
        if (scroller) {
            press(Qt::Key_PageDown);
            press(Qt::Key_Right);
            QVERIFY(scroller->verticalScrollBar()->value() > 300);
            QVERIFY(scroller->horizontalScrollBar()->value() > 0);
        } else if (shown.isValid()) {
            QCOMPARE(screen.size(), shown + QSize(33, 33)); // 500 twips
        }
        press(Qt::Key_Escape);
        QVERIFY(!screen.isVisible());
    });
    frmPreview().ShowImage(path);
    QCOMPARE(modal::pending(), 0);
}

QTEST_MAIN(tst_frmPreview)
#include "tst_frmPreview.moc"
