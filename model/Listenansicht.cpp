// View arithmetic of the list: fitting, world to picture and back, zooming, panning, moving.
#include <algorithm>
#include <cmath>

#include "model/FigListe.h"
#include "model/Ganzzahl.h"
#include "model/Ortstafel.h"
#include "model/Zeichner.h"

namespace zrw {
void Liste::FindWorldMinMax() {
    if (PunktKnoten == nullptr) return;
    // From the head on, so that not-a-number there stays and the view is found to be useless.
    const auto [x, y] = Welt{PunktKnoten->XWPu, PunktKnoten->YWPu};
    Weltkasten welt{x, y, x, y};
    for (const zrw::PunktKnoten* p = PunktKnoten; p != nullptr; p = p->Next)
        welt.Nimm(p->XWPu, p->YWPu);
    SetzeAusdehnung(welt);
}

namespace {

/// Sets picture positions and, where that is asked for, sees whether all of them moved alike.
template <bool Prueft>
class Versetzer {
  public:
    explicit Versetzer(Bildpunkt weg) : weg_(weg) {}
    void Setze(std::int64_t& x, std::int64_t& y, Bildpunkt neu) {
        if constexpr (Prueft) {
            // Far outside, sums would leave 64 bits; pictures of such views are not moved.
            constexpr std::uint64_t kWeit = 1ULL << 29U;
            const auto fern = [](std::int64_t v) {
                return static_cast<std::uint64_t>(v) + kWeit >= 2 * kWeit;
            };
            if (fern(x) || fern(y) || fern(neu.x) || fern(neu.y)) anders_ = true;
            if (!anders_) anders_ = neu.x - x != weg_.x || neu.y - y != weg_.y;
        }
        x = neu.x;
        y = neu.y;
    }
    void SetzeAnders() { anders_ = true; }
    [[nodiscard]] bool Glatt() const { return !anders_; }

  private:
    Bildpunkt weg_;
    bool anders_ = false;
};

}  // namespace

/// @param weg how far all figures are expected to move [px] @return whether they did, if that is looked at
template <bool Prueft>
bool Liste::RechneBild(Bildpunkt weg) {
    Versetzer<Prueft> v(weg);
    Ortstafel orte;
    // The detours of indirect lines are rounded with halves to the even neighbour, which an odd way swaps.
    const bool ungerade = weg.x % 2 != 0 || weg.y % 2 != 0;
    // By the order in memory: following the lists would wait for each node before it knows the next.
    suche_.punkte.FuerAlle([&](std::uint32_t f) {
        const zrw::PunktKnoten& p = punktArena_[f].knoten;
        const Bildpunkt ort = Bildort({p.XWPu, p.YWPu});
        v.Setze(p.Item->XO, p.Item->YO, ort);
        orte.Nimm(p.PNr, ort);
    });
    suche_.kanten.FuerAlle([&](std::uint32_t f) {
        const PunktKante& k = kanteArena_[f].knoten;
        const auto a = orte.Finde(k.ANr);
        const auto e = orte.Finde(k.ENr);
        if (a) v.Setze(k.Item->XO, k.Item->YO, *a);
        if (e) v.Setze(k.Item->XBiE, k.Item->YBiE, *e);
        if (!a || !e || (ungerade && k.Item->LAttr > LinieAttr::AST)) v.SetzeAnders();
    });
    suche_.texte.FuerAlle([&](std::uint32_t f) {
        const PunktString& t = textArena_[f].knoten;
        const auto p = orte.Finde(t.TNr);
        if (p) v.Setze(t.Item->XO, t.Item->YO, *p);
        if (!p) v.SetzeAnders();
    });
    suche_.stand = {Lage(), true};
    return v.Glatt();
}

void Liste::WeltinBild() {
    (void)RechneBild<false>({});
}

void Liste::WeltinBild(const Figurenmenge& figuren) {
    for (zrw::PunktKnoten* p : figuren.punkte) {
        const Bildpunkt ort = Bildort({p->XWPu, p->YWPu});
        p->Item->XO = ort.x;
        p->Item->YO = ort.y;
    }
    const auto folge = [this](PunktIndex nr, std::int64_t& x, std::int64_t& y) {
        const zrw::PunktKnoten* p = SuchPkt(nr);
        if (p == nullptr) return;
        x = p->Item->XO;
        y = p->Item->YO;
    };
    for (PPunktKante k : figuren.kanten) {
        folge(k->ANr, k->Item->XO, k->Item->YO);
        folge(k->ENr, k->Item->XBiE, k->Item->YBiE);
    }
    for (PPunktString t : figuren.texte)
        folge(t->TNr, t->Item->XO, t->Item->YO);
}

bool Liste::PositionenAktuell() const {
    return suche_.stand.lage == Lage();
}

void Liste::PasseEin() {
    if (PunktKnoten == nullptr) return;
    Ansicht::PasseEin();
    WeltinBild();
}

void Liste::Alles(Zeichner& z) {
    ClearPicture(z);
    PasseEin();
    ShowPicture(z);
}

void Liste::ZoomUp(Zeichner& z) {
    ClearPicture(z);
    VergroessereUmEcke(einstellungen_.Zoomschritt);
    WeltinBild();
    ZeichneFiguren(z);
}

void Liste::ZoomDown(Zeichner& z) {
    VerkleinereUmEcke(einstellungen_.Zoomschritt);
    WeltinBild();
    ZeichneFiguren(z);
}

void Liste::MoveMe(std::int64_t dx, std::int64_t dy) {
    Ansicht::MoveMe(dx, dy);
    WeltinBild();
}

bool Liste::BewegeBild(Bildpunkt weg) {
    return RechneBild<true>(weg);
}

void Liste::MovePunkt(zrw::PunktKnoten& u, std::int64_t dx, std::int64_t dy) {
    Versetze(u, Versetzt({u.XWPu, u.YWPu}, {dx, dy}));
    WeltinBild();
}

void Liste::ZentrierPunkt(zrw::PunktKnoten& p1, const zrw::PunktKnoten& p2, Zeichner& z) {
    Versetze(p1, {p2.XWPu, p2.YWPu});
    p1.Item->XO = p2.Item->XO;
    p1.Item->YO = p2.Item->YO;
    if (PktText* t = FindPktText(p1.PNr); t != nullptr) t->Hide(z);
}

void Liste::DragPktText(PunktString& u, Zeichner& z) {
    const Bildpunkt weg = u.Item->Drag(z);
    Versetze(u, {Summe(u.Item->XBiO, weg.x), Summe(u.Item->YBiO, weg.y)});
}

}  // namespace zrw
