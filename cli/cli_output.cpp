#include "cli/cli_output.h"

#include "data/utf8.h"
#include "engine/search_run.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <vector>

namespace lettriner::cli {
namespace {

constexpr std::array<std::u16string_view, kResultColumns> kCaptions = {
    u"Wort", u"Wortlänge", u"Wortwert", u"Benötigte", u"Übrigbleibende"};

std::string escapeCell(std::u16string_view cell) {
    std::string out;
    for (const char c : toUtf8(cell)) {
        switch (c) {
        case '\t':
            out += "\\t";
            break;
        case '\r':
            out += "\\r";
            break;
        case '\n':
            out += "\\n";
            break;
        case '\\':
            out += "\\\\";
            break;
        default:
            out += c;
        }
    }
    return out;
}

void appendTsvRows(std::string& out, const char* name, const MemoryResultList& list) {
    out += name;
    out += '\t';
    out += std::to_string(list.rowCount());
    out += '\n';
    for (const MemoryResultList::Row& row : list.rows()) {
        for (std::size_t column = 0; column < row.size(); ++column) {
            if (column > 0)
                out += '\t';
            out += escapeCell(row[column]);
        }
        out += '\n';
    }
}

// Terminal cells: control characters would break the table, so they show as "?".
std::u16string printable(std::u16string_view cell) {
    std::u16string text(cell);
    std::replace_if(
        text.begin(), text.end(), [](char16_t c) { return c < 0x20 || c == 0x7F; }, u'?');
    return text;
}

void appendTable(std::string& out, const MemoryResultList& list) {
    std::array<std::size_t, kResultColumns> widths{};
    for (std::size_t column = 0; column < kResultColumns; ++column)
        widths[column] = kCaptions[column].size();
    for (const MemoryResultList::Row& row : list.rows()) {
        for (std::size_t column = 0; column < kResultColumns; ++column)
            widths[column] = std::max(widths[column], row[column].size());
    }
    const auto appendRow = [&](auto cellOf) {
        std::u16string line;
        for (std::size_t column = 0; column < kResultColumns; ++column) {
            const std::u16string cell = printable(cellOf(column));
            const bool numeric = column == 1 || column == 2;
            const std::u16string padding(widths[column] - cell.size(), u' ');
            if (column > 0)
                line += u"  ";
            line += numeric ? padding + cell : cell + padding;
        }
        while (!line.empty() && line.back() == u' ')
            line.pop_back();
        out += toUtf8(line);
        out += '\n';
    };
    appendRow([](std::size_t column) { return std::u16string(kCaptions[column]); });
    for (const MemoryResultList::Row& row : list.rows())
        appendRow([&row](std::size_t column) { return row[column]; });
}

} // namespace

std::string tsvText(const HeadlessOutcome& outcome) {
    std::string out;
    appendTsvRows(out, "main", outcome.mainList);
    appendTsvRows(out, "bonus", outcome.bonusList);
    out += "found\t" + std::to_string(outcome.found) + '\n';
    out += "min\t" + escapeCell(outcome.minimumText) + '\n';
    return out;
}

std::string tableText(const HeadlessOutcome& outcome) {
    std::string out;
    appendTable(out, outcome.mainList);
    if (outcome.bonusShown) {
        out += "\nBonuswörter (alle Steine verbraucht):\n";
        appendTable(out, outcome.bonusList);
    }
    out += '\n';
    out += toUtf8(foundCountText(outcome.found));
    out += '\n';
    return out;
}

} // namespace lettriner::cli
