#include "accuracy_output.h"

#include <iostream>

#include "transform/accurate/accuracy_messages.h"
#include "transform/accurate/point_text.h"

namespace lapdesk::cli {

void PrintAccuracyWarnings(const AccuracyReport& report, const Conditions& conditions) {
    std::vector<std::string> lines = {SingularityMessage(report.check, conditions)};
    if (report.accurate) {
        lines.push_back(NotApplicableMessage(*report.accurate));
        lines.push_back(NotConvergedMessage(*report.accurate));
    }
    for (const std::string& line : lines) {
        if (!line.empty()) std::cerr << "warning: " << line << '\n';
    }
}

std::string AccurateCsv(const AccurateResult& result) {
    std::string text = "t,y,error\n";
    for (const AccuratePoint& p : result.points) {
        if (p.state == PointState::NotApplicable) continue;
        text += RoundTripText(p.t) + "," + RoundTripText(p.value) + "," +
                RoundTripText(p.estimate) + "\n";
    }
    return text;
}

}  // namespace lapdesk::cli
