#include "model/ergebnisse/Einfaerbung.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <vector>

#include "model/Linienarten.h"
#include "model/Zahlentext.h"

namespace zrw {
namespace {

constexpr std::size_t kUeblicheKlassen = 5;
constexpr Figurstil kOhneKontrolle{Farbe{0x5A5A5A}, 1, true};
constexpr Figurstil kOhneWert{Farbe{0xC8C8C8}, 1, false};

bool Gleich(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](unsigned char x, unsigned char y) { return std::tolower(x) == std::tolower(y); });
}

std::string Groessennamen() {
    std::string namen;
    for (const Farbgroessenzeile& g : kFarbgroessen)
        namen += (namen.empty() ? "" : ", ") + std::string(g.name);
    return namen;
}

std::optional<Klassenwahl> LiesKlassen(std::string_view text) {
    for (const Klassenartzeile& art : kKlassenarten) {
        if (art.name.empty() || text.size() < art.name.size() ||
            !Gleich(text.substr(0, art.name.size()), art.name))
            continue;
        const std::string_view zahl = text.substr(art.name.size());
        const auto anzahl = zahl.empty() ? std::int64_t{kUeblicheKlassen} : LiesGanz(zahl).value_or(0);
        if (anzahl < std::int64_t{kWenigsteKlassen} || anzahl > std::int64_t{kMeisteKlassen})
            return std::nullopt;
        return Klassenwahl{art.art, {}, static_cast<std::size_t>(anzahl)};
    }
    Klassenwahl wahl{Klassenart::VonHand, LiesGrenzen(text)};
    if (wahl.grenzen.empty() || wahl.grenzen.size() >= kMeisteKlassen) return std::nullopt;
    return wahl;
}

/// The value that counts for a figure, and whether it is not controlled.
struct Figurwert {
    double wert = kKeinWert;
    bool nk = false;
};

void NimmZeile(Figurwert& f, Auswahlregel regel, double wert, bool nk) {
    if (std::isnan(wert)) {
        f.nk = f.nk || (nk && std::isnan(f.wert));
        return;
    }
    const double gewaehlt = WaehleWert(regel, f.wert, wert);
    if (std::isnan(f.wert) || gewaehlt != f.wert) f.nk = nk;
    f.wert = gewaehlt;
}

/// By the `Folge` of the lines.
std::vector<Figurwert> WerteDerLinien(const Netz& netz, const Einfaerbung& e, const Beobachtungsliste& liste,
                                      std::size_t anzahl) {
    const Messwert wert = *ZurGroesse(e.groesse).wert;
    const Auswahlregel regel = ZurSpalte(wert).regel;
    std::vector<Figurwert> werte(anzahl);
    for (const Beobachtung& b : liste.zeilen) {
        if (b.nach.Leer() || (e.gattung && b.tabelle != *e.gattung)) continue;
        const PPunktKante k = netz.FindKante(netz.FindPunktNr(b.von), netz.FindPunktNr(b.nach));
        if (k == nullptr) continue;
        const double v = regel == Auswahlregel::Kleinster ? b.Wert(wert) : std::fabs(b.Wert(wert));
        NimmZeile(werte[k->Folge], regel, v, b.nk);
    }
    return werte;
}

std::vector<Figurwert> WerteDerPunkte(const Netz& netz, const Einfaerbung& e,
                                      const Punktergebnisse* ergebnisse, std::size_t anzahl) {
    std::vector<Figurwert> werte(anzahl);
    if (ergebnisse == nullptr) return werte;
    netz.FuerAllePunkte([&](const PunktKnoten& p) {
        const PktText* text = netz.FindPktText(p.PNr);
        const Punktergebnis* r = text != nullptr ? ergebnisse->ErgebnisZu(text->Aus.Text()) : nullptr;
        if (r == nullptr || (e.groesse == Farbgroesse::mL && !r->mLBekannt)) return;
        if (const double v = r->*ZurGroesse(e.groesse).ergebnis; std::isfinite(v))
            werte[p.Folge].wert = std::fabs(v);
    });
    return werte;
}

/// Enters the classes of the figures, and makes the rows of the legend.
class Klasseneinteilung {
  public:
    Klasseneinteilung(const Einfaerbung& e, const std::vector<Figurwert>& werte) : werte_(werte) {
        std::vector<double> alle;
        for (const Figurwert& f : werte) {
            if (!f.nk && !std::isnan(f.wert)) alle.push_back(f.wert);
        }
        grenzen_ = Klassengrenzen(e.klassen, alle);
        const bool kleineZuerst = ZurGroesse(e.groesse).wert == Messwert::EV;
        const std::size_t anzahl = grenzen_.size() + 1;
        for (std::size_t k = 0; k < anzahl; ++k) {
            zeilen_.push_back({KlassenstilVon(e.farben, kleineZuerst ? anzahl - 1 - k : k, anzahl),
                               Klassentext(grenzen_, k), 0});
        }
        zeilen_.push_back({kOhneKontrolle, "ohne Kontrolle", 0});
        zeilen_.push_back({kOhneWert, "ohne Wert", 0});
    }

    /// @return class of a figure that is there
    std::uint8_t NimmFigur(std::uint32_t folge) {
        const Figurwert& f = werte_[folge];
        std::size_t klasse = zeilen_.size() - 1;
        if (f.nk) {
            klasse = zeilen_.size() - 2;
        } else if (!std::isnan(f.wert)) {
            klasse = KlasseVon(grenzen_, f.wert);
        }
        ++zeilen_[klasse].anzahl;
        return static_cast<std::uint8_t>(klasse);
    }
    [[nodiscard]] const std::vector<Stilzeile>& Zeilen() const { return zeilen_; }

  private:
    const std::vector<Figurwert>& werte_;
    std::vector<double> grenzen_;
    std::vector<Stilzeile> zeilen_;
};

template <class Laufer>
std::size_t Platzzahl(Laufer laufe) {
    std::size_t anzahl = 0;
    laufe([&](const auto& k) { anzahl = std::max(anzahl, std::size_t{k.Folge} + 1); });
    return anzahl;
}

void FaerbeFiguren(const Netz& netz, const Einfaerbung& e, const Beobachtungsliste& liste,
                   const Punktergebnisse* ergebnisse, Figurenstile& stile) {
    const Farbgroessenzeile& g = ZurGroesse(e.groesse);
    stile.punkte = !g.wert.has_value();
    stile.titel = std::string(g.name) + " (" + std::string(g.bezeichnung) +
                  (e.gattung ? ", " + std::string(ZurGattung(*e.gattung).mehrzahl) : "") + ")";
    const auto faerbe = [&](auto laufe, std::vector<std::uint8_t>& klassen,
                            const std::vector<Figurwert>& werte) {
        Klasseneinteilung einteilung(e, werte);
        klassen.assign(werte.size(), Figurenstile::kEigener);
        laufe([&](const auto& k) { klassen[k.Folge] = einteilung.NimmFigur(k.Folge); });
        stile.zeilen = einteilung.Zeilen();
    };
    const auto punkte = [&](auto tun) { netz.FuerAllePunkte(tun); };
    const auto kanten = [&](auto tun) { netz.FuerAlleKanten(tun); };
    if (stile.punkte) {
        faerbe(punkte, stile.knoten, WerteDerPunkte(netz, e, ergebnisse, Platzzahl(punkte)));
    } else {
        faerbe(kanten, stile.kanten, WerteDerLinien(netz, e, liste, Platzzahl(kanten)));
    }
}

void FiltereLinien(const Netz& netz, const Linienfilter& f, Figurenstile& stile) {
    const auto kanten = [&](auto tun) { netz.FuerAlleKanten(tun); };
    stile.kanten.resize(Platzzahl(kanten), Figurenstile::kEigener);
    const bool nachKlasse = f.klasse && !stile.punkte;
    kanten([&](const PunktKante& k) {
        const auto traegt = [&](const Kategoriezeile& z) {
            return f.kategorien[static_cast<std::size_t>(z.kategorie)] && Traegt(*k.Item, z.kategorie);
        };
        std::uint8_t& klasse = stile.kanten[k.Folge];
        const bool bleibt =
            (f.AlleKategorien() || std::any_of(kLinienkategorien.begin(), kLinienkategorien.end(), traegt)) &&
            (f.station == kKeinPunkt || k.ANr == f.station || k.ENr == f.station) &&
            (!nachKlasse || klasse == *f.klasse);
        if (bleibt) return;
        if (!stile.punkte && klasse < stile.zeilen.size()) --stile.zeilen[klasse].anzahl;
        klasse = Figurenstile::kWeggelassen;
    });
}

}  // namespace

Klassenwahl UeblicheKlassen(Farbgroesse g) {
    if (g == Farbgroesse::TG) return {Klassenart::VonHand, {1.0, 2.0, kUeblicheTestgrenze}, 4};
    if (g == Farbgroesse::EV) return {Klassenart::VonHand, {0.1, 0.3, 0.5}, 4};
    return {Klassenart::Quantile, {}, kUeblicheKlassen};
}

std::vector<double> LiesGrenzen(std::string_view text) {
    std::vector<double> grenzen;
    while (true) {
        const std::size_t komma = std::min(text.find(','), text.size());
        const auto zahl = LiesReal(text.substr(0, komma));
        if (!zahl || (!grenzen.empty() && *zahl <= grenzen.back())) return {};
        grenzen.push_back(*zahl);
        if (komma == text.size()) return grenzen;
        text.remove_prefix(komma + 1);
    }
}

Einfaerbungstext LiesEinfaerbung(std::string_view text) {
    const std::size_t trenner = std::min(text.find(':'), text.size());
    const auto zeile = std::find_if(kFarbgroessen.begin(), kFarbgroessen.end(),
                                    [&](const auto& g) { return Gleich(g.name, text.substr(0, trenner)); });
    if (zeile == kFarbgroessen.end())
        return {.fehler = "\"" + std::string(text.substr(0, trenner)) +
                          "\" gibt es nicht (möglich: " + Groessennamen() + ")"};
    Einfaerbung e{.groesse = zeile->groesse, .klassen = UeblicheKlassen(zeile->groesse)};
    if (trenner < text.size()) {
        const auto klassen = LiesKlassen(text.substr(trenner + 1));
        if (!klassen)
            return {.fehler =
                        "Klassen sind eine bis sechs steigende Grenzen (1,2,3.3) oder \"gleich\" oder "
                        "\"quantile\" mit einer Anzahl von 2 bis 7"};
        e.klassen = *klassen;
    }
    return {.wahl = e};
}

std::string SchreibeEinfaerbung(const Einfaerbung& e) {
    std::string text(ZurGroesse(e.groesse).name);
    if (e.klassen == UeblicheKlassen(e.groesse)) return text;
    const std::string_view art = kKlassenarten[static_cast<std::size_t>(e.klassen.art)].name;
    text += ':' + std::string(art);
    if (!art.empty()) return text + std::to_string(e.klassen.anzahl);
    for (std::size_t i = 0; i < e.klassen.grenzen.size(); ++i)
        text += (i == 0 ? "" : ",") + SchreibeReal(e.klassen.grenzen[i]);
    return text;
}

bool Traegt(const Kante& kante, Linienkategorie kategorie) {
    switch (kategorie) {
        case Linienkategorie::Richtungen:
            return ZurLinie(kante.LAttr).richtungen > 0;
        case Linienkategorie::Strecken:
            return kante.KAttr.HatArt(KanteAttr::ST);
        case Linienkategorie::Hoehen:
            return kante.KAttr.HatArt(KanteAttr::DH1) || kante.KAttr.HatArt(KanteAttr::DH2);
        case Linienkategorie::Gps:
            return kante.KAttr.HatArt(KanteAttr::GPS);
        case Linienkategorie::Anzahl:
            break;
    }
    return false;
}

bool Linienfilter::AlleKategorien() const {
    return std::find(kategorien.begin(), kategorien.end(), true) == kategorien.end();
}

std::shared_ptr<const Figurenstile> BaueStile(const Netz& netz, const Planfaerbung& wahl,
                                              const Beobachtungsliste& liste,
                                              const Punktergebnisse* ergebnisse) {
    if (!wahl.Wirkt()) return nullptr;
    auto stile = std::make_shared<Figurenstile>();
    if (wahl.einfaerbung) FaerbeFiguren(netz, *wahl.einfaerbung, liste, ergebnisse, *stile);
    if (wahl.filter.Wirkt()) FiltereLinien(netz, wahl.filter, *stile);
    return stile;
}

}  // namespace zrw
