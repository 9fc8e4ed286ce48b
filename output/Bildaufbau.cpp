#include "output/Bildaufbau.h"

#include <algorithm>

#include "model/FigListe.h"
#include "model/Gezeigt.h"
#include "output/Figurenzeichner.h"

namespace zrw {
namespace {

/// Calls `tun` for nodes, newest first or oldest first. They lie all over the memory: what comes next is
/// asked for while the ones before are being drawn.
template <class Knoten, class Tun>
void FuerAlle(const std::vector<Knoten*>& knoten, bool aeltesteZuerst, Tun tun) {
    constexpr std::size_t kVoraus = 12;
    constexpr std::size_t kSpeicherzeile = 64;
    const std::size_t anzahl = knoten.size();
    for (std::size_t i = 0; i < anzahl; ++i) {
        if (i + kVoraus < anzahl) {
            const auto* bald = reinterpret_cast<const char*>(
                knoten[aeltesteZuerst ? anzahl - 1 - i - kVoraus : i + kVoraus]);
            __builtin_prefetch(bald);
            __builtin_prefetch(bald + kSpeicherzeile);
        }
        tun(*knoten[aeltesteZuerst ? anzahl - 1 - i : i]);
    }
}

}  // namespace

Bildaufbau::Bildaufbau(const Liste& liste, Zeichenflaeche& flaeche, Figurenzeichner& zeichner,
                       const Reichweiten& reichweiten)
    : liste_(liste),
      flaeche_(flaeche),
      zeichner_(zeichner),
      r_(reichweiten),
      gezeigt_(liste),
      linien_(Bereich(r_.kante)),
      symbole_(Bereich(r_.symbol)),
      nummern_(Bereich(0)) {
    // A text stands right of its corner and below it.
    nummern_.links -= r_.textweite;
    nummern_.oben -= r_.texthoehe;
}

Bildbereich Bildaufbau::Bereich(std::int64_t rand) const {
    const Rechteck a = flaeche_.Ausschnitt();
    return {a.links - rand, a.oben - rand, a.rechts + rand, a.unten + rand};
}

/// Whether a shape reaching from one position to another touches the part that is drawn.
bool Bildaufbau::Beruehrt(Bildpunkt a, Bildpunkt b, const Bildbereich& r) {
    return std::max(a.x, b.x) >= r.links && std::min(a.x, b.x) <= r.rechts && std::max(a.y, b.y) >= r.oben &&
           std::min(a.y, b.y) <= r.unten;
}

/// What may have to be drawn. Only the points are looked at: how dense they lie decides how to draw.
void Bildaufbau::Sammle() {
    if (liste_.ShowBeob) liste_.SammleKanten(linien_, kanten_);
    liste_.SammlePunkte(symbole_, punkte_);
    std::size_t anzahl = 0;
    FuerAlle(punkte_, false, [&](PunktKnoten& p) {
        const Bildpunkt ort = p.Item->Position();
        if (p.Item->Visible && liste_.Dargestellt(*p.Item) && Beruehrt(ort, ort, symbole_))
            punkte_[anzahl++] = &p;
    });
    punkte_.resize(anzahl);
    if (liste_.ShowPktText && liste_.ShowHilfP) liste_.SammleTexte(nummern_, texte_);
}

/// Whether enough lies behind other things to pay for keeping track of it: what the figures would draw
/// against the area that they lie in [px].
bool Bildaufbau::Dicht() const {
    constexpr double kJePunkt = 60.0;  ///< symbol and lines
    constexpr double kJeNummer = 130.0;
    constexpr double kTief = 3.0;
    const Rechteck a = flaeche_.Ausschnitt();
    std::int64_t links = a.rechts;
    std::int64_t oben = a.unten;
    std::int64_t rechts = a.links;
    std::int64_t unten = a.oben;
    double punkte = 0;
    for (const PunktKnoten* p : punkte_) {
        const Bildpunkt m = p->Item->Position();
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
    return punkte * jePunkt > kTief * flaeche;
}

void Bildaufbau::ZeichnePunkte(bool vonVorn) {
    FuerAlle(punkte_, vonVorn, [&](PunktKnoten& p) {
        if (!vonVorn || !Verdeckt(p.Item->Position(), p.Item->Position(), r_.symbol)) p.Item->Show(zeichner_);
    });
}

void Bildaufbau::ZeichneKanten(bool vonVorn) {
    FuerAlle(kanten_, vonVorn, [&](PunktKante& k) {
        const Bildpunkt a = k.Item->Position();
        const Bildpunkt e = k.Item->Ende();
        if (k.Item->Visible && gezeigt_(k) && Beruehrt(a, e, linien_) &&
            !(vonVorn && Verdeckt(a, e, r_.kante)))
            k.Item->Show(zeichner_);
    });
}

void Bildaufbau::ZeichneTexte(bool vonVorn) {
    FuerAlle(texte_, vonVorn, [&](PunktString& t) {
        const Bildpunkt ort = t.Item->Textort();
        if (t.Item->Visible && gezeigt_(t) && Beruehrt(ort, ort, nummern_)) t.Item->Show(zeichner_);
    });
}

/// Nothing of a shape between two positions would be seen behind what is there.
bool Bildaufbau::Verdeckt(Bildpunkt a, Bildpunkt b, std::int64_t r) const {
    // Shapes far out are never covered as a whole.
    constexpr std::int64_t kWeit = 1 << 30;
    return flaeche_.Verdeckt({static_cast<std::int32_t>(std::max(std::min(a.x, b.x), -kWeit) - r),
                              static_cast<std::int32_t>(std::max(std::min(a.y, b.y), -kWeit) - r),
                              static_cast<std::int32_t>(std::min(std::max(a.x, b.x), kWeit) + r),
                              static_cast<std::int32_t>(std::min(std::max(a.y, b.y), kWeit) + r)});
}

void Bildaufbau::Zeichne() {
    Sammle();
    if (zeichner_.NurPixel() && Dicht() && flaeche_.BeginneVonVorn()) {
        ZeichneTexte(true);
        ZeichnePunkte(true);
        ZeichneKanten(true);
        flaeche_.BeendeVonVorn();
    } else {
        ZeichneKanten(false);
        ZeichnePunkte(false);
        ZeichneTexte(false);
    }
}

}  // namespace zrw
