// SPDX-License-Identifier: GPL-3.0-or-later
// The two result lists: their look and columns, the bonus list's place below
// a halved main list, and sorting the main list on a header click.

#include "ui/main/design_layout.h"
#include "ui/main/form1.h"
#include "ui/main/result_table_model.h"

#include <QHeaderView>
#include <QTableView>

namespace lettriner::ui {

void Form1::ListViewAussehen(QTableView& liste) {
    liste.setSelectionBehavior(QAbstractItemView::SelectRows);
    liste.setSelectionMode(QAbstractItemView::SingleSelection);
    liste.setShowGrid(true);
    liste.setEditTriggers(QAbstractItemView::NoEditTriggers);
    liste.verticalHeader()->hide();
    liste.verticalHeader()->setDefaultSectionSize(liste.fontMetrics().height() + 4);
    liste.horizontalHeader()->setHighlightSections(false);
    liste.horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    liste.horizontalHeader()->setSectionsMovable(false);
    liste.horizontalHeader()->setStretchLastSection(false);
    liste.setWordWrap(false);
    // The selection stays visible when the list loses the focus.
    QPalette palette = liste.palette();
    for (const QPalette::ColorRole role : {QPalette::Highlight, QPalette::HighlightedText})
        palette.setColor(QPalette::Inactive, role, palette.color(QPalette::Active, role));
    liste.setPalette(palette);
    // Only the header click sorts, and only the first list.
    ListView1_->setSortingEnabled(false);
}

void Form1::ListViewSpalten(QTableView& liste) {
    const int listWidth = (&liste == ListView1_ ? list1_ : list2_).width;
    const int columnWidth = twips((listWidth - 50) / 5);
    for (int column = 0; column < kResultColumns; ++column)
        liste.setColumnWidth(column, columnWidth);
}

void Form1::AbständeFestlegen() {
    listenAbstand_ = static_cast<std::int16_t>(design::Frame1.height - list1_.height);
}

void Form1::placeLists() {
    ListView1_->setGeometry(list1_.toPixels());
    ListView2_->setGeometry(list2_.toPixels());
}

void Form1::CheckerVerstecken() {
    ListView2_->hide();
    list1_.height = design::Frame1.height - listenAbstand_;
    placeLists();
}

void Form1::CheckerAnschalten() {
    ListView2_->show();
    list1_.height /= 2;
    list2_.top = list1_.top + list1_.height + 300;
    list2_.height = list1_.height - 600;
    placeLists();
}

void Form1::ListView1_ColumnClick(int column) {
    // The direction turns first, one for all columns: a fresh window sorts descending.
    sortRichtung_ = sortRichtung_ == 0 ? 1 : 0;
    ListeSortieren(*model1_, column, columnSortKind(column), sortRichtung_);
}

} // namespace lettriner::ui
