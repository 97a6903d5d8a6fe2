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

void tellEnd(SpoolerRun::End end, const QString& title, const QString& complaint)
{
    switch (end) {
    case SpoolerRun::End::Done:
        return;
    case SpoolerRun::End::Missing:
        tellFailure(u"\"%1\" was not printed: this computer has no print system (the program "
                    "\"lp\" is missing)."_s.arg(title));
        return;
    case SpoolerRun::End::Refused:
        if (complaint.contains("no default destination"_L1, Qt::CaseInsensitive)) {
            tellFailure(
                u"\"%1\" was not printed: this computer has no printer, or none of its printers is the "
                "default one.\n\nSet up a printer in the computer's settings and make it the default "
                "one. In the preview, \"Print\" lets you choose among the printers and \"Save as PDF\" "
                "keeps the paper as a file."_s.arg(title));
            return;
        }
        tellFailure(u"\"%1\" was not printed.\n\n%2"_s.arg(
            title, complaint.isEmpty() ? u"The print system gives no reason."_s : withoutProgram(complaint)));
        return;
    case SpoolerRun::End::Silent:
        tellFailure(u"The printer does not answer. \"%1\" may not have been printed."_s.arg(title));
        return;
    }
}

} // namespace

void setPrintPatience(int milliseconds) { patience = milliseconds; }

void finishPrinting()
{
    QEventLoop loop;
    while (SpoolerRun::anyTakesPaper() || !waiting.isEmpty())
        loop.processEvents(QEventLoop::WaitForMoreEvents);
}

void print(const PrintJob& job)
{
    QStringList arguments{u"-t"_s, job.title, u"-n"_s, QString::number(job.copies)};
    if (!job.printer.isEmpty())
        arguments << u"-d"_s << job.printer;
    new SpoolerRun(u"lp"_s, arguments, job.pdf,
                   [title = job.title](SpoolerRun::End end, const QByteArray&, const QString& complaint) {
                       tellEnd(end, title, complaint);
                   });
}

void printDirect(const Report& report)
{
    print({.pdf = pdf(Pages(report), report.Title), .title = report.Title});
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
