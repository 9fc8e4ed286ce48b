#include "ui/werkzeuge/Auswahl.h"

#include <algorithm>
#include <cstdlib>
#include <unordered_set>

#include "model/Bildorte.h"
#include "output/Abschneiden.h"
#include "ui/bild/Figurentext.h"
#include "ui/werkzeuge/Markierung.h"

namespace zrw {
namespace {

bool Sichtbar(const Liste& netz, const PunktKnoten& p) {
    return netz.EnthaeltPunkt(p) && p.Item->Visible && netz.Dargestellt(*p.Item);
}

}  // namespace

void Auswahl::Druecken(Bildpunkt ort) {
    if (umgebung_.AktuelleListe() == nullptr) return;
    anfang_ = ort;
    zieht_ = false;
}

void Auswahl::Ziehen(Bildpunkt ort) {
    if (!anfang_) return;
    zieht_ = zieht_ || std::max(std::llabs(ort.x - anfang_->x), std::llabs(ort.y - anfang_->y)) > kZittern;
    if (zieht_) umgebung_.ZeigeVorschau(MarkiereRechteck(*anfang_, ort));
}

void Auswahl::Loslassen(Bildpunkt ort) {
    if (!anfang_) return;
    const Bildpunkt anfang = *anfang_;
    const bool rechteck = zieht_;
    Abbrechen();
    if (rechteck) {
        WaehleRechteck(anfang, ort, umgebung_.Umschalttaste());
    } else {
        Waehle(ort, umgebung_.Umschalttaste());
    }
    MeldeAuswahl();
}

void Auswahl::Abbrechen() {
    anfang_.reset();
    zieht_ = false;
    umgebung_.ZeigeVorschau({});
}

void Auswahl::LeereAuswahl() {
    punkte_.clear();
    kante_ = nullptr;
    MeldeWechsel();
}

void Auswahl::WaehlePunkt(PunktKnoten& punkt) {
    punkte_ = {&punkt};
    kante_ = nullptr;
    MeldeWechsel();
    MeldeAuswahl();
}

void Auswahl::WaehleKante(PunktKante& kante) {
    punkte_.clear();
    kante_ = &kante;
    MeldeWechsel();
    MeldeAuswahl();
}

void Auswahl::MeldeWechsel() {
    umgebung_.UeberlagerungGeaendert();
    if (gewechselt) gewechselt();
}

/// Figures that have gone or are no longer shown leave the selection.
void Auswahl::NetzGeaendert() {
    const Liste* netz = umgebung_.AktuelleListe();
    if (netz == nullptr) return LeereAuswahl();
    if (Leer()) return;
    std::erase_if(punkte_, [&](const PunktKnoten* p) { return !Sichtbar(*netz, *p); });
    if (kante_ != nullptr && (!netz->EnthaeltKante(*kante_) || !kante_->Item->Visible)) kante_ = nullptr;
    MeldeWechsel();
}

bool Auswahl::WaehleBei(Bildpunkt ort) {
    Liste* netz = umgebung_.AktuelleListe();
    if (netz == nullptr) return false;
    const PunktKnoten* punkt = netz->ClickGezeigten(ort);
    if (punkt != nullptr && std::find(punkte_.begin(), punkte_.end(), punkt) != punkte_.end()) return true;
    Waehle(ort, false);
    return !Leer();
}

/// A point before a line; a click beside everything clears the selection.
void Auswahl::Waehle(Bildpunkt ort, bool dazu) {
    Liste& netz = *umgebung_.AktuelleListe();
    PPunktKnoten punkt = netz.ClickGezeigten(ort);
    if (!dazu) punkte_.clear();
    kante_ = nullptr;
    if (punkt != nullptr) {
        NimmPunkt(*punkt, dazu);
    } else if (punkte_.empty()) {
        kante_ = netz.PickGezeigte(ort);
    }
    MeldeWechsel();
}

void Auswahl::NimmPunkt(PunktKnoten& punkt, bool wechseln) {
    const auto da = std::find(punkte_.begin(), punkte_.end(), &punkt);
    if (da == punkte_.end()) {
        punkte_.push_back(&punkt);
    } else if (wechseln) {
        punkte_.erase(da);
    }
}

void Auswahl::WaehleRechteck(Bildpunkt a, Bildpunkt b, bool dazu) {
    const Liste& netz = *umgebung_.AktuelleListe();
    if (!dazu) punkte_.clear();
    kante_ = nullptr;
    const Bildbereich r{std::min(a.x, b.x), std::min(a.y, b.y), std::max(a.x, b.x), std::max(a.y, b.y)};
    std::vector<PPunktKnoten> nahe;
    netz.SammlePunkte(netz, r, nahe);
    const std::unordered_set<PPunktKnoten> schon(punkte_.begin(), punkte_.end());
    for (PPunktKnoten p : nahe) {
        const Bildpunkt ort = BildortVon(*p, netz);
        const bool innen = ort.x >= r.links && ort.x <= r.rechts && ort.y >= r.oben && ort.y <= r.unten;
        if (innen && Sichtbar(netz, *p) && schon.count(p) == 0) punkte_.push_back(p);
    }
    MeldeWechsel();
}

void Auswahl::MeldeAuswahl() {
    const Liste& netz = *umgebung_.AktuelleListe();
    if (kante_ != nullptr) {
        umgebung_.ZeigeStatus(QStringLiteral("Linie %1 – %2 ausgewählt")
                                  .arg(Nummertext(netz, kante_->ANr), Nummertext(netz, kante_->ENr)));
    } else if (punkte_.size() == 1) {
        umgebung_.ZeigeStatus(
            QStringLiteral("Punkt %1 ausgewählt").arg(Nummertext(netz, punkte_.front()->PNr)));
    } else if (!punkte_.empty()) {
        umgebung_.ZeigeStatus(QStringLiteral("%1 Punkte ausgewählt").arg(punkte_.size()));
    }
}

void Auswahl::ZeichneAuswahl(Zeichenflaeche& f) const {
    const Liste* netz = umgebung_.AktuelleListe();
    if (netz == nullptr || Leer()) return;
    const Stiftwechsel stift(f, {kMarkierfarbe, 2, Strichart::Voll}, {kWeiss, true});
    const std::int32_t r = umgebung_.Anzeige().PTSize + 4;
    for (const PunktKnoten* p : punkte_) {
        const Bildpunkt ort = BildortVon(*p, *netz);
        if (!InReichweite(ort, r, f.Sichtbar())) continue;
        const Flaechenpunkt m = Aufflaeche(ort);
        f.ZeichneRechteck({m.x - r, m.y - r, m.x + r, m.y + r});
    }
    if (kante_ == nullptr) return;
    const auto teil =
        SchneideLinieAb(AnfangVon(*kante_, *netz, *netz), EndeVon(*kante_, *netz, *netz), f.Sichtbar());
    if (teil) f.Linie(teil->first, teil->second);
}

}  // namespace zrw
