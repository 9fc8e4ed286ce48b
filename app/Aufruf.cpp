#include "app/Aufruf.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>

#include "model/Aufzaehltafel.h"
#include "model/Cp1252.h"
#include "model/Zahlentext.h"
#include "ui/ausgabe/Formate.h"
#include "ui/fenster/Schalter.h"

namespace zrw {
namespace {

std::vector<std::string> TeileListe(const std::string& liste) {
    std::vector<std::string> teile;
    std::size_t anfang = 0;
    while (anfang <= liste.size()) {
        const std::size_t ende = std::min(liste.find(',', anfang), liste.size());
        if (ende > anfang) teile.push_back(liste.substr(anfang, ende - anfang));
        anfang = ende + 1;
    }
    return teile;
}

Bildgroesse LiesGroesse(const std::string& text) {
    const std::size_t x = text.find('x');
    if (x != std::string::npos) {
        const auto weite = LiesGanz(std::string_view(text).substr(0, x));
        const auto hoehe = LiesGanz(std::string_view(text).substr(x + 1));
        const auto geht = [](const auto& v) { return v && BrauchbareGroesse(*v); };
        if (geht(weite) && geht(hoehe))
            return {static_cast<std::int32_t>(*weite), static_cast<std::int32_t>(*hoehe)};
    }
    throw Falschaufruf{"--groesse erwartet BREITExHÖHE mit Werten von 100 bis 16384, nicht \"" + text + "\""};
}

std::string LiesMassstabtext(const std::string& text) {
    if (LiesMassstab(text)) return std::string(OhneRand(text));
    throw Falschaufruf{"--massstab erwartet eine Zahl größer als 0 oder \"passend\", nicht \"" + text + "\""};
}

void NimmMassstab(Aufruf& a, const std::string& text) {
    a.gesucht = a.passend = text == "passend";
    a.massstab = a.gesucht ? std::string(kUeblicherMassstab) : LiesMassstabtext(text);
}

int LiesGanzeZahl(const std::string& option, const std::string& text, int von, int bis) {
    const auto zahl = LiesGanz(text);
    if (zahl && *zahl >= von && *zahl <= bis) return static_cast<int>(*zahl);
    throw Falschaufruf{option + " erwartet eine ganze Zahl von " + std::to_string(von) + " bis " +
                       std::to_string(bis) + ", nicht \"" + text + "\""};
}

/// One of the pens, or the usual one.
double LiesStift(const std::string& text) {
    if (text == "vorgabe") return 0.0;
    const auto stift = LiesReal(text);
    if (stift && *stift > 0.0 && std::count(kPlanstifte.begin(), kPlanstifte.end(), *stift) > 0)
        return *stift;
    throw Falschaufruf{"--stift kennt 0.13, 0.18, 0.25 und vorgabe, nicht \"" + text + "\""};
}

double LiesEllipsenmassstab(const std::string& text) {
    const auto zahl = LiesReal(text);
    if (zahl && *zahl > 0.0 && std::isfinite(*zahl)) return *zahl;
    throw Falschaufruf{"--ellipsenmassstab erwartet eine Zahl größer als 0, nicht \"" + text + "\""};
}

/// "a4" is A4, too.
Papier LiesPapier(std::string name) {
    std::replace(name.begin(), name.end(), 'a', 'A');
    if (const auto papier = FindePapier(name)) return *papier;
    std::string namen;
    for (const Papierformat& f : kPapierformate)
        namen += (namen.empty() ? "" : ", ") + std::string(f.name);
    throw Falschaufruf{"--papier kennt " + namen + ", nicht \"" + name + "\""};
}

Nummernziel LiesNummernziel(const std::string& text) {
    for (const Nummernzielzeile& z : kNummernziele)
        if (z.name == text) return z.ziel;
    throw Falschaufruf{"--nummern-ordnen erwartet bild oder druck, nicht \"" + text + "\""};
}

std::vector<std::string> LiesFormate(const std::string& liste) {
    auto formate = TeileListe(liste);
    if (formate.empty())
        throw Falschaufruf{"--export erwartet eine Liste von Formaten (" + Formatnamen() + ")"};
    for (const std::string& f : formate) {
        if (FindeFormat(f) == nullptr)
            throw Falschaufruf{"Unbekanntes Format \"" + f + "\" (möglich: " + Formatnamen() + ")"};
    }
    return formate;
}

std::vector<std::string> LiesSchalter(const std::string& liste) {
    auto namen = TeileListe(liste);
    for (const std::string& n : namen) {
        if (std::none_of(kSchalter.begin(), kSchalter.end(),
                         [&](const Schalter& s) { return !n.empty() && s.name == n; })) {
            throw Falschaufruf{"Unbekannter Schalter \"" + n + "\""};
        }
    }
    return namen;
}

double LiesGrenze(const std::string& text) {
    const auto zahl = LiesReal(text);
    if (zahl && *zahl > 0.0) return *zahl;
    throw Falschaufruf{"--grenze erwartet eine Zahl größer als 0, nicht \"" + text + "\""};
}

Einfaerbung LiesEinfaerbungstext(const std::string& text) {
    const Einfaerbungstext gelesen = LiesEinfaerbung(text);
    if (gelesen.wahl) return *gelesen.wahl;
    throw Falschaufruf{"--einfaerben: " + gelesen.fehler};
}

void NimmKategorien(Linienfilter& filter, const std::string& liste) {
    for (const std::string& name : TeileListe(liste)) {
        const auto* zeile = std::find_if(kLinienkategorien.begin(), kLinienkategorien.end(),
                                         [&](const Kategoriezeile& z) { return z.name == name; });
        if (zeile == kLinienkategorien.end()) {
            throw Falschaufruf{"--nur kennt richtungen, strecken, hoehen und gps, nicht \"" + name + "\""};
        }
        filter.kategorien[static_cast<std::size_t>(zeile->kategorie)] = true;
    }
}

/// Some values can be compared within one kind of observations only: that which alone is drawn.
void PruefeFaerbung(Planfaerbung& f) {
    if (!f.einfaerbung || !ZurGroesse(f.einfaerbung->groesse).nurJeGattung) return;
    const auto& gewaehlt = f.filter.kategorien;
    if (std::count(gewaehlt.begin(), gewaehlt.end(), true) != 1) {
        throw Falschaufruf{"--einfaerben " + std::string(ZurGroesse(f.einfaerbung->groesse).name) +
                           " vergleicht nur Beobachtungen einer Art; bitte mit --nur eine wählen"};
    }
    const auto stelle = std::find(gewaehlt.begin(), gewaehlt.end(), true) - gewaehlt.begin();
    f.einfaerbung->gattung = kLinienkategorien[static_cast<std::size_t>(stelle)].tabelle;
}

/// There is one network: a file, or what an import makes of another.
void PruefeDatei(const Aufruf& a) {
    const Importaufruf& i = a.importiere;
    if (!i.netz.empty() && !a.datei.empty())
        throw Falschaufruf{"Mit --import ist keine weitere Datei möglich, \"" + a.datei + "\" ist zu viel"};
    if (i.netz.empty() && (!i.ergebnisse.empty() || i.grenze || i.ersetzen))
        throw Falschaufruf{"--ergebnisse, --grenze und --ersetzen gelten nur mit --import"};
    if (a.auftrag == Auftrag::Stapel && a.datei.empty() && i.netz.empty())
        throw Falschaufruf{"Es fehlt der Name der Datei"};
}

void HaengeFormateAn(std::vector<std::string>& ziel, std::vector<std::string> neue) {
    ziel.insert(ziel.end(), neue.begin(), neue.end());
}

struct Option {
    std::string_view name;
    void (*lies)(Aufruf&, const std::string&);
    bool mitWert = true;
};

constexpr auto kOptionen = std::to_array<Option>({
    {"--export",
     [](Aufruf& a, const std::string& w) {
         a.auftrag = Auftrag::Stapel;
         HaengeFormateAn(a.formate, LiesFormate(w));
     }},
    {"--import",
     [](Aufruf& a, const std::string& w) {
         a.auftrag = Auftrag::Stapel;
         a.importiere.netz = w;
     }},
    {"--ergebnisse", [](Aufruf& a, const std::string& w) { a.importiere.ergebnisse = w; }},
    {"--grenze", [](Aufruf& a, const std::string& w) { a.importiere.grenze = LiesGrenze(w); }},
    {"--ersetzen", [](Aufruf& a, const std::string& /*w*/) { a.importiere.ersetzen = true; }, false},
    {"--ziel", [](Aufruf& a, const std::string& w) { a.ziel = w; }},
    {"--groesse", [](Aufruf& a, const std::string& w) { a.groesse = LiesGroesse(w); }},
    {"--massstab", &NimmMassstab},
    {"--blaetter",
     [](Aufruf& a, const std::string& w) {
         a.blaetter = LiesGanzeZahl("--blaetter", w, 1, static_cast<int>(kMeisteBlaetter));
     }},
    {"--ueberlappung",
     [](Aufruf& a, const std::string& w) {
         a.gestaltung.ueberlappung = LiesGanzeZahl("--ueberlappung", w, 0, kGroessteUeberlappung);
     }},
    {"--schwarzweiss", [](Aufruf& a, const std::string& /*w*/) { a.gestaltung.schwarzweiss = true; }, false},
    {"--stift", [](Aufruf& a, const std::string& w) { a.gestaltung.stift = LiesStift(w); }},
    {"--projekt", [](Aufruf& a, const std::string& w) { a.gestaltung.texte.projekt = Utf8NachCp1252(w); }},
    {"--bearbeiter",
     [](Aufruf& a, const std::string& w) { a.gestaltung.texte.bearbeiter = Utf8NachCp1252(w); }},
    {"--firma", [](Aufruf& a, const std::string& w) { a.gestaltung.texte.firma = Utf8NachCp1252(w); }},
    {"--dpi",
     [](Aufruf& a, const std::string& w) { a.dpi = LiesGanzeZahl("--dpi", w, 1, kFeinsteAufloesung); }},
    {"--papier", [](Aufruf& a, const std::string& w) { a.papier = LiesPapier(w); }},
    {"--quer", [](Aufruf& a, const std::string& /*w*/) { a.quer = true; }, false},
    {"--alle-blaetter", [](Aufruf& a, const std::string& /*w*/) { a.alleBlaetter = true; }, false},
    {"--kantig", [](Aufruf& a, const std::string& /*w*/) { a.kantig = true; }, false},
    {"--nummern-ordnen", [](Aufruf& a, const std::string& w) { a.ordnen = LiesNummernziel(w); }},
    {"--einfaerben",
     [](Aufruf& a, const std::string& w) { a.faerbung.einfaerbung = LiesEinfaerbungstext(w); }},
    {"--nur", [](Aufruf& a, const std::string& w) { NimmKategorien(a.faerbung.filter, w); }},
    {"--ein", [](Aufruf& a, const std::string& w) { HaengeFormateAn(a.ein, LiesSchalter(w)); }},
    {"--aus", [](Aufruf& a, const std::string& w) { HaengeFormateAn(a.aus, LiesSchalter(w)); }},
    {"--ellipsenmassstab",
     [](Aufruf& a, const std::string& w) { a.ellipsenmassstab = LiesEllipsenmassstab(w); }},
    {"--einstellungen", [](Aufruf& a, const std::string& w) { a.einstellungen = w; }},
});

static_assert(Verschieden(kOptionen, &Option::name));

}  // namespace

Aufruf LiesAufruf(const std::vector<std::string>& worte) {
    Aufruf a;
    bool nurNamen = false;
    bool mitOption = false;
    for (std::size_t i = 0; i < worte.size(); ++i) {
        const std::string& wort = worte[i];
        if (nurNamen || wort.size() < 2 || wort[0] != '-') {
            if (!a.datei.empty())
                throw Falschaufruf{"Nur eine Datei ist möglich, \"" + wort + "\" ist zu viel"};
            a.datei = wort;
        } else if (wort == "--") {
            nurNamen = true;
        } else if (wort == "--help" || wort == "-h") {
            a.auftrag = Auftrag::Hilfe;
            return a;
        } else if (wort == "--version") {
            a.auftrag = Auftrag::Version;
            return a;
        } else {
            // Both "--ziel ORDNER" and "--ziel=ORDNER".
            const std::size_t gleich = wort.find('=');
            const std::string name = wort.substr(0, gleich);
            const auto* o = std::find_if(kOptionen.begin(), kOptionen.end(),
                                         [&](const Option& p) { return p.name == name; });
            if (o == kOptionen.end()) throw Falschaufruf{"Unbekannte Option \"" + name + "\""};
            const bool hatWert = gleich != std::string::npos;
            if (!o->mitWert && hatWert) throw Falschaufruf{name + " hat keinen Wert"};
            if (o->mitWert && !hatWert && i + 1 >= worte.size())
                throw Falschaufruf{name + " erwartet einen Wert"};
            mitOption = true;
            o->lies(a, hatWert ? wort.substr(gleich + 1) : o->mitWert ? worte[++i] : std::string());
        }
    }
    if (a.auftrag == Auftrag::Fenster && mitOption)
        throw Falschaufruf{"Optionen gelten nur mit --export oder --import"};
    PruefeFaerbung(a.faerbung);
    PruefeDatei(a);
    return a;
}

std::string Hilfetext() {
    std::string schalter;
    for (const Schalter& s : kSchalter) {
        if (!s.name.empty()) schalter += (schalter.empty() ? "" : " ") + std::string(s.name);
    }
    return "Aufruf:\n"
           "  zarwik [DATEI]                          öffnet das Fenster, eine Steuerdatei (.EIN)\n"
           "                                          oder Zarwikdatei (.ZRW) gleich mit\n"
           "  zarwik --export LISTE [Optionen] DATEI  schreibt Dateien ohne Fenster\n"
           "  zarwik --import NETZ [Optionen]         macht aus einem Netz von GNU Gama (.gkf, .xml) eine\n"
           "                                          Steuerdatei mit Ergebnistabellen\n"
           "\n"
           "  --export LISTE         Formate, durch Kommas getrennt: " +
           Formatnamen() +
           "\n"
           "  --ziel ORDNER          dorthin schreiben (sonst in den Arbeitsordner, mit --import in\n"
           "                         NETZ.zarwik neben dem Netz); er wird angelegt\n"
           "  --ergebnisse DATEI     Ergebnisse der Ausgleichung zu --import (.xml)\n"
           "  --grenze ZAHL          --import markiert Beobachtungen mit größerer Testgröße (sonst 3.29)\n"
           "  --ersetzen             --import ersetzt Dateien, die im Zielordner schon liegen\n"
           "  --groesse BREITExHÖHE  Bildgröße in Pixeln, 100 bis 16384 (sonst 1200x1200,\n"
           "                         bei einer Zarwikdatei die gespeicherte)\n"
           "  --massstab ZAHL        Druckmaßstab 1:ZAHL für dxf, plt und pdf (sonst 25000; in der pdf\n"
           "                         der größte runde, in dem der Plan auf ein Blatt passt);\n"
           "                         „passend“ nimmt diesen auch für dxf und plt\n"
           "  --blaetter ZAHL        so viele Blätter darf der passende Maßstab brauchen (sonst 1)\n"
           "  --dpi ZAHL             Auflösung des Drucks in Punkten je Zoll (sonst 600)\n"
           "  --papier FORMAT        Papier für pdf: A4, A3, A2, A1 oder A0 (sonst A4)\n"
           "  --quer                 Papier im Querformat\n"
           "  --alle-blaetter        so viele Blätter, wie der Plan im Maßstab braucht (pdf)\n"
           "  --ueberlappung MM      Nachbarblätter zeigen so viel doppelt, 0 bis 20 (pdf)\n"
           "  --schwarzweiss         Blätter (pdf) ohne Farben\n"
           "  --stift BREITE         Strichbreite des Plans in mm auf Blättern: 0.13, 0.18, 0.25\n"
           "                         oder vorgabe\n"
           "  --projekt TEXT, --bearbeiter TEXT, --firma TEXT\n"
           "                         Texte im Schriftfeld des Blattrahmens (--ein blattrahmen)\n"
           "  --kantig               Bilder (png, bmp) ohne geglättete Kanten\n"
           "  --nummern-ordnen bild  vorher Plätze für die Punktnummern suchen: für das Bild\n"
           "                         oder mit \"druck\" für Maßstab und Auflösung des Drucks\n"
           "  --einfaerben TG        Linien oder Punkte in Klassen eines Ergebnisses, auch mit Grenzen\n"
           "                         (TG:1,2,3.3) oder TG:quantile5, TG:gleich4 (png, bmp, svg, pdf)\n"
           "  --nur LISTE            nur Linien mit richtungen, strecken, hoehen, gps (ebenso)\n"
           "  --ein LISTE            Darstellung einschalten\n"
           "  --aus LISTE            Darstellung ausschalten\n"
           "  --ellipsenmassstab ZAHL\n"
           "                         Fehlerellipsen im eigenen Maßstab ZAHL:1 statt im Residuenmaßstab\n"
           "  --einstellungen DATEI  andere Einstellungen als die eigenen (INI-Datei)\n"
           "  --help, --version\n"
           "\n"
           "Schalter für --ein und --aus:\n"
           "  " +
           schalter +
           "\n"
           "\n"
           "Ergebnis: 0 in Ordnung; 1 etwas ließ sich nicht lesen oder schreiben; 2 falscher Aufruf.\n"
           "Nicht lesbare Punktzeilen werden gemeldet und übergangen.\n";
}

}  // namespace zrw
