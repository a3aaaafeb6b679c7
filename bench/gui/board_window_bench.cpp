// SPDX-License-Identifier: GPL-3.0-or-later
// lettriner-board-gui-bench: how soon the board window is painted after F2
// in the main window, and how long a search takes from Enter until the move
// list is filled and painted, on the mid-game positions of
// bench/positions.cgp with the shipped word list. Run from anywhere: it works
// in the run folder, and keeps its saved position in a temporary data folder.
// Without a display it draws offscreen.

#include "ui/board/board_view.h"
#include "ui/board/board_window.h"
#include "ui/board/move_list_model.h"
#include "ui/main/form1.h"

#include <QApplication>
#include <QClipboard>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTimer>
#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace {

using lettriner::ui::BoardWindow;
using lettriner::ui::Form1;

struct Times {
    double best = 0;
    double median = 0;
    double worst = 0;
};

Times summary(std::vector<double> samples) {
    std::sort(samples.begin(), samples.end());
    return {samples.front(), samples[samples.size() / 2], samples.back()};
}

double msSince(const QElapsedTimer& clock) {
    return static_cast<double>(clock.nsecsElapsed()) / 1e6;
}

// Whether a widget of the board window has been sent a paint event.
class BoardPaint : public QObject {
public:
    bool seen = false;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint && watched->isWidgetType() &&
            qobject_cast<BoardWindow*>(static_cast<QWidget*>(watched)->window()) != nullptr)
            seen = true;
        return QObject::eventFilter(watched, event);
    }
};

void pressF2(Form1& form) {
    auto* rack = form.findChild<QLineEdit*>(QStringLiteral("txtBuchstaben"));
    rack->setFocus();
    QKeyEvent f2(QEvent::KeyPress, Qt::Key_F2, Qt::NoModifier);
    QCoreApplication::sendEvent(rack, &f2);
}

// F2 until the board window has painted: until the pass over the event
// loop that painted it has returned, so the painting itself counts. The first
// open of each main window creates the window, the others show it again.
std::pair<Times, Times> timeOpening(int windows, int reopenings) {
    std::vector<double> first;
    std::vector<double> again;
    for (int i = 0; i < windows; ++i) {
        Form1 form(LETTRINER_RUN_DIR);
        form.setExitHandler([] {});
        form.Form_Load();
        while (form.LadeTakte() < 8)
            form.Timer2_Timer();
        QCoreApplication::processEvents();
        for (int time = 0; time <= reopenings; ++time) {
            BoardPaint paint;
            qApp->installEventFilter(&paint);
            QElapsedTimer clock;
            clock.start();
            pressF2(form);
            while (!paint.seen && clock.elapsed() < 5000)
                QCoreApplication::processEvents();
            (time == 0 ? first : again).push_back(msSince(clock));
            qApp->removeEventFilter(&paint);
            form.boardWindow()->close();
            QCoreApplication::processEvents();
        }
        // The word graph finishes loading before the main window goes.
        while (!form.boardWindow()->lexiconReady())
            QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    }
    return {summary(first), summary(again)};
}

struct NamedPosition {
    std::string name;
    std::string cgp;
};

std::vector<NamedPosition> midGamePositions() {
    std::vector<NamedPosition> positions;
    std::ifstream in(LETTRINER_BOARD_POSITIONS);
    for (std::string line; std::getline(in, line);) {
        const std::size_t space = line.find(' ');
        if (line.rfind("mid-", 0) == 0 && space != std::string::npos)
            positions.push_back({line.substr(0, space), line.substr(space + 1)});
    }
    return positions;
}

// Enter on the board until the list is filled, and until it is painted too.
std::pair<Times, Times> timeSearches(BoardWindow& window, int repetitions) {
    std::vector<double> filled;
    std::vector<double> painted;
    auto& board = window.boardView();
    for (int i = 0; i < repetitions; ++i) {
        board.setFocus();
        QCoreApplication::processEvents();
        QElapsedTimer clock;
        clock.start();
        QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"));
        QCoreApplication::sendEvent(&board, &enter);
        filled.push_back(msSince(clock));
        QCoreApplication::processEvents();
        painted.push_back(msSince(clock));
    }
    return {summary(filled), summary(painted)};
}

// The offscreen platform's notes on what it cannot do would bury the figures.
void quietPlatformNotes(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    if (!text.startsWith(QStringLiteral("This plugin does not support")))
        std::fprintf(stderr, "%s\n", qPrintable(qFormatLogMessage(type, context, text)));
}

} // namespace

int main(int argc, char** argv) {
    qInstallMessageHandler(quietPlatformNotes);
    if (qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") &&
        qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    std::filesystem::current_path(LETTRINER_RUN_DIR);
    QTemporaryDir dataFolder;
    qputenv("XDG_DATA_HOME", dataFolder.path().toUtf8());
    QApplication app(argc, argv);
    std::printf("platform: %s\n", qPrintable(QGuiApplication::platformName()));

    const auto [first, again] = timeOpening(5, 10);
    std::printf("F2 to board window painted, first open: %.1f ms (median %.1f, worst %.1f)\n",
                first.best, first.median, first.worst);
    std::printf("F2 to board window painted, opened again: %.1f ms (median %.1f, worst %.1f)\n",
                again.best, again.median, again.worst);

    Form1 form(LETTRINER_RUN_DIR);
    form.setExitHandler([] {});
    form.Form_Load();
    form.openBoardWindow();
    BoardWindow& window = *form.boardWindow();
    QElapsedTimer loading;
    loading.start();
    while (!window.lexiconReady())
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    std::printf("word graph ready %.0f ms after F2 (no DB1.lex: built in memory)\n",
                msSince(loading));

    std::printf("search, Enter to move list filled and painted (best / median / worst, ms):\n");
    double worstMedian = 0;
    for (const NamedPosition& position : midGamePositions()) {
        QGuiApplication::clipboard()->setText(QString::fromStdString(position.cgp));
        window.pastePosition();
        const auto [filled, painted] = timeSearches(window, 20);
        worstMedian = std::max(worstMedian, painted.median);
        std::printf("  %-16s filled %5.1f / %5.1f / %5.1f   painted %5.1f / %5.1f / %5.1f   %d "
                    "moves listed\n",
                    position.name.c_str(), filled.best, filled.median, filled.worst, painted.best,
                    painted.median, painted.worst, window.moveList().rowCount());
    }
    std::printf("slowest median, Enter to list painted: %.1f ms\n", worstMedian);
    return 0;
}
