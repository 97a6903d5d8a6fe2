#include "support/Prompts.h"

#include "support/Modal.h"
#include "ui/frmMsg.h"

#include <QApplication>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

void fail(const QString& what) { QTest::qFail(qPrintable(what), __FILE__, __LINE__); }

/// Presses the button, or, where there is none to press, leaves by Esc.
void press(QWidget& dialog, QAbstractButton* button, Answer answer)
{
    if (answer == Answer::Esc) {
        QTest::keyClick(&dialog, Qt::Key_Escape);
    } else if (button && button->isVisible()) {
        QTest::mouseClick(button, Qt::LeftButton);
    } else {
        fail(u"The prompt has no button for the answer"_s);
        dialog.close();
    }
}

} // namespace

Prompts::Prompts()
{
    connect(&m_timer, &QTimer::timeout, this, &Prompts::look);
    m_timer.start(5);
}

Prompts::~Prompts()
{
    if (!m_expected.empty())
        fail(u"Expected prompts are left over"_s);
}

void Prompts::expect(const QString& text, Answer answer) { m_expected.push_back({text, answer, {}}); }

void Prompts::expectInput(const QString& prompt, const QString& typed, Answer answer)
{
    m_expected.push_back({prompt, answer, typed});
}

void Prompts::expectInput(const QString& prompt, std::function<void(QWidget& box)> act)
{
    m_expected.push_back({prompt, Answer::Ok, {}, std::move(act)});
}

void Prompts::expectAll(const QStringList& notices)
{
    for (const QString& text : notices)
        expect(text);
}

bool Prompts::allMet()
{
    for (const Expected& unused : m_expected)
        qInfo("Prompt never came: %s", qPrintable(unused.text));
    if (modal::pending() > 0)
        qInfo("%d modal screens never came", modal::pending());
    const bool met = m_expected.empty() && modal::pending() == 0;
    m_expected.clear();
    modal::forget();
    return met;
}

Prompts::Expected Prompts::answerTo(const QString& text)
{
    if (m_expected.empty()) {
        fail(u"Unexpected prompt: "_s + text);
        return {text, Answer::Esc, {}};
    }
    const Expected next = m_expected.front();
    m_expected.pop_front();
    if (next.text != text)
        fail(u"Prompt: %1\nexpected: %2"_s.arg(text, next.text));
    return next;
}

void Prompts::look()
{
    static const QString names[] = {u"cmdOK"_s, u"cmdYes"_s, u"cmdNo"_s, {}, u"cmdByPhone"_s};
    static constexpr QMessageBox::StandardButton buttons[] = {
        QMessageBox::Ok, QMessageBox::Yes, QMessageBox::No, QMessageBox::NoButton, QMessageBox::NoButton};
    QWidget* front = QApplication::activeModalWidget();
    if (!front || !front->isVisible())
        return;
    if (auto* dialog = qobject_cast<frmMsg*>(front)) {
        const Answer given = answerTo(dialog->findChild<QLabel*>(u"lblMsg"_s)->text()).answer;
        press(*dialog, dialog->findChild<QPushButton*>(names[int(given)]), given);
    } else if (auto* box = qobject_cast<QMessageBox*>(front)) {
        const Answer given = answerTo(box->text()).answer;
        press(*box, box->button(buttons[int(given)]), given);
    } else if (auto* input = qobject_cast<QInputDialog*>(front)) {
        const Expected given = answerTo(input->labelText());
        if (given.act)
            given.act(*input);
        QTest::keyClicks(input->findChild<QLineEdit*>(), given.typed);
        QTest::keyClick(input, given.answer == Answer::Ok ? Qt::Key_Return : Qt::Key_Escape);
    }
}
