// The program's own start, up to the first picture of the main screen on the shop of the given folder; then
// it ends.
#include "OnScreen.h"
#include "core/shell/modMain.h"
#include "core/store/Session.h"
#include "jobcards/frmEditJOB.h"
#include "platform/forms/DatePicker.h"
#include "platform/forms/Theme.h"
#include "registers/frmWorkerJobRegister.h"

#include <QApplication>
#include <QEvent>
#include <QPushButton>
#include <QTimer>
#include <QWidget>
#include <cstdio>

using namespace Qt::StringLiterals;

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

/// The register, showing the shop's last days.
void openRegister(int days)
{
    frmWorkerJobRegister screen;
    onScreen(
        screen, [&] { screen.showModal(); },
        [&] {
            screen.findChild<forms::DatePicker*>(u"DateFrom"_s)
                ->setValue(session.WorkingDate.addDays(1 - days));
            screen.findChild<QPushButton*>(u"Command4"_s)->click();
            paint();
            std::printf("%.1f\n", residentMegabytes());
            QCoreApplication::quit();
        });
}

class EndWithFirstPicture : public QObject
{
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() != QEvent::Paint || watched->objectName() != "frmMain"_L1)
            return false;
        qApp->removeEventFilter(this);
        const QString then = QCoreApplication::arguments().value(3);
        QTimer::singleShot(0, qApp, [then] {
            if (then == "card"_L1)
                openCard();
            else if (const int days = then.toInt(); days > 0)
                openRegister(days);
            else
                QCoreApplication::quit();
        });
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
    openShopAhead();
    forms::applyTheme(application, QCoreApplication::arguments().value(2));
    return Main() ? QApplication::exec() : 1;
}
