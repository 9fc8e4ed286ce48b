#include "input/tabellen/Paradoxleser.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstring>
#include <utility>

#include "input/tabellen/ParadoxFormat.h"
#include "model/Bytes.h"
#include "model/Fehler.h"

namespace zrw::paradox {
namespace {

constexpr unsigned kDosCodeseite = 437;  // of the versions that do not name theirs

/// Big-endian bytes of a record; 0 is null for every type.
template <std::size_t breite>
std::uint64_t Roh(const char* bytes) {
    std::uint64_t v = 0;
    for (std::size_t i = 0; i < breite; ++i)
        v = v << 8U | static_cast<std::uint8_t>(bytes[i]);
    return v;
}

template <std::size_t breite>
Wert Ganz(const char* bytes) {
    const std::uint64_t roh = Roh<breite>(bytes);
    if (roh == 0) return {};
    return static_cast<std::int64_t>(roh) - (std::int64_t{1} << (8 * breite - 1));
}

Wert Gleitkomma(const char* bytes) {
    constexpr std::uint64_t kOben = std::uint64_t{1} << 63U;
    const std::uint64_t roh = Roh<8>(bytes);
    if (roh == 0) return {};
    const double v = std::bit_cast<double>((roh & kOben) != 0 ? roh ^ kOben : ~roh);
    // No program stores these on purpose, and none who computes with the values expects them.
    if (!std::isfinite(v)) return {};
    return v;
}

Wert Wahrheit(char byte) {
    if (byte == 0) return {};
    return static_cast<std::uint8_t>(byte) != 0x80;
}

}  // namespace

Leser::Leser(std::string_view inhalt, std::string datei) : inhalt_(inhalt), datei_(std::move(datei)) {
    PruefeKopf();
    LiesFelder();
}

std::uint8_t Leser::U8(std::size_t stelle) const {
    return static_cast<std::uint8_t>(inhalt_[stelle]);
}

std::uint16_t Leser::U16(std::size_t stelle) const {
    return ByteLeser(inhalt_.substr(stelle, 2)).U16();
}

std::uint32_t Leser::U32(std::size_t stelle) const {
    return ByteLeser(inhalt_.substr(stelle, 4)).U32();
}

void Leser::WirfFehler(const std::string& text) const {
    throw Fehler(text, datei_);
}

void Leser::Beschaedigt(const std::string& was) const {
    WirfFehler("Die Tabelle ist beschädigt (" + was +
               "). Bitte neu erzeugen oder aus einer Sicherung zurückholen.");
}

void Leser::WarneVor(const std::string& text) {
    warnung_ += (warnung_.empty() ? "" : " ") + text;
}

void Leser::PruefeKopf() {
    const std::string keine = "Die Datei ist keine Paradox-Tabelle (";
    const std::string rat = "). Bitte eine Tabelle der Versionen 3 bis 7 bereitstellen.";
    if (inhalt_.size() < kKopf) WirfFehler(keine + "der Kopf fehlt" + rat);
    const unsigned art = U8(kDateiart);
    if (art != kMitSchluessel && art != kOhneSchluessel) {
        WirfFehler(keine + (art == kIndex ? "sondern ein Index" : "Dateiart " + std::to_string(art)) + rat);
    }
    version_ = U8(kVersion);
    if (version_ < kAeltesteVersion || version_ > kNeuesteVersion) {
        WirfFehler(keine + "Dateiversion " + std::to_string(version_) + rat);
    }
    kopf_ = U16(kKopflaenge);
    block_ = U8(kBlockgroesse) * std::size_t{1024};
    bloecke_ = U16(kBloecke);
    satz_ = U16(kSatzlaenge);
    zeilen_ = U32(kSatzzahl);
    if (kopf_ < (version_ >= kVersionMitTeil2 ? kKopfMitTeil2 : kKopf) || kopf_ > inhalt_.size()) {
        Beschaedigt("Kopf von " + std::to_string(kopf_) + " Bytes");
    }
    if (U32(version_ >= kVersionMitTeil2 ? kKennwort : kKennwortAlt) != 0) {
        WirfFehler(
            "Die Tabelle ist verschlüsselt und kann nicht gelesen werden. Bitte ohne Kennwort speichern.");
    }
    if (block_ == 0 || block_ > std::size_t{32} * 1024) {
        Beschaedigt("Blöcke von " + std::to_string(block_) + " Bytes");
    }
    if (satz_ == 0 || satz_ > block_ - kBlockkopf) {
        Beschaedigt("Sätze von " + std::to_string(satz_) + " Bytes in Blöcken von " + std::to_string(block_));
    }
    // Who reserves memory for that many rows must not be led astray.
    if (zeilen_ > (inhalt_.size() - kopf_) / satz_) {
        Beschaedigt(std::to_string(zeilen_) + " Sätze angekündigt, die Datei ist kürzer");
    }
    if (U8(kUmbau1) != 0 || U8(kUmbau2) != 0) {
        WarneVor(
            "Die Tabelle wird gerade geschrieben, oder ihr Schreiben wurde abgebrochen; ihr Inhalt kann "
            "unvollständig sein.");
    }
}

void Leser::LiesFelder() {
    const std::size_t variabel = version_ >= kVersionMitTeil2 ? kKopfMitTeil2 : kKopf;
    const std::size_t n = U16(kFeldzahl);
    if (n == 0 || n > 255) Beschaedigt(std::to_string(n) + " Felder");
    const std::size_t namen =
        variabel + 2 * n + 4 + 4 * n + (version_ >= kNeuesteVersion ? kNameBreite7 : kNameBreite);
    if (namen > kopf_) Beschaedigt("kein Platz für " + std::to_string(n) + " Felder im Kopf");
    felder_.resize(n);
    LiesFeldarten(variabel);
    const std::size_t nachNamen = LiesNamen(namen);
    WaehleCodeseite(nachNamen + 2 * n);
    for (Feld& feld : felder_)
        feld.name = codeseite_.NachUtf8(feld.name);
}

void Leser::LiesFeldarten(std::size_t variabel) {
    std::size_t stelle = 0;
    for (std::size_t i = 0; i < felder_.size(); ++i) {
        const std::string feld = "Feld " + std::to_string(i + 1) + " mit ";
        const std::uint8_t code = U8(variabel + 2 * i);
        const std::uint8_t groesse = U8(variabel + 2 * i + 1);
        const Typ* typ = FindeTyp(code);
        if (typ == nullptr) Beschaedigt(feld + "unbekannter Art " + std::to_string(code));
        if (groesse < typ->kleinste || groesse > typ->groesste) {
            Beschaedigt(feld + "unmöglicher Breite " + std::to_string(groesse));
        }
        const std::uint8_t breite = typ->breite != 0 ? typ->breite : groesse;
        if (stelle + breite > satz_) break;
        felder_[i].typ = typ->typ;
        felder_[i].groesse = groesse;
        plaetze_.push_back({typ->typ, static_cast<std::uint16_t>(stelle), breite});
        stelle += breite;
    }
    if (stelle != satz_ || plaetze_.size() != felder_.size()) {
        Beschaedigt("die Felder ergeben keinen Satz von " + std::to_string(satz_) + " Bytes");
    }
}

/// Bytes of the names as they stand. @return where the names end
std::size_t Leser::LiesNamen(std::size_t stelle) {
    const std::string_view kopf = inhalt_.substr(0, kopf_);
    for (Feld& feld : felder_) {
        const std::size_t ende = kopf.find('\0', stelle);
        if (ende == std::string_view::npos) Beschaedigt("die Feldnamen enden nicht im Kopf");
        feld.name = kopf.substr(stelle, ende - stelle);
        stelle = ende + 1;
    }
    return stelle;
}

void Leser::WaehleCodeseite(std::size_t sortiername) {
    unsigned nummer = version_ >= kVersionMitTeil2 ? U16(kCodeseite) : kDosCodeseite;
    if (nummer == 0) {
        // A driver of Windows that names none: the sort order tells.
        const std::string_view name = sortiername < kopf_ ? inhalt_.substr(sortiername, 4) : "";
        if (name.starts_with("DB") || name.starts_with("BL") || name == "ANSI") nummer = 1252;
    }
    if (!Codeseite::Bekannt(nummer)) {
        WarneVor(
            "Die Codeseite " + std::to_string(nummer) +
            " der Tabelle ist nicht bekannt; Texte werden wie Codeseite 1252 gelesen, Umlaute können falsch "
            "sein.");
    }
    codeseite_ = Codeseite(nummer);
}

void Leser::FuerJedeZeile(const std::function<void(std::span<const Wert>)>& tun) const {
    std::vector<bool> besucht(bloecke_ + 1);
    std::vector<Wert> zeile(felder_.size());
    std::string puffer;
    puffer.reserve(satz_ * Codeseite::kLaengste);  // never grows, so that views into it hold
    std::size_t gelesen = 0;
    for (std::size_t nummer = U16(kErster); nummer != 0;) {
        const std::string block = "Block " + std::to_string(nummer);
        if (nummer > bloecke_) Beschaedigt(block + " gibt es nicht");
        if (besucht[nummer]) Beschaedigt(block + " kommt in der Kette zweimal vor");
        besucht[nummer] = true;
        const Saetze saetze = Block(nummer);
        gelesen += saetze.bytes.size() / satz_;
        if (gelesen > zeilen_)
            Beschaedigt("mehr als die angekündigten " + std::to_string(zeilen_) + " Sätze");
        for (std::size_t i = 0; i < saetze.bytes.size(); i += satz_) {
            puffer.clear();
            LiesSatz(saetze.bytes.data() + i, zeile, puffer);
            tun(zeile);
        }
        nummer = saetze.naechster;
    }
    if (gelesen != zeilen_) {
        Beschaedigt(std::to_string(gelesen) + " statt " + std::to_string(zeilen_) + " Sätzen");
    }
}

Leser::Saetze Leser::Block(std::size_t nummer) const {
    const std::size_t anfang = kopf_ + (nummer - 1) * block_;
    const std::string block = "Block " + std::to_string(nummer);
    if (anfang + kBlockkopf > inhalt_.size()) Beschaedigt(block + " fehlt am Ende der Datei");
    const std::size_t naechster = U16(anfang);
    const std::int32_t zusatz = static_cast<std::int16_t>(U16(anfang + 4));
    if (zusatz < 0) return {{}, naechster};
    const std::size_t laenge = static_cast<std::size_t>(zusatz) + satz_;
    if (laenge % satz_ != 0 || kBlockkopf + laenge > block_) {
        Beschaedigt(block + " mit unmöglicher Satzzahl");
    }
    // The last block may end early, but not before its last record.
    if (anfang + kBlockkopf + laenge > inhalt_.size()) Beschaedigt(block + " ist abgeschnitten");
    return {inhalt_.substr(anfang + kBlockkopf, laenge), naechster};
}

void Leser::LiesSatz(const char* satz, std::vector<Wert>& zeile, std::string& puffer) const {
    for (std::size_t i = 0; i < plaetze_.size(); ++i) {
        const Platz& platz = plaetze_[i];
        const char* bytes = satz + platz.stelle;
        Wert& wert = zeile[i];
        switch (platz.typ) {
            case Feldtyp::Alpha:
                wert = LiesText({bytes, platz.breite}, puffer);
                break;
            case Feldtyp::Kurz:
                wert = Ganz<2>(bytes);
                break;
            case Feldtyp::Datum:
            case Feldtyp::Lang:
            case Feldtyp::Zeit:
            case Feldtyp::Zaehler:
                wert = Ganz<4>(bytes);
                break;
            case Feldtyp::Waehrung:
            case Feldtyp::Zahl:
            case Feldtyp::Zeitpunkt:
                wert = Gleitkomma(bytes);
                break;
            case Feldtyp::Logisch:
                wert = Wahrheit(*bytes);
                break;
            case Feldtyp::Memo:
            case Feldtyp::Binaer:
            case Feldtyp::FormatMemo:
            case Feldtyp::Ole:
            case Feldtyp::Grafik:
            case Feldtyp::Bcd:
            case Feldtyp::Bytes:
                wert = std::monostate{};
                break;
        }
    }
}

Wert Leser::LiesText(std::string_view bytes, std::string& puffer) const {
    bytes = bytes.substr(0, bytes.find('\0'));
    // Programs that fill their fields with blanks mean the same numbers.
    bytes = bytes.substr(0, bytes.find_last_not_of(' ') + 1);
    if (bytes.empty()) return {};
    const bool ascii =
        std::all_of(bytes.begin(), bytes.end(), [](char c) { return static_cast<std::uint8_t>(c) < 0x80; });
    if (ascii) return bytes;
    const std::size_t anfang = puffer.size();
    codeseite_.HaengeAn(puffer, bytes);
    return std::string_view(puffer).substr(anfang);
}

}  // namespace zrw::paradox
