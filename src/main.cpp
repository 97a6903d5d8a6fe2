#include "core/shell/modMain.h"
#include "core/store/Copies.h"
#include "core/store/Session.h"
#include "core/store/Startup.h"
#include "platform/ado/Connection.h"
#include "platform/devices/TestCameras.h"
#include "platform/forms/MessageBox.h"
#include "platform/forms/Theme.h"
#include "platform/report/ListKeys.h"
#include "platform/report/Printing.h"
#include "platform/values/Notice.h"

#include <QApplication>
#include <QIcon>

using namespace Qt::StringLiterals;

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    QApplication::setApplicationName(u"Seamwise"_s);
    QApplication::setApplicationVersion(QStringLiteral(SEAMWISE_VERSION));
    QApplication::setWindowIcon(QIcon(u":/icons/app.svg"_s));
    QApplication::setQuitOnLastWindowClosed(false);

    FindFolders(QCoreApplication::applicationDirPath());
    openShopAhead();
    forms::applyTheme(application, session.partsFolder + u"/fonts"_s);
    ado::setBusyNotice([](bool waiting) {
        waiting ? QApplication::setOverrideCursor(Qt::WaitCursor) : QApplication::restoreOverrideCursor();
    });
    values::setCriticalNotice([](const QString& text) { forms::criticalMessage(nullptr, text); });
    report::ListKeys::install();
    if (qEnvironmentVariableIsSet("SEAMWISE_TEST_CAMERA"))
        devices::setCameras(std::make_unique<devices::TestCameras>(
            std::vector<devices::TestCamera>{{.name = u"Test pattern"_s},
                                             {.name = u"Slow camera"_s, .timeToOpen = 4000},
                                             {.name = u"Loose cable"_s, .picturesLeft = 60},
                                             {.name = u"Taken camera"_s, .fault = u"In use elsewhere"_s}}));
    const int result = Main() ? QApplication::exec() : 1;
    report::finishPrinting();
    QGuiApplication::sync(); // no window waits for what follows
    copies::finishDay();
    devices::setCameras({});
    return result;
}
