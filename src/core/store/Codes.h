#pragma once

#include <QtGlobal>

/// What the numbers in the tables' columns mean.

/// `Accounts.Type`.
enum class AccountType : qint32 { Client = 0, Worker = 1, Ledger = 2 };

/// `Accounts.Nature` of a ledger account.
enum class AccountNature : qint32 { Income = 0, Expenses = 1 };

/// `Jobs.appeared`: the client's trial.
enum class TrialState : qint32 { NotAppeared = 0, Appeared = 1, Canceled = 2 };

/// `Jobs_Detail.DoneByWorker`: how far a garment is.
enum class LineState : qint32 { Uncompleted = 0, Completed = 1, Delivered = 2, Alteration = 3, Canceled = 4 };

/// Whether a garment is still in the shop: neither handed over nor given up.
constexpr bool isInShop(LineState state)
{
    return state != LineState::Delivered && state != LineState::Canceled;
}

/// `Jobs_Detail.CuttingStatus`.
enum class CuttingMark : qint32 { NotDone = 0, Done = 1 };

/// `Postings.vType`: the voucher of a job card, whose `VID` is the card's number; or an entry of the books, a
/// payroll among them.
enum class VoucherType : qint32 { Job = 1, Entry = 2 };

/// What an edit screen does with its record.
enum class RecordMode { New, Stored };
