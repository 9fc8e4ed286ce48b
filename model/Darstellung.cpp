#include "model/Darstellung.h"

#include "model/Punktarten.h"

namespace zrw {

bool Darstellung::Dargestellt(const Punkt& p) const {
    return this->*ZurArt(p.PktArt).schalter;
}

}  // namespace zrw
