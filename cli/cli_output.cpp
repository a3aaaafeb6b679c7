// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/cli_output.h"

#include "data/number_format.h"
#include "data/utf8.h"
#include "engine/search_run.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <nlohmann/json.hpp>
#include <string_view>

namespace lettriner::cli {
namespace {

constexpr std::array<std::u16string_view, 6> kCaptions = {
    u"Wort", u"Wortlänge", u"Wortwert", u"Benötigte", u"Übrigbleibende", u"Blanko"};
constexpr std::array<std::string_view, 6> kJsonKeys = {"word",   "length",    "value",
                                                       "needed", "left_over", "blanks"};
constexpr std::size_t kLengthColumn = 1;
constexpr std::size_t kValueColumn = 2;

bool numericColumn(std::size_t column) {
    return column == kLengthColumn || column == kValueColumn;
}

std::vector<std::u16string> captions(std::size_t count) {
    return {kCaptions.begin(), kCaptions.begin() + static_cast<std::ptrdiff_t>(count)};
}

std::vector<Report::Row> rowsOf(const MemoryResultList& list) {
    std::vector<Report::Row> rows;
    rows.reserve(list.rows().size());
    for (const MemoryResultList::Row& row : list.rows())
        rows.emplace_back(row.begin(), row.end());
    return rows;
}

std::vector<Report::Row> rowsOf(const std::vector<BoardRow>& boardRows, bool blankColumn) {
    std::vector<Report::Row> rows;
    rows.reserve(boardRows.size());
    for (const BoardRow& row : boardRows) {
        Report::Row cells = {row.word, decimalText(static_cast<std::int64_t>(row.word.size())),
                             decimalText(row.value), row.letters.needed, row.letters.leftOver};
        if (blankColumn)
            cells.push_back(row.letters.blanks);
        rows.push_back(std::move(cells));
    }
    return rows;
}

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

void appendTsvRows(std::string& out, const char* name, const std::vector<Report::Row>& rows) {
    out += name;
    out += '\t';
    out += std::to_string(rows.size());
    out += '\n';
    for (const Report::Row& row : rows) {
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

void appendTable(std::string& out, const std::vector<std::u16string>& header,
                 const std::vector<Report::Row>& rows, std::vector<bool> rightAligned) {
    std::vector<std::size_t> widths(header.size());
    for (std::size_t column = 0; column < header.size(); ++column)
        widths[column] = header[column].size();
    for (const Report::Row& row : rows) {
        for (std::size_t column = 0; column < header.size(); ++column)
            widths[column] = std::max(widths[column], row[column].size());
    }
    const auto appendRow = [&](const Report::Row& cells) {
        std::u16string line;
        for (std::size_t column = 0; column < header.size(); ++column) {
            const std::u16string cell = printable(cells[column]);
            const std::u16string padding(widths[column] - cell.size(), u' ');
            if (column > 0)
                line += u"  ";
            line += rightAligned[column] ? padding + cell : cell + padding;
        }
        while (!line.empty() && line.back() == u' ')
            line.pop_back();
        out += toUtf8(line);
        out += '\n';
    };
    appendRow(header);
    for (const Report::Row& row : rows)
        appendRow(row);
}

void appendResultTable(std::string& out, const Report& report,
                       const std::vector<Report::Row>& rows) {
    std::vector<bool> rightAligned(report.captions.size());
    for (std::size_t column = 0; column < rightAligned.size(); ++column)
        rightAligned[column] = numericColumn(column);
    appendTable(out, report.captions, rows, rightAligned);
}

std::int64_t numberIn(std::u16string_view cell) {
    const std::string text = toUtf8(cell);
    std::int64_t number = 0;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

nlohmann::ordered_json jsonRows(const std::vector<Report::Row>& rows) {
    nlohmann::ordered_json array = nlohmann::ordered_json::array();
    for (const Report::Row& row : rows) {
        nlohmann::ordered_json object = nlohmann::ordered_json::object();
        for (std::size_t column = 0; column < row.size(); ++column) {
            const std::string key(kJsonKeys[column]);
            if (numericColumn(column))
                object[key] = numberIn(row[column]);
            else
                object[key] = toUtf8(row[column]);
        }
        array.push_back(std::move(object));
    }
    return array;
}

std::string jsonDocument(const nlohmann::ordered_json& document) {
    // Our UTF-8 is always valid; replacing is the safe answer should it not be.
    std::string text =
        document.dump(2, ' ', false, nlohmann::ordered_json::error_handler_t::replace);
    text += '\n';
    return text;
}

} // namespace

Report reportOf(const HeadlessOutcome& outcome) {
    return {captions(kResultColumns),
            rowsOf(outcome.mainList),
            rowsOf(outcome.bonusList),
            outcome.bonusShown,
            outcome.found,
            outcome.minimumText};
}

Report reportOf(const BoardOutcome& outcome, bool blankColumn) {
    return {captions(blankColumn ? kResultColumns + 1 : kResultColumns),
            rowsOf(outcome.mainRows, blankColumn),
            rowsOf(outcome.bonusRows, blankColumn),
            outcome.bonusShown,
            outcome.found,
            outcome.minimumText};
}

std::string tsvText(const Report& report) {
    std::string out;
    appendTsvRows(out, "main", report.mainRows);
    appendTsvRows(out, "bonus", report.bonusRows);
    out += "found\t" + std::to_string(report.found) + '\n';
    out += "min\t" + escapeCell(report.minimumText) + '\n';
    return out;
}

std::string tableText(const Report& report) {
    std::string out;
    appendResultTable(out, report, report.mainRows);
    if (report.bonusShown) {
        out += "\nBonuswörter (alle Steine verbraucht):\n";
        appendResultTable(out, report, report.bonusRows);
    }
    out += '\n';
    out += toUtf8(foundCountText(report.found));
    out += '\n';
    return out;
}

std::string jsonText(const Report& report) {
    nlohmann::ordered_json document = nlohmann::ordered_json::object();
    document["main"] = jsonRows(report.mainRows);
    document["bonus"] = jsonRows(report.bonusRows);
    document["found"] = report.found;
    document["min"] = toUtf8(report.minimumText);
    return jsonDocument(document);
}

std::string checkText(const std::vector<LookupResult>& results, Format format) {
    if (format == Format::Json) {
        nlohmann::ordered_json array = nlohmann::ordered_json::array();
        for (const LookupResult& result : results)
            array.push_back(
                {{"word", toUtf8(result.word)}, {"found", result.found}, {"value", result.value}});
        return jsonDocument({{"check", std::move(array)}});
    }
    std::vector<Report::Row> rows;
    for (const LookupResult& result : results)
        rows.push_back({result.word, result.found ? u"ja" : u"nein", decimalText(result.value)});
    if (format == Format::Tsv) {
        std::string out;
        appendTsvRows(out, "check", rows);
        return out;
    }
    std::string out;
    appendTable(out, {u"Wort", u"In der Wortliste", u"Wortwert"}, rows, {false, false, true});
    return out;
}

} // namespace lettriner::cli
