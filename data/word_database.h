#pragma once
// The word list: the lines of DB1.txt, read once at start-up and never
// changed. Entries keep their case and spaces; the search upper-cases them.

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace lettriner {

// The file's text cut at every CR LF, held as one buffer with offsets so that
// a list of hundreds of thousands of words costs no allocation per word.
// A file ending in CR LF has one more entry than words: the empty text after
// the last line end. An empty file has no entries (highest index -1).
class WordDatabase {
public:
    WordDatabase() = default;
    explicit WordDatabase(std::u16string text);

    [[nodiscard]] std::size_t size() const { return starts_.empty() ? 0 : starts_.size() - 1; }
    [[nodiscard]] bool empty() const { return size() == 0; }
    // The number the program shows as the size of the list: size() - 1.
    [[nodiscard]] std::int64_t highestIndex() const {
        return static_cast<std::int64_t>(size()) - 1;
    }
    [[nodiscard]] std::u16string_view operator[](std::size_t index) const {
        // Each entry ends where the next one's line end begins.
        const std::size_t begin = starts_[index];
        return std::u16string_view(text_).substr(begin, starts_[index + 1] - 2 - begin);
    }

private:
    std::u16string text_;
    // starts_[i] is where entry i begins; a last element marks the end as if
    // the text had one more CR LF, so every entry is bounded the same way.
    std::vector<std::size_t> starts_;
};

// The largest word list read: ten times the shipped one stays far below it,
// and memory stays bounded whatever file lies in the folder.
inline constexpr std::uintmax_t kLargestWordList = std::uintmax_t{256} << 20;

// Reads the word list from `Pfad` (start-up passes "DB1.txt", relative to the
// current folder). `yield` runs once between reading and cutting, so the
// window can paint its loading cover. An absent or unreadable file gives an
// empty list (and, being absent, is left behind empty). A larger file than
// kLargestWordList is read up to that limit.
[[nodiscard]] WordDatabase DatenbankEinlesen(const std::filesystem::path& Pfad,
                                             const std::function<void()>& yield = {});

// The two-line caption of the count label: "gesamte Datenbank: ", CR LF, the
// highest index grouped by threes, " Einträge". Zero shows no number.
[[nodiscard]] std::u16string databaseCountText(std::int64_t highestIndex, char16_t groupSeparator);

} // namespace lettriner
