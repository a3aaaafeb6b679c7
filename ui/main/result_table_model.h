// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A result list's typed rows behind a QTableView, formatted only when the
// view asks. The search writes through the ResultList side: rows added and
// cells set after a clear are staged without telling the view, and
// publishFinished() shows them with one model reset, so a hundred thousand
// rows cost one layout, not one per row.

#include "engine/result_list.h"
#include "ui/main/list_sort.h"

#include <QAbstractTableModel>
#include <vector>

namespace lettriner::ui {

class ResultTableModel final : public QAbstractTableModel, public lettriner::ResultList {
    Q_OBJECT

public:
    explicit ResultTableModel(QObject* parent = nullptr);

    // Qt's side. No default argument: rowCount() with none is the ResultList one.
    [[nodiscard]] int rowCount(const QModelIndex& parent) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index,
                                int role = Qt::DisplayRole) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role = Qt::DisplayRole) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;

    // The search's side: shown rows first, then the staged ones.
    void addRow(std::u16string text) override;
    [[nodiscard]] std::int64_t rowCount() const override;
    void setSubItem(std::int64_t row, int column, std::u16string text) override;
    void setSubItem(std::int64_t row, int column, std::int64_t number) override;
    void addRows(std::vector<ResultRow> rows) override;
    void clear() override;
    void publishFinished() override;

    // Re-orders the shown rows by ListenVergleich; selection and current row follow their rows.
    void sortRows(const SortierInfo& info);

    // A shown cell, or an empty text outside the rows.
    [[nodiscard]] QString cell(int row, int column) const;

private:
    // The row a cell of `column` may be written into (shown or staged), or null.
    ResultRow* writable(std::int64_t row, int column);
    // Tells the view when a shown row's cell changed.
    void cellChanged(std::int64_t row, int column);

    std::vector<ResultRow> rows_;
    std::vector<ResultRow> staged_;
};

} // namespace lettriner::ui

namespace lettriner::ui {

// Re-orders every row of `list` by ListenVergleich with these arguments.
void ListeSortieren(ResultTableModel& list, std::int32_t column, SortKind kind,
                    std::int32_t direction);

} // namespace lettriner::ui
