// SPDX-License-Identifier: GPL-3.0-or-later
// The main window as a player sees it, driven headless, one table per interaction.

#include "data/number_format.h"
#include "data/word_database.h"
#include "display/result_texts.h"
#include "engine/headless_search.h"
#include "engine/letter_values.h"
#include "support/address_space.h"
#include "support/temp_folder.h"
#include "ui/about/about_box.h"
#include "ui/main/banner.h"
#include "ui/main/form1.h"
#include "ui/main/german_qt_texts.h"
#include "ui/main/progress_box.h"
#include "ui/main/result_table_model.h"

#include <QAbstractItemModelTester>
#include <QAccessible>
#include <QClipboard>
#include <QDir>
#include <QHeaderView>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPainter>
#include <QProcess>
#include <QTableView>
#include <QTest>
#include <QTextStream>
#include <QTimer>
#include <QToolTip>
#include <memory>
#include <random>

using namespace lettriner;
using namespace lettriner::testing;
using namespace lettriner::ui;

namespace {

// RAHMEN with minimum 5 keeps RAHMEN 9 (the bonus word), MEHR 7, RAHM 7, NAME 6,
// AMEN 6 and HARN 5; HEMD needs a D, NAH is worth 4.
const QStringList kWords = {"Rahmen", "Mehr", "Rahm", "Name", "Amen", "Harn", "Hemd", "nah"};

// Windows-1252 with CR LF; letter values R A E N S 1, H 2, M D 3, X 8, Ä 6.
void writeDataFiles(const TempFolder& folder, const QStringList& words) {
    folder.write("DB1.txt", (words.join("\r\n") + "\r\n").toLatin1().toStdString());
    folder.write("Bewertung1.txt", "R\r\nA\r\nH\r\nM\r\nE\r\nN\r\nD\r\nS\r\nX\r\n\xC4\r\n");
    folder.write("Bewertung2.txt", "1\r\n1\r\n2\r\n3\r\n1\r\n1\r\n3\r\n1\r\n8\r\n6\r\n");
}

// The first `columns` cells of every shown row, row by row.
QStringList cells(const ResultTableModel& list, int columns = 1) {
    QStringList texts;
    for (int row = 0; row < list.rowCount(QModelIndex()); ++row)
        for (int column = 0; column < columns; ++column)
            texts.append(list.cell(row, column));
    return texts;
}

QStringList cells(const MemoryResultList& list) {
    QStringList texts;
    for (const ResultRow& row : list.rows())
        for (int column = 0; column < kResultColumns; ++column)
            texts.append(QString::fromStdU16String(cellText(row, column)));
    return texts;
}

// A window over `words` (none: no data files) in a fresh folder, its cover ticked
// by hand: eight ticks after loading, unless ticks before loading are asked for.
struct LoadedWindow {
    explicit LoadedWindow(const QStringList& words = kWords, int ticksBeforeLoading = -1) {
        if (!words.isEmpty())
            writeDataFiles(folder, words);
        form.setExitHandler([] {}); // a stray close request must not end the tests
        for (int tick = 0; tick < ticksBeforeLoading; ++tick)
            form.Timer2_Timer();
        form.Form_Load();
        get<QTimer>("Timer2")->stop();
        while (ticksBeforeLoading < 0 && form.LadeTakte() < 8)
            form.Timer2_Timer();
    }
    template <class T = QWidget> T* get(const QString& name) { return form.findChild<T*>(name); }
    QLineEdit* field(const QString& name) { return get<QLineEdit>(name); }
    void search(const QString& rack) {
        field("txtBuchstaben")->setText(rack);
        field("txtBuchstaben")->setFocus();
        QTest::keyClick(field("txtBuchstaben"), Qt::Key_Return);
    }

    TempFolder folder;
    CurrentFolder current{folder.path()};
    Form1 form{folder.path()};
    // Qt's model checker watches both lists through every test.
    QAbstractItemModelTester mainListChecked{&form.mainList()};
    QAbstractItemModelTester bonusListChecked{&form.bonusList()};
};

// Rows of word, length and value, the other cells empty, as the search leaves them.
void fillRows(ResultTableModel& list, const QString& rows) {
    for (const QString& row : rows.split(", ", Qt::SkipEmptyParts)) {
        const QStringList cell = row.split(' ');
        list.addRow(cell[0].toStdU16String());
        list.setSubItem(list.rowCount(), kLengthColumn, cell[1].toLongLong());
        list.setSubItem(list.rowCount(), kValueColumn, cell[2].toLongLong());
    }
    list.publishFinished();
}

// A control as drawn, with the controls inside it that take the focus
// themselves blanked out, so that their focus does not count as its own.
QImage ownLook(QWidget* control) {
    QImage image = control->grab().toImage();
    QPainter painter(&image);
    for (const QWidget* inner : control->findChildren<QWidget*>())
        if (inner->isVisible() && (inner->focusPolicy() & Qt::TabFocus) != 0)
            painter.fillRect(QRect(inner->mapTo(control, QPoint(0, 0)), inner->size()), Qt::black);
    return image;
}

// In a child process: a line edit's context menu, with Qt's texts as the
// program loads them, one action a line, without '&' and shortcut.
int printContextMenu() {
    installGermanQtTexts(*qApp);
    QLineEdit edit;
    const std::unique_ptr<QMenu> menu(edit.createStandardContextMenu());
    QTextStream out(stdout);
    for (const QAction* action : menu->actions())
        out << action->text().remove('&').section('\t', 0, 0) << '\n';
    return 0;
}

// In a child process: exit code 0 comes only from the window ending the process
// on the close request; 3 means the program got back here.
int closeAt(const QString& moment, const char* folder) {
    CurrentFolder current(folder);
    Form1 form(folder);
    if (moment == "loading")
        QTimer::singleShot(0, &form, &QWidget::close);
    form.Form_Load();
    if (moment == "cover")
        form.close();
    if (moment == "search")
        QTimer::singleShot(0, &form, &QWidget::close);
    form.findChild<QLineEdit*>("txtBuchstaben")->setText("RAHMEN");
    form.cmdSuchen_Click();
    return 3;
}

// In a child process: the window loads the word list of `folder` with the
// address space capped at what the process holds now plus `room`, searches
// for AB from 0, and prints the count label's number line and the found text.
int loadWithin(qulonglong room, const char* folder) {
    CurrentFolder current(folder);
    QLocale::setDefault(QLocale::c());
    if (!capAddressSpace(room))
        return 2;
    Form1 form(folder);
    form.Form_Load();
    form.findChild<QLineEdit*>("txtMindestWert")->setText("0");
    form.findChild<QLineEdit*>("txtBuchstaben")->setText("AB");
    form.cmdSuchen_Click();
    QTextStream(stdout) << form.findChild<QLabel*>("lblDBCount")->text().section('\n', 1) << '\n'
                        << form.findChild<QLabel*>("lblInfos")->text() << '\n';
    return 0;
}

} // namespace

class WindowTest : public QObject {
    Q_OBJECT

private slots:
    void startUp_data() {
        QTest::addColumn<int>("words");
        QTest::addColumn<int>("ticksBeforeLoading");
        QTest::addColumn<QLocale>("locale");
        QTest::addColumn<QString>("entries"); // an empty list's highest index is -1
        // clang-format off
        QTest::newRow("ticks before loading do not count") << 3    << 5 << QLocale::c()     << "3 Einträge";
        QTest::newRow("no data files at all")              << 0    << 0 << QLocale::c()     << "-1 Einträge";
        QTest::newRow("count grouped on a German system")  << 1234 << 0 << QLocale("de_DE") << "1.234 Einträge";
        // clang-format on
    }
    void startUp() {
        QFETCH(int, words);
        QFETCH(int, ticksBeforeLoading);
        QFETCH(QLocale, locale);
        QFETCH(QString, entries);
        QLocale::setDefault(locale);
        LoadedWindow w(QStringList(words, "WORT"), ticksBeforeLoading);
        QLocale::setDefault(QLocale::c());
        for (int tick = 1; tick <= 8; ++tick) {
            w.form.Timer2_Timer();
            QCOMPARE(w.get("Frame3")->isVisible(), tick < 8); // the cover
            // Six dots after the first tick, then one to six over again.
            QCOMPARE(w.get<QLabel>("lblPunkte")->text().size(),
                     (ticksBeforeLoading + tick + 4) % 6 + 1);
        }
        QCOMPARE(w.get<QLabel>("lblDBCount")->text(), "gesamte Datenbank: \n" + entries);
        QCOMPARE(w.form.frameGeometry().height(), twips(8175));
        QCOMPARE(w.form.width(), twips(10905));
        QCOMPARE(w.get("cmdStop")->geometry(), w.get("cmdSuchen")->geometry());
        QVERIFY(!w.get("cmdStop")->isVisible());
        // The banner's border goes while the pointer is on it, and comes back off it.
        QTest::mouseMove(w.get("Picture1"), QPoint(200, 30));
        QVERIFY(!w.get<Banner>("Picture1")->hasBorder());
        QTest::mouseMove(w.get("Frame1"), QPoint(4, 4));
        QVERIFY(w.get<Banner>("Picture1")->hasBorder());
    }

    void closeEndsTheProgram_data() {
        QTest::addColumn<QString>("moment");
        QTest::newRow("while loading") << "loading";
        QTest::newRow("under the cover") << "cover";
        QTest::newRow("during a search") << "search";
    }
    void closeEndsTheProgram() {
        QFETCH(QString, moment);
        TempFolder folder;
        writeDataFiles(folder, kWords);
        const QString path = QString::fromStdString(folder.path().string());
        QProcess child;
        child.start(QCoreApplication::applicationFilePath(), {"--close-at", moment, path});
        QVERIFY(child.waitForFinished(30000));
        QCOMPARE(child.exitStatus(), QProcess::NormalExit);
        QCOMPARE(child.exitCode(), 0);
        QCOMPARE(QDir(path).entryList(QDir::Files), // only the settings file is new
                 (QStringList{"Bewertung1.txt", "Bewertung2.txt", "DB1.txt", "Settings.txt"}));
    }

    void memoryShortAfterReading_data() {
        QTest::addColumn<qulonglong>("room");
        QTest::addColumn<QString>("shown");
        const auto lines = static_cast<std::int64_t>(kCappedListLines);
        const QString loaded = QString::fromStdU16String(formatGrouped(lines, u',')) +
                               " Einträge\n" + QString::number(lines) + " Wörter gefunden\n";
        for (const MemoryRoom& row : kMemoryRooms)
            QTest::newRow(row.name)
                << qulonglong{row.room}
                << (row.listLoads ? loaded : "-1 Einträge\n0 Wörter gefunden\n");
    }
    void memoryShortAfterReading() {
        QFETCH(qulonglong, room);
        QFETCH(QString, shown);
        TempFolder folder;
        writeDataFiles(folder, {"A"});
        writeCappedList(folder / "DB1.txt");
        QProcess child;
        // One malloc arena: each thread's own would reserve 64 MiB of address space.
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("MALLOC_ARENA_MAX", "1");
        child.setProcessEnvironment(environment);
        child.start(QCoreApplication::applicationFilePath(),
                    {"--load-within", QString::number(room),
                     QString::fromStdString(folder.path().string())});
        QVERIFY(child.waitForFinished(120000));
        QCOMPARE(child.exitStatus(), QProcess::NormalExit);
        QCOMPARE(child.exitCode(), 0);
        QCOMPARE(QString::fromUtf8(child.readAllStandardOutput()), shown);
    }

    void editingTheRack_data() {
        QTest::addColumn<QString>("before"); // | is the caret, [ ] a selection
        QTest::addColumn<QString>("input");  // typed, a <click> or a <key sequence>
        QTest::addColumn<QString>("after");
        // clang-format off
        QTest::newRow("a ä ß typed in front of BC") << "|BC"  << "aäß"            << "AÄß|BC";
        QTest::newRow("a click selects all")        << "AB|C" << "<click>"        << "[ABC]";
        QTest::newRow("Ctrl+A selects all")         << "AB|C" << "<Ctrl+A>"       << "[ABC]";
        QTest::newRow("Ctrl+Shift+A does not")      << "AB|C" << "<Ctrl+Shift+A>" << "AB|C";
        // clang-format on
    }
    void editingTheRack() {
        QFETCH(QString, before);
        QFETCH(QString, input);
        QFETCH(QString, after);
        LoadedWindow w;
        QLineEdit* edit = w.field("txtBuchstaben");
        edit->setText(QString(before).remove('|'));
        edit->setCursorPosition(before.indexOf('|'));
        if (input == "<click>")
            QTest::mouseClick(edit, Qt::LeftButton, {}, edit->rect().center());
        else if (input.startsWith('<'))
            QTest::keySequence(edit, QKeySequence(input.mid(1).chopped(1)));
        else // typed as a keyboard sends it, umlauts included
            for (const QChar c : input)
                QTest::sendKeyEvent(QTest::Press, edit, Qt::Key_unknown, QString(c), {});
        QString shown = edit->text().insert(edit->cursorPosition(), '|');
        if (edit->hasSelectedText())
            shown = '[' + edit->selectedText() + ']';
        QCOMPARE(shown, after);
    }

    void aboutBoxOpensOnce_data() {
        QTest::addColumn<QString>("trigger"); // F1, or the control clicked
        QTest::newRow("F1") << "F1";
        QTest::newRow("the ? button") << "cmdInfo";
        QTest::newRow("a click on the banner") << "Picture1";
    }
    void aboutBoxOpensOnce() {
        QFETCH(QString, trigger);
        LoadedWindow w;
        for (int time = 0; time < 2; ++time) {
            if (trigger == "F1")
                QTest::keyClick(w.field("txtBuchstaben"), Qt::Key_F1);
            else
                QTest::mouseClick(w.get(trigger), Qt::LeftButton, {}, QPoint(8, 8));
        }
        QCOMPARE(w.form.findChildren<frmAbout*>().size(), 1);
        QVERIFY(w.form.aboutBox()->isVisible());
    }

    void headerClicks_data() {
        QTest::addColumn<QString>("rows"); // word length value, comma-separated
        QTest::addColumn<QList<int>>("clicks");
        QTest::addColumn<QString>("order");
        QTest::addColumn<int>("direction");
        const QString six = "HARN 4 5, RAHMEN 6 9, ÄHRE 4 12, ZEBRA 5 7, MEHR 4 7, abend 5 9";
        // clang-format off
        QTest::newRow("Wortwert once: highest first")     << six << QList<int>{2}    << "ÄHRE RAHMEN abend ZEBRA MEHR HARN" << 1;
        QTest::newRow("Wortwert twice: lowest first")     << six << QList<int>{2, 2} << "HARN ZEBRA MEHR RAHMEN abend ÄHRE" << 0;
        QTest::newRow("Wortlänge next: direction shared") << six << QList<int>{2, 1} << "ÄHRE MEHR HARN abend ZEBRA RAHMEN" << 0;
        QTest::newRow("Wort twice: capitals, small, Ä")   << six << QList<int>{0, 0} << "HARN MEHR RAHMEN ZEBRA abend ÄHRE" << 0;
        QTest::newRow("two rows are sorted too")          << "HARN 4 5, MEHR 4 7" << QList<int>{2} << "MEHR HARN" << 1;
        QTest::newRow("empty list: a click still flips")  << ""  << QList<int>{3}    << ""                                  << 1;
        // clang-format on
    }
    void headerClicks() {
        QFETCH(QString, rows);
        QFETCH(QList<int>, clicks);
        QFETCH(QString, order);
        QFETCH(int, direction);
        LoadedWindow w;
        ResultTableModel& list = w.form.mainList();
        if (!rows.isEmpty())
            fillRows(list, rows);
        QHeaderView* header = w.get<QTableView>("ListView1")->horizontalHeader();
        for (const int column : clicks)
            QTest::mouseClick(header->viewport(), Qt::LeftButton, {},
                              QPoint(header->sectionViewportPosition(column) + 5, 5));
        QCOMPARE(cells(list).join(' '), order);
        QCOMPARE(w.form.SortRichtung(), direction);
    }

    void bonusListGeometry_data() {
        QTest::addColumn<QString>("rack");
        QTest::addColumn<bool>("shown");
        QTest::addColumn<QRect>("list1");
        QTest::addColumn<QRect>("list2");
        // A bonus halves the main list; the bonus list goes 300 twips below, 600 shorter.
        const QRect full = TwipsRect{120, 840, 5055, 4935}.toPixels();
        const QRect half = TwipsRect{120, 840, 5055, 2467}.toPixels();
        const QRect below = TwipsRect{120, 3607, 5055, 1867}.toPixels();
        const QRect designed = TwipsRect{120, 4200, 5055, 1575}.toPixels();
        // clang-format off
        QTest::newRow("bonus word found")                 << "RAHMEN"  << true  << half << below;
        QTest::newRow("no bonus word")                    << "RAHMENS" << false << full << designed;
        QTest::newRow("space in the rack: never a bonus") << "RAHMEN " << false << full << designed;
        // clang-format on
    }
    void bonusListGeometry() {
        QFETCH(QString, rack);
        QFETCH(bool, shown);
        QFETCH(QRect, list1);
        QFETCH(QRect, list2);
        LoadedWindow w;
        w.search(rack);
        QCOMPARE(w.get("ListView2")->isVisible(), shown);
        QCOMPARE(w.get("ListView1")->geometry(), list1);
        QCOMPARE(w.get("ListView2")->geometry(), list2);
    }

    void searchFromTheWindow_data() {
        QTest::addColumn<QStringList>("words");
        QTest::addColumn<QString>("duringRun"); // at the first pass: Esc, stop, or a field's text
        QTest::addColumn<QString>("kept");
        QTest::addColumn<int>("found");
        QTest::addColumn<QString>("minimum"); // the field after this search and after the next
        const QString all = "RAHMEN MEHR RAHM NAME AMEN HARN";
        // clang-format off
        QTest::newRow("Enter starts")                     << kWords << ""                     << all                          << 6 << "5";
        QTest::newRow("Esc stops after the word in hand") << kWords << "Esc"                  << "RAHMEN"                     << 1 << "5";
        QTest::newRow("stop button, likewise")            << kWords << "stop"                 << "RAHMEN"                     << 1 << "5";
        QTest::newRow("minimum 6.5 rounds to the even 6") << kWords << "txtMindestWert 6.5"   << "RAHMEN MEHR RAHM NAME AMEN" << 5 << "6.5";
        QTest::newRow("minimum 7.5 rounds to the even 8") << kWords << "txtMindestWert 7.5"   << "RAHMEN"                     << 1 << "7.5";
        QTest::newRow("minimum 40000: 5 kept")            << kWords << "txtMindestWert 40000" << all                          << 6 << "40000";
        QTest::newRow("field size 2: pruned, 7 raised")   << kWords << "txtMaxUB 2"           << "RAHMEN MEHR"                << 3 << "7";
        QTest::newRow("field size 32768: 500 kept")       << kWords << "txtMaxUB 32768"       << all                          << 6 << "5";
        QTest::newRow("empty word list")                  << QStringList{} << ""              << ""                           << 0 << "5";
        // clang-format on
    }
    void searchFromTheWindow() {
        QFETCH(QStringList, words);
        QFETCH(QString, duringRun);
        QFETCH(QString, kept);
        QFETCH(int, found);
        QFETCH(QString, minimum);
        LoadedWindow w(words);
        w.form.setPacedYield(false); // the first pass comes after the first word
        QTimer::singleShot(0, &w.form, [&] {
            if (duringRun == "Esc")
                QTest::keyClick(w.field("txtBuchstaben"), Qt::Key_Escape);
            else if (duringRun == "stop")
                QTest::mouseClick(w.get("cmdStop"), Qt::LeftButton);
            else if (!duringRun.isEmpty())
                w.field(duringRun.section(' ', 0, 0))->setText(duringRun.section(' ', 1));
        });
        w.search("RAHMEN");
        QCOMPARE(cells(w.form.mainList()).join(' '), kept);
        QCOMPARE(w.get<QLabel>("lblInfos")->text(), QString("%1 Wörter gefunden").arg(found));
        QCOMPARE(w.field("txtMindestWert")->text(), minimum);
        w.search("RAHMEN");
        QCOMPARE(w.field("txtMindestWert")->text(), minimum);
    }

    // A word list emptied or rewritten on disk after start-up: the window
    // searches what it read, and is not killed by the pages it mapped vanishing.
    void wordListChangedOnDisk() {
        LoadedWindow w;
        w.folder.write("DB1.txt", "");
        w.search("RAHMEN");
        QCOMPARE(cells(w.form.mainList()).join(' '), "RAHMEN MEHR RAHM NAME AMEN HARN");
    }

    void copySelectedRows_data() {
        QTest::addColumn<QList<int>>("clicked"); // rows, the second and later with Ctrl
        QTest::addColumn<QString>("copied");
        QTest::newRow("one row") << QList<int>{1} << "MEHR\t4\t7\t\t";
        QTest::newRow("one row at a time: the row clicked last")
            << QList<int>{2, 0} << "HARN\t4\t5\t\t";
    }
    void copySelectedRows() {
        QFETCH(QList<int>, clicked);
        QFETCH(QString, copied);
        LoadedWindow w;
        fillRows(w.form.mainList(), "HARN 4 5, MEHR 4 7, RAHMEN 6 9");
        auto* view = w.get<QTableView>("ListView1");
        QGuiApplication::clipboard()->clear();
        for (const int row : clicked)
            QTest::mouseClick(view->viewport(), Qt::LeftButton,
                              row == clicked.first() ? Qt::NoModifier : Qt::ControlModifier,
                              view->visualRect(view->model()->index(row, 0)).center());
        QTest::keySequence(view, QKeySequence::Copy);
        QCOMPARE(QGuiApplication::clipboard()->text(), copied);
    }

    void cellTooltips_data() {
        QTest::addColumn<QString>("word");
        QTest::addColumn<QString>("tooltip");
        const QString longWord = "DONAUDAMPFSCHIFFFAHRTSGESELLSCHAFT";
        // clang-format off
        QTest::newRow("cut-off word: the whole word")        << longWord << longWord;
        QTest::newRow("word that fits: only the list's own") << "HARN"   << "Ergebnisliste";
        // clang-format on
    }
    void cellTooltips() {
        QFETCH(QString, word);
        QFETCH(QString, tooltip);
        LoadedWindow w;
        fillRows(w.form.mainList(), word + " 4 5");
        auto* view = w.get<QTableView>("ListView1");
        const QPoint cell = view->visualRect(view->model()->index(0, 0)).center();
        QHelpEvent help(QEvent::ToolTip, cell, view->viewport()->mapToGlobal(cell));
        QApplication::sendEvent(view->viewport(), &help);
        QCOMPARE(QToolTip::text(), tooltip);
        QToolTip::hideText();
    }

    // Tab from the rack field round to it again: every stop has a name for
    // screen readers and looks different while it has the focus, the empty
    // result list and the banner included.
    void everyTabStopIsNamedAndShowsItsFocus() {
        LoadedWindow w;
        QWidget* stop = w.field("txtBuchstaben");
        QStringList visited;
        do {
            visited.append(stop->objectName());
            QVERIFY2(
                !QAccessible::queryAccessibleInterface(stop)->text(QAccessible::Name).isEmpty(),
                qPrintable(stop->objectName()));
            const QImage focused = ownLook(stop);
            QTest::keyClick(stop, Qt::Key_Tab);
            QVERIFY2(ownLook(stop) != focused, qPrintable(stop->objectName()));
            stop = w.form.focusWidget();
        } while (stop != w.field("txtBuchstaben") && visited.size() < 20);
        QCOMPARE(visited.join(' '),
                 "txtBuchstaben txtConst txtPflichtbuchstaben txtMindestWert "
                 "txtVerboteneBuchstaben cmdSuchen ListView1 Picture1 cmdInfo cmdBrett");
    }

    void qtTextsInGerman_data() {
        QTest::addColumn<QString>("lang");
        QTest::newRow("LANG=C") << "C";
        QTest::newRow("LANG=en_US.UTF-8") << "en_US.UTF-8";
        QTest::newRow("LANG=de_DE.UTF-8") << "de_DE.UTF-8";
    }
    void qtTextsInGerman() {
        QFETCH(QString, lang);
        QProcess child;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const char* overriding : {"LC_ALL", "LC_MESSAGES", "LANGUAGE"})
            environment.remove(overriding);
        environment.insert("LANG", lang);
        child.setProcessEnvironment(environment);
        child.start(QCoreApplication::applicationFilePath(), {"--context-menu"});
        QVERIFY(child.waitForFinished(30000));
        const QStringList shown = QString::fromUtf8(child.readAllStandardOutput()).split('\n');
        QStringList missing;
        for (const QString text : {"Rückgängig", "Ausschneiden", "Kopieren", "Einfügen"})
            if (!shown.contains(text))
                missing.append(text);
        QCOMPARE(missing.join(", "), QString());
    }

    void progressBar_data() {
        QTest::addColumn<int>("percent");
        QTest::addColumn<int>("drawnAs");
        QTest::newRow("42 %") << 42 << 42;
        QTest::newRow("above 100: a full bar") << 250 << 100;
        QTest::newRow("negative: no bar") << -5 << 0;
    }
    void progressBar() {
        QFETCH(int, percent);
        QFETCH(int, drawnAs);
        ProgressBox box;
        ProgressMalen(box, static_cast<std::int16_t>(percent));
        const QImage image = box.drawing();
        const QColor bar(230 - drawnAs, drawnAs + 30, drawnAs + 90);
        int barEnd = 0; // along the top, above the label
        while (barEnd < image.width() && QColor(image.pixel(barEnd, 1)) == bar)
            ++barEnd;
        QVERIFY(qAbs(barEnd - image.width() * drawnAs / 100.0) <= 1);
        QList<int> inked; // columns with the label's ink, darker than any bar
        for (int x = 0; x < image.width(); ++x)
            for (int y = 0; y < image.height(); ++y)
                if (qGray(image.pixel(x, y)) < 60 && (inked.isEmpty() || inked.last() != x))
                    inked.append(x);
        QVERIFY(qAbs(inked.first() + inked.last() + 1 - image.width()) <= 4); // centred
    }

    // The only test of re-entrancy: a timer served by the runs' own passes fires
    // input; keys are posted, so the searches they start run outside its slot.
    void stormLeavesTheWindowIdleAndRight() {
        // The test words 500 times: a run with a pass after every word spans many ticks.
        LoadedWindow w((kWords.join(' ') + ' ').repeated(500).split(' ', Qt::SkipEmptyParts));
        w.form.setPacedYield(false);
        w.field("txtBuchstaben")->setText("RAHMEN");
        QHeaderView* header = w.get<QTableView>("ListView1")->horizontalHeader();
        const QStringList texts = {"0", "2", "5", "-3", "x", "40000", "", "RAHMEN", "ÄÄX"};
        std::mt19937 random(20261123);
        int actions = 0, actionsDuringRuns = 0;
        QTimer ticker;
        connect(&ticker, &QTimer::timeout, &w.form, [&] {
            actionsDuringRuns += w.form.isSearching() ? 1 : 0;
            if (const unsigned action = random() % 6; action < 2) // keys go to the focus
                QCoreApplication::postEvent(
                    w.form.focusWidget(),
                    new QKeyEvent(QEvent::KeyPress, action ? Qt::Key_Escape : Qt::Key_Return, {}));
            else if (action == 2)
                QTest::mouseClick(header->viewport(), Qt::LeftButton, {},
                                  QPoint(header->sectionViewportPosition(random() % 5) + 3, 3));
            else // any text into the minimum, the field size or the rack
                w.field(QStringList{"txtMindestWert", "txtMaxUB", "txtBuchstaben"}[action - 3])
                    ->setText(texts[random() % 9]);
            if (++actions == 400)
                ticker.stop();
        });
        ticker.start(0);
        QTRY_VERIFY_WITH_TIMEOUT(!ticker.isActive() && !w.form.isSearching(), 60000);
        QVERIFY2(actionsDuringRuns >= 100, qPrintable(QString::number(actionsDuringRuns)));
        QVERIFY(w.get("cmdSuchen")->isVisible() && !w.get("cmdStop")->isVisible());

        // A calm search now gives what the same texts give without a window.
        w.field("txtMindestWert")->setText("4");
        w.field("txtMaxUB")->setText("100");
        QCoreApplication::processEvents(); // keys still posted
        w.search("RAHMEN");
        const HeadlessOutcome expected = searchWithoutWindow(
            PreparedWords(DatenbankEinlesen("DB1.txt"), BewertungsFeldLaden()),
            {.texts = {.rack = u"RAHMEN"}, .minimum = u"4", .fieldSize = u"100"});
        QCOMPARE(cells(w.form.mainList(), kResultColumns), cells(expected.mainList));
        QCOMPARE(cells(w.form.bonusList(), kResultColumns), cells(expected.bonusList));
        QCOMPARE(w.field("txtMindestWert")->text(),
                 QString::fromStdU16String(expected.minimumText));
        QCOMPARE(w.get<QLabel>("lblInfos")->text(),
                 QString("%1 Wörter gefunden").arg(expected.found));
    }
};

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    if (argc == 4 && QByteArray(argv[1]) == "--close-at")
        return closeAt(QString::fromLatin1(argv[2]), argv[3]);
    if (argc == 4 && QByteArray(argv[1]) == "--load-within")
        return loadWithin(QByteArray(argv[2]).toULongLong(), argv[3]);
    if (argc == 2 && QByteArray(argv[1]) == "--context-menu")
        return printContextMenu();
    WindowTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "window_test.moc"
