// SPDX-License-Identifier: GPL-3.0-or-later
// Start-up under the loading cover, the cover's dot animation, the window's
// key preview and pointer effects, and shutdown.

#include "data/number_format.h"
#include "data/settings_file.h"
#include "data/word_database.h"
#include "engine/letter_values.h"
#include "ui/main/banner.h"
#include "ui/main/design_layout.h"
#include "ui/main/form1.h"
#include "ui/main/loading_cover.h"
#include "ui/main/progress_box.h"
#include "ui/main/result_table_model.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QFrame>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QMouseEvent>
#include <QPushButton>
#include <QTableView>
#include <QTimer>
#include <cstdint>
#include <utility>

namespace lettriner::ui {
namespace {

char16_t groupSeparator() {
    const QString separator = QLocale().groupSeparator();
    return separator.isEmpty() ? u',' : separator.front().unicode();
}

} // namespace

void Form1::Form_Load() {
    // Both timers run from the moment the window loads.
    Timer1_->start();
    Timer2_->start();

    ladenFertig_ = false;
    fitOuterHeight();
    lblInfos_->clear();
    AbständeFestlegen();
    PicBoxAnpassen(*picProgress_);
    txtBuchstaben_->selectWhole();

    // The cover spans the window's outer size, so it reaches past the client
    // area and its labels sit a little right of and below the visible middle.
    const QSize outer = outerSizeTwips();
    Frame3_->spread(outer.width(), outer.height());
    Frame3_->show();
    Frame3_->raise();
    Picture1_->raise();

    ListViewAussehen(*ListView1_);
    ListViewAussehen(*ListView2_);
    ListViewSpalten(*ListView1_);
    ListViewSpalten(*ListView2_);

    cmdStop_->setGeometry(cmdSuchen_->geometry());
    cmdStop_->hide();

    sprache_ = lettriner::SettingsLaden(programFolder_);

    txtBuchstaben_->setFocus();
    show();

    sortRichtung_ = 0;
    run_.raiseProgressFlag();
    minimumValue_.readText();
    fieldSize_.readText();

    // Let the window and its cover paint before the longest step.
    yieldToEvents();

    lettriner::WordDatabase database =
        lettriner::DatenbankEinlesen("DB1.txt", [this] { yieldToEvents(); });
    // The search reads the words prepared with their values; the raw list is not kept.
    words_ = lettriner::PreparedWords(std::move(database), lettriner::BewertungsFeldLaden());
    // The count of what is searched: a list read whole but too large to
    // prepare counts as empty.
    const auto highestIndex = static_cast<std::int64_t>(words_.size()) - 1;
    lblDBCount_->setText(
        QString::fromStdU16String(lettriner::databaseCountText(highestIndex, groupSeparator()))
            .replace(QStringLiteral("\r\n"), QStringLiteral("\n")));

    ladenFertig_ = true;
}

QSize Form1::nonClientSize() const {
    // Until the window is shown, assume the frame it was designed against.
    if (!isVisible())
        return {twips(design::kNonClientWidth), twips(design::kNonClientHeight)};
    return frameGeometry().size() - geometry().size();
}

QSize Form1::outerSizeTwips() const {
    return (size() + nonClientSize()) * kTwipsPerPixel;
}

void Form1::fitOuterHeight() {
    // A window manager reports its frame only after it has framed the window,
    // some time after the show; until then frameGeometry() equals geometry().
    // The show and move events that follow the framing fit the height again.
    const int clientHeight = twips(outerHeightTwips()) - nonClientSize().height();
    if (clientHeight > 0 && clientHeight != height())
        setFixedSize(width(), clientHeight);
}

void Form1::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    fitOuterHeight();
}

void Form1::moveEvent(QMoveEvent* event) {
    QWidget::moveEvent(event);
    fitOuterHeight();
}

void Form1::Timer2_Timer() {
    yieldToEvents();
    if (ladenFertig_)
        ++ladeTakte_;
    if (ladeTakte_ >= 8) {
        Timer2_->stop();
        Frame3_->hide();
    }
    Frame3_->advancePoints();
    yieldToEvents();
}

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

void Form1::closeEvent(QCloseEvent* event) {
    // Nothing to ask or save: the program ends here, also from inside a search.
    event->accept();
    exitNow_();
}

void Form1::mouseMoveEvent(QMouseEvent* event) {
    if (childAt(event->position().toPoint()) == nullptr)
        Picture1_->setBorder(true);
    QWidget::mouseMoveEvent(event);
}

bool Form1::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress && watched->isWidgetType()) {
        auto* target = static_cast<QWidget*>(watched);
        // A key passed on to parents comes by again: act only where it was sent.
        QWidget* first = focusWidget() != nullptr ? focusWidget() : this;
        if (target == first && target->window() == this)
            return previewKey(*static_cast<QKeyEvent*>(event));
        return false;
    }
    // The frames' moves come by here too, as every event of the program does.
    if (event->type() == QEvent::MouseMove && (watched == Frame1_ || watched == Frame2_)) {
        const auto* frame = static_cast<QWidget*>(watched);
        const auto* move = static_cast<QMouseEvent*>(event);
        // The frame's bare surface only; moves over its controls change nothing.
        if (frame->childAt(move->position().toPoint()) == nullptr)
            Picture1_->setBorder(true);
    }
    return QWidget::eventFilter(watched, event);
}

bool Form1::previewKey(QKeyEvent& key) {
    switch (key.key()) {
    case Qt::Key_F1:
        openAboutBox();
        return false; // seen, not consumed
    case Qt::Key_Return:
    case Qt::Key_Enter: {
        // A focused button takes Enter itself; elsewhere it presses the search button.
        auto* button = qobject_cast<QPushButton*>(focusWidget());
        if (button == nullptr)
            button = cmdSuchen_;
        if (!button->isVisibleTo(this))
            return false;
        button->click();
        return true;
    }
    case Qt::Key_Escape:
        if (!cmdStop_->isVisibleTo(this))
            return false;
        cmdStop_->click();
        return true;
    default:
        return false;
    }
}

} // namespace lettriner::ui
