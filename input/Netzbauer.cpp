#include "input/Netzbauer.h"

#include <span>
#include <string>
#include <utility>

#include "model/Fehler.h"
#include "model/Punktarten.h"

namespace zrw {
namespace {

/// Five times the largest network in use. Lines cost memory, and a damaged file may ask for billions.
constexpr std::int32_t kMaxKanten = 1'000'000;

}  // namespace

void Netzbauer::Punkt(PunktArt art, std::string_view nummer, std::int64_t code, Welt ort) {
    if (liste_.FindPunktNr(PunktNummernTyp(nummer)) != kKeinPunkt) return;
    if (static_cast<std::size_t>(liste_.MaxPkte) >= kMaxPunkte) {
        throw Fehler(
            "Das Netz hat mehr als 65535 Punkte, mehr kann Zarwik nicht darstellen. Es wurde nichts "
            "geladen.");
    }
    const Farbe farbe = einstellungen_.*ZurArt(art).farbe;
    auto figur = zrw::Punkt::Create(code > 0 ? PunktTyp::Krei : PunktTyp::Pkt, farbe, PunktAttr::Fu);
    figur.PktArt = art;
    const auto nr = static_cast<PunktIndex>(++liste_.MaxPkte);
    liste_.AddPunkt(figur, ort, nr);
    liste_.AddPktText(PktText::Create(nummer, farbe, einstellungen_), nr);
}

Netzbauer::Wartende& Netzbauer::Reihe() {
    if (anzahl_ == wartende_.size()) Trage();
    return wartende_[anzahl_++];
}

void Netzbauer::Standpunkt(std::string_view nummer) {
    Wartende& w = Reihe();
    w.standpunkt = true;
    w.nach = PunktNummernTyp(nummer);
}

void Netzbauer::Beobachte(Art art, std::string_view von, std::string_view nach, Farbe farbe) {
    Wartende& w = Reihe();
    w.standpunkt = false;
    w.art = art;
    w.farbe = farbe;
    w.von = PunktNummernTyp(von);
    w.nach = PunktNummernTyp(nach);
}

void Netzbauer::Trage() {
    const std::span<Wartende> reihe(wartende_.data(), std::exchange(anzahl_, 0));
    for (Wartende& w : reihe) {
        w.p2 = liste_.FindPunktNr(w.nach);
        if (!w.standpunkt && w.art != Art::Richtung) w.p1 = liste_.FindPunktNr(w.von);
    }
    for (Wartende& w : reihe) {
        if (w.standpunkt) standpunkt_ = w.p2;
        if (w.art == Art::Richtung) w.p1 = standpunkt_;
    }
    // Two more rounds that decide nothing: what they touch is at hand when the lines are merged one by one.
    for (Wartende& w : reihe) {
        w.kante = liste_.FindKante(w.p1, w.p2);
    }
    for (Wartende& w : reihe) {
        if (w.kante != nullptr) w.stil = w.kante->Item->LAttr;
    }
    for (const Wartende& w : reihe) {
        if (!w.standpunkt) Fasse(w);
    }
}

void Netzbauer::Fasse(const Wartende& w) {
    switch (w.art) {
        case Art::Richtung:
            Richtung(w.p1, w.p2, w.farbe);
            break;
        case Art::Strecke:
            Strecke(w.p1, w.p2);
            break;
        case Art::Hoehenunterschied:
            Hoehenunterschied(w.p1, w.p2);
            break;
        case Art::GPSVektor:
            GPSVektor(w.p1, w.p2);
            break;
    }
}

PPunktKante Netzbauer::Zusammenfuehren(PunktIndex p1, PunktIndex p2, Farbe farbe, KanteAttr kAttr,
                                       LinieAttr lAttr) {
    if (p1 == kKeinPunkt || p2 == kKeinPunkt || p1 == p2) return nullptr;
    if (PPunktKante k = liste_.FindKante(p1, p2); k != nullptr) return k;
    if (liste_.MaxKant >= kMaxKanten) {
        throw Fehler("Das Netz hat mehr als " + std::to_string(kMaxKanten) +
                     " Linien, mehr kann Zarwik nicht darstellen. Es wurde nichts geladen.");
    }
    liste_.AddKante(Kante::Create(farbe, kAttr, lAttr), p1, p2);
    ++liste_.MaxKant;
    return nullptr;
}

void Netzbauer::Orientiere(PunktKante& k, PunktIndex anfang) {
    if (k.ANr != anfang) liste_.DreheKante(k);
}

void Netzbauer::Richtung(PunktIndex p1, PunktIndex p2, Farbe farbe) {
    const PPunktKante k = Zusammenfuehren(p1, p2, farbe, {}, LinieAttr::AR1);
    if (k == nullptr) return;
    LinieAttr& stil = k->Item->LAttr;
    if (stil == LinieAttr::Null || stil == LinieAttr::AST) {
        // The first direction decides which way the line runs: its solid half lies at the standpoint.
        Orientiere(*k, p1);
        stil = LinieAttr::AR1;
    } else if (stil == LinieAttr::AR1 && k->ANr == p2) {
        stil = LinieAttr::AR2;
    }
}

void Netzbauer::Strecke(PunktIndex p1, PunktIndex p2) {
    const PPunktKante k = Zusammenfuehren(p1, p2, einstellungen_.RICol, KanteAttr::ST, LinieAttr::AST);
    if (k != nullptr) k->Item->KAttr.Setze(KanteAttr::ST);
}

void Netzbauer::Hoehenunterschied(PunktIndex p1, PunktIndex p2) {
    const PPunktKante k = Zusammenfuehren(p1, p2, einstellungen_.RICol, KanteAttr::DH1, LinieAttr::AST);
    if (k == nullptr) return;
    if (k->Item->LAttr == LinieAttr::AST) Orientiere(*k, p1);
    k->Item->KAttr.Setze(k->ANr == p1 ? KanteAttr::DH1 : KanteAttr::DH2);
}

void Netzbauer::GPSVektor(PunktIndex p1, PunktIndex p2) {
    const PPunktKante k = Zusammenfuehren(p1, p2, einstellungen_.GPSCol, KanteAttr::GPS, LinieAttr::Null);
    if (k != nullptr) k->Item->KAttr.Setze(KanteAttr::GPS);
}

}  // namespace zrw
