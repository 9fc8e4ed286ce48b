#include "input/tabellen/UnitZRWData.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <iterator>
#include <limits>
#include <utility>

#include "input/tabellen/Paradoxleser.h"
#include "input/tabellen/Paradoxschreiber.h"
#include "model/Cp1252.h"
#include "model/Fehler.h"

namespace zrw {
namespace {

/// Largest table that is read: several million rows.
constexpr std::size_t kGroessteTabelle = std::size_t{512} << 20U;
/// Table that is read while nobody waits for it: some thousand rows, about a tenth of a second.
constexpr std::size_t kKleineTabelle = std::size_t{1} << 20U;
/// Fields that queries look rows up by.
constexpr auto kSuchfelder = std::to_array<std::string_view>({"PKT", "P1", "P2", "PS", "PZ", "PA", "PE"});

bool GleichesFeld(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](unsigned char x, unsigned char y) { return std::tolower(x) == std::tolower(y); });
}

std::size_t Stelle(std::span<const std::string> spalten, std::string_view name) {
    return static_cast<std::size_t>(
        std::find_if(spalten.begin(), spalten.end(),
                     [&](const std::string& s) { return GleichesFeld(s, name); }) -
        spalten.begin());
}

/// The columns in the order of the description, then those that it does not know.
void OrdneSpalten(Antwort& antwort, std::span<const Tabellenfeld> felder) {
    std::vector<std::string> spalten;
    std::vector<std::size_t> herkunft;
    std::vector<bool> benutzt(antwort.spalten.size(), false);
    for (const Tabellenfeld& f : felder) {
        const std::size_t stelle = Stelle(antwort.spalten, f.name);
        spalten.emplace_back(f.name);
        herkunft.push_back(stelle);
        if (stelle < benutzt.size()) benutzt[stelle] = true;
    }
    for (std::size_t i = 0; i < benutzt.size(); ++i) {
        if (benutzt[i]) continue;
        spalten.push_back(antwort.spalten[i]);
        herkunft.push_back(i);
    }
    for (auto& zeile : antwort.zeilen) {
        std::vector<Zelle> neu(herkunft.size());
        for (std::size_t i = 0; i < herkunft.size(); ++i) {
            if (herkunft[i] < zeile.size()) neu[i] = std::move(zeile[herkunft[i]]);
        }
        zeile = std::move(neu);
    }
    antwort.spalten = std::move(spalten);
}

/// What is null is no number: it is left out of pictures and files instead of looking free of errors.
void NimmZahl(const Zelle& zelle, double& zahl) {
    zahl = std::numeric_limits<double>::quiet_NaN();
    if (const auto* ganz = std::get_if<std::int64_t>(&zelle)) zahl = static_cast<double>(*ganz);
    if (const auto* real = std::get_if<double>(&zelle)) zahl = *real;
}

/// What drawing results takes, and then the coordinates, which other programs are given.
constexpr std::size_t kZuZeichnende = 9;
constexpr auto kPunktfelder = std::to_array<std::string_view>(
    {"PKT", "dY", "dX", "dH", "A", "B", "Phi", "mH", "mL", "X", "Y", "H", "dP"});

/// What a field holds, for the user; fields of one kind may stand for each other.
std::string_view Feldart(paradox::Feldtyp typ) {
    using T = paradox::Feldtyp;
    constexpr std::array kZahlen{T::Kurz, T::Lang, T::Zaehler, T::Waehrung, T::Zahl};
    if (typ == T::Alpha) return "Text";
    if (typ == T::Logisch) return "Ja/Nein";
    if (typ == T::Zeitpunkt) return "Zeitpunkt";
    return std::find(kZahlen.begin(), kZahlen.end(), typ) != kZahlen.end() ? "Zahl" : "andere Art";
}

std::size_t Nummer(Tabelle t) {
    return static_cast<std::size_t>(t);
}

/// Ten times what the largest network has; damaged tables may claim any number of short rows.
constexpr std::size_t kMeistePaare = 2'000'000;
constexpr auto kPaarfelder = std::to_array<std::string_view>({"P1", "P2", "A", "B", "Phi", "mS", "mQ"});
constexpr std::size_t kNoetigePaarfelder = 5;

bool Enthaelt(const std::vector<std::string_view>& felder, std::string_view feld) {
    return std::find(felder.begin(), felder.end(), feld) != felder.end();
}

/// The number of a point, if there is one.
std::optional<PunktNummernTyp> Punktnummer(const Zelle& zelle) {
    const auto* text = std::get_if<std::string>(&zelle);
    if (text == nullptr) return std::nullopt;
    const std::string nummer = Utf8NachCp1252(*text);
    if (nummer.empty() || nummer.size() > PunktNummernTyp::kLaenge) return std::nullopt;
    return PunktNummernTyp(nummer);
}

std::optional<PunktNummernTyp> ErstePunktnummer(std::span<const Zelle> zeile) {
    return Punktnummer(zeile.front());
}

}  // namespace

void TDM::SetzeOrdner(std::filesystem::path ordner) {
    if (ordner == ordner_) return;
    ordner_ = std::move(ordner);
    for (std::size_t i = 0; i < staende_.size(); ++i) {
        if (!staende_[i]) continue;
        datenbank_.EntferneTabelle(kTabellen[i].name);
        staende_[i].reset();
    }
    punkte_ = {};
    punktestand_ = {};
    vergleiche_ = {};
    vergleichsstand_ = {};
    relative_ = {};
    relativstand_ = {};
}

bool TDM::Vorhanden(std::string_view datei) const {
    return dateien_.FindeDatei(ordner_, std::string(datei)).has_value();
}

std::optional<std::filesystem::path> TDM::Datei(Tabelle tabelle) const {
    // Looking through the folder takes longer than looking at the file that was there before.
    const auto& stand = staende_[Nummer(tabelle)];
    if (stand && dateien_.Stand(stand->datei)) return stand->datei;
    return dateien_.FindeDatei(ordner_, std::string(Beschreibung(tabelle).name) + ".DB");
}

bool TDM::RaschGefragt(Tabelle tabelle) const {
    const auto datei = Datei(tabelle);
    const auto jetzt = datei ? dateien_.Stand(*datei) : std::nullopt;
    if (!jetzt) return false;
    const auto& stand = staende_[Nummer(tabelle)];
    return jetzt->groesse <= kKleineTabelle || (stand && stand->Gilt(*datei, *jetzt));
}

bool TDM::AktualisiereTabelle(Tabelle tabelle) {
    auto& stand = staende_[Nummer(tabelle)];
    const auto datei = Datei(tabelle);
    const auto jetzt = datei ? dateien_.Stand(*datei) : std::nullopt;
    if (!jetzt) return false;
    if (stand && stand->Gilt(*datei, *jetzt)) return true;
    try {
        ImportiereTabelle(tabelle, *datei, *jetzt);
    } catch (const Fehler& f) {
        if (!stand) throw;
        stand->grund = f.what();
        meldungen_.push_back({std::string(f.what()) + " Es gelten die zuletzt gelesenen Werte.", true});
        // What may only be locked is tried again.
        if (dynamic_cast<const Oeffnungsfehler*>(&f) == nullptr) stand->gescheitert = jetzt;
    }
    return true;
}

void TDM::ImportiereTabelle(Tabelle tabelle, const std::filesystem::path& datei, const Dateistand& stand) {
    const std::string name = PfadText(datei.filename());
    const std::string inhalt = dateien_.LiesDatei(datei, kGroessteTabelle);
    // The adjustment may be writing it right now: half a table must not take the place of the old one.
    if (dateien_.Stand(datei) != stand)
        throw Fehler("Die Tabelle wird gerade geschrieben. Bitte später noch einmal versuchen.", name);
    const paradox::Leser leser(inhalt, name);
    if (!leser.Warnung().empty()) meldungen_.push_back({Fehler::Meldung(leser.Warnung(), name, 0)});
    std::vector<std::string> spalten;
    for (const paradox::Feld& f : leser.Felder())
        spalten.push_back(f.name);
    datenbank_.ErsetzeTabelle(Beschreibung(tabelle).name, spalten, kSuchfelder,
                              [&](const Datenbank::Zeilenziel& ziel) { leser.FuerJedeZeile(ziel); });
    staende_[Nummer(tabelle)] = Stand{datei, stand, leser.Felder(), {}, {}};
}

TDM::Mangel TDM::PruefeFelder(Tabelle tabelle, std::span<const std::string_view> felder) {
    const Ergebnistabelle& t = Beschreibung(tabelle);
    if (!AktualisiereTabelle(tabelle))
        throw Fehler("Die Tabelle ist nicht vorhanden.", std::string(t.name) + ".DB");
    const Stand& stand = *staende_[Nummer(tabelle)];
    Mangel mangel;
    std::string fehlende;
    std::string andere;
    for (const std::string_view name : felder) {
        const auto gleich = [&](const auto& f) { return GleichesFeld(f.name, name); };
        const auto ist = std::find_if(stand.felder.begin(), stand.felder.end(), gleich);
        const auto soll = std::find_if(t.felder.begin(), t.felder.end(), gleich);
        if (ist == stand.felder.end()) {
            mangel.fehlende.push_back(name);
            fehlende += (fehlende.empty() ? "" : ", ") + std::string(name);
        } else if (Feldart(ist->typ) != Feldart(soll->typ)) {
            andere += (andere.empty() ? "" : ", ") + std::string(name) + " (" +
                      std::string(Feldart(ist->typ)) + " statt " + std::string(Feldart(soll->typ)) + ")";
        }
    }
    if (!fehlende.empty()) mangel.text = " Der Tabelle fehlt: " + fehlende + ".";
    if (!andere.empty()) mangel.text += " Anders als erwartet ist: " + andere + ".";
    if (!mangel.text.empty())
        mangel.text = Fehler::Meldung(mangel.text.substr(1), PfadText(stand.datei.filename()), 0);
    return mangel;
}

Antwort TDM::FrageTabelle(Tabelle tabelle, std::string_view abfrage) {
    const Ergebnistabelle& t = Beschreibung(tabelle);
    if (!AktualisiereTabelle(tabelle))
        throw Fehler("Die Tabelle ist nicht vorhanden.", std::string(t.name) + ".DB");
    // Queries without an order mean that of the table; the database would give that of its indexes.
    constexpr std::string_view kOrdnung = "order by";
    const bool geordnet = std::search(abfrage.begin(), abfrage.end(), kOrdnung.begin(), kOrdnung.end(),
                                      [](unsigned char a, unsigned char b) {
                                          return std::tolower(a) == std::tolower(b);
                                      }) != abfrage.end();
    Antwort antwort = datenbank_.StelleAbfrage(std::string(abfrage) + (geordnet ? "" : " order by rowid"));
    OrdneSpalten(antwort, t.felder);
    return antwort;
}

std::optional<Dateistand> TDM::StandVon(Tabelle tabelle) const {
    const auto datei = Datei(tabelle);
    return datei ? dateien_.Stand(*datei) : std::nullopt;
}

std::optional<std::vector<bool>> TDM::LiesZeilen(Tabelle tabelle, std::span<const std::string_view> felder,
                                                 const std::function<void(std::span<const Zelle>)>& tun) {
    if (!AktualisiereTabelle(tabelle)) return std::nullopt;
    const Stand& stand = *staende_[Nummer(tabelle)];
    if (StandVon(tabelle) != stand.stand)
        throw Fehler(stand.grund.empty() ? "Die Tabelle ändert sich gerade." : stand.grund);
    std::vector<bool> vorhanden;
    std::string abfrage;
    for (const std::string_view feld : felder) {
        vorhanden.push_back(std::any_of(stand.felder.begin(), stand.felder.end(),
                                        [&](const auto& f) { return GleichesFeld(f.name, feld); }));
        abfrage += abfrage.empty() ? "SELECT " : ",";
        abfrage += vorhanden.back() ? '"' + std::string(feld) + '"' : std::string("NULL");
    }
    datenbank_.FuerJedeZeile(abfrage + " from " + std::string(Beschreibung(tabelle).name) + " order by rowid",
                             tun);
    return vorhanden;
}

TDM::Zeilenzahl TDM::ZaehleZeilen(Tabelle tabelle, std::string_view abfrage, std::string_view flag) {
    if (!AktualisiereTabelle(tabelle))
        throw Fehler("Die Tabelle ist nicht vorhanden.", std::string(Beschreibung(tabelle).name) + ".DB");
    const auto& felder = staende_[Nummer(tabelle)]->felder;
    const bool mitFlag = std::any_of(felder.begin(), felder.end(),
                                     [&](const paradox::Feld& f) { return GleichesFeld(f.name, flag); });
    const std::string summe = mitFlag ? "sum(" + std::string(flag) + " = TRUE)" : "0";
    const Antwort antwort =
        datenbank_.StelleAbfrage("SELECT count(*), " + summe + " FROM (" + std::string(abfrage) + ")");
    const auto ganz = [&](std::size_t spalte) {
        const auto* zahl = std::get_if<std::int64_t>(&antwort.zeilen.at(0).at(spalte));
        return zahl != nullptr ? *zahl : 0;  // the sum over no rows is null
    };
    return {ganz(0), ganz(1)};
}

/// One walk over the table in place of one query a point: the first row of a key is what that would give.
template <class Schluessel, class Wert, class Nenne, class Fuelle>
TDM::Tafel<Schluessel, Wert> TDM::LiesTafel(const std::string& abfrage, Nenne nenne, Fuelle fuelle) const {
    Tafel<Schluessel, Wert> tafel;
    std::vector<Schluessel> namen;
    datenbank_.FuerJedeZeile(abfrage, [&](std::span<const Zelle> zeile) {
        const auto name = nenne(zeile);
        if (!name) return;
        namen.push_back(*name);
        fuelle(tafel.werte.emplace_back(), zeile);
    });
    // From the last to the first: the first row of a key is the one that counts.
    tafel.zu.ErwarteEintraege(namen.size());
    for (std::size_t i = namen.size(); i-- > 0;)
        tafel.zu.SetzeWert(namen[i], &tafel.werte[i]);
    return tafel;
}

TDM::Punkttafel<Punktergebnis> TDM::LiesPunkte(const std::vector<std::string_view>& fehlende) const {
    static constexpr auto kFelder = std::to_array<std::pair<std::string_view, double Punktergebnis::*>>({
        {"dY", &Punktergebnis::dY},
        {"dX", &Punktergebnis::dX},
        {"dH", &Punktergebnis::dH},
        {"A", &Punktergebnis::A},
        {"B", &Punktergebnis::B},
        {"Phi", &Punktergebnis::Phi},
        {"mH", &Punktergebnis::mH},
        {"mL", &Punktergebnis::mL},
        {"X", &Punktergebnis::X},
        {"Y", &Punktergebnis::Y},
        {"H", &Punktergebnis::H},
        {"dP", &Punktergebnis::dP},
    });
    constexpr std::size_t kStelleML = 8;
    static_assert(kFelder[kStelleML - 1].first == "mL");
    std::string abfrage = "SELECT KOOTABLE.PKT";
    if (Enthaelt(fehlende, "PKT")) return {};
    for (const auto& [feld, ziel] : kFelder)
        abfrage += Enthaelt(fehlende, feld) ? ",NULL" : ",KOOTABLE." + std::string(feld);
    const auto fuelle = [&](Punktergebnis& ergebnis, std::span<const Zelle> zeile) {
        for (std::size_t i = 0; i < kFelder.size(); ++i)
            NimmZahl(zeile[i + 1], ergebnis.*kFelder[i].second);
        // A standard deviation that is not known makes no ellipse wide.
        ergebnis.mLBekannt = !std::holds_alternative<std::monostate>(zeile[kStelleML]);
        if (!ergebnis.mLBekannt) ergebnis.mL = 0.0;
    };
    return LiesTafel<PunktNummernTyp, Punktergebnis>(abfrage + " from KOOTABLE order by rowid",
                                                     ErstePunktnummer, fuelle);
}

TDM::Tafel<TDM::Punktpaar, Relativellipse> TDM::LiesPaare(
    const std::vector<std::string_view>& fehlende) const {
    static constexpr std::array kWerte{&Relativellipse::A, &Relativellipse::B, &Relativellipse::Phi,
                                       &Relativellipse::mS, &Relativellipse::mQ};
    static_assert(kWerte.size() + 2 == kPaarfelder.size());
    if (Enthaelt(fehlende, "P1") || Enthaelt(fehlende, "P2")) return {};
    std::string abfrage;
    for (const std::string_view feld : kPaarfelder) {
        abfrage += abfrage.empty() ? "SELECT " : ",";
        abfrage += Enthaelt(fehlende, feld) ? "NULL" : "RELTABLE." + std::string(feld);
    }
    std::size_t zeilen = 0;
    const auto nenne = [&](std::span<const Zelle> zeile) -> std::optional<Punktpaar> {
        if (++zeilen > kMeistePaare) throw Fehler("Die Tabelle hat zu viele Zeilen.", "RELTABLE.DB");
        const auto a = Punktnummer(zeile[0]);
        const auto b = Punktnummer(zeile[1]);
        if (!a || !b) return std::nullopt;
        return Punktpaar(*a, *b);
    };
    return LiesTafel<Punktpaar, Relativellipse>(abfrage + " from RELTABLE order by rowid", nenne,
                                                [](Relativellipse& ellipse, std::span<const Zelle> zeile) {
                                                    for (std::size_t i = 0; i < kWerte.size(); ++i)
                                                        NimmZahl(zeile[i + 2], ellipse.*kWerte[i]);
                                                });
}

template <class Ziel, class Lies>
void TDM::ErneuereTafel(Tabelle tabelle, Tafelstand& stand, Ziel& tafel, Lies lies) {
    const auto datei = Datei(tabelle);
    const auto jetzt = datei ? dateien_.Stand(*datei) : std::nullopt;
    if (!jetzt) {
        tafel = {};
        stand.gelesen.reset();
        return;
    }
    // What cannot be read is not read again at each drawing; what may only be locked is tried.
    if (stand.gelesen == jetzt || (stand.gemeldet == jetzt && stand.vergeblich)) return;
    try {
        tafel = lies();
        stand.gelesen = jetzt;
        stand.gemeldet.reset();
    } catch (const Fehler& f) {
        if (stand.gemeldet != jetzt) meldungen_.push_back({f.what(), true});
        stand.gemeldet = jetzt;
        stand.vergeblich = dynamic_cast<const Oeffnungsfehler*>(&f) == nullptr;
    }
}

void TDM::ErneuereErgebnisse() {
    ErneuereTafel(Tabelle::Koordinaten, punktestand_, punkte_, [this] {
        auto punkte = LiesPunkte(PruefeFelder(Tabelle::Koordinaten, kPunktfelder).fehlende);
        const std::span zuZeichnende = std::span(kPunktfelder).first(kZuZeichnende);
        if (const Mangel mangel = PruefeFelder(Tabelle::Koordinaten, zuZeichnende); !mangel.text.empty())
            meldungen_.push_back({mangel.text + " Gezeichnet wird, was sich lesen lässt."});
        return punkte;
    });
}

void TDM::ErneuereVergleich() {
    ErneuereTafel(Tabelle::WeitereKoordinaten, vergleichsstand_, vergleiche_, [this] {
        constexpr auto kFelder = std::to_array<std::string_view>({"PKT", "Y", "X"});
        const Mangel mangel = PruefeFelder(Tabelle::WeitereKoordinaten, kFelder);
        if (!mangel.text.empty())
            meldungen_.push_back({mangel.text + " Der Vergleich der Koordinaten kann unvollständig sein."});
        if (!mangel.fehlende.empty()) return Punkttafel<Vergleichslage>();
        return LiesTafel<PunktNummernTyp, Vergleichslage>(
            "SELECT POSTKOOTABLE.PKT,POSTKOOTABLE.Y,POSTKOOTABLE.X from POSTKOOTABLE order by rowid",
            ErstePunktnummer, [](Vergleichslage& lage, std::span<const Zelle> zeile) {
                NimmZahl(zeile[1], lage.Y);
                NimmZahl(zeile[2], lage.X);
            });
    });
}

void TDM::ErneuereRelative() {
    ErneuereTafel(Tabelle::RelativeEllipsen, relativstand_, relative_, [this] {
        const std::span noetige = std::span(kPaarfelder).first(kNoetigePaarfelder);
        if (const Mangel mangel = PruefeFelder(Tabelle::RelativeEllipsen, noetige); !mangel.text.empty())
            meldungen_.push_back({mangel.text + " Relative Ellipsen fehlen."});
        return LiesPaare(PruefeFelder(Tabelle::RelativeEllipsen, kPaarfelder).fehlende);
    });
}

const Relativellipse* TDM::RelativeZu(std::string_view a, std::string_view b) const {
    return relative_.zu.FindeWert(Punktpaar(PunktNummernTyp(a), PunktNummernTyp(b)));
}

const Vergleichslage* TDM::VergleichZu(std::string_view nummer) const {
    return vergleiche_.zu.FindeWert(PunktNummernTyp(nummer));
}

const Punktergebnis* TDM::ErgebnisZu(std::string_view nummer) const {
    return punkte_.zu.FindeWert(PunktNummernTyp(nummer));
}

std::vector<Tabellenmeldung> TDM::NimmMeldungen() {
    return std::exchange(meldungen_, {});
}

void ErzeugeTabelle(Dateien& dateien, const std::filesystem::path& ordner, Tabelle tabelle,
                    std::span<const std::vector<paradox::Wert>> zeilen, std::time_t zeit) {
    const Ergebnistabelle& t = Beschreibung(tabelle);
    std::vector<paradox::Feld> felder;
    for (const Tabellenfeld& f : t.felder)
        felder.push_back({std::string(f.name), f.typ, f.groesse});
    const paradox::Dateipaar paar = paradox::SchreibeTabelle(t.name, felder, zeilen, zeit);
    dateien.ErsetzeDatei(ordner / (std::string(t.name) + ".DB"), paar.db);
    dateien.ErsetzeDatei(ordner / (std::string(t.name) + ".PX"), paar.px);
}

void ErzeugeTabellen(Dateien& dateien, const std::filesystem::path& ordner, std::time_t zeit) {
    for (std::size_t i = 0; i < kErgebnistabellen.size(); ++i)
        ErzeugeTabelle(dateien, ordner, static_cast<Tabelle>(i), {}, zeit);
}

}  // namespace zrw
