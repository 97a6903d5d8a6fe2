#include "platform/values/Notice.h"

#include <QDebug>

namespace values {

namespace {

std::function<void(const QString&)>& handler()
{
    static std::function<void(const QString&)> current;
    return current;
}

} // namespace

void setCriticalNotice(std::function<void(const QString& text)> notice) { handler() = std::move(notice); }

void criticalNotice(const QString& text)
{
    if (handler())
        handler()(text);
    else
        qWarning("%s", qUtf8Printable(text));
}

} // namespace values
