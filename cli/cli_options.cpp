#include "cli/cli_options.h"

#include <array>
#include <string_view>

namespace lettriner::cli {
namespace {

struct FieldOption {
    std::string_view name;
    std::optional<std::string> Options::*target;
};

constexpr std::array<FieldOption, 6> kFieldOptions = {{
    {"--rack", &Options::rack},
    {"--mandatory", &Options::mandatory},
    {"--forbidden", &Options::forbidden},
    {"--extra", &Options::extra},
    {"--min", &Options::minimum},
    {"--field-size", &Options::fieldSize},
}};

} // namespace

ParseResult parseOptions(const std::vector<std::string>& arguments) {
    ParseResult result;
    Options& options = result.options;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string_view argument = arguments[i];
        if (argument == "--tsv") {
            options.tsv = true;
            continue;
        }
        if (argument == "--help" || argument == "-h") {
            options.help = true;
            continue;
        }
        if (argument == "--version") {
            options.version = true;
            continue;
        }
        if (argument.starts_with("-C")) {
            if (argument.size() > 2) {
                options.directory = std::string(argument.substr(2));
            } else if (i + 1 < arguments.size()) {
                options.directory = arguments[++i];
            } else {
                result.error = "option -C needs a folder";
                return result;
            }
            continue;
        }
        bool matched = false;
        for (const FieldOption& field : kFieldOptions) {
            if (argument == field.name) {
                if (i + 1 >= arguments.size()) {
                    result.error = "option " + std::string(field.name) + " needs a text";
                    return result;
                }
                options.*field.target = arguments[++i];
                matched = true;
            } else if (argument.starts_with(field.name) && argument.size() > field.name.size() &&
                       argument[field.name.size()] == '=') {
                options.*field.target = std::string(argument.substr(field.name.size() + 1));
                matched = true;
            }
            if (matched)
                break;
        }
        if (!matched) {
            result.error = argument.starts_with("-")
                               ? "unknown option " + std::string(argument)
                               : "unexpected argument " + std::string(argument);
            return result;
        }
    }
    return result;
}

std::string usageText() {
    return "Usage: lettriner-cli [OPTION]...\n"
           "Finds the best German words for a Lettrino rack, like the Lettriner window.\n"
           "Reads DB1.txt, Bewertung1.txt and Bewertung2.txt from the current folder.\n"
           "\n"
           "Each field option takes the text as it would be typed into the field:\n"
           "  --rack TEXT        tiles on the rack (default AFEEZHRB)\n"
           "  --mandatory TEXT   letters every word must contain (default none)\n"
           "  --forbidden TEXT   letters no word may contain (default QÄÖÜJZVXY)\n"
           "  --extra TEXT       letters a word may borrow from the board (default 0)\n"
           "  --min TEXT         minimum word value (default 5)\n"
           "  --field-size TEXT  result field size (default 500)\n"
           "\n"
           "  -C DIR             change to DIR first\n"
           "  --tsv              tab-separated output for scripts\n"
           "  -h, --help         show this help and exit\n"
           "      --version      show the version and exit\n"
           "\n"
           "Options also take the form --rack=TEXT. A number out of range leaves the\n"
           "field's default value in force. Exit status: 0 on success, 1 when the folder\n"
           "cannot be entered, 2 on a usage error.\n";
}

} // namespace lettriner::cli
