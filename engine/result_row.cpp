// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/result_row.h"

#include <utility>

namespace lettriner {

const std::u16string* textCell(const ResultRow& row, int column) {
    switch (column) {
    case kWordColumn:
        return &row.word;
    case kNeededColumn:
        return &row.needed;
    case kLeftOverColumn:
        return &row.leftOver;
    case kBlanksColumn:
        return &row.blanks;
    default:
        return nullptr;
    }
}

std::u16string* textCell(ResultRow& row, int column) {
    return const_cast<std::u16string*>(textCell(std::as_const(row), column));
}

const std::optional<std::int64_t>* numberCell(const ResultRow& row, int column) {
    switch (column) {
    case kLengthColumn:
        return &row.length;
    case kValueColumn:
        return &row.value;
    default:
        return nullptr;
    }
}

std::optional<std::int64_t>* numberCell(ResultRow& row, int column) {
    return const_cast<std::optional<std::int64_t>*>(numberCell(std::as_const(row), column));
}

} // namespace lettriner
