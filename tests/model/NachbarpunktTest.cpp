// The next point in a direction, against a plain walk through all of them.
#include "model/Nachbarpunkt.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "tests/hilfe/Probenetz.h"

namespace zrw {
namespace {

constexpr std::optional<Gehrichtung> kRichtungen[]{std::nullopt, Gehrichtung::Links, Gehrichtung::Rechts,
                                                   Gehrichtung::Hinauf, Gehrichtung::Hinunter};

/// Turned so that the direction is to the right.
Welt Gedreht(Welt w, Gehrichtung r) {
    if (r == Gehrichtung::Links) return {-w.rechts, -w.hoch};
    if (r == Gehrichtung::Hinauf) return {w.hoch, -w.rechts};
    if (r == Gehrichtung::Hinunter) return {-w.hoch, w.rechts};
    return w;
}

const PunktKnoten* Schlicht(const Liste& l, Welt von, std::optional<Gehrichtung> r) {
    const PunktKnoten* bester = nullptr;
    double kleinster = 1e300;
    for (const PunktKnoten* p = l.PunktKnoten; p != nullptr; p = p->Next) {
        Welt weg{p->XWPu - von.rechts, p->YWPu - von.hoch};
        if (r) {
            weg = Gedreht(weg, *r);
            if (weg.rechts <= 0 || std::abs(weg.hoch) > weg.rechts) continue;
        }
        const double d = weg.rechts * weg.rechts + weg.hoch * weg.hoch;
        if (!p->Item->Visible || !l.Dargestellt(*p->Item) || d >= kleinster) continue;
        kleinster = d;
        bester = p;
    }
    return bester;
}

TEST(Nachbarpunkt, WieDerGangDurchAlle) {
    std::mt19937 zufall(7);
    for (const double faktor : {0.01, 1.0, 300.0, 0.0}) {
        Probenetz n;
        n.l.Weite = 800;
        n.l.Hoehe = 600;
        n.l.Faktor = faktor;
        n.l.ShowNP = false;
        for (PunktIndex nr = 1; nr <= 400; ++nr) {
            // On a lattice, for ties and for the edges of the sector; some far away.
            const auto ort = [&] { return static_cast<double>(zufall() % 40) * (nr % 50 == 0 ? 1e6 : 10); };
            const double x = ort();
            n.P(nr, x, ort(), nr % 7 == 0 ? PunktArt::NP : PunktArt::FP).Item->Visible = nr % 5 != 0;
        }
        for (const PunktKnoten* p = n.l.PunktKnoten; p != nullptr; p = p->Next) {
            for (const auto& r : kRichtungen) {
                const Welt von{p->XWPu + (r ? 0 : 3), p->YWPu};
                ASSERT_EQ(NaechsterPunkt(n.l, n.l, n.l, von, r), Schlicht(n.l, von, r))
                    << p->PNr << " " << (r ? static_cast<int>(*r) : -1) << " " << faktor;
            }
        }
    }
    Probenetz leer;
    EXPECT_EQ(NaechsterPunkt(leer.l, leer.l, leer.l, {0, 0}, std::nullopt), nullptr);
}

}  // namespace
}  // namespace zrw
