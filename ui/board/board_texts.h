// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The board window's German texts that depend on the position: what a square
// is called and holds, the position's warnings, and what became of the word
// graph. The board library's own texts are English (for the command line);
// the window says the same in German.

#include "board/board.h"
#include "board/lexicon_loading.h"
#include "board/position_checks.h"
#include "board/premium_layout.h"

#include <QString>
#include <QStringList>
#include <string_view>

namespace lettriner::ui {

[[nodiscard]] inline QString fromUtf8(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

// "doppelter Wortwert", "dreifacher Buchstabenwert"; empty for a plain square.
[[nodiscard]] QString premiumName(board::Premium premium);
// The premium's label on the board: "3W", "2W", "3B", "2B"; empty for a plain square.
[[nodiscard]] QString premiumLabel(board::Premium premium);

// What a screen reader says for a square: its name, its premium, its
// contents ("H8, doppelter Wortwert, leer"; "C4, E"; "A1, dreifacher
// Wortwert, Blanko als E").
[[nodiscard]] QString squareSpeech(const board::Board& board, int row, int column);

// A word on the board as the player sees it: "QWX (8D)".
[[nodiscard]] QString boardWordText(const board::BoardWord& word);

// One German sentence per warning of the position.
[[nodiscard]] QStringList warningLines(const board::PositionWarnings& warnings);

// While the word graph is built because its file could not be used:
// "DB1.lex fehlt: der Wortgraph wird im Speicher aufgebaut".
[[nodiscard]] QString lexiconBuildingText(board::LexiconFileState state, const QString& fileName);
// Once it is ready: where it came from and how many words it holds.
[[nodiscard]] QString lexiconReadyText(board::LexiconFileState state, const QString& fileName,
                                       std::uint32_t wordCount);

} // namespace lettriner::ui
