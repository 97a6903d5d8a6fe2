#include "jobcards/Differences.h"

#include "core/store/Codes.h"
#include "core/store/DE.h"
#include "core/store/Texts.h"
#include "core/store/Voucher.h"
#include "jobcards/JobCard.h"
#include "jobcards/WageOfReturned.h"
#include "platform/values/Numbers.h"

#include <QCryptographicHash>

using namespace Qt::StringLiterals;

namespace differences {

namespace {

/// A card or voucher as one of the two shops has it.
struct State
{
    Difference known;
    QByteArray content;
};
using States = QMap<qint32, State>;

QByteArray contentOf(ado::Recordset& row)
{
    QByteArray content;
    for (int i = 0; i < row.FieldCount(); ++i)
        content += row[i].text().toUtf8() + '\0';
    return QCryptographicHash::hash(content, QCryptographicHash::Md5);
}

States cardsOf(ado::Connection& shop)
{
    States cards;
    ado::Recordset rows(shop);
    for (rows.Open(u"Select * from JOBS order by Id"_s); !rows.AtEOF(); rows.MoveNext()) {
        State& card = cards[rows["Id"].integer()];
        card.known.number = rows["Id"].integer();
        card.known.date = rows["DATE"].date();
        card.known.who = rows["ClintName"].text();
        card.known.amount = rows["AmountDue"].money();
        card.content += contentOf(rows);
    }
    for (rows.Open(u"Select * from JOBS_DETAIL order by JobID, Id"_s); !rows.AtEOF(); rows.MoveNext())
        if (const auto card = cards.find(rows["JobID"].integer()); card != cards.end())
            card->content += contentOf(rows);
    return cards;
}

States vouchersOf(ado::Connection& shop)
{
    QHash<qint32, QString> titles;
    ado::Recordset rows(shop);
    for (rows.Open(u"Select Id, Title from Accounts"_s); !rows.AtEOF(); rows.MoveNext())
        titles[rows["Id"].integer()] = rows["Title"].text();
    States vouchers;
    for (rows.Open(
             u"Select * from postings where Vtype=%1 order by VID, Id"_s.arg(qint32(VoucherType::Entry)));
         !rows.AtEOF(); rows.MoveNext()) {
        State& voucher = vouchers[rows["VID"].integer()];
        if (voucher.content.isEmpty()) {
            voucher.known.kind = rows["isPayroll"].integer() == 1 ? Kind::Payroll : Kind::Voucher;
            voucher.known.number = rows["VID"].integer();
            voucher.known.date = rows["Date"].date();
            voucher.known.who = u"%1: %2, %3"_s.arg(
                rows["particulars"].text(), titles[rows["AccID"].integer()], titles[rows["RefID"].integer()]);
            const Currency amount = rows["Amount"].money();
            voucher.known.amount = amount < Currency() ? -amount : amount;
        }
        voucher.content += contentOf(rows);
    }
    return vouchers;
}

void compare(const States& then, const States& now, std::vector<Difference>& found)
{
    const auto add = [&found](Difference difference, Change change) {
        difference.change = change;
        found.push_back(std::move(difference));
    };
    for (auto before = then.begin(); before != then.end(); ++before) {
        const auto after = now.find(before.key());
        if (after == now.end())
            add(before->known, Change::Deleted);
        else if (after->content != before->content)
            add(before->known, Change::Changed);
    }
    for (auto after = now.begin(); after != now.end(); ++after)
        if (!then.contains(after.key()))
            add(after->known, Change::Added);
}

std::vector<Row> rowsOf(ado::Connection& shop, const QString& sql)
{
    std::vector<Row> found;
    ado::Recordset rows(shop);
    for (rows.Open(sql); !rows.AtEOF(); rows.MoveNext()) {
        Row row;
        for (int i = 0; i < rows.FieldCount(); ++i)
            row[rows.FieldName(i).toLower()] = rows[i].value();
        found.push_back(std::move(row));
    }
    return found;
}

/// Takes up the rows of a table that fields of others name.
void takeNamed(ado::Connection& shop, const std::vector<Row>& rows, const QStringList& fields,
               const QString& table, QMap<qint32, Row>& named)
{
    for (const Row& row : rows)
        for (const QString& field : fields)
            if (const qint32 id = row[field].toInt(); id > 0 && !named.contains(id))
                for (Row& found : rowsOf(shop, u"Select * from %1 where Id=%2"_s.arg(table).arg(id)))
                    named[id] = std::move(found);
}

/// Adds a row with all its fields but the number that the engine gives. Returns that.
qint32 addRow(const QString& table, const Row& row, bool ownNumber = true)
{
    ado::Recordset rows(DE.connection());
    rows.Open(u"Select * from "_s + table);
    rows.AddNew();
    for (auto field = row.begin(); field != row.end(); ++field)
        if (!ownNumber || field.key() != "id"_L1)
            rows[field.key()] = field.value();
    rows.Update();
    return rows["Id"].integer();
}

/// The numbers that the shop now has for the accounts and items of then.
class Numbers
{
public:
    explicit Numbers(const Kept& kept)
        : m_kept(kept)
    {
    }

    qint32 account(const QVariant& then)
    {
        return number(then, u"Accounts"_s, u"title"_s, m_kept.accounts, m_accounts);
    }
    qint32 item(const QVariant& then) { return number(then, u"ITEMS"_s, u"name"_s, m_kept.items, m_items); }

private:
    static qint32 number(const QVariant& then, const QString& table, const QString& nameField,
                         const QMap<qint32, Row>& named, QMap<qint32, qint32>& known)
    {
        const qint32 id = then.toInt();
        if (id == 0 || known.contains(id))
            return known.value(id);
        const auto row = named.find(id);
        if (row == named.end())
            throw OperatorError(u"An account or item that it names was missing even then. Please check the "
                                "shop."_s);
        QString sql =
            u"Select Id from %1 where %2='%3'"_s.arg(table, nameField, sqlText((*row)[nameField].toString()));
        if (row->contains(u"type"_s))
            sql += u" and Type=%1"_s.arg((*row)[u"type"_s].toInt());
        ado::Recordset there(DE.connection());
        there.Open(sql);
        const qint32 now = there.AtEOF() ? addRow(table, *row) : there["Id"].integer();
        there.Close();
        values::toInt16(now, u"Number"_s);
        return known[id] = now;
    }

    const Kept& m_kept;
    QMap<qint32, qint32> m_accounts;
    QMap<qint32, qint32> m_items;
};

/// Returns whether it counts as paid in another way than then.
bool addLine(Row line, const Kept& kept, qint32 card, Numbers& numbers)
{
    line[u"jobid"_s] = card;
    line[u"clintid"_s] = numbers.account(line[u"clintid"_s]);
    line[u"itemid"_s] = numbers.item(line[u"itemid"_s]);
    line[u"workerid"_s] = numbers.account(line[u"workerid"_s]);
    const Payment payment = paymentOf(line, kept);
    const bool paidSince = payment.paid && (line[u"markaspaid"_s].toInt() == 0 ||
                                            line[u"payrollid"_s].toInt() != payment.payroll);
    line[u"markaspaid"_s] = int(payment.paid);
    line[u"payrollid"_s] = payment.payroll;
    addRow(u"JOBS_DETAIL"_s, line);
    return paidSince;
}

void addPosting(Row posting, const Kept& kept, qint32 number, Numbers& numbers)
{
    posting[u"vid"_s] = number;
    posting[u"accid"_s] = numbers.account(posting[u"accid"_s]);
    posting[u"refid"_s] = numbers.account(posting[u"refid"_s]);
    const QString namesCard = u"Job Card # :"_s;
    if (kept.kind == Kind::Card &&
        posting[u"remark"_s].toString() == namesCard + QString::number(kept.number))
        posting[u"remark"_s] = QString(namesCard + QString::number(number));
    addRow(u"postings"_s, posting);
}

} // namespace

std::vector<Difference> between(ado::Connection& then, ado::Connection& now)
{
    std::vector<Difference> found;
    compare(cardsOf(then), cardsOf(now), found);
    compare(vouchersOf(then), vouchersOf(now), found);
    std::stable_sort(found.begin(), found.end(), [](const Difference& one, const Difference& other) {
        return one.change < other.change;
    });
    return found;
}

Kept read(ado::Connection& then, const Difference& difference)
{
    Kept kept;
    kept.kind = difference.kind;
    kept.change = difference.change;
    kept.number = difference.number;
    const bool card = difference.kind == Kind::Card;
    if (card) {
        kept.cards = rowsOf(then, u"Select * from JOBS where Id=%1"_s.arg(kept.number));
        kept.lines = rowsOf(then, u"Select * from JOBS_DETAIL where JobID=%1 order by Id"_s.arg(kept.number));
    }
    kept.postings =
        rowsOf(then, u"Select * from postings where VID=%1 and Vtype=%2 order by Id"_s.arg(kept.number)
                         .arg(qint32(card ? VoucherType::Job : VoucherType::Entry)));
    takeNamed(then, kept.cards, {u"clintid"_s, u"cashaccid"_s}, u"Accounts"_s, kept.accounts);
    takeNamed(then, kept.lines, {u"clintid"_s, u"workerid"_s}, u"Accounts"_s, kept.accounts);
    takeNamed(then, kept.postings, {u"accid"_s, u"refid"_s}, u"Accounts"_s, kept.accounts);
    takeNamed(then, kept.lines, {u"itemid"_s}, u"ITEMS"_s, kept.items);
    for (const Row& payroll : rowsOf(then, u"Select VID from postings where Vtype=2 and isPayroll=1"_s))
        kept.payrolls << payroll[u"vid"_s].toInt();
    return kept;
}

Returned bringBack(const Kept& kept)
{
    if (kept.kind == Kind::Payroll)
        throw OperatorError(
            u"A payroll does not come back: its lines are unpaid again, and Create Payroll in "
            "the Wages Register takes them."_s);
    if (kept.postings.empty() && kept.cards.empty())
        throw OperatorError(u"It was not there then."_s);
    Returned returned;
    DE.connection().writeBatch([&] {
        returned = {};
        qint32& number = returned.number;
        Numbers numbers(kept);
        number = kept.kind == Kind::Card ? JobCard::GetNewNum() : Voucher::NextEntryNumber();
        for (Row card : kept.cards) {
            card[u"id"_s] = number;
            card[u"clintid"_s] = numbers.account(card[u"clintid"_s]);
            card[u"cashaccid"_s] = numbers.account(card[u"cashaccid"_s]);
            addRow(u"JOBS"_s, card, false);
        }
        for (const Row& line : kept.lines)
            returned.paidSince += int(addLine(line, kept, number, numbers));
        for (const Row& posting : kept.postings)
            addPosting(posting, kept, number, numbers);
    });
    return returned;
}

} // namespace differences
