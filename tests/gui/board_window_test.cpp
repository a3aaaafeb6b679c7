// SPDX-License-Identifier: GPL-3.0-or-later
// The board window as a player uses it, headless: positions typed square by
// square, racks, searches compared with the move generator on the shipped
// word list, previews, laying, undo, the saved position, pasted text, the
// word graph's loading, and the main window's ways to open it.

#include "board/lexicon_loading.h"
#include "board/move_generator.h"
#include "board/move_text.h"
#include "board/position_text.h"
#include "data/word_database.h"
#include "engine/letter_values.h"
#include "engine/prepared_words.h"
#include "support/temp_folder.h"
#include "ui/about/about_box.h"
#include "ui/board/board_geometry.h"
#include "ui/board/board_view.h"
#include "ui/board/board_window.h"
#include "ui/board/move_list_model.h"
#include "ui/board/position_store.h"
#include "ui/board/rack_field.h"
#include "ui/main/form1.h"

#include <QAbstractItemModelTester>
#include <QAccessible>
#include <QClipboard>
#include <QCollator>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTableView>
#include <QTest>
#include <QTimer>
#include <QToolTip>
#include <algorithm>
#include <cmath>

using namespace lettriner;
using namespace lettriner::testing;
using namespace lettriner::ui;
namespace b = lettriner::board;

namespace {

const std::filesystem::path kRunFolder = LETTRINER_RUN_DIR;

// The shipped list and letter values with the word graph written beside a
// copy of the list, so that every window reads it from the file at once; the
// test's own lexicon is the same file read again.
struct ShippedWords {
    TempFolder folder;
    PreparedWords words;
    b::Lexicon lexicon;
    b::TileValues values;

    ShippedWords() {
        // The letter values too, for a main window started in this folder.
        for (const char* file : {"DB1.txt", "Bewertung1.txt", "Bewertung2.txt"})
            std::filesystem::copy_file(kRunFolder / file, folder / file);
        std::string error;
        if (!b::writeLexiconFileFor(folder / "DB1.txt", folder / "DB1.lex", error))
            qFatal("cannot write the word graph: %s", error.c_str());
        words =
            PreparedWords(DatenbankEinlesen(folder / "DB1.txt"), BewertungsFeldLaden(kRunFolder));
        lexicon = b::readLexiconFile(folder / "DB1.lex", folder / "DB1.txt").lexicon;
        values = b::TileValues(words.values());
    }
};

ShippedWords& shipped() {
    static ShippedWords words;
    return words;
}

b::Position cgp(const QString& text) {
    const b::PositionRead read = b::readCgp(text.toStdString());
    if (!read.error.empty())
        qFatal("bad test position: %s", read.error.c_str());
    return read.position;
}

QString cgpOf(const b::Position& position) {
    return QString::fromStdString(b::writeCgp(position));
}

// The user's data folder, fresh for each test, with board.cgp holding `saved`.
struct DataFolder {
    explicit DataFolder(const QString& saved = {}) {
        qputenv("XDG_DATA_HOME", QByteArray::fromStdString(folder.path().string()));
        if (!saved.isNull()) {
            std::filesystem::create_directories(
                std::filesystem::path(positionFilePath().toStdString()).parent_path());
            QFile file(positionFilePath());
            file.open(QIODevice::WriteOnly);
            file.write(saved.toUtf8());
        }
    }
    [[nodiscard]] static QString savedText() {
        QFile file(positionFilePath());
        file.open(QIODevice::ReadOnly);
        return QString::fromUtf8(file.readAll()).trimmed();
    }
    TempFolder folder;
};

// One key of a row's space-separated keys, sent to `target`: a named key,
// "Shift+x" (a blank on the board), "Ctrl+X", or the text typed (upper case
// without Shift is what Caps Lock sends).
void sendKey(QWidget* target, const QString& key) {
    static const QMap<QString, Qt::Key> named = {{"Backspace", Qt::Key_Backspace},
                                                 {"Delete", Qt::Key_Delete},
                                                 {"Left", Qt::Key_Left},
                                                 {"Right", Qt::Key_Right},
                                                 {"Up", Qt::Key_Up},
                                                 {"Down", Qt::Key_Down},
                                                 {"Space", Qt::Key_Space},
                                                 {"Tab", Qt::Key_Tab},
                                                 {"Enter", Qt::Key_Return},
                                                 {"F2", Qt::Key_F2}};
    if (named.contains(key))
        QTest::sendKeyEvent(QTest::Click, target, named[key], key == "Space" ? " " : "", {});
    else if (key.startsWith("Shift+"))
        QTest::sendKeyEvent(QTest::Click, target, Qt::Key_unknown, key.mid(6), Qt::ShiftModifier);
    else if (key.startsWith("Ctrl+"))
        QTest::sendKeyEvent(QTest::Click, target, Qt::Key_X, "\x18", Qt::ControlModifier);
    else
        QTest::sendKeyEvent(QTest::Click, target, Qt::Key_unknown, key, {});
}

// A board window over the shipped list, shown, active and ready to search.
struct OpenBoard {
    explicit OpenBoard(const QString& saved = {}) : data(saved) {
        window.useWords(shipped().words, shipped().folder / "DB1.txt");
        window.showBoard();
        window.activateWindow();
        if (!QTest::qWaitForWindowActive(&window))
            qWarning("the board window did not become active");
        if (!QTest::qWaitFor([this] { return window.lexiconReady(); }, 60000))
            qWarning("the word graph did not load");
    }

    template <class T = QWidget> T* get(const QString& name) { return window.findChild<T*>(name); }
    BoardView& view() { return window.boardView(); }
    RackField* rack() { return get<RackField>("rack"); }
    QTableView* moves() { return get<QTableView>("moves"); }
    QString status() { return get<QLabel>("status")->text(); }

    // Keys go where the focus is, as they would for the player.
    void key(QWidget* target, Qt::Key key, Qt::KeyboardModifiers modifiers = {},
             const QString& text = {}) {
        target->setFocus();
        QTest::sendKeyEvent(QTest::Click, target, key, text, modifiers);
    }
    void clickSquare(int row, int column) {
        const QPointF centre = view().geometryNow().squareRect(row, column).center();
        QTest::mouseClick(&view(), Qt::LeftButton, {}, centre.toPoint());
    }
    // Keys for the board as sendKey() takes them, and "Click:C3" on a square,
    // "Menu:Entry" for the context menu key and its entry starting so.
    void typeOnBoard(const QString& keys) {
        for (const QString& key : keys.split(' ', Qt::SkipEmptyParts)) {
            view().setFocus();
            if (key.startsWith("Click:")) {
                const QString square = key.mid(6);
                clickSquare(square.mid(1).toInt() - 1, square[0].unicode() - u'A');
            } else if (key.startsWith("Menu:")) {
                const QString entry = key.mid(5);
                QTimer::singleShot(0, &window, [entry] {
                    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
                    QVERIFY(menu != nullptr);
                    for (QAction* action : menu->actions())
                        if (action->text().startsWith(entry))
                            action->trigger();
                    menu->close();
                });
                QContextMenuEvent menu(QContextMenuEvent::Keyboard, QPoint(), QPoint());
                QApplication::sendEvent(&view(), &menu);
            } else {
                sendKey(&view(), key);
            }
        }
    }
    // Every tile typed: a click on each across run's first square, then its letters,
    // Shift held for a blank.
    void typeBoard(const b::Board& board) {
        for (int row = 0; row < b::kBoardSize; ++row) {
            for (int column = 0; column < b::kBoardSize; ++column) {
                const b::Tile tile = board.at(row, column);
                if (tile == b::kEmpty)
                    continue;
                if (column == 0 || board.at(row, column - 1) == b::kEmpty) {
                    clickSquare(row, column);
                    if (view().direction() != b::Direction::Across)
                        key(&view(), Qt::Key_Space, {}, " ");
                }
                const QString letter = QString::fromUtf8(b::letterUtf8(b::letterOf(tile)));
                if (b::isBlank(tile))
                    key(&view(), Qt::Key_unknown, Qt::ShiftModifier, letter);
                else
                    key(&view(), Qt::Key_unknown, {}, letter.toLower());
            }
        }
    }
    void typeRack(const QString& tiles) {
        rack()->setFocus();
        rack()->selectAll();
        QTest::keyClick(rack(), Qt::Key_Backspace);
        for (const QChar tile : tiles)
            QTest::sendKeyEvent(QTest::Click, rack(), Qt::Key_unknown, QString(tile), {});
    }
    std::vector<b::Move> listedMoves() {
        std::vector<b::Move> listed;
        for (int row = 0; row < window.moveList().rowCount(); ++row)
            listed.push_back(window.moveList().row(row)->move);
        return listed;
    }

    DataFolder data;
    BoardWindow window;
    QAbstractItemModelTester checked{&window.moveList()};
};

QString describe(const b::Move& move) {
    return QString::fromStdString(b::moveCoordinate(move) + " " + b::moveWord(move) + " " +
                                  std::to_string(move.score));
}

QString describe(const std::vector<b::Move>& moves) {
    QStringList texts;
    for (const b::Move& move : moves)
        texts.append(describe(move));
    return texts.join(", ");
}

// The tiles on the board as "H8:H I8:a", row by row; blanks lower case.
QString tilesOf(const b::Board& board) {
    QStringList tiles;
    for (int row = 0; row < b::kBoardSize; ++row)
        for (int column = 0; column < b::kBoardSize; ++column)
            if (const b::Tile tile = board.at(row, column); tile != b::kEmpty)
                tiles.append(QString::fromStdString(b::squareName(row, column)) + ':' +
                             QString::fromUtf8(b::tileUtf8(tile)));
    return tiles.join(' ');
}

// Positions from bench/positions.cgp (games of the shipped list).
const QString kNoBlank = "15/VENTIL9/4R10/GEBAR10/4S2A7/4TÖ1S7/5D1T7/3FLEHE7/5R1R7/3SEE1O7/"
                         "2BOT2I7/7D7/15/15/15 EINRSTL/ 0/0 0";
const QString kOneBlank = "15/5H9/2JENES8/5G9/2FADE9/2A12/2X12/RÖTE2HM7/3RAUM8/3W11/3O1Z9/"
                          "3G1I2KNIEND1/HUSTEN2E6/5K2I6/3VIELEN6 ACEGLN?/ 0/0 0";
const QString kTwoBlanks = "15/12P2/12I2/7RÖSTEN2/7Ä4S2/4V2NY6/4E2DE6/A2BRÜHENDEM3/N3H2R7/"
                           "H3A2T7/O1T1U1SEILS4/BEINE10/2E1SEKT7/2F12/CREWS10 ADER??N/ 0/0 0";
const QString kBlankOnBoard = "15/15/8E6/3E4G6/3I4G6/3NACKTEM5/3T2Ä2O5/DUZE1FLUSS5/3I2T2T5/"
                              "3L1HELMS5/3E3O7/2ANRUFS7/7E7/7S7/7T7 DEIMNR?/ 0/0 0";

} // namespace

class BoardWindowTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() {
        QApplication::setEffectEnabled(Qt::UI_AnimateTooltip, false);
        shipped();
    }

    // What the player types is what the board holds, and the list is the
    // generator's: the top row its best move, the rest in its order.
    void typedPositionTopMoveIsTheBest_data() {
        QTest::addColumn<QString>("position");
        QTest::newRow("empty board, seven tiles") << "15/15/15/15/15/15/15/15/15/15/15/15/15/15/15 "
                                                     "ENTSAGR/ 0/0 0";
        QTest::newRow("mid-game, no blank") << kNoBlank;
        QTest::newRow("mid-game, a blank on the rack, umlauts on the board") << kOneBlank;
        QTest::newRow("mid-game, two blanks on the rack") << kTwoBlanks;
        QTest::newRow("a blank lying on the board")
            << kBlankOnBoard.section(' ', 0, 0).replace("DUZE", "DUzE") + " DEIMNR?/ 0/0 0";
    }
    void typedPositionTopMoveIsTheBest() {
        QFETCH(QString, position);
        const b::Position wanted = cgp(position);
        OpenBoard w;
        w.typeBoard(wanted.board);
        w.typeRack(QString::fromStdString(b::rackText(wanted.rack)));
        QCOMPARE(cgpOf(w.window.position()), cgpOf(wanted));

        w.key(w.rack(), Qt::Key_Return);
        const std::vector<b::Move> best = b::bestMoves(wanted.board, wanted.rack, shipped().lexicon,
                                                       shipped().values, BoardWindow::kShownMoves);
        QVERIFY(!best.empty());
        const MoveListModel& list = w.window.moveList();
        QCOMPARE(QStringList({list.cell(0, MoveListModel::Zug), list.cell(0, MoveListModel::Wort),
                              list.cell(0, MoveListModel::Punkte)})
                     .join(' '),
                 describe(best[0]));
        QCOMPARE(describe(w.listedMoves()), describe(best));
        // The best move is previewed, the board itself unchanged, and the list
        // has the focus so that Enter lays it.
        QCOMPARE(describe(*w.view().preview()), describe(best[0]));
        QCOMPARE(cgpOf(w.window.position()), cgpOf(wanted));
        QCOMPARE(w.window.focusWidget(), w.moves());
    }

    void typingOnTheBoard_data() {
        QTest::addColumn<QString>("keys"); // space-separated; see type() below
        QTest::addColumn<QString>("tiles");
        QTest::addColumn<QString>("cursor");
        // clang-format off
        QTest::newRow("letters go across from H8")    << "h a u s"               << "H8:H I8:A J8:U K8:S" << "L8";
        QTest::newRow("Space turns the writing down") << "Space a b"             << "H8:A H9:B"           << "H10";
        QTest::newRow("a second click turns it too")  << "Click:C3 Click:C3 a b" << "C3:A C4:B"           << "C5";
        QTest::newRow("Shift with a letter: a blank") << "h Shift+A s"           << "H8:H I8:a J8:S"      << "K8";
        QTest::newRow("Caps Lock alone: no blank")    << "A B"                   << "H8:A I8:B"           << "J8";
        QTest::newRow("? then a letter: a blank")     << "? e n"                 << "H8:e I8:N"           << "J8";
        QTest::newRow("ß: S and S on two squares")    << "m a ß e"               << "H8:M I8:A J8:S K8:S L8:E" << "M8";
        QTest::newRow("umlauts typed directly")       << "ä Shift+Ö ü"           << "H8:Ä I8:ö J8:Ü"      << "K8";
        QTest::newRow("Backspace: the tile before")   << "h a u s Backspace"     << "H8:H I8:A J8:U"      << "K8";
        QTest::newRow("Delete: the tile under")       << "h a u s Left Left Delete" << "H8:H I8:A K8:S"   << "J8";
        QTest::newRow("arrows move, lay nothing")     << "Up Up Right x"         << "I6:X"                << "J6";
        QTest::newRow("typing on a tile replaces it") << "h a Left Left e"       << "H8:E I8:A"           << "I8";
        QTest::newRow("the edge keeps the cursor")    << "Click:N8 a b c"        << "N8:A O8:C"           << "O8";
        QTest::newRow("Backspace at the edge")        << "Click:N8 a b Backspace" << "N8:A"               << "O8";
        QTest::newRow("menu Blanko on a tile")         << "e Left Menu:Blanko"    << "H8:e"                << "H8";
        QTest::newRow("menu Blanko, then a letter")    << "Menu:Blanko e n"       << "H8:e I8:N"           << "J8";
        QTest::newRow("menu Stein entfernen")          << "e Left Menu:Stein"     << ""                    << "H8";
        QTest::newRow("Backspace at A1 does nothing") << "Click:A1 Backspace"    << ""                    << "A1";
        QTest::newRow("digits, signs, Ctrl+letter")   << "1 - Ctrl+X"            << ""                    << "H8";
        // clang-format on
    }
    void typingOnTheBoard() {
        QFETCH(QString, keys);
        QFETCH(QString, tiles);
        QFETCH(QString, cursor);
        OpenBoard w;
        int edits = 0;
        connect(&w.view(), &BoardView::edited, this, [&edits] { ++edits; });
        w.typeOnBoard(keys);
        QCOMPARE(tilesOf(w.view().board()), tiles);
        QCOMPARE(
            QString::fromStdString(b::squareName(w.view().cursor().row, w.view().cursor().column)),
            cursor);
        // Every change is saved at once.
        QCOMPARE(DataFolder::savedText(), edits == 0 ? QString() : cgpOf(w.window.position()));
    }

    void rackField_data() {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("shown");
        // clang-format off
        QTest::newRow("upper-cased as typed")       << "entsagr"    << "ENTSAGR";
        QTest::newRow("? for blanks, umlauts kept") << "ä?ö?"       << "Ä?Ö?";
        QTest::newRow("ß becomes SS")               << "maß"        << "MASS";
        QTest::newRow("at most seven tiles")        << "abcdefghij" << "ABCDEFG";
        QTest::newRow("digits and signs left out")  << "a1-b c*"    << "ABC";
        // clang-format on
    }
    void rackField() {
        QFETCH(QString, typed);
        QFETCH(QString, shown);
        OpenBoard w;
        w.typeRack(typed);
        QCOMPARE(w.rack()->text(), shown);
        QCOMPARE(DataFolder::savedText().section(' ', 1, 1), shown + '/');
    }

    // A move chosen in the list shows on the board, nothing laid; then laid,
    // its tiles are on the board and off the rack.
    void previewThenLay_data() {
        QTest::addColumn<QString>("how");
        QTest::addColumn<int>("row");
        QTest::newRow("Legen, the best move") << "button" << 0;
        QTest::newRow("double-click, the third move") << "double-click" << 2;
        QTest::newRow("Enter in the list, the second move") << "Enter" << 1;
    }
    void previewThenLay() {
        QFETCH(QString, how);
        QFETCH(int, row);
        OpenBoard w(kOneBlank);
        const b::Position start = cgp(kOneBlank);
        QCOMPARE(cgpOf(w.window.position()), cgpOf(start));
        const QImage before = w.view().grab().toImage();
        w.key(&w.view(), Qt::Key_Return);
        for (int step = 0; step < row; ++step)
            w.key(w.moves(), Qt::Key_Down);
        const b::Move move = w.window.moveList().row(row)->move;
        QCOMPARE(describe(*w.view().preview()), describe(move));
        QCOMPARE(cgpOf(w.window.position()), cgpOf(start));
        // The previewed tiles are drawn: each square they go on looks different.
        const QImage previewed = w.view().grab().toImage();
        const qreal ratio = previewed.devicePixelRatio();
        for (int i = 0; i < move.length; ++i) {
            if (!move.isLaid(i))
                continue;
            // Near the square's corner, clear of the premium's label and the letter.
            const QRectF square =
                w.view().geometryNow().squareRect(move.rowOf(i), move.columnOf(i));
            const QPoint pixel =
                ((square.topLeft() + QPointF(square.width(), square.height()) * 0.22) * ratio)
                    .toPoint();
            QVERIFY2(previewed.pixel(pixel) != before.pixel(pixel), qPrintable(describe(move)));
        }

        if (how == "button") {
            QTest::mouseClick(w.get<QPushButton>("lay"), Qt::LeftButton);
        } else if (how == "double-click") {
            const QRect cell = w.moves()->visualRect(w.window.moveList().index(row, 1));
            QTest::mouseClick(w.moves()->viewport(), Qt::LeftButton, {}, cell.center());
            QTest::mouseDClick(w.moves()->viewport(), Qt::LeftButton, {}, cell.center());
        } else {
            w.key(w.moves(), Qt::Key_Return);
        }
        b::Position after = start;
        b::applyMove(after.board, move);
        after.rack = b::readRack(b::rackLeave(start.rack, move)).rack;
        QCOMPARE(cgpOf(w.window.position()), cgpOf(after));
        QCOMPARE(w.rack()->text(), QString::fromStdString(b::rackLeave(start.rack, move)));
        QCOMPARE(w.window.moveList().rowCount(), 0);
        QVERIFY(!w.view().preview());
        QCOMPARE(DataFolder::savedText(), cgpOf(after));
    }

    // Ctrl+Z takes back clears, laid moves and pastes, newest first.
    void undo_data() {
        QTest::addColumn<QStringList>("actions");
        QTest::addColumn<QString>("result"); // "start", "laid" or "empty"
        // clang-format off
        QTest::newRow("Leeren, Ctrl+Z")                << QStringList{"clear", "undo"}                 << "start";
        QTest::newRow("Legen, Ctrl+Z")                 << QStringList{"lay", "undo"}                   << "start";
        QTest::newRow("Legen, Leeren, Ctrl+Z once")    << QStringList{"lay", "clear", "undo"}          << "laid";
        QTest::newRow("Legen, Leeren, Ctrl+Z twice")   << QStringList{"lay", "clear", "undo", "undo"}  << "start";
        QTest::newRow("paste, Ctrl+Z")                 << QStringList{"paste", "undo"}                 << "start";
        QTest::newRow("nothing to take back")          << QStringList{"undo"}                          << "start";
        QTest::newRow("the button does the same")      << QStringList{"clear", "button"}               << "start";
        QTest::newRow("Ctrl+Z in the rack: its own")   << QStringList{"clear", "rack undo"}            << "empty";
        // clang-format on
    }
    void undo() {
        QFETCH(QStringList, actions);
        QFETCH(QString, result);
        OpenBoard w(kNoBlank);
        const b::Position start = cgp(kNoBlank);
        b::Position laid = start;
        for (const QString& action : actions) {
            if (action == "clear") {
                QTest::mouseClick(w.get<QPushButton>("clear"), Qt::LeftButton);
            } else if (action == "lay") {
                w.key(&w.view(), Qt::Key_Return);
                w.key(w.moves(), Qt::Key_Return);
                laid = w.window.position();
                QVERIFY(laid.board != start.board);
            } else if (action == "paste") {
                QGuiApplication::clipboard()->setText(kTwoBlanks);
                w.key(&w.view(), Qt::Key_V, Qt::ControlModifier, "\x16");
                QCOMPARE(cgpOf(w.window.position()), kTwoBlanks);
            } else if (action == "undo") {
                w.key(&w.view(), Qt::Key_Z, Qt::ControlModifier, "\x1A");
            } else if (action == "button") {
                QTest::mouseClick(w.get<QPushButton>("undo"), Qt::LeftButton);
            } else if (action == "rack undo") {
                w.key(w.rack(), Qt::Key_Z, Qt::ControlModifier, "\x1A");
            }
        }
        const b::Position expected = result == "start"  ? start
                                     : result == "laid" ? laid
                                                        : b::Position{b::Board{}, start.rack};
        QCOMPARE(cgpOf(w.window.position()), cgpOf(expected));
        QCOMPARE(DataFolder::savedText(), cgpOf(expected));
    }

    // Whatever lies in the data folder, the window opens; what it cannot use
    // it says, and starts from an empty board.
    void storedFileOfAnyKind_data() {
        QTest::addColumn<QByteArray>("bytes"); // empty: a folder named board.cgp
        QTest::addColumn<QString>("board");    // tiles; "-" the empty board
        QTest::addColumn<QString>("message");  // a part of the status line; "" none
        const QByteArray crLf("15/15/15/15/15/15/15/7AB6/15/15/15/15/15/15/15 QU/ 0/0 0\r\n");
        // clang-format off
        QTest::newRow("a position with CR LF")  << crLf                                   << "H8:A I8:B" << "";
        QTest::newRow("words, not a position")  << QByteArray("Hallo Welt")               << "-" << "beschädigt";
        QTest::newRow("binary bytes")           << QByteArray("\x00\xff\xfe\x01 15/15", 10) << "-" << "beschädigt";
        QTest::newRow("far too large")          << QByteArray(200000, '1')                << "-" << "zu groß";
        QTest::newRow("a folder in its place")  << QByteArray()                           << "-" << "nicht lesbar";
        // clang-format on
    }
    void storedFileOfAnyKind() {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, board);
        QFETCH(QString, message);
        DataFolder data;
        QDir().mkpath(positionFilePath().section('/', 0, -2));
        if (bytes.isEmpty()) {
            QDir().mkpath(positionFilePath());
        } else {
            QFile file(positionFilePath());
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write(bytes);
        }
        BoardWindow window;
        QCOMPARE(tilesOf(window.boardView().board()), board == "-" ? QString() : board);
        const QString status = window.findChild<QLabel*>("status")->text();
        if (message.isEmpty())
            QCOMPARE(status, QString());
        else
            QVERIFY2(status.contains(message), qPrintable(status));
    }

    // A bad paste leaves board, rack and undo history as they were, and says
    // so in one line.
    void pasteBadPosition_data() {
        QTest::addColumn<QString>("text");
        QTest::newRow("nothing") << "";
        QTest::newRow("a word") << "Hallo";
        QTest::newRow("eight tiles on the rack") << QString("15/").repeated(14) + "15 ABCDEFGH/";
        QTest::newRow("control characters") << QString("15/\x01\x02/15");
        QTest::newRow("a megabyte of text") << QString(1 << 20, 'A');
        QTest::newRow("a board file with a short line")
            << QString("...............\n").repeated(14) + "....\n";
    }
    void pasteBadPosition() {
        QFETCH(QString, text);
        OpenBoard w(kNoBlank);
        QGuiApplication::clipboard()->setText(text);
        w.key(&w.view(), Qt::Key_V, Qt::ControlModifier, "\x16");
        QCOMPARE(cgpOf(w.window.position()), cgpOf(cgp(kNoBlank)));
        QVERIFY2(w.status().startsWith("Einfügen abgelehnt"), qPrintable(w.status()));
        QVERIFY(!w.status().contains('\n'));
        QVERIFY(!w.get<QPushButton>("undo")->isEnabled());
    }

    void copyAndPaste_data() {
        QTest::addColumn<QString>("pasted");
        QTest::addColumn<QString>("result"); // the position after the paste, as CGP
        const QString rows = kOneBlank.section(' ', 0, 0);
        QTest::newRow("CGP with a rack") << kOneBlank << kOneBlank;
        QTest::newRow("CGP without a rack keeps the rack typed")
            << rows << rows + " EINRSTL/ 0/0 0";
        QTest::newRow("CGP with further fields") << rows + " AB/CD 12/30 1" << rows + " AB/ 0/0 0";
        QString boardFile;
        for (const QString& row : rows.split('/')) {
            QString line;
            for (int i = 0; i < row.size(); ++i) {
                int run = 0;
                while (i < row.size() && row[i].isDigit())
                    run = run * 10 + row[i++].digitValue();
                line += QString(run, '.');
                if (i < row.size())
                    line += row[i];
            }
            boardFile += line + "\r\n";
        }
        QTest::newRow("a board file, 15 lines") << boardFile << rows + " EINRSTL/ 0/0 0";
    }
    void copyAndPaste() {
        QFETCH(QString, pasted);
        QFETCH(QString, result);
        OpenBoard w(kNoBlank);
        QGuiApplication::clipboard()->setText(pasted);
        w.key(&w.view(), Qt::Key_V, Qt::ControlModifier, "\x16");
        QCOMPARE(cgpOf(w.window.position()), result);
        QGuiApplication::clipboard()->clear();
        w.key(&w.view(), Qt::Key_C, Qt::ControlModifier, "\x03");
        QCOMPARE(QGuiApplication::clipboard()->text(), result);
        // In the rack field Ctrl+V pastes text into the field, not a position.
        QGuiApplication::clipboard()->setText("xy");
        w.rack()->selectAll();
        w.key(w.rack(), Qt::Key_V, Qt::ControlModifier, "\x16");
        QCOMPARE(w.rack()->text(), QString("XY"));
        QCOMPARE(cgpOf({w.window.position().board, {}}), cgpOf({cgp(result).board, {}}));
    }

    // The word graph comes from its file when that belongs to the list, else it
    // is built in memory; a search asked for meanwhile waits and then runs.
    void wordGraphLoading_data() {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("status");
        const QString built = ": der Wortgraph wurde im Speicher aufgebaut, 7 Wörter.";
        // clang-format off
        QTest::newRow("current file")         << "current" << "Wortgraph aus DB1.lex geladen: 7 Wörter.";
        QTest::newRow("no file")              << "missing" << "DB1.lex fehlt" + built;
        QTest::newRow("damaged file")         << "damaged" << "DB1.lex ist beschädigt" + built;
        QTest::newRow("file of another list") << "stale"   << "DB1.lex gehört zu einer anderen Wortliste" + built;
        QTest::newRow("no word list")         << "no list" << "Die Wortliste fehlt oder ist leer: es gibt keine Züge zu finden.";
        // clang-format on
    }
    void wordGraphLoading() {
        QFETCH(QString, file);
        QFETCH(QString, status);
        TempFolder list;
        if (file != "no list")
            // A seven-letter word, so that the graph's file holds an anagram index too.
            list.write("DB1.txt", "haus\r\nmaus\r\nlaus\r\nhase\r\nmast\r\nlast\r\nsalmhut\r\n");
        if (file == "current" || file == "stale") {
            std::string error;
            QVERIFY(b::writeLexiconFileFor(list / "DB1.txt", list / "DB1.lex", error));
        }
        if (file == "stale")
            list.write("DB1.txt", "haus\r\nmaus\r\nlaus\r\nhase\r\nmast\r\nlaster\r\nsalmhut\r\n");
        if (file == "damaged")
            list.write("DB1.lex", "LTRLEXIC and then nothing of use");
        const PreparedWords words(DatenbankEinlesen(list / "DB1.txt"), shipped().words.values());

        DataFolder data;
        BoardWindow window;
        window.findChild<RackField*>("rack")->setText("HAUSMTL");
        window.useWords(words, list / "DB1.txt");
        window.search(); // before the graph is ready
        QVERIFY(!window.lexiconReady());
        QCOMPARE(window.findChild<QLabel*>("status")->text(),
                 QString("Die Suche beginnt, sobald der Wortgraph bereit ist …"));
        QTRY_VERIFY(window.lexiconReady());
        QCOMPARE(window.findChild<QLabel*>("lexiconStatus")->text(), status);
        QCOMPARE(window.moveList().rowCount() > 0, file != "no list");
        QVERIFY(window.findChild<QWidget*>("progress")->isHidden());
    }

    // Board words the list lacks are outlined and named, and the search still runs.
    void unknownWordsMarked() {
        OpenBoard w("15/15/15/15/15/15/15/7HAUSX3/15/15/15/15/15/15/15 ENTSAGR/ 0/0 0");
        QCOMPARE(w.view().unknownWords().size(), std::size_t{1});
        QCOMPARE(w.get<QLabel>("warnings")->text(), QString("Nicht in der Wortliste: HAUSX (8H)"));
        const QPointF square = w.view().geometryNow().squareRect(7, 11).center();
        QHelpEvent help(QEvent::ToolTip, square.toPoint(), w.view().mapToGlobal(square.toPoint()));
        QApplication::sendEvent(&w.view(), &help);
        QCOMPARE(QToolTip::text(), QString("L8, doppelter Buchstabenwert, X\n"
                                           "Nicht in der Wortliste: HAUSX (8H)"));
        QToolTip::hideText();
        w.key(&w.view(), Qt::Key_Return);
        QVERIFY(w.window.moveList().rowCount() > 0);
        // Taking the X away takes the outline and the warning away.
        w.clickSquare(7, 11);
        w.key(&w.view(), Qt::Key_Delete);
        QVERIFY(w.view().unknownWords().empty());
        QVERIFY(w.get<QLabel>("warnings")->isHidden());
    }

    void squareSpeech_data() {
        QTest::addColumn<QString>("keys");
        QTest::addColumn<QString>("spoken");
        // clang-format off
        QTest::newRow("the start: the star")   << ""                     << "H8, doppelter Wortwert, leer";
        QTest::newRow("a corner")              << "Click:A1"             << "A1, dreifacher Wortwert, leer";
        QTest::newRow("double letter")         << "Click:D1"             << "D1, doppelter Buchstabenwert, leer";
        QTest::newRow("triple letter")         << "Click:F2"             << "F2, dreifacher Buchstabenwert, leer";
        QTest::newRow("a plain square")        << "Click:A2"             << "A2, leer";
        QTest::newRow("a tile")                << "e Left"               << "H8, doppelter Wortwert, E";
        QTest::newRow("a blank")               << "Shift+E Left"         << "H8, doppelter Wortwert, Blanko als E";
        QTest::newRow("moved by arrow")        << "Down Down"            << "H10, leer";
        // clang-format on
    }
    void squareSpeech() {
        QFETCH(QString, keys);
        QFETCH(QString, spoken);
        OpenBoard w;
        w.typeOnBoard(keys);
        QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(&w.view());
        QCOMPARE(accessible->text(QAccessible::Name), spoken);
    }

    // Every control a player can reach or read has a name for screen readers,
    // and the board shows when it has the keyboard focus.
    void namesAndFocus() {
        OpenBoard w;
        for (QWidget* control : w.window.findChildren<QWidget*>()) {
            const bool reached = control->focusPolicy() != Qt::NoFocus &&
                                 control->isVisibleTo(&w.window) &&
                                 control->parentWidget() == &w.window;
            if (reached || qobject_cast<QLabel*>(control) != nullptr) {
                QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(control);
                QVERIFY2(
                    !accessible->text(QAccessible::Name).isEmpty(),
                    qPrintable(control->objectName() + " " + control->metaObject()->className()));
            }
        }
        w.view().setFocus();
        const QImage focused = w.view().grab().toImage();
        w.rack()->setFocus();
        const QImage unfocused = w.view().grab().toImage();
        // The frame round the board: its top left corner, in the label band.
        const BoardGeometry geometry = w.view().geometryNow();
        const qreal ratio = focused.devicePixelRatio();
        const QPoint corner =
            ((geometry.origin - QPointF(geometry.band, geometry.band)) * ratio + QPointF(1, 1))
                .toPoint();
        QVERIFY(focused.pixel(corner) != unfocused.pixel(corner));
    }

    // Header clicks sort the list; the move previewed stays selected.
    void moveListSorting_data() {
        QTest::addColumn<QList<int>>("clicks");
        QTest::addColumn<QString>("check"); // which order the rows must be in
        // The list comes sorted by Punkte, highest first: a click there reverses it.
        QTest::newRow("Punkte: lowest first") << QList<int>{2} << "lowest";
        QTest::newRow("Punkte twice: best first again") << QList<int>{2, 2} << "best";
        QTest::newRow("Wort, then Punkte: highest first") << QList<int>{1, 2} << "best";
        QTest::newRow("Wort: A to Z") << QList<int>{1} << "words";
        QTest::newRow("Wort twice: Z to A") << QList<int>{1, 1} << "words reversed";
        QTest::newRow("Zug: by square") << QList<int>{0} << "squares";
        QTest::newRow("Gelegt: fewest tiles first") << QList<int>{3} << "tiles";
    }
    void moveListSorting() {
        QFETCH(QList<int>, clicks);
        QFETCH(QString, check);
        OpenBoard w(kTwoBlanks);
        w.key(&w.view(), Qt::Key_Return);
        w.key(w.moves(), Qt::Key_Down);
        const b::Move chosen = *w.view().preview();
        const std::vector<b::Move> found = w.listedMoves();
        QHeaderView* header = w.moves()->horizontalHeader();
        for (const int column : clicks)
            QTest::mouseClick(header->viewport(), Qt::LeftButton, {},
                              QPoint(header->sectionViewportPosition(column) + 5, 5));
        const std::vector<b::Move> shown = w.listedMoves();
        QCOMPARE(shown.size(), found.size());
        MoveListModel& list = w.window.moveList();
        QCollator german{QLocale(QLocale::German)};
        german.setCaseSensitivity(Qt::CaseInsensitive);
        for (std::size_t i = 1; i < shown.size(); ++i) {
            const int row = static_cast<int>(i);
            const QString a = list.cell(row - 1, 1);
            const QString z = list.cell(row, 1);
            if (check == "best")
                QCOMPARE(describe(shown[i]), describe(found[i]));
            else if (check == "lowest")
                QVERIFY(shown[i - 1].score <= shown[i].score);
            else if (check == "words")
                QVERIFY2(german.compare(a, z) <= 0, qPrintable(a + " " + z));
            else if (check == "words reversed")
                QVERIFY2(german.compare(a, z) >= 0, qPrintable(a + " " + z));
            else if (check == "squares")
                QVERIFY(shown[i - 1].row * 15 + shown[i - 1].column <=
                        shown[i].row * 15 + shown[i].column);
            else if (check == "tiles")
                QVERIFY(shown[i - 1].laidCount() <= shown[i].laidCount());
        }
        const int current = w.moves()->currentIndex().row();
        QCOMPARE(describe(list.row(current)->move), describe(chosen));
        QCOMPARE(describe(*w.view().preview()), describe(chosen));
    }

    // The squares fill the widget without blur: whole device pixels at every scale.
    void boardGeometry_data() {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<double>("ratio");
        for (const double ratio : {1.0, 1.25, 1.5, 2.0}) {
            const QString scale = QString::number(ratio);
            QTest::newRow(qPrintable("minimum size at " + scale))
                << BoardGeometry::minimumSize() << ratio;
            QTest::newRow(qPrintable("wide window at " + scale)) << QSize(917, 611) << ratio;
            QTest::newRow(qPrintable("tall window at " + scale)) << QSize(503, 799) << ratio;
        }
    }
    void boardGeometry() {
        QFETCH(QSize, size);
        QFETCH(double, ratio);
        const BoardGeometry geometry = BoardGeometry::fit(QSizeF(size), ratio);
        QVERIFY(geometry.square >= kSmallestSquare);
        const auto whole = [ratio](qreal logical) {
            return std::abs(logical * ratio - std::round(logical * ratio)) < 1e-6;
        };
        QVERIFY(whole(geometry.square));
        QVERIFY(whole(geometry.origin.x()) && whole(geometry.origin.y()));
        const QRectF all = geometry.gridRect().adjusted(-geometry.band, -geometry.band,
                                                        geometry.band, geometry.band);
        QVERIFY(QRectF(QPointF(0, 0), QSizeF(size)).contains(all));
        for (const b::Square square : {b::Square{0, 0}, b::Square{7, 7}, b::Square{14, 3}}) {
            const QRectF rect = geometry.squareRect(square.row, square.column);
            const std::optional<BoardSquare> wanted = BoardSquare{square.row, square.column};
            QVERIFY(geometry.squareAt(rect.center()) == wanted);
            QVERIFY(geometry.squareAt(rect.topLeft()) == wanted);
        }
        QVERIFY(!geometry.squareAt(all.topLeft()));
    }

    // The main window opens one board window: F2 anywhere, a click on Brett,
    // even under the loading cover; F1 in it shows the about box.
    void openedFromTheMainWindow_data() {
        QTest::addColumn<QString>("how");
        QTest::newRow("F2 in the rack field") << "F2 rack";
        QTest::newRow("F2 in the result list") << "F2 list";
        QTest::newRow("a click on Brett") << "click";
        QTest::newRow("F2 under the loading cover") << "cover";
    }
    void openedFromTheMainWindow() {
        QFETCH(QString, how);
        DataFolder data;
        TempFolder folder;
        folder.write("DB1.txt", "haus\r\nmaus\r\n");
        CurrentFolder current(folder.path());
        Form1 form(folder.path());
        form.setExitHandler([] {});
        auto* rack = form.findChild<QLineEdit*>("txtBuchstaben");
        const auto press = [&form, rack, &how] {
            for (int time = 0; time < 2; ++time) {
                if (how == "F2 rack" || how == "cover") {
                    rack->setFocus();
                    QTest::keyClick(rack, Qt::Key_F2);
                } else if (how == "F2 list") {
                    auto* list = form.findChild<QWidget*>("ListView1");
                    list->setFocus();
                    QTest::keyClick(list, Qt::Key_F2);
                } else {
                    QTest::mouseClick(form.findChild<QWidget*>("cmdBrett"), Qt::LeftButton);
                }
                if (form.boardWindow() != nullptr)
                    form.boardWindow()->close(); // closing hides; the next press brings it back
            }
        };
        if (how == "cover")
            QTimer::singleShot(0, &form, press); // during the loading
        form.Form_Load();
        form.findChild<QTimer*>("Timer2")->stop();
        if (how != "cover")
            press();
        QVERIFY(form.boardWindow() != nullptr);
        const QWidgetList windows = QApplication::topLevelWidgets();
        QCOMPARE(std::count_if(
                     windows.begin(), windows.end(),
                     [](QWidget* widget) { return qobject_cast<BoardWindow*>(widget) != nullptr; }),
                 1);
        QVERIFY(form.aboutBox() == nullptr); // Brett's click is its own, not the banner's
        form.openBoardWindow();
        QVERIFY(form.boardWindow()->isVisible());
        QTRY_VERIFY(form.boardWindow()->lexiconReady());
        QCOMPARE(form.boardWindow()->lexicon().graph.wordCount(), 2u);

        auto& view = form.boardWindow()->boardView();
        view.setFocus();
        QTest::keyClick(&view, Qt::Key_F1);
        QVERIFY(form.aboutBox() != nullptr && form.aboutBox()->isVisible());
    }

    // The keys of the README's walk-through, each sent where the focus is: from
    // the main window to a laid best move without the mouse.
    void keyboardOnlyWalkThrough() {
        DataFolder data;
        CurrentFolder current(shipped().folder.path());
        Form1 form(kRunFolder);
        form.setExitHandler([] {});
        form.Form_Load();
        form.findChild<QTimer*>("Timer2")->stop();
        form.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&form));
        const auto press = [](const QString& keys) {
            for (const QString& key : keys.split(' ')) {
                QWidget* focused = QApplication::focusWidget();
                QVERIFY(focused != nullptr);
                sendKey(focused, key);
            }
        };
        form.findChild<QWidget*>("txtBuchstaben")->setFocus();
        press("F2");
        BoardWindow* window = form.boardWindow();
        QVERIFY(window != nullptr);
        QVERIFY(QTest::qWaitForWindowActive(window));
        press("h a u s Left Left Left Left Space Down u n d Space Up Right a c h Left Space Down o "
              "f Up Space Right e e Tab e r n s t ? a");
        QCOMPARE(tilesOf(window->position().board),
                 QString("H8:H I8:A J8:U K8:S H9:U H10:N H11:D I11:A J11:C K11:H K12:O K13:F "
                         "L13:E M13:E"));
        QCOMPARE(QString::fromStdString(b::rackText(window->position().rack)), QString("ERNST?A"));
        QTRY_VERIFY(window->lexiconReady());
        press("Enter");
        const b::Position before = window->position();
        const std::vector<b::Move> best =
            b::bestMoves(before.board, before.rack, shipped().lexicon, shipped().values, 1);
        QCOMPARE(describe(*window->boardView().preview()), describe(best[0]));
        press("Enter");
        b::Board laid = before.board;
        b::applyMove(laid, best[0]);
        QCOMPARE(tilesOf(window->position().board), tilesOf(laid));
    }

    // The button sits on the banner left of "?", as high, and comes after it
    // in the tab order.
    void brettButtonOnTheBanner() {
        DataFolder data;
        TempFolder folder;
        CurrentFolder current(folder.path());
        Form1 form(folder.path());
        form.setExitHandler([] {});
        form.Form_Load();
        auto* info = form.findChild<QPushButton*>("cmdInfo");
        auto* brett = form.findChild<QPushButton*>("cmdBrett");
        QCOMPARE(brett->parentWidget(), info->parentWidget());
        QCOMPARE(brett->height(), info->height());
        QCOMPARE(brett->y(), info->y());
        QVERIFY(brett->geometry().right() < info->x());
        QVERIFY(brett->parentWidget()->rect().contains(brett->geometry()));
        QCOMPARE(info->nextInFocusChain(), brett);
        // Its text fits.
        QVERIFY(brett->fontMetrics().horizontalAdvance(brett->text()) < brett->width());
    }
};

QTEST_MAIN(BoardWindowTest)

#include "board_window_test.moc"
