// Draws the figures and overlays of a network onto the current surface and, while an export runs, writes the
// same shapes into its files. One routine per shape family; wiping is the same routine in white. On the
// surface, shapes that cannot touch it are left out; the files get all of them.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <span>
#include <vector>

#include "model/Bildorte.h"
#include "model/Einstellungen.h"
#include "model/Netzangaben.h"
#include "model/Zeichenzeilen.h"
#include "model/Zeichner.h"
#include "model/ergebnisse/Figurenstile.h"
#include "output/Bildaufbau.h"
#include "output/DXFUnit.h"
#include "output/Kantenbild.h"
#include "output/Plotdatei.h"
#include "output/Uhr.h"
#include "output/Zeichenflaeche.h"
#include "output/Zeichenzustand.h"

namespace zrw {

struct Punktsymbol;

/// The largest symbols that the screen's surface draws itself [px].
inline constexpr std::int64_t kGroesstesSymbol = 30;

class Figurenzeichner final : public Zeichner {
  public:
    /// All must outlive the drawer. @param netz for the map sheets @param uhr for the legend
    Figurenzeichner(const Zeichenzustand& zustand, const Einstellungen& einstellungen,
                    const Netzangaben& netz, const Uhr& uhr)
        : zustand_(zustand), einstellungen_(einstellungen), netz_(netz), uhr_(uhr) {}

    void ClearPicture(std::int32_t weite, std::int32_t hoehe) override;
    void SetzeStil(const Figurstil* stil) override {
        stil_ = stil;
        if (stil != nullptr) stilzuwachs_ = std::max(stilzuwachs_, stil->breite - 1);
    }
    void ZeichnePunkt(const Punkt& punkt, Bildpunkt ort, Gang gang) override;
    void ZeichneKante(const Kante& kante, Bildpunkt anfang, Bildpunkt ende, Gang gang) override;
    void ZeichneText(const PktText& text, Bildpunkt ort, Gang gang) override;
    bool ZeichneNetz(const Bildvorlage& v) override;
    void ZeichneLegende(Legende& legende, Gang gang) override;
    void GitterShow(const Bildvorlage& v) override;
    void KMGitterShow(const Bildvorlage& v) override;
    void ZeichnePunktRes(const Bildvorlage& v) override;
    void DrawResMasstab(const Bildvorlage& v) override;
    void ZeichneErklaerung(const Bildvorlage& v) override;
    void ZeichneMassbalken(const Bildvorlage& v) override;

    /// Where the key was drawn last [dots].
    [[nodiscard]] const Rechteck& Erklaerungsrahmen() const { return erklaerungsrahmen_; }

    /// Where a label begins, whose point lies at `stelle` [dots].
    [[nodiscard]] Bildpunkt Textecke(const PktText& text, Bildpunkt stelle) const;
    /// How far a line reaches beyond its ends [px].
    [[nodiscard]] std::int64_t Kantenreichweite(const Kante& kante) const;
    /// Device dots per screen pixel [-].
    [[nodiscard]] double Dichte() const { return zustand_.Dichte(); }
    // Where a figure may show on the screen [px], with some room to spare.
    [[nodiscard]] Rechteck Punktumfang(Bildpunkt ort) const;
    [[nodiscard]] Rechteck Kantenumfang(Bildpunkt anfang, Bildpunkt ende) const;
    [[nodiscard]] Rechteck Textumfang(const PktText& text, Bildpunkt ort) const;
    /// Symbols are small enough for the surface to set their pixels itself.
    [[nodiscard]] bool NurPixel() const {
        return static_cast<double>(Symbolreichweite()) <=
               static_cast<double>(kGroesstesSymbol) * std::min(zustand_.Pixeldichte, 2.0);
    }

  private:
    /// Where a point symbol is drawn to: what is null is left out.
    struct Symbolziel {
        Zeichenflaeche* flaeche;
        Plotdatei* plot;
        DXFUnit* dxf;
    };
    void ZeichneSymbol(const Symbolziel& ziel, Bildpunkt m, const Punktsymbol& symbol) const;
    // Symbols, by shape family; corners in picture coordinates.
    void Scheibe(const Symbolziel& ziel, Bildpunkt m, std::int32_t radius, bool kreis) const;
    void Kreuz(const Symbolziel& ziel, const std::array<Bildpunkt, 4>& enden) const;
    void Vieleck(const Symbolziel& ziel, std::span<const Bildpunkt> ecken) const;

    void SetzeEbene(Ebene ebene) const;
    [[nodiscard]] bool BeruehrtFlaeche(Bildpunkt anfang, Bildpunkt ende) const;
    /// The same of any line.
    [[nodiscard]] std::int64_t Kantenreichweite() const;
    [[nodiscard]] std::int64_t Symbolreichweite() const;
    [[nodiscard]] std::int64_t Stiftrand() const;
    [[nodiscard]] std::int64_t Stilrand() const;
    [[nodiscard]] std::int64_t Halobreite() const;
    void ZeigeZuege(std::span<const Zug> zuege, Farbe farbe, std::int32_t breite, bool gestrichelt);
    void SchreibeZug(const Zug& zug, Bildpunkt anfang, Bildpunkt ende);
    void ZeigeText(const PktText& text, Bildpunkt stelle, Farbe farbe);
    [[nodiscard]] Plotdatei* Plot(Gang gang) const;
    [[nodiscard]] DXFUnit* Dxf(Gang gang) const;
    [[nodiscard]] bool ZeigtResiduen() const;
    [[nodiscard]] bool GitterSchlicht() const;
    [[nodiscard]] Dxfpunkt Weltort(Bildpunkt b) const;

    const Zeichenzustand& zustand_;
    const Einstellungen& einstellungen_;
    const Netzangaben& netz_;
    const Uhr& uhr_;
    Bildspeicher speicher_;
    std::int32_t stilzuwachs_ = 0;     ///< how much larger figures were drawn for it [px]
    const Figurstil* stil_ = nullptr;  ///< of the figures that come next; null: their own
    // The key: counted when the whole picture is drawn, and drawn again with its parts.
    std::vector<Zeichenzeile> erklaerung_;
    Rechteck erklaerungsrahmen_ = kKeinRechteck;
    bool ebeneSteht_ = false;                           ///< what is drawn stays on its layer
    std::array<Linienstueck, kMeisteStriche> stuecke_;  ///< of the line that is being drawn
};

}  // namespace zrw
