// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/board/move_list_model.h"

#include "board/move_text.h"
#include "ui/board/board_texts.h"

#include <QCollator>
#include <algorithm>
#include <numeric>

namespace lettriner::ui {

namespace b = lettriner::board;

std::vector<MoveRow> moveRows(const std::vector<b::Move>& moves, const b::Board& board,
                              const b::Rack& rack) {
    std::vector<MoveRow> rows;
    rows.reserve(moves.size());
    for (const b::Move& move : moves) {
        QStringList crossWords;
        for (const std::string& word : b::crossWordTexts(board, move))
            crossWords.append(fromUtf8(word));
        rows.push_back({move, static_cast<int>(rows.size()), fromUtf8(b::moveCoordinate(move)),
                        fromUtf8(b::moveWord(move)), fromUtf8(b::laidTilesText(move)),
                        fromUtf8(b::rackLeave(rack, move)), crossWords.join(QStringLiteral(", "))});
    }
    return rows;
}

MoveListModel::MoveListModel(QObject* parent) : QAbstractTableModel(parent) {}

int MoveListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int MoveListModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : ColumnCount;
}

QString MoveListModel::cell(int row, int column) const {
    const MoveRow* shown = this->row(row);
    if (shown == nullptr)
        return {};
    switch (column) {
    case Zug:
        return shown->coordinate;
    case Wort:
        return shown->word;
    case Punkte:
        return QString::number(shown->move.score);
    case Gelegt:
        return shown->laid;
    case Rest:
        return shown->leave;
    case Querwoerter:
        return shown->crossWords;
    default:
        return {};
    }
}

QVariant MoveListModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || row(index.row()) == nullptr)
        return {};
    switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole:
        return cell(index.row(), index.column());
    case Qt::TextAlignmentRole:
        return index.column() == Punkte ? QVariant(Qt::AlignRight | Qt::AlignVCenter)
                                        : QVariant(Qt::AlignLeft | Qt::AlignVCenter);
    default:
        return {};
    }
}

QVariant MoveListModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation == Qt::Horizontal && role == Qt::InitialSortOrderRole)
        // A first click on Punkte shows the highest first, on the others A to Z.
        return section == Punkte ? Qt::DescendingOrder : Qt::AscendingOrder;
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QAbstractTableModel::headerData(section, orientation, role);
    static const char* const kTitles[ColumnCount] = {"Zug",    "Wort", "Punkte",
                                                     "Gelegt", "Rest", "Querwörter"};
    return section >= 0 && section < ColumnCount ? QString::fromUtf8(kTitles[section]) : QString();
}

const MoveRow* MoveListModel::row(int index) const {
    return index >= 0 && index < static_cast<int>(rows_.size())
               ? &rows_[static_cast<std::size_t>(index)]
               : nullptr;
}

void MoveListModel::setRows(std::vector<MoveRow> rows) {
    beginResetModel();
    rows_ = std::move(rows);
    endResetModel();
}

void MoveListModel::sort(int column, Qt::SortOrder order) {
    if (column < 0 || column >= ColumnCount)
        return;
    QCollator collator{QLocale(QLocale::German, QLocale::Germany)};
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    // Negative: a before z in ascending order.
    const auto compareCells = [&](const MoveRow& a, const MoveRow& z) -> int {
        switch (column) {
        case Zug:
            if (a.move.row != z.move.row)
                return a.move.row - z.move.row;
            if (a.move.column != z.move.column)
                return a.move.column - z.move.column;
            return static_cast<int>(a.move.direction) - static_cast<int>(z.move.direction);
        case Punkte:
            return a.move.score < z.move.score ? -1 : a.move.score > z.move.score ? 1 : 0;
        case Gelegt:
            // Fewer tiles first, then the letters.
            if (a.move.laidCount() != z.move.laidCount())
                return a.move.laidCount() - z.move.laidCount();
            return collator.compare(a.laid, z.laid);
        case Wort:
            return collator.compare(a.word, z.word);
        case Rest:
            return collator.compare(a.leave, z.leave);
        default:
            return collator.compare(a.crossWords, z.crossWords);
        }
    };
    std::vector<int> places(rows_.size());
    std::iota(places.begin(), places.end(), 0);
    std::stable_sort(places.begin(), places.end(), [&](int left, int right) {
        const MoveRow& a = rows_[static_cast<std::size_t>(left)];
        const MoveRow& z = rows_[static_cast<std::size_t>(right)];
        const int cells = compareCells(a, z);
        if (cells != 0)
            return order == Qt::AscendingOrder ? cells < 0 : cells > 0;
        return a.rank < z.rank;
    });

    Q_EMIT layoutAboutToBeChanged({}, QAbstractItemModel::VerticalSortHint);
    std::vector<MoveRow> sorted;
    sorted.reserve(rows_.size());
    std::vector<int> newPlace(rows_.size());
    for (std::size_t place = 0; place < places.size(); ++place) {
        newPlace[static_cast<std::size_t>(places[place])] = static_cast<int>(place);
        sorted.push_back(std::move(rows_[static_cast<std::size_t>(places[place])]));
    }
    rows_ = std::move(sorted);
    const QModelIndexList before = persistentIndexList();
    QModelIndexList after;
    after.reserve(before.size());
    for (const QModelIndex& index : before)
        after.append(this->index(newPlace[static_cast<std::size_t>(index.row())], index.column()));
    changePersistentIndexList(before, after);
    Q_EMIT layoutChanged({}, QAbstractItemModel::VerticalSortHint);
}

} // namespace lettriner::ui
