#pragma once

#include "core/store/Codes.h"

#include <QString>

/// The voucher behind a row of a book, as the row's tag holds it: number and type, "12|2". The rows of totals
/// have an empty tag.
struct VoucherTag
{
    qint32 number = 0;
    VoucherType type{};

    QString text() const;
    /// An empty text, and one that is no tag, gives the type 0, which no voucher has.
    static VoucherTag of(const QString& text);
    /// Whether the ledger still has it: its card, or its first posting.
    bool exists() const;
};
