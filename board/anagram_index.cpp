// SPDX-License-Identifier: GPL-3.0-or-later
#include "board/anagram_index.h"

#include <algorithm>
#include <array>
#include <bit>

namespace lettriner::board {

namespace {

std::size_t slotOf(PackedLetters key, std::size_t slotCount) {
    return static_cast<std::size_t>((key * 0x9E3779B97F4A7C15u) >> 40) & (slotCount - 1);
}

Letter letterAt(PackedLetters packed, int index) {
    return static_cast<Letter>((packed >> (8 * index)) & 0xFF);
}

} // namespace

PackedLetters packLetters(std::span<const Letter> letters) {
    PackedLetters packed = 0;
    for (std::size_t i = 0; i < letters.size() && i < 8; ++i)
        packed |= PackedLetters{letters[i]} << (8 * i);
    return packed;
}

PackedLetters sortedKey(PackedLetters word) {
    std::array<Letter, 8> letters{};
    int count = 0;
    for (int i = 0; i < 8; ++i) {
        const Letter letter = letterAt(word, i);
        if (letter == 0)
            continue;
        int at = count++;
        for (; at > 0 && letters[static_cast<std::size_t>(at - 1)] > letter; --at)
            letters[static_cast<std::size_t>(at)] = letters[static_cast<std::size_t>(at - 1)];
        letters[static_cast<std::size_t>(at)] = letter;
    }
    return packLetters(std::span<const Letter>(letters.data(), static_cast<std::size_t>(count)));
}

AnagramIndex::AnagramIndex(std::vector<PackedLetters> words, std::vector<std::uint32_t> slots)
    : arrays_(std::make_shared<const Arrays>(Arrays{std::move(words), std::move(slots)})) {}

std::span<const PackedLetters> AnagramIndex::wordsOf(PackedLetters key) const {
    const std::span<const PackedLetters> all = words();
    const std::span<const std::uint32_t> slots = table();
    if (slots.empty())
        return {};
    std::size_t slot = slotOf(key, slots.size());
    for (std::size_t probe = 0; probe < slots.size(); ++probe) {
        const std::uint32_t entry = slots[slot];
        if (entry == 0)
            return {};
        const std::size_t first = entry - 1;
        if (sortedKey(all[first]) == key) {
            std::size_t last = first + 1;
            while (last < all.size() && sortedKey(all[last]) == key)
                ++last;
            return all.subspan(first, last - first);
        }
        slot = (slot + 1) & (slots.size() - 1);
    }
    return {};
}

std::string AnagramIndex::validate(std::span<const PackedLetters> words,
                                   std::span<const std::uint32_t> slots) {
    for (const PackedLetters word : words) {
        for (int i = 0; i < 8; ++i) {
            if (letterAt(word, i) > kLetterCount)
                return "the anagram index holds a letter outside the alphabet";
        }
    }
    if (slots.empty())
        return words.empty() ? "" : "the anagram index has words but no table";
    if (!std::has_single_bit(slots.size()))
        return "the anagram index's table has a size that is not a power of two";
    bool emptySlot = false;
    for (const std::uint32_t entry : slots) {
        if (entry > words.size())
            return "the anagram index's table points past its words";
        emptySlot = emptySlot || entry == 0;
    }
    if (!emptySlot)
        return "the anagram index's table is full";
    return {};
}

AnagramIndex buildAnagramIndex(const std::vector<LetterString>& words) {
    std::vector<std::pair<PackedLetters, PackedLetters>> keyed; // key, word
    for (const LetterString& word : words) {
        if (word.size() < AnagramIndex::kShortest || word.size() > AnagramIndex::kLongest)
            continue;
        if (!std::all_of(word.begin(), word.end(),
                         [](Letter letter) { return letter >= 1 && letter <= kLetterCount; }))
            continue;
        const PackedLetters packed = packLetters(word);
        keyed.emplace_back(sortedKey(packed), packed);
    }
    std::sort(keyed.begin(), keyed.end());
    keyed.erase(std::unique(keyed.begin(), keyed.end()), keyed.end());
    std::vector<PackedLetters> sorted;
    sorted.reserve(keyed.size());
    std::size_t groups = 0;
    for (std::size_t i = 0; i < keyed.size(); ++i) {
        sorted.push_back(keyed[i].second);
        groups += i == 0 || keyed[i].first != keyed[i - 1].first;
    }
    if (sorted.empty())
        return {};
    // At most half full: short probes, and always an empty slot.
    const std::size_t slotCount = std::bit_ceil(2 * groups + 1);
    std::vector<std::uint32_t> slots(slotCount, 0);
    for (std::size_t i = 0; i < keyed.size(); ++i) {
        if (i > 0 && keyed[i].first == keyed[i - 1].first)
            continue;
        std::size_t slot = slotOf(keyed[i].first, slotCount);
        while (slots[slot] != 0)
            slot = (slot + 1) & (slotCount - 1);
        slots[slot] = static_cast<std::uint32_t>(i + 1);
    }
    return AnagramIndex(std::move(sorted), std::move(slots));
}

} // namespace lettriner::board
