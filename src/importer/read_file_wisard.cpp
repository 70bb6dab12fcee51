#include "importer/read_file_wisard.h"

#include <QComboBox>
#include <QEvent>
#include <QFocusEvent>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include "fileio/text_file.h"
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

// Fills the preview and the lists from the file and the kept answers.
bool ReadFileWisard::Activate() {
    const LinesResult read = ReadTextLines(labels_.FileNameLb.toStdString());
    if (!read.ok) {
        readFailure_ = QString::fromStdString(read.reason);
        ButtonCalcel_Click();
        return false;
    }
    fileLabel_->setText(QStringLiteral("ファイル: ") + labels_.FileNameLb);
    sampleList_->clear();
    const std::vector<std::string> entries = PreviewEntries(read.lines);
    for (const std::string& entry : entries) {
        sampleList_->addItem(QString::fromStdString(entry));
    }
    const int lines = static_cast<int>(entries.size());
    previewNote_->setText(QStringLiteral("ファイルは %1 行あります：先頭 %2 行だけを表示しています")
                              .arg(read.lines.size())
                              .arg(kPreviewLineLimit));
    previewNote_->setVisible(static_cast<int>(read.lines.size()) > kPreviewLineLimit);
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
