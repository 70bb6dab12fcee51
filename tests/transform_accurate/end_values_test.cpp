// f(0+) and f(inf) from F: claimed only where the limit settles, and the
// final value only where f itself settles.
#include "transform/accurate/end_values.h"

#include <gtest/gtest.h>

#include <cmath>
#include <complex>

namespace lapdesk {
namespace {

using Cx = std::complex<double>;

LaplaceFunction Of(Cx (*F)(Cx)) {
    return [F](const Complex& s) {
        const Cx v = F({s.Re, s.Im});
        return FValue::Of({v.real(), v.imag()});
    };
}

TEST(EndValues, ClaimedWhereTheLimitSettlesAndOnlyThere) {
    const struct {
        const char* name;
        Cx (*F)(Cx);
        bool initialFound;
        double initial;
        bool finalFound;
        double final;
        double alpha = 0.0;  // as the singularity check sets it for growth
    } rows[] = {
        {"3/2 + e^-2t / 2", [](Cx s) { return (2.0 * s + 3.0) / (s * (s + 2.0)); }, true, 2, true,
         1.5},
        {"sin t: s F -> 0, f does not settle", [](Cx s) { return 1.0 / (s * s + 1.0); }, true, 0,
         false, 0},
        {"e^0.5t grows", [](Cx s) { return 1.0 / (s - 0.5); }, true, 1, false, 0, 1.0},
        {"t^-1/2: no start, and a tail too slow to claim", [](Cx s) { return 1.0 / std::sqrt(s); },
         false, 0, false, 0},
        {"log t: neither end settles", [](Cx s) { return -std::log(s) / s; }, false, 0, false, 0},
    };
    for (const auto& row : rows) {
        AccurateParameters parameters;
        parameters.alpha = row.alpha;
        const EndValues ends = FindEndValues(Of(row.F), 5.0, parameters);
        EXPECT_EQ(ends.initial.found, row.initialFound) << row.name;
        EXPECT_EQ(ends.final.found, row.finalFound) << row.name;
        if (ends.initial.found) {
            EXPECT_LE(std::abs(ends.initial.value - row.initial), ends.initial.estimate)
                << row.name;
        }
        if (ends.final.found) {
            EXPECT_LE(std::abs(ends.final.value - row.final), ends.final.estimate) << row.name;
        }
        EXPECT_LT(ends.evaluations, 2000) << row.name;
    }
}

}  // namespace
}  // namespace lapdesk
