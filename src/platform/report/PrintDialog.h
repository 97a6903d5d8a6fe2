#pragma once

#include "platform/forms/Screen.h"

class QComboBox;
class QSpinBox;

namespace report {

class Pages;

/// Asks on which printer, how often and from which to which page, and prints. It opens at once: the names of
/// the printers come in when the print system gives them.
class PrintDialog : public forms::Screen
{
    Q_OBJECT
public:
    PrintDialog(const QString& title, const Pages& pages, QWidget* parent = nullptr);

protected:
    void Form_Load() override;
    void Form_KeyPress(int& key) override;

private:
    void print();

    const QString m_title;
    const Pages& m_pages;
    QComboBox* cmbPrinter;
    QSpinBox* txtCopies;
    QSpinBox* txtFrom;
    QSpinBox* txtTo;
};

} // namespace report
