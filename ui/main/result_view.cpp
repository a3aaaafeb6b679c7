// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/main/result_view.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QStyleOptionFocusRect>
#include <QToolTip>
#include <algorithm>

namespace lettriner::ui {

ResultView::ResultView(QWidget* parent) : QTableView(parent) {}

QString ResultView::selectedRowsText() const {
    if (model() == nullptr || selectionModel() == nullptr)
        return {};
    QModelIndexList rows = selectionModel()->selectedRows();
    std::sort(rows.begin(), rows.end(),
              [](const QModelIndex& a, const QModelIndex& b) { return a.row() < b.row(); });
    QStringList lines;
    for (const QModelIndex& row : rows) {
        QStringList cells;
        for (int shown = 0; shown < horizontalHeader()->count(); ++shown) {
            const int column = horizontalHeader()->logicalIndex(shown);
            if (!isColumnHidden(column))
                cells.append(model()->index(row.row(), column).data().toString());
        }
        lines.append(cells.join(u'\t'));
    }
    return lines.join(u'\n');
}

void ResultView::keyPressEvent(QKeyEvent* event) {
    // Qt's own copy takes the current cell only; a player wants whole rows.
    if (event == QKeySequence::Copy) {
        if (const QString text = selectedRowsText(); !text.isEmpty())
            QGuiApplication::clipboard()->setText(text);
        event->accept();
        return;
    }
    QTableView::keyPressEvent(event);
}

bool ResultView::isCutOff(const QModelIndex& index) const {
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    option.rect = visualRect(index);
    // The delegate elides exactly when the text needs more than the cell.
    return itemDelegateForIndex(index)->sizeHint(option, index).width() > option.rect.width();
}

bool ResultView::viewportEvent(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        const auto* help = static_cast<QHelpEvent*>(event);
        const QModelIndex index = indexAt(help->pos());
        // Any other place shows the list's own tooltip.
        if (index.isValid() && isCutOff(index)) {
            QToolTip::showText(help->globalPos(), index.data().toString(), viewport(),
                               visualRect(index));
            return true;
        }
    }
    return QTableView::viewportEvent(event);
}

void ResultView::paintEvent(QPaintEvent* event) {
    QTableView::paintEvent(event);
    // With a current cell the cell shows the focus; without one (an empty
    // list) nothing would, so the whole list area is outlined instead.
    if (!hasFocus() || currentIndex().isValid())
        return;
    QPainter painter(viewport());
    QStyleOptionFocusRect focus;
    focus.initFrom(this);
    focus.rect = viewport()->rect().adjusted(2, 2, -2, -2);
    focus.backgroundColor = palette().color(QPalette::Base);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
}

} // namespace lettriner::ui
