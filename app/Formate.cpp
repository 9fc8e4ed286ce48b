#include "app/Formate.h"

#include <QBuffer>
#include <QByteArray>
#include <algorithm>
#include <array>

#include "model/Bilddatei.h"
#include "model/Fehler.h"
#include "output/Export.h"
#include "output/Figurenzeichner.h"
#include "ui/Bildflaeche.h"

namespace zrw {
namespace {

void SchreibeZrw(const Ausgabe& a, const std::filesystem::path& datei) {
    SchreibeBilddatei(a.liste, a.netz, datei, a.dateien);
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

void SchreibeExport(const Ausgabe& a, Exportauftrag auftrag) {
    const Systemuhr uhr;
    Figurenzeichner zeichner(a.zustand, a.einstellungen, a.netz, uhr);
    auftrag.faktor = a.druckfaktor;
    Exportiere(a.liste, zeichner, a.zustand, a.dateien, auftrag);
}

constexpr std::array<Format, 5> kFormate{{
    {"zrw", ".ZRW", {}, &SchreibeZrw},
    {"png", ".png", {}, [](const Ausgabe& a, const std::filesystem::path& d) { SchreibeBild(a, d, "PNG"); }},
    {"bmp", ".bmp", {}, [](const Ausgabe& a, const std::filesystem::path& d) { SchreibeBild(a, d, "BMP"); }},
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
