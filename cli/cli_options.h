#pragma once
// Command-line options of lettriner-cli. Each field option carries the raw
// text of the matching input field, as if typed into it after start-up.

#include <optional>
#include <string>
#include <vector>

namespace lettriner::cli {

struct Options {
    std::optional<std::string> rack; // UTF-8, unset: the field's default text
    std::optional<std::string> mandatory;
    std::optional<std::string> forbidden;
    std::optional<std::string> extra;
    std::optional<std::string> minimum;
    std::optional<std::string> fieldSize;
    std::optional<std::string> directory; // -C
    bool tsv = false;
    bool help = false;
    bool version = false;
};

struct ParseResult {
    Options options;
    std::string error; // non-empty: a usage error, to be reported with exit code 2
};

// Accepts "--rack TEXT" and "--rack=TEXT" (likewise for every field option),
// "-C DIR", "-CDIR", "--tsv", "--help", "-h" and "--version".
[[nodiscard]] ParseResult parseOptions(const std::vector<std::string>& arguments);

[[nodiscard]] std::string usageText();

} // namespace lettriner::cli
