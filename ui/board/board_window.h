// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The board window: the board, the rack, the best moves of the position in a
// list, each previewed on the board when selected and laid on request. A
// top-level window of its own, modeless; closing it hides it. The main
// window creates it once (F2, "Brett") and hands it the loaded word list;
// until then, and while the word graph loads, a search waits.
//
// Its code, a file per job:
//   board_window.cpp           the controls, their names, tab order and layout
//   board_window_keys.cpp      Enter, F1 and Ctrl+Z for the whole window
//   board_window_search.cpp    the word graph's loading, the search, preview, laying
//   board_window_position.cpp  edits, clearing, undo, copy and paste, saving, warnings

#include "board/position_text.h"
#include "board/tile_values.h"
#include "engine/prepared_words.h"
#include "ui/board/position_history.h"

#include <QWidget>
#include <cstdint>
#include <filesystem>

class QKeyEvent;
class QLabel;
class QProgressBar;
class QPushButton;
class QTableView;

namespace lettriner::board {
// Forward only: the board library's headers behind these clash with Qt's
// "slots" keyword, and the main window's files use the keywords.
struct Lexicon;
enum class LexiconFileState : std::uint8_t;
} // namespace lettriner::board

namespace lettriner::ui {

class BoardView;
class LexiconLoader;
class MoveListModel;
class RackField;

class BoardWindow final : public QWidget {
    Q_OBJECT

public:
    // How many of the best moves the list shows.
    static constexpr std::size_t kShownMoves = 100;

    // Restores the saved position. Searching waits for useWords().
    explicit BoardWindow(QWidget* parent = nullptr);
    ~BoardWindow() override;

    // The word list and letter values the main window loaded from
    // `wordListFile`; `words` must outlive the window. Loads the word graph
    // (from the file beside the list, or built in memory) off the UI thread.
    // Only the first call counts.
    void useWords(const PreparedWords& words, const std::filesystem::path& wordListFile);

    // Shows the window in front, the board with the keyboard focus.
    void showBoard();

    [[nodiscard]] board::Position position() const;
    [[nodiscard]] bool lexiconReady() const;
    [[nodiscard]] const board::Lexicon& lexicon() const;
    [[nodiscard]] BoardView& boardView() const { return *board_; }
    [[nodiscard]] MoveListModel& moveList() const { return *moves_; }

public Q_SLOTS:
    // Enter, "Züge suchen": the best moves for the position and the rack.
    void search();
    // Double-click, Enter in the move list, "Legen": lays the current move.
    void layMove();
    // "Leeren": every tile off the board.
    void clearBoard();
    // Ctrl+Z, "Rückgängig": the position before the last clear, laid move or paste.
    void undo();
    // Ctrl+C and Ctrl+V on the board: the position as CGP text.
    void copyPosition();
    void pastePosition();

Q_SIGNALS:
    // F1: the about box, which the main window owns.
    void aboutRequested();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void buildControls();
    void layOut();
    void nameForScreenReaders();
    void setTabOrder();
    [[nodiscard]] QString helpText() const;

    // Keys (board_window_keys.cpp).
    bool previewKey(const QKeyEvent& key);
    void onEnterKey();

    // Search (board_window_search.cpp).
    void lexiconBuildingStarted(board::LexiconFileState fileState);
    void lexiconFinished();
    void showPreview();
    void forgetMoves();

    // Position (board_window_position.cpp).
    void setPosition(const board::Position& position);
    void positionEdited();
    void save();
    void refreshWarnings();
    void say(const QString& message, const QString& detail = QString());
    void updateButtons();

    BoardView* board_ = nullptr;
    RackField* rackField_ = nullptr;
    QPushButton* searchButton_ = nullptr;
    QPushButton* layButton_ = nullptr;
    QPushButton* clearButton_ = nullptr;
    QPushButton* undoButton_ = nullptr;
    QPushButton* helpButton_ = nullptr;
    QTableView* moveView_ = nullptr;
    MoveListModel* moves_ = nullptr;
    QLabel* rackLabel_ = nullptr;
    QLabel* movesLabel_ = nullptr;
    QLabel* help_ = nullptr;
    QLabel* status_ = nullptr;
    QLabel* warnings_ = nullptr;
    QLabel* lexiconStatus_ = nullptr;
    QProgressBar* progress_ = nullptr;
    LexiconLoader* loader_ = nullptr;

    const PreparedWords* words_ = nullptr;
    board::TileValues values_;
    PositionHistory history_;
    bool searchPending_ = false;
    QString lastSaveError_;
};

} // namespace lettriner::ui
