#include "output/Pixelmaske.h"

#include <algorithm>

namespace zrw {

std::vector<Flaechenpunkt> Umkreispixel(int radius) {
    std::vector<Flaechenpunkt> pixel;
    for (int y = -radius; y <= radius; ++y) {
        for (int x = -radius; x <= radius; ++x) {
            // Half a pixel more: corners belong to the smallest disc, too.
            if (x * x + y * y <= radius * radius + radius) pixel.push_back({x, y});
        }
    }
    return pixel;
}

Pixelmaske Verbreitert(const Pixelmaske& m, int rand) {
    Pixelmaske breit(m.links - rand, m.oben - rand, m.weite + 2 * rand, m.hoehe + 2 * rand);
    const std::vector<Flaechenpunkt> umkreis = Umkreispixel(rand);
    for (int y = 0; y < m.hoehe; ++y) {
        for (int x = 0; x < m.weite; ++x) {
            if (!m.Gesetzt(x, y)) continue;
            for (const Flaechenpunkt p : umkreis)
                breit.SetzePixel(x + rand + p.x, y + rand + p.y);
        }
    }
    return breit;
}

void Glyphensatz::NimmZeichen(char c, const Pixelmaske& maske, int vorschub) {
    const bool leer = maske.worte.empty() || maske.weite > kGroesste || maske.hoehe > kGroesste;
    const auto kurz = [](int v) { return static_cast<std::int16_t>(v); };
    glyphen_[static_cast<unsigned char>(c)] = {kurz(vorschub), kurz(maske.links), kurz(maske.weite), true,
                                               leer};
    if (leer) return;
    links_ = std::min(links_, maske.links);
    ueberstand_ = std::max(ueberstand_, maske.links + maske.weite - vorschub);
    if (hoehe_ == 0) {
        SetzeHoehe(maske.oben, maske.hoehe);
    } else {
        const int oben = std::min(oben_, maske.oben);
        SetzeHoehe(oben, std::max(oben_ + hoehe_, maske.oben + maske.hoehe) - oben);
    }
    const std::size_t erste = static_cast<unsigned char>(c) * jeGlyphe_;
    std::copy(maske.worte.begin(), maske.worte.end(), zeilen_.data() + erste + (maske.oben - oben_));
}

/// All characters into rows of another height, which holds the present one.
void Glyphensatz::SetzeHoehe(int oben, int hoehe) {
    if (oben == oben_ && hoehe == hoehe_) return;
    const std::size_t jeGlyphe = (static_cast<std::size_t>(hoehe) + 1) / 2 * 2;
    std::vector<std::uint64_t> neu(glyphen_.size() * jeGlyphe);
    for (std::size_t i = 0; i < glyphen_.size(); ++i)
        std::copy_n(zeilen_.data() + i * jeGlyphe_, hoehe_,
                    neu.data() + i * jeGlyphe + (hoehe_ > 0 ? oben_ - oben : 0));
    zeilen_ = std::move(neu);
    jeGlyphe_ = jeGlyphe;
    oben_ = oben;
    hoehe_ = hoehe;
}

}  // namespace zrw
