// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/text_table.h"

#include "data/utf8.h"

#include <algorithm>

namespace lettriner::cli {
namespace {

std::u16string printable(std::u16string text) {
    std::replace_if(
        text.begin(), text.end(), [](char16_t c) { return c < 0x20 || c == 0x7F; }, u'?');
    return text;
}

} // namespace

std::string tsvCell(std::u16string_view cell) {
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

void writeAlignedTable(OutputSink& out, const std::vector<std::u16string_view>& captions,
                       const std::vector<bool>& rightAligned, std::size_t rows,
                       const CellText& cell) {
    const std::size_t columns = captions.size();
    std::vector<std::size_t> widths(columns);
    for (std::size_t column = 0; column < columns; ++column)
        widths[column] = captions[column].size();
    for (std::size_t row = 0; row < rows; ++row) {
        for (std::size_t column = 0; column < columns; ++column)
            widths[column] = std::max(widths[column], cell(row, column).size());
    }
    const auto writeLine = [&](const auto& cellAt) {
        std::u16string line;
        for (std::size_t column = 0; column < columns; ++column) {
            const std::u16string text = printable(cellAt(column));
            const std::u16string padding(widths[column] - text.size(), u' ');
            if (column > 0)
                line += u"  ";
            line += rightAligned[column] ? padding + text : text + padding;
        }
        while (!line.empty() && line.back() == u' ')
            line.pop_back();
        line += u'\n';
        out.write(toUtf8(line));
    };
    writeLine([&](std::size_t column) { return std::u16string(captions[column]); });
    for (std::size_t row = 0; row < rows; ++row)
        writeLine([&](std::size_t column) { return cell(row, column); });
}

void writeTsvRows(OutputSink& out, std::string_view name, std::size_t rows, std::size_t columns,
                  const CellText& cell) {
    std::string header(name);
    header += '\t';
    header += std::to_string(rows);
    header += '\n';
    out.write(header);
    for (std::size_t row = 0; row < rows; ++row) {
        std::string line;
        for (std::size_t column = 0; column < columns; ++column) {
            if (column > 0)
                line += '\t';
            line += tsvCell(cell(row, column));
        }
        line += '\n';
        out.write(line);
    }
}

} // namespace lettriner::cli
