// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/move_output.h"

#include "board/move_text.h"
#include "cli/json_writer.h"
#include "cli/text_table.h"
#include "data/utf8.h"

#include <array>
#include <string>

namespace lettriner::cli {
namespace {

enum MoveColumn : std::size_t { kMove, kWord, kScore, kLaid, kLeave, kCrossWords, kMoveColumns };

constexpr std::array<std::u16string_view, kMoveColumns> kCaptions = {
    u"Zug", u"Wort", u"Punkte", u"Gelegt", u"Rest", u"Querwörter"};

std::string joined(const std::vector<std::string>& words) {
    std::string text;
    for (const std::string& word : words) {
        if (!text.empty())
            text += ", ";
        text += word;
    }
    return text;
}

std::string cellOf(const board::Position& position, const board::Move& move, std::size_t column) {
    switch (column) {
    case kMove:
        return board::moveCoordinate(move);
    case kWord:
        return board::moveWord(move);
    case kScore:
        return std::to_string(move.score);
    case kLaid:
        return board::laidTilesText(move);
    case kLeave:
        return board::rackLeave(position.rack, move);
    default:
        return joined(board::crossWordTexts(position.board, move));
    }
}

} // namespace

void writeMoves(const board::Position& position, const std::vector<board::Move>& moves,
                Format format, OutputSink& out) {
    if (format == Format::Json) {
        JsonWriter json(out);
        json.beginObject();
        json.key("moves");
        json.beginArray();
        for (const board::Move& move : moves) {
            json.beginObject();
            json.key("move");
            json.value(fromUtf8(board::moveCoordinate(move)));
            json.key("word");
            json.value(fromUtf8(board::moveWord(move)));
            json.key("score");
            json.value(std::int64_t{move.score});
            json.key("laid");
            json.value(fromUtf8(board::laidTilesText(move)));
            json.key("leave");
            json.value(fromUtf8(board::rackLeave(position.rack, move)));
            json.key("cross_words");
            json.beginArray();
            for (const std::string& word : board::crossWordTexts(position.board, move))
                json.value(fromUtf8(word));
            json.endArray();
            json.endObject();
        }
        json.endArray();
        json.endObject();
        json.finish();
        return;
    }
    const CellText cell = [&](std::size_t row, std::size_t column) {
        return fromUtf8(cellOf(position, moves[row], column));
    };
    if (format == Format::Tsv) {
        writeTsvRows(out, "moves", moves.size(), kMoveColumns, cell);
        return;
    }
    writeAlignedTable(out, {kCaptions.begin(), kCaptions.end()},
                      {false, false, true, false, false, false}, moves.size(), cell);
    if (moves.empty())
        out.write("Kein Zug möglich.\n");
}

} // namespace lettriner::cli
