// Arbitrary bytes as a control file with two include files: read, fitted, shown, edited and saved. `Fehler`
// is the only way to refuse them.
#include "input/Steuerdatei.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "fuzz/Proben.h"
#include "fuzz/Speicher.h"
#include "model/Fehler.h"
#include "model/Zeichner.h"

namespace {

class StummerZeichner final : public zrw::Zeichner {
  public:
    void ClearPicture(std::int32_t /*weite*/, std::int32_t /*hoehe*/) override {}
    void ZeichnePunkt(const zrw::Punkt& /*punkt*/, zrw::Bildpunkt /*ort*/, zrw::Gang /*gang*/) override {}
    void ZeichneKante(const zrw::Kante& /*kante*/, zrw::Bildpunkt /*a*/, zrw::Bildpunkt /*e*/,
                      zrw::Gang /*gang*/) override {}
    void ZeichneText(const zrw::PktText& /*text*/, zrw::Bildpunkt /*ort*/, zrw::Gang /*gang*/) override {}
};

void PruefeEingabe(std::string_view eingabe) {
    const zrw::fuzz::Speicher dateien(eingabe);
    const zrw::Einstellungen einstellungen;
    std::size_t meldungen = 0;
    zrw::Lesung lesung = zrw::LeseSteuerdatei(zrw::fuzz::kSteuerdatei, dateien, einstellungen,
                                              [&](const zrw::Meldung& m) { meldungen += m.text.size(); });
    zrw::fuzz::VerlangeBedingung(lesung.liste != nullptr, "eine Lesung hat eine Liste");
    zrw::fuzz::VerlangeBedingung((lesung.ende == zrw::Leseende::Vollstaendig) == lesung.endetext.empty(),
                                 "nur ein anderes Ende hat einen Text");
    zrw::Liste& liste = *lesung.liste;
    zrw::fuzz::PruefeListe(liste);
    zrw::fuzz::PruefeNetz(liste);
    liste.Weite = 1200;
    liste.Hoehe = 800;
    liste.FindWorldMinMax();
    liste.PasseEin();
    zrw::fuzz::PruefeSpeichern(liste, lesung.netz);
    StummerZeichner z;
    zrw::fuzz::BedieneListe(liste, z);
    zrw::fuzz::PruefeNetz(liste);
    zrw::fuzz::PruefeSpeichern(liste, lesung.netz);
    zrw::fuzz::BearbeiteListe(liste, z);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* daten, std::size_t groesse) {
    const std::string eingabe(daten, daten + groesse);
    try {
        PruefeEingabe(eingabe);
    } catch (const zrw::Fehler&) {  // refused with a message
    }
    return 0;
}
