#include "platform/report/Preview.h"

#include "platform/forms/BackgroundTask.h"
#include "platform/forms/Icons.h"
#include "platform/forms/MessageBox.h"
#include "platform/report/PageView.h"
#include "platform/report/Pdf.h"
#include "platform/report/PrintDialog.h"
#include "platform/report/SaveDialog.h"

#include <QBoxLayout>
#include <QDir>
#include <QLabel>
#include <QPushButton>
#include <QThreadPool>

using namespace Qt::StringLiterals;

namespace report {

namespace {

constexpr double zoomStep = 1.25;
constexpr int iconButtonWidth = 38;
constexpr int labelGap = 14;
constexpr size_t rowsAtOnce = 2000; ///< laid out in about a twentieth of a second

QString pageText(int page, int count) { return u"Page %1 of %2"_s.arg(page).arg(count); }

} // namespace

Preview::Preview(const Report& report, std::shared_ptr<const Pages> pages)
    : m_report(report)
    , m_pages(pages ? std::move(pages) : std::make_shared<const Pages>(report))
    , m_view(new PageView(*m_pages, this))
{
    setObjectName(u"Preview"_s);
    m_view->setAccessibleName(report.Title);
    setWindowTitle(report.Title);
    auto* tools = new QHBoxLayout;
    tools->setSpacing(4);
    const auto add = [&](QPushButton* button) {
        tools->addWidget(button);
        return button;
    };
    QPushButton* first =
        add(addButton(u"cmdPrint"_s, u"&Print"_s, u"print"_s, u"Ctrl+P"_s, [this] { print(); }));
    first->setProperty("primary", true);
    add(addButton(u"cmdSavePdf"_s, u"&Save as PDF"_s, u"pdf"_s, u"Ctrl+S"_s, [this] { saveAsPdf(); }));
    tools->addStretch();
    cmdFirst =
        add(addButton(u"cmdFirst"_s, {}, u"first"_s, u"First page (Home)"_s, [this] { m_view->turnTo(0); }));
    cmdPrevious = add(addButton(u"cmdPrevious"_s, {}, u"previous"_s, u"Page before (Page Up)"_s,
                                [this] { m_view->turnTo(m_view->page() - 1); }));
    lblPage = new QLabel;
    lblPage->setObjectName(u"lblPage"_s);
    lblPage->setAlignment(Qt::AlignCenter);
    lblPage->setMinimumWidth(fontMetrics().horizontalAdvance(pageText(m_pages->count(), m_pages->count())) +
                             labelGap);
    tools->addWidget(lblPage);
    cmdNext = add(addButton(u"cmdNext"_s, {}, u"next"_s, u"Next page (Page Down)"_s,
                            [this] { m_view->turnTo(m_view->page() + 1); }));
    cmdLast = add(addButton(u"cmdLast"_s, {}, u"last"_s, u"Last page (End)"_s,
                            [this] { m_view->turnTo(m_pages->count() - 1); }));
    tools->addStretch();
    add(addButton(u"cmdZoomOut"_s, {}, u"zoom-out"_s, u"Smaller (-)"_s,
                  [this] { m_view->setZoom(m_view->zoom() / zoomStep); }));
    lblZoom = new QLabel;
    lblZoom->setObjectName(u"lblZoom"_s);
    lblZoom->setAlignment(Qt::AlignCenter);
    lblZoom->setMinimumWidth(fontMetrics().horizontalAdvance(u"500 %"_s) + labelGap);
    tools->addWidget(lblZoom);
    add(addButton(u"cmdZoomIn"_s, {}, u"zoom-in"_s, u"Larger (+)"_s,
                  [this] { m_view->setZoom(m_view->zoom() * zoomStep); }));
    add(addButton(u"cmdFullSize"_s, u"100 %"_s, {}, u"Paper's own size (1)"_s,
                  [this] { m_view->setZoom(1); }));
    add(addButton(u"cmdFitWidth"_s, {}, u"fit-width"_s, u"As wide as the screen (2)"_s,
                  [this] { m_view->setFit(PageView::Fit::Width); }));
    add(addButton(u"cmdFitPage"_s, {}, u"fit-page"_s, u"Whole page (3)"_s,
                  [this] { m_view->setFit(PageView::Fit::Page); }));
    tools->addStretch();
    add(addButton(u"cmdClose"_s, u"&Close"_s, {}, u"Esc"_s, [this] { unload(); }));

    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(16, 12, 16, 16);
    all->setSpacing(12);
    all->addLayout(tools);
    all->addWidget(m_view, 1);
    forms::applyIcons(*this);
    connect(m_view, &PageView::viewChanged, this, &Preview::refresh);
    useScreenHeight();
}

QPushButton* Preview::addButton(const QString& name, const QString& text, const QString& icon,
                                const QString& hint, std::function<void()> procedure)
{
    auto* button = new QPushButton(text, this);
    button->setObjectName(name);
    button->setProperty("iconName", icon);
    button->setProperty("compact", true);
    button->setToolTip(hint);
    if (text.isEmpty()) {
        button->setAccessibleName(hint);
        button->setFixedWidth(iconButtonWidth);
    }
    button->setAutoDefault(false);
    on(button, &QPushButton::clicked, [procedure = std::move(procedure)] { procedure(); });
    return button;
}

void Preview::Form_Load()
{
    m_view->setFocus();
    refresh();
}

void Preview::refresh()
{
    lblPage->setText(pageText(m_view->page() + 1, m_pages->count()));
    lblZoom->setText(u"%1 %"_s.arg(qRound(m_view->zoom() * 100)));
    const bool before = m_view->page() > 0;
    const bool behind = m_view->page() < m_pages->count() - 1;
    cmdFirst->setEnabled(before);
    cmdPrevious->setEnabled(before);
    cmdNext->setEnabled(behind);
    cmdLast->setEnabled(behind);
}

void Preview::Form_KeyPress(int& key)
{
    const int pressed = std::exchange(key, 0);
    switch (pressed) {
    case forms::key::CtrlP:
        return print();
    case forms::key::CtrlS:
        return saveAsPdf();
    case '+':
        return m_view->setZoom(m_view->zoom() * zoomStep);
    case '-':
        return m_view->setZoom(m_view->zoom() / zoomStep);
    case '1':
        return m_view->setZoom(1);
    case '2':
        return m_view->setFit(PageView::Fit::Width);
    case '3':
        return m_view->setFit(PageView::Fit::Page);
    default:
        key = pressed;
        Screen::Form_KeyPress(key);
    }
}

void Preview::Form_KeyDown(int& key, Qt::KeyboardModifiers)
{
    const int pressed = std::exchange(key, 0);
    switch (pressed) {
    case forms::key::PageUp:
        return m_view->turnTo(m_view->page() - 1);
    case forms::key::PageDown:
        return m_view->turnTo(m_view->page() + 1);
    case forms::key::Home:
        return m_view->turnTo(0);
    case forms::key::End:
        return m_view->turnTo(m_pages->count() - 1);
    default:
        key = pressed;
    }
}

void Preview::print() { PrintDialog(m_report, *m_pages, this).showModal(); }

void Preview::saveAsPdf()
{
    const QString path =
        askSavePath(this, u"Save as PDF"_s, m_report.Subject.isEmpty() ? m_report.Title : m_report.Subject,
                    {{u"pdf"_s, u"PDF files (*.pdf)"_s}});
    if (path.isEmpty())
        return;
    saveFile(pdf(*m_pages, m_report.Title), path);
    forms::plainMessage(this, u"The paper was saved as a PDF file:\n\n"_s + QDir::toNativeSeparators(path));
}

void showPaper(QWidget* over, size_t rows, const std::function<std::unique_ptr<Report>()>& make)
{
    struct Paper
    {
        std::unique_ptr<Report> report;
        std::shared_ptr<const Pages> pages;
    };
    auto paper = std::make_shared<Paper>();
    const auto layOut = [&](const std::stop_token& stop) {
        paper->report = make();
        paper->pages = std::make_shared<const Pages>(*paper->report, stop);
    };
    if (rows <= rowsAtOnce) {
        layOut({});
    } else {
        const QString step = u"laying out %1 rows"_s.arg(rows);
        forms::runInBackground(over, u"Print"_s, [&](const Progress& progress) {
            progress.step(step, [&] { layOut(progress.stop); });
        });
    }
    Preview(*paper->report, paper->pages).showModal();
    // To let go of many pages takes a while, too: the screens do not wait for it.
    QThreadPool::globalInstance()->start([gone = std::move(paper)] {});
}

} // namespace report
