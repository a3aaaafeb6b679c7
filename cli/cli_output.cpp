// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/cli_output.h"

#include "cli/json_writer.h"
#include "cli/text_table.h"
#include "data/number_format.h"
#include "data/utf8.h"
#include "display/result_texts.h"

#include <array>
#include <string_view>

namespace lettriner::cli {
namespace {

constexpr std::array<std::string_view, kColumnsWithBlanks> kJsonKeys = {
    "word", "length", "value", "needed", "left_over", "blanks"};

std::size_t columnCount(const Report& report) {
    return report.blankColumn ? kColumnsWithBlanks : kResultColumns;
}

CellText cellsOf(const std::vector<ResultRow>& rows) {
    return [&rows](std::size_t row, std::size_t column) {
        return cellText(rows[row], static_cast<int>(column));
    };
}

void writeResultTable(const Report& report, const std::vector<ResultRow>& rows, OutputSink& out) {
    std::vector<std::u16string_view> captions;
    std::vector<bool> rightAligned;
    for (std::size_t column = 0; column < columnCount(report); ++column) {
        captions.push_back(columnCaption(static_cast<int>(column)));
        rightAligned.push_back(isNumberColumn(static_cast<int>(column)));
    }
    writeAlignedTable(out, captions, rightAligned, rows.size(), cellsOf(rows));
}

void writeJsonRows(const Report& report, const std::vector<ResultRow>& rows, JsonWriter& json) {
    json.beginArray();
    for (const ResultRow& row : rows) {
        json.beginObject();
        for (std::size_t column = 0; column < columnCount(report); ++column) {
            json.key(kJsonKeys[column]);
            const int index = static_cast<int>(column);
            if (const std::optional<std::int64_t>* number = numberCell(row, index))
                json.value(number->value_or(0));
            else
                json.value(*textCell(row, index));
        }
        json.endObject();
    }
    json.endArray();
}

} // namespace

void writeTsv(const Report& report, OutputSink& out) {
    const HeadlessOutcome& outcome = report.outcome;
    writeTsvRows(out, "main", outcome.mainList.rows().size(), columnCount(report),
                 cellsOf(outcome.mainList.rows()));
    writeTsvRows(out, "bonus", outcome.bonusList.rows().size(), columnCount(report),
                 cellsOf(outcome.bonusList.rows()));
    std::string ending = "found\t";
    ending += std::to_string(outcome.found);
    ending += "\nmin\t";
    ending += tsvCell(outcome.minimumText);
    ending += '\n';
    out.write(ending);
}

void writeTable(const Report& report, OutputSink& out) {
    const HeadlessOutcome& outcome = report.outcome;
    writeResultTable(report, outcome.mainList.rows(), out);
    if (outcome.bonusShown) {
        out.write("\nBonuswörter (alle Steine verbraucht):\n");
        writeResultTable(report, outcome.bonusList.rows(), out);
    }
    out.write("\n");
    out.write(toUtf8(foundCountText(outcome.found)));
    out.write("\n");
}

void writeJson(const Report& report, OutputSink& out) {
    const HeadlessOutcome& outcome = report.outcome;
    JsonWriter json(out);
    json.beginObject();
    json.key("main");
    writeJsonRows(report, outcome.mainList.rows(), json);
    json.key("bonus");
    writeJsonRows(report, outcome.bonusList.rows(), json);
    json.key("found");
    json.value(outcome.found);
    json.key("min");
    json.value(outcome.minimumText);
    json.endObject();
    json.finish();
}

void writeReport(const Report& report, Format format, OutputSink& out) {
    switch (format) {
    case Format::Json:
        writeJson(report, out);
        return;
    case Format::Tsv:
        writeTsv(report, out);
        return;
    case Format::Table:
        writeTable(report, out);
        return;
    }
}

void writeCheck(const std::vector<LookupResult>& results, Format format, OutputSink& out) {
    if (format == Format::Json) {
        JsonWriter json(out);
        json.beginObject();
        json.key("check");
        json.beginArray();
        for (const LookupResult& result : results) {
            json.beginObject();
            json.key("word");
            json.value(result.word);
            json.key("found");
            json.value(result.found);
            json.key("value");
            json.value(std::int64_t{result.value});
            json.endObject();
        }
        json.endArray();
        json.endObject();
        json.finish();
        return;
    }
    const CellText cell = [&results](std::size_t row, std::size_t column) -> std::u16string {
        const LookupResult& result = results[row];
        switch (column) {
        case 0:
            return result.word;
        case 1:
            return result.found ? u"ja" : u"nein";
        default:
            return decimalText(result.value);
        }
    };
    if (format == Format::Tsv)
        writeTsvRows(out, "check", results.size(), 3, cell);
    else
        writeAlignedTable(out, {u"Wort", u"In der Wortliste", u"Wortwert"}, {false, false, true},
                          results.size(), cell);
}

} // namespace lettriner::cli
