// A smooth stroke, as the routines that draw it want it. Positions across it and shares of a pixel are
// counted in 1/256.
#pragma once

#include <algorithm>
#include <cstdint>

namespace zrw {

inline constexpr std::int32_t kGanzesPixel = 256;

/// A stroke along its longer axis, from its smaller end.
struct Pinselstrich {
    std::int64_t anfang = 0;
    std::int64_t ende = 0;
    std::int64_t quer = 0;     ///< of the smaller end
    double steigung = 0.0;     ///< across, per pixel along
    std::int32_t dicke = 0;    ///< across [1/256 px]
    std::int32_t versatz = 0;  ///< of its upper edge from the middle of a pixel [1/256 px]
    bool umgekehrt = false;    ///< dashes count from the larger end
    std::int32_t gesetzt = 0;  ///< of a dash [1/256 px]; 0: solid
    std::int32_t periode = 1;  ///< from one dash to the next

    // Each place from the end of the stroke, so that it does not depend on where the picture begins.
    /// Across, per pixel along [2^-32 px].
    [[nodiscard]] std::int64_t Schritt() const {
        constexpr double kFein = 4294967296.0;
        return static_cast<std::int64_t>(steigung * kFein);
    }
    /// Its upper edge at a place along it [2^-32 px].
    [[nodiscard]] std::int64_t Oberkante(std::int64_t m) const {
        return quer * (std::int64_t{1} << 32) + std::int64_t{versatz} * (1 << 24) + (m - anfang) * Schritt();
    }
};

/// Goes along a stroke, pixel by pixel: a division for each of them would take longer than drawing it.
class Dashlauf {
  public:
    /// @param m where it begins, not before the stroke
    Dashlauf(const Pinselstrich& s, std::int64_t m) : gesetzt_(s.gesetzt), periode_(s.periode) {
        if (gesetzt_ == 0) return;
        ort_ = static_cast<std::int32_t>((s.umgekehrt ? s.ende - m : m - s.anfang) * kGanzesPixel % periode_);
        schritt_ = kGanzesPixel % periode_;
        if (s.umgekehrt) schritt_ = periode_ - schritt_;
    }
    /// Of the next pixel, from the beginning of a dash [1/256 px].
    [[nodiscard]] std::int32_t NimmOrt() {
        const std::int32_t ort = ort_;
        ort_ += schritt_;
        if (ort_ >= periode_) ort_ -= periode_;
        return ort;
    }
    /// How much of the next pixel lies in dashes [1/256].
    [[nodiscard]] std::int32_t NimmAnteil() {
        if (gesetzt_ == 0) return kGanzesPixel;
        const std::int32_t ort = NimmOrt();
        return std::clamp(gesetzt_ - ort, 0, kGanzesPixel) +
               std::clamp(ort + kGanzesPixel - periode_, 0, gesetzt_);
    }

  private:
    std::int32_t gesetzt_;
    std::int32_t periode_;
    std::int32_t ort_ = 0;
    std::int32_t schritt_ = 0;
};

}  // namespace zrw
