// SPDX-License-Identifier: GPL-3.0-or-later
// The search: the search and stop buttons, the progress timer, and the
// hooks through which a run yields to the window and shows its progress.

#include "data/number_format.h"
#include "data/text_case.h"
#include "display/result_texts.h"
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

void Form1::Search::showElapsedSeconds(double seconds) {
    const QString point = QLocale().decimalPoint();
    const char16_t separator = point.isEmpty() ? u'.' : point.front().unicode();
    form_.txtSuchZeit_->setText(QString::fromStdU16String(formatOneDecimal(seconds, separator)));
}

void Form1::Search::showFoundCount(std::uint64_t count) {
    form_.lblInfos_->setText(QString::fromStdU16String(foundCountText(count)));
}

std::u16string Form1::Search::currentRack(std::u16string_view /*rackAtStart*/) {
    // Read again: an edit made during the run shows in the letter columns.
    return lettriner::toUpper(form_.txtBuchstaben_->text().toStdU16String());
}

double Form1::Search::secondsSinceMidnight() const {
    return QTime::currentTime().msecsSinceStartOfDay() / 1000.0;
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

} // namespace lettriner::ui
