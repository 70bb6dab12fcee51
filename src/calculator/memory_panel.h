// The memory display (FrmMemory): the variables of a chosen program page and
// the global variables of the immediate page, the array element panel, and
// the clearing buttons. It draws what the interpreter holds and changes
// memory only through the interpreter's own operations.
#pragma once

#include <QGroupBox>
#include <cstdint>
#include <functional>

class QComboBox;
class QLabel;
class QLayout;
class QListWidget;
class QPushButton;

namespace lapdesk {

class ClsCode;
class Interpreter;

class MemoryPanel : public QGroupBox {
    Q_OBJECT
  public:
    // rounded tells whether values are shown rounded (MenueSingleDisp).
    MemoryPanel(Interpreter& interpreter, std::function<bool()> rounded, QWidget* parent = nullptr);

    void CommandReShowMemorys_Click();
    void ComboSelectPage_Click();
    void ShowMemoryList(std::int16_t pageIndex);
    void ShowArrayValues(std::int16_t pageIndex, int listIndex);
    void MemoList_DblClick(int listIndex, int shiftState);
    void ButtonClearALLMemory_Click();
    void ButtonClearGlobMemory_Click();
    void ButtonClearPageMemory_Click();
    void CloseArrayPanel();
    // Empties both lists and their counts.
    void ClearDisplay();

  signals:
    // The array panel opened (true) or closed (false).
    void arrayPanelShown(bool shown);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QLayout* BuildPageRow();
    QLayout* BuildClearRow();
    QWidget* BuildArrayPanel();
    ClsCode* SelectedPage();
    ClsCode* PageOfList(int listIndex);
    void UpdateCounts();
    void ShowFullElement();

    Interpreter& interpreter_;
    std::function<bool()> rounded_;
    QGroupBox* mFrame_;
    QListWidget* memoList_[2];
    QLabel* memorysLb_;
    QLabel* memorysLbG_;
    QComboBox* comboSelectPage_;
    QGroupBox* frmArryValues_;
    QListWidget* arryList_;
    QLabel* arryFullText_;
};

}  // namespace lapdesk
