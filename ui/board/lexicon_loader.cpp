// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/board/lexicon_loader.h"

#include "board/playable_words.h"
#include "ui/board/board_texts.h"

#include <QtConcurrent/QtConcurrentRun>
#include <exception>
#include <new>

namespace lettriner::ui {

namespace b = lettriner::board;

LexiconLoader::LexiconLoader(QObject* parent) : QObject(parent) {
    connect(&watcher_, &QFutureWatcher<LexiconResult>::finished, this, [this] {
        result_ = watcher_.result();
        ready_ = true;
        Q_EMIT finished();
    });
}

LexiconLoader::~LexiconLoader() {
    watcher_.waitForFinished();
}

QString LexiconLoader::fileName() {
    return fromUtf8(b::kLexiconFileName);
}

void LexiconLoader::start(const WordDatabase& database, std::filesystem::path wordListFile) {
    if (started_)
        return;
    started_ = true;
    const std::filesystem::path lexiconFile = wordListFile.parent_path() / b::kLexiconFileName;
    watcher_.setFuture(QtConcurrent::run([this, &database, wordListFile, lexiconFile] {
        LexiconResult result;
        try {
            b::LexiconFileCheck check = b::readLexiconFile(lexiconFile, wordListFile);
            result.fileState = check.state;
            if (check.state == b::LexiconFileState::Current) {
                result.lexicon = std::move(check.lexicon);
                return result;
            }
            // Emitted from this thread; the window gets it through its event loop.
            Q_EMIT buildingStarted(check.state);
            result.lexicon = b::buildLexicon(b::playableWords(database));
        } catch (const std::bad_alloc&) {
            result.lexicon = {};
            result.failure = QStringLiteral("Für den Wortgraphen reicht der Speicher nicht: "
                                            "ohne ihn findet das Brett keine Züge.");
        } catch (const std::exception& error) {
            // Nothing thrown may reach the UI thread, where result() would rethrow it.
            result.lexicon = {};
            result.failure = QStringLiteral("Der Wortgraph ließ sich nicht aufbauen (%1): ohne "
                                            "ihn findet das Brett keine Züge.")
                                 .arg(QString::fromLocal8Bit(error.what()));
        }
        return result;
    }));
}

} // namespace lettriner::ui
