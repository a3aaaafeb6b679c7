// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/main/result_table_model.h"

#include "display/result_texts.h"

namespace lettriner::ui {

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
        return cell(index.row(), index.column());
    return {};
}

QVariant ResultTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section < 0 ||
        section >= kResultColumns)
        return {};
    const std::u16string_view caption = columnCaption(section);
    return QString::fromUtf16(caption.data(), static_cast<qsizetype>(caption.size()));
}

Qt::ItemFlags ResultTableModel::flags(const QModelIndex& index) const {
    if (!index.isValid())
        return Qt::NoItemFlags;
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
}

void ResultTableModel::addRow(std::u16string text) {
    staged_.emplace_back().word = std::move(text);
}

std::int64_t ResultTableModel::rowCount() const {
    return static_cast<std::int64_t>(rows_.size() + staged_.size());
}

ResultRow* ResultTableModel::writable(std::int64_t row, int column) {
    if (row < 1 || row > rowCount() || column < 1)
        return nullptr;
    const auto index = static_cast<std::size_t>(row - 1);
    return index < rows_.size() ? &rows_[index] : &staged_[index - rows_.size()];
}

void ResultTableModel::cellChanged(std::int64_t row, int column) {
    if (row <= static_cast<std::int64_t>(rows_.size()) && column < kResultColumns) {
        const QModelIndex changed = index(static_cast<int>(row - 1), column);
        emit dataChanged(changed, changed, {Qt::DisplayRole});
    }
}

void ResultTableModel::setSubItem(std::int64_t row, int column, std::u16string text) {
    if (ResultRow* target = writable(row, column)) {
        if (std::u16string* cell = textCell(*target, column)) {
            *cell = std::move(text);
            cellChanged(row, column);
        }
    }
}

void ResultTableModel::setSubItem(std::int64_t row, int column, std::int64_t number) {
    if (ResultRow* target = writable(row, column)) {
        if (std::optional<std::int64_t>* cell = numberCell(*target, column)) {
            *cell = number;
            cellChanged(row, column);
        }
    }
}

void ResultTableModel::addRows(std::vector<ResultRow> rows) {
    appendRows(staged_, std::move(rows));
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
    appendRows(rows_, std::move(staged_));
    staged_.clear();
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
    return QString::fromStdU16String(cellText(rows_[static_cast<std::size_t>(row)], column));
}

} // namespace lettriner::ui

namespace lettriner::ui {

void ListeSortieren(ResultTableModel& list, std::int32_t column, SortKind kind,
                    std::int32_t direction) {
    list.sortRows(SortierInfo{column, kind, direction});
}

} // namespace lettriner::ui
