#include "platform/report/Printing.h"

#include "platform/forms/Pictures.h"
#include "platform/forms/Screen.h"
#include "platform/report/Pages.h"
#include "platform/report/Pdf.h"
#include "platform/values/Errors.h"

#include <QCoreApplication>
#include <QDir>
#include <QProcess>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace report {

namespace {

constexpr int twipsPerPixel = 15;
constexpr QSize finestPicture{4096, 4096};
constexpr int lastWait = 500; ///< for a program that has been told to stop

int patience = 10'000;

/// Failures are told one after the other, each once, however many come meanwhile.
void tellFailure(const QString& text)
{
    static QStringList waiting;
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

/// One run of a program of the print system, under a time limit. It deletes itself when the program has
/// ended. A program that is being handed paper when the program closes is given the rest of its time.
class SpoolerRun : public QObject
{
public:
    enum class End { Done, Missing, Refused, Silent };
    using Ended = std::function<void(End end, const QByteArray& output, const QString& complaint)>;

    SpoolerRun(const QString& program, const QStringList& arguments, const QByteArray& input, Ended ended)
        : QObject(qApp)
        , m_takesPaper(!input.isEmpty())
        , m_ended(std::move(ended))
    {
        connect(&m_process, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
            if (error == QProcess::FailedToStart) {
                tell(End::Missing);
                deleteLater();
            }
        });
        connect(&m_process, &QProcess::finished, this, [this](int code, QProcess::ExitStatus status) {
            tell(status == QProcess::NormalExit && code == 0 ? End::Done : End::Refused);
            deleteLater();
        });
        connect(&m_limit, &QTimer::timeout, this, [this] {
            tell(End::Silent);
            m_process.kill();
        });
        m_limit.setSingleShot(true);
        m_limit.start(patience);
        m_process.start(program, arguments);
        m_process.write(input);
        m_process.closeWriteChannel();
    }
    ~SpoolerRun() override
    {
        m_process.disconnect();
        if (m_process.state() == QProcess::NotRunning)
            return;
        m_process.waitForFinished(m_takesPaper ? std::max(0, m_limit.remainingTime()) : 0);
        m_process.kill();
        m_process.waitForFinished(lastWait);
    }

private:
    /// Once: what comes behind the time limit is the end of a program that was stopped.
    void tell(End how)
    {
        if (!m_ended)
            return;
        m_limit.stop();
        const QByteArray output = m_process.readAllStandardOutput();
        const QString complaint = QString::fromLocal8Bit(m_process.readAllStandardError()).trimmed();
        std::exchange(m_ended, nullptr)(how, output, complaint);
    }

    QProcess m_process;
    QTimer m_limit;
    const bool m_takesPaper;
    Ended m_ended;
};

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
        tellFailure(u"\"%1\" was not printed.\n\n%2"_s.arg(title, complaint));
        return;
    case SpoolerRun::End::Silent:
        tellFailure(u"The printer does not answer. \"%1\" may not have been printed."_s.arg(title));
        return;
    }
}

} // namespace

void setPrintPatience(int milliseconds) { patience = milliseconds; }

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
