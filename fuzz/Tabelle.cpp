// Arbitrary bytes as a table: all rows read, and written again where the writer can. `Fehler` is the only way
// to refuse them.
#include <cstddef>
#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

#include "fuzz/Proben.h"
#include "input/tabellen/Paradoxleser.h"
#include "input/tabellen/Paradoxschreiber.h"
#include "model/Fehler.h"

namespace {

using namespace zrw::paradox;

struct Inhalt {
    std::vector<Feld> felder;
    std::vector<std::vector<Wert>> zeilen;
    std::deque<std::string> texte;  ///< the rows point here
};

/// What may stand in a field of a type, whatever the bytes.
bool PasstZumFeld(const Feld& feld, const Wert& wert) {
    const bool real =
        feld.typ == Feldtyp::Zahl || feld.typ == Feldtyp::Waehrung || feld.typ == Feldtyp::Zeitpunkt;
    if (const auto* text = std::get_if<std::string_view>(&wert)) {
        // One byte each of the table; Codeseite knows characters of up to three bytes.
        return feld.typ == Feldtyp::Alpha && !text->empty() &&
               text->size() <= feld.groesse * std::size_t{3} && text->find('\0') == std::string_view::npos;
    }
    if (std::holds_alternative<double>(wert)) return real;
    if (std::holds_alternative<bool>(wert)) return feld.typ == Feldtyp::Logisch;
    return std::holds_alternative<std::monostate>(wert) || (!real && feld.typ != Feldtyp::Alpha);
}

Inhalt LiesInhalt(std::string_view bytes) {
    const Leser leser(bytes, "A.DB");
    Inhalt inhalt{leser.Felder(), {}, {}};
    zrw::fuzz::VerlangeBedingung(!inhalt.felder.empty(), "eine Tabelle hat Felder");
    zrw::fuzz::VerlangeBedingung(leser.Zeilen() <= bytes.size(), "nicht mehr Reihen, als die Datei fasst");
    leser.FuerJedeZeile([&](std::span<const Wert> werte) {
        zrw::fuzz::VerlangeBedingung(werte.size() == inhalt.felder.size(), "ein Wert je Feld");
        std::vector<Wert>& zeile = inhalt.zeilen.emplace_back(werte.begin(), werte.end());
        for (std::size_t i = 0; i < zeile.size(); ++i) {
            zrw::fuzz::VerlangeBedingung(PasstZumFeld(inhalt.felder[i], zeile[i]),
                                         "der Wert passt zur Art des Feldes");
            if (auto* text = std::get_if<std::string_view>(&zeile[i]))
                *text = inhalt.texte.emplace_back(*text);
        }
    });
    zrw::fuzz::VerlangeBedingung(inhalt.zeilen.size() == leser.Zeilen(), "so viele Reihen wie angekündigt");
    return inhalt;
}

/// Once written, reading and writing change nothing.
void PruefeSchreiben(const Inhalt& inhalt, Stufe stufe) {
    const Dateipaar erstes = SchreibeTabelle("A", inhalt.felder, inhalt.zeilen, 0, stufe);
    const Inhalt gelesen = LiesInhalt(erstes.db);
    zrw::fuzz::VerlangeBedingung(gelesen.zeilen.size() == inhalt.zeilen.size(), "keine Reihe geht verloren");
    const Dateipaar zweites = SchreibeTabelle("A", gelesen.felder, gelesen.zeilen, 0, stufe);
    zrw::fuzz::VerlangeBedingung(erstes.db == zweites.db && erstes.px == zweites.px,
                                 "dieselben Bytes beim zweiten Mal");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* daten, std::size_t groesse) {
    const std::string eingabe(daten, daten + groesse);
    try {
        const Inhalt inhalt = LiesInhalt(eingabe);
        PruefeSchreiben(inhalt, groesse % 2 == 0 ? Stufe::Fuenf : Stufe::Sieben);
    } catch (const zrw::Fehler&) {  // refused with a message
    }
    return 0;
}
