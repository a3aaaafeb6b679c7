// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/about/about_box.h"

#include "ui/about/svg_picture.h"
#include "ui/shared/twips.h"

#include <QCloseEvent>
#include <QDesktopServices>
#include <QFont>
#include <QFrame>
#include <QIcon>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>
#include <QResizeEvent>
#include <cstdint>
#include <initializer_list>

// Resources compiled into a static library are only linked in when something
// asks for them; this has to live outside any namespace.
static void initAboutResources() {
    Q_INIT_RESOURCE(about);
}

namespace lettriner {

namespace {

constexpr auto kApplicationTitle = "Lettriner";
constexpr std::int16_t kVersionMajor = LETTRINER_VERSION_MAJOR;
constexpr std::int16_t kVersionMinor = LETTRINER_VERSION_MINOR;
constexpr std::int16_t kVersionRevision = LETTRINER_VERSION_REVISION;

// Control positions are kept in the twips the layout was drawn in.
QRect twips(int left, int top, int width, int height) {
    return ui::TwipsRect{left, top, width, height}.toPixels();
}

// The layout was drawn for "MS Sans Serif"; where it is missing the style hint
// picks the system's sans-serif face instead of some arbitrary default.
QFont dialogFont(qreal pointSize, bool bold) {
    QFont font(QStringLiteral("MS Sans Serif"));
    font.setStyleHint(QFont::SansSerif);
    font.setPointSizeF(pointSize);
    font.setBold(bold);
    return font;
}

QString homePageText() {
    return QStringLiteral(LETTRINER_HOME_PAGE);
}

QIcon aboutIcon() {
    QIcon icon;
    for (const int side : {16, 24, 32, 48, 64})
        icon.addPixmap(SvgPicture::rendered(QStringLiteral(":/about/icon.svg"), {side, side}));
    return icon;
}

QLabel* label(const char* name, const QRect& geometry, QWidget* parent) {
    auto* created = new QLabel(parent);
    created->setObjectName(QLatin1String(name));
    created->setGeometry(geometry);
    created->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    return created;
}

// The stand-in faces are often wider than the one the layout was drawn for, so
// a text that would be cut off at its label's edge is set a little smaller.
void shrinkToFit(QLabel* shown) {
    constexpr qreal kSmallestPointSize = 6.0;
    QFont font = shown->font();
    while (font.pointSizeF() > kSmallestPointSize) {
        shown->setFont(font);
        const bool fits = shown->wordWrap()
                              ? shown->heightForWidth(shown->width()) <= shown->height()
                              : shown->sizeHint().width() <= shown->width();
        if (fits)
            return;
        font.setPointSizeF(font.pointSizeF() - 0.25);
    }
    shown->setFont(font);
}

SvgPicture* picture(const char* name, const char* resource, const QRect& geometry,
                    QWidget* parent) {
    auto* created = new SvgPicture(QLatin1String(resource), parent);
    created->setObjectName(QLatin1String(name));
    created->setGeometry(geometry);
    return created;
}

} // namespace

frmAbout::frmAbout(QWidget* mainWindow)
    : QDialog(mainWindow),
      openUrl_([](const QUrl& address) { return QDesktopServices::openUrl(address); }) {
    initAboutResources();
    setObjectName(QStringLiteral("frmAbout"));
    setWindowFlag(Qt::MSWindowsFixedSizeDialogHint);
    setAttribute(Qt::WA_QuitOnClose, false);
    setFixedSize(ui::twips(6225), ui::twips(5130));
    setWindowIcon(aboutIcon());
    setFont(dialogFont(8.25, false));
    // The texts sit on a light picture, so they stay dark whatever the desktop
    // theme's colours.
    QPalette colours = palette();
    colours.setColor(QPalette::WindowText, Qt::black);
    setPalette(colours);

    createControls();
    LabelAusfüllen();
    for (QLabel* shown : {lblTitle, lblVersion, lblDescription, Label1, Label2})
        shrinkToFit(shown);
}

void frmAbout::createControls() {
    // Created first, so it lies below everything else.
    imgBlauerHintergrund = picture("imgBlauerHintergrund", ":/about/background.svg", rect(), this);

    Image1 = picture("Image1", ":/about/tile.svg", twips(240, 360, 675, 645), this);

    lblTitle = label("lblTitle", twips(1290, 480, 4605, 360), this);
    lblTitle->setFont(dialogFont(13.5, true));

    Line2 = new QFrame(this);
    Line2->setObjectName(QStringLiteral("Line2"));
    Line2->setFrameShape(QFrame::HLine);
    Line2->setFrameShadow(QFrame::Plain);
    QPalette rule = Line2->palette();
    rule.setColor(QPalette::WindowText, QColor(0x4a, 0x6f, 0x99));
    Line2->setPalette(rule);
    Line2->setGeometry(twips(1200, 1080, 6000 - 1200, ui::kTwipsPerPixel));
    // A drawn rule, not a control: the pointer sees the background through it.
    Line2->setAttribute(Qt::WA_TransparentForMouseEvents);

    lblVersion = label("lblVersion", twips(1290, 1140, 3885, 225), this);

    lblDescription = label("lblDescription", twips(1290, 1725, 4125, 690), this);
    lblDescription->setWordWrap(true);
    lblDescription->setText(
        QStringLiteral("Wenn Ihnen dieses Programm gefällt können Sie gerne eine Spende auf meiner "
                       "Homepage machen, es wird sehr geschätzt und Ihnen gedankt!"));

    imgDonate = picture("imgDonate", ":/about/donate.svg", twips(1200, 2760, 4275, 930), this);
    imgBrisvel = picture("imgBrisvel", ":/about/logo.svg", twips(240, 3840, 900, 1305), this);

    Label1 = label("Label1", twips(1320, 4200, 855, 255), this);
    Label1->setText(QStringLiteral("Webseite:"));

    Label2 = label("Label2", twips(1320, 4560, 3015, 255), this);
    QFont linkFont = dialogFont(8.25, true);
    linkFont.setUnderline(true);
    Label2->setFont(linkFont);
    QPalette navy = Label2->palette();
    navy.setColor(QPalette::WindowText, QColor(0, 0, 128));
    Label2->setPalette(navy);
    Label2->setText(homePageText());

    for (QWidget* link : std::initializer_list<QWidget*>{imgDonate, imgBrisvel, Label2})
        link->setCursor(Qt::PointingHandCursor);

    // Never shown: it only gives Enter and Esc a button to press.
    cmdOK = new QPushButton(QStringLiteral("OK"), this);
    cmdOK->setObjectName(QStringLiteral("cmdOK"));
    cmdOK->setGeometry(twips(4725, 4545, 1260, 345));
    cmdOK->setDefault(true);
    cmdOK->hide();
    connect(cmdOK, &QPushButton::clicked, this, &frmAbout::DiesesFrmAusschalten);

    // Moves over a control stop at the control, so a move reaching the dialog
    // itself really is over its free area.
    setMouseTracking(true);
    for (QWidget* control :
         std::initializer_list<QWidget*>{imgBlauerHintergrund, Image1, lblTitle, lblVersion,
                                         lblDescription, imgDonate, imgBrisvel, Label1, Label2}) {
        control->setMouseTracking(true);
        control->installEventFilter(this);
    }
}

void frmAbout::showAbout() {
    show();
    raise();
    activateWindow();
}

void frmAbout::LabelAusfüllen() {
    const QString title = QLatin1String(kApplicationTitle);
    setWindowTitle(title + QStringLiteral(" Version ") + QString::number(kVersionMajor) +
                   QLatin1Char('.') + QString::number(kVersionMinor));
    lblTitle->setText(title);
    lblVersion->setText(QStringLiteral("Version ") + QString::number(kVersionMajor) +
                        QLatin1Char('.') + QString::number(kVersionMinor) + QLatin1Char('.') +
                        QString::number(kVersionRevision));
}

void frmAbout::DiesesFrmAusschalten() {
    hide();
    if (QWidget* mainWindow = parentWidget()) {
        mainWindow->show();
        mainWindow->raise();
        mainWindow->activateWindow();
    }
}

void frmAbout::reject() {
    DiesesFrmAusschalten();
}

void frmAbout::openLink(const QUrl& address) {
    // No browser, no network: the user simply sees no page.
    if (openUrl_)
        static_cast<void>(openUrl_(address));
}

void frmAbout::pointerMovedOver(const QObject* control) {
    if (control == imgDonate)
        imgDonate->setBorder(true);
    else if (control == this || control == imgBlauerHintergrund || control == lblDescription)
        imgDonate->setBorder(false);
}

bool frmAbout::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::MouseMove:
        pointerMovedOver(watched);
        return true;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease: {
        const bool isLink = watched == imgDonate || watched == imgBrisvel || watched == Label2;
        if (!isLink)
            break;
        const auto* mouse = static_cast<QMouseEvent*>(event);
        // A click is a left press and release on the same control; the release
        // goes to the pressed control even when the pointer has left it.
        const bool clicked =
            event->type() == QEvent::MouseButtonRelease && mouse->button() == Qt::LeftButton &&
            static_cast<QWidget*>(watched)->rect().contains(mouse->position().toPoint());
        if (clicked)
            openLink(watched == imgDonate
                         ? QUrl(homePageText() + QStringLiteral("/Lettriner_Donate"))
                         : QUrl(homePageText()));
        return true;
    }
    default:
        break;
    }
    return QDialog::eventFilter(watched, event);
}

void frmAbout::changeEvent(QEvent* event) {
    QDialog::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow())
        LabelAusfüllen();
}

void frmAbout::closeEvent(QCloseEvent* event) {
    // The box lives as long as the main window; closing only hides it.
    event->ignore();
    DiesesFrmAusschalten();
}

void frmAbout::keyPressEvent(QKeyEvent* event) {
    // cmdOK is the default and the cancel button, but hidden, and the dialog
    // only passes Enter and Esc to visible buttons.
    switch (event->key()) {
    case Qt::Key_Escape:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        cmdOK->click();
        return;
    default:
        QDialog::keyPressEvent(event);
    }
}

void frmAbout::mouseMoveEvent(QMouseEvent* event) {
    pointerMovedOver(this);
    QDialog::mouseMoveEvent(event);
}

void frmAbout::resizeEvent(QResizeEvent* event) {
    QDialog::resizeEvent(event);
    // Stretched to the outer size, title bar and borders included, as the
    // picture was composed for; what reaches past the client area is clipped.
    // Before the window has a frame the outer size is the client size.
    imgBlauerHintergrund->setGeometry(
        QRect(QPoint(0, 0), frameGeometry().size().expandedTo(size())));
}

} // namespace lettriner
