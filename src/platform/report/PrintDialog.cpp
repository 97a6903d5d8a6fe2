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

PrintDialog::PrintDialog(const QString& title, const Pages& pages, QWidget* parent)
    : Screen(parent)
    , m_title(title)
    , m_pages(pages)
    , cmbPrinter(new QComboBox)
    , txtCopies(numberBox(u"txtCopies"_s, mostCopies, 1))
    , txtFrom(numberBox(u"txtFrom"_s, pages.count(), 1))
    , txtTo(numberBox(u"txtTo"_s, pages.count(), pages.count()))
{
    setObjectName(u"PrintDialog"_s);
    setWindowTitle(u"Print"_s);
    cmbPrinter->setObjectName(u"cmbPrinter"_s);
    cmbPrinter->addItem(u"Default printer"_s, QString());
    cmbPrinter->setMinimumWidth(280);
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(24, 24, 24, 24);
    grid->setHorizontalSpacing(12);
    grid->setVerticalSpacing(12);
    const auto add = [grid](int row, const QString& caption, QWidget* field) {
        auto* label = new QLabel(caption);
        label->setBuddy(field);
        grid->addWidget(label, row, 0);
        grid->addWidget(field, row, 1);
    };
    add(0, u"P&rinter :"_s, cmbPrinter);
    add(1, u"&Copies :"_s, txtCopies);
    add(2, u"&From page :"_s, txtFrom);
    add(3, u"&To page :"_s, txtTo);

    auto* printing = new QPushButton(u"&Print"_s);
    printing->setObjectName(u"cmdPrint"_s);
    printing->setProperty("primary", true);
    auto* cancel = new QPushButton(u"Cancel"_s);
    cancel->setObjectName(u"cmdCancel"_s);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(printing);
    buttons->addWidget(cancel);
    grid->addLayout(buttons, 4, 0, 1, 2);
    on(printing, &QPushButton::clicked, &PrintDialog::print);
    on(cancel, &QPushButton::clicked, &PrintDialog::unload);
}

void PrintDialog::Form_Load()
{
    askPrinters(this, [this](const QStringList& printers) {
        for (const QString& printer : printers)
            cmbPrinter->addItem(printer, printer);
    });
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
    report::print({.pdf = pdf(m_pages, m_title, from - 1, to - 1),
                   .title = m_title,
                   .printer = cmbPrinter->currentData().toString(),
                   .copies = txtCopies->value()});
    unload();
}

} // namespace report
