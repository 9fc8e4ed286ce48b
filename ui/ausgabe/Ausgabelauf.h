// The way from a network that is there to the files of an output: one for batch mode and window.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "input/tabellen/UnitZRWData.h"
#include "ui/ausgabe/Ausgabeauftrag.h"
#include "ui/ausgabe/Formate.h"

namespace zrw {

/// What is written. Nothing of it changes but the legend; all of it outlives the output.
struct Ausgabequelle {
    Bildvorlage vorlage;
    const Netzangaben& netz;
    const Einstellungen& einstellungen;
    const Zeichenzustand& zustand;  ///< without a surface
    Dateien& dateien;
    std::filesystem::path eingabe;  ///< what the network was read from: files have their name from it
    bool ausBild;                   ///< that is a picture file
};

/// A file to be written, in the folder of the output.
struct Ausgabeziel {
    const Format& format;
    std::filesystem::path name;
};

/// What applies to a format: numbers that are put in order for the print have its paper and scale, too.
[[nodiscard]] constexpr unsigned Merkmale(const Format& format, std::optional<Nummernziel> ordnen) {
    return format.merkmale | (ordnen == Nummernziel::Druck ? kMitPapier | kMitMassstab : 0U);
}

/// The view that a plan is written in.
/// @param gelesen that of the file which it comes from; one of a control file shows all of the network
void SetzeGroesse(const Ausgabeauftrag& auftrag, Ansicht& gelesen);
/// The switches as the program begins with them, but for those that the order names, and what belongs to
/// them.
void SetzeSchalter(const Ausgabeauftrag& auftrag, Darstellung& darstellung, const Netzangaben& netz,
                   Zeichenzustand& zustand);
/// Colours lines or points by what the tables say, and leaves lines out. Tells where nothing has a value.
/// @param netz that of `darstellung` @return whether all tables that are there could be read
bool SetzeFaerbung(const Ausgabeauftrag& auftrag, const Netz& netz, Darstellung& darstellung, TDM& daten,
                   const Sprecher& sage);
/// Tells what is switched on and means nothing in this network.
void MeldeDarstellung(const Ausgabequelle& quelle, const Sprecher& sage);
/// @return whether none is about a table that could not be read
bool MeldeTabellen(const std::vector<Tabellenmeldung>& meldungen, const Sprecher& sage);

[[nodiscard]] Ausgabe AusgabeVon(const Ausgabequelle& quelle, const Ausgabeauftrag& auftrag,
                                 const Sprecher& sage);

/// Writes all of them; each replaces the file of its name as a whole. The folder is made where its parent is
/// there, and told is whatever went wrong. @param daten the results that are drawn
/// @return whether everything was written, and from tables that could be read
[[nodiscard]] bool SchreibeAusgaben(const Ausgabequelle& quelle, const Ausgabeauftrag& auftrag,
                                    const std::filesystem::path& ordner,
                                    const std::vector<Ausgabeziel>& ziele, TDM& daten, const Sprecher& sage);

}  // namespace zrw
