#include "ui/bild/Bildflaeche.h"

#include <algorithm>

namespace zrw {

Bildflaeche::Bildflaeche(int weite, int hoehe) {
    SetzeGroesse(weite, hoehe);
}

void Bildflaeche::SetzeGroesse(int weite, int hoehe) {
    if (maler_.isActive()) maler_.end();
    bild_ = QImage(std::max(weite, 1), std::max(hoehe, 1), QImage::Format_RGB32);
    bild_.fill(Qt::white);
    BindeAnBild(maler_, bild_);
}

}  // namespace zrw
