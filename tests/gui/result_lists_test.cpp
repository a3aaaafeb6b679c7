// The result lists: the row comparison and its sort, the model the search
// fills, header clicks on the real window and the bonus list's geometry.

#include "gui_fixture.h"
#include "ui/main/design_layout.h"
#include "ui/main/list_sort.h"
#include "ui/main/result_table_model.h"

#include <QAbstractItemModelTester>
#include <QHeaderView>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTableView>
#include <QTest>
#include <algorithm>

using lettriner::testing::LoadedWindow;
using lettriner::ui::ListenVergleich;
using lettriner::ui::ResultRow;
using lettriner::ui::ResultTableModel;
using lettriner::ui::SortierInfo;
using lettriner::ui::SortKind;
using lettriner::ui::TwipsRect;

Q_DECLARE_METATYPE(SortKind)

namespace {

struct Word {
    QString text;
    int length;
    int value;
};

void fill(ResultTableModel& model, const QList<Word>& words) {
    model.clear();
    for (const Word& word : words)
        model.addRow(word.text.toStdU16String());
    for (qsizetype row = 0; row < words.size(); ++row) {
        model.setSubItem(row + 1, 1, QString::number(words[row].length).toStdU16String());
        model.setSubItem(row + 1, 2, QString::number(words[row].value).toStdU16String());
    }
    model.publishFinished();
}

QStringList column0(const ResultTableModel& model) {
    QStringList words;
    for (int row = 0; row < model.rowCount(QModelIndex()); ++row)
        words.append(model.cell(row, 0));
    return words;
}

void clickHeader(QTableView* view, int column) {
    QHeaderView* header = view->horizontalHeader();
    const QPoint middle(header->sectionViewportPosition(column) + header->sectionSize(column) / 2,
                        header->height() / 2);
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, middle);
}

const QList<Word> kRows = {{"HARN", 4, 5},  {"RAHMEN", 6, 9}, {"ÄHRE", 4, 12},
                           {"ZEBRA", 5, 7}, {"MEHR", 4, 7},   {"abend", 5, 9}};

} // namespace

class ResultListsTest : public QObject {
    Q_OBJECT

private slots:
    void comparison_data();
    void comparison();
    void mergeSortKeepsEveryRow_data();
    void mergeSortKeepsEveryRow();
    void modelStagesRowsUntilPublished();
    void modelPassesTheModelTester();
    void headerClicks_data();
    void headerClicks();
    void headerClickOnEmptyListFlipsDirection();
    void bonusListHasNoHeaderSort();
    void bonusListGeometry_data();
    void bonusListGeometry();
};

void ResultListsTest::comparison_data() {
    QTest::addColumn<QString>("t1");
    QTest::addColumn<QString>("t2");
    QTest::addColumn<SortKind>("kind");
    QTest::addColumn<int>("direction");
    QTest::addColumn<int>("result");

    const QString long1 = QString(512, QLatin1Char('A')) + QLatin1Char('B');
    const QString long2 = QString(512, QLatin1Char('A')) + QLatin1Char('C');
    // clang-format off
    QTest::newRow("same word")                 << "MEHR"  << "MEHR"  << SortKind::Text   << 0 << 0;
    QTest::newRow("same word, descending")     << "MEHR"  << "MEHR"  << SortKind::Text   << 1 << 0;
    QTest::newRow("Z before Ä ascending")      << "ZEBRA" << "ÄHRE"  << SortKind::Text   << 0 << -1;
    QTest::newRow("Z after Ä descending")      << "ZEBRA" << "ÄHRE"  << SortKind::Text   << 1 << 1;
    QTest::newRow("capital Z before small a")  << "Z"     << "a"     << SortKind::Text   << 0 << -1;
    QTest::newRow("ß after z")                 << "ß"     << "z"     << SortKind::Text   << 0 << 1;
    QTest::newRow("9 before 12 as numbers")    << "9"     << "12"    << SortKind::Number << 0 << -1;
    QTest::newRow("9 after 12 as text")        << "9"     << "12"    << SortKind::Text   << 0 << 1;
    QTest::newRow("12 first descending")       << "9"     << "12"    << SortKind::Number << 1 << 1;
    QTest::newRow("negative numbers")          << "-3"    << "2"     << SortKind::Number << 0 << -1;
    QTest::newRow("equal values ascending")    << "07"    << "7"     << SortKind::Number << 0 << 1;
    QTest::newRow("equal values descending")   << "07"    << "7"     << SortKind::Number << 1 << 1;
    QTest::newRow("any other direction")       << "A"     << "B"     << SortKind::Text   << -5 << 1;
    QTest::newRow("only 512 characters read")  << long1   << long2   << SortKind::Text   << 0 << 0;
    // clang-format on
}

void ResultListsTest::comparison() {
    QFETCH(QString, t1);
    QFETCH(QString, t2);
    QFETCH(SortKind, kind);
    QFETCH(int, direction);
    QFETCH(int, result);

    const SortierInfo info{1, kind, direction};
    const ResultRow row1{"W1", t1, "", "", ""};
    const ResultRow row2{"W2", t2, "", "", ""};
    QCOMPARE(ListenVergleich(row1, row2, info), result);
}

void ResultListsTest::mergeSortKeepsEveryRow_data() {
    QTest::addColumn<QString>("answers");
    QTest::addColumn<int>("count");
    QTest::newRow("always before") << "always" << 1000;
    QTest::newRow("never before") << "never" << 1000;
    QTest::newRow("random answers") << "random" << 1000;
    QTest::newRow("one row") << "random" << 1;
    QTest::newRow("no rows") << "random" << 0;
}

void ResultListsTest::mergeSortKeepsEveryRow() {
    QFETCH(QString, answers);
    QFETCH(int, count);

    QRandomGenerator random(7);
    long questions = 0;
    const std::vector<int> order = lettriner::ui::mergeSortOrder(count, [&](int, int) {
        ++questions;
        if (answers == QStringLiteral("always"))
            return true;
        if (answers == QStringLiteral("never"))
            return false;
        return random.bounded(2) == 1;
    });
    std::vector<int> sorted = order;
    std::sort(sorted.begin(), sorted.end());
    QCOMPARE(static_cast<int>(sorted.size()), count);
    for (int i = 0; i < count; ++i)
        QCOMPARE(sorted[static_cast<std::size_t>(i)], i);
    QVERIFY(questions <= 20L * count);
    if (answers == QStringLiteral("never"))
        QVERIFY(std::is_sorted(order.begin(), order.end()));
}

void ResultListsTest::modelStagesRowsUntilPublished() {
    ResultTableModel model;
    QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
    QSignalSpy inserts(&model, &QAbstractItemModel::rowsInserted);
    for (int i = 0; i < 1000; ++i)
        model.addRow(u"WORT");
    QCOMPARE(model.rowCount(), 1000);
    QCOMPARE(model.rowCount(QModelIndex()), 0);
    model.setSubItem(1000, 4, u"abc");
    model.setSubItem(1001, 4, u"ignored");
    model.setSubItem(1, 5, u"ignored");
    QCOMPARE(resets.count(), 0);
    model.publishFinished();
    QCOMPARE(resets.count(), 1);
    QCOMPARE(inserts.count(), 0);
    QCOMPARE(model.rowCount(QModelIndex()), 1000);
    QCOMPARE(model.cell(999, 4), QStringLiteral("abc"));
    QCOMPARE(model.cell(0, 4), QString());
    model.clear();
    QCOMPARE(resets.count(), 2);
    QCOMPARE(model.rowCount(), 0);
}

void ResultListsTest::modelPassesTheModelTester() {
    ResultTableModel model;
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    fill(model, kRows);
    QCOMPARE(model.headerData(4, Qt::Horizontal).toString(), QStringLiteral("Übrigbleibende"));
    QVERIFY(!(model.flags(model.index(0, 0)) & Qt::ItemIsEditable));
    const QPersistentModelIndex umlaut = model.index(2, 2);
    lettriner::ui::ListeSortieren(model, 0, SortKind::Text, 0);
    QCOMPARE(umlaut.row(), 5); // the persistent index follows its row
    QCOMPARE(umlaut.data().toString(), QStringLiteral("12"));
    model.setSubItem(1, 3, u"x");
    model.clear();
}

void ResultListsTest::headerClicks_data() {
    QTest::addColumn<QList<int>>("clicks");
    QTest::addColumn<QStringList>("order");
    QTest::addColumn<int>("direction");

    // clang-format off
    QTest::newRow("Wortwert once: highest first") << QList<int>{2}
        << QStringList{"ÄHRE", "RAHMEN", "abend", "ZEBRA", "MEHR", "HARN"} << 1;
    QTest::newRow("Wortwert twice: lowest first") << QList<int>{2, 2}
        << QStringList{"HARN", "ZEBRA", "MEHR", "RAHMEN", "abend", "ÄHRE"} << 0;
    QTest::newRow("Wortlänge after Wortwert sorts ascending") << QList<int>{2, 1}
        << QStringList{"ÄHRE", "MEHR", "HARN", "abend", "ZEBRA", "RAHMEN"} << 0;
    QTest::newRow("Wort ascending: capitals, small letters, then Ä") << QList<int>{0, 0}
        << QStringList{"HARN", "MEHR", "RAHMEN", "ZEBRA", "abend", "ÄHRE"} << 0;
    QTest::newRow("Wort descending") << QList<int>{0}
        << QStringList{"ÄHRE", "abend", "ZEBRA", "RAHMEN", "MEHR", "HARN"} << 1;
    // clang-format on
}

void ResultListsTest::headerClicks() {
    QFETCH(QList<int>, clicks);
    QFETCH(QStringList, order);
    QFETCH(int, direction);

    LoadedWindow window;
    QCOMPARE(window.form().SortRichtung(), 0);
    fill(window.form().mainList(), kRows);
    for (const int column : clicks)
        clickHeader(window.list("ListView1"), column);
    QCOMPARE(column0(window.form().mainList()), order);
    QCOMPARE(window.form().SortRichtung(), direction);
}

void ResultListsTest::headerClickOnEmptyListFlipsDirection() {
    LoadedWindow window;
    clickHeader(window.list("ListView1"), 3);
    QCOMPARE(window.form().SortRichtung(), 1);
    QCOMPARE(window.form().mainList().rowCount(), 0);
    clickHeader(window.list("ListView1"), 4);
    QCOMPARE(window.form().SortRichtung(), 0);
}

void ResultListsTest::bonusListHasNoHeaderSort() {
    LoadedWindow window;
    window.searchWithRack(QStringLiteral("RAHMEN"));
    fill(window.form().bonusList(), kRows);
    const QStringList before = column0(window.form().bonusList());
    clickHeader(window.list("ListView2"), 2);
    QCOMPARE(column0(window.form().bonusList()), before);
    QCOMPARE(window.form().SortRichtung(), 0);
}

void ResultListsTest::bonusListGeometry_data() {
    QTest::addColumn<QStringList>("racks");
    QTest::addColumn<bool>("bonusShown");
    QTest::addColumn<QRect>("list1");
    QTest::addColumn<QRect>("list2");

    const QRect full = TwipsRect{120, 840, 5055, 4935}.toPixels();
    const QRect half = TwipsRect{120, 840, 5055, 2467}.toPixels();
    const QRect below = TwipsRect{120, 3607, 5055, 1867}.toPixels();
    const QRect designed = TwipsRect{120, 4200, 5055, 1575}.toPixels();
    QTest::newRow("bonus word found") << QStringList{"RAHMEN"} << true << half << below;
    QTest::newRow("no bonus word") << QStringList{"RAHMENS"} << false << full << designed;
    QTest::newRow("bonus, then none") << QStringList{"RAHMEN", "RAHMENS"} << false << full << below;
    QTest::newRow("bonus twice: halved once")
        << QStringList{"RAHMEN", "RAHMEN"} << true << half << below;
    QTest::newRow("space in the rack: never a bonus")
        << QStringList{"RAHMEN "} << false << full << designed;
}

void ResultListsTest::bonusListGeometry() {
    QFETCH(QStringList, racks);
    QFETCH(bool, bonusShown);
    QFETCH(QRect, list1);
    QFETCH(QRect, list2);

    LoadedWindow window;
    QCOMPARE(window.form().ListenAbstand(), 1440);
    for (const QString& rack : racks)
        window.searchWithRack(rack);
    QCOMPARE(window.list("ListView2")->isVisible(), bonusShown);
    QCOMPARE(window.list("ListView1")->geometry(), list1);
    QCOMPARE(window.list("ListView2")->geometry(), list2);
    if (bonusShown)
        QCOMPARE(window.words("ListView2"), QStringList{"RAHMEN"});
    else if (racks.size() == 1)
        QVERIFY(window.words("ListView2").isEmpty());
}

QTEST_MAIN(ResultListsTest)
#include "result_lists_test.moc"
