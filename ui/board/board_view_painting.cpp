// SPDX-License-Identifier: GPL-3.0-or-later
// The board as drawn: a green frame carrying the column letters and row
// numbers, the squares in the premium colours players know (red 3W, pink 2W,
// dark blue 3B, light blue 2B, a star on H8), ivory tiles with letter and
// points, blanks paler with a blue letter and no points, the previewed
// move's tiles in amber, unknown board words outlined in red, the cursor in
// blue with an arrow for the writing direction. Lines are whole device
// pixels wide and lie on whole device pixels (board_geometry.h).

#include "board/premium_layout.h"
#include "ui/board/board_texts.h"
#include "ui/board/board_view.h"

#include <QPainter>
#include <QPainterPath>
#include <cmath>

namespace lettriner::ui {

namespace b = lettriner::board;

namespace {

const QColor kFrame(0x2F, 0x5D, 0x50);
const QColor kFrameText(0xE6, 0xEF, 0xE6);
const QColor kPlain(0xD8, 0xE5, 0xD1);
const QColor kTripleWord(0xCC, 0x3B, 0x33);
const QColor kDoubleWord(0xF2, 0xA9, 0xA2);
const QColor kTripleLetter(0x2C, 0x6C, 0xB4);
const QColor kDoubleLetter(0xAC, 0xD2, 0xEE);
const QColor kTile(0xF4, 0xE0, 0xA9);
const QColor kTileEdge(0xB8, 0x9A, 0x55);
const QColor kTileText(0x2A, 0x21, 0x18);
const QColor kBlankTile(0xFC, 0xF8, 0xEC);
const QColor kBlankText(0x2F, 0x64, 0x9C);
const QColor kPreviewTile(0xFF, 0xC4, 0x3D);
const QColor kPreviewEdge(0xD9, 0x6A, 0x00);
const QColor kUnknownWord(0xD0, 0x10, 0x20);
const QColor kCursor(0x15, 0x58, 0xC0);
const QColor kCursorIdle(0x6B, 0x7B, 0x8C);

QColor premiumColour(b::Premium premium) {
    if (premium.word == 3)
        return kTripleWord;
    if (premium.word == 2)
        return kDoubleWord;
    if (premium.letter == 3)
        return kTripleLetter;
    if (premium.letter == 2)
        return kDoubleLetter;
    return kPlain;
}

bool darkPremium(b::Premium premium) {
    return premium.word == 3 || premium.letter == 3;
}

QFont pixelFont(qreal pixels, int weight) {
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setStyleHint(QFont::SansSerif);
    font.setPixelSize(std::max(1, static_cast<int>(std::lround(pixels))));
    font.setWeight(static_cast<QFont::Weight>(weight));
    return font;
}

// One device pixel, or more on large squares, in logical pixels.
qreal lineWidth(const BoardGeometry& geometry, qreal ratio) {
    const double devicePixels = std::max(1.0, std::floor(geometry.square * ratio / 24.0));
    return devicePixels / ratio;
}

QPainterPath star(QPointF centre, qreal outer) {
    QPainterPath path;
    const qreal inner = outer * 0.42;
    for (int point = 0; point < 10; ++point) {
        const double angle = -M_PI / 2 + point * M_PI / 5;
        const qreal radius = point % 2 == 0 ? outer : inner;
        const QPointF corner = centre + QPointF(radius * std::cos(angle), radius * std::sin(angle));
        if (point == 0)
            path.moveTo(corner);
        else
            path.lineTo(corner);
    }
    path.closeSubpath();
    return path;
}

} // namespace

void BoardView::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Window));
    const BoardGeometry geometry = geometryNow();
    const qreal line = lineWidth(geometry, devicePixelRatioF());
    const QRectF grid = geometry.gridRect();
    const QRectF frame =
        grid.adjusted(-geometry.band, -geometry.band, geometry.band + line, geometry.band + line);
    painter.fillRect(frame, kFrame);
    paintLabels(painter, geometry);
    for (int row = 0; row < b::kBoardSize; ++row)
        for (int column = 0; column < b::kBoardSize; ++column)
            paintSquare(painter, geometry, row, column);
    paintUnknownWords(painter, geometry);
    paintCursor(painter, geometry);
    if (hasFocus()) {
        // The keyboard focus: a frame round the whole board in the highlight colour.
        const qreal width = 2 * line;
        painter.setPen(QPen(palette().color(QPalette::Highlight), width));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(frame.adjusted(width / 2, width / 2, -width / 2, -width / 2));
    }
}

void BoardView::paintLabels(QPainter& painter, const BoardGeometry& geometry) const {
    painter.setPen(kFrameText);
    painter.setFont(pixelFont(std::min(geometry.band * 0.62, geometry.square * 0.45), 600));
    const QRectF grid = geometry.gridRect();
    for (int i = 0; i < b::kBoardSize; ++i) {
        const QString letter(QChar(u'A' + i));
        const QString number = QString::number(i + 1);
        const qreal along = i * geometry.square;
        const QSizeF across(geometry.square, geometry.band);
        const QSizeF down(geometry.band, geometry.square);
        painter.drawText(QRectF(QPointF(grid.left() + along, grid.top() - geometry.band), across),
                         Qt::AlignCenter, letter);
        painter.drawText(QRectF(QPointF(grid.left() + along, grid.bottom()), across),
                         Qt::AlignCenter, letter);
        painter.drawText(QRectF(QPointF(grid.left() - geometry.band, grid.top() + along), down),
                         Qt::AlignCenter, number);
        painter.drawText(QRectF(QPointF(grid.right(), grid.top() + along), down), Qt::AlignCenter,
                         number);
    }
}

void BoardView::paintSquare(QPainter& painter, const BoardGeometry& geometry, int row,
                            int column) const {
    const qreal line = lineWidth(geometry, devicePixelRatioF());
    const QRectF cell = geometry.squareRect(row, column).adjusted(line, line, 0, 0);
    const b::Premium premium = b::premiumAt(row, column);
    painter.fillRect(cell, premiumColour(premium));

    b::Tile tile = board_.at(row, column);
    bool previewed = false;
    if (tile == b::kEmpty && preview_) {
        for (int i = 0; i < preview_->length; ++i) {
            if (preview_->isLaid(i) && preview_->rowOf(i) == row &&
                preview_->columnOf(i) == column) {
                tile = preview_->word[static_cast<std::size_t>(i)];
                previewed = true;
            }
        }
    }
    if (tile != b::kEmpty) {
        paintTile(painter, cell, tile, previewed);
        return;
    }
    if (row == b::kCentre && column == b::kCentre) {
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(kTileText);
        painter.drawPath(star(cell.center(), cell.width() * 0.36));
        painter.restore();
        return;
    }
    const QString label = premiumLabel(premium);
    if (!label.isEmpty()) {
        painter.setPen(darkPremium(premium) ? QColor(Qt::white) : kTileText);
        painter.setFont(pixelFont(cell.height() * 0.36, 700));
        painter.drawText(cell, Qt::AlignCenter, label);
    }
}

void BoardView::paintTile(QPainter& painter, const QRectF& rect, b::Tile tile,
                          bool previewed) const {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const qreal inset = rect.width() * 0.05;
    const QRectF face = rect.adjusted(inset, inset, -inset, -inset);
    const qreal radius = rect.width() * 0.12;
    const bool blank = b::isBlank(tile);
    QColor fill = blank ? kBlankTile : kTile;
    if (previewed)
        fill = kPreviewTile;
    painter.setBrush(fill);
    painter.setPen(QPen(previewed ? kPreviewEdge : kTileEdge,
                        previewed ? std::max(2.0, rect.width() * 0.08) : 1.0));
    painter.drawRoundedRect(face, radius, radius);

    const QString letter = fromUtf8(b::letterUtf8(b::letterOf(tile)));
    painter.setPen(blank ? kBlankText : kTileText);
    if (blank) {
        // A blank shows its letter only, a little smaller and in blue.
        painter.setFont(pixelFont(face.height() * 0.52, 600));
        painter.drawText(face, Qt::AlignCenter, letter);
    } else {
        painter.setFont(pixelFont(face.height() * 0.6, 700));
        painter.drawText(face.adjusted(0, 0, -face.width() * 0.12, 0), Qt::AlignCenter, letter);
        painter.setFont(pixelFont(face.height() * 0.27, 600));
        const QRectF corner = face.adjusted(face.width() * 0.5, face.height() * 0.55,
                                            -face.width() * 0.08, -face.height() * 0.04);
        painter.drawText(corner, Qt::AlignRight | Qt::AlignBottom,
                         QString::number(values_.tile(tile)));
    }
    painter.restore();
}

void BoardView::paintUnknownWords(QPainter& painter, const BoardGeometry& geometry) const {
    if (unknownWords_.empty())
        return;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(kUnknownWord, std::max(2.0, geometry.square * 0.09)));
    painter.setBrush(Qt::NoBrush);
    for (const b::BoardWord& word : unknownWords_) {
        const int last = static_cast<int>(word.tiles.size()) - 1;
        const bool across = word.direction == b::Direction::Across;
        const QRectF first = geometry.squareRect(word.row, word.column);
        const QRectF end =
            geometry.squareRect(word.row + (across ? 0 : last), word.column + (across ? last : 0));
        const qreal inset = geometry.square * 0.06;
        const QRectF outline = first.united(end).adjusted(inset, inset, -inset, -inset);
        painter.drawRoundedRect(outline, geometry.square * 0.2, geometry.square * 0.2);
    }
    painter.restore();
}

void BoardView::paintCursor(QPainter& painter, const BoardGeometry& geometry) const {
    const QRectF cell = geometry.squareRect(cursor_.row, cursor_.column);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor colour = hasFocus() ? kCursor : kCursorIdle;
    const qreal width = std::max(2.0, geometry.square * 0.1);
    painter.setPen(QPen(colour, width));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(cell.adjusted(width / 2, width / 2, -width / 2, -width / 2));

    // The writing direction: a small arrow head at the edge it points to.
    const qreal size = geometry.square * 0.22;
    QPainterPath arrow;
    if (direction_ == b::Direction::Across) {
        const QPointF tip(cell.right() - width, cell.center().y());
        arrow.moveTo(tip);
        arrow.lineTo(tip + QPointF(-size, -size * 0.8));
        arrow.lineTo(tip + QPointF(-size, size * 0.8));
    } else {
        const QPointF tip(cell.center().x(), cell.bottom() - width);
        arrow.moveTo(tip);
        arrow.lineTo(tip + QPointF(-size * 0.8, -size));
        arrow.lineTo(tip + QPointF(size * 0.8, -size));
    }
    arrow.closeSubpath();
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    painter.drawPath(arrow);
    if (blankArmed_ && board_.at(cursor_.row, cursor_.column) == b::kEmpty) {
        painter.setPen(kBlankText);
        painter.setFont(pixelFont(geometry.square * 0.5, 600));
        painter.drawText(cell, Qt::AlignCenter, QStringLiteral("?"));
    }
    painter.restore();
}

} // namespace lettriner::ui
