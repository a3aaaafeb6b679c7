// SPDX-License-Identifier: GPL-3.0-or-later
#include "board/anagrams.h"

namespace lettriner::board {

namespace {

class AnagramWalk {
public:
    AnagramWalk(const WordGraph& graph, const std::array<std::uint8_t, kLetterCount + 1>& counts,
                int blanks, std::vector<LetterString>& words)
        : arcs_(graph.data()), counts_(counts), blanks_(blanks), words_(words) {
        for (Letter letter = 1; letter <= kLetterCount; ++letter)
            length_ += counts[letter];
        length_ += blanks;
    }

    void run(std::uint32_t root) {
        if (length_ > 0 && length_ <= kBoardSize)
            visit(root);
    }

private:
    // A letter the word needs comes from its count while any is left, else
    // from a blank: both give the same letters, so each word comes once.
    void visit(std::uint32_t node) {
        if (node == 0)
            return;
        for (std::uint32_t i = node;; ++i) {
            const Arc arc = arcs_[i];
            const Letter letter = arcLetter(arc);
            const bool real = counts_[letter] != 0;
            if (letter != kSeparator && (real || blanks_ != 0)) {
                if (real)
                    --counts_[letter];
                else
                    --blanks_;
                word_.push_back(letter);
                if (word_.size() == length_) {
                    if (arcAccepts(arc))
                        words_.push_back(word_);
                } else {
                    visit(arcChild(arc));
                }
                word_.pop_back();
                if (real)
                    ++counts_[letter];
                else
                    ++blanks_;
            }
            if (arcIsLast(arc))
                break;
        }
    }

    const Arc* arcs_;
    std::array<std::uint8_t, kLetterCount + 1> counts_;
    int blanks_;
    std::size_t length_ = 0;
    LetterString word_;
    std::vector<LetterString>& words_;
};

} // namespace

std::vector<LetterString> wordsOfLetters(const WordGraph& graph,
                                         const std::array<std::uint8_t, kLetterCount + 1>& counts,
                                         int blanks) {
    std::vector<LetterString> words;
    if (!graph.empty())
        AnagramWalk(graph, counts, blanks, words).run(graph.dawgRoot());
    return words;
}

} // namespace lettriner::board
