#include "jobcards/ItemDetails.h"

#include "platform/forms/Metrics.h"
#include "platform/forms/Screen.h"
#include "platform/forms/Theme.h"
#include "platform/values/Errors.h"
#include "ui/swTextBox.h"

#include <QClipboard>
#include <QTest>
#include <QVBoxLayout>

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
    void initTestCase();
    void rowsGiveBackWhatTheyHold_data();
    void rowsGiveBackWhatTheyHold();
    void pastedLineBreaksAreBlanks();
    void clearedGridStartsAnew();
    void fontsOfTheCaptions();
    void enterWalksTheRowsAndLeaves();
    void theRowInUseStandsOut();
    void theScrollBarFollowsTheRows();
    void everyRowComesIntoSight();
};

void tst_ItemDetails::initTestCase() { forms::applyTheme(*qApp, QString()); }

void tst_ItemDetails::rowsGiveBackWhatTheyHold_data()
{
    QTest::addColumn<QString>("caption");
    QTest::addColumn<QString>("value");
    QTest::newRow("plain") << "Chest"
                           << "40";
    QTest::newRow("carriage return") << "Chest\rround\r"
                                     << "4 0";
    QTest::newRow("marks") << "a&b <b>bold</b> %1 'x' ="
                           << "= & <i> 1/2\" %2";
    QTest::newRow("emoji and Hindi") << QStringLiteral("👔 छाती") << QStringLiteral("४० 📏");
    QTest::newRow("empty") << ""
                           << "";
    QTest::newRow("very long") << QString(10'000, u'w') << QString(10'000, u'9');
}

void tst_ItemDetails::rowsGiveBackWhatTheyHold()
{
    QFETCH(QString, caption);
    QFETCH(QString, value);
    Screen screen;
    screen.grid.AddFeild("first", "1");
    screen.grid.AddFeild(caption, value);
    QCOMPARE(screen.grid.Count(), 2);
    QString gotCaption, gotValue;
    screen.grid.ListItemText(gotCaption, gotValue, 1);
    QCOMPARE(gotCaption, caption);
    QCOMPARE(gotValue, value);
    QCOMPARE(screen.box(1).accessibleName(), caption);
    QVERIFY(screen.caption(1).width() < screen.width() / 2);
}

/// A value is one line: names and values must stay equal in number.
void tst_ItemDetails::pastedLineBreaksAreBlanks()
{
    Screen screen;
    screen.fill(1);
    screen.grid.SetFocusToList();
    QGuiApplication::clipboard()->setText("12\r\n34\n56");
    screen.box(0).selectAll();
    screen.box(0).paste();
    QString name, value;
    screen.grid.ListItemText(name, value, 0);
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
    QVERIFY(!screen.findChild<swTextBox*>("txtValue_1"));
    QCOMPARE(screen.bar().maximum(), 2725);
    QCOMPARE(screen.panelTop(), 0);
    QString name, value;
    QVERIFY_THROWS_EXCEPTION(SubscriptError, screen.grid.ListItemText(name, value, 1));
    QVERIFY_THROWS_EXCEPTION(SubscriptError, screen.grid.ListItemText(name, value, -1));

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

    screen.fill(19); // 20 rows: a panel of 8175 + 19 * 1000
    QCOMPARE(screen.bar().maximum(), 9058);
    QCOMPARE(screen.bar().singleStep(), 1359);
    QCOMPARE(screen.bar().pageStep(), 1359);
    QVERIFY(screen.bar().isVisible());

    screen.bar().setValue(3000);
    QCOMPARE(screen.panelTop(), -200);
}

void tst_ItemDetails::everyRowComesIntoSight()
{
    Screen screen;
    const int rows = 120;
    screen.fill(rows);
    const int firstHidden = [&] {
        int row = 0;
        while (screen.box(row).y() * 15 <= screen.grid.height() * 15)
            ++row;
        return row;
    }();

    screen.grid.SetFocusToList();
    for (int row = 1; row < rows; ++row) {
        screen.box(row).setFocus(Qt::TabFocusReason);
        QVERIFY2(isWhollyVisible(screen.box(row)), qPrintable(QString::number(row)));
        if (row < firstHidden)
            QCOMPARE(screen.bar().value(), 0);
        else if (row == firstHidden)
            QVERIFY(qAbs(screen.bar().value() - screen.box(row).y() * 15) < 15);
    }
    QVERIFY(screen.bar().value() <= screen.bar().maximum());

    const int lowest = [&] {
        screen.box(firstHidden).setFocus();
        return screen.bar().value();
    }();
    for (int row = firstHidden - 1; row >= 0; --row) {
        screen.box(row).setFocus(Qt::BacktabFocusReason);
        QVERIFY2(isWhollyVisible(screen.box(row)), qPrintable(QString::number(row)));
        QCOMPARE(screen.bar().value(), lowest);
    }
}

QTEST_MAIN(tst_ItemDetails)
#include "tst_ItemDetails.moc"
