// Main window: view, mouse and status line.
#include <algorithm>
#include <cstdlib>
#include <string>

#include "model/Zahlentext.h"
#include "ui/Hauptfenster.h"
#include "ui/Umwandlung.h"

namespace zrw {
namespace {

/// Scales that zooming stays within [m/px]: from the hundredth of a millimetre to several earths in the
/// picture. Beyond them positions lose their last digit, and nobody finds back.
constexpr double kFeinster = 1e-5;
constexpr double kGroebster = 1e6;

}  // namespace

void TZrwMainDlg::ZeichneNeu() {
    if (liste_ == nullptr) return;
    liste_->WeltinBild();
    liste_->ShowPicture(zeichner_);
    bild_->update();
}

void TZrwMainDlg::SpeedButton3Click() {
    if (liste_ == nullptr) return;
    liste_->Alles(zeichner_);
    bild_->update();
}

void TZrwMainDlg::ButtonGroesserClick() {
    if (liste_ != nullptr) Zoome(liste_->Weite / 2.0, liste_->Hoehe / 2.0, true);
}

void TZrwMainDlg::ButtonKleinerClick() {
    if (liste_ != nullptr) Zoome(liste_->Weite / 2.0, liste_->Hoehe / 2.0, false);
}

/// One zoom step that keeps the world position at (x, y) [px] in place.
void TZrwMainDlg::Zoome(double x, double y, bool groesser) {
    Liste& l = *liste_;
    const double z = programm_.einstellungen.Zoomschritt;
    const double s = l.Faktor;
    const double danach = groesser ? s * z : s / z;
    if (groesser ? danach < kFeinster : danach > kGroebster) {
        statusBar()->showMessage(QStringLiteral("Weiter lässt sich das Bild nicht zoomen."));
        return;
    }
    // Zooming out does not clear the picture by itself.
    l.ClearPicture(zeichner_);
    l.XOffset += x * s;
    l.YOffset -= y * s;
    l.XOffset -= x * danach;
    l.YOffset += y * danach;
    if (groesser) {
        l.ZoomUp(zeichner_);
    } else {
        l.ZoomDown(zeichner_);
    }
    bild_->update();
}

void TZrwMainDlg::ZeigeStatus(Bildpunkt ort) {
    const Welt w = liste_->BildinWelt(ort);
    const std::string text = Festkomma(w.rechts, 12, 2) + " " + Festkomma(w.hoch, 12, 2) + " " +
                             " M=1:" + Festkomma(liste_->Faktor * 1000, 5, 0);
    statusBar()->showMessage(AusUtf8(text));
}

Werkzeug* TZrwMainDlg::Aktiv() const {
    for (std::size_t i = 0; i < werkzeugknoepfe_.size(); ++i) {
        if (werkzeugknoepfe_[i]->isChecked()) return werkzeuge_[i].get();
    }
    return nullptr;
}

void TZrwMainDlg::ImageZarwikMouseDown(Bildpunkt ort, Qt::MouseButton taste) {
    if (gedrueckt_ != nullptr) {
        // A second button during a drag ends it.
        gedrueckt_->Abbrechen();
        gedrueckt_ = nullptr;
        return;
    }
    if (taste == Qt::MiddleButton) {
        gedrueckt_ = mitteltaste_.get();
    } else if (taste == Qt::LeftButton) {
        gedrueckt_ = UeberLegendenecke(ort) ? legendenecke_.get() : Aktiv();
    }
    taste_ = taste;
    if (gedrueckt_ != nullptr) gedrueckt_->Druecken(ort);
}

void TZrwMainDlg::ImageZarwikMouseMove(Bildpunkt ort) {
    if (liste_ == nullptr) return;
    if (gedrueckt_ != nullptr) {
        gedrueckt_->Ziehen(ort);
    } else {
        ZeigeZeiger(ort);
    }
    ZeigeStatus(ort);
}

/// The pointer tells what a press would do here.
void TZrwMainDlg::ZeigeZeiger(Bildpunkt ort) {
    const Werkzeug* werkzeug = UeberLegendenecke(ort) ? legendenecke_.get() : Aktiv();
    const Qt::CursorShape zeiger = werkzeug != nullptr ? werkzeug->Zeiger() : Qt::ArrowCursor;
    if (bild_->cursor().shape() != zeiger) bild_->setCursor(zeiger);
}

void TZrwMainDlg::ImageZarwikMouseUp(Bildpunkt ort, Qt::MouseButton taste) {
    if (gedrueckt_ == nullptr || taste != taste_) return;
    Werkzeug* werkzeug = gedrueckt_;
    gedrueckt_ = nullptr;
    werkzeug->Loslassen(ort);
}

void TZrwMainDlg::ImageZarwikWheel(Bildpunkt ort, int schritte) {
    if (liste_ == nullptr || gedrueckt_ != nullptr) return;
    // Turning down enlarges, turning up shrinks.
    const int anzahl = std::min(std::abs(schritte), 10);
    for (int i = 0; i < anzahl; ++i)
        Zoome(static_cast<double>(ort.x), static_cast<double>(ort.y), schritte < 0);
    ZeigeStatus(ort);
}

void TZrwMainDlg::ImageZarwikResize(int weite, int hoehe) {
    flaeche_.SetzeGroesse(weite, hoehe);
    if (liste_ == nullptr) return;
    liste_->Weite = weite;
    liste_->Hoehe = hoehe;
    ZeichneNeu();
}

void TZrwMainDlg::ZeigeVerschoben(Bildpunkt versatz) {
    bild_->SetzeVerschiebung(versatz);
}

void TZrwMainDlg::Verschiebe(Bildpunkt versatz) {
    liste_->MoveMe(-versatz.x, versatz.y);
    ZeichneNeu();
}

}  // namespace zrw
