// SPDX-License-Identifier: GPL-3.0-or-later
// The main window's controls as they were designed: places, texts, fonts,
// tooltips and tab order. Start-up (form1_startup.cpp) then adjusts them.

#include "ui/main/form1.h"

#include "ui/about/about_box.h"
#include "ui/board/board_window.h"
#include "ui/main/banner.h"
#include "ui/main/design_layout.h"
#include "ui/main/loading_cover.h"
#include "ui/main/progress_box.h"
#include "ui/main/result_table_model.h"
#include "ui/main/result_view.h"
#include "ui/main/search_window.h"
#include "ui/main/svg_pictures.h"

#include <QApplication>
#include <QFontInfo>
#include <QFrame>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QTimer>
#include <cstdlib>

namespace lettriner::ui {
namespace {

// The window's own text face: small and plain, like a classic dialog font.
// The wide faces that stand in for it elsewhere are narrowed a little, so the
// captions wrap within their designed boxes.
QFont windowFont() {
    QFont font;
    font.setFamilies({QStringLiteral("MS Sans Serif"), QStringLiteral("Microsoft Sans Serif"),
                      QStringLiteral("Tahoma"), QStringLiteral("DejaVu Sans")});
    font.setStyleHint(QFont::SansSerif);
    font.setPointSizeF(8.25);
    const QString family = QFontInfo(font).family();
    if (!family.contains(QStringLiteral("Sans Serif")) && family != QStringLiteral("Tahoma"))
        font.setStretch(QFont::Condensed);
    return font;
}

QFont bonusListFont() {
    QFont font;
    font.setFamilies({QStringLiteral("MS Sans Serif"), QStringLiteral("Microsoft Sans Serif"),
                      QStringLiteral("Tahoma"), QStringLiteral("DejaVu Sans")});
    font.setStyleHint(QFont::SansSerif);
    font.setPointSizeF(9.75);
    font.setWeight(QFont::Bold);
    return font;
}

QString fromView(std::u16string_view text) {
    return QString::fromUtf16(text.data(), static_cast<qsizetype>(text.size()));
}

template <typename Widget> Widget* place(Widget* widget, const char* name, const TwipsRect& where) {
    widget->setObjectName(QLatin1String(name));
    widget->setGeometry(where.toPixels());
    return widget;
}

QLabel* caption(QWidget* parent, const char* name, const TwipsRect& where, const QString& text) {
    auto* label = place(new QLabel(text, parent), name, where);
    label->setWordWrap(true);
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    return label;
}

void setUpField(QLineEdit* field, QWidget* parent, const char* name, const TwipsRect& where,
                const QString& text, const QString& tip, bool heavy) {
    field->setParent(parent);
    place(field, name, where);
    if (heavy)
        field->setFont(heavyFont(12));
    field->setText(text);
    field->setToolTip(tip);
}

QPushButton* pictureButton(QWidget* parent, const char* name, const TwipsRect& where,
                           const QString& picture) {
    auto* button = place(new QPushButton(parent), name, where);
    const QSize size = where.toPixels().size();
    const QSize pictureSize = size - QSize(8, 8);
    button->setIcon(QIcon(svgPixmap(picture, pictureSize, qApp->devicePixelRatio())));
    button->setIconSize(pictureSize);
    button->setAutoDefault(false);
    return button;
}

} // namespace

Form1::Form1(std::filesystem::path programFolder, QWidget* parent)
    : QWidget(parent, Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                          Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint |
                          Qt::MSWindowsFixedSizeDialogHint),
      programFolder_(std::move(programFolder)), txtMindestWert_(new QLineEdit),
      txtMaxUB_(new QLineEdit), minimumValue_(*txtMindestWert_), fieldSize_(*txtMaxUB_),
      search_(std::make_unique<Search>(*this)), exitNow_([] { std::_Exit(0); }) {
    setObjectName(QStringLiteral("Form1"));
    setWindowTitle(QStringLiteral("Lettriner"));
    setWindowIcon(programIcon());
    setFont(windowFont());
    setMouseTracking(true);
    setFixedSize(twips(design::kClientWidth), twips(design::kClientHeight));

    // Created back to front: inputs, results, cover, banner.
    buildInputFrame();
    buildResultFrame();
    Frame3_ = new LoadingCover(this);
    Frame3_->hide();
    buildBanner();
    setTabOrder();
    nameForScreenReaders();

    Timer1_ = new QTimer(this);
    Timer1_->setObjectName(QStringLiteral("Timer1"));
    Timer1_->setInterval(500);
    connect(Timer1_, &QTimer::timeout, this, &Form1::Timer1_Timer);
    Timer2_ = new QTimer(Frame3_);
    Timer2_->setObjectName(QStringLiteral("Timer2"));
    Timer2_->setInterval(300);
    connect(Timer2_, &QTimer::timeout, this, &Form1::Timer2_Timer);

    // Key preview: the window sees every key before the control with the focus.
    qApp->installEventFilter(this);
#ifndef QT_NO_SESSIONMANAGER
    // Logging off or shutting down ends the program like any other close request.
    connect(qApp, &QGuiApplication::commitDataRequest, this, [this] { exitNow_(); });
#endif
}

Form1::~Form1() {
    qApp->removeEventFilter(this);
    // Waits for a word graph still loading from words_.
    delete boardWindow_;
}

int Form1::outerHeightTwips() {
    return design::Frame1.bottom() + design::kBelowFrame1;
}

void Form1::nameForScreenReaders() {
    // A field's caption label is its buddy, so screen readers read the caption
    // as the field's name. The controls without a caption get a name of their own.
    const std::pair<const char*, const char*> buddies[] = {{"Label1", "txtBuchstaben"},
                                                           {"Label3", "txtConst"},
                                                           {"Label9", "txtPflichtbuchstaben"},
                                                           {"Label7", "txtMindestWert"},
                                                           {"Label8", "txtMaxUB"},
                                                           {"Label10", "txtVerboteneBuchstaben"}};
    for (const auto& [label, field] : buddies)
        findChild<QLabel*>(QLatin1String(label))
            ->setBuddy(findChild<QWidget*>(QLatin1String(field)));
    cmdSuchen_->setAccessibleName(QStringLiteral("Suche starten"));
    cmdStop_->setAccessibleName(QStringLiteral("Suche anhalten"));
    cmdInfo_->setAccessibleName(QStringLiteral("Information"));
    cmdBrett_->setAccessibleName(QStringLiteral("Spielbrett"));
    Picture1_->setAccessibleName(QStringLiteral("Lettriner, Information"));
    ListView1_->setAccessibleName(QStringLiteral("Ergebnisliste"));
    ListView2_->setAccessibleName(QStringLiteral("Bonuswörter"));
    picProgress_->setAccessibleName(QStringLiteral("Fortschritt"));
}

void Form1::buildInputFrame() {
    Frame1_ = place(new QFrame(this), "Frame1", design::Frame1);
    Frame1_->setFrameStyle(QFrame::Box | QFrame::Sunken);
    Frame1_->setMouseTracking(true);
    QWidget* f = Frame1_;

    caption(f, "Label1", design::Label1,
            QStringLiteral("Vorhandene Buchstaben: Buchstaben, die vorkommen dürfen"));
    caption(f, "Label3", design::Label3,
            QStringLiteral("Azahl zusätzlicher Buchstaben: soviele dürfen noch zusätzlich im "
                           "Wort vorkommen"));
    caption(f, "Label9", design::Label9,
            QStringLiteral("Pflichtbuchstaben: diese müssen auf jeden Fall im Wort vorkommen"));
    caption(f, "Label7", design::Label7, QStringLiteral("Mindestwortwert:"));
    caption(f, "Label8", design::Label8, QStringLiteral("Maximale Feldgröße"))->hide();
    caption(f, "Label10", design::Label10,
            QStringLiteral("verbotene: Diese Buchstaben sollen nicht im Wort vorkommen"));
    lblDBCount_ = caption(f, "lblDBCount", design::lblDBCount, QString());

    txtBuchstaben_ = new LetterField;
    setUpField(txtBuchstaben_, f, "txtBuchstaben", design::txtBuchstaben,
               fromView(lettriner::SearchDefaults::rack),
               QStringLiteral("Hier kommen die gezogenen Buchstaben rein"), true);
    txtConst_ = new QLineEdit;
    setUpField(txtConst_, f, "txtConst", design::txtConst,
               fromView(lettriner::SearchDefaults::allowance),
               QStringLiteral("Berechnet ein optimales Wort mit zusätzlichen Buchstaben (wie zB "
                              "vom Spielfeld)"),
               true);
    txtPflichtbuchstaben_ = new LetterField;
    setUpField(txtPflichtbuchstaben_, f, "txtPflichtbuchstaben", design::txtPflichtbuchstaben,
               fromView(lettriner::SearchDefaults::mandatory),
               QStringLiteral("Diese Buchstaben sollen auf jeden Fall in den vorgeschlagenen "
                              "Worten vorkommen"),
               true);
    setUpField(txtMindestWert_, f, "txtMindestWert", design::txtMindestWert,
               fromView(lettriner::SearchDefaults::minimum),
               QStringLiteral("So viele Punkte müssen die vorgeschlagenen Worte mindestens haben"),
               true);
    txtVerboteneBuchstaben_ = new LetterField;
    setUpField(txtVerboteneBuchstaben_, f, "txtVerboteneBuchstaben", design::txtVerboteneBuchstaben,
               fromView(lettriner::SearchDefaults::forbidden),
               QStringLiteral("Diese Buchstaben sollen bei den vorgeschlagenen Worten nicht "
                              "vorkommen"),
               true);
    setUpField(txtMaxUB_, f, "txtMaxUB", design::txtMaxUB,
               fromView(lettriner::SearchDefaults::fieldSize),
               QStringLiteral("Bei der Berechnung wird ein Feld verwendet. Je größer die Größe "
                              "dieses Feldes, um so länger dauert eine Rechnung, aber umsomehr "
                              "Ergebnisse werden angezeigt"),
               false);
    txtMaxUB_->hide();

    cmdSuchen_ =
        pictureButton(f, "cmdSuchen", design::cmdSuchen, QStringLiteral(":/pictures/search.svg"));
    cmdSuchen_->setToolTip(QStringLiteral("Suche starten (Enter)"));
    connect(cmdSuchen_, &QPushButton::clicked, this, &Form1::cmdSuchen_Click);
    cmdStop_ = pictureButton(f, "cmdStop", design::cmdStop, QStringLiteral(":/pictures/stop.svg"));
    cmdStop_->setToolTip(QStringLiteral("Suche anhalten (Esc)"));
    connect(cmdStop_, &QPushButton::clicked, this, &Form1::cmdStop_Click);
}

void Form1::buildResultFrame() {
    Frame2_ = place(new QFrame(this), "Frame2", design::Frame2);
    Frame2_->setFrameStyle(QFrame::Box | QFrame::Sunken);
    Frame2_->setMouseTracking(true);
    QWidget* f = Frame2_;

    caption(f, "Label5", design::Label5, QStringLiteral("Wort, Länge, Wortwert"));
    txtSuchZeit_ = place(new QLineEdit(f), "txtSuchZeit", design::txtSuchZeit);
    txtSuchZeit_->setToolTip(QStringLiteral("Benötigte Zeit für eine Berechnung"));
    txtSuchZeit_->hide();
    picProgress_ = place(new ProgressBox(f), "picProgress", design::picProgress);
    lblInfos_ = caption(f, "lblInfos", design::lblInfos,
                        QStringLiteral("dieser Text wird beim starten gelöscht"));

    list1_ = design::ListView1;
    list2_ = design::ListView2;
    model1_ = new ResultTableModel(this);
    model2_ = new ResultTableModel(this);
    ListView1_ = place(new ResultView(f), "ListView1", list1_);
    ListView1_->setModel(model1_);
    ListView1_->setToolTip(QStringLiteral("Ergebnisliste"));
    ListView2_ = place(new ResultView(f), "ListView2", list2_);
    ListView2_->setModel(model2_);
    ListView2_->setToolTip(QStringLiteral("Hier kommen nur die Ergebnisse, bei welchen man alle "
                                          "seine Steine loswird und einen Bonus erhält"));
    ListView2_->setFont(bonusListFont());
    QPalette red = ListView2_->palette();
    red.setColor(QPalette::Text, QColor(255, 0, 0));
    ListView2_->setPalette(red);
    ListView2_->hide();
    connect(ListView1_->horizontalHeader(), &QHeaderView::sectionClicked, this,
            &Form1::ListView1_ColumnClick);
}

void Form1::buildBanner() {
    Picture1_ = place(new Banner(this), "Picture1", design::Picture1);
    Picture1_->setToolTip(QStringLiteral("Information"));
    Picture1_->setFocusPolicy(Qt::TabFocus);
    connect(Picture1_, &Banner::clicked, this, &Form1::openAboutBox);
    connect(Picture1_, &Banner::pointerMoved, this, [this] { Picture1_->setBorder(false); });
    cmdInfo_ = place(new QPushButton(QStringLiteral("?"), Picture1_), "cmdInfo", design::cmdInfo);
    cmdInfo_->setAutoDefault(false);
    connect(cmdInfo_, &QPushButton::clicked, this, &Form1::openAboutBox);
    // A button of its own on the banner: its clicks never reach the banner.
    cmdBrett_ =
        place(new QPushButton(QStringLiteral("Brett"), Picture1_), "cmdBrett", design::cmdBrett);
    cmdBrett_->setToolTip(QStringLiteral("Spielbrett: die besten Züge auf dem Brett (F2)"));
    cmdBrett_->setAutoDefault(false);
    connect(cmdBrett_, &QPushButton::clicked, this, &Form1::openBoardWindow);
}

void Form1::setTabOrder() {
    QWidget* const chain[] = {txtBuchstaben_,
                              txtConst_,
                              txtPflichtbuchstaben_,
                              txtMindestWert_,
                              txtVerboteneBuchstaben_,
                              txtMaxUB_,
                              cmdSuchen_,
                              cmdStop_,
                              ListView1_,
                              ListView2_,
                              Picture1_,
                              cmdInfo_,
                              cmdBrett_};
    for (std::size_t i = 1; i < std::size(chain); ++i)
        QWidget::setTabOrder(chain[i - 1], chain[i]);
}

void Form1::openAboutBox() {
    if (frmAbout_ == nullptr)
        frmAbout_ = new lettriner::frmAbout(this);
    frmAbout_->showAbout();
}

} // namespace lettriner::ui
