// SPDX-License-Identifier: GPL-3.0-or-later
#include "board/position_text.h"

#include "data/text_codec.h"

#include <cstdio>
#include <vector>

namespace lettriner::board {

namespace {

constexpr char32_t kReplacement = 0xFFFD;

// UTF-8 to code points; a malformed sequence gives U+FFFD and, when
// `valid` is given, sets it false. Overlong forms and surrogates are malformed.
std::u32string decodeUtf8(std::string_view bytes, bool* valid = nullptr) {
    std::u32string text;
    text.reserve(bytes.size());
    const auto bad = [&] {
        text += kReplacement;
        if (valid != nullptr)
            *valid = false;
    };
    for (std::size_t at = 0; at < bytes.size();) {
        const auto lead = static_cast<unsigned char>(bytes[at]);
        if (lead < 0x80) {
            text += lead;
            ++at;
            continue;
        }
        const int length = lead >= 0xF0 && lead <= 0xF4   ? 4
                           : lead >= 0xE0 && lead <= 0xEF ? 3
                           : lead >= 0xC2 && lead <= 0xDF ? 2
                                                          : 0;
        if (length == 0 || at + static_cast<std::size_t>(length) > bytes.size()) {
            bad();
            ++at;
            continue;
        }
        char32_t code = lead & (0x7Fu >> length);
        bool continuation = true;
        for (int i = 1; i < length; ++i) {
            const auto byte = static_cast<unsigned char>(bytes[at + static_cast<std::size_t>(i)]);
            continuation = continuation && (byte & 0xC0) == 0x80;
            code = (code << 6) | (byte & 0x3Fu);
        }
        const char32_t least = length == 2 ? 0x80 : length == 3 ? 0x800 : 0x10000;
        if (!continuation || code < least || code > 0x10FFFF ||
            (code >= 0xD800 && code <= 0xDFFF)) {
            bad();
            ++at;
            continue;
        }
        text += code;
        at += static_cast<std::size_t>(length);
    }
    return text;
}

std::string characterShown(char32_t character) {
    if (character < 0x20 || character == 0x7F || (character >= 0x80 && character < 0xA0) ||
        character == kReplacement) {
        char code[16];
        std::snprintf(code, sizeof code, "U+%04X", static_cast<unsigned>(character));
        return code;
    }
    std::string text = "'";
    if (character < 0x80) {
        text += static_cast<char>(character);
    } else if (character < 0x800) {
        text += static_cast<char>(0xC0 | (character >> 6));
        text += static_cast<char>(0x80 | (character & 0x3F));
    } else if (character < 0x10000) {
        text += static_cast<char>(0xE0 | (character >> 12));
        text += static_cast<char>(0x80 | ((character >> 6) & 0x3F));
        text += static_cast<char>(0x80 | (character & 0x3F));
    } else {
        text += static_cast<char>(0xF0 | (character >> 18));
        text += static_cast<char>(0x80 | ((character >> 12) & 0x3F));
        text += static_cast<char>(0x80 | ((character >> 6) & 0x3F));
        text += static_cast<char>(0x80 | (character & 0x3F));
    }
    return text + "'";
}

// The tile a character stands for on a board; nullopt when it is none ("."
// gives kEmpty).
std::optional<Tile> tileOf(char32_t character) {
    if (character == U'.')
        return kEmpty;
    const CharacterLetter letter = letterFromCharacter(character);
    if (letter.letter == kNoLetter)
        return std::nullopt;
    return static_cast<Tile>(letter.letter | (letter.lowerCase ? kBlankBit : 0));
}

std::string count(std::size_t number, std::string_view one, std::string_view many) {
    return std::to_string(number) + " " + std::string(number == 1 ? one : many);
}

// Board file text as code points: UTF-8 when the bytes are, else Windows-1252.
std::u32string boardFileText(std::string_view bytes) {
    if (bytes.substr(0, 3) == "\xEF\xBB\xBF")
        bytes.remove_prefix(3);
    bool valid = true;
    std::u32string text = decodeUtf8(bytes, &valid);
    if (valid)
        return text;
    text.clear();
    const auto& characters = windows1252Characters();
    for (const char byte : bytes)
        text += characters[static_cast<unsigned char>(byte)];
    return text;
}

} // namespace

BoardRead readBoardFile(std::string_view bytes) {
    BoardRead result;
    std::u32string text = boardFileText(bytes);
    if (!text.empty() && text.back() == U'\n') {
        text.pop_back();
        if (!text.empty() && text.back() == U'\r')
            text.pop_back();
    }
    std::vector<std::u32string> lines;
    std::size_t begin = 0;
    for (;;) {
        const std::size_t end = text.find(U'\n', begin);
        std::u32string line = text.substr(begin, end == std::u32string::npos ? end : end - begin);
        if (!line.empty() && line.back() == U'\r')
            line.pop_back();
        lines.push_back(std::move(line));
        if (end == std::u32string::npos)
            break;
        begin = end + 1;
    }
    if (text.empty())
        lines.clear();
    for (std::size_t row = 0; row < lines.size() && row < kBoardSize; ++row) {
        const std::u32string& line = lines[row];
        for (std::size_t column = 0; column < line.size(); ++column) {
            const std::optional<Tile> tile = tileOf(line[column]);
            if (!tile) {
                result.error = "line " + std::to_string(row + 1) + ", column " +
                               std::to_string(column + 1) + ": " + characterShown(line[column]) +
                               " is not a tile (\".\" empty, a letter a tile, a lower-case "
                               "letter a blank)";
                return result;
            }
            if (column < kBoardSize)
                result.board.set(static_cast<int>(row), static_cast<int>(column), *tile);
        }
        if (line.size() != kBoardSize) {
            result.error = "line " + std::to_string(row + 1) + " has " +
                           count(line.size(), "character", "characters") + "; a board line has 15";
            return result;
        }
    }
    if (lines.size() != kBoardSize) {
        result.error = "the board has " + count(lines.size(), "line", "lines") + "; it needs 15";
        return result;
    }
    return result;
}

std::string writeBoardFile(const Board& board) {
    std::string text;
    for (int row = 0; row < kBoardSize; ++row) {
        for (int column = 0; column < kBoardSize; ++column)
            text += tileUtf8(board.at(row, column));
        text += '\n';
    }
    return text;
}

RackRead readRack(std::string_view text) {
    RackRead result;
    const std::u32string characters = decodeUtf8(text);
    for (std::size_t i = 0; i < characters.size(); ++i) {
        const char32_t character = characters[i];
        Letter tile = kRackBlank;
        if (character != U'?') {
            tile = letterFromCharacter(character).letter;
            if (tile == kNoLetter) {
                result.error = "rack character " + std::to_string(i + 1) + ": " +
                               characterShown(character) + " is not a letter or \"?\" (a blank)";
                return result;
            }
        }
        if (!result.rack.add(tile)) {
            result.error =
                "the rack has " + std::to_string(characters.size()) + " tiles; it holds at most 7";
            return result;
        }
    }
    return result;
}

std::string rackText(const Rack& rack) {
    std::string text;
    for (int i = 0; i < rack.size(); ++i)
        text += rack[i] == kRackBlank ? std::string_view("?") : letterUtf8(rack[i]);
    return text;
}

PositionRead readCgp(std::string_view bytes) {
    PositionRead result;
    const std::u32string text = decodeUtf8(bytes);
    const auto isSpace = [](char32_t c) {
        return c == U' ' || c == U'\t' || c == U'\r' || c == U'\n';
    };
    std::size_t at = 0;
    while (at < text.size() && isSpace(text[at]))
        ++at;
    if (at == text.size()) {
        result.error = "the position is empty";
        return result;
    }
    const auto where = [&](std::size_t index) {
        return "column " + std::to_string(index + 1);
    };
    int row = 0;
    int column = 0;
    for (;;) {
        if (at == text.size() || isSpace(text[at]) || text[at] == U'/') {
            if (column != kBoardSize) {
                result.error = "row " + std::to_string(row + 1) + " of the position has " +
                               count(static_cast<std::size_t>(column), "square", "squares") +
                               "; a row has 15";
                return result;
            }
            ++row;
            column = 0;
            if (at == text.size() || isSpace(text[at]))
                break;
            ++at; // the "/" between rows
            if (row == kBoardSize) {
                result.error = "the position has more than 15 rows (" + where(at - 1) + ")";
                return result;
            }
            continue;
        }
        const char32_t character = text[at];
        if (character >= U'0' && character <= U'9') {
            const std::size_t first = at;
            int run = 0;
            while (at < text.size() && text[at] >= U'0' && text[at] <= U'9' && run <= kBoardSize)
                run = run * 10 + static_cast<int>(text[at++] - U'0');
            if (run == 0 || text[first] == U'0') {
                result.error = where(first) + ": " + characterShown(character) +
                               " starts no count of empty squares (1 to 15)";
                return result;
            }
            column += run;
            if (column > kBoardSize) {
                result.error = "row " + std::to_string(row + 1) +
                               " of the position has more than 15 squares (" + where(first) + ")";
                return result;
            }
            continue;
        }
        const std::optional<Tile> tile = tileOf(character);
        if (!tile || *tile == kEmpty) {
            result.error = where(at) + " (row " + std::to_string(row + 1) +
                           "): " + characterShown(character) +
                           " is not a tile (a letter a tile, a lower-case letter a blank, a "
                           "number empty squares)";
            return result;
        }
        if (column == kBoardSize) {
            result.error = "row " + std::to_string(row + 1) +
                           " of the position has more than 15 squares (" + where(at) + ")";
            return result;
        }
        result.position.board.set(row, column++, *tile);
        ++at;
    }
    if (row != kBoardSize) {
        result.error = "the position has " + count(static_cast<std::size_t>(row), "row", "rows") +
                       "; it needs 15";
        return result;
    }
    while (at < text.size() && isSpace(text[at]))
        ++at;
    if (at == text.size())
        return result;
    std::size_t end = at;
    while (end < text.size() && !isSpace(text[end]) && text[end] != U'/')
        ++end;
    std::string rack;
    for (std::size_t i = at; i < end; ++i) {
        const char32_t character = text[i];
        if (character == U'?') {
            rack += '?';
            continue;
        }
        const CharacterLetter letter = letterFromCharacter(character);
        if (letter.letter == kNoLetter) {
            result.error = where(i) + " (the rack): " + characterShown(character) +
                           " is not a letter or \"?\" (a blank)";
            return result;
        }
        rack += letterUtf8(letter.letter);
    }
    RackRead rackRead = readRack(rack);
    if (!rackRead.error.empty()) {
        result.error = rackRead.error;
        return result;
    }
    result.position.rack = rackRead.rack;
    return result;
}

std::string writeCgp(const Position& position) {
    std::string text;
    for (int row = 0; row < kBoardSize; ++row) {
        if (row > 0)
            text += '/';
        int empty = 0;
        for (int column = 0; column < kBoardSize; ++column) {
            const Tile tile = position.board.at(row, column);
            if (tile == kEmpty) {
                ++empty;
                continue;
            }
            if (empty > 0)
                text += std::to_string(empty);
            empty = 0;
            text += tileUtf8(tile);
        }
        if (empty > 0)
            text += std::to_string(empty);
    }
    text += ' ' + rackText(position.rack) + "/ 0/0 0";
    return text;
}

} // namespace lettriner::board
