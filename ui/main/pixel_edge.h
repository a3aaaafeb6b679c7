// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Borders drawn on whole device pixels. At a fractional scale factor a line
// one logical pixel wide along a widget's right or bottom edge can fall
// between device pixels, or past the last one the widget owns, and vanish;
// these lines are snapped to the device pixels the widget actually covers.

class QColor;
class QPainter;
class QRect;

namespace lettriner::ui {

// One line around `rect` (logical), `ring` lines in from its outer edge (0:
// the outermost device pixels of `rect`). A line is a logical pixel wide,
// rounded down to whole device pixels, at least one. The left and top lines
// take `topLeft`, the right and bottom lines `bottomRight`, drawn last so
// they own the two corners they share with the others.
void drawPixelEdge(QPainter& painter, const QRect& rect, int ring, const QColor& topLeft,
                   const QColor& bottomRight);

} // namespace lettriner::ui
