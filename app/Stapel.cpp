#include "app/Stapel.h"

#include <QFileInfo>
#include <cstdio>
#include <ctime>

#include "input/Systemdateien.h"
#include "input/import/Netzimport.h"
#include "input/tabellen/MarkiereFehler.h"
#include "input/tabellen/UnitZRWData.h"
#include "model/Fehler.h"
#include "ui/Umwandlung.h"
#include "ui/ablage/Einstellungsablage.h"
#include "ui/ausgabe/Ausgabelauf.h"
#include "ui/ausgabe/Nummernlauf.h"

namespace zrw {
namespace {

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

/// Tables beside the control file mark its observations; a picture file carries its marks.
/// @return whether all tables that are there could be read
bool WaehleErgebnisse(const Aufruf& aufruf, TDM& daten, Liste& liste, const Einstellungen& einstellungen) {
    const std::filesystem::path datei = TextPfad(aufruf.datei);
    daten.SetzeOrdner(VollerName(datei).parent_path());
    return IstBilddatei(datei) || MeldeTabellen(MarkiereFehler(liste, daten, einstellungen), &DruckeZeile);
}

std::vector<Ausgabeziel> Ziele(const Aufruf& aufruf, const std::filesystem::path& datei) {
    std::vector<Ausgabeziel> ziele;
    for (const std::string& name : aufruf.formate) {
        const Format& format = *FindeFormat(name);
        ziele.push_back({format, Zielname(format, datei)});
    }
    return ziele;
}

/// @return whether nothing was missing
bool ExportiereNetz(const Aufruf& aufruf) {
    const Einstellungen einstellungen = LadeEinstellungen(aufruf);
    const std::filesystem::path datei = TextPfad(aufruf.datei);
    Systemdateien dateien;
    if (const Importerkennung fremd = ErkenneImport(datei, dateien);
        fremd.rolle != Importrolle::Keine && !IstBilddatei(datei)) {
        throw Fehler("Das ist eine Datei von " + std::string(fremd.format) +
                         ". Mit --import wird daraus ein Netz für Zarwik.",
                     PfadText(datei.filename()));
    }
    Lesung lesung = OeffneNetz(datei, dateien, einstellungen, {}, aufruf.groesse.value_or(kUeblicheGroesse),
                               [](const Meldung& m) { DruckeZeile(m.Zeile()); });
    if (lesung.ende != Leseende::Vollstaendig) throw Fehler(lesung.endetext + '\n' + lesung.endegrund);
    if (const std::string text = Statustext(lesung.bericht); !text.empty())
        DruckeZeile(Fehler::Meldung(text, PfadText(datei.filename()), 0));
    Liste& liste = *lesung.liste;
    SetzeGroesse(aufruf, liste);
    Zeichenzustand zustand;
    SetzeSchalter(aufruf, liste, lesung.netz, zustand);
    // The legend names the scale of the print, as in the window.
    liste.Legend->Masstab = aufruf.massstab;
    const Ausgabequelle quelle{.vorlage = liste.Vorlage(),
                               .netz = lesung.netz,
                               .einstellungen = einstellungen,
                               .zustand = zustand,
                               .dateien = dateien,
                               .eingabe = datei,
                               .ausBild = IstBilddatei(datei)};
    MeldeDarstellung(quelle, &DruckeZeile);
    TDM daten(dateien);
    const bool lesbar = WaehleErgebnisse(aufruf, daten, liste, einstellungen);
    zustand.Ergebnisse = &daten;
    const bool gefaerbt = SetzeFaerbung(aufruf, liste, liste, daten, &DruckeZeile);
    Ausgabeauftrag auftrag = aufruf;
    OrdneNummern(quelle, auftrag, liste, &DruckeZeile);
    return SchreibeAusgaben(quelle, auftrag, TextPfad(aufruf.ziel), Ziele(aufruf, datei), daten,
                            &DruckeZeile) &&
           lesbar && gefaerbt;
}

/// Takes over a network of another program. @return the call for what it has become
Aufruf Importiert(Aufruf aufruf) {
    const Importaufruf& i = aufruf.importiere;
    Systemdateien dateien;
    const Importergebnis ergebnis = ImportiereNetz({.netz = TextPfad(i.netz),
                                                    .ergebnisse = TextPfad(i.ergebnisse),
                                                    .ziel = TextPfad(aufruf.ziel),
                                                    .grenze = i.grenze.value_or(kUeblicheGrenze),
                                                    .ersetzen = i.ersetzen},
                                                   dateien, std::time(nullptr));
    for (const std::string& hinweis : ergebnis.hinweise)
        DruckeZeile(hinweis);
    DruckeZeile(Importmeldung(ergebnis));
    aufruf.datei = PfadText(ergebnis.steuerdatei);
    aufruf.ziel = PfadText(ergebnis.steuerdatei.parent_path());
    return aufruf;
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
    (void)std::fflush(stderr);  // Windows keeps lines for its console together
}

int FuehreStapelAus(const Aufruf& aufruf) {
    try {
        if (aufruf.importiere.netz.empty()) return ExportiereNetz(aufruf) ? 0 : 1;
        const Aufruf danach = Importiert(aufruf);
        return danach.formate.empty() || ExportiereNetz(danach) ? 0 : 1;
    } catch (const std::exception& f) {
        DruckeZeile(Fehlertext(f));
        return 1;
    }
}

}  // namespace zrw
