// Hit-tests of the list: the figure under the mouse.
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

}  // namespace

bool Liste::Gefangen(Bildpunkt maus, Bildpunkt ort) const {
    const std::int64_t r = einstellungen_.Fang;
    return Differenz(maus.x, r) <= ort.x && ort.x <= Summe(maus.x, r) && Differenz(maus.y, r) <= ort.y &&
           ort.y <= Summe(maus.y, r);
}

PPunktKnoten Liste::ClickPunkt(Bildpunkt maus) const {
    for (PPunktKnoten p = PunktKnoten; p != nullptr; p = p->Next) {
        if (Gefangen(maus, p->Item->Position())) return p;
    }
    return nullptr;
}

bool Liste::MausPunkt(Bildpunkt maus, PPunktKnoten& u, Zeichner& z) {
    const PPunktKnoten treffer = ClickPunkt(maus);
    if (treffer == nullptr) return false;
    // By position, not by number: what meets the point in the picture must not stay behind when it moves.
    const Bildpunkt ort = treffer->Item->Position();
    for (PPunktKante k = KanteKnoten; k != nullptr; k = k->Next) {
        if (k->Item->Position() == ort || k->Item->Ende() == ort) k->Item->Hide(z);
    }
    for (PPunktString t = PktTextKnoten; t != nullptr; t = t->Next) {
        if (t->Item->Position() == ort) t->Item->Hide(z);
    }
    u = treffer;
    return true;
}

PPunktString Liste::MausPktText(Bildpunkt maus) const {
    for (PPunktString t = PktTextKnoten; t != nullptr; t = t->Next) {
        if (Gefangen(maus, t->Item->Textort())) return t;
    }
    return nullptr;
}

void Liste::MausLegende(Bildpunkt maus) {
    if (Legend != nullptr) Legend->Move = Gefangen(maus, Legend->Position());
}

PPunktKante Liste::PickKante(Bildpunkt maus) const {
    const std::int64_t r = einstellungen_.Fang;
    for (PPunktKante k = KanteKnoten; k != nullptr; k = k->Next) {
        const std::int64_t sx = Differenz(k->Item->XO, maus.x);
        const std::int64_t sy = Differenz(k->Item->YO, maus.y);
        const std::int64_t ex = Differenz(k->Item->XBiE, maus.x);
        const std::int64_t ey = Differenz(k->Item->YBiE, maus.y);
        const bool klein = Klein(sx) && Klein(sy) && Klein(ex) && Klein(ey);
        const bool trifft =
            klein ? TrifftStrecke(sx, sy, ex, ey, r)
                  : TrifftStrecke(static_cast<double>(sx), static_cast<double>(sy), static_cast<double>(ex),
                                  static_cast<double>(ey), static_cast<double>(r));
        if (trifft) return k;
    }
    return nullptr;
}

}  // namespace zrw
