#include "output/beschriftung/Blattordnung.h"

#include <algorithm>
#include <utility>

namespace zrw {

Probelage::Probelage(Netz& netz, std::vector<Planbeschriftung::Nummernlage> lagen)
    : netz_(netz), lagen_(std::move(lagen)) {
    Tausche();
}

void Probelage::Tausche() {
    for (auto& l : lagen_) {
        const Bildpunkt bisher{l.text->Item->XBiO, l.text->Item->YBiO};
        netz_.VersetzeText(*l.text, std::exchange(l.abstand, bisher));
    }
}

namespace {

bool SelbeOrte(const std::vector<Blatt>& a, const std::vector<Blatt>& b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](const Blatt& x, const Blatt& y) {
        return x.ecke.rechts == y.ecke.rechts && x.ecke.hoch == y.ecke.hoch;
    });
}

}  // namespace

std::optional<Planbeschriftung::Ordnung> OrdneAufBlaetter(Planbeschriftung& plan, Netz& netz,
                                                          const Blattschneider& schneide,
                                                          const Fortschritt& fortschritt) {
    constexpr int kMeisteRunden = 6;
    constexpr int kGanz = 1000;
    std::optional<Planbeschriftung::Ordnung> beste;
    std::size_t wenigste = 0;
    std::optional<Planbeschriftung::Ordnung> ordnung;
    std::vector<Blatt> blaetter = schneide();
    plan.SetzeBlaetter(blaetter);
    for (int runde = 0; runde < kMeisteRunden; ++runde) {
        // The first round takes longest by far.
        const auto melde = [&](int promille) {
            return fortschritt(runde == 0 ? promille * 9 / 10 : kGanz * 9 / 10);
        };
        const Fortschritt gemeldet = fortschritt ? Fortschritt(melde) : Fortschritt();
        ordnung = ordnung ? plan.OrdneZerschnittene(*ordnung, gemeldet) : plan.OrdneNummern(gemeldet);
        if (!ordnung) return std::nullopt;
        const std::vector<Blatt> vorher = std::move(blaetter);
        {
            const Probelage probe(netz, ordnung->versetzt);
            blaetter = schneide();
        }
        plan.SetzeBlaetter(blaetter);
        const std::size_t zerschnitten = plan.Zerschnittene(*ordnung).size();
        if (!beste || zerschnitten < wenigste) {
            beste = *ordnung;
            wenigste = zerschnitten;
        }
        // The same sheets would have the same answer.
        if (wenigste == 0 || SelbeOrte(blaetter, vorher)) break;
    }
    return beste;
}

}  // namespace zrw
