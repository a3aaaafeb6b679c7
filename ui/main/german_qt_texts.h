// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Qt's own texts (the line edits' context menus, the standard dialog
// buttons) in German, like the rest of the window, whatever the user's locale.

class QCoreApplication;

namespace lettriner::ui {

// Loads Qt's German translation from Qt's translations folder into `app`.
// False, and Qt's English texts stay, when the translation is not installed.
bool installGermanQtTexts(QCoreApplication& app);

} // namespace lettriner::ui
