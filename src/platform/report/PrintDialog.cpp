#include "platform/report/PrintDialog.h"

#include "platform/report/Pages.h"
#include "platform/report/Pdf.h"
#include "platform/report/Printing.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>

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
    , txtCopies(numberBox(QStringLiteral("txtCopies"), mostCopies, 1))
    , txtFrom(numberBox(QStringLiteral("txtFrom"), pages.count(), 1))
    , txtTo(numberBox(QStringLiteral("txtTo"), pages.count(), pages.count()))
{
    setObjectName(QStringLiteral("PrintDialog"));
    setWindowTitle(QStringLiteral("Print"));
    cmbPrinter->setObjectName(QStringLiteral("cmbPrinter"));
    cmbPrinter->addItem(QStringLiteral("Default printer"), QString());
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
    add(0, QStringLiteral("P&rinter :"), cmbPrinter);
    add(1, QStringLiteral("&Copies :"), txtCopies);
    add(2, QStringLiteral("&From page :"), txtFrom);
    add(3, QStringLiteral("&To page :"), txtTo);

    auto* printing = new QPushButton(QStringLiteral("&Print"));
    printing->setObjectName(QStringLiteral("cmdPrint"));
    printing->setProperty("primary", true);
    auto* cancel = new QPushButton(QStringLiteral("Cancel"));
    cancel->setObjectName(QStringLiteral("cmdCancel"));
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
