// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Where every control of the main window was designed, in twips relative to
// its container. Start-up moves only the cover, the stop button and the two
// result lists away from these places.

#include "ui/shared/twips.h"

namespace lettriner::ui::design {

inline constexpr int kClientWidth = 10905;
inline constexpr int kClientHeight = 7590;
// Window border and caption as the window was designed against; used until
// the window manager reports the real frame.
inline constexpr int kNonClientWidth = 120;
inline constexpr int kNonClientHeight = 450;

// Top-level controls.
inline constexpr TwipsRect Picture1{120, 120, 10695, 1095};
inline constexpr TwipsRect Frame1{120, 1200, 5175, 6375};
inline constexpr TwipsRect Frame2{5400, 1200, 5415, 6375};
// Below the input frame the window keeps this much of its outer height.
inline constexpr int kBelowFrame1 = 600;

// Inside the banner.
inline constexpr TwipsRect cmdInfo{10320, 120, 255, 255};
// The board window's button, left of "?" and as high.
inline constexpr TwipsRect cmdBrett{9780, 120, 480, 255};

// Inside Frame1.
inline constexpr TwipsRect Label1{240, 240, 2055, 615};
inline constexpr TwipsRect Label3{2640, 240, 2415, 855};
inline constexpr TwipsRect txtBuchstaben{240, 1080, 2175, 465};
inline constexpr TwipsRect txtConst{2640, 1080, 2175, 465};
inline constexpr TwipsRect Label8{4320, 1680, 735, 375};
inline constexpr TwipsRect Label9{240, 1800, 2175, 615};
inline constexpr TwipsRect txtMaxUB{4320, 2040, 375, 375};
inline constexpr TwipsRect Label7{2640, 2160, 1455, 255};
inline constexpr TwipsRect txtPflichtbuchstaben{240, 2520, 2175, 405};
inline constexpr TwipsRect txtMindestWert{2640, 2520, 2175, 375};
inline constexpr TwipsRect Label10{240, 3240, 2295, 495};
inline constexpr TwipsRect lblDBCount{2640, 3240, 2295, 495};
inline constexpr TwipsRect txtVerboteneBuchstaben{240, 3840, 2175, 465};
inline constexpr TwipsRect cmdSuchen{240, 4560, 4695, 1695};
// Start-up lays the stop button over the search button; this is only where it waits.
inline constexpr TwipsRect cmdStop{240, 4560, 2295, 855};

// Inside Frame2.
inline constexpr TwipsRect picProgress{2040, 240, 3135, 375};
inline constexpr TwipsRect Label5{120, 360, 1695, 375};
inline constexpr TwipsRect txtSuchZeit{4320, 720, 855, 375};
inline constexpr TwipsRect ListView1{120, 840, 5055, 4935};
inline constexpr TwipsRect ListView2{120, 4200, 5055, 1575};
inline constexpr TwipsRect lblInfos{120, 5880, 3615, 255};

// The loading cover's labels; start-up centres them.
inline constexpr int lblLaden1Width = 2865;
inline constexpr int lblLaden1Height = 345;
inline constexpr int lblPunkteWidth = 405;
inline constexpr int lblPunkteHeight = 345;
inline constexpr int lblLettrinoWidth = 2205;
inline constexpr int lblLettrinoHeight = 495;

} // namespace lettriner::ui::design
