#pragma once
// Lets GoogleTest print 16-bit string views readably in failure messages.
// GoogleTest prints std::u16string itself (as u"..." with escapes); a second
// PrintTo for it here would make every such comparison ambiguous.

#include "data/utf8.h"

#include <ostream>
#include <string_view>

namespace std {
inline void PrintTo(u16string_view text, ostream* out) {
    *out << '"' << lettriner::toUtf8(text) << '"';
}
} // namespace std
