#include "model/Zeichenbestand.h"

#include <unordered_map>

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

constexpr unsigned kByte = 8;

std::uint64_t Aussehen(Farbe farbe, std::uint8_t a, std::uint8_t b) {
    return (std::uint64_t{farbe.wert} << (2 * kByte)) | (std::uint64_t{a} << kByte) | b;
}

}  // namespace

Zeichenbestand::Zeichenbestand(const Netz& netz) {
    Zaehler<Punkt> punkte;
    netz.FuerAllePunkte([&](const PunktKnoten& p) {
        const Punkt& i = *p.Item;
        punkte.NimmFigur(
            Aussehen(i.Farbe, static_cast<std::uint8_t>(i.PktTyp), static_cast<std::uint8_t>(i.PktAttr)), i);
    });
    punkte_ = punkte.Gruppen();
    OrdneGruppen(punkte_);
    Zaehler<Kante> kanten;
    netz.FuerAlleKanten([&](const PunktKante& k) {
        const Kante& i = *k.Item;
        kanten.NimmFigur(Aussehen(i.Farbe, static_cast<std::uint8_t>(i.LAttr), i.KAttr.Maske()), i);
    });
    kanten_ = kanten.Gruppen();
    OrdneGruppen(kanten_);
}

}  // namespace zrw
