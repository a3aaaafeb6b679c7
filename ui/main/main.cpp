// Lettriner: the rack helper's window.

#include "ui/main/form1.h"
#include "ui/main/german_qt_texts.h"

#include <QApplication>

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Lettriner"));
    lettriner::ui::installGermanQtTexts(app);
    lettriner::ui::Form1 form(QCoreApplication::applicationDirPath().toStdU16String());
    form.Form_Load();
    return QApplication::exec();
}
