// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The main window's pictures: SVG files in its resource file, drawn by the
// shared renderer.

#include <QIcon>
#include <QPixmap>
#include <QString>

namespace lettriner::ui {

// The picture at `resourcePath` (":/pictures/...") drawn to fill `size`
// logical pixels at `pixelRatio`; a transparent pixmap if it cannot be read.
[[nodiscard]] QPixmap svgPixmap(const QString& resourcePath, QSize size, qreal pixelRatio);

// The program's icon at the usual sizes.
[[nodiscard]] QIcon programIcon();

} // namespace lettriner::ui
