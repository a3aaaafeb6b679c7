// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The board on screen: the squares with their premiums, the tiles, a cursor
// square the player types at, the move previewed from the move list, and
// the board words the word list lacks, outlined. The player edits it with
// the mouse and the keyboard; every change of a tile emits edited().
//
// Its code, a file per job:
//   board_view.cpp           state, cursor, mouse, context menu, tooltips, speech
//   board_view_keys.cpp      typing tiles, moving the cursor, copy and paste keys
//   board_view_painting.cpp  drawing the board

#include "board/board.h"
#include "board/move.h"
#include "board/position_checks.h"
#include "board/premium_layout.h"
#include "board/tile_values.h"
#include "ui/board/board_geometry.h"

#include <QWidget>
#include <optional>
#include <vector>

class QPainter;

namespace lettriner::ui {

class BoardView final : public QWidget {
    Q_OBJECT

public:
    explicit BoardView(QWidget* parent = nullptr);

    [[nodiscard]] const board::Board& board() const { return board_; }
    // Replaces every tile; the cursor stays. Emits nothing: the caller knows.
    void setBoard(const board::Board& board);
    // The points drawn on the tiles.
    void setTileValues(const board::TileValues& values);

    // A move shown on the board without laying it; nothing to clear it.
    void setPreview(std::optional<board::Move> move);
    [[nodiscard]] const std::optional<board::Move>& preview() const { return preview_; }

    // Board words to outline as not in the word list.
    void setUnknownWords(std::vector<board::BoardWord> words);
    [[nodiscard]] const std::vector<board::BoardWord>& unknownWords() const {
        return unknownWords_;
    }

    [[nodiscard]] BoardSquare cursor() const { return cursor_; }
    [[nodiscard]] board::Direction direction() const { return direction_; }
    void setCursor(BoardSquare square);
    void setDirection(board::Direction direction);

    [[nodiscard]] BoardGeometry geometryNow() const;
    // What the board says about the square under the cursor (its accessible name).
    [[nodiscard]] QString cursorSpeech() const;

    [[nodiscard]] QSize minimumSizeHint() const override;
    [[nodiscard]] QSize sizeHint() const override;

Q_SIGNALS:
    // The player laid, changed or removed a tile.
    void edited();
    void copyRequested();
    void pasteRequested();

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    // Keys (board_view_keys.cpp). Each returns whether it used the key.
    bool typeText(const QString& text, bool blank);
    void layTile(board::Letter letter, bool blank);
    void removeBefore();
    void removeAtCursor();
    void moveCursor(int rows, int columns);
    void toggleDirection();
    // The square `step` squares on from the cursor in the writing direction.
    [[nodiscard]] BoardSquare stepped(int step) const;

    void setTile(BoardSquare square, board::Tile tile);
    void cursorChanged();
    [[nodiscard]] QString toolTipAt(BoardSquare square) const;

    // Painting (board_view_painting.cpp).
    void paintSquare(QPainter& painter, const BoardGeometry& geometry, int row, int column) const;
    void paintTile(QPainter& painter, const QRectF& rect, board::Tile tile, bool previewed) const;
    void paintLabels(QPainter& painter, const BoardGeometry& geometry) const;
    void paintUnknownWords(QPainter& painter, const BoardGeometry& geometry) const;
    void paintCursor(QPainter& painter, const BoardGeometry& geometry) const;

    board::Board board_;
    board::TileValues values_;
    std::optional<board::Move> preview_;
    std::vector<board::BoardWord> unknownWords_;
    BoardSquare cursor_{board::kCentre, board::kCentre};
    board::Direction direction_ = board::Direction::Across;
    // The last letter went onto the last square of its line, so the cursor
    // could not move on: Backspace then takes the tile under the cursor.
    bool atLineEnd_ = false;
    // "Blanko" from the context menu of an empty square: the next letter
    // typed there is a blank.
    bool blankArmed_ = false;
};

} // namespace lettriner::ui
