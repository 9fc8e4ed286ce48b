// Main window: view, mouse and status line.
#include <QKeyEvent>
#include <QLabel>
#include <QScopedValueRollback>
#include <QTimer>
#include <string>
#include <utility>

#include "model/Ganzzahl.h"
#include "model/Zahlentext.h"
#include "output/Residuenbild.h"
#include "ui/Ergebnisanzeige.h"
#include "ui/Hauptfenster.h"
#include "ui/Umwandlung.h"
#include "ui/dialoge/TFormData.h"

namespace zrw {
namespace {

/// Away from every figure.
constexpr Bildpunkt kNirgends{-kZeichengrenze, -kZeichengrenze};

const QString kNichtWeiter = QStringLiteral("Weiter lässt sich das Bild nicht zoomen.");

}  // namespace

void TZrwMainDlg::ZeichneNeu() {
    if (liste_ == nullptr) return;
    ansicht_.SchliesseRad();
    pflege_.ZeichneNeu(*liste_);
    ZeigeBild();
}

/// After every drawing of the network.
void TZrwMainDlg::ZeigeBild() {
    bild_->update();
    // What lies under the mouse now: the picture has moved below it.
    if (Werkzeug* werkzeug = Aktiv(); werkzeug != nullptr && gedrueckt_ == nullptr)
        werkzeug->Schweben(maus_.value_or(kNirgends));
    ergebnisse_->MeldeTabellen();
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
    ansicht_.ZeigeAlles(*liste_);
    ZeigeBild();
    ZeigeStand();
}

/// Fits exactly what is shown: networks that the whole-kilometre fit leaves tiny or cut off.
void TZrwMainDlg::EinpassenClick() {
    if (liste_ == nullptr) return;
    if (const auto lage = Ansichtssteuerung::Eingepasst(*liste_)) {
        ZoomeAuf(*lage);
    } else {
        ZeigeStatus(QStringLiteral("Es ist kein Punkt sichtbar."));
    }
}

void TZrwMainDlg::ZoomeAuf(Bildpunkt a, Bildpunkt b) {
    ZoomeAuf(liste_->Ausschnitt(a, b));
}

/// With a way back.
void TZrwMainDlg::ZoomeAuf(const Bildlage& lage) {
    const Bildlage vorher = liste_->Lage();
    if (SetzeLage(lage)) ansicht_.Merke(vorher);
}

bool TZrwMainDlg::SetzeLage(const Bildlage& lage) {
    if (!ErlaubteLage(lage)) {
        ZeigeStatus(kNichtWeiter);
        return false;
    }
    BrichAb();
    liste_->SetzeLage(lage);
    ZeichneNeu();
    ZeigeStand();
    return true;
}

void TZrwMainDlg::AnsichtZurueck() {
    if (liste_ == nullptr) return;
    if (const auto vorige = ansicht_.NimmLetzte()) SetzeLage(*vorige);
}

void TZrwMainDlg::ZoomeUm(Bildpunkt ort) {
    const Bildlage vorher = liste_->Lage();
    Zoome(static_cast<double>(ort.x), static_cast<double>(ort.y), true);
    if (liste_->Faktor != vorher.faktor) ansicht_.Merke(vorher);
}

void TZrwMainDlg::ButtonGroesserClick() {
    if (liste_ != nullptr) Zoome(liste_->Weite / 2.0, liste_->Hoehe / 2.0, true);
}

void TZrwMainDlg::ButtonKleinerClick() {
    if (liste_ != nullptr) Zoome(liste_->Weite / 2.0, liste_->Hoehe / 2.0, false);
}

void TZrwMainDlg::Zoome(double x, double y, bool groesser) {
    BrichAb();
    if (!liste_->Zoome(x, y, groesser, programm_.einstellungen.Zoomschritt)) return ZeigeStatus(kNichtWeiter);
    ZeichneNeu();
    ZeigeStand();
}

void TZrwMainDlg::ZeigeStatus(const QString& text) {
    anleitung_->clear();
    statusBar()->showMessage(text);
}

/// Where the mouse is, if it is over the picture, and the scale.
void TZrwMainDlg::ZeigeStand() {
    std::string text;
    if (maus_) {
        const Welt w = liste_->BildinWelt(*maus_);
        text = Festkomma(w.rechts, 12, 2) + " " + Festkomma(w.hoch, 12, 2) + " ";
    }
    ortstext_ = AusUtf8(text + " M=1:" + Festkomma(liste_->Faktor * 1000, 5, 0));
    ZeigeStatus(ortstext_);
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

/// Where one click does all, the second of two quick ones would do it to what lies below.
void TZrwMainDlg::ImageZarwikDoubleClick(Bildpunkt ort, Qt::MouseButton taste) {
    if (taste == Qt::LeftButton && Aktiv() != nullptr && Aktiv()->EinKlickGenuegt()) return;
    ImageZarwikMouseDown(ort, taste);
}

void TZrwMainDlg::ImageZarwikMouseLeave() {
    if (gedrueckt_ != nullptr) return;  // a drag goes on outside
    maus_.reset();
    if (liste_ == nullptr) return;
    if (Werkzeug* werkzeug = Aktiv(); werkzeug != nullptr) werkzeug->Schweben(kNirgends);
    if (statusBar()->currentMessage() == ortstext_) ZeigeStand();
}

void TZrwMainDlg::ImageZarwikMouseMove(Bildpunkt ort) {
    maus_ = ort;
    if (liste_ == nullptr) return;
    ZeigeStand();
    if (gedrueckt_ != nullptr) {
        gedrueckt_->Ziehen(ort);
    } else {
        ZeigeZeiger(ort);
        if (Werkzeug* werkzeug = Aktiv(); werkzeug != nullptr) werkzeug->Schweben(ort);
    }
    if (!Knopf("DataButton").isChecked()) ergebnisse_->Fenster().hide();
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
    maus_ = ort;
    if (!ansicht_.Rolle(*liste_, ort, schritte)) return ZeigeStatus(kNichtWeiter);
    ZeigeStand();
    if (!ansicht_.OeffneRad()) QTimer::singleShot(0, this, [this] { ZeichneNachRad(); });
}

void TZrwMainDlg::ZeichneNachRad() {
    if (ansicht_.SchliesseRad()) ZeichneNeu();
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
    ansicht_.Verschiebe(*liste_, versatz);
    ZeigeBild();
    ZeigeStand();
}

void TZrwMainDlg::HeileBild() {
    if (liste_ == nullptr) return;
    pflege_.Heile(*liste_);
    ZeigeBild();
}

void TZrwMainDlg::ZieheBild(Bildpunkt versatz) {
    ansicht_.Ziehe(versatz);
    if (pflege_.Verschiebbar(*liste_)) {
        if (ansicht_.Folge(*liste_)) ZeigeBild();
    } else {
        // What must be worked out anew is drawn when the mouse is let go, what stands still lies over it.
        if (!stehendesLose_ && (liste_->ShowLegende || liste_->ZeigtErgebnisse())) {
            stehendesLose_ = true;
            const QScopedValueRollback ohne(programm_.zustand.OhneStehendes, true);
            pflege_.ZeichneNeu(*liste_);
        }
        bild_->SetzeVerschiebung(ansicht_.Rueckstand());
    }
}

void TZrwMainDlg::BeendeZug() {
    bild_->SetzeVerschiebung({});
    const bool gefolgt = ansicht_.Folge(*liste_);
    if (std::exchange(stehendesLose_, false) && !gefolgt) return ZeichneNeu();
    if (gefolgt) ZeigeBild();
}

/// Legend and scale bar over a picture that is drawn without them.
void TZrwMainDlg::ZeichneStehendes(Zeichenflaeche& flaeche) {
    if (!stehendesLose_) return;
    Zeichenzustand zustand = programm_.zustand;
    zustand.flaeche = &flaeche;
    Figurenzeichner zeichner(zustand, programm_.einstellungen, programm_.netz, programm_.uhr);
    if (liste_->ShowLegende) liste_->SetLegende(zeichner);
    zeichner.DrawResMasstab(liste_->Vorlage());
}

}  // namespace zrw
