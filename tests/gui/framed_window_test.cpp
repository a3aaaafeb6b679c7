// SPDX-License-Identifier: GPL-3.0-or-later
// The main window under a real window manager (run by under_window_manager.sh
// on a virtual X display): the frame the manager adds is part of the outer
// size, and the controls keep their places, 15 twips to a pixel.

#include "support/temp_folder.h"
#include "ui/main/form1.h"

#include <QProcess>
#include <QRegularExpression>
#include <QTest>
#include <QTimer>

using namespace lettriner::testing;
using namespace lettriner::ui;

namespace {

// The first number after `label` in an X utility's report, or -1.
int reported(const QString& report, const QString& label) {
    const QRegularExpressionMatch match =
        QRegularExpression(QRegularExpression::escape(label) + QStringLiteral("\\D*(\\d+)"))
            .match(report);
    return match.hasMatch() ? match.captured(1).toInt() : -1;
}

QString run(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.start(program, arguments);
    process.waitForFinished(10000);
    return QString::fromLocal8Bit(process.readAllStandardOutput());
}

} // namespace

class FramedWindowTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() {
        form_.setExitHandler([] {});
        form_.Form_Load();
        form_.findChild<QTimer*>(QStringLiteral("Timer2"))->stop();
        // Framed: the manager's frame lies around the client area.
        QTRY_VERIFY(form_.frameGeometry().height() > form_.height());
    }

    void outerSize_data() {
        QTest::addColumn<QString>("reporter");
        QTest::newRow("as Qt reports it") << "Qt";
        QTest::newRow("as the window manager reports it") << "X";
    }
    void outerSize() {
        QFETCH(QString, reporter);
        // The client keeps its designed width; the outer height includes the frame.
        const QSize expected(twips(10905), twips(8175));
        const auto qtSize = [this] {
            return QSize(form_.width(), form_.frameGeometry().height());
        };
        QTRY_COMPARE(qtSize(), expected); // settled
        if (reporter == "Qt")
            return;
        // The X server applies a resize a moment after Qt asks for it.
        const QString id = QString::number(form_.winId());
        const auto xSize = [&id] {
            const QString window = run(QStringLiteral("xwininfo"), {QStringLiteral("-id"), id});
            // Left, right, top, bottom.
            const QStringList extents =
                run(QStringLiteral("xprop"), {QStringLiteral("-id"), id, "_NET_FRAME_EXTENTS"})
                    .section('=', 1)
                    .split(',', Qt::SkipEmptyParts);
            if (extents.size() != 4)
                return QSize();
            return QSize(reported(window, "Width:"),
                         reported(window, "Height:") + extents[2].toInt() + extents[3].toInt());
        };
        QTRY_COMPARE(xSize(), expected);
    }

    void placement_data() {
        QTest::addColumn<QString>("control");
        QTest::addColumn<QRect>("inWindow"); // twips from the client area's corner
        // clang-format off
        QTest::newRow("banner")        << "Picture1"      << QRect(120, 120, 10695, 1095);
        QTest::newRow("? button")      << "cmdInfo"       << QRect(10440, 240, 255, 255);
        QTest::newRow("input frame")   << "Frame1"        << QRect(120, 1200, 5175, 6375);
        QTest::newRow("result frame")  << "Frame2"        << QRect(5400, 1200, 5415, 6375);
        QTest::newRow("rack field")    << "txtBuchstaben" << QRect(360, 2280, 2175, 465);
        QTest::newRow("search button") << "cmdSuchen"     << QRect(360, 5760, 4695, 1695);
        QTest::newRow("progress box")  << "picProgress"   << QRect(7440, 1440, 3135, 375);
        QTest::newRow("result list")   << "ListView1"     << QRect(5520, 2040, 5055, 4935);
        // clang-format on
    }
    void placement() {
        QFETCH(QString, control);
        QFETCH(QRect, inWindow);
        const QWidget* widget = form_.findChild<QWidget*>(control);
        QVERIFY(widget != nullptr);
        const QRect placed(widget->mapTo(&form_, QPoint(0, 0)), widget->size());
        const TwipsRect designed{inWindow.x(), inWindow.y(), inWindow.width(), inWindow.height()};
        QCOMPARE(placed, designed.toPixels());
        QVERIFY(form_.rect().contains(placed)); // not cut off by the frame
    }

private:
    TempFolder folder_;
    CurrentFolder current_{folder_.path()};
    Form1 form_{folder_.path()};
};

QTEST_MAIN(FramedWindowTest)

#include "framed_window_test.moc"
