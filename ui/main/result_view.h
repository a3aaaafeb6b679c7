// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A result list as the player sees it: a table view that copies its selected
// rows with Ctrl+C, shows a cut-off cell's whole text as its tooltip, and
// shows the keyboard focus even when it has no current cell to mark (empty).

#include <QTableView>

namespace lettriner::ui {

class ResultView final : public QTableView {
    Q_OBJECT

public:
    explicit ResultView(QWidget* parent = nullptr);

    // The selected rows, top to bottom, one line each, cells in the order the
    // columns are shown, separated by tabs; empty when nothing is selected.
    [[nodiscard]] QString selectedRowsText() const;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    // True when `index`'s text does not fit its cell and is drawn elided.
    [[nodiscard]] bool isCutOff(const QModelIndex& index) const;
};

} // namespace lettriner::ui
