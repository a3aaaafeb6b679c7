// SPDX-License-Identifier: GPL-3.0-or-later
// The about box: this build's version, every close only hiding it, the pointer and the links.

#include "ui/about/about_box.h"
#include "ui/about/svg_picture.h"

#include <QLabel>
#include <QTest>
#include <QWindow>

using Urls = QList<QUrl>;
const QUrl kHomePage(QStringLiteral(LETTRINER_HOME_PAGE));
const QUrl kDonationPage(QStringLiteral(LETTRINER_HOME_PAGE "/Lettriner_Donate"));

class TestAboutBox : public QObject {
    Q_OBJECT

    QWidget mainWindow_;
    lettriner::frmAbout* box_ = nullptr;
    Urls opened_;

private slots:
    void init() { // every test starts with a new box, shown over the main window
        mainWindow_.show();
        box_ = new lettriner::frmAbout(&mainWindow_);
        opened_.clear();
        box_->setUrlOpener([this](const QUrl& address) {
            opened_.append(address);
            return true;
        });
        box_->showAbout();
        QVERIFY(QTest::qWaitForWindowExposed(box_));
    }
    void cleanup() { delete box_; }

    void showsTheBuildsVersion() {
        QCOMPARE(box_->windowTitle(), "Lettriner Version " LETTRINER_MAJOR_MINOR);
        QCOMPARE(box_->findChild<QLabel*>("lblVersion")->text(), "Version " LETTRINER_VERSION);
    }

    void closingHidesAndReopensTheSameBox_data() {
        QTest::addColumn<QString>("how");
        QTest::newRow("close box") << "close";
        QTest::newRow("Esc") << "Esc";
        QTest::newRow("Enter presses the hidden OK button") << "Enter";
    }
    void closingHidesAndReopensTheSameBox() {
        QFETCH(QString, how);
        mainWindow_.hide();
        if (how == "close")
            QVERIFY(!box_->close()); // refused: the box stays loaded
        else
            QTest::keyClick(box_, how == "Esc" ? Qt::Key_Escape : Qt::Key_Return);
        QVERIFY(!box_->isVisible());
        QVERIFY(mainWindow_.isVisible());
        box_->showAbout();
        QVERIFY(box_->isVisible());
    }

    void pointer_data() {
        QTest::addColumn<QStringList>("path"); // where the pointer goes; "click" clicks there
        QTest::addColumn<bool>("donateFramed");
        QTest::addColumn<Urls>("opened");
        // clang-format off
        QTest::newRow("onto the donate picture") << QStringList{"imgDonate"}                   << true  << Urls{};
        QTest::newRow("donate, then the logo")   << QStringList{"imgDonate", "imgBrisvel"}     << true  << Urls{};
        QTest::newRow("donate, then background") << QStringList{"imgDonate", "background"}     << false << Urls{};
        QTest::newRow("donate clicked")          << QStringList{"imgDonate", "click"}          << true  << Urls{kDonationPage};
        QTest::newRow("address clicked")         << QStringList{"Label2", "click"}             << false << Urls{kHomePage};
        QTest::newRow("the address's caption")   << QStringList{"Label1", "click"}             << false << Urls{};
        // clang-format on
    }
    void pointer() {
        QFETCH(QStringList, path);
        QFETCH(bool, donateFramed);
        QFETCH(Urls, opened);
        // In over the corner first: Qt drops a move to where the pointer already is.
        QPoint spot(1, 1);
        QTest::mouseMove(box_->windowHandle(), spot);
        for (const QString& step : path) {
            if (step == "click")
                QTest::mouseClick(box_->windowHandle(), Qt::LeftButton, {}, spot);
            else // to a control's middle, or where only the background lies
                QTest::mouseMove(box_->windowHandle(),
                                 spot = step == "background"
                                            ? QPoint(395, 150)
                                            : box_->findChild<QWidget*>(step)->geometry().center());
        }
        QCOMPARE(box_->findChild<lettriner::SvgPicture*>("imgDonate")->hasBorder(), donateFramed);
        QCOMPARE(opened_, opened);
        QVERIFY(box_->isVisible()); // a click changes nothing else
    }
};

QTEST_MAIN(TestAboutBox)
#include "test_about_box.moc"
