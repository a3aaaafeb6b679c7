// SPDX-License-Identifier: GPL-3.0-or-later
// Reading the data tool's sources and writing its output: the gzip word-game
// list, its key-and-spellings lines, and output files that are never written
// through a link.

#include "data/utf8.h"
#include "support/temp_folder.h"
#include "tools/gunzip.h"
#include "tools/output_file.h"
#include "tools/word_game_list.h"

#include <gtest/gtest.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace lettriner::tools {
namespace {

using namespace std::string_literals;
using Words = std::vector<std::u16string>;

// gzip -n of "AERA Ära\nQUIZ\n", of "QUIZ\n", and of 1,000 zero bytes.
const std::string kAeraQuiz = "\x1f\x8b\x08\x00\x00\x00\x00\x00\x02\x03\x73\x74\x0d\x72\x54\x38\xdc"
                              "\x52\x94\xc8\x15\x18\xea\x19\xc5\x05\x00\xc3\x29\x31\xc9\x0f\x00\x00"
                              "\x00"s;
const std::string kQuiz = "\x1f\x8b\x08\x00\x00\x00\x00\x00\x02\x03\x0b\x0c\xf5\x8c\xe2\x02\x00\x79"
                          "\x04\x48\xe0\x05\x00\x00\x00"s;
const std::string kZeros =
    "\x1f\x8b\x08\x00\x00\x00\x00\x00\x02\x03\x63\x60\x18\x05\xa3\x60\x14\x0c"
    "\x77\x00\x00\x80\x17\x0b\x06\xe8\x03\x00\x00"s;

TEST(Gunzip, UnpacksEveryMember) {
    const std::pair<std::string, std::string> cases[] = {
        {kAeraQuiz, "AERA \xC3\x84ra\nQUIZ\n"},
        {kAeraQuiz + kQuiz, "AERA \xC3\x84ra\nQUIZ\nQUIZ\n"}, // two members, as gzip -d reads them
        {kZeros, std::string(1000, '\0')},
    };
    for (const auto& [packed, text] : cases) {
        const Gunzipped result = gunzip(packed, 1 << 20);
        EXPECT_EQ(result.error, "");
        EXPECT_EQ(result.bytes, text);
    }
}

TEST(Gunzip, RefusesWhatIsNotWholeGzip) {
    std::string badChecksum = kAeraQuiz;
    badChecksum[badChecksum.size() - 6] ^= 1;
    std::string badData = kAeraQuiz;
    badData[12] = '\xff';
    const std::pair<std::string, std::string> cases[] = {
        {"", "not a gzip file"},
        {"AERA \xC3\x84ra\n", "not a gzip file"},
        {kAeraQuiz.substr(0, 20), "the gzip data ends too early (truncated file)"},
        {kAeraQuiz.substr(0, kAeraQuiz.size() - 1),
         "the gzip data ends too early (truncated file)"},
        {kAeraQuiz + "junk", "bytes after the end of the gzip data"},
        {badChecksum, "corrupt gzip data: incorrect data check"},
        {badData.substr(0, 10) + "\xff\xff\xff\xff", "corrupt gzip data: invalid block type"},
    };
    for (const auto& [packed, why] : cases) {
        const Gunzipped result = gunzip(packed, 1 << 20);
        EXPECT_EQ(result.error, why) << why;
        EXPECT_EQ(result.bytes, "") << why;
    }
    EXPECT_EQ(gunzip(kZeros, 999).error, "more than 999 bytes when unpacked");
    EXPECT_EQ(gunzip(kZeros, 1000).bytes.size(), 1000u);
}

TEST(WordGameList, TakesTheSpellingsNeverTheKeys) {
    const std::pair<std::string, Words> cases[] = {
        {"AERA \xC3\x84ra\n", {u"Ära"}},
        {"AALARTIG\n", {u"aalartig"}}, // a key alone: its lower-case spelling
        {"MASS Mass ma\xC3\x9F Ma\xC3\x9F\n", {u"Mass", u"maß", u"Maß"}},
        {"UFO Ufo UFO\r\nQUIZZE\r\n", {u"Ufo", u"UFO", u"quizze"}},
        {"\n  \nAAL\taal  Aal \n", {u"aal", u"Aal"}},
        {"OEKO \xC3\xB6ko", {u"öko"}}, // no line end after the last line
        {"", {}},
    };
    for (const auto& [text, spellings] : cases)
        EXPECT_EQ(wordGameSpellings(text), spellings) << text;
}

class OutputFile : public ::testing::Test {
protected:
    testing::TempFolder folder;
    [[nodiscard]] std::string path(const char* name) const { return (folder / name).string(); }
};

TEST_F(OutputFile, WritesAfreshAndReplacesOnlyARegularFile) {
    EXPECT_EQ(writeNewFile(path("DB1.txt.new"), "Haus\r\n"), "");
    EXPECT_EQ(folder.read("DB1.txt.new"), "Haus\r\n");
    // A stale output of a failed run: removed, not written through.
    ASSERT_EQ(link(path("DB1.txt.new").c_str(), path("other-name").c_str()), 0);
    EXPECT_EQ(writeNewFile(path("DB1.txt.new"), "Quiz\r\n"), "");
    EXPECT_EQ(folder.read("DB1.txt.new"), "Quiz\r\n");
    EXPECT_EQ(folder.read("other-name"), "Haus\r\n");
}

TEST_F(OutputFile, RefusesEveryOtherKindAndLeavesItAlone) {
    folder.write("target", "keep");
    ASSERT_EQ(symlink(path("target").c_str(), path("link").c_str()), 0);
    ASSERT_EQ(symlink(path("nowhere").c_str(), path("dangling").c_str()), 0);
    ASSERT_EQ(mkdir(path("folder").c_str(), 0755), 0);
    ASSERT_EQ(mkfifo(path("fifo").c_str(), 0644), 0);
    for (const char* name : {"link", "dangling", "folder", "fifo"}) {
        EXPECT_EQ(writeNewFile(path(name), "Haus\r\n"),
                  "refusing to write " + path(name) + ": it exists and is not a regular file");
    }
    EXPECT_EQ(folder.read("target"), "keep");
    EXPECT_FALSE(std::filesystem::exists(folder / "nowhere"));
    EXPECT_EQ(writeNewFile(path("no-such-folder/DB1.txt"), "x"),
              "cannot create " + path("no-such-folder/DB1.txt") + ": No such file or directory");
}

} // namespace
} // namespace lettriner::tools
