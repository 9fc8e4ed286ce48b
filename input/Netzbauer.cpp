#include "input/Netzbauer.h"

#include <span>
#include <string>
#include <utility>

#include "model/Fehler.h"
#include "model/Punktarten.h"

namespace zrw {
namespace {

/// Five times the largest network in use. Lines cost memory, and a damaged file may ask for billions.
constexpr std::size_t kMaxKanten = 1'000'000;

/// The common length on a way of its own: copying a known number of bytes takes no call.
PunktNummernTyp Nummer(std::string_view text) {
    constexpr std::size_t kUeblich = 8;
    return text.size() == kUeblich ? PunktNummernTyp({text.data(), kUeblich}) : PunktNummernTyp(text);
}

}  // namespace

void Netzbauer::ErwarteFiguren(std::size_t punkte, std::size_t kanten) {
    liste_.ErwarteFiguren(punkte, 0);
    nummern_.ErwartePunkte(punkte);
    kanten_.ErwarteKanten(kanten);
}

void Netzbauer::Punkt(Zeilenort woher, PunktArt art, std::string_view nummer, std::int64_t code, Welt ort) {
    if (anzahl_ > 0) TrageWartendeEin();
    Wartender& p = punkte_[punktanzahl_++];
    p.nummer = Nummer(nummer);
    p.art = art;
    p.typ = code > 0 ? PunktTyp::Krei : PunktTyp::Pkt;
    p.ort = ort;
    p.woher = woher;
    p.streuwert = nummern_.HoleNummerVor(p.nummer);
    // A network that may be full is found to be so at this line.
    if (punktanzahl_ == punkte_.size() ||
        static_cast<std::size_t>(liste_.MaxPkte) + punktanzahl_ > kMaxPunkte) {
        TragePunkte();
    }
}

void Netzbauer::TragePunkte() {
    for (const Wartender& p : std::span(punkte_.data(), std::exchange(punktanzahl_, 0)))
        FuegePunktEin(p);
}

void Netzbauer::FuegePunktEin(const Wartender& p) {
    if (nummern_.FindePunkt(p.streuwert, p.nummer) != kKeinPunkt) {
        wiederholte_.NimmSatz(p.woher);
        return;
    }
    if (static_cast<std::size_t>(liste_.MaxPkte) >= kMaxPunkte) {
        throw Fehler(
            "Das Netz hat mehr als 65535 Punkte, mehr kann Zarwik nicht darstellen. Es wurde nichts "
            "geladen.");
    }
    const Farbe farbe = einstellungen_.*ZurArt(p.art).farbe;
    auto figur = zrw::Punkt::Create(p.typ, farbe, PunktAttr::Fu);
    figur.PktArt = p.art;
    const PunktIndex nr = nummern_.NimmAuf(p.streuwert, p.nummer);
    ++liste_.MaxPkte;
    liste_.AddPunkt(figur, p.ort, nr);
    liste_.AddPktText(PktText::Create(p.nummer.Text(), farbe, einstellungen_), nr);
}

Netzbauer::Wartende& Netzbauer::Reihe() {
    if (punktanzahl_ > 0) TragePunkte();
    if (anzahl_ == wartende_.size()) TrageWartendeEin();
    return wartende_[anzahl_++];
}

void Netzbauer::Standpunkt(std::string_view nummer) {
    Wartende& w = Reihe();
    w.standpunkt = true;
    w.nach = Nummer(nummer);
    w.streuwertNach = nummern_.HoleNummerVor(w.nach);
}

void Netzbauer::NimmBeobachtung(Zeilenort woher, Art art, std::string_view von, std::string_view nach,
                                Farbe farbe) {
    Wartende& w = Reihe();
    w.standpunkt = false;
    w.art = art;
    w.woher = woher;
    w.farbe = farbe;
    if (art != Art::Richtung) {
        w.von = Nummer(von);
        w.streuwertVon = nummern_.HoleNummerVor(w.von);
    }
    w.nach = Nummer(nach);
    w.streuwertNach = nummern_.HoleNummerVor(w.nach);
}

void Netzbauer::TrageWartendeEin() {
    const std::span<Wartende> reihe(wartende_.data(), std::exchange(anzahl_, 0));
    for (const Wartende& w : reihe) {
        nummern_.HoleEintragVor(w.streuwertNach);
        nummern_.HoleEintragVor(w.streuwertVon);
    }
    for (Wartende& w : reihe) {
        w.p2 = nummern_.FindePunkt(w.streuwertNach, w.nach);
        if (w.standpunkt) {
            standpunkt_ = w.p2;
            continue;
        }
        w.p1 = w.art == Art::Richtung ? standpunkt_ : nummern_.FindePunkt(w.streuwertVon, w.von);
        w.streuwertPaar = kanten_.HoleKanteVor(w.p1, w.p2);
    }
    for (const Wartende& w : reihe)
        kanten_.HoleEintragVor(w.streuwertPaar);
    for (const Wartende& w : reihe) {
        if (!w.standpunkt) FasseBeobachtung(w);
    }
}

void Netzbauer::FasseBeobachtung(const Wartende& w) {
    if (w.p1 == kKeinPunkt || w.p2 == kKeinPunkt) {
        // A key alone on its line names no points, known or not.
        if (!w.nach.Leer() || (w.art != Art::Richtung && !w.von.Leer())) unbekannte_.NimmSatz(w.woher);
        return;
    }
    if (w.p1 == w.p2) return;
    switch (w.art) {
        case Art::Richtung:
            Richtung(w);
            break;
        case Art::Strecke:
            Strecke(w);
            break;
        case Art::Hoehenunterschied:
            Hoehenunterschied(w);
            break;
        case Art::GPSVektor:
            GPSVektor(w);
            break;
    }
}

void Netzbauer::VollendeNetz() {
    TragePunkte();
    TrageWartendeEin();
    liste_.ErwarteFiguren(0, kanten_.Alle().size());
    for (const Kantenstand& k : kanten_.Alle())
        liste_.AddKante(Kante::Create(k.farbe, k.kAttr, k.lAttr), k.anfang, k.ende);
    liste_.MaxKant = static_cast<std::int32_t>(kanten_.Alle().size());
}

Kantenstand* Netzbauer::FuehreKantenZusammen(const Wartende& w, Farbe farbe, KanteAttr kAttr,
                                             LinieAttr lAttr) {
    Kantenstand* k = kanten_.FindeOderNimm(w.streuwertPaar, {w.p1, w.p2, farbe, kAttr, lAttr});
    if (kanten_.Alle().size() > kMaxKanten) {
        throw Fehler("Das Netz hat mehr als " + std::to_string(kMaxKanten) +
                     " Linien, mehr kann Zarwik nicht darstellen. Es wurde nichts geladen.");
    }
    return k;
}

/// Lets the line begin at this point, one of its two.
void Netzbauer::OrientiereKante(Kantenstand& k, PunktIndex anfang) {
    if (k.anfang != anfang) std::swap(k.anfang, k.ende);
}

void Netzbauer::Richtung(const Wartende& w) {
    Kantenstand* k = FuehreKantenZusammen(w, w.farbe, {}, LinieAttr::AR1);
    if (k == nullptr) return;
    if (k->lAttr == LinieAttr::Null || k->lAttr == LinieAttr::AST) {
        // The first direction decides which way the line runs: its solid half lies at the standpoint.
        OrientiereKante(*k, w.p1);
        k->lAttr = LinieAttr::AR1;
    } else if (k->lAttr == LinieAttr::AR1 && k->anfang == w.p2) {
        k->lAttr = LinieAttr::AR2;
    }
}

void Netzbauer::Strecke(const Wartende& w) {
    Kantenstand* k = FuehreKantenZusammen(w, einstellungen_.RICol, KanteAttr::ST, LinieAttr::AST);
    if (k != nullptr) k->kAttr.SetzeArt(KanteAttr::ST);
}

void Netzbauer::Hoehenunterschied(const Wartende& w) {
    Kantenstand* k = FuehreKantenZusammen(w, einstellungen_.RICol, KanteAttr::DH1, LinieAttr::AST);
    if (k == nullptr) return;
    if (k->lAttr == LinieAttr::AST) OrientiereKante(*k, w.p1);
    k->kAttr.SetzeArt(k->anfang == w.p1 ? KanteAttr::DH1 : KanteAttr::DH2);
}

void Netzbauer::GPSVektor(const Wartende& w) {
    Kantenstand* k = FuehreKantenZusammen(w, einstellungen_.GPSCol, KanteAttr::GPS, LinieAttr::Null);
    if (k != nullptr) k->kAttr.SetzeArt(KanteAttr::GPS);
}

}  // namespace zrw
