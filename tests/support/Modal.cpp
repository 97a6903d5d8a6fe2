#include "support/Modal.h"

#include "platform/forms/Screen.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QPointer>
#include <QScopeGuard>
#include <QTest>
#include <QTimer>
#include <algorithm>
#include <deque>

using namespace Qt::StringLiterals;

namespace modal {

namespace {

constexpr qint64 patience = 5000; // ms

void close(QWidget* widget)
{
    if (auto* screen = qobject_cast<forms::Screen*>(widget))
        screen->unload();
    else
        widget->close();
}

void closeAll()
{
    for (QWidget* widget = QApplication::activeModalWidget(); widget;
         widget = QApplication::activeModalWidget()) {
        close(widget);
        if (QApplication::activeModalWidget() == widget)
            return;
    }
}

class Watch : public QObject
{
public:
    struct Act
    {
        QString className;
        std::function<bool(QWidget*)> matches;
        std::function<void(QWidget*)> act;
        QElapsedTimer waiting;
    };

    Watch()
        : QObject(qApp)
    {
        m_timer.setInterval(5);
        connect(&m_timer, &QTimer::timeout, this, &Watch::look);
    }

    void add(Act act)
    {
        act.waiting.start();
        m_acts.push_back(std::move(act));
        m_timer.start();
    }
    int count() const { return int(m_acts.size()); }
    void clear() { m_acts.clear(); }

protected:
    /// A screen that has gone and is shown again is another meeting.
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Hide)
            std::erase(m_met, watched);
        return QObject::eventFilter(watched, event);
    }

private:
    void look()
    {
        std::erase(m_met, nullptr);
        QWidget* front = QApplication::activeModalWidget();
        if (front && front->isVisible() && front->isActiveWindow() && !alreadyMet(front)) {
            const auto found = std::find_if(m_acts.begin(), m_acts.end(),
                                            [front](const Act& act) { return act.matches(front); });
            if (found != m_acts.end()) {
                const auto act = std::move(found->act);
                m_acts.erase(found);
                for (Act& later : m_acts)
                    later.waiting.start();
                m_met.push_back(front);
                front->installEventFilter(this);
                // Not inside the timer's own turn, which would keep it from meeting screens that the act
                // opens.
                QMetaObject::invokeMethod(
                    front,
                    [front, act] {
                        const QPointer<QWidget> screen = front;
                        const auto closed = qScopeGuard([&screen] {
                            if (screen)
                                close(screen);
                        });
                        act(front);
                    },
                    Qt::QueuedConnection);
            }
        }
        if (!m_acts.empty() && m_acts.front().waiting.hasExpired(patience)) {
            const QString name = m_acts.front().className;
            m_acts.clear();
            QTest::qFail(qPrintable(u"No %1 came to the front"_s.arg(name)), __FILE__, __LINE__);
            closeAll();
        }
        if (m_acts.empty())
            m_timer.stop();
    }

    bool alreadyMet(QWidget* widget) const
    {
        return std::find(m_met.begin(), m_met.end(), widget) != m_met.end();
    }

    QTimer m_timer;
    std::deque<Act> m_acts;
    std::vector<QPointer<QWidget>> m_met;
};

Watch& watch()
{
    static QPointer<Watch> instance;
    if (!instance)
        instance = new Watch;
    return *instance;
}

} // namespace

void meet(const QString& className, std::function<bool(QWidget*)> matches, std::function<void(QWidget*)> act)
{
    watch().add({className, std::move(matches), std::move(act), {}});
}

int pending() { return watch().count(); }

void forget() { watch().clear(); }

} // namespace modal
