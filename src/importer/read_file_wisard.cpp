#include "importer/read_file_wisard.h"

#include <QComboBox>
#include <QEvent>
#include <QFocusEvent>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "importer/import_preview.h"

namespace lapdesk {

namespace {

template <typename W>
W* Named(W* widget, const char* name) {
    widget->setObjectName(QString::fromLatin1(name));
    return widget;
}

QString ShownDelimiter(const QString& delimiter) {
    return QString::fromStdString(lapdesk::ShownDelimiter(delimiter.toStdString()));
}
QString TypedDelimiter(const QString& shown) {
    return QString::fromStdString(lapdesk::TypedDelimiter(shown.toStdString()));
}

const QColor kParameterLineColour(0xff, 0xf0, 0xb8);
const QColor kFirstDataLineColour(0xd4, 0xf0, 0xd8);

QPushButton* MakeButton(const char* name, const QString& caption) {
    auto* button = Named(new QPushButton(caption), name);
    // Only ButtonOk is ever the default, and only while the delimiter is not
    // being typed.
    button->setAutoDefault(false);
    return button;
}

// A caption above a list or combo box.
QWidget* Captioned(const QString& caption, QWidget* control, const QString& tip) {
    auto* box = new QWidget;
    auto* layout = new QVBoxLayout(box);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    layout->addWidget(new QLabel(caption));
    layout->addWidget(control);
    layout->addStretch();
    control->setToolTip(tip);
    return box;
}

// The question before reading answers that look wrong; only 読込む reads.
bool AskToReadAnyway(QWidget* parent, const QString& text) {
    QMessageBox box(QMessageBox::Question, QStringLiteral("読込み形式の確認"), text,
                    QMessageBox::NoButton, parent);
    box.setObjectName(QStringLiteral("DoubtQuestion"));
    QPushButton* read = box.addButton(QStringLiteral("読込む"), QMessageBox::AcceptRole);
    QPushButton* back = box.addButton(QStringLiteral("戻る"), QMessageBox::RejectRole);
    read->setObjectName(QStringLiteral("ReadAnyway"));
    back->setObjectName(QStringLiteral("GoBack"));
    box.setDefaultButton(back);
    box.setEscapeButton(back);
    box.exec();
    return box.clickedButton() == read;
}

QString DoubtQuestion(const std::vector<Doubt>& doubts) {
    QString text = QStringLiteral("選んだ形式では正しく読めないかもしれません：\n");
    for (const Doubt& doubt : doubts) {
        text += QStringLiteral("\n・") + QString::fromStdString(doubt.text);
    }
    return text + QStringLiteral("\n\nこのまま読込みますか？");
}

}  // namespace

ReadFileWisard::ReadFileWisard(QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("ReadFileWisard"));
    setWindowTitle(QStringLiteral("データ読込み形式の指定"));
    setModal(true);

    auto* guide =
        new QLabel(QStringLiteral("N, T, γ0 の書かれた行（黄）、最初のデータ行（緑）、実部の列と"
                                  "区切り文字を選んで OK を押してください。"));
    guide->setWordWrap(true);
    fileLabel_ = Named(new QLabel, "FileLabel");
    fileLabel_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    sampleList_ = Named(new QListWidget, "SampleList");
    sampleList_->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    sampleList_->setMinimumSize(640, 260);
    sampleList_->setToolTip(QStringLiteral("ファイルの先頭 200 行（行番号|内容）"));
    // A click sets an answer instead of selecting: the marks stay visible.
    sampleList_->setSelectionMode(QAbstractItemView::NoSelection);
    connect(sampleList_, &QListWidget::itemClicked, this,
            [this](QListWidgetItem* item) { PreviewClicked(sampleList_->row(item)); });
    savedFileNote_ = Named(new QLabel(QStringLiteral(
                               "変換画面で保存したデータファイルなので、その形式（区切り文字「,」、"
                               "パラメータ行 2、データ開始行 4、開始列 1）を選んであります")),
                           "SavedFileNote");
    savedFileNote_->setWordWrap(true);
    savedFileNote_->hide();
    previewNote_ = Named(new QLabel, "PreviewNote");
    previewNote_->setForegroundRole(QPalette::PlaceholderText);
    previewNote_->hide();

    specialRow_ = MakeNumberList("SpecialRow", &WisardLabels::SpecialLb);
    topRow_ = MakeNumberList("TopRow", &WisardLabels::TopRowLb);
    topColumn_ = MakeNumberList("TopColumn", &WisardLabels::TopColumnLb);
    chnoList_ = MakeNumberList("ChnoList", &WisardLabels::ChnoLb);

    delimiterList_ = Named(new QComboBox, "DelimiterList");
    delimiterList_->setEditable(true);
    delimiterList_->setInsertPolicy(QComboBox::NoInsert);
    delimiterList_->setMinimumContentsLength(6);  // room for "スペース"
    for (const std::string_view delimiter : kDelimiters) {
        delimiterList_->addItem(
            ShownDelimiter(QString::fromUtf8(delimiter.data(), delimiter.size())));
    }
    delimiterList_->setCurrentIndex(0);
    connect(delimiterList_, &QComboBox::activated, this, [this](int index) {
        labels_.DelmLb = TypedDelimiter(delimiterList_->itemText(index));
    });
    connect(delimiterList_->lineEdit(), &QLineEdit::returnPressed, this,
            [this] { labels_.DelmLb = TypedDelimiter(delimiterList_->currentText()); });
    delimiterList_->installEventFilter(this);
    delimiterList_->lineEdit()->installEventFilter(this);

    buttonOk_ = MakeButton("ButtonOk", QStringLiteral("OK"));
    buttonOk_->setDefault(true);
    auto* cancel = MakeButton("ButtonCalcel", QStringLiteral("キャンセル"));
    connect(buttonOk_, &QPushButton::clicked, this, &ReadFileWisard::ButtonOk_Click);
    connect(cancel, &QPushButton::clicked, this, &ReadFileWisard::ButtonCalcel_Click);

    // Which answer a click on a preview line sets: the first data line
    // unless the parameter line is chosen here.
    clickSetsSpecial_ =
        Named(new QRadioButton(QStringLiteral("パラメータ行（黄）")), "ClickSetsSpecial");
    clickSetsTopRow_ =
        Named(new QRadioButton(QStringLiteral("データ開始行（緑）")), "ClickSetsTopRow");
    clickSetsTopRow_->setChecked(true);
    auto* clickRule = new QHBoxLayout;
    clickRule->addWidget(new QLabel(QStringLiteral("行をクリックすると設定する項目：")));
    clickRule->addWidget(clickSetsSpecial_);
    clickRule->addWidget(clickSetsTopRow_);
    clickRule->addStretch();

    channelBox_ = Captioned(QStringLiteral("チャンネル"), chnoList_,
                            QStringLiteral("読み込むチャンネルの番号"));
    channelBox_->hide();
    auto* choices = new QHBoxLayout;
    choices->addWidget(Captioned(QStringLiteral("パラメータ行"), specialRow_,
                                 QStringLiteral("N, T, γ0 が書かれている行")));
    choices->addWidget(Captioned(QStringLiteral("データ開始行"), topRow_,
                                 QStringLiteral("最初のデータ行（ここから N 行を読みます）")));
    choices->addWidget(Captioned(QStringLiteral("開始列"), topColumn_,
                                 QStringLiteral("実部の列（虚部はその次の列）")));
    choices->addWidget(channelBox_);
    choices->addWidget(Captioned(QStringLiteral("区切り文字"), delimiterList_,
                                 QStringLiteral("数値の間の文字（スペース , ; =）。"
                                                "入力した場合は Enter で確定します")));
    choices->addStretch();

    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(buttonOk_);
    buttons->addWidget(cancel);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(guide);
    layout->addWidget(fileLabel_);
    layout->addWidget(sampleList_, 1);
    layout->addWidget(previewNote_);
    layout->addLayout(clickRule);
    layout->addWidget(savedFileNote_);
    layout->addLayout(choices);
    layout->addLayout(buttons);
}

// A list of 1-based numbers; choosing an entry stores it as the answer.
QListWidget* ReadFileWisard::MakeNumberList(const char* name, int WisardLabels::*answer) {
    auto* list = Named(new QListWidget, name);
    list->setFixedSize(84, 132);
    // Selection, not the current item: focus alone must not change an answer.
    connect(list, &QListWidget::itemSelectionChanged, this, [this, list, answer] {
        const QList<QListWidgetItem*> chosen = list->selectedItems();
        if (chosen.isEmpty()) return;
        labels_.*answer = chosen.front()->text().toInt();
        MarkPreview();
    });
    return list;
}

void ReadFileWisard::ShowChannelList(bool shown) {
    channelBox_->setVisible(shown);
}

bool ReadFileWisard::ShowModal() {
    labels_.OkFlagLb = false;
    readFailure_.clear();
    if (!Activate()) return false;
    emit activated();
    exec();
    return labels_.OkFlagLb;
}

// Fills the preview and the lists from the file and the kept answers, or
// the answers of a saved data file.
bool ReadFileWisard::Activate() {
    PreviewFile read = ReadPreviewFile(labels_.FileNameLb.toStdString());
    if (!read.ok) {
        readFailure_ = QString::fromStdString(read.reason);
        ButtonCalcel_Click();
        return false;
    }
    lines_ = std::move(read.lines);
    ChooseAnswersFor(IsSavedTransformFile(lines_));
    fileLabel_->setText(QStringLiteral("ファイル: ") + labels_.FileNameLb);
    sampleList_->clear();
    const std::vector<std::string> entries = PreviewEntries(lines_);
    for (const std::string& entry : entries) {
        sampleList_->addItem(QString::fromStdString(entry));
    }
    const int lines = static_cast<int>(entries.size());
    previewNote_->setText(QStringLiteral("ファイルは %1 行あります：先頭 %2 行だけを表示しています")
                              .arg(lines_.size())
                              .arg(kPreviewLineLimit));
    previewNote_->setVisible(static_cast<int>(lines_.size()) > kPreviewLineLimit);
    FillNumberList(topRow_, lines, labels_.TopRowLb);
    FillNumberList(specialRow_, lines, labels_.SpecialLb);
    FillNumberList(topColumn_, labels_.MaxColumnLb, labels_.TopColumnLb);
    FillNumberList(chnoList_, labels_.MaxColumnLb, labels_.ChnoLb);
    delimiterList_->setEditText(ShownDelimiter(labels_.DelmLb));
    MarkPreview();
    buttonOk_->setDefault(true);
    buttonOk_->setFocus();
    return true;
}

// A saved data file gets the answers that read it back; the answers kept
// from other files are set aside meanwhile and return with the next one.
void ReadFileWisard::ChooseAnswersFor(bool savedFile) {
    if (savedFile) {
        if (!showingSavedFile_) {
            keptAnswers_ = {labels_.SpecialLb, labels_.TopRowLb, labels_.TopColumnLb,
                            labels_.DelmLb};
        }
        const ReadAnswers saved = SavedFileAnswers();
        labels_.SpecialLb = saved.paramLine;
        labels_.TopRowLb = saved.dataLine;
        labels_.TopColumnLb = saved.firstColumn;
        labels_.DelmLb = QString::fromStdString(saved.delimiter);
    } else if (showingSavedFile_) {
        labels_.SpecialLb = keptAnswers_.SpecialLb;
        labels_.TopRowLb = keptAnswers_.TopRowLb;
        labels_.TopColumnLb = keptAnswers_.TopColumnLb;
        labels_.DelmLb = keptAnswers_.DelmLb;
    }
    showingSavedFile_ = savedFile;
    savedFileNote_->setVisible(savedFile);
}

// A click on a preview line chooses it in the list the click rule names;
// the list's selection then sets the answer.
void ReadFileWisard::PreviewClicked(int row) {
    ChooseRow(clickSetsSpecial_->isChecked() ? specialRow_ : topRow_, row);
}

void ReadFileWisard::ChooseRow(QListWidget* list, int row) {
    if (row < 0 || row >= list->count()) return;
    list->setCurrentRow(row);
    list->scrollToItem(list->item(row));
}

void ReadFileWisard::FillNumberList(QListWidget* list, int count, int answer) {
    list->clear();
    for (const std::string& choice : NumberChoices(count)) {
        list->addItem(QString::fromStdString(choice));
    }
    const int row = ChoiceRow(answer, count);
    if (row < 0) return;
    list->setCurrentRow(row);
    list->scrollToItem(list->item(row), QAbstractItemView::PositionAtCenter);
}

// The chosen parameter line and first data line stand out in the preview.
void ReadFileWisard::MarkPreview() {
    for (int row = 0; row < sampleList_->count(); ++row) {
        QBrush mark;
        if (row == labels_.SpecialLb - 1) mark = kParameterLineColour;
        if (row == labels_.TopRowLb - 1) mark = kFirstDataLineColour;
        sampleList_->item(row)->setBackground(mark);
    }
}

void ReadFileWisard::ButtonOk_Click() {
    const ReadAnswers answers{labels_.SpecialLb, labels_.TopRowLb, labels_.TopColumnLb,
                              labels_.DelmLb.toStdString()};
    const std::vector<Doubt> doubts = FindDoubts(lines_, answers);
    if (!doubts.empty() && !(asker_ ? asker_ : AskToReadAnyway)(this, DoubtQuestion(doubts))) {
        return;
    }
    labels_.OkFlagLb = true;
    ClosePreview(Accepted);
}

void ReadFileWisard::ButtonCalcel_Click() {
    ClosePreview(Rejected);
}

void ReadFileWisard::reject() {
    ButtonCalcel_Click();
}

void ReadFileWisard::ClosePreview(int result) {
    sampleList_->clear();
    lines_.clear();
    done(result);
}

// While the delimiter is being typed, Enter confirms it instead of closing
// the dialog: OK is the default button only when the combo box has no focus.
bool ReadFileWisard::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusIn) {
        buttonOk_->setDefault(false);
    } else if (event->type() == QEvent::FocusOut) {
        const auto reason = static_cast<QFocusEvent*>(event)->reason();
        if (reason != Qt::PopupFocusReason && !delimiterList_->isAncestorOf(focusWidget()) &&
            focusWidget() != delimiterList_) {
            buttonOk_->setDefault(true);
        }
    }
    return QDialog::eventFilter(watched, event);
}

}  // namespace lapdesk
