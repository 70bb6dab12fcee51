// Samples F(s) by running the calculator's program: for every point s_k of
// the sampling line the global variable p is set to s_k, the program runs,
// and its result is taken as F(s_k). Afterwards the transform runs at once.
#pragma once

#include "interp/interpreter.h"
#include "transform/transform_driver.h"
#include "values/complex.h"

namespace lapdesk {

// Sets the calculator's global p to s by the immediate statement
// "p=" re "+" im "j" (each part with up to 15 significant digits).
bool ASetLapOpValur(Interpreter& session, const Complex& s);

// Hands the present transform parameters to the calculator: p is set to the
// first sample point, so a program can be tried by itself.
bool ASetLapOpValur(Interpreter& session, const TransformDriver& driver);

// Makes the data from the program and transforms it. The status texts go to
// the driver's status sink; progress, the stop request and messages go
// through the session's view. A failure names the point k and p where it
// happened and the interpreter's message (the fault and its line).
Outcome MakeDataFromProgram(TransformDriver& driver, Interpreter& session);

// The same, as the calculator asks for it: true when the data were made and
// transformed.
bool TesmorDataSet(TransformDriver& driver, Interpreter& session);

}  // namespace lapdesk
