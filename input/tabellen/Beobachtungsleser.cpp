#include "input/tabellen/Beobachtungsleser.h"

#include <algorithm>
#include <cmath>
#include <string_view>
#include <utility>
#include <vector>

#include "model/Cp1252.h"
#include "model/Fehler.h"

namespace zrw {
namespace {

constexpr std::size_t kMeisteTeile = 3;
/// Fields that a number of the list comes from, empty ones behind: of three the length for the observed
/// value, and else the one that counts in its column.
using Feldteile = std::array<std::string_view, kMeisteTeile>;

/// Where the list finds its columns in a table.
struct Leseplan {
    Beobachtungstabelle gattung;
    Tabelle tabelle;
    std::string_view von;
    std::string_view nach;  ///< empty: rows of points
    std::array<Feldteile, kMesswerte.size()> werte;
    std::string_view ff;
    Feldteile nk;
};

// clang-format off
constexpr auto kLeseplaene = std::to_array<Leseplan>({
    {Beobachtungstabelle::Strecken, Tabelle::Strecken, "P1", "P2",
     {{{"ST"}, {"VS"}, {"TG"}, {"EV"}, {"GF"}, {"GRZW"}, {"EP"}, {"NMF"}}}, "FF", {"NK"}},
    {Beobachtungstabelle::Richtungen, Tabelle::Richtungen, "PS", "PZ",
     {{{"RI"}, {"VR"}, {"TG"}, {"EV"}, {"GF"}, {"GRZW"}, {"EP"}, {"NMF"}}}, "FF", {"NK"}},
    {Beobachtungstabelle::Hoehenunterschiede, Tabelle::Hoehenunterschiede, "P1", "P2",
     {{{"DH"}, {"VH"}, {"TG"}, {"EV"}, {"GF"}, {"GRZW"}, {"EH"}, {"NMF"}}}, "FF", {"NK"}},
    {Beobachtungstabelle::Gps, Tabelle::Gps, "P1", "P2",
     {{{"DX", "DY", "DZ"}, {"VX", "VY", "VZ"}, {"TG"}, {"EVX", "EVY", "EVZ"}, {"GFL", "GFQ", "GFH"},
       {"GRZWX", "GRZWY", "GRZWZ"}, {"EPN", "EPE", "EPH"}, {"NMFX", "NMFY", "NMFZ"}}},
     "FF", {"NKDX", "NKDY", "NKDZ"}},
    {Beobachtungstabelle::GpsPunkte3D, Tabelle::GpsPunkte3D, "PKT", {},
     {{{}, {"vY", "vX", "vH"}, {"TGX", "TGY", "TGZ"}, {"EVX", "EVY", "EVZ"}, {"GFY", "GFX", "GFH"},
       {"GRZWY", "GRZWX", "GRZWH"}, {"EPY", "EPX", "EPH"}, {"NMFY", "NMFX", "NMFH"}}}, "FF", {}},
    {Beobachtungstabelle::GpsPunkte2D, Tabelle::GpsPunkte2D, "PKT", {},
     {{{}, {"vY", "vX"}, {"TGX", "TGY"}, {"EVX", "EVY"}, {"GFY", "GFX"},
       {"GRZWY", "GRZWX"}, {"EPY", "EPX"}, {"NMFY", "NMFX"}}}, "FF", {}},
    // Checks call the flag GF that others call FF.
    {Beobachtungstabelle::Linien, Tabelle::Linien, "PA", "PE",
     {{{"Sgem"}, {"vS"}, {}, {}, {}, {}, {}, {}}}, "GF", {}},
    {Beobachtungstabelle::Streckenkontrollen, Tabelle::Streckenkontrollen, "P1", "P2",
     {{{"Sgem"}, {"vS"}, {}, {}, {}, {}, {}, {}}}, "GF", {}},
});
// clang-format on
static_assert(InReihe(kLeseplaene, &Leseplan::gattung));

/// A table in which any share of redundancy is larger has all of them in per cent; rounding may add a little.
constexpr double kGroessterAnteil = 1.01;
constexpr double kHundert = 100.0;
/// Ten times what the largest network has; damaged tables may claim any number of short rows.
constexpr std::size_t kMeisteZeilen = 4'000'000;

double Zahl(const Zelle& zelle) {
    if (const auto* real = std::get_if<double>(&zelle)) return *real;
    const auto* ganz = std::get_if<std::int64_t>(&zelle);
    return ganz != nullptr ? static_cast<double>(*ganz) : kKeinWert;
}

bool Gesetzt(const Zelle& zelle) {
    const auto* ganz = std::get_if<std::int64_t>(&zelle);
    return ganz != nullptr && *ganz != 0;
}

PunktNummernTyp Nummer(const Zelle& zelle) {
    const auto* text = std::get_if<std::string>(&zelle);
    return text != nullptr ? PunktNummernTyp(Utf8NachCp1252(*text)) : PunktNummernTyp();
}

double Laenge(std::span<const Zelle> teile) {
    if (teile.size() == 1) return Zahl(teile[0]);
    return teile.empty() ? kKeinWert : std::hypot(Zahl(teile[0]), Zahl(teile[1]), Zahl(teile[2]));
}

/// Reads one table. The fields stand one after the other in the answer, so a plan is turned into a list of
/// names and the first place of every column in it.
class Tabellenlesung {
  public:
    explicit Tabellenlesung(const Leseplan& plan) : plan_(plan), felder_{"ID", plan.von} {
        felder_.push_back(plan.nach.empty() ? plan.von : plan.nach);
        felder_.push_back(plan.ff);
        for (std::size_t w = 0; w < plan.werte.size(); ++w)
            werte_[w] = NimmTeile(plan.werte[w]);
        nk_ = NimmTeile(plan.nk);
    }

    void Lies(TDM& daten, Beobachtungsliste& liste) {
        Tabellenlage& lage = liste.tabellen[static_cast<std::size_t>(plan_.gattung)];
        const std::size_t anfang = liste.zeilen.size();
        try {
            const auto vorhanden = daten.LiesZeilen(plan_.tabelle, felder_,
                                                    [&](std::span<const Zelle> z) { NimmZeile(z, liste); });
            if (!vorhanden) return;
            lage.zustand = Lesezustand::Gelesen;
            const auto hat = [&](Bereich b) {
                return std::find(vorhanden->begin() + b.anfang, vorhanden->begin() + b.anfang + b.anzahl,
                                 true) != vorhanden->begin() + b.anfang + b.anzahl;
            };
            for (std::size_t w = 0; w < werte_.size(); ++w)
                lage.hat[w] = hat(werte_[w]);
            lage.hatFF = (*vorhanden)[kFF];
            lage.hatNK = hat(nk_);
        } catch (const Fehler& f) {
            liste.zeilen.resize(anfang);
            lage = {.zustand = Lesezustand::Unlesbar, .grund = f.what()};
        }
        if (lage.prozent = groessterEV_ > kGroessterAnteil; lage.prozent) {
            for (std::size_t i = anfang; i < liste.zeilen.size(); ++i)
                liste.zeilen[i].werte[static_cast<std::size_t>(Messwert::EV)] /= kHundert;
        }
        lage.anfang = anfang;
        lage.ende = liste.zeilen.size();
    }

  private:
    static constexpr std::size_t kFF = 3;
    struct Bereich {
        std::ptrdiff_t anfang = 0;
        std::ptrdiff_t anzahl = 0;
    };

    Bereich NimmTeile(const Feldteile& teile) {
        const auto anfang = static_cast<std::ptrdiff_t>(felder_.size());
        for (const std::string_view feld : teile) {
            if (!feld.empty()) felder_.push_back(feld);
        }
        return {anfang, static_cast<std::ptrdiff_t>(felder_.size()) - anfang};
    }

    void NimmZeile(std::span<const Zelle> zeile, Beobachtungsliste& liste) {
        const auto teile = [&](Bereich b) {
            return zeile.subspan(static_cast<std::size_t>(b.anfang), static_cast<std::size_t>(b.anzahl));
        };
        if (liste.zeilen.size() >= kMeisteZeilen)
            throw Fehler("Die Tabelle hat zu viele Zeilen für die Liste der Beobachtungen.",
                         std::string(Beschreibung(plan_.tabelle).name) + ".DB");
        Beobachtung& b = liste.zeilen.emplace_back();
        b.tabelle = plan_.gattung;
        if (const auto* id = std::get_if<std::int64_t>(&zeile[0])) {
            b.id = *id;
            b.idBekannt = true;
        }
        b.von = Nummer(zeile[1]);
        if (!plan_.nach.empty()) b.nach = Nummer(zeile[2]);
        b.ff = Gesetzt(zeile[kFF]);
        b.werte.fill(kKeinWert);
        b.werte[0] = Laenge(teile(werte_[0]));
        for (const Messwertspalte& s : kMesswerte) {
            if (s.wert == Messwert::Wert) continue;
            double& wert = b.werte[static_cast<std::size_t>(s.wert)];
            for (const Zelle& teil : teile(werte_[static_cast<std::size_t>(s.wert)]))
                wert = WaehleWert(s.regel, wert, Zahl(teil));
        }
        for (const Zelle& teil : teile(werte_[static_cast<std::size_t>(Messwert::EV)]))
            groessterEV_ = std::fmax(groessterEV_, Zahl(teil));
        for (const Zelle& teil : teile(nk_))
            b.nk = b.nk || Gesetzt(teil);
    }

    const Leseplan& plan_;
    std::vector<std::string_view> felder_;
    std::array<Bereich, kMesswerte.size()> werte_{};
    Bereich nk_;
    double groessterEV_ = 0.0;
};

void NimmRelative(const TDM& daten, Beobachtungsliste& liste) {
    for (Beobachtung& b : liste.zeilen) {
        const Relativellipse* e = b.nach.Leer() ? nullptr : daten.RelativeZu(b.von.Text(), b.nach.Text());
        if (e == nullptr) continue;
        b.werte[static_cast<std::size_t>(Messwert::RelA)] = e->A;
        b.werte[static_cast<std::size_t>(Messwert::RelB)] = e->B;
        b.werte[static_cast<std::size_t>(Messwert::RelPhi)] = e->Phi;
    }
}

}  // namespace

Beobachtungsliste LiesBeobachtungen(TDM& daten) {
    Beobachtungsliste liste;
    for (const Leseplan& plan : kLeseplaene)
        Tabellenlesung(plan).Lies(daten, liste);
    daten.ErneuereRelative();
    liste.hatRelative = daten.HatRelative();
    if (liste.hatRelative) NimmRelative(daten, liste);
    return liste;
}

Beobachtungsstand StandDerBeobachtungen(const TDM& daten) {
    Beobachtungsstand stand;
    for (const Leseplan& plan : kLeseplaene)
        stand[static_cast<std::size_t>(plan.gattung)] = daten.StandVon(plan.tabelle);
    stand[kGattungen] = daten.StandVon(Tabelle::Koordinaten);
    stand[kGattungen + 1] = daten.StandVon(Tabelle::RelativeEllipsen);
    return stand;
}

}  // namespace zrw
