// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The lexicon the board needs, from the lexicon file when it was built from
// the word list as it is now, else built from the loaded list in memory.
// Whether the file is current: the same size and modification time as its
// stamp says, trusted at once; else, at the same size, the list's bytes are
// hashed and compared (a copy or a restore changes the time, not the words).

#include "board/lexicon.h"
#include "board/lexicon_file.h"
#include "data/word_database.h"

#include <filesystem>
#include <string>
#include <string_view>

namespace lettriner::board {

// The file name beside DB1.txt.
inline constexpr std::string_view kLexiconFileName = "DB1.lex";

enum class LexiconFileState : std::uint8_t {
    Current, // read and used
    Missing, // no such file
    Stale,   // built from another word list
    Damaged, // unreadable, not a lexicon file, truncated, or failing its checks
};

struct LexiconFileCheck {
    LexiconFileState state = LexiconFileState::Missing;
    Lexicon lexicon; // the file's when Current, else empty
    // What is wrong with the file in one English sentence, empty when
    // Current: "DB1.lex is missing", "DB1.lex was built from another DB1.txt",
    // "DB1.lex is damaged: ...".
    std::string problem;
};

// Reads the lexicon file and checks it against the word list file.
[[nodiscard]] LexiconFileCheck readLexiconFile(const std::filesystem::path& lexiconFile,
                                               const std::filesystem::path& wordListFile);

struct LoadedLexicon {
    Lexicon lexicon;
    LexiconFileState fileState = LexiconFileState::Missing;
    // Empty when the file was used; else what was wrong with it and that the
    // lexicon was built in memory instead, one line for standard error.
    std::string note;
};

// The lexicon for `database`, which was read from `wordListFile`: the file's
// when current, else built from the database (about a second).
[[nodiscard]] LoadedLexicon loadLexicon(const std::filesystem::path& lexiconFile,
                                        const std::filesystem::path& wordListFile,
                                        const WordDatabase& database);

// Builds the lexicon of the list and writes it with the list file's stamp
// (what the data tool runs after writing DB1.txt). False with `error` set
// when the list cannot be read or the file cannot be written.
bool writeLexiconFileFor(const std::filesystem::path& wordListFile,
                         const std::filesystem::path& lexiconFile, std::string& error);

} // namespace lettriner::board
