#include "app/Formate.h"

#include <QBuffer>
#include <QByteArray>
#include <algorithm>
#include <array>
#include <cmath>

#include "model/Aufzaehltafel.h"
#include "model/Bilddatei.h"
#include "model/Cp1252.h"
#include "model/Fehler.h"
#include "model/Zahlentext.h"
#include "output/Blattschnitt.h"
#include "output/Druck.h"
#include "output/Export.h"
#include "output/Figurenzeichner.h"
#include "output/Geojson.h"
#include "output/Pdfflaeche.h"
#include "output/Svgflaeche.h"
#include "ui/bild/Bildflaeche.h"
#include "ui/bild/Malerflaeche.h"
#include "ui/bild/Schriftquelle.h"

namespace zrw {
namespace {

void SchreibeZrw(const Ausgabe& a, const std::filesystem::path& datei) {
    const std::string weg = WeggelasseneNummern(SchreibeBilddatei(a.liste, a.netz, datei, a.dateien));
    if (!weg.empty()) a.sage(Fehler::Meldung(weg, PfadText(datei), 0));
}

/// Draws the picture as the window would show it.
void ZeichneAuf(Zeichenflaeche& flaeche, const Ausgabe& a) {
    Zeichenzustand zustand = a.zustand;
    zustand.flaeche = &flaeche;
    const Systemuhr uhr;
    Figurenzeichner zeichner(zustand, a.einstellungen, a.netz, uhr);
    a.liste.ShowPicture(zeichner);
}

/// Draws the picture as the window would show it and writes it in one of Qt's picture formats.
void SchreibeBild(const Ausgabe& a, const std::filesystem::path& datei, const char* art) {
    Bildflaeche flaeche(a.liste.Weite, a.liste.Hoehe);
    flaeche.SetzeGlatt(!a.kantig);
    ZeichneAuf(flaeche, a);
    QByteArray bytes;
    QBuffer puffer(&bytes);
    puffer.open(QIODevice::WriteOnly);
    if (flaeche.Bild().isNull() || !flaeche.Bild().save(&puffer, art)) {
        throw Fehler("Das Bild ist zu groß für dieses Format.", PfadText(datei));
    }
    a.dateien.ErsetzeDatei(datei, {bytes.constData(), static_cast<std::size_t>(bytes.size())});
}

/// What the control file calls the network, or else its file's name.
std::string Titel(const Ausgabe& a) {
    return a.liste.Legend->Bez1.empty() ? Utf8NachCp1252(a.eingabe) : a.liste.Legend->Bez1;
}

/// The picture as the window would show it, to any size.
void SchreibeSvg(const Ausgabe& a, const std::filesystem::path& datei) {
    Svgflaeche flaeche(a.dateien.BeginneDatei(datei), {a.liste.Weite, a.liste.Hoehe, kBildaufloesung},
                       Titel(a));
    ZeichneAuf(flaeche, a);
    flaeche.BeendeDatei();
}

/// Scale of a document: the one that was asked for, or else the largest at which the plan fits its sheet.
struct Planmassstab {
    double wert;
    std::string text;
};

Planmassstab MassstabFuer(const Ausgabe& a, const Druckplan& plan, const Druckseite& seite) {
    const auto passend = a.passend ? PassenderMassstab(plan, seite) : std::nullopt;
    if (!passend) return {a.massstab, a.massstabtext};
    return {*passend, *passend == std::floor(*passend) ? Festkomma(*passend, 0, 0) : SchreibeReal(*passend)};
}

/// The sheets to be written; tells where they do not hold all of the plan.
std::vector<Blatt> WaehleBlaetter(const Ausgabe& a, const Druckplan& plan, double massstab,
                                  const Druckseite& seite, const std::filesystem::path& datei) {
    const auto sage = [&](const std::string& text) {
        a.sage(Fehler::Meldung("Der Plan braucht in diesem Maßstab " + text + ".", PfadText(datei), 0));
    };
    std::vector<Blatt> blaetter;
    try {
        blaetter = Blattaufteilung(plan, massstab, seite);
    } catch (const Fehler&) {
        if (a.alleBlaetter) throw;
        if (const auto erstes = ErstesBlatt(plan, massstab, seite)) blaetter = {*erstes};
        sage("mehr als " + std::to_string(kMeisteBlaetter) +
             " Blätter; geschrieben ist eines am oberen Rand");
    }
    if (blaetter.empty()) return {{0, 0, a.liste.BildinWelt({})}};  // frame, legend and grids alone
    if (a.alleBlaetter || blaetter.size() == 1) return blaetter;
    const Blatt& erstes = blaetter.front();
    sage(std::to_string(blaetter.size()) + " Blätter; geschrieben ist das erste (Zeile " +
         std::to_string(erstes.zeile + 1) + ", Spalte " + std::to_string(erstes.spalte + 1) +
         "), --alle-blaetter schreibt alle");
    return {erstes};
}

/// Sheets of paper at scale, as a printer would print them.
void SchreibePdf(const Ausgabe& a, const std::filesystem::path& datei) {
    const auto schrift = Einbettschrift::AusQuelle(LiesSchriftquelle(Zeichenschrift()));
    if (!schrift) {
        a.sage(Fehler::Meldung("Die Zeichenschrift lässt sich nicht einbetten; die Datei verlangt Helvetica.",
                               PfadText(datei), 0));
    }
    Pdfflaeche flaeche(a.dateien.BeginneDatei(datei), a.papier, a.dpi,
                       {Titel(a), nullptr, schrift ? &*schrift : nullptr});
    Einstellungen groessen = a.einstellungen;  // scaled for every sheet
    const Systemuhr uhr;
    const Zeichenmittel mittel{a.zustand, groessen, a.netz, uhr};
    const Bildvorlage vorlage = a.liste.Vorlage();
    const Druckplan plan{vorlage, mittel, flaeche};
    const Druckseite seite = Bedruckbar(a.papier, a.dpi);
    const auto [massstab, text] = MassstabFuer(a, plan, seite);
    const std::vector<Blatt> blaetter = WaehleBlaetter(a, plan, massstab, seite, datei);
    for (std::size_t i = 0; i < blaetter.size(); ++i) {
        if (i > 0) flaeche.NeueSeite();
        DruckePlan(vorlage, mittel, Geraetegroessen(groessen, Geraetefaktor(seite)), flaeche,
                   {massstab, text, seite, blaetter[i].ecke});
    }
    flaeche.BeendeDatei();
}

void SchreibeExport(const Ausgabe& a, Exportauftrag auftrag) {
    const Systemuhr uhr;
    auftrag.faktor = Druckfaktor(a.massstab, a.dpi);
    ExportierePlan(a.liste.Vorlage(), {a.zustand, a.einstellungen, a.netz, uhr}, a.dateien, auftrag);
}

void SchreibeGis(const Ausgabe& a, const std::filesystem::path& datei) {
    Netzangaben netz = a.netz;
    // A picture file keeps neither ellipsoid nor meridian: its grid is not known.
    if (a.ausBild) netz.Netztyp = 0;
    SchreibeGeojson(a.liste, netz, a.einstellungen, a.zustand.Ergebnisse, a.dateien, datei);
}

constexpr auto kFormate = std::to_array<Format>({
    {"zrw", ".ZRW", {}, &SchreibeZrw},
    {"png", ".png", {}, [](const Ausgabe& a, const std::filesystem::path& d) { SchreibeBild(a, d, "PNG"); }},
    {"bmp", ".bmp", {}, [](const Ausgabe& a, const std::filesystem::path& d) { SchreibeBild(a, d, "BMP"); }},
    {"svg", ".svg", {}, &SchreibeSvg},
    {"pdf", ".pdf", {}, &SchreibePdf},
    {"geojson", ".geojson", {}, &SchreibeGis},
    {"dxf",
     {},
     kDxfname,
     [](const Ausgabe& a, const std::filesystem::path& d) { SchreibeExport(a, {.plot = {}, .dxf = d}); }},
    {"plt",
     {},
     kPlotname,
     [](const Ausgabe& a, const std::filesystem::path& d) { SchreibeExport(a, {.plot = d, .dxf = {}}); }},
});

static_assert(Verschieden(kFormate, &Format::name));

}  // namespace

const Format* FindeFormat(std::string_view name) {
    const auto* f =
        std::find_if(kFormate.begin(), kFormate.end(), [&](const Format& x) { return x.name == name; });
    return f != kFormate.end() ? f : nullptr;
}

std::string Formatnamen() {
    std::string namen;
    for (const Format& f : kFormate)
        namen += (namen.empty() ? "" : ", ") + std::string(f.name);
    return namen;
}

}  // namespace zrw
