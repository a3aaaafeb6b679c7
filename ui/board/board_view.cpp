// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/board/board_view.h"

#include "ui/board/board_texts.h"

#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QToolTip>

namespace lettriner::ui {

namespace b = lettriner::board;

namespace {

// The board's description for screen readers: what it is, which way the
// player writes, and the keys.
QString description(b::Direction direction) {
    return QStringLiteral("Spielbrett, Schreibrichtung ") +
           (direction == b::Direction::Across ? QStringLiteral("waagerecht")
                                              : QStringLiteral("senkrecht")) +
           QStringLiteral(". Buchstaben tippen legt Steine, Umschalt und Buchstabe legt ein "
                          "Blanko, die Leertaste wechselt die Richtung, die Pfeiltasten bewegen.");
}

} // namespace

BoardView::BoardView(QWidget* parent) : QWidget(parent) {
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setAccessibleDescription(description(direction_));
    cursorChanged();
}

void BoardView::setBoard(const b::Board& board) {
    board_ = board;
    atLineEnd_ = false;
    cursorChanged();
}

void BoardView::setTileValues(const b::TileValues& values) {
    values_ = values;
    update();
}

void BoardView::setPreview(std::optional<b::Move> move) {
    preview_ = move;
    update();
}

void BoardView::setUnknownWords(std::vector<b::BoardWord> words) {
    unknownWords_ = std::move(words);
    update();
}

void BoardView::setCursor(BoardSquare square) {
    if (!b::Board::inside(square.row, square.column))
        return;
    cursor_ = square;
    atLineEnd_ = false;
    blankArmed_ = false;
    cursorChanged();
}

void BoardView::setDirection(b::Direction direction) {
    direction_ = direction;
    setAccessibleDescription(description(direction_));
    update();
}

BoardGeometry BoardView::geometryNow() const {
    return BoardGeometry::fit(QSizeF(size()), devicePixelRatioF());
}

QString BoardView::cursorSpeech() const {
    return squareSpeech(board_, cursor_.row, cursor_.column);
}

QSize BoardView::minimumSizeHint() const {
    return BoardGeometry::minimumSize();
}

QSize BoardView::sizeHint() const {
    return BoardGeometry::minimumSize() * 3 / 2;
}

void BoardView::setTile(BoardSquare square, b::Tile tile) {
    if (board_.at(square.row, square.column) == tile)
        return;
    board_.set(square.row, square.column, tile);
    cursorChanged();
    Q_EMIT edited();
}

void BoardView::cursorChanged() {
    // The square's text is the board's accessible name, so a screen reader
    // says it whenever the cursor moves or the square changes.
    setAccessibleName(cursorSpeech());
    update();
}

void BoardView::mousePressEvent(QMouseEvent* event) {
    const std::optional<BoardSquare> square = geometryNow().squareAt(event->position());
    if (!square) {
        QWidget::mousePressEvent(event);
        return;
    }
    // A second click on the cursor square turns the writing direction.
    if (event->button() == Qt::LeftButton && *square == cursor_ && hasFocus())
        toggleDirection();
    else
        setCursor(*square);
    setFocus(Qt::MouseFocusReason);
    event->accept();
}

void BoardView::contextMenuEvent(QContextMenuEvent* event) {
    if (event->reason() == QContextMenuEvent::Mouse) {
        const std::optional<BoardSquare> square = geometryNow().squareAt(event->pos());
        if (!square)
            return;
        setCursor(*square);
    }
    const BoardSquare square = cursor_;
    const b::Tile tile = board_.at(square.row, square.column);
    QMenu menu(this);
    QAction* blank = menu.addAction(QStringLiteral("Blanko"));
    blank->setCheckable(true);
    blank->setChecked(tile == b::kEmpty ? blankArmed_ : b::isBlank(tile));
    blank->setToolTip(tile == b::kEmpty
                          ? QStringLiteral("Der nächste Buchstabe hier wird ein Blanko")
                          : QStringLiteral("Stein und Blanko tauschen"));
    connect(blank, &QAction::triggered, this, [this, square, tile] {
        if (tile == b::kEmpty) {
            blankArmed_ = !blankArmed_;
            update();
        } else {
            setTile(square, tile ^ b::kBlankBit);
        }
    });
    QAction* remove = menu.addAction(QStringLiteral("Stein entfernen"));
    remove->setEnabled(tile != b::kEmpty);
    connect(remove, &QAction::triggered, this, [this, square] { setTile(square, b::kEmpty); });
    menu.addSeparator();
    QAction* turn = menu.addAction(direction_ == b::Direction::Across
                                       ? QStringLiteral("Senkrecht schreiben (Leertaste)")
                                       : QStringLiteral("Waagerecht schreiben (Leertaste)"));
    connect(turn, &QAction::triggered, this, &BoardView::toggleDirection);
    menu.addSeparator();
    connect(menu.addAction(QStringLiteral("Stellung kopieren (Strg+C)")), &QAction::triggered, this,
            &BoardView::copyRequested);
    connect(menu.addAction(QStringLiteral("Stellung einfügen (Strg+V)")), &QAction::triggered, this,
            &BoardView::pasteRequested);
    const QPoint at =
        event->reason() == QContextMenuEvent::Mouse
            ? event->globalPos()
            : mapToGlobal(geometryNow().squareRect(square.row, square.column).center().toPoint());
    menu.exec(at);
}

bool BoardView::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        const auto* help = static_cast<QHelpEvent*>(event);
        const std::optional<BoardSquare> square = geometryNow().squareAt(help->pos());
        const QString text = square ? toolTipAt(*square) : QString();
        if (text.isEmpty())
            QToolTip::hideText();
        else
            QToolTip::showText(help->globalPos(), text, this);
        return true;
    }
    return QWidget::event(event);
}

QString BoardView::toolTipAt(BoardSquare square) const {
    QStringList lines{squareSpeech(board_, square.row, square.column)};
    for (const b::BoardWord& word : unknownWords_) {
        const int length = static_cast<int>(word.tiles.size());
        const bool across = word.direction == b::Direction::Across;
        const int along = across ? square.column - word.column : square.row - word.row;
        const bool onLine = across ? square.row == word.row : square.column == word.column;
        if (onLine && along >= 0 && along < length)
            lines.append(QStringLiteral("Nicht in der Wortliste: ") + boardWordText(word));
    }
    return lines.join(QLatin1Char('\n'));
}

void BoardView::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    update();
}

void BoardView::focusOutEvent(QFocusEvent* event) {
    QWidget::focusOutEvent(event);
    update();
}

} // namespace lettriner::ui
