#include "core/store/Session.h"
#include "core/store/Settings.h"
#include "media/frmCam.h"
#include "media/frmCamFormat.h"
#include "media/swSnap.h"
#include "platform/devices/TestCameras.h"
#include "platform/forms/ListBox.h"
#include "support/Files.h"
#include "support/ShopTest.h"

#include <QFileInfo>
#include <QPushButton>
#include <QTest>

/// Pictures from a camera; whatever the camera does, the screen goes on.
class tst_frmCam : public ShopTest
{
    Q_OBJECT

    QString target() const { return shop->folder() + "/picture.bmp"; }

    /// Opens the screen, acts on it; whether it was left without a picture.
    bool cancelled(const std::function<void(frmCam&, swSnap&)>& act)
    {
        bool cancelled = false;
        onNextModal<frmCam>([&](frmCam& screen) { act(screen, control<swSnap>(screen, "swSnap1")); });
        frmCam().TakeSnap(target(), cancelled);
        return cancelled;
    }
    static QPushButton& captureButton(frmCam& screen) { return control<QPushButton>(screen, "Command4"); }

private Q_SLOTS:
    void cleanupTestCase() { devices::setCameras({}); }

    void picturesAreTakenFromTheCameraChosen()
    {
        devices::setCameras(std::make_unique<devices::TestCameras>(
            std::vector<devices::TestCamera>{{.name = "Front"}, {.name = " "}}));
        SetSetting(settings::WebcamDriver, "1");
        QVERIFY(!cancelled([this](frmCam& screen, swSnap& snap) {
            QCOMPARE(combo(screen, "cmbList").text(), "Camera 2");
            QTRY_VERIFY(captureButton(screen).hasFocus());
            onNextModal<frmCamFormat>([](frmCamFormat& formats) {
                auto& list = control<forms::ListBox>(formats, "lstFormats");
                list.setFocus();
                list.setListIndex(1);
                press(Qt::Key_Return);
            });
            click(screen, "Command3");
            click(screen, "Command2"); // stopped: nothing can be taken
            captureButton(screen).click();
            QVERIFY(!QFileInfo::exists(target()) && !snap.seesPicture());

            for (int time = 0; time < 2; ++time) { // the second replaces the first
                writeFile(target(), "an earlier picture");
                combo(screen, "cmbList").setFocus();
                combo(screen, "cmbList").setListIndex(0);
                click(screen, "Command1");
                QTRY_VERIFY(captureButton(screen).hasFocus());
                press(Qt::Key_Return);
                QVERIFY(contents(target()).startsWith("BM"));
                QVERIFY(!captureButton(screen).isEnabled());
            }
        }));
        QCOMPARE(QImage(target()).size(), QSize(640, 480));
        QCOMPARE(GetSetting(settings::WebcamDriver), "0");
    }

    void camerasThatGiveNothing_data()
    {
        QTest::addColumn<int>("index");
        for (const auto& [name, index] : {std::pair("missing", 3), std::pair("taken", 0),
                                          std::pair("slow", 1), std::pair("pulled out", 2)})
            QTest::newRow(name) << index;
    }
    void camerasThatGiveNothing()
    {
        QFETCH(int, index);
        devices::setCameras(std::make_unique<devices::TestCameras>(std::vector<devices::TestCamera>{
            {.fault = "Device busy"}, {.timeToOpen = 60'000}, {.picturesLeft = 2}}));
        SetSetting(settings::WebcamDriver, QString::number(index));
        QVERIFY(cancelled([index](frmCam& screen, swSnap& snap) {
            QTRY_VERIFY(!snap.isConnected() || index == 1);
            QVERIFY(!captureButton(screen).isEnabled());
            captureButton(screen).click();
        }));
        QVERIFY(!QFileInfo::exists(target()));
    }

    /// The earlier picture goes before the new one is written, also when that fails.
    void aPictureThatCannotBeWritten()
    {
        devices::setCameras(std::make_unique<devices::TestCameras>(std::vector<devices::TestCamera>{{}}));
        SetSetting(settings::WebcamDriver, "0");
        QVERIFY(!cancelled([](frmCam& screen, swSnap& snap) {
            QTRY_VERIFY(captureButton(screen).hasFocus());
            snap.FileName = "/nowhere/picture.bmp";
            press(Qt::Key_Return);
            QVERIFY(screen.isVisible());
        }));
    }
};

QTEST_MAIN(tst_frmCam)
#include "tst_frmCam.moc"
