#pragma once

#include <QSizeF>
#include <QStringList>
#include <functional>
#include <vector>

namespace report {

/// A sheet that a printer can print on.
struct Medium
{
    QString name;          ///< as the print system calls it
    QSizeF size;           ///< millimetres; empty where the name does not tell it
    bool standard = false; ///< what the printer takes unless told otherwise

    bool operator==(const Medium&) const = default;
};

/// Where paper goes. Empty: the default printer, the sheet that the printer takes by itself.
struct Destination
{
    QString printer = {};
    QString medium = {};

    bool operator==(const Destination&) const = default;
};

/// The sheets in a printer's list of options, as `lpoptions -l` writes it; none in any other text.
std::vector<Medium> readMedia(const QString& options);

/// The size that a sheet's name tells, in millimetres: "A5", "w283h170" (points), "iso_a5_148x210mm",
/// "4x6" (inches). Empty for any other name.
QSizeF mediumSize(const QString& name);

/// The one of the sheets that is meant: the remembered one while the printer has it, else the printer's own;
/// -1 where there is none.
int chooseMedium(const std::vector<Medium>& media, const QString& remembered);

/// What an operator calls a sheet: "A5 (148 x 210 mm)".
QString mediumTitle(const Medium& medium);

/// The print system's options that lay a paper of a size (millimetres) on a sheet. Paper of the sheet's shape
/// and up to one size smaller fills it; what has room on it upright is not turned and keeps its size; what
/// has room only when it is turned is turned; all else is made smaller.
QStringList placing(const QString& medium, QSizeF paper);

/// Asks the print system for the sheets of a printer (empty: of the default one). `answer` gets them when
/// they come, none when it does not answer or has no such printer; it is never called once `context` has
/// gone.
void askMedia(QObject* context, const QString& printer,
              std::function<void(const std::vector<Medium>& media)> answer);

} // namespace report
