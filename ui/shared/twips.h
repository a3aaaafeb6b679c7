// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Both windows are laid out in twips, 15 to a pixel at 96 dpi. Every position
// and size goes through twips() once; Qt's high-DPI scaling does the rest.

#include <QRect>

namespace lettriner::ui {

inline constexpr int kTwipsPerPixel = 15;

// Rounds to the nearest pixel, halves away from zero, the same for negative
// measures so that a mirrored layout stays mirrored.
[[nodiscard]] constexpr int twips(int t) {
    return t >= 0 ? (t + kTwipsPerPixel / 2) / kTwipsPerPixel
                  : -((-t + kTwipsPerPixel / 2) / kTwipsPerPixel);
}

// A control's place inside its container, in twips, as it was designed.
struct TwipsRect {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;

    [[nodiscard]] constexpr int bottom() const { return top + height; }
    [[nodiscard]] QRect toPixels() const {
        return {twips(left), twips(top), twips(width), twips(height)};
    }
};

} // namespace lettriner::ui
