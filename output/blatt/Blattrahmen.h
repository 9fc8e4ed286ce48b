// The frame of a sheet: neat line, coordinates on the margin and crosses within it, neighbouring sheets, cut
// marks, title block, north arrow, scale bar and an overview of all sheets. All of it in black, nothing
// outside the printable area. The plan is not drawn here.
#pragma once

#include <cstddef>
#include <vector>

#include "output/Blattschnitt.h"
#include "output/blatt/Blattlayout.h"
#include "output/blatt/Schriftfeld.h"

namespace zrw {

/// A sheet and where it lies.
struct Blattstand {
    Schriftfeldtexte texte;
    double faktor = 1.0;   ///< metres on earth per dot
    Welt ecke;             ///< world position of the plan area's top-left corner
    bool inMetern = true;  ///< coordinates are lengths: they stand on the margin, and there is a scale bar
    std::int32_t ueberlappung = 0;  ///< of neighbouring sheets [dots]
    const std::vector<Blatt>& blaetter;
    std::size_t nummer = 0;              ///< of this one among them
    std::vector<Rechteck> kaesten = {};  ///< of the plan that stay free of crosses [dots]
};

class Blattrahmen {
  public:
    /// @param seite printable area of the surface
    Blattrahmen(Zeichenflaeche& flaeche, const Druckseite& seite)
        : flaeche_(flaeche), mass_(seite.aufloesung), layout_(Blattlayout::FuerSeite(seite)) {}

    void ZeichneRahmen(const Blattstand& stand) const;

  private:
    enum class Bezug : std::uint8_t { Links, Mitte, Rechts };
    void Schreibe(Flaechenpunkt ort, Bezug bezug, std::string_view text) const;
    void ZeichneLinien() const;
    void ZeichneSchnittmarken(const Blattstand& stand) const;
    void ZeichneKoordinaten(const Blattstand& stand) const;
    void BeziffereRechts(const Blattstand& stand, double schritt) const;
    void BeziffereHoch(const Blattstand& stand, double schritt) const;
    void ZeichneKreuze(const Blattstand& stand, double schritt) const;
    void NenneNachbarn(const Blattstand& stand) const;
    void ZeichneNordpfeil() const;
    void ZeichneMassstab(const Blattstand& stand) const;
    void ZeichneUebersicht(const Blattstand& stand) const;
    [[nodiscard]] std::int32_t Dots(int zehntel) const { return mass_.Dots(zehntel); }

    Zeichenflaeche& flaeche_;
    Papiermass mass_;
    Blattlayout layout_;
};

}  // namespace zrw
