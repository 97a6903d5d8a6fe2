#include "platform/forms/MessageBox.h"

#include <QGuiApplication>
#include <QInputDialog>
#include <QMessageBox>
#include <QPointer>

namespace forms {

namespace {

constexpr qsizetype longestText = 1200;
constexpr qsizetype mostLines = 25;

/// What a screen can hold of a text.
QString cut(const QString& text)
{
    QString shown = text.section(u'\n', 0, mostLines - 1).left(longestText);
    if (shown.size() < text.size())
        shown += QChar(0x2026);
    return shown;
}

QWidget* windowBelow(const QWidget* parent)
{
    return parent && parent->isVisible() ? parent->window() : nullptr;
}

/// Shows a box and returns its result. The box may die with its parent meanwhile.
int show(const QPointer<QDialog>& box)
{
    const QPointer<QWidget> below = box->parentWidget();
    box->setWindowModality(Qt::ApplicationModal);
    const int result = box->exec();
    if (below)
        below->activateWindow();
    return result;
}

/// Shows a box and returns the button pressed.
int run(QWidget* parent, QMessageBox::Icon icon, const QString& text, QMessageBox::StandardButtons buttons)
{
    const QPointer<QMessageBox> box = new QMessageBox(icon, QGuiApplication::applicationDisplayName(),
                                                      cut(text), buttons, windowBelow(parent));
    box->setTextFormat(Qt::PlainText);
    const int button = show(box.data());
    delete box;
    return button;
}

} // namespace

void plainMessage(QWidget* parent, const QString& text)
{
    run(parent, QMessageBox::Information, text, QMessageBox::Ok);
}

void criticalMessage(QWidget* parent, const QString& text)
{
    run(parent, QMessageBox::Critical, text, QMessageBox::Ok);
}

bool askPlain(QWidget* parent, const QString& text)
{
    return run(parent, QMessageBox::Question, text, QMessageBox::Yes | QMessageBox::No) == QMessageBox::Yes;
}

std::optional<bool> askPlainOrCancel(QWidget* parent, const QString& text)
{
    const int button =
        run(parent, QMessageBox::Question, text, QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
    if (button != QMessageBox::Yes && button != QMessageBox::No)
        return {};
    return button == QMessageBox::Yes;
}

QString inputBox(QWidget* parent, const QString& prompt, const QString& title)
{
    const QPointer<QInputDialog> box = new QInputDialog(windowBelow(parent));
    box->setWindowTitle(title);
    box->setLabelText(prompt);
    const bool accepted = show(box.data()) == QDialog::Accepted;
    const QString text = accepted && box ? box->textValue() : QString();
    delete box;
    return text;
}

} // namespace forms
