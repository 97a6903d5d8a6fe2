#include "platform/forms/Theme.h"

#include "platform/forms/FileDialogIcons.h"
#include "platform/forms/Palette.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFontDatabase>
#include <QPalette>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace forms {

namespace {

constexpr double basePointSize = 10.5;

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
    colours.setColor(QPalette::Window, palette::window);
    colours.setColor(QPalette::WindowText, palette::ink);
    colours.setColor(QPalette::Base, palette::white);
    colours.setColor(QPalette::Text, palette::ink);
    colours.setColor(QPalette::Button, palette::white);
    colours.setColor(QPalette::ButtonText, palette::ink);
    colours.setColor(QPalette::Highlight, palette::accent);
    colours.setColor(QPalette::HighlightedText, palette::white);
    colours.setColor(QPalette::Disabled, QPalette::Text, palette::faint);
    colours.setColor(QPalette::Disabled, QPalette::WindowText, palette::faint);
    colours.setColor(QPalette::Mid, palette::border);
    colours.setColor(QPalette::PlaceholderText, palette::faint);
    return colours;
}

} // namespace

QString expandStyleSheet(const QString& sheet)
{
    static const QRegularExpression definition(u"^@(\\w+):\\s*(.+);$"_s, QRegularExpression::MultilineOption);
    QString expanded = sheet;
    expanded.remove(definition);
    for (auto match = definition.globalMatch(sheet); match.hasNext();) {
        const auto found = match.next();
        expanded.replace(QRegularExpression(u'@' + found.captured(1) + u"\\b"_s), found.captured(2));
    }
    return expanded;
}

void applyTheme(QApplication& application, const QString& fontFolder)
{
    loadFonts(fontFolder);
    application.setStyle(new OwnStyle);
    application.setPalette(colours());
    QFont base(u"Inter"_s);
    base.setPointSizeF(basePointSize);
    application.setFont(base);
    QFile sheet(u":/style.qss"_s);
    if (sheet.open(QIODevice::ReadOnly))
        application.setStyleSheet(expandStyleSheet(QString::fromUtf8(sheet.readAll())));
}

} // namespace forms
