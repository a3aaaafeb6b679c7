// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The green cover that hides both frames while the data files are read: a
// loading text, a row of points that grows with each tick, and the game's name.

#include <QLabel>
#include <QWidget>

namespace lettriner::ui {

class LoadingCover final : public QWidget {
    Q_OBJECT

public:
    explicit LoadingCover(QWidget* parent = nullptr);

    // Spreads the cover over `outerWidth` x `outerHeight` twips from the
    // window's corner and centres the labels in it: loading text 500 twips
    // above the middle, points on it, the name 800 below.
    void spread(int outerWidth, int outerHeight);

    // One to six points, then one again.
    void advancePoints();

private:
    QLabel* lblLaden1_;
    QLabel* lblPunkte_;
    QLabel* lblLettrino_;
};

} // namespace lettriner::ui
