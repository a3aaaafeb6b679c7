// SPDX-License-Identifier: GPL-3.0-or-later
// The result list's model on its own: typed rows in, the cells a view shows
// and the order of a header sort out, under Qt's own model checker.

#include "ui/main/result_table_model.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

using namespace lettriner;
using namespace lettriner::ui;

namespace {

// "WORD length value" rows, comma-separated; "-" leaves a number unset.
void publish(ResultTableModel& model, const QString& rows) {
    for (const QString& row : rows.split(", ", Qt::SkipEmptyParts)) {
        const QStringList cell = row.split(' ');
        model.addRow(cell[0].toStdU16String());
        for (const int column : {kLengthColumn, kValueColumn}) {
            if (cell[column] != "-")
                model.setSubItem(model.rowCount(), column, cell[column].toLongLong());
        }
        model.setSubItem(model.rowCount(), kNeededColumn, cell[0].toLower().toStdU16String());
    }
    model.publishFinished();
}

QString shown(const ResultTableModel& model, int column) {
    QStringList cells;
    for (int row = 0; row < model.rowCount(QModelIndex()); ++row)
        cells.append(model.index(row, column).data().toString());
    return cells.join(' ');
}

} // namespace

class ResultModelTest : public QObject {
    Q_OBJECT

private slots:
    void cellsAsShown() {
        ResultTableModel model;
        QAbstractItemModelTester tester(&model);
        publish(model, "BÄR 3 -, AB 2 12");
        QCOMPARE(model.columnCount(), kResultColumns); // the blank column is the command line's
        QCOMPARE(model.headerData(2, Qt::Horizontal).toString(), "Wortwert");
        QCOMPARE(shown(model, 0), "BÄR AB");
        QCOMPARE(shown(model, 2), " 12"); // an unset number shows nothing
        QCOMPARE(shown(model, 3), "bär ab");
        QVERIFY(!model.index(0, kResultColumns).isValid());

        // Rows written after a clear stay out of sight until the publish ends.
        model.clear();
        model.addRow(u"NEU");
        QCOMPARE(model.rowCount(QModelIndex()), 0);
        QCOMPARE(model.rowCount(), 1);
        model.publishFinished();
        QCOMPARE(shown(model, 0), "NEU");
        // A cell of a shown row tells the view; a text in a number column changes nothing.
        QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
        model.setSubItem(1, kValueColumn, std::int64_t{7});
        model.setSubItem(1, kValueColumn, std::u16string(u"8"));
        QCOMPARE(changed.count(), 1);
        QCOMPARE(shown(model, 2), "7");
    }

    void sortOrder_data() {
        QTest::addColumn<QString>("rows");
        QTest::addColumn<int>("column");
        QTest::addColumn<int>("direction");
        QTest::addColumn<QString>("order");
        const QString rows = "ZEBRA 5 9, abend 5 12, ÄHRE 4 -, AST 3 9";
        // clang-format off
        QTest::newRow("value ascending: by number, unset as 0") << rows << 2 << 0 << "ÄHRE ZEBRA AST abend";
        QTest::newRow("value descending: ties keep their order") << rows << 2 << 1 << "abend ZEBRA AST ÄHRE";
        QTest::newRow("word ascending: by code unit")          << rows << 0 << 0 << "AST ZEBRA abend ÄHRE";
        QTest::newRow("length descending")                     << rows << 1 << 1 << "ZEBRA abend ÄHRE AST";
        // clang-format on
    }
    void sortOrder() {
        QFETCH(QString, rows);
        QFETCH(int, column);
        QFETCH(int, direction);
        QFETCH(QString, order);
        ResultTableModel model;
        QAbstractItemModelTester tester(&model);
        publish(model, rows);
        const QPersistentModelIndex selected = model.index(1, 0);
        ListeSortieren(model, column, columnSortKind(column), direction);
        QCOMPARE(shown(model, 0), order);
        QCOMPARE(selected.data().toString(), "abend"); // the selection follows its row
    }
};

QTEST_GUILESS_MAIN(ResultModelTest)
#include "result_model_test.moc"
