// Start-up: the loading cover and its ticks, the window's height, the stop
// button over the search button, a start without data files, and a close
// request ending the process at once (checked in a child process).

#include "gui_fixture.h"
#include "ui/main/design_layout.h"
#include "ui/main/loading_cover.h"
#include "ui/main/result_table_model.h"

#include <QLabel>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <cstring>
#include <filesystem>

using lettriner::testing::LoadedWindow;
using lettriner::ui::Form1;
using lettriner::ui::twips;
using lettriner::ui::TwipsRect;

namespace {

// Child process: a window that gets a close request in the middle of
// something. Exit code 0 comes only from the window ending the process;
// getting back here means the close did not end it.
int runChild(const char* moment, const char* folder) {
    lettriner::testing::CurrentFolder current(folder);
    Form1 form(folder);
    if (std::strcmp(moment, "loading") == 0) {
        QTimer::singleShot(0, &form, &QWidget::close);
        form.Form_Load();
        return 3;
    }
    form.Form_Load();
    if (std::strcmp(moment, "cover") == 0) {
        // Loaded, the cover still up for its eight ticks.
        QTimer::singleShot(0, &form, &QWidget::close);
        QCoreApplication::exec();
        return 3;
    }
    form.findChild<QLineEdit*>(QStringLiteral("txtBuchstaben"))->setText(QStringLiteral("RAHMEN"));
    if (std::strcmp(moment, "search") == 0) {
        form.setPacedYield(false);
        QTimer::singleShot(0, &form, &QWidget::close);
    }
    form.cmdSuchen_Click();
    return form.mainList().rowCount() > 0 ? 3 : 4;
}

} // namespace

class StartupTest : public QObject {
    Q_OBJECT

private slots:
    void coverLeavesOnTheEighthTickAfterLoading_data();
    void coverLeavesOnTheEighthTickAfterLoading();
    void pointsCycle();
    void coverSpansTheWindow();
    void windowAndButtons();
    void startsWithoutDataFiles();
    void wordCountLabel_data();
    void wordCountLabel();
    void closeEndsTheProgram_data();
    void closeEndsTheProgram();
};

void StartupTest::coverLeavesOnTheEighthTickAfterLoading_data() {
    QTest::addColumn<int>("ticksBeforeLoading");
    QTest::newRow("no tick while loading") << 0;
    QTest::newRow("ticks while loading do not count") << 5;
}

void StartupTest::coverLeavesOnTheEighthTickAfterLoading() {
    QFETCH(int, ticksBeforeLoading);

    lettriner::testing::TempFolder folder;
    folder.write("DB1.txt", lettriner::testing::wordFile(lettriner::testing::kWords));
    lettriner::testing::CurrentFolder current(folder.path());
    Form1 form(folder.path());
    auto* cover = form.findChild<QWidget*>(QStringLiteral("Frame3"));
    auto* timer = form.findChild<QTimer*>(QStringLiteral("Timer2"));
    for (int tick = 0; tick < ticksBeforeLoading; ++tick)
        form.Timer2_Timer();
    QCOMPARE(form.LadeTakte(), 0);

    form.Form_Load();
    QVERIFY(form.LadenFertig());
    QVERIFY(cover->isVisible());
    QVERIFY(timer->isActive());
    timer->stop(); // ticked by hand from here
    for (int tick = 1; tick <= 7; ++tick) {
        form.Timer2_Timer();
        QCOMPARE(form.LadeTakte(), tick);
        QVERIFY(cover->isVisible());
    }
    timer->start();
    form.Timer2_Timer();
    QVERIFY(!cover->isVisible());
    QVERIFY(!timer->isActive());
}

void StartupTest::pointsCycle() {
    LoadedWindow window(lettriner::testing::kWords, false);
    auto* points = window.form().findChild<QLabel*>(QStringLiteral("lblPunkte"));
    points->setText(QStringLiteral("....."));
    QStringList seen;
    for (int tick = 0; tick < 8; ++tick) {
        window.form().Timer2_Timer();
        seen.append(points->text());
    }
    const QStringList expected = {"......", ".", "..", "...", "....", ".....", "......", "."};
    QCOMPARE(seen, expected);
}

void StartupTest::coverSpansTheWindow() {
    LoadedWindow window(lettriner::testing::kWords, false);
    auto* cover = window.form().findChild<lettriner::ui::LoadingCover*>(QStringLiteral("Frame3"));
    QVERIFY(cover->isVisible());
    QVERIFY(window.control("Picture1")->isVisible());
    // The banner lies in front of the cover, the cover in front of both frames.
    const QObjectList& children = window.form().children();
    QVERIFY(children.indexOf(window.control("Picture1")) > children.indexOf(cover));
    QVERIFY(children.indexOf(cover) > children.indexOf(window.control("Frame2")));

    // It reaches past the client area, to the window's outer size.
    QCOMPARE(cover->pos(), QPoint(0, 0));
    QVERIFY(cover->width() > window.form().width());
    QCOMPARE(cover->height(), twips(Form1::outerHeightTwips()));
    const int w = cover->width() * 15;
    const int h = cover->height() * 15;
    QCOMPARE(cover->lblLaden1()->geometry(),
             (TwipsRect{w / 2 - 2865 / 2, h / 2 - 500, 2865, 345}.toPixels()));
    QCOMPARE(cover->lblPunkte()->geometry(),
             (TwipsRect{w / 2 - 405 / 2, h / 2, 405, 345}.toPixels()));
    QCOMPARE(cover->lblLettrino()->geometry(),
             (TwipsRect{w / 2 - 2205 / 2, h / 2 + 800, 2205, 495}.toPixels()));
    QCOMPARE(cover->palette().color(QPalette::Window), QColor(0, 192, 0));
}

void StartupTest::windowAndButtons() {
    LoadedWindow window;
    Form1& form = window.form();
    QCOMPARE(Form1::outerHeightTwips(), 8175);
    QCOMPARE(form.frameGeometry().height(), twips(8175));
    QCOMPARE(form.width(), twips(10905));

    QWidget* search = window.control("cmdSuchen");
    QWidget* stop = window.control("cmdStop");
    QCOMPARE(stop->geometry(), search->geometry());
    QCOMPARE(search->geometry(), (TwipsRect{240, 4560, 4695, 1695}.toPixels()));
    QVERIFY(search->isVisible());
    QVERIFY(!stop->isVisible());
    QVERIFY(!window.control("txtMaxUB")->isVisible());
    QVERIFY(!window.control("txtSuchZeit")->isVisible());
    QCOMPARE(window.field("txtBuchstaben")->selectedText(), QStringLiteral("AFEEZHRB"));
    QCOMPARE(window.form().findChild<QLabel*>(QStringLiteral("lblInfos"))->text(), QString());
}

void StartupTest::startsWithoutDataFiles() {
    lettriner::testing::TempFolder folder;
    lettriner::testing::CurrentFolder current(folder.path());
    Form1 form(folder.path());
    form.Form_Load();
    QVERIFY(form.LadenFertig());
    QCOMPARE(form.wordCount(), std::size_t{0});
    // Reading an absent file leaves it behind, empty; the settings are written anew.
    QVERIFY(folder.exists("DB1.txt"));
    QVERIFY(folder.exists("Settings.txt"));
    for (int tick = 0; tick < 8; ++tick)
        form.Timer2_Timer();
    QVERIFY(!form.findChild<QWidget*>(QStringLiteral("Frame3"))->isVisible());
}

void StartupTest::wordCountLabel_data() {
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<int>("words");
    QTest::addColumn<QString>("caption");

    QTest::newRow("three words") << QLocale::c() << 3 << "gesamte Datenbank: \n3 Einträge";
    QTest::newRow("grouped on a German system") << QLocale(QLocale::German, QLocale::Germany)
                                                << 1234 << "gesamte Datenbank: \n1.234 Einträge";
}

void StartupTest::wordCountLabel() {
    QFETCH(QLocale, locale);
    QFETCH(int, words);
    QFETCH(QString, caption);

    QLocale::setDefault(locale);
    QStringList list;
    for (int i = 0; i < words; ++i)
        list.append(QStringLiteral("WORT"));
    LoadedWindow window(list, false);
    QLocale::setDefault(QLocale::c());
    QCOMPARE(window.form().findChild<QLabel*>(QStringLiteral("lblDBCount"))->text(), caption);
}

void StartupTest::closeEndsTheProgram_data() {
    QTest::addColumn<QString>("moment");
    QTest::addColumn<int>("exitCode");

    QTest::newRow("close while loading") << "loading" << 0;
    QTest::newRow("close under the cover") << "cover" << 0;
    QTest::newRow("close during a search") << "search" << 0;
    QTest::newRow("no close: the search publishes") << "none" << 3;
}

void StartupTest::closeEndsTheProgram() {
    QFETCH(QString, moment);
    QFETCH(int, exitCode);

    lettriner::testing::TempFolder folder;
    folder.write("DB1.txt", lettriner::testing::wordFile(lettriner::testing::kWords));
    folder.write("Bewertung1.txt", lettriner::testing::kLetters);
    folder.write("Bewertung2.txt", lettriner::testing::kValues);
    QProcess child;
    child.start(
        QCoreApplication::applicationFilePath(),
        {QStringLiteral("--child"), moment, QString::fromStdString(folder.path().string())});
    QVERIFY(child.waitForFinished(30000));
    QCOMPARE(child.exitStatus(), QProcess::NormalExit);
    QCOMPARE(child.exitCode(), exitCode);
    // Ending early writes nothing but the settings file.
    QStringList written;
    for (const auto& entry : std::filesystem::directory_iterator(folder.path()))
        written.append(QString::fromStdString(entry.path().filename().string()));
    written.sort();
    QCOMPARE(written, (QStringList{"Bewertung1.txt", "Bewertung2.txt", "DB1.txt", "Settings.txt"}));
}

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    if (argc == 4 && std::strcmp(argv[1], "--child") == 0)
        return runChild(argv[2], argv[3]);
    StartupTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "startup_test.moc"
