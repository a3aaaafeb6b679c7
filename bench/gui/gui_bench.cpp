// SPDX-License-Identifier: GPL-3.0-or-later
// lettriner-gui-bench: how long the window takes to appear and to load, and
// how long a search takes from Enter until both lists are filled, on the
// bundled word list with the default texts. Run from anywhere: it works in
// the run folder. Without a display it draws offscreen.

#include "data/word_database.h"
#include "engine/letter_values.h"
#include "engine/prepared_words.h"
#include "ui/main/form1.h"
#include "ui/main/result_table_model.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTimer>
#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>
#include <unistd.h>
#include <vector>

namespace {

using lettriner::ui::Form1;

// Milliseconds since the kernel started this process (10 ms resolution),
// so the dynamic loading of Qt before main() is counted too.
double msSinceProcessStart() {
    std::ifstream stat("/proc/self/stat");
    std::string field;
    for (int i = 0; i < 22 && stat >> field; ++i) {
    }
    std::ifstream uptime("/proc/uptime");
    double upSeconds = 0;
    uptime >> upSeconds;
    const double startSeconds = std::stod(field) / static_cast<double>(sysconf(_SC_CLK_TCK));
    return (upSeconds - startSeconds) * 1000.0;
}

class FirstPaint : public QObject {
public:
    explicit FirstPaint(const QElapsedTimer& clock) : clock_(clock) {}
    double at = -1;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        // The first widget of the window that paints, whichever it is.
        if (event->type() == QEvent::Paint && at < 0 && watched->isWidgetType())
            at = static_cast<double>(clock_.nsecsElapsed()) / 1e6;
        return QObject::eventFilter(watched, event);
    }

private:
    const QElapsedTimer& clock_;
};

struct Times {
    double best = 0;
    double median = 0;
};

Times summary(std::vector<double> samples) {
    std::sort(samples.begin(), samples.end());
    return {samples.front(), samples[samples.size() / 2]};
}

// Enter in the rack field until the run has published both lists, and until
// the window has also painted them.
std::pair<Times, Times> timeSearches(Form1& form, bool paced, int repetitions) {
    form.setPacedYield(paced);
    auto* rack = form.findChild<QLineEdit*>(QStringLiteral("txtBuchstaben"));
    auto* minimum = form.findChild<QLineEdit*>(QStringLiteral("txtMindestWert"));
    std::vector<double> filled;
    std::vector<double> painted;
    for (int i = 0; i < repetitions; ++i) {
        minimum->setText(QStringLiteral("5"));
        rack->setFocus();
        QCoreApplication::processEvents();
        QElapsedTimer clock;
        clock.start();
        QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"));
        QCoreApplication::sendEvent(rack, &enter);
        filled.push_back(static_cast<double>(clock.nsecsElapsed()) / 1e6);
        QCoreApplication::processEvents();
        painted.push_back(static_cast<double>(clock.nsecsElapsed()) / 1e6);
    }
    return {summary(filled), summary(painted)};
}

} // namespace

int main(int argc, char** argv) {
    const double beforeMain = msSinceProcessStart();
    QElapsedTimer clock;
    clock.start();
    if (qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") &&
        qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    std::filesystem::current_path(LETTRINER_RUN_DIR);

    QApplication app(argc, argv);
    Form1 form(LETTRINER_RUN_DIR);
    FirstPaint firstPaint(clock);
    app.installEventFilter(&firstPaint);
    form.Form_Load();
    const double loaded = static_cast<double>(clock.nsecsElapsed()) / 1e6;
    app.removeEventFilter(&firstPaint);

    std::printf("platform: %s, words: %zu\n", qPrintable(QGuiApplication::platformName()),
                form.wordCount());
    std::printf("start-up: process start to main %.0f ms (10 ms resolution)\n", beforeMain);
    std::printf("start-up: main to window painted %.1f ms\n", firstPaint.at);
    std::printf("start-up: window painted to word list and letter values ready %.1f ms\n",
                loaded - firstPaint.at);

    // The cover must not be in the way of what is painted.
    QTimer::singleShot(0, &form, [&form] {
        while (form.LadeTakte() < 8)
            form.Timer2_Timer();
    });
    QCoreApplication::processEvents();

    const auto [pacedFilled, pacedPainted] = timeSearches(form, true, 20);
    const auto [everyFilled, everyPainted] = timeSearches(form, false, 5);
    std::printf("search, paced yield:      Enter to lists filled %.1f ms (median %.1f), "
                "painted %.1f ms (median %.1f); %lld + %lld rows\n",
                pacedFilled.best, pacedFilled.median, pacedPainted.best, pacedPainted.median,
                static_cast<long long>(form.mainList().rowCount()),
                static_cast<long long>(form.bonusList().rowCount()));
    std::printf("search, pass every word:  Enter to lists filled %.1f ms (median %.1f), "
                "painted %.1f ms (median %.1f)\n",
                everyFilled.best, everyFilled.median, everyPainted.best, everyPainted.median);
    std::printf("paced yield is %.1f times faster (medians, lists filled)\n",
                everyFilled.median / pacedFilled.median);

    // What start-up's loading costs without the window, for comparison.
    std::vector<double> loads;
    for (int i = 0; i < 5; ++i) {
        QElapsedTimer load;
        load.start();
        const lettriner::WordDatabase database = lettriner::DatenbankEinlesen("DB1.txt");
        const lettriner::PreparedWords words(database, lettriner::BewertungsFeldLaden());
        loads.push_back(static_cast<double>(load.nsecsElapsed()) / 1e6);
    }
    const Times load = summary(loads);
    std::printf("word list and letter values alone, no window: %.1f ms (median %.1f)\n", load.best,
                load.median);
    return 0;
}
