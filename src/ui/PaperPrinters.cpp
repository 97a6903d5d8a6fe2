#include "ui/PaperPrinters.h"

#include "core/store/Settings.h"
#include "platform/report/Printing.h"

using namespace Qt::StringLiterals;

namespace {

const Setting& settingOf(int kind)
{
    // In the order of PaperKind.
    static constexpr Setting all[] = {
        settings::ListPrinter,      settings::CardPrinter,  settings::SlipPrinter,   settings::LabelPrinter,
        settings::StatementPrinter, settings::WagesPrinter, settings::ReceiptPrinter};
    return all[size_t(kind) < std::size(all) ? size_t(kind) : 0];
}

/// Printers' names hold no blank. A default printer is an empty name.
report::Destination recall(int kind)
{
    const QString text = GetSetting(settingOf(kind));
    return {.printer = text.section(u' ', 0, 0), .medium = text.section(u' ', 1)};
}

void keep(int kind, const report::Destination& where)
{
    const QString text = (where.printer + u' ' + where.medium);
    if (where != recall(kind))
        RememberSetting(settingOf(kind), where == report::Destination() ? QString() : text);
}

} // namespace

void rememberPrinters() { report::setPrinterMemory({.recall = recall, .keep = keep}); }
