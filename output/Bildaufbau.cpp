#include "output/Bildaufbau.h"

#include <algorithm>

#include "model/FigListe.h"
#include "model/Gezeigt.h"
#include "output/Figurenzeichner.h"

namespace zrw {
namespace {}  // namespace

Bildbereich Bildaufbau::Bereich(std::int64_t rand) const {
    const Rechteck a = flaeche_.Ausschnitt();
    return {a.links - rand, a.oben - rand, a.rechts + rand, a.unten + rand};
}

/// Keeps what is visible and switched on.
void Bildaufbau::Sammle() {
    Gezeigt gezeigt(liste_);
    if (liste_.ShowBeob) liste_.SammleKanten(Bereich(r_.kante), kanten_);
    std::erase_if(kanten_, [&](const PunktKante* k) { return !k->Item->Visible || !gezeigt(*k); });
    liste_.SammlePunkte(Bereich(r_.symbol), punkte_);
    std::erase_if(punkte_,
                  [&](const PunktKnoten* p) { return !p->Item->Visible || !liste_.Dargestellt(*p->Item); });
    if (!liste_.ShowPktText || !liste_.ShowHilfP) return;
    // A text stands right of its corner and below it.
    Bildbereich b = Bereich(0);
    b.links -= r_.textweite;
    b.oben -= r_.texthoehe;
    liste_.SammleTexte(b, texte_);
    std::erase_if(texte_, [&](const PunktString* t) { return !t->Item->Visible || !gezeigt(*t); });
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

void Bildaufbau::VonVorn() {
    // What was added last is behind, and labels are before points before lines.
    for (std::size_t i = texte_.size(); i-- > 0;)
        texte_[i]->Item->Show(zeichner_);
    for (std::size_t i = punkte_.size(); i-- > 0;) {
        Punkt& p = *punkte_[i]->Item;
        if (!flaeche_.Verdeckt(zeichner_.Umfang(p))) p.Show(zeichner_);
    }
    for (std::size_t i = kanten_.size(); i-- > 0;) {
        Kante& k = *kanten_[i]->Item;
        if (!flaeche_.Verdeckt(zeichner_.Umfang(k))) k.Show(zeichner_);
    }
}

void Bildaufbau::Zeichne() {
    Sammle();
    if (zeichner_.NurPixel() && Dicht() && flaeche_.BeginneVonVorn()) {
        VonVorn();
        flaeche_.BeendeVonVorn();
        return;
    }
    for (PPunktKante k : kanten_)
        k->Item->Show(zeichner_);
    for (PPunktKnoten p : punkte_)
        p->Item->Show(zeichner_);
    for (PPunktString t : texte_)
        t->Item->Show(zeichner_);
}

}  // namespace zrw
