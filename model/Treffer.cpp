// Hit-tests of the list: the figure under the mouse.
#include <algorithm>
#include <vector>

#include "model/FigListe.h"
#include "model/Ganzzahl.h"
#include "model/Zeichner.h"

namespace zrw {
namespace {

/// Distance test of one line. With coordinates as products the comparison stays exact in whole numbers for
/// everything the drawing surface can address; root and subtraction would lose pixels on long lines.
template <class Zahl>
bool TrifftStrecke(Zahl sx, Zahl sy, Zahl ex, Zahl ey, Zahl radius) {
    // Mouse at the origin: S and E are relative to it.
    const Zahl dx = ex - sx;
    const Zahl dy = ey - sy;
    const Zahl laenge2 = dx * dx + dy * dy;
    if (laenge2 == 0) return false;
    // The foot of the perpendicular lies outside the segment where one of these is negative.
    if (-(sx * dx + sy * dy) < 0 || ex * dx + ey * dy < 0) return false;
    const Zahl kreuz = sx * ey - sy * ex;
    // Distance truncated to whole pixels <= radius, that is distance < radius + 1.
    const double r1 = static_cast<double>(radius) + 1.0;
    const double k = static_cast<double>(kreuz);
    return k * k < r1 * r1 * static_cast<double>(laenge2);
}

/// Within this range all products above fit into 64 bits.
bool Klein(std::int64_t v) {
    return v > -(1LL << 29) && v < (1LL << 29);
}

/// Whether the segment of a line passes within `r` pixels of the mouse.
bool Trifft(const Kante& k, Bildpunkt maus, std::int64_t r) {
    const std::int64_t sx = Differenz(k.XO, maus.x);
    const std::int64_t sy = Differenz(k.YO, maus.y);
    const std::int64_t ex = Differenz(k.XBiE, maus.x);
    const std::int64_t ey = Differenz(k.YBiE, maus.y);
    if (Klein(sx) && Klein(sy) && Klein(ex) && Klein(ey)) return TrifftStrecke(sx, sy, ex, ey, r);
    return TrifftStrecke(static_cast<double>(sx), static_cast<double>(sy), static_cast<double>(ex),
                         static_cast<double>(ey), static_cast<double>(r));
}

}  // namespace

bool Liste::Gefangen(Bildpunkt maus, Bildpunkt ort) const {
    const std::int64_t r = einstellungen_.Fang;
    return Differenz(maus.x, r) <= ort.x && ort.x <= Summe(maus.x, r) && Differenz(maus.y, r) <= ort.y &&
           ort.y <= Summe(maus.y, r);
}

namespace {

/// Where the position of a caught figure may lie.
Bildbereich Fangbereich(Bildpunkt maus, std::int64_t r) {
    return {Differenz(maus.x, r), Differenz(maus.y, r), Summe(maus.x, r), Summe(maus.y, r)};
}

/// The first that fits, or null.
template <class Knoten, class Bedingung>
Knoten* Erster(const std::vector<Knoten*>& knoten, Bedingung passt) {
    const auto treffer = std::find_if(knoten.begin(), knoten.end(), [&](Knoten* k) { return passt(*k); });
    return treffer != knoten.end() ? *treffer : nullptr;
}

}  // namespace

PPunktKnoten Liste::ClickPunkt(Bildpunkt maus) const {
    std::vector<PPunktKnoten> nahe;
    SammlePunkte(Fangbereich(maus, einstellungen_.Fang), nahe);
    return Erster(nahe, [&](const zrw::PunktKnoten& p) { return Gefangen(maus, p.Item->Position()); });
}

PPunktKnoten Liste::ClickGezeigten(Bildpunkt maus) const {
    std::vector<PPunktKnoten> nahe;
    SammlePunkte(Fangbereich(maus, einstellungen_.Fang), nahe);
    return Erster(nahe, [&](const zrw::PunktKnoten& p) {
        return Gefangen(maus, p.Item->Position()) && p.Item->Visible && Dargestellt(*p.Item);
    });
}

void Liste::LoesePunkt(const zrw::PunktKnoten& punkt, Zeichner& z) {
    // By position, not by number: what meets the point in the picture must not stay behind when it moves.
    const Bildpunkt ort = punkt.Item->Position();
    const Bildbereich dort = Fangbereich(ort, 0);
    std::vector<PPunktKante> kanten;
    SammleKanten(dort, kanten);
    for (PPunktKante k : kanten) {
        if (k->Item->Position() == ort || k->Item->Ende() == ort) k->Item->Hide(z);
    }
    std::vector<PPunktString> texte;
    SammleTexte(dort, texte);
    for (PPunktString t : texte) {
        if (t->Item->Position() == ort) t->Item->Hide(z);
    }
}

bool Liste::MausPunkt(Bildpunkt maus, PPunktKnoten& u, Zeichner& z) {
    const PPunktKnoten treffer = ClickPunkt(maus);
    if (treffer == nullptr) return false;
    LoesePunkt(*treffer, z);
    u = treffer;
    return true;
}

PPunktString Liste::MausPktText(Bildpunkt maus) const {
    std::vector<PPunktString> nahe;
    SammleTexte(Fangbereich(maus, einstellungen_.Fang), nahe);
    return Erster(nahe, [&](const PunktString& t) { return Gefangen(maus, t.Item->Textort()); });
}

PPunktString Liste::ClickGezeigtenText(Bildpunkt maus) const {
    if (!ShowPktText || !ShowHilfP) return nullptr;
    std::vector<PPunktString> nahe;
    SammleTexte(Fangbereich(maus, einstellungen_.Fang), nahe);
    return Erster(nahe, [&](const PunktString& t) {
        if (!t.Item->Visible || !Gefangen(maus, t.Item->Textort())) return false;
        const zrw::PunktKnoten* p = SuchPkt(t.TNr);
        return p != nullptr && Dargestellt(*p->Item);
    });
}

void Liste::MausLegende(Bildpunkt maus) {
    if (Legend != nullptr) Legend->Move = Gefangen(maus, Legend->Position());
}

// A line is caught up to a whole pixel farther off, and beside its ends.

PPunktKante Liste::PickKante(Bildpunkt maus) const {
    std::vector<PPunktKante> nahe;
    SammleKanten(Fangbereich(maus, std::int64_t{einstellungen_.Fang} + 1), nahe);
    return Erster(nahe, [&](const PunktKante& k) { return Trifft(*k.Item, maus, einstellungen_.Fang); });
}

PPunktKante Liste::PickGezeigte(Bildpunkt maus) const {
    if (!ShowBeob) return nullptr;
    std::vector<PPunktKante> nahe;
    SammleKanten(Fangbereich(maus, std::int64_t{einstellungen_.Fang} + 1), nahe);
    return Erster(nahe, [&](const PunktKante& k) {
        return k.Item->Visible && Trifft(*k.Item, maus, einstellungen_.Fang) && Dargestellt(k);
    });
}

}  // namespace zrw
