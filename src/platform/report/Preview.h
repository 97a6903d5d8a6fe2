#pragma once

#include "platform/forms/Screen.h"
#include "platform/report/Pages.h"

#include <functional>

class QLabel;
class QPushButton;

namespace report {

class PageView;

/// Shows a report as it will stand on paper, to print it or save it as a PDF file. The pages are made from
/// the report as it is when the preview is made; it must outlive it.
class Preview : public forms::Screen
{
    Q_OBJECT
public:
    /// `pages`: the report's, where they are made already.
    explicit Preview(const Report& report, std::shared_ptr<const Pages> pages = nullptr);

    const Report& report() const { return m_report; }

protected:
    void Form_Load() override;
    void Form_KeyPress(int& key) override;
    void Form_KeyDown(int& key, Qt::KeyboardModifiers modifiers) override;

private:
    QPushButton* addButton(const QString& name, const QString& text, const QString& icon, const QString& hint,
                           std::function<void()> procedure);
    void refresh();
    void print();
    void saveAsPdf();

    const Report& m_report;
    const std::shared_ptr<const Pages> m_pages;
    PageView* m_view;
    QLabel* lblPage;
    QLabel* lblZoom;
    QPushButton* cmdFirst;
    QPushButton* cmdPrevious;
    QPushButton* cmdNext;
    QPushButton* cmdLast;
};

/// Makes a paper, lays it out and shows it. For one of more `rows` than are laid out in a moment both are
/// done in a thread of their own, and a box over the screen `over` can cancel it: throws Cancelled then.
void showPaper(QWidget* over, size_t rows, const std::function<std::unique_ptr<Report>()>& make);

} // namespace report
