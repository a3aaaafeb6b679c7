// SPDX-License-Identifier: GPL-3.0-or-later
// The move generator against its slow twin on positions made from the bytes,
// over a small word list: either tiles put anywhere (odd positions too:
// words not in the list, tiles apart from the centre) or moves played from
// the generator's own lists. All moves must equal the twin's, best N must
// be their first N, and the filters must keep exactly the moves that pass.

#include "board/move_generator.h"
#include "board/move_text.h"
#include "board/position_text.h"
#include "board_test_support.h"
#include "fuzz_input.h"
#include "reference_generator.h"

namespace {

using namespace lettriner;
using namespace lettriner::board;

struct SmallList {
    std::vector<LetterString> words = testing::smallLexicon(11);
    Lexicon lexicon = buildLexicon(words);
    Lexicon graphOnly{lexicon.graph, {}};
    testing::ReferenceLexicon reference{words};
    TileValues values = testing::germanValues();
};

const SmallList& smallList() {
    static const SmallList list;
    return list;
}

// Takes bytes one at a time; zeros once they run out.
class ByteSource {
public:
    ByteSource(const std::uint8_t* data, std::size_t size) : data_(data), size_(size) {}
    unsigned next() { return at_ < size_ ? data_[at_++] : 0; }
    [[nodiscard]] bool done() const { return at_ >= size_; }

private:
    const std::uint8_t* data_;
    std::size_t size_;
    std::size_t at_ = 0;
};

Rack rackFrom(ByteSource& bytes) {
    // The small list's letters and the blank, so that the rack makes words.
    static const LetterString letters = testing::lettersOf("EEEEENNNRRSSTTAAIIDLUOHÄÖÜ");
    Rack rack;
    const unsigned size = 1 + bytes.next() % kRackSize;
    for (unsigned i = 0; i < size; ++i) {
        const unsigned pick = bytes.next() % (letters.size() + 2);
        rack.add(pick < letters.size() ? letters[pick] : kRackBlank);
    }
    return rack;
}

void compare(const Board& board, const Rack& rack, ByteSource& bytes) {
    const SmallList& list = smallList();
    const std::vector<Move> fast = allMoves(board, rack, list.lexicon, list.values);
    if (fast != testing::referenceMoves(board, rack, list.reference, list.values))
        fuzz::fail("the generator's moves differ from the twin's");
    const std::size_t count = 1 + bytes.next() % 16;
    const std::vector<Move> first(fast.begin(), fast.begin() + std::min(count, fast.size()));
    if (bestMoves(board, rack, list.lexicon, list.values, count) != first ||
        bestMoves(board, rack, list.graphOnly, list.values, count) != first)
        fuzz::fail("best N are not the first N of all moves");
    MoveFilter filter;
    filter.mandatory =
        bytes.next() % 3 == 0 ? maskOf(static_cast<Letter>(1 + bytes.next() % 29)) : 0;
    filter.forbidden =
        bytes.next() % 3 == 0 ? maskOf(static_cast<Letter>(1 + bytes.next() % 29)) : 0;
    filter.minimumScore = bytes.next() % 2 == 0 ? static_cast<int>(bytes.next() % 40) : INT_MIN;
    const std::vector<Move> kept = testing::keptByFilter(fast, filter);
    if (allMoves(board, rack, list.lexicon, list.values, filter) != kept)
        fuzz::fail("the filtered moves differ from the moves that pass the filter");
    const std::vector<Move> keptFirst(kept.begin(), kept.begin() + std::min(count, kept.size()));
    if (bestMoves(board, rack, list.lexicon, list.values, count, filter) != keptFirst)
        fuzz::fail("filtered best N are not the first N that pass");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    ByteSource bytes(data, size);
    Board board;
    if (bytes.next() % 2 == 0) {
        // Tiles anywhere: square, letter, blank or not.
        const unsigned tiles = bytes.next() % 40;
        for (unsigned i = 0; i < tiles; ++i) {
            const unsigned square = bytes.next() % (kBoardSize * kBoardSize);
            const unsigned letter = 1 + bytes.next() % kLetterCount;
            const Tile tile = static_cast<Tile>(letter | (bytes.next() % 8 == 0 ? kBlankBit : 0));
            board.set(static_cast<int>(square / kBoardSize), static_cast<int>(square % kBoardSize),
                      tile);
        }
    } else {
        // A game: racks from the bytes, each turn one of the moves listed.
        const unsigned turns = bytes.next() % 12;
        for (unsigned turn = 0; turn < turns && !bytes.done(); ++turn) {
            const Rack rack = rackFrom(bytes);
            const std::vector<Move> moves =
                allMoves(board, rack, smallList().lexicon, smallList().values);
            if (moves.empty())
                continue;
            const unsigned pick = bytes.next() | (bytes.next() << 8);
            applyMove(board, moves[pick % moves.size()]);
        }
    }
    const Rack rack = rackFrom(bytes);
    compare(board, rack, bytes);
    return 0;
}
