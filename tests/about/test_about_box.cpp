#include "ui/about/about_box.h"
#include "ui/about/svg_picture.h"

#include <QApplication>
#include <QLabel>
#include <QPointer>
#include <QTest>
#include <QWindow>
#include <memory>

using lettriner::frmAbout;
using lettriner::SvgPicture;
using Urls = QList<QUrl>;
using namespace Qt::StringLiterals;

namespace {

const QUrl kHomePage(QStringLiteral(LETTRINER_HOME_PAGE));
const QUrl kDonationPage(QStringLiteral(LETTRINER_HOME_PAGE "/Lettriner_Donate"));

// A spot where only the background lies: right of the description, above the
// donate picture.
const QPoint kBackgroundSpot(395, 150);

} // namespace

class TestAboutBox : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void openingTwiceShowsOneModelessBox();
    void textsFromTheBuild();
    void closingHidesAndReopensTheSameBox_data();
    void closingHidesAndReopensTheSameBox();
    void donateBorderFollowsThePointer_data();
    void donateBorderFollowsThePointer();
    void clicksOpenTheirPages_data();
    void clicksOpenTheirPages();
    void backgroundCoversTheWindow_data();
    void backgroundCoversTheWindow();

private:
    void open();
    [[nodiscard]] QString text(const char* control) const;
    [[nodiscard]] QStringList allTexts() const;
    [[nodiscard]] QPoint spot(const QString& place) const;
    [[nodiscard]] bool donateFramed() const;

    std::unique_ptr<QWidget> mainWindow_;
    QPointer<frmAbout> box_;
    QList<QUrl> opened_;
    bool openerSucceeds_ = true;
};

void TestAboutBox::init() {
    mainWindow_ = std::make_unique<QWidget>();
    mainWindow_->resize(700, 500);
    mainWindow_->show();
    box_ = new frmAbout(mainWindow_.get());
    opened_.clear();
    openerSucceeds_ = true;
    box_->setUrlOpener([this](const QUrl& address) {
        opened_.append(address);
        return openerSucceeds_;
    });
}

void TestAboutBox::cleanup() {
    mainWindow_.reset();
    QVERIFY(box_.isNull());
}

void TestAboutBox::open() {
    box_->showAbout();
    QVERIFY(QTest::qWaitForWindowExposed(box_));
}

QString TestAboutBox::text(const char* control) const {
    const auto* shown = box_->findChild<QLabel*>(QLatin1String(control));
    return shown ? shown->text() : u"<no %1>"_s.arg(QLatin1String(control));
}

QStringList TestAboutBox::allTexts() const {
    return {box_->windowTitle(),    text("lblTitle"), text("lblVersion"),
            text("lblDescription"), text("Label1"),   text("Label2")};
}

// A named control's middle, or the bare background.
QPoint TestAboutBox::spot(const QString& place) const {
    if (place == QLatin1String("background"))
        return kBackgroundSpot;
    const auto* control = box_->findChild<QWidget*>(place);
    return control ? control->geometry().center() : QPoint(-1, -1);
}

bool TestAboutBox::donateFramed() const {
    const auto* donate = box_->findChild<SvgPicture*>(u"imgDonate"_s);
    return donate && donate->hasBorder();
}

void TestAboutBox::openingTwiceShowsOneModelessBox() {
    open();
    open();
    QVERIFY(box_->isVisible());
    QCOMPARE(mainWindow_->findChildren<frmAbout*>().size(), 1);
    QVERIFY(!box_->isModal());
    QCOMPARE(QApplication::activeModalWidget(), nullptr);
    QCOMPARE(box_->size(), QSize(415, 342));
    QCOMPARE(box_->minimumSize(), box_->maximumSize());
}

void TestAboutBox::textsFromTheBuild() {
    open();
    QCOMPARE(box_->windowTitle(), u"Lettriner Version 1.0"_s);
    QCOMPARE(text("lblTitle"), u"Lettriner"_s);
    QCOMPARE(text("lblVersion"), u"Version 1.0.1"_s);
    QCOMPARE(text("Label2"), kHomePage.toString());
}

void TestAboutBox::closingHidesAndReopensTheSameBox_data() {
    QTest::addColumn<QString>("how");
    QTest::newRow("close box") << u"close"_s;
    QTest::newRow("Esc") << u"Esc"_s;
    QTest::newRow("Enter presses the hidden OK button") << u"Enter"_s;
}

void TestAboutBox::closingHidesAndReopensTheSameBox() {
    QFETCH(QString, how);
    open();
    const QStringList before = allTexts();
    const frmAbout* const instance = box_;
    mainWindow_->hide();
    QVERIFY(box_->isVisible());

    if (how == QLatin1String("close"))
        QVERIFY(!box_->close()); // refused: the box stays loaded
    else if (how == QLatin1String("Esc"))
        QTest::keyClick(box_, Qt::Key_Escape);
    else
        QTest::keyClick(box_, Qt::Key_Return);

    QVERIFY(!box_.isNull());
    QVERIFY(!box_->isVisible());
    QVERIFY(mainWindow_->isVisible());

    open();
    QCOMPARE(box_.data(), instance);
    QCOMPARE(mainWindow_->findChildren<frmAbout*>().size(), 1);
    QCOMPARE(allTexts(), before);
}

void TestAboutBox::donateBorderFollowsThePointer_data() {
    QTest::addColumn<QStringList>("path");
    QTest::addColumn<bool>("framed");

    // clang-format off
    QTest::newRow("not touched yet")          << QStringList{}                            << false;
    QTest::newRow("onto the donate picture")  << QStringList{"background", "imgDonate"}   << true;
    QTest::newRow("donate, then logo")        << QStringList{"imgDonate", "imgBrisvel"}   << true;
    QTest::newRow("donate, then address")     << QStringList{"imgDonate", "Label2"}       << true;
    QTest::newRow("donate, then the rest")    << QStringList{"imgDonate", "Label1", "lblTitle",
                                                             "lblVersion", "Image1"}      << true;
    QTest::newRow("donate, description")      << QStringList{"imgDonate",
                                                             "lblDescription"}            << false;
    QTest::newRow("donate, background")       << QStringList{"imgDonate", "background"}   << false;
    QTest::newRow("donate, logo, background") << QStringList{"imgDonate", "imgBrisvel",
                                                             "background"}                << false;
    // clang-format on
}

void TestAboutBox::donateBorderFollowsThePointer() {
    QFETCH(QStringList, path);
    QFETCH(bool, framed);
    open();
    // The pointer comes in over the corner: Qt drops a move to where the
    // pointer already is, and the previous row may have left it on our path.
    QTest::mouseMove(box_->windowHandle(), QPoint(1, 1));
    for (const QString& place : path) {
        const QPoint where = spot(place);
        QVERIFY2(box_->rect().contains(where), qPrintable(place));
        QTest::mouseMove(box_->windowHandle(), where);
    }
    QCOMPARE(donateFramed(), framed);
}

void TestAboutBox::clicksOpenTheirPages_data() {
    QTest::addColumn<QString>("place");
    QTest::addColumn<bool>("browserWorks");
    QTest::addColumn<Urls>("opened");

    // clang-format off
    QTest::newRow("donate picture")      << u"imgDonate"_s  << true  << Urls{kDonationPage};
    QTest::newRow("logo")                << u"imgBrisvel"_s << true  << Urls{kHomePage};
    QTest::newRow("address")             << u"Label2"_s     << true  << Urls{kHomePage};
    QTest::newRow("Label1")              << u"Label1"_s     << true  << Urls{};
    QTest::newRow("background")          << u"background"_s << true  << Urls{};
    QTest::newRow("donate, no browser")  << u"imgDonate"_s  << false << Urls{kDonationPage};
    QTest::newRow("address, no browser") << u"Label2"_s     << false << Urls{kHomePage};
    // clang-format on
}

// Whether or not the page comes up, the box looks as before and no message
// window appears.
void TestAboutBox::clicksOpenTheirPages() {
    QFETCH(QString, place);
    QFETCH(bool, browserWorks);
    QFETCH(Urls, opened);
    openerSucceeds_ = browserWorks;
    open();
    QTest::mouseMove(box_->windowHandle(), spot(place));
    const QStringList texts = allTexts();
    const bool framed = donateFramed();
    const QWidgetList windows = QApplication::topLevelWidgets();

    QTest::mouseClick(box_->windowHandle(), Qt::LeftButton, {}, spot(place));

    QCOMPARE(opened_, opened);
    QVERIFY(box_->isVisible());
    QCOMPARE(allTexts(), texts);
    QCOMPARE(donateFramed(), framed);
    QCOMPARE(QApplication::topLevelWidgets(), windows);
    QCOMPARE(QApplication::activeModalWidget(), nullptr);
}

void TestAboutBox::backgroundCoversTheWindow_data() {
    QTest::addColumn<QSize>("size");
    QTest::newRow("as first shown") << QSize();
    QTest::newRow("grown") << QSize(640, 480);
}

void TestAboutBox::backgroundCoversTheWindow() {
    QFETCH(QSize, size);
    open();
    if (size.isValid()) {
        // The box has a fixed size; lifting it is the only way to resize it.
        box_->setMinimumSize(0, 0);
        box_->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
        box_->resize(size);
        QTRY_COMPARE(box_->size(), size);
    }
    const auto* background = box_->findChild<SvgPicture*>(u"imgBlauerHintergrund"_s);
    QVERIFY(background);
    QCOMPARE(background->pos(), QPoint(0, 0));
    QCOMPARE(background->geometry().united(box_->rect()), background->geometry());
}

QTEST_MAIN(TestAboutBox)
#include "test_about_box.moc"
