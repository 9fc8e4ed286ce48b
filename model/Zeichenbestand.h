// Which lines, marks, symbols and colours a network contains, and how often.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <map>
#include <vector>

#include "model/Darstellung.h"
#include "model/Netz.h"

namespace zrw {

/// So many figures look alike; one of them as an example.
template <class Figur>
struct Zeichengruppe {
    std::size_t anzahl = 0;
    Figur muster;
};

class Zeichenbestand {
  public:
    /// Everything in the network, hidden or not.
    explicit Zeichenbestand(const Netz& netz);
    /// What of it is shown.
    Zeichenbestand(const Netz& netz, const Darstellung& darstellung);

    // Most frequent first; figures of a group look the same but for their place.
    [[nodiscard]] const std::vector<Zeichengruppe<Punkt>>& Punkte() const { return punkte_; }
    [[nodiscard]] const std::vector<Zeichengruppe<Kante>>& Kanten() const { return kanten_; }

    /// The groups that a condition holds for, as one: with the example of the most frequent one.
    template <class Figur, class Bedingung>
    [[nodiscard]] static Zeichengruppe<Figur> Gefasst(const std::vector<Zeichengruppe<Figur>>& gruppen,
                                                      Bedingung bedingung) {
        Zeichengruppe<Figur> alle;
        for (const auto& g : gruppen) {
            if (!bedingung(g.muster)) continue;
            if (alle.anzahl == 0) alle.muster = g.muster;
            alle.anzahl += g.anzahl;
        }
        return alle;
    }
    /// One group for each colour, most frequent first.
    template <class Figur>
    [[nodiscard]] static std::vector<Zeichengruppe<Figur>> NachFarbe(
        const std::vector<Zeichengruppe<Figur>>& gruppen) {
        std::map<std::uint32_t, std::size_t> stellen;
        std::vector<Zeichengruppe<Figur>> farben;
        for (const auto& g : gruppen) {
            const auto [stelle, neu] = stellen.try_emplace(g.muster.Farbe.wert, farben.size());
            if (neu) farben.push_back({0, g.muster});
            farben[stelle->second].anzahl += g.anzahl;
        }
        OrdneGruppen(farben);
        return farben;
    }

  private:
    template <class Punktwahl, class Kantenwahl>
    void ZaehleFiguren(const Netz& netz, Punktwahl punktwahl, Kantenwahl kantenwahl);
    template <class Figur>
    static void OrdneGruppen(std::vector<Zeichengruppe<Figur>>& gruppen) {
        std::stable_sort(gruppen.begin(), gruppen.end(),
                         [](const auto& a, const auto& b) { return a.anzahl > b.anzahl; });
    }

    std::vector<Zeichengruppe<Punkt>> punkte_;
    std::vector<Zeichengruppe<Kante>> kanten_;
};

}  // namespace zrw
