// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The about box: the program's title and version, a thank-you text and the
// links to the maker's home page and donation page.
//
// The main window creates it on first use with itself as parent and from then
// on only calls showAbout(); every way of closing it (close box, Esc, Enter)
// hides it and brings the main window back, so the same instance with the same
// texts comes up again next time. It never keeps the program running.

#include <QDialog>
#include <QUrl>
#include <functional>

class QFrame;
class QLabel;
class QPushButton;

namespace lettriner {

class SvgPicture;

class frmAbout : public QDialog {
    Q_OBJECT

public:
    // Hands an address to the desktop. What it returns is ignored: a page that
    // cannot be opened changes nothing and shows no message.
    using UrlOpener = std::function<bool(const QUrl&)>;

    explicit frmAbout(QWidget* mainWindow = nullptr);

    // Shows the box without blocking the main window and brings it to the front;
    // an open box is only raised again.
    void showAbout();

    // Caption, title and version label from the build's title and version.
    void LabelAusfüllen();
    // Hides the box and shows the main window (the parent, if any) again.
    void DiesesFrmAusschalten();

    // The default opens the address in the user's web browser.
    void setUrlOpener(UrlOpener opener) { openUrl_ = std::move(opener); }

public slots:
    void reject() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void createControls();
    void openLink(const QUrl& address);
    // The donate picture is framed while the pointer is on it; only the free
    // area, the background and the description take the frame away again.
    void pointerMovedOver(const QObject* control);

    UrlOpener openUrl_;

    SvgPicture* imgBlauerHintergrund = nullptr;
    SvgPicture* Image1 = nullptr;
    QLabel* lblTitle = nullptr;
    QFrame* Line2 = nullptr;
    QLabel* lblVersion = nullptr;
    QLabel* lblDescription = nullptr;
    SvgPicture* imgDonate = nullptr;
    SvgPicture* imgBrisvel = nullptr;
    QLabel* Label1 = nullptr;
    QLabel* Label2 = nullptr;
    QPushButton* cmdOK = nullptr;
};

} // namespace lettriner
