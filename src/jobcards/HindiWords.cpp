#include "jobcards/HindiWords.h"

#include <QFile>
#include <QHash>

using namespace Qt::StringLiterals;

namespace {

QHash<QString, QString> readWords()
{
    QHash<QString, QString> words;
    QFile file(u":/hindi/words.txt"_s);
    if (!file.open(QIODevice::ReadOnly))
        return words;
    for (const QString& line : QString::fromUtf8(file.readAll()).split(u'\n')) {
        const QStringList sides = line.split(u" = "_s);
        if (sides.size() == 2 && !line.startsWith(u'#'))
            words.insert(sides[0].toCaseFolded(), sides[1]);
    }
    return words;
}

} // namespace

QString hindiWord(const QString& word)
{
    static const QHash<QString, QString> words = readWords();
    return words.value(word.simplified().toCaseFolded(), word);
}

QString hindiLines(const QString& text)
{
    QStringList lines = text.split(u'\n');
    for (QString& line : lines)
        line = hindiWord(line.trimmed());
    return lines.join(u"\r\n"_s);
}
