// SPDX-License-Identifier: GPL-3.0-or-later
// The board window's controls: the board on the left; on the right the rack,
// the buttons, the move list and the help; the status lines below.

#include "ui/board/board_window.h"

#include "ui/board/board_view.h"
#include "ui/board/lexicon_loader.h"
#include "ui/board/move_list_model.h"
#include "ui/board/position_store.h"
#include "ui/board/rack_field.h"

#include <QApplication>
#include <QBoxLayout>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTableView>

namespace lettriner::ui {

namespace {

QPushButton* button(const QString& text, const char* name, const QString& tip) {
    auto* made = new QPushButton(text);
    made->setObjectName(QLatin1String(name));
    made->setToolTip(tip);
    made->setAutoDefault(false);
    return made;
}

QLabel* line(const char* name) {
    auto* label = new QLabel;
    label->setObjectName(QLatin1String(name));
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    return label;
}

} // namespace

BoardWindow::BoardWindow(QWidget* parent) : QWidget(parent, Qt::Window) {
    setObjectName(QStringLiteral("BoardWindow"));
    setWindowTitle(QStringLiteral("Lettriner – Spielbrett"));
    // A window of its own: closing it only hides it, and never ends the program.
    setAttribute(Qt::WA_QuitOnClose, false);
    buildControls();
    layOut();
    nameForScreenReaders();
    setTabOrder();

    const StoredPosition stored = loadStoredPosition();
    board_->setBoard(stored.position.board);
    rackField_->setRack(stored.position.rack);
    if (!stored.problem.isEmpty())
        say(stored.problem);
    lexiconStatus_->setText(QStringLiteral("Die Wortliste wird noch geladen …"));
    updateButtons();
    resize(1120, 700);

    qApp->installEventFilter(this);
}

BoardWindow::~BoardWindow() {
    qApp->removeEventFilter(this);
}

void BoardWindow::buildControls() {
    board_ = new BoardView;
    board_->setObjectName(QStringLiteral("board"));
    connect(board_, &BoardView::edited, this, &BoardWindow::positionEdited);
    connect(board_, &BoardView::copyRequested, this, &BoardWindow::copyPosition);
    connect(board_, &BoardView::pasteRequested, this, &BoardWindow::pastePosition);

    rackField_ = new RackField;
    rackField_->setObjectName(QStringLiteral("rack"));
    rackField_->setToolTip(QStringLiteral("Die Steine auf dem Bänkchen, bis zu sieben; ? für ein "
                                          "Blanko, ß wird SS"));
    QFont heavy = rackField_->font();
    heavy.setPointSizeF(heavy.pointSizeF() * 1.4);
    heavy.setWeight(QFont::Bold);
    rackField_->setFont(heavy);
    connect(rackField_, &RackField::rackEdited, this, &BoardWindow::positionEdited);
    rackLabel_ = new QLabel(QStringLiteral("&Bänkchen (bis zu 7 Steine, ? = Blanko):"));
    rackLabel_->setBuddy(rackField_);

    searchButton_ = button(QStringLiteral("Züge &suchen"), "search",
                           QStringLiteral("Die besten Züge für Brett und Bänkchen (Enter)"));
    connect(searchButton_, &QPushButton::clicked, this, &BoardWindow::search);
    layButton_ = button(QStringLiteral("&Legen"), "lay",
                        QStringLiteral("Den gewählten Zug auf das Brett legen (Enter in der "
                                       "Zugliste, Doppelklick)"));
    connect(layButton_, &QPushButton::clicked, this, &BoardWindow::layMove);
    clearButton_ = button(QStringLiteral("L&eeren"), "clear",
                          QStringLiteral("Alle Steine vom Brett nehmen (Strg+Z holt sie zurück)"));
    connect(clearButton_, &QPushButton::clicked, this, &BoardWindow::clearBoard);
    undoButton_ = button(QStringLiteral("Rückgän&gig"), "undo",
                         QStringLiteral("Das letzte Leeren, Legen oder Einfügen zurücknehmen "
                                        "(Strg+Z)"));
    connect(undoButton_, &QPushButton::clicked, this, &BoardWindow::undo);
    helpButton_ = button(QStringLiteral("?"), "help", helpText());
    helpButton_->setCheckable(true);

    moves_ = new MoveListModel(this);
    moveView_ = new QTableView;
    moveView_->setObjectName(QStringLiteral("moves"));
    moveView_->setModel(moves_);
    moveView_->setSelectionBehavior(QAbstractItemView::SelectRows);
    moveView_->setSelectionMode(QAbstractItemView::SingleSelection);
    moveView_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    moveView_->setAlternatingRowColors(true);
    moveView_->setWordWrap(false);
    moveView_->verticalHeader()->hide();
    moveView_->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    moveView_->verticalHeader()->setDefaultSectionSize(moveView_->fontMetrics().height() + 6);
    moveView_->horizontalHeader()->setStretchLastSection(true);
    moveView_->horizontalHeader()->setHighlightSections(false);
    const int widths[] = {40, 104, 56, 84, 56};
    for (int column = 0; column < static_cast<int>(std::size(widths)); ++column)
        moveView_->setColumnWidth(column, widths[column]);
    moveView_->horizontalHeader()->setSortIndicator(MoveListModel::Punkte, Qt::DescendingOrder);
    moveView_->setSortingEnabled(true);
    connect(moveView_->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &BoardWindow::showPreview);
    connect(moveView_, &QTableView::doubleClicked, this, &BoardWindow::layMove);
    movesLabel_ = new QLabel(QStringLiteral("&Züge, die besten zuerst:"));
    movesLabel_->setBuddy(moveView_);

    help_ = new QLabel(helpText());
    help_->setObjectName(QStringLiteral("helpText"));
    help_->setWordWrap(true);
    help_->setTextFormat(Qt::PlainText);
    help_->setFrameStyle(QFrame::StyledPanel);
    help_->setMargin(6);
    help_->hide();
    connect(helpButton_, &QPushButton::toggled, help_, &QWidget::setVisible);

    status_ = line("status");
    warnings_ = line("warnings");
    QPalette red = warnings_->palette();
    red.setColor(QPalette::WindowText, QColor(0xB0, 0x10, 0x18));
    warnings_->setPalette(red);
    warnings_->hide();
    lexiconStatus_ = line("lexiconStatus");
    lexiconStatus_->setWordWrap(true);
    progress_ = new QProgressBar;
    progress_->setObjectName(QStringLiteral("progress"));
    progress_->setRange(0, 0); // the build says nothing of its progress: a busy bar
    progress_->setMaximumWidth(160);
    progress_->setTextVisible(false);
    progress_->hide();

    loader_ = new LexiconLoader(this);
    connect(loader_, &LexiconLoader::buildingStarted, this, &BoardWindow::lexiconBuildingStarted);
    connect(loader_, &LexiconLoader::finished, this, &BoardWindow::lexiconFinished);
}

void BoardWindow::layOut() {
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(searchButton_, 2);
    buttons->addWidget(layButton_, 1);
    auto* edits = new QHBoxLayout;
    edits->addWidget(clearButton_);
    edits->addWidget(undoButton_);
    edits->addStretch(1);
    edits->addWidget(helpButton_);
    helpButton_->setFixedWidth(helpButton_->sizeHint().height() + 6);

    auto* side = new QVBoxLayout;
    side->addWidget(rackLabel_);
    side->addWidget(rackField_);
    side->addLayout(buttons);
    side->addLayout(edits);
    side->addSpacing(6);
    side->addWidget(movesLabel_);
    side->addWidget(moveView_, 1);
    side->addWidget(help_);
    auto* lexiconRow = new QHBoxLayout;
    lexiconRow->addWidget(lexiconStatus_, 1);
    lexiconRow->addWidget(progress_);
    side->addLayout(lexiconRow);

    auto* top = new QHBoxLayout;
    top->addWidget(board_, 4);
    top->addLayout(side, 3);

    auto* whole = new QVBoxLayout(this);
    whole->addLayout(top, 1);
    whole->addWidget(warnings_);
    whole->addWidget(status_);
}

void BoardWindow::nameForScreenReaders() {
    // The board names itself after the square under its cursor (board_view.cpp).
    rackField_->setAccessibleName(QStringLiteral("Bänkchen"));
    searchButton_->setAccessibleName(QStringLiteral("Züge suchen"));
    layButton_->setAccessibleName(QStringLiteral("Zug legen"));
    clearButton_->setAccessibleName(QStringLiteral("Brett leeren"));
    undoButton_->setAccessibleName(QStringLiteral("Rückgängig"));
    helpButton_->setAccessibleName(QStringLiteral("Hilfe zum Spielbrett"));
    moveView_->setAccessibleName(QStringLiteral("Zugliste"));
    help_->setAccessibleName(QStringLiteral("Hilfe"));
    status_->setAccessibleName(QStringLiteral("Meldung"));
    warnings_->setAccessibleName(QStringLiteral("Hinweise zur Stellung"));
    lexiconStatus_->setAccessibleName(QStringLiteral("Wortgraph"));
    progress_->setAccessibleName(QStringLiteral("Wortgraph wird aufgebaut"));
}

void BoardWindow::setTabOrder() {
    QWidget* const chain[] = {board_,     rackField_,   searchButton_, moveView_,
                              layButton_, clearButton_, undoButton_,   helpButton_};
    for (std::size_t i = 1; i < std::size(chain); ++i)
        QWidget::setTabOrder(chain[i - 1], chain[i]);
}

QString BoardWindow::helpText() const {
    return QStringLiteral(
        "Brett: Feld anklicken oder mit den Pfeiltasten wählen und Buchstaben tippen; die "
        "Schreibmarke rückt weiter. Leertaste oder zweiter Klick: waagerecht oder senkrecht.\n"
        "Blanko: Umschalttaste mit dem Buchstaben, ? vor dem Buchstaben oder „Blanko“ im "
        "Kontextmenü. Die Feststelltaste macht keine Blankos. Umlaute direkt tippen; ß wird "
        "zu SS auf zwei Feldern.\n"
        "Rücktaste: Stein vor der Marke weg, Entf: Stein unter der Marke weg.\n"
        "Strg+C / Strg+V auf dem Brett: Stellung als CGP-Text kopieren oder einfügen "
        "(wie lettriner-cli --cgp).\n"
        "Enter: Züge suchen; in der Zugliste legt Enter den gewählten Zug, ebenso Doppelklick "
        "und „Legen“.\n"
        "Strg+Z: letztes Leeren, Legen oder Einfügen zurücknehmen. F1: Info.");
}

void BoardWindow::useWords(const PreparedWords& words, const std::filesystem::path& wordListFile) {
    if (words_ != nullptr)
        return;
    words_ = &words;
    values_ = board::TileValues(words.values());
    board_->setTileValues(values_);
    lexiconStatus_->setText(QStringLiteral("Der Wortgraph wird geladen …"));
    progress_->show();
    // The lexicon file lies beside the list, wherever the current folder is later.
    std::error_code error;
    std::filesystem::path listFile = std::filesystem::absolute(wordListFile, error);
    if (error)
        listFile = wordListFile;
    loader_->start(words.database(), listFile);
}

void BoardWindow::showBoard() {
    show();
    raise();
    activateWindow();
    board_->setFocus(Qt::OtherFocusReason);
}

bool BoardWindow::lexiconReady() const {
    return loader_->isReady();
}

const board::Lexicon& BoardWindow::lexicon() const {
    return loader_->result().lexicon;
}

} // namespace lettriner::ui
