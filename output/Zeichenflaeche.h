// ONTO WHAT is drawn: the narrow surface that screen, printer and recording tests share. Nothing in it that a
// printer could not do. Positions are device dots; whoever draws clips first (Abschneiden.h).
#pragma once

#include <bit>
#include <cassert>
#include <cstdint>
#include <span>
#include <string_view>

#include "model/Werte.h"
#include "output/Ebene.h"
#include "output/Rechteck.h"

namespace zrw {

enum class Strichart : std::uint8_t { Voll, Gestrichelt };

/// Lengths of dash and gap of dashed lines, in widths of their pen on the screen: paper has finer pens, but
/// the same dashes, as it has the same symbols.
inline constexpr double kStrichlaenge = 4.0;
inline constexpr double kStrichluecke = 2.0;

struct Stift {
    Farbe farbe = kSchwarz;
    std::int32_t breite = 1;  ///< [dots], at least 1
    Strichart art = Strichart::Voll;
    friend bool operator==(const Stift&, const Stift&) = default;
};

struct Pinsel {
    Farbe farbe = kWeiss;
    bool leer = false;  ///< shapes stay open, text has no background
    friend bool operator==(const Pinsel&, const Pinsel&) = default;
};

/// Position on a surface [dots], far within 32 bits.
struct Flaechenpunkt {
    std::int32_t x = 0;
    std::int32_t y = 0;
    friend bool operator==(Flaechenpunkt, Flaechenpunkt) = default;
};
/// The position in one register: read as a whole where it was just written in halves, it would wait until
/// both have left the store buffer.
[[nodiscard]] inline Flaechenpunkt Flaechenort(std::int32_t x, std::int32_t y) {
    return std::bit_cast<Flaechenpunkt>(std::uint64_t{static_cast<std::uint32_t>(x)} |
                                        std::uint64_t{static_cast<std::uint32_t>(y)} << 32U);
}

/// A stroke of many.
struct Linienstueck {
    Flaechenpunkt von;
    Flaechenpunkt nach;
    bool gestrichelt = false;
};

class Deckkarte;

class Zeichenflaeche {
  public:
    virtual ~Zeichenflaeche() = default;

    /// What can be seen of the surface.
    [[nodiscard]] virtual Rechteck Sichtbar() const = 0;
    /// The part of it that is being drawn: shapes that do not touch it may be left out.
    [[nodiscard]] virtual Rechteck Ausschnitt() const { return Sichtbar(); }
    /// What lines are cut to (Abschneiden.h) before they are drawn.
    [[nodiscard]] virtual Rechteck Grenzen() const { return Sichtbar(); }

    // Drawing from the front to the back: until the end, what is drawn goes behind what was drawn since the
    // beginning. Most surfaces cannot: they paint one thing over the other.
    virtual bool BeginneVonVorn() { return false; }
    virtual void BeendeVonVorn() {}
    [[nodiscard]] virtual bool VonVorn() const { return false; }
    /// What was drawn so far lies before much of what comes: maps what is hidden behind it.
    virtual void KartiereVerdecktes(Deckkarte& /*karte*/) {}

    // Pen and brush of what is drawn next. Surfaces apply a change when they draw, so setting back costs
    // nothing.
    void SetzeStift(const Stift& stift) {
        assert(stift.breite >= 1);
        stift_ = stift;
    }
    void SetzePinsel(const Pinsel& pinsel) { pinsel_ = pinsel; }
    [[nodiscard]] const Stift& AktuellerStift() const { return stift_; }
    [[nodiscard]] const Pinsel& AktuellerPinsel() const { return pinsel_; }

    /// Layer of what is drawn next. Most surfaces have none and never hear of it.
    void SetzeEbene(Ebene ebene) {
        if (ebene == ebene_) return;
        ebene_ = ebene;
        EbeneGewechselt(ebene);
    }
    [[nodiscard]] Ebene AktuelleEbene() const { return ebene_; }

    // What paper needs besides. Surfaces that cannot do it leave it at that.
    /// Nothing is drawn outside the rectangle, from now on up to the end; there is one at a time.
    virtual void BeginneFenster(const Rechteck& /*r*/) {}
    virtual void BeendeFenster() {}
    /// How wide a pen of width 1 is from now on [mm]; 0: as usual.
    virtual void SetzeStrichmass(double /*mm*/) {}
    /// How large texts are from now on: the em of their font [dots]; 0: as usual.
    virtual void SetzeSchriftmass(std::int32_t /*dots*/) {}

    /// Line with both ends drawn.
    virtual void Linie(Flaechenpunkt von, Flaechenpunkt nach) = 0;
    /// Strokes of one width and colour, whatever the pen is.
    virtual void Linien(std::span<const Linienstueck> stuecke, Farbe farbe, std::int32_t breite);
    // Outline with the pen, inside with the brush.
    virtual void ZeichneRechteck(const Rechteck& r) = 0;
    virtual void Ellipse(const Rechteck& umschrieben) = 0;
    virtual void Vieleck(std::span<const Flaechenpunkt> ecken) = 0;
    /// Fills without an outline.
    virtual void FuelleRechteck(const Rechteck& r, Farbe farbe) = 0;
    /// The same for a polygon through which what was drawn before can be seen. Surfaces that cannot do it
    /// leave it out: without it nothing is hidden. @param prozent how much it covers, 1 to 99
    virtual void FuelleDurchscheinend(std::span<const Flaechenpunkt> /*ecken*/, Farbe /*farbe*/,
                                      int /*prozent*/) {}

    /// Text in code page 1252 with its top-left corner at `ort`, without background.
    virtual void Text(Flaechenpunkt ort, std::string_view text, Farbe farbe) = 0;
    /// The same with a rim round its characters. @param rand how wide it is [dots], positive
    virtual void TextMitRand(Flaechenpunkt ort, std::string_view text, Farbe farbe, Farbe randfarbe,
                             std::int32_t rand);
    [[nodiscard]] virtual std::int32_t Textbreite(std::string_view text) const = 0;
    /// Height of a line of text.
    [[nodiscard]] virtual std::int32_t Texthoehe() const = 0;
    /// Nominal size of the font [pt], whole.
    [[nodiscard]] virtual std::int32_t Schriftgrad() const = 0;
    /// The same in dots, positive.
    [[nodiscard]] virtual std::int32_t Schrifthoehe() const = 0;

  protected:
    virtual void EbeneGewechselt(Ebene /*ebene*/) {}

  private:
    Stift stift_;
    Pinsel pinsel_;
    Ebene ebene_ = Ebene::Grund;
};

/// Sets pen and brush and puts back those of before at the end of its scope.
class Stiftwechsel {
  public:
    Stiftwechsel(Zeichenflaeche& flaeche, const Stift& stift, const Pinsel& pinsel)
        : flaeche_(flaeche), stift_(flaeche.AktuellerStift()), pinsel_(flaeche.AktuellerPinsel()) {
        flaeche.SetzeStift(stift);
        flaeche.SetzePinsel(pinsel);
    }
    ~Stiftwechsel() {
        flaeche_.SetzeStift(stift_);
        flaeche_.SetzePinsel(pinsel_);
    }
    Stiftwechsel(const Stiftwechsel&) = delete;
    Stiftwechsel& operator=(const Stiftwechsel&) = delete;

  private:
    Zeichenflaeche& flaeche_;
    Stift stift_;
    Pinsel pinsel_;
};

inline void Zeichenflaeche::Linien(std::span<const Linienstueck> stuecke, Farbe farbe, std::int32_t breite) {
    const Stiftwechsel wechsel(*this, {farbe, breite, Strichart::Voll}, {farbe, false});
    for (const Linienstueck& s : stuecke) {
        const Strichart art = s.gestrichelt ? Strichart::Gestrichelt : Strichart::Voll;
        if (stift_.art != art) SetzeStift({farbe, breite, art});
        Linie(s.von, s.nach);
    }
}

/// For surfaces that know nothing better: the text all round itself.
inline void Zeichenflaeche::TextMitRand(Flaechenpunkt ort, std::string_view text, Farbe farbe,
                                        Farbe randfarbe, std::int32_t rand) {
    const bool vonVorn = VonVorn();
    if (vonVorn) Text(ort, text, farbe);
    for (const std::int32_t dy : {-rand, 0, rand}) {
        for (const std::int32_t dx : {-rand, 0, rand}) {
            if (dx != 0 || dy != 0) Text({ort.x + dx, ort.y + dy}, text, randfarbe);
        }
    }
    if (!vonVorn) Text(ort, text, farbe);
}

}  // namespace zrw
