#include "model/Zeichenbestand.h"

#include <unordered_map>

#include "model/Gezeigt.h"

namespace zrw {
namespace {

/// Counts by a number that says how a figure looks.
template <class Figur>
class Zaehler {
  public:
    void NimmFigur(std::uint64_t aussehen, const Figur& figur) {
        // Neighbours mostly look alike.
        if (letzte_ == nullptr || aussehen != letztes_) {
            letzte_ = &gruppen_[aussehen];
            letztes_ = aussehen;
            if (letzte_->anzahl == 0) letzte_->muster = figur;
        }
        ++letzte_->anzahl;
    }
    [[nodiscard]] std::vector<Zeichengruppe<Figur>> Gruppen() const {
        std::map<std::uint64_t, Zeichengruppe<Figur>> geordnet(gruppen_.begin(), gruppen_.end());
        std::vector<Zeichengruppe<Figur>> alle;
        alle.reserve(geordnet.size());
        for (auto& [aussehen, gruppe] : geordnet)
            alle.push_back(gruppe);
        return alle;
    }

  private:
    std::unordered_map<std::uint64_t, Zeichengruppe<Figur>> gruppen_;
    Zeichengruppe<Figur>* letzte_ = nullptr;
    std::uint64_t letztes_ = 0;
};

constexpr unsigned kBitsJeByte = 8;

std::uint64_t Aussehen(Farbe farbe, std::uint8_t a, std::uint8_t b) {
    return (std::uint64_t{farbe.wert} << (2 * kBitsJeByte)) | (std::uint64_t{a} << kBitsJeByte) | b;
}

}  // namespace

template <class Punktwahl, class Kantenwahl>
void Zeichenbestand::ZaehleFiguren(const Netz& netz, Punktwahl punktwahl, Kantenwahl kantenwahl) {
    Zaehler<Punkt> punkte;
    netz.FuerAllePunkte([&](const PunktKnoten& p) {
        if (!punktwahl(p)) return;
        const Punkt& i = *p.Item;
        punkte.NimmFigur(
            Aussehen(i.Farbe, static_cast<std::uint8_t>(i.PktTyp), static_cast<std::uint8_t>(i.PktAttr)), i);
    });
    punkte_ = punkte.Gruppen();
    OrdneGruppen(punkte_);
    Zaehler<Kante> kanten;
    netz.FuerAlleKanten([&](const PunktKante& k) {
        if (!kantenwahl(k)) return;
        const Kante& i = *k.Item;
        kanten.NimmFigur(Aussehen(i.Farbe, static_cast<std::uint8_t>(i.LAttr), i.KAttr.Maske()), i);
    });
    kanten_ = kanten.Gruppen();
    OrdneGruppen(kanten_);
}

Zeichenbestand::Zeichenbestand(const Netz& netz) {
    const auto alle = [](const auto& /*figur*/) { return true; };
    ZaehleFiguren(netz, alle, alle);
}

Zeichenbestand::Zeichenbestand(const Netz& netz, const Darstellung& darstellung) {
    Gezeigt gezeigt(netz, darstellung);
    ZaehleFiguren(
        netz, [&](const PunktKnoten& p) { return p.Item->Visible && darstellung.Dargestellt(*p.Item); },
        [&](const PunktKante& k) {
            return darstellung.ShowBeob && k.Item->Visible && darstellung.Gewaehlt(k) && gezeigt(k);
        });
}

}  // namespace zrw
