// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/board/board_texts.h"

#include "board/move_text.h"

#include <QLocale>

namespace lettriner::ui {

namespace b = lettriner::board;

QString premiumName(b::Premium premium) {
    if (premium.word == 3)
        return QStringLiteral("dreifacher Wortwert");
    if (premium.word == 2)
        return QStringLiteral("doppelter Wortwert");
    if (premium.letter == 3)
        return QStringLiteral("dreifacher Buchstabenwert");
    if (premium.letter == 2)
        return QStringLiteral("doppelter Buchstabenwert");
    return {};
}

QString premiumLabel(b::Premium premium) {
    if (premium.word > 1)
        return QString::number(premium.word) + QLatin1Char('W');
    if (premium.letter > 1)
        return QString::number(premium.letter) + QLatin1Char('B');
    return {};
}

QString squareSpeech(const b::Board& board, int row, int column) {
    QStringList parts{fromUtf8(b::squareName(row, column))};
    const QString premium = premiumName(b::premiumAt(row, column));
    if (!premium.isEmpty())
        parts.append(premium);
    const b::Tile tile = board.at(row, column);
    if (tile == b::kEmpty)
        parts.append(QStringLiteral("leer"));
    else if (b::isBlank(tile))
        parts.append(QStringLiteral("Blanko als ") + fromUtf8(b::letterUtf8(b::letterOf(tile))));
    else
        parts.append(fromUtf8(b::letterUtf8(b::letterOf(tile))));
    return parts.join(QStringLiteral(", "));
}

QString boardWordText(const b::BoardWord& word) {
    b::Move place;
    place.row = static_cast<std::uint8_t>(word.row);
    place.column = static_cast<std::uint8_t>(word.column);
    place.direction = word.direction;
    return fromUtf8(b::tilesText(word.tiles)) + QStringLiteral(" (") +
           fromUtf8(b::moveCoordinate(place)) + QLatin1Char(')');
}

QStringList warningLines(const b::PositionWarnings& warnings) {
    QStringList lines;
    if (!warnings.unknownWords.empty()) {
        QStringList words;
        for (const b::BoardWord& word : warnings.unknownWords)
            words.append(boardWordText(word));
        lines.append(QStringLiteral("Nicht in der Wortliste: ") + words.join(QStringLiteral(", ")));
    }
    if (warnings.centreEmpty)
        lines.append(QStringLiteral("Auf dem Stern (H8) liegt kein Stein."));
    if (!warnings.unconnectedTiles.empty()) {
        QStringList squares;
        for (const b::Square& square : warnings.unconnectedTiles)
            squares.append(fromUtf8(b::squareName(square.row, square.column)));
        lines.append(QStringLiteral("Ohne Verbindung zur Mitte: ") +
                     squares.join(QStringLiteral(", ")));
    }
    for (const b::ExcessTiles& excess : warnings.excessTiles) {
        const QString what =
            excess.letter == b::kRackBlank
                ? QStringLiteral("Blankos")
                : fromUtf8(b::letterUtf8(excess.letter)) + QStringLiteral("-Steine");
        lines.append(QStringLiteral("Mehr %1 als im Spiel: %2 statt %3")
                         .arg(what)
                         .arg(excess.count)
                         .arg(excess.inSet));
    }
    return lines;
}

namespace {

// Why the word graph's file was not used.
QString fileProblem(b::LexiconFileState state, const QString& fileName) {
    switch (state) {
    case b::LexiconFileState::Stale:
        return fileName + QStringLiteral(" gehört zu einer anderen Wortliste");
    case b::LexiconFileState::Damaged:
        return fileName + QStringLiteral(" ist beschädigt");
    case b::LexiconFileState::Missing:
    case b::LexiconFileState::Current:
        break;
    }
    return fileName + QStringLiteral(" fehlt");
}

} // namespace

QString lexiconBuildingText(b::LexiconFileState state, const QString& fileName) {
    return fileProblem(state, fileName) +
           QStringLiteral(": der Wortgraph wird im Speicher aufgebaut …");
}

QString lexiconReadyText(b::LexiconFileState state, const QString& fileName,
                         std::uint32_t wordCount) {
    const QString words = QLocale(QLocale::German).toString(wordCount);
    if (state == b::LexiconFileState::Current)
        return QStringLiteral("Wortgraph aus %1 geladen: %2 Wörter.").arg(fileName, words);
    return fileProblem(state, fileName) +
           QStringLiteral(": der Wortgraph wurde im Speicher aufgebaut, %1 Wörter.").arg(words);
}

} // namespace lettriner::ui
