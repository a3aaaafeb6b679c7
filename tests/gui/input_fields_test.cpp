// The input frame: upper-casing as the user types, select-all on click and
// Ctrl+A, the kept 16-bit values, fonts, tab order and the banner border.

#include "gui_fixture.h"
#include "ui/about/about_box.h"
#include "ui/main/banner.h"

#include <QFontInfo>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

using lettriner::testing::LoadedWindow;

namespace {

// Sends one typed character the way a keyboard does, umlauts included.
void typeText(QWidget* widget, const QString& text) {
    for (const QChar c : text) {
        QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, QString(c));
        QCoreApplication::sendEvent(widget, &press);
        QKeyEvent release(QEvent::KeyRelease, 0, Qt::NoModifier, QString(c));
        QCoreApplication::sendEvent(widget, &release);
    }
}

class KeyCounter : public QObject {
public:
    int f1Presses = 0;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::KeyPress &&
            static_cast<QKeyEvent*>(event)->key() == Qt::Key_F1)
            ++f1Presses;
        return QObject::eventFilter(watched, event);
    }
};

} // namespace

class InputFieldsTest : public QObject {
    Q_OBJECT

private slots:
    void typingUpperCases_data();
    void typingUpperCases();
    void clickSelectsEverything_data();
    void clickSelectsEverything();
    void ctrlA_data();
    void ctrlA();
    void keptValue_data();
    void keptValue();
    void outOfRangeKeepsPreviousValue();
    void fieldsUseAHeavyFont();
    void tabOrder();
    void bannerBorder_data();
    void bannerBorder();
    void aboutBoxOpens_data();
    void aboutBoxOpens();
};

void InputFieldsTest::typingUpperCases_data() {
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("before");
    QTest::addColumn<int>("caret");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QStringList>("texts"); // after each character
    QTest::addColumn<int>("caretAfter");

    // clang-format off
    QTest::newRow("a e b into an empty rack") << "txtBuchstaben" << "" << 0 << "aeb"
        << QStringList{"A", "AE", "AEB"} << 3;
    QTest::newRow("ä in front of BC") << "txtBuchstaben" << "BC" << 0 << "ä"
        << QStringList{"ÄBC"} << 1;
    QTest::newRow("ß stays ß") << "txtBuchstaben" << "" << 0 << "straße"
        << QStringList{"S", "ST", "STR", "STRA", "STRAß", "STRAßE"} << 6;
    QTest::newRow("blank and digit kept") << "txtBuchstaben" << "AB" << 1 << " 7x"
        << QStringList{"A B", "A 7B", "A 7XB"} << 4;
    QTest::newRow("mandatory letters") << "txtPflichtbuchstaben" << "" << 0 << "öü"
        << QStringList{"Ö", "ÖÜ"} << 2;
    QTest::newRow("forbidden letters, caret in the middle") << "txtVerboteneBuchstaben" << "QZ"
        << 1 << "j" << QStringList{"QJZ"} << 2;
    // clang-format on
}

void InputFieldsTest::typingUpperCases() {
    QFETCH(QString, field);
    QFETCH(QString, before);
    QFETCH(int, caret);
    QFETCH(QString, typed);
    QFETCH(QStringList, texts);
    QFETCH(int, caretAfter);

    LoadedWindow window;
    QLineEdit* edit = window.field(field.toLatin1().constData());
    edit->setText(before);
    edit->setCursorPosition(caret);
    edit->setFocus();
    for (qsizetype i = 0; i < typed.size(); ++i) {
        typeText(edit, typed.mid(i, 1));
        QCOMPARE(edit->text(), texts.at(i));
    }
    QCOMPARE(edit->cursorPosition(), caretAfter);
    QVERIFY(!edit->hasSelectedText());
}

void InputFieldsTest::clickSelectsEverything_data() {
    QTest::addColumn<QString>("field");
    QTest::newRow("rack") << "txtBuchstaben";
    QTest::newRow("mandatory") << "txtPflichtbuchstaben";
    QTest::newRow("forbidden") << "txtVerboteneBuchstaben";
}

void InputFieldsTest::clickSelectsEverything() {
    QFETCH(QString, field);
    LoadedWindow window;
    QLineEdit* edit = window.field(field.toLatin1().constData());
    edit->setText(QStringLiteral("ABCDEF"));
    edit->setCursorPosition(0);
    QTest::mouseClick(edit, Qt::LeftButton, {}, QPoint(edit->width() / 2, edit->height() / 2));
    QCOMPARE(edit->selectedText(), QStringLiteral("ABCDEF"));
    typeText(edit, QStringLiteral("x"));
    QCOMPARE(edit->text(), QStringLiteral("X"));
}

void InputFieldsTest::ctrlA_data() {
    QTest::addColumn<QString>("field");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::addColumn<bool>("allSelected");

    const Qt::KeyboardModifiers ctrl = Qt::ControlModifier;
    const Qt::KeyboardModifiers ctrlShift = Qt::ControlModifier | Qt::ShiftModifier;
    const Qt::KeyboardModifiers ctrlAlt = Qt::ControlModifier | Qt::AltModifier;
    QTest::newRow("Ctrl+A in the rack") << "txtBuchstaben" << ctrl << true;
    QTest::newRow("Ctrl+A in mandatory") << "txtPflichtbuchstaben" << ctrl << true;
    QTest::newRow("Ctrl+A in forbidden") << "txtVerboteneBuchstaben" << ctrl << true;
    QTest::newRow("Ctrl+Shift+A in the rack") << "txtBuchstaben" << ctrlShift << false;
    QTest::newRow("Ctrl+Alt+A in the rack") << "txtBuchstaben" << ctrlAlt << false;
}

void InputFieldsTest::ctrlA() {
    QFETCH(QString, field);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    QFETCH(bool, allSelected);

    LoadedWindow window;
    QLineEdit* edit = window.field(field.toLatin1().constData());
    edit->setText(QStringLiteral("ABCDEF"));
    edit->setCursorPosition(3);
    edit->setFocus();
    QTest::keyClick(edit, Qt::Key_A, modifiers);
    QCOMPARE(edit->selectedText() == QStringLiteral("ABCDEF"), allSelected);
    if (allSelected)
        QCOMPARE(edit->text(), QStringLiteral("ABCDEF")); // the key went no further
}

void InputFieldsTest::keptValue_data() {
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("value");

    QTest::newRow("12abc") << "txtMindestWert"
                           << "12abc" << 12;
    QTest::newRow("empty") << "txtMindestWert"
                           << "" << 0;
    QTest::newRow("2.5 to the even 2") << "txtMindestWert"
                                       << "2.5" << 2;
    QTest::newRow("3.5 to the even 4") << "txtMindestWert"
                                       << "3.5" << 4;
    QTest::newRow("-7") << "txtMindestWert"
                        << "-7" << -7;
    QTest::newRow("1e3") << "txtMindestWert"
                         << "1e3" << 1000;
    QTest::newRow("blanks inside") << "txtMindestWert"
                                   << " 1 2" << 12;
    QTest::newRow("hexadecimal") << "txtMindestWert"
                                 << "&H1F" << 31;
    QTest::newRow("field size") << "txtMaxUB"
                                << "20" << 20;
    QTest::newRow("field size, not a number") << "txtMaxUB"
                                              << "x" << 0;
}

void InputFieldsTest::keptValue() {
    QFETCH(QString, field);
    QFETCH(QString, text);
    QFETCH(int, value);

    LoadedWindow window;
    QCOMPARE(window.form().MindestWert(), 5);
    QCOMPARE(window.form().MaxUB(), 500);
    window.field(field.toLatin1().constData())->setText(text);
    const int kept =
        field == QStringLiteral("txtMaxUB") ? window.form().MaxUB() : window.form().MindestWert();
    QCOMPARE(kept, value);
}

void InputFieldsTest::outOfRangeKeepsPreviousValue() {
    LoadedWindow window;
    QLineEdit* edit = window.field("txtMindestWert");
    edit->setText(QStringLiteral("4000"));
    edit->setFocus();
    edit->end(false);
    QTest::keyClick(edit, Qt::Key_0);
    QCOMPARE(edit->text(), QStringLiteral("40000"));
    QCOMPARE(window.form().MindestWert(), 4000);
    QTest::keyClick(edit, Qt::Key_Backspace);
    QCOMPARE(window.form().MindestWert(), 4000);
    edit->setText(QStringLiteral("-32769"));
    QCOMPARE(window.form().MindestWert(), 4000);
    edit->setText(QStringLiteral("-32768"));
    QCOMPARE(window.form().MindestWert(), -32768);
}

void InputFieldsTest::fieldsUseAHeavyFont() {
    LoadedWindow window;
    for (const char* name : {"txtBuchstaben", "txtConst", "txtPflichtbuchstaben", "txtMindestWert",
                             "txtVerboteneBuchstaben"}) {
        const QFont font = window.field(name)->font();
        QCOMPARE(font.pointSize(), 12);
        QCOMPARE(font.weight(), QFont::Black);
        // Whatever face stands in, it is a bold one.
        QVERIFY2(QFontInfo(font).weight() >= QFont::Bold, name);
    }
    QVERIFY(QFontInfo(window.field("txtMaxUB")->font()).weight() < QFont::Bold);
}

void InputFieldsTest::tabOrder() {
    LoadedWindow window;
    const QStringList expected = {"txtBuchstaben",
                                  "txtConst",
                                  "txtPflichtbuchstaben",
                                  "txtMindestWert",
                                  "txtVerboteneBuchstaben",
                                  "txtMaxUB",
                                  "cmdSuchen",
                                  "cmdStop",
                                  "ListView1",
                                  "ListView2",
                                  "Picture1",
                                  "cmdInfo"};
    QStringList chain;
    QWidget* widget = window.control("txtBuchstaben");
    do {
        if (expected.contains(widget->objectName()))
            chain.append(widget->objectName());
        widget = widget->nextInFocusChain();
    } while (widget != window.control("txtBuchstaben"));
    QCOMPARE(chain, expected);
    QCOMPARE(QApplication::focusWidget(), window.control("txtBuchstaben"));
}

void InputFieldsTest::bannerBorder_data() {
    QTest::addColumn<QString>("overWidget");
    QTest::addColumn<bool>("borderAfter");

    QTest::newRow("frame 1 surface") << "Frame1" << true;
    QTest::newRow("frame 2 surface") << "Frame2" << true;
    QTest::newRow("window surface") << "Form1" << true;
    QTest::newRow("a caption") << "Label1" << false;
    QTest::newRow("a text field") << "txtConst" << false;
    QTest::newRow("the info button") << "cmdInfo" << false;
}

void InputFieldsTest::bannerBorder() {
    QFETCH(QString, overWidget);
    QFETCH(bool, borderAfter);

    LoadedWindow window;
    auto* banner = window.form().findChild<lettriner::ui::Banner*>(QStringLiteral("Picture1"));
    QVERIFY(banner->hasBorder());
    QTest::mouseMove(banner, QPoint(200, 30));
    QVERIFY(!banner->hasBorder());

    QWidget* target = overWidget == QStringLiteral("Form1")
                          ? &window.form()
                          : window.control(overWidget.toLatin1().constData());
    // A point on the target itself, clear of its children and of the window's frames.
    const QPoint point = overWidget == QStringLiteral("Form1")
                             ? QPoint(window.form().width() / 2, window.form().height() - 4)
                         : overWidget.startsWith(QStringLiteral("Frame")) ? QPoint(4, 4)
                                                                          : QPoint(3, 3);
    QTest::mouseMove(target, point);
    QCOMPARE(banner->hasBorder(), borderAfter);
}

void InputFieldsTest::aboutBoxOpens_data() {
    QTest::addColumn<QString>("trigger");
    QTest::addColumn<QString>("focus");
    QTest::newRow("F1 in the rack field") << "F1"
                                          << "txtBuchstaben";
    QTest::newRow("F1 in the result list") << "F1"
                                           << "ListView1";
    QTest::newRow("F1 on the search button") << "F1"
                                             << "cmdSuchen";
    QTest::newRow("the ? button") << "cmdInfo"
                                  << "txtBuchstaben";
    QTest::newRow("a click on the banner") << "Picture1"
                                           << "txtBuchstaben";
}

void InputFieldsTest::aboutBoxOpens() {
    QFETCH(QString, trigger);
    QFETCH(QString, focus);

    LoadedWindow window;
    QWidget* focused = window.control(focus.toLatin1().constData());
    focused->setFocus();
    KeyCounter f1Seen;
    focused->installEventFilter(&f1Seen);
    QVERIFY(window.form().aboutBox() == nullptr);
    for (int time = 0; time < 2; ++time) {
        if (trigger == QStringLiteral("F1"))
            QTest::keyClick(focused, Qt::Key_F1);
        else
            QTest::mouseClick(window.control(trigger.toLatin1().constData()), Qt::LeftButton, {},
                              QPoint(8, 8));
        QVERIFY(window.form().aboutBox() != nullptr);
        QVERIFY(window.form().aboutBox()->isVisible());
    }
    // Opened twice, one box; F1 still reaches the control with the focus.
    QCOMPARE(window.form().findChildren<lettriner::frmAbout*>().size(), 1);
    QCOMPARE(f1Seen.f1Presses, trigger == QStringLiteral("F1") ? 2 : 0);
}

QTEST_MAIN(InputFieldsTest)
#include "input_fields_test.moc"
