// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/main/input_fields.h"

#include "data/numeric_value.h"
#include "data/text_case.h"

#include <QKeyEvent>
#include <QMouseEvent>

namespace lettriner::ui {

QFont heavyFont(int pointSize) {
    QFont font;
    // Fallbacks in order: heavy faces first, then whatever sans-serif the system
    // has, asked for at the heaviest weight it offers.
    font.setFamilies({QStringLiteral("Arial Black"), QStringLiteral("Archivo Black"),
                      QStringLiteral("DejaVu Sans"), QStringLiteral("Liberation Sans"),
                      QStringLiteral("Arial")});
    font.setStyleHint(QFont::SansSerif);
    font.setPointSize(pointSize);
    font.setWeight(QFont::Black);
    return font;
}

LetterField::LetterField(QWidget* parent) : QLineEdit(parent) {
    connect(this, &QLineEdit::textChanged, this, &LetterField::upperCase);
}

void LetterField::selectWhole() {
    setSelection(0, static_cast<int>(text().size()));
}

void LetterField::mouseReleaseEvent(QMouseEvent* event) {
    QLineEdit::mouseReleaseEvent(event);
    if (event->button() == Qt::LeftButton)
        selectWhole();
}

void LetterField::keyPressEvent(QKeyEvent* event) {
    // Ctrl alone: Ctrl+Shift+A or Ctrl+Alt+A go to the field as usual.
    const Qt::KeyboardModifiers modifiers = event->modifiers() & ~Qt::KeypadModifier;
    if (event->key() == Qt::Key_A && modifiers == Qt::ControlModifier) {
        event->accept();
        selectWhole();
        return;
    }
    QLineEdit::keyPressEvent(event);
}

void LetterField::upperCase() {
    const QString current = text();
    const QString upper = QString::fromStdU16String(lettriner::toUpper(current.toStdU16String()));
    // Setting the text is itself a change; that one finds nothing to do.
    if (upper == current)
        return;
    const int caret = cursorPosition();
    setText(upper);
    setCursorPosition(caret);
}

LineEditNumberField::LineEditNumberField(QLineEdit& field) : field_(field) {
    QObject::connect(&field_, &QLineEdit::textChanged, &field_,
                     [this](const QString& text) { take(text); });
}

std::u16string LineEditNumberField::text() const {
    return field_.text().toStdU16String();
}

void LineEditNumberField::setText(std::u16string text) {
    // The field's change then sets the value.
    field_.setText(QString::fromStdU16String(text));
}

void LineEditNumberField::readText() {
    take(field_.text());
}

void LineEditNumberField::take(const QString& text) {
    if (const auto value = lettriner::textToInt16(text.toStdU16String()))
        value_ = *value;
}

} // namespace lettriner::ui
