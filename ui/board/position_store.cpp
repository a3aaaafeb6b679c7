// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/board/position_store.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStandardPaths>

namespace lettriner::ui {

namespace b = lettriner::board;

namespace {

// A position is a few hundred bytes; anything much larger is not ours.
constexpr qint64 kLargestFile = 64 * 1024;

} // namespace

QString positionFilePath() {
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) +
           QStringLiteral("/board.cgp");
}

StoredPosition loadStoredPosition() {
    StoredPosition stored;
    const QString path = positionFilePath();
    const QFileInfo info(path);
    if (!info.exists())
        return stored;
    QFile file(path);
    if (!info.isFile() || !file.open(QIODevice::ReadOnly)) {
        stored.problem = QStringLiteral("Die gespeicherte Stellung (%1) ist nicht lesbar; das "
                                        "Brett beginnt leer.")
                             .arg(QDir::toNativeSeparators(path));
        return stored;
    }
    const QByteArray bytes = file.read(kLargestFile + 1);
    if (bytes.size() > kLargestFile) {
        stored.problem = QStringLiteral("Die gespeicherte Stellung (%1) ist viel zu groß; das "
                                        "Brett beginnt leer.")
                             .arg(QDir::toNativeSeparators(path));
        return stored;
    }
    const b::PositionRead read = b::readCgp(bytes.trimmed().toStdString());
    if (!read.error.empty()) {
        stored.problem = QStringLiteral("Die gespeicherte Stellung (%1) ist beschädigt; das "
                                        "Brett beginnt leer.")
                             .arg(QDir::toNativeSeparators(path));
        return stored;
    }
    stored.position = read.position;
    return stored;
}

bool storePosition(const b::Position& position, QString& error) {
    const QString path = positionFilePath();
    if (!QDir().mkpath(QFileInfo(path).path())) {
        error = QStringLiteral("Der Ordner für die Stellung lässt sich nicht anlegen: %1")
                    .arg(QDir::toNativeSeparators(QFileInfo(path).path()));
        return false;
    }
    QSaveFile file(path);
    const std::string text = b::writeCgp(position) + '\n';
    if (!file.open(QIODevice::WriteOnly) ||
        file.write(text.data(), static_cast<qint64>(text.size())) !=
            static_cast<qint64>(text.size()) ||
        !file.commit()) {
        error =
            QStringLiteral("Die Stellung lässt sich nicht speichern: %1").arg(file.errorString());
        return false;
    }
    return true;
}

} // namespace lettriner::ui
