// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Where the board's squares lie in its widget: fifteen squares across and
// down with a band for the row numbers and column letters on every side,
// centred and as large as the widget allows. Square sides and corners fall
// on whole device pixels, so the grid stays crisp at scale factors such as
// 1.5, where a logical pixel is not a whole one.

#include <QPointF>
#include <QRectF>
#include <QSize>
#include <QSizeF>
#include <optional>

namespace lettriner::ui {

// The smallest square side the board is drawn with, in logical pixels.
inline constexpr int kSmallestSquare = 24;

struct BoardSquare {
    int row = 0; // 0-based: row 0 is row 1
    int column = 0;
    friend bool operator==(const BoardSquare&, const BoardSquare&) = default;
};

struct BoardGeometry {
    qreal square = 0; // side of a square, logical pixels
    qreal band = 0;   // depth of the label band outside the squares
    QPointF origin;   // top left corner of square A1

    // The board fitted into `size` (logical pixels) at `ratio` device pixels
    // to a logical one. Too small a size gives squares of at least one device pixel.
    [[nodiscard]] static BoardGeometry fit(QSizeF size, qreal ratio);
    // The smallest widget that still gives squares of kSmallestSquare.
    [[nodiscard]] static QSize minimumSize();

    [[nodiscard]] QRectF squareRect(int row, int column) const;
    // All 15 x 15 squares.
    [[nodiscard]] QRectF gridRect() const;
    // The square under a point, or nothing in the bands and outside.
    [[nodiscard]] std::optional<BoardSquare> squareAt(QPointF point) const;
};

} // namespace lettriner::ui
