// The strokes of an observation line, worked out once for screen, printer and export: line style first, then
// the decorations of the other observations. Pure geometry; Figurenzeichner draws it.
//
// How a line reads, from its start S over its midpoint M to its end E:
//   AR1   one-sided direction: the half at the standpoint S solid, the half towards the target E dashed
//   AR2   two-sided direction: solid throughout
//   AST   distance or height difference without a direction: dashed throughout
//   Null  GPS vector alone: solid, running through its marker
//   ARI1, ARI2, ASTI  the same, indirect: the line makes a detour round M. ARI1 solid before M and dashed
//   after
//         it; ARI2 a solid detour with the obstructed sight dashed under it; ASTI dashed with a solid detour
// With a GPS marker, AR1, AR2 and AST leave it open: their strokes end at its corners.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

#include "model/Einstellungen.h"
#include "model/Figuren.h"
#include "model/Werte.h"

namespace zrw {

/// What is written in one go; the forms that a plotter file knows.
enum class Zugform : std::uint8_t {
    Strecke,                ///< one solid stroke
    GPSMarke,               ///< closed outline of four sides
    Siebenpunkt,            ///< solid polyline through seven points
    SiebenpunktHalb,        ///< the same, last three strokes dashed
    ZweiVoll,               ///< two separate solid strokes
    ZweiGestrichelt,        ///< two separate dashed strokes
    VollGestrichelt,        ///< a solid and a dashed stroke that meet
    VollLueckeGestrichelt,  ///< a solid and a dashed stroke on both sides of a marker
    Gestrichelt,            ///< one dashed stroke
    Querstrich,             ///< tick across the line
    Hoehenmarke,            ///< height-difference mark beside the line
    Anzahl,                 ///< no form, but how many there are
};

inline constexpr std::size_t kZugformen = static_cast<std::size_t>(Zugform::Anzahl);

/// One stroke of a form, between two of its points.
struct Strich {
    std::uint8_t von;
    std::uint8_t nach;
    bool gestrichelt;
};

/// The strokes of a form, in drawing order.
[[nodiscard]] std::span<const Strich> Striche(Zugform form);

struct Zug {
    Zugform form = Zugform::Strecke;
    std::span<const Bildpunkt> punkte;  ///< as many as the form has
};

/// Most points of a form.
inline constexpr std::size_t kMeistePunkte = 7;

/// Most strokes of a line: a detour of two forms, marker, tick and height marks.
inline constexpr std::size_t kMeisteStriche = 24;

struct Umwegzug;

class Kantenbild {
  public:
    /// @param anfang, ende ends of the line [px]; equal ends give nothing
    /// @param groessen sizes in dots of the device that is drawn on
    Kantenbild(KanteAttr kAttr, LinieAttr lAttr, const Bildpunkt& anfang, const Bildpunkt& ende,
               const Einstellungen& groessen);

    Kantenbild(const Kantenbild&) = delete;
    Kantenbild& operator=(const Kantenbild&) = delete;
    ~Kantenbild() = default;

    [[nodiscard]] std::span<const Zug> Zuege() const { return {zuege_.data(), anzahl_}; }

  private:
    struct Lage;
    void Linie(LinieAttr lAttr, bool mitMarke, const Lage& l);
    void Umweg(std::span<const Umwegzug> zuege, const Lage& l);
    void Hoehenmarke(Bildpunkt bezug, double ux, double uy, const Einstellungen& groessen);
    /// Adds a form. @return its points, to be set
    Bildpunkt* NimmZug(Zugform form);

    // Most: two for an indirect line, marker, tick and three height marks. In unions, so that only those in
    // use are set up: clearing all of them would take longer than the line.
    static constexpr std::size_t kMeisteZuege = 8;
    union {
        std::array<Zug, kMeisteZuege> zuege_;
    };
    union {
        std::array<Bildpunkt, kMeisteZuege * kMeistePunkte> punkte_;
    };
    std::size_t punktzahl_ = 0;
    std::size_t anzahl_ = 0;
};

/// How far what belongs to a line reaches beyond the rectangle round its ends [px].
[[nodiscard]] std::int64_t Zeichenreichweite(KanteAttr kAttr, LinieAttr lAttr, const Einstellungen& groessen);

/// A line without a direction observation and without GPS is drawn in white: there, but not seen.
[[nodiscard]] inline Farbe Kantenfarbe(KanteAttr kAttr, LinieAttr lAttr, Farbe farbe) {
    return lAttr == LinieAttr::Null && !kAttr.HatArt(KanteAttr::GPS) ? kWeiss : farbe;
}

}  // namespace zrw
