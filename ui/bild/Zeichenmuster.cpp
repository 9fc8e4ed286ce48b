#include "ui/bild/Zeichenmuster.h"

#include <cmath>

namespace zrw {

Zeichenmuster::Zeichenmuster(const Programm& programm, QSize groesse, double dichte, bool glatt)
    : groesse_(groesse),
      dichte_(dichte),
      groessen_(programm.einstellungen),
      zeichner_(zustand_, groessen_, programm.netz, programm.uhr) {
    flaeche_.SetzeGroesse(groesse.width(), groesse.height(), dichte);
    flaeche_.SetzeGlatt(glatt);
    zustand_.flaeche = &flaeche_;
    zustand_.Pixeldichte = dichte;
    if (dichte != 1.0) groessen_.ScaleSizes(dichte);
}

Bildpunkt Zeichenmuster::InPunkten(double x, double y) const {
    return {std::llround(x * dichte_), std::llround(y * dichte_)};
}

template <class Malen>
QImage Zeichenmuster::MaleFigur(Malen malen) {
    const Bildpunkt ecke = InPunkten(groesse_.width(), groesse_.height());
    zeichner_.ClearPicture(static_cast<std::int32_t>(ecke.x), static_cast<std::int32_t>(ecke.y));
    malen();
    QImage bild = flaeche_.Bild().copy();
    bild.setDevicePixelRatio(dichte_);
    return bild;
}

QImage Zeichenmuster::MalePunkt(const Punkt& punkt) {
    return MaleFigur([&] {
        zeichner_.ZeichnePunkt(punkt, InPunkten(groesse_.width() / 2.0, groesse_.height() / 2.0),
                               Gang::Zeigen);
    });
}

QImage Zeichenmuster::MaleKante(const Kante& kante) {
    constexpr double kMusterrand = 5;  // [px]
    const double mitte = groesse_.height() / 2.0;
    return MaleFigur([&] {
        zeichner_.ZeichneKante(kante, InPunkten(kMusterrand, mitte),
                               InPunkten(groesse_.width() - kMusterrand, mitte), Gang::Zeigen);
    });
}

}  // namespace zrw
