#include "model/Nachbarpunkt.h"

#include <cmath>
#include <limits>
#include <vector>

#include "model/Ganzzahl.h"

namespace zrw {
namespace {

/// The nearest of the points that it has seen.
class Nachbarsuche {
  public:
    Nachbarsuche(const Darstellung& gezeigt, Welt von, std::optional<Gehrichtung> richtung)
        : gezeigt_(gezeigt), von_(von), richtung_(richtung) {}

    void SiehAn(const PunktKnoten& p) {
        if (!p.Item->Visible || !gezeigt_.Dargestellt(*p.Item)) return;
        const Welt weg{p.XWPu - von_.rechts, p.YWPu - von_.hoch};
        if (richtung_ && !LiegtDort(weg)) return;
        if (const double d = std::hypot(weg.rechts, weg.hoch); d < abstand_) {
            abstand_ = d;
            bester_ = &p;
        }
    }
    [[nodiscard]] const PunktKnoten* Bester() const { return bester_; }
    [[nodiscard]] double Abstand() const { return abstand_; }

  private:
    [[nodiscard]] bool LiegtDort(Welt weg) const {
        const bool waagrecht = *richtung_ == Gehrichtung::Links || *richtung_ == Gehrichtung::Rechts;
        const bool zurueck = *richtung_ == Gehrichtung::Links || *richtung_ == Gehrichtung::Hinunter;
        const double laengs = (waagrecht ? weg.rechts : weg.hoch) * (zurueck ? -1 : 1);
        return laengs > 0.0 && std::abs(waagrecht ? weg.hoch : weg.rechts) <= laengs;
    }

    const Darstellung& gezeigt_;
    Welt von_;
    std::optional<Gehrichtung> richtung_;
    const PunktKnoten* bester_ = nullptr;
    double abstand_ = std::numeric_limits<double>::infinity();
};

/// The square round a place, or the half of it that lies in the direction [px].
Bildbereich Umkreis(Bildpunkt mitte, std::int64_t radius, std::optional<Gehrichtung> richtung) {
    constexpr std::int64_t kGerundet = 2;  // the place is rounded to whole pixels
    const auto weite = [&](Gehrichtung gegenueber) {
        return richtung == gegenueber ? kGerundet : radius + kGerundet;
    };
    return {Summe(mitte.x, -weite(Gehrichtung::Rechts)), Summe(mitte.y, -weite(Gehrichtung::Hinunter)),
            Summe(mitte.x, weite(Gehrichtung::Links)), Summe(mitte.y, weite(Gehrichtung::Hinauf))};
}

}  // namespace

const PunktKnoten* NaechsterPunkt(const Netz& netz, const Ansicht& ansicht, const Darstellung& gezeigt,
                                  Welt von, std::optional<Gehrichtung> richtung) {
    constexpr std::int64_t kErster = 64;          // [px]
    constexpr std::int64_t kLetzter = 1LL << 20;  // [px] farther away all points are asked
    const Bildpunkt mitte = ansicht.Bildort(von);
    std::vector<PPunktKnoten> nahe;
    for (std::int64_t radius = kErster; radius <= kLetzter; radius *= 4) {
        Nachbarsuche suche(gezeigt, von, richtung);
        nahe.clear();
        netz.SammlePunkte(ansicht, Umkreis(mitte, radius, richtung), nahe);
        for (const PunktKnoten* p : nahe)
            suche.SiehAn(*p);
        // What is nearer than the radius cannot lie outside.
        if (suche.Abstand() <= static_cast<double>(radius) * ansicht.Faktor) return suche.Bester();
    }
    Nachbarsuche suche(gezeigt, von, richtung);
    netz.FuerAllePunkte([&](const PunktKnoten& p) { suche.SiehAn(p); });
    return suche.Bester();
}

}  // namespace zrw
