// lettriner-cli: option parsing, and whole runs of the real program over
// small data files written in Windows-1252 with CR LF line ends.

#include "cli/cli_options.h"
#include "support/case_names.h"
#include "support/temp_folder.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <ostream>
#include <string>
#include <sys/wait.h>
#include <vector>

namespace lettriner::cli {
namespace {

using testing::PrintTo; // table rows by name

struct ParseCase {
    const char* name;
    std::vector<std::string> arguments;
    Options expected;
};

Options withRack(std::string rack) {
    Options options;
    options.rack = std::move(rack);
    return options;
}

Options everything() {
    Options options;
    options.rack = "ab c";
    options.mandatory = "E";
    options.forbidden = "";
    options.extra = "1.5";
    options.minimum = "-3";
    options.fieldSize = "0";
    options.directory = "data";
    options.tsv = true;
    return options;
}

Options flags(bool help, bool version) {
    Options options;
    options.help = help;
    options.version = version;
    return options;
}

// clang-format off
const ParseCase kParseCases[] = {
    {"NoArguments",               {},                                     Options{}},
    {"RackWithEquals",            {"--rack=ab"},                          withRack("ab")},
    {"RackAsNextArgument",        {"--rack", "ab"},                       withRack("ab")},
    {"EmptyRackWithEquals",       {"--rack="},                            withRack("")},
    {"TextStartingWithDash",      {"--rack", "-x"},                       withRack("-x")},
    {"TextContainingEquals",      {"--rack==a"},                          withRack("=a")},
    {"LastOccurrenceWins",        {"--rack=ab", "--rack", "cd"},          withRack("cd")},
    {"EveryOption",               {"--rack", "ab c", "--mandatory=E", "--forbidden=", "--extra",
                                   "1.5", "--min=-3", "--field-size", "0", "-C", "data", "--tsv"},
                                  everything()},
    {"FolderGluedToOption",       {"-Cdata", "--tsv", "--rack=ab c", "--mandatory", "E",
                                   "--forbidden", "", "--extra=1.5", "--min", "-3",
                                   "--field-size=0"},
                                  everything()},
    {"ShortHelp",                 {"-h"},                                 flags(true, false)},
    {"HelpAndVersion",            {"--version", "--help"},                flags(true, true)},
};
// clang-format on

bool sameOptions(const Options& a, const Options& b) {
    return a.rack == b.rack && a.mandatory == b.mandatory && a.forbidden == b.forbidden &&
           a.extra == b.extra && a.minimum == b.minimum && a.fieldSize == b.fieldSize &&
           a.directory == b.directory && a.tsv == b.tsv && a.help == b.help &&
           a.version == b.version;
}

class ParseOptions : public ::testing::TestWithParam<ParseCase> {};

TEST_P(ParseOptions, ReadsTheFields) {
    const ParseCase& c = GetParam();
    const ParseResult result = parseOptions(c.arguments);
    EXPECT_EQ(result.error, "");
    EXPECT_TRUE(sameOptions(result.options, c.expected));
}

INSTANTIATE_TEST_SUITE_P(Cases, ParseOptions, ::testing::ValuesIn(kParseCases),
                         [](const auto& row) { return std::string(row.param.name); });

struct BadArguments {
    const char* name;
    std::vector<std::string> arguments;
    std::string error;
};

// clang-format off
const BadArguments kBadArguments[] = {
    {"UnknownOption",          {"--bogus"},            "unknown option --bogus"},
    {"OptionNameWithSuffix",   {"--rackets=1"},        "unknown option --rackets=1"},
    {"FieldOptionWithoutText", {"--tsv", "--min"},     "option --min needs a text"},
    {"FolderMissing",          {"-C"},                 "option -C needs a folder"},
    {"StrayArgument",          {"--tsv", "AFEE"},      "unexpected argument AFEE"},
    {"ErrorEvenAfterHelp",     {"--help", "--nope"},   "unknown option --nope"},
};
// clang-format on

class ParseOptionsRejects : public ::testing::TestWithParam<BadArguments> {};

TEST_P(ParseOptionsRejects, WithAMessage) {
    const BadArguments& c = GetParam();
    EXPECT_EQ(parseOptions(c.arguments).error, c.error);
}

INSTANTIATE_TEST_SUITE_P(Cases, ParseOptionsRejects, ::testing::ValuesIn(kBadArguments),
                         [](const auto& row) { return std::string(row.param.name); });

// The shared data: letters and values with a fraction (T) and a negative
// value (S); the word list has a blank line, lower case, an umlaut and ends
// with CR LF, so its last entry is empty. Bytes are Windows-1252.
constexpr const char* kLetters = "A\r\nB\r\nE\r\nF\r\nH\r\nR\r\nZ\r\nT\r\n\xE4\r\nS\r\n";
constexpr const char* kValues = "1\r\n3\r\n1\r\n4\r\n2\r\n1\r\n3\r\n1.5\r\n6\r\n -2\r\n";
constexpr const char* kWords =
    "FEE\r\nB\xE4r\r\n\r\nHafer\r\nZebra\r\nTee\r\nTest\r\nBar\r\nFe\r\nes\r\n";

std::string quoted(const std::string& argument) {
    std::string text = "'";
    for (const char c : argument) {
        if (c == '\'')
            text += "'\\''";
        else
            text += c;
    }
    return text + "'";
}

struct CliRun {
    int exitCode;
    std::string out;
    std::string err;
};

CliRun runCli(const testing::TempFolder& folder, const std::vector<std::string>& arguments) {
    std::string command = quoted(LETTRINER_CLI);
    for (const std::string& argument : arguments)
        command += " " + quoted(argument);
    command += " >" + quoted((folder / "out.txt").string()) + " 2>" +
               quoted((folder / "err.txt").string());
    const int status = std::system(command.c_str());
    const int exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    return {exitCode, folder.read("out.txt"), folder.read("err.txt")};
}

struct TsvCase {
    const char* name;
    std::vector<std::string> options;
    std::string expected;
};

// clang-format off
const TsvCase kTsvCases[] = {
    {"DefaultFields", {},
     "main\t4\n"
     "HAFER\t5\t9\t\tezb\n"
     "FEE\t3\t6\t\tazhrb\n"
     "BAR\t3\t5\t\tfeezh\n"
     "FE\t2\t5\t\taezhrb\n"
     "bonus\t0\n"
     "found\t4\n"
     "min\t5\n"},
    {"RackAsNextArgument_AllowanceOneAndAHalf",
     {"--rack", "bar", "--forbidden=", "--min=0", "--extra", "1.5"},
     "main\t4\n"
     "B\xC3\x84R\t3\t10\t\xC3\xA4\ta\n"
     "BAR\t3\t5\t\t\n"
     "\t0\t0\t\tbar\n"
     "\t0\t0\t\tbar\n"
     "bonus\t1\n"
     "BAR\t3\t5\t\t\n"
     "found\t4\n"
     "min\t0\n"},
    {"RackWithSpace_NoBonus",
     {"--rack=bar ", "--forbidden=", "--min=0", "--extra=1.5"},
     "main\t4\n"
     "B\xC3\x84R\t3\t10\t\xC3\xA4\ta \n"
     "BAR\t3\t5\t\t \n"
     "\t0\t0\t\tbar \n"
     "\t0\t0\t\tbar \n"
     "bonus\t0\n"
     "found\t4\n"
     "min\t0\n"},
    {"UmlautRackTypedInLowerCase",
     {"--rack=b\xC3\xA4r", "--forbidden=", "--min", "0"},
     "main\t3\n"
     "B\xC3\x84R\t3\t10\t\t\n"
     "\t0\t0\t\tb\xC3\xA4r\n"
     "\t0\t0\t\tb\xC3\xA4r\n"
     "bonus\t1\n"
     "B\xC3\x84R\t3\t10\t\t\n"
     "found\t3\n"
     "min\t0\n"},
    {"NegativeAllowance_OnlyTwoLetterWords",
     {"--rack=fe", "--extra=-1", "--forbidden=", "--min=-5"},
     "main\t3\n"
     "FE\t2\t5\t\t\n"
     "\t0\t0\t\tfe\n"
     "\t0\t0\t\tfe\n"
     "bonus\t1\n"
     "FE\t2\t5\t\t\n"
     "found\t3\n"
     "min\t-5\n"},
    {"FractionalAndNegativeValues",
     {"--rack=test", "--extra=1", "--forbidden=", "--min=-10"},
     "main\t6\n"
     "FE\t2\t5\tf\ttst\n"
     "TEE\t3\t4\te\tst\n"
     "TEST\t4\t2\t\t\n"
     "\t0\t0\t\ttest\n"
     "\t0\t0\t\ttest\n"
     "ES\t2\t-1\t\ttt\n"
     "bonus\t1\n"
     "TEST\t4\t2\t\t\n"
     "found\t6\n"
     "min\t-10\n"},
    {"MinimumOutOfRange_KeepsFiveButShowsText", {"--min=40000"},
     "main\t4\n"
     "HAFER\t5\t9\t\tezb\n"
     "FEE\t3\t6\t\tazhrb\n"
     "BAR\t3\t5\t\tfeezh\n"
     "FE\t2\t5\t\taezhrb\n"
     "bonus\t0\n"
     "found\t4\n"
     "min\t40000\n"},
    {"FieldSizeOne_PruningRaisesMinimum", {"--field-size=1"},
     "main\t2\n"
     "HAFER\t5\t9\t\tezb\n"
     "FEE\t3\t6\t\tazhrb\n"
     "bonus\t0\n"
     "found\t2\n"
     "min\t6\n"},
    {"FieldSizeZero_FoundExceedsRows", {"--field-size", "0"},
     "main\t1\n"
     "HAFER\t5\t9\t\tezb\n"
     "bonus\t0\n"
     "found\t2\n"
     "min\t9\n"},
};
// clang-format on

class CliTsv : public ::testing::TestWithParam<TsvCase> {};

TEST_P(CliTsv, PrintsTheExactResult) {
    const TsvCase& c = GetParam();
    const testing::TempFolder folder;
    std::filesystem::create_directory(folder / "data");
    folder.write("data/Bewertung1.txt", kLetters);
    folder.write("data/Bewertung2.txt", kValues);
    folder.write("data/DB1.txt", kWords);
    std::vector<std::string> arguments = {"-C", (folder / "data").string(), "--tsv"};
    arguments.insert(arguments.end(), c.options.begin(), c.options.end());
    const CliRun run = runCli(folder, arguments);
    EXPECT_EQ(run.exitCode, 0) << run.err;
    EXPECT_EQ(run.out, c.expected);
}

INSTANTIATE_TEST_SUITE_P(Cases, CliTsv, ::testing::ValuesIn(kTsvCases),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(Cli, MissingFilesGiveAnEmptySearchAndAreLeftBehindEmpty) {
    const testing::TempFolder folder;
    std::filesystem::create_directory(folder / "empty");
    const CliRun run = runCli(folder, {"--tsv", "-C" + (folder / "empty").string()});
    EXPECT_EQ(run.exitCode, 0) << run.err;
    EXPECT_EQ(run.out, "main\t0\nbonus\t0\nfound\t0\nmin\t5\n");
    for (const char* name : {"empty/DB1.txt", "empty/Bewertung1.txt", "empty/Bewertung2.txt"}) {
        EXPECT_TRUE(folder.exists(name)) << name;
        EXPECT_EQ(folder.read(name), "") << name;
    }
}

TEST(Cli, BlankLinesWithoutValuesAreEmptyWords) {
    const testing::TempFolder folder;
    folder.write("DB1.txt", "\r\n\r\n");
    folder.write("Bewertung1.txt", "");
    folder.write("Bewertung2.txt", "");
    const CliRun run = runCli(folder, {"-C", folder.path().string(), "--tsv", "--min="});
    EXPECT_EQ(run.exitCode, 0) << run.err;
    EXPECT_EQ(run.out, "main\t3\n"
                       "\t0\t0\t\tafeezhrb\n"
                       "\t0\t0\t\tafeezhrb\n"
                       "\t0\t0\t\tafeezhrb\n"
                       "bonus\t0\n"
                       "found\t3\n"
                       "min\t\n");
}

TEST(Cli, CellsEscapeTabAndBackslash) {
    const testing::TempFolder folder;
    folder.write("DB1.txt", "a\tb\r\na\\");
    folder.write("Bewertung1.txt", "A\r\nB");
    folder.write("Bewertung2.txt", "1\r\n3");
    const CliRun run = runCli(folder, {"-C", folder.path().string(), "--tsv", "--rack=ab",
                                       "--extra=1", "--min=min\\0\t", "--forbidden="});
    EXPECT_EQ(run.exitCode, 0) << run.err;
    EXPECT_EQ(run.out, "main\t2\n"
                       "A\\tB\t3\t4\t\\t\t\n"
                       "A\\\\\t2\t1\t\\\\\tb\n"
                       "bonus\t1\n"
                       "A\\tB\t3\t4\t\\t\t\n"
                       "found\t2\n"
                       "min\tmin\\\\0\\t\n");
}

TEST(Cli, TableOutputEndsWithTheFoundCount) {
    const testing::TempFolder folder;
    folder.write("DB1.txt", kWords);
    folder.write("Bewertung1.txt", kLetters);
    folder.write("Bewertung2.txt", kValues);
    const CliRun run = runCli(folder, {"-C", folder.path().string()});
    EXPECT_EQ(run.exitCode, 0) << run.err;
    EXPECT_TRUE(run.out.starts_with("Wort  ")) << run.out;
    EXPECT_TRUE(run.out.ends_with("\n4 W\xC3\xB6rter gefunden\n")) << run.out;
}

struct ExitCase {
    const char* name;
    std::vector<std::string> arguments;
    int exitCode;
    std::string outStart; // beginning of standard output
    std::string errPart;  // found in standard error
};

// clang-format off
const ExitCase kExitCases[] = {
    {"Help",            {"--help"},                   0, "Usage: lettriner-cli", ""},
    {"ShortHelp",       {"-h", "--tsv"},              0, "Usage: lettriner-cli", ""},
    {"Version",         {"--version"},                0, "lettriner-cli ",       ""},
    {"UnknownOption",   {"--bogus"},                  2, "", "unknown option --bogus"},
    {"MissingText",     {"--rack"},                   2, "", "option --rack needs a text"},
    {"StrayArgument",   {"AFEE"},                     2, "", "unexpected argument AFEE"},
    {"FolderMissing",   {"-C", "/nonexistent/lettriner-test-folder"}, 1, "", "cannot change to"},
};
// clang-format on

class CliExit : public ::testing::TestWithParam<ExitCase> {};

TEST_P(CliExit, ExitCodeAndMessage) {
    const ExitCase& c = GetParam();
    const testing::TempFolder folder;
    const CliRun run = runCli(folder, c.arguments);
    EXPECT_EQ(run.exitCode, c.exitCode);
    EXPECT_TRUE(run.out.starts_with(c.outStart)) << run.out;
    EXPECT_NE(run.err.find(c.errPart), std::string::npos) << run.err;
    if (c.exitCode == 2) {
        EXPECT_EQ(run.out, "");
    }
}

INSTANTIATE_TEST_SUITE_P(Cases, CliExit, ::testing::ValuesIn(kExitCases),
                         [](const auto& row) { return std::string(row.param.name); });

} // namespace
} // namespace lettriner::cli
