// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/result_store.h"

#include "data/number_format.h"
#include "engine/word_check.h"

#include <algorithm>
#include <climits>
#include <new>

namespace lettriner {

void ResultStore::reset() {
    entries_.clear();
    entries_.push_back({kStartingEntry, 0});
    full_ = false;
}

void ResultStore::append(std::uint32_t word, std::int16_t value) {
    if (full_)
        return;
    try {
        entries_.push_back({word, value});
    } catch (const std::bad_alloc&) {
        full_ = true; // every later attempt would fail too, one system call each
    }
}

void SchlechteHälfteLöschen(ResultStore& Feld, NumberField& minimumField) {
    std::vector<StoreEntry>& entries = Feld.entries();
    FeldNachWertSortieren(entries);
    const std::int64_t kept = Feld.highestIndex() / 2 + 1;
    entries.resize(static_cast<std::size_t>(kept));
    minimumField.setText(decimalText(entries.back().value));
}

bool finishStore(ResultStore& Feld) {
    std::vector<StoreEntry>& entries = Feld.entries();
    try {
        FeldNachWertSortieren(entries);
    } catch (const std::bad_alloc&) {
        entries = std::vector<StoreEntry>(); // unsorted, its best words would not come first
        return false;
    }
    const auto start = std::find_if(entries.begin(), entries.end(), [](const StoreEntry& entry) {
        return entry.word == kStartingEntry;
    });
    if (start != entries.end())
        entries.erase(start);
    return true;
}

std::vector<std::u16string> storeWords(const ResultStore& Feld, const PreparedWords& words) {
    std::vector<std::u16string> texts;
    texts.reserve(Feld.entries().size());
    for (const StoreEntry& entry : Feld.entries()) {
        if (entry.word == kStartingEntry)
            texts.emplace_back();
        else
            texts.emplace_back(words.upper(entry.word));
    }
    return texts;
}

std::vector<std::int64_t> WortLängenFeld(const std::vector<std::u16string>& Feld) {
    std::vector<std::int64_t> lengths;
    lengths.reserve(Feld.size());
    for (const std::u16string& word : Feld)
        lengths.push_back(static_cast<std::int64_t>(word.size()));
    return lengths;
}

std::vector<std::int64_t> WortWertFeld(const LetterValueTable& values,
                                       const std::vector<std::u16string>& Feld) {
    std::vector<std::int64_t> result;
    result.reserve(Feld.size());
    for (const std::u16string& word : Feld)
        result.push_back(WortBewertung(values, word));
    return result;
}

namespace {

// Column k > 0 of every row, when the counts match.
template <class Cell> void fillColumn(ResultList& list, int column, std::vector<Cell> array) {
    if (list.rowCount() != static_cast<std::int64_t>(array.size()))
        return;
    for (std::int64_t row = 1; row <= list.rowCount(); ++row)
        list.setSubItem(row, column, std::move(array[static_cast<std::size_t>(row - 1)]));
}

} // namespace

void ListeSpalteFüllen(ResultList& list, int column, std::vector<std::u16string> array) {
    if (column < 0)
        return;
    if (column == 0) {
        list.reserveRows(static_cast<std::int64_t>(array.size()));
        for (std::u16string& text : array)
            list.addRow(std::move(text));
        return;
    }
    fillColumn(list, column, std::move(array));
}

void ListeSpalteFüllen(ResultList& list, int column, const std::vector<std::int64_t>& array) {
    if (column < 0)
        return;
    if (column == 0) {
        std::vector<std::u16string> texts;
        texts.reserve(array.size());
        for (const std::int64_t number : array)
            texts.push_back(decimalText(number));
        ListeSpalteFüllen(list, column, std::move(texts));
        return;
    }
    fillColumn(list, column, array);
}

bool publishStore(const ResultStore& Feld, const PreparedWords& words, std::u16string_view rack,
                  ResultList& list) {
    try {
        const std::vector<std::u16string> texts = storeWords(Feld, words);
        ListeSpalteFüllen(list, kWordColumn, texts);
        ListeSpalteFüllen(list, kLengthColumn, WortLängenFeld(texts));
        ListeSpalteFüllen(list, kValueColumn, WortWertFeld(words.values(), texts));
        ListeSpalteFüllen(list, kNeededColumn, ZusBuchstabenFeld(texts, rack));
        ListeSpalteFüllen(list, kLeftOverColumn, ÜbrigeBuchstFeld(texts, rack));
        list.publishFinished();
        return true;
    } catch (const std::bad_alloc&) {
        list.clear(); // half-filled rows would show words without their values
        return false;
    }
}

bool publishStore(const ResultStore& Feld, const PreparedWords& words, const TileTest& test,
                  ResultList& list) {
    try {
        std::vector<ResultRow> rows(Feld.entries().size());
        for (std::size_t i = 0; i < rows.size(); ++i) {
            const StoreEntry& entry = Feld.entries()[i];
            ResultRow& row = rows[i];
            TileLetters letters;
            if (entry.word != kStartingEntry) {
                row.word = words.upper(entry.word);
                (void)test.judge(row.word, INT16_MIN, &letters);
            }
            row.length = static_cast<std::int64_t>(row.word.size());
            row.value = entry.value;
            row.needed = std::move(letters.needed);
            row.leftOver = std::move(letters.leftOver);
            row.blanks = std::move(letters.blanks);
        }
        list.addRows(std::move(rows));
        list.publishFinished();
        return true;
    } catch (const std::bad_alloc&) {
        list.clear(); // half-filled rows would show words without their values
        return false;
    }
}

} // namespace lettriner
