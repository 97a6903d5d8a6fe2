#include "jobcards/MODPrintJOBCARD.h"

#include "core/store/DE.h"
#include "core/store/PaymentLink.h"
#include "core/store/Rows.h"
#include "core/store/Schema.h"
#include "core/store/Session.h"
#include "core/store/Settings.h"
#include "core/store/Texts.h"
#include "jobcards/JobCardStaging.h"
#include "jobcards/LineCodeBars.h"
#include "jobcards/rptJOBCARD.h"
#include "jobcards/rptLabel.h"
#include "jobcards/rptWorkerJobCard.h"
#include "platform/forms/Pictures.h"
#include "platform/report/Pages.h"
#include "platform/report/PaperDesign.h"
#include "platform/report/Preview.h"
#include "platform/report/Printing.h"
#include "platform/values/Errors.h"
#include "platform/values/Numbers.h"

using namespace Qt::StringLiterals;

namespace {

/// The heading of a card: its lines and where they stand when no logo is beside them.
constexpr const char* headingLines[] = {"lblCompany", "lblAddress1", "lblAddress2", "lblAddress3",
                                        "lblContact"};
constexpr int fullLeft = 144;
constexpr int fullWidth = 9360;

void PlaceLogo(rptJOBCARD& card, const QString& LogoPath)
{
    report::Section& head = card.section(u"Section6"_s);
    if (LogoPath.isEmpty()) {
        for (const char* name : headingLines) {
            report::Label& line = head.label(QLatin1String(name));
            line.Left = fullLeft;
            line.Width = fullWidth;
        }
        return;
    }
    constexpr QSize sharpInPrint(1600, 1600);
    const QPixmap logo = forms::loadPicture(LogoPath, sharpInPrint);
    if (logo.isNull())
        throw OperatorError(u"The logo can't be loaded: %1\nNothing has been printed. "
                            "The file is chosen on the Settings screen."_s.arg(LogoPath));
    head.image(u"logo"_s).Picture = logo.toImage();
}

/// What the client is asked to pay on a card: nothing on a cancelled one.
double dueOn(const rptJOBCARD& card, qint32 JobID)
{
    if (any(u"Select id from Jobs where id=%1 and Status<>0"_s.arg(JobID)))
        return 0;
    return values::Val(card.rows().front().value(u"Amount"_s).toString());
}

/// The row of one line of a job. Throws ado::NoCurrentRecordError for one that is gone.
report::Row readLine(qint32 LineID)
{
    ado::Recordset& line = DE.rsJOBS_DETAIL;
    line.Open(u"Select * from JOBS_DETAIL where id="_s + QString::number(LineID));
    line["ID"].integer();
    report::Row row = report::readRows(line).front();
    line.Close();
    row.set(paper::lineCode,
            lineCodeText(row.value(u"JobID"_s).toString(), row.value(u"ItemSr"_s).toString()));
    return row;
}

/// A paper of one line: the name of its file, and on several pages the line at the foot of each.
void nameLine(report::Report& paper, const QString& kind)
{
    const report::Row& line = paper.rows().front();
    const QString job = line.value(u"JobID"_s).toString();
    const QString item = line.value(u"ItemSr"_s).toString();
    paper.Subject = u"%1 %2-%3 %4"_s.arg(kind, job, item, line.value(u"ClintName"_s).toString());
    if (report::Pages(paper).count() > 1)
        paper::numberPages(paper, u"Job # %1 / %2"_s.arg(job, item));
}

} // namespace

std::unique_ptr<report::Report> JobCardPaper(qint32 JobID)
{
    ado::Connection connection;
    connection.open(session.databasePath(), databasePassword(), ado::Connection::Mode::ReadOnly);
    StageJobCard(JobID);
    ado::Recordset job(connection);
    job.Open(u"SHAPE {SELECT * FROM tmpHead where JobID="_s + QString::number(JobID) +
             u" }  APPEND ({SELECT * FROM tmpBody  order by id} AS Body RELATE JOBID to JOBID)"_s);

    auto card = std::make_unique<rptJOBCARD>();
    card->setDataSource(report::readRows(job, u"Body"_s));
    PlaceLogo(*card, GetSetting(settings::Logo));
    report::Section& head = card->section(u"Section6"_s);
    head.label(u"lblTag"_s).Caption = GetSetting(settings::TagLine);
    const QString lines[] = {session.ShopName, session.ShopAddress1, session.ShopAddress2,
                             session.ShopAddress3, session.ShopContacts};
    for (size_t i = 0; i < std::size(lines); ++i)
        head.label(QLatin1String(headingLines[i])).Caption = lines[i];
    card->section(u"Section7"_s).label(u"lblForCompany"_s).Caption = u"For "_s + session.ShopName;
    card->section(u"Section3"_s).label(u"lblPage"_s).Caption = u"Job Card # %1 · Page %p of %P"_s.arg(JobID);
    card->closeUpHeading();
    if (const QString link = paymentLink(GetSetting(settings::PaymentAddress), dueOn(*card, JobID));
        !link.isEmpty())
        card->addPayment(link);
    card->Subject = u"Job Card %1 %2"_s.arg(JobID).arg(card->rows().front().value(u"Name"_s).toString());
    return card;
}

std::unique_ptr<report::Report> WorkerSlipPaper(qint32 LineID)
{
    auto slip = std::make_unique<rptWorkerJobCard>();
    if (GetSetting(settings::Language) == "Hindi"_L1 && IsOn(settings::HindiSlip))
        slip->useHindi();
    slip->setLine(readLine(LineID));
    slip->section(u"Section2"_s).label(u"lblCompany"_s).Caption = session.ShopName;
    nameLine(*slip, u"Job Order"_s);
    return slip;
}

std::unique_ptr<report::Report> LabelPaper(qint32 LineID)
{
    auto label = std::make_unique<rptLabel>();
    label->setDataSource({readLine(LineID)});
    label->section(u"Section1"_s).label(u"lblCompany"_s).Caption = session.ShopName;
    nameLine(*label, u"Label"_s);
    return label;
}

void PrintJobCard(qint32 JobID)
{
    const auto card = JobCardPaper(JobID);
    const QString preview = GetSetting(settings::PrintPreview);
    if (preview == "1"_L1)
        report::Preview(*card).showModal();
    else if (preview == "0"_L1)
        report::printDirect(*card);
}

void PrintWorkerSlip(qint32 LineID) { report::Preview(*WorkerSlipPaper(LineID)).showModal(); }

void PrintLabel(qint32 LineID) { report::Preview(*LabelPaper(LineID)).showModal(); }
