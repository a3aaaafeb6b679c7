#include "data/word_database.h"

#include "data/file_helpers.h"
#include "data/number_format.h"
#include "data/text_lines.h"

namespace lettriner {

WordDatabase::WordDatabase(std::u16string text) : text_(std::move(text)) {
    if (text_.empty())
        return;
    starts_.push_back(0);
    // A plain scan: the generic find() of a 16-bit string looks at one character at a time anyway.
    const std::size_t end = text_.size() - 1;
    for (std::size_t i = 0; i < end; ++i) {
        if (text_[i] == u'\r' && text_[i + 1] == u'\n') {
            starts_.push_back(i + 2);
            ++i;
        }
    }
    starts_.push_back(text_.size() + 2);
}

WordDatabase DatenbankEinlesen(const std::filesystem::path& Pfad,
                               const std::function<void()>& yield) {
    std::u16string text = DateiLesen(Pfad, kLargestWordList);
    if (yield)
        yield();
    return WordDatabase(std::move(text));
}

std::u16string databaseCountText(std::int64_t highestIndex, char16_t groupSeparator) {
    return u"gesamte Datenbank: \r\n" + formatGrouped(highestIndex, groupSeparator) + u" Einträge";
}

} // namespace lettriner
