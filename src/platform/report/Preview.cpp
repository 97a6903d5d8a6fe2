#include "platform/report/Preview.h"

#include "platform/forms/Icons.h"
#include "platform/report/PageView.h"
#include "platform/report/Pdf.h"
#include "platform/report/PrintDialog.h"

#include <QBoxLayout>
#include <QFileDialog>
#include <QLabel>
#include <QPushButton>
#include <QStandardPaths>

namespace report {

namespace {

constexpr double shareOfScreen = 0.97;
constexpr double zoomStep = 1.25;
constexpr int iconButtonWidth = 38;
constexpr int labelGap = 14;

QString pageText(int page, int count) { return QStringLiteral("Page %1 of %2").arg(page).arg(count); }

} // namespace

Preview::Preview(const Report& report, QWidget* parent)
    : Screen(parent)
    , m_report(report)
    , m_pages(report)
    , m_view(new PageView(m_pages, this))
{
    setObjectName(QStringLiteral("Preview"));
    setWindowTitle(report.Title);
    auto* tools = new QHBoxLayout;
    tools->setSpacing(4);
    const auto add = [&](QPushButton* button) {
        tools->addWidget(button);
        return button;
    };
    QPushButton* first =
        add(addButton(QStringLiteral("cmdPrint"), QStringLiteral("&Print"), QStringLiteral("print"),
                      QStringLiteral("Ctrl+P"), [this] { print(); }));
    first->setProperty("primary", true);
    add(addButton(QStringLiteral("cmdSavePdf"), QStringLiteral("&Save as PDF"), QStringLiteral("pdf"),
                  QStringLiteral("Ctrl+S"), [this] { saveAsPdf(); }));
    tools->addStretch();
    cmdFirst = add(addButton(QStringLiteral("cmdFirst"), {}, QStringLiteral("first"),
                             QStringLiteral("First page (Home)"), [this] { m_view->turnTo(0); }));
    cmdPrevious = add(addButton(QStringLiteral("cmdPrevious"), {}, QStringLiteral("previous"),
                                QStringLiteral("Page before (Page Up)"),
                                [this] { m_view->turnTo(m_view->page() - 1); }));
    lblPage = new QLabel;
    lblPage->setObjectName(QStringLiteral("lblPage"));
    lblPage->setAlignment(Qt::AlignCenter);
    lblPage->setMinimumWidth(fontMetrics().horizontalAdvance(pageText(m_pages.count(), m_pages.count())) +
                             labelGap);
    tools->addWidget(lblPage);
    cmdNext = add(addButton(QStringLiteral("cmdNext"), {}, QStringLiteral("next"),
                            QStringLiteral("Next page (Page Down)"),
                            [this] { m_view->turnTo(m_view->page() + 1); }));
    cmdLast =
        add(addButton(QStringLiteral("cmdLast"), {}, QStringLiteral("last"),
                      QStringLiteral("Last page (End)"), [this] { m_view->turnTo(m_pages.count() - 1); }));
    tools->addStretch();
    add(addButton(QStringLiteral("cmdZoomOut"), {}, QStringLiteral("zoom-out"), QStringLiteral("Smaller (-)"),
                  [this] { m_view->setZoom(m_view->zoom() / zoomStep); }));
    lblZoom = new QLabel;
    lblZoom->setObjectName(QStringLiteral("lblZoom"));
    lblZoom->setAlignment(Qt::AlignCenter);
    lblZoom->setMinimumWidth(fontMetrics().horizontalAdvance(QStringLiteral("500 %")) + labelGap);
    tools->addWidget(lblZoom);
    add(addButton(QStringLiteral("cmdZoomIn"), {}, QStringLiteral("zoom-in"), QStringLiteral("Larger (+)"),
                  [this] { m_view->setZoom(m_view->zoom() * zoomStep); }));
    add(addButton(QStringLiteral("cmdFullSize"), QStringLiteral("100 %"), {},
                  QStringLiteral("Paper's own size (1)"), [this] { m_view->setZoom(1); }));
    add(addButton(QStringLiteral("cmdFitWidth"), {}, QStringLiteral("fit-width"),
                  QStringLiteral("As wide as the screen (2)"),
                  [this] { m_view->setFit(PageView::Fit::Width); }));
    add(addButton(QStringLiteral("cmdFitPage"), {}, QStringLiteral("fit-page"),
                  QStringLiteral("Whole page (3)"), [this] { m_view->setFit(PageView::Fit::Page); }));
    tools->addStretch();
    add(addButton(QStringLiteral("cmdClose"), QStringLiteral("&Close"), {}, QStringLiteral("Esc"),
                  [this] { unload(); }));

    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(16, 12, 16, 16);
    all->setSpacing(12);
    all->addLayout(tools);
    all->addWidget(m_view, 1);
    forms::applyIcons(*this, forms::iconInk);
    first->setIcon(forms::lineIcon(QStringLiteral("print"), forms::iconLight));
    connect(m_view, &PageView::viewChanged, this, &Preview::refresh);
    useScreenHeight(shareOfScreen);
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
    lblPage->setText(pageText(m_view->page() + 1, m_pages.count()));
    lblZoom->setText(QStringLiteral("%1 %").arg(qRound(m_view->zoom() * 100)));
    const bool before = m_view->page() > 0;
    const bool behind = m_view->page() < m_pages.count() - 1;
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
        return m_view->turnTo(m_pages.count() - 1);
    default:
        key = pressed;
    }
}

void Preview::print() { PrintDialog(m_report.Title, m_pages, this).showModal(); }

void Preview::saveAsPdf()
{
    QFileDialog dialog(this, QStringLiteral("Save as PDF"), {}, QStringLiteral("PDF files (*.pdf)"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setDefaultSuffix(QStringLiteral("pdf"));
    dialog.setDirectory(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    dialog.selectFile(m_report.Title + QStringLiteral(".pdf"));
    if (dialog.exec() == QDialog::Accepted)
        saveFile(pdf(m_pages, m_report.Title), dialog.selectedFiles().constFirst());
}

} // namespace report
