#include "model/Netzsuche.h"

#include <cassert>
#include <cmath>

namespace zrw {

void Suchmenge::TrageFigurEin(std::uint32_t folge, bool gebaut) {
    if (folge / 64 >= da_.size()) da_.resize(folge / 64 + 1);
    da_[folge / 64] |= std::uint64_t{1} << (folge % 64);
    ++anzahl_;
    if (gebaut) lose_.push_back(folge);
}

void Suchmenge::TrageFigurAus(std::uint32_t folge) {
    if (!HatFigur(folge)) return;
    da_[folge / 64] &= ~(std::uint64_t{1} << (folge % 64));
    --anzahl_;
}

void Suchmenge::LeereMenge() {
    da_.clear();
    anzahl_ = 0;
    VergissOrte();
}

void Suchmenge::VergissOrte() {
    baum_.LeereBaum();
    lose_.clear();
    loseBeimBau_ = 0;
}

bool Brauchbar(const Bildlage& lage) {
    return lage.faktor > 0.0 && std::isfinite(lage.faktor) && std::isfinite(lage.ecke.rechts) &&
           std::isfinite(lage.ecke.hoch);
}

Weltkasten WeltUnter(const Bildlage& lage, const Bildbereich& b) {
    assert(Brauchbar(lage));
    const double f = lage.faktor;
    // Positions are rounded to whole pixels, and the digits of large coordinates end somewhere.
    const double rand = 2.0 * f;
    const auto ungenau = [](double v) { return std::fabs(v) * 1e-12; };
    const double x = lage.ecke.rechts;
    const double y = lage.ecke.hoch;
    const double links = x + static_cast<double>(b.links) * f;
    const double rechts = x + static_cast<double>(b.rechts) * f;
    const double oben = y - static_cast<double>(b.oben) * f;
    const double unten = y - static_cast<double>(b.unten) * f;
    return {links - rand - ungenau(links) - ungenau(x), unten - rand - ungenau(unten) - ungenau(y),
            rechts + rand + ungenau(rechts) + ungenau(x), oben + rand + ungenau(oben) + ungenau(y)};
}

void Netzsuche::VergissBaeume() {
    gebaut = false;
    alles.reset();
    punkte.VergissOrte();
    kanten.VergissOrte();
    texte.VergissOrte();
}

}  // namespace zrw
