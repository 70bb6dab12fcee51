// The plot box in the window: what the buttons draw, Esc stopping a drawing,
// the cursor readout and its copy, and the result frame over the plot.
#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QListWidget>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QWheelEvent>

#include "form_fixture.h"

namespace lapdesk::testing {
namespace {

using PlotTest = FormTest;

TEST_F(PlotTest, TheButtonsDrawDataAndResultAndClearTheBox) {
    RunProgram(QStringLiteral("Return 1/(p+1)\nEnd"));
    EXPECT_EQ(Scrn()->view(), PlotView::Result) << "a transform draws its result";
    EXPECT_EQ(Text("NowDispLb"), QStringLiteral("Res"));
    Click("ButtonDrawLapData");
    EXPECT_EQ(Scrn()->view(), PlotView::Data);
    EXPECT_EQ(Scrn()->DrawnPoints(), 512);
    EXPECT_EQ(Text("NowDispLb"), QStringLiteral("Data"));
    Click("ButtonClearScreen");
    EXPECT_EQ(Scrn()->DrawnPoints(), 0);
    EXPECT_EQ(Text("NowDispLb"), QString());
    Click("ButtonDrawResult");
    EXPECT_EQ(Scrn()->view(), PlotView::Result);
    EXPECT_EQ(Scrn()->DrawnPoints(), 256);
    EXPECT_DOUBLE_EQ(Scrn()->xAxis->range().upper, 5.0);
    const SampleSeries& result = form->driver().Store()[kResult];
    EXPECT_GT(Scrn()->yAxis->range().upper, result.MaxValue) << "scaled by the kept extremes";
    EXPECT_LT(Scrn()->yAxis->range().upper, 1.1 * result.MaxValue + 1e-9);
}

TEST_F(PlotTest, EscStopsADrawingInProgress) {
    QTest::mouseClick(Find<QLabel>("WordNumberLb"), Qt::LeftButton);
    auto* list = Find<QListWidget>("WrdList");
    QListWidgetItem* n4096 = list->findItems(QStringLiteral("4096"), Qt::MatchExactly).front();
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(n4096).center());
    RunProgram(QStringLiteral("Return 1/(p+1)\nEnd"));
    ASSERT_EQ(Text("DataSourceLb"), QStringLiteral("Math"));
    // Esc arrives while the drawing lets events run for the first time.
    QMetaObject::invokeMethod(
        form.get(), [this] { QTest::keyClick(form.get(), Qt::Key_Escape); }, Qt::QueuedConnection);
    QTest::mouseClick(Find<QPushButton>("ButtonDrawLapData"), Qt::LeftButton);
    EXPECT_EQ(Text("NowDispLb"), QString());
    EXPECT_GT(Scrn()->DrawnPoints(), 0);
    EXPECT_LT(Scrn()->DrawnPoints(), 2 * 4096);
}

TEST_F(PlotTest, TheReadoutFollowsTheCursorAndIsCopiedOnRightClick) {
    RunProgram(QStringLiteral("Return 1/(p+1)\nEnd"));
    Find<QWidget>("Frame3")->hide();
    ScrnPlot* scrn = Scrn();
    const QPoint at(scrn->xAxis->coordToPixel(1.25), scrn->yAxis->coordToPixel(0.5));
    QTest::mouseMove(scrn, at);
    const QString t = QString::fromStdString(ReadoutText("t= ", scrn->xAxis->pixelToCoord(at.x())));
    const QString y = QString::fromStdString(ReadoutText("y= ", scrn->yAxis->pixelToCoord(at.y())));
    EXPECT_TRUE(t.startsWith(QStringLiteral("t= 1.2"))) << t.toStdString();
    EXPECT_EQ(Text("PosX"), t);
    EXPECT_EQ(Text("PosY"), y);
    auto* floating = Find<QLabel>("FloatLb");
    EXPECT_TRUE(floating->isVisible());
    EXPECT_EQ(floating->text(), t + QStringLiteral("\n") + y);
    EXPECT_TRUE(scrn->rect().contains(floating->geometry())) << "kept inside the plot";

    QApplication::clipboard()->setText(QStringLiteral("old"));
    QTest::mouseClick(scrn, Qt::RightButton, {}, at);
    EXPECT_EQ(QApplication::clipboard()->text(), floating->text());

    Click("ButtonDrawLapData");
    QTest::mouseMove(scrn, QPoint(scrn->xAxis->coordToPixel(128.0), at.y()));
    EXPECT_EQ(Text("PosX"), QStringLiteral("k= 128")) << "data are read by sample index";
}

// Dragging pans, the wheel zooms, and the readout and its copy follow both.
TEST_F(PlotTest, TheReadoutFollowsAPanAndAZoom) {
    RunProgram(QStringLiteral("Return 1/(p+1)\nEnd"));
    Find<QWidget>("Frame3")->hide();
    ScrnPlot* scrn = Scrn();
    const QPoint start = scrn->axisRect()->rect().center();
    const QPoint end = start - QPoint(120, 0);
    const double lower = scrn->xAxis->range().lower;
    QTest::mouseMove(scrn, start);
    QTest::mousePress(scrn, Qt::LeftButton, {}, start);
    QMouseEvent drag(QEvent::MouseMove, QPointF(end), QPointF(scrn->mapToGlobal(end)), Qt::NoButton,
                     Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(scrn, &drag);
    QTest::mouseRelease(scrn, Qt::LeftButton, {}, end);
    QApplication::processEvents();  // the queued replot of the pan
    const QString t =
        QString::fromStdString(ReadoutText("t= ", scrn->xAxis->pixelToCoord(end.x())));
    EXPECT_GT(scrn->xAxis->range().lower, lower) << "dragged to the left shows later t";
    EXPECT_EQ(Text("PosX"), t) << "read with the axes after the pan";

    const double width = scrn->xAxis->range().size();
    QWheelEvent wheel(QPointF(end), QPointF(scrn->mapToGlobal(end)), QPoint(), QPoint(0, 120),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(scrn, &wheel);
    QApplication::processEvents();
    EXPECT_LT(scrn->xAxis->range().size(), width) << "zoomed in";
    const QPoint elsewhere = end + QPoint(0, 40);
    QTest::mouseClick(scrn, Qt::RightButton, {}, elsewhere);
    const QString y =
        QString::fromStdString(ReadoutText("y= ", scrn->yAxis->pixelToCoord(elsewhere.y())));
    EXPECT_TRUE(QApplication::clipboard()->text().endsWith(y))
        << QApplication::clipboard()->text().toStdString();
}

TEST_F(PlotTest, TheFloatingReadoutStaysInsideAndLeavesWithTheMouse) {
    ScrnPlot* scrn = Scrn();
    QTest::mouseMove(scrn, QPoint(scrn->width() - 2, scrn->height() - 2));
    auto* floating = Find<QLabel>("FloatLb");
    ASSERT_TRUE(floating->isVisible());
    EXPECT_TRUE(scrn->rect().contains(floating->geometry())) << "near the corner";
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(scrn, &leave);
    EXPECT_FALSE(floating->isVisible());
    scrn->replot();
    EXPECT_FALSE(floating->isVisible()) << "a replot does not bring it back";
}

TEST_F(PlotTest, TheResultFrameShowsTheTableAndHides) {
    RunProgram(QStringLiteral("Return 1/(p+1)\nEnd"));
    auto* frame = Find<QWidget>("Frame3");
    auto* text = Find<QPlainTextEdit>("Text1");
    ASSERT_TRUE(frame->isVisible()) << "a transform shows its table";
    EXPECT_TRUE(text->isReadOnly());
    const QStringList lines = text->toPlainText().split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    ASSERT_EQ(lines.size(), 256 + 3);
    EXPECT_EQ(lines[0], QStringLiteral("Word Number,  Tend      ,  Ganma "));
    EXPECT_TRUE(Scrn()->rect().contains(frame->geometry()));

    QTest::mouseClick(Find<QAbstractButton>("Check1"), Qt::LeftButton);
    EXPECT_FALSE(text->isReadOnly());
    QTest::mouseClick(Find<QAbstractButton>("Check1"), Qt::LeftButton);
    EXPECT_TRUE(text->isReadOnly());

    Click("Command1");
    EXPECT_FALSE(frame->isVisible());
    Action("MenueResultMemo")->trigger();
    EXPECT_TRUE(frame->isVisible());
    Click("ButtonCallPfunction");
    EXPECT_FALSE(frame->isVisible()) << "opening the calculator hides the table";
    EXPECT_TRUE(Calculator().isVisible());
}

// Shrinking the window to its least size brings the frame back inside the
// plot, its buttons whole; growing it again gives the frame its size back.
TEST_F(PlotTest, TheResultFrameStaysInsideTheSmallestPlot) {
    RunProgram(QStringLiteral("Return 1/(p+1)\nEnd"));
    auto* frame = Find<QWidget>("Frame3");
    const QSize full = frame->size();
    const QSize opened = form->size();
    form->resize(form->minimumSizeHint());
    QApplication::processEvents();
    ASSERT_TRUE(frame->isVisible());
    EXPECT_TRUE(Scrn()->rect().contains(frame->geometry()));
    for (const char* name : {"Command1", "Command3", "Check1"}) {
        auto* button = Find<QWidget>(name);
        EXPECT_TRUE(
            frame->rect().contains(QRect(button->mapTo(frame, QPoint(0, 0)), button->size())))
            << name;
    }
    form->resize(opened);
    QApplication::processEvents();
    EXPECT_EQ(frame->size(), full);
}

TEST_F(PlotTest, TheResultFrameIsDraggedWithTheLeftButton) {
    form->resize(1180, 720);  // room to the frame's left, whatever the screen
    QApplication::processEvents();
    Action("MenueResultMemo")->trigger();
    auto* frame = Find<QWidget>("Frame3");
    const QPoint start = frame->pos();
    const QPoint grab(frame->width() / 2, 6);  // on the title
    QTest::mousePress(frame, Qt::LeftButton, {}, grab);
    QMouseEvent drag(QEvent::MouseMove, QPointF(grab - QPoint(40, -30)),
                     frame->mapToGlobal(QPointF(grab - QPoint(40, -30))), Qt::NoButton,
                     Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(frame, &drag);
    QTest::mouseRelease(frame, Qt::LeftButton, {}, grab - QPoint(40, -30));
    EXPECT_EQ(frame->pos(), start + QPoint(-40, 30));
    EXPECT_TRUE(Scrn()->rect().contains(frame->geometry()));
}

}  // namespace
}  // namespace lapdesk::testing
