#include "platform/report/PrintDialog.h"

#include "platform/report/Pages.h"
#include "platform/report/Pdf.h"
#include "platform/report/Printing.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>

using namespace Qt::StringLiterals;

namespace report {

namespace {

constexpr int mostCopies = 99;
constexpr int fieldWidth = 280;

QSpinBox* numberBox(const QString& name, int largest, int value)
{
    auto* box = new QSpinBox;
    box->setObjectName(name);
    box->setButtonSymbols(QSpinBox::NoButtons);
    box->setRange(1, largest);
    box->setValue(value);
    return box;
}

} // namespace

PrintDialog::PrintDialog(const Report& report, const Pages& pages, QWidget* parent)
    : Screen(parent)
    , m_report(report)
    , m_pages(pages)
    , m_remembered(recallPrinter(report.Kind))
    , cmbPrinter(new QComboBox)
    , cmbMedium(new QComboBox)
    , txtCopies(numberBox(u"txtCopies"_s, mostCopies, 1))
    , txtFrom(numberBox(u"txtFrom"_s, pages.count(), 1))
    , txtTo(numberBox(u"txtTo"_s, pages.count(), pages.count()))
    , lblNote(new QLabel)
{
    setObjectName(u"PrintDialog"_s);
    setWindowTitle(u"Print"_s);
    cmbPrinter->setObjectName(u"cmbPrinter"_s);
    cmbPrinter->setMinimumWidth(fieldWidth);
    cmbMedium->setObjectName(u"cmbMedium"_s);
    lblNote->setObjectName(u"lblNote"_s);
    lblNote->setWordWrap(true);
    lblNote->hide();
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(24, 24, 24, 24);
    grid->setHorizontalSpacing(12);
    grid->setVerticalSpacing(12);
    const auto add = [grid](const QString& caption, QWidget* field) {
        const int row = grid->rowCount();
        auto* label = new QLabel(caption);
        label->setBuddy(field);
        grid->addWidget(label, row, 0);
        grid->addWidget(field, row, 1);
    };
    add(u"P&rinter :"_s, cmbPrinter);
    add(u"&Sheet :"_s, cmbMedium);
    add(u"&Copies :"_s, txtCopies);
    add(u"&From page :"_s, txtFrom);
    add(u"&To page :"_s, txtTo);
    grid->addWidget(lblNote, grid->rowCount(), 0, 1, 2);

    auto* printing = new QPushButton(u"&Print"_s);
    printing->setObjectName(u"cmdPrint"_s);
    printing->setProperty("primary", true);
    auto* cancel = new QPushButton(u"Cancel"_s);
    cancel->setObjectName(u"cmdCancel"_s);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(printing);
    buttons->addWidget(cancel);
    grid->addLayout(buttons, grid->rowCount(), 0, 1, 2);
    on(printing, &QPushButton::clicked, &PrintDialog::print);
    on(cancel, &QPushButton::clicked, &PrintDialog::unload);
}

/// Enter prints at once, before anything has come in: what is remembered stands there already.
void PrintDialog::Form_Load()
{
    cmbPrinter->addItem(u"Default printer"_s, QString());
    if (!m_remembered.printer.isEmpty())
        cmbPrinter->addItem(m_remembered.printer, m_remembered.printer);
    cmbPrinter->setCurrentIndex(cmbPrinter->count() - 1);
    askForMedia();
    on(cmbPrinter, &QComboBox::currentIndexChanged, &PrintDialog::askForMedia);
    askPrinters(this, [this](const QStringList& printers) { takePrinters(printers); });
}

void PrintDialog::takePrinters(const QStringList& printers)
{
    for (const QString& printer : printers)
        if (cmbPrinter->findData(printer) < 0)
            cmbPrinter->addItem(printer, printer);
    if (printers.isEmpty())
        return note(
            u"This computer has no printer: \"Save as PDF\" in the preview keeps the paper as a file."_s);
    if (m_remembered.printer.isEmpty() || printers.contains(m_remembered.printer))
        return;
    cmbPrinter->setCurrentIndex(0);
    cmbPrinter->removeItem(cmbPrinter->findData(m_remembered.printer));
    note(u"The printer \"%1\", where this paper went the last time, is gone."_s.arg(m_remembered.printer));
}

/// The sheets belong to the printer that is chosen.
void PrintDialog::askForMedia()
{
    const QString printer = cmbPrinter->currentData().toString();
    lblNote->hide();
    cmbMedium->clear();
    addMedium({});
    if (printer == m_remembered.printer && !m_remembered.medium.isEmpty())
        addMedium({.name = m_remembered.medium, .size = mediumSize(m_remembered.medium)});
    cmbMedium->setCurrentIndex(cmbMedium->count() - 1);
    askMedia(this, printer, [this, asked = ++m_asked](const std::vector<Medium>& media) {
        if (asked == m_asked)
            takeMedia(media);
    });
}

void PrintDialog::takeMedia(const std::vector<Medium>& media)
{
    const QString before = cmbMedium->currentData().toString();
    const int chosen = chooseMedium(media, before);
    if (media.empty())
        return; // the printer does not tell: what stands there stays
    cmbMedium->clear();
    if (chosen < 0)
        addMedium({});
    for (const Medium& medium : media)
        addMedium(medium);
    cmbMedium->setCurrentIndex(std::max(chosen, 0));
    if (!before.isEmpty() && cmbMedium->currentData() != before)
        note(u"The printer no longer has the sheet \"%1\", on which this paper was printed the last time."_s
                 .arg(before));
}

void PrintDialog::addMedium(const Medium& medium)
{
    cmbMedium->addItem(medium.name.isEmpty() ? u"As the printer is set"_s : mediumTitle(medium), medium.name);
}

void PrintDialog::note(const QString& text)
{
    lblNote->setText(text);
    lblNote->show();
    adjustSize();
}

/// Enter prints.
void PrintDialog::Form_KeyPress(int& key)
{
    if (key != forms::key::Enter)
        return Screen::Form_KeyPress(key);
    key = 0;
    print();
}

void PrintDialog::print()
{
    const int from = std::min(txtFrom->value(), txtTo->value());
    const int to = std::max(txtFrom->value(), txtTo->value());
    const Destination where{.printer = cmbPrinter->currentData().toString(),
                            .medium = cmbMedium->currentData().toString()};
    keepPrinter(m_report.Kind, where);
    report::print({.pdf = pdf(m_pages, m_report.Title, from - 1, to - 1),
                   .title = m_report.Title,
                   .kind = m_report.Kind,
                   .paper = m_report.PageSize,
                   .where = where,
                   .copies = txtCopies->value()});
    unload();
}

} // namespace report
