// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/board/board_geometry.h"

#include "board/tiles.h"

#include <algorithm>
#include <cmath>

namespace lettriner::ui {
namespace {

using lettriner::board::kBoardSize;

// The label band is this much of a square deep: room for "15" beside row 15.
constexpr double kBandPerSquare = 0.7;

int bandFor(int square) {
    return static_cast<int>(std::lround(kBandPerSquare * square));
}

int extentFor(int square) {
    return kBoardSize * square + 2 * bandFor(square);
}

} // namespace

BoardGeometry BoardGeometry::fit(QSizeF size, qreal ratio) {
    // Everything is worked out in device pixels and only then divided back,
    // so every edge lands on a whole device pixel.
    const double available = std::max(0.0, std::min(size.width(), size.height()) * ratio);
    int square = std::max(1, static_cast<int>(available / (kBoardSize + 2 * kBandPerSquare)));
    while (square > 1 && extentFor(square) > available)
        --square;
    const int band = bandFor(square);
    const int extent = extentFor(square);
    const auto left = static_cast<int>(std::max(0.0, (size.width() * ratio - extent) / 2));
    const auto top = static_cast<int>(std::max(0.0, (size.height() * ratio - extent) / 2));
    BoardGeometry geometry;
    geometry.square = square / ratio;
    geometry.band = band / ratio;
    geometry.origin = QPointF((left + band) / ratio, (top + band) / ratio);
    return geometry;
}

QSize BoardGeometry::minimumSize() {
    const int extent = extentFor(kSmallestSquare);
    return {extent, extent};
}

QRectF BoardGeometry::squareRect(int row, int column) const {
    return {origin.x() + column * square, origin.y() + row * square, square, square};
}

QRectF BoardGeometry::gridRect() const {
    return {origin, QSizeF(kBoardSize * square, kBoardSize * square)};
}

std::optional<BoardSquare> BoardGeometry::squareAt(QPointF point) const {
    if (square <= 0 || !gridRect().contains(point))
        return std::nullopt;
    // A square's own top left corner, worked out through a fractional scale,
    // may come out a hair short of it: it still counts as that square.
    constexpr double kHair = 1e-6;
    const auto index = [this](qreal offset) {
        return std::clamp(static_cast<int>(std::floor(offset / square + kHair)), 0, kBoardSize - 1);
    };
    return BoardSquare{index(point.y() - origin.y()), index(point.x() - origin.x())};
}

} // namespace lettriner::ui
