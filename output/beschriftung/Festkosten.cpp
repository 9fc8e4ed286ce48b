#include "output/beschriftung/Festkosten.h"

#include <algorithm>
#include <cmath>

namespace zrw {
namespace {

std::vector<Kasten> SymbolkaestenVon(const Beschriftungsaufgabe& aufgabe) {
    std::vector<Kasten> k;
    k.reserve(aufgabe.symbole.size());
    for (const Symbolkasten& s : aufgabe.symbole)
        k.push_back(KastenVon(s));
    return k;
}

/// Cells as wide as needed for a bounded number of them along all strokes.
std::int32_t Strichzellen(const std::vector<Sperrstrich>& striche, std::int32_t zelle, const Kasten& alles) {
    constexpr std::int64_t kMeisteZellen = 1 << 18;
    const auto teil = [](std::int64_t a, std::int64_t e, std::int64_t von, std::int64_t bis) {
        return std::max<std::int64_t>(0, std::min(std::max(a, e), bis) - std::max(std::min(a, e), von));
    };
    for (; zelle < kFernsterOrt; zelle *= 2) {
        std::int64_t zellen = 0;
        for (const Sperrstrich& s : striche) {
            zellen += 1 + (teil(s.von.x, s.nach.x, alles.links, alles.rechts) +
                           teil(s.von.y, s.nach.y, alles.oben, alles.unten)) /
                              zelle;
        }
        if (zellen <= std::max(kMeisteZellen, 16 * static_cast<std::int64_t>(striche.size()))) break;
    }
    return zelle;
}

}  // namespace

Festkosten::Festkosten(const Beschriftungsaufgabe& aufgabe, std::int32_t zelle, const Kasten& alles)
    : aufgabe_(aufgabe),
      symbole_(SymbolkaestenVon(aufgabe)),
      symbolgitter_(Zellgitter::Zellweite(symbole_, zelle)),
      strichgitter_(Strichzellen(aufgabe.striche, zelle, alles)),
      gesehen_(std::max(aufgabe.striche.size(), symbole_.size())) {
    symbolgitter_.FuelleGitter(symbole_);
    strichgitter_.FuelleGitter(aufgabe.striche, alles);
}

void Festkosten::SammleUmgebung(const Schild& s, const Kasten& reich) {
    punkte_.clear();
    striche_.clear();
    blaetter_.clear();
    for (const Rechteck& b : aufgabe_.blaetter)
        if (LiegtAuf(b, s.punkt) || Trifft(b, reich)) blaetter_.push_back(b);
    const auto neu = [this](std::uint32_t ding) {
        if (gesehen_[ding] == runde_) return false;
        gesehen_[ding] = runde_;
        return true;
    };
    ++runde_;
    // A little farther: points beside the box may be nearer than its own.
    symbolgitter_.SucheDinge(reich.Erweitert(s.hoehe), [&](std::uint32_t i) {
        if (!neu(i)) return true;
        const Flaechenpunkt mitte = aufgabe_.symbole[i].mitte;
        punkte_.push_back({symbole_[i], mitte, mitte != s.punkt});
        return punkte_.size() < kMeistePunkte;
    });
    ++runde_;
    strichgitter_.SucheDinge(reich, [&](std::uint32_t i) {
        if (neu(i) && Kreuzt(aufgabe_.striche[i], reich)) striche_.push_back(aufgabe_.striche[i]);
        return striche_.size() < kMeisteStriche;
    });
}

std::int32_t Festkosten::KostenBei(const Schild& s, Flaechenpunkt lage, std::int32_t grenze) const {
    const Kasten k = KastenVon(s, lage);
    const std::int64_t abstand = Abstandsquadrat(k, s.punkt);
    const double hoehe = std::max(s.hoehe, 1);
    // Correctly rounded everywhere, as roots are.
    const double hoehen = std::min(std::sqrt(static_cast<double>(abstand)) / hoehe, 1000.0);
    std::int32_t kosten = static_cast<std::int32_t>(kKostenJeHoehe * hoehen);
    // To the right and above first.
    const std::int64_t quer = std::clamp<std::int64_t>(-lage.x, 0, s.weite);
    const std::int64_t hoch = std::clamp<std::int64_t>(lage.y + s.hoehe, 0, s.hoehe);
    kosten += static_cast<std::int32_t>(quer * (kKostenHoechsteLage / 2) / std::max(s.weite, 1) +
                                        hoch * (kKostenHoechsteLage / 2) / std::max(s.hoehe, 1));
    if (Zerschnitten(blaetter_, aufgabe_.blattrand, k, s.punkt)) kosten += kKostenRand;
    for (const NaherPunkt& p : punkte_) {
        if (k.Ueberlappt(p.kasten)) kosten += kKostenSymbol;
        if (p.fremd && Abstandsquadrat(k, p.mitte) < abstand) kosten += kKostenFremd;
    }
    if (kosten >= grenze) return kosten;
    std::int32_t linien = 0;
    for (const Sperrstrich& strich : striche_)
        linien += Kreuzt(strich, k) ? 1 : 0;
    return kosten + (linien > 0 ? kKostenLinie : 0) + kKostenJeLinie * std::min(linien, 20);
}

}  // namespace zrw
