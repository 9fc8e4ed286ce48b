#include "input/import/Netzimport.h"

#include <algorithm>
#include <memory>
#include <utility>

#include "input/Feldleser.h"
#include "input/Systemdateien.h"
#include "input/import/Ergebnisschreiber.h"
#include "input/import/Importformat.h"
#include "input/import/Namensgeber.h"
#include "input/import/Namensliste.h"
#include "input/import/Steuerschreiber.h"
#include "model/Cp1252.h"
#include "model/Fehler.h"

namespace zrw {
namespace {

using namespace fremd;

struct Formatfund {
    const Importformat* format = nullptr;
    Importrolle rolle = Importrolle::Keine;
};

Formatfund FindeFormat(std::string_view wurzel) {
    for (const Importformat& f : kImportformate) {
        if (wurzel == f.netzwurzel) return {&f, Importrolle::Netz};
        if (wurzel == f.ergebniswurzel) return {&f, Importrolle::Ergebnisse};
    }
    return {};
}

/// A file that must be what it is asked for. @throws Fehler
Xmldatei LiesFremddatei(const std::filesystem::path& datei, const Dateien& dateien) {
    return {datei, dateien};
}

Formatfund Pruefe(const Xmldatei& xml, Importrolle rolle) {
    const Formatfund fund = FindeFormat(Elementname(xml.Wurzel()));
    if (fund.rolle == rolle) return fund;
    std::string bekannt;
    for (const Importformat& f : kImportformate) {
        bekannt += bekannt.empty() ? "" : ", ";
        bekannt += '<' + std::string(rolle == Importrolle::Netz ? f.netzwurzel : f.ergebniswurzel) + '>';
    }
    xml.WirfFehler(
        std::string(rolle == Importrolle::Netz ? "Das ist kein Netz" : "Das sind keine Ergebnisse") +
            ", das Zarwik importieren kann: Das Wurzelelement ist <" +
            std::string(Elementname(xml.Wurzel())) + "> statt " + bekannt + '.',
        xml.Wurzel());
}

std::filesystem::path Zielordner(const Importauftrag& auftrag) {
    return auftrag.ziel.empty() ? ImportOrdner(auftrag.netz) : auftrag.ziel;
}

std::filesystem::path Steuerdatei(const Importauftrag& auftrag) {
    std::filesystem::path name = auftrag.netz.stem();
    name += ".EIN";
    return Zielordner(auftrag) / name;
}

/// All names that an import may write or that would belong to another one, without their folder.
std::vector<std::filesystem::path> Zielnamen(const Importauftrag& auftrag) {
    const std::filesystem::path steuerdatei = Steuerdatei(auftrag);
    std::vector<std::filesystem::path> namen{steuerdatei.filename(),
                                             Namenslistendatei(steuerdatei).filename()};
    for (const std::string& tabelle : Tabellendateien())
        namen.push_back(TextPfad(tabelle));
    return namen;
}

/// All files at once: each is on the disk before the first takes its place.
void SchreibeDateien(const std::filesystem::path& ordner,
                     const std::vector<std::pair<std::filesystem::path, std::string>>& inhalte,
                     Dateien& dateien) {
    std::vector<std::unique_ptr<Dateischreiber>> schreiber;
    for (const auto& [name, inhalt] : inhalte) {
        schreiber.push_back(dateien.BeginneDatei(ordner / name));
        schreiber.back()->SchreibeBytes(inhalt);
        schreiber.back()->SichereDatei();
    }
    for (const auto& s : schreiber)
        s->ErsetzeZiel();
}

/// The sources stay, whatever may be replaced.
void PruefeQuellen(const Importauftrag& auftrag) {
    for (const std::filesystem::path& quelle : {auftrag.netz, auftrag.ergebnisse}) {
        for (const std::filesystem::path& name : Zielnamen(auftrag)) {
            if (DieselbeDatei(Zielordner(auftrag) / name, quelle))
                throw Fehler(
                    "Der Import würde seine eigene Quelle überschreiben. Bitte einen anderen Zielordner "
                    "wählen.",
                    PfadText(quelle));
        }
    }
}

void PruefeZiele(const Importauftrag& auftrag, const Dateien& dateien) {
    PruefeQuellen(auftrag);
    if (auftrag.ersetzen) return;
    const auto vorhanden = ImportZiele(auftrag, dateien);
    if (vorhanden.empty()) return;
    throw Fehler(
        "Im Zielordner liegt schon „" + PfadText(vorhanden.front().filename()) +
            (vorhanden.size() > 1 ? "“ (und " + std::to_string(vorhanden.size() - 1) + " weitere)" : "“") +
            ". Es wurde nichts geschrieben.",
        PfadText(Zielordner(auftrag)));
}

char Grossbuchstabe(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

bool IstHeil(const std::string& text) {
    const auto einfach = [](char c) { return static_cast<unsigned char>(c) < 0x80U; };
    return std::all_of(text.begin(), text.end(), einfach) || IstUtf8(text);
}

/// The point numbers, and the list of those that are not the names.
std::vector<std::string> Benenne(const Fremdnetz& netz, std::vector<Namenspaar>& geaendert) {
    // What is no UTF-8 is read as code page 1252; the mark behind it keeps it apart from names that are.
    constexpr const char* kMarke = "\uFFFD";
    std::vector<std::string> namen;
    for (const Fremdpunkt& p : netz.punkte)
        namen.push_back(IstHeil(p.name) ? p.name : Cp1252NachUtf8(p.name) + kMarke);
    std::vector<std::string> nummern = GibNummern(namen);
    for (std::size_t i = 0; i < namen.size(); ++i) {
        if (Cp1252NachUtf8(nummern[i]) != namen[i]) geaendert.push_back({nummern[i], namen[i]});
    }
    return nummern;
}

}  // namespace

Importerkennung ErkenneImport(const std::filesystem::path& datei, const Dateien& dateien) {
    try {
        const Formatfund fund = FindeFormat(Wurzelname(dateien.LiesAnfang(datei, kAnfang)));
        if (fund.format != nullptr) return {fund.rolle, fund.format->name};
    } catch (const std::exception&) {
        // Whoever opens it then says why that is not possible.
    }
    return {};
}

std::string Importfilter() {
    std::string filter;
    for (const Importformat& f : kImportformate) {
        filter += filter.empty() ? "" : ";;";
        filter.append(f.name).append(" (").append(f.endungen).append(")");
    }
    return filter;
}

std::filesystem::path ImportOrdner(const std::filesystem::path& netz) {
    std::filesystem::path ordner = netz;
    ordner.replace_extension(".zarwik");
    return ordner;
}

std::filesystem::path Importpartner(const std::filesystem::path& datei, Importrolle gesucht,
                                    const Dateien& dateien) {
    for (const Importformat& f : kImportformate) {
        for (std::string_view rest = f.endungen; !rest.empty();) {
            std::string endung(NaechstesWort(rest).substr(1));  // without the asterisk
            for (const bool gross : {false, true}) {
                if (gross) std::transform(endung.begin(), endung.end(), endung.begin(), Grossbuchstabe);
                std::filesystem::path partner = datei;
                partner.replace_extension(endung);
                if (partner != datei && dateien.Stand(partner) &&
                    ErkenneImport(partner, dateien).rolle == gesucht)
                    return partner;
            }
        }
    }
    return {};
}

std::vector<std::filesystem::path> ImportZiele(const Importauftrag& auftrag, const Dateien& dateien) {
    std::vector<std::filesystem::path> vorhanden;
    const std::filesystem::path ordner = Zielordner(auftrag);
    for (const std::filesystem::path& name : Zielnamen(auftrag)) {
        if (const auto da = dateien.FindeDatei(ordner, PfadText(name))) vorhanden.push_back(*da);
    }
    return vorhanden;
}

Importergebnis ImportiereNetz(const Importauftrag& auftrag, Dateien& dateien, std::time_t zeit) {
    PruefeZiele(auftrag, dateien);
    Fremdnetz netz;
    Importbericht bericht;
    const Xmldatei datei = LiesFremddatei(auftrag.netz, dateien);
    const Formatfund fund = Pruefe(datei, Importrolle::Netz);
    fund.format->liesNetz(datei, netz, bericht);
    if (!auftrag.ergebnisse.empty()) {
        const Xmldatei xml = LiesFremddatei(auftrag.ergebnisse, dateien);
        Pruefe(xml, Importrolle::Ergebnisse).format->liesErgebnisse(xml, netz, bericht);
    }
    std::vector<Namenspaar> geaendert;
    const std::vector<std::string> nummern = Benenne(netz, geaendert);
    for (std::size_t i = 0; i < geaendert.size(); ++i)
        bericht.NimmAuf(Befundart::Umbenannt);

    Importergebnis ergebnis{.steuerdatei = Steuerdatei(auftrag),
                            .beobachtungen = netz.messungen.size(),
                            .ergebnisse = netz.ergebnisse.size()};
    std::vector<std::pair<std::filesystem::path, std::string>> inhalte;
    inhalte.emplace_back(
        ergebnis.steuerdatei.filename(),
        Steuerdateitext(netz, nummern, "Aus " + datei.Name() + " (" + std::string(fund.format->name) + ")",
                        datei, bericht));
    if (!geaendert.empty())
        inhalte.emplace_back(Namenslistendatei(ergebnis.steuerdatei).filename(), Namenslistentext(geaendert));
    if (netz.mitErgebnissen) {
        for (Dateiinhalt& d : Ergebnistabellen(netz, nummern, auftrag.grenze, zeit, bericht))
            inhalte.emplace_back(TextPfad(d.first), std::move(d.second));
    }
    for (Stelle p = 0; p < netz.punkte.size(); ++p)
        ergebnis.punkte += netz.Ort(p).HatLage() && !netz.punkte[p].nurErgebnis ? 1 : 0;

    const std::filesystem::path ordner = Zielordner(auftrag);
    const auto vorhanden = ImportZiele(auftrag, dateien);
    dateien.ErstelleOrdner(ordner);
    SchreibeDateien(ordner, inhalte, dateien);
    // What an earlier import left and this one did not write would pass for its results.
    for (const std::filesystem::path& alt : vorhanden) {
        const bool neu = std::any_of(inhalte.begin(), inhalte.end(),
                                     [&](const auto& i) { return i.first == alt.filename(); });
        if (!neu) dateien.EntferneDatei(alt);
    }
    ergebnis.hinweise = bericht.Zeilen();
    return ergebnis;
}

std::string Importmeldung(const Importergebnis& e) {
    const auto zahl = [](std::size_t n, const char* eines, const char* mehrere) {
        return std::to_string(n) + ' ' + (n == 1 ? eines : mehrere);
    };
    std::string text = zahl(e.punkte, "Punkt", "Punkte") + " und " +
                       zahl(e.beobachtungen, "Beobachtung", "Beobachtungen") + " importiert";
    if (e.ergebnisse > 0) text += ", " + zahl(e.ergebnisse, "mit Ergebnis", "mit Ergebnissen");
    return text + ": " + PfadText(e.steuerdatei);
}

}  // namespace zrw
