#pragma once

#include "platform/report/Media.h"

#include <QByteArray>
#include <QString>
#include <functional>

namespace report {

class Report;

/// What goes to a printer: a PDF file and what the operator chose for it.
struct PrintJob
{
    QByteArray pdf;
    QString title;
    int kind = 0;      ///< Report::Kind
    QSizeF paper = {}; ///< its size, in millimetres
    Destination where = {};
    int copies = 1;
};

/// Hands paper to the print system's own program and returns at once; the printing outlives the screen that
/// asked for it. No printer, a refusal, or a print system that does not answer within some seconds is
/// reported in a plain box over the screen then in front. Success is not reported: the paper shows it.
void print(const PrintJob& job);

/// Where each kind of paper was last sent.
struct PrinterMemory
{
    std::function<Destination(int kind)> recall;
    std::function<void(int kind, const Destination& where)> keep;
};
/// Who remembers that; without it every paper goes to the default printer. A printer that the print system
/// turns out not to have is forgotten.
void setPrinterMemory(PrinterMemory memory);
Destination recallPrinter(int kind);
void keepPrinter(int kind, const Destination& where);

/// Prints a report where its kind was last sent, without asking anything.
void printDirect(const Report& report);

/// Prints the picture of a file on a page of its own, `left` and `top` twips from the page's corner: at its
/// own size (96 dots to the inch), or as large as the page allows. Throws OperatorError when the file holds
/// no picture that can be read.
void printPicture(const QString& path, int left, int top);

/// Asks the print system for the names of its printers. `answer` gets them when they come, none when it does
/// not answer; it is never called once `context` has gone.
void askPrinters(QObject* context, std::function<void(const QStringList& printers)> answer);

/// Waits until all paper has been handed over, or its failure reported. For the end of the program.
void finishPrinting();

/// How long the print system may take, in milliseconds. For tests.
void setPrintPatience(int milliseconds);

} // namespace report
