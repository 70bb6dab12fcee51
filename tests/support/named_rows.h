// Rows of table-driven tests are known by their names: in the test's own name
// (RowName, given to INSTANTIATE_TEST_SUITE_P) and where test output prints
// the row (PrintTo). The rows live in each test file's unnamed namespace
// inside lapdesk, so the printer is declared there too, where
// argument-dependent lookup finds it.
#pragma once

#include <gtest/gtest.h>

#include <ostream>
#include <string>

namespace lapdesk {
namespace {

template <typename Row>
requires requires(const Row& row) {
    row.name;
}
void PrintTo(const Row& row, std::ostream* out) {
    *out << row.name;
}

// The test name of a row: its name with every character other than an ASCII
// letter, a digit or an underscore (spaces, punctuation, bytes of UTF-8)
// replaced by an underscore, which is all GoogleTest accepts in a name. The
// name is the same in every build, unlike the row's index or bytes.
struct RowName {
    template <typename Row>
    std::string operator()(const ::testing::TestParamInfo<Row>& info) const {
        std::string name(info.param.name);
        for (char& c : name) {
            const bool keep = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') ||
                              (c >= '0' && c <= '9') || c == '_';
            if (!keep) c = '_';
        }
        return name;
    }
};

}  // namespace
}  // namespace lapdesk
