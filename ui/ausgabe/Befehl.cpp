#include "ui/ausgabe/Befehl.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "model/Cp1252.h"
#include "model/Zahlentext.h"
#include "ui/Systemart.h"
#include "ui/ausgabe/Ausgabelauf.h"

namespace zrw {
namespace {

std::string Papiername(const Papier& papier) {
    const auto* f = std::find_if(kPapierformate.begin(), kPapierformate.end(),
                                 [&](const Papierformat& p) { return p.hochkant.weite == papier.weite; });
    return std::string((f != kPapierformate.end() ? *f : kPapierformate[0]).name);
}

std::string Zielname(Nummernziel ziel) {
    const auto* z = std::find_if(kNummernziele.begin(), kNummernziele.end(),
                                 [&](const Nummernzielzeile& x) { return x.ziel == ziel; });
    return std::string(z->name);
}

void HaengeListeAn(std::vector<std::string>& worte, const char* option,
                   const std::vector<std::string>& namen) {
    if (namen.empty()) return;
    std::string liste;
    for (const std::string& n : namen)
        liste += (liste.empty() ? "" : ",") + n;
    worte.insert(worte.end(), {option, liste});
}

void HaengeGestaltungAn(std::vector<std::string>& worte, const Blattgestaltung& g) {
    if (g.ueberlappung > 0) worte.insert(worte.end(), {"--ueberlappung", std::to_string(g.ueberlappung)});
    if (g.stift > 0.0) worte.insert(worte.end(), {"--stift", SchreibeReal(g.stift)});
    if (g.schwarzweiss) worte.emplace_back("--schwarzweiss");
    const Blatttexte& t = g.texte;
    for (const auto& [option, text] :
         {std::pair{"--projekt", &t.projekt}, std::pair{"--bearbeiter", &t.bearbeiter},
          std::pair{"--firma", &t.firma}}) {
        if (!text->empty()) worte.insert(worte.end(), {option, Cp1252NachUtf8(*text)});
    }
}

void HaengeFaerbungAn(std::vector<std::string>& worte, const Planfaerbung& f) {
    std::vector<std::string> kategorien;
    for (const Kategoriezeile& z : kLinienkategorien) {
        if (f.filter.kategorien[static_cast<std::size_t>(z.kategorie)]) kategorien.emplace_back(z.name);
    }
    // Such a value the command colours within one kind only.
    if (f.einfaerbung && (!ZurGroesse(f.einfaerbung->groesse).nurJeGattung || kategorien.size() == 1))
        worte.insert(worte.end(), {"--einfaerben", SchreibeEinfaerbung(*f.einfaerbung)});
    HaengeListeAn(worte, "--nur", kategorien);
}

/// Nothing in it means anything to a shell.
bool Unbedenklich(const std::string& wort) {
    constexpr std::string_view kUnbedenkliche = "-_./,:+=@";
    return !wort.empty() && std::all_of(wort.begin(), wort.end(), [&](char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
               kUnbedenkliche.find(c) != std::string_view::npos;
    });
}

std::string InAnfuehrung(const std::string& wort) {
    if (Unbedenklich(wort)) return wort;
    if (kWindows) return '"' + wort + '"';  // names of files hold no such mark there
    std::string text = "'";
    for (const char c : wort)
        c == '\'' ? text += R"('\'')" : text += c;
    return text + '\'';
}

}  // namespace

std::vector<std::string> Befehlsworte(const Format& format, const Ausgabeauftrag& auftrag,
                                      const std::filesystem::path& ordner,
                                      const std::filesystem::path& datei) {
    std::vector<std::string> worte{"zarwik", "--export", std::string(format.name)};
    const unsigned merkmale = Merkmale(format, auftrag.ordnen);
    const auto nimm = [&](const char* option, const std::string& wert) {
        worte.insert(worte.end(), {option, wert});
    };
    if (auftrag.groesse && format.HatMerkmal(kMitGroesse))
        nimm("--groesse",
             std::to_string(auftrag.groesse->weite) + 'x' + std::to_string(auftrag.groesse->hoehe));
    if (auftrag.ordnen) nimm("--nummern-ordnen", Zielname(*auftrag.ordnen));
    if ((merkmale & kMitPapier) != 0) {
        nimm("--papier", Papiername(auftrag.papier));
        if (auftrag.quer) worte.emplace_back("--quer");
        if (auftrag.alleBlaetter && auftrag.blaetter == 1) worte.emplace_back("--alle-blaetter");
        if (auftrag.blaetter > 1) nimm("--blaetter", std::to_string(auftrag.blaetter));
        HaengeGestaltungAn(worte, auftrag.gestaltung);
    }
    // The legend of a picture names a scale, too.
    if (!auftrag.passend) nimm("--massstab", auftrag.massstab);
    if ((merkmale & kMitMassstab) != 0 && auftrag.dpi != kUeblicheAufloesung)
        nimm("--dpi", std::to_string(auftrag.dpi));
    if (auftrag.kantig && format.HatMerkmal(kMitKanten)) worte.emplace_back("--kantig");
    if (format.HatMerkmal(kMitSchaltern) && !format.HatMerkmal(kOhneLegende))
        HaengeFaerbungAn(worte, auftrag.faerbung);
    HaengeListeAn(worte, "--ein", auftrag.ein);
    HaengeListeAn(worte, "--aus", auftrag.aus);
    if (auftrag.ellipsenmassstab > 0.0) nimm("--ellipsenmassstab", SchreibeReal(auftrag.ellipsenmassstab));
    nimm("--ziel", PfadText(ordner));
    worte.push_back(PfadText(datei));
    return worte;
}

std::string Befehlszeile(const std::vector<std::string>& worte) {
    std::string zeile;
    for (const std::string& wort : worte)
        zeile += (zeile.empty() ? "" : " ") + InAnfuehrung(wort);
    return zeile;
}

}  // namespace zrw
