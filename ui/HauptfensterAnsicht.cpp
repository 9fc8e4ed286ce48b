// Main window: view, mouse and status line.
#include <QKeyEvent>
#include <QLabel>
#include <QTimer>
#include <algorithm>
#include <cstdlib>
#include <string>
#include <utility>

#include "model/Zahlentext.h"
#include "ui/Hauptfenster.h"
#include "ui/Umwandlung.h"
#include "ui/dialoge/TFormData.h"

namespace zrw {
namespace {

/// Scales that zooming stays within [m/px]: from the hundredth of a millimetre to several earths in the
/// picture. Beyond them positions lose their last digit, and nobody finds back.
constexpr double kFeinster = 1e-5;
constexpr double kGroebster = 1e6;
/// Margin round fitted points, with room for their numbers [px].
constexpr int kRand = 40;
/// Scale for a single point [m/px].
constexpr double kEinzelpunkt = 0.5;

}  // namespace

void TZrwMainDlg::ZeichneNeu() {
    if (liste_ == nullptr) return;
    radOffen_ = false;
    pflege_.ZeichneNeu(*liste_);
    ZeigeBild();
}

/// After every drawing of the network.
void TZrwMainDlg::ZeigeBild() {
    bild_->update();
    // What lies under the mouse now: the picture has moved below it.
    if (Werkzeug* werkzeug = Aktiv(); werkzeug != nullptr && gedrueckt_ == nullptr) werkzeug->Schweben(maus_);
    ZeigeTabellenmeldung();
}

void TZrwMainDlg::ZeigeVorschau(Vorschau vorschau) {
    if (!vorschau) {
        bild_->SetzeVorschau({});
        return;
    }
    bild_->SetzeVorschau([this, vorschau = std::move(vorschau)](Zeichenflaeche& flaeche) {
        Zeichenzustand zustand = programm_.zustand;
        zustand.flaeche = &flaeche;
        Figurenzeichner zeichner(zustand, programm_.einstellungen, programm_.netz, programm_.uhr);
        vorschau(zeichner, flaeche);
    });
}

void TZrwMainDlg::SpeedButton3Click() {
    if (liste_ == nullptr) return;
    BrichAb();
    if (std::exchange(ausdehnungAlt_, false)) liste_->FindWorldMinMax();
    pflege_.Alles(*liste_);
    ZeigeBild();
    ZeigeStatus(maus_);
}

/// Fits exactly what is shown: networks that the whole-kilometre fit leaves tiny or cut off.
void TZrwMainDlg::EinpassenClick() {
    if (liste_ == nullptr) return;
    Welt min{};
    Welt max{};
    bool leer = true;
    for (const PunktKnoten* p = liste_->PunktKnoten; p != nullptr; p = p->Next) {
        if (!p->Item->Visible || !liste_->Dargestellt(*p->Item)) continue;
        const Welt ort{p->XWPu, p->YWPu};
        min = leer ? ort : Welt{std::min(min.rechts, ort.rechts), std::min(min.hoch, ort.hoch)};
        max = leer ? ort : Welt{std::max(max.rechts, ort.rechts), std::max(max.hoch, ort.hoch)};
        leer = false;
    }
    if (leer) {
        ZeigeStatus(QStringLiteral("Es ist kein Punkt sichtbar."));
        return;
    }
    const double dx = max.rechts - min.rechts;
    const double dy = max.hoch - min.hoch;
    const double weite = std::max(liste_->Weite - 2 * kRand, 1);
    const double hoehe = std::max(liste_->Hoehe - 2 * kRand, 1);
    // One point alone, or several at one place: a few hundred metres round it.
    const double faktor = dx > 0 || dy > 0 ? std::max(dx / weite, dy / hoehe) : kEinzelpunkt;
    const double vorher = liste_->Faktor;
    const Welt ecke = liste_->BildinWelt({});
    if (SetzeAnsicht(faktor, {(min.rechts + max.rechts - liste_->Weite * faktor) / 2,
                              (min.hoch + max.hoch + liste_->Hoehe * faktor) / 2}))
        MerkeAnsicht(vorher, ecke);
}

/// @param linksOben world position of the picture's top-left corner
bool TZrwMainDlg::SetzeAnsicht(double faktor, Welt linksOben) {
    if (!(faktor >= kFeinster && faktor <= kGroebster)) {
        ZeigeStatus(QStringLiteral("Weiter lässt sich das Bild nicht zoomen."));
        return false;
    }
    BrichAb();
    liste_->Faktor = faktor;
    liste_->XOffset = linksOben.rechts - liste_->MinXW;
    liste_->YOffset = linksOben.hoch - liste_->MaxYW;
    ZeichneNeu();
    ZeigeStatus(maus_);
    return true;
}

void TZrwMainDlg::MerkeAnsicht(double faktor, Welt linksOben) {
    constexpr std::size_t kHoechstens = 50;
    if (ansichten_.size() == kHoechstens) ansichten_.erase(ansichten_.begin());
    ansichten_.emplace_back(faktor, linksOben);
}

void TZrwMainDlg::AnsichtZurueck() {
    if (liste_ == nullptr || ansichten_.empty()) return;
    const auto [faktor, ecke] = ansichten_.back();
    ansichten_.pop_back();
    SetzeAnsicht(faktor, ecke);
}

void TZrwMainDlg::ZoomeAuf(Bildpunkt a, Bildpunkt b) {
    const auto weite = static_cast<double>(std::max<std::int64_t>(std::llabs(a.x - b.x), 1));
    const auto hoehe = static_cast<double>(std::max<std::int64_t>(std::llabs(a.y - b.y), 1));
    const Welt eckeA = liste_->BildinWelt(a);
    const Welt eckeB = liste_->BildinWelt(b);
    const double vorher = liste_->Faktor;
    const Welt ecke = liste_->BildinWelt({});
    const double faktor = vorher * std::max(weite / liste_->Weite, hoehe / liste_->Hoehe);
    if (SetzeAnsicht(faktor, {(eckeA.rechts + eckeB.rechts - liste_->Weite * faktor) / 2,
                              (eckeA.hoch + eckeB.hoch + liste_->Hoehe * faktor) / 2}))
        MerkeAnsicht(vorher, ecke);
}

void TZrwMainDlg::ZoomeUm(Bildpunkt ort) {
    const double vorher = liste_->Faktor;
    const Welt ecke = liste_->BildinWelt({});
    Zoome(static_cast<double>(ort.x), static_cast<double>(ort.y), true);
    if (liste_->Faktor != vorher) MerkeAnsicht(vorher, ecke);
}

void TZrwMainDlg::ButtonGroesserClick() {
    if (liste_ != nullptr) Zoome(liste_->Weite / 2.0, liste_->Hoehe / 2.0, true);
}

void TZrwMainDlg::ButtonKleinerClick() {
    if (liste_ != nullptr) Zoome(liste_->Weite / 2.0, liste_->Hoehe / 2.0, false);
}

/// One zoom step that keeps the world position at (x, y) [px] in place.
void TZrwMainDlg::Zoome(double x, double y, bool groesser) {
    BrichAb();
    if (!RechneZoom(x, y, groesser)) return;
    ZeichneNeu();
    ZeigeStatus(maus_);
}

/// The view after the step. @return false: zooming ends here
bool TZrwMainDlg::RechneZoom(double x, double y, bool groesser) {
    Liste& l = *liste_;
    const double z = programm_.einstellungen.Zoomschritt;
    const double s = l.Faktor;
    const double danach = groesser ? s * z : s / z;
    if (groesser ? danach < kFeinster : danach > kGroebster) {
        ZeigeStatus(QStringLiteral("Weiter lässt sich das Bild nicht zoomen."));
        return false;
    }
    l.XOffset += x * s;
    l.YOffset -= y * s;
    l.XOffset -= x * danach;
    l.YOffset += y * danach;
    l.Faktor = danach;
    return true;
}

void TZrwMainDlg::ZeigeStatus(const QString& text) {
    anleitung_->clear();
    statusBar()->showMessage(text);
}

void TZrwMainDlg::ZeigeStatus(Bildpunkt ort) {
    const Welt w = liste_->BildinWelt(ort);
    const std::string text = Festkomma(w.rechts, 12, 2) + " " + Festkomma(w.hoch, 12, 2) + " " +
                             " M=1:" + Festkomma(liste_->Faktor * 1000, 5, 0);
    ZeigeStatus(AusUtf8(text));
    // What the tool asks for stays legible while the mouse goes there.
    if (const Werkzeug* werkzeug = Aktiv(); werkzeug != nullptr) anleitung_->setText(werkzeug->Anleitung());
}

Werkzeug* TZrwMainDlg::Aktiv() const {
    for (std::size_t i = 0; i < werkzeugknoepfe_.size(); ++i) {
        if (werkzeugknoepfe_[i]->isChecked()) return werkzeuge_[i].get();
    }
    return nullptr;
}

/// Ends the drag that is under way.
void TZrwMainDlg::BrichAb() {
    if (gedrueckt_ != nullptr) std::exchange(gedrueckt_, nullptr)->Abbrechen();
}

/// Whose a press here is. The legend's corner is caught with no mode on and while numbers are moved, the edge
/// of the output area with no mode on.
Werkzeug* TZrwMainDlg::Zustaendig(Bildpunkt ort) const {
    Werkzeug* aktiv = Aktiv();
    const bool frei = aktiv == nullptr || Knopf("MoveTextButton").isChecked();
    if (frei && legendenecke_->UeberEcke(ort)) return legendenecke_.get();
    if (aktiv == nullptr && rahmenrand_->UeberRand(ort)) return rahmenrand_.get();
    return aktiv;
}

void TZrwMainDlg::ImageZarwikMouseDown(Bildpunkt ort, Qt::MouseButton taste) {
    if (gedrueckt_ != nullptr) {
        // A second button during a drag ends it; the same one again means that its release went elsewhere.
        BrichAb();
        if (taste != taste_) return;
    }
    if (liste_ == nullptr) return;
    ZeichneNachRad();
    if (taste == Qt::RightButton && Aktiv() != nullptr) {
        Aktiv()->RechteTaste();
        return;
    }
    Werkzeug* werkzeug = nullptr;
    if (taste == Qt::MiddleButton) {
        werkzeug = mitteltaste_.get();
    } else if (taste == Qt::LeftButton) {
        werkzeug = Zustaendig(ort);
    }
    if (werkzeug == nullptr) return;
    taste_ = taste;
    gedrueckt_ = werkzeug;
    werkzeug->Druecken(ort);
}

void TZrwMainDlg::ImageZarwikMouseMove(Bildpunkt ort) {
    maus_ = ort;
    if (liste_ == nullptr) return;
    ZeigeStatus(ort);
    if (gedrueckt_ != nullptr) {
        gedrueckt_->Ziehen(ort);
    } else {
        ZeigeZeiger(ort);
        if (Werkzeug* werkzeug = Aktiv(); werkzeug != nullptr) werkzeug->Schweben(ort);
    }
    if (!Knopf("DataButton").isChecked()) ergebnisse_->hide();
}

/// The pointer tells what a press would do here.
void TZrwMainDlg::ZeigeZeiger(Bildpunkt ort) {
    const Werkzeug* werkzeug = Zustaendig(ort);
    const Qt::CursorShape zeiger = werkzeug != nullptr ? werkzeug->Zeiger() : Qt::ArrowCursor;
    if (bild_->cursor().shape() != zeiger) bild_->setCursor(zeiger);
}

void TZrwMainDlg::ImageZarwikMouseUp(Bildpunkt ort, Qt::MouseButton taste) {
    if (gedrueckt_ == nullptr || taste != taste_) return;
    std::exchange(gedrueckt_, nullptr)->Loslassen(ort);
}

void TZrwMainDlg::keyPressEvent(QKeyEvent* ereignis) {
    const bool nurTaste = (ereignis->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    if (ereignis->key() == Qt::Key_Escape) {
        if (gedrueckt_ != nullptr) {
            BrichAb();
        } else if (Aktiv() != nullptr) {
            Aktiv()->Abbrechen();
        }
        bild_->setFocus();  // out of the fields of the panel, whose keys are their own
        return;
    }
    // A tenth of the picture at a time.
    constexpr int kTeile = 10;
    if (nurTaste && liste_ != nullptr) {
        const std::int64_t x = liste_->Weite / kTeile;
        const std::int64_t y = liste_->Hoehe / kTeile;
        switch (ereignis->key()) {
            case Qt::Key_Left:
                return Verschiebe({x, 0});
            case Qt::Key_Right:
                return Verschiebe({-x, 0});
            case Qt::Key_Up:
                return Verschiebe({0, y});
            case Qt::Key_Down:
                return Verschiebe({0, -y});
            default:
                break;
        }
    }
    QMainWindow::keyPressEvent(ereignis);
}

void TZrwMainDlg::ImageZarwikWheel(Bildpunkt ort, int schritte) {
    if (liste_ == nullptr || gedrueckt_ != nullptr) return;
    BrichAb();
    // Turning down enlarges, turning up shrinks.
    const int anzahl = std::min(std::abs(schritte), 10);
    bool gezoomt = false;
    for (int i = 0; i < anzahl; ++i)
        gezoomt |= RechneZoom(static_cast<double>(ort.x), static_cast<double>(ort.y), schritte < 0);
    if (!gezoomt) return;
    ZeigeStatus(ort);
    // Steps that arrive while a picture is being drawn are drawn together with the next.
    if (!std::exchange(radOffen_, true)) QTimer::singleShot(0, this, [this] { ZeichneNachRad(); });
}

void TZrwMainDlg::ZeichneNachRad() {
    if (radOffen_ && liste_ != nullptr) ZeichneNeu();
    radOffen_ = false;
}

void TZrwMainDlg::ImageZarwikResize(int weite, int hoehe) {
    BrichAb();
    flaeche_.SetzeGroesse(weite, hoehe);
    if (liste_ == nullptr) return;
    liste_->Weite = weite;
    liste_->Hoehe = hoehe;
    ZeichneNeu();
}

void TZrwMainDlg::Verschiebe(Bildpunkt versatz) {
    BrichAb();
    const double f = liste_->Faktor;
    pflege_.Verschiebe(*liste_,
                       {liste_->XOffset - static_cast<double>(versatz.x) * f,
                        liste_->YOffset + static_cast<double>(versatz.y) * f},
                       versatz);
    ZeigeBild();
    ZeigeStatus(maus_);
}

void TZrwMainDlg::HeileBild() {
    if (liste_ == nullptr) return;
    pflege_.Heile(*liste_);
    ZeigeBild();
}

void TZrwMainDlg::BeginneZug() {
    zuganfang_ = {liste_->XOffset, liste_->YOffset};
    gezogen_ = {};
    zugziel_ = {};
}

void TZrwMainDlg::ZieheBild(Bildpunkt versatz) {
    zugziel_ = versatz;
    if (pflege_.Verschiebbar(*liste_)) {
        BringeInsZiel();
    } else {
        // What stands still or must be worked out anew is drawn when the mouse is let go.
        bild_->SetzeVerschiebung({versatz.x - gezogen_.x, versatz.y - gezogen_.y});
    }
}

void TZrwMainDlg::BeendeZug() {
    bild_->SetzeVerschiebung({});
    BringeInsZiel();
}

/// From where dragging began, so that many small moves do not add up their rounding.
void TZrwMainDlg::BringeInsZiel() {
    if (zugziel_ == gezogen_) return;
    const double f = liste_->Faktor;
    const Bildpunkt weg{zugziel_.x - gezogen_.x, zugziel_.y - gezogen_.y};
    pflege_.Verschiebe(*liste_,
                       {zuganfang_.rechts - static_cast<double>(zugziel_.x) * f,
                        zuganfang_.hoch + static_cast<double>(zugziel_.y) * f},
                       weg);
    gezogen_ = zugziel_;
    ZeigeBild();
}

}  // namespace zrw
