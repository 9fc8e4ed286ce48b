#include "output/Export.h"

#include "model/Zahlentext.h"
#include "output/DXFUnit.h"
#include "output/Figurenzeichner.h"
#include "output/Plotdatei.h"

namespace zrw {
namespace {

/// Scales that can be drawn with: positions keep their digits, and the factor is neither 0 nor infinite.
constexpr double kKleinster = 1e-6;
constexpr double kGroesster = 1e15;

}  // namespace

std::optional<double> LiesMassstab(std::string_view text) {
    const auto wert = LiesReal(text);
    if (!wert || *wert < kKleinster || *wert > kGroesster) return std::nullopt;
    return wert;
}

void ExportierePlan(const Bildvorlage& v, const Zeichenmittel& mittel, Dateien& dateien,
                    const Exportauftrag& auftrag) {
    const Ansicht ansicht = v.ansicht.FuerGeraet(auftrag.faktor);
    Zeichenzustand zustand = mittel.zustand;
    // Nothing of this drawing stays on the screen, so it does not go there at all.
    zustand.flaeche = nullptr;
    zustand.modus = Zeichenmodus::Bildschirm;
    zustand.ExportActive = true;
    zustand.Exportansicht = &ansicht;
    std::optional<Plotdatei> plot;
    if (auftrag.plot) zustand.PlotFile = &plot.emplace(dateien, *auftrag.plot);
    DXFUnit zeichnung(dateien);
    if (auftrag.dxf) {
        zeichnung.DxfFileName = *auftrag.dxf;
        zeichnung.DxfOpen();
        zustand.Dxf = &zeichnung;
    }
    Figurenzeichner zeichner(zustand, mittel.einstellungen, mittel.netz, mittel.uhr);
    // Files of the plan hold all of it, in its own colours.
    Darstellung ohneStile = v.darstellung;
    ohneStile.Stile.reset();
    ZeichneBild({v.netz, ansicht, ohneStile, v.legende, v.ohne}, zeichner);
    // Both files are whole on the disk before the first takes its place.
    zeichnung.DxfClose();
    if (plot) {
        plot->SichereDatei();
        plot->ErsetzeZiel();
    }
    zeichnung.ErsetzeZiel();
}

}  // namespace zrw
