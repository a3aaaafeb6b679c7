// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// What a search needs of a result list: add a row, count rows, set a cell,
// clear. The window's table model implements it; MemoryResultList serves the
// command line and the tests.

#include "engine/result_row.h"

#include <cstdint>
#include <string>
#include <vector>

namespace lettriner {

class ResultList {
public:
    virtual ~ResultList() = default;
    // Adds a row at the end whose word is `text` and whose other cells are empty.
    virtual void addRow(std::u16string text) = 0;
    [[nodiscard]] virtual std::int64_t rowCount() const = 0;
    // Sets column `column` of row `row`, rows counted from 1. A text goes
    // only into a text column, a number only into a number column; column 0
    // belongs to addRow. Anything else changes nothing.
    virtual void setSubItem(std::int64_t row, int column, std::u16string text) = 0;
    virtual void setSubItem(std::int64_t row, int column, std::int64_t number) = 0;
    // ListeZeilenLöschen: the list is empty afterwards.
    virtual void clear() = 0;
    // Whole rows at the end, as a search with blanks or a pattern lists them.
    virtual void addRows(std::vector<ResultRow> rows) = 0;
    // A hint before `count` rows are added, so storage grows once.
    virtual void reserveRows(std::int64_t /*count*/) {}
    // Called once all columns of a publish are written, so a view can show them in one go.
    virtual void publishFinished() {}
};

// The row `row` (counted from 1) of `rows` that a cell of `column` may be
// written into, or null.
[[nodiscard]] ResultRow* writableRow(std::vector<ResultRow>& rows, std::int64_t row, int column);

// Appends `more` to `rows`, moving when `rows` is empty.
void appendRows(std::vector<ResultRow>& rows, std::vector<ResultRow> more);

class MemoryResultList final : public ResultList {
public:
    void addRow(std::u16string text) override;
    [[nodiscard]] std::int64_t rowCount() const override {
        return static_cast<std::int64_t>(rows_.size());
    }
    void setSubItem(std::int64_t row, int column, std::u16string text) override;
    void setSubItem(std::int64_t row, int column, std::int64_t number) override;
    void addRows(std::vector<ResultRow> rows) override;
    void clear() override { rows_.clear(); }
    void reserveRows(std::int64_t count) override;

    [[nodiscard]] const std::vector<ResultRow>& rows() const { return rows_; }

private:
    std::vector<ResultRow> rows_;
};

} // namespace lettriner
