#include "output/Export.h"

#include <vector>

#include "model/Zahlentext.h"
#include "output/DXFUnit.h"
#include "output/Plotdatei.h"

namespace zrw {
namespace {

/// Scales that can be drawn with: positions keep their digits, and the factor is neither 0 nor infinite.
constexpr double kKleinster = 1e-6;
constexpr double kGroesster = 1e15;

/// The view and the drawing state of an export, for its duration. Picture positions are kept, not computed
/// anew: those from a picture file may be other than what its view gives.
class Exportansicht {
  public:
    Exportansicht(Liste& liste, Zeichenzustand& zustand, double faktor)
        : liste_(liste), zustand_(zustand), vorher_(zustand), faktor_(liste.Faktor) {
        std::size_t anzahl = 0;
        FuerJedePosition([&](std::int64_t& /*wert*/) { ++anzahl; });
        positionen_.reserve(anzahl);
        FuerJedePosition([this](std::int64_t& wert) { positionen_.push_back(wert); });
        // Nothing of this redraw stays on the screen, so it does not go there at all.
        zustand_.flaeche = nullptr;
        zustand_.modus = Zeichenmodus::Bildschirm;
        zustand_.ExportActive = true;
        zustand_.Exportnetz = &liste;
        liste_.Faktor = faktor;
        liste_.WeltinBild();
    }
    ~Exportansicht() {
        liste_.Faktor = faktor_;
        zustand_ = vorher_;
        auto naechste = positionen_.begin();
        FuerJedePosition([&](std::int64_t& wert) { wert = *naechste++; });
    }
    Exportansicht(const Exportansicht&) = delete;
    Exportansicht& operator=(const Exportansicht&) = delete;

  private:
    template <class Tun>
    void FuerJedePosition(Tun tun) {
        for (PPunktKnoten p = liste_.PunktKnoten; p != nullptr; p = p->Next) {
            tun(p->Item->XO);
            tun(p->Item->YO);
        }
        for (PPunktKante k = liste_.KanteKnoten; k != nullptr; k = k->Next) {
            tun(k->Item->XO);
            tun(k->Item->YO);
            tun(k->Item->XBiE);
            tun(k->Item->YBiE);
        }
        for (PPunktString t = liste_.PktTextKnoten; t != nullptr; t = t->Next) {
            tun(t->Item->XO);
            tun(t->Item->YO);
        }
    }

    Liste& liste_;
    Zeichenzustand& zustand_;
    Zeichenzustand vorher_;
    double faktor_;
    std::vector<std::int64_t> positionen_;
};

}  // namespace

std::optional<double> LiesMassstab(std::string_view text) {
    const auto wert = LiesReal(text);
    if (!wert || *wert < kKleinster || *wert > kGroesster) return std::nullopt;
    return wert;
}

void Exportiere(Liste& liste, Zeichner& zeichner, Zeichenzustand& zustand, Dateien& dateien,
                const Exportauftrag& auftrag) {
    const Exportansicht ansicht(liste, zustand, auftrag.faktor);
    std::optional<Plotdatei> plot;
    if (auftrag.plot) zustand.PlotFile = &plot.emplace(dateien, *auftrag.plot);
    DXFUnit zeichnung(dateien);
    if (auftrag.dxf) {
        zeichnung.DxfFileName = *auftrag.dxf;
        zeichnung.DxfOpen();
        zustand.Dxf = &zeichnung;
    }
    liste.ShowPicture(zeichner);
    // Both files are whole on the disk before the first takes its place.
    zeichnung.DxfClose();
    if (plot) {
        plot->Sichere();
        plot->Uebernimm();
    }
    zeichnung.Uebernimm();
}

}  // namespace zrw
