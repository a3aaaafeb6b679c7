// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The command line's data files, read the way a script can rely on: the
// folder given with -C as it is; else the current folder when its DB1.txt
// holds words, else the installed list (saying so when the current folder's
// list is empty or unreadable). Every file that is missing, empty or
// unreadable is named in a warning, and no file is ever created.

#include "board/lexicon_loading.h"
#include "board/tile_values.h"
#include "engine/prepared_words.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace lettriner::cli {

enum class LoadFailure {
    None,
    CannotEnter, // -C names a folder that cannot be entered
    NoWordList,  // the folder holds no DB1.txt at all
    OutOfMemory, // the list was read but memory is too short to search it
};

// How reading went, for either search.
struct LoadReport {
    LoadFailure failure = LoadFailure::None;
    // Lines for standard error, without the program's name: the failure's
    // message first when there is one, then every warning.
    std::vector<std::string> messages;
};

struct LoadedData : LoadReport {
    PreparedWords words;
};

// Changes to the folder the data files are read from and reads them.
// `installed` is the installed data folder, if this program has one.
[[nodiscard]] LoadedData loadDataFiles(const std::optional<std::string>& directory,
                                       const std::optional<std::filesystem::path>& installed);

// What the board search reads: the lexicon (DB1.lex when it was built from
// DB1.txt as it is, else built from DB1.txt in memory, which standard error
// then says) and the letter values as whole points.
struct LoadedBoardData : LoadReport {
    board::Lexicon lexicon;
    board::TileValues values;
};

[[nodiscard]] LoadedBoardData loadBoardData(const std::optional<std::string>& directory,
                                            const std::optional<std::filesystem::path>& installed);

} // namespace lettriner::cli
