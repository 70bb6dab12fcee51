// Building the calculator window: its controls, their layout, and the menus.
#include <QActionGroup>
#include <QCheckBox>
#include <QHBoxLayout>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QShortcut>
#include <QSplitter>
#include <QStatusBar>
#include <QTextDocument>
#include <QVBoxLayout>

#include "calculator/code_editor.h"
#include "calculator/elided_label.h"
#include "calculator/frm_cpl_cal.h"
#include "calculator/memory_panel.h"
#include "calculator/menu_words.h"
#include "calculator/on_screen_keyboard.h"
#include "calculator/progress_meter.h"
#include "calculator/sample_programs.h"
#include "calculator/vocabulary_menus.h"
#include "calculator/window_texts.h"
#include "expr/vocabulary.h"

namespace lapdesk {

namespace {

const char* const kHint =
    "式や代入文 (a = 2+3j) を入力して Enter で計算します．"
    "履歴は Ctrl+ダブルクリックで呼び出せます．";

template <typename W>
W* Named(W* widget, const char* name) {
    widget->setObjectName(QString::fromLatin1(name));
    return widget;
}

QPushButton* MakeButton(const char* name, const QString& caption) {
    auto* button = Named(new QPushButton(caption), name);
    button->setAutoDefault(false);
    return button;
}

}  // namespace

FrmCplCal::FrmCplCal(std::unique_ptr<CalculatorDialogs> dialogs, QWidget* parent)
    : QMainWindow(parent),
      interpreter_(*this),
      dialogs_(dialogs ? std::move(dialogs) : std::make_unique<QtCalculatorDialogs>()),
      files_(*dialogs_),
      activeBox_(static_cast<QLineEdit*>(nullptr)) {
    InitVocabulary();
    setObjectName(QStringLiteral("FrmCplCal"));

    QWidget* column = BuildColumn();
    memory_ = new MemoryPanel(interpreter_, [this] { return RoundedDisplay(); });
    memory_->hide();
    connect(memory_, &MemoryPanel::arrayPanelShown, this, [this](bool shown) {
        arrayPanelOpen_ = shown;
        UpdateEnabled();
    });
    auto* splitter = new QSplitter;
    splitter->addWidget(column);
    splitter->addWidget(memory_);
    splitter->setStretchFactor(0, 3);
    splitter->setStretchFactor(1, 2);
    splitter->setChildrenCollapsible(false);
    setCentralWidget(splitter);

    BuildMenus();
    statusBar();
    InstallGestures();

    activeBox_ = ActiveTextBox(imidateTextBox_);
    optionNomal_->setChecked(true);
    SetPhaseColour(0x80FFFF);
    connect(programText_->document(), &QTextDocument::modificationChanged, this,
            &FrmCplCal::ShowTitle);
    ShowTitle();
    resize(960, 720);
}

FrmCplCal::~FrmCplCal() = default;

// The mouse gestures and focus changes the event filter reacts to, and the
// keyboard shortcuts of a run.
void FrmCplCal::InstallGestures() {
    const QList<QObject*> watched{imidateTextBox_,
                                  kai_,
                                  histryList_->viewport(),
                                  programText_->viewport(),
                                  programText_,
                                  messageBase_,
                                  messageBox_};
    for (QObject* target : watched)
        target->installEventFilter(this);
    auto* escape = new QShortcut(QKeySequence(Qt::Key_Escape), this);
    connect(escape, &QShortcut::activated, this, &FrmCplCal::Escape);
    for (const auto key : {Qt::Key_Return, Qt::Key_Enter}) {
        auto* run = new QShortcut(QKeySequence(Qt::CTRL | key), this);
        connect(run, &QShortcut::activated, this, [this] {
            if (programMode_) StartRun();
        });
    }
}

// The calculator's own column: modes, the immediate line, the result, the
// message panel, the history or the program, and the keyboard.
QWidget* FrmCplCal::BuildColumn() {
    auto* column = new QWidget;
    auto* layout = new QVBoxLayout(column);
    layout->addWidget(BuildModeRow());
    layout->addWidget(BuildCalcuFrame());
    layout->addWidget(kai_);
    layout->addWidget(label5_);
    layout->addWidget(BuildMessageBase());
    histryList_ = Named(new QListWidget, "HistryList");
    QFont historyFont = histryList_->font();
    historyFont.setPointSize(11);
    histryList_->setFont(historyFont);
    histryList_->setToolTip(QStringLiteral(
        "ダブルクリック: 文字を大きく，Shift+ダブルクリック: "
        "小さく，Ctrl+ダブルクリック: 式を呼び出す（計算行で ↑↓ でも呼び出せます）"));
    layout->addWidget(histryList_, 1);
    layout->addWidget(BuildProgramFrame(), 1);
    keyboard_ = new OnScreenKeyboard;
    connect(keyboard_, &OnScreenKeyboard::keyClicked, this, &FrmCplCal::Key_Click);
    connect(keyboard_, &OnScreenKeyboard::tenKeyClicked, this, &FrmCplCal::TenKey_Click);
    connect(keyboard_, &OnScreenKeyboard::controlKeyClicked, this, &FrmCplCal::Ctlkey_Click);
    layout->addWidget(keyboard_);

    return column;
}

QWidget* FrmCplCal::BuildModeRow() {
    auto* row = new QWidget;
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    optionNomal_ = Named(new QRadioButton(QStringLiteral("計算機")), "OptionNomal");
    optionProgram_ = Named(new QRadioButton(QStringLiteral("プログラム")), "OptionProgram");
    connect(optionNomal_, &QRadioButton::toggled, this, [this](bool on) {
        if (on) OptionNomal_Click();
    });
    connect(optionProgram_, &QRadioButton::toggled, this, [this](bool on) {
        if (on) OptionProgram_Click();
    });
    auto* keyboard = MakeButton("CommandKeyBoard", QStringLiteral("キーボード"));
    connect(keyboard, &QPushButton::clicked, this, &FrmCplCal::CommandKeyBoard_Click);
    auto* memory = MakeButton("ButtonShowMemory", QStringLiteral("メモリ表示"));
    connect(memory, &QPushButton::clicked, this, [this] { memory_->CommandReShowMemorys_Click(); });
    layout->addWidget(optionNomal_);
    layout->addWidget(optionProgram_);
    layout->addStretch();
    layout->addWidget(keyboard);
    layout->addWidget(memory);
    return row;
}

QWidget* FrmCplCal::BuildCalcuFrame() {
    calcuFrame_ = Named(new QWidget, "CalcuFrame");
    imidateTextBox_ = Named(new QLineEdit, "ImidateTextBox");
    QFont inputFont = imidateTextBox_->font();
    inputFont.setPointSize(12);
    imidateTextBox_->setFont(inputFont);
    imidateTextBox_->setPlaceholderText(QStringLiteral("例: Sqrt(-4) + 1/(2+3j)"));
    connect(imidateTextBox_, &QLineEdit::returnPressed, this, &FrmCplCal::ButtonEnter_Click);
    auto* enter = MakeButton("ButtonEnter", QStringLiteral("＝"));
    enter->setToolTip(QStringLiteral("計算 (Enter)"));
    enter->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    connect(enter, &QPushButton::clicked, this, &FrmCplCal::ButtonEnter_Click);
    kai_ = Named(new ElidedLabel, "kai");
    QFont resultFont = kai_->font();
    resultFont.setPointSize(16);
    kai_->setFont(resultFont);
    kai_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    kai_->setFrameShape(QFrame::StyledPanel);
    kai_->SetHint(QStringLiteral("クリック: 文字を大きく，Shift+クリック: 小さく"));
    label5_ = Named(new QLabel(QString::fromUtf8(kHint)), "Label5");
    label5_->setWordWrap(true);
    label5_->setForegroundRole(QPalette::PlaceholderText);

    auto* inputRow = new QHBoxLayout;
    inputRow->addWidget(imidateTextBox_, 1);
    inputRow->addWidget(enter);
    // kai and the hint stay outside the frame: the status of a run must stay
    // readable while the input is disabled.
    auto* layout = new QVBoxLayout(calcuFrame_);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(inputRow);
    return calcuFrame_;
}

QWidget* FrmCplCal::BuildMessageBase() {
    messageBase_ = Named(new QFrame, "MessageBase");
    messageBase_->setFrameShape(QFrame::Box);
    messageBase_->setFocusPolicy(Qt::ClickFocus);
    messageBox_ = Named(new QLabel, "MessageBox");
    messageBox_->setWordWrap(true);
    messageBox_->setAutoFillBackground(true);
    messageBox_->setMargin(6);
    auto* dismiss = new QLabel(QStringLiteral("（ダブルクリックで閉じます）"));
    dismiss->setForegroundRole(QPalette::PlaceholderText);
    auto* layout = new QVBoxLayout(messageBase_);
    layout->setContentsMargins(2, 2, 2, 2);
    layout->addWidget(messageBox_);
    layout->addWidget(dismiss, 0, Qt::AlignRight);
    messageBase_->hide();
    return messageBase_;
}

QWidget* FrmCplCal::BuildProgramFrame() {
    programFrame_ = Named(new QWidget, "ProgramFrame");
    programButtons_ = Named(new QWidget, "ProgramButtons");
    buttonPrgRun_ = MakeButton("ButtonPrgRun", kRunCaption);
    buttonPrgRun_->setToolTip(QStringLiteral("プログラムを解析して実行します (Ctrl+Enter)"));
    connect(buttonPrgRun_, &QPushButton::clicked, this, &FrmCplCal::ButtonPrgRun_Click);
    auto* stop = MakeButton("ButtonStop", QStringLiteral("停　止"));
    stop->setToolTip(QStringLiteral("実行中のプログラムを止めます (Esc)"));
    connect(stop, &QPushButton::clicked, this, &FrmCplCal::ButtonStop_Click);
    buttonMakeTesmorData_ =
        MakeButton("ButtonExeProgToMakeTesmorData", QStringLiteral("逆変換データ作成"));
    buttonMakeTesmorData_->setToolTip(
        QStringLiteral("このプログラムの F(p) から逆変換データを作成し，直ちに逆変換します"));
    connect(buttonMakeTesmorData_, &QPushButton::clicked, this,
            &FrmCplCal::ButtonExeProgToMakeTesmorData_Click);
    buttonMakeTesmorData_->hide();
    checkExeList_ =
        Named(new QCheckBox(QStringLiteral("実行時に実行リストを表示")), "CheckExeList");
    auto* buttons = new QHBoxLayout(programButtons_);
    buttons->setContentsMargins(0, 0, 0, 0);
    buttons->addWidget(buttonPrgRun_);
    buttons->addWidget(stop);
    buttons->addWidget(buttonMakeTesmorData_);
    buttons->addWidget(checkExeList_);
    buttons->addStretch();

    prgRningBox_ = Named(new QWidget, "PrgRningBox");
    meter_ = Named(new ProgressMeter, "Meter");
    pgLb_ = Named(new QLabel, "PGLb");
    pcLb_ = Named(new QLabel, "PCLb");
    auto* running = new QHBoxLayout(prgRningBox_);
    running->setContentsMargins(0, 0, 0, 0);
    running->addWidget(meter_, 1);
    running->addWidget(new QLabel(QStringLiteral("ページ")));
    running->addWidget(pgLb_);
    running->addWidget(new QLabel(QStringLiteral("行")));
    running->addWidget(pcLb_);
    prgRningBox_->hide();

    programText_ = Named(new CodeEditor, "ProgramText");
    connect(programText_, &QPlainTextEdit::textChanged, this, &FrmCplCal::ProgramText_Change);
    programList_ = Named(new QListWidget, "ProgramList");
    programList_->hide();
    QFont code(QStringLiteral("Monospace"));
    code.setStyleHint(QFont::TypeWriter);
    code.setPointSize(11);
    programText_->setFont(code);
    programList_->setFont(code);

    auto* layout = new QVBoxLayout(programFrame_);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(programButtons_);
    layout->addWidget(prgRningBox_);
    layout->addWidget(programText_, 1);
    layout->addWidget(programList_, 1);
    programFrame_->hide();
    return programFrame_;
}

QAction* FrmCplCal::MakeAction(const QString& name, const QString& text, QMenu* menu) {
    QAction* action = menu->addAction(text);
    action->setObjectName(name);
    return action;
}

void FrmCplCal::BuildMenus() {
    BuildProgramMenus();
    BuildOptionMenu();
    menueCtWord_ = AddVocabularyMenus(
        menuBar(), [this](const WordInsertion& word) { InsertWord(word.text, word.back); });
    BuildChannelMenus();
}

void FrmCplCal::BuildProgramMenus() {
    fileMenues_ = Named(menuBar()->addMenu(QStringLiteral("ファイル(&F)")), "FileMenues");
    menueReadProgram_ = MakeAction(QStringLiteral("MenueReadProgram"),
                                   QStringLiteral("プログラムを開く..."), fileMenues_);
    menueReadProgram_->setShortcut(QKeySequence::Open);
    connect(menueReadProgram_, &QAction::triggered, this, &FrmCplCal::MenueReadProgram_Click);
    menueWriteOverProgram_ = MakeAction(QStringLiteral("MenueWriteOverProgram"),
                                        QStringLiteral("上書き保存"), fileMenues_);
    menueWriteOverProgram_->setShortcut(QKeySequence::Save);
    connect(menueWriteOverProgram_, &QAction::triggered, this,
            &FrmCplCal::MenueWriteOverProgram_Click);
    menueWriteProgram_ = MakeAction(QStringLiteral("MenueWriteProgram"),
                                    QStringLiteral("名前を付けて保存..."), fileMenues_);
    menueWriteProgram_->setShortcut(QKeySequence::SaveAs);
    connect(menueWriteProgram_, &QAction::triggered, this, &FrmCplCal::MenueWriteProgram_Click);
    fileMenues_->addSeparator();
    const struct {
        const char* name;
        const char* title;
        const std::vector<SampleProgram>& samples;
        void (FrmCplCal::*handler)(int);
    } sampleMenus[] = {
        {"MenueSample", "サンプル", GeneralSamples(), &FrmCplCal::MenueSample_Click},
        {"MenueTesmorSample", "逆変換サンプル", TransformSamples(),
         &FrmCplCal::MenueTesmorSample_Click},
    };
    for (const auto& s : sampleMenus) {
        QMenu* menu = Named(fileMenues_->addMenu(QString::fromUtf8(s.title)), s.name);
        for (int k = 0; k < static_cast<int>(s.samples.size()); ++k) {
            QAction* entry = MakeAction(QStringLiteral("%1_%2").arg(QLatin1String(s.name)).arg(k),
                                        QString::fromUtf8(s.samples[k].title), menu);
            connect(entry, &QAction::triggered, this, [this, k, h = s.handler] { (this->*h)(k); });
        }
    }

    QMenu* run = Named(menuBar()->addMenu(QStringLiteral("実行(&R)")), "MenueRun");
    menueExe_ = MakeAction(QStringLiteral("MenueExe"), QStringLiteral("解析・実行"), run);
    menueExe_->setShortcut(Qt::Key_F5);
    menueExe_->setToolTip(QStringLiteral("大域変数を消去してから解析・実行します"));
    connect(menueExe_, &QAction::triggered, this, &FrmCplCal::MenueExe_Click);
    QAction* stop = MakeAction(QStringLiteral("MenueStop"), QStringLiteral("停止"), run);
    connect(stop, &QAction::triggered, this, &FrmCplCal::ButtonStop_Click);
    menueExeList_ = MakeAction(QStringLiteral("MenueExeList"), kShowListCaption, run);
    connect(menueExeList_, &QAction::triggered, this, &FrmCplCal::MenueExeList_Click);
    run->addSeparator();
    QAction* memory =
        MakeAction(QStringLiteral("MenueShowMemory"), QStringLiteral("メモリ表示"), run);
    connect(memory, &QAction::triggered, this, [this] { memory_->CommandReShowMemorys_Click(); });
}

void FrmCplCal::BuildOptionMenu() {
    QMenu* options = Named(menuBar()->addMenu(QStringLiteral("オプション(&O)")), "MenueOption");
    // Qt toggles a checkable item before its handler runs; the handlers
    // decide the new state themselves, so the toggle is undone first.
    auto askFirst = [this](QAction* action, void (FrmCplCal::*handler)()) {
        action->setCheckable(true);
        connect(action, &QAction::triggered, this, [this, action, handler](bool checked) {
            action->setChecked(!checked);
            (this->*handler)();
        });
    };
    menuCaps_ = MakeAction(QStringLiteral("MenuCaps"),
                           QStringLiteral("変数の大文字小文字を区別する"), options);
    askFirst(menuCaps_, &FrmCplCal::MenuCaps_Click);
    menuCaps_->setChecked(true);
    menueClearGlVar_ = MakeAction(QStringLiteral("MenueClearGlVar"),
                                  QStringLiteral("実行前に大域変数を消去する"), options);
    askFirst(menueClearGlVar_, &FrmCplCal::MenueClearGlVar_Click);
    menueSingleDisp_ = MakeAction(QStringLiteral("MenueSingleDisp"),
                                  QStringLiteral("有効数字6桁で表示する"), options);
    menueSingleDisp_->setCheckable(true);

    QMenu* angle = Named(options->addMenu(QStringLiteral("角度の単位")), "MenueAngle");
    auto* group = new QActionGroup(angle);
    const struct {
        const char* name;
        const char* text;
        double unit;
    } units[] = {{"MenueRadian", "ラジアン", 1.0}, {"MenueDegree", "度", kDegreeUnit}};
    for (const auto& u : units) {
        QAction* action = MakeAction(QString::fromLatin1(u.name), QString::fromUtf8(u.text), angle);
        action->setCheckable(true);
        action->setChecked(u.unit == 1.0);
        group->addAction(action);
        connect(action, &QAction::triggered, this, [unit = u.unit] { AngleUnit = unit; });
    }
}

void FrmCplCal::BuildChannelMenus() {
    QMenu* data = Named(menuBar()->addMenu(QStringLiteral("データ(&D)")), "MenueData");
    menueData_ = data;
    const struct {
        const char* name;
        const char* title;
        QMenu* ChannelMenus::*slot;
        void (FrmCplCal::*handler)(int);
    } menus[] = {
        {"MenueChVp", "チャンネル値", &ChannelMenus::chVp, &FrmCplCal::MenueChVp_Click},
        {"MenueChVp2", "チャンネル値 2", &ChannelMenus::chVp2, &FrmCplCal::MenueChVp2_Click},
        {"MenueAver", "平均値", &ChannelMenus::aver, &FrmCplCal::MenueAver_Click},
        {"MenueMax", "最大値", &ChannelMenus::max, &FrmCplCal::MenueMax_Click},
        {"MenueDmConstats", "データ定数", &ChannelMenus::dmConstants, nullptr},
    };
    for (const auto& m : menus) {
        QMenu* menu = Named(data->addMenu(QString::fromUtf8(m.title)), m.name);
        channelMenus_.*m.slot = menu;
        connect(menu, &QMenu::triggered, this, [this, menu, h = m.handler](QAction* action) {
            const int index = static_cast<int>(menu->actions().indexOf(action));
            if (h != nullptr) {
                (this->*h)(index);
            } else {
                const WordInsertion word = DmConstantWord(action->text());
                InsertWord(word.text, word.back);
            }
        });
    }
    ShowFilledChannelMenus();
}

}  // namespace lapdesk
