// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The window's pictures are SVG files in the resource file, drawn with
// QSvgRenderer so that no image plugin is needed at run time.

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
