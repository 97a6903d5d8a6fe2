#include "accounts/VoucherTag.h"

#include "core/store/Rows.h"
#include "platform/values/Literals.h"

using namespace Qt::StringLiterals;

QString VoucherTag::text() const { return u"%1|%2"_s.arg(number).arg(qint32(type)); }

VoucherTag VoucherTag::of(const QString& text)
{
    const QStringList parts = text.split(u'|');
    return {parts.value(0).toInt(), VoucherType(parts.value(1).toInt())};
}

bool VoucherTag::exists() const
{
    return any(type == VoucherType::Job
                   ? u"Select id from Jobs where id=%1"_s.arg(number)
                   : u"Select id from Postings where vid=%1 and vtype=%2 and sr=1"_s.arg(number).arg(
                         qint32(VoucherType::Entry)));
}
