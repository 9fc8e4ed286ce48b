#include <algorithm>
#include <cmath>

#include "output/beschriftung/Beschriftung.h"
#include "output/beschriftung/Platzmuster.h"
#include "output/beschriftung/Schildkasten.h"
#include "output/beschriftung/Zellgitter.h"

namespace zrw {
Beschriftungsguete BewerteSchilder(const Beschriftungsaufgabe& irgendwo,
                                   const std::vector<Flaechenpunkt>& lagen) {
    Beschriftungsaufgabe aufgabe = irgendwo;
    BegrenzeHindernisse(aufgabe);
    Beschriftungsguete g;
    g.schilder = lagen.size();
    std::vector<Kasten> kaesten;
    for (std::size_t i = 0; i < lagen.size(); ++i)
        kaesten.push_back(Begrenzterkasten(aufgabe.schilder[i], lagen[i]));
    Zellgitter gitter(Zellgitter::Zellweite(kaesten, 16));
    gitter.FuelleGitter(kaesten);
    double summe = 0.0;
    for (std::size_t i = 0; i < lagen.size(); ++i) {
        const Kasten& k = kaesten[i];
        bool frei = true;
        gitter.SucheDinge(k, [&](std::uint32_t j) {
            if (i != j && k.Ueberlappt(kaesten[j])) frei = false;
            return frei;
        });
        g.ueberlappt += frei ? 0U : 1U;
        const Flaechenpunkt punkt = Begrenzt(aufgabe.schilder[i].punkt);
        const double abstand = std::sqrt(static_cast<double>(Abstandsquadrat(k, punkt)));
        summe += abstand;
        g.groessterAbstand = std::max(g.groessterAbstand, abstand);
    }
    if (!lagen.empty()) g.mittlererAbstand = summe / static_cast<double>(lagen.size());
    // These are for measuring: in turn, without an index.
    for (std::size_t i = 0; i < lagen.size() && lagen.size() <= kMeisteGenau; ++i) {
        const Kasten& k = kaesten[i];
        const Flaechenpunkt punkt = Begrenzt(aufgabe.schilder[i].punkt);
        const std::int64_t abstand = Abstandsquadrat(k, punkt);
        const auto fremd = [&](const Symbolkasten& s) { return s.mitte != punkt; };
        g.aufSymbol += std::any_of(aufgabe.symbole.begin(), aufgabe.symbole.end(),
                                   [&](const auto& s) { return fremd(s) && k.Ueberlappt(KastenVon(s)); });
        g.naeherAmFremden += std::any_of(aufgabe.symbole.begin(), aufgabe.symbole.end(), [&](const auto& s) {
            return fremd(s) && Abstandsquadrat(k, s.mitte) < abstand;
        });
        g.gekreuzt += std::any_of(aufgabe.striche.begin(), aufgabe.striche.end(),
                                  [&](const auto& s) { return Kreuzt(s, k); });
    }
    return g;
}

std::vector<Flaechenpunkt> OrdneGierig(const Beschriftungsaufgabe& aufgabe, const Beschriftungswahl& wahl) {
    std::vector<Flaechenpunkt> lagen;
    std::vector<Kasten> belegt;
    std::vector<Flaechenpunkt> orte;
    for (const Schild& s : aufgabe.schilder) {
        orte.clear();
        NimmRing(s, wahl, 4, orte);
        const auto frei = [&](Flaechenpunkt lage) {
            const Kasten k = KastenVon(s, lage);
            return std::none_of(belegt.begin(), belegt.end(),
                                [&](const Kasten& b) { return k.Ueberlappt(b); }) &&
                   std::none_of(aufgabe.symbole.begin(), aufgabe.symbole.end(),
                                [&](const Symbolkasten& y) { return k.Ueberlappt(KastenVon(y)); });
        };
        const auto wo = std::find_if(orte.begin(), orte.end(), frei);
        lagen.push_back(wo != orte.end() ? *wo : orte.front());
        belegt.push_back(KastenVon(s, lagen.back()));
    }
    return lagen;
}

}  // namespace zrw
