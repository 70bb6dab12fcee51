// The immediate line, its history gestures, the result label and the error
// message panel.
#include <QApplication>
#include <QStatusBar>

#include "calculator/elided_label.h"
#include "window_fixture.h"

namespace lapdesk::testing {
namespace {

using ImmediateLineTest = WindowTest;

TEST_F(ImmediateLineTest, EvaluatesLinesAndRecordsThemNewestFirst) {
    const struct {
        const char* line;
        const char* kai;
    } rows[] = {
        {"1+2", "3"},
        {"a = (1+2)", "3"},       // an assignment at the "=" outside brackets
        {"a*2j", "6j"},           // the variable assigned above
        {"  Dim V(3)  ", "0"},    // a declaration, even with leading blanks
        {"V(2) = 1+1j", "1+1j"},  // an element of the declared array
        {"Sqrt(-4", "Error"},     // an unclosed bracket
        {"", "Error"},            // an empty line still makes an entry
    };
    for (const auto& row : rows) {
        TypeLine(QString::fromUtf8(row.line));
        EXPECT_EQ(Kai(), QString::fromUtf8(row.kai)) << row.line;
        EXPECT_EQ(Find<QListWidget>("HistryList")->item(0)->text(),
                  QString::fromUtf8(row.line) + " = " + QString::fromUtf8(row.kai));
    }
    EXPECT_EQ(Find<QListWidget>("HistryList")->count(), 7);
    EXPECT_FALSE(window->ImmediateOk());
}

TEST_F(ImmediateLineTest, ButtonEnterEvaluatesAndHidesTheHint) {
    auto* hint = Find<QLabel>("Label5");
    EXPECT_TRUE(hint->isVisible());
    Immediate()->setText(QStringLiteral("2^10"));
    Click("ButtonEnter");
    EXPECT_EQ(Kai(), QStringLiteral("1024"));
    EXPECT_TRUE(window->ImmediateOk());
    EXPECT_FALSE(hint->isVisible());
    EXPECT_EQ(Immediate()->text(), QStringLiteral("2^10"));
}

TEST_F(ImmediateLineTest, DisplayAndAngleOptionsApplyToTheNextLine) {
    const struct {
        const char* option;  // triggered before the line
        const char* line;
        const char* kai;
    } rows[] = {
        {nullptr, "1/3", "0.333333333333333"},
        {"MenueSingleDisp", "1/3", "0.333333"},
        {"MenueDegree", "Sin(30)", "0.5"},
        {"MenueRadian", "Sin(Pai/6)", "0.5"},
    };
    for (const auto& row : rows) {
        if (row.option != nullptr) Action(row.option)->trigger();
        TypeLine(QString::fromUtf8(row.line));
        EXPECT_EQ(Kai(), QString::fromUtf8(row.kai)) << row.line;
    }
}

// A double-click on the history zooms it; with Ctrl it recalls the line as
// typed instead.
TEST_F(ImmediateLineTest, HistoryDoubleClickZoomsOrRecalls) {
    TypeLine(QStringLiteral("a = 3"));
    TypeLine(QStringLiteral("a+1"));
    auto* history = Find<QListWidget>("HistryList");
    ASSERT_EQ(Rows(history), (QStringList{"a+1 = 4", "a = 3 = 3"}));
    QFont font = history->font();
    font.setPointSize(10);
    history->setFont(font);
    const struct {
        Qt::KeyboardModifiers modifiers;
        int pointSize;
    } steps[] = {
        {Qt::NoModifier, 11},       // larger
        {Qt::ShiftModifier, 10},    // smaller
        {Qt::AltModifier, 11},      // any other state: larger (the floor of 9 is a rule's test)
        {Qt::ControlModifier, 11},  // recalls, does not zoom
    };
    for (const auto& step : steps) {
        DoubleClickRow(history, 1, step.modifiers);
        EXPECT_EQ(history->font().pointSize(), step.pointSize);
    }
    EXPECT_EQ(Immediate()->text(), QStringLiteral("a = 3"));
    // An empty history zooms as well.
    history->clear();
    QTest::mouseDClick(history->viewport(), Qt::LeftButton, {}, QPoint(10, 10));
    EXPECT_EQ(history->font().pointSize(), 12);
}

// A value wider than the result label is cut there and shown whole in the
// tooltip and the history; the window keeps its width.
TEST_F(ImmediateLineTest, ALongResultIsCutNotWidened) {
    auto* kai = Find<ElidedLabel>("kai");
    QFont zoomed = kai->font();
    zoomed.setPointSize(32);  // as far as a user may zoom it
    kai->setFont(zoomed);
    window->resize(window->minimumSizeHint());
    QApplication::processEvents();
    const int width = window->width();
    const QString line = QStringLiteral("-1.23456789012345E+300*(1+1j)/3");
    TypeLine(line);
    QApplication::processEvents();
    ASSERT_GT(kai->fontMetrics().horizontalAdvance(kai->FullText()), kai->width());
    EXPECT_EQ(window->width(), width);
    EXPECT_TRUE(Kai().endsWith(QChar(0x2026))) << Kai().toStdString();
    EXPECT_TRUE(kai->toolTip().startsWith(kai->FullText()));
    EXPECT_EQ(Find<QListWidget>("HistryList")->item(0)->text(), line + " = " + kai->FullText());
}

TEST_F(ImmediateLineTest, ResultAndImmediateBoxZoom) {
    auto* kai = Find<QLabel>("kai");
    const int kaiSize = kai->font().pointSize();
    QTest::mouseClick(kai, Qt::LeftButton);
    EXPECT_EQ(kai->font().pointSize(), kaiSize + 1);
    QTest::mouseClick(kai, Qt::LeftButton, Qt::ShiftModifier);
    EXPECT_EQ(kai->font().pointSize(), kaiSize);
    QTest::mousePress(kai, Qt::LeftButton, {}, QPoint(5, 5));
    QTest::mouseRelease(kai, Qt::LeftButton, {}, QPoint(80, 5));
    EXPECT_EQ(kai->font().pointSize(), kaiSize) << "a drag selects, it does not zoom";

    QLineEdit* box = Immediate();
    const int boxSize = box->font().pointSize();
    QTest::mouseDClick(box, Qt::LeftButton);
    EXPECT_EQ(box->font().pointSize(), boxSize + 1);
    QTest::mouseDClick(box, Qt::LeftButton, Qt::ShiftModifier);
    EXPECT_EQ(box->font().pointSize(), boxSize);
}

TEST_F(ImmediateLineTest, WaiteBlocksUntilDoubleClicked) {
    bool waitingMeanwhile = false;
    QTimer::singleShot(0, window.get(), [&] {
        waitingMeanwhile = window->MessageWaiting();
        QTest::mouseDClick(Find<QLabel>("MessageBox"), Qt::LeftButton);
    });
    window->Waite();
    EXPECT_TRUE(waitingMeanwhile);
    EXPECT_FALSE(window->MessageWaiting());
}

TEST_F(ImmediateLineTest, OneDoubleClickEndsNestedWaits) {
    window->disconnect(SIGNAL(messageShown(QString)));
    bool innerReturned = false;
    QString shownWhenDismissed;
    QObject::connect(
        window.get(), &FrmCplCal::messageShown, window.get(),
        [&](const QString& message) {
            if (message == QStringLiteral("first")) {
                window->Errmessage("second");
                innerReturned = true;
                return;
            }
            shownWhenDismissed = Find<QLabel>("MessageBox")->text();
            QTest::mouseDClick(Find<QLabel>("MessageBox"), Qt::LeftButton);
        },
        Qt::QueuedConnection);
    window->Errmessage("first");
    EXPECT_TRUE(innerReturned);
    EXPECT_EQ(shownWhenDismissed, QStringLiteral("second"));
    EXPECT_FALSE(window->MessageWaiting());
}

TEST_F(ImmediateLineTest, AFailedLineShowsItsOwnReason) {
    const struct {
        const char* line;
        const char* reason;  // on the status line; "" for none
    } rows[] = {
        {"1/0", "0 で除算しました。"},
        {"(1+2", "括弧が閉じていません"},
        {"1+1", ""},
        {"Sin(pi/2)", "「pi」は定義されていません（円周率は PAI または π）"},
    };
    for (const auto& row : rows) {
        TypeLine(QString::fromUtf8(row.line));
        EXPECT_EQ(window->statusBar()->currentMessage(), QString::fromUtf8(row.reason)) << row.line;
    }
}

// Up walks to older lines, Down back to newer ones and past the newest to an
// empty line; the entry recalled is the line as typed.
TEST_F(ImmediateLineTest, UpAndDownWalkTheHistory) {
    for (const char* line : {"1+1", "a = 3", "a*2"})
        TypeLine(QString::fromUtf8(line));
    const struct {
        Qt::Key key;
        const char* shown;
    } steps[] = {{Qt::Key_Up, "a*2"}, {Qt::Key_Up, "a = 3"},   {Qt::Key_Up, "1+1"},
                 {Qt::Key_Up, "1+1"}, {Qt::Key_Down, "a = 3"}, {Qt::Key_Down, "a*2"},
                 {Qt::Key_Down, ""}};
    for (const auto& step : steps) {
        QTest::keyClick(Immediate(), step.key);
        EXPECT_EQ(Immediate()->text(), QString::fromUtf8(step.shown));
    }
    EXPECT_EQ(Find<QListWidget>("HistryList")->item(0)->toolTip(), QStringLiteral("a*2 = 6"))
        << "a long entry can be read whole";
}

}  // namespace
}  // namespace lapdesk::testing
