// SPDX-License-Identifier: GPL-3.0-or-later
#include "board/lexicon_loading.h"

#include "board/playable_words.h"

#include <cstdio>
#include <memory>
#include <optional>

namespace lettriner::board {

namespace {

// A file's bytes, read without first filling the memory with zeros.
struct FileBytes {
    std::unique_ptr<char[]> data;
    std::size_t size = 0;
    [[nodiscard]] std::string_view view() const { return {data.get(), size}; }
};

// The whole file in memory by plain reads; nullopt when it cannot be read
// or is larger than `largest`.
std::optional<FileBytes> readWhole(const std::filesystem::path& path, std::uintmax_t largest) {
    std::error_code error;
    const std::uintmax_t size = std::filesystem::file_size(path, error);
    if (error || size > largest)
        return std::nullopt;
    std::FILE* file = std::fopen(path.c_str(), "rb");
    if (file == nullptr)
        return std::nullopt;
    // One read of the size the file has, and one more to see that it has not
    // grown since; a file that shrank gives what is there.
    FileBytes bytes{std::unique_ptr<char[]>(new char[static_cast<std::size_t>(size) + 1]), 0};
    bytes.size = std::fread(bytes.data.get(), 1, static_cast<std::size_t>(size) + 1, file);
    const bool failed = std::ferror(file) != 0;
    std::fclose(file);
    if (failed || bytes.size > size)
        return std::nullopt;
    return bytes;
}

std::string nameOf(const std::filesystem::path& path) {
    return path.filename().string();
}

} // namespace

LexiconFileCheck readLexiconFile(const std::filesystem::path& lexiconFile,
                                 const std::filesystem::path& wordListFile) {
    LexiconFileCheck check;
    std::error_code error;
    if (!std::filesystem::exists(lexiconFile, error)) {
        check.problem = nameOf(lexiconFile) + " is missing";
        return check;
    }
    DecodedLexicon decoded = readLexiconFileAt(lexiconFile);
    if (!decoded.error.empty()) {
        check.state = LexiconFileState::Damaged;
        check.problem = nameOf(lexiconFile) + " is damaged: " + decoded.error;
        return check;
    }
    const std::uintmax_t listSize = std::filesystem::file_size(wordListFile, error);
    const std::optional<std::int64_t> listTime = modificationTime(wordListFile);
    bool current =
        !error && listTime && listSize == decoded.stamp.size && *listTime == decoded.stamp.modified;
    if (!current && !error && listSize == decoded.stamp.size) {
        const std::optional<FileBytes> list = readWhole(wordListFile, kLargestWordList);
        current = list && stampOfBytes(list->view(), 0).hash == decoded.stamp.hash;
    }
    if (!current) {
        check.state = LexiconFileState::Stale;
        check.problem = nameOf(lexiconFile) + " was built from another " + nameOf(wordListFile);
        return check;
    }
    check.state = LexiconFileState::Current;
    check.lexicon = std::move(decoded.lexicon);
    return check;
}

LoadedLexicon loadLexicon(const std::filesystem::path& lexiconFile,
                          const std::filesystem::path& wordListFile, const WordDatabase& database) {
    LexiconFileCheck check = readLexiconFile(lexiconFile, wordListFile);
    LoadedLexicon loaded;
    loaded.fileState = check.state;
    if (check.state == LexiconFileState::Current) {
        loaded.lexicon = std::move(check.lexicon);
        return loaded;
    }
    loaded.lexicon = buildLexicon(playableWords(database));
    loaded.note = check.problem + "; the lexicon was built in memory instead";
    return loaded;
}

bool writeLexiconFileFor(const std::filesystem::path& wordListFile,
                         const std::filesystem::path& lexiconFile, std::string& error) {
    const std::optional<std::int64_t> modified = modificationTime(wordListFile);
    const std::optional<FileBytes> bytes = readWhole(wordListFile, kLargestWordList);
    if (!modified || !bytes) {
        error = "cannot read " + wordListFile.string();
        return false;
    }
    const SourceStamp stamp = stampOfBytes(bytes->view(), *modified);
    const WordDatabase database{FileContents(std::string(bytes->view()))};
    return writeLexiconFile(lexiconFile, buildLexicon(playableWords(database)), stamp, error);
}

} // namespace lettriner::board
