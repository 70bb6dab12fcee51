// Building the transform window: the plot area with the floating result
// frame, the side panel (legend, parameters, commands), the menus, and the
// load step that sets the defaults.
#include <QAction>
#include <QCheckBox>
#include <QFontDatabase>
#include <QGridLayout>
#include <QGroupBox>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QStatusBar>
#include <QVBoxLayout>

#include "calculator/frm_cpl_cal.h"
#include "importer/read_file_wisard.h"
#include "transform/window/about_box.h"
#include "transform/window/accuracy/accuracy_view.h"
#include "transform/window/draggable_frame.h"
#include "transform/window/plot/scrn_plot.h"
#include "transform/window/tesmor_form.h"

namespace lapdesk {

namespace {

template <typename W>
W* Named(W* widget, const char* name) {
    widget->setObjectName(QString::fromLatin1(name));
    return widget;
}

QLabel* MakeLabel(const char* name, const QString& caption) {
    return Named(new QLabel(caption), name);
}

// A label that holds a parameter and opens its entry when clicked: drawn as
// a field so that it looks editable.
QLabel* MakeEntryLabel(const char* name, const QString& tip) {
    auto* label = MakeLabel(name, QString());
    label->setToolTip(tip);
    label->setFrameShape(QFrame::Panel);
    label->setFrameShadow(QFrame::Sunken);
    label->setAutoFillBackground(true);
    label->setBackgroundRole(QPalette::Base);
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    label->setMargin(2);
    label->setCursor(Qt::PointingHandCursor);
    return label;
}

QLineEdit* MakeEntryBox(const char* name) {
    auto* box = Named(new QLineEdit, name);
    box->setAlignment(Qt::AlignRight);
    box->hide();
    return box;
}

// A small square in a legend colour.
QLabel* MakeColourSample(int index, const QColor& colour) {
    auto* sample = new QLabel;
    sample->setObjectName(QStringLiteral("ColorSample_%1").arg(index));
    sample->setFixedSize(14, 14);
    sample->setStyleSheet(
        QStringLiteral("background-color: %1; border: 1px solid #555;").arg(colour.name()));
    return sample;
}

}  // namespace

TesmorForm::TesmorForm(std::unique_ptr<CalculatorDialogs> dialogs,
                       std::unique_ptr<CalculatorDialogs> calculatorDialogs, QWidget* parent)
    : QMainWindow(parent),
      dialogs_(dialogs ? std::move(dialogs) : std::make_unique<QtCalculatorDialogs>()) {
    setObjectName(QStringLiteral("TesmorForm"));
    setWindowTitle(QStringLiteral("逆ラプラス変換"));
    // Creation: the calculator, linked to this window, and the one wizard.
    calculator_ = std::make_unique<FrmCplCal>(std::move(calculatorDialogs));
    calculator_->TesmorCliant(this);
    wisard_ = new ReadFileWisard(this);
    driver_.SetStatusSink(
        [this](std::string_view text) { SetStatus(QString::fromUtf8(text.data(), text.size())); });

    auto* central = new QWidget;
    auto* layout = new QHBoxLayout(central);
    layout->addWidget(BuildPlotArea(), 1);
    layout->addWidget(BuildSidePanel());
    setCentralWidget(central);
    // The N list floats over the panel, below its label.
    wrdList_ = Named(new QListWidget(central), "WrdList");
    wrdList_->hide();
    connect(wrdList_, &QListWidget::itemClicked, this, &TesmorForm::WrdList_Click);
    wrdList_->installEventFilter(this);
    BuildMenus();
    BuildStatusLine();
    auto* escape = new QShortcut(QKeySequence(Qt::Key_Escape), this);
    connect(escape, &QShortcut::activated, this, &TesmorForm::Escape_Pressed);
    connect(calculator_.get(), &FrmCplCal::meterChanged, this, &TesmorForm::ShowMeter);
    Load();
}

TesmorForm::~TesmorForm() = default;

// The status text, and beside it the progress of a run and its stop button.
// The button is always there (enabled only while a run can be stopped), so
// nothing moves when a run starts.
void TesmorForm::BuildStatusLine() {
    statusBar_ = MakeLabel("StatusBar", QString());
    statusBar()->addWidget(statusBar_, 1);
    runProgress_ = Named(new QProgressBar, "RunProgress");
    runProgress_->setFixedWidth(160);
    runProgress_->setTextVisible(false);
    runProgress_->setRange(0, 0);
    runProgress_->hide();
    statusBar()->addPermanentWidget(runProgress_);
    buttonStopRun_ = MakeButton("ButtonStopRun", QStringLiteral("中断"),
                                QStringLiteral("実行中の計算を止めます（Esc でも止まります）"));
    buttonStopRun_->setEnabled(false);
    connect(buttonStopRun_, &QPushButton::clicked, this, &TesmorForm::ButtonStopRun_Click);
    statusBar()->addPermanentWidget(buttonStopRun_);
}

// Load: the defaults, the list of N, the empty plot, the state labels, and
// the window centred on the screen.
void TesmorForm::Load() {
    for (const int n : kWordNumbers)
        wrdList_->addItem(QString::number(n));
    haningCheck_->setChecked(driver_.HaningOn());
    scrn_->ClearScreen(driver_.GetConditions().T);
    ShowStateLabels();
    // Tall enough for the side panel with the findings of a run: a shorter
    // window squeezes every field of it. Never larger than the screen.
    const QScreen* screen = QGuiApplication::primaryScreen();
    if (screen == nullptr) {
        resize(1180, 860);
        return;
    }
    resize(QSize(1180, 860).boundedTo(screen->availableGeometry().size()));
    move(screen->availableGeometry().center() - rect().center());
}

QWidget* TesmorForm::BuildPlotArea() {
    auto* area = new QWidget;
    scrn_ = new ScrnPlot;
    scrn_->setMinimumSize(520, 360);
    scrn_->installEventFilter(this);
    connect(scrn_, &QCustomPlot::mouseMove, this, &TesmorForm::Scrn_MouseMove);
    connect(scrn_, &QCustomPlot::mouseRelease, this, &TesmorForm::Scrn_MouseUp);
    connect(scrn_, &QCustomPlot::afterReplot, this, &TesmorForm::ShowReadout);
    floatLb_ = MakeLabel("FloatLb", QString());
    floatLb_->setParent(scrn_);
    floatLb_->setAutoFillBackground(true);
    QPalette floatPalette = floatLb_->palette();
    floatPalette.setColor(QPalette::Window, PlotColours::Background());
    floatLb_->setPalette(floatPalette);
    floatLb_->setFrameShape(QFrame::Box);
    floatLb_->setMargin(2);
    floatLb_->setAttribute(Qt::WA_TransparentForMouseEvents);
    floatLb_->hide();
    BuildResultFrame();
    frame3_->installEventFilter(this);

    posX_ = MakeLabel("PosX", QStringLiteral("t= "));
    posY_ = MakeLabel("PosY", QStringLiteral("y= "));
    for (QLabel* readout : {posX_, posY_}) {
        readout->setMinimumWidth(88);
        readout->setTextInteractionFlags(Qt::TextSelectableByMouse);
    }
    nowDispLb_ = MakeLabel("NowDispLb", QString());
    nowDispLb_->setMinimumWidth(30);
    auto* readoutRow = new QHBoxLayout;
    readoutRow->addWidget(posX_);
    readoutRow->addWidget(posY_);
    readoutRow->addWidget(MakeLabel("Label9", QStringLiteral("←計算値を表示")));
    readoutRow->addStretch();
    // The two hints read as one sentence.
    auto* copyHint = new QHBoxLayout;
    copyHint->setSpacing(0);
    copyHint->addWidget(MakeLabel("Label10", QStringLiteral("右クリックでカーソル位置の")));
    copyHint->addWidget(MakeLabel("Label11", QStringLiteral("値をコピー")));
    readoutRow->addLayout(copyHint);
    readoutRow->addSpacing(16);
    readoutRow->addWidget(nowDispLb_);

    auto* layout = new QVBoxLayout(area);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(scrn_, 1);
    layout->addLayout(readoutRow);
    return area;
}

// Frame3, floating over the plot: the result text with its buttons.
void TesmorForm::BuildResultFrame() {
    frame3_ = Named(new DraggableFrame(QStringLiteral("計算結果"), scrn_), "Frame3");
    frame3_->setToolTip(QStringLiteral("計算結果：ドラッグで移動可"));
    // A solid border and title, so the frame reads as floating over the plot.
    frame3_->setStyleSheet(QStringLiteral(
        "QGroupBox#Frame3 { background: palette(window); border: 1px solid #7a7a7a;"
        " border-radius: 3px; margin-top: 1.4em; }"
        "QGroupBox#Frame3::title { subcontrol-origin: margin; left: 8px; padding: 0 4px; }"));
    text1_ = Named(new QPlainTextEdit, "Text1");
    QFont fixed = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    fixed.setPointSize(9);
    text1_->setFont(fixed);
    text1_->setLineWrapMode(QPlainTextEdit::NoWrap);
    text1_->setReadOnly(true);
    check1_ = Named(new QCheckBox(QStringLiteral("編集")), "Check1");
    check1_->setToolTip(QStringLiteral("テキスト編集を可能にする"));
    connect(check1_, &QCheckBox::clicked, this, &TesmorForm::Check1_Click);
    auto* fileOut = MakeButton("Command3", QStringLiteral("File Out"), QString());
    connect(fileOut, &QPushButton::clicked, this, &TesmorForm::WriteTransformFile);
    auto* hide = MakeButton("Command1", QStringLiteral("Hide"), QString());
    connect(hide, &QPushButton::clicked, this, &TesmorForm::Command1_Click);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(check1_);
    buttons->addStretch();
    buttons->addWidget(fileOut);
    buttons->addWidget(hide);
    auto* layout = new QVBoxLayout(frame3_);
    layout->addWidget(text1_, 1);
    layout->addLayout(buttons);
    frame3_->SetPreferredSize(
        {QFontMetrics(fixed).horizontalAdvance(QString(64, QLatin1Char('0'))) + 48, 300});
    frame3_->hide();
}

QWidget* TesmorForm::BuildSidePanel() {
    auto* panel = new QWidget;
    panel->setFixedWidth(260);
    auto* layout = new QVBoxLayout(panel);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(BuildLegend());
    layout->addWidget(BuildConditionsFrame());
    layout->addWidget(BuildAccuracyPanel());
    layout->addWidget(BuildButtonsFrame());
    layout->addWidget(accuracy_->Findings());
    layout->addStretch();
    return panel;
}

// The legend: ColorSample 0, 1, 2 beside "データ実部", "データ虚部", "結果".
QWidget* TesmorForm::BuildLegend() {
    auto* legend = Named(new QGroupBox, "Legend");
    auto* layout = new QGridLayout(legend);
    const struct {
        const char* name;
        const char* caption;
        const char* tip;
        QColor colour;
    } rows[] = {
        {"Label7", "データ実部", "被逆変換関数値の実部データ", PlotColours::Real()},
        {"Label8", "データ虚部", "被逆変換関数値の虚部データ", PlotColours::Imaginary()},
        {"Label6", "結果", "逆変換結果", PlotColours::Result()},
    };
    int row = 0;
    for (const auto& entry : rows) {
        auto* label = MakeLabel(entry.name, QString::fromUtf8(entry.caption));
        label->setToolTip(QString::fromUtf8(entry.tip));
        layout->addWidget(MakeColourSample(row, entry.colour), row, 0);
        layout->addWidget(label, row, 1);
        ++row;
    }
    layout->setColumnStretch(1, 1);
    return legend;
}

QWidget* TesmorForm::BuildConditionsFrame() {
    conditionsFrame_ = Named(new QGroupBox, "ConditionsFrame");
    wordNumberLb_ = MakeEntryLabel(
        "WordNumberLb",
        QStringLiteral("Ｎ設定（逆変換用データを読み込んだ場合は変更してはいけません）"));
    tendLb_ = MakeEntryLabel(
        "TendLb", QStringLiteral("Ｔ設定（逆変換用データを読み込んだ場合は変更してはいけません）"));
    ganmalb_ = MakeEntryLabel(
        "Ganmalb", QStringLiteral("γ設定（逆変換用データを読み込んだ場合は変更してはいけません）"));
    for (QLabel* label : {wordNumberLb_, tendLb_, ganmalb_}) {
        label->installEventFilter(this);
    }
    tendText_ = MakeEntryBox("TendText");
    ganmaText_ = MakeEntryBox("GanmaText");
    connect(tendText_, &QLineEdit::returnPressed, this, &TesmorForm::TendText_Enter);
    connect(ganmaText_, &QLineEdit::returnPressed, this, &TesmorForm::GanmaText_Enter);
    for (QLineEdit* box : {tendText_, ganmaText_}) {
        box->installEventFilter(this);
        connect(box, &QLineEdit::textEdited, this, [this, box] { MarkRejected(box, false); });
    }
    haningCheck_ = Named(new QCheckBox(QStringLiteral("H.W.")), "HaningCheck");
    haningCheck_->setToolTip(QStringLiteral("ハニングウインドゥ使用"));
    connect(haningCheck_, &QCheckBox::clicked, this, &TesmorForm::HaningCheck_Click);
    cosinTableLb_ = MakeLabel("CosinTableLb", QString());
    resultLb_ = MakeLabel("ResultLb", QString());
    dataSourceLb_ = MakeLabel("DataSourceLb", QString());
    for (QLabel* state : {cosinTableLb_, resultLb_, dataSourceLb_}) {
        state->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    }

    auto* grid = new QGridLayout(conditionsFrame_);
    grid->addWidget(MakeLabel("Label2", QStringLiteral("計算点数 N")), 0, 0);
    grid->addWidget(wordNumberLb_, 0, 1);
    grid->addWidget(MakeLabel("Label3", QStringLiteral("計算時間 Ｔ")), 1, 0);
    grid->addWidget(tendLb_, 1, 1);
    grid->addWidget(tendText_, 1, 1);
    grid->addWidget(MakeLabel("Label4", QStringLiteral("γ0=γ×Ｔ")), 2, 0);
    grid->addWidget(ganmalb_, 2, 1);
    grid->addWidget(ganmaText_, 2, 1);
    grid->addWidget(haningCheck_, 3, 0, 1, 2);
    grid->addWidget(MakeLabel("Label5", QStringLiteral("Cos Table")), 4, 0);
    grid->addWidget(cosinTableLb_, 4, 1);
    grid->addWidget(new QLabel(QStringLiteral("データ")), 5, 0);
    grid->addWidget(dataSourceLb_, 5, 1);
    grid->addWidget(new QLabel(QStringLiteral("逆変換結果")), 6, 0);
    grid->addWidget(resultLb_, 6, 1);
    grid->setColumnStretch(1, 1);
    return conditionsFrame_;
}

QWidget* TesmorForm::BuildButtonsFrame() {
    buttonsFrame_ = Named(new QWidget, "ButtonsFrame");
    auto* frame1 = Named(new QGroupBox(QStringLiteral("プログラム計算")), "Frame1");
    frame1->setToolTip(QStringLiteral("被逆変換関数を計算するプログラムの作成及び実行"));
    auto* run =
        MakeButton("Command2", QStringLiteral("実行"),
                   QStringLiteral("現在プログラムされている関数の逆変換データを用データを作成し，"
                                  "直ちに逆変換します（Ｎ，Ｔ，γを自由に設定可）"));
    connect(run, &QPushButton::clicked, this, &TesmorForm::Command2_Click);
    auto* make = MakeButton("ButtonCallPfunction", QStringLiteral("作成"),
                            QStringLiteral("プログラムウインドウを開き被逆変換関数を計算するための"
                                           "プログラムを作成します．"));
    connect(make, &QPushButton::clicked, this, &TesmorForm::ButtonCallPfunction_Click);
    auto* programRow = new QHBoxLayout(frame1);
    programRow->addWidget(run);
    programRow->addWidget(make);

    buttonExeTesmor_ = MakeButton("ButtonExeTesmor", QStringLiteral("逆変換"),
                                  QStringLiteral("直前に計算又は読み込んだ逆変換用データを逆変換"));
    connect(buttonExeTesmor_, &QPushButton::clicked, this, &TesmorForm::ButtonExeTesmor_Click);
    auto* clear =
        MakeButton("ButtonClearScreen", QStringLiteral("画面消去"), QStringLiteral("画面をクリア"));
    connect(clear, &QPushButton::clicked, this, &TesmorForm::ButtonClearScreen_Click);
    auto* drawData =
        MakeButton("ButtonDrawLapData", QStringLiteral("データ表示"),
                   QStringLiteral("直前に計算又はファイルから読み込んだ逆変換用データを表示"));
    connect(drawData, &QPushButton::clicked, this, &TesmorForm::ButtonDrawLapData_Click);
    buttonDrawResult_ = MakeButton("ButtonDrawResult", QStringLiteral("結果表示"),
                                   QStringLiteral("直前に逆変換した結果を再表示"));
    connect(buttonDrawResult_, &QPushButton::clicked, this, &TesmorForm::ButtonDrawResult_Click);
    auto* read =
        MakeButton("ButtonDataRead", QStringLiteral("データ読込"),
                   QStringLiteral("計算済みの逆変換用データをN，Ｔ，γも含めてテキストファイル"
                                  "から読み込む（拡張子はLdt）"));
    connect(read, &QPushButton::clicked, this, &TesmorForm::ReadLapData);
    buttonResultWrite_ = MakeButton(
        "ButtonResultWrite", QStringLiteral("結果保存"),
        QStringLiteral("計算結果の逆変換用データ及び逆変換結果をテキストファイルに保存"));
    connect(buttonResultWrite_, &QPushButton::clicked, this, &TesmorForm::WriteTransformFile);

    auto* grid = new QGridLayout;
    grid->addWidget(buttonExeTesmor_, 0, 0);
    grid->addWidget(clear, 0, 1);
    grid->addWidget(drawData, 1, 0);
    grid->addWidget(buttonDrawResult_, 1, 1);
    grid->addWidget(read, 2, 0);
    grid->addWidget(buttonResultWrite_, 2, 1);
    auto* layout = new QVBoxLayout(buttonsFrame_);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(frame1);
    layout->addLayout(grid);
    return buttonsFrame_;
}

QPushButton* TesmorForm::MakeButton(const char* name, const QString& caption, const QString& tip) {
    auto* button = Named(new QPushButton(caption), name);
    button->setToolTip(tip);
    button->setAutoDefault(false);
    return button;
}

QAction* TesmorForm::MakeAction(QMenu* menu, const char* name, const QString& caption) {
    QAction* action = menu->addAction(caption);
    action->setObjectName(QString::fromLatin1(name));
    return action;
}

void TesmorForm::BuildMenus() {
    QMenu* file = Named(menuBar()->addMenu(QStringLiteral("ファイル")), "FileMenues");
    QAction* read =
        MakeAction(file, "MenueReadLapData", QStringLiteral("計算済み逆変換用データ読込"));
    connect(read, &QAction::triggered, this, &TesmorForm::ReadLapData);
    menueWriteResult_ =
        MakeAction(file, "MenueWriteResult", QStringLiteral("逆変換データ及び結果保存"));
    connect(menueWriteResult_, &QAction::triggered, this, &TesmorForm::WriteTransformFile);
    AddAccuracyMenuItem(file);
    file->addSeparator()->setObjectName(QStringLiteral("MenueLine01"));
    QAction* memo = MakeAction(file, "MenueResultMemo", QStringLiteral("結果のテキストメモ表示"));
    connect(memo, &QAction::triggered, this, &TesmorForm::MenueResultMemo_Click);
    QAction* end = MakeAction(file, "MenueEnd", QStringLiteral("終了"));
    connect(end, &QAction::triggered, this, &TesmorForm::MenueEnd_Click);

    QMenu* data = Named(menuBar()->addMenu(QStringLiteral("データ作成")), "DataMenues");
    QAction* make = MakeAction(data, "MenueMathemat", QStringLiteral("プログラム作成"));
    connect(make, &QAction::triggered, this, &TesmorForm::ButtonCallPfunction_Click);
    QAction* run = MakeAction(data, "MenueMathematRun", QStringLiteral("実行"));
    connect(run, &QAction::triggered, this, &TesmorForm::Command2_Click);
    data->addSeparator()->setObjectName(QStringLiteral("MenueMathematline00"));
    QAction* programRead =
        MakeAction(data, "MenueProgramRead", QStringLiteral("逆変換関数計算プログラム読込"));
    connect(programRead, &QAction::triggered, this, &TesmorForm::MenueProgramRead_Click);
    QAction* programWrite =
        MakeAction(data, "MenueProgramWrite", QStringLiteral("逆変換関数計算プログラム保存"));
    connect(programWrite, &QAction::triggered, this, &TesmorForm::MenueProgramWrite_Click);
    busyActions_ = {read, memo, make, run, programRead, programWrite};
    AddHelpMenu(*this);
}

}  // namespace lapdesk
