#include "input/Lesebericht.h"

#include <algorithm>

#include "input/Feldleser.h"
#include "model/Cp1252.h"
#include "model/Fehler.h"
#include "model/Netzarten.h"

namespace zrw {
namespace {

void HaengeBefundAn(std::string& text, const Lesebericht::Befund& b, const char* einer, const char* viele) {
    if (b.anzahl == 0) return;
    if (!text.empty()) text += "; ";
    text += std::to_string(b.anzahl) + " " + (b.anzahl == 1 ? einer : viele) + " (zuerst " +
            Fehler::Ort(b.datei, b.zeile) + ")";
}

std::string Netztypen() {
    std::string text;
    for (const Netzart& n : kNetzarten)
        text += (text.empty() ? "" : ", ") + std::to_string(n.typ);
    return text;
}

}  // namespace

std::string Statustext(const Lesebericht& bericht) {
    std::string text;
    HaengeBefundAn(text, bericht.unbekannte, "Beobachtung nennt unbekannte Punkte",
                   "Beobachtungen nennen unbekannte Punkte");
    HaengeBefundAn(text, bericht.wiederholte, "Punktnummer kommt noch einmal vor",
                   "Punktnummern kommen noch einmal vor");
    return text;
}

std::string Leertext(const Lesebericht& bericht) {
    if (!bericht.schluessel)
        return "Keine Zeile beginnt mit einem bekannten Schlüssel: Das ist keine Steuerdatei. "
               "Es wurde nichts geladen.";
    const std::string anfang = "Die Datei enthält keine lesbaren Punkte: ";
    if (bericht.fremderTyp > 0) {
        return anfang + "Den Netztyp " + std::to_string(bericht.letzterFremder) +
               " gibt es nicht (möglich: " + Netztypen() + ").";
    }
    if (bericht.unlesbare > 0) return anfang + "In keiner Punktzeile sind alle Felder lesbar.";
    if (bericht.ohneTyp == 0) return anfang + "Es gibt keine Punktzeilen ($FP, $NP, $FL, $FH).";
    return anfang + (bericht.netztyp ? "Alle Punktzeilen stehen vor dem Netztyp \"$NT\"."
                                     : "Es fehlt der Netztyp \"$NT\".");
}

std::string Lesegrund(std::string_view text, std::span<const char* const> felder) {
    for (std::size_t i = 0; i < felder.size(); ++i) {
        const std::string name = felder[i];
        const std::string_view wort = NaechstesWort(text);
        if (wort.empty()) return name + " fehlt";
        if (i == 0 ? LiesGanz(wort).has_value() : LiesReal(wort).has_value()) continue;
        const std::string gelesen = name + " \"" + Auszug(wort) + "\"";
        std::string mitPunkt(wort);
        std::replace(mitPunkt.begin(), mitPunkt.end(), ',', '.');
        if (i > 0 && mitPunkt != wort && LiesReal(mitPunkt)) return gelesen + ": Komma statt Dezimalpunkt";
        return gelesen + (i == 0 ? " ist keine ganze Zahl" : " ist keine Zahl");
    }
    return "die Koordinaten liegen außerhalb des Zahlenbereichs";
}

std::string Auszug(std::string_view zeile, std::size_t laenge) {
    std::string text(zeile.substr(0, laenge));
    for (char& c : text) {
        if (static_cast<unsigned char>(c) < 0x20) c = ' ';
    }
    return Cp1252NachUtf8(text);
}

}  // namespace zrw
