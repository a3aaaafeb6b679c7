// The window under a storm of input while searches run: Enter and Esc in
// quick succession, header clicks, and edits of every field, fired from a
// timer that the runs' own yields serve. Afterwards the window must be idle,
// its buttons in their resting state, and a plain search must give exactly
// what the same search gives without a window.

#include "data/word_database.h"
#include "engine/headless_search.h"
#include "engine/letter_values.h"
#include "gui_fixture.h"
#include "ui/main/result_table_model.h"

#include <QCoreApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QTableView>
#include <QTest>
#include <QTimer>
#include <random>

using lettriner::testing::LoadedWindow;

namespace {

// Enough words that a run with a pass after every word spans many ticks.
QStringList manyWords(std::size_t count) {
    const QString letters = QStringLiteral("RAHMENDSX\u00C4");
    std::mt19937 random(20261123);
    std::uniform_int_distribution<int> length(1, 9);
    std::uniform_int_distribution<int> letter(0, static_cast<int>(letters.size()) - 1);
    QStringList words;
    for (std::size_t i = 0; i < count; ++i) {
        QString word;
        for (int n = length(random); n > 0; --n)
            word += letters[letter(random)];
        words.append(word);
    }
    return words;
}

void postKey(QWidget* target, Qt::Key key) {
    QCoreApplication::postEvent(target, new QKeyEvent(QEvent::KeyPress, key, Qt::NoModifier));
    QCoreApplication::postEvent(target, new QKeyEvent(QEvent::KeyRelease, key, Qt::NoModifier));
}

// One random thing a restless user does. Keys are posted, so a search they
// start runs outside the timer's slot and the timer keeps firing inside it.
class Storm {
public:
    Storm(LoadedWindow& window, unsigned seed) : window_(window), random_(seed) {}

    void act() {
        QLineEdit* rack = window_.field("txtBuchstaben");
        // Keys go where a user's would: to whatever has the focus now.
        QWidget* focused = window_.form().focusWidget();
        QWidget* keyTarget = focused != nullptr ? focused : rack;
        switch (pick(8)) {
        case 0:
        case 1:
            postKey(keyTarget, Qt::Key_Return);
            break;
        case 2:
        case 3:
            postKey(keyTarget, Qt::Key_Escape);
            break;
        case 4: {
            QHeaderView* header = window_.list("ListView1")->horizontalHeader();
            const int column = pick(5);
            QTest::mouseClick(header->viewport(), Qt::LeftButton, {},
                              QPoint(header->sectionViewportPosition(column) + 3, 3));
            break;
        }
        case 5:
            window_.field("txtMindestWert")->setText(pickOf(kMinimums));
            break;
        case 6:
            window_.field("txtMaxUB")->setText(pickOf(kFieldSizes));
            break;
        default:
            rack->setText(pickOf(kRacks));
            window_.field("txtConst")->setText(pickOf(kAllowances));
            break;
        }
    }

private:
    static inline const QStringList kMinimums = {"0", "5", "12", "-3", "x", "99999", ""};
    static inline const QStringList kFieldSizes = {"1", "2", "50", "0", "-5", "abc", "40000"};
    static inline const QStringList kRacks = {"RAHMEN", "", "XÄÄ", "RAHMENDS", "ß?*"};
    static inline const QStringList kAllowances = {"0", "1", "1.5", "-1", "9"};

    int pick(int count) { return std::uniform_int_distribution<int>(0, count - 1)(random_); }
    QString pickOf(const QStringList& texts) { return texts[pick(static_cast<int>(texts.size()))]; }

    LoadedWindow& window_;
    std::mt19937 random_;
};

QStringList rowsOf(const lettriner::ui::ResultTableModel& list) {
    QStringList rows;
    for (int row = 0; row < list.rowCount(QModelIndex()); ++row) {
        QStringList cells;
        for (int column = 0; column < lettriner::kResultColumns; ++column)
            cells.append(list.cell(row, column));
        rows.append(cells.join(QLatin1Char('|')));
    }
    return rows;
}

QStringList rowsOf(const lettriner::MemoryResultList& list) {
    QStringList rows;
    for (const lettriner::MemoryResultList::Row& row : list.rows()) {
        QStringList cells;
        for (const std::u16string& cell : row)
            cells.append(QString::fromStdU16String(cell));
        rows.append(cells.join(QLatin1Char('|')));
    }
    return rows;
}

} // namespace

class StressTest : public QObject {
    Q_OBJECT

private slots:
    void stormOfInputDuringSearches_data();
    void stormOfInputDuringSearches();
    void closeRequestsDuringARunAreServed();
};

void StressTest::stormOfInputDuringSearches_data() {
    QTest::addColumn<bool>("paced");
    QTest::addColumn<unsigned>("seed");
    QTest::newRow("pass after every word") << false << 1u;
    QTest::newRow("paced passes") << true << 2u;
    QTest::newRow("pass after every word, other storm") << false << 3u;
}

void StressTest::stormOfInputDuringSearches() {
    QFETCH(bool, paced);
    QFETCH(unsigned, seed);

    LoadedWindow window(manyWords(20'000));
    window.form().setPacedYield(paced);
    window.field("txtBuchstaben")->setFocus();
    Storm storm(window, seed);
    int actions = 0;
    int actionsDuringRuns = 0;
    int runsSeen = 0;
    bool wasSearching = false;
    QTimer ticker;
    ticker.setInterval(0);
    connect(&ticker, &QTimer::timeout, &window.form(), [&] {
        const bool searching = window.form().isSearching();
        actionsDuringRuns += searching ? 1 : 0;
        runsSeen += searching && !wasSearching ? 1 : 0;
        wasSearching = searching;
        storm.act();
        if (++actions == 1500)
            ticker.stop();
    });
    ticker.start();
    QTRY_VERIFY_WITH_TIMEOUT(!ticker.isActive(), 120000);
    postKey(window.field("txtBuchstaben"), Qt::Key_Escape);
    QTRY_VERIFY_WITH_TIMEOUT(!window.form().isSearching(), 60000);
    QCoreApplication::processEvents();
    QVERIFY2(runsSeen >= 10, qPrintable(QStringLiteral("%1 runs").arg(runsSeen)));
    QVERIFY2(actionsDuringRuns >= 100, qPrintable(QString::number(actionsDuringRuns)));

    QVERIFY(window.control("cmdSuchen")->isVisible());
    QVERIFY(!window.control("cmdStop")->isVisible());

    // A calm search now gives what the same texts give without a window.
    window.field("txtConst")->setText(QStringLiteral("1"));
    window.field("txtMindestWert")->setText(QStringLiteral("4"));
    window.field("txtMaxUB")->setText(QStringLiteral("100"));
    window.searchWithRack(QStringLiteral("RAHMEN"));

    lettriner::HeadlessFields fields;
    fields.texts.rack = u"RAHMEN";
    fields.texts.mandatory = window.field("txtPflichtbuchstaben")->text().toStdU16String();
    fields.texts.forbidden = window.field("txtVerboteneBuchstaben")->text().toStdU16String();
    fields.texts.allowance = u"1";
    fields.minimum = u"4";
    fields.fieldSize = u"100";
    const lettriner::PreparedWords words(lettriner::DatenbankEinlesen("DB1.txt"),
                                         lettriner::BewertungsFeldLaden());
    const lettriner::HeadlessOutcome expected = lettriner::searchWithoutWindow(words, fields);

    QCOMPARE(rowsOf(window.form().mainList()), rowsOf(expected.mainList));
    QCOMPARE(rowsOf(window.form().bonusList()), rowsOf(expected.bonusList));
    QCOMPARE(window.list("ListView2")->isVisible(), expected.bonusShown);
    QCOMPARE(window.field("txtMindestWert")->text(),
             QString::fromStdU16String(expected.minimumText));
    QCOMPARE(window.form().findChild<QLabel*>(QStringLiteral("lblInfos"))->text(),
             QStringLiteral("%1 Wörter gefunden").arg(expected.found));
}

void StressTest::closeRequestsDuringARunAreServed() {
    // The real handler ends the process (checked in the start-up tests); here
    // it only counts, so the run goes on and every request must be served.
    LoadedWindow window(manyWords(5'000));
    window.form().setPacedYield(false);
    int closesDuringRun = 0;
    QTimer closer;
    closer.setInterval(0);
    connect(&closer, &QTimer::timeout, &window.form(), [&] {
        if (window.form().isSearching()) {
            window.form().close();
            ++closesDuringRun;
        }
    });
    closer.start();
    window.searchWithRack(QStringLiteral("RAHMEN"));
    closer.stop();
    QVERIFY(window.exitRequested());
    QVERIFY(closesDuringRun > 1);
    QVERIFY(!window.form().isSearching());
}

QTEST_MAIN(StressTest)
#include "stress_test.moc"
