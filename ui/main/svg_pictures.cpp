// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/main/svg_pictures.h"

#include "ui/shared/svg_render.h"

// The resource file is compiled into a static library: its registration has
// to be pulled in by name.
static void initPictures() {
    Q_INIT_RESOURCE(lettriner);
}

namespace lettriner::ui {

QPixmap svgPixmap(const QString& resourcePath, QSize size, qreal pixelRatio) {
    static const bool registered = (initPictures(), true);
    Q_UNUSED(registered);
    return renderSvg(resourcePath, size, pixelRatio);
}

QIcon programIcon() {
    QIcon icon;
    for (const int side : {16, 24, 32, 48, 64, 128, 256})
        icon.addPixmap(svgPixmap(QStringLiteral(":/pictures/icon.svg"), {side, side}, 1.0));
    return icon;
}

} // namespace lettriner::ui
