#pragma once
// A main window started over a small word list in a fresh folder, the way
// the GUI tests need it: loaded, with its cover lifted, its exit replaced by
// a flag, and the current folder restored afterwards.

#include "support/temp_folder.h"
#include "ui/main/form1.h"

#include <QString>
#include <QStringList>
#include <memory>
#include <optional>
#include <string>

class QLineEdit;
class QTableView;

namespace lettriner::testing {

// Letter values of the test lists: R, A, N, E 1; H 2; M, D 3; S 1; X 8; Ä 6.
inline constexpr std::string_view kLetters =
    "R\r\nA\r\nH\r\nM\r\nE\r\nN\r\nD\r\nS\r\nX\r\n\xC4\r\n";
inline constexpr std::string_view kValues = "1\r\n1\r\n2\r\n3\r\n1\r\n1\r\n3\r\n1\r\n8\r\n6\r\n";

// With the rack RAHMEN, forbidden letters as designed and minimum 5 the
// search keeps RAHMEN 9 (the one bonus word), MEHR 7, RAHM 7, NAME 6,
// AMEN 6 and HARN 5; HEMD needs a D, nah is worth 4.
inline const QStringList kWords = {QStringLiteral("Rahmen"), QStringLiteral("Mehr"),
                                   QStringLiteral("Rahm"),   QStringLiteral("Name"),
                                   QStringLiteral("Amen"),   QStringLiteral("Harn"),
                                   QStringLiteral("Hemd"),   QStringLiteral("nah")};

// The words as DB1.txt bytes: Windows-1252, every line ended by CR LF.
[[nodiscard]] std::string wordFile(const QStringList& words);

class LoadedWindow {
public:
    // Writes the data files, enters the folder and runs the window's start-up.
    // With `liftCover` the cover's eight ticks are served at once.
    explicit LoadedWindow(const QStringList& words = kWords, bool liftCover = true);
    ~LoadedWindow();
    LoadedWindow(const LoadedWindow&) = delete;
    LoadedWindow& operator=(const LoadedWindow&) = delete;

    [[nodiscard]] ui::Form1& form() { return *form_; }
    [[nodiscard]] bool exitRequested() const { return exitRequested_; }

    [[nodiscard]] QLineEdit* field(const char* name) const;
    [[nodiscard]] QTableView* list(const char* name) const;
    [[nodiscard]] QWidget* control(const char* name) const;
    // Column 0 of every shown row of a result list.
    [[nodiscard]] QStringList words(const char* listName) const;

    // Types nothing: sets the rack text and presses Enter in the rack field.
    void searchWithRack(const QString& rack);

private:
    TempFolder folder_;
    std::optional<CurrentFolder> current_;
    std::unique_ptr<ui::Form1> form_;
    bool exitRequested_ = false;
};

} // namespace lettriner::testing
