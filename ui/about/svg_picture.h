// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A picture drawn from an SVG resource and stretched to whatever size the
// widget has, so the about box needs no image-format plugin at run time.

#include <QPixmap>
#include <QSvgRenderer>
#include <QWidget>

namespace lettriner {

class SvgPicture : public QWidget {
    Q_OBJECT

public:
    SvgPicture(const QString& resource, QWidget* parent);

    // A thin single-line frame drawn over the picture's edge.
    [[nodiscard]] bool hasBorder() const { return border_; }
    void setBorder(bool on);

    // The picture rendered at a fixed size, for window icons; an unreadable
    // resource gives a transparent pixmap.
    [[nodiscard]] static QPixmap rendered(const QString& resource, QSize size);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QSvgRenderer renderer_;
    // Re-rendered only when the size or the screen's pixel ratio changes;
    // hovering repaints the picture often.
    QPixmap cache_;
    bool border_ = false;
};

} // namespace lettriner
