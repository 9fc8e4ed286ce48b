#include "app/Stapel.h"

#include <QFileInfo>
#include <algorithm>
#include <cstdio>

#include "app/Formate.h"
#include "input/Systemdateien.h"
#include "input/tabellen/MarkiereFehler.h"
#include "input/tabellen/UnitZRWData.h"
#include "model/Fehler.h"
#include "output/Export.h"
#include "output/Residuenbild.h"
#include "ui/Umwandlung.h"
#include "ui/ablage/Einstellungsablage.h"
#include "ui/fenster/Schalter.h"

namespace zrw {
namespace {

/// Square: fitting divides the height of a network by the picture's width and its width by the height.
constexpr Bildgroesse kUebliche{1200, 1200};

Einstellungen LadeEinstellungen(const Aufruf& aufruf) {
    const QString datei = AusUtf8(aufruf.einstellungen.value_or(std::string()));
    // Where the user's own file is missing the defaults hold; one that was asked for must be there.
    if (aufruf.einstellungen && !QFileInfo::exists(datei))
        throw Fehler("Kann Datei nicht öffnen (Einstellungen).", *aufruf.einstellungen);
    const Einstellungsablage ablage = aufruf.einstellungen ? Einstellungsablage(datei) : Einstellungsablage();
    if (const auto fehler = ablage.Lesefehler()) throw *fehler;
    Einstellungen e;
    LoadSettings(e, ablage);
    return e;
}

void SetzeSchalter(const Aufruf& aufruf, Lesung& lesung, Zeichenzustand& zustand) {
    const auto genannt = [](const std::vector<std::string>& namen, const Schalter& s) {
        return std::find(namen.begin(), namen.end(), s.name) != namen.end();
    };
    for (const Schalter& s : kSchalter) {
        StelleEin(s, (s.anfangs || genannt(aufruf.ein, s)) && !genannt(aufruf.aus, s), lesung.liste.get(),
                  lesung.netz, zustand);
    }
}

void SetzeGroesse(const Aufruf& aufruf, Liste& liste) {
    // A stored picture size is used only where it could be that of a window.
    if (!aufruf.groesse && BrauchbareGroesse(liste.Weite) && BrauchbareGroesse(liste.Hoehe)) return;
    const Bildgroesse g = aufruf.groesse.value_or(kUebliche);
    liste.Weite = g.weite;
    liste.Hoehe = g.hoehe;
}

/// @return whether none is about a table that could not be read
bool MeldeTabellen(const std::vector<Tabellenmeldung>& meldungen) {
    bool lesbar = true;
    for (const Tabellenmeldung& m : meldungen) {
        DruckeZeile(m.text);
        lesbar = lesbar && !m.unlesbar;
    }
    return lesbar;
}

/// Tables beside the control file mark its observations; a picture file carries its marks.
/// @return whether all tables that are there could be read
bool WaehleErgebnisse(const Aufruf& aufruf, TDM& daten, Liste& liste, const Einstellungen& einstellungen) {
    const std::filesystem::path datei = TextPfad(aufruf.datei);
    std::error_code fehler;
    daten.SetzeOrdner(std::filesystem::absolute(datei, fehler).parent_path());
    return IstBilddatei(datei) || MeldeTabellen(MarkiereFehler(liste, daten, einstellungen));
}

/// All formats that are asked for. @return whether every one was written
bool SchreibeFormate(const Aufruf& aufruf, const Ausgabe& ausgabe) {
    const std::filesystem::path datei = TextPfad(aufruf.datei);
    bool alle = true;
    for (const std::string& name : aufruf.formate) {
        const Format& format = *FindeFormat(name);
        std::filesystem::path ziel = TextPfad(format.dateiname);
        if (ziel.empty()) (ziel = datei.stem()) += TextPfad(format.endung);
        try {
            format.schreibe(ausgabe, TextPfad(aufruf.ziel) / ziel);
        } catch (const std::exception& f) {
            // The formats do not hang on each other: the rest is written all the same.
            alle = false;
            DruckeZeile(Fehlertext(f));
        }
    }
    return alle;
}

/// @return whether nothing was missing
bool ExportiereNetz(const Aufruf& aufruf) {
    const Einstellungen einstellungen = LadeEinstellungen(aufruf);
    const std::filesystem::path datei = TextPfad(aufruf.datei);
    Systemdateien dateien;
    Lesung lesung = OeffneNetz(datei, dateien, einstellungen, {}, aufruf.groesse.value_or(kUebliche),
                               [](const Meldung& m) { DruckeZeile(m.Zeile()); });
    if (lesung.ende != Leseende::Vollstaendig) throw Fehler(lesung.endetext + '\n' + lesung.endegrund);
    if (const std::string text = Statustext(lesung.bericht); !text.empty())
        DruckeZeile(Fehler::Meldung(text, PfadText(datei.filename()), 0));
    SetzeGroesse(aufruf, *lesung.liste);
    Zeichenzustand zustand;
    SetzeSchalter(aufruf, lesung, zustand);
    if (lesung.liste->ShowMassbalken && !InMetern(lesung.netz.Netztyp))
        DruckeZeile(Fehler::Meldung(std::string(kKeineMeter), PfadText(datei.filename()), 0));
    if (const auto text = Blattschnitthinweis(*lesung.liste, lesung.netz, zustand); !text.empty())
        DruckeZeile(Fehler::Meldung(std::string(text), PfadText(datei.filename()), 0));
    TDM daten(dateien);
    const bool lesbar = WaehleErgebnisse(aufruf, daten, *lesung.liste, einstellungen);
    zustand.Ergebnisse = &daten;
    // The legend names the scale of the print, as in the window.
    lesung.liste->Legend->Masstab = aufruf.massstab;
    const std::filesystem::path ordner = TextPfad(aufruf.ziel);
    std::error_code fehler;
    // The folder itself is made where its parent exists; writing tells whatever else is wrong with it.
    if (!ordner.empty()) std::filesystem::create_directory(ordner, fehler);
    const std::string eingabe = PfadText(datei.stem());
    const Ausgabe ausgabe{.liste = *lesung.liste,
                          .netz = lesung.netz,
                          .einstellungen = einstellungen,
                          .zustand = zustand,
                          .dateien = dateien,
                          .massstab = *LiesMassstab(aufruf.massstab),
                          .massstabtext = aufruf.massstab,
                          .passend = aufruf.passend,
                          .dpi = aufruf.dpi,
                          .papier = aufruf.quer ? aufruf.papier.Gedreht() : aufruf.papier,
                          .alleBlaetter = aufruf.alleBlaetter,
                          .kantig = aufruf.kantig,
                          .ausBild = IstBilddatei(datei),
                          .sage = &DruckeZeile,
                          .eingabe = eingabe};
    bool ganz = SchreibeFormate(aufruf, ausgabe) && lesbar;
    if (lesung.liste->ZeigtErgebnisse()) {
        const std::string massstab = Massstabhinweis(einstellungen.ResMF);
        if (!massstab.empty()) DruckeZeile(massstab);
    }
    ganz = MeldeTabellen(daten.NimmMeldungen()) && ganz;
    return ganz;
}

}  // namespace

void DruckeZeile(const std::string& text) {
    QString zeile = AusUtf8(text);
    for (QChar& c : zeile) {
        const auto art = c.category();
        if (art == QChar::Other_Control || art == QChar::Other_Format || art == QChar::Separator_Line ||
            art == QChar::Separator_Paragraph) {
            c = u' ';
        }
    }
    std::fprintf(stderr, "%s\n", NachUtf8(zeile).c_str());
}

int FuehreStapelAus(const Aufruf& aufruf) {
    try {
        return ExportiereNetz(aufruf) ? 0 : 1;
    } catch (const std::exception& f) {
        DruckeZeile(Fehlertext(f));
        return 1;
    }
}

}  // namespace zrw
