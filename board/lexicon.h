// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The word graph the board needs, from the graph file when it was built from
// the word list as it is now, else built from the loaded list in memory.
// Whether the file is current: same size and modification time as its stamp
// says, trusted at once; otherwise the list's bytes are hashed and compared
// (a copy or a restore changes the time, not the words).

#include "board/word_graph.h"
#include "board/word_graph_file.h"
#include "data/word_database.h"

#include <filesystem>
#include <string>

namespace lettriner::board {

// The file name beside DB1.txt.
inline constexpr std::string_view kWordGraphFileName = "DB1.graph";

enum class GraphFileState : std::uint8_t {
    Current, // read and used
    Missing, // no such file (or not readable)
    Stale,   // built from another word list
    Damaged, // not a graph file, truncated, or its checksum or graph fails
};

struct GraphFileCheck {
    GraphFileState state = GraphFileState::Missing;
    WordGraph graph; // the file's graph when Current, else empty
    // One English sentence saying what is wrong with the file (empty when
    // Current), e.g. "DB1.graph is missing".
    std::string problem;
};

// Reads the graph file and checks it against the word list file. A graph
// file larger than any word list gives (4 times kLargestWordList) counts as
// damaged without being read.
[[nodiscard]] GraphFileCheck readGraphFile(const std::filesystem::path& graphFile,
                                           const std::filesystem::path& wordListFile);

struct Lexicon {
    WordGraph graph;
    GraphFileState fileState = GraphFileState::Missing;
    // Empty when the file was used; otherwise what was wrong and that the
    // graph was built in memory instead, for standard error.
    std::string note;
};

// The graph for `database` (read from `wordListFile`): the graph file's when
// current, else built from the database (a second or so).
[[nodiscard]] Lexicon loadLexicon(const std::filesystem::path& graphFile,
                                  const std::filesystem::path& wordListFile,
                                  const WordDatabase& database);

// Builds the graph of the list and writes it with the list file's stamp
// (what the data tool runs after writing DB1.txt). False with `error` set
// when the list cannot be read or the file cannot be written.
bool writeGraphFileFor(const std::filesystem::path& wordListFile,
                       const std::filesystem::path& graphFile, std::string& error);

} // namespace lettriner::board
