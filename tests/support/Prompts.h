#pragma once

#include <QObject>
#include <QTimer>
#include <deque>
#include <functional>

enum class Answer { Ok, Yes, No, Esc, Phone };

/// Answers the prompts of the program under test: the message dialog, plain message and input boxes, in the
/// order in which they are expected. A prompt that is unexpected, of another text, or without the button of
/// the answer fails the test.
class Prompts : public QObject
{
    Q_OBJECT
public:
    Prompts();
    ~Prompts() override;

    void expect(const QString& text, Answer answer = Answer::Ok);
    /// Expects an input box; types the text and presses OK, or leaves by Esc.
    void expectInput(const QString& prompt, const QString& typed, Answer answer = Answer::Ok);
    /// Expects an input box, does that in it, and presses OK.
    void expectInput(const QString& prompt, std::function<void(QWidget& box)> act);
    /// Expects notices, each left by OK.
    void expectAll(const QStringList& notices);
    /// True when every expected prompt has come, and every act of onNextModal has met its screen. Tells what
    /// hasn't, and forgets it. For the test's cleanup.
    bool allMet();
    /// The number of prompts that have not come yet.
    qsizetype pending() const { return qsizetype(m_expected.size()); }

private:
    struct Expected
    {
        QString text;
        Answer answer;
        QString typed;
        std::function<void(QWidget& box)> act = {};
    };

    void look();
    Expected answerTo(const QString& text);

    std::deque<Expected> m_expected;
    QTimer m_timer;
};
