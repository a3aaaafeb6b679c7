// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/data_loading.h"

#include "cli/message_text.h"
#include "data/file_contents.h"
#include "data/word_database.h"
#include "engine/letter_values.h"

#include <algorithm>
#include <system_error>

namespace lettriner::cli {
namespace {

namespace fs = std::filesystem;

std::string folderName(const fs::path& folder) {
    std::error_code error;
    const fs::path absolute = fs::absolute(folder, error);
    return messageText((error ? folder : absolute).string());
}

// Why a list in `folder` is of no use, or nothing when it holds words.
std::optional<std::string> uselessList(FileState state, const fs::path& folder) {
    switch (state) {
    case FileState::Empty:
        return "DB1.txt in " + folderName(folder) + " holds no words";
    case FileState::Unreadable:
        return "DB1.txt in " + folderName(folder) + " cannot be read";
    case FileState::Absent:
        return "DB1.txt not found in " + folderName(folder);
    case FileState::Readable:
        break;
    }
    return std::nullopt;
}

bool holdsWords(const WordDatabase& database) {
    for (std::size_t i = 0; i < database.size(); ++i) {
        if (database.length(i) > 0)
            return true;
    }
    return false;
}

void warnAboutLetterFiles(std::vector<std::string>& messages) {
    for (const char* name : {"Bewertung1.txt", "Bewertung2.txt"}) {
        std::string what;
        switch (fileState(name)) {
        case FileState::Absent:
            what = " not found in ";
            break;
        case FileState::Unreadable:
            what = " cannot be read in ";
            break;
        case FileState::Empty:
            what = " is empty in ";
            break;
        case FileState::Readable:
            continue;
        }
        messages.push_back(name + what + folderName(".") + ": every letter is worth 0");
    }
}

// Changes to the folder whose DB1.txt is read and gives its state; a failure
// goes into the report.
FileState enterDataFolder(const std::optional<std::string>& directory,
                          const std::optional<fs::path>& installed, LoadReport& report) {
    std::vector<std::string>& messages = report.messages;
    std::error_code error;
    if (directory) {
        fs::current_path(*directory, error);
        if (error) {
            messages.push_back("cannot change to " + messageText(*directory) + ": " +
                               error.message());
            report.failure = LoadFailure::CannotEnter;
            return FileState::Absent;
        }
    }
    FileState state = fileState("DB1.txt");
    if (!directory && state != FileState::Readable && installed &&
        fileState(*installed / "DB1.txt") == FileState::Readable) {
        // The current folder's empty list would shadow the installed one.
        if (state != FileState::Absent)
            messages.push_back(*uselessList(state, ".") + "; using the list in " +
                               folderName(*installed));
        fs::current_path(*installed, error);
        state = error ? FileState::Absent : fileState("DB1.txt");
    }
    if (state == FileState::Absent) {
        messages.push_back(*uselessList(state, ".") + (directory ? "" : "; use -C DIR"));
        report.failure = LoadFailure::NoWordList;
    }
    return state;
}

// The list in the current folder, with a warning when it holds no words;
// nullopt (and the failure reported) when memory is too short for it.
std::optional<WordDatabase> readWordList(FileState state, LoadReport& report) {
    WordDatabase database = DatenbankEinlesen("DB1.txt", {}, WhenAbsent::LeaveAbsent);
    if (state == FileState::Readable && database.empty()) {
        report.failure = LoadFailure::OutOfMemory;
        report.messages.push_back("out of memory: DB1.txt in " + folderName(".") + " does not fit");
        return std::nullopt;
    }
    if (state != FileState::Readable)
        report.messages.push_back(*uselessList(state, "."));
    else if (!holdsWords(database))
        report.messages.push_back(*uselessList(FileState::Empty, "."));
    return database;
}

} // namespace

LoadedData loadDataFiles(const std::optional<std::string>& directory,
                         const std::optional<fs::path>& installed) {
    LoadedData data;
    const FileState state = enterDataFolder(directory, installed, data);
    const std::optional<WordDatabase> database =
        data.failure == LoadFailure::None ? readWordList(state, data) : std::nullopt;
    if (!database)
        return data;
    warnAboutLetterFiles(data.messages);
    data.words = PreparedWords(*database, BewertungsFeldLaden({}, WhenAbsent::LeaveAbsent));
    if (!database->empty() && data.words.size() == 0) {
        data.failure = LoadFailure::OutOfMemory;
        data.messages.insert(data.messages.begin(), "out of memory: the words of DB1.txt in " +
                                                        folderName(".") + " do not fit");
    }
    return data;
}

LoadedBoardData loadBoardData(const std::optional<std::string>& directory,
                              const std::optional<fs::path>& installed) {
    LoadedBoardData data;
    const FileState state = enterDataFolder(directory, installed, data);
    if (data.failure != LoadFailure::None)
        return data;
    // A current lexicon file spares reading the list at all.
    board::LexiconFileCheck check = board::readLexiconFile(board::kLexiconFileName, "DB1.txt");
    if (check.state == board::LexiconFileState::Current) {
        data.lexicon = std::move(check.lexicon);
    } else {
        const std::optional<WordDatabase> database = readWordList(state, data);
        if (!database)
            return data;
        board::LoadedLexicon loaded =
            board::loadLexicon(board::kLexiconFileName, "DB1.txt", *database);
        if (!loaded.note.empty())
            data.messages.push_back(loaded.note);
        data.lexicon = std::move(loaded.lexicon);
    }
    warnAboutLetterFiles(data.messages);
    data.values = board::TileValues(BewertungsFeldLaden({}, WhenAbsent::LeaveAbsent));
    return data;
}

} // namespace lettriner::cli
