// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The banner across the top of the window: a picture that opens the about
// box when clicked and shows a single-line border until the pointer visits it.

#include <QPixmap>
#include <QWidget>

namespace lettriner::ui {

class Banner final : public QWidget {
    Q_OBJECT

public:
    explicit Banner(QWidget* parent = nullptr);

    [[nodiscard]] bool hasBorder() const { return border_; }
    void setBorder(bool border);

signals:
    void clicked();
    // The pointer moved over the banner itself, not over a control on it.
    void pointerMoved();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    QPixmap picture_;
    bool border_ = true;
    bool pressed_ = false;
};

} // namespace lettriner::ui
