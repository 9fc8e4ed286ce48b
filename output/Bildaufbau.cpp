#include "output/Bildaufbau.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>

#include "model/Ganzzahl.h"
#include "model/Vorabruf.h"
#include "output/Abschneiden.h"
#include "output/Figurenzeichner.h"

namespace zrw {
namespace {

/// How many figures ahead is prefetched. Nodes lie all over the memory: what comes next is on its way while
/// the ones before are being drawn.
constexpr std::size_t kVoraus = 12;
/// So many lines or labels are looked over before they are drawn; more lie in the picture for the most part.
constexpr std::size_t kWenige = 16384;

/// How far from a covered point a line may end that is hidden with it [px].
constexpr std::int32_t kUmgebung = 12;

template <class Knoten>
void HoleKnotenVor(const Knoten* knoten) {
    constexpr std::size_t kSpeicherzeile = 64;
    const auto* anfang = reinterpret_cast<const char*>(knoten);
    HoleVor(anfang);
    HoleVor(anfang + kSpeicherzeile);
}

/// Calls `tun(stelle)` for nodes, newest first or oldest first.
template <class Knoten, class Tun>
void FuerAlle(const std::vector<Knoten*>& knoten, bool aeltesteZuerst, Tun tun) {
    const std::size_t anzahl = knoten.size();
    const auto stelle = [&](std::size_t i) { return aeltesteZuerst ? anzahl - 1 - i : i; };
    for (std::size_t i = 0; i < anzahl; ++i) {
        if (i + kVoraus < anzahl) HoleKnotenVor(knoten[stelle(i + kVoraus)]);
        tun(stelle(i));
    }
}

}  // namespace

Bildaufbau::Bildaufbau(const Bildvorlage& v, Zeichenflaeche& flaeche, Figurenzeichner& zeichner,
                       const Reichweiten& reichweiten, Bildspeicher& speicher)
    : v_(v),
      flaeche_(flaeche),
      zeichner_(zeichner),
      r_(reichweiten),
      gezeigt_(v.netz, v.darstellung),
      orte_(v.netz, v.ansicht, &speicher.orte),
      linien_(Bereich(r_.kante)),
      symbole_(Bereich(r_.symbol)),
      nummern_(Bereich(r_.textrand)),
      kanten_(speicher.kanten),
      punkte_(speicher.punkte),
      punktorte_(speicher.punktorte),
      texte_(speicher.texte),
      karte_(speicher.karte) {
    kanten_.clear();
    punkte_.clear();
    punktorte_.clear();
    texte_.clear();
    karte_.VergissAlles();
    // A text stands right of its corner and below it.
    nummern_.links -= r_.textweite;
    nummern_.oben -= r_.texthoehe;
}

Bildbereich Bildaufbau::Bereich(std::int64_t rand) const {
    const Rechteck a = flaeche_.Ausschnitt();
    return {a.links - rand, a.oben - rand, a.rechts + rand, a.unten + rand};
}

/// Whether a shape reaching from one position to another touches the part that is drawn.
bool Bildaufbau::BeruehrtBereich(Bildpunkt a, Bildpunkt b, const Bildbereich& r) {
    return std::max(a.x, b.x) >= r.links && std::min(a.x, b.x) <= r.rechts && std::max(a.y, b.y) >= r.oben &&
           std::min(a.y, b.y) <= r.unten;
}

// Most of a few lines and labels lie beside what is drawn: the world tells that without working out
// positions.

void Bildaufbau::LasseFerneKantenWeg() {
    const Bildlage lage = v_.ansicht.Lage();
    if (kanten_.size() > kWenige || !Brauchbar(lage)) return;
    const Weltkasten dort = WeltUnter(lage, linien_);
    std::erase_if(kanten_,
                  [&](std::uint32_t f) { return !v_.netz.BeruehrtVielleicht(v_.netz.Enden(f), dort); });
}

void Bildaufbau::LasseFerneTexteWeg() {
    const Bildlage lage = v_.ansicht.Lage();
    if (texte_.size() > kWenige || !Brauchbar(lage)) return;
    const Weltkasten dort = WeltUnter(lage, nummern_);
    const double jePixel = lage.faktor * zeichner_.Dichte();
    std::erase_if(texte_,
                  [&](const PunktString* t) { return !v_.netz.BeruehrtVielleicht(*t, dort, jePixel); });
}

/// Labels keep their distances from their points in pixels, however fine the screen is.
void Bildaufbau::SammleTexte() {
    const double dichte = zeichner_.Dichte();
    if (dichte == 1.0) {
        v_.netz.SammleTexte(v_.ansicht, nummern_, texte_);
    } else {
        Ansicht grob = v_.ansicht;
        grob.Faktor *= dichte;
        const auto ab = [&](std::int64_t dots) {
            return RundeZuInt64(std::floor(static_cast<double>(dots) / dichte)) - 1;
        };
        const auto auf = [&](std::int64_t dots) {
            return RundeZuInt64(std::ceil(static_cast<double>(dots) / dichte)) + 1;
        };
        v_.netz.SammleTexte(
            grob, {ab(nummern_.links), ab(nummern_.oben), auf(nummern_.rechts), auf(nummern_.unten)}, texte_);
    }
    LasseFerneTexteWeg();
}

/// What may have to be drawn. Only the points are looked at: how dense they lie decides how to draw.
void Bildaufbau::SammleFiguren() {
    const Darstellung& d = v_.darstellung;
    if (d.ShowBeob) v_.netz.SammleKanten(v_.ansicht, linien_, kanten_);
    v_.netz.SammlePunkte(v_.ansicht, symbole_, punkte_);
    if (d.ZeigtNummern()) SammleTexte();
    punktorte_.reserve(punkte_.size());
    std::size_t anzahl = 0;
    FuerAlle(punkte_, false, [&](std::size_t i) {
        PunktKnoten& p = *punkte_[i];
        const Bildpunkt ort = BildortVon(p, v_.ansicht);
        const bool dargestellt = d.Dargestellt(*p.Item);
        // Of several points of a number, lines and labels follow the newest.
        if (v_.netz.SuchPkt(p.PNr) == &p) {
            orte_.NimmOrt(p.PNr, ort);
            gezeigt_.NimmAntwort(p.PNr, dargestellt);
        }
        if (!dargestellt || !v_.Gezeichnet(p) || !BeruehrtBereich(ort, ort, symbole_)) return;
        punkte_[anzahl++] = &p;
        punktorte_.push_back(ort);
    });
    punkte_.resize(anzahl);
}

/// Whether enough lies behind other things to pay for keeping track of it: what the figures would draw
/// against the area that they lie in [px].
bool Bildaufbau::Dicht() const {
    constexpr double kJePunkt = 60.0;  ///< symbol and lines
    constexpr double kJeNummer = 130.0;
    constexpr double kLohnend = 5.0;  ///< less is drawn over sooner than asked for
    const Rechteck a = flaeche_.Ausschnitt();
    std::int64_t links = a.rechts;
    std::int64_t oben = a.unten;
    std::int64_t rechts = a.links;
    std::int64_t unten = a.oben;
    double punkte = 0;
    for (const Bildpunkt m : punktorte_) {
        if (m.x < a.links || m.x > a.rechts || m.y < a.oben || m.y > a.unten) continue;
        ++punkte;
        links = std::min(links, m.x);
        rechts = std::max(rechts, m.x);
        oben = std::min(oben, m.y);
        unten = std::max(unten, m.y);
    }
    // Beginning takes as long as drawing some thousand pixels.
    const double flaeche =
        std::max(static_cast<double>(rechts - links + 1) * static_cast<double>(unten - oben + 1), 10000.0);
    const double jePunkt = (kanten_.empty() ? 20.0 : kJePunkt) + (texte_.empty() ? 0.0 : kJeNummer);
    return punkte * jePunkt > kLohnend * flaeche;
}

/// Whether everything is covered from one position to another, and so far to each side.
inline bool Bildaufbau::Verdeckt(Bildpunkt a, Bildpunkt e, std::int64_t rand) const {
    return karte_.Verdeckt(Umgebung(a, e, rand));
}

void Bildaufbau::ZeichnePunkt(std::size_t i) {
    if (v_.darstellung.Stile != nullptr) zeichner_.SetzeStil(v_.StilVon(*punkte_[i]));
    punkte_[i]->Item->ZeigeSymbolBei(punktorte_[i], zeichner_);
}

void Bildaufbau::ZeichnePunkte() {
    FuerAlle(punkte_, false, [this](std::size_t i) { ZeichnePunkt(i); });
}

/// Most of a dense picture are covered. The others are fetched together: they lie all over the memory.
void Bildaufbau::ZeichnePunkteVonVorn() {
    flaeche_.KartiereVerdecktes(karte_);
    karte_.BeginneUmgebungen(static_cast<std::int32_t>(r_.symbol));
    std::array<std::size_t, 4 * kVoraus> naechste;
    for (std::size_t i = punkte_.size(); i > 0;) {
        std::size_t anzahl = 0;
        while (i > 0 && anzahl < naechste.size()) {
            --i;
            const Bildpunkt ort = punktorte_[i];
            if (karte_.Umgeben(ort.x, ort.y) || Verdeckt(ort, ort, r_.symbol)) continue;
            HoleKnotenVor(punkte_[i]);
            naechste[anzahl++] = i;
        }
        for (std::size_t n = 0; n < anzahl; ++n)
            ZeichnePunkt(naechste[n]);
    }
}

void Bildaufbau::ZeichneKante(const PunktKante& k) {
    if (!v_.Gezeichnet(k) || !gezeigt_(k)) return;
    if (v_.darstellung.Stile != nullptr) zeichner_.SetzeStil(v_.StilVon(k));
    zeichner_.ZeichneKante(*k.Item, orte_.Anfang(k), orte_.Ende(k), Gang::Zeigen);
}

/// Prefetches both points of a line.
void Bildaufbau::HoleOrte(std::uint32_t folge) const {
    const Punktenden enden = v_.netz.Enden(folge);
    orte_.HoleOrtVor(enden.a);
    orte_.HoleOrtVor(enden.e);
}

void Bildaufbau::ZeichneKanten() {
    for (std::size_t i = 0; i < kanten_.size(); ++i) {
        if (i + kVoraus < kanten_.size()) {
            HoleKnotenVor(&v_.netz.KanteNach(kanten_[i + kVoraus]));
            HoleOrte(kanten_[i + kVoraus]);
        }
        ZeichneKante(v_.netz.KanteNach(kanten_[i]));
    }
}

/// Everything of a line is covered, or lies beside what is drawn.
inline bool Bildaufbau::Unsichtbar(std::uint32_t kante, const Weltkasten& dort) const {
    const Punktenden enden = v_.netz.Enden(kante);
    const NaherOrt* a = orte_.Bekannt(enden.a);
    const NaherOrt* e = orte_.Bekannt(enden.e);
    if (a == nullptr || e == nullptr) return !v_.netz.BeruehrtVielleicht(enden, dort);
    if (std::abs(a->x - e->x) <= kUmgebung && std::abs(a->y - e->y) <= kUmgebung &&
        karte_.Umgeben(a->x, a->y))
        return true;
    return Verdeckt({a->x, a->y}, {e->x, e->y}, r_.kante);
}

/// The same when it is known how far the line reaches.
inline bool Bildaufbau::Unsichtbar(const PunktKante& k) {
    return Verdeckt(orte_.Anfang(k), orte_.Ende(k), zeichner_.Kantenreichweite(*k.Item));
}

/// Most lines of a dense picture are covered: that shows from their points, without a look at the lines.
void Bildaufbau::ZeichneKantenVonVorn() {
    flaeche_.KartiereVerdecktes(karte_);
    karte_.BeginneUmgebungen(static_cast<std::int32_t>(r_.kante) + kUmgebung);
    const Bildlage lage = v_.ansicht.Lage();
    const Weltkasten dort = Brauchbar(lage) ? WeltUnter(lage, linien_) : kGanzeWelt;
    // In batches, so that the next ones are being prefetched.
    std::array<PPunktKante, 4 * kVoraus> naechste;
    for (std::size_t i = kanten_.size(); i > 0;) {
        const std::size_t bis = i - std::min(i, naechste.size());
        for (std::size_t n = bis; n-- > bis - std::min(bis, naechste.size());) {
            HoleOrte(kanten_[n]);
        }
        std::size_t anzahl = 0;
        while (i-- > bis) {
            if (Unsichtbar(kanten_[i], dort)) continue;
            naechste[anzahl] = &v_.netz.KanteNach(kanten_[i]);
            HoleKnotenVor(naechste[anzahl++]);
        }
        i = bis;
        for (std::size_t n = 0; n < anzahl; ++n) {
            if (!Unsichtbar(*naechste[n])) ZeichneKante(*naechste[n]);
        }
    }
}

void Bildaufbau::ZeichneTexte(bool vonVorn) {
    FuerAlle(texte_, vonVorn, [&](std::size_t i) {
        const PunktString& t = *texte_[i];
        if (!v_.Gezeichnet(t) || !gezeigt_(t)) return;
        const Bildpunkt ort = orte_.Text(t);
        const Bildpunkt ecke = zeichner_.Textecke(*t.Item, ort);
        if (BeruehrtBereich(ecke, ecke, nummern_)) zeichner_.ZeichneText(*t.Item, ort, Gang::Zeigen);
    });
}

void Bildaufbau::ZeichneNetz() {
    SammleFiguren();
    if (zeichner_.NurPixel() && Dicht() && flaeche_.BeginneVonVorn()) {
        ZeichneTexte(true);
        ZeichnePunkteVonVorn();
        ZeichneKantenVonVorn();
        flaeche_.BeendeVonVorn();
    } else {
        LasseFerneKantenWeg();
        ZeichneKanten();
        ZeichnePunkte();
        ZeichneTexte(false);
    }
    zeichner_.SetzeStil(nullptr);
}

}  // namespace zrw
