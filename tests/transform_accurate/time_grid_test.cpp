// The times asked for off the FFT's grid: ranges, lists, and their order.
#include "transform/accurate/time_grid.h"

#include <gtest/gtest.h>

namespace lapdesk {
namespace {

TEST(TimeGrid, RangesAreEvenInTOrInLogT) {
    const struct {
        const char* text;
        std::vector<double> times;
    } rows[] = {
        {"1:3:3", {1, 2, 3}},
        {"1e-2:1e2:5:log", {1e-2, 1e-1, 1, 10, 100}},
        {" 0.5 : 0.5 : 1", {0.5}},
    };
    for (const auto& row : rows) {
        const TimeGrid grid = ParseTimeRange(row.text);
        ASSERT_TRUE(grid.ok) << row.text << ": " << grid.reason;
        ASSERT_EQ(grid.times.size(), row.times.size()) << row.text;
        for (std::size_t k = 0; k < row.times.size(); ++k)
            EXPECT_NEAR(grid.times[k], row.times[k], 1e-12 * row.times[k]) << row.text;
    }
    EXPECT_EQ(ParseTimeRange("1e-3:1e3:121:log").times.back(), 1e3) << "the end exactly";
}

TEST(TimeGrid, RefusesWhatIsNoTimeWithAReason) {
    for (const char* text : {"1:2", "1:2:3:lin", "0:1:3", "2:1:3", "1:2:0", "1:2:2.5", "a:2:3",
                             "1:inf:3", "1:2:3:log:x"}) {
        const TimeGrid grid = ParseTimeRange(text);
        EXPECT_FALSE(grid.ok) << text;
        EXPECT_FALSE(grid.reason.empty()) << text;
    }
}

TEST(TimeGrid, ListsSkipBlanksAndCommentsAndNameTheBadLine) {
    const TimeGrid good = ParseTimeList("# t\r\n0.5\r\n\r\n 2 \r\n1e-3\n");
    ASSERT_TRUE(good.ok) << good.reason;
    EXPECT_EQ(good.times, (std::vector<double>{0.5, 2, 1e-3}));
    const TimeGrid bad = ParseTimeList("1\n-2\n");
    EXPECT_FALSE(bad.ok);
    EXPECT_EQ(bad.reason.rfind("2 行目", 0), 0u) << bad.reason;
    EXPECT_FALSE(ParseTimeList("# nothing\n").ok);
}

TEST(TimeGrid, SortingRemembersWhereEachTimeWasAsked) {
    const SortedTimes sorted = SortTimes({3, 1, 2, 1});
    EXPECT_EQ(sorted.times, (std::vector<double>{1, 1, 2, 3}));
    EXPECT_EQ(sorted.askedAt, (std::vector<std::size_t>{1, 3, 2, 0}));
}

}  // namespace
}  // namespace lapdesk
