#include "input/tabellen/Paradoxschreiber.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstddef>
#include <set>
#include <utility>

#include "input/tabellen/ParadoxFormat.h"
#include "model/Cp1252.h"
#include "model/Fehler.h"

namespace zrw::paradox {
namespace {

constexpr std::size_t kKopfschritt = 0x800;
constexpr std::size_t kMaxBloecke = 0xFFFF;
constexpr std::size_t kMaxFelder = 255;
constexpr std::size_t kMaxFeldname = 25;
constexpr std::size_t kSaetzeJeBlock = 3;  // the least that a table with key may hold
constexpr std::size_t kIndexblock = 2048;
constexpr std::size_t kSchluesselbreite = 4;
constexpr std::size_t kEintrag = kSchluesselbreite + kVerweis;
constexpr std::size_t kEintraegeJeBlock = (kIndexblock - kBlockkopf) / kEintrag;

constexpr std::uint8_t kDeutsch = 0x62;  // the sort order of the name below
constexpr std::string_view kSortierung1252 = "ANSIINTL";
constexpr std::uint16_t kCodeseite1252 = 1252;
constexpr std::uint8_t kAenderungen = 2;  // a new table has seen two, the older counter one
// Changes and sort order of the table: an index with another stamp counts as out of date.
constexpr std::uint8_t kIndexstempel = kAenderungen + kDeutsch + 2;

/// Little-endian value at a place.
void SetzeZahl(std::string& ziel, std::size_t stelle, std::size_t bytes, std::uint64_t wert) {
    for (std::size_t i = 0; i < bytes; ++i)
        ziel[stelle + i] = static_cast<char>((wert >> (8U * i)) & 0xFFU);
}

/// Value of a record: big-endian with the top bit flipped.
void HaengeZahlAn(std::string& ziel, std::size_t bytes, std::uint64_t wert) {
    for (std::size_t i = bytes; i-- > 0;) {
        const std::uint64_t byte = (wert >> (8U * i)) & 0xFFU;
        ziel += static_cast<char>(i + 1 == bytes ? byte ^ 0x80U : byte);
    }
}

/// Size byte of the types that can be written, 0 for others: text and what has one width. A counter would
/// have to be kept in the header, too.
std::uint8_t Groesse(const Feld& feld) {
    if (feld.typ == Feldtyp::Alpha) return feld.groesse;
    const Typ* typ = FindeTyp(static_cast<std::uint8_t>(feld.typ));
    return typ == nullptr || typ->breite != typ->groesste || feld.typ == Feldtyp::Zaehler ? 0 : typ->breite;
}

/// So many blocks for all of them.
std::size_t Bloecke(std::size_t anzahl, std::size_t jeBlock) {
    return (anzahl + jeBlock - 1) / jeBlock;
}

/// What the index says about one block: the key of its first record and what is below it.
struct Eintrag {
    std::int64_t schluessel;
    std::size_t block;
    std::size_t saetze;
    std::size_t eintraege;  ///< of an index block
};
using Ebene = std::vector<Eintrag>;

class Schreiber {
  public:
    Schreiber(std::string_view name, std::span<const Feld> felder, Stufe stufe);
    [[nodiscard]] Dateipaar Tabelle(std::span<const std::vector<Wert>> zeilen, std::time_t zeit);

  private:
    [[noreturn]] void WirfFehler(const std::string& text) const;
    void PruefeFelder();
    [[nodiscard]] std::vector<std::size_t> Reihenfolge(std::span<const std::vector<Wert>> zeilen) const;
    [[nodiscard]] std::string Gemeinsam(std::size_t laenge, std::size_t satz, std::size_t bloecke) const;
    [[nodiscard]] std::string Kopf(std::size_t saetze, std::size_t bloecke, std::time_t zeit) const;
    [[nodiscard]] std::string Index(Ebene unterste) const;

    std::string name_;     ///< code page 1252, as the names of the fields
    std::string anzeige_;  ///< for messages
    std::span<const Feld> felder_;
    std::vector<std::string> namen_;
    Stufe stufe_;
    std::size_t satz_ = 0;
    std::size_t block_ = 2048;
};

std::size_t Namenbreite(Stufe stufe) {
    return stufe == Stufe::Sieben ? kNameBreite7 : kNameBreite;
}

/// Head of a block in a chain by number; the records follow.
void HaengeAnBlockkopf(std::string& ziel, std::size_t nummer, std::size_t letzter, std::size_t zusatz) {
    const std::size_t stelle = ziel.size();
    ziel.append(kBlockkopf, '\0');
    SetzeZahl(ziel, stelle, 2, nummer == letzter ? 0 : nummer + 1);
    SetzeZahl(ziel, stelle + 2, 2, nummer - 1);
    SetzeZahl(ziel, stelle + 4, 2, zusatz);
}

Schreiber::Schreiber(std::string_view name, std::span<const Feld> felder, Stufe stufe)
    : name_(Utf8NachCp1252(name)), anzeige_(name), felder_(felder), stufe_(stufe) {
    if (name_.empty() || name_.find('\0') != std::string::npos || name_.size() + 4 > Namenbreite(stufe)) {
        WirfFehler("Der Tabellenname ist leer oder zu lang.");
    }
    PruefeFelder();
}

void Schreiber::WirfFehler(const std::string& text) const {
    throw Fehler(text + " Es wurde nichts geschrieben.", anzeige_ + ".DB");
}

void Schreiber::PruefeFelder() {
    if (felder_.empty() || felder_.size() > kMaxFelder) {
        WirfFehler("Eine Tabelle hat 1 bis 255 Felder, nicht " + std::to_string(felder_.size()) + ".");
    }
    if (felder_.front().typ != Feldtyp::Lang)
        WirfFehler("Das erste Feld muss der Schlüssel sein, eine ganze Zahl.");
    std::set<std::string> bekannt;
    for (const Feld& feld : felder_) {
        const std::string& name = namen_.emplace_back(Utf8NachCp1252(feld.name));
        if (name.empty() || name.size() > kMaxFeldname || name.find('\0') != std::string::npos) {
            WirfFehler("Der Feldname „" + feld.name + "“ ist leer oder länger als 25 Zeichen.");
        }
        // Columns are looked up without regard to case.
        std::string gross = name;
        for (char& c : gross)
            c = c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
        if (!bekannt.insert(gross).second) WirfFehler("Der Feldname „" + feld.name + "“ kommt mehrfach vor.");
        if (Groesse(feld) == 0) {
            WirfFehler("Das Feld „" + feld.name +
                       "“ hat eine Art oder Breite, die nicht geschrieben werden kann.");
        }
    }
    satz_ = kSchluesselbreite;
    for (const Feld& feld : felder_.subspan(1))
        satz_ += Groesse(feld);
    if (kSaetzeJeBlock * satz_ > block_ - kBlockkopf) block_ *= 2;
    if (kSaetzeJeBlock * satz_ > block_ - kBlockkopf) {
        WirfFehler("Ein Satz ist mit " + std::to_string(satz_) + " Bytes zu breit für eine Tabelle.");
    }
}

/// Rows by key.
std::vector<std::size_t> Schreiber::Reihenfolge(std::span<const std::vector<Wert>> zeilen) const {
    std::vector<std::size_t> folge;
    folge.reserve(zeilen.size());
    for (std::size_t i = 0; i < zeilen.size(); ++i) {
        const std::string satz = "Satz " + std::to_string(i + 1);
        if (zeilen[i].size() != felder_.size()) {
            WirfFehler(satz + " hat " + std::to_string(zeilen[i].size()) + " statt " +
                       std::to_string(felder_.size()) + " Werte.");
        }
        if (!std::holds_alternative<std::int64_t>(zeilen[i].front()))
            WirfFehler(satz + " hat keinen Schlüssel.");
        folge.push_back(i);
    }
    const auto schluessel = [&](std::size_t i) { return std::get<std::int64_t>(zeilen[i].front()); };
    std::sort(folge.begin(), folge.end(), [&](auto a, auto b) { return schluessel(a) < schluessel(b); });
    const auto doppelt = std::adjacent_find(folge.begin(), folge.end(),
                                            [&](auto a, auto b) { return schluessel(a) == schluessel(b); });
    if (doppelt != folge.end()) {
        WirfFehler("Der Schlüssel " + std::to_string(schluessel(*doppelt)) + " kommt mehrfach vor.");
    }
    return folge;
}

/// What table and index have in common, padded with zeros.
std::string Schreiber::Gemeinsam(std::size_t laenge, std::size_t satz, std::size_t bloecke) const {
    std::string k(Bloecke(laenge, kKopfschritt) * kKopfschritt, '\0');
    SetzeZahl(k, kSatzlaenge, 2, satz);
    SetzeZahl(k, kKopflaenge, 2, k.size());
    SetzeZahl(k, kKette, 2, bloecke);
    SetzeZahl(k, kBloecke, 2, bloecke);
    SetzeZahl(k, kBloecke2, 2, bloecke);
    SetzeZahl(k, kErster, 2, bloecke == 0 ? 0 : 1);
    SetzeZahl(k, kLetzter, 2, bloecke);
    SetzeZahl(k, kSortierung, 1, kDeutsch);
    SetzeZahl(k, kVersion, 1, static_cast<std::uint8_t>(stufe_));
    SetzeZahl(k, kBenutzt, 2, laenge);
    return k;
}

std::string Schreiber::Kopf(std::size_t saetze, std::size_t bloecke, std::time_t zeit) const {
    const std::size_t n = felder_.size();
    std::string variabel;
    for (const Feld& feld : felder_)
        variabel.append({static_cast<char>(feld.typ), static_cast<char>(Groesse(feld))});
    variabel.append(4 + 4 * n, '\0');
    variabel.append(name_ + ".DB").append(Namenbreite(stufe_) - name_.size() - 3, '\0');
    for (const std::string& name : namen_)
        variabel.append(name).append(1, '\0');
    const std::size_t nummern = kKopfMitTeil2 + variabel.size();
    for (std::size_t i = 1; i <= n; ++i)
        variabel.append({static_cast<char>(i), '\0'});
    const std::size_t sortierung = kKopfMitTeil2 + variabel.size();
    variabel.append(kSortierung1252).append(1, '\0');

    std::string k = Gemeinsam(kKopfMitTeil2 + variabel.size(), satz_, bloecke);
    SetzeZahl(k, kDateiart, 1, kMitSchluessel);
    SetzeZahl(k, kBlockgroesse, 1, block_ / 1024);
    SetzeZahl(k, kSatzzahl, 4, saetze);
    SetzeZahl(k, kUngeklaert, 2, 3);
    SetzeZahl(k, kFeldzahl, 2, n);
    SetzeZahl(k, kSchluessel, 2, 1);
    SetzeZahl(k, kKennwortAlt, 4, 0xFF00FF00);
    SetzeZahl(k, kZaehler1, 1, kAenderungen);
    SetzeZahl(k, kZaehler2, 1, kAenderungen - 1);
    SetzeZahl(k, kKennung, 2, 0x0F1F);
    SetzeZahl(k, kStufenkopf, 1, 0x20);
    for (const std::size_t stelle : {kVersion2, kVersion2 + 2})
        SetzeZahl(k, stelle, 2, 0x0100U + static_cast<std::uint8_t>(stufe_));
    SetzeZahl(k, kZeitstempel, 4, static_cast<std::uint64_t>(zeit));
    SetzeZahl(k, kFeldzaehler, 2, n + 1);
    SetzeZahl(k, kFeldnummern, 2, nummern - kKopf);
    SetzeZahl(k, kCodeseite, 2, kCodeseite1252);
    SetzeZahl(k, kEinsen, 2, 0x0101);
    SetzeZahl(k, kSortiername, 2, sortierung - kKopf);
    SetzeZahl(k, kUmbauten, 2, 1);
    return k.replace(kKopfMitTeil2, variabel.size(), variabel);
}

/// False where the field cannot hold the value.
bool HaengeAnWert(std::string& ziel, const Feld& feld, const Wert& wert) {
    const std::size_t breite = Groesse(feld);
    if (std::holds_alternative<std::monostate>(wert)) {
        ziel.append(breite, '\0');
        return true;
    }
    if (feld.typ == Feldtyp::Alpha) {
        const auto* text = std::get_if<std::string_view>(&wert);
        if (text == nullptr || text->find('\0') != std::string_view::npos) return false;
        const std::string bytes = Utf8NachCp1252(*text);
        if (bytes.size() > breite) return false;
        ziel.append(bytes).append(breite - bytes.size(), '\0');
        return true;
    }
    if (feld.typ == Feldtyp::Logisch) {
        const bool* wahr = std::get_if<bool>(&wert);
        if (wahr != nullptr) ziel += static_cast<char>(*wahr ? 0x81 : 0x80);
        return wahr != nullptr;
    }
    if (breite == 8) {
        const auto* zahl = std::get_if<double>(&wert);
        if (zahl == nullptr || !std::isfinite(*zahl)) return false;
        // Of negative numbers all bits are turned; the sum makes zero of minus zero.
        const auto bits = std::bit_cast<std::uint64_t>(*zahl + 0.0);
        HaengeZahlAn(ziel, 8, std::signbit(*zahl + 0.0) ? ~bits ^ (std::uint64_t{1} << 63U) : bits);
        return true;
    }
    // The least number of the width means null.
    const auto* ganz = std::get_if<std::int64_t>(&wert);
    const std::int64_t grenze = breite == 2 ? 0x8000 : 0x80000000;
    if (ganz == nullptr || *ganz <= -grenze || *ganz >= grenze) return false;
    HaengeZahlAn(ziel, breite, static_cast<std::uint64_t>(*ganz));
    return true;
}

/// From the entries of the table's blocks up to the level that fits one block. Those of the upper levels
/// point to blocks of the level below, counted from 1 there.
std::vector<Ebene> Ebenen(Ebene unterste) {
    std::vector<Ebene> ebenen{std::move(unterste)};
    while (ebenen.back().size() > kEintraegeJeBlock) {
        Ebene oben;
        for (const Eintrag& e : ebenen.back()) {
            if (oben.empty() || oben.back().eintraege == kEintraegeJeBlock) {
                oben.push_back({e.schluessel, oben.size() + 1, 0, 0});
            }
            ++oben.back().eintraege;
            oben.back().saetze += e.saetze;
        }
        ebenen.push_back(std::move(oben));
    }
    return ebenen;
}

/// The root is block 1, the levels follow downwards.
void HaengeAnIndexbloecke(std::string& px, const std::vector<Ebene>& ebenen, std::size_t letzter) {
    std::size_t nummer = 0;
    for (std::size_t stufe = ebenen.size(); stufe-- > 0;) {
        const Ebene& ebene = ebenen[stufe];
        const std::size_t darueber = stufe == 0 ? 0 : nummer + Bloecke(ebene.size(), kEintraegeJeBlock);
        for (std::size_t i = 0; i < ebene.size(); ++i) {
            if (i % kEintraegeJeBlock == 0) {
                px.resize(Bloecke(px.size(), kIndexblock) * kIndexblock, '\0');
                const std::size_t anzahl = std::min(kEintraegeJeBlock, ebene.size() - i);
                HaengeAnBlockkopf(px, ++nummer, letzter, (anzahl - 1) * kEintrag);
            }
            HaengeZahlAn(px, kSchluesselbreite, static_cast<std::uint64_t>(ebene[i].schluessel));
            HaengeZahlAn(px, 2, darueber + ebene[i].block);
            // More than the field holds only below the root of three levels.
            HaengeZahlAn(px, 2, std::min<std::size_t>(ebene[i].saetze, 0xFFFF));
            HaengeZahlAn(px, 2, 0);
        }
    }
    px.resize(Bloecke(px.size(), kIndexblock) * kIndexblock, '\0');
}

std::string Schreiber::Index(Ebene unterste) const {
    const std::vector<Ebene> ebenen = Ebenen(std::move(unterste));
    std::size_t bloecke = 0;
    std::size_t eintraege = 0;
    for (const Ebene& ebene : ebenen) {
        bloecke += Bloecke(ebene.size(), kEintraegeJeBlock);
        eintraege += ebene.size();
    }
    std::string px = Gemeinsam(kKopf + 2 + 4 + Namenbreite(stufe_), kEintrag, bloecke);
    SetzeZahl(px, kDateiart, 1, kIndex);
    SetzeZahl(px, kBlockgroesse, 1, kIndexblock / 1024);
    SetzeZahl(px, kSatzzahl, 4, eintraege);
    SetzeZahl(px, kUngeklaert, 2, 4);
    SetzeZahl(px, kWurzel, 2, 1);
    SetzeZahl(px, kEbenen, 1, eintraege == 0 ? 0 : ebenen.size());
    SetzeZahl(px, kFeldzahl, 2, 1);
    SetzeZahl(px, kStempel, 1, kIndexstempel);
    SetzeZahl(px, kIndexzaehler, 4, 1);
    SetzeZahl(px, kKopf, 2, static_cast<unsigned>(Feldtyp::Lang) | kSchluesselbreite << 8U);
    px.replace(kKopf + 2 + 4, name_.size() + 3, name_ + ".PX");
    HaengeAnIndexbloecke(px, ebenen, bloecke);
    return px;
}

Dateipaar Schreiber::Tabelle(std::span<const std::vector<Wert>> zeilen, std::time_t zeit) {
    const std::vector<std::size_t> folge = Reihenfolge(zeilen);
    const std::size_t jeBlock = (block_ - kBlockkopf) / satz_;
    const std::size_t bloecke = Bloecke(folge.size(), jeBlock);
    if (bloecke > kMaxBloecke) {
        WirfFehler("Die Tabelle fasst höchstens " + std::to_string(kMaxBloecke * jeBlock) + " Sätze, nicht " +
                   std::to_string(folge.size()) + ".");
    }
    Dateipaar paar{Kopf(folge.size(), bloecke, zeit), {}};
    std::string& db = paar.db;
    const std::size_t kopf = db.size();
    db.reserve(kopf + bloecke * block_);
    Ebene eintraege;
    for (std::size_t i = 0; i < folge.size(); ++i) {
        const std::vector<Wert>& zeile = zeilen[folge[i]];
        const std::int64_t schluessel = std::get<std::int64_t>(zeile.front());
        if (i % jeBlock == 0) {
            const std::size_t anzahl = std::min(jeBlock, folge.size() - i);
            db.resize(kopf + eintraege.size() * block_, '\0');
            eintraege.push_back({schluessel, eintraege.size() + 1, anzahl, 0});
            HaengeAnBlockkopf(db, eintraege.size(), bloecke, (anzahl - 1) * satz_);
        }
        for (std::size_t f = 0; f < felder_.size(); ++f) {
            if (HaengeAnWert(db, felder_[f], zeile[f])) continue;
            WirfFehler("Der Satz mit dem Schlüssel " + std::to_string(schluessel) + " hat im Feld „" +
                       felder_[f].name + "“ einen Wert, der dort nicht hineinpasst.");
        }
    }
    db.resize(kopf + bloecke * block_, '\0');
    paar.px = Index(std::move(eintraege));
    return paar;
}

}  // namespace

Dateipaar SchreibeTabelle(std::string_view name, std::span<const Feld> felder,
                          std::span<const std::vector<Wert>> zeilen, std::time_t zeit, Stufe stufe) {
    return Schreiber(name, felder, stufe).Tabelle(zeilen, zeit);
}

}  // namespace zrw::paradox
