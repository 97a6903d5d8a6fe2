#include "jobcards/ItemDetails.h"

#include "platform/forms/Screen.h"
#include "platform/values/Errors.h"
#include "support/Fields.h"

#include <QClipboard>
#include <QScrollBar>
#include <QTest>
#include <QVBoxLayout>
#include <QWheelEvent>

/// The grid between two fields of a screen.
struct Screen : forms::Screen
{
    QLineEdit before{this};
    ItemDetails grid{this};
    QLineEdit after{this};

    Screen()
    {
        auto* layout = new QVBoxLayout(this);
        for (QWidget* each : std::initializer_list<QWidget*>{&before, &grid, &after})
            layout->addWidget(each);
        setTabOrder(&before, &grid);
        setTabOrder(&grid, &after);
        resize(400, 400);
        showModeless();
        (void)QTest::qWaitForWindowActive(this);
    }

    swTextBox& value(int row) { return *findChild<swTextBox*>(QString("txtValue_%1").arg(row)); }
    QLabel& caption(int row) { return *findChild<QLabel*>(QString("lblCap_%1").arg(row)); }
    QScrollBar& bar() { return control<QScrollBar>(*this, "VScroll1"); }
    void turnWheel(int notches)
    {
        QWheelEvent event({5, 5}, mapToGlobal(QPointF(5, 5)), {}, {0, notches * 120}, {}, {}, {}, false);
        QApplication::sendEvent(&control<QWidget>(*this, "Picture2"), &event);
    }
    void fill(int rows)
    {
        for (int i = 0; i < rows; ++i)
            grid.AddFeild(QString("Measurement %1").arg(i), QString::number(i));
    }
};

static bool isWhollyVisible(const QWidget& widget)
{
    return widget.visibleRegion().boundingRect() == widget.rect();
}

class tst_ItemDetails : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    /// The caption whole, carriage returns too; a value is one line, so that names and values stay equal in
    /// number.
    void rowsGiveBackWhatTheyShow()
    {
        Screen screen;
        screen.grid.setLanguage("Hindi");
        screen.grid.AddFeild("a&b <b>\rbold</b> 👔 =", "= & <i> 1/2\" %2 ४०");
        QCOMPARE(screen.caption(0).font().family(), "Kruti Dev 010");
        QString caption, value;
        screen.grid.ListItemText(caption, value, 0);
        QCOMPARE(caption + value, "a&b <b>\rbold</b> 👔 == & <i> 1/2\" %2 ४०");
        QGuiApplication::clipboard()->setText("12\r\n34\n56");
        screen.value(0).selectAll();
        screen.value(0).paste();
        screen.grid.ListItemText(caption, value, 0);
        QVERIFY2(!value.contains(u'\r') && !value.contains(u'\n') && value.endsWith("56"), qPrintable(value));
        for (const int row : {1, -1})
            QVERIFY_THROWS_EXCEPTION(SubscriptError, screen.grid.ListItemText(caption, value, row));
    }

    void enterWalksTheRowsAndLeaves()
    {
        Screen screen;
        for (const int rows : {3, 0}) {
            screen.grid.ClearList();
            screen.fill(rows);
            screen.before.setFocus();
            screen.grid.SetFocusToList();
            QCOMPARE(screen.before.hasFocus(), rows == 0); // an empty grid takes no focus
            screen.before.setFocus();
            press(Qt::Key_Tab);
            for (int row = 0; row < rows; ++row) {
                QVERIFY(screen.value(row).hasFocus());
                press(Qt::Key_Return);
            }
            QVERIFY(screen.after.hasFocus());
            press(Qt::Key_Backtab, Qt::ShiftModifier);
            QVERIFY(rows == 0 ? screen.before.hasFocus() : screen.value(rows - 1).hasFocus());
        }
    }

    /// The bar and the wheel reach each row, and the row in use is always whole in sight.
    void everyRowComesIntoSight()
    {
        Screen screen;
        screen.fill(1);
        QVERIFY(!screen.bar().isVisible());
        screen.fill(59);
        for (const bool down : {true, false}) {
            screen.turnWheel(down ? -100 : 100);
            QVERIFY(isWhollyVisible(screen.value(down ? 59 : 0)));
        }
        for (int step = 1; step < 119; ++step) {
            swTextBox& value = screen.value(step < 60 ? step : 118 - step);
            value.setFocus(step < 60 ? Qt::TabFocusReason : Qt::BacktabFocusReason);
            QVERIFY2(isWhollyVisible(value), qPrintable(value.objectName()));
        }
        screen.bar().setValue(3000);
        screen.grid.ClearList();
        QVERIFY(!screen.value(0).isVisible() && !screen.caption(0).isVisible());
        QCOMPARE(control<QWidget>(screen, "Picture1").y(), 0);
    }
};

QTEST_MAIN(tst_ItemDetails)
#include "tst_ItemDetails.moc"
