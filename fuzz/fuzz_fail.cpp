// SPDX-License-Identifier: GPL-3.0-or-later
#include "fuzz_input.h"

#include <cstdio>
#include <cstdlib>

namespace lettriner::fuzz {

void fail(const char* what) {
    std::fprintf(stderr, "invariant broken: %s\n", what);
    std::abort();
}

} // namespace lettriner::fuzz
