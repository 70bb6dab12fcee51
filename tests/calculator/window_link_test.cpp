// The link to the transform window and the data-channel menus.
#include <QMenu>
#include <chrono>
#include <thread>

#include "window_fixture.h"

namespace lapdesk::testing {
namespace {

// Stores N = 256 as the transform's parameter and makes its data by running
// the program once at p = 2.
class FakeTransform : public TransformPartner {
  public:
    explicit FakeTransform(FrmCplCal& calculator) : calculator_(calculator) {}
    void ASetLapOpValur() override {
        calls << QStringLiteral("ASetLapOpValur");
        calculator_.interpreter().ImmediateLine("N = 256");
    }
    bool TesmorDataSet() override {
        calls << QStringLiteral("TesmorDataSet");
        calculator_.interpreter().ImmediateLine("p = 2");
        double re = 0.0;
        double im = 0.0;
        made = calculator_.interpreter().RunProgram(re, im, false, true);
        value = re;
        return made;
    }
    void ZOrder() override { calls << QStringLiteral("ZOrder"); }

    QStringList calls;
    bool made = false;
    double value = 0.0;

  private:
    FrmCplCal& calculator_;
};

class FakeChannels : public ChannelClient {
  public:
    void DmChnMenueLoad(const ChannelMenus& menus) override {
        menus.chVp->addAction(QStringLiteral("Vp(1):入力電圧"));
        menus.chVp->addAction(QStringLiteral(" Ch2:出力電圧"));
        menus.aver->addAction(QStringLiteral("Aver(1):平均"));
        menus.dmConstants->addAction(QStringLiteral("DT:サンプリング間隔"));
    }
};

using LinkTest = WindowTest;

// Made data bring the transform window forward; failed data leave it behind
// with the error shown.
TEST_F(LinkTest, MakeDataAsksTheTransformAndBringsItForwardOnlyOnSuccess) {
    FakeTransform transform(*window);
    EXPECT_FALSE(Find<QWidget>("ButtonExeProgToMakeTesmorData")->isVisible());
    window->ButtonExeProgToMakeTesmorData_Click();
    EXPECT_TRUE(transform.calls.isEmpty()) << "nothing before a transform registers";

    window->TesmorCliant(&transform);
    EXPECT_TRUE(window->TesmorLinked());
    SetProgram(QStringLiteral("Return 1/(p+1)\nEnd"));
    Click("ButtonExeProgToMakeTesmorData");
    EXPECT_EQ(transform.calls, (QStringList{"ASetLapOpValur", "TesmorDataSet", "ZOrder"}));
    EXPECT_DOUBLE_EQ(transform.value, 1.0 / 3.0);
    EXPECT_TRUE(messages.isEmpty());

    transform.calls.clear();
    Editor()->setPlainText(QStringLiteral("Return 1/(p-2)\nEnd"));
    Click("ButtonExeProgToMakeTesmorData");
    EXPECT_EQ(transform.calls, (QStringList{"ASetLapOpValur", "TesmorDataSet"}));
    EXPECT_EQ(messages.size(), 1);
}

TEST_F(LinkTest, LinkedRunKeepsTheTransformParameters) {
    FakeTransform transform(*window);
    window->TesmorCliant(&transform);
    script->answers = {QMessageBox::Yes};
    Action("MenueClearGlVar")->trigger();
    TypeLine(QStringLiteral("old = 1"));
    SetProgram(QStringLiteral("Return N\nEnd"));
    Click("ButtonPrgRun");
    EXPECT_EQ(Kai(), QStringLiteral("Result=256"));
    EXPECT_EQ(transform.calls, QStringList{"ASetLapOpValur"});
    EXPECT_EQ(window->interpreter().ImmediatePage().NumofMemory(), 1) << "old was erased, N kept";
}

TEST_F(LinkTest, ChannelMenusAreFilledByTheClientAndInsert) {
    window->LoadDmChnMenue();
    EXPECT_TRUE(Find<QMenu>("MenueChVp")->actions().isEmpty()) << "no client yet";
    EXPECT_FALSE(Find<QMenu>("MenueData")->menuAction()->isVisible()) << "no empty menus";
    FakeChannels channels;
    window->DmCliant(&channels);
    ASSERT_EQ(Find<QMenu>("MenueChVp")->actions().size(), 2);
    EXPECT_TRUE(Find<QMenu>("MenueData")->menuAction()->isVisible());
    EXPECT_TRUE(Find<QMenu>("MenueAver")->menuAction()->isVisible());
    EXPECT_FALSE(Find<QMenu>("MenueChVp2")->menuAction()->isVisible()) << "this one stays empty";
    const struct {
        const char* menu;
        int index;
        const char* text;
        int caret;
    } rows[] = {
        {"MenueChVp", 0, "Vp()", 3},
        {"MenueChVp", 1, "Ch2", 3},
        {"MenueAver", 0, "Aver()", 5},
        {"MenueDmConstats", 0, "DT", 2},
    };
    for (const auto& row : rows) {
        Immediate()->clear();
        Immediate()->setFocus();
        Find<QMenu>(row.menu)->actions()[row.index]->trigger();
        EXPECT_EQ(Immediate()->text(), QString::fromUtf8(row.text)) << row.menu;
        EXPECT_EQ(Immediate()->cursorPosition(), row.caret) << row.menu;
    }
}

TEST_F(LinkTest, ProgressViewSwapsTheKeyboardForTheMeter) {
    window->SetProgressView(true);
    EXPECT_FALSE(Find<QWidget>("FrameKeyBoard")->isVisible());
    EXPECT_FALSE(Find<QWidget>("PrgRningBox")->isHidden());
    window->SetProgressView(false);
    EXPECT_TRUE(Find<QWidget>("FrameKeyBoard")->isVisible());
    EXPECT_TRUE(Find<QWidget>("PrgRningBox")->isHidden());
}

// The transform's data creation asks for the progress view; it comes only
// when the creation is still going one pace later, and a short creation
// leaves the keyboard where it was.
TEST_F(LinkTest, ProgressViewComesOnlyForADataCreationThatLasts) {
    window->ShowTransformProgress(true);
    window->ProcessEvents();
    EXPECT_TRUE(Find<QWidget>("FrameKeyBoard")->isVisible()) << "a short creation";
    EXPECT_TRUE(Find<QWidget>("PrgRningBox")->isHidden());
    window->ShowTransformProgress(false);

    window->ShowTransformProgress(true);
    std::this_thread::sleep_for(std::chrono::milliseconds(60));  // past one pace
    window->ProcessEvents();
    EXPECT_FALSE(Find<QWidget>("FrameKeyBoard")->isVisible()) << "a lasting creation";
    EXPECT_FALSE(Find<QWidget>("PrgRningBox")->isHidden());
    window->ShowTransformProgress(false);
    EXPECT_TRUE(Find<QWidget>("FrameKeyBoard")->isVisible());
    EXPECT_TRUE(Find<QWidget>("PrgRningBox")->isHidden());
}

// The buttons show a run (the run button disabled) only once it lets events
// run, one pace into it: a short run leaves the window as it was.
TEST_F(LinkTest, ARunShowsItselfOnlyWhenItLetsEventsRun) {
    struct Probe : TransformPartner {
        FrmCplCal* window = nullptr;
        QPushButton* run = nullptr;
        std::chrono::milliseconds length{0};
        bool enabledDuringRun = true;
        void ASetLapOpValur() override {}
        bool TesmorDataSet() override {
            std::this_thread::sleep_for(length);
            window->ProcessEvents();
            enabledDuringRun = run->isEnabled();
            return false;
        }
        void ZOrder() override {}
    } probe;
    probe.window = window.get();
    probe.run = Find<QPushButton>("ButtonPrgRun");
    window->TesmorCliant(&probe);
    window->ButtonExeProgToMakeTesmorData_Click();
    EXPECT_TRUE(probe.enabledDuringRun) << "a short run";
    probe.length = std::chrono::milliseconds(60);  // past one pace
    window->ButtonExeProgToMakeTesmorData_Click();
    EXPECT_FALSE(probe.enabledDuringRun) << "a lasting run";
    EXPECT_TRUE(probe.run->isEnabled()) << "after the run";
}

}  // namespace
}  // namespace lapdesk::testing
