#include "data/word_database.h"

#include "data/large_array.h"
#include "data/number_format.h"
#include "data/text_codec.h"

#include <cstring>
#include <new>
#include <stdexcept>
#include <unordered_map>

namespace lettriner {

struct WordDatabase::Storage {
    FileContents contents;
    CodePage codePage;
    // starts[i] is where entry i begins; a last element marks the end as if
    // the text had one more CR LF, so every entry is bounded the same way.
    LargeArray<std::uint32_t> starts;
};

namespace {

// Where a CR LF pair ends, for every pair in order; the callback gets the
// offset just after the LF. memchr finds the rare LF far faster than a loop.
template <class Visit> void forEachLineEnd(std::string_view text, Visit visit) {
    const char* const begin = text.data();
    const char* const end = begin + text.size();
    const char* p = begin;
    while (p < end) {
        const auto* lf = static_cast<const char*>(std::memchr(p, '\n', end - p));
        if (lf == nullptr)
            break;
        if (lf > begin && lf[-1] == '\r')
            visit(static_cast<std::uint32_t>(lf + 1 - begin));
        p = lf + 1;
    }
}

LargeArray<std::uint32_t> startsOfEntries(std::string_view text) {
    if (text.empty())
        return LargeArray<std::uint32_t>(0);
    std::size_t lineEnds = 0;
    forEachLineEnd(text, [&](std::uint32_t) { ++lineEnds; });
    LargeArray<std::uint32_t> starts(lineEnds + 2);
    std::size_t next = 0;
    starts[next++] = 0;
    forEachLineEnd(text, [&](std::uint32_t start) { starts[next++] = start; });
    starts[next] = static_cast<std::uint32_t>(text.size() + 2);
    return starts;
}

// The bytes of a decoded text, and the code page that turns them back.
std::pair<std::string, CodePage> encoded(std::u16string_view text) {
    CodePage page = windows1252Characters();
    std::array<bool, 256> taken{};
    taken['\r'] = taken['\n'] = true; // the line ends keep their bytes
    for (const char16_t c : text) {
        const unsigned char code = windows1252Code(c);
        if (page[code] == c)
            taken[code] = true;
    }
    std::unordered_map<char16_t, unsigned char> own;
    unsigned next = 0;
    std::string bytes(text.size(), '\0');
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char16_t c = text[i];
        unsigned char code = windows1252Code(c);
        if (page[code] != c) {
            auto [place, added] = own.try_emplace(c, 0);
            if (added) {
                while (next < 256 && taken[next])
                    ++next;
                if (next == 256)
                    throw std::length_error("too many characters outside Windows-1252");
                taken[next] = true;
                page[next] = c;
                place->second = static_cast<unsigned char>(next);
            }
            code = place->second;
        }
        bytes[i] = static_cast<char>(code);
    }
    return {std::move(bytes), page};
}

} // namespace

WordDatabase::WordDatabase(FileContents contents) {
    auto storage = std::make_shared<Storage>();
    storage->contents = std::move(contents);
    storage->codePage = windows1252Characters();
    storage->starts = startsOfEntries(storage->contents.bytes());
    adopt(std::move(storage));
}

WordDatabase::WordDatabase(std::u16string_view text) {
    auto [bytes, page] = encoded(text.substr(0, kLargestWordList));
    auto storage = std::make_shared<Storage>();
    storage->contents = FileContents(std::move(bytes));
    storage->codePage = page;
    storage->starts = startsOfEntries(storage->contents.bytes());
    adopt(std::move(storage));
}

void WordDatabase::adopt(std::shared_ptr<const Storage> storage) {
    storage_ = std::move(storage);
    text_ = storage_->contents.bytes().data();
    starts_ = storage_->starts.data();
    size_ = storage_->starts.size() == 0 ? 0 : storage_->starts.size() - 1;
}

std::u16string WordDatabase::operator[](std::size_t index) const {
    const std::string_view entry = bytes(index);
    const CodePage& page = storage_->codePage;
    std::u16string text(entry.size(), u'\0');
    for (std::size_t i = 0; i < entry.size(); ++i)
        text[i] = page[static_cast<unsigned char>(entry[i])];
    return text;
}

const CodePage& WordDatabase::codePage() const {
    return storage_ ? storage_->codePage : windows1252Characters();
}

WordDatabase DatenbankEinlesen(const std::filesystem::path& Pfad,
                               const std::function<void()>& yield) {
    FileContents contents = readFileContents(Pfad, kLargestWordList);
    if (yield)
        yield();
    try {
        return WordDatabase(std::move(contents));
    } catch (const std::bad_alloc&) {
        return {}; // no memory for the offsets: as if the file could not be read
    }
}

std::u16string databaseCountText(std::int64_t highestIndex, char16_t groupSeparator) {
    return u"gesamte Datenbank: \r\n" + formatGrouped(highestIndex, groupSeparator) + u" Einträge";
}

} // namespace lettriner
