#include "OnScreen.h"

#include <QApplication>
#include <QFile>
#include <QKeyEvent>
#include <QTimer>

void onScreen(forms::Screen& screen, const std::function<void()>& open, const std::function<void()>& work)
{
    constexpr int settle = 300; // ms
    QTimer::singleShot(settle, &screen, [&] {
        work();
        screen.unload();
    });
    open();
}

void pressKey(int key, const QString& text)
{
    QWidget* target = QApplication::focusWidget();
    if (!target)
        qFatal("no control has the focus");
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
    QApplication::sendEvent(target, &press);
    QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier, text);
    QApplication::sendEvent(target, &release);
}

void paint(QWidget& screen)
{
    QApplication::sendPostedEvents();
    screen.repaint();
}

double residentMegabytes()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (status.open(QIODevice::ReadOnly))
        for (const QByteArray& entry : status.readAll().split('\n'))
            if (entry.startsWith("VmRSS:"))
                return entry.mid(6).trimmed().split(' ').first().toDouble() / 1024;
    return 0;
}
