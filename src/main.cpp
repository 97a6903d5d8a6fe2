#include "core/Session.h"
#include "core/modMain.h"
#include "platform/forms/MessageBox.h"
#include "platform/forms/Theme.h"
#include "platform/values/Notice.h"

#include <QApplication>
#include <QIcon>

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Seamwise"));
    QApplication::setApplicationVersion(QStringLiteral("8.0"));
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/icons/app.svg")));
    QApplication::setQuitOnLastWindowClosed(false);

    session.appFolder = QCoreApplication::applicationDirPath();
    forms::applyTheme(application, session.appFolder + QStringLiteral("/fonts"));
    values::setCriticalNotice([](const QString& text) { forms::criticalMessage(nullptr, text); });
    return Main() ? QApplication::exec() : 1;
}
