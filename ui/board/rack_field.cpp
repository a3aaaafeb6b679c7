// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/board/rack_field.h"

#include "board/position_text.h"
#include "ui/board/board_texts.h"

#include <algorithm>

namespace lettriner::ui {

namespace b = lettriner::board;

RackField::RackField(QWidget* parent) : QLineEdit(parent) {
    setPlaceholderText(QStringLiteral("z. B. ENTSAG?"));
    connect(this, &QLineEdit::textEdited, this, &RackField::tidy);
}

QString RackField::tilesOf(const QString& text) {
    QString tiles;
    for (const char32_t character : text.toUpper().toUcs4()) {
        // toUpper() has made ß into SS already.
        if (character == U'?' || b::letterFromCharacter(character).letter != b::kNoLetter)
            tiles.append(QString::fromUcs4(&character, 1));
        if (tiles.size() == b::kRackSize)
            break;
    }
    return tiles;
}

b::Rack RackField::rack() const {
    return b::readRack(text().toStdString()).rack;
}

void RackField::setRack(const b::Rack& rack) {
    setText(fromUtf8(b::rackText(rack)));
}

void RackField::tidy() {
    const QString tiles = tilesOf(text());
    if (tiles != text()) {
        // The caret stays after the same tiles it followed.
        const auto caret = tilesOf(text().left(cursorPosition())).size();
        setText(tiles);
        setCursorPosition(static_cast<int>(std::min(caret, tiles.size())));
    }
    Q_EMIT rackEdited();
}

} // namespace lettriner::ui
