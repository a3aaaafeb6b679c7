// SPDX-License-Identifier: GPL-3.0-or-later
// lettriner-render-icon: draws an SVG picture into square PNG files, so that
// the menu and the software centres get the sizes they ask for.
//   lettriner-render-icon SVG SIZE OUT.png [SIZE OUT.png]...

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <cstdio>

int main(int argc, char** argv) {
    // No display is needed: the picture is drawn into memory.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() < 4 || arguments.size() % 2 != 0) {
        std::fputs("usage: lettriner-render-icon SVG SIZE OUT.png [SIZE OUT.png]...\n", stderr);
        return 2;
    }
    QSvgRenderer picture(arguments[1]);
    if (!picture.isValid()) {
        std::fprintf(stderr, "lettriner-render-icon: cannot read %s\n", qPrintable(arguments[1]));
        return 1;
    }
    for (qsizetype i = 2; i + 1 < arguments.size(); i += 2) {
        const int size = arguments[i].toInt();
        if (size <= 0)
            return 2;
        QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        picture.render(&painter);
        painter.end();
        if (!image.save(arguments[i + 1], "PNG")) {
            std::fprintf(stderr, "lettriner-render-icon: cannot write %s\n",
                         qPrintable(arguments[i + 1]));
            return 1;
        }
    }
    return 0;
}
