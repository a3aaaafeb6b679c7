// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The input frame's text fields: the three letter fields, which upper-case
// as the user types and select everything on a click or Ctrl+A, and the two
// numeric fields whose 16-bit value the window keeps current.

#include "engine/number_field.h"

#include <QFont>
#include <QLineEdit>
#include <cstdint>

namespace lettriner::ui {

// "Arial Black" at `pointSize`, weight 900. Where that face is missing the
// heaviest sans-serif face at hand stands in, never a regular one.
[[nodiscard]] QFont heavyFont(int pointSize);

// txtBuchstaben, txtPflichtbuchstaben, txtVerboteneBuchstaben.
class LetterField final : public QLineEdit {
    Q_OBJECT

public:
    explicit LetterField(QWidget* parent = nullptr);

    // The click handling: the whole text selected, so typing replaces it.
    void selectWhole();

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    // Every change upper-cases the whole text (ß stays ß) and keeps the caret.
    void upperCase();
};

// txtMindestWert and txtMaxUB as the search sees them: every change of the
// text sets the value to the rounded numeric value of the text, unless that
// lies outside 16 bits; then the previous value stays.
class LineEditNumberField final : public lettriner::NumberField {
public:
    explicit LineEditNumberField(QLineEdit& field);

    [[nodiscard]] std::int16_t value() const override { return value_; }
    [[nodiscard]] std::u16string text() const override;
    void setText(std::u16string text) override;

    // Start-up: the value from the text the field holds now.
    void readText();

private:
    void take(const QString& text);

    QLineEdit& field_;
    std::int16_t value_ = 0;
};

} // namespace lettriner::ui
