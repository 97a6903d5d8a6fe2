#include "platform/forms/Theme.h"

#include "platform/forms/FileDialogIcons.h"
#include "platform/forms/Metrics.h"
#include "platform/forms/Palette.h"
#include "platform/forms/Screen.h"

#include <QApplication>
#include <QDir>
#include <QEvent>
#include <QFile>
#include <QFontDatabase>
#include <QHash>
#include <QPalette>
#include <QRegularExpression>
#include <QWidget>

using namespace Qt::StringLiterals;

namespace forms {

namespace {

constexpr double basePointSize = 10.5;
constexpr int middleGrey = 128;

void loadFonts(const QString& folder)
{
    const QDir fonts(folder);
    for (const QString& file : fonts.entryList({u"*.otf"_s, u"*.ttf"_s}, QDir::Files))
        QFontDatabase::addApplicationFont(fonts.filePath(file));

    const QString ours = u"Inter"_s;
    for (const auto family : {"MS Sans Serif"_L1, "Trebuchet MS"_L1, "Verdana"_L1})
        QFont::insertSubstitution(family, ours);
    QFont::insertSubstitution(u"Kruti Dev 010"_s, u"Encoded Devanagari"_s);
}

QPalette colours()
{
    QPalette colours;
    colours.setColor(QPalette::Window, QColor(palette::window));
    colours.setColor(QPalette::WindowText, QColor(palette::ink));
    colours.setColor(QPalette::Base, QColor(palette::card));
    colours.setColor(QPalette::Text, QColor(palette::ink));
    colours.setColor(QPalette::Button, QColor(palette::card));
    colours.setColor(QPalette::ButtonText, QColor(palette::ink));
    colours.setColor(QPalette::Highlight, QColor(palette::accent));
    colours.setColor(QPalette::HighlightedText, QColor(palette::onAccent));
    colours.setColor(QPalette::Disabled, QPalette::Text, QColor(palette::faint));
    colours.setColor(QPalette::Disabled, QPalette::WindowText, QColor(palette::faint));
    colours.setColor(QPalette::Mid, QColor(palette::border));
    colours.setColor(QPalette::PlaceholderText, QColor(palette::quietInk));
    colours.setColor(QPalette::ToolTipBase, QColor(palette::tipGround));
    colours.setColor(QPalette::ToolTipText, QColor(palette::tipInk));
    return colours;
}

Appearance& shown()
{
    static Appearance shown;
    return shown;
}

/// Brings colours, type and style sheet to the appearance that is on.
void putOn()
{
    palette::look = shown().look;
    textScale = shown().textSize / 100.0;
    QApplication::setPalette(colours());
    QFont base(u"Inter"_s);
    base.setPointSizeF(basePointSize * textScale);
    QApplication::setFont(base);
    for (QWidget* each : QApplication::allWidgets()) { // which Qt tells itself once events are running
        QEvent change(QEvent::ApplicationFontChange);
        QCoreApplication::sendEvent(each, &change);
    }
    QFile sheet(u":/style.qss"_s);
    if (sheet.open(QIODevice::ReadOnly))
        qApp->setStyleSheet(expandStyleSheet(QString::fromUtf8(sheet.readAll()), shown()));
}

} // namespace

QString artOn(const palette::Tone& ground) { return qGray(ground) < middleGrey ? u"-light"_s : QString(); }

QString expandStyleSheet(const QString& sheet, const Appearance& appearance)
{
    static const QRegularExpression variable(
        u"@(\\w+)|((?<=min-height: |max-height: )\\d+(?=px)|\\d+(?:\\.\\d+)?(?=pt\\b))(px|pt)"_s);
    QHash<QString, QString> values;
    for (const palette::Tone* tone : palette::tones())
        values.insert(QString::fromLatin1(tone->name), QColor(tone->in(appearance.look)).name());
    const auto art = [&](const palette::Tone& ground) {
        return qGray(ground.in(appearance.look)) < middleGrey ? u"-light"_s : QString();
    };
    values.insert(u"onCard"_s, art(palette::card));
    values.insert(u"onFocus"_s, art(palette::focusGround));
    values.insert(u"onAccentArt"_s, art(palette::accent));
    QString expanded;
    qsizetype from = 0;
    for (auto match = variable.globalMatch(sheet); match.hasNext();) {
        const auto found = match.next();
        expanded += QStringView(sheet).sliced(from, found.capturedStart() - from);
        if (found.hasCaptured(1)) {
            expanded += values.value(found.captured(1), found.captured());
        } else {
            const double designed = found.captured(2).toDouble();
            expanded += found.captured(3) == "pt"_L1
                            ? QString::number(designed * appearance.textSize / 100) + u"pt"_s
                            : QString::number(int(designed * appearance.textSize / 100)) + u"px"_s;
        }
        from = found.capturedEnd();
    }
    return expanded + QStringView(sheet).sliced(from);
}

const Appearance& appearance() { return shown(); }

void setAppearance(const Appearance& wanted)
{
    if (wanted == shown())
        return;
    shown() = wanted;
    putOn();
    Screen::refitAll();
}

void applyTheme(QApplication& application, const QString& fontFolder)
{
    loadFonts(fontFolder);
    application.setStyle(new OwnStyle);
    shown() = {};
    putOn();
}

} // namespace forms
