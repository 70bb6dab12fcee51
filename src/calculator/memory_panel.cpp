#include "calculator/memory_panel.h"

#include <QComboBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QMouseEvent>
#include <QPushButton>
#include <QVBoxLayout>

#include "calculator/immediate_rules.h"
#include "calculator/memory_lines.h"
#include "interp/interpreter.h"

namespace lapdesk {

namespace {

QPushButton* MakeButton(const QString& name, const QString& caption, QWidget* parent) {
    auto* button = new QPushButton(caption, parent);
    button->setObjectName(name);
    button->setAutoDefault(false);
    return button;
}

QLabel* MakeLabel(const QString& name, QWidget* parent) {
    auto* label = new QLabel(parent);
    label->setObjectName(name);
    return label;
}

// A list with its count below it, inside a titled frame.
QGroupBox* ListFrame(const QString& name, const QString& title, QListWidget* list, QLabel* count) {
    auto* frame = new QGroupBox(title);
    frame->setObjectName(name);
    auto* layout = new QVBoxLayout(frame);
    layout->addWidget(list, 1);
    auto* countRow = new QHBoxLayout;
    countRow->addWidget(new QLabel(QStringLiteral("変数の数:")));
    countRow->addWidget(count);
    countRow->addStretch();
    layout->addLayout(countRow);
    return frame;
}

// Fixed-width digits keep the array indices in columns.
QFont ListFont() {
    QFont font(QStringLiteral("Monospace"));
    font.setStyleHint(QFont::TypeWriter);
    font.setPointSize(10);
    return font;
}

}  // namespace

MemoryPanel::MemoryPanel(Interpreter& interpreter, std::function<bool()> rounded, QWidget* parent)
    : QGroupBox(QStringLiteral("メモリ表示"), parent),
      interpreter_(interpreter),
      rounded_(std::move(rounded)) {
    setObjectName(QStringLiteral("FrmMemory"));
    for (int k = 0; k < 2; ++k) {
        memoList_[k] = new QListWidget(this);
        memoList_[k]->setObjectName(QStringLiteral("MemoList_%1").arg(k));
        memoList_[k]->setFont(ListFont());
        memoList_[k]->setToolTip(
            QStringLiteral("ダブルクリックで配列の値を表示，Ctrl+ダブルクリックで変数を削除"));
        memoList_[k]->viewport()->installEventFilter(this);
    }
    memorysLb_ = MakeLabel(QStringLiteral("MemorysLb"), this);
    memorysLbG_ = MakeLabel(QStringLiteral("MemorysLbG"), this);
    mFrame_ =
        ListFrame(QStringLiteral("MFrame"), QStringLiteral("ページ変数"), memoList_[0], memorysLb_);
    QGroupBox* globals =
        ListFrame(QStringLiteral("GFrame"), QStringLiteral("大域変数"), memoList_[1], memorysLbG_);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(BuildPageRow());
    layout->addWidget(mFrame_, 1);
    layout->addWidget(globals, 1);
    layout->addLayout(BuildClearRow());
    layout->addWidget(BuildArrayPanel(), 1);
}

QLayout* MemoryPanel::BuildPageRow() {
    comboSelectPage_ = new QComboBox(this);
    comboSelectPage_->setObjectName(QStringLiteral("ComboSelectPage"));
    connect(comboSelectPage_, &QComboBox::activated, this, [this] { ComboSelectPage_Click(); });
    auto* reShow =
        MakeButton(QStringLiteral("CommandReShowMemorys"), QStringLiteral("再表示"), this);
    connect(reShow, &QPushButton::clicked, this, [this] { CommandReShowMemorys_Click(); });
    auto* close = MakeButton(QStringLiteral("ButtonCloseMemory"), QStringLiteral("閉じる"), this);
    connect(close, &QPushButton::clicked, this, [this] {
        CloseArrayPanel();
        hide();
    });
    auto* row = new QHBoxLayout;
    row->addWidget(new QLabel(QStringLiteral("ページ")));
    row->addWidget(comboSelectPage_, 1);
    row->addWidget(reShow);
    row->addWidget(close);
    return row;
}

QLayout* MemoryPanel::BuildClearRow() {
    const struct {
        const char* name;
        const char* caption;
        void (MemoryPanel::*handler)();
    } clearers[] = {
        {"ButtonClearPageMemory", "ページ消去", &MemoryPanel::ButtonClearPageMemory_Click},
        {"ButtonClearGlobMemory", "大域消去", &MemoryPanel::ButtonClearGlobMemory_Click},
        {"ButtonClearALLMemory", "全消去", &MemoryPanel::ButtonClearALLMemory_Click},
    };
    auto* row = new QHBoxLayout;
    for (const auto& c : clearers) {
        auto* button = MakeButton(QString::fromLatin1(c.name), QString::fromUtf8(c.caption), this);
        connect(button, &QPushButton::clicked, this, [this, h = c.handler] { (this->*h)(); });
        row->addWidget(button);
    }
    return row;
}

QWidget* MemoryPanel::BuildArrayPanel() {
    frmArryValues_ = new QGroupBox(this);
    frmArryValues_->setObjectName(QStringLiteral("FrmArryValues"));
    arryList_ = new QListWidget(frmArryValues_);
    arryList_->setObjectName(QStringLiteral("ArryList"));
    arryList_->setFont(ListFont());
    connect(arryList_, &QListWidget::currentRowChanged, this, [this] { ShowFullElement(); });
    arryFullText_ = MakeLabel(QStringLiteral("ArryFullText"), frmArryValues_);
    arryFullText_->setWordWrap(true);
    arryFullText_->setFrameShape(QFrame::StyledPanel);
    arryFullText_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    arryFullText_->hide();
    auto* close =
        MakeButton(QStringLiteral("ButtonCloseArray"), QStringLiteral("閉じる"), frmArryValues_);
    connect(close, &QPushButton::clicked, this, &MemoryPanel::CloseArrayPanel);
    auto* layout = new QVBoxLayout(frmArryValues_);
    layout->addWidget(arryList_, 1);
    layout->addWidget(arryFullText_);
    layout->addWidget(close, 0, Qt::AlignRight);
    frmArryValues_->hide();
    return frmArryValues_;
}

ClsCode* MemoryPanel::SelectedPage() {
    const int index = comboSelectPage_->currentIndex();
    if (index < 0 || index >= interpreter_.PageCount()) return nullptr;
    return &interpreter_.Page(static_cast<std::int16_t>(index));
}

ClsCode* MemoryPanel::PageOfList(int listIndex) {
    return listIndex == 1 ? &interpreter_.ImmediatePage() : SelectedPage();
}

void MemoryPanel::UpdateCounts() {
    memorysLb_->setText(QString::number(memoList_[0]->count()));
    memorysLbG_->setText(QString::number(memoList_[1]->count()));
}

void MemoryPanel::CommandReShowMemorys_Click() {
    CloseArrayPanel();
    comboSelectPage_->clear();
    for (std::int16_t p = 0; p < interpreter_.PageCount(); ++p) {
        comboSelectPage_->addItem(QString::fromStdString(interpreter_.Page(p).PageName()));
    }
    memoList_[0]->clear();
    if (comboSelectPage_->count() > 0) {
        comboSelectPage_->setCurrentIndex(0);
        ShowMemoryList(0);
    }
    ShowMemoryList(-1);
    show();
    UpdateCounts();
    memoList_[0]->setFocus();
}

void MemoryPanel::ComboSelectPage_Click() {
    ShowMemoryList(static_cast<std::int16_t>(comboSelectPage_->currentIndex()));
    UpdateCounts();
}

void MemoryPanel::ShowMemoryList(std::int16_t pageIndex) {
    QListWidget* list = memoList_[pageIndex < 0 ? 1 : 0];
    list->clear();
    ClsCode* page = pageIndex < 0                          ? &interpreter_.ImmediatePage()
                    : pageIndex < interpreter_.PageCount() ? &interpreter_.Page(pageIndex)
                                                           : nullptr;
    if (page == nullptr) return;
    if (pageIndex >= 0) {
        const QString name = QString::fromStdString(page->PageName());
        mFrame_->setTitle(name + QStringLiteral(" 変数"));
        mFrame_->setToolTip(name + QStringLiteral(" 中で使用された変数"));
    }
    for (const std::string& line : MemoryLines(*page, rounded_())) {
        list->addItem(QString::fromStdString(line));
    }
    if (list->count() > 0 && list->currentRow() < 0) list->setCurrentRow(0);
}

void MemoryPanel::ShowArrayValues(std::int16_t pageIndex, int listIndex) {
    ClsCode* page = listIndex == 1 ? &interpreter_.ImmediatePage()
                    : pageIndex >= 0 && pageIndex < interpreter_.PageCount()
                        ? &interpreter_.Page(pageIndex)
                        : nullptr;
    const int row = memoList_[listIndex]->currentRow();
    if (page == nullptr || row < 0 || row >= page->NumofMemory()) return;
    const auto index = static_cast<std::int16_t>(row);
    if (page->MemoryTyp(index) == kScalar) return;
    const QString prefix = listIndex == 1
                               ? QStringLiteral("Global 配列 ")
                               : comboSelectPage_->currentText() + QStringLiteral(" 配列  ");
    frmArryValues_->setTitle(prefix + memoList_[listIndex]->item(row)->text() +
                             QStringLiteral(" の値"));
    arryList_->clear();
    for (const std::string& line : ArrayElementLines(*page, index, rounded_())) {
        arryList_->addItem(QString::fromStdString(line));
    }
    emit arrayPanelShown(true);
    frmArryValues_->show();
}

void MemoryPanel::CloseArrayPanel() {
    if (frmArryValues_->isHidden()) return;
    frmArryValues_->hide();
    emit arrayPanelShown(false);
}

void MemoryPanel::MemoList_DblClick(int listIndex, int shiftState) {
    QListWidget* list = memoList_[listIndex];
    if (shiftState == kCtrlOnly) {
        ClsCode* page = PageOfList(listIndex);
        const int row = list->currentRow();
        if (page != nullptr && row >= 0 && row < page->NumofMemory()) {
            page->AEraseMemory(static_cast<std::int16_t>(row));
        }
        CommandReShowMemorys_Click();
    } else if (list->count() > 0) {
        ShowArrayValues(static_cast<std::int16_t>(comboSelectPage_->currentIndex()), listIndex);
    }
}

void MemoryPanel::ButtonClearGlobMemory_Click() {
    interpreter_.ImmediatePage().AEraseMemorys();
    memoList_[1]->clear();
    UpdateCounts();
    interpreter_.ClearProgramAnalysed();
}

void MemoryPanel::ButtonClearPageMemory_Click() {
    if (ClsCode* page = SelectedPage()) page->AEraseMemorys();
    memoList_[0]->clear();
    UpdateCounts();
    interpreter_.ClearProgramAnalysed();
}

void MemoryPanel::ButtonClearALLMemory_Click() {
    interpreter_.EraseGlobals();
    interpreter_.ImmediatePage().AEraseMemorys();
    ClearDisplay();
}

void MemoryPanel::ClearDisplay() {
    memoList_[0]->clear();
    memoList_[1]->clear();
    memorysLb_->clear();
    memorysLbG_->clear();
}

void MemoryPanel::ShowFullElement() {
    const QListWidgetItem* item = arryList_->currentItem();
    const bool wide = item != nullptr && arryList_->fontMetrics().horizontalAdvance(item->text()) >
                                             arryList_->viewport()->width();
    arryFullText_->setText(wide ? item->text() : QString());
    arryFullText_->setVisible(wide);
}

bool MemoryPanel::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::MouseButtonDblClick) return false;
    for (int k = 0; k < 2; ++k) {
        if (watched != memoList_[k]->viewport()) continue;
        const auto* mouse = static_cast<QMouseEvent*>(event);
        MemoList_DblClick(k, ShiftState(mouse->modifiers()));
        return true;
    }
    return false;
}

}  // namespace lapdesk
