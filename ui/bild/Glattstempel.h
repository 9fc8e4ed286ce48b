// Small shapes and characters as the painter draws them with smooth edges, once each: kept as masks of how
// much they cover of each pixel.
#pragma once

#include <QFont>
#include <array>
#include <deque>
#include <functional>
#include <optional>
#include <span>
#include <vector>

#include "output/Glattbild.h"
#include "ui/bild/Malerflaeche.h"

namespace zrw {

enum class Stempelform : std::uint8_t { Rechteck, Ellipse, Vieleck };

/// A shape at the place of its first corner.
struct Glattform {
    Stempelform form;
    bool leer;
    std::vector<Flaechenpunkt> ecken;  ///< from the first one
    Deckmaske rand;
    Deckmaske fuellung;
};

/// A character as it is set.
struct Glattglyphe {
    Deckmaske maske;
    int vorschub = 0;  ///< to the next character [px]
};

class Glattstempel {
  public:
    /// @param vergiss called before masks go that were given out
    explicit Glattstempel(std::function<void()> vergiss) : vergiss_(std::move(vergiss)) {}

    /// @param dichte width of a pen of width 1 [px]
    void SetzeDichte(double dichte);
    /// A font with smooth edges. @param zeichenweise its characters stand whole pixels apart, whatever is
    /// beside them
    void SetzeSchrift(const QFont& schrift, bool zeichenweise);
    /// Null: too large to be kept.
    [[nodiscard]] const Glattform* SucheForm(Stempelform form, std::span<const Flaechenpunkt> ecken,
                                             bool leer);
    /// Whether characters come from here.
    [[nodiscard]] bool SetztZeichen() const { return setztZeichen_; }
    [[nodiscard]] const Glattglyphe& Zeichen(char c) {
        const auto& glyphe = glyphen_[static_cast<unsigned char>(c)];
        return glyphe ? *glyphe : NeuesZeichen(c);
    }
    /// A character with what lies around it. @param rand how far [px]
    [[nodiscard]] const Deckmaske& Halo(char c, int rand);

  private:
    /// How much of each pixel a character covers, from the place where it is drawn.
    struct Zeichenbild {
        QImage bild;
        QPoint null;
        int vorschub;
    };
    [[nodiscard]] Glattform PraegeForm(Stempelform form, std::span<const Flaechenpunkt> ecken,
                                       bool leer) const;
    [[nodiscard]] Zeichenbild MaleZeichen(char c, int rand) const;
    [[nodiscard]] const Glattglyphe& NeuesZeichen(char c);

    std::function<void()> vergiss_;
    double dichte_ = 1.0;
    std::deque<Glattform> formen_;  ///< what is given out stays where it is
    QFont schrift_;
    bool setztZeichen_ = false;
    std::array<std::optional<Glattglyphe>, 256> glyphen_;  ///< made when first drawn
    std::array<std::optional<Deckmaske>, 256> halos_;      ///< of those, `halorand_` wide
    int halorand_ = 0;
};

}  // namespace zrw
