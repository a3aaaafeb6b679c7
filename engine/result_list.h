// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// What a search needs of a result list: add a row, count rows, set a cell,
// clear. The window's table model implements it; MemoryResultList serves the
// command line and the tests.

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace lettriner {

inline constexpr int kResultColumns = 5; // word, length, value, needed, left over

class ResultList {
public:
    virtual ~ResultList() = default;
    // Adds a row at the end whose column 0 is `text` and whose other cells are empty.
    virtual void addRow(std::u16string text) = 0;
    [[nodiscard]] virtual std::int64_t rowCount() const = 0;
    // Sets column `column` (1..4) of row `row`, rows counted from 1.
    virtual void setSubItem(std::int64_t row, int column, std::u16string text) = 0;
    // ListeZeilenLöschen: the list is empty afterwards.
    virtual void clear() = 0;
    // A hint before `count` rows are added, so storage grows once.
    virtual void reserveRows(std::int64_t /*count*/) {}
    // Called once all columns of a publish are written, so a view can show them in one go.
    virtual void publishFinished() {}
};

class MemoryResultList final : public ResultList {
public:
    using Row = std::array<std::u16string, kResultColumns>;

    void addRow(std::u16string text) override;
    [[nodiscard]] std::int64_t rowCount() const override {
        return static_cast<std::int64_t>(rows_.size());
    }
    void setSubItem(std::int64_t row, int column, std::u16string text) override;
    void clear() override { rows_.clear(); }
    void reserveRows(std::int64_t count) override;

    [[nodiscard]] const std::vector<Row>& rows() const { return rows_; }

private:
    std::vector<Row> rows_;
};

} // namespace lettriner
