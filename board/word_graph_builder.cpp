// SPDX-License-Identifier: GPL-3.0-or-later
// Builds the word graph from sorted strings with incremental minimisation:
// the strings come in ascending order, so once a string leaves the path of
// its predecessor, the nodes below the shared prefix can never change again
// and are frozen at once, merged with an equal node frozen before when there
// is one. Memory stays at the output plus one path, instead of a whole
// unminimised trie (tens of millions of nodes for a GADDAG of long German
// compounds).

#include "board/word_graph.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>

namespace lettriner::board {

namespace {

constexpr std::size_t kLongestWord = kBoardSize;
// A GADDAG string: up to 15 letters and one separator.
constexpr std::size_t kLongestString = kLongestWord + 1;

// A string of up to 16 codes, packed big-endian into two words so that
// comparing the pair compares the strings (codes stored as code + 1, so the
// zero padding sorts a prefix before its extensions).
struct PackedString {
    std::uint64_t high = 0;
    std::uint64_t low = 0;
    friend bool operator==(const PackedString&, const PackedString&) = default;
    friend bool operator<(const PackedString& a, const PackedString& b) {
        return a.high != b.high ? a.high < b.high : a.low < b.low;
    }
};

PackedString pack(const Letter* codes, std::size_t length) {
    PackedString packed;
    for (std::size_t i = 0; i < length; ++i) {
        const std::uint64_t byte = std::uint64_t{codes[i]} + 1;
        if (i < 8)
            packed.high |= byte << (8 * (7 - i));
        else
            packed.low |= byte << (8 * (15 - i));
    }
    return packed;
}

std::size_t unpack(const PackedString& packed, Letter* codes) {
    std::size_t length = 0;
    for (std::size_t i = 0; i < kLongestString; ++i) {
        const std::uint64_t word = i < 8 ? packed.high : packed.low;
        const auto byte = static_cast<unsigned>((word >> (8 * (7 - i % 8))) & 0xFF);
        if (byte == 0)
            break;
        codes[length++] = static_cast<Letter>(byte - 1);
    }
    return length;
}

// The frozen nodes, laid out as they will be stored, and a hash table of
// them so that equal nodes are stored once.
class NodeStore {
public:
    NodeStore() : arcs_(2, 0), table_(1u << 16, 0) {}

    // Freezes a node (its arcs in ascending letter order) and returns where it
    // starts; 0 for a node without arcs. Equal nodes share one place.
    std::uint32_t freeze(const Arc* arcs, std::size_t count) {
        if (count == 0)
            return 0;
        const std::uint64_t hash = hashOf(arcs, count);
        std::size_t slot = hash & (table_.size() - 1);
        while (table_[slot] != 0) {
            const std::uint32_t start = table_[slot];
            if (sameNode(start, arcs, count))
                return start;
            slot = (slot + 1) & (table_.size() - 1);
        }
        if (arcs_.size() + count > kMostArcs) {
            overflow_ = true;
            return 0;
        }
        const auto start = static_cast<std::uint32_t>(arcs_.size());
        arcs_.insert(arcs_.end(), arcs, arcs + count);
        table_[slot] = start;
        if (++stored_ * 2 > table_.size())
            grow();
        return start;
    }

    void setRoot(std::uint32_t rootArc, std::uint32_t start) { arcs_[rootArc] = start; }
    [[nodiscard]] bool overflowed() const { return overflow_; }
    std::vector<Arc> take() { return std::move(arcs_); }

private:
    static std::uint64_t hashOf(const Arc* arcs, std::size_t count) {
        std::uint64_t hash = 0x9E3779B97F4A7C15u;
        for (std::size_t i = 0; i < count; ++i)
            hash = (std::rotl(hash, 23) ^ arcs[i]) * 0xFF51AFD7ED558CCDu;
        return hash ^ (hash >> 31);
    }
    [[nodiscard]] bool sameNode(std::uint32_t start, const Arc* arcs, std::size_t count) const {
        // A stored node ends at its last arc; the new one has exactly `count`.
        for (std::size_t i = 0; i < count; ++i) {
            if (arcs_[start + i] != arcs[i])
                return false;
        }
        return true;
    }
    std::size_t lengthAt(std::uint32_t start) const {
        std::size_t length = 1;
        while (!arcIsLast(arcs_[start + length - 1]))
            ++length;
        return length;
    }
    void grow() {
        std::vector<std::uint32_t> bigger(table_.size() * 2, 0);
        for (const std::uint32_t start : table_) {
            if (start == 0)
                continue;
            std::size_t slot = hashOf(&arcs_[start], lengthAt(start)) & (bigger.size() - 1);
            while (bigger[slot] != 0)
                slot = (slot + 1) & (bigger.size() - 1);
            bigger[slot] = start;
        }
        table_ = std::move(bigger);
    }

    std::vector<Arc> arcs_; // arcs 0 and 1 are the root pointers
    std::vector<std::uint32_t> table_;
    std::size_t stored_ = 0;
    bool overflow_ = false;
};

// One automaton built from ascending strings into a shared NodeStore.
class SortedInserter {
public:
    explicit SortedInserter(NodeStore& store) : store_(store) {}

    void insert(const Letter* codes, std::size_t length) {
        std::size_t shared = 0;
        while (shared < length && shared < depth_ && previous_[shared] == codes[shared])
            ++shared;
        freezeDownTo(shared);
        for (std::size_t i = shared; i < length; ++i) {
            Pending& node = path_[i];
            node.arcs[node.count++] = {codes[i], false, 0};
            path_[i + 1].count = 0;
            previous_[i] = codes[i];
        }
        depth_ = length;
        path_[length - 1].arcs[path_[length - 1].count - 1].accepts = true;
    }

    // Freezes what is left and returns the root node's first arc.
    std::uint32_t finish() {
        freezeDownTo(0);
        return freezeNode(path_[0]);
    }

private:
    struct PendingArc {
        Letter letter;
        bool accepts;
        std::uint32_t child;
    };
    struct Pending {
        std::array<PendingArc, kLetterCount + 1> arcs;
        std::size_t count = 0;
    };

    // Freezes the nodes below depth `keep` on the previous string's path; the
    // arc at depth keep - 1... keeps pointing at the frozen child.
    void freezeDownTo(std::size_t keep) {
        for (std::size_t level = depth_; level > keep; --level) {
            const std::uint32_t child = freezeNode(path_[level]);
            Pending& parent = path_[level - 1];
            parent.arcs[parent.count - 1].child = child;
            path_[level].count = 0;
        }
        depth_ = std::min(depth_, keep);
    }

    std::uint32_t freezeNode(const Pending& node) {
        std::array<Arc, kLetterCount + 1> arcs{};
        for (std::size_t i = 0; i < node.count; ++i) {
            const PendingArc& arc = node.arcs[i];
            arcs[i] = makeArc(arc.letter, arc.accepts, i + 1 == node.count, arc.child);
        }
        return store_.freeze(arcs.data(), node.count);
    }

    NodeStore& store_;
    std::array<Pending, kLongestString + 1> path_{};
    std::array<Letter, kLongestString> previous_{};
    std::size_t depth_ = 0;
};

std::uint32_t nodeLength(const std::vector<Arc>& arcs, std::uint32_t start) {
    std::uint32_t length = 1;
    while (!arcIsLast(arcs[start + length - 1]))
        ++length;
    return length;
}

// Lays the nodes out again, each followed by the child of its last arc when
// no other node claimed that place first: the file then stores most arcs
// without a child index (lexicon_file.h), and a walk down the graph reads
// memory in order.
std::vector<Arc> layOutDepthFirst(const std::vector<Arc>& arcs) {
    std::vector<std::uint32_t> newStart(arcs.size(), 0);
    std::vector<std::uint32_t> order;
    std::vector<std::uint32_t> pending;
    std::uint32_t next = 2;
    for (const std::uint32_t root : {arcs[kDawgRootArc], arcs[kGaddagRootArc]}) {
        pending.push_back(root);
        while (!pending.empty()) {
            std::uint32_t node = pending.back();
            pending.pop_back();
            // Place a chain: the node, the child of its last arc, and so on.
            while (node != 0 && newStart[node] == 0) {
                const std::uint32_t length = nodeLength(arcs, node);
                newStart[node] = next;
                next += length;
                order.push_back(node);
                for (std::uint32_t i = node + length - 1; i-- > node;) {
                    if (arcChild(arcs[i]) != 0 && newStart[arcChild(arcs[i])] == 0)
                        pending.push_back(arcChild(arcs[i]));
                }
                node = arcChild(arcs[node + length - 1]);
            }
        }
    }
    std::vector<Arc> result(next, 0);
    result[kDawgRootArc] = newStart[arcs[kDawgRootArc]];
    result[kGaddagRootArc] = newStart[arcs[kGaddagRootArc]];
    for (const std::uint32_t node : order) {
        const std::uint32_t length = nodeLength(arcs, node);
        for (std::uint32_t k = 0; k < length; ++k) {
            const Arc arc = arcs[node + k];
            const std::uint32_t child = arcChild(arc) == 0 ? 0 : newStart[arcChild(arc)];
            result[newStart[node] + k] = (arc & ~0xFFFFFFu) | child;
        }
    }
    return result;
}

bool playable(const LetterString& word) {
    if (word.size() < 2 || word.size() > kLongestWord)
        return false;
    return std::all_of(word.begin(), word.end(),
                       [](Letter letter) { return letter >= 1 && letter <= kLetterCount; });
}

} // namespace

WordGraph buildWordGraph(std::vector<LetterString> words) {
    std::erase_if(words, [](const LetterString& word) { return !playable(word); });
    std::sort(words.begin(), words.end());
    words.erase(std::unique(words.begin(), words.end()), words.end());

    NodeStore store;
    SortedInserter dawg(store);
    for (const LetterString& word : words)
        dawg.insert(word.data(), word.size());
    store.setRoot(kDawgRootArc, dawg.finish());

    std::size_t total = 0;
    for (const LetterString& word : words)
        total += word.size();
    std::vector<PackedString> strings;
    strings.reserve(total);
    std::array<Letter, kLongestString> codes{};
    for (const LetterString& word : words) {
        const std::size_t n = word.size();
        for (std::size_t i = 0; i < n; ++i) {
            std::size_t length = 0;
            for (std::size_t j = i + 1; j-- > 0;)
                codes[length++] = word[j];
            if (i + 1 < n) {
                codes[length++] = kSeparator;
                for (std::size_t j = i + 1; j < n; ++j)
                    codes[length++] = word[j];
            }
            strings.push_back(pack(codes.data(), length));
        }
    }
    std::sort(strings.begin(), strings.end());
    strings.erase(std::unique(strings.begin(), strings.end()), strings.end());
    SortedInserter gaddag(store);
    for (const PackedString& packed : strings) {
        const std::size_t length = unpack(packed, codes.data());
        gaddag.insert(codes.data(), length);
    }
    store.setRoot(kGaddagRootArc, gaddag.finish());
    if (store.overflowed())
        return {};
    return WordGraph(layOutDepthFirst(store.take()), static_cast<std::uint32_t>(words.size()));
}

} // namespace lettriner::board
