#include "jobcards/ItemDetails.h"

#include "platform/forms/Metrics.h"
#include "platform/forms/Screen.h"
#include "platform/forms/Theme.h"
#include "platform/values/Errors.h"
#include "ui/swTextBox.h"

#include <QClipboard>
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
        for (QWidget* field :
             {static_cast<QWidget*>(&before), static_cast<QWidget*>(&grid), static_cast<QWidget*>(&after)})
            layout->addWidget(field);
        setTabOrder(&before, &grid);
        setTabOrder(&grid, &after);
        resize(400, 400);
        showModeless();
        (void)QTest::qWaitForWindowActive(this);
    }

    swTextBox& box(int row) { return *findChild<swTextBox*>(QStringLiteral("txtValue_%1").arg(row)); }
    QLabel& caption(int row) { return *findChild<QLabel*>(QStringLiteral("lblCap_%1").arg(row)); }
    QScrollBar& bar() { return *findChild<QScrollBar*>("VScroll1"); }
    int panelTop() { return findChild<QWidget*>("Picture1")->y(); }
    void turnWheel(int notches)
    {
        QWheelEvent event(QPointF(5, 5), mapToGlobal(QPointF(5, 5)), {}, {0, notches * 120}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(findChild<QWidget*>("Picture2"), &event);
    }
    void fill(int rows)
    {
        for (int i = 0; i < rows; ++i)
            grid.AddFeild(QStringLiteral("Measurement %1").arg(i), QString::number(i));
    }
};

bool isWhollyVisible(const QWidget& widget) { return widget.visibleRegion().boundingRect() == widget.rect(); }

} // namespace

class tst_ItemDetails : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { forms::applyTheme(*qApp, QString()); }
    void rowsGiveBackWhatTheyShow();
    void clearedGridStartsAnew();
    void fontsOfTheCaptions();
    void enterWalksTheRowsAndLeaves();
    void theRowInUseStandsOut();
    void theScrollBarFollowsTheRows();
    void everyRowComesIntoSight();
};

/// The caption whole, carriage returns too; a value is one line, so that names and values stay equal in
/// number.
void tst_ItemDetails::rowsGiveBackWhatTheyShow()
{
    Screen screen;
    const QStringList captions{
        "Chest\rround\r", "a&b <b>bold</b> %1 'x' =", QStringLiteral("👔 छाती"), {}, QString(10'000, u'w')};
    const QStringList values{"4 0", "= & <i> 1/2\" %2", QStringLiteral("४० 📏"), {}, QString(10'000, u'9')};
    for (qsizetype i = 0; i < captions.size(); ++i)
        screen.grid.AddFeild(captions[i], values[i]);
    QString caption, value;
    for (int i = 0; i < screen.grid.Count(); ++i) {
        screen.grid.ListItemText(caption, value, i);
        QCOMPARE(caption, captions[i]);
        QCOMPARE(value, values[i]);
        QVERIFY(screen.caption(i).geometry().right() < screen.box(i).x());
    }

    QGuiApplication::clipboard()->setText("12\r\n34\n56");
    screen.box(0).selectAll();
    screen.box(0).paste();
    screen.grid.ListItemText(caption, value, 0);
    QVERIFY2(!value.contains(u'\r') && !value.contains(u'\n'), qPrintable(value));
    QVERIFY(value.startsWith("12") && value.endsWith("56"));
}

void tst_ItemDetails::clearedGridStartsAnew()
{
    Screen screen;
    screen.fill(40);
    screen.bar().setValue(screen.bar().maximum());
    screen.grid.ClearList();
    QCOMPARE(screen.grid.Count(), 0);
    QVERIFY(!screen.box(0).isVisible() && !screen.caption(0).isVisible());
    QCOMPARE(screen.bar().maximum(), 2725);
    QCOMPARE(screen.panelTop(), 0);
    QString name, value;
    for (int row : {1, -1})
        QVERIFY_THROWS_EXCEPTION(SubscriptError, screen.grid.ListItemText(name, value, row));

    screen.fill(2);
    QCOMPARE(screen.grid.Count(), 2);
    QVERIFY(isWhollyVisible(screen.box(0)) && isWhollyVisible(screen.box(1)));
}

void tst_ItemDetails::fontsOfTheCaptions()
{
    Screen screen;
    screen.fill(1);
    QCOMPARE(screen.caption(0).font().family(), "Verdana");
    QCOMPARE(screen.caption(0).font().pointSizeF(), forms::points(10));

    screen.grid.ClearList();
    screen.grid.setLanguage("Hindi");
    screen.fill(2);
    for (int row : {0, 1}) {
        QCOMPARE(screen.caption(row).font().family(), "Kruti Dev 010");
        QCOMPARE(screen.caption(row).font().pointSizeF(), forms::points(14));
    }
}

void tst_ItemDetails::enterWalksTheRowsAndLeaves()
{
    Screen screen;
    for (int rows : {4, 3}) {
        screen.grid.ClearList();
        screen.fill(rows);
        screen.before.setFocus();
        QTest::keyClick(&screen.before, Qt::Key_Tab);
        for (int row = 0; row < rows; ++row) {
            QCOMPARE(QApplication::focusWidget(), &screen.box(row));
            QTest::keyClick(&screen.box(row), Qt::Key_Return);
        }
        QCOMPARE(QApplication::focusWidget(), &screen.after);
        QTest::keyClick(&screen.after, Qt::Key_Backtab, Qt::ShiftModifier);
        QCOMPARE(QApplication::focusWidget(), &screen.box(rows - 1));
    }
    screen.grid.ClearList();
    screen.before.setFocus();
    screen.grid.SetFocusToList();
    QCOMPARE(QApplication::focusWidget(), &screen.before);
    QTest::keyClick(&screen.before, Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), &screen.after);
}

void tst_ItemDetails::theRowInUseStandsOut()
{
    Screen screen;
    screen.fill(2);
    const auto background = [&screen](int row) {
        QLabel& label = screen.caption(row);
        const QImage picture = label.window()->grab().toImage();
        return picture.pixelColor(label.mapTo(label.window(), QPoint(label.width() - 4, label.height() / 2)));
    };
    screen.box(1).setFocus();
    QCOMPARE(background(1), QColor(Qt::black));
    QCOMPARE(screen.caption(1).palette().color(QPalette::WindowText), QColor(Qt::white));
    QCOMPARE(background(0), QColor(Qt::white));
    QCOMPARE(screen.caption(1).font(), screen.caption(0).font());
    screen.box(0).setFocus();
    QCOMPARE(background(0), QColor(Qt::black));
    QCOMPARE(background(1), QColor(Qt::white));
    QCOMPARE(screen.caption(1).palette().color(QPalette::WindowText), QColor(Qt::black));
}

void tst_ItemDetails::theScrollBarFollowsTheRows()
{
    Screen screen;
    screen.fill(1);
    QCOMPARE(screen.bar().maximum(), 2725);
    QVERIFY(!screen.bar().isVisible());
    screen.turnWheel(-1);
    QCOMPARE(screen.panelTop(), 0);

    screen.fill(59); // 60 rows: a panel of 8175 + 59 * 1000
    QCOMPARE(screen.bar().maximum(), 22'392);
    QCOMPARE(screen.bar().singleStep(), 1120);
    QCOMPARE(screen.bar().pageStep(), 1120);
    QVERIFY(screen.bar().isVisible());
    screen.bar().setValue(3000);
    QCOMPARE(screen.panelTop(), -200);

    screen.turnWheel(-100);
    QCOMPARE(screen.bar().value(), 22'392);
    QVERIFY2(isWhollyVisible(screen.box(59)), "the wheel reaches the last row");
    screen.turnWheel(100);
    QCOMPARE(screen.bar().value(), 0);
    QCOMPARE(screen.panelTop(), 0);
}

void tst_ItemDetails::everyRowComesIntoSight()
{
    Screen screen;
    constexpr int rows = 60;
    screen.fill(rows);
    screen.grid.SetFocusToList();
    int scrolled = 0;
    for (int row = 1; row < rows; ++row) {
        screen.box(row).setFocus(Qt::TabFocusReason);
        QVERIFY2(isWhollyVisible(screen.box(row)), qPrintable(QString::number(row)));
        const int top = screen.box(row).y() * 15; // the bar counts in twips, less a pixel's rounding
        if (top > screen.grid.height() * 15 && top < screen.bar().maximum()) {
            QVERIFY(qAbs(screen.bar().value() - top) < 15);
            QCOMPARE(screen.panelTop(), -screen.box(row).y());
            scrolled = screen.bar().value();
        }
        QCOMPARE(screen.bar().value(), scrolled);
    }
    QVERIFY(scrolled > 0);

    scrolled = -1;
    for (int row = rows - 1; row >= 0; --row) {
        screen.box(row).setFocus(Qt::BacktabFocusReason);
        QVERIFY2(isWhollyVisible(screen.box(row)), qPrintable(QString::number(row)));
        if (screen.box(row).y() > screen.grid.height())
            scrolled = screen.bar().value();
        else
            QCOMPARE(screen.bar().value(), scrolled);
    }
}

QTEST_MAIN(tst_ItemDetails)
#include "tst_ItemDetails.moc"
