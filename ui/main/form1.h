// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The main window: the input frame on the left, the result lists on the
// right, the banner above both, and the green cover that hides the frames
// while the word list loads. It owns the search and drives it through the
// SearchWindow hooks: the run yields to the event loop, paced so that a pass
// happens every few milliseconds rather than after every word.
//
// Its code, a file per job:
//   form1.cpp          the controls as designed: places, texts, tab order, names
//   form1_startup.cpp  start-up under the loading cover, the cover, shutdown
//   form1_keys.cpp     the keys: Enter, Esc, F1 and F2, each its own handler
//   form1_pointer.cpp  the banner's border following the pointer
//   form1_lists.cpp    the result lists, the bonus list's place, header sorts
//   form1_search.cpp   the search and stop buttons and the run's hooks
//   form1_board.cpp    the board window: opened by F2 and "Brett", given the words

#include "engine/prepared_words.h"
#include "engine/search_run.h"
#include "ui/main/input_fields.h"
#include "ui/main/paced_yield.h"
#include "ui/shared/twips.h"

#include <QWidget>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>

class QFrame;
class QLabel;
class QLineEdit;
class QPushButton;
class QTableView;
class QTimer;

namespace lettriner {
class frmAbout;
}

namespace lettriner::ui {

class Banner;
class BoardWindow;
class LoadingCover;
class ProgressBox;
class ResultTableModel;

class Form1 final : public QWidget {
    Q_OBJECT

public:
    // `programFolder` holds Settings.txt; the word list and the letter values
    // are read by bare name from the current folder.
    explicit Form1(std::filesystem::path programFolder, QWidget* parent = nullptr);
    ~Form1() override;

    // Start-up, once: lays out the window, covers it, shows it, reads the
    // data files (serving events while it does) and marks loading finished.
    // Every missing file is tolerated; it always gets to the end.
    void Form_Load();

    [[nodiscard]] std::int32_t SortRichtung() const { return sortRichtung_; }
    [[nodiscard]] std::int16_t LadeTakte() const { return ladeTakte_; }
    [[nodiscard]] bool isSearching() const { return run_.isRunning(); }
    [[nodiscard]] std::size_t wordCount() const { return words_.size(); }

    [[nodiscard]] ResultTableModel& mainList() const { return *model1_; }
    [[nodiscard]] ResultTableModel& bonusList() const { return *model2_; }
    // Null until first opened.
    [[nodiscard]] lettriner::frmAbout* aboutBox() const { return frmAbout_; }
    [[nodiscard]] BoardWindow* boardWindow() const { return boardWindow_; }

    // False: a full pass over the event loop after every word, the slow way a
    // benchmark compares against. True (the default): paced passes.
    void setPacedYield(bool paced) { paced_ = paced; }

    // What a close request does; the default ends the process at once.
    void setExitHandler(std::function<void()> exitNow) { exitNow_ = std::move(exitNow); }

    // The outer height start-up gives the window, frame included, in twips.
    [[nodiscard]] static int outerHeightTwips();

public slots:
    void cmdSuchen_Click();
    void cmdStop_Click();
    void Timer1_Timer();
    void Timer2_Timer();
    void CheckerVerstecken();
    void CheckerAnschalten();
    // F1, "?" and the banner: the about box, created on first use, then shown again.
    void openAboutBox();
    // F2 and "Brett": the board window, created on first use, then shown
    // again; opened under the loading cover, it gets the words once loaded.
    void openBoardWindow();

protected:
    void closeEvent(QCloseEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    class Search;
    friend class Search;

    void buildInputFrame();
    void buildResultFrame();
    void buildBanner();
    void setTabOrder();
    void ListViewAussehen(QTableView& liste);
    void ListViewSpalten(QTableView& liste);
    void AbständeFestlegen();
    void ListView1_ColumnClick(int column);
    void placeLists();
    // The client keeps its designed width; its height makes the outer height,
    // whatever frame the window manager adds.
    void nameForScreenReaders();
    void fitOuterHeight();
    [[nodiscard]] QSize nonClientSize() const;
    [[nodiscard]] QSize outerSizeTwips() const;
    // Key preview: Enter, Esc and F1 for the whole window, before the focused
    // control. Each handler returns whether it consumed the key.
    bool previewKey(const QKeyEvent& key);
    bool onEnterKey();
    bool onEscapeKey();
    bool onF1Key();
    bool onF2Key();
    // Start-up's end: the board window, if already open, gets the words.
    void handWordsToBoardWindow();
    void pointerMovedOverFrame(const QWidget& frame, const QMouseEvent& move);
    void yieldToEvents();

    std::filesystem::path programFolder_;

    Banner* Picture1_ = nullptr;
    QPushButton* cmdInfo_ = nullptr;
    QPushButton* cmdBrett_ = nullptr;
    LoadingCover* Frame3_ = nullptr;
    QFrame* Frame1_ = nullptr;
    QFrame* Frame2_ = nullptr;
    LetterField* txtBuchstaben_ = nullptr;
    QLineEdit* txtConst_ = nullptr;
    LetterField* txtPflichtbuchstaben_ = nullptr;
    QLineEdit* txtMindestWert_ = nullptr;
    LetterField* txtVerboteneBuchstaben_ = nullptr;
    QLineEdit* txtMaxUB_ = nullptr;
    QLabel* lblDBCount_ = nullptr;
    QPushButton* cmdSuchen_ = nullptr;
    QPushButton* cmdStop_ = nullptr;
    QTableView* ListView1_ = nullptr;
    QTableView* ListView2_ = nullptr;
    ResultTableModel* model1_ = nullptr;
    ResultTableModel* model2_ = nullptr;
    ProgressBox* picProgress_ = nullptr;
    QLineEdit* txtSuchZeit_ = nullptr;
    QLabel* lblInfos_ = nullptr;
    QTimer* Timer1_ = nullptr;
    QTimer* Timer2_ = nullptr;
    lettriner::frmAbout* frmAbout_ = nullptr;
    // A window of its own, not a child: deleted by the destructor, before the
    // words its word graph is loaded from.
    BoardWindow* boardWindow_ = nullptr;

    LineEditNumberField minimumValue_;
    LineEditNumberField fieldSize_;

    // Where the result lists lie in Frame2, in twips; the bonus list moves them.
    TwipsRect list1_;
    TwipsRect list2_;

    bool ladenFertig_ = false;
    std::int16_t ladeTakte_ = 0;
    std::int16_t listenAbstand_ = 0;
    std::int32_t sortRichtung_ = 0;
    // The language of Settings.txt. Read at start-up, which also writes the
    // settings file when it is absent, as documented; nothing shows a message
    // in another language yet, so nothing reads it afterwards.
    std::int16_t sprache_ = 0;

    lettriner::PreparedWords words_;
    lettriner::SearchRun run_{words_};
    std::unique_ptr<Search> search_;
    PacedYield pacer_;
    bool paced_ = true;
    std::function<void()> exitNow_;
};

} // namespace lettriner::ui
