#include "accounts/frmAccountBook.h"
#include "accounts/frmAccountsList.h"
#include "accounts/frmDayBook.h"
#include "accounts/frmEditAccount.h"
#include "accounts/frmPayrollDetails.h"
#include "accounts/frmTransiction.h"
#include "accounts/frmWorkerWagesRegister.h"
#include "core/shell/frmAbout.h"
#include "core/shell/frmCheckShop.h"
#include "core/shell/frmDifferences.h"
#include "core/shell/frmGlance.h"
#include "core/shell/frmLogin.h"
#include "core/shell/frmMain.h"
#include "core/shell/frmMasters.h"
#include "core/shell/frmMenu.h"
#include "core/shell/frmNewBooks.h"
#include "core/shell/frmSettings.h"
#include "core/shell/frmShopINFO.h"
#include "jobcards/MODPrintJOBCARD.h"
#include "jobcards/frmAddItem.h"
#include "jobcards/frmClothColor.h"
#include "jobcards/frmEditJOB.h"
#include "jobcards/frmEditWorkerAssign.h"
#include "masters/frmBringIn.h"
#include "masters/frmClients.h"
#include "masters/frmEditClients.h"
#include "masters/frmEditItem.h"
#include "masters/frmEditWorker.h"
#include "masters/frmItems.h"
#include "masters/frmWorkers.h"
#include "media/frmHandNote.h"
#include "media/frmPreview.h"
#include "messaging/frmByPhone.h"
#include "planning/frmDDP.h"
#include "planning/frmFeedBack.h"
#include "planning/frmRatings.h"
#include "planning/frmWorkerReport2.h"
#include "platform/forms/BarChart.h"
#include "platform/forms/Theme.h"
#include "platform/report/Pages.h"
#include "platform/report/PrintDialog.h"
#include "registers/frmBirthDayRimenders.h"
#include "registers/frmClientFolder.h"
#include "registers/frmDeliveryRegister.h"
#include "registers/frmDueRegister.h"
#include "registers/frmSearchClient.h"
#include "registers/frmTrailDate.h"
#include "registers/frmWorkerJobRegister.h"
#include "support/ShopTest.h"
#include "ui/frmSelectDate.h"
#include "ui/frmSelectFile.h"

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QAccessibleWidget>
#include <QHeaderView>
#include <QScopeGuard>
#include <QScrollArea>
#include <QTabBar>

using namespace Qt::StringLiterals;

/// What a screen reader is told of the screens.
class tst_accessible : public ShopTest
{
    Q_OBJECT

    qint32 m_client = 0;
    qint32 m_worker = 0;
    qint32 m_line = 0;

    void lay() override
    {
        m_client = shop->addClient("Asha Rao", "98290");
        m_worker = shop->addWorker("Ravi");
        shop->addItem("Shirt", 150, 40, "Chest\nLength");
        m_line = shop->addJobLine(m_client, 1, m_worker, "DoneByWorker=1, CuttingStatus=0, ItemSr=1");
        shop->addJob(1);
        shop->addVoucher(1, GetAccountID("Sales"), m_client, 12.5);
        Shop::add("Shop", {{"Name", "Rangoli"}});
    }

    static QString told(QWidget& control, QAccessible::Text what)
    {
        QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&control);
        return spoken ? spoken->text(what) : QString();
    }

    /// Controls of a screen that take the focus. The list of a drop-down box is not there before it is
    /// opened; the inner line of a spin box is the box itself to a reader.
    static QList<QWidget*> controls(QWidget& screen)
    {
        QList<QWidget*> found;
        for (QWidget* control : screen.findChildren<QWidget*>())
            if (control->focusPolicy() != Qt::NoFocus && control->window() == screen.window() &&
                !qobject_cast<QAbstractSpinBox*>(control->parentWidget()))
                found << control;
        return found;
    }

    static QStringList nameless(QWidget& screen)
    {
        QStringList found;
        for (QWidget* control : controls(screen)) {
            QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(control);
            const QString name = spoken ? spoken->text(QAccessible::Name) : QString();
            const bool hasRole = spoken && spoken->role() != QAccessible::NoRole;
            if (name.trimmed().isEmpty() || name.contains(u'&') || !hasRole)
                found << u"%1 %2 in %3: '%4'"_s.arg(QString::fromLatin1(control->metaObject()->className()),
                                                    control->objectName(),
                                                    control->parentWidget()->objectName(), name);
        }
        return found;
    }

    using Open = std::function<void()>;
    void eachScreen(const std::function<void(const char* name, const Open& open)>& row)
    {
        row("masters", [] { frmMasters().showModal(); });
        row("reports", [] { frmMenu().showModal(); });
        row("about", [] { frmAbout().showModal(); });
        row("login", [] { frmLogin().Login(); });
        row("shop", [] { frmShopINFO().showModal(); });
        row("settings", [] { frmSettings().showModal(); });
        row("backup", [] { frmSettings().ShowBackup(); });
        row("new books", [this] {
            prompts->expect(
                "The shop's first day is 01-Feb-2024. The last day of the old books is that day or a "
                "later one.");
            frmNewBooks().showModal();
        });
        row("check", [] { frmCheckShop({.findings = {{u"One."_s, u"Two."_s, nullptr}}}).showModal(); });
        row("differences", [] { frmDifferences({}).showModal(); });
        row("clients", [] { frmClients().showModal(); });
        row("client", [this] { frmEditClients().Edit(qint16(m_client)); });
        row("workers", [] { frmWorkers().showModal(); });
        row("worker", [this] { frmEditWorker().Edit(qint16(m_worker)); });
        row("items", [] { frmItems().showModal(); });
        row("item", [] { frmEditItem().Edit(1); });
        row("accounts", [] { frmAccountsList().showModal(); });
        row("account", [] { frmEditAccount().ShowEdit(4); });
        row("voucher", [] {
            qint16 saved = 0;
            frmTransiction().ShowAddNew(u"Asha Rao"_s, saved);
        });
        row("account book", [] { frmAccountBook().ShowAccount(u"Asha Rao"_s); });
        row("day book", [] { frmDayBook().showModal(); });
        row("wages", [] { frmWorkerWagesRegister().showModal(); });
        row("payroll", [] { frmPayrollDetails().ExecuteSQL(u"Ravi"_s, 1); });
        row("card", [] { frmEditJOB().ShowEdit(1); });
        row("new card", [] { frmEditJOB().ShowAddNew(); });
        row("garment", [this] {
            JobCard card;
            card.CurrentJobID = 1;
            card.LoadLines();
            frmAddItem().EditItemDetails(card.JobRows, m_client, 1);
        });
        row("line", [this] { frmEditWorkerAssign().ShowEdit(m_line); });
        row("cloth", [] { frmClothColor().choose(0); });
        row("register", [] { frmWorkerJobRegister().showModal(); });
        row("deliveries", [] { frmDeliveryRegister().showModal(); });
        row("trials", [] { frmTrailDate().showModal(); });
        row("birthdays", [] { frmBirthDayRimenders().showModal(); });
        row("dues", [] { frmDueRegister().showModal(); });
        row("folder", [] { frmClientFolder().ShowClient(u"Asha Rao"_s); });
        row("search", [] {
            qint16 all = 0;
            QString client;
            SearchClient2(all, client);
        });
        row("glance", [] { frmGlance().showModal(); });
        row("pending", [] { frmDDP().showModal(); });
        row("ratings", [] { frmRatings().showModal(); });
        row("overview", [] {
            QString worker;
            ShowWorkerOverView(u"Select * from JOBS_Detail where WorkerID=%id"_s, worker);
        });
        row("feedback", [this] {
            QVariant score;
            GiveFeedback(m_line, 0, score);
        });
        row("days", [] {
            QDate from = session.WorkingDate;
            QDate to = from;
            frmSelectDate().SelectDate(from, to, frmSelectDate::Range);
        });
        row("file", [] { frmSelectFile().SelFile(); });
        row("by phone", [] { frmByPhone(u"98290"_s, u"Ready"_s).showModal(); });
        row("paper", [] { PrintJobCard(1); });
        row("print box", [this] {
            const auto paper = LabelPaper(m_line);
            report::PrintDialog(*paper, report::Pages(*paper)).showModal();
        });
    }

    /// What is wrong with where a control stands, and with the room for its text; empty: nothing.
    static QString cutAt(const QWidget& control)
    {
        const QFontMetrics metrics(control.fontMetrics());
        const auto letters = [&](const QString& text) {
            return metrics.size(Qt::TextShowMnemonic, text).width();
        };
        const QWidget& parent = *control.parentWidget();
        const auto* scrolls = qobject_cast<const QScrollArea*>(parent.parentWidget());
        const auto* text = qobject_cast<const QLabel*>(&control);
        const bool elides = control.inherits("HelpLine") ||
                            (text && !parent.toolTip().isEmpty() && parent.toolTip() == text->text());
        if (elides || (scrolls && scrolls->widget() == &control) ||
            control.objectName() == "Picture1") // a grid that scrolls
            return {};
        if (!parent.rect().adjusted(-1, -1, 1, 1).contains(control.geometry()))
            return u"stands outside of "_s + parent.objectName();
        if (const auto* label = qobject_cast<const QLabel*>(&control)) {
            const int room = label->contentsRect().width() - 2 * label->margin();
            if (label->wordWrap() && label->heightForWidth(label->width()) > label->height() + 1)
                return u"is too low by %1"_s.arg(label->heightForWidth(label->width()) - label->height());
            if (!label->wordWrap() && !label->text().isEmpty() && letters(label->text()) > room + 1)
                return u"is too narrow by %1"_s.arg(letters(label->text()) - room);
            if (!label->text().isEmpty() && label->contentsRect().height() < metrics.height() - 1)
                return u"is too low for a line"_s;
        } else if (const auto* button = qobject_cast<const QAbstractButton*>(&control)) {
            constexpr int spare = 4; // of the padding
            if (!button->text().isEmpty() &&
                (button->sizeHint().width() > button->width() + spare || button->height() < metrics.height()))
                return u"is too small"_s;
        } else if (const auto* titles = qobject_cast<const QHeaderView*>(&control)) {
            for (int section = 0; titles->orientation() == Qt::Horizontal && section < titles->count();
                 ++section) {
                const QString title = titles->model()->headerData(section, Qt::Horizontal).toString();
                if (letters(title) > titles->sectionSize(section))
                    return u"cuts "_s + title;
            }
        } else if (const auto* tabs = qobject_cast<const QTabBar*>(&control)) {
            for (int tab = 0; tab < tabs->count(); ++tab)
                if (letters(tabs->tabText(tab)) > tabs->tabRect(tab).width() ||
                    tabs->tabRect(tab).right() > tabs->width())
                    return u"cuts "_s + tabs->tabText(tab);
        } else if (qobject_cast<const QLineEdit*>(&control) && control.height() < metrics.height()) {
            return u"is too low for a line"_s;
        }
        return {};
    }

    static QStringList cut(const QWidget& screen)
    {
        QStringList found;
        for (const QWidget* control : screen.findChildren<QWidget*>()) {
            if (!control->isVisible() || control->window() != &screen)
                continue;
            if (const QString how = cutAt(*control); !how.isEmpty())
                found << u"%1 %2 '%3' %4"_s.arg(
                    QString::fromLatin1(control->metaObject()->className()), control->objectName(),
                    told(*const_cast<QWidget*>(control), QAccessible::Name).left(40), how);
        }
        return found;
    }

    /// Calls `open`, which shows a screen modally; looks at it, and closes it.
    void look(const QByteArray& name, const Open& open, const std::function<void(QWidget&)>& also = {})
    {
        onNextModal<forms::Screen>([&](forms::Screen& screen) {
            if (also)
                also(screen);
            const QStringList without = nameless(screen);
            QVERIFY2(without.isEmpty(),
                     qPrintable(QString::fromLatin1(name) + u":\n"_s + without.join(u'\n')));
        });
        try {
            open();
        } catch (const std::exception& error) {
            QFAIL(error.what());
        }
    }

private Q_SLOTS:
    void everyControlHasAName_data()
    {
        QTest::addColumn<Open>("open");
        eachScreen([](const char* name, const Open& open) { QTest::newRow(name) << open; });
    }
    void everyControlHasAName()
    {
        QFETCH(Open, open);
        look(QTest::currentDataTag(), open);
    }

    void nothingIsCutInLargeType_data()
    {
        QTest::addColumn<Open>("open");
        QTest::addColumn<int>("size");
        for (const int size : {100, 150, 160})
            eachScreen([size](const char* name, const Open& open) {
                QTest::addRow("%s %d", name, size) << open << size;
            });
    }
    void nothingIsCutInLargeType()
    {
        QFETCH(Open, open);
        QFETCH(int, size);
        forms::setAppearance({palette::Look::Light, size});
        const auto back = qScopeGuard([] { forms::setAppearance({}); });
        QStringList found;
        onNextModal<forms::Screen>([&](forms::Screen& screen) {
            found = cut(screen);
            if (screen.width() > 1366 || screen.height() > 768)
                found << u"is %1 x %2"_s.arg(screen.width()).arg(screen.height());
        });
        open();
        QVERIFY2(found.isEmpty(), qPrintable(u'\n' + found.join(u'\n')));
    }

    void theMainScreenToo()
    {
        inModal<frmMain>([](frmMain& main) {
            QStringList faults = nameless(main);
            for (const int size : {150, 160, 100}) {
                forms::setAppearance({palette::Look::Light, size});
                QCoreApplication::sendPostedEvents();
                faults += cut(main);
            }
            QVERIFY2(faults.isEmpty(), qPrintable(faults.join(u'\n')));
        });
    }

    void anOpenListHasItsBoxesName()
    {
        inModal<frmEditJOB>([](frmEditJOB& card) {
            combo(card, "cmbClient").showPopup();
            QCOMPARE(told(*combo(card, "cmbClient").view(), QAccessible::Name), "Client Name");
        });
    }

    void aListIsReadByRowAndColumn()
    {
        inModal<frmWorkerJobRegister>([](frmWorkerJobRegister& screen) {
            auto& list = listView(screen, "lvSummary");
            list.selectRow(0);
            QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&list);
            QAccessibleTableInterface* table = spoken->tableInterface();
            QVERIFY(table);
            QCOMPARE(table->rowCount(), 2); // with the total
            QCOMPARE(table->columnDescription(2), "Client Name");
            QCOMPARE(table->cellAt(0, 2)->text(QAccessible::Name), "Asha Rao");
            QCOMPARE(table->cellAt(0, 8)->text(QAccessible::Name), "Completed");
            QVERIFY(table->cellAt(0, 2)->state().selected);
        });
        Shop::run("Update Jobs_Detail set Score=4");
        inModal<frmRatings>([](frmRatings& screen) {
            QAccessibleInterface* list =
                QAccessible::queryAccessibleInterface(&listView(screen, "lvSummary"));
            QCOMPARE(list->tableInterface()->cellAt(0, 4)->text(QAccessible::Name), "4 of 5 stars");
        });
    }

    void figuresAndBarsTellWhatTheyMean()
    {
        inModal<frmGlance>([](frmGlance& screen) {
            auto& trials = control<QWidget>(screen, "cmdTrials");
            QCOMPARE(told(trials, QAccessible::Name), "Trials today");
            QVERIFY(told(trials, QAccessible::Description).startsWith("0. "));
            auto& bars = control<forms::BarChart>(screen, "chDue");
            bars.setFocus();
            press(Qt::Key_Right);
            QCOMPARE(QAccessible::queryAccessibleInterface(&bars)->role(), QAccessible::Chart);
            QCOMPARE(told(bars, QAccessible::Value).count(u';'), qsizetype(bars.groups().size()) - 1);
            QCOMPARE(told(bars, QAccessible::Description), bars.groups()[size_t(bars.chosen())].meaning);
        });
    }
};

/// On the display of a counter, in the program's own look.
int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", COUNTER_SCREEN);
    QApplication application(argc, argv);
    forms::applyTheme(application, QStringLiteral(PROGRAM_FOLDER "/fonts"));
    tst_accessible test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_accessible.moc"
