#include "output/Geojson.h"

#include <array>
#include <cmath>
#include <limits>
#include <string>
#include <utility>

#include "geo/Zrwgeo.h"
#include "model/Cp1252.h"
#include "model/Linienarten.h"
#include "model/Netzarten.h"
#include "model/Punktarten.h"
#include "model/Punktsymbole.h"
#include "model/Zahlentext.h"
#include "output/Textausgabe.h"

namespace zrw {
namespace {

constexpr double kZonenschritt = 1e6;
constexpr int kBessel = 1;
constexpr int kHayford = 2;
constexpr int kKrassowsky = 3;
constexpr int kWgs84 = 5;
constexpr int kGrs80 = 6;

/// A family of grids whose codes run with their zones.
struct Gitterfamilie {
    Abbildung abbildung;
    int ellipsoid;
    bool kennziffer;  ///< the easting begins with the number of the zone
    int vonZone, bisZone;
    int epsgNull;  ///< code of zone 0
};

constexpr auto kGitter = std::to_array<Gitterfamilie>({
    {Abbildung::GaussKrueger, kBessel, true, 2, 5, 31464},     // DHDN, 3 degree zones
    {Abbildung::GaussKrueger, kKrassowsky, true, 3, 5, 2394},  // Pulkovo 1942(83), 3 degree zones
    {Abbildung::Utm, kGrs80, false, 28, 38, 25800},            // ETRS89
    {Abbildung::Utm, kWgs84, false, 1, 60, 32600},             // WGS 84, north
    {Abbildung::Utm, kHayford, false, 28, 38, 23000},          // ED50
    {Abbildung::Utm, kGrs80, true, 31, 31, 5649 - 31},         // ETRS89 with the zone in the easting
    {Abbildung::Utm, kGrs80, true, 32, 32, 4647 - 32},
    {Abbildung::Utm, kGrs80, true, 33, 33, 5650 - 33},
});

/// Picture files may hold values without a name; they stay as they are and say nothing here.
std::string Symbolname(PunktTyp typ) {
    const Punktsymbol* symbol = ZumSymbol(typ);
    return symbol != nullptr ? std::string(symbol->name) : std::string();
}

/// "AR1,ST,DH1".
std::string Beobachtungen(const Kante& k) {
    std::string arten(ZurLinie(k.LAttr).name);
    for (const Beobachtungsart& b : kBeobachtungsarten) {
        if (k.KAttr.HatArt(b.art)) arten += (arten.empty() ? "" : ",") + std::string(b.name);
    }
    return arten;
}

/// Cartesian networks come into the plane by Gauss-Krüger, whatever else their file says.
Abbildung AbbildungVon(const Netzangaben& angaben) {
    return PunkteInGaussKrueger(angaben.Netztyp) ? Abbildung::GaussKrueger
                                                 : static_cast<Abbildung>(angaben.Abbildungsmodus);
}

class Geojson {
  public:
    Geojson(Dateien& dateien, const std::filesystem::path& datei) : aus_(dateien.BeginneDatei(datei)) {}

    void Kopf(const std::string& name, std::optional<int> epsg) {
        aus_.NimmText("{\"type\":\"FeatureCollection\",\"name\":");
        Text(name);
        if (epsg) {
            aus_.NimmText(",\"crs\":{\"type\":\"name\",\"properties\":{\"name\":\"urn:ogc:def:crs:EPSG::" +
                          std::to_string(*epsg) + "\"}}");
        }
        aus_.NimmText(",\"features\":[");
    }
    void BeginneFigur() {
        aus_.NimmText(std::exchange(erste_, false) ? "\n" : ",\n");
        aus_.NimmText("{\"type\":\"Feature\",\"properties\":{");
        erstesFeld_ = true;
    }
    void Feld(const char* name, const std::string& text) {
        Name(name);
        Text(text);
    }
    void Feld(const char* name, bool wert) {
        Name(name);
        aus_.NimmText(wert ? "true" : "false");
    }
    void Feld(const char* name, double wert) {
        if (!std::isfinite(wert)) return;
        Name(name);
        aus_.NimmText(SchreibeReal(wert));
    }
    void Punkt(Welt ort) {
        aus_.NimmText("},\"geometry\":{\"type\":\"Point\",\"coordinates\":");
        Ort(ort);
        aus_.NimmText("}}");
    }
    void Linie(Welt von, Welt nach) {
        aus_.NimmText("},\"geometry\":{\"type\":\"LineString\",\"coordinates\":[");
        Ort(von);
        aus_.NimmText(",");
        Ort(nach);
        aus_.NimmText("]}}");
    }
    void SchliesseDatei() {
        aus_.NimmText("\n]}\n");
        aus_.SichereDatei();
        aus_.ErsetzeZiel();
    }

  private:
    void Name(const char* name) {
        if (!std::exchange(erstesFeld_, false)) aus_.NimmText(",");
        Text(name);
        aus_.NimmText(":");
    }
    void Text(std::string_view utf8) {
        std::string text = "\"";
        for (const char c : utf8) {
            if (c == '"' || c == '\\') text += '\\';
            text += static_cast<unsigned char>(c) < 0x20 ? ' ' : c;
        }
        aus_.NimmText(text + "\"");
    }
    void Ort(Welt w) { aus_.NimmText("[" + SchreibeReal(w.rechts) + "," + SchreibeReal(w.hoch) + "]"); }

    Textausgabe aus_;
    bool erste_ = true;
    bool erstesFeld_ = true;
};

bool Endlich(const PunktKnoten& p) {
    return std::isfinite(p.XWPu) && std::isfinite(p.YWPu);
}

void SchreibePunkt(Geojson& g, const Netz& netz, const PunktKnoten& p, const Punktergebnisse* ergebnisse) {
    const std::string nummer = netz.GetPktText(p.PNr);
    constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
    g.BeginneFigur();
    g.Feld("nummer", Cp1252NachUtf8(nummer));
    g.Feld("punktart", std::string(ZurArt(p.Item->PktArt).kuerzel));
    g.Feld("symbol", Symbolname(p.Item->PktTyp));
    g.Feld("sichtbar", p.Item->Visible);
    if (const Punktergebnis* e =
            ergebnisse != nullptr && !nummer.empty() ? ergebnisse->ErgebnisZu(nummer) : nullptr) {
        for (const auto& [name, wert] : {std::pair{"y_ausgeglichen", e->Y},
                                         {"x_ausgeglichen", e->X},
                                         {"h_ausgeglichen", e->H},
                                         {"dY", e->dY},
                                         {"dX", e->dX},
                                         {"dH", e->dH},
                                         {"ellipse_a", e->A},
                                         {"ellipse_b", e->B},
                                         {"ellipse_phi", e->Phi},
                                         {"mL", e->mLBekannt ? e->mL : kNan},
                                         {"mH", e->mH}})
            g.Feld(name, wert);
    }
    g.Punkt({p.XWPu, p.YWPu});
}

}  // namespace

std::optional<int> EpsgCode(const Netzangaben& angaben, const Netz& netz) {
    if (!HatKartengitter(angaben.Netztyp) || netz.PunktKnoten == nullptr) return std::nullopt;
    // Angles are in no grid, and what the file does not say would be a guess.
    if (ZumTyp(angaben.Netztyp).koordinaten == Koordinaten::Winkel) return std::nullopt;
    if (!angaben.AbbildungGenannt || !angaben.EllipsoidGenannt) return std::nullopt;
    double min = std::numeric_limits<double>::infinity();
    double max = -min;
    for (const PunktKnoten* p = netz.PunktKnoten; p != nullptr; p = p->Next) {
        if (!Endlich(*p)) return std::nullopt;
        min = std::min(min, p->XWPu);
        max = std::max(max, p->XWPu);
    }
    if (angaben.Hauptmeridian < -180 || angaben.Hauptmeridian > 180) return std::nullopt;
    const Abbildung abbildung = AbbildungVon(angaben);
    const bool utm = abbildung == Abbildung::Utm;
    // Zones have their meridians every 3 or 6 degrees; others belong to no common grid.
    const int versatz = utm ? angaben.Hauptmeridian + 183 : angaben.Hauptmeridian;
    const int breite = utm ? 6 : 3;
    if (versatz % breite != 0) return std::nullopt;
    const int zone = versatz / breite;
    for (const Gitterfamilie& f : kGitter) {
        const double null = f.kennziffer ? zone * kZonenschritt : 0.0;
        if (f.abbildung == abbildung && f.ellipsoid == angaben.Ellipsoid && zone >= f.vonZone &&
            zone <= f.bisZone && min > null && max < null + kZonenschritt)
            return f.epsgNull + zone;
    }
    return std::nullopt;
}

void SchreibeGeojson(const Netz& netz, const Netzangaben& angaben, const Einstellungen& einstellungen,
                     Punktergebnisse* ergebnisse, Dateien& dateien, const std::filesystem::path& datei) {
    if (ergebnisse != nullptr) ergebnisse->ErneuereErgebnisse();
    Geojson g(dateien, datei);
    g.Kopf(PfadText(datei.stem()), EpsgCode(angaben, netz));
    for (const PunktKnoten* p = netz.PunktKnoten; p != nullptr; p = p->Next) {
        if (Endlich(*p)) SchreibePunkt(g, netz, *p, ergebnisse);
    }
    for (const PunktKante* k = netz.KanteKnoten; k != nullptr; k = k->Next) {
        const PunktKnoten* a = netz.SuchPkt(k->ANr);
        const PunktKnoten* e = netz.SuchPkt(k->ENr);
        if (a == nullptr || e == nullptr || !Endlich(*a) || !Endlich(*e)) continue;
        g.BeginneFigur();
        g.Feld("von", Cp1252NachUtf8(netz.GetPktText(k->ANr)));
        g.Feld("nach", Cp1252NachUtf8(netz.GetPktText(k->ENr)));
        g.Feld("beobachtungen", Beobachtungen(*k->Item));
        g.Feld("grob", k->Item->Farbe == einstellungen.GFCol);
        g.Feld("sichtbar", k->Item->Visible);
        g.Linie({a->XWPu, a->YWPu}, {e->XWPu, e->YWPu});
    }
    g.SchliesseDatei();
}

}  // namespace zrw
