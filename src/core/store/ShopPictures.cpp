#include "core/store/ShopPictures.h"

#include "core/store/Session.h"

#include <QFileInfo>

/// A backslash ends a folder in the links of other systems, but may be part of a client's name in our own.
QString shopPicture(const QString& link)
{
    for (const auto& isBreak : {u"/", u"/\\"}) {
        qsizetype start = link.size();
        while (start > 0 && !QStringView(isBreak).contains(link[start - 1]))
            --start;
        const QString file = session.imagesFolder() + u'/' + link.mid(start);
        if (start < link.size() && QFileInfo(file).isFile())
            return file;
    }
    return {};
}

QString shownPicture(const QString& link)
{
    const QString own = shopPicture(link);
    return own.isEmpty() && QFileInfo(link).isFile() ? link : own;
}
