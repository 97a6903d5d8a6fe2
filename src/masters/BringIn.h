#pragma once

#include "masters/Records.h"
#include "platform/values/DelimitedText.h"
#include "platform/values/Progress.h"

#include <QString>
#include <QStringList>
#include <array>
#include <variant>
#include <vector>

/// Clients and items from a file: a spreadsheet's table or a telephone's contacts. What is read is sorted
/// into what is new, what the shop has, and what cannot be taken; the new ones come in together or not at
/// all.
namespace bringin {

enum class Kind { Clients, Items };

/// What a column can be. The first field of either kind is the name.
inline constexpr size_t fieldCount = 6;
enum ClientField : size_t { Name, Mobile, Address, City, State, Birth };
enum ItemField : size_t { ItemName, Fee, Wage, Measurements, Capacity, Pending };
/// The fields' names for the operator.
const std::array<QString, fieldCount>& fieldNames(Kind kind);

/// Which column of the file each field is taken from; -1: none.
using Columns = std::array<int, fieldCount>;

/// A file as it was read.
struct Source
{
    QString path;
    QString form; ///< "separated by commas", "contacts of a telephone"
    std::vector<values::TextRow> rows;
    int columnCount = 0; ///< of the widest row
};

/// Throws OperatorError for what cannot be read; contacts are no items.
Source readSource(Kind kind, const QString& path);

/// Adds a column of whole names to a table that has them in parts, under the titles "First Name" and "Last
/// Name", and nowhere whole. readSource() does so.
void addWholeNames(Source& source);

/// Whether the first row names the columns.
bool hasTitles(Kind kind, const Source& source);
/// The columns by their titles, or by what stands in them.
Columns guessColumns(Kind kind, const Source& source, bool withTitles);
/// How the columns are called: by title or number, with what stands in the first row.
QStringList columnNames(const Source& source, bool withTitles);

enum class Fate { New, There, Refused };

/// A row of the file, and what becomes of it.
struct Line
{
    int row = 0; ///< as the spreadsheet numbers it
    Fate fate = Fate::New;
    QString why; ///< it is there already, or cannot be taken
    QString title;
    std::variant<ClientFields, ItemFields> record;
    std::array<QString, fieldCount> texts; ///< what is taken, as it is shown
};

struct Plan
{
    Kind kind = Kind::Clients;
    std::vector<Line> lines;

    int count(Fate fate) const;
};

/// Sorts the rows of a file by what the shop has. A name is taken once among all accounts, or all items,
/// without regard to case; a client is known by the digits of the mobile number too.
Plan plan(Kind kind, const Source& source, bool withTitles, const Columns& columns);

/// Takes all new ones as the screens of their records do, in one commit, and returns how many. Works on a
/// connection of its own, so that it can run beside a living screen. Throws Cancelled, OperatorError when the
/// numbers of the shop do not reach, ado::DatabaseError; nothing has come in then.
int take(const Plan& plan, const Progress& progress);

} // namespace bringin
