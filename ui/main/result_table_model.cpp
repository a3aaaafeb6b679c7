// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/main/result_table_model.h"

#include <array>

namespace lettriner::ui {
namespace {

const std::array<QString, kResultColumns> kCaptions = {
    QStringLiteral("Wort"), QStringLiteral("Wortlänge"), QStringLiteral("Wortwert"),
    QStringLiteral("Benötigte"), QStringLiteral("Übrigbleibende")};

ResultRow emptyRow() {
    ResultRow row;
    row.reserve(kResultColumns);
    for (int column = 0; column < kResultColumns; ++column)
        row.append(QString());
    return row;
}

} // namespace

ResultTableModel::ResultTableModel(QObject* parent) : QAbstractTableModel(parent) {}

int ResultTableModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int ResultTableModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : kResultColumns;
}

QVariant ResultTableModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= static_cast<int>(rows_.size()) ||
        index.column() >= kResultColumns)
        return {};
    if (role == Qt::DisplayRole)
        return rows_[static_cast<std::size_t>(index.row())].at(index.column());
    return {};
}

QVariant ResultTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section < 0 ||
        section >= kResultColumns)
        return {};
    return kCaptions[static_cast<std::size_t>(section)];
}

Qt::ItemFlags ResultTableModel::flags(const QModelIndex& index) const {
    if (!index.isValid())
        return Qt::NoItemFlags;
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
}

void ResultTableModel::addRow(std::u16string text) {
    ResultRow row = emptyRow();
    row[0] = QString::fromStdU16String(text);
    staged_.push_back(std::move(row));
}

std::int64_t ResultTableModel::rowCount() const {
    return static_cast<std::int64_t>(rows_.size() + staged_.size());
}

void ResultTableModel::setSubItem(std::int64_t row, int column, std::u16string text) {
    if (row < 1 || row > rowCount() || column < 1 || column >= kResultColumns)
        return;
    const auto index = static_cast<std::size_t>(row - 1);
    if (index >= rows_.size()) {
        staged_[index - rows_.size()][column] = QString::fromStdU16String(text);
        return;
    }
    rows_[index][column] = QString::fromStdU16String(text);
    const QModelIndex changed = this->index(static_cast<int>(index), column);
    emit dataChanged(changed, changed, {Qt::DisplayRole});
}

void ResultTableModel::clear() {
    beginResetModel();
    rows_.clear();
    staged_.clear();
    endResetModel();
}

void ResultTableModel::publishFinished() {
    if (staged_.empty())
        return;
    beginResetModel();
    if (rows_.empty()) {
        rows_.swap(staged_);
    } else {
        rows_.insert(rows_.end(), std::make_move_iterator(staged_.begin()),
                     std::make_move_iterator(staged_.end()));
        staged_.clear();
    }
    endResetModel();
}

void ResultTableModel::sortRows(const SortierInfo& info) {
    const int count = static_cast<int>(rows_.size());
    if (count < 2)
        return;
    const std::vector<int> order = mergeSortOrder(count, [&](int a, int b) {
        return ListenVergleich(rows_[static_cast<std::size_t>(a)],
                               rows_[static_cast<std::size_t>(b)], info) < 0;
    });

    emit layoutAboutToBeChanged({}, QAbstractItemModel::VerticalSortHint);
    std::vector<int> newPosition(order.size());
    std::vector<ResultRow> sorted;
    sorted.reserve(rows_.size());
    for (std::size_t i = 0; i < order.size(); ++i) {
        newPosition[static_cast<std::size_t>(order[i])] = static_cast<int>(i);
        sorted.push_back(std::move(rows_[static_cast<std::size_t>(order[i])]));
    }
    rows_.swap(sorted);
    const QModelIndexList before = persistentIndexList();
    QModelIndexList after;
    after.reserve(before.size());
    for (const QModelIndex& index : before)
        after.append(
            this->index(newPosition[static_cast<std::size_t>(index.row())], index.column()));
    changePersistentIndexList(before, after);
    emit layoutChanged({}, QAbstractItemModel::VerticalSortHint);
}

QString ResultTableModel::cell(int row, int column) const {
    if (row < 0 || row >= static_cast<int>(rows_.size()) || column < 0 || column >= kResultColumns)
        return {};
    return rows_[static_cast<std::size_t>(row)].at(column);
}

} // namespace lettriner::ui

namespace lettriner::ui {

void ListeSortieren(ResultTableModel& list, std::int32_t column, SortKind kind,
                    std::int32_t direction) {
    list.sortRows(SortierInfo{column, kind, direction});
}

} // namespace lettriner::ui
