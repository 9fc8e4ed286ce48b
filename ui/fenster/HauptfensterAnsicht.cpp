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
#include "ui/Umwandlung.h"
#include "ui/ergebnisse/Ergebnisanzeige.h"
#include "ui/ergebnisse/TFormData.h"
#include "ui/fenster/Hauptfenster.h"

namespace zrw {
namespace {

/// Away from every figure.
constexpr Bildpunkt kNirgends{-kZeichengrenze, -kZeichengrenze};

const QString kNichtWeiter = QStringLiteral("Weiter lässt sich das Bild nicht zoomen.");

}  // namespace

void TZrwMainDlg::ZeichneNeu() {
    if (!plan_.Offen()) return;
    ansicht_.SchliesseRad();
    pflege_.ZeichneNeu(Vorlage());
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
    if (!plan_.Offen()) return;
    BrichAb();
    ansicht_.PasseEin(*plan_.Daten(), *plan_.Daten());
    ZeichneNeu();
    ZeigeStand();
}

/// Fits exactly what is shown: networks that the whole-kilometre fit leaves tiny or cut off.
void TZrwMainDlg::EinpassenClick() {
    if (!plan_.Offen()) return;
    const Liste& netz = *plan_.Daten();
    if (const auto lage = Ansichtssteuerung::Eingepasst(netz, netz, netz)) {
        ZoomeAuf(*lage);
    } else {
        ZeigeStatus(QStringLiteral("Es ist kein Punkt sichtbar."));
    }
}

void TZrwMainDlg::ZoomeAuf(Bildpunkt a, Bildpunkt b) {
    ZoomeAuf(plan_.Daten()->Ausschnitt(a, b));
}

/// With a way back.
void TZrwMainDlg::ZoomeAuf(const Bildlage& lage) {
    const Bildlage vorher = plan_.Daten()->Lage();
    if (SetzeLage(lage)) ansicht_.MerkeLage(vorher);
}

bool TZrwMainDlg::SetzeLage(const Bildlage& lage) {
    if (!ErlaubteLage(lage)) {
        ZeigeStatus(kNichtWeiter);
        return false;
    }
    BrichAb();
    plan_.Daten()->SetzeLage(lage);
    ZeichneNeu();
    ZeigeStand();
    return true;
}

void TZrwMainDlg::AnsichtZurueck() {
    if (!plan_.Offen()) return;
    if (const auto vorige = ansicht_.NimmLetzte()) SetzeLage(*vorige);
}

void TZrwMainDlg::ZoomeUm(Bildpunkt ort) {
    const Bildlage vorher = plan_.Daten()->Lage();
    ZoomeSchritt(static_cast<double>(ort.x), static_cast<double>(ort.y), true);
    if (plan_.Daten()->Faktor != vorher.faktor) ansicht_.MerkeLage(vorher);
}

void TZrwMainDlg::ButtonGroesserClick() {
    if (plan_.Offen()) ZoomeSchritt(plan_.Daten()->Weite / 2.0, plan_.Daten()->Hoehe / 2.0, true);
}

void TZrwMainDlg::ButtonKleinerClick() {
    if (plan_.Offen()) ZoomeSchritt(plan_.Daten()->Weite / 2.0, plan_.Daten()->Hoehe / 2.0, false);
}

void TZrwMainDlg::ZoomeSchritt(double x, double y, bool groesser) {
    BrichAb();
    if (!plan_.Daten()->ZoomeSchritt(x, y, groesser, programm_.einstellungen.Zoomschritt))
        return ZeigeStatus(kNichtWeiter);
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
        const Welt w = plan_.Daten()->BildinWelt(*maus_);
        text = Festkomma(w.rechts, 12, 2) + " " + Festkomma(w.hoch, 12, 2) + " ";
    }
    ortstext_ = AusUtf8(text + " M=1:" + Festkomma(plan_.Daten()->Faktor * 1000, 5, 0));
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

/// A dialog that opens during a drag gets the release of its button.
bool TZrwMainDlg::event(QEvent* ereignis) {
    if (ereignis->type() == QEvent::WindowBlocked) BrichAb();
    return QMainWindow::event(ereignis);
}

/// Ends the drag that is under way: its positions would mean something else afterwards.
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
    if (!plan_.Offen()) return;
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
    if (!plan_.Offen()) return;
    if (Werkzeug* werkzeug = Aktiv(); werkzeug != nullptr) werkzeug->Schweben(kNirgends);
    if (statusBar()->currentMessage() == ortstext_) ZeigeStand();
}

void TZrwMainDlg::ImageZarwikMouseMove(Bildpunkt ort) {
    maus_ = ort;
    if (!plan_.Offen()) return;
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
    if (nurTaste && plan_.Offen()) {
        const std::int64_t x = plan_.Daten()->Weite / kTeile;
        const std::int64_t y = plan_.Daten()->Hoehe / kTeile;
        switch (ereignis->key()) {
            case Qt::Key_Left:
                return VerschiebeBild({x, 0});
            case Qt::Key_Right:
                return VerschiebeBild({-x, 0});
            case Qt::Key_Up:
                return VerschiebeBild({0, y});
            case Qt::Key_Down:
                return VerschiebeBild({0, -y});
            default:
                break;
        }
    }
    QMainWindow::keyPressEvent(ereignis);
}

void TZrwMainDlg::ImageZarwikWheel(Bildpunkt ort, int schritte) {
    if (!plan_.Offen() || gedrueckt_ != nullptr) return;
    maus_ = ort;
    if (!Ansichtssteuerung::Rolle(*plan_.Daten(), ort, schritte, programm_.einstellungen.Zoomschritt))
        return ZeigeStatus(kNichtWeiter);
    ZeigeStand();
    if (!ansicht_.OeffneRad()) QTimer::singleShot(0, this, [this] { ZeichneNachRad(); });
}

void TZrwMainDlg::ZeichneNachRad() {
    if (ansicht_.SchliesseRad()) ZeichneNeu();
}

void TZrwMainDlg::ImageZarwikResize(int weite, int hoehe) {
    BrichAb();
    flaeche_.SetzeGroesse(weite, hoehe);
    if (!plan_.Offen()) return;
    plan_.Daten()->Weite = weite;
    plan_.Daten()->Hoehe = hoehe;
    ZeichneNeu();
}

void TZrwMainDlg::VerschiebeBild(Bildpunkt versatz) {
    BrichAb();
    Ansicht& ansicht = *plan_.Daten();
    ansicht.SetzeVersatz(ansicht.Versatz(), versatz);
    pflege_.VerschiebeBild(Vorlage(), versatz);
    ZeigeBild();
    ZeigeStand();
}

Bildvorlage TZrwMainDlg::Vorlage() {
    Bildvorlage v = plan_.Daten()->Vorlage();
    v.ohne = &ohne_;
    return v;
}

void TZrwMainDlg::LasseAus(Figurenmenge figuren) {
    if (!plan_.Offen()) return;
    Figurenmenge beide = figuren;
    beide.NimmFiguren(ausgelassene_);
    pflege_.Vorher(Vorlage(), beide);
    ausgelassene_ = std::move(figuren);
    ohne_.SetzeFiguren(ausgelassene_);
    pflege_.Nachher(Vorlage(), beide);
    ZeigeBild();
}

void TZrwMainDlg::LasseLegendeAus(bool aus) {
    ohne_.legende = aus;
    ZeichneNeu();
}

void TZrwMainDlg::ZieheBild(Bildpunkt versatz) {
    ansicht_.ZieheNach(versatz);
    if (pflege_.Verschiebbar(Vorlage())) {
        (void)FolgeZug();
    } else {
        // What must be worked out anew is drawn when the mouse is let go, what stands still lies over it.
        if (!stehendesLose_ && (plan_.Daten()->ShowLegende || plan_.Daten()->ZeigtErgebnisse())) {
            stehendesLose_ = true;
            const QScopedValueRollback ohne(programm_.zustand.OhneStehendes, true);
            pflege_.ZeichneNeu(Vorlage());
        }
        bild_->SetzeVerschiebung(ansicht_.Rueckstand());
    }
}

/// The picture goes where it is dragged. @return whether it was not there
bool TZrwMainDlg::FolgeZug() {
    const auto weg = ansicht_.Folge(*plan_.Daten());
    if (!weg) return false;
    pflege_.VerschiebeBild(Vorlage(), *weg);
    ZeigeBild();
    return true;
}

void TZrwMainDlg::BeendeZug() {
    bild_->SetzeVerschiebung({});
    const bool stand = std::exchange(stehendesLose_, false);
    if (!FolgeZug() && stand) ZeichneNeu();
}

/// Legend and scale bar over a picture that is drawn without them.
void TZrwMainDlg::ZeichneStehendes(Zeichenflaeche& flaeche) {
    if (!stehendesLose_) return;
    Zeichenzustand zustand = programm_.zustand;
    zustand.flaeche = &flaeche;
    Figurenzeichner zeichner(zustand, programm_.einstellungen, programm_.netz, programm_.uhr);
    if (plan_.Daten()->ShowLegende) plan_.Daten()->SetLegende(zeichner);
    zeichner.DrawResMasstab(plan_.Daten()->Vorlage());
}

}  // namespace zrw
