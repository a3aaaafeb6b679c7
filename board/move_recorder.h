// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// What the generator does with each move it finds. "All moves", "best N" and
// "best only" differ only in the recorder: the generator calls record() once
// per legal move, and reads threshold() to skip moves (and whole anchors
// whose score bound falls short) that the recorder would not keep anyway.

#include "board/move.h"

#include <climits>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace lettriner::board {

class MoveRecorder {
public:
    virtual ~MoveRecorder() = default;
    virtual void record(const Move& move) = 0;
    // Moves scoring less are not kept.
    [[nodiscard]] int threshold() const { return threshold_; }
    // Moves whose movePlaceKey() is larger are not kept either: once full,
    // "best N" keeps a move scoring the same as its last one only if it comes
    // earlier on the board.
    [[nodiscard]] std::uint64_t thresholdKey() const { return thresholdKey_; }
    // Whether the threshold rises as moves come in; the generator then visits
    // the placements with the highest score bound first.
    [[nodiscard]] virtual bool raisesThreshold() const { return false; }

protected:
    explicit MoveRecorder(int threshold = INT_MIN) : threshold_(threshold) {}
    MoveRecorder(const MoveRecorder&) = default;
    MoveRecorder& operator=(const MoveRecorder&) = default;
    // The last move that is still kept sets both thresholds.
    void setThreshold(const Move& lastKept) {
        threshold_ = lastKept.score;
        thresholdKey_ = movePlaceKey(lastKept);
    }
    void keepNothing() {
        threshold_ = INT_MAX;
        thresholdKey_ = 0;
    }

private:
    int threshold_;
    std::uint64_t thresholdKey_ = UINT64_MAX;
};

// Keeps every move, in the order found.
class AllMovesRecorder final : public MoveRecorder {
public:
    AllMovesRecorder() { moves_.reserve(1024); }
    void record(const Move& move) override { moves_.push_back(move); }
    [[nodiscard]] const std::vector<Move>& moves() const { return moves_; }
    // The moves in the move order (move.h), leaving the recorder empty.
    [[nodiscard]] std::vector<Move> takeSorted();

private:
    std::vector<Move> moves_;
};

// Keeps the `count` first moves in the move order (count 0 keeps none).
class BestMovesRecorder final : public MoveRecorder {
public:
    explicit BestMovesRecorder(std::size_t count);
    void record(const Move& move) override;
    [[nodiscard]] bool raisesThreshold() const override { return true; }
    // The kept moves in the move order, leaving the recorder empty.
    [[nodiscard]] std::vector<Move> takeSorted();

private:
    std::size_t count_;
    std::vector<Move> heap_; // the last kept move in the move order on top
};

// Counts moves and keeps none (benchmarks, tests of counts).
class CountingRecorder final : public MoveRecorder {
public:
    void record(const Move&) override { ++count_; }
    [[nodiscard]] std::size_t count() const { return count_; }

private:
    std::size_t count_ = 0;
};

} // namespace lettriner::board
