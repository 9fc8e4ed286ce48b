#include "model/Zeichenzeilen.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "model/Linienarten.h"
#include "model/Punktarten.h"
#include "model/Punktsymbole.h"

namespace zrw {
namespace {

/// More colours than these tell nobody anything.
constexpr std::size_t kMeisteFarben = 40;
constexpr std::string_view kLinien = "Linienarten";
constexpr std::string_view kMarken = "Beobachtungen an den Linien";
constexpr std::string_view kSymbole = "Punktsymbole";
constexpr std::string_view kPunktfarben = "Farben der Punkte";

std::string Linientext(const Linienart& art) {
    const std::string text(art.bezeichnung.empty() ? "ohne Richtung" : art.bezeichnung);
    return art.indirekt ? text + ", indirekt" : text;
}

/// As designers write it: red, green, blue.
std::string Farbnummer(Farbe farbe) {
    constexpr std::string_view kZiffern = "0123456789ABCDEF";
    constexpr unsigned kByte = 8;
    std::string text = "#";
    for (const unsigned stelle : {0U, kByte, 2 * kByte}) {
        const std::uint32_t teil = farbe.wert >> stelle & 0xFFU;
        text += {kZiffern[teil >> 4U], kZiffern[teil & 15U]};
    }
    return text;
}

void NimmDazu(std::string& liste, std::string_view text) {
    if (!liste.empty()) liste += ", ";
    liste += text;
}

/// What the settings use the colour for; its number where they do not.
std::string Punktfarbtext(Farbe farbe, const Einstellungen& e) {
    std::string arten;
    for (const Punktart& art : kPunktarten) {
        if (e.*art.farbe == farbe)
            NimmDazu(arten, std::string(art.kuerzel) + ": " + std::string(art.bezeichnung));
    }
    return arten.empty() ? Farbnummer(farbe) : arten;
}

struct Linienfarbe {
    Farbe Einstellungen::*farbe;
    std::string_view text;
};
constexpr auto kFarbenDerLinien = std::to_array<Linienfarbe>({
    {&Einstellungen::RICol, "Richtung"},
    {&Einstellungen::AZCol, "Azimut"},
    {&Einstellungen::GPSCol, "GPS-Vektor"},
    {&Einstellungen::GFCol, "grober Fehler"},
});

std::string Linienfarbtext(Farbe farbe, const Einstellungen& e) {
    std::string arten;
    for (const Linienfarbe& f : kFarbenDerLinien) {
        if (e.*f.farbe == farbe) NimmDazu(arten, f.text);
    }
    return arten.empty() ? Farbnummer(farbe) : arten;
}

/// Shows the colour, whatever else lines of it show.
Kante AlsStrich(Farbe farbe) {
    return Kante::Create(farbe, {}, LinieAttr::AR2);
}

std::string Symboltext(PunktTyp typ, bool gefuellt) {
    const Punktsymbol* symbol = ZumSymbol(typ);
    if (symbol == nullptr) return "ohne Symbol";
    return std::string(symbol->bezeichnung) + (gefuellt ? ", gefüllt" : "");
}

bool Gefuellt(const Punkt& p) {
    return p.PktAttr == PunktAttr::Fu;
}

/// Adds the rows of one heading after the other.
class Zeilenbauer {
  public:
    Zeilenbauer(const Zeichenbestand& bestand, const Einstellungen& einstellungen)
        : bestand_(bestand), einstellungen_(einstellungen) {}

    void FuelleLinien();
    void FuelleWeisse();
    void FuelleMarken();
    void FuelleSymbole();
    void FuelleFarben();
    void FuelleLinienfarben();
    [[nodiscard]] std::vector<Zeichenzeile> NimmZeilen() { return std::move(zeilen_); }

  private:
    template <class Figur, class Muster, class Text>
    void NimmFarben(std::string_view gruppe, const std::vector<Zeichengruppe<Figur>>& figuren, Muster muster,
                    Text text);

    const Zeichenbestand& bestand_;
    const Einstellungen& einstellungen_;
    std::vector<Zeichenzeile> zeilen_;
};

void Zeilenbauer::FuelleLinien() {
    for (const Linienart& art : kLinienarten) {
        if (art.attr == LinieAttr::Null) continue;
        auto g =
            Zeichenbestand::Gefasst(bestand_.Kanten(), [&](const Kante& k) { return k.LAttr == art.attr; });
        if (g.anzahl == 0) continue;
        g.muster.KAttr = {};
        zeilen_.push_back({kLinien, Linientext(art), g.anzahl, g.muster});
    }
}

/// Lines without any direction are white; those of GPS vectors at least have marks.
void Zeilenbauer::FuelleWeisse() {
    for (const bool gps : {true, false}) {
        const auto g = Zeichenbestand::Gefasst(bestand_.Kanten(), [&](const Kante& k) {
            return ZurLinie(k.LAttr).attr == LinieAttr::Null && k.KAttr.HatArt(KanteAttr::GPS) == gps;
        });
        if (g.anzahl != 0)
            zeilen_.push_back({kLinien,
                               gps ? "nur GPS-Vektor" : "weder Richtung noch GPS-Vektor: weiß gezeichnet",
                               g.anzahl, g.muster});
    }
}

void Zeilenbauer::FuelleMarken() {
    for (const Beobachtungsart& art : kBeobachtungsarten) {
        auto g = Zeichenbestand::Gefasst(bestand_.Kanten(),
                                         [&](const Kante& k) { return k.KAttr.HatArt(art.art); });
        if (g.anzahl == 0) continue;
        g.muster.KAttr = art.art;
        zeilen_.push_back({kMarken, std::string(art.bezeichnung), g.anzahl, g.muster});
    }
}

void Zeilenbauer::FuelleSymbole() {
    for (const Punktsymbol& symbol : kPunktsymbole) {
        for (const bool gefuellt : {false, true}) {
            const auto g = Zeichenbestand::Gefasst(bestand_.Punkte(), [&](const Punkt& p) {
                return p.PktTyp == symbol.typ && Gefuellt(p) == gefuellt;
            });
            if (g.anzahl != 0)
                zeilen_.push_back({kSymbole, Symboltext(symbol.typ, gefuellt), g.anzahl, g.muster});
        }
    }
    const auto g = Zeichenbestand::Gefasst(bestand_.Punkte(),
                                           [](const Punkt& p) { return ZumSymbol(p.PktTyp) == nullptr; });
    if (g.anzahl != 0) zeilen_.push_back({kSymbole, "ohne Symbol", g.anzahl, g.muster});
}

template <class Figur, class Muster, class Text>
void Zeilenbauer::NimmFarben(std::string_view gruppe, const std::vector<Zeichengruppe<Figur>>& figuren,
                             Muster muster, Text text) {
    const auto farben = Zeichenbestand::NachFarbe(figuren);
    std::size_t uebrige = 0;
    for (std::size_t i = 0; i < farben.size(); ++i) {
        if (i >= kMeisteFarben) {
            uebrige += farben[i].anzahl;
        } else {
            zeilen_.push_back({gruppe, text(farben[i].muster.Farbe, einstellungen_), farben[i].anzahl,
                               muster(farben[i].muster)});
        }
    }
    if (uebrige != 0)
        zeilen_.push_back(
            {gruppe, "in " + std::to_string(farben.size() - kMeisteFarben) + " weiteren Farben", uebrige});
}

void Zeilenbauer::FuelleFarben() {
    NimmFarben(
        kPunktfarben, bestand_.Punkte(), [](const Punkt& p) { return p; }, Punktfarbtext);
    FuelleLinienfarben();
}

void Zeilenbauer::FuelleLinienfarben() {
    NimmFarben(
        kLinienfarben, bestand_.Kanten(), [](const Kante& k) { return AlsStrich(k.Farbe); }, Linienfarbtext);
}

/// A point of a plan in a word: what its colour stands for and its symbol.
std::string Punkttext(const Punkt& p, const Einstellungen& e) {
    std::string text;
    for (const Punktart& art : kPunktarten) {
        if (e.*art.farbe == p.Farbe) NimmDazu(text, art.bezeichnung);
    }
    return text.empty() ? Symboltext(p.PktTyp, Gefuellt(p)) : text;
}

/// One row for each look, the most frequent first. Where one word stands for several, the symbol tells them
/// apart. @param meiste rows: every point of a file may have a colour of its own
std::vector<Zeichenzeile> Punktzeilen(const Zeichenbestand& bestand, const Einstellungen& e,
                                      std::size_t meiste) {
    std::vector<Zeichenzeile> zeilen;
    for (const auto& g : bestand.Punkte()) {
        if (zeilen.size() == meiste) break;
        const Punkt& p = g.muster;
        if (ZumSymbol(p.PktTyp) != nullptr) zeilen.push_back({kSymbole, Punkttext(p, e), g.anzahl, p});
    }
    std::vector<Zeichenzeile> genauer = zeilen;
    for (Zeichenzeile& z : genauer) {
        const auto gleich = std::count_if(zeilen.begin(), zeilen.end(),
                                          [&](const Zeichenzeile& a) { return a.text == z.text; });
        const Punkt& p = std::get<Punkt>(z.muster);
        const std::string symbol = Symboltext(p.PktTyp, Gefuellt(p));
        if (gleich > 1 && z.text != symbol) z.text += " (" + symbol + ")";
    }
    return genauer;
}

}  // namespace

std::vector<Zeichenzeile> BaueZeichenzeilen(const Zeichenbestand& bestand,
                                            const Einstellungen& einstellungen) {
    Zeilenbauer bauer(bestand, einstellungen);
    bauer.FuelleLinien();
    bauer.FuelleWeisse();
    bauer.FuelleMarken();
    bauer.FuelleSymbole();
    bauer.FuelleFarben();
    return bauer.NimmZeilen();
}

std::vector<Zeichenzeile> BaueErklaerung(const Zeichenbestand& bestand, const Einstellungen& einstellungen,
                                         std::size_t meiste) {
    Zeilenbauer linien(bestand, einstellungen);
    linien.FuelleLinien();
    linien.FuelleMarken();
    Zeilenbauer farben(bestand, einstellungen);
    farben.FuelleLinienfarben();
    const std::vector<Zeichenzeile> arten = linien.NimmZeilen();
    std::vector<Zeichenzeile> bunt = farben.NimmZeilen();
    for (Zeichenzeile& z : bunt)
        z.text = "Farbe: " + z.text;
    if (bunt.size() < 2) bunt.clear();
    const auto platz = [&](std::size_t andere) { return meiste - std::min(meiste, andere); };
    std::vector<Zeichenzeile> zeilen = Punktzeilen(
        bestand, einstellungen, platz(arten.size() + std::min(bunt.size(), kFarbenDerLinien.size())));
    bunt.resize(std::min(bunt.size(), platz(arten.size() + zeilen.size())));
    zeilen.insert(zeilen.end(), arten.begin(), arten.end());
    zeilen.insert(zeilen.end(), bunt.begin(), bunt.end());
    return zeilen;
}

}  // namespace zrw
