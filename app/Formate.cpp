#include "app/Formate.h"

#include <QBuffer>
#include <QByteArray>
#include <algorithm>
#include <array>

#include "model/Bilddatei.h"
#include "model/Cp1252.h"
#include "model/Fehler.h"
#include "output/Blattschnitt.h"
#include "output/Druck.h"
#include "output/Export.h"
#include "output/Figurenzeichner.h"
#include "output/Geojson.h"
#include "output/Pdfflaeche.h"
#include "output/Svgflaeche.h"
#include "ui/Bildflaeche.h"

namespace zrw {
namespace {

void SchreibeZrw(const Ausgabe& a, const std::filesystem::path& datei) {
    const std::string weg = WeggelasseneNummern(SchreibeBilddatei(a.liste, a.netz, datei, a.dateien));
    if (!weg.empty()) a.sage(Fehler::Meldung(weg, PfadText(datei), 0));
}

/// Draws the picture as the window would show it and writes it in one of Qt's picture formats.
void SchreibeBild(const Ausgabe& a, const std::filesystem::path& datei, const char* art) {
    Bildflaeche flaeche(a.liste.Weite, a.liste.Hoehe);
    a.zustand.flaeche = &flaeche;
    const Systemuhr uhr;
    Figurenzeichner zeichner(a.zustand, a.einstellungen, a.netz, uhr);
    a.liste.ShowPicture(zeichner);
    a.zustand.flaeche = nullptr;
    QByteArray bytes;
    QBuffer puffer(&bytes);
    puffer.open(QIODevice::WriteOnly);
    if (flaeche.Bild().isNull() || !flaeche.Bild().save(&puffer, art)) {
        throw Fehler("Das Bild ist zu groß für dieses Format.", PfadText(datei));
    }
    a.dateien.Ersetze(datei, {bytes.constData(), static_cast<std::size_t>(bytes.size())});
}

/// What the control file calls the network, or else its file's name.
std::string Titel(const Ausgabe& a) {
    return a.liste.Legend->Bez1.empty() ? Utf8NachCp1252(a.eingabe) : a.liste.Legend->Bez1;
}

/// The picture as the window would show it, to any size.
void SchreibeSvg(const Ausgabe& a, const std::filesystem::path& datei) {
    Svgflaeche flaeche(a.dateien.Beginne(datei), {a.liste.Weite, a.liste.Hoehe, kBildaufloesung}, Titel(a));
    a.zustand.flaeche = &flaeche;
    const Systemuhr uhr;
    Figurenzeichner zeichner(a.zustand, a.einstellungen, a.netz, uhr);
    a.liste.ShowPicture(zeichner);
    a.zustand.flaeche = nullptr;
    flaeche.Beende();
}

/// A sheet of paper at scale, as a printer would print it.
void SchreibePdf(const Ausgabe& a, const std::filesystem::path& datei) {
    Pdfflaeche flaeche(a.dateien.Beginne(datei), a.papier, a.dpi, {Titel(a), nullptr});
    Einstellungen groessen = a.einstellungen;  // printing scales them
    const Systemuhr uhr;
    Figurenzeichner zeichner(a.zustand, groessen, a.netz, uhr);
    Druckauftrag auftrag{a.massstab, a.massstabtext, Bedruckbar(a.papier, a.dpi), {}};
    const Welt ecke = a.liste.BildinWelt({});
    std::vector<Blatt> blaetter;
    try {
        blaetter = Blattschnitt(a.liste, a.massstab, auftrag.seite, ecke);
    } catch (const Fehler&) {
        if (a.alleBlaetter) throw;
    }
    if (!a.alleBlaetter || blaetter.empty()) {
        if (blaetter.size() > 1) {
            a.sage(Fehler::Meldung(
                "Der Plan braucht in diesem Maßstab " + std::to_string(blaetter.size()) +
                    " Blätter; geschrieben ist das oben links (--alle-blaetter schreibt alle).",
                PfadText(datei), 0));
        }
        blaetter = {{0, 0, ecke}};
    }
    for (std::size_t i = 0; i < blaetter.size(); ++i) {
        if (i > 0) flaeche.NeueSeite();
        auftrag.ecke = blaetter[i].ecke;
        Drucke(a.liste, zeichner, a.zustand, groessen, flaeche, auftrag);
    }
    flaeche.Beende();
}

void SchreibeExport(const Ausgabe& a, Exportauftrag auftrag) {
    const Systemuhr uhr;
    Figurenzeichner zeichner(a.zustand, a.einstellungen, a.netz, uhr);
    auftrag.faktor = Druckfaktor(a.massstab, a.dpi);
    Exportiere(a.liste, zeichner, a.zustand, a.dateien, auftrag);
}

void SchreibeGis(const Ausgabe& a, const std::filesystem::path& datei) {
    Netzangaben netz = a.netz;
    // A picture file keeps neither ellipsoid nor meridian: its grid is not known.
    if (a.ausBild) netz.Netztyp = 0;
    SchreibeGeojson(a.liste, netz, a.einstellungen, a.zustand.Ergebnisse, a.dateien, datei);
}

constexpr std::array<Format, 8> kFormate{{
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
}};

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
