// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/word_lookup.h"

#include "data/text_case.h"
#include "engine/letter_values.h"

#include <unordered_map>

namespace lettriner {
namespace {

std::u16string withSharpSAsSS(std::u16string_view upper) {
    std::u16string text;
    text.reserve(upper.size());
    for (const char16_t c : upper) {
        if (c == u'ß')
            text += u"SS";
        else
            text += c;
    }
    return text;
}

} // namespace

std::vector<LookupResult> lookUpWords(const PreparedWords& words,
                                      const std::vector<std::u16string>& asked) {
    std::vector<LookupResult> results(asked.size());
    // Asked words by their exact and their SS form; a list word matching
    // exactly wins over one that matches only as SS (every exact match
    // writes the same result: the asked word as it is).
    std::unordered_map<std::u16string, std::vector<std::size_t>> exact;
    std::unordered_map<std::u16string, std::vector<std::size_t>> folded;
    for (std::size_t i = 0; i < asked.size(); ++i) {
        results[i].word = toUpper(asked[i]);
        exact[results[i].word].push_back(i);
        folded[withSharpSAsSS(results[i].word)].push_back(i);
    }
    for (std::size_t index = 0; index < words.size(); ++index) {
        const std::u16string upper = words.upper(index);
        if (const auto match = exact.find(upper); match != exact.end()) {
            for (const std::size_t i : match->second)
                results[i] = {true, upper, 0};
        }
        if (const auto match = folded.find(withSharpSAsSS(upper)); match != folded.end()) {
            for (const std::size_t i : match->second) {
                if (!results[i].found)
                    results[i] = {true, upper, 0};
            }
        }
    }
    for (LookupResult& result : results)
        result.value = WortBewertung(words.values(), result.word);
    return results;
}

} // namespace lettriner
