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

namespace report {

namespace {

constexpr int twipsPerPixel = 15;
constexpr QSize finestPicture{4096, 4096};

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
    while (!waiting.isEmpty()) {
        forms::showError(forms::Screen::front(), waiting.first());
        waiting.removeFirst();
    }
}

/// One run of a program of the print system, under a time limit. It deletes itself when it has ended.
class SpoolerRun : public QObject
{
public:
    enum class End { Done, Missing, Refused, Silent };
    using Ended = std::function<void(End end, const QByteArray& output, const QString& complaint)>;

    SpoolerRun(const QString& program, const QStringList& arguments, const QByteArray& input, Ended ended)
        : QObject(qApp)
        , m_ended(std::move(ended))
    {
        connect(&m_process, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
            if (error == QProcess::FailedToStart)
                end(End::Missing);
        });
        connect(&m_process, &QProcess::finished, this, [this](int code, QProcess::ExitStatus status) {
            end(status == QProcess::NormalExit && code == 0 ? End::Done : End::Refused);
        });
        connect(&m_limit, &QTimer::timeout, this, [this] { end(End::Silent); });
        m_limit.setSingleShot(true);
        m_limit.start(patience);
        m_process.start(program, arguments);
        m_process.write(input);
        m_process.closeWriteChannel();
    }
    ~SpoolerRun() override
    {
        m_process.disconnect();
        m_process.kill();
    }

private:
    void end(End how)
    {
        if (!m_ended)
            return;
        m_limit.stop();
        const QByteArray output = m_process.readAllStandardOutput();
        const QString complaint = QString::fromLocal8Bit(m_process.readAllStandardError()).trimmed();
        deleteLater();
        std::exchange(m_ended, nullptr)(how, output, complaint);
    }

    QProcess m_process;
    QTimer m_limit;
    Ended m_ended;
};

void tellEnd(SpoolerRun::End end, const QString& title, const QString& complaint)
{
    switch (end) {
    case SpoolerRun::End::Done:
        return;
    case SpoolerRun::End::Missing:
        tellFailure(QStringLiteral("\"%1\" was not printed: this computer has no print system (the program "
                                   "\"lp\" is missing).")
                        .arg(title));
        return;
    case SpoolerRun::End::Refused:
        tellFailure(QStringLiteral("\"%1\" was not printed.\n\n%2").arg(title, complaint));
        return;
    case SpoolerRun::End::Silent:
        tellFailure(
            QStringLiteral("The printer does not answer. \"%1\" may not have been printed.").arg(title));
        return;
    }
}

} // namespace

void setPrintPatience(int milliseconds) { patience = milliseconds; }

void print(const PrintJob& job)
{
    QStringList arguments{QStringLiteral("-t"), job.title, QStringLiteral("-n"), QString::number(job.copies)};
    if (!job.printer.isEmpty())
        arguments << QStringLiteral("-d") << job.printer;
    new SpoolerRun(QStringLiteral("lp"), arguments, job.pdf,
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
                            QStringLiteral("\n\nThis file holds no picture that can be printed."));
    Report page(path.section(u'/', -1));
    page.LeftMargin = page.TopMargin = page.RightMargin = page.BottomMargin = 0;
    const QSize room(page.pageWidth() - 2 * left, page.pageHeight() - 2 * top);
    QSize size = picture.size() * twipsPerPixel;
    if (size.boundedTo(room) != size)
        size.scale(room, Qt::KeepAspectRatio);
    Image& image = page.addSection(QStringLiteral("Picture"), Band::ReportHead, top + size.height())
                       .addImage(QStringLiteral("Picture"));
    image.Picture = picture;
    image.place(left, top, size.width(), size.height());
    printDirect(page);
}

void askPrinters(QObject* context, std::function<void(const QStringList&)> answer)
{
    const QPointer<QObject> asking = context;
    new SpoolerRun(QStringLiteral("lpstat"), {QStringLiteral("-e")}, {},
                   [asking, answer](SpoolerRun::End end, const QByteArray& output, const QString&) {
                       if (!asking)
                           return;
                       const QString names = QString::fromLocal8Bit(output);
                       answer(end == SpoolerRun::End::Done ? names.split(u'\n', Qt::SkipEmptyParts)
                                                           : QStringList());
                   });
}

} // namespace report
