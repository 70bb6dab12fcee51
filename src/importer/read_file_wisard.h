// ReadFileWisard: the modal dialog that previews the first lines of a text
// table and asks how to read it: the parameter line, the first data line, the
// first column, the delimiter (and, when the caller wants it, a channel
// number). The caller fills the labels, shows the dialog and reads the labels
// back; one instance serves the whole program, so the answers are kept from
// one use to the next. A data file the transform window saved is known by its
// first line and gets the answers that read it back; the kept answers return
// with the next file of another kind.
#pragma once

#include <QDialog>
#include <QString>
#include <functional>
#include <string>
#include <vector>

class QComboBox;
class QLabel;
class QListWidget;
class QPushButton;
class QRadioButton;

namespace lapdesk {

// The exchange with the caller. The starting answers read back a file that
// the transform window saved.
struct WisardLabels {
    QString FileNameLb;     // the file to preview (caller)
    int MaxColumnLb = 5;    // how many column numbers to offer (caller)
    int SpecialLb = 2;      // the parameter line, 1-based
    int TopRowLb = 4;       // the first data line, 1-based
    int TopColumnLb = 1;    // the first column, 1-based
    int ChnoLb = 1;         // the channel number
    QString DelmLb = ",";   // the delimiter text
    bool OkFlagLb = false;  // set by OK; reset before every showing
};

class ReadFileWisard : public QDialog {
    Q_OBJECT
  public:
    explicit ReadFileWisard(QWidget* parent = nullptr);

    WisardLabels& labels() { return labels_; }

    // Offers the channel list next to the column list.
    void ShowChannelList(bool shown);

    // Resets the accepted flag, previews the file named in FileNameLb and
    // shows the dialog modally. A file that cannot be read closes it at once,
    // as Cancel does, and leaves the reason in ReadFailure. Returns the
    // accepted flag.
    bool ShowModal();
    const QString& ReadFailure() const { return readFailure_; }

    // OK reads when the answers fit the file; when they look wrong, the
    // question says why and the dialog stays open unless the user reads
    // anyway.
    void ButtonOk_Click();
    void ButtonCalcel_Click();

    // Asks whether to read although the answers look wrong (the text says
    // why); true reads. The default shows a question with 読込む and 戻る,
    // 戻る being the default button. Tests put their own answer here.
    using Asker = std::function<bool(QWidget* parent, const QString& text)>;
    void SetAsker(Asker asker) { asker_ = std::move(asker); }

  signals:
    // The lists are filled and the dialog is about to show.
    void activated();

  public slots:
    // Esc and the window's close box act as Cancel.
    void reject() override;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    // The answers a saved data file sets aside while it is shown.
    struct KeptAnswers {
        int SpecialLb;
        int TopRowLb;
        int TopColumnLb;
        QString DelmLb;
    };

    bool Activate();
    void ChooseAnswersFor(bool savedFile);
    void PreviewClicked(int row);
    void ChooseRow(QListWidget* list, int row);
    void FillNumberList(QListWidget* list, int count, int answer);
    void MarkPreview();
    QListWidget* MakeNumberList(const char* name, int WisardLabels::*answer);
    void ClosePreview(int result);

    WisardLabels labels_;
    QString readFailure_;
    std::vector<std::string> lines_;  // the whole file while it is shown
    Asker asker_;
    bool showingSavedFile_ = false;
    KeptAnswers keptAnswers_{};  // set aside while a saved data file is shown
    QLabel* savedFileNote_ = nullptr;
    QRadioButton* clickSetsSpecial_ = nullptr;
    QRadioButton* clickSetsTopRow_ = nullptr;
    QLabel* previewNote_ = nullptr;  // says that a long file is cut short
    QListWidget* sampleList_ = nullptr;
    QListWidget* specialRow_ = nullptr;
    QListWidget* topRow_ = nullptr;
    QListWidget* topColumn_ = nullptr;
    QListWidget* chnoList_ = nullptr;
    QWidget* channelBox_ = nullptr;
    QComboBox* delimiterList_ = nullptr;
    QPushButton* buttonOk_ = nullptr;
    QLabel* fileLabel_ = nullptr;
};

}  // namespace lapdesk
