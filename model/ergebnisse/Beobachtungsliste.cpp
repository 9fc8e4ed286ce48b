#include "model/ergebnisse/Beobachtungsliste.h"

namespace zrw {

double WaehleWert(Auswahlregel regel, double a, double b) {
    if (std::isnan(a)) return b;
    if (std::isnan(b)) return a;
    if (regel == Auswahlregel::Kleinster) return b < a ? b : a;
    return std::fabs(b) > std::fabs(a) ? b : a;
}

}  // namespace zrw
