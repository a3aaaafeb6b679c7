// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The word list: the lines of DB1.txt, read once at start-up and never
// changed. Entries keep their case and spaces; the search upper-cases them.
// This is the one owner of the list's memory: the file's bytes as read, and
// where each entry begins. An entry is decoded to text only
// when someone asks for it.

#include "data/file_contents.h"
#include "data/text_codec.h"

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace lettriner {

// The character each byte of a list stands for.
using CodePage = ByteTable<char16_t>;

// The file's bytes cut at every CR LF. A file ending in CR LF has one more
// entry than words: the empty text after the last line end. An empty file
// has no entries (highest index -1). Copies share the same memory.
// Memory too short for the list's offsets gives an empty list, as an
// unreadable file does; nothing is thrown.
class WordDatabase {
public:
    WordDatabase() = default;
    // Bytes in Windows-1252, as DB1.txt holds them.
    explicit WordDatabase(FileContents contents);
    // Text already decoded (tests, tools). A character Windows-1252 cannot
    // hold takes a byte no character of the text uses; when no such byte is
    // left the list is empty. Text beyond kLargestWordList characters is left out.
    explicit WordDatabase(std::u16string_view text);

    [[nodiscard]] std::size_t size() const { return size_; }
    [[nodiscard]] bool empty() const { return size_ == 0; }
    // The number the program shows as the size of the list: size() - 1.
    [[nodiscard]] std::int64_t highestIndex() const { return static_cast<std::int64_t>(size_) - 1; }
    [[nodiscard]] std::u16string operator[](std::size_t index) const;
    // Entry `index` as the bytes it is stored in.
    [[nodiscard]] std::string_view bytes(std::size_t index) const {
        return {text_ + starts_[index], length(index)};
    }
    [[nodiscard]] std::uint32_t length(std::size_t index) const {
        // Each entry ends where the next one's line end begins.
        return starts_[index + 1] - 2 - starts_[index];
    }
    [[nodiscard]] const CodePage& codePage() const;
    // Where each entry begins, size() + 1 offsets (the last one as if one
    // more CR LF followed), for loops over many entries at once.
    [[nodiscard]] const std::uint32_t* entryStarts() const { return starts_; }

private:
    struct Storage;
    void adopt(std::shared_ptr<const Storage> storage);

    std::shared_ptr<const Storage> storage_;
    // Copied out of storage_ for the inline accessors.
    const char* text_ = nullptr;
    const std::uint32_t* starts_ = nullptr;
    std::size_t size_ = 0;
};

// The largest word list read: ten times the shipped one stays far below it,
// memory stays bounded whatever file lies in the folder, and every offset
// fits in 32 bits.
inline constexpr std::uintmax_t kLargestWordList = std::uintmax_t{256} << 20;

// Reads the word list from `Pfad` (start-up passes "DB1.txt", relative to the
// current folder). `yield` runs once between reading and cutting, so the
// window can paint its loading cover. An absent or unreadable file, or one
// memory cannot hold, gives an empty list (and, being absent, is left behind
// empty unless `absent` says otherwise). A larger file than kLargestWordList
// is read up to that limit.
[[nodiscard]] WordDatabase DatenbankEinlesen(const std::filesystem::path& Pfad,
                                             const std::function<void()>& yield = {},
                                             WhenAbsent absent = WhenAbsent::CreateEmpty);

} // namespace lettriner
