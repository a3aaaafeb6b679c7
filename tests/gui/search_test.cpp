// A search from the window: Enter starts it, Esc stops it, edits made while
// it runs, the minimum raised by pruning, and what the window shows after.

#include "gui_fixture.h"
#include "ui/main/result_table_model.h"

#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>
#include <QTableView>
#include <QTest>
#include <QTimer>

using lettriner::testing::LoadedWindow;

namespace {

const QStringList kAllKept = {"RAHMEN", "MEHR", "RAHM", "NAME", "AMEN", "HARN"};

QString labelText(LoadedWindow& window, const char* name) {
    return window.form().findChild<QLabel*>(QLatin1String(name))->text();
}

} // namespace

class SearchTest : public QObject {
    Q_OBJECT

private slots:
    void enterStartsEscStops_data();
    void enterStartsEscStops();
    void pagedYieldServesEventsBeforePublishing();
    void prunedMinimumStaysRaised();
    void fullRowsAndCounts();
    void elapsedTime_data();
    void elapsedTime();
    void emptyWordList();
};

void SearchTest::enterStartsEscStops_data() {
    QTest::addColumn<QString>("duringRun"); // what happens in the run's first yield
    QTest::addColumn<QStringList>("kept");
    QTest::addColumn<QString>("found");

    // clang-format off
    QTest::newRow("nothing")                      << "" << kAllKept << "6 Wörter gefunden";
    QTest::newRow("Esc stops after the word in hand") << "Esc" << QStringList{"RAHMEN"}
                                                  << "1 Wörter gefunden";
    QTest::newRow("stop button clicked")          << "stop" << QStringList{"RAHMEN"}
                                                  << "1 Wörter gefunden";
    QTest::newRow("Enter does nothing while running") << "Enter" << kAllKept
                                                  << "6 Wörter gefunden";
    QTest::newRow("minimum raised to 8")          << "minimum 8" << QStringList{"RAHMEN"}
                                                  << "1 Wörter gefunden";
    QTest::newRow("minimum lowered to 0")         << "minimum 0"
                                                  << (kAllKept + QStringList{"NAH", ""})
                                                  << "8 Wörter gefunden";
    QTest::newRow("rack edit shows in the letter columns only") << "rack" << kAllKept
                                                  << "6 Wörter gefunden";
    // clang-format on
}

void SearchTest::enterStartsEscStops() {
    QFETCH(QString, duringRun);
    QFETCH(QStringList, kept);
    QFETCH(QString, found);

    LoadedWindow window;
    window.form().setPacedYield(false); // the first yield comes after the first word
    QLineEdit* rack = window.field("txtBuchstaben");
    QWidget* search = window.control("cmdSuchen");
    QWidget* stop = window.control("cmdStop");
    bool searchingSeen = false;
    QTimer::singleShot(0, &window.form(), [&] {
        searchingSeen = window.form().isSearching() && stop->isVisible() && !search->isVisible();
        if (duringRun == QStringLiteral("Esc"))
            QTest::keyClick(rack, Qt::Key_Escape);
        else if (duringRun == QStringLiteral("stop"))
            QTest::mouseClick(stop, Qt::LeftButton);
        else if (duringRun == QStringLiteral("Enter"))
            QTest::keyClick(rack, Qt::Key_Return);
        else if (duringRun.startsWith(QStringLiteral("minimum")))
            window.field("txtMindestWert")->setText(duringRun.section(QLatin1Char(' '), 1));
        else if (duringRun == QStringLiteral("rack"))
            rack->setText(QStringLiteral("RAHMENXX"));
    });
    window.searchWithRack(QStringLiteral("RAHMEN"));

    QVERIFY(searchingSeen);
    QVERIFY(!window.form().isSearching());
    QVERIFY(search->isVisible());
    QVERIFY(!stop->isVisible());
    QCOMPARE(window.words("ListView1"), kept);
    QCOMPARE(labelText(window, "lblInfos"), found);
    if (kept.size() > 1) {
        const QString leftOver = window.form().mainList().cell(1, 4); // MEHR
        QCOMPARE(leftOver, duringRun == QStringLiteral("rack") ? QStringLiteral("anxx")
                                                               : QStringLiteral("an"));
    }
    // Esc with no search running changes nothing.
    QTest::keyClick(rack, Qt::Key_Escape);
    QVERIFY(search->isVisible());
}

void SearchTest::pagedYieldServesEventsBeforePublishing() {
    LoadedWindow window;
    bool served = false;
    bool listsStillOld = false;
    QTimer::singleShot(0, &window.form(), [&] {
        served = true;
        listsStillOld = window.form().mainList().rowCount() == 0;
    });
    window.searchWithRack(QStringLiteral("RAHMEN"));
    // A small list never reaches a paced pass; the pass after the loop serves the timer.
    QVERIFY(served);
    QVERIFY(listsStillOld);
    QCOMPARE(window.words("ListView1"), kAllKept);
}

void SearchTest::prunedMinimumStaysRaised() {
    LoadedWindow window;
    window.field("txtMaxUB")->setText(QStringLiteral("2"));
    QCOMPARE(window.form().MaxUB(), 2);

    // The third word prunes to RAHMEN 9 and MEHR 7, and raises the minimum to 7.
    window.searchWithRack(QStringLiteral("RAHMEN"));
    QCOMPARE(window.words("ListView1"), (QStringList{"RAHMEN", "MEHR"}));
    QCOMPARE(labelText(window, "lblInfos"), QStringLiteral("3 Wörter gefunden"));
    QCOMPARE(window.field("txtMindestWert")->text(), QStringLiteral("7"));
    QCOMPARE(window.form().MindestWert(), 7);

    window.searchWithRack(QStringLiteral("RAHMEN"));
    QCOMPARE(window.form().MindestWert(), 7);
    QCOMPARE(window.words("ListView1"), (QStringList{"RAHMEN", "MEHR"}));
}

void SearchTest::fullRowsAndCounts() {
    LoadedWindow window;
    window.searchWithRack(QStringLiteral("rahmen"));
    const lettriner::ui::ResultTableModel& list = window.form().mainList();
    QCOMPARE(list.rowCount(), 6);
    const QStringList first = {list.cell(0, 0), list.cell(0, 1), list.cell(0, 2), list.cell(0, 3),
                               list.cell(0, 4)};
    QCOMPARE(first, (QStringList{"RAHMEN", "6", "9", "", ""}));
    const QStringList last = {list.cell(5, 0), list.cell(5, 1), list.cell(5, 2), list.cell(5, 3),
                              list.cell(5, 4)};
    QCOMPARE(last, (QStringList{"HARN", "4", "5", "", "me"}));
    QCOMPARE(window.words("ListView2"), QStringList{"RAHMEN"});
}

void SearchTest::elapsedTime_data() {
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<QString>("separator");
    QTest::newRow("C locale") << QLocale::c() << ".";
    QTest::newRow("German locale") << QLocale(QLocale::German, QLocale::Germany) << ",";
}

void SearchTest::elapsedTime() {
    QFETCH(QLocale, locale);
    QFETCH(QString, separator);

    LoadedWindow window;
    QLocale::setDefault(locale);
    window.searchWithRack(QStringLiteral("RAHMEN"));
    QLocale::setDefault(QLocale::c());
    const QString time = window.field("txtSuchZeit")->text();
    const QRegularExpression oneDecimal(
        QStringLiteral("^-?\\d+") + QRegularExpression::escape(separator) + QStringLiteral("\\d$"));
    QVERIFY2(oneDecimal.match(time).hasMatch(), qPrintable(time));
}

void SearchTest::emptyWordList() {
    LoadedWindow window(QStringList{});
    window.searchWithRack(QStringLiteral("RAHMEN"));
    QVERIFY(window.words("ListView1").isEmpty());
    QVERIFY(!window.list("ListView2")->isVisible());
    QCOMPARE(labelText(window, "lblInfos"), QStringLiteral("0 Wörter gefunden"));
}

QTEST_MAIN(SearchTest)
#include "search_test.moc"
