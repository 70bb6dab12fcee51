#include "accuracy_output.h"

#include <iostream>

#include "transform/accurate/accuracy_messages.h"
#include "transform/accurate/point_text.h"

namespace lapdesk::cli {

namespace {

const char* StatusWord(PointState state) {
    switch (state) {
        case PointState::Converged:
            return "ok";
        case PointState::NotConverged:
            return "not_converged";
        case PointState::Disagrees:
            return "fft_mismatch";
        case PointState::NotApplicable:
            break;
    }
    return "not_applicable";
}

}  // namespace

int PrintAccuracyReport(const AccuracyReport& report, const TransformDriver& fft) {
    const bool accurate = report.accurate.has_value();
    ErrorSummary summary;
    if (accurate)
        summary = SummariseAccurate(*report.accurate);
    else if (report.band)
        summary = SummariseFft(fft, *report.band);
    const std::string line = SummaryLine(summary, accurate);
    if (!line.empty()) std::cerr << line << '\n';
    if (report.ends) {
        std::cerr << InitialValueLine(*report.ends) << '\n' << FinalValueLine(*report.ends) << '\n';
    }
    std::vector<std::string> warnings = {SingularityMessage(report, fft.GetConditions()),
                                         LargeErrorMessage(summary, accurate)};
    if (accurate) {
        warnings.push_back(NotApplicableMessage(*report.accurate));
        warnings.push_back(NotConvergedMessage(*report.accurate));
        warnings.push_back(DisagreementMessage(*report.accurate));
    }
    int count = 0;
    for (const std::string& warning : warnings) {
        if (warning.empty()) continue;
        std::cerr << "warning: " << warning << '\n';
        ++count;
    }
    return count;
}

std::string AccurateCsv(const AccurateResult& result) {
    std::string text = "t,y,error,status\n";
    for (const AccuratePoint& p : result.points) {
        text += RoundTripText(p.t) + ",";
        if (p.state != PointState::NotApplicable)
            text += RoundTripText(p.value) + "," + RoundTripText(p.estimate);
        else
            text += ",";
        text += std::string(",") + StatusWord(p.state) + "\n";
    }
    return text;
}

}  // namespace lapdesk::cli
