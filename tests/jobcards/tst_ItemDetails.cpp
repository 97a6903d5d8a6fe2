#include "jobcards/ItemDetails.h"

#include "platform/forms/Metrics.h"
#include "platform/forms/Screen.h"
#include "platform/forms/Theme.h"
#include "platform/values/Errors.h"
#include "support/Fields.h"

#include <QClipboard>
#include <QScrollBar>
#include <QTest>
#include <QVBoxLayout>
#include <QWheelEvent>

namespace {

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
    int panelTop() { return control<QWidget>(*this, "Picture1").y(); }
    void turnWheel(int notches)
    {
        QWheelEvent event(QPointF(5, 5), mapToGlobal(QPointF(5, 5)), {}, {0, notches * 120}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&control<QWidget>(*this, "Picture2"), &event);
    }
    void fill(int rows)
    {
        for (int i = 0; i < rows; ++i)
            grid.AddFeild(QString("Measurement %1").arg(i), QString::number(i));
    }
};

bool isWhollyVisible(const QWidget& widget) { return widget.visibleRegion().boundingRect() == widget.rect(); }

} // namespace

class tst_ItemDetails : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { forms::applyTheme(*qApp, QString()); }

    /// The caption whole, carriage returns too; a value is one line, so that names and values stay equal in
    /// number.
    void rowsGiveBackWhatTheyShow()
    {
        Screen screen;
        screen.grid.AddFeild("a&b <b>\rbold</b> 👔 =", "= & <i> 1/2\" %2 ४०");
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

    void captionsStandOutInTheShopsFont()
    {
        Screen screen;
        for (const auto& [language, family, size] :
             {std::tuple("", "Verdana", 10), std::tuple("Hindi", "Kruti Dev 010", 14)}) {
            screen.grid.ClearList();
            screen.grid.setLanguage(language);
            screen.fill(2);
            for (const int row : {0, 1}) {
                QCOMPARE(screen.caption(row).font().family(), family);
                QCOMPARE(screen.caption(row).font().pointSizeF(), forms::points(size));
            }
        }
        for (const int used : {1, 0}) {
            screen.value(used).setFocus();
            const QImage picture = screen.grab().toImage();
            for (const int row : {0, 1}) {
                const QLabel& caption = screen.caption(row);
                const QPoint edge = caption.mapTo(&screen, QPoint(caption.width() - 4, caption.height() / 2));
                QCOMPARE(picture.pixelColor(edge), QColor(row == used ? Qt::black : Qt::white));
                QCOMPARE(caption.palette().color(QPalette::WindowText),
                         QColor(row == used ? Qt::white : Qt::black));
            }
        }
    }

    void enterWalksTheRowsAndLeaves()
    {
        Screen screen;
        for (const int rows : {4, 3, 0}) {
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

    void theScrollBarFollowsTheRows()
    {
        Screen screen;
        screen.fill(1);
        QVERIFY(!screen.bar().isVisible());
        screen.turnWheel(-1);
        QCOMPARE(screen.panelTop(), 0);

        screen.fill(59); // 60 rows: a panel of 8175 + 59 * 1000 twips
        QCOMPARE(screen.bar().maximum(), 22'392);
        QCOMPARE(screen.bar().singleStep(), 1120);
        QVERIFY(screen.bar().isVisible());
        screen.bar().setValue(3000);
        QCOMPARE(screen.panelTop(), -200);
        for (const auto& [notches, value] : {std::pair(100, 0), std::pair(-100, 22'392)}) {
            screen.turnWheel(notches);
            QCOMPARE(screen.bar().value(), value);
        }
        QVERIFY2(isWhollyVisible(screen.value(59)), "the wheel reaches the last row");

        screen.grid.ClearList();
        QVERIFY(!screen.value(0).isVisible() && !screen.caption(0).isVisible());
        QCOMPARE(screen.bar().maximum(), 2725);
        QCOMPARE(screen.panelTop(), 0);
    }

    /// Downwards the row in use comes to the top; upwards the panel waits until the rows at its head.
    void everyRowComesIntoSight()
    {
        Screen screen;
        screen.fill(60);
        screen.grid.SetFocusToList();
        int scrolled = 0;
        for (int step = 1; step < 119; ++step) {
            const bool down = step < 60;
            swTextBox& value = screen.value(down ? step : 118 - step);
            value.setFocus(down ? Qt::TabFocusReason : Qt::BacktabFocusReason);
            QVERIFY2(isWhollyVisible(value), qPrintable(value.objectName()));
            const int top = value.y() * 15; // the bar counts in twips, less a pixel's rounding
            if (value.y() > screen.grid.height() && (!down || top < screen.bar().maximum())) {
                QVERIFY(!down || qAbs(screen.bar().value() - top) < 15);
                scrolled = screen.bar().value();
            }
            QCOMPARE(screen.bar().value(), scrolled);
        }
        QVERIFY(scrolled > 0);
    }
};

QTEST_MAIN(tst_ItemDetails)
#include "tst_ItemDetails.moc"
