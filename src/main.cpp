#include "core/shell/modMain.h"
#include "core/store/Session.h"
#include "platform/ado/Connection.h"
#include "platform/forms/MessageBox.h"
#include "platform/forms/Theme.h"
#include "platform/report/Printing.h"
#include "platform/values/Notice.h"

#include <QApplication>
#include <QIcon>

using namespace Qt::StringLiterals;

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    QApplication::setApplicationName(u"Seamwise"_s);
    QApplication::setApplicationVersion(u"8.0"_s);
    QApplication::setWindowIcon(QIcon(u":/icons/app.svg"_s));
    QApplication::setQuitOnLastWindowClosed(false);

    session.appFolder = QCoreApplication::applicationDirPath();
    forms::applyTheme(application, session.appFolder + u"/fonts"_s);
    ado::setBusyNotice([](bool waiting) {
        waiting ? QApplication::setOverrideCursor(Qt::WaitCursor) : QApplication::restoreOverrideCursor();
    });
    values::setCriticalNotice([](const QString& text) { forms::criticalMessage(nullptr, text); });
    const int result = Main() ? QApplication::exec() : 1;
    report::finishPrinting();
    return result;
}
