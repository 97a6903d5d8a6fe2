#include "OnScreen.h"

#include <QApplication>
#include <QFile>
#include <QKeyEvent>
#include <QTimer>

using namespace Qt::StringLiterals;

void onScreen(forms::Screen& screen, const std::function<void()>& open, const std::function<void()>& work)
{
    constexpr int settle = 300; // ms
    QTimer::singleShot(settle, &screen, [&] {
        work();
        screen.unload();
    });
    open();
}

void pressKey(QWidget& control, int key, const QString& text)
{
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
    QApplication::sendEvent(&control, &press);
    QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier, text);
    QApplication::sendEvent(&control, &release);
}

void paint()
{
    constexpr int enough = 1000; // ms; it ends when nothing is left to do
    QApplication::processEvents(QEventLoop::AllEvents, enough);
}

double residentMegabytes()
{
    QFile status(u"/proc/self/status"_s);
    if (status.open(QIODevice::ReadOnly))
        for (const QByteArray& entry : status.readAll().split('\n'))
            if (entry.startsWith("VmRSS:"))
                return entry.mid(6).trimmed().split(' ').first().toDouble() / 1024;
    return 0;
}
