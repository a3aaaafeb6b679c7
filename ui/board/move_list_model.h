// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The moves of a search as the move list shows them: one typed row per
// move, its texts made once when the list is filled. Columns Zug, Wort,
// Punkte, Gelegt, Rest, Querwörter. The rows arrive best first; sort()
// re-orders them by a column (words in German order, blanks like their
// letter) and keeps that order among equal cells, so Punkte descending is
// best first again. Selection and current row follow their rows.

#include "board/board.h"
#include "board/move.h"
#include "board/rack.h"

#include <QAbstractTableModel>
#include <QString>
#include <vector>

namespace lettriner::ui {

struct MoveRow {
    board::Move move;
    int rank = 0; // place in the best-first order, from 0
    QString coordinate;
    QString word;
    QString laid;
    QString leave;
    QString crossWords;
};

// The rows for `moves` (best first) on the board before the moves, from `rack`.
[[nodiscard]] std::vector<MoveRow> moveRows(const std::vector<board::Move>& moves,
                                            const board::Board& board, const board::Rack& rack);

class MoveListModel final : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { Zug, Wort, Punkte, Gelegt, Rest, Querwoerter, ColumnCount };

    explicit MoveListModel(QObject* parent = nullptr);

    [[nodiscard]] int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index,
                                int role = Qt::DisplayRole) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role = Qt::DisplayRole) const override;
    void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;

    // Replaces every row with one model reset.
    void setRows(std::vector<MoveRow> rows);
    void clear() { setRows({}); }
    // Null outside the rows.
    [[nodiscard]] const MoveRow* row(int index) const;
    // A shown cell's text, empty outside the rows.
    [[nodiscard]] QString cell(int row, int column) const;

private:
    std::vector<MoveRow> rows_;
};

} // namespace lettriner::ui
