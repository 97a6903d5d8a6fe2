#include "jobcards/HindiWords.h"

#include <QFile>
#include <QHash>

using namespace Qt::StringLiterals;

namespace {

/// The words of a section of the list; those above the first section in one without a name.
using Words = QHash<QString, QString>;

QHash<QString, Words> readSections()
{
    QHash<QString, Words> sections;
    QFile file(u":/hindi/words.txt"_s);
    if (!file.open(QIODevice::ReadOnly))
        return sections;
    QString section;
    for (const QString& line : QString::fromUtf8(file.readAll()).split(u'\n')) {
        if (line.startsWith(u'[') && line.endsWith(u']'))
            section = line.mid(1, line.size() - 2).toCaseFolded();
        const QStringList sides = line.split(u" = "_s);
        if (sides.size() == 2 && !line.startsWith(u'#'))
            sections[section].insert(sides[0].toCaseFolded(), sides[1]);
    }
    return sections;
}

/// The Hindi from the section; a null text when it has none.
QString lookUp(const QString& word, const QString& section)
{
    static const QHash<QString, Words> sections = readSections();
    return sections.value(section.simplified().toCaseFolded()).value(word.simplified().toCaseFolded());
}

template <typename Translate>
QString eachLine(const QString& text, Translate translate)
{
    QStringList lines = text.split(u'\n');
    for (QString& line : lines)
        line = translate(line.trimmed());
    return lines.join(u"\r\n"_s);
}

} // namespace

QString hindiWord(const QString& word)
{
    const QString hindi = lookUp(word, {});
    return hindi.isNull() ? word : hindi;
}

QString hindiMeasurements(const QString& names, const QString& garment)
{
    return eachLine(names, [&garment](const QString& name) {
        const QString hindi = lookUp(name, garment);
        return hindi.isNull() ? hindiWord(name) : hindi;
    });
}

QString hindiValues(const QString& values)
{
    return eachLine(values, [](const QString& value) {
        const QString hindi = lookUp(value, u"Values"_s);
        return hindi.isNull() ? value : hindi;
    });
}
