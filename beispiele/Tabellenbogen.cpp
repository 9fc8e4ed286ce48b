#include "beispiele/Tabellenbogen.h"

#include <algorithm>
#include <ctime>

#include "beispiele/Netz.h"
#include "input/tabellen/UnitZRWData.h"
#include "model/Cp1252.h"
#include "model/Fehler.h"

namespace zrw::beispiel {
namespace {

/// 11 June 2024, 10:00. A time of its own would make other files at every run.
constexpr std::time_t kErzeugt = 19885 * std::time_t{86400} + 36000;

}  // namespace

void Tabellenbogen::Zeile() {
    zeilen_.emplace_back(Beschreibung(tabelle_).felder.size());
    Ganz("ID", static_cast<std::int64_t>(zeilen_.size()));
}

void Tabellenbogen::Text(std::string_view feld, std::string_view cp1252) {
    Feld(feld) = std::string_view(texte_.emplace_back(Cp1252NachUtf8(cp1252)));
}

void Tabellenbogen::Ganz(std::string_view feld, std::int64_t wert) {
    Feld(feld) = wert;
}

void Tabellenbogen::Real(std::string_view feld, double wert, int stellen) {
    Feld(feld) = RundeZahl(wert, stellen);
}

void Tabellenbogen::Flag(std::string_view feld, bool wert) {
    Feld(feld) = wert;
}

void Tabellenbogen::SchreibeDateien(Dateien& dateien, const std::filesystem::path& ordner) const {
    ErzeugeTabelle(dateien, ordner, tabelle_, zeilen_, kErzeugt);
}

paradox::Wert& Tabellenbogen::Feld(std::string_view name) {
    const auto felder = Beschreibung(tabelle_).felder;
    const auto f =
        std::find_if(felder.begin(), felder.end(), [&](const Tabellenfeld& t) { return t.name == name; });
    if (f == felder.end())
        throw Fehler("Die Tabelle hat kein Feld " + std::string(name) + ".",
                     std::string(Beschreibung(tabelle_).name));
    return zeilen_.back()[static_cast<std::size_t>(f - felder.begin())];
}

}  // namespace zrw::beispiel
