// SPDX-License-Identifier: GPL-3.0-or-later
#include "board/lexicon.h"

#include "board/playable_words.h"

#include <cerrno>
#include <cstdio>
#include <cstring>

namespace lettriner::board {

namespace {

// The whole file in memory by plain reads; nullopt when it cannot be read
// or is larger than `largest`.
std::optional<std::string> readWhole(const std::filesystem::path& path, std::uintmax_t largest) {
    std::FILE* file = std::fopen(path.c_str(), "rb");
    if (file == nullptr)
        return std::nullopt;
    std::string bytes;
    std::error_code error;
    const std::uintmax_t expected = std::filesystem::file_size(path, error);
    if (!error && expected <= largest)
        bytes.reserve(static_cast<std::size_t>(expected));
    char buffer[1 << 16];
    bool tooLarge = false;
    for (;;) {
        const std::size_t got = std::fread(buffer, 1, sizeof buffer, file);
        if (got == 0)
            break;
        if (bytes.size() + got > largest) {
            tooLarge = true;
            break;
        }
        bytes.append(buffer, got);
    }
    const bool failed = std::ferror(file) != 0;
    std::fclose(file);
    if (failed || tooLarge)
        return std::nullopt;
    return bytes;
}

std::string nameOf(const std::filesystem::path& path) {
    return path.filename().string();
}

} // namespace

GraphFileCheck readGraphFile(const std::filesystem::path& graphFile,
                             const std::filesystem::path& wordListFile) {
    GraphFileCheck check;
    std::error_code error;
    if (!std::filesystem::is_regular_file(graphFile, error)) {
        check.problem = nameOf(graphFile) + " is missing";
        return check;
    }
    const std::optional<std::string> bytes = readWhole(graphFile, 4 * kLargestWordList);
    if (!bytes) {
        check.state = GraphFileState::Damaged;
        check.problem = nameOf(graphFile) + " cannot be read or is far too large";
        return check;
    }
    DecodedWordGraph decoded = decodeWordGraphFile(*bytes);
    if (!decoded.error.empty()) {
        check.state = GraphFileState::Damaged;
        check.problem = nameOf(graphFile) + " is damaged: " + decoded.error;
        return check;
    }
    const std::uintmax_t listSize = std::filesystem::file_size(wordListFile, error);
    const std::optional<std::int64_t> listTime = modificationTime(wordListFile);
    bool current = !error && listTime && listSize == decoded.stamp.size &&
                   *listTime == decoded.stamp.modified;
    if (!current && !error && listSize == decoded.stamp.size) {
        const std::optional<std::string> list = readWhole(wordListFile, kLargestWordList);
        current = list && stampOfBytes(*list, 0).hash == decoded.stamp.hash;
    }
    if (!current) {
        check.state = GraphFileState::Stale;
        check.problem = nameOf(graphFile) + " was built from another " + nameOf(wordListFile);
        return check;
    }
    check.state = GraphFileState::Current;
    check.graph = std::move(decoded.graph);
    return check;
}

Lexicon loadLexicon(const std::filesystem::path& graphFile,
                    const std::filesystem::path& wordListFile, const WordDatabase& database) {
    GraphFileCheck check = readGraphFile(graphFile, wordListFile);
    Lexicon lexicon;
    lexicon.fileState = check.state;
    if (check.state == GraphFileState::Current) {
        lexicon.graph = std::move(check.graph);
        return lexicon;
    }
    lexicon.graph = buildWordGraph(playableWords(database));
    lexicon.note = check.problem + "; the word graph was built in memory instead";
    return lexicon;
}

bool writeGraphFileFor(const std::filesystem::path& wordListFile,
                       const std::filesystem::path& graphFile, std::string& error) {
    const std::optional<std::int64_t> modified = modificationTime(wordListFile);
    std::optional<std::string> bytes = readWhole(wordListFile, kLargestWordList);
    if (!modified || !bytes) {
        error = "cannot read " + wordListFile.string();
        return false;
    }
    const SourceStamp stamp = stampOfBytes(*bytes, *modified);
    const WordDatabase database{FileContents(std::move(*bytes))};
    return writeWordGraphFile(graphFile, buildWordGraph(playableWords(database)), stamp, error);
}

} // namespace lettriner::board
