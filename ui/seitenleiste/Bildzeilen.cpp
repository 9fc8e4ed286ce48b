#include "ui/seitenleiste/Bildzeilen.h"

#include "model/Zeichenzeilen.h"
#include "ui/Umwandlung.h"
#include "ui/bild/Zeichenmuster.h"

namespace zrw {

std::vector<Bildzeile> BaueBildzeilen(const Netz& netz, const Programm& programm, QSize groesse,
                                      double dichte, bool glatt) {
    Zeichenmuster muster(programm, groesse, dichte, glatt);
    std::vector<Bildzeile> zeilen;
    for (const Zeichenzeile& z : BaueZeichenzeilen(Zeichenbestand(netz), programm.einstellungen)) {
        QImage bild;
        if (const auto* punkt = std::get_if<Punkt>(&z.muster)) bild = muster.MalePunkt(*punkt);
        if (const auto* kante = std::get_if<Kante>(&z.muster)) bild = muster.MaleKante(*kante);
        zeilen.push_back({AusUtf8(z.gruppe), bild, AusUtf8(z.text), z.anzahl});
    }
    return zeilen;
}

}  // namespace zrw
