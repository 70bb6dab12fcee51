// The transform window at start: its controls and menus with their texts,
// the defaults, the link to the calculator, and the enabling rules of the
// state labels.
#include <QAbstractButton>
#include <QGroupBox>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>

#include "form_fixture.h"
#include "transform/window/window_placement.h"

namespace lapdesk::testing {
namespace {

using ControlsTest = FormTest;

QString Caption(QObject* control) {
    if (auto* button = qobject_cast<QAbstractButton*>(control)) return button->text();
    if (auto* label = qobject_cast<QLabel*>(control)) return label->text();
    if (auto* frame = qobject_cast<QGroupBox*>(control)) return frame->title();
    return QStringLiteral("<no caption>");
}

TEST_F(ControlsTest, ControlsCarryTheirCaptionsAndTooltips) {
    const struct {
        const char* name;
        const char* caption;
        const char* tip;
    } rows[] = {
        {"Frame3", "計算結果", "計算結果：ドラッグで移動可"},
        {"Command1", "Hide", ""},
        {"Command3", "File Out", ""},
        {"Check1", "編集", "テキスト編集を可能にする"},
        {"Label8", "データ虚部", "被逆変換関数値の虚部データ"},
        {"Label7", "データ実部", "被逆変換関数値の実部データ"},
        {"Label6", "結果", "逆変換結果"},
        {"WordNumberLb", "256", "Ｎ設定（逆変換用データを読み込んだ場合は変更してはいけません）"},
        {"TendLb", "5", "Ｔ設定（逆変換用データを読み込んだ場合は変更してはいけません）"},
        {"Ganmalb", "5", "γ設定（逆変換用データを読み込んだ場合は変更してはいけません）"},
        {"HaningCheck", "H.W.", "ハニングウインドゥ使用"},
        {"Label2", "計算点数 N", ""},
        {"Label3", "計算時間 Ｔ", ""},
        {"Label4", "γ0=γ×Ｔ", ""},
        {"Label5", "Cos Table", ""},
        {"ResultLb", "Non", ""},
        {"DataSourceLb", "Non", ""},
        {"CosinTableLb", "0", ""},
        {"Frame1", "プログラム計算", "被逆変換関数を計算するプログラムの作成及び実行"},
        {"Command2", "実行",
         "現在プログラムされている関数の逆変換データを用データを作成し，直ちに逆変換します（Ｎ，"
         "Ｔ，γを自由に設定可）"},
        {"ButtonCallPfunction", "作成",
         "プログラムウインドウを開き被逆変換関数を計算するためのプログラムを作成します．"},
        {"ButtonExeTesmor", "逆変換", "直前に計算又は読み込んだ逆変換用データを逆変換"},
        {"ButtonClearScreen", "画面消去", "画面をクリア"},
        {"ButtonDrawLapData", "データ表示",
         "直前に計算又はファイルから読み込んだ逆変換用データを表示"},
        {"ButtonDrawResult", "結果表示", "直前に逆変換した結果を再表示"},
        {"ButtonDataRead", "データ読込",
         "計算済みの逆変換用データをN，Ｔ，γも含めてテキストファイルから読み込む（拡張子はLdt）"},
        {"ButtonResultWrite", "結果保存",
         "計算結果の逆変換用データ及び逆変換結果をテキストファイルに保存"},
        {"Label10", "右クリックでカーソル位置の", ""},
        {"Label11", "値をコピー", ""},
        {"Label9", "←計算値を表示", ""},
        {"PosX", "t= ", ""},
        {"PosY", "y= ", ""},
    };
    for (const auto& row : rows) {
        auto* control = Find<QWidget>(row.name);
        if (control == nullptr) continue;
        EXPECT_EQ(Caption(control), QString::fromUtf8(row.caption)) << row.name;
        EXPECT_EQ(control->toolTip(), QString::fromUtf8(row.tip)) << row.name;
    }
}

TEST_F(ControlsTest, MenusCarryTheirItemsInOrder) {
    const struct {
        const char* menu;
        const char* title;
        std::vector<std::pair<const char*, const char*>> items;  // name, caption ("" separator)
    } rows[] = {
        {"FileMenues",
         "ファイル",
         {{"MenueReadLapData", "計算済み逆変換用データ読込"},
          {"MenueWriteResult", "逆変換データ及び結果保存"},
          {"MenueAccuracyCsv", "精度データCSV出力"},
          {"MenueLine01", ""},
          {"MenueResultMemo", "結果のテキストメモ表示"},
          {"MenueEnd", "終了"}}},
        {"DataMenues",
         "データ作成",
         {{"MenueMathemat", "プログラム作成"},
          {"MenueMathematRun", "実行"},
          {"MenueMathematline00", ""},
          {"MenueProgramRead", "逆変換関数計算プログラム読込"},
          {"MenueProgramWrite", "逆変換関数計算プログラム保存"}}},
    };
    for (const auto& row : rows) {
        auto* menu = Find<QMenu>(row.menu);
        if (menu == nullptr) continue;
        EXPECT_EQ(menu->title(), QString::fromUtf8(row.title));
        const QList<QAction*> actions = menu->actions();
        ASSERT_EQ(actions.size(), static_cast<qsizetype>(row.items.size())) << row.menu;
        for (qsizetype k = 0; k < actions.size(); ++k) {
            const auto& [name, caption] = row.items[static_cast<std::size_t>(k)];
            EXPECT_EQ(actions[k]->objectName(), QString::fromLatin1(name));
            EXPECT_EQ(actions[k]->text(), QString::fromUtf8(caption)) << name;
            EXPECT_EQ(actions[k]->isSeparator(), *caption == '\0') << name;
        }
    }
}

TEST_F(ControlsTest, StartsWithTheDefaultsAndALinkedCalculator) {
    EXPECT_EQ(form->windowTitle(), QStringLiteral("逆ラプラス変換"));
    EXPECT_TRUE(Find<QAbstractButton>("HaningCheck")->isChecked());
    EXPECT_TRUE(form->driver().HaningOn());
    EXPECT_TRUE(Calculator().TesmorLinked());
    EXPECT_FALSE(Calculator().isVisible()) << "the calculator opens on demand";
    EXPECT_FALSE(Find<QWidget>("Frame3")->isVisible());
    EXPECT_FALSE(Find<QWidget>("WrdList")->isVisible());
    QStringList choices;
    auto* list = Find<QListWidget>("WrdList");
    for (int k = 0; k < list->count(); ++k)
        choices << list->item(k)->text();
    EXPECT_EQ(choices, (QStringList{"128", "256", "512", "1024", "2048", "4096"}));
    EXPECT_DOUBLE_EQ(Scrn()->xAxis->range().upper, 5.0);
}

// The calculator opens beside the transform window (screen 0..1999 wide,
// calculator 600 wide and at least 400, the main window at least 900, 8
// apart).
TEST(WindowPlacement, TheCalculatorNeverCoversTheCommands) {
    const QRect screen(0, 0, 2000, 1000);
    const struct {
        const char* name;
        int mainLeft;
        int mainWidth;
        QPoint main;
        int newMainWidth;
        QPoint beside;
        int besideWidth;
    } rows[] = {
        {"room on the right", 100, 1000, {100, 50}, 1000, {1108, 50}, 600},
        {"room on the left", 900, 1000, {900, 50}, 1000, {292, 50}, 600},
        {"the main window moves over", 500, 1000, {196, 50}, 1000, {1204, 50}, 600},
        {"narrowed to fit on the left", 500, 1500, {500, 50}, 1500, {0, 50}, 492},
        {"the calculator narrowed, both moved", 300, 1500, {0, 50}, 1500, {1508, 50}, 492},
        {"both narrowed", 100, 1700, {0, 50}, 1592, {1600, 50}, 400},
        {"over the plot, not the commands", 100, 1800, {200, 50}, 1800, {0, 50}, 400},
    };
    for (const auto& row : rows) {
        const int mainMin = row.mainWidth == 1800 ? 1700 : 900;
        const WindowPlacement place = PlaceBeside(
            {QRect(row.mainLeft, 50, row.mainWidth, 700), mainMin, QSize(600, 700), 400}, screen,
            8);
        EXPECT_EQ(place.main, row.main) << row.name;
        EXPECT_EQ(place.mainWidth, row.newMainWidth) << row.name;
        EXPECT_EQ(place.beside, row.beside) << row.name;
        EXPECT_EQ(place.besideWidth, row.besideWidth) << row.name;
    }
    EXPECT_EQ(
        PlaceBeside({QRect(100, 600, 1000, 700), 900, QSize(600, 700), 400}, screen, 8).beside.y(),
        300)
        << "kept on the screen";
}

TEST_F(ControlsTest, EndClosesBothWindows) {
    Click("ButtonCallPfunction");
    ASSERT_TRUE(Calculator().isVisible());
    Action("MenueEnd")->trigger();
    EXPECT_FALSE(form->isVisible());
    EXPECT_FALSE(Calculator().isVisible());
}

// Which commands the state labels allow.
struct Enabled {
    bool transform, save, drawResult, saveMenu;
    bool operator==(const Enabled&) const = default;
};
void PrintTo(const Enabled& e, std::ostream* os) {
    *os << "{transform " << e.transform << ", save " << e.save << ", drawResult " << e.drawResult
        << ", saveMenu " << e.saveMenu << "}";
}

TEST_F(ControlsTest, StateLabelsEnableTheCommandsThatNeedThem) {
    auto enabled = [this] {
        return Enabled{Find<QPushButton>("ButtonExeTesmor")->isEnabled(),
                       Find<QPushButton>("ButtonResultWrite")->isEnabled(),
                       Find<QPushButton>("ButtonDrawResult")->isEnabled(),
                       Action("MenueWriteResult")->isEnabled()};
    };
    auto openEntry = [this](const char* label, const char* box, const char* text) {
        QTest::mouseClick(Find<QLabel>(label), Qt::LeftButton);
        auto* entry = Find<QLineEdit>(box);
        entry->setText(QString::fromLatin1(text));
        QTest::keyClick(entry, Qt::Key_Return);
    };
    const struct {
        const char* step;
        std::function<void()> act;
        const char* source;
        const char* result;
        Enabled expected;
    } rows[] = {
        {"at start", [] {}, "Non", "Non", {false, false, false, false}},
        {"data made and transformed",
         [this] { RunProgram(QStringLiteral("Return 1/(p+1)\nEnd")); },
         "Math",
         "OK",
         {true, true, true, true}},
        {"a new T",
         [&] { openEntry("TendLb", "TendText", "6"); },
         "Non",
         "Non",
         {false, false, false, false}},
        {"data whose inversion overflows",
         [&] {
             openEntry("Ganmalb", "GanmaText", "1000");
             RunProgram(QStringLiteral("Return 1/(p+1)\nEnd"));
         },
         "Math",
         "Non",
         {true, true, false, false}},
        {"a new gamma0",
         [&] { openEntry("Ganmalb", "GanmaText", "5"); },
         "Non",
         "Non",
         {false, false, false, false}},
    };
    for (const auto& row : rows) {
        row.act();
        EXPECT_EQ(Text("DataSourceLb"), QString::fromLatin1(row.source)) << row.step;
        EXPECT_EQ(Text("ResultLb"), QString::fromLatin1(row.result)) << row.step;
        EXPECT_EQ(enabled(), row.expected) << row.step;
    }
    EXPECT_TRUE(messages.isEmpty()) << messages.join(QStringLiteral(" | ")).toStdString();
}

}  // namespace
}  // namespace lapdesk::testing
