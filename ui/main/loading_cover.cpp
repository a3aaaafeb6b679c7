// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/main/loading_cover.h"

#include "ui/main/design_layout.h"
#include "ui/main/input_fields.h"
#include "ui/shared/twips.h"

namespace lettriner::ui {
namespace {

const QColor kGreen(0, 192, 0);

QLabel* coverLabel(QWidget* parent, const QString& caption, int pointSize, const char* name) {
    auto* label = new QLabel(caption, parent);
    label->setObjectName(QLatin1String(name));
    label->setFont(heavyFont(pointSize));
    label->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    label->setAutoFillBackground(true);
    return label;
}

// Half of a measure taken as a whole number: the remainder dropped.
constexpr int half(int twipsMeasure) {
    return twipsMeasure / 2;
}

} // namespace

LoadingCover::LoadingCover(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("Frame3"));
    setAutoFillBackground(true);
    QPalette green = palette();
    green.setColor(QPalette::Window, kGreen);
    setPalette(green);

    lblLaden1_ = coverLabel(this, QStringLiteral("Laden der Datenbank"), 12, "lblLaden1");
    lblPunkte_ = coverLabel(this, QStringLiteral("....."), 12, "lblPunkte");
    lblLettrino_ = coverLabel(this, QStringLiteral("LETTRINO"), 18, "lblLettrino");
    QPalette redWhite = lblLettrino_->palette();
    redWhite.setColor(QPalette::Window, QColor(255, 0, 0));
    redWhite.setColor(QPalette::WindowText, Qt::white);
    lblLettrino_->setPalette(redWhite);
    lblLettrino_->setAlignment(Qt::AlignCenter);
}

void LoadingCover::spread(int outerWidth, int outerHeight) {
    setGeometry(TwipsRect{0, 0, outerWidth, outerHeight}.toPixels());
    const int midX = half(outerWidth);
    const int midY = half(outerHeight);
    lblLaden1_->setGeometry(TwipsRect{midX - half(design::lblLaden1Width), midY - 500,
                                      design::lblLaden1Width, design::lblLaden1Height}
                                .toPixels());
    lblPunkte_->setGeometry(TwipsRect{midX - half(design::lblPunkteWidth), midY,
                                      design::lblPunkteWidth, design::lblPunkteHeight}
                                .toPixels());
    lblLettrino_->setGeometry(TwipsRect{midX - half(design::lblLettrinoWidth), midY + 800,
                                        design::lblLettrinoWidth, design::lblLettrinoHeight}
                                  .toPixels());
}

void LoadingCover::advancePoints() {
    auto n = lblPunkte_->text().size();
    if (n > 5)
        n = 0;
    ++n;
    lblPunkte_->setText(QString(n, QLatin1Char('.')));
}

} // namespace lettriner::ui
