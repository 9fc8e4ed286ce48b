// Point numbers at the places that a search has found for them, all in one step; and what is remembered of
// it, so that the next search knows which numbers the user has dragged since.
#pragma once

#include <cstdint>
#include <unordered_map>
#include <vector>

#include "output/beschriftung/Planbeschriftung.h"
#include "ui/aenderungen/Aenderungen.h"

namespace zrw {

/// Offsets that numbers have without anybody having dragged them [px].
class Nummernstand {
  public:
    /// A network was opened. @param anfang what its numbers begin with
    void BeginneNetz(Bildpunkt anfang) { *this = Nummernstand{anfang}; }
    Nummernstand() = default;
    /// @param neue what numbers get now
    [[nodiscard]] bool IstVerschoben(const PunktString& t, Bildpunkt neue) const {
        const Bildpunkt jetzt{t.Item->XBiO, t.Item->YBiO};
        if (jetzt == anfang_ || jetzt == neue) return false;
        const auto i = geordnet_.find(t.Folge);
        return i == geordnet_.end() || i->second != jetzt;
    }
    void MerkeOrdnung(const PunktString& t, Bildpunkt abstand) { geordnet_[t.Folge] = abstand; }

  private:
    explicit Nummernstand(Bildpunkt anfang) : anfang_(anfang) {}
    Bildpunkt anfang_;
    std::unordered_map<std::uint32_t, Bildpunkt> geordnet_;  ///< by the last search
};

class NummernGeordnet final : public Netzaenderung {
  public:
    /// @param stand outlives it
    NummernGeordnet(Liste& liste, Nummernstand& stand, std::vector<Planbeschriftung::Nummernlage> lagen)
        : liste_(liste), stand_(stand), anderer_(stand), lagen_(std::move(lagen)) {
        for (const auto& l : lagen_)
            anderer_.MerkeOrdnung(*l.text, l.abstand);
    }
    [[nodiscard]] Figurenmenge Betroffene() const override {
        Figurenmenge m;
        for (const auto& l : lagen_)
            m.texte.push_back(l.text);
        return m;
    }
    void redo() override {
        for (auto& l : lagen_) {
            const Bildpunkt vorher{l.text->Item->XBiO, l.text->Item->YBiO};
            liste_.VersetzeText(*l.text, std::exchange(l.abstand, vorher));
        }
        std::swap(stand_, anderer_);
    }
    void undo() override { redo(); }

  private:
    Liste& liste_;
    Nummernstand& stand_;
    Nummernstand anderer_;  ///< before or after, whichever is not now
    std::vector<Planbeschriftung::Nummernlage> lagen_;
};

}  // namespace zrw
