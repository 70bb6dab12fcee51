#include "transform/program/program_sampling.h"

#include <string>

#include "values/number_text.h"

namespace lapdesk {

namespace {

// Runs the program for one sample point; false with the status set when
// the loop must end.
bool SampleOnce(TransformDriver& driver, Interpreter& session, int k) {
    InterpreterView& view = session.view();
    double re = 0.0;
    double im = 0.0;
    const bool ran =
        ASetLapOpValur(session, driver.SamplePoint(k)) && session.RunProgram(re, im, false, true);
    if (view.StopRequested()) {
        view.ClearStopRequest();
        driver.SetStatus("プログラム実行中断");
        return false;
    }
    if (!ran || !driver.StoreSample(k, {re, im}).ok) {
        driver.SetStatus("数値計算実行時エラー");
        return false;
    }
    return true;
}

}  // namespace

bool ASetLapOpValur(Interpreter& session, const Complex& s) {
    const std::string statement = "p=" + DoubleToText(s.Re) + "+" + DoubleToText(s.Im) + "j";
    double re = 0.0;
    double im = 0.0;
    return session.ImmediatePage().AImidateStatement(statement, re, im);
}

bool ASetLapOpValur(Interpreter& session, const TransformDriver& driver) {
    return ASetLapOpValur(session, driver.SamplePoint(0));
}

bool TesmorDataSet(TransformDriver& driver, Interpreter& session) {
    const Conditions c = driver.GetConditions();
    // A program already running (the calculator's own run) is not disturbed.
    if (!(c.T > 0 && c.N != 0 && c.Gamma0 != 0) || session.Busy()) {
        driver.SetStatus("データ作成不許可");
        return false;
    }
    InterpreterView& view = session.view();
    view.ShowTransformProgress(true);
    driver.BeginDataCreation();
    view.ClearStopRequest();
    view.CalProcMeter(c.NPos, true);
    bool made = true;
    for (int k = 0; k <= c.NPos && made; ++k) {
        view.CalProcMeter(k, false);
        if (view.StopRequested()) {
            view.ClearStopRequest();
            driver.SetStatus("プログラム実行中断");
            made = false;
        } else {
            made = SampleOnce(driver, session, k);
        }
    }
    view.CalProcMeter(c.NPos + 1, false);
    view.ProcessEvents();
    view.ShowTransformProgress(false);
    return made && driver.FinishDataCreation().ok;
}

}  // namespace lapdesk
