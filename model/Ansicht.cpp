// View arithmetic of the list: fitting, world to picture and back, zooming, panning, moving.
#include <algorithm>
#include <cmath>

#include "model/FigListe.h"
#include "model/Ganzzahl.h"
#include "model/Zeichner.h"

namespace zrw {
namespace {

/// Margin of the picture that fitting leaves free [px].
constexpr double kBildrand = 30;

}  // namespace

void Liste::FindWorldMinMax() {
    if (PunktKnoten == nullptr) return;
    MaxXW = MinXW = PunktKnoten->XWPu;
    MaxYW = MinYW = PunktKnoten->YWPu;
    for (const zrw::PunktKnoten* p = PunktKnoten; p != nullptr; p = p->Next) {
        MaxXW = std::max(MaxXW, p->XWPu);
        MinXW = std::min(MinXW, p->XWPu);
        MaxYW = std::max(MaxYW, p->YWPu);
        MinYW = std::min(MinYW, p->YWPu);
    }
    MinXW = std::trunc(MinXW / 1000 - 1) * 1000;
    MaxXW = std::trunc(MaxXW / 1000 + 1) * 1000;
    MaxYW = std::trunc(MaxYW / 1000 + 1) * 1000;
    MinYW = std::trunc(MinYW / 1000 - 1) * 1000;
}

void Liste::Findfaktor() {
    const double dx = MaxXW - MinXW;
    const double dy = MaxYW - MinYW;
    // The horizontal extent goes with the height and the vertical one with the width: plots that are in use
    // were arranged with this scale.
    Faktor = dy < dx ? dx / (Hoehe - kBildrand) : dy / Weite;
}

void Liste::WeltinBild() {
    for (zrw::PunktKnoten* p = PunktKnoten; p != nullptr; p = p->Next) {
        const Bildpunkt b = Bildort({p->XWPu, p->YWPu});
        p->Item->XO = b.x;
        p->Item->YO = b.y;
    }
    for (PPunktKante k = KanteKnoten; k != nullptr; k = k->Next) {
        if (const zrw::PunktKnoten* a = SuchPkt(k->ANr); a != nullptr) {
            k->Item->XO = a->Item->XO;
            k->Item->YO = a->Item->YO;
        }
        if (const zrw::PunktKnoten* e = SuchPkt(k->ENr); e != nullptr) {
            k->Item->XBiE = e->Item->XO;
            k->Item->YBiE = e->Item->YO;
        }
    }
    for (PPunktString t = PktTextKnoten; t != nullptr; t = t->Next) {
        if (const zrw::PunktKnoten* p = SuchPkt(t->TNr); p != nullptr) {
            t->Item->XO = p->Item->XO;
            t->Item->YO = p->Item->YO;
        }
    }
}

Welt Liste::BildinWelt(Bildpunkt b) const {
    return {MinXW + XOffset + static_cast<double>(b.x) * Faktor,
            MaxYW + YOffset - static_cast<double>(b.y) * Faktor};
}

Bildpunkt Liste::Bildort(Welt w) const {
    return {RundeZuInt64((w.rechts - (MinXW + XOffset)) / Faktor),
            RundeZuInt64((MaxYW + YOffset - w.hoch) / Faktor)};
}

void Liste::PasseEin() {
    if (PunktKnoten == nullptr) return;  // nothing to fit; a scale of 0 would help nobody
    XOffset = 0;
    YOffset = 0;
    Findfaktor();
    WeltinBild();
}

void Liste::Alles(Zeichner& z) {
    ClearPicture(z);
    PasseEin();
    ShowPicture(z);
}

void Liste::ZoomUp(Zeichner& z) {
    ClearPicture(z);
    Faktor *= einstellungen_.Zoomschritt;
    WeltinBild();
    ZeichneFiguren(z);
}

void Liste::ZoomDown(Zeichner& z) {
    Faktor /= einstellungen_.Zoomschritt;
    WeltinBild();
    ZeichneFiguren(z);
}

void Liste::MoveMe(std::int64_t dx, std::int64_t dy) {
    XOffset += static_cast<double>(dx) * Faktor;
    YOffset += static_cast<double>(dy) * Faktor;
    WeltinBild();
}

void Liste::MovePunkt(zrw::PunktKnoten& u, std::int64_t dx, std::int64_t dy) {
    u.XWPu += static_cast<double>(dx) * Faktor;
    u.YWPu -= static_cast<double>(dy) * Faktor;
    WeltinBild();
}

void Liste::ZentrierPunkt(zrw::PunktKnoten& p1, const zrw::PunktKnoten& p2, Zeichner& z) {
    p1.XWPu = p2.XWPu;
    p1.YWPu = p2.YWPu;
    p1.Item->XO = p2.Item->XO;
    p1.Item->YO = p2.Item->YO;
    if (PktText* t = FindPktText(p1.PNr); t != nullptr) t->Hide(z);
}

void Liste::DragPktText(PunktString& u, Zeichner& z) {
    const Bildpunkt weg = u.Item->Drag(z);
    u.Item->XBiO = Summe(u.Item->XBiO, weg.x);
    u.Item->YBiO = Summe(u.Item->YBiO, weg.y);
}

}  // namespace zrw
