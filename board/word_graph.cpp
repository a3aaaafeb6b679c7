// SPDX-License-Identifier: GPL-3.0-or-later
#include "board/word_graph.h"

#include <algorithm>

namespace lettriner::board {

WordGraph::WordGraph(const std::vector<Arc>& arcs, std::uint32_t wordCount)
    : size_(static_cast<std::uint32_t>(arcs.size())), wordCount_(wordCount) {
    std::unique_ptr<Arc[]> copy(new Arc[arcs.size()]);
    std::copy(arcs.begin(), arcs.end(), copy.get());
    arcs_ = std::move(copy);
}

bool WordGraph::contains(std::span<const Letter> word) const {
    if (word.empty())
        return false;
    std::uint32_t node = dawgRoot();
    for (std::size_t i = 0; i < word.size(); ++i) {
        const std::uint32_t arc = findArc(node, word[i]);
        if (arc == 0)
            return false;
        if (i + 1 == word.size())
            return arcAccepts(arcs_[arc]);
        node = arcChild(arcs_[arc]);
    }
    return false;
}

std::string validateWordGraph(std::span<const Arc> arcs) {
    if (arcs.size() < 2)
        return "the word graph has no roots";
    if (arcs.size() > kMostArcs)
        return "the word graph is larger than any word list gives";
    const std::size_t size = arcs.size();
    for (std::size_t root = 0; root < 2; ++root) {
        if (arcs[root] >= size)
            return "a root of the word graph points outside it";
    }
    if (size > 2 && !arcIsLast(arcs[size - 1]))
        return "the word graph's last node does not end";
    for (std::size_t i = 2; i < size; ++i) {
        const Arc arc = arcs[i];
        if (arcLetter(arc) > kLetterCount)
            return "the word graph holds a letter outside the alphabet";
        const std::uint32_t child = arcChild(arc);
        if (child >= size)
            return "an arc of the word graph points outside it";
    }
    return {};
}

} // namespace lettriner::board
