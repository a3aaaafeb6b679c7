#pragma once
// Lets GoogleTest print 16-bit strings readably in failure messages.

#include "data/utf8.h"

#include <ostream>
#include <string>
#include <string_view>

namespace std {
inline void PrintTo(const u16string& text, ostream* out) {
    *out << '"' << lettriner::toUtf8(text) << '"';
}
inline void PrintTo(u16string_view text, ostream* out) {
    *out << '"' << lettriner::toUtf8(text) << '"';
}
} // namespace std
