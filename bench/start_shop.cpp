// The program's own start, up to the first picture of the main screen on the shop of the given folder; then
// it ends.
#include "core/Session.h"
#include "core/modMain.h"
#include "platform/forms/Theme.h"

#include <QApplication>
#include <QEvent>
#include <QWidget>

namespace {

class EndWithFirstPicture : public QObject
{
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint && watched->objectName() == QLatin1String("frmMain"))
            QMetaObject::invokeMethod(qApp, &QCoreApplication::quit, Qt::QueuedConnection);
        return false;
    }
};

} // namespace

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    EndWithFirstPicture end;
    application.installEventFilter(&end);
    session.appFolder = QCoreApplication::arguments().value(1);
    forms::applyTheme(application, QCoreApplication::arguments().value(2));
    return Main() ? QApplication::exec() : 1;
}
