#include "platform/forms/MessageBox.h"

#include <QGuiApplication>
#include <QMessageBox>
#include <QPointer>

namespace forms {

namespace {

constexpr qsizetype longestText = 1200;
constexpr qsizetype mostLines = 25;

/// What a screen can hold of a text.
QString cut(const QString& text)
{
    QString shown = text.section(QLatin1Char('\n'), 0, mostLines - 1).left(longestText);
    if (shown.size() < text.size())
        shown += QChar(0x2026);
    return shown;
}

/// Shows a box and returns the button pressed. The box may die with its parent meanwhile.
QMessageBox::StandardButton run(QWidget* parent, QMessageBox::Icon icon, const QString& text,
                                QMessageBox::StandardButtons buttons)
{
    const QPointer<QWidget> below = parent && parent->isVisible() ? parent->window() : nullptr;
    QPointer<QMessageBox> box =
        new QMessageBox(icon, QGuiApplication::applicationDisplayName(), cut(text), buttons, below);
    box->setTextFormat(Qt::PlainText);
    box->setWindowModality(Qt::ApplicationModal);
    const int answer = box->exec();
    delete box;
    if (below)
        below->activateWindow();
    return static_cast<QMessageBox::StandardButton>(answer);
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

} // namespace forms
