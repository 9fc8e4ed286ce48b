#include "model/Treffer.h"

#include <algorithm>
#include <vector>

#include "model/Bildorte.h"
#include "model/Ganzzahl.h"

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
bool TrifftMaus(Bildpunkt anfang, Bildpunkt ende, Bildpunkt maus, std::int64_t r) {
    const std::int64_t sx = Differenz(anfang.x, maus.x);
    const std::int64_t sy = Differenz(anfang.y, maus.y);
    const std::int64_t ex = Differenz(ende.x, maus.x);
    const std::int64_t ey = Differenz(ende.y, maus.y);
    if (Klein(sx) && Klein(sy) && Klein(ex) && Klein(ey)) return TrifftStrecke(sx, sy, ex, ey, r);
    return TrifftStrecke(static_cast<double>(sx), static_cast<double>(sy), static_cast<double>(ex),
                         static_cast<double>(ey), static_cast<double>(r));
}

/// The first that fits, or null.
template <class Knoten, class Bedingung>
Knoten* Erster(const std::vector<Knoten*>& knoten, Bedingung passt) {
    const auto treffer = std::find_if(knoten.begin(), knoten.end(), [&](Knoten* k) { return passt(*k); });
    return treffer != knoten.end() ? *treffer : nullptr;
}

}  // namespace

bool Gefangen(Bildpunkt maus, Bildpunkt ort, std::int64_t fang) {
    const Bildbereich b = Fangbereich(maus, fang);
    return b.links <= ort.x && ort.x <= b.rechts && b.oben <= ort.y && ort.y <= b.unten;
}

Bildbereich Fangbereich(Bildpunkt maus, std::int64_t fang) {
    return {Differenz(maus.x, fang), Differenz(maus.y, fang), Summe(maus.x, fang), Summe(maus.y, fang)};
}

/// Where in the world a figure lies whose position may be caught: far fewer have to be placed in the picture.
static Weltkasten Fangkasten(const Ansicht& a, const Bildbereich& b) {
    constexpr std::int64_t kFern = std::int64_t{1}
                                   << 40U;  // beyond, positions stop at the ends of their range
    const bool nah = b.links > -kFern && b.oben > -kFern && b.rechts < kFern && b.unten < kFern;
    return nah && Brauchbar(a.Lage()) ? WeltUnter(a.Lage(), b) : kGanzeWelt;
}

/// The kind of the point is switched on, as far as that counts.
bool Treffersuche::Gezeigt(PunktIndex nr) const {
    if (gezeigt_ == nullptr) return true;
    const PunktKnoten* p = netz_.SuchPkt(nr);
    return p != nullptr && gezeigt_->Dargestellt(*p->Item);
}

PPunktKnoten Treffersuche::Punkt(Bildpunkt maus) const {
    std::vector<PPunktKnoten> nahe;
    const Bildbereich bereich = Fangbereich(maus, fang_);
    const Weltkasten dort = Fangkasten(ansicht_, bereich);
    netz_.SammlePunkte(ansicht_, bereich, nahe);
    return Erster(nahe, [&](const PunktKnoten& p) {
        return dort.BeruehrtKasten({p.XWPu, p.YWPu, p.XWPu, p.YWPu}) &&
               Gefangen(maus, BildortVon(p, ansicht_), fang_) &&
               (gezeigt_ == nullptr || (p.Item->Visible && gezeigt_->Dargestellt(*p.Item)));
    });
}

PPunktString Treffersuche::Text(Bildpunkt maus) const {
    if (gezeigt_ != nullptr && !gezeigt_->ZeigtNummern()) return nullptr;
    std::vector<PPunktString> nahe;
    const Bildbereich bereich = Fangbereich(maus, fang_);
    const Weltkasten dort = Fangkasten(ansicht_, bereich);
    netz_.SammleTexte(ansicht_, bereich, nahe);
    return Erster(nahe, [&](const PunktString& t) {
        return netz_.BeruehrtVielleicht(t, dort, ansicht_.Faktor) &&
               (gezeigt_ == nullptr || t.Item->Visible) &&
               Gefangen(maus, t.Item->Textort(BildortVon(t, netz_, ansicht_)), fang_) && Gezeigt(t.TNr);
    });
}

PPunktKante Treffersuche::Kante(Bildpunkt maus) const {
    if (gezeigt_ != nullptr && !gezeigt_->ShowBeob) return nullptr;
    std::vector<std::uint32_t> nahe;
    // A line is caught up to a whole pixel farther off, and beside its ends.
    const Bildbereich bereich = Fangbereich(maus, fang_ + 1);
    const Weltkasten dort = Fangkasten(ansicht_, bereich);
    netz_.SammleKanten(ansicht_, bereich, nahe);
    for (const std::uint32_t folge : nahe) {
        if (!netz_.BeruehrtVielleicht(netz_.Enden(folge), dort)) continue;
        PunktKante& k = netz_.KanteNach(folge);
        if ((gezeigt_ == nullptr || (k.Item->Visible && gezeigt_->Gewaehlt(k))) &&
            TrifftMaus(AnfangVon(k, netz_, ansicht_), EndeVon(k, netz_, ansicht_), maus, fang_) &&
            Gezeigt(k.ANr) && Gezeigt(k.ENr))
            return &k;
    }
    return nullptr;
}

}  // namespace zrw
