#include "platform/report/Printing.h"

#include "platform/forms/Pictures.h"
#include "platform/forms/Screen.h"
#include "platform/report/Pages.h"
#include "platform/report/Pdf.h"
#include "platform/report/Spooler.h"
#include "platform/values/Errors.h"

#include <QCoreApplication>
#include <QDir>
#include <QEventLoop>
#include <QPointer>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace report {

namespace {

constexpr int twipsPerPixel = 15;
constexpr QSize finestPicture{4096, 4096};

/// Failures to report; the first of them is on the screen.
QStringList waiting;

/// Failures are reported one after the other, each once, however many come meanwhile.
void tellFailure(const QString& text)
{
    if (waiting.contains(text))
        return;
    waiting << text;
    if (waiting.size() > 1)
        return;
    const auto tell = [] {
        while (!waiting.isEmpty()) {
            forms::showError(forms::Screen::front(), waiting.first());
            waiting.removeFirst();
        }
    };
    QMetaObject::invokeMethod(qApp, tell, Qt::QueuedConnection);
}

/// What the print system says, without the name of the program that says it: "lp: Error - " or its path.
QString withoutProgram(QString complaint)
{
    static const QRegularExpression program(u"^\\S*\\blp: (Error - )?"_s,
                                            QRegularExpression::MultilineOption);
    return complaint.remove(program);
}

PrinterMemory memory;
int direct = 0; ///< papers whose sheet is being asked for

/// What became of a paper, where that is not what was asked for; empty otherwise.
QString failure(SpoolerRun::End end, const PrintJob& job, const QString& complaint)
{
    const QString notPrinted = u"\"%1\" was not printed"_s.arg(job.title);
    const auto says = [&](QLatin1StringView what) { return complaint.contains(what, Qt::CaseInsensitive); };
    switch (end) {
    case SpoolerRun::End::Done:
        return {};
    case SpoolerRun::End::Missing:
        return notPrinted +
               u", for this computer has no print system (CUPS): in the preview, \"Save as PDF\" "
               "keeps the paper as a file."_s;
    case SpoolerRun::End::Silent:
        return u"The printer does not answer. \"%1\" may not have been printed."_s.arg(job.title);
    case SpoolerRun::End::Refused:
        break;
    }
    if (says("no default destination"_L1))
        return notPrinted +
               u", for this computer has no printer that is its default one: in the preview, "
               "\"Print\" lets you choose another, and \"Save as PDF\" keeps the paper as a file."_s;
    if (!job.where.printer.isEmpty() && says("does not exist"_L1))
        return notPrinted +
               u", for the printer \"%1\" is gone: the next time this paper goes to the default "
               "printer, unless you choose another with \"Print\" in the preview."_s.arg(job.where.printer);
    return notPrinted + (complaint.isEmpty() ? u", and the print system gives no reason."_s
                                             : u": "_s + withoutProgram(complaint).simplified());
}

void tellEnd(SpoolerRun::End end, const PrintJob& job, const QString& complaint)
{
    const QString text = failure(end, job, complaint);
    if (text.isEmpty())
        return;
    if (complaint.contains("does not exist"_L1, Qt::CaseInsensitive) &&
        recallPrinter(job.kind).printer == job.where.printer)
        keepPrinter(job.kind, {});
    tellFailure(text);
}

} // namespace

void setPrintPatience(int milliseconds) { patience = milliseconds; }

void setPrinterMemory(PrinterMemory keeper) { memory = std::move(keeper); }

Destination recallPrinter(int kind) { return memory.recall ? memory.recall(kind) : Destination(); }

void keepPrinter(int kind, const Destination& where)
{
    if (memory.keep)
        memory.keep(kind, where);
}

void finishPrinting()
{
    QEventLoop loop;
    while (SpoolerRun::anyTakesPaper() || direct > 0 || !waiting.isEmpty())
        loop.processEvents(QEventLoop::WaitForMoreEvents);
}

void print(const PrintJob& job)
{
    QStringList arguments{u"-t"_s, job.title, u"-n"_s, QString::number(job.copies)};
    if (!job.where.printer.isEmpty())
        arguments << u"-d"_s << job.where.printer;
    for (const QString& option : placing(job.where.medium, job.paper))
        arguments << u"-o"_s << option;
    PrintJob sent = job;
    sent.pdf.clear();
    new SpoolerRun(u"lp"_s, arguments, job.pdf,
                   [sent](SpoolerRun::End end, const QByteArray&, const QString& complaint) {
                       tellEnd(end, sent, complaint);
                   });
}

void printDirect(const Report& report)
{
    PrintJob job{.pdf = pdf(Pages(report), report.Title),
                 .title = report.Title,
                 .kind = report.Kind,
                 .paper = report.PageSize,
                 .where = recallPrinter(report.Kind)};
    ++direct;
    const QString printer = job.where.printer;
    askMedia(qApp, printer, [job = std::move(job)](const std::vector<Medium>& media) mutable {
        --direct;
        const int chosen = chooseMedium(media, job.where.medium);
        job.where.medium = chosen < 0 ? QString() : media[size_t(chosen)].name;
        forms::guarded(forms::Screen::front(), [&job] { print(job); });
    });
}

void printPicture(const QString& path, int left, int top)
{
    const QImage picture = forms::loadPicture(path, finestPicture).toImage();
    if (picture.isNull())
        throw OperatorError(QDir::toNativeSeparators(path) +
                            u"\n\nThis file holds no picture that can be printed."_s);
    Report page(path.section(u'/', -1));
    page.LeftMargin = page.TopMargin = page.RightMargin = page.BottomMargin = 0;
    const QSize room(page.pageWidth() - 2 * left, page.pageHeight() - 2 * top);
    QSize size = picture.size() * twipsPerPixel;
    if (size.boundedTo(room) != size)
        size.scale(room, Qt::KeepAspectRatio);
    Image& image =
        page.addSection(u"Picture"_s, Band::ReportHead, top + size.height()).addImage(u"Picture"_s);
    image.Picture = picture;
    image.place(left, top, size.width(), size.height());
    printDirect(page);
}

void askPrinters(QObject* context, std::function<void(const QStringList&)> answer)
{
    const QPointer<QObject> asking = context;
    new SpoolerRun(u"lpstat"_s, {u"-e"_s}, {},
                   [asking, answer](SpoolerRun::End end, const QByteArray& output, const QString&) {
                       if (!asking)
                           return;
                       const QString names = QString::fromLocal8Bit(output);
                       answer(end == SpoolerRun::End::Done ? names.split(u'\n', Qt::SkipEmptyParts)
                                                           : QStringList());
                   });
}

} // namespace report
