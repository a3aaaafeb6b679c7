// Files and fields as a careless or hostile user might leave them: huge,
// binary, wrongly terminated, folders in place of files. Whatever they hold,
// loading and searching must end normally with the documented result.

#include "data/file_helpers.h"
#include "data/language_file.h"
#include "data/settings_file.h"
#include "data/text_codec.h"
#include "data/word_database.h"
#include "engine/headless_search.h"
#include "engine/letter_values.h"
#include "engine/prepared_words.h"
#include "support/temp_folder.h"
#include "support/u16_printing.h"

#include <fstream>
#include <gtest/gtest.h>
#include <random>
#include <string>

namespace lettriner {
namespace {

using testing::CurrentFolder;
using testing::TempFolder;

struct SearchResult {
    std::size_t entries = 0; // lines of the word list
    std::uint64_t found = 0;
    std::size_t mainRows = 0;
    std::size_t bonusRows = 0;
    std::u16string minimumText;
};

// Loads the three files from the current folder, as the program does, and searches.
SearchResult searchHere(const SearchTexts& texts, std::u16string minimumText = u"5") {
    const WordDatabase database = DatenbankEinlesen("DB1.txt");
    const PreparedWords words(database, BewertungsFeldLaden());
    const HeadlessOutcome outcome = searchWithoutWindow(words, {texts, std::move(minimumText)});
    return {database.size(), outcome.found, outcome.mainList.rows().size(),
            outcome.bonusList.rows().size(), outcome.minimumText};
}

void writeLetterValues(const TempFolder& folder) {
    folder.write("Bewertung1.txt", "A\r\nB\r\nE\r\n");
    folder.write("Bewertung2.txt", "1\r\n3\r\n1\r\n");
}

TEST(HostileInput, FiftyMegabyteWordListIsSearchedWhole) {
    TempFolder folder;
    writeLetterValues(folder);
    std::string list;
    list.reserve(50u << 20);
    std::mt19937 random(7);
    std::uniform_int_distribution<int> letter('A', 'E');
    std::uniform_int_distribution<int> length(1, 80);
    std::size_t lines = 0;
    while (list.size() < (50u << 20)) {
        for (int i = length(random); i > 0; --i)
            list += static_cast<char>(letter(random));
        list += "\r\n";
        ++lines;
    }
    folder.write("DB1.txt", list);
    const CurrentFolder here(folder.path());

    const SearchResult result = searchHere({u"ABE", u"", u"", u"0"}, u"0");
    EXPECT_GT(result.found, 0u);
    EXPECT_LE(result.mainRows, 501u);
    EXPECT_EQ(result.entries, lines + 1);
}

TEST(HostileInput, MillionCharacterLinesAnywhere) {
    TempFolder folder;
    const std::string huge(1'000'000, 'A');
    folder.write("DB1.txt", "AB\r\n" + huge + "\r\nBA\r\n");
    folder.write("Bewertung1.txt", huge + "\r\nB\r\n");
    folder.write("Bewertung2.txt", "3\r\n" + std::string(1'000'000, '7') + "\r\n");
    const CurrentFolder here(folder.path());

    // The million A's are worth 3 million: beyond 16 bits, so 0 and no prune trouble.
    const SearchResult result = searchHere({u"AB", u"", u"", u"2000000"}, u"0");
    EXPECT_EQ(result.found, 4u); // AB, the long line, BA and the empty last line
    EXPECT_EQ(WortBewertung(BewertungsFeldLaden(), u"B"), 0); // 7...7 is too large
}

TEST(HostileInput, BinaryNoiseAndNulBytes) {
    TempFolder folder;
    std::string noise;
    std::mt19937 random(11);
    for (int i = 0; i < 200'000; ++i)
        noise += static_cast<char>(random());
    noise += std::string("\0\0AB\0\r\n", 7);
    folder.write("DB1.txt", noise);
    folder.write("Bewertung1.txt", noise);
    folder.write("Bewertung2.txt", noise);
    const CurrentFolder here(folder.path());

    SearchTexts texts{u"\0\0\0", u"", u"", u"3"};
    texts.rack = decodeWindows1252(noise.substr(0, 40));
    const SearchResult result = searchHere(texts, u"-32768");
    EXPECT_LE(result.mainRows, 501u);
    EXPECT_LE(result.bonusRows, result.found);
}

TEST(HostileInput, LineEndsOtherThanCrLfMakeOneEntry) {
    TempFolder folder;
    folder.write("lf.txt", "AB\nBA\nAA\n");
    folder.write("cr.txt", "AB\rBA\rAA\r");
    EXPECT_EQ(DatenbankEinlesen(folder / "lf.txt").size(), 1u);
    EXPECT_EQ(DatenbankEinlesen(folder / "cr.txt").size(), 1u);
}

TEST(HostileInput, FoldersInPlaceOfFiles) {
    TempFolder folder;
    for (const char* name : {"DB1.txt", "Bewertung1.txt", "Bewertung2.txt"})
        std::filesystem::create_directory(folder / name);
    const CurrentFolder here(folder.path());

    const SearchResult result = searchHere({}, u"0");
    EXPECT_EQ(result.found, 0u);
    EXPECT_TRUE(std::filesystem::is_directory(folder / "DB1.txt"));
}

// A file that stat() calls regular but whose reads fail, for root as for
// anyone: permission bits alone do not stop root, which CI may run as.
constexpr const char* kFailingRegularFile = "/proc/self/mem";

// Makes `path` unreadable: permission bits, and where they do not hold
// (running as root) a link to a file whose reads fail.
void makeUnreadable(const std::filesystem::path& path) {
    std::filesystem::permissions(path, std::filesystem::perms::none);
    if (std::ifstream probe(path, std::ios::binary); probe && probe.peek() != EOF) {
        std::filesystem::remove(path);
        std::filesystem::create_symlink(kFailingRegularFile, path);
    }
}

TEST(HostileInput, UnreadableFilesReadAsEmpty) {
    TempFolder folder;
    folder.write("DB1.txt", "AB\r\nBA\r\n");
    writeLetterValues(folder);
    for (const char* name : {"DB1.txt", "Bewertung1.txt", "Bewertung2.txt"})
        makeUnreadable(folder / name);
    const CurrentFolder here(folder.path());

    EXPECT_EQ(DateiLesen("DB1.txt"), u"");
    const SearchResult result = searchHere({}, u"0");
    EXPECT_EQ(result.entries, 0u);
    EXPECT_EQ(result.found, 0u);
}

TEST(HostileInput, ReadOnlyProgramFolderKeepsTheDefaults) {
    TempFolder folder;
    std::filesystem::path programFolder = folder / "program";
    std::filesystem::create_directory(programFolder);
    std::filesystem::permissions(programFolder, std::filesystem::perms::owner_read |
                                                    std::filesystem::perms::owner_exec);
    if (std::ofstream(programFolder / "probe")) {
        // Root writes anyway; /proc takes no new files from anyone.
        std::filesystem::remove(programFolder / "probe");
        programFolder = "/proc/self";
    }

    EXPECT_EQ(SettingsLaden(programFolder), 0);
    SettingsSpeichern(programFolder, 1);
    EXPECT_FALSE(std::filesystem::exists(settingsPath(programFolder)));
    EXPECT_EQ(SettingsLaden(programFolder), 0);
    EXPECT_EQ(MeldungLaden(programFolder, u"[A]", 1), u"");
}

TEST(HostileInput, MegabyteSettingsAndMessageFiles) {
    TempFolder folder;
    std::string big(1 << 20, '\t');
    big += "[Language]\t\t\t1\r\n";
    big += std::string(1 << 19, '\r') + std::string(1 << 19, '\n');
    folder.write("Settings.txt", big);
    EXPECT_EQ(SettingsLaden(folder.path()), 1);
    EXPECT_EQ(folder.read("Settings.txt"), big); // a present value is never rewritten

    std::string messages;
    for (int i = 0; i < 100'000; ++i)
        messages += "\r\n\r\n\t\t";
    messages += "[A]\t\t\tHallo\t\tHello\r\n";
    folder.write("Sprachen.txt", messages);
    EXPECT_EQ(MeldungLaden(folder.path(), u"[A]", 1), u"Hello");
}

struct ExtremeValueCase {
    const char* name;
    const char* value;
    std::int16_t expected; // value of the one-letter word "A"
};

class ExtremeLetterValues : public ::testing::TestWithParam<ExtremeValueCase> {};

TEST_P(ExtremeLetterValues, WordValueStaysDefined) {
    const LetterValueTable table = letterValuesFromTexts(
        u"A\r\nB\r\n", u"x\r\n" + decodeWindows1252(GetParam().value) + u"\r\n");
    EXPECT_EQ(WortBewertung(table, u"B"), GetParam().expected);
    EXPECT_EQ(WortBewertung(table, u"BB"), GetParam().expected == 0 ? 0 : 2 * GetParam().expected);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Values, ExtremeLetterValues, ::testing::Values(
    ExtremeValueCase{"Huge",          "1e308",      0},
    ExtremeValueCase{"HugeNegative",  "-1e308",     0},
    ExtremeValueCase{"Overflowing",   "1e999",      0},
    ExtremeValueCase{"HexAllOnes",    "&HFFFFFFFF", 0},
    ExtremeValueCase{"NotANumber",    "nan",        0},
    ExtremeValueCase{"Infinity",      "inf",        0},
    ExtremeValueCase{"Tiny",          "1e-320",     0},
    ExtremeValueCase{"HexSmall",      "&H1F",       31},
    ExtremeValueCase{"OctalSmall",    "&O17",       15}),
    [](const auto& param) { return std::string(param.param.name); });
// clang-format on

TEST(HostileInput, HugeValuesDoNotTurnIntoNaNSums) {
    // +1e308 twice is infinity, and infinity plus -infinity would be NaN:
    // the sum must still convert to the documented 0.
    const LetterValueTable table = letterValuesFromTexts(u"A\r\nB\r\n", u"1e308\r\n-1e308\r\n");
    EXPECT_EQ(WortBewertung(table, u"AAB"), 0);
    EXPECT_EQ(WortBewertung(table, u"AABB"), 0);
}

TEST(HostileInput, EnormousFieldTexts) {
    TempFolder folder;
    folder.write("DB1.txt", "ABBA\r\nEBBE\r\nAB\r\n");
    writeLetterValues(folder);
    const CurrentFolder here(folder.path());
    const std::u16string huge(100'000, u'A');

    const SearchResult result = searchHere({huge, huge, huge, huge}, huge);
    EXPECT_EQ(result.found, 0u); // every word lacks some A... and A is forbidden
    EXPECT_EQ(result.minimumText, huge);

    const SearchResult digits = searchHere({huge, u"", u"", std::u16string(100'000, u'9')}, u"0");
    EXPECT_EQ(digits.found, 4u); // 9...9 extra letters: every line, the empty one too
}

TEST(HostileInput, EveryCodePageCharacterInEveryField) {
    TempFolder folder;
    std::string everyByte;
    for (int byte = 1; byte < 256; ++byte)
        everyByte += static_cast<char>(byte);
    folder.write("DB1.txt", "AB\r\n" + everyByte + "\r\nBA\r\n");
    writeLetterValues(folder);
    const CurrentFolder here(folder.path());
    const std::u16string all = decodeWindows1252(everyByte);

    const SearchResult asRack = searchHere({all, u"", u"", u"0"}, u"0");
    EXPECT_EQ(asRack.found, 4u);
    EXPECT_EQ(asRack.bonusRows, 1u); // the line of every character uses every tile

    const SearchResult asForbidden = searchHere({u"AB", u"", all, u"0"}, u"0");
    EXPECT_EQ(asForbidden.found, 1u); // only the empty last line is free of them

    const SearchResult asMandatory = searchHere({u"AB", all, u"", all}, all);
    EXPECT_EQ(asMandatory.found, 0u); // the minimum reads as 0, but "ABBA" lacks most letters
}

} // namespace
} // namespace lettriner
