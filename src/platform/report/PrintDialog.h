#pragma once

#include "platform/forms/Screen.h"
#include "platform/report/Media.h"

class QComboBox;
class QLabel;
class QSpinBox;

namespace report {

class Pages;
class Report;

/// Asks on which printer and sheet, how often and from which to which page, and prints. It opens at once,
/// with the printer and the sheet that the paper was last sent to: what else there is comes in when the
/// print system gives it.
class PrintDialog : public forms::Screen
{
    Q_OBJECT
public:
    PrintDialog(const Report& report, const Pages& pages, QWidget* parent = nullptr);

protected:
    void Form_Load() override;
    void Form_KeyPress(int& key) override;

private:
    void takePrinters(const QStringList& printers);
    void askForMedia();
    void takeMedia(const std::vector<Medium>& media);
    void addMedium(const Medium& medium);
    void note(const QString& text);
    void print();

    const Report& m_report;
    const Pages& m_pages;
    const Destination m_remembered;
    int m_asked = 0; ///< how often sheets were asked for: only the last answer counts
    QComboBox* cmbPrinter;
    QComboBox* cmbMedium;
    QSpinBox* txtCopies;
    QSpinBox* txtFrom;
    QSpinBox* txtTo;
    QLabel* lblNote;
};

} // namespace report
