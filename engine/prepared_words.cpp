#include "engine/prepared_words.h"

#include "data/text_case.h"

namespace lettriner {

std::uint32_t letterSet(std::u16string_view upperText) {
    std::uint32_t set = 0;
    for (const char16_t c : upperText) {
        const int index = alphabetIndex(c);
        set |= index >= 0 ? (1u << index) : kOtherBit;
    }
    return set;
}

PreparedWords::PreparedWords(const WordDatabase& database, const LetterValueTable& values)
    : values_(values) {
    const std::size_t count = database.size();
    std::size_t total = 0;
    for (std::size_t i = 0; i < count; ++i)
        total += database[i].size();
    text_.reserve(total);
    starts_.reserve(count);
    entries_.reserve(count);
    for (std::size_t i = 0; i < count; ++i) {
        const std::u16string_view word = database[i];
        const std::size_t start = text_.size();
        for (const char16_t c : word)
            text_ += toUpper(c);
        const std::u16string_view upperWord = std::u16string_view(text_).substr(start);
        starts_.push_back(start);
        entries_.push_back({letterSet(upperWord), static_cast<std::uint32_t>(word.size()),
                            WortBewertung(values_, upperWord)});
    }
}

} // namespace lettriner
