#include "gui_fixture.h"

#include "ui/main/result_table_model.h"

#include <QLineEdit>
#include <QTableView>
#include <QTest>
#include <QTimer>

namespace lettriner::testing {

std::string wordFile(const QStringList& words) {
    std::string bytes;
    for (const QString& word : words)
        bytes += word.toLatin1().toStdString() + "\r\n";
    return bytes;
}

LoadedWindow::LoadedWindow(const QStringList& words, bool liftCover) {
    folder_.write("DB1.txt", wordFile(words));
    folder_.write("Bewertung1.txt", kLetters);
    folder_.write("Bewertung2.txt", kValues);
    current_.emplace(folder_.path());
    form_ = std::make_unique<ui::Form1>(folder_.path());
    form_->setExitHandler([this] { exitRequested_ = true; });
    form_->Form_Load();
    // The tests tick the cover themselves.
    form_->findChild<QTimer*>(QStringLiteral("Timer2"))->stop();
    if (liftCover) {
        while (form_->LadeTakte() < 8)
            form_->Timer2_Timer();
    }
    form_->activateWindow();
    [[maybe_unused]] const bool active = QTest::qWaitForWindowActive(form_.get());
}

LoadedWindow::~LoadedWindow() {
    form_.reset();
    current_.reset();
}

QLineEdit* LoadedWindow::field(const char* name) const {
    return form_->findChild<QLineEdit*>(QLatin1String(name));
}

QTableView* LoadedWindow::list(const char* name) const {
    return form_->findChild<QTableView*>(QLatin1String(name));
}

QWidget* LoadedWindow::control(const char* name) const {
    return form_->findChild<QWidget*>(QLatin1String(name));
}

QStringList LoadedWindow::words(const char* listName) const {
    const QAbstractItemModel* model = list(listName)->model();
    QStringList column;
    for (int row = 0; row < model->rowCount(); ++row)
        column.append(model->index(row, 0).data().toString());
    return column;
}

void LoadedWindow::searchWithRack(const QString& rack) {
    QLineEdit* rackField = field("txtBuchstaben");
    rackField->setText(rack);
    rackField->setFocus();
    QTest::keyClick(rackField, Qt::Key_Return);
}

} // namespace lettriner::testing
