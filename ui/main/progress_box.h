// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The search's progress bar: a picture box that keeps what was drawn into it
// (a pixmap repainted on every expose) and is drawn in pixels.

#include <QPixmap>
#include <QWidget>
#include <cstdint>

namespace lettriner::ui {

class ProgressBox final : public QWidget {
    Q_OBJECT

public:
    explicit ProgressBox(QWidget* parent = nullptr);

    // The drawing surface inside the one-pixel border, in pixels.
    [[nodiscard]] QSize innerSize() const;
    // What has been drawn so far, at the inner size.
    [[nodiscard]] QImage drawing() const;

    // Flat look and a kept drawing surface of the inner size, erased.
    void prepare();
    // For drawing into the kept surface; prepares it first when needed.
    [[nodiscard]] QPixmap& surface();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    QPixmap kept_;
};

// Prepares a box for drawing: flat, drawing kept, scale in pixels.
void PicBoxAnpassen(ProgressBox& pic);

// Erases the box and draws the bar for `Prozent` (clamped to 0..100) in a
// colour from red towards blue-grey, with "N %" in bold in the middle.
void ProgressMalen(ProgressBox& pic, std::int16_t Prozent);

} // namespace lettriner::ui
