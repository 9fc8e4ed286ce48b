// The drawable pieces of the plot: point symbol, observation line, point-number label and legend.
// Figures know the picture positions that the face of the plan (FigListe.h) and picture files keep; world
// coordinates live in their nodes (Knoten.h).
// How a figure looks is the business of the `Zeichner` it is shown with.
// Enumerations that have a table end with `Anzahl`: no value, but the number of rows there.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "model/Werte.h"

namespace zrw {

class ByteSchreiber;
class ByteLeser;
class Zeichner;
struct Einstellungen;

/// Point symbol: dot, circle, cross, square, rhombus, triangle; see Punktsymbole.h. Bytes of a picture file
/// may hold other values; they are kept and draw nothing.
enum class PunktTyp : std::uint8_t { Pkt, Krei, Kreu, Qua, Rau, Drei, Anzahl };
/// Point kind: fixed point (position and height), horizontal-control, height-control and new point.
enum class PunktArt : std::uint8_t { FP, FL, FH, NP, Anzahl };
/// Outline only, or filled.
enum class PunktAttr : std::uint8_t { Em, Fu };
/// Direction observations of a line: none, one-sided, two-sided, without direction; I = indirect. What is
/// known of them: Linienarten.h.
enum class LinieAttr : std::uint8_t { Null, AR1, AR2, AST, ARI1, ARI2, ASTI, Anzahl };

/// Set of the other observation kinds of a line: distance, GPS vector, height difference along and against
/// the line. One byte, bit n for the n-th member; bits without a member survive loading and saving.
class KanteAttr {
  public:
    enum Art : std::uint8_t { ST, GPS, DH1, DH2, Anzahl };

    constexpr KanteAttr() = default;
    /// Implicit, so that {ST} and ST alone read as sets.
    constexpr KanteAttr(Art art) : maske_(Bit(art)) {}  // NOLINT(google-explicit-constructor)
    [[nodiscard]] static constexpr KanteAttr AusMaske(std::uint8_t maske) {
        KanteAttr k;
        k.maske_ = maske;
        return k;
    }

    [[nodiscard]] constexpr bool HatArt(Art art) const { return (maske_ & Bit(art)) != 0; }
    constexpr void SetzeArt(Art art) { maske_ = static_cast<std::uint8_t>(maske_ | Bit(art)); }
    [[nodiscard]] constexpr std::uint8_t Maske() const { return maske_; }
    friend bool operator==(KanteAttr, KanteAttr) = default;

  private:
    [[nodiscard]] static constexpr std::uint8_t Bit(Art art) {
        return static_cast<std::uint8_t>(1U << static_cast<unsigned>(art));
    }
    std::uint8_t maske_ = 0;
};

/// Base of all figures: a position in the picture [px].
class Ort {
  public:
    std::int64_t XO = 0;
    std::int64_t YO = 0;

    [[nodiscard]] std::int64_t GetX() const { return XO; }
    [[nodiscard]] std::int64_t GetY() const { return YO; }
    [[nodiscard]] Bildpunkt Position() const { return {XO, YO}; }

    /// Appends the figure's block of the picture file.
    virtual void Store(ByteSchreiber& f) const;

  protected:
    Ort() = default;
    Ort(const Ort&) = default;
    Ort& operator=(const Ort&) = default;
    ~Ort() = default;  // figures live in the arena of their list and are never deleted through this base
    void LoadOrt(ByteLeser& f);
};

class Punkt final : public Ort {
  public:
    // Small members beside each other: large networks are full of figures.
    bool Visible = true;
    PunktAttr PktAttr = PunktAttr::Em;
    PunktTyp PktTyp = PunktTyp::Pkt;
    PunktArt PktArt = PunktArt::FP;
    zrw::Farbe Farbe;

    /// A visible point at (0, 0) of kind `FP`; whoever knows the kind sets it afterwards.
    [[nodiscard]] static Punkt Create(PunktTyp iPTyp, zrw::Farbe iCol, PunktAttr iPAttr);
    /// Reads the point's block. The kind is not stored: every loaded point is an `FP`.
    [[nodiscard]] static Punkt Load(ByteLeser& f);

    void Store(ByteSchreiber& f) const override;
    virtual void Done(Zeichner& z);  ///< wipes the point; the memory belongs to the list
    virtual void Show(Zeichner& z);
    /// Draws the point at a place of the picture, unless that lies beyond the drawable range.
    void ZeigeSymbolBei(Bildpunkt ort, Zeichner& z) const;
    virtual void Hide(Zeichner& z);
    [[nodiscard]] virtual bool IsVisible() const { return Visible; }
    /// Moves and leaves the point invisible: `Hide` clears `Visible` and `Show` heeds it. The list relies on
    /// that when it moves a point, and shows it again itself.
    virtual void MoveTo(std::int64_t newX, std::int64_t newY, Zeichner& z);
};

class Kante final : public Ort {
  public:
    bool Visible = true;
    KanteAttr KAttr;
    LinieAttr LAttr = LinieAttr::Null;
    zrw::Farbe Farbe;
    std::int64_t XBiE = 0;  ///< end point [px]
    std::int64_t YBiE = 0;

    [[nodiscard]] static Kante Create(zrw::Farbe iCol, KanteAttr iKAttr, LinieAttr iLAttr);
    [[nodiscard]] static Kante Load(ByteLeser& f);

    [[nodiscard]] Bildpunkt Ende() const { return {XBiE, YBiE}; }

    void Store(ByteSchreiber& f) const override;
    virtual void Show(Zeichner& z);
    virtual void Done(Zeichner& z);
    virtual void Hide(Zeichner& z);
    [[nodiscard]] virtual bool IsVisible() const { return Visible; }
    /// Moves the end point only and leaves the line visible and drawn, even if it was hidden before.
    virtual void MoveTo(std::int64_t newXE, std::int64_t newYE, Zeichner& z);
    /// Leaves the line visible and drawn, even if it was hidden before.
    void ChangeLAttr(LinieAttr newLAttr, Zeichner& z);
};

class PktText final : public Ort {
  public:
    bool Visible = true;
    zrw::Farbe Col;
    std::int64_t XBiO = 0;  ///< offset of the label from its point [px]
    std::int64_t YBiO = 0;
    PunktNummernTyp Aus;

    /// Label with the label offset of the settings; a text of more than 14 bytes is cut.
    [[nodiscard]] static PktText Create(std::string_view iAus, Farbe iCol, const Einstellungen& e);
    [[nodiscard]] static PktText Load(ByteLeser& f);

    /// Top-left corner of the text [px]. @param ort where its point lies
    [[nodiscard]] Bildpunkt Textort(Bildpunkt ort) const;
    [[nodiscard]] Bildpunkt Textort() const { return Textort(Position()); }

    void Store(ByteSchreiber& f) const override;
    virtual void Done(Zeichner& z);
    virtual void Show(Zeichner& z);
    virtual void Hide(Zeichner& z);
    [[nodiscard]] virtual bool IsVisible() const { return Visible; }
    /// Moves and leaves the label invisible, as `Punkt::MoveTo` does.
    virtual void MoveTo(std::int64_t newX, std::int64_t newY, Zeichner& z);
    /// How far showing moved the label [px]: zero with every drawer so far. The position stays. Dragging with
    /// the mouse changes the offset and does not go through here.
    virtual Bildpunkt Drag(Zeichner& z);
};

/// Framed text block in a corner of the plot. Its texts are code page 1252 bytes.
class Legende final : public Ort {
  public:
    zrw::Farbe Farbe;
    bool Visible = false;
    std::string Bez1;     ///< first title line
    std::string Bez2;     ///< second title line
    std::string Masstab;  ///< scale denominator as text
    std::string Zeit;     ///< date and time of the last drawing
    bool Move = false;    ///< being dragged

    /// A legend two pixels from the picture's top-left corner, not yet shown.
    [[nodiscard]] static Legende Create();

    /// Counts as visible afterwards even where it lies beyond the drawable range and is not drawn.
    virtual void Show(Zeichner& z);
    virtual void Hide(Zeichner& z);
    virtual void Drag(std::int32_t newX, std::int32_t newY, Zeichner& z);
};

}  // namespace zrw
