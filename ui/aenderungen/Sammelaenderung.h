// Several changes that are done, undone and drawn as one.
#pragma once

#include <memory>
#include <vector>

#include "ui/aenderungen/Aenderungen.h"

namespace zrw {

class Sammelaenderung final : public Netzaenderung {
  public:
    void NimmAenderung(std::unique_ptr<Netzaenderung> a) { teile_.push_back(std::move(a)); }
    [[nodiscard]] std::size_t Anzahl() const { return teile_.size(); }

    [[nodiscard]] Figurenmenge Betroffene() const override {
        Figurenmenge alle;
        for (const auto& a : teile_)
            alle.NimmFiguren(a->Betroffene());
        return alle;
    }
    void redo() override {
        for (const auto& a : teile_)
            a->redo();
    }
    void undo() override {
        for (auto a = teile_.rbegin(); a != teile_.rend(); ++a)
            (*a)->undo();
    }

  private:
    std::vector<std::unique_ptr<Netzaenderung>> teile_;
};

}  // namespace zrw
