// Parameter entry in the transform window (the N list and the T and gamma0
// boxes) and the plot's cursor readout.
#include <QApplication>
#include <QClipboard>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMouseEvent>

#include "transform/window/accuracy/accuracy_view.h"
#include "transform/window/draggable_frame.h"
#include "transform/window/plot/scrn_plot.h"
#include "transform/window/tesmor_form.h"

namespace lapdesk {

// The list of N opens below its label, on the present value.
void TesmorForm::WordNumberLb_Click() {
    const QPoint below = wordNumberLb_->mapTo(centralWidget(), QPoint(0, wordNumberLb_->height()));
    wrdList_->setFixedSize(wordNumberLb_->width(), wrdList_->sizeHintForRow(0) * wrdList_->count() +
                                                       2 * wrdList_->frameWidth());
    wrdList_->move(below);
    const QList<QListWidgetItem*> present =
        wrdList_->findItems(wordNumberLb_->text(), Qt::MatchExactly);
    if (!present.isEmpty()) wrdList_->setCurrentItem(present.front());
    wrdList_->show();
    wrdList_->raise();
    wrdList_->setFocus();
}

void TesmorForm::WrdList_Click(QListWidgetItem* item) {
    driver_.SetWordNumber(item->text().toStdString());
    wrdList_->hide();
    ShowStateLabels();
}

void TesmorForm::TendLb_Click() {
    OpenEntryBox(tendLb_, tendText_);
}

void TesmorForm::Ganmalb_Click() {
    OpenEntryBox(ganmalb_, ganmaText_);
}

// The box takes the label's place, filled with its value; the commands wait
// until the value is entered.
void TesmorForm::OpenEntryBox(QLabel* label, QLineEdit* box) {
    box->setText(label->text());
    label->hide();
    box->show();
    box->selectAll();
    box->setFocus();
    buttonsFrame_->hide();
}

// Closing twice does no harm: hiding the box takes its focus away, which
// closes it again.
void TesmorForm::CloseEntryBox(QLabel* label, QLineEdit* box) {
    MarkRejected(box, false);
    box->hide();
    label->show();
    if (tendText_->isHidden() && ganmaText_->isHidden()) buttonsFrame_->show();
    ShowStateLabels();
}

// A text that is not a number greater than 0 leaves the box open, marked
// red until it is edited; no message interrupts the typing.
void TesmorForm::TendText_Enter() {
    if (driver_.SetTend(tendText_->text().toStdString())) {
        CloseEntryBox(tendLb_, tendText_);
    } else {
        MarkRejected(tendText_, true);
    }
}

void TesmorForm::GanmaText_Enter() {
    if (driver_.SetGanma(ganmaText_->text().toStdString())) {
        CloseEntryBox(ganmalb_, ganmaText_);
    } else {
        MarkRejected(ganmaText_, true);
    }
}

void TesmorForm::MarkRejected(QLineEdit* box, bool rejected) {
    box->setProperty("rejected", rejected);
    box->setStyleSheet(rejected ? QStringLiteral("background: #ffd0d0; color: #8b0000;")
                                : QString());
    box->setToolTip(rejected ? QStringLiteral("0 より大きい数を入力してください（Esc で取消）")
                             : QString());
}

// Esc, or the focus going elsewhere in the window, leaves the value as it
// was and brings the commands back.
bool TesmorForm::EntryBoxEvent(QLineEdit* box, QEvent* event) {
    QLabel* label = box == tendText_ ? tendLb_ : ganmalb_;
    switch (event->type()) {
        case QEvent::ShortcutOverride:
        case QEvent::KeyPress:
            if (static_cast<QKeyEvent*>(event)->key() != Qt::Key_Escape) return false;
            // Taken before the window's Esc shortcut sees it.
            event->accept();
            if (event->type() == QEvent::KeyPress) CloseEntryBox(label, box);
            return true;
        case QEvent::FocusOut: {
            const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
            if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason &&
                box->isVisible()) {
                CloseEntryBox(label, box);
            }
            return false;
        }
        default:
            return false;
    }
}

// Like a new N, T or gamma0: the data were made with the other taper.
void TesmorForm::HaningCheck_Click() {
    driver_.SetHaning(haningCheck_->isChecked());
    ShowStateLabels();
}

// Clicks on the parameter labels, Enter in the N list, and the readout
// leaving the plot.
bool TesmorForm::eventFilter(QObject* watched, QEvent* event) {
    if (watched == tendText_ || watched == ganmaText_) {
        return EntryBoxEvent(static_cast<QLineEdit*>(watched), event);
    }
    const QEvent::Type type = event->type();
    if (type == QEvent::MouseButtonRelease &&
        static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton) {
        if (watched == wordNumberLb_) WordNumberLb_Click();
        if (watched == tendLb_) TendLb_Click();
        if (watched == ganmalb_) Ganmalb_Click();
    } else if (type == QEvent::KeyPress && watched == wrdList_) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            if (QListWidgetItem* item = wrdList_->currentItem()) WrdList_Click(item);
            wrdList_->hide();
            return true;
        }
    } else if (type == QEvent::FocusOut && watched == wrdList_) {
        wrdList_->hide();
    } else if ((type == QEvent::Leave && watched == scrn_) ||
               (type == QEvent::Enter && watched == frame3_)) {
        HideReadoutLabel();
    }
    return QMainWindow::eventFilter(watched, event);
}

// The t (or k) and y under the cursor, in PosX, PosY and the floating label, which
// follows the cursor and stays inside the plot.
void TesmorForm::Scrn_MouseMove(QMouseEvent* event) {
    cursor_ = event->position();
    cursorInside_ = true;
    ShowReadout();
}

// Read again after every replot, so a pan or zoom under a still cursor
// shows the values under it now, not those of the view before.
void TesmorForm::ShowReadout() {
    if (!cursorInside_) return;
    const Conditions c = driver_.GetConditions();
    const double x = scrn_->xAxis->pixelToCoord(cursor_.x());
    const double y = scrn_->yAxis->pixelToCoord(cursor_.y());
    posX_->setText(QString::fromStdString(ReadoutXText(scrn_->view(), x, c.N)));
    posY_->setText(QString::fromStdString(ReadoutText("y= ", y)));
    // The accuracy readout shows only over the result, where x is t.
    accuracy_->ShowReadout(driver_, x);
    floatLb_->setText(posX_->text() + QLatin1Char('\n') + posY_->text());
    floatLb_->adjustSize();
    QPoint place = cursor_.toPoint() + QPoint(14, 14);
    if (place.x() + floatLb_->width() > scrn_->width()) place.rx() -= floatLb_->width() + 28;
    if (place.y() + floatLb_->height() > scrn_->height()) place.ry() -= floatLb_->height() + 28;
    floatLb_->move(place);
    floatLb_->show();
    floatLb_->raise();
}

void TesmorForm::HideReadoutLabel() {
    cursorInside_ = false;
    floatLb_->hide();
}

// The copy is read where the button was released.
void TesmorForm::Scrn_MouseUp(QMouseEvent* event) {
    if (event->button() != Qt::RightButton) return;
    cursor_ = event->position();
    cursorInside_ = true;
    ShowReadout();
    QClipboard* clipboard = QApplication::clipboard();
    clipboard->clear();
    clipboard->setText(floatLb_->text());
}

}  // namespace lapdesk
