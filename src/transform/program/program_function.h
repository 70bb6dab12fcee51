// F(s) from the calculator's program for the accuracy features: p is set to
// s directly as a binary complex value (no text in between, so s arrives
// exactly) and the program runs. While an object of this class lives, the
// session runs under a view of its own that keeps the interpreter's messages
// as the reason of a failed point instead of showing them (a node where the
// program fails means "the method does not apply here", not a program error),
// passes the user's stop request through, and stops a run that goes on past
// a statement budget. When it ends, p gets back the value it had, so the
// calculator shows what the data loop left.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "interp/interpreter.h"
#include "transform/accurate/accuracy_run.h"
#include "transform/accurate/fft_tolerance.h"
#include "transform/accurate/laplace_function.h"

namespace lapdesk {

// Statements one evaluation of F may run before it counts as a runaway.
inline constexpr std::int64_t kStatementsPerPoint = 1'000'000;

// Sets the global p on the immediate page to s without a text round trip;
// p is made first when it does not exist. False when p is an array.
bool SetLaplacePoint(Interpreter& session, const Complex& s);

class ProgramFunction {
  public:
    explicit ProgramFunction(Interpreter& session,
                             std::int64_t statementBudget = kStatementsPerPoint);
    ~ProgramFunction();
    ProgramFunction(const ProgramFunction&) = delete;
    ProgramFunction& operator=(const ProgramFunction&) = delete;

    FValue operator()(const Complex& s);
    LaplaceFunction AsFunction() {
        return [this](const Complex& s) { return (*this)(s); };
    }
    std::int64_t evaluations() const { return evaluations_; }

  private:
    class GuardView;

    Interpreter& session_;
    InterpreterView& userView_;
    std::unique_ptr<GuardView> guard_;
    std::optional<Complex> savedP_;
    std::int64_t evaluations_ = 0;
};

// The accuracy features on data the program has just made (TesmorDataSet
// succeeded on fft). A stop request that ended them is cleared afterwards,
// as the data loop clears its own.
AccuracyReport RunAccuracyChecksOnProgram(const TransformDriver& fft, Interpreter& session,
                                          const AccuracyOptions& options);

// N and gamma0 for a tolerance, F from the program (fft_tolerance.h).
FftChoice ChooseFftParametersOnProgram(TransformDriver& fft, Interpreter& session, double tol);

}  // namespace lapdesk
