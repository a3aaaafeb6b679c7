#include "data/word_database.h"

#include "data/file_helpers.h"
#include "data/number_format.h"
#include "data/text_lines.h"

namespace lettriner {

WordDatabase::WordDatabase(std::u16string text) : text_(std::move(text)) {
    if (text_.empty())
        return;
    starts_.push_back(0);
    for (std::size_t hit = text_.find(kCrLf); hit != std::u16string::npos;
         hit = text_.find(kCrLf, hit + 2))
        starts_.push_back(hit + 2);
    starts_.push_back(text_.size() + 2);
}

WordDatabase DatenbankEinlesen(const std::filesystem::path& Pfad,
                               const std::function<void()>& yield) {
    std::u16string text = DateiLesen(Pfad);
    if (yield)
        yield();
    return WordDatabase(std::move(text));
}

std::u16string databaseCountText(std::int64_t highestIndex, char16_t groupSeparator) {
    return u"gesamte Datenbank: \r\n" + formatGrouped(highestIndex, groupSeparator) + u" Einträge";
}

} // namespace lettriner
