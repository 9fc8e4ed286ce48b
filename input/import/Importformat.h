// The formats that the import knows: one row each, told apart by the root elements of their files. A further
// one is a row here and a reader beside those that there are.
#pragma once

#include <array>
#include <string_view>

#include "input/import/Fremdnetz.h"
#include "input/import/Gama.h"
#include "input/import/Importbericht.h"
#include "input/import/Xmldatei.h"

namespace zrw::fremd {

struct Importformat {
    std::string_view name;
    std::string_view netzwurzel;      ///< root element of a network
    std::string_view ergebniswurzel;  ///< root element of its results
    std::string_view endungen;        ///< for file dialogs
    /// Fills an empty network. @throws Fehler where the file is damaged
    void (*liesNetz)(const Xmldatei&, Fremdnetz&, Importbericht&);
    /// Adds results to a network. @throws Fehler where the file is damaged; the network is of no use then
    void (*liesErgebnisse)(const Xmldatei&, Fremdnetz&, Importbericht&);
};

inline constexpr auto kImportformate = std::to_array<Importformat>({
    {"GNU Gama", "gama-local", "gama-local-adjustment", "*.gkf *.xml", &LiesGamaNetz, &LiesGamaErgebnisse},
});

}  // namespace zrw::fremd
