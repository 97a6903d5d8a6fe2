#include "platform/forms/Theme.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFontDatabase>
#include <QPalette>
#include <QRegularExpression>
#include <QStyleFactory>

namespace forms {

namespace {

constexpr double basePointSize = 10.5;

void loadFonts(const QString& folder)
{
    const QDir fonts(folder);
    for (const QString& file :
         fonts.entryList({QStringLiteral("*.otf"), QStringLiteral("*.ttf")}, QDir::Files))
        QFontDatabase::addApplicationFont(fonts.filePath(file));

    const QString ours = QStringLiteral("Inter");
    for (const char* told : {"MS Sans Serif", "Trebuchet MS", "Verdana"})
        QFont::insertSubstitution(QString::fromLatin1(told), ours);
    QFont::insertSubstitution(QStringLiteral("Kruti Dev 010"), QStringLiteral("Seamwise Devanagari"));
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
    static const QRegularExpression definition(QStringLiteral("^@(\\w+):\\s*(.+);$"),
                                               QRegularExpression::MultilineOption);
    QString expanded = sheet;
    expanded.remove(definition);
    for (auto match = definition.globalMatch(sheet); match.hasNext();) {
        const auto found = match.next();
        expanded.replace(QRegularExpression(u'@' + found.captured(1) + QStringLiteral("\\b")),
                         found.captured(2));
    }
    return expanded;
}

void applyTheme(QApplication& application, const QString& fontFolder)
{
    loadFonts(fontFolder);
    application.setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    application.setPalette(palette());
    QFont base(QStringLiteral("Inter"));
    base.setPointSizeF(basePointSize);
    application.setFont(base);
    QFile sheet(QStringLiteral(":/style.qss"));
    if (sheet.open(QIODevice::ReadOnly))
        application.setStyleSheet(expandStyleSheet(QString::fromUtf8(sheet.readAll())));
}

} // namespace forms
