// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The word graph for the board window, loaded off the UI thread: read from
// the lexicon file beside the word list when it belongs to that list, else
// built in memory from the loaded list (a second or two), while the window
// stays responsive. buildingStarted() tells when the file could not be used
// and the longer build begins; finished() when the lexicon is ready.

#include "board/lexicon.h"
#include "board/lexicon_loading.h"
#include "data/word_database.h"

#include <QFutureWatcher>
#include <QObject>
#include <QString>
#include <filesystem>

namespace lettriner::ui {

struct LexiconResult {
    board::Lexicon lexicon;
    board::LexiconFileState fileState = board::LexiconFileState::Missing;
    // Set when even the build failed (memory ran out); the lexicon is empty.
    QString failure;
};

class LexiconLoader final : public QObject {
    Q_OBJECT

public:
    explicit LexiconLoader(QObject* parent = nullptr);
    // Waits for a load still running: it reads the database.
    ~LexiconLoader() override;

    // Starts the load, once; `database` must stay until finished() or the
    // loader's end.
    void start(const WordDatabase& database, std::filesystem::path wordListFile);
    [[nodiscard]] bool isStarted() const { return started_; }
    [[nodiscard]] bool isReady() const { return ready_; }
    // Valid once ready.
    [[nodiscard]] const LexiconResult& result() const { return result_; }
    // The lexicon file looked for, "DB1.lex".
    [[nodiscard]] static QString fileName();

Q_SIGNALS:
    void buildingStarted(board::LexiconFileState fileState);
    void finished();

private:
    QFutureWatcher<LexiconResult> watcher_;
    LexiconResult result_;
    bool started_ = false;
    bool ready_ = false;
};

} // namespace lettriner::ui
