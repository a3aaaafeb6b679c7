// lettriner-cli: the search of the Lettriner window, without a window.

#include "cli/cli_options.h"
#include "cli/cli_output.h"
#include "data/text_case.h"
#include "data/utf8.h"
#include "data/word_database.h"
#include "engine/headless_search.h"
#include "engine/letter_values.h"
#include "engine/prepared_words.h"

#include <cstdio>
#include <filesystem>
#include <iostream>
#include <system_error>

namespace {

std::u16string fieldText(const std::optional<std::string>& option, std::u16string_view fallback) {
    return option ? lettriner::fromUtf8(*option) : std::u16string(fallback);
}

} // namespace

int main(int argc, char** argv) {
    using namespace lettriner;
    const cli::ParseResult parsed = cli::parseOptions({argv + 1, argv + argc});
    if (!parsed.error.empty()) {
        std::cerr << "lettriner-cli: " << parsed.error << "\n"
                  << "Try 'lettriner-cli --help' for more information.\n";
        return 2;
    }
    const cli::Options& options = parsed.options;
    if (options.help) {
        std::cout << cli::usageText();
        return 0;
    }
    if (options.version) {
        std::cout << "lettriner-cli " LETTRINER_VERSION "\n";
        return 0;
    }
    if (options.directory) {
        std::error_code error;
        std::filesystem::current_path(*options.directory, error);
        if (error) {
            std::cerr << "lettriner-cli: cannot change to " << *options.directory << ": "
                      << error.message() << '\n';
            return 1;
        }
    }

    const WordDatabase database = DatenbankEinlesen("DB1.txt");
    const PreparedWords words(database, BewertungsFeldLaden());

    HeadlessFields fields;
    fields.texts = {toUpper(fieldText(options.rack, SearchDefaults::rack)),
                    toUpper(fieldText(options.mandatory, SearchDefaults::mandatory)),
                    toUpper(fieldText(options.forbidden, SearchDefaults::forbidden)),
                    fieldText(options.extra, SearchDefaults::allowance)};
    fields.minimum = fieldText(options.minimum, SearchDefaults::minimum);
    fields.fieldSize = fieldText(options.fieldSize, SearchDefaults::fieldSize);
    const HeadlessOutcome outcome = searchWithoutWindow(words, fields);
    const std::string text = options.tsv ? cli::tsvText(outcome) : cli::tableText(outcome);
    std::fwrite(text.data(), 1, text.size(), stdout);
    return std::fflush(stdout) == 0 ? 0 : 1;
}
