// Saves PNG pictures of the transform window driven by object name as a
// person would drive it: at start, after a transform (plot and result
// frame), the samples with the cursor readout, the import wizard on the
// saved file, the calculator beside the transform window, the result read
// back, a failed run with its reason, and the window at its least size; and
// the whole screen (under a window manager: where the windows stand, what
// covers what) after "作成", after "実行" and after a program that fails.
// Usage: transform_screenshots <folder>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QTemporaryDir>
#include <QTest>
#include <cstdio>

#include "calculator/calculator_dialogs.h"
#include "calculator/frm_cpl_cal.h"
#include "importer/read_file_wisard.h"
#include "transform/window/tesmor_form.h"

namespace {

using lapdesk::TesmorForm;

// Answers every file dialog with one file and every question with OK.
class FixedDialogs : public lapdesk::CalculatorDialogs {
  public:
    explicit FixedDialogs(QString file) : file_(std::move(file)) {}
    QMessageBox::StandardButton Ask(QWidget*, const QString&, const QString&,
                                    QMessageBox::StandardButtons) override {
        return QMessageBox::Ok;
    }
    QString ChooseFile(QWidget*, lapdesk::FileDialogKind, const QString&, const QString&,
                       const QString&, const QString&) override {
        return file_;
    }

  private:
    QString file_;
};

QImage Grab(QWidget& window) {
    QApplication::processEvents();
    return window.grab().toImage();
}

// The whole screen as the window manager shows it.
QImage GrabScreen() {
    QTest::qWait(300);  // the window manager places and decorates first
    return QGuiApplication::primaryScreen()->grabWindow(0).toImage();
}

void Save(const QImage& image, const QDir& folder, const QString& name) {
    const QString path = folder.filePath(name + QStringLiteral(".png"));
    if (!image.save(path)) std::fprintf(stderr, "cannot write %s\n", qPrintable(path));
}

template <typename T>
T* Child(QWidget& window, const char* name) {
    return window.findChild<T*>(QString::fromLatin1(name));
}

void Click(QWidget& window, const char* button) {
    QApplication::processEvents();
    QTest::mouseClick(Child<QPushButton>(window, button), Qt::LeftButton);
}

void Enter(TesmorForm& form, const char* label, const char* box, const char* value) {
    QTest::mouseClick(Child<QLabel>(form, label), Qt::LeftButton);
    Child<QLineEdit>(form, box)->setText(QString::fromLatin1(value));
    QTest::keyClick(Child<QLineEdit>(form, box), Qt::Key_Return);
}

// Both windows on one picture, the transform window on the left.
QImage SideBySide(const QImage& left, const QImage& right) {
    QImage both(left.width() + 12 + right.width(), std::max(left.height(), right.height()),
                QImage::Format_RGB32);
    both.fill(QColor(0x3c, 0x3f, 0x41));
    QPainter painter(&both);
    painter.drawImage(0, 0, left);
    painter.drawImage(left.width() + 12, 0, right);
    return both;
}

void ShootWizard(TesmorForm& form, const QDir& folder) {
    lapdesk::ReadFileWisard& wisard = form.wisard();
    QObject::connect(
        &wisard, &lapdesk::ReadFileWisard::activated, &wisard,
        [&wisard, &folder] {
            Save(Grab(wisard), folder, QStringLiteral("transform-3-wizard"));
            QTest::mouseClick(Child<QPushButton>(wisard, "ButtonOk"), Qt::LeftButton);
        },
        Qt::QueuedConnection);
    Click(form, "ButtonDataRead");
}

}  // namespace

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    if (argc < 2) {
        std::fprintf(stderr, "usage: transform_screenshots <folder>\n");
        return 2;
    }
    const QDir folder(QString::fromLocal8Bit(argv[1]));
    const QTemporaryDir work;
    const QString dataFile = work.filePath(QStringLiteral("damped-sine.Ldt"));
    TesmorForm form(std::make_unique<FixedDialogs>(dataFile),
                    std::make_unique<FixedDialogs>(dataFile));
    form.show();
    Save(Grab(form), folder, QStringLiteral("transform-0-start"));
    Click(form, "ButtonCallPfunction");
    Save(GrabScreen(), folder, QStringLiteral("screen-1-after-create"));

    // f(t) = e^-0.5t sin 2t over ten seconds.
    Enter(form, "TendLb", "TendText", "10");
    lapdesk::FrmCplCal& calculator = form.calculator();
    Child<QRadioButton>(calculator, "OptionProgram")->click();
    Child<QPlainTextEdit>(calculator, "ProgramText")
        ->setPlainText(QStringLiteral("' F(p) = 2/((p+0.5)^2+4): f(t) = exp(-0.5t)*sin(2t)\n"
                                      "Return 2/((p+0.5)^2 + 4)\nEnd"));
    Click(form, "Command2");
    Save(GrabScreen(), folder, QStringLiteral("screen-2-after-run"));
    Save(Grab(form), folder, QStringLiteral("transform-1-transform"));
    Save(SideBySide(Grab(form), Grab(calculator)), folder,
         QStringLiteral("transform-4-with-calculator"));

    Click(form, "Command1");
    Click(form, "ButtonDrawLapData");
    auto* scrn = Child<QWidget>(form, "Scrn");
    // Sent straight to the plot: a moved cursor reaches no window under Xvfb.
    const QPointF at(scrn->width() / 3, scrn->height() / 3);
    QMouseEvent move(QEvent::MouseMove, at, scrn->mapToGlobal(at), Qt::NoButton, Qt::NoButton,
                     Qt::NoModifier);
    QApplication::sendEvent(scrn, &move);
    Save(Grab(form), folder, QStringLiteral("transform-2-data-readout"));
    QEvent leave(QEvent::Leave);  // the mouse goes on to the buttons
    QApplication::sendEvent(scrn, &leave);

    Click(form, "ButtonResultWrite");
    ShootWizard(form, folder);
    Save(Grab(form), folder, QStringLiteral("transform-5-read-back"));

    // gamma0 = 800 overflows the inversion: no stale curve, the reason shown.
    Enter(form, "Ganmalb", "GanmaText", "800");
    Click(form, "Command2");
    Save(Grab(form), folder, QStringLiteral("transform-6-failure"));

    // A program whose call fails at an argument: its message comes to the
    // front with the failing line marked, then is double-clicked away.
    Enter(form, "Ganmalb", "GanmaText", "5");
    auto* editor = Child<QPlainTextEdit>(calculator, "ProgramText");
    const QString good = editor->toPlainText();
    editor->setPlainText(QStringLiteral(
        "' 引数の誤り\nq = F(w + 1)\nReturn q\nEnd\nFunction F(x)\n  Return x\nEnd Function"));
    QObject::connect(
        &calculator, &lapdesk::FrmCplCal::messageShown, &calculator,
        [&calculator, &folder] {
            Save(GrabScreen(), folder, QStringLiteral("screen-3-failed-program"));
            QTest::mouseDClick(Child<QLabel>(calculator, "MessageBox"), Qt::LeftButton);
        },
        Qt::QueuedConnection);
    Click(form, "Command2");
    Save(GrabScreen(), folder, QStringLiteral("screen-4-after-failure"));
    editor->setPlainText(good);
    Click(form, "Command2");
    form.resize(form.minimumSizeHint());
    Save(Grab(form), folder, QStringLiteral("transform-7-smallest"));
    return 0;
}
