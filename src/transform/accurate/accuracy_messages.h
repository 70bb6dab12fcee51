// What the accuracy features found, as the texts the window and the
// command-line tool show. Each is empty when there is nothing to say.
#pragma once

#include <string>

#include "transform/accurate/accuracy_run.h"

namespace lapdesk {

// The singularity check's finding: a singularity on or right of the line,
// or that it could not verify.
std::string SingularityMessage(const SingularityCheck& check, const Conditions& conditions);

// Points of the accurate inversion left out, with the first reason.
std::string NotApplicableMessage(const AccurateResult& result);

// Points whose estimate stayed above the target after every retry.
std::string NotConvergedMessage(const AccurateResult& result);

}  // namespace lapdesk
