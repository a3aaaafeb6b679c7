// The progress bar: clamping, the bar's length and colour, the centred label
// and a drawing that is kept.

#include "ui/main/progress_box.h"

#include <QTest>

using lettriner::ui::ProgressBox;

namespace {

// The horizontal middle of the label's ink: every pixel darker than the bar.
double labelMiddle(const QImage& image) {
    int left = image.width();
    int right = -1;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (qGray(image.pixel(x, y)) < 60) {
                left = std::min(left, x);
                right = std::max(right, x);
            }
    return right < 0 ? -1.0 : (left + right + 1) / 2.0;
}

} // namespace

class ProgressBoxTest : public QObject {
    Q_OBJECT

private slots:
    void drawing_data();
    void drawing();
    void drawingIsKept();
};

void ProgressBoxTest::drawing_data() {
    QTest::addColumn<int>("percent");
    QTest::addColumn<int>("drawnAs");

    QTest::newRow("0") << 0 << 0;
    QTest::newRow("1") << 1 << 1;
    QTest::newRow("42") << 42 << 42;
    QTest::newRow("100") << 100 << 100;
    QTest::newRow("above 100") << 250 << 100;
    QTest::newRow("negative") << -5 << 0;
    QTest::newRow("16-bit minimum") << -32768 << 0;
}

void ProgressBoxTest::drawing() {
    QFETCH(int, percent);
    QFETCH(int, drawnAs);

    ProgressBox box;
    box.resize(209, 25);
    lettriner::ui::PicBoxAnpassen(box);
    lettriner::ui::ProgressMalen(box, static_cast<std::int16_t>(percent));
    const QImage image = box.drawing();
    QCOMPARE(image.size(), box.innerSize() * box.devicePixelRatio());

    const QColor bar(230 - drawnAs, drawnAs + 30, drawnAs + 90);
    const QColor background = box.palette().color(QPalette::Button);
    const int w = image.width();
    const int barEnd = w * drawnAs / 100;
    // Just inside the bar's end and just past it, clear of the label.
    if (drawnAs > 0)
        QCOMPARE(QColor(image.pixel(barEnd - 1, 1)), bar);
    if (drawnAs < 100)
        QCOMPARE(QColor(image.pixel(std::min(barEnd + 1, w - 1), 1)), background);
    QVERIFY(qAbs(labelMiddle(image) - w / 2.0) <= 2.0);
}

void ProgressBoxTest::drawingIsKept() {
    ProgressBox box;
    box.resize(209, 25);
    lettriner::ui::PicBoxAnpassen(box);
    lettriner::ui::ProgressMalen(box, 100);
    box.show();
    QVERIFY(QTest::qWaitForWindowExposed(&box));
    box.hide();
    box.show();
    const QImage shown = box.grab().toImage();
    QCOMPARE(QColor(shown.pixel(5, 5)), QColor(130, 130, 190));
}

QTEST_MAIN(ProgressBoxTest)
#include "progress_box_test.moc"
