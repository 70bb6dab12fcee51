// Rows of table-driven tests print as their names in test output. The rows
// live in each test file's unnamed namespace inside lapdesk, so the printer
// is declared there too, where argument-dependent lookup finds it.
#pragma once

#include <ostream>

namespace lapdesk {
namespace {

template <typename Row>
requires requires(const Row& row) {
    row.name;
}
void PrintTo(const Row& row, std::ostream* out) {
    *out << row.name;
}

}  // namespace
}  // namespace lapdesk
