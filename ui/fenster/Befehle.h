// The one table of the commands: where each stands in the menus, its texts, its key, what it needs. Tools
// have theirs in werkzeuge/Werkzeugtafel.h, display switches in Schalter.h; Aktionen.h makes actions of all
// three.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "ui/fenster/Hauptfenster.h"

namespace zrw {

enum class Menue : std::uint8_t { Datei, Bearbeiten, Ansicht, Werkzeuge, Ergebnisse, Ausgabe, Hilfe };

struct Menuezeile {
    Menue menue;
    std::string_view titel;  ///< with the letter that opens it, UTF-8
};

/// In the order of the menu bar.
inline constexpr auto kMenues = std::to_array<Menuezeile>({
    {Menue::Datei, "&Datei"},
    {Menue::Bearbeiten, "&Bearbeiten"},
    {Menue::Ansicht, "&Ansicht"},
    {Menue::Werkzeuge, "&Werkzeuge"},
    {Menue::Ergebnisse, "&Ergebnisse"},
    {Menue::Ausgabe, "A&usgabe"},
    {Menue::Hilfe, "&Hilfe"},
});

// What a command is besides.
inline constexpr unsigned kGruppenende = 1;  ///< a line behind it
inline constexpr unsigned kBrauchtNetz = 2;  ///< without one it says so
inline constexpr unsigned kInJedemFenster =
    4;                                      ///< its shortcut works while a dialog of a tool has the keyboard
inline constexpr unsigned kUmschalter = 8;  ///< stays down until it is chosen again
inline constexpr unsigned kOhneKnopf = 16;  ///< stands in the menus only
inline constexpr unsigned kBeimFeld = 32;   ///< its button stands beside the field that it reads
inline constexpr unsigned kBrauchtSchritt = 64;           ///< off while there is nothing to take back
inline constexpr unsigned kBrauchtZurueckgenommen = 128;  ///< off while there is nothing to do again
inline constexpr unsigned kMenuestrich = 256;             ///< a line behind it, but in the menu only

struct Befehl {
    std::string_view komponente;  ///< object name of its button
    Menue menue;
    std::string_view text;     ///< in the menu, with the letter that chooses it, UTF-8
    std::string_view hinweis;  ///< hint, UTF-8
    std::string_view satz;     ///< what it does, UTF-8
    std::string_view bild;     ///< file name of the icon
    std::string_view taste;    ///< shortcut in Qt's portable form, or empty
    void (TZrwMainDlg::*klick)();
    unsigned merkmale = 0;

    [[nodiscard]] constexpr bool HatMerkmal(unsigned merkmal) const { return (merkmale & merkmal) != 0; }
};

/// In the order of the buttons, and of the entries in each menu.
inline constexpr auto kBefehle = std::to_array<Befehl>({
    {"SpeedButton1", Menue::Datei, "&Steuerdatei öffnen…", "Zarwik erzeugen (Steuerdatei öffnen)",
     "Liest die Steuerdatei der Ausgleichung und baut daraus das Netz auf.", "steuerdatei", "Ctrl+O",
     &TZrwMainDlg::SpeedButton1Click},
    {"SpeedButton2", Menue::Datei, "Zarwikdatei &lesen…", "Zarwik lesen",
     "Liest einen gesicherten Plan (.ZRW) mit seinem Ausschnitt.", "lesen", "Ctrl+Shift+O",
     &TZrwMainDlg::SpeedButton2Click},
    {"NetzImport", Menue::Datei, "Netz &importieren…", "Netz importieren",
     "Macht aus einem Netz von GNU Gama und seinen Ergebnissen eine Steuerdatei mit Tabellen.", "importieren",
     "", &TZrwMainDlg::NetzImportierenClick, kOhneKnopf},
    {"LetzteDateienButton", Menue::Datei, "Letzte &Dateien", "Letzte Dateien",
     "Öffnet eine der neun zuletzt benutzten Dateien.", "letzte_dateien", "",
     &TZrwMainDlg::LetzteDateienClick},
    {"SpeedButton9", Menue::Datei, "Zarwikdatei s&peichern…", "Zarwik speichern",
     "Sichert den Plan mit allen Änderungen und seinem Ausschnitt als Zarwikdatei (.ZRW).", "speichern",
     "Ctrl+S", &TZrwMainDlg::SpeedButton9Click, kBrauchtNetz | kInJedemFenster | kMenuestrich},
    {"SpeedButton7", Menue::Datei, "Zarwik &beenden", "Zarwik beenden",
     "Fragt, ob der Plan gesichert werden soll, und schließt das Programm.", "beenden", "Ctrl+Q",
     &TZrwMainDlg::SpeedButton7Click, kGruppenende},

    {"RueckgaengigButton", Menue::Bearbeiten, "&Rückgängig", "Rückgängig",
     "Nimmt die letzte Änderung am Netz zurück.", "rueckgaengig", "Ctrl+Z", &TZrwMainDlg::Rueckgaengig,
     kInJedemFenster | kBrauchtSchritt},
    {"WiederholenButton", Menue::Bearbeiten, "&Wiederholen", "Wiederholen",
     "Tut die zuletzt zurückgenommene Änderung noch einmal.", "wiederholen", "Ctrl+Y",
     &TZrwMainDlg::WiederholeSchritt, kInJedemFenster | kBrauchtZurueckgenommen | kGruppenende},

    {"ButtonGroesser", Menue::Ansicht, "Bild &größer", "Bild größer",
     "Vergrößert um die Bildmitte; das Mausrad tut es um den Zeiger.", "groesser", "+",
     &TZrwMainDlg::ButtonGroesserClick, kBrauchtNetz},
    {"ButtonKleiner", Menue::Ansicht, "Bild &kleiner", "Bild kleiner",
     "Verkleinert um die Bildmitte; das Mausrad tut es um den Zeiger.", "kleiner", "-",
     &TZrwMainDlg::ButtonKleinerClick, kBrauchtNetz},
    {"SpeedButton3", Menue::Ansicht, "&Alles darstellen", "Alles darstellen",
     "Passt das ganze Netz ein, auf volle Kilometer erweitert.", "alles", "Home",
     &TZrwMainDlg::SpeedButton3Click, kBrauchtNetz},
    {"EinpassenButton", Menue::Ansicht, "Sichtbare Punkte &einpassen", "Sichtbare Punkte einpassen",
     "Füllt das Bild mit den Punkten, die gerade gezeigt werden.", "einpassen", "F",
     &TZrwMainDlg::EinpassenClick, kBrauchtNetz | kGruppenende},
    {"FruehereAnsicht", Menue::Ansicht, "&Frühere Ansicht", "Frühere Ansicht",
     "Geht zu Ausschnitt und Maßstab davor zurück.", "fruehere_ansicht", "Alt+Left",
     &TZrwMainDlg::FruehereAnsichtClick, kOhneKnopf},
    {"SpaetereAnsicht", Menue::Ansicht, "S&pätere Ansicht", "Spätere Ansicht",
     "Geht zu dem Ausschnitt vor, von dem „Frühere Ansicht“ kam.", "spaetere_ansicht", "Alt+Right",
     &TZrwMainDlg::SpaetereAnsichtClick, kOhneKnopf | kMenuestrich},
    {"SeitenLeiste", Menue::Ansicht, "Seiten&leiste", "Seitenleiste",
     "Zeigt neben dem Bild, was ausgewählt ist, welche Linien und Symbole das Netz hat, und Beobachtungen.",
     "seitenleiste", "F9", &TZrwMainDlg::SeitenleisteClick, kOhneKnopf | kUmschalter | kMenuestrich},
    {"PunktSuche", Menue::Ansicht, "Punktnummer &suchen", "Punktnummer suchen",
     "Geht in das Feld der Punktnummern; * und ? gelten dort als Platzhalter.", "punkt_suchen", "Ctrl+F",
     &TZrwMainDlg::PunktSucheClick, kOhneKnopf},
    {"SpeedButton10", Menue::Ansicht, "Punkt an&zeigen", "Punkt anzeigen",
     "Holt den Punkt, dessen Nummer im Feld steht, ins Bild und markiert ihn.", "punkt_anzeigen", "",
     &TZrwMainDlg::SpeedButton10Click, kBeimFeld | kMenuestrich},

    {"SpeedButton14", Menue::Bearbeiten, "Punkte &verstecken…", "Punkte verstecken",
     "Versteckt Punkte, die aus einer Liste gewählt werden.", "punkte_verstecken", "",
     &TZrwMainDlg::SpeedButton14Click, kUmschalter},
    {"SpeedButton15", Menue::Bearbeiten, "Versteckte &Punkte…", "Versteckte Punkte",
     "Listet die versteckten Punkte auf und zeigt sie wieder.", "versteckte_punkte", "",
     &TZrwMainDlg::SpeedButton15Click},
    {"NummernZeigenButton", Menue::Bearbeiten, "Versteckte Punkt&nummern zeigen",
     "Versteckte Punktnummern zeigen", "Zeichnet alle versteckten Punktnummern wieder.", "nummern_zeigen", "",
     &TZrwMainDlg::NummernZeigenClick, kBrauchtNetz},
    {"NummernOrdnenButton", Menue::Bearbeiten, "Punktnummern &ordnen…", "Punktnummern ordnen",
     "Sucht für die Punktnummern Plätze, an denen sie einander, Symbole und Linien nicht treffen.",
     "nummern_ordnen", "", &TZrwMainDlg::NummernOrdnenClick, kBrauchtNetz | kGruppenende},

    {"BeobachtungsListe", Menue::Ergebnisse, "&Beobachtungen…", "Beobachtungen",
     "Listet alle Beobachtungen der Ausgleichung auf, die größte Testgröße zuerst.", "beobachtungen", "",
     &TZrwMainDlg::BeobachtungenClick, kBrauchtNetz | kOhneKnopf | kInJedemFenster},
    {"NaechsterFehler", Menue::Ergebnisse, "&Nächster grober Fehler", "Nächster grober Fehler",
     "Zeigt die nächste als grober Fehler gekennzeichnete Beobachtung im Bild, die größte Testgröße zuerst.",
     "naechster_fehler", "F4", &TZrwMainDlg::NaechsterFehlerClick,
     kBrauchtNetz | kOhneKnopf | kInJedemFenster},
    {"VorigerFehler", Menue::Ergebnisse, "&Voriger grober Fehler", "Voriger grober Fehler",
     "Geht zu der gekennzeichneten Beobachtung davor zurück.", "voriger_fehler", "Shift+F4",
     &TZrwMainDlg::VorigerFehlerClick, kBrauchtNetz | kOhneKnopf | kInJedemFenster | kMenuestrich},
    {"EinfaerbenWahl", Menue::Ergebnisse, "Ein&färben…", "Einfärben",
     "Zeichnet Linien oder Punkte in Klassen eines Ergebnisses, oder nur einen Teil der Linien.",
     "einfaerben", "", &TZrwMainDlg::EinfaerbenClick, kBrauchtNetz | kOhneKnopf},
    {"StatistikWahl", Menue::Ergebnisse, "&Statistik…", "Statistik",
     "Fasst die Beobachtungen zusammen: Anzahlen, Testgrößen, Redundanz und die auffälligsten.", "statistik",
     "", &TZrwMainDlg::StatistikClick, kBrauchtNetz | kOhneKnopf},
    {"ErgebnisMassstab", Menue::Ergebnisse, "&Maßstäbe der Ergebnisse…", "Maßstäbe der Ergebnisse",
     "Bestimmt, wie groß Verbesserungen und Fehlerellipsen gezeichnet werden, auch passend zum Netz.",
     "residuen", "", &TZrwMainDlg::ErgebnisMassstabClick, kBrauchtNetz | kOhneKnopf | kMenuestrich},

    {"SpeedButton12", Menue::Ausgabe, "&Legendentexte…", "Legendentexte",
     "Schreibt zwei Zeilen in die Legende und blendet sie ein.", "legende", "Ctrl+L",
     &TZrwMainDlg::SpeedButton12Click, kBrauchtNetz | kMenuestrich},
    {"SpeedButton5", Menue::Ausgabe, "Zarwik &drucken…", "Zarwik drucken",
     "Druckt den Plan im Druckmaßstab, wenn nötig auf mehrere Blätter.", "drucken", "Ctrl+P",
     &TZrwMainDlg::SpeedButton5Click, kBrauchtNetz},
    {"VorschauButton", Menue::Ausgabe, "Druck&vorschau…", "Druckvorschau",
     "Zeigt, was auf welches Blatt käme.", "vorschau", "", &TZrwMainDlg::VorschauClick, kBrauchtNetz},
    {"BlattRahmen", Menue::Ausgabe, "Blattra&hmen…", "Blattrahmen",
     "Gibt den Blättern Rahmen und Schriftfeld, Überlappung und Strichbreiten.", "blattrahmen", "",
     &TZrwMainDlg::BlattrahmenClick, kBrauchtNetz | kOhneKnopf},
    {"PassenderMassstab", Menue::Ausgabe, "&Maßstab einpassen…", "Maßstab einpassen",
     "Sucht den größten runden Maßstab, in dem der Plan auf die Blätter passt.", "massstab_einpassen", "",
     &TZrwMainDlg::MassstabEinpassenClick, kBrauchtNetz | kOhneKnopf},
    {"SpeedButton11", Menue::Ausgabe, "D&ruckereinstellungen…", "Druckereinstellungen",
     "Wählt Drucker, Papier und Ausrichtung.", "drucker", "", &TZrwMainDlg::SpeedButton11Click, kMenuestrich},
    {"SpeedButtonClipbrd", Menue::Ausgabe, "Grafik als &Bitmap speichern…", "Grafik als Bitmap speichern",
     "Sichert das Bild, wie es im Fenster steht, als BMP- oder PNG-Datei.", "bitmap", "",
     &TZrwMainDlg::SpeedButtonClipbrdClick, kBrauchtNetz},
    {"AusgabeWahl", Menue::Ausgabe, "A&usgeben ...", "Ausgeben ...",
     "Schreibt den Plan in jedem Format, mit Vorschau und der Befehlszeile dazu.", "ausgeben", "Ctrl+Shift+E",
     &TZrwMainDlg::AusgebenClick, kBrauchtNetz | kOhneKnopf},
    {"SpeedButton16", Menue::Ausgabe, "D&XF und HPGL Format ausgeben", "DXF und HPGL Format ausgeben",
     "Schreibt den ganzen Plan im Druckmaßstab als ZRW.DXF und ZRW.PLT.", "dxf", "Ctrl+E",
     &TZrwMainDlg::SpeedButton16Click, kBrauchtNetz | kGruppenende},

    {"SpeedButton8", Menue::Bearbeiten, "Zeichen&font wählen…", "Zeichenfont wählen",
     "Wählt die Schrift für Punktnummern und Legende.", "schrift", "", &TZrwMainDlg::SpeedButton8Click},
    {"ColorButton", Menue::Bearbeiten, "Zarwik&einstellungen…", "Zarwikeinstellungen",
     "Ändert Farben, Größen, Abstände, Fangradius und Zoomfaktor.", "einstellungen", "",
     &TZrwMainDlg::ColorButtonClick},
    {"WerkzeugAus", Menue::Werkzeuge, "Werkzeug &ausschalten", "Werkzeug ausschalten",
     "Löst den gedrückten Knopf; ein Klick ins Bild tut dann nichts.", "werkzeug_aus", "",
     &TZrwMainDlg::LoeseWerkzeuge, kOhneKnopf},
    {"SpeedButton4", Menue::Hilfe, "Programm&info", "Programminfo", "Nennt Version und Lizenzen.", "info", "",
     &TZrwMainDlg::SpeedButton4Click},
    {"SpeedButton6", Menue::Hilfe, "&Hilfe", "Hilfe", "Öffnet das Handbuch.", "hilfe", "F1",
     &TZrwMainDlg::SpeedButton6Click, kGruppenende},
});

}  // namespace zrw
