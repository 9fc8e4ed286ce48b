// Least-squares adjustment of the example network in space (Gauss-Markov model): directions, azimuths,
// distances, levelled and trigonometric height differences, satellite vectors. Points $FP are held in
// position and height, $FL in position, $FH in height. Blunders are found by data snooping (W. Baarda, A
// testing procedure for use in geodetic networks, 1968): the worst observation is left out until none stands
// out.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "beispiele/Netz.h"

namespace zrw::beispiel {

/// Boundary of the normalised residual: error probability of the first kind 0.1 %.
inline constexpr double kGrenze = 3.29;
/// Shift of the normalised residual that is found in 80 % of the cases at `kGrenze`.
inline constexpr double kNachweisbar = 4.13;
/// Below this redundancy an observation is not controlled by the others.
inline constexpr double kUnkontrolliert = 0.01;
inline constexpr double kMm = 1000.0;  ///< [mm/m]

/// Easting, northing and height, or the three earth-centred components.
using Ort = std::array<double, 3>;

/// What the adjustment says about one observed value, in its unit: [gon] or [m].
struct Pruefung {
    double wert = 0.0;   ///< observed; of a zenith distance the height difference that follows from it
    double v = 0.0;      ///< adjusted minus observed
    double sigma = 0.0;  ///< standard deviation of the observed value
    double q = 0.0;      ///< variance of the adjusted value
    bool grob = false;   ///< left out as a blunder; `v` then is a prediction

    /// Redundancy, 0 to 1; of a value left out what it had if it were taken in.
    [[nodiscard]] double Redundanz() const;
    [[nodiscard]] bool Kontrolliert() const { return Redundanz() >= kUnkontrolliert; }
    /// Standard deviation of `v`.
    [[nodiscard]] double SigmaV() const;
    /// Normalised residual; only of a controlled value.
    [[nodiscard]] double Testgroesse() const { return v / SigmaV(); }
    /// Blunder that explains the residual alone; only of a controlled value.
    [[nodiscard]] double GroberFehler() const { return grob ? -v : -v / Redundanz(); }
};

enum class Bestimmung : std::uint8_t {
    Fest,  ///< held: part of the datum
    Ausgeglichen,
    Offen,  ///< not or not absolutely observed: stays as it was
};

/// Result of one point.
struct Punktlage {
    Bestimmung lage = Bestimmung::Offen, hoehe = Bestimmung::Offen;
    double dy = 0.0, dx = 0.0, dh = 0.0;     ///< adjusted minus control file [m]
    double qyy = 0.0, qxx = 0.0, qxy = 0.0;  ///< variances of easting and northing, covariance [m²]
    double qhh = 0.0;                        ///< [m²]
};

/// The unknowns of the adjustment and how they vary together.
struct Unbekannte {
    static constexpr std::size_t kKeine = static_cast<std::size_t>(-1);
    std::vector<std::array<std::size_t, 3>> punkte;  ///< easting, northing, height of each point
    std::vector<std::size_t> saetze;                 ///< orientation of each set of directions
    std::vector<double> orientierungen;              ///< bearing of the zero of each set at first [gon]
    std::vector<double> korrekturen;                 ///< by unknown [m] or [gon]
    std::vector<std::vector<double>> teiler;         ///< by unknown; the product of two is their covariance
};

/// In the order of the network.
struct Ausgleichung {
    Unbekannte unbekannte;
    std::vector<Punktlage> punkte;
    std::vector<std::vector<Pruefung>> richtungen;          ///< [gon], by set and target
    std::vector<Pruefung> strecken, hoehen, zenite;         ///< [m]
    std::vector<std::vector<std::array<Pruefung, 3>>> gps;  ///< [m], earth-centred, by block and vector
};

/// Derivatives of the position in the system of the vectors by easting, northing and height: one row for each
/// component.
[[nodiscard]] std::array<Ort, 3> Erdachsen(const Netz& netz, const NetzPunkt& p);

/// What becomes of observations that stand out.
enum class Fehlersuche : std::uint8_t { Weglassen, Behalten };

/// @throws Fehler where the observations do not determine the network
[[nodiscard]] Ausgleichung GleicheAus(const Netz& netz, Fehlersuche suche = Fehlersuche::Weglassen);

}  // namespace zrw::beispiel
