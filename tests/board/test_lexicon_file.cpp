// SPDX-License-Identifier: GPL-3.0-or-later
// The lexicon file: what is written reads back; a file built from another
// word list is stale, one whose list was only touched is current; a damaged,
// truncated or forged file is refused without reading outside its bytes.

#include "board/lexicon_file.h"
#include "board/lexicon_loading.h"
#include "board/playable_words.h"
#include "board_test_support.h"
#include "support/temp_folder.h"

#include <chrono>
#include <gtest/gtest.h>
#include <string>

namespace lettriner::board {
namespace {

using lettriner::testing::TempFolder;

constexpr std::size_t kHeaderSize = 80;
constexpr std::size_t kChecksumAt = 72;

// What the file reader gives, to compare with the in-memory decoder.
DecodedLexicon readAsFile(const std::string& bytes) {
    TempFolder folder;
    folder.write("DB1.lex", bytes);
    return readLexiconFileAt(folder / "DB1.lex");
}

std::vector<Arc> arcsOf(const Lexicon& lexicon) {
    return {lexicon.graph.arcs().begin(), lexicon.graph.arcs().end()};
}
std::vector<PackedLetters> anagramWordsOf(const Lexicon& lexicon) {
    return {lexicon.anagrams.words().begin(), lexicon.anagrams.words().end()};
}

// Forges a file that gets past the checksum.
void resign(std::string& file) {
    const std::uint64_t checksum = lexiconFileChecksum(file);
    for (std::size_t i = 0; i < 8; ++i)
        file[kChecksumAt + i] = static_cast<char>((checksum >> (8 * i)) & 0xFF);
}

void setWord(std::string& file, std::size_t at, std::uint32_t value) {
    for (std::size_t i = 0; i < 4; ++i)
        file[at + i] = static_cast<char>((value >> (8 * i)) & 0xFF);
}

TEST(LexiconFile, RoundTripsGraphIndexAndStamp) {
    for (const unsigned seed : {1u, 2u}) {
        const Lexicon lexicon = buildLexicon(testing::smallLexicon(seed));
        ASSERT_FALSE(lexicon.anagrams.empty());
        const SourceStamp stamp{123456, -987654321, 0xFEDCBA9876543210u};
        const std::string file = encodeLexiconFile(lexicon, stamp);
        for (const DecodedLexicon& decoded : {decodeLexiconFile(file), readAsFile(file)}) {
            ASSERT_EQ(decoded.error, "");
            EXPECT_EQ(decoded.stamp, stamp);
            EXPECT_EQ(arcsOf(decoded.lexicon), arcsOf(lexicon));
            EXPECT_EQ(anagramWordsOf(decoded.lexicon), anagramWordsOf(lexicon));
            EXPECT_EQ(decoded.lexicon.graph.wordCount(), lexicon.graph.wordCount());
        }
    }
    const DecodedLexicon empty = decodeLexiconFile(encodeLexiconFile(Lexicon{}, {}));
    EXPECT_EQ(empty.error, "");
    EXPECT_TRUE(empty.lexicon.empty());
}

TEST(LexiconFile, RefusesDamagedTruncatedAndForgedFiles) {
    const Lexicon lexicon = buildLexicon(testing::smallLexicon(1));
    const std::string file = encodeLexiconFile(lexicon, {});
    const std::size_t firstBytes = kHeaderSize;
    std::string longer = file + "x";
    resign(longer);
    std::string otherVersion = file;
    otherVersion[8] = 2;
    std::string flipped = file;
    flipped[kHeaderSize + 10] ^= 0x40;
    // Forged with valid checksums: a letter beyond the alphabet; the last
    // arc's child made "the next arc", past the end; a root outside; an
    // anagram slot pointing past the words.
    std::string letter = file;
    letter[firstBytes] = static_cast<char>(0x7C);
    resign(letter);
    std::string pastEnd = file;
    const std::size_t arcs = lexicon.graph.arcs().size();
    pastEnd[firstBytes + arcs - 3] = static_cast<char>(pastEnd[firstBytes + arcs - 3] | 0x80);
    resign(pastEnd);
    std::string root = file;
    setWord(root, 52, static_cast<std::uint32_t>(arcs));
    resign(root);
    std::string slot = file;
    setWord(slot, file.size() - 4, 0xFFFFu);
    resign(slot);
    // clang-format off
    const std::pair<std::string, std::string> cases[] = {
        {"", "the file is empty"},
        {"LTRLEXIX" + file.substr(8), "the file is not a lexicon file"},
        {file.substr(0, 40), "the file is not a lexicon file"},
        {otherVersion, "the file is a lexicon file of another version"},
        {flipped, "the file is damaged or truncated (its checksum does not match)"},
        {file.substr(0, file.size() - 1), "the file is truncated"},
        {longer, "the file is longer than its parts"},
        {letter, "the file's graph is damaged"},
        {pastEnd, "the file's graph is damaged"},
        {root, "the file's roots point outside the graph"},
        {slot, "the file is damaged: the anagram index's table points past its words"},
    };
    // clang-format on
    for (const auto& [bytes, message] : cases) {
        const DecodedLexicon decoded = decodeLexiconFile(bytes);
        EXPECT_EQ(decoded.error, message);
        EXPECT_TRUE(decoded.lexicon.empty());
        // The file reader, streaming its parts, finds the same.
        EXPECT_EQ(readAsFile(bytes).error, message);
    }
    // Every truncation is refused (the sizes say so).
    for (std::size_t size = 0; size < file.size(); ++size)
        ASSERT_FALSE(decodeLexiconFile(file.substr(0, size)).error.empty()) << size;
}

TEST(LexiconFile, ForgedCountsAreRefusedBeforeTakingMemory) {
    const std::string file = encodeLexiconFile(buildLexicon(testing::smallLexicon(1)), {});
    std::string huge = file;
    setWord(huge, 44, 1u << 23); // eight million arcs claimed by a few kilobytes
    resign(huge);
    EXPECT_EQ(decodeLexiconFile(huge).error, "the file is truncated");
    setWord(huge, 44, (1u << 23) + 1);
    resign(huge);
    EXPECT_EQ(decodeLexiconFile(huge).error, "the file's arc count is impossible");
    huge = file;
    setWord(huge, 64, 0xFFFFFFFFu); // as many anagram words
    resign(huge);
    EXPECT_EQ(decodeLexiconFile(huge).error, "the file is truncated");
}

class LexiconFileBesideList : public ::testing::Test {
protected:
    void SetUp() override {
        folder.write("DB1.txt", list);
        std::string error;
        ASSERT_TRUE(writeLexiconFileFor(folder / "DB1.txt", folder / "DB1.lex", error)) << error;
    }
    [[nodiscard]] LexiconFileCheck check() const {
        return readLexiconFile(folder / "DB1.lex", folder / "DB1.txt");
    }
    [[nodiscard]] LoadedLexicon load() const {
        return loadLexicon(folder / "DB1.lex", folder / "DB1.txt",
                           DatenbankEinlesen(folder / "DB1.txt"));
    }
    void touchList() const {
        const auto time = std::filesystem::last_write_time(folder / "DB1.txt");
        std::filesystem::last_write_time(folder / "DB1.txt", time + std::chrono::hours(1));
    }

    TempFolder folder;
    std::string list = "Haus\r\nHause\r\nSee\r\nOhne\r\nHo\r\nGartens\r\n";
};

TEST_F(LexiconFileBesideList, FreshFileIsCurrentAndHoldsTheList) {
    const LexiconFileCheck current = check();
    EXPECT_EQ(current.state, LexiconFileState::Current);
    EXPECT_EQ(current.problem, "");
    EXPECT_TRUE(current.lexicon.graph.contains(testing::lettersOf("HAUSE")));
    const LoadedLexicon loaded = load();
    EXPECT_EQ(loaded.fileState, LexiconFileState::Current);
    EXPECT_EQ(loaded.note, "");
    const Lexicon built = buildLexicon(playableWords(DatenbankEinlesen(folder / "DB1.txt")));
    EXPECT_EQ(arcsOf(loaded.lexicon), arcsOf(built));
    EXPECT_EQ(anagramWordsOf(loaded.lexicon), anagramWordsOf(built));
}

TEST_F(LexiconFileBesideList, TouchedListWithTheSameWordsIsStillCurrent) {
    touchList();
    EXPECT_EQ(check().state, LexiconFileState::Current);
}

TEST_F(LexiconFileBesideList, ChangedListMakesTheFileStale) {
    // Same size, other bytes, new time: the hash decides.
    folder.write("DB1.txt", "Haus\r\nHause\r\nSee\r\nOhne\r\nAh\r\nGartens\r\n");
    touchList();
    const LexiconFileCheck stale = check();
    EXPECT_EQ(stale.state, LexiconFileState::Stale);
    EXPECT_EQ(stale.problem, "DB1.lex was built from another DB1.txt");
    EXPECT_TRUE(stale.lexicon.empty());
    // Another size.
    folder.write("DB1.txt", list + "Ah\r\n");
    EXPECT_EQ(check().state, LexiconFileState::Stale);
    // The lexicon is then built in memory from the list as it is now.
    const LoadedLexicon loaded = load();
    EXPECT_EQ(loaded.fileState, LexiconFileState::Stale);
    EXPECT_EQ(loaded.note,
              "DB1.lex was built from another DB1.txt; the lexicon was built in memory instead");
    EXPECT_TRUE(loaded.lexicon.graph.contains(testing::lettersOf("AH")));
}

TEST_F(LexiconFileBesideList, MissingOrDamagedFileIsNamed) {
    const std::string bytes = folder.read("DB1.lex");
    folder.write("DB1.lex", bytes.substr(0, bytes.size() / 2));
    EXPECT_EQ(check().state, LexiconFileState::Damaged);
    EXPECT_EQ(check().problem, "DB1.lex is damaged: the file is truncated");
    EXPECT_EQ(load().note,
              "DB1.lex is damaged: the file is truncated; the lexicon was built in memory instead");
    std::string flipped = bytes;
    flipped[bytes.size() / 2] ^= 1;
    folder.write("DB1.lex", flipped);
    EXPECT_EQ(check().problem,
              "DB1.lex is damaged: the file is damaged or truncated (its checksum does not match)");
    std::filesystem::remove(folder / "DB1.lex");
    EXPECT_EQ(check().state, LexiconFileState::Missing);
    EXPECT_EQ(check().problem, "DB1.lex is missing");
    const LoadedLexicon loaded = load();
    EXPECT_EQ(loaded.note, "DB1.lex is missing; the lexicon was built in memory instead");
    EXPECT_TRUE(loaded.lexicon.graph.contains(testing::lettersOf("OHNE")));
}

TEST(LexiconFile, WriteFailureLeavesTheOldFile) {
    TempFolder folder;
    std::string error;
    EXPECT_FALSE(writeLexiconFile(folder / "missing" / "DB1.lex", Lexicon{}, {}, error));
    EXPECT_NE(error.find("cannot create"), std::string::npos) << error;
    EXPECT_FALSE(writeLexiconFileFor(folder / "absent.txt", folder / "DB1.lex", error));
    EXPECT_EQ(error, "cannot read " + (folder / "absent.txt").string());
    EXPECT_FALSE(std::filesystem::exists(folder / "DB1.lex"));
}

} // namespace
} // namespace lettriner::board
