#include "platform/forms/Theme.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFontDatabase>
#include <QPalette>
#include <QRegularExpression>
#include <QStyleFactory>

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
    for (const char* told : {"MS Sans Serif", "Trebuchet MS", "Verdana"})
        QFont::insertSubstitution(QString::fromLatin1(told), ours);
    QFont::insertSubstitution(u"Kruti Dev 010"_s, u"Seamwise Devanagari"_s);
}

QPalette palette()
{
    QPalette colours;
    colours.setColor(QPalette::Window, QColor(0xF6, 0xF4, 0xEF));
    colours.setColor(QPalette::WindowText, QColor(0x1F, 0x29, 0x33));
    colours.setColor(QPalette::Base, Qt::white);
    colours.setColor(QPalette::Text, QColor(0x1F, 0x29, 0x33));
    colours.setColor(QPalette::Button, Qt::white);
    colours.setColor(QPalette::ButtonText, QColor(0x1F, 0x29, 0x33));
    colours.setColor(QPalette::Highlight, QColor(0x0F, 0x76, 0x6E));
    colours.setColor(QPalette::HighlightedText, Qt::white);
    colours.setColor(QPalette::Disabled, QPalette::Text, QColor(0x8A, 0x84, 0x7A));
    colours.setColor(QPalette::Disabled, QPalette::WindowText, QColor(0x8A, 0x84, 0x7A));
    colours.setColor(QPalette::Mid, QColor(0x9A, 0x94, 0x8A));
    colours.setColor(QPalette::PlaceholderText, QColor(0x8A, 0x84, 0x7A));
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
    application.setStyle(QStyleFactory::create(u"Fusion"_s));
    application.setPalette(palette());
    QFont base(u"Inter"_s);
    base.setPointSizeF(basePointSize);
    application.setFont(base);
    QFile sheet(u":/style.qss"_s);
    if (sheet.open(QIODevice::ReadOnly))
        application.setStyleSheet(expandStyleSheet(QString::fromUtf8(sheet.readAll())));
}

} // namespace forms
