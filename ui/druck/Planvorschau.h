// The sheets in the preview: where they lie, which are left out, and at what scale. What is chosen there is
// what is printed from it.
#pragma once

#include <filesystem>
#include <set>
#include <utility>
#include <vector>

#include "ui/druck/Drucker.h"
#include "ui/druck/Plandruck.h"

namespace zrw {

class Planvorschau final : public Vorschauplan {
  public:
    /// All outlive it.
    Planvorschau(Plandruck& druck, Liste& liste, double massstab, std::filesystem::path datei);

    [[nodiscard]] Druckwerk Werk() override;
    [[nodiscard]] QImage Uebersicht() override;
    [[nodiscard]] std::vector<Vorschaublatt> Blaetter() override;
    void SchalteBlatt(QPoint ort) override;
    void VerschiebeBlaetter(QPoint weg) override;
    [[nodiscard]] QString Massstab() const override;
    void SetzeMassstab(const QString& text) override;
    void NimmPapier() override;

    /// The user has changed the sheets.
    [[nodiscard]] bool Geaendert() const { return geaendert_; }
    [[nodiscard]] std::vector<Blatt> Gedruckte() const;

  private:
    friend class Plandruck;
    /// The part of the plot in the overview, and the size of a sheet there [m].
    struct Lage {
        Welt lo;
        Welt ru;
        double jePixel;
        double breite;
        double hoehe;
    };
    [[nodiscard]] Lage BlattLage() const;
    [[nodiscard]] bool Weggelassen(const Blatt& b) const {
        return weggelassen_.count({b.zeile, b.spalte}) != 0;
    }

    Plandruck& druck_;
    Liste& liste_;
    double massstab_;
    std::filesystem::path datei_;
    std::vector<Blatt> blaetter_;
    std::set<std::pair<int, int>> weggelassen_;  ///< rows and columns
    bool geaendert_ = false;
};

}  // namespace zrw
