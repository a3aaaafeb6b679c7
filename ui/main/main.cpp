// SPDX-License-Identifier: GPL-3.0-or-later
// Lettriner: the rack helper's window.

#include "data/program_folder.h"
#include "ui/main/form1.h"
#include "ui/main/german_qt_texts.h"

#include <QApplication>
#include <cstdio>
#include <cstring>

int main(int argc, char** argv) {
    // Answered before any window or display is needed.
    if (argc == 2 && std::strcmp(argv[1], "--version") == 0) {
        std::printf("lettriner %s\n", LETTRINER_VERSION);
        return 0;
    }
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Lettriner"));
    lettriner::ui::installGermanQtTexts(app);
    lettriner::ui::Form1 form(lettriner::programFolder());
    form.Form_Load();
    return QApplication::exec();
}
