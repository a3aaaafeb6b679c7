// SPDX-License-Identifier: GPL-3.0-or-later
// The board window as the main window opens it: F2 and the "Brett" button
// create it on first use and bring it to the front afterwards. Opened while
// the word list still loads, it waits: start-up hands it the words at its end.

#include "ui/board/board_window.h"
#include "ui/main/form1.h"

namespace lettriner::ui {

void Form1::openBoardWindow() {
    if (boardWindow_ == nullptr) {
        boardWindow_ = new BoardWindow;
        boardWindow_->setWindowIcon(windowIcon());
        connect(boardWindow_, &BoardWindow::aboutRequested, this, &Form1::openAboutBox);
        if (ladenFertig_)
            handWordsToBoardWindow();
    }
    boardWindow_->showBoard();
}

void Form1::handWordsToBoardWindow() {
    // Form_Load reads DB1.txt by that name from the current folder.
    if (boardWindow_ != nullptr)
        boardWindow_->useWords(words_, "DB1.txt");
}

} // namespace lettriner::ui
