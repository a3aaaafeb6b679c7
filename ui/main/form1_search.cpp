// SPDX-License-Identifier: GPL-3.0-or-later
// The search button, the stop button, the progress timer and the result
// lists' part in a search: showing and hiding the bonus list, sorting on a
// header click.

#include "data/text_case.h"
#include "ui/main/design_layout.h"
#include "ui/main/form1.h"
#include "ui/main/progress_box.h"
#include "ui/main/result_table_model.h"
#include "ui/main/search_window.h"

#include <QCoreApplication>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QTableView>
#include <QTime>
#include <QTimer>

namespace lettriner::ui {

void Form1::Search::yield() {
    // Testing a word takes nanoseconds, a pass over the event loop about a
    // microsecond: serving events every few milliseconds keeps the window
    // just as live and the search a hundred times faster.
    if (!form_.paced_ || form_.pacer_.due())
        form_.yieldToEvents();
}

void Form1::Search::loopEnded() {
    // Whatever came in since the last paced pass is served before publishing.
    form_.yieldToEvents();
}

void Form1::Search::setProgressTimerEnabled(bool enabled) {
    if (enabled)
        form_.Timer1_->start();
    else
        form_.Timer1_->stop();
}

void Form1::Search::setSearching(bool searching) {
    if (searching)
        form_.pacer_.restart();
    form_.cmdStop_->setVisible(searching);
    form_.cmdSuchen_->setVisible(!searching);
}

void Form1::Search::hideBonusList() {
    form_.CheckerVerstecken();
}

void Form1::Search::showBonusList() {
    form_.CheckerAnschalten();
}

void Form1::Search::drawProgress(std::int16_t percent) {
    ProgressMalen(*form_.picProgress_, percent);
}

void Form1::Search::setElapsedText(std::u16string text) {
    form_.txtSuchZeit_->setText(QString::fromStdU16String(text));
}

void Form1::Search::setFoundText(std::u16string text) {
    form_.lblInfos_->setText(QString::fromStdU16String(text));
}

std::u16string Form1::Search::currentRack(std::u16string_view /*rackAtStart*/) {
    // Read again: an edit made during the run shows in the letter columns.
    return lettriner::toUpper(form_.txtBuchstaben_->text().toStdU16String());
}

double Form1::Search::secondsSinceMidnight() const {
    return QTime::currentTime().msecsSinceStartOfDay() / 1000.0;
}

char16_t Form1::Search::decimalSeparator() const {
    const QString point = QLocale().decimalPoint();
    return point.isEmpty() ? u'.' : point.front().unicode();
}

void Form1::yieldToEvents() {
    QCoreApplication::processEvents(QEventLoop::AllEvents);
}

void Form1::cmdSuchen_Click() {
    const lettriner::SearchTexts texts{
        txtBuchstaben_->text().toStdU16String(), txtPflichtbuchstaben_->text().toStdU16String(),
        txtVerboteneBuchstaben_->text().toStdU16String(), txtConst_->text().toStdU16String()};
    lettriner::SearchConnections connections{minimumValue_, fieldSize_, *model1_, *model2_,
                                             *search_};
    run_.run(texts, connections);
}

void Form1::cmdStop_Click() {
    run_.requestStop();
    Timer1_->stop();
    cmdSuchen_->show();
    cmdStop_->hide();
}

void Form1::Timer1_Timer() {
    run_.raiseProgressFlag();
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
