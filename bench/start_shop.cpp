// The program's own start, up to the first picture of the main screen on the shop of the given folder; then
// it ends.
#include "OnScreen.h"
#include "core/Session.h"
#include "core/modMain.h"
#include "jobcards/frmEditJOB.h"
#include "platform/forms/Theme.h"

#include <QApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>
#include <cstdio>

namespace {

void openCard()
{
    frmEditJOB card;
    QTimer::singleShot(500, &card, [&card] {
        std::printf("%.1f\n", residentMegabytes());
        card.unload();
        QCoreApplication::quit();
    });
    card.ShowAddNew();
}

class EndWithFirstPicture : public QObject
{
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() != QEvent::Paint || watched->objectName() != QLatin1String("frmMain"))
            return false;
        qApp->removeEventFilter(this);
        const bool card = QCoreApplication::arguments().value(3) == QLatin1String("card");
        QTimer::singleShot(0, qApp, card ? &openCard : &QCoreApplication::quit);
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
