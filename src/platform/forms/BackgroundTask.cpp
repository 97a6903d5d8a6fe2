#include "platform/forms/BackgroundTask.h"

#include <QApplication>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QScopeGuard>
#include <QThread>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace forms {

namespace {

constexpr int boxWidth = 420;
constexpr int margin = 24;

} // namespace

void runInBackground(QWidget* parent, const QString& title, const std::function<void(const Progress&)>& work)
{
    ProgressBox box(parent, title);
    std::exception_ptr thrown;
    const std::unique_ptr<QThread> thread(QThread::create([&, progress = box.progress()] {
        try {
            work(progress);
        } catch (...) {
            thrown = std::current_exception();
        }
    }));
    QObject::connect(thread.get(), &QThread::finished, &box, &QDialog::accept);
    QApplication::setOverrideCursor(Qt::BusyCursor);
    const auto pointerBack = qScopeGuard([] { QApplication::restoreOverrideCursor(); });
    thread->start();
    box.exec();
    if (!thread->isFinished()) // the program is being ended
        box.reject();
    thread->wait();
    if (parent)
        parent->activateWindow();
    if (thrown)
        std::rethrow_exception(thrown);
}

ProgressBox::ProgressBox(QWidget* parent, const QString& title)
    : QDialog(parent)
    , lblStep(new QLabel(title))
    , cmdCancel(new QPushButton(u"Cancel"_s))
{
    setObjectName(u"ProgressBox"_s);
    setWindowTitle(title);
    setWindowModality(Qt::ApplicationModal);
    lblStep->setObjectName(u"lblStep"_s);
    cmdCancel->setObjectName(u"cmdCancel"_s);
    auto* bar = new QProgressBar;
    bar->setRange(0, 0); // how long it takes nobody knows
    bar->setTextVisible(false);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(margin, margin, margin, margin);
    column->setSpacing(margin / 2);
    column->addWidget(lblStep);
    column->addWidget(bar);
    column->addWidget(cmdCancel, 0, Qt::AlignRight);
    setFixedWidth(boxWidth);
    connect(cmdCancel, &QPushButton::clicked, this, &ProgressBox::reject);
    connect(this, &ProgressBox::stepBegins, this, [this](const QString& name) {
        if (!m_stop.stop_requested())
            lblStep->setText(name.left(1).toUpper() + name.mid(1) + QChar(0x2026));
    });
}

Progress ProgressBox::progress()
{
    return {m_stop.get_token(), [this](const QString& step) { Q_EMIT stepBegins(step); }};
}

void ProgressBox::reject()
{
    m_stop.request_stop();
    cmdCancel->setEnabled(false);
    lblStep->setText(u"Giving it up\u2026"_s);
}

} // namespace forms
