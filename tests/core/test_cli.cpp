// SPDX-License-Identifier: GPL-3.0-or-later
// lettriner-cli: option parsing, and whole runs of the real program over
// small data files written in Windows-1252 with CR LF line ends.

#include "cli/cli_options.h"
#include "cli/data_folder.h"
#include "cli/message_text.h"
#include "support/temp_folder.h"

#include <algorithm>
#include <cstdlib>
#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <sys/wait.h>
#include <tuple>
#include <vector>

namespace lettriner::cli {
namespace {

TEST(ParseOptions, ReadsEveryFormOfEveryOptionAndRejectsTheRest) {
    const ParseResult parsed = parseOptions(
        {"--rack", "-x", "--mandatory=E", "--forbidden=", "--extra", "1.5", "--min==-3",
         "--field-size", "0", "-Cdata", "--tsv", "--rack=ab c", "-h", "--version"});
    const Options& o = parsed.options; // the last --rack wins
    EXPECT_EQ(std::tie(parsed.error, o.rack, o.mandatory, o.forbidden, o.extra, o.minimum,
                       o.fieldSize, o.directory),
              std::make_tuple("", "ab c", "E", "", "1.5", "=-3", "0", "data"));
    EXPECT_TRUE(o.tsv && o.help && o.version);
    const std::pair<std::vector<std::string>, std::string> bad[] = {
        {{"--bogus"}, "unknown option --bogus"},
        {{"--rackets=1"}, "unknown option --rackets=1"},
        {{"--tsv", "--min"}, "option --min needs a text"},
        {{"-C"}, "option -C needs a folder"},
        {{"--tsv", "AFEE"}, "unexpected argument AFEE"},
        {{"--help", "--nope"}, "unknown option --nope"},
        {{""}, "unexpected argument "},
        {{"=x"}, "unexpected argument =x"},
        {{"--blanks=3"}, "option --blanks takes 0, 1 or 2, not '3'"},
        {{"--blanks", "-1"}, "option --blanks takes 0, 1 or 2, not '-1'"},
        {{"--blanks="}, "option --blanks takes 0, 1 or 2, not ''"},
        {{"--pattern=a-b"}, "option --pattern takes letters and '.', not '-'"},
        {{"--pattern="}, "option --pattern takes 1 to 15 letters and '.'"},
        {{"--pattern", "................"}, "option --pattern takes 1 to 15 letters and '.'"},
        {{"--starts=e."}, "option --starts takes letters only, not '.'"},
        {{"--ends=\xC3\xA9"}, "option --ends takes letters only, not '\xC3\xA9'"},
        {{"--min-length=-1"}, "option --min-length takes a whole number from 0, not '-1'"},
        {{"--max-length=4x"}, "option --max-length takes a whole number from 0, not '4x'"},
        {{"--max-length=99999999999"},
         "option --max-length takes a whole number from 0, not '99999999999'"},
        {{"--check", "--tsv"}, "option --check needs a word"},
        {{"--check", "tee", ""}, "option --check takes words, not an empty text"},
        // What is echoed cannot steer the terminal, and a character is shown whole.
        {{"--blanks", "\x1b]0;x\a"}, "option --blanks takes 0, 1 or 2, not '\\x1b]0;x\\x07'"},
        {{"--starts=a\xF0\x9F\x98\x80"},
         "option --starts takes letters only, not '\xF0\x9F\x98\x80'"},
        // The first and the last character of two code units.
        {{"--ends=\xF0\x90\x80\x80"}, "option --ends takes letters only, not '\xF0\x90\x80\x80'"},
        {{"--ends=\xF4\x8F\xBF\xBF"}, "option --ends takes letters only, not '\xF4\x8F\xBF\xBF'"},
        {{"--\xFF\r"}, "unknown option --\\xff\\x0d"},
        {{"--json", "--tsv"}, "options --tsv and --json exclude each other"},
        // The board search takes its own options and none of the word search's.
        {{"--board=b.txt", "--cgp=15"}, "options --board and --cgp exclude each other"},
        {{"--cgp=15", "--blanks=1"}, "option --blanks belongs to the word search, not a board"},
        {{"--check", "tee", "--board", "-"},
         "option --check belongs to the word search, not a board"},
        {{"--cgp=x", "--extra=1"}, "option --extra belongs to the word search, not a board"},
        {{"--moves=3"}, "option --moves needs a position: --board FILE or --cgp TEXT"},
        {{"--all"}, "option --all needs a position: --board FILE or --cgp TEXT"},
        {{"--cgp=x", "--moves=0"}, "option --moves takes a whole number from 1, not '0'"},
        {{"--cgp=x", "--moves=5", "--all"}, "options --moves and --all exclude each other"}};
    for (const auto& [arguments, error] : bad)
        EXPECT_EQ(parseOptions(arguments).error, error);
    EXPECT_EQ(parseOptions({"--cgp=x", "--moves=1"}).options.moves, 1u);
}

TEST(ParseOptions, TileOptionsAreUpperCasedAndCheckTakesTheFollowingWords) {
    const ParseResult parsed = parseOptions({"--blanks=2", "--pattern", "..säß", "--starts=ab",
                                             "--ends", "ü", "--min-length=0", "--max-length", "15",
                                             "--check", "tee", "Straße", "--json"});
    const Options& o = parsed.options;
    EXPECT_EQ(parsed.error, "");
    EXPECT_EQ(std::tie(o.blanks, o.pattern, o.starts, o.ends, o.minLength, o.maxLength),
              std::make_tuple(2, u"..SÄß", u"AB", u"Ü", 0u, 15u));
    EXPECT_EQ(o.checkWords, (std::vector<std::string>{"tee", "Straße"}));
    EXPECT_TRUE(o.json && o.usesTiles());
    EXPECT_FALSE(parseOptions({"--rack=x", "--tsv"}).options.usesTiles());
    const ParseResult noBlanks = parseOptions({"--blanks", "0"});
    EXPECT_EQ(std::tie(noBlanks.error, noBlanks.options.blanks), std::make_tuple("", 0));
}

TEST(MessageText, ShowsWhatCannotBePrintedByItsCode) {
    const std::pair<std::u16string, std::string> cases[] = {
        {u"ok\u00e4", "ok\xC3\xA4"},          {std::u16string(1, 0xD83D), "U+D83D"},
        {u"\x1b[2J\u0085", "\\x1b[2JU+0085"}, {u"\U0001F600", "\xF0\x9F\x98\x80"},
        {u"\U0010FFFF", "\xF4\x8F\xBF\xBF"},
    };
    for (const auto& [text, shown] : cases)
        EXPECT_EQ(messageText(text), shown);
    // Well-formed UTF-8 of two, three and four bytes passes unchanged.
    EXPECT_EQ(messageText(std::string_view("B\xC3\xA4r \xE2\x82\xAC \xF0\x9F\x98\x80")),
              "B\xC3\xA4r \xE2\x82\xAC \xF0\x9F\x98\x80");
}

TEST(DataFolder, InstalledProgramsFindTheirWordList) {
    const std::pair<const char*, std::optional<std::filesystem::path>> cases[] = {
        {"/usr/lib/lettriner", "/var/lib/lettriner"},
        {"/usr/lib/lettriner/", "/var/lib/lettriner"},
        {"/home/ada/.local/lib/lettriner", "/home/ada/.local/share/lettriner"},
        {"/opt/x/lib/../lib/lettriner", "/opt/x/share/lettriner"},
        {"/work/build/dev/run", std::nullopt},
        {"/usr/lib64/lettriner", std::nullopt},
        {"lettriner", std::nullopt},
    };
    for (const auto& [programFolder, expected] : cases)
        EXPECT_EQ(installedDataFolder(programFolder), expected) << programFolder;
}

// Letters with a fraction (T) and a negative value (S); the word list has a
// blank line, lower case, an umlaut and ends with CR LF, so its last entry is empty.
constexpr const char* kLetters = "A\r\nB\r\nE\r\nF\r\nH\r\nR\r\nZ\r\nT\r\n\xE4\r\nS\r\n";
constexpr const char* kValues = "1\r\n3\r\n1\r\n4\r\n2\r\n1\r\n3\r\n1.5\r\n6\r\n -2\r\n";
constexpr const char* kWords =
    "FEE\r\nB\xE4r\r\n\r\nHafer\r\nZebra\r\nTee\r\nTest\r\nBar\r\nFe\r\nes\r\n";

struct CliRun {
    int exitCode;
    std::string out;
    std::string err;
};

// The shared data lie in the folder "data" of a fresh folder, where the program starts.
class Cli : public ::testing::Test {
protected:
    Cli() {
        std::filesystem::create_directory(folder / "data");
        folder.write("data/Bewertung1.txt", kLetters);
        folder.write("data/Bewertung2.txt", kValues);
        folder.write("data/DB1.txt", kWords);
    }

    // The program at `program`, started in `where` (relative to the fresh folder).
    // With `input`, that file (relative to the fresh folder) is standard input.
    CliRun runCli(const std::vector<std::string>& arguments, const std::string& where = "data",
                  const std::string& program = LETTRINER_CLI, const std::string& input = {}) const {
        const auto quoted = [](const std::string& text) {
            std::string result = "'";
            for (const char c : text)
                result += c == '\'' ? std::string("'\\''") : std::string(1, c);
            return result + "'";
        };
        std::string command = "cd ";
        command += quoted((folder / where).string()) + " && " + quoted(program);
        for (const std::string& argument : arguments)
            command.append(" ").append(quoted(argument));
        if (!input.empty())
            command += " <" + quoted((folder / input).string());
        command += " >" + quoted((folder / "out.txt").string());
        command += " 2>" + quoted((folder / "err.txt").string());
        const int status = std::system(command.c_str());
        return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, folder.read("out.txt"),
                folder.read("err.txt")};
    }

    testing::TempFolder folder;
};

TEST_F(Cli, PrintsTheExactResultAsTsv) {
    const std::pair<std::vector<std::string>, std::string> cases[] = {
        {{"--rack=test", "--extra=1", "--forbidden=", "--min=-10"},
         "main\t6\nFE\t2\t5\tf\ttst\nTEE\t3\t4\te\tst\nTEST\t4\t2\t\t\n\t0\t0\t\ttest\n"
         "\t0\t0\t\ttest\nES\t2\t-1\t\ttt\nbonus\t1\nTEST\t4\t2\t\t\nfound\t6\nmin\t-10\n"},
        {{"--rack=b\xC3\xA4r", "--forbidden=", "--min", "0"},
         "main\t3\nB\xC3\x84R\t3\t10\t\t\n\t0\t0\t\tb\xC3\xA4r\n\t0\t0\t\tb\xC3\xA4r\n"
         "bonus\t1\nB\xC3\x84R\t3\t10\t\t\nfound\t3\nmin\t0\n"},
        {{"--field-size", "0", "--min=40000"},
         "main\t1\nHAFER\t5\t9\t\tezb\nbonus\t0\nfound\t2\nmin\t9\n"},
        // A board option alone brings no blank: TEE would need one for its second E.
        {{"--rack=test", "--starts=T", "--min=0", "--forbidden="},
         "main\t1\nTEST\t4\t2\t\t\nbonus\t1\nTEST\t4\t2\t\t\nfound\t1\nmin\t0\n"},
    };
    for (const auto& [options, expected] : cases) {
        std::vector<std::string> arguments = {"--tsv"};
        arguments.insert(arguments.end(), options.begin(), options.end());
        const CliRun run = runCli(arguments);
        EXPECT_EQ(run.exitCode, 0) << run.err;
        EXPECT_EQ(run.out, expected);
    }
}

TEST_F(Cli, BlanksAddTheirColumnAndLowerTheValue) {
    // TEE: a blank for the second E (2.5, rounded to even); FE: for the F;
    // TEST: for the second T, and every tile and the blank used: a bonus word.
    const CliRun run = runCli({"--tsv", "--rack=tes", "--blanks=1", "--forbidden=", "--min=0"});
    EXPECT_EQ(run.exitCode, 0) << run.err;
    EXPECT_EQ(run.out, "main\t5\nTEE\t3\t2\t\ts\te\nFE\t2\t1\t\tts\tf\nTEST\t4\t0\t\t\tt\n"
                       "\t0\t0\t\ttes\t\n\t0\t0\t\ttes\t\nbonus\t1\nTEST\t4\t0\t\t\tt\n"
                       "found\t5\nmin\t0\n");
}

TEST_F(Cli, JsonCarriesTheSameResult) {
    const CliRun run = runCli({"--json", "--rack=br", "--blanks", "1", "--starts=B", "--min=0"});
    EXPECT_EQ(run.exitCode, 0) << run.err;
    const std::string bar = "    {\n      \"word\": \"BAR\",\n      \"length\": 3,\n"
                            "      \"value\": 4,\n      \"needed\": \"\",\n"
                            "      \"left_over\": \"\",\n      \"blanks\": \"a\"\n    }\n";
    EXPECT_EQ(run.out, "{\n  \"main\": [\n" + bar + "  ],\n  \"bonus\": [\n" + bar +
                           "  ],\n  \"found\": 1,\n  \"min\": \"0\"\n}\n");
}

TEST_F(Cli, CheckSaysWhetherEachWordIsListedAndExitsOneWhenOneIsNot) {
    const std::tuple<std::vector<std::string>, int, std::string> cases[] = {
        {{"--check", "tee", "hafer"},
         0,
         "Wort   In der Wortliste  Wortwert\nTEE    ja                       4\n"
         "HAFER  ja                       9\n"},
        {{"--tsv", "--check", "Straße", "fee"}, 1, "check\t2\nSTRAßE\tnein\t2\nFEE\tja\t6\n"},
    };
    for (const auto& [arguments, exitCode, out] : cases) {
        const CliRun run = runCli(arguments);
        EXPECT_EQ(run.exitCode, exitCode) << run.err;
        EXPECT_EQ(run.out, out);
    }
}

TEST_F(Cli, PrintsAnAlignedTableWithTheBonusWordsBelow) {
    folder.write("data/DB1.txt", "Tee\r\na\tb\r\nFe\r\nZebra");
    const CliRun run = runCli({"--rack", "tee", "--extra=3", "--min=4"});
    EXPECT_EQ(run.exitCode, 0) << run.err;
    EXPECT_EQ(run.out, "Wort  Wortl\xC3\xA4nge  Wortwert  Ben\xC3\xB6tigte  \xC3\234brigbleibende\n"
                       "FE            2         5  f          te\n"
                       "TEE           3         4\n"
                       "A?B           3         4  a?b        tee\n\n"
                       "Bonusw\xC3\xB6rter (alle Steine verbraucht):\n"
                       "Wort  Wortl\xC3\xA4nge  Wortwert  Ben\xC3\xB6tigte  \xC3\234brigbleibende\n"
                       "TEE           3         4\n\n"
                       "3 W\xC3\xB6rter gefunden\n");
}

TEST_F(Cli, CellsEscapeTabAndBackslash) {
    folder.write("data/DB1.txt", "a\tb\r\na\\");
    const CliRun run =
        runCli({"--tsv", "--rack=ab", "--extra=1", "--min=min\\0\t", "--forbidden="});
    EXPECT_EQ(run.out, "main\t2\nA\\tB\t3\t4\t\\t\t\nA\\\\\t2\t1\t\\\\\tb\nbonus\t1\n"
                       "A\\tB\t3\t4\t\\t\t\nfound\t2\nmin\tmin\\\\0\\t\n");
}

TEST_F(Cli, ExitCodesAndMessages) {
    const std::tuple<std::vector<std::string>, int, std::string, std::string> cases[] = {
        {{"--help"}, 0, "Usage: lettriner-cli", ""},
        {{"--version"}, 0, "lettriner-cli " LETTRINER_VERSION "\n", ""},
        {{"--bogus"}, 2, "", "unknown option --bogus"},
        {{"--rack"}, 2, "", "option --rack needs a text\nTry 'lettriner-cli --help'"},
        {{"--pattern", "a-b"}, 2, "", "option --pattern takes letters and '.', not '-'\nTry"},
        {{"-C", "/nonexistent/lettriner-test-folder"}, 1, "", "cannot change to"},
        {{"-C", ".."}, 1, "", "DB1.txt not found in "},
    };
    for (const auto& [arguments, exitCode, outStart, errPart] : cases) {
        const CliRun run = runCli(arguments);
        EXPECT_EQ(run.exitCode, exitCode) << arguments[0];
        EXPECT_TRUE(run.out.starts_with(outStart)) << run.out;
        EXPECT_NE(run.err.find(errPart), std::string::npos) << run.err;
        EXPECT_EQ(run.out.empty(), outStart.empty()) << run.out;
    }
    // Without a word list nothing is read, so no empty data file is left behind.
    EXPECT_FALSE(std::filesystem::exists(folder / "DB1.txt"));
    EXPECT_FALSE(std::filesystem::exists(folder / "Bewertung1.txt"));
}

// Tiles laid on the letters of the test list: TEE across from H8, and below
// its E a blank's "ee" down, so the rack FEHR finds FEE, FE and more.
constexpr const char* kBoardLines = "...............\n...............\n...............\n"
                                    "...............\n...............\n...............\n"
                                    "...............\n.......TEE.....\n........e......\n"
                                    "........e......\n...............\n...............\n"
                                    "...............\n...............\n...............\n";
constexpr const char* kBoardCgp = "15/15/15/15/15/15/15/7TEE5/8e6/8e6/15/15/15/15/15 FEHR/ 0/0 0";

TEST_F(Cli, BoardFileStandardInputAndCgpGiveTheSameMoves) {
    folder.write("data/board.txt", kBoardLines);
    const CliRun fromCgp = runCli({"--tsv", "--cgp", kBoardCgp, "--all"});
    EXPECT_EQ(fromCgp.exitCode, 0) << fromCgp.err;
    EXPECT_TRUE(fromCgp.out.starts_with("moves\t")) << fromCgp.out;
    EXPECT_NE(fromCgp.out.find("\nJ6\tFEE\t14\tFE\tHR\t\n"), std::string::npos) << fromCgp.out;
    const CliRun fromFile = runCli({"--tsv", "--board=board.txt", "--rack=fehr", "--all"});
    EXPECT_EQ(fromFile.out, fromCgp.out);
    const CliRun fromInput = runCli({"--tsv", "--board", "-", "--rack=FEHR", "--all"}, "data",
                                    LETTRINER_CLI, "data/board.txt");
    EXPECT_EQ(fromInput.out, fromCgp.out);
    // The best two of the moves that lay an H: none; of those laying an E: two.
    EXPECT_EQ(runCli({"--tsv", "--cgp", kBoardCgp, "--mandatory=h"}).out, "moves\t0\n");
    const CliRun best = runCli({"--tsv", "--cgp", kBoardCgp, "--moves=2", "--mandatory=e"});
    const auto lines = [](const std::string& text) {
        return std::count(text.begin(), text.end(), '\n');
    };
    EXPECT_EQ(lines(best.out), 3) << best.out;
    const std::string firstMove = best.out.substr(best.out.find('\n') + 1);
    EXPECT_TRUE(firstMove.starts_with("J6\tFEE\t14\t")) << best.out;
    // Forbidden letters: only moves that lay no E.
    EXPECT_EQ(runCli({"--tsv", "--cgp", kBoardCgp, "--forbidden=e"}).out,
              "moves\t2\nJ7\tFE\t5\tF\tEHR\t\n10H\tFe\t4\tF\tEHR\t\n");
    // Twenty moves unless told otherwise (the blank makes forty).
    const CliRun opening =
        runCli({"--tsv", "--cgp", "15/15/15/15/15/15/15/15/15/15/15/15/15/15/15 AEFRST?/ 0/0 0"});
    EXPECT_TRUE(opening.out.starts_with("moves\t20\n")) << opening.out;
    EXPECT_EQ(lines(opening.out), 21) << opening.out;
}

TEST_F(Cli, BoardInputThatCannotBeReadIsAUsageError) {
    folder.write("data/short.txt", "...............\n...............\n");
    std::string odd = kBoardLines;
    odd[20] = '#';
    folder.write("data/odd.txt", odd);
    folder.write("data/limit.txt", std::string(64 << 10, '.'));
    folder.write("data/huge.txt", std::string((64 << 10) + 1, '.'));
    const std::tuple<std::vector<std::string>, std::string> cases[] = {
        {{"--board=short.txt", "--rack=AB"}, "short.txt: "},
        {{"--board=odd.txt", "--rack=AB"}, "odd.txt: "},
        {{"--board=absent.txt", "--rack=AB"}, "cannot read the board file absent.txt"},
        {{"--board=limit.txt", "--rack=AB"}, "limit.txt: "},
        {{"--board=huge.txt", "--rack=AB"}, "the board file huge.txt is far too large"},
        {{"--cgp", kBoardCgp, "--rack=ABCDEFGH"}, "--rack: "},
        {{"--cgp", kBoardCgp, "--rack=A1"}, "--rack: "},
        {{"--cgp=15/15/15/15/15/15/15/15/15/15/15/15/15/15/15"}, "a board needs a rack"},
        {{"--cgp", kBoardCgp, "--min=viele"}, "option --min takes a whole number of points"},
        {{"--cgp", kBoardCgp, "--forbidden=ß"},
         "option --forbidden takes the letters of the tiles"},
    };
    for (const auto& [arguments, errStart] : cases) {
        const CliRun run = runCli(arguments);
        EXPECT_EQ(run.exitCode, 2) << run.err;
        EXPECT_TRUE(run.err.starts_with("lettriner-cli: " + errStart)) << run.err;
        EXPECT_EQ(std::count(run.err.begin(), run.err.end(), '\n'), 1) << run.err;
        EXPECT_EQ(run.out, "");
    }
    EXPECT_FALSE(std::filesystem::exists(folder / "data/absent.txt"));
}

// Legal to read, odd to play on: said on standard error, and the search runs.
TEST_F(Cli, OddPositionsAreNamedAndSearched) {
    const CliRun run = runCli({"--cgp", "QQ13/15/15/15/15/15/15/7TEE5/15/15/15/15/15/15/15 FEHR"});
    EXPECT_EQ(run.exitCode, 0) << run.err;
    EXPECT_NE(run.err.find("warning: not in the word list: QQ at 1A"), std::string::npos)
        << run.err;
    EXPECT_NE(run.err.find("warning: "), run.err.rfind("warning: ")) << run.err; // unconnected too
    EXPECT_TRUE(run.out.starts_with("Zug  Wort")) << run.out;
    // The lexicon file is missing in the test folder: built in memory, and said so.
    EXPECT_NE(run.err.find("DB1.lex is missing"), std::string::npos) << run.err;
}

// Files left empty by the window, or missing: named on standard error, never
// created, and an empty list in the current folder does not hide the
// installed one (a copy of the program in an installed layout).
TEST_F(Cli, EmptyOrMissingDataFilesAreNamedAndNeverCreated) {
    namespace fs = std::filesystem;
    const fs::path installed = folder / "prefix/share/lettriner";
    fs::create_directories(installed);
    fs::create_directories(folder / "prefix/lib/lettriner");
    fs::copy_file(LETTRINER_CLI, folder / "prefix/lib/lettriner/lettriner-cli");
    for (const char* name : {"DB1.txt", "Bewertung1.txt", "Bewertung2.txt"})
        fs::copy_file(folder / "data" / name, installed / name);
    fs::create_directory(folder / "window");
    folder.write("window/DB1.txt", "");
    const std::string installedCli = (folder / "prefix/lib/lettriner/lettriner-cli").string();
    // clang-format off
    const std::tuple<const char*, std::vector<std::string>, int, std::string, std::string> cases[] = {
        {"empty list here: the installed one is used", {"--check", "tee"}, 0, "holds no words; using the list in ", "TEE   ja"},
        {"-C: the folder as given, with the warning", {"-C", ".", "--check", "tee"}, 1, "DB1.txt in ", "TEE   nein"},
        {"empty list, nothing installed: searched, with the warning", {"--rack=tee"}, 0, "holds no words", "0 W"},
    };
    // clang-format on
    for (const auto& [name, arguments, exitCode, errPart, outPart] : cases) {
        SCOPED_TRACE(name);
        const bool useInstalled = std::string_view(name).starts_with("empty list here");
        const CliRun run = runCli(arguments, "window", useInstalled ? installedCli : LETTRINER_CLI);
        EXPECT_EQ(run.exitCode, exitCode) << run.err;
        EXPECT_NE(run.err.find(errPart), std::string::npos) << run.err;
        EXPECT_NE(run.out.find(outPart), std::string::npos) << run.out;
        if (!useInstalled) { // the letter files are missing too
            EXPECT_NE(run.err.find("Bewertung1.txt not found in "), std::string::npos) << run.err;
        }
    }
    EXPECT_EQ(folder.read("window/DB1.txt"), "");
    EXPECT_FALSE(fs::exists(folder / "window/Bewertung1.txt"));
    EXPECT_FALSE(fs::exists(folder / "window/Bewertung2.txt"));
}

} // namespace
} // namespace lettriner::cli
