// SPDX-License-Identifier: GPL-3.0-or-later
// Start-up under the loading cover, the cover's dot animation, the outer
// height fitted to the window manager's frame, and shutdown.

#include "data/number_format.h"
#include "data/settings_file.h"
#include "data/word_database.h"
#include "display/result_texts.h"
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
        QString::fromStdU16String(databaseCountText(highestIndex, groupSeparator()))
            .replace(QStringLiteral("\r\n"), QStringLiteral("\n")));

    ladenFertig_ = true;
    handWordsToBoardWindow();
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

void Form1::closeEvent(QCloseEvent* event) {
    // Nothing to ask or save: the program ends here, also from inside a search.
    event->accept();
    exitNow_();
}

} // namespace lettriner::ui
