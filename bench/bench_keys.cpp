// Walks all screens of the full shop by their own keys, as an operator does, and prints the keys that take
// longest: from the key to the moment when everything is painted and nothing is left to do. Each walk is made
// three times; the median of a key counts. `bench_keys all` prints every key.
#include "FullShop.h"
#include "core/shell/modMain.h"
#include "core/store/DE.h"
#include "platform/forms/BackgroundTask.h"
#include "platform/forms/Theme.h"
#include "platform/report/ListKeys.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QElapsedTimer>
#include <QHash>
#include <QKeySequence>
#include <QTest>
#include <QTimer>
#include <QWindow>
#include <algorithm>
#include <cstdio>
#include <set>
#include <span>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

/// Each begins on the main screen and is left by Esc. A word is typed letter by letter when it stands in
/// quotes, else it is one key; `x3` behind it repeats it.
constexpr const char* walks[] = {
    // the main screen, the working date, pending orders
    "F2 Up Down Enter F11 Down x3 End Home",
    // an order with an advance: client's folder, Quick Find, garments, measurements, pending orders, money
    "Alt+N 'CLIENT' Enter F3 Down x2 Tab Down x2 Up Esc Alt+Q 'an' Backspace x2 'kum' Down x3 End Home Esc "
    "Alt+A 'GARMENT' Enter '38' Enter '40' Enter Down Up Ctrl+Enter '2' Alt+O "
    "'CLOTH' Down Enter '30' Enter Ctrl+Enter '1' Enter x4 Alt+O Esc F11 Esc Tab Down Up F5 '100' Tab x3 "
    "Alt+S Enter",
    // a card that is left in the middle, and brought back
    "Alt+N 'CLIENT' Tab Up Down PageDown PageUp x2 Tab x4 Alt+A 'GARMENT' Enter Ctrl+Enter '1' Alt+O Esc x2 "
    "Y Alt+N Ctrl+Z Esc",
    // the register of today: a line's card, client, worker; its marks; a client's lines
    "Alt+R Down x5 PageDown x2 End Home F1 Tab x4 Esc F3 Down x3 Esc F2 Down Esc Enter Tab x5 'a' Down x3 "
    "Esc "
    "F6 Enter F7 Enter 'Rack' Enter F8 Enter Shift+F10 Esc Ctrl+D Alt+O Esc '15980' Enter",
    "Alt+R Alt+Q 'kum' Down Enter Down x3 End",
    // the register of all years
    "Alt+R Shift+Tab x7 '010118' Enter Alt+V Down x3 PageDown x3 End Home F6 Enter F7 Enter 'Rack' Enter F8 "
    "Enter Ctrl+C F9 "
    "PageDown End",
    // masters
    "Alt+M Alt+C 'an' Backspace x2 Down x3 End Home Enter Tab x8 Esc",
    "Alt+M Alt+C F3 Esc Ctrl+A 'Nobody' Tab x6 '98' Alt+S Enter",
    "Alt+M Alt+W 'an' Down x3 End Home Enter Tab x6",
    "Alt+M Alt+I 's' Down x3 End Home Enter Tab x6",
    "Alt+M Alt+A Down x3 End Home Enter Tab x3",
    // reports
    "Alt+S Alt+G PageUp PageDown Tab x6 Right x3 Tab Right Tab x4 Down Enter Esc Ctrl+P PageDown",
    "Alt+S Alt+B Down x3 End Home",
    "Alt+S Alt+T Down x3 End Home",
    "Alt+S Alt+L Tab Down Up Tab x4 Alt+V Down x3 PageDown End Home F9 PageDown Esc Alt+Q 'an'",
    "Alt+S Alt+U 'an' Down x3 End Home F5 '5' Tab x3 Esc Enter Down x2 Esc F9 PageDown",
    "Alt+S Alt+A Tab 'Cash' Tab '010118' Enter Alt+V Down x3 PageDown End Home Alt+P PageDown End Esc Alt+A "
    "Tab x4 '10' Esc",
    "Alt+S Alt+D '010118' Enter Alt+V Tab Down x3 PageDown End Home Enter",
    "Alt+S Alt+W 'a' Down x2 Tab '010118' Enter Alt+V Down x3 PageDown End Home Alt+P PageDown",
    "Alt+S Alt+R Down x3 PageDown End Home Enter",
    // settings with the backup, the shop's profile, about
    "Alt+B Tab x9 Alt+W Down x3 Esc Alt+G Tab x4 Alt+P Tab x4 Alt+M Tab x4",
    "F2 Enter Tab x5 Enter Tab x4 Esc Tab Enter Tab x2 Esc Tab Enter",
};

constexpr int runs = 3;
constexpr double frame = 16;       // ms
constexpr int longestWay = 12;     // of Esc back to the main screen
constexpr double noticeable = 0.3; // ms, less is a timer's turn
constexpr qint64 quiet = 45;       // ms without work: the answer to a key is complete

QStringList keysOf(QString walk)
{
    QStringList keys;
    for (const QString& word : walk.replace(u"CLIENT"_s, FullShop::clients().at(4000).left(4))
                                   .replace(u"GARMENT"_s, FullShop::garments().at(0).left(3))
                                   .replace(u"CLOTH"_s, FullShop::garments().at(3).left(4))
                                   .split(u' '))
        if (word.startsWith(u'\''))
            for (const QChar letter : word.sliced(1).chopped(1))
                keys << letter;
        else if (word.startsWith(u'x') && word.size() > 1)
            keys += QStringList(word.sliced(1).toInt() - 1, keys.last());
        else
            keys << word;
    return keys;
}

/// How long the event loop, of any depth, has worked since a key: from the first event of a turn to the wait
/// for the next.
class WorkMeter : public QApplication
{
public:
    WorkMeter(int& argc, char** argv)
        : QApplication(argc, argv)
    {
        m_sinceWork.start();
        connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, this,
                &WorkMeter::endTurn);
    }
    bool notify(QObject* receiver, QEvent* event) override
    {
        if (!m_turn.isValid())
            m_turn.start();
        return QApplication::notify(receiver, event);
    }
    double taken() const { return m_taken; }
    /// Work in a thread of its own, which a box with "Cancel" stands for, is not the loop's: it is waited
    /// for, and not counted.
    bool isQuiet() const
    {
        const bool works = (m_turn.isValid() && double(m_turn.nsecsElapsed()) / 1e6 > noticeable) ||
                           qobject_cast<forms::ProgressBox*>(QApplication::activeModalWidget());
        return !works && m_sinceWork.elapsed() >= quiet;
    }
    void restart()
    {
        m_taken = 0;
        m_turn.start();
        m_sinceWork.start();
    }

private:
    void endTurn()
    {
        if (!m_turn.isValid())
            return;
        const double turn = double(m_turn.nsecsElapsed()) / 1e6;
        m_turn.invalidate();
        if (turn < noticeable)
            return;
        m_taken += turn;
        m_sinceWork.start();
    }
    QElapsedTimer m_turn;
    QElapsedTimer m_sinceWork;
    double m_taken = 0; // ms
};

struct Answer
{
    QString where;             ///< the screen before the key, and the one that it has opened
    std::vector<double> times; ///< ms, of each run
    double median() const
    {
        std::vector<double> sorted = times;
        std::ranges::sort(sorted);
        return sorted[sorted.size() / 2];
    }
};

QString front()
{
    const QWidget* window = QApplication::activeModalWidget();
    if (!window)
        window = QApplication::activeWindow();
    return window ? QString::fromLatin1(window->metaObject()->className()) : QString();
}

class Walker : public QObject
{
public:
    explicit Walker(WorkMeter& meter)
        : m_meter(meter)
    {
        for (const char* walk : walks)
            m_walks << keysOf(QString::fromLatin1(walk));
        constexpr int dayCopied = 3000; // ms, the copy that is made at the start
        QTimer::singleShot(dayCopied, this, &Walker::next);
    }
    const std::vector<std::vector<Answer>>& answers() const { return m_answers; }
    const std::set<QString>& screens() const { return m_screens; }

private:
    void next()
    {
        constexpr int look = 15; // ms
        QTimer::singleShot(look, this, [this] {
            if (!m_meter.isQuiet())
                return next();
            take();
            press();
        });
    }

    /// Notes what the last key has taken.
    void take()
    {
        if (m_pressed.isEmpty())
            return;
        const QString now = front();
        m_screens.insert(now);
        m_answers.resize(std::max(m_answers.size(), size_t(m_walk) + 1));
        auto& walk = m_answers[size_t(m_walk)];
        walk.resize(std::max(walk.size(), size_t(m_key)));
        Answer& answer = walk[size_t(m_key) - 1];
        answer.where = m_before + u": "_s + m_pressed + (now == m_before ? QString() : u" -> "_s + now);
        answer.times.push_back(m_meter.taken());
    }

    void press()
    {
        m_before = front();
        const QStringList& walk = m_walks[m_walk];
        while (m_key < walk.size() && m_before == "frmMain"_L1 && walk[m_key] == "Esc"_L1)
            ++m_key; // already there
        if (m_key < walk.size())
            return press(walk[m_key]);
        if (m_before != "frmMain"_L1 && m_key < walk.size() + longestWay)
            return press(u"Esc"_s);
        if (m_before != "frmMain"_L1)
            qFatal("walk %d does not lead back from %s", int(m_walk), qPrintable(m_before));
        m_key = 0;
        m_pressed.clear();
        if (++m_walk == m_walks.size()) {
            m_walk = 0;
            if (++m_run == runs)
                return QCoreApplication::quit();
        }
        next();
    }

    void press(const QString& name)
    {
        ++m_key;
        m_pressed = name;
        const QKeyCombination key = QKeySequence::fromString(name)[0];
        const bool isText = name.size() == 1;
        next();
        m_meter.restart();
        if (QWindow* window = target())
            QTest::sendKeyEvent(QTest::Press, window, key.key(), isText ? name : QString(),
                                key.keyboardModifiers());
        if (QWindow* window = target())
            QTest::sendKeyEvent(QTest::Release, window, key.key(), isText ? name : QString(),
                                key.keyboardModifiers());
    }

    static QWindow* target()
    {
        const QWidget* popup = QApplication::activePopupWidget();
        const QWidget* window = popup ? popup : QApplication::activeWindow();
        return window ? window->windowHandle() : nullptr;
    }

    WorkMeter& m_meter;
    QList<QStringList> m_walks;
    std::vector<std::vector<Answer>> m_answers;
    std::set<QString> m_screens;
    QString m_before;
    QString m_pressed;
    qsizetype m_walk = 0;
    qsizetype m_key = 0;
    int m_run = 0;
};

void print(const Walker& walker, bool all)
{
    std::vector<Answer> answers;
    for (const auto& walk : walker.answers())
        std::ranges::copy_if(walk, std::back_inserter(answers),
                             [](const Answer& a) { return !a.times.empty(); });
    if (!all)
        std::ranges::sort(answers, std::greater(), &Answer::median);
    const auto above = std::ranges::count_if(answers, [](const Answer& a) { return a.median() > frame; });
    std::printf("%d keys on %d screens, %d of them above %g ms\n", int(answers.size()),
                int(walker.screens().size()), int(above), frame);
    const size_t shown = all ? answers.size() : std::min<size_t>(answers.size(), 10);
    for (const Answer& answer : std::span(answers).first(shown))
        std::printf("%7.1f ms  %s\n", answer.median(), qPrintable(answer.where));
}

} // namespace

int main(int argc, char* argv[])
{
    qputenv("QT_NO_GLIB", "1"); // the loop of glib doesn't tell when it waits
    WorkMeter application(argc, argv);
    const FullShop shop;
    forms::applyTheme(application, QCoreApplication::applicationDirPath() + u"/../bin/fonts"_s);
    report::ListKeys::install();
    DE.close(); // the program opens it by itself
    if (!Main())
        return 1;
    QApplication::setQuitOnLastWindowClosed(false);
    const Walker walker(application);
    QApplication::exec();
    print(walker, QCoreApplication::arguments().contains(u"all"_s));
}
