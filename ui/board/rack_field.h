// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The rack field: up to seven tiles, letters upper-cased as they are typed
// (like the main window's letter fields), "?" for a blank, ß as the two
// tiles SS. Anything else typed or pasted is left out.

#include "board/rack.h"

#include <QLineEdit>

namespace lettriner::ui {

class RackField final : public QLineEdit {
    Q_OBJECT

public:
    explicit RackField(QWidget* parent = nullptr);

    [[nodiscard]] board::Rack rack() const;
    void setRack(const board::Rack& rack);

    // `text` as the field keeps it: upper case, "?" blanks, at most seven tiles.
    [[nodiscard]] static QString tilesOf(const QString& text);

Q_SIGNALS:
    // The player changed the tiles (typing, pasting, cutting); not setRack().
    void rackEdited();

private:
    void tidy();
};

} // namespace lettriner::ui
