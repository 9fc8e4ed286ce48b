// The tool modes of the window, a row each: button, hint, icon and the class behind it.
#pragma once

#include <array>
#include <memory>
#include <string_view>

#include "ui/werkzeuge/BeobachtungBearbeiten.h"
#include "ui/werkzeuge/BildVerschieben.h"
#include "ui/werkzeuge/Klickwerkzeuge.h"
#include "ui/werkzeuge/Messen.h"
#include "ui/werkzeuge/NummerVerschieben.h"
#include "ui/werkzeuge/PunktVerschieben.h"
#include "ui/werkzeuge/Werkzeug.h"
#include "ui/werkzeuge/ZentrierenMaus.h"
#include "ui/werkzeuge/ZoomRechteck.h"

namespace zrw {

// Where a click begins what the tool does, so that the menu of a figure offers it: tools that would only do
// there what another entry does are left out.
inline constexpr unsigned kBeginntAmPunkt = 1;
inline constexpr unsigned kBeginntAnLinie = 2;

struct Werkzeugzeile {
    std::string_view komponente;  ///< object name of the button
    std::string_view hinweis;     ///< hint, UTF-8
    std::string_view bild;        ///< file name of the icon
    std::unique_ptr<Werkzeug> (*neu)(Werkzeugumgebung&);
    unsigned beginnt = 0;
};

template <class W>
std::unique_ptr<Werkzeug> NeuesWerkzeug(Werkzeugumgebung& umgebung) {
    return std::make_unique<W>(umgebung);
}

inline constexpr auto kWerkzeuge = std::to_array<Werkzeugzeile>({
    {"PanButton", "Bild verschieben", "verschieben", &NeuesWerkzeug<BildVerschieben>},
    {"ZoomInButton", "Zoomen mit der Maus", "zoom_rechteck", &NeuesWerkzeug<ZoomRechteck>},
    {"MovePktButton", "Punkt verschieben", "punkt_verschieben", &NeuesWerkzeug<PunktVerschieben>},
    {"MoveTextButton", "Punktnummer verschieben", "nummer_verschieben", &NeuesWerkzeug<NummerVerschieben>},
    {"EditBeobButton", "Beobachtung ändern", "beobachtung", &NeuesWerkzeug<BeobachtungBearbeiten>,
     kBeginntAnLinie},
    {"PunktartButton", "Punktart ändern", "punktart", &NeuesWerkzeug<PunktartWaehlen>},
    {"DelPunktButton", "Punkt löschen", "punkt_loeschen", &NeuesWerkzeug<PunktLoeschen>},
    {"DelBeobButton", "Beobachtung löschen", "beobachtung_loeschen", &NeuesWerkzeug<BeobachtungLoeschen>},
    {"ZentrierButton", "Punktzentrierung mit Maus", "zentrieren_maus", &NeuesWerkzeug<ZentrierenMaus>,
     kBeginntAmPunkt},
    {"SpeedButton13", "Punktzentrierung", "zentrieren", &NeuesWerkzeug<Punktzentrierung>},
    {"HidePktNrButton", "Punktnummer verstecken", "nummer_verstecken", &NeuesWerkzeug<NummerVerstecken>,
     kBeginntAmPunkt},
    {"HidePktButton", "Punkt verstecken", "punkt_verstecken", &NeuesWerkzeug<PunktVerstecken>},
    {"MessenButton", "Strecken messen", "messen", &NeuesWerkzeug<Messen>, kBeginntAmPunkt},
    {"DataButton", "Ausgleichungsergebnisse zeigen", "ergebnisse", &NeuesWerkzeug<ErgebnisZeigen>,
     kBeginntAmPunkt | kBeginntAnLinie},
});

}  // namespace zrw
