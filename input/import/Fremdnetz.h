// A foreign network as the import holds it between reading and writing, whatever format it comes from: in the
// axes and signs of this program. Eastings grow to the right and northings upwards, angles are clockwise from
// the north, lengths in m and angles in gon. What is not known is not a number.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

#include "model/Figuren.h"
#include "model/GrosserSpeicher.h"
#include "model/Saat.h"

namespace zrw::fremd {

inline constexpr double kTausend = 1000.0;  ///< [mm/m] and [mgon/gon]
inline constexpr double kUnbekannt = std::numeric_limits<double>::quiet_NaN();

/// Redundancy share below which the other observations do not control one.
inline constexpr double kUnkontrolliert = 0.01;

/// Position of a point in `Fremdnetz::punkte`.
using Stelle = std::uint32_t;

/// Easting, northing and height of something: coordinates, parts of a vector or their accuracies.
struct Dreier {
    double rechts = kUnbekannt, hoch = kUnbekannt, hoehe = kUnbekannt;
    [[nodiscard]] bool HatLage() const { return rechts == rechts && hoch == hoch; }
    [[nodiscard]] bool HatHoehe() const { return hoehe == hoehe; }
};

struct Fremdpunkt {
    std::string name;  ///< UTF-8, as the file has it
    Dreier naeherung;  ///< [m]
    bool lageFest = false, hoeheFest = false;
    bool gebunden = false;       ///< part of a free datum
    bool genannt = false;        ///< the file introduces it; others are only named by observations
    bool nurErgebnis = false;    ///< the results have it and the network has not: it is not drawn
    std::uint32_t herkunft = 0;  ///< where in the file, see `Xmldatei::Zeile`
};

enum class Messart : std::uint8_t {
    Richtung,
    Strecke,
    Schraegstrecke,
    Zenitdistanz,
    Azimut,
    Winkel,
    Hoehenunterschied,
    Vektor,
    Koordinate,
    Anzahl
};

struct Fremdmessung {
    Messart art = Messart::Richtung;
    Stelle von = 0, nach = 0;
    Stelle zweites = 0;         ///< of an angle: the right target
    std::uint32_t satz = 0;     ///< set of directions, counted over the file from 1; of a vector its block
    double wert = kUnbekannt;   ///< [m] or [gon]
    double sigma = kUnbekannt;  ///< standard deviation [mm] or [mgon]
    std::uint32_t vektor = 0;   ///< of a vector or observed coordinates: place in `Fremdnetz::vektoren`
    std::uint32_t herkunft = 0;
};

/// One value of an observation, as the adjustment judges it. [mm] or [mgon] but for the value itself.
struct Fremdwert {
    double beobachtet = kUnbekannt;    ///< [m] or [gon]
    double ausgeglichen = kUnbekannt;  ///< [m] or [gon]
    double verbesserung = kUnbekannt;  ///< adjusted minus observed
    double sigma = kUnbekannt;         ///< standard deviation of the adjusted value
    double redundanz = kUnbekannt;     ///< share, 0 to 1
    double testgroesse = kUnbekannt;   ///< normalised residual, without sign
    double groberFehler = kUnbekannt;  ///< what is to be added to the observation
};

struct Fremdergebnis {
    Messart art = Messart::Richtung;
    Stelle von = 0, nach = 0;
    std::uint32_t satz = 0;            ///< as in the network; 0 where it cannot be told
    Fremdwert wert{};                  ///< of everything but vectors and coordinates
    std::array<Fremdwert, 3> teile{};  ///< of those: easting, northing, height
};

/// What the adjustment says about a point. [m]
struct Fremdlage {
    Dreier fest, naeherung, ausgeglichen;
    /// Unknowns of easting, northing and height in the covariance matrix; -1: none
    std::array<std::int64_t, 3> unbekannte{-1, -1, -1};
    /// Their signs there: the axes of the file may lead to the west or the south.
    std::array<double, 3> vorzeichen{1.0, 1.0, 1.0};
};

/// Covariances of the unknowns, as far as the file has them: a band along the diagonal.
class Kovarianzen {
  public:
    Kovarianzen() = default;
    /// @param werte upper triangle by rows, of each row no more than `band + 1` values; their number is right
    Kovarianzen(std::size_t dim, std::size_t band, std::vector<double> werte);
    /// Number of values that such a matrix has; 0 where it is beyond all measure.
    [[nodiscard]] static std::size_t Anzahl(std::size_t dim, std::size_t band);
    /// Not a number outside the band.
    [[nodiscard]] double Wert(std::size_t i, std::size_t j) const;
    [[nodiscard]] std::size_t Dim() const { return anfang_.size(); }

  private:
    std::size_t band_ = 0;
    std::vector<std::size_t> anfang_;  ///< of each row
    std::vector<double> werte_;        ///< [mm²] where both unknowns are coordinates
};

/// Positions of points by their names. The beginnings of the names stand in the table: a search seldom looks
/// at a name itself.
class Namenstafel {
  public:
    /// The entry of a name, or the free one where it belongs. @param name of the point at a position
    template <class Name>
    Stelle& FindeFach(std::string_view gesucht, Name name) {
        if (2 * belegt_ >= faecher_.size()) VergroessereTafel(name);
        const Fach neu{Anfang(gesucht), static_cast<std::uint32_t>(gesucht.size()), kFrei};
        std::size_t i = Streuwert(gesucht) & (faecher_.size() - 1);
        while (faecher_[i].platz != kFrei && !faecher_[i].Ist(neu, gesucht, name))
            i = (i + 1) & (faecher_.size() - 1);
        if (faecher_[i].platz == kFrei) {
            faecher_[i] = neu;
            ++belegt_;
        }
        return faecher_[i].platz;
    }
    static constexpr Stelle kFrei = static_cast<Stelle>(-1);

  private:
    struct Fach {
        std::uint64_t anfang = 0;  ///< the first eight bytes of the name
        std::uint32_t laenge = 0;
        Stelle platz = kFrei;

        template <class Name>
        [[nodiscard]] bool Ist(const Fach& f, std::string_view gesucht, Name name) const {
            return anfang == f.anfang && laenge == f.laenge &&
                   (laenge <= sizeof anfang || name(platz) == gesucht);
        }
    };
    [[nodiscard]] static std::uint64_t Anfang(std::string_view text);
    [[nodiscard]] std::uint64_t Streuwert(std::string_view text) const;
    template <class Name>
    void VergroessereTafel(Name name) {
        constexpr std::size_t kErste = 1024;
        std::vector<Fach> alt(faecher_.empty() ? kErste : 4 * faecher_.size());
        alt.swap(faecher_);
        for (const Fach& f : alt) {
            if (f.platz == kFrei) continue;
            std::size_t i = Streuwert(name(f.platz)) & (faecher_.size() - 1);
            while (faecher_[i].platz != kFrei)
                i = (i + 1) & (faecher_.size() - 1);
            faecher_[i] = f;
        }
    }
    std::uint64_t saat_ = NeueSaat();
    std::vector<Fach> faecher_;
    std::size_t belegt_ = 0;
};

class Fremdnetz {
  public:
    std::string titel;                 ///< UTF-8, one line
    std::vector<std::string> angaben;  ///< further lines about the network, UTF-8
    std::vector<Fremdpunkt, Grossverteiler<Fremdpunkt>> punkte;
    std::vector<Fremdmessung, Grossverteiler<Fremdmessung>> messungen;  ///< in the order of the file
    std::vector<Dreier> vektoren;                                       ///< [m]

    bool mitErgebnissen = false;
    std::vector<Fremdlage> lagen;  ///< as `punkte`, where there are results
    std::vector<Fremdergebnis> ergebnisse;
    Kovarianzen kovarianzen;

    /// Makes room for what a file of so many bytes may hold.
    void ErwarteDatei(std::size_t bytes);
    /// The point of this name, made where there is none.
    [[nodiscard]] Stelle Punkt(std::string_view name);
    /// Where the point is drawn: as the network has it, else as the results do. [m]
    [[nodiscard]] Dreier Ort(Stelle p) const;
    /// Where it is after the adjustment, as far as that is known. [m]
    [[nodiscard]] Dreier Endort(Stelle p) const;
    [[nodiscard]] PunktArt Art(Stelle p) const;

  private:
    Namenstafel zuName_;
};

/// Angle in [0, 400) [gon].
[[nodiscard]] double Vollkreis(double gon);
/// Difference of two directions in [-200, 200) [gon].
[[nodiscard]] double UmNull(double gon);

}  // namespace zrw::fremd
