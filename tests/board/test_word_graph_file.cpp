// SPDX-License-Identifier: GPL-3.0-or-later
// The graph file: what is written reads back; a file built from another word
// list is stale, one whose list was only touched is current; a damaged,
// truncated or forged file is refused without reading outside its bytes.

#include "board/content_hash.h"
#include "board/lexicon.h"
#include "board/playable_words.h"
#include "board/word_graph_file.h"
#include "board_test_support.h"
#include "support/temp_folder.h"

#include <chrono>
#include <gtest/gtest.h>
#include <random>
#include <string>

namespace lettriner::board {
namespace {

using lettriner::testing::TempFolder;

constexpr std::size_t kHeaderSize = 72;

std::vector<Arc> arcsOf(const WordGraph& graph) {
    return {graph.arcs().begin(), graph.arcs().end()};
}

// The checksum as the file format defines it, for forging files that pass it.
void resign(std::string& file) {
    const std::uint64_t checksum =
        contentHash(std::string_view(file).substr(kHeaderSize),
                    contentHash(std::string_view(file).substr(0, 64)));
    for (std::size_t i = 0; i < 8; ++i)
        file[64 + i] = static_cast<char>((checksum >> (8 * i)) & 0xFF);
}

TEST(WordGraphFile, RoundTripsGraphAndStamp) {
    for (const unsigned seed : {1u, 2u}) {
        const WordGraph graph = buildWordGraph(testing::smallLexicon(seed));
        const SourceStamp stamp{123456, -987654321, 0xFEDCBA9876543210u};
        const std::string file = encodeWordGraphFile(graph, stamp);
        // Smaller than four bytes per arc.
        EXPECT_LT(file.size(), 4 * graph.arcs().size());
        const DecodedWordGraph decoded = decodeWordGraphFile(file);
        ASSERT_EQ(decoded.error, "");
        EXPECT_EQ(decoded.stamp, stamp);
        EXPECT_EQ(arcsOf(decoded.graph), arcsOf(graph));
        EXPECT_EQ(decoded.graph.wordCount(), graph.wordCount());
    }
    const DecodedWordGraph empty = decodeWordGraphFile(encodeWordGraphFile(WordGraph{}, {}));
    EXPECT_EQ(empty.error, "");
    EXPECT_TRUE(empty.graph.empty());
}

TEST(WordGraphFile, RefusesDamagedTruncatedAndForgedFiles) {
    const WordGraph graph = buildWordGraph(testing::smallLexicon(1));
    const std::string file = encodeWordGraphFile(graph, {});
    std::string longer = file + "x";
    resign(longer);
    std::string otherVersion = file;
    otherVersion[8] = 2;
    std::string flipped = file;
    flipped[kHeaderSize + 10] ^= 0x40;
    // A child index beyond the graph, with a valid checksum: the first arc's
    // word made far, pointing at index 0x7FFF00.
    std::string outside = file;
    const std::size_t arcs = graph.arcs().size() - 2;
    outside[kHeaderSize + arcs] = static_cast<char>(0xFF);
    resign(outside);
    // A letter beyond the alphabet in the first arc.
    std::string letter = file;
    letter[kHeaderSize] = static_cast<char>(0xF8);
    resign(letter);
    // clang-format off
    const std::pair<std::string, std::string> cases[] = {
        {"", "the file is empty"},
        {"LTRGRAPX" + file.substr(8), "the file is not a word graph file"},
        {file.substr(0, 40), "the file is not a word graph file"},
        {otherVersion, "the file is a word graph file of another version"},
        {flipped, "the file is damaged or truncated (its checksum does not match)"},
        {file.substr(0, file.size() - 1), "the file is damaged or truncated (its checksum does not match)"},
        {longer, "the file is longer than its graph"},
        {outside, "the file's arcs are damaged"},
        {letter, "the file's arcs are damaged"},
    };
    // clang-format on
    for (const auto& [bytes, message] : cases) {
        const DecodedWordGraph decoded = decodeWordGraphFile(bytes);
        EXPECT_EQ(decoded.error, message);
        EXPECT_TRUE(decoded.graph.empty());
    }
    // Every truncation is refused (the checksum or the sizes say so).
    for (std::size_t size = 0; size < file.size(); ++size)
        ASSERT_FALSE(decodeWordGraphFile(file.substr(0, size)).error.empty()) << size;
}

TEST(WordGraphFile, ForgedCountsAreRefusedBeforeTakingMemory) {
    const std::string file = encodeWordGraphFile(buildWordGraph(testing::smallLexicon(1)), {});
    std::string huge = file;
    // Eight million arcs claimed by a file of a few kilobytes.
    for (std::size_t i = 0; i < 4; ++i)
        huge[44 + i] = static_cast<char>(((1u << 23) >> (8 * i)) & 0xFF);
    resign(huge);
    EXPECT_EQ(decodeWordGraphFile(huge).error, "the file is truncated");
    huge[46] = static_cast<char>(0x81);
    resign(huge);
    EXPECT_EQ(decodeWordGraphFile(huge).error, "the file's arc count is impossible");
}

class GraphFileBesideList : public ::testing::Test {
protected:
    void SetUp() override {
        folder.write("DB1.txt", list);
        std::string error;
        ASSERT_TRUE(writeGraphFileFor(folder / "DB1.txt", folder / "DB1.graph", error)) << error;
    }
    GraphFileCheck check() const { return readGraphFile(folder / "DB1.graph", folder / "DB1.txt"); }
    void touchList() const {
        std::filesystem::last_write_time(folder / "DB1.txt", std::filesystem::last_write_time(folder / "DB1.txt") +
                                                                 std::chrono::hours(1));
    }

    TempFolder folder;
    std::string list = "Haus\r\nHause\r\nSee\r\nOhne\r\nHo\r\n";
};

TEST_F(GraphFileBesideList, FreshFileIsCurrentAndHoldsTheList) {
    const GraphFileCheck current = check();
    EXPECT_EQ(current.state, GraphFileState::Current);
    EXPECT_EQ(current.problem, "");
    EXPECT_TRUE(current.graph.contains(testing::lettersOf("HAUSE")));
    const WordDatabase database = DatenbankEinlesen(folder / "DB1.txt");
    const Lexicon lexicon = loadLexicon(folder / "DB1.graph", folder / "DB1.txt", database);
    EXPECT_EQ(lexicon.fileState, GraphFileState::Current);
    EXPECT_EQ(lexicon.note, "");
    EXPECT_EQ(arcsOf(lexicon.graph), arcsOf(buildWordGraph(playableWords(database))));
}

TEST_F(GraphFileBesideList, TouchedListWithTheSameWordsIsStillCurrent) {
    touchList();
    EXPECT_EQ(check().state, GraphFileState::Current);
}

TEST_F(GraphFileBesideList, ChangedListMakesTheFileStale) {
    // Same size, other bytes, new time: the hash decides.
    folder.write("DB1.txt", "Haus\r\nHause\r\nSee\r\nOhne\r\nAh\r\n");
    touchList();
    GraphFileCheck stale = check();
    EXPECT_EQ(stale.state, GraphFileState::Stale);
    EXPECT_EQ(stale.problem, "DB1.graph was built from another DB1.txt");
    EXPECT_TRUE(stale.graph.empty());
    // Another size.
    folder.write("DB1.txt", list + "Ah\r\n");
    EXPECT_EQ(check().state, GraphFileState::Stale);
    // The lexicon is then built in memory from the list as it is now.
    const WordDatabase database = DatenbankEinlesen(folder / "DB1.txt");
    const Lexicon lexicon = loadLexicon(folder / "DB1.graph", folder / "DB1.txt", database);
    EXPECT_EQ(lexicon.fileState, GraphFileState::Stale);
    EXPECT_EQ(lexicon.note,
              "DB1.graph was built from another DB1.txt; the word graph was built in memory instead");
    EXPECT_TRUE(lexicon.graph.contains(testing::lettersOf("AH")));
}

TEST_F(GraphFileBesideList, MissingOrDamagedFileIsNamed) {
    const std::string bytes = folder.read("DB1.graph");
    folder.write("DB1.graph", bytes.substr(0, bytes.size() / 2));
    EXPECT_EQ(check().state, GraphFileState::Damaged);
    EXPECT_EQ(check().problem,
              "DB1.graph is damaged: the file is damaged or truncated (its checksum does not match)");
    std::filesystem::remove(folder / "DB1.graph");
    EXPECT_EQ(check().state, GraphFileState::Missing);
    EXPECT_EQ(check().problem, "DB1.graph is missing");
    const WordDatabase database = DatenbankEinlesen(folder / "DB1.txt");
    const Lexicon lexicon = loadLexicon(folder / "DB1.graph", folder / "DB1.txt", database);
    EXPECT_EQ(lexicon.note, "DB1.graph is missing; the word graph was built in memory instead");
    EXPECT_TRUE(lexicon.graph.contains(testing::lettersOf("OHNE")));
}

TEST(WordGraphFile, WriteFailureLeavesNoFileBehind) {
    TempFolder folder;
    std::string error;
    EXPECT_FALSE(writeWordGraphFile(folder / "missing" / "DB1.graph", WordGraph{}, {}, error));
    EXPECT_NE(error.find("cannot create"), std::string::npos) << error;
    EXPECT_FALSE(writeGraphFileFor(folder / "absent.txt", folder / "DB1.graph", error));
    EXPECT_EQ(error, "cannot read " + (folder / "absent.txt").string());
    EXPECT_FALSE(std::filesystem::exists(folder / "DB1.graph"));
}

} // namespace
} // namespace lettriner::board
