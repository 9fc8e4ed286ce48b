#include "output/Strichstempel.h"

#include <algorithm>
#include <array>

#include "output/Breitpinsel.h"

namespace zrw {
namespace {

constexpr double kBreitesterStempel = 8.0;  ///< pen [px]

/// Where strokes are drawn so that their shares can be read.
class Probeblatt {
  public:
    void Zeichne(std::int32_t dx, std::int32_t dy, double dichte, double dash) {
        const std::int32_t rand = static_cast<std::int32_t>(dichte) + 3;
        teil_ = {kMitte + std::min(dx, 0) - rand, kMitte + std::min(dy, 0) - rand,
                 kMitte + std::max(dx, 0) + rand, kMitte + std::max(dy, 0) + rand};
        for (std::int32_t y = teil_.oben; y <= teil_.unten; ++y)
            std::fill_n(Pixel(teil_.links, y), teil_.rechts - teil_.links + 1 + Stempel::kReihe, 0U);
        ZieheLinie({kMitte, kMitte}, {kMitte + dx, kMitte + dy}, dichte, dash, 0,
                   Abdruck{pixel_.data(), kBlatt, teil_});
    }

    /// Appends the shares. @return the stamp, but for where they lie
    [[nodiscard]] Stempel Nimm(std::vector<std::uint32_t>& anteile) {
        const Rechteck r = Umfang();
        Stempel s;
        s.links = static_cast<std::int8_t>(r.links - kMitte);
        s.oben = static_cast<std::int8_t>(r.oben - kMitte);
        s.hoehe = static_cast<std::uint8_t>(r.unten - r.oben + 1);
        s.gruppen = static_cast<std::uint8_t>((r.rechts - r.links) / Stempel::kReihe + 1);
        for (std::int32_t x = r.links; x <= r.rechts; x += Stempel::kReihe) {
            for (std::int32_t y = r.oben; y <= r.unten; ++y)
                anteile.insert(anteile.end(), Pixel(x, y), Pixel(x, y) + Stempel::kReihe);
        }
        return s;
    }

  private:
    static constexpr std::int32_t kMitte =
        Strichstempel::kWeitester + static_cast<std::int32_t>(kBreitesterStempel) + 3;
    static constexpr std::int32_t kBlatt =
        2 * kMitte + 1 + Stempel::kReihe;  ///< the last group may reach further

    [[nodiscard]] std::uint32_t* Pixel(std::int32_t x, std::int32_t y) {
        return &pixel_[static_cast<std::size_t>(y) * kBlatt + static_cast<std::size_t>(x)];
    }
    [[nodiscard]] Rechteck Umfang() {
        Rechteck r{kMitte, kMitte, kMitte, kMitte};
        for (std::int32_t y = teil_.oben; y <= teil_.unten; ++y) {
            for (std::int32_t x = teil_.links; x <= teil_.rechts; ++x) {
                if (*Pixel(x, y) != 0) r = Vereint(r, {x, y, x, y});
            }
        }
        return r;
    }

    std::array<std::uint32_t, std::size_t{kBlatt} * kBlatt> pixel_{};
    Rechteck teil_;  ///< that the stroke lies in
};

}  // namespace

void Strichstempel::FertigeStempel(double dichte) {
    if (dichte == dichte_) return;
    dichte_ = dichte;
    stempel_.clear();
    anteile_.clear();
    if (!KannAchtPixel() || dichte > kBreitesterStempel) return;
    Probeblatt blatt;
    std::vector<std::size_t> stellen;
    for (const double dash : {0.0, dichte}) {
        for (std::int32_t dy = -kWeitester; dy <= kWeitester; ++dy) {
            for (std::int32_t dx = -kWeitester; dx <= kWeitester; ++dx) {
                stellen.push_back(anteile_.size());
                blatt.Zeichne(dx, dy, dichte, dash);
                stempel_.push_back(blatt.Nimm(anteile_));
            }
        }
    }
    for (std::size_t i = 0; i < stempel_.size(); ++i)
        stempel_[i].anteile = &anteile_[stellen[i]];
}

}  // namespace zrw
