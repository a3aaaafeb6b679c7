// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The word graph the move generator walks: one flat array of 32-bit arcs.
// A node is a run of arcs (its outgoing letters in ascending order, the last
// one flagged); an arc holds its letter, whether the path through it spells
// a whole entry, and the index of the child node's first arc (0: no child).
// Arc 0 points at the root of a DAWG of the words (read left to right),
// arc 1 at the root of a GADDAG: for a word w and each of its letters i,
// the letters w[i], w[i-1] .. w[0], then the separator and w[i+1] .. the end
// (the separator left out when i is the last letter). Both parts come out of
// one minimisation, so the GADDAG's right-hand parts share the DAWG's nodes.
//
// A graph from untrusted bytes must pass validateWordGraph first; after that
// every walk stays inside the array whatever the arcs say (a corrupt but
// valid-looking graph gives wrong words, never a read out of bounds).

#include "board/tiles.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <vector>

namespace lettriner::board {

using Arc = std::uint32_t;

inline constexpr Letter kSeparator = 0;
inline constexpr std::uint32_t kDawgRootArc = 0;
inline constexpr std::uint32_t kGaddagRootArc = 1;
// 24 bits of child index: 16 million arcs, 64 MB.
inline constexpr std::uint32_t kMostArcs = std::uint32_t{1} << 24;

[[nodiscard]] constexpr std::uint32_t arcChild(Arc arc) {
    return arc & 0xFFFFFFu;
}
[[nodiscard]] constexpr bool arcAccepts(Arc arc) {
    return (arc >> 24) & 1u;
}
[[nodiscard]] constexpr bool arcIsLast(Arc arc) {
    return (arc >> 25) & 1u;
}
[[nodiscard]] constexpr Letter arcLetter(Arc arc) {
    return static_cast<Letter>(arc >> 26);
}
[[nodiscard]] constexpr Arc makeArc(Letter letter, bool accepts, bool last, std::uint32_t child) {
    return (Arc{letter} << 26) | (Arc{last} << 25) | (Arc{accepts} << 24) | child;
}

// A word as letter codes (1..29), one byte per letter.
using LetterString = std::basic_string<Letter>;

class WordGraph {
public:
    WordGraph() = default;
    // Take arcs already validated (or built by buildWordGraph). Copies of a
    // graph share its arcs.
    WordGraph(const std::vector<Arc>& arcs, std::uint32_t wordCount);
    WordGraph(std::unique_ptr<Arc[]> arcs, std::uint32_t size, std::uint32_t wordCount)
        : arcs_(std::move(arcs)), size_(size), wordCount_(wordCount) {}

    [[nodiscard]] bool empty() const { return size_ <= 2; }
    [[nodiscard]] std::span<const Arc> arcs() const { return {arcs_.get(), size_}; }
    [[nodiscard]] std::uint32_t wordCount() const { return wordCount_; }
    [[nodiscard]] const Arc* data() const { return arcs_.get(); }
    // First arc of each root node; 0 when the graph is empty.
    [[nodiscard]] std::uint32_t dawgRoot() const { return rootOf(kDawgRootArc); }
    [[nodiscard]] std::uint32_t gaddagRoot() const { return rootOf(kGaddagRootArc); }

    // The arc for `letter` among the node starting at `node`, or 0 when the
    // node (0: none) has no such arc. Returned as an index into arcs().
    [[nodiscard]] std::uint32_t findArc(std::uint32_t node, Letter letter) const {
        if (node == 0)
            return 0;
        for (std::uint32_t i = node;; ++i) {
            const Arc arc = arcs_[i];
            if (arcLetter(arc) == letter)
                return i;
            if (arcIsLast(arc))
                return 0;
        }
    }
    // Whether the DAWG holds the word (letters 1..29).
    [[nodiscard]] bool contains(std::span<const Letter> word) const;

private:
    [[nodiscard]] std::uint32_t rootOf(std::uint32_t arc) const {
        return size_ > 2 ? arcChild(arcs_[arc]) : 0;
    }

    std::shared_ptr<const Arc[]> arcs_;
    std::uint32_t size_ = 0;
    std::uint32_t wordCount_ = 0;
};

// Builds the graph of the words (letter codes); duplicates are kept once and
// words outside 2..15 letters or with codes outside 1..29 are skipped. A list
// too large for kMostArcs gives an empty graph.
[[nodiscard]] WordGraph buildWordGraph(std::vector<LetterString> words);

// Why `arcs` cannot be walked safely, or empty when it can: every child
// index (and root) inside the array, every letter a letter or the separator,
// the last arc flagged last, so every scan of a node ends inside the array.
// Nodes whose letters do not ascend (never built, only forged) are walked
// safely but may miss words.
[[nodiscard]] std::string validateWordGraph(std::span<const Arc> arcs);

} // namespace lettriner::board
