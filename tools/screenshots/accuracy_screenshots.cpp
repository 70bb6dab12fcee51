// Saves PNG pictures of the transform window's accuracy features: the
// accurate curve over the FFT's result with its band and the unreliable ends
// shaded (the step 1/p with Hanning off, where the FFT rings), the warning
// banner for 1/(p-2), whose FFT result is nonsense, the ringing sin 20t with
// both summaries, the square wave, whose accurate points near the jumps are
// flagged, t e^-t with a tolerance that chooses N and gamma0, and two
// diffusion kernels over six decades of t on log axes.
// Usage: accuracy_screenshots <folder>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <cstdio>

#include "calculator/frm_cpl_cal.h"
#include "transform/window/tesmor_form.h"

namespace {

template <typename T>
T* Child(QWidget& window, const char* name) {
    return window.findChild<T*>(QString::fromLatin1(name));
}

void Run(lapdesk::TesmorForm& form, const QString& program) {
    lapdesk::FrmCplCal& calculator = form.calculator();
    Child<QRadioButton>(calculator, "OptionProgram")->click();
    Child<QPlainTextEdit>(calculator, "ProgramText")->setPlainText(program);
    QTest::mouseClick(Child<QPushButton>(form, "Command2"), Qt::LeftButton);
    QTest::mouseClick(Child<QPushButton>(form, "Command1"), Qt::LeftButton);  // result frame away
    QApplication::processEvents();
}

void Save(QWidget& window, const QDir& folder, const char* name) {
    QApplication::processEvents();
    const QString path = folder.filePath(QString::fromLatin1(name) + QStringLiteral(".png"));
    if (!window.grab().toImage().save(path)) std::fprintf(stderr, "cannot write %s\n", name);
}

}  // namespace

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    if (argc < 2) {
        std::fprintf(stderr, "usage: accuracy_screenshots <folder>\n");
        return 2;
    }
    const QDir folder(QString::fromLocal8Bit(argv[1]));
    lapdesk::TesmorForm form;
    form.show();
    Child<QComboBox>(form, "MethodCombo")->setCurrentIndex(1);
    Child<QCheckBox>(form, "HaningCheck")->click();
    Run(form, QStringLiteral("' f(t) = 1\nReturn 1/p\nEnd"));
    auto* scrn = Child<QWidget>(form, "Scrn");
    const QPointF at(scrn->width() * 0.12, scrn->height() / 3.0);
    QMouseEvent move(QEvent::MouseMove, at, scrn->mapToGlobal(at), Qt::NoButton, Qt::NoButton,
                     Qt::NoModifier);
    QApplication::sendEvent(scrn, &move);
    Save(form, folder, "accuracy-1-both-curves");
    Run(form, QStringLiteral("' f(t) = exp(2t): a pole right of the line\nReturn 1/(p-2)\nEnd"));
    Save(form, folder, "accuracy-2-singularity-warning");
    Child<QCheckBox>(form, "HaningCheck")->click();
    Run(form, QStringLiteral("' f(t) = sin 20t\nReturn 20/(p^2+400)\nEnd"));
    Save(form, folder, "accuracy-3-ringing");
    Run(form, QStringLiteral("' square wave\nReturn 1/(p*(1+Exp(-p)))\nEnd"));
    Save(form, folder, "accuracy-4-flagged-points");
    // The FFT with a tolerance: N and gamma0 chosen, the ends of f given.
    Child<QComboBox>(form, "MethodCombo")->setCurrentIndex(0);
    Child<QComboBox>(form, "ToleranceCombo")->setCurrentText(QStringLiteral("1e-4"));
    Run(form, QStringLiteral("' f(t) = t exp(-t)\nReturn 1/(p+1)^2\nEnd"));
    Save(form, folder, "accuracy-5-tolerance");
    // Six decades of t on a log axis: a diffusion kernel, then log-log.
    Child<QComboBox>(form, "ToleranceCombo")->setCurrentIndex(0);
    Child<QComboBox>(form, "MethodCombo")->setCurrentIndex(1);
    Child<QComboBox>(form, "TimeAxisCombo")->setCurrentIndex(1);
    Run(form, QStringLiteral("' f(t) = erfc(1/sqrt(t))\nReturn Exp(-2*Sqrt(p))/p\nEnd"));
    Save(form, folder, "accuracy-6-log-time");
    Child<QComboBox>(form, "TimeAxisCombo")->setCurrentIndex(2);
    Run(form, QStringLiteral("' f(t) = exp(-t/2) I0(t/2)\nReturn 1/Sqrt(p*(p+1))\nEnd"));
    Save(form, folder, "accuracy-7-log-log");
    return 0;
}
