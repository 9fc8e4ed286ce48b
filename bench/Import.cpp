// Importing the largest network that the program takes, with and without results, beside the XML library
// reading the same bytes and nothing else.
#include <cstdio>
#include <pugixml.hpp>
#include <string>
#include <vector>

#include "beispiele/Zufall.h"
#include "bench/Messung.h"
#include "bench/Tabelle.h"
#include "input/Systemdateien.h"
#include "input/import/Netzimport.h"
#include "model/Zahlentext.h"

namespace {

using namespace zrw::bench;

constexpr std::size_t kPunkte = 65'535, kBeobachtungen = 200'000, kSpalten = 256;

struct Sicht {
    std::size_t von = 0, nach = 0;
    bool strecke = false;
};

/// Points on a grid; directions and distances to near ones.
std::vector<Sicht> Sichten() {
    zrw::beispiel::Zufall zufall(1);
    std::vector<Sicht> sichten;
    for (std::size_t i = 0; i < kBeobachtungen; ++i) {
        const std::size_t von = i * kPunkte / kBeobachtungen;
        const auto sprung = static_cast<std::size_t>(zufall.Gleich(1.0, 4.0));
        const std::size_t nach = (von + (i % 2 == 0 ? sprung : sprung * kSpalten)) % kPunkte;
        sichten.push_back({von, nach, i % 4 == 3});
    }
    return sichten;
}

std::string Name(std::size_t p) {
    return "P" + std::to_string(100'000 + p * 7919 % kPunkte);
}

std::string Netztext(const std::vector<Sicht>& sichten) {
    zrw::beispiel::Zufall zufall(2);
    std::string xml =
        "<?xml version=\"1.0\" ?>\n<gama-local xmlns=\"http://www.gnu.org/software/gama/gama-local\">\n"
        "<network axes-xy=\"ne\" angles=\"left-handed\">\n<description>Messung</description>\n"
        "<points-observations distance-stdev=\"5\" direction-stdev=\"10\">\n";
    const auto zahl = [&](double von, double bis, int stellen) {
        return zrw::Festkomma(zufall.Gleich(von, bis), 0, stellen);
    };
    for (std::size_t p = 0; p < kPunkte; ++p)
        xml += "<point id=\"" + Name(p) + "\" x=\"" + zahl(5.5e6, 5.6e6, 4) + "\" y=\"" +
               zahl(3.5e6, 3.6e6, 4) + "\" " + (p % 50 == 0 ? "fix=\"xy\"" : "adj=\"xy\"") + " />\n";
    std::size_t stand = kPunkte;
    for (const Sicht& s : sichten) {
        if (s.von != stand)
            xml += (stand == kPunkte ? "<obs from=\"" : "</obs>\n<obs from=\"") + Name(s.von) + "\">\n";
        stand = s.von;
        xml += (s.strecke ? "<distance to=\"" : "<direction to=\"") + Name(s.nach) + "\" val=\"" +
               zahl(0.0, 400.0, 5) + "\" stdev=\"" + zahl(1.0, 9.0, 1) + "\" />\n";
    }
    return xml + "</obs>\n</points-observations>\n</network>\n</gama-local>\n";
}

std::string Ergebnistext(const std::vector<Sicht>& sichten) {
    zrw::beispiel::Zufall zufall(3);
    std::string xml =
        "<?xml version=\"1.0\" ?>\n<gama-local-adjustment>\n"
        "<network-general-parameters axes-xy=\"ne\" angles=\"left-handed\" />\n<coordinates>\n<adjusted>\n";
    const auto element = [&](const char* name, double von, double bis, int stellen) {
        return std::string(1, '<').append(name).append(1, '>') +
               zrw::Festkomma(zufall.Gleich(von, bis), 0, stellen) + "</" + name + ">\n";
    };
    for (std::size_t p = 0; p < kPunkte; ++p)
        xml += "<point><id>" + Name(p) + "</id>" + element("x", 5.5e6, 5.6e6, 5) +
               element("y", 3.5e6, 3.6e6, 5) + "</point>\n";
    xml += "</adjusted>\n<cov-mat><dim>" + std::to_string(2 * kPunkte) + "</dim><band>1</band>\n";
    for (std::size_t i = 0; i + 1 < 4 * kPunkte; ++i)
        xml += element("flt", 1.0, 9.0, 6);
    xml += "</cov-mat>\n</coordinates>\n<observations>\n";
    for (const Sicht& s : sichten) {
        const std::string art = s.strecke ? "distance" : "direction";
        xml += '<' + art + "><from>" + Name(s.von) + "</from><to>" + Name(s.nach) + "</to>\n" +
               element("obs", 0.0, 400.0, 6) + element("adj", 0.0, 400.0, 6) + element("stdev", 1.0, 9.0, 4) +
               element("qrr", 0.0, 1.0, 4) + element("f", 10.0, 60.0, 3) +
               element("std-residual", 0.0, 3.0, 3) + "</" + art + ">\n";
    }
    return xml + "</observations>\n</gama-local-adjustment>\n";
}

bool LiesNur(const std::filesystem::path& datei) {
    pugi::xml_document baum;
    return static_cast<bool>(baum.load_file(datei.c_str()));
}

double MissLesen(const std::filesystem::path& netz, const std::filesystem::path& ergebnisse) {
    return MissZeit([&] { return LiesNur(netz) && (ergebnisse.empty() || LiesNur(ergebnisse)); });
}

double MissImport(const std::filesystem::path& netz, const std::filesystem::path& ergebnisse) {
    return MissZeit([&] {
        zrw::Systemdateien dateien;
        return ImportiereNetz(
            {.netz = netz, .ergebnisse = ergebnisse, .ziel = netz.parent_path() / "ziel", .ersetzen = true},
            dateien, 0);
    });
}

int MissAlles(Tabelle& tabelle) {
    if (!tabelle.aufgabe.empty()) {
        std::printf("%.3f\n", tabelle.aufgabe == "lesen" ? MissLesen(tabelle.datei, {})
                                                         : MissImport(tabelle.datei, {}));
        return 0;
    }
    const Zwischenordner ordner;
    zrw::Systemdateien dateien;
    const auto sichten = Sichten();
    const std::filesystem::path netz = ordner.Pfad() / "netz.gkf", ergebnisse = ordner.Pfad() / "netz.xml";
    dateien.ErsetzeDatei(netz, Netztext(sichten));
    dateien.ErsetzeDatei(ergebnisse, Ergebnistext(sichten));
    const std::size_t klein = dateien.Stand(netz)->groesse,
                      gross = klein + dateien.Stand(ergebnisse)->groesse;
    std::vector<Schritt> schritte{
        {"(a) Netz nur mit der Bibliothek lesen", klein, [&] { return MissLesen(netz, {}); }},
        {"(b) Netz importieren", klein, [&] { return MissImport(netz, {}); }},
        {"(c) Netz und Ergebnisse nur lesen", gross, [&] { return MissLesen(netz, ergebnisse); }},
        {"(d) Netz mit Ergebnissen importieren", gross, [&] { return MissImport(netz, ergebnisse); }},
    };
    // An import is the first thing that a program run does: the library, too, then reads into fresh memory.
    std::vector<Schritt> frisch{
        {"(a) frischer Prozess: nur lesen", klein, [&] { return FrischerProzess("lesen", netz)[0]; }},
        {"(b) frischer Prozess: importieren", klein, [&] { return FrischerProzess("import", netz)[0]; }},
    };
    LaufeSchritte(schritte, tabelle.runden);
    LaufeSchritte(frisch, tabelle.runden);
    DruckeSchritte(schritte);
    DruckeSchritte(frisch);
    std::printf("Speicher (d): %.0f MB\n", MB(Spitzenbedarf([&] { (void)MissImport(netz, ergebnisse); })));
    tabelle.NimmZeile({"Netz aus GNU Gama importieren, frischer Prozess; Vergleich: XML nur lesen",
                       frisch[1].zeiten, frisch[0].zeiten, Verhaeltnis(4)});
    tabelle.NimmZeile({"dasselbe im selben Prozess wiederholt", schritte[1].zeiten, schritte[0].zeiten, {}});
    tabelle.NimmZeile({"dasselbe mit Ergebnissen und Tabellen", schritte[3].zeiten, schritte[2].zeiten, {}});
    return 0;
}

}  // namespace

int main(int anzahl, char** worte) {
    return FuehreMessungAus(anzahl, worte, 7, MissAlles);
}
