// The ten result tables that the adjustment of the example network leaves beside its control file. What the
// columns hold is told in beispiele/README.md.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "beispiele/Ausgleichung.h"
#include "beispiele/Netz.h"
#include "beispiele/Tabellenbogen.h"
#include "model/Dateien.h"

namespace zrw::beispiel {

/// Network and adjustment together, with what all tables need of them.
struct Auswertung {
    Auswertung(const Netz& n, const Ausgleichung& a);

    const Netz& netz;
    const Ausgleichung& ausgleichung;
    std::vector<NetzPunkt> punkte;    ///< adjusted, rounded to 0.1 mm
    std::vector<Stelle> reihenfolge;  ///< of the points in the control file

    [[nodiscard]] const std::string& Nummer(Stelle p) const { return netz.punkte[p].nummer; }
    [[nodiscard]] double Entfernung(Stelle a, Stelle b) const { return Abstand(punkte[a], punkte[b]); }
    /// Standard deviation of the position of a point [m].
    [[nodiscard]] double SigmaLage(Stelle p) const;
    /// Class of the accuracy of the position: 1 up to 20 mm, 2 up to 60 mm, 3 beyond.
    [[nodiscard]] int Lagegenauigkeit(Stelle p) const;
};

/// Smallest blunder that is found, with its effect, and the standard deviations: the fields GRZW, EGRZW, VMF
/// and NMF with an ending. @param stellen decimals of lengths in mm and angles in mgon @param wirkung by how
/// much an error of one unit of the observation moves a point [mm]
void Zuverlaessigkeit(Tabellenbogen& b, const Pruefung& p, int stellen, double wirkung,
                      const std::string& endung = {});
/// Sensitivity to a blunder that just stays below the boundary; null where nothing controls the value.
void Empfindlichkeit(Tabellenbogen& b, const Pruefung& p, const std::string& endung = {});

[[nodiscard]] Tabellenbogen Strecken(const Auswertung& a);
[[nodiscard]] Tabellenbogen Hoehenunterschiede(const Auswertung& a);
[[nodiscard]] Tabellenbogen Richtungen(const Auswertung& a);
[[nodiscard]] Tabellenbogen GpsVektoren(const Auswertung& a);
[[nodiscard]] Tabellenbogen Koordinaten(const Auswertung& a);
[[nodiscard]] Tabellenbogen GpsPunkte3D(const Auswertung& a);
[[nodiscard]] Tabellenbogen GpsPunkte2D(const Auswertung& a);
[[nodiscard]] Tabellenbogen Linienkontrollen(const Auswertung& a);
[[nodiscard]] Tabellenbogen Streckenkontrollen(const Auswertung& a);
[[nodiscard]] Tabellenbogen WeitereKoordinaten(const Auswertung& a);

/// @throws Fehler where the files cannot be written
void SchreibeTabellen(const Auswertung& a, Dateien& dateien, const std::filesystem::path& ordner);

}  // namespace zrw::beispiel
