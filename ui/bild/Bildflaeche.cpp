#include "ui/bild/Bildflaeche.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "ui/Umwandlung.h"

namespace zrw {

Bildflaeche::Bildflaeche(int weite, int hoehe) {
    SetzeGroesse(weite, hoehe);
    SetzePlanschrift(planschrift_);
}

void Bildflaeche::SetzeGroesse(int weite, int hoehe, double dichte) {
    const auto pixel = [&](int laenge) {
        return std::max(static_cast<int>(std::ceil(std::max(laenge, 1) * dichte - 1e-6)), 1);
    };
    SchliesseAb();
    if (maler_.isActive()) maler_.end();
    bild_ = QImage(pixel(weite), pixel(hoehe), QImage::Format_RGB32);
    bild_.fill(Qt::white);
    BindeAnBild(maler_, bild_, dichte);
    if (std::exchange(dichte_, dichte) != dichte) SetzePlanschrift(planschrift_);
}

void Bildflaeche::VerschiebeBild(int dx, int dy) {
    SchliesseAb();
    Pixel().VerschiebeBild(dx, dy);
}

void Bildflaeche::SetzeGlatt(bool glatt) {
    if (glatt != Glatt()) SetzeKanten(glatt);
}

Bildpunkt Bildflaeche::Textgroesse(std::string_view text) const {
    const QFontMetrics masse(planschrift_);
    return {masse.horizontalAdvance(AusNetz(text)), masse.height()};
}

void Bildflaeche::SetzePlanschrift(const QFont& schrift) {
    planschrift_ = schrift;
    SetzeSchriften(Bildschrift(schrift, dichte_, false), Bildschrift(schrift, dichte_, true));
}

}  // namespace zrw
