// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The result stores of a search: the bounded main store, pruned to its better
// half whenever it outgrows the field size, and the unbounded bonus store.

#include "engine/number_field.h"
#include "engine/prepared_words.h"
#include "engine/result_list.h"
#include "engine/tile_test.h"
#include "engine/value_sort.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace lettriner {

// Marks the starting entry: no word, value 0.
inline constexpr std::uint32_t kStartingEntry = 0xFFFFFFFFu;

class ResultStore {
public:
    ResultStore() { reset(); }

    // The starting entry alone.
    void reset();
    // Once memory runs out, the store keeps what it holds and takes no more:
    // a hostile list can make every word a bonus word.
    void append(std::uint32_t word, std::int16_t value);
    // Number of entries less one, the starting entry included while it is there.
    [[nodiscard]] std::int64_t highestIndex() const {
        return static_cast<std::int64_t>(entries_.size()) - 1;
    }
    // True once an append found no memory: the store lacks words it should hold.
    [[nodiscard]] bool full() const { return full_; }
    [[nodiscard]] std::vector<StoreEntry>& entries() { return entries_; }
    [[nodiscard]] const std::vector<StoreEntry>& entries() const { return entries_; }

private:
    std::vector<StoreEntry> entries_;
    bool full_ = false;
};

// Sorts the store best first, keeps entries 0 to h div 2 and writes the value
// of the last kept entry into the minimum-value field (whose value follows).
void SchlechteHälfteLöschen(ResultStore& Feld, NumberField& minimumField);

// Sorts best first and removes the starting entry wherever it landed; empties
// the store (and returns false) when memory for the sort runs out.
bool finishStore(ResultStore& Feld);

// The store's words (upper-cased, as tested), entry by entry.
[[nodiscard]] std::vector<std::u16string> storeWords(const ResultStore& Feld,
                                                     const PreparedWords& words);

[[nodiscard]] std::vector<std::int64_t> WortLängenFeld(const std::vector<std::u16string>& Feld);
[[nodiscard]] std::vector<std::int64_t> WortWertFeld(const LetterValueTable& values,
                                                     const std::vector<std::u16string>& Feld);

// Column 0 adds one row per entry (numbers as decimal text); column k > 0
// fills cell k of every row, but only when the list has exactly as many rows
// as the array has entries. A negative column changes nothing.
void ListeSpalteFüllen(ResultList& list, int column, std::vector<std::u16string> array);
void ListeSpalteFüllen(ResultList& list, int column, const std::vector<std::int64_t>& array);

// Fills the five columns in order: word, length, value, needed letters and
// left-over letters, the last two against `rack` (upper-cased, spaces kept).
// When memory runs out on the way, the list is left empty and false comes back.
bool publishStore(const ResultStore& Feld, const PreparedWords& words, std::u16string_view rack,
                  ResultList& list);

// The rows of a search with blanks or a pattern, added whole: the values as
// stored (after the blanks), the letter columns as `test` gives them, and a
// sixth column with the letters the blanks stand for.
bool publishStore(const ResultStore& Feld, const PreparedWords& words, const TileTest& test,
                  ResultList& list);

} // namespace lettriner
