// SPDX-License-Identifier: GPL-3.0-or-later
#include "board/move_recorder.h"

#include <algorithm>

namespace lettriner::board {

std::vector<Move> AllMovesRecorder::takeSorted() {
    std::sort(moves_.begin(), moves_.end(), movePrecedes);
    return std::move(moves_);
}

BestMovesRecorder::BestMovesRecorder(std::size_t count) : count_(count) {
    if (count == 0)
        keepNothing();
    heap_.reserve(count < 1024 ? count : 1024);
}

void BestMovesRecorder::record(const Move& move) {
    if (count_ == 0)
        return;
    if (heap_.size() < count_) {
        heap_.push_back(move);
        std::push_heap(heap_.begin(), heap_.end(), movePrecedes);
    } else if (movePrecedes(move, heap_.front())) {
        std::pop_heap(heap_.begin(), heap_.end(), movePrecedes);
        heap_.back() = move;
        std::push_heap(heap_.begin(), heap_.end(), movePrecedes);
    } else {
        return;
    }
    if (heap_.size() == count_)
        setThreshold(heap_.front());
}

std::vector<Move> BestMovesRecorder::takeSorted() {
    std::sort_heap(heap_.begin(), heap_.end(), movePrecedes);
    return std::move(heap_);
}

} // namespace lettriner::board
