// SPDX-License-Identifier: GPL-3.0-or-later
// Files and fields as a careless or hostile user might leave them: huge,
// binary, unreadable, folders in place of files. Whatever they hold, loading
// and searching must end normally with the documented result.

#include "data/file_helpers.h"
#include "data/language_file.h"
#include "data/settings_file.h"
#include "data/text_codec.h"
#include "data/word_database.h"
#include "engine/headless_search.h"
#include "engine/letter_values.h"
#include "engine/prepared_words.h"
#include "support/address_space.h"
#include "support/temp_folder.h"

#include <fcntl.h>
#include <fstream>
#include <gtest/gtest.h>
#include <random>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace lettriner {
namespace {

namespace fs = std::filesystem;

// A fresh current folder with A, B, E worth 1, 3, 1.
class HostileInput : public ::testing::Test {
protected:
    HostileInput() {
        folder.write("Bewertung1.txt", "A\r\nB\r\nE\r\n");
        folder.write("Bewertung2.txt", "1\r\n3\r\n1\r\n");
    }
    // Loads the three files as the program does and searches.
    static HeadlessOutcome search(const SearchTexts& texts, std::u16string minimum = u"0") {
        const PreparedWords words(DatenbankEinlesen("DB1.txt"), BewertungsFeldLaden());
        return searchWithoutWindow(words, {texts, std::move(minimum)});
    }
    testing::TempFolder folder;
    testing::CurrentFolder here{folder.path()};
};

TEST_F(HostileInput, MillionCharacterLinesBinaryNoiseAndNulBytes) {
    const std::string huge(1'000'000, 'A');
    folder.write("DB1.txt", "AB\r\n" + huge + "\r\nBA\r\n");
    folder.write("Bewertung1.txt", huge + "\r\nB\r\n");
    folder.write("Bewertung2.txt", "3\r\n" + std::string(1'000'000, '7') + "\r\n");
    // The million A's are worth 3 million: beyond 16 bits, so 0; B's value is too large too.
    EXPECT_EQ(search({u"AB", u"", u"", u"2000000"}).found, 4u);

    std::string noise;
    std::mt19937 random(11);
    for (int i = 0; i < 200'000; ++i)
        noise += static_cast<char>(random());
    noise += std::string("\0\0AB\0\r\n", 7);
    for (const char* name : {"DB1.txt", "Bewertung1.txt", "Bewertung2.txt"})
        folder.write(name, noise);
    const HeadlessOutcome outcome =
        search({decodeWindows1252(noise.substr(0, 40)), u"", u"", u"3"}, u"-32768");
    EXPECT_LE(outcome.mainList.rowCount(), 501);
    EXPECT_LE(static_cast<std::uint64_t>(outcome.bonusList.rowCount()), outcome.found);
}

// Makes `path` unreadable: permission bits, and where they do not hold (root,
// which CI may run as) a link to a regular file whose reads fail.
void makeUnreadable(const fs::path& path) {
    fs::permissions(path, fs::perms::none);
    if (std::ifstream probe(path, std::ios::binary); probe && probe.peek() != EOF) {
        fs::remove(path);
        fs::create_symlink("/proc/self/mem", path);
    }
}

TEST_F(HostileInput, UnreadableFilesAndFoldersInPlaceOfFilesReadAsEmpty) {
    folder.write("DB1.txt", "AB\r\nBA\r\n");
    for (const char* name : {"DB1.txt", "Bewertung1.txt", "Bewertung2.txt"})
        makeUnreadable(folder / name);
    EXPECT_EQ(DateiLesen("DB1.txt"), u"");
    EXPECT_EQ(search({}).found, 0u);
    for (const char* name : {"DB1.txt", "Bewertung1.txt", "Bewertung2.txt"}) {
        fs::remove(folder / name);
        fs::create_directory(folder / name);
    }
    EXPECT_EQ(search({}).found, 0u);
    EXPECT_TRUE(fs::is_directory(folder / "DB1.txt"));
    fs::remove(folder / "DB1.txt"); // a dangling link stays dangling: nothing is created
    fs::create_symlink(folder / "elsewhere.txt", folder / "DB1.txt");
    EXPECT_EQ(search({}).found, 0u);
    EXPECT_FALSE(fs::exists(folder / "elsewhere.txt"));
}

TEST_F(HostileInput, ReadOnlyProgramFolderKeepsTheDefaults) {
    fs::path programFolder = folder / "program";
    fs::create_directory(programFolder);
    fs::permissions(programFolder, fs::perms::owner_read | fs::perms::owner_exec);
    if (std::ofstream(programFolder / "probe")) {
        fs::remove(programFolder / "probe"); // root writes anyway; /proc takes no new files
        programFolder = "/proc/self";
    }
    EXPECT_EQ(SettingsLaden(programFolder), 0);
    EXPECT_FALSE(fs::exists(settingsPath(programFolder)));
    EXPECT_EQ(MeldungLaden(programFolder, u"[A]", 1), u"");
}

TEST_F(HostileInput, MegabyteSettingsFile) {
    const std::string big = std::string(1 << 20, '\t') + "[Language]\t\t\t1\r\n" +
                            std::string(1 << 19, '\r') + std::string(1 << 19, '\n');
    folder.write("Settings.txt", big);
    EXPECT_EQ(SettingsLaden(folder.path()), 1);
    EXPECT_EQ(folder.read("Settings.txt"), big); // a present value is never rewritten
}

TEST_F(HostileInput, EnormousFieldTextsAndEveryCharacterInEveryField) {
    folder.write("DB1.txt", "ABBA\r\nEBBE\r\nAB\r\n");
    const std::u16string huge(100'000, u'A');
    EXPECT_EQ(search({huge, huge, huge, huge}, huge).found, 0u); // A is mandatory and forbidden
    // An allowance beyond a double's range fails to convert: 0, only the empty line fits.
    EXPECT_EQ(search({huge, u"", u"", std::u16string(100'000, u'9')}).found, 1u);

    std::string everyByte;
    for (int byte = 1; byte < 256; ++byte)
        everyByte += static_cast<char>(byte);
    folder.write("DB1.txt", "AB\r\n" + everyByte + "\r\nBA\r\n");
    const std::u16string all = decodeWindows1252(everyByte);
    const HeadlessOutcome asRack = search({all, u"", u"", u"0"});
    EXPECT_EQ(asRack.found, 4u);
    EXPECT_EQ(asRack.bonusList.rowCount(), 1); // the line of every character uses every tile
    EXPECT_EQ(search({u"AB", u"", all, u"0"}).found, 1u); // only the empty last line is free
    EXPECT_EQ(search({u"AB", all, u"", all}, all).found, 0u);
}

// Runs lettriner-cli in the current folder, its address space capped at what
// this test holds now plus `room` (a fresh program holds less, sanitizer or
// not), its output to out.txt and err.txt. The exit status, or -1 for a signal.
int runCliWithin(std::uint64_t room, const std::vector<const char*>& arguments) {
    const int out = ::open("out.txt", O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
    const int err = ::open("err.txt", O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
    const pid_t child = ::fork();
    if (child == 0) {
        std::vector<char*> argv = {const_cast<char*>("lettriner-cli")};
        for (const char* argument : arguments)
            argv.push_back(const_cast<char*>(argument));
        argv.push_back(nullptr);
        if (out >= 0 && err >= 0 && ::dup2(out, STDOUT_FILENO) >= 0 &&
            ::dup2(err, STDERR_FILENO) >= 0 && testing::capAddressSpace(room))
            ::execv(LETTRINER_CLI, argv.data());
        ::_exit(127);
    }
    ::close(out);
    ::close(err);
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

TEST_F(HostileInput, MemoryShortAfterReadingIsReportedNotSearched) {
    testing::writeCappedList("DB1.txt");
    for (const testing::MemoryRoom& row : testing::kMemoryRooms) {
        SCOPED_TRACE(row.name);
        if (!row.listLoads) {
            EXPECT_EQ(runCliWithin(row.room, {"--tsv", "--rack=AB", "--min=0"}), 3);
            EXPECT_NE(folder.read("err.txt").find("out of memory"), std::string::npos);
            EXPECT_EQ(folder.read("out.txt"), "");
            continue;
        }
        EXPECT_EQ(runCliWithin(row.room, {"--tsv", "--rack=AB", "--min=0"}), 0);
        std::string found = "found\t";
        found += std::to_string(testing::kCappedListLines);
        found += '\n';
        EXPECT_NE(folder.read("out.txt").find(found), std::string::npos);
    }
}

// Every line a bonus word: the bonus store outgrows the room left after the
// list, and so does its sort. The search still counts every word, and says
// that its lists are cut short, in every format.
TEST_F(HostileInput, BonusListBeyondMemoryIsReported) {
#if defined(__SANITIZE_ADDRESS__)
    GTEST_SKIP() << "the sanitizer's operator new aborts where the C library's throws";
#endif
    testing::writeCappedList("DB1.txt");
    const std::uint64_t room = testing::kMemoryRooms.back().room;
    const std::string counted = "\nbonus\t0\nfound\t" + std::to_string(testing::kCappedListLines);
    const std::vector<const char*> window = {"--tsv", "--rack=A", "--min=0"};
    std::vector<const char*> tiles = window;
    tiles.push_back("--pattern=.");
    for (const auto& arguments : {window, tiles}) {
        EXPECT_EQ(runCliWithin(room, arguments), 3) << arguments.size();
        EXPECT_NE(folder.read("out.txt").find(counted), std::string::npos) << arguments.size();
        EXPECT_NE(folder.read("err.txt").find("out of memory: the lists are cut short"),
                  std::string::npos);
    }
    EXPECT_EQ(runCliWithin(room, {"--json", "--rack=A", "--min=0"}), 3);
    EXPECT_NE(
        folder.read("out.txt").find("\"found\": " + std::to_string(testing::kCappedListLines)),
        std::string::npos);
}

} // namespace
} // namespace lettriner
