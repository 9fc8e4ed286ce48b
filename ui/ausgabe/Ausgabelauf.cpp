#include "ui/ausgabe/Ausgabelauf.h"

#include <algorithm>

#include "input/Systemdateien.h"
#include "input/tabellen/Beobachtungsleser.h"
#include "model/Fehler.h"
#include "output/Residuenbild.h"
#include "ui/fenster/Schalter.h"

namespace zrw {

void SetzeGroesse(const Ausgabeauftrag& auftrag, Ansicht& gelesen) {
    // A stored picture size is used only where it could be that of a window.
    if (!auftrag.groesse && BrauchbareGroesse(gelesen.Weite) && BrauchbareGroesse(gelesen.Hoehe)) return;
    const Bildgroesse g = auftrag.groesse.value_or(kUeblicheGroesse);
    gelesen.Weite = g.weite;
    gelesen.Hoehe = g.hoehe;
}

void SetzeSchalter(const Ausgabeauftrag& auftrag, Darstellung& darstellung, const Netzangaben& netz,
                   Zeichenzustand& zustand) {
    const auto genannt = [](const std::vector<std::string>& namen, const Schalter& s) {
        return std::find(namen.begin(), namen.end(), s.name) != namen.end();
    };
    for (const Schalter& s : kSchalter) {
        StelleEin(s, (s.anfangs || genannt(auftrag.ein, s)) && !genannt(auftrag.aus, s), &darstellung, netz,
                  zustand);
    }
    darstellung.Ellipsenmassstab = auftrag.ellipsenmassstab;
}

bool SetzeFaerbung(const Ausgabeauftrag& auftrag, const Netz& netz, Darstellung& darstellung, TDM& daten,
                   const Sprecher& sage) {
    darstellung.Stile.reset();
    if (!auftrag.faerbung.Wirkt()) return true;
    daten.ErneuereErgebnisse();
    const Beobachtungsliste liste = LiesBeobachtungen(daten);
    darstellung.Stile = BaueStile(netz, auftrag.faerbung, liste, &daten);
    if (!auftrag.faerbung.einfaerbung) return true;
    if (!darstellung.Stile->HatWerte())
        sage("Kein Ergebnis zu " + darstellung.Stile->titel + ": Alle sind „ohne Wert“.");
    bool lesbar = true;
    for (const Tabellenlage& lage : liste.tabellen) {
        if (lage.zustand != Lesezustand::Unlesbar) continue;
        sage(lage.grund + " Sie färbt nichts ein.");
        lesbar = false;
    }
    return lesbar;
}

void MeldeDarstellung(const Ausgabequelle& quelle, const Sprecher& sage) {
    const std::string datei = PfadText(quelle.eingabe.filename());
    const Darstellung& darstellung = quelle.vorlage.darstellung;
    if (darstellung.ShowMassbalken && !InMetern(quelle.netz.Netztyp))
        sage(Fehler::Meldung(std::string(kKeineMeter), datei, 0));
    if (const auto text = Blattschnitthinweis(darstellung, quelle.netz, quelle.zustand); !text.empty())
        sage(Fehler::Meldung(std::string(text), datei, 0));
}

bool MeldeTabellen(const std::vector<Tabellenmeldung>& meldungen, const Sprecher& sage) {
    bool lesbar = true;
    for (const Tabellenmeldung& m : meldungen) {
        sage(m.text);
        lesbar = lesbar && !m.unlesbar;
    }
    return lesbar;
}

Ausgabe AusgabeVon(const Ausgabequelle& quelle, const Ausgabeauftrag& auftrag, const Sprecher& sage) {
    return {.vorlage = quelle.vorlage,
            .netz = quelle.netz,
            .einstellungen = quelle.einstellungen,
            .zustand = quelle.zustand,
            .dateien = quelle.dateien,
            .massstab = LiesMassstab(auftrag.massstab).value(),
            .massstabtext = auftrag.massstab,
            .passend = auftrag.passend,
            .dpi = auftrag.dpi,
            .papier = auftrag.quer ? auftrag.papier.Gedreht() : auftrag.papier,
            .gesucht = auftrag.gesucht,
            .blaetter = static_cast<std::size_t>(auftrag.blaetter),
            .gestaltung = auftrag.gestaltung,
            .alleBlaetter = auftrag.alleBlaetter || auftrag.blaetter > 1,
            .kantig = auftrag.kantig,
            .ausBild = quelle.ausBild,
            .sage = sage,
            .eingabe = PfadText(quelle.eingabe.stem())};
}

bool SchreibeAusgaben(const Ausgabequelle& quelle, const Ausgabeauftrag& auftrag,
                      const std::filesystem::path& ordner, const std::vector<Ausgabeziel>& ziele, TDM& daten,
                      const Sprecher& sage) {
    Ausgabe ausgabe = AusgabeVon(quelle, auftrag, sage);
    ausgabe.daten = &daten;
    // Writing tells whatever else is wrong with it.
    if (!ordner.empty()) LegeOrdnerAn(ordner);
    bool alle = true;
    for (const Ausgabeziel& ziel : ziele) {
        try {
            ziel.format.schreibe(ausgabe, ordner / ziel.name);
        } catch (const std::exception& f) {
            // The formats do not hang on each other: the rest is written all the same.
            alle = false;
            sage(Fehlertext(f));
        }
    }
    if (quelle.vorlage.darstellung.ZeigtErgebnisse()) {
        if (const std::string text = Massstabhinweis(quelle.einstellungen.ResMF); !text.empty()) sage(text);
    }
    return MeldeTabellen(daten.NimmMeldungen(), sage) && alle;
}

}  // namespace zrw
