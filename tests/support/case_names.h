#pragma once
// Failure messages of table-driven tests name the table row instead of
// dumping its bytes. A test file brings this in with
// `using testing::PrintTo;` inside the namespace of its case structs, where
// GoogleTest's argument-dependent lookup finds it.

#include <ostream>

namespace lettriner::testing {

template <typename Case>
requires requires(const Case& c) {
    c.name;
}
void PrintTo(const Case& c, std::ostream* out) {
    *out << c.name;
}

} // namespace lettriner::testing
