// The topics of the manual and where they belong: one row per page in the order of the contents, one row per
// component that has a page. Dialogs stand here once; their controls find the page of their dialog.
#pragma once

#include <QWidget>
#include <algorithm>
#include <array>
#include <string>
#include <string_view>

#include "model/Aufzaehltafel.h"

namespace zrw {

/// A page of the manual, ":/hilfe/" + `datei`.
struct Hilfethema {
    int kontext;              ///< number of the help context
    std::string_view datei;   ///< begins with the number
    std::string_view titel;   ///< as in the heading of the page, UTF-8
    std::string_view gruppe;  ///< heading in the contents, UTF-8; rows of one group stand together
};

inline constexpr std::string_view kErsteSchritte = "Das Programm";
inline constexpr std::string_view kDarstellung = "Das Bild";
inline constexpr std::string_view kMausbedienung = "Werkzeuge";
inline constexpr std::string_view kDialogfenster = "Fenster";
inline constexpr std::string_view kNachschlagen = "Nachschlagen";

/// Page that help opens with, and for everything that has none of its own.
inline constexpr int kErsteSeite = 1;

inline constexpr auto kHilfethemen = std::to_array<Hilfethema>({
    {kErsteSeite, "01_erste_schritte.md", "Erste Schritte", kErsteSchritte},
    {5, "05_dateien.md", "Öffnen, speichern, beenden", kErsteSchritte},
    {47, "47_gama.md", "Netze aus GNU Gama", kErsteSchritte},
    {26, "26_rueckgaengig.md", "Änderungen zurücknehmen", kErsteSchritte},
    {33, "33_hilfe.md", "Hilfe und Programminfo", kErsteSchritte},

    {2, "02_linienstile.md", "Linien lesen", kDarstellung},
    {6, "06_ansicht.md", "Ansicht und Zoom", kDarstellung},
    {9, "09_punkt_anzeigen.md", "Punkt suchen und anzeigen", kDarstellung},
    {25, "25_schalter.md", "Schalter der Darstellung", kDarstellung},
    {4, "04_kartengitter.md", "Kartenblätter und Kilometerquadrate", kDarstellung},
    {28, "28_legende.md", "Legende", kDarstellung},
    {42, "42_nummern_ordnen.md", "Nummern ordnen", kDarstellung},
    {40, "40_seitenleiste.md", "Seitenleiste", kDarstellung},
    {36, "36_genauigkeiten.md", "Verbesserungen und Genauigkeiten", kDarstellung},
    {45, "45_einfaerben.md", "Einfärben", kDarstellung},
    {46, "46_statistik.md", "Statistik der Beobachtungen", kDarstellung},

    {34, "34_werkzeuge.md", "Mit Werkzeugen arbeiten", kMausbedienung},
    {7, "07_bild_verschieben.md", "Bild verschieben", kMausbedienung},
    {8, "08_zoomen_mit_der_maus.md", "Zoomen mit der Maus", kMausbedienung},
    {10, "10_punkt_verschieben.md", "Punkt verschieben", kMausbedienung},
    {11, "11_punktnummer_verschieben.md", "Punktnummer verschieben", kMausbedienung},
    {12, "12_beobachtung_aendern.md", "Beobachtung ändern", kMausbedienung},
    {13, "13_punkt_loeschen.md", "Punkt löschen", kMausbedienung},
    {14, "14_beobachtung_loeschen.md", "Beobachtung löschen", kMausbedienung},
    {15, "15_punktart_aendern.md", "Punktart ändern", kMausbedienung},
    {16, "16_zentrierung_mit_maus.md", "Punktzentrierung mit Maus", kMausbedienung},
    {17, "17_punktzentrierung.md", "Punktzentrierung", kMausbedienung},
    {18, "18_punkt_verstecken.md", "Punkt verstecken", kMausbedienung},
    {21, "21_punktnummer_verstecken.md", "Punktnummer verstecken", kMausbedienung},
    {37, "37_strecken_messen.md", "Strecken messen", kMausbedienung},
    {39, "39_auswahl.md", "Auswählen ohne Werkzeug", kMausbedienung},
    {24, "24_ergebnisse.md", "Ausgleichungsergebnisse zeigen", kMausbedienung},
    {43, "43_grobe_fehler.md", "Grobe Fehler finden", kMausbedienung},

    {20, "20_beobachtungstyp.md", "Fenster „Beobachtungstyp“", kDialogfenster},
    {19, "19_punktart.md", "Fenster „Punktart“", kDialogfenster},
    {22, "22_punkte_verstecken.md", "Fenster „Punkte verstecken“", kDialogfenster},
    {23, "23_versteckte_punkte.md", "Fenster „Versteckte Punkte“", kDialogfenster},
    {38, "38_ausgeben.md", "Fenster „Ausgeben“", kDialogfenster},
    {30, "30_einstellungen.md", "Zarwikeinstellungen und Schrift", kDialogfenster},

    {32, "32_tasten.md", "Tasten und Maus", kNachschlagen},
    {35, "35_drucken.md", "Drucken und Bild speichern", kNachschlagen},
    {41, "41_plan_abgeben.md", "Plan abgeben", kNachschlagen},
    {3, "03_ausgabe.md", "Plan ausgeben: DXF und HPGL/2", kNachschlagen},
    {27, "27_dateiformate.md", "Dateien und Formate", kNachschlagen},
    {44, "44_spalten.md", "Spalten der Ergebnisse", kNachschlagen},
    {29, "29_stapelbetrieb.md", "Stapelbetrieb", kNachschlagen},
    {31, "31_meldungen.md", "Meldungen", kNachschlagen},
});

static_assert(Verschieden(kHilfethemen, &Hilfethema::kontext));

/// A component by its object name, and the page about it.
struct Hilfekomponente {
    std::string_view komponente;
    int kontext;
};

inline constexpr auto kHilfekomponenten = std::to_array<Hilfekomponente>({
    // Files
    {"SpeedButton1", 5},
    {"SpeedButton2", 5},
    {"NetzImport", 47},
    {"ImportDialog", 47},
    {"SpeedButton9", 5},
    {"SpeedButton7", 5},
    {"LetzteDateienButton", 5},
    {"StartSeite", 5},
    // View
    {"ImageZarwik", 6},
    {"StatusBar1", 6},
    {"ButtonGroesser", 6},
    {"ButtonKleiner", 6},
    {"SpeedButton3", 6},
    {"EinpassenButton", 6},
    {"FruehereAnsicht", 6},
    {"SpaetereAnsicht", 6},
    {"SeitenLeiste", 40},
    {"EinfaerbenWahl", 45},
    {"FarbSeite", 45},
    {"StatistikWahl", 46},
    {"StatistikSeite", 46},
    {"PunktSuche", 9},
    {"ComboBox1", 9},
    {"SpeedButton10", 9},
    // Tools
    {"WerkzeugAus", 34},
    {"PanButton", 7},
    {"ZoomInButton", 8},
    {"MovePktButton", 10},
    {"MoveTextButton", 11},
    {"EditBeobButton", 12},
    {"DelPunktButton", 13},
    {"DelBeobButton", 14},
    {"PunktartButton", 15},
    {"ZentrierButton", 16},
    {"SpeedButton13", 17},
    {"GroupBox1", 17},
    {"HidePktButton", 18},
    {"HidePktNrButton", 21},
    {"NummernZeigenButton", 21},
    {"NummernOrdnenButton", 42},
    {"MessenButton", 37},
    {"DataButton", 24},
    {"ErgebnisMassstab", 36},
    {"BeobachtungsListe", 43},
    {"NaechsterFehler", 43},
    {"VorigerFehler", 43},
    {"FehlerHinweis", 43},
    {"BeobachtungsTabelle", 43},
    {"SpeedButton14", 22},
    {"SpeedButton15", 23},
    {"RueckgaengigButton", 26},
    {"WiederholenButton", 26},
    // Output
    {"SpeedButton5", 35},
    {"SpeedButton11", 35},
    {"VorschauButton", 35},
    {"SpeedButtonClipbrd", 35},
    {"SpeedButton16", 3},
    {"AusgabeWahl", 38},
    {"BlattRahmen", 41},
    {"PassenderMassstab", 41},
    {"EditMasstab", 35},
    {"SpeedButton12", 28},
    // Program
    {"ColorButton", 30},
    {"SpeedButton8", 30},
    {"SpeedButton4", 33},
    {"SpeedButton6", 33},
    // Switches
    {"CheckBoxGitter", 4},
    {"CheckBoxKMQ", 4},
    {"CheckBoxBlattschnitt", 4},
    {"CheckBoxMassbalken", 25},
    {"CheckBoxHalo", 25},
    {"CheckBoxZeichenerklaerung", 28},
    {"CheckBoxPktNr", 25},
    {"CheckBoxBeob", 25},
    {"CheckBoxPreview", 35},
    {"CheckBoxLGRes", 36},
    {"CheckBoxHRes", 36},
    {"CheckBoxLgGen", 36},
    {"CheckBoxHGen", 36},
    {"CheckBoxKooVergleich", 36},
    {"CheckBoxRelEllipsen", 36},
    {"CheckBoxResiduenPfeile", 36},
    {"CheckBoxEllipsenGefuellt", 36},
    {"CheckBoxEllipsenSicher", 36},
    {"CheckBoxFP", 25},
    {"CheckBoxFL", 25},
    {"CheckBoxFH", 25},
    {"CheckBoxNP", 25},
    {"CheckBoxHilfspunkte", 25},
    {"CheckBoxALKKurz", 25},
    // Windows
    {"TZrwMainDlg", kErsteSeite},
    {"TFormPunktart", 19},
    {"TFormBeobTyp", 20},
    {"TFormHidePunkte", 22},
    {"TFormHiddenPkt", 23},
    {"TFormData", 24},
    {"BeobachtungsFenster", 43},
    {"Druckvorschau", 35},
    {"BlattDialog", 41},
    {"MassstabEinpassen", 41},
    {"AusgabeDialog", 38},
    {"OrdnungsDialog", 42},
    {"ResiduenDialog", 36},
    {"TZRWLBLForm", 28},
    {"TZRWParameter", 30},
    {"TAboutBox", 33},
    {"Hilfefenster", 33},
});

static_assert(Verschieden(kHilfekomponenten, &Hilfekomponente::komponente));

/// For assertions: every component that a table names has its page.
template <class Zeile, std::size_t N, class Name>
[[nodiscard]] consteval bool HabenSeiten(const std::array<Zeile, N>& tafel, Name Zeile::*komponente) {
    return std::all_of(tafel.begin(), tafel.end(), [&](const Zeile& z) {
        const std::string_view name = z.*komponente;
        return name.empty() || std::any_of(kHilfekomponenten.begin(), kHilfekomponenten.end(),
                                           [&](const Hilfekomponente& h) { return h.komponente == name; });
    });
}

/// Row of a help context, or null.
[[nodiscard]] constexpr const Hilfethema* FindeThema(int kontext) {
    for (const Hilfethema& t : kHilfethemen) {
        if (t.kontext == kontext) return &t;
    }
    return nullptr;
}

/// Help context of a component by its object name, or null.
[[nodiscard]] inline const int* ThemaZu(std::string_view name) {
    const auto* k = std::find_if(kHilfekomponenten.begin(), kHilfekomponenten.end(),
                                 [&](const Hilfekomponente& h) { return h.komponente == name; });
    return k != kHilfekomponenten.end() ? &k->kontext : nullptr;
}

/// Help context of a widget: that of the nearest component with a page from the widget upwards, across
/// dialogs to their owner; the first page for null and where there is none.
[[nodiscard]] inline int ThemaZu(const QWidget* bedienelement) {
    for (const QWidget* w = bedienelement; w != nullptr; w = w->parentWidget()) {
        if (const int* kontext = ThemaZu(w->objectName().toStdString()); kontext != nullptr) return *kontext;
    }
    return kErsteSeite;
}

}  // namespace zrw
