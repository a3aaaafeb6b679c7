// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/main/german_qt_texts.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>

namespace lettriner::ui {

bool installGermanQtTexts(QCoreApplication& app) {
    auto* translator = new QTranslator(&app);
    // By file name, not by locale: the window is German on every system.
    if (!translator->load(QStringLiteral("qtbase_de"),
                          QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        delete translator;
        return false;
    }
    return QCoreApplication::installTranslator(translator);
}

} // namespace lettriner::ui
