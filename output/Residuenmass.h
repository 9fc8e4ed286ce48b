// How large the adjustment's results are that a plan shows, and which magnification suits its picture.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "model/Bildvorlage.h"
#include "model/Gezeigt.h"
#include "model/Punktergebnisse.h"

namespace zrw {

/// Calls `tun` with each point that is shown and has a number (code page 1252), in the order of the network.
template <class Tun>
void FuerNummerierte(const Bildvorlage& v, Tun tun) {
    for (const PunktKnoten* p = v.netz.PunktKnoten; p != nullptr; p = p->Next) {
        if (!v.darstellung.Dargestellt(*p->Item) || !v.Gezeichnet(*p)) continue;
        const PktText* text = v.netz.FindPktText(p->PNr);
        if (text != nullptr && !text->Aus.Leer()) tun(*p, text->Aus.Text());
    }
}

/// Calls `tun` with each line that is shown and has an ellipse of one end against the other.
template <class Tun>
void FuerRelative(const Bildvorlage& v, const Punktergebnisse& ergebnisse, Tun tun) {
    if (!v.darstellung.ShowBeob || !ergebnisse.HatRelative()) return;
    Gezeigt gezeigt(v.netz, v.darstellung);
    for (const PunktKante* k = v.netz.KanteKnoten; k != nullptr; k = k->Next) {
        if (!v.Gezeichnet(*k) || !gezeigt(*k)) continue;
        const PktText* a = v.netz.FindPktText(k->ANr);
        const PktText* e = v.netz.FindPktText(k->ENr);
        if (a == nullptr || e == nullptr) continue;
        if (const Relativellipse* r = ergebnisse.RelativeZu(a->Aus.Text(), e->Aus.Text())) tun(*k, *r);
    }
}

/// From the adjusted coordinates to the second list [mm]; not a number where one of them is not known.
struct Lageabweichung {
    double dY;
    double dX;
};
[[nodiscard]] Lageabweichung AbweichungVon(const Punktergebnis& ergebnis, const Vergleichslage& vergleich);

/// The largest of what is switched on [mm]; 0 where there is nothing.
struct Residuenmass {
    double vektor = 0.0;   ///< residuals, deviations, half bars
    double ellipse = 0.0;  ///< semi-axes of standard ellipses
};
[[nodiscard]] Residuenmass MissResiduen(const Bildvorlage& v, Punktergebnisse& ergebnisse);

/// The largest round magnification (1, 2 or 5 times a power of ten) at which `mm` takes no more than a
/// fifteenth of a picture of this width [px]; none for nothing.
[[nodiscard]] std::optional<double> PassendeVergroesserung(double mm, double weite);

/// What the user should know of magnifications that are out of proportion to the picture, UTF-8; empty where
/// all is well. @param weite of the picture [px]
[[nodiscard]] std::string Groessenhinweis(const Residuenmass& mass, const Residuendarstellung& darstellung,
                                          double resMF, double weite);

}  // namespace zrw
