#include "output/Einbettschrift.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "model/Cp1252.h"

namespace zrw {
namespace {

// Numbers in fonts have their highest byte first. Reading beyond the end yields 0.
std::uint32_t Zahl(std::string_view t, std::size_t ort, std::size_t laenge) {
    if (ort > t.size() || t.size() - ort < laenge) return 0;
    std::uint32_t wert = 0;
    for (std::size_t i = 0; i < laenge; ++i)
        wert = wert << 8U | static_cast<unsigned char>(t[ort + i]);
    return wert;
}
std::uint16_t Wort(std::string_view t, std::size_t ort) {
    return static_cast<std::uint16_t>(Zahl(t, ort, 2));
}
std::int16_t Ganze(std::string_view t, std::size_t ort) {
    return static_cast<std::int16_t>(Wort(t, ort));
}
void HaengeZahlAn(std::string& t, std::uint32_t wert, std::size_t laenge) {
    while (laenge-- > 0)
        t += static_cast<char>(wert >> 8 * laenge & 0xFFU);
}
void ErsetzeZahl(std::string& t, std::size_t ort, std::uint32_t wert, std::size_t laenge) {
    std::string neu;
    HaengeZahlAn(neu, wert, laenge);
    t.replace(ort, laenge, neu);
}

std::uint32_t Pruefsumme(std::string_view t) {
    std::uint32_t summe = 0;
    for (std::size_t i = 0; i < t.size(); ++i)
        summe += std::uint32_t{static_cast<unsigned char>(t[i])} << 8 * (3 - i % 4);
    return summe;
}

// Positions within tables.
constexpr std::size_t kHeadLaenge = 54;
constexpr std::size_t kHeadPruefsumme = 8;
constexpr std::size_t kHeadEinheiten = 18;
constexpr std::size_t kHeadKasten = 36;
constexpr std::size_t kHeadOrtsformat = 50;
constexpr std::size_t kHheaLaenge = 36;
constexpr std::size_t kHheaAnstieg = 4;
constexpr std::size_t kHheaAbstieg = 6;
constexpr std::size_t kHheaBreiten = 34;
constexpr std::size_t kMaxpAnzahl = 4;
constexpr std::size_t kOs2Erlaubnis = 8;
constexpr std::size_t kUmrissKopf = 10;

/// Whether the maker of a font lets documents carry parts of it.
bool Erlaubt(std::string_view os2) {
    constexpr std::uint32_t kGesperrt = 0x0002;
    constexpr std::uint32_t kArten = 0x000F;
    constexpr std::uint32_t kNurGanzOderBitmap = 0x0300;
    const std::uint32_t e = Wort(os2, kOs2Erlaubnis);
    return (e & kArten) != kGesperrt && (e & kNurGanzOderBitmap) == 0;
}

/// Calls `tun(glyphe)` for the parts of a glyph that is put together from others.
template <class Tun>
void FuerTeile(std::string_view umriss, Tun tun) {
    constexpr std::uint32_t kWorte = 0x0001;
    constexpr std::uint32_t kEinMass = 0x0008;
    constexpr std::uint32_t kMehr = 0x0020;
    constexpr std::uint32_t kZweiMasse = 0x0040;
    constexpr std::uint32_t kVierMasse = 0x0080;
    if (Ganze(umriss, 0) >= 0) return;
    std::size_t ort = kUmrissKopf;
    std::uint32_t art = kMehr;
    while ((art & kMehr) != 0 && ort + 4 <= umriss.size()) {
        art = Wort(umriss, ort);
        tun(Wort(umriss, ort + 2));
        ort += (art & kWorte) != 0 ? 8 : 6;
        ort += (art & kEinMass) != 0 ? 2 : (art & kZweiMasse) != 0 ? 4 : (art & kVierMasse) != 0 ? 8 : 0;
    }
}

/// A font file of these tables.
std::string Zusammen(std::map<std::string, std::string> tabellen) {
    const auto anzahl = static_cast<std::uint32_t>(tabellen.size());
    std::uint32_t potenz = 1;
    std::uint32_t exponent = 0;
    while (potenz * 2 <= anzahl) {
        potenz *= 2;
        ++exponent;
    }
    std::string datei;
    HaengeZahlAn(datei, 0x00010000, 4);
    for (const std::uint32_t wert : {anzahl, potenz * 16, exponent, (anzahl - potenz) * 16})
        HaengeZahlAn(datei, wert, 2);
    ErsetzeZahl(tabellen["head"], kHeadPruefsumme, 0, 4);
    std::size_t ort = datei.size() + std::size_t{16} * anzahl;
    std::size_t head = 0;
    std::string inhalt;
    for (const auto& [name, tabelle] : tabellen) {
        if (name == "head") head = ort + inhalt.size();
        datei += name;
        HaengeZahlAn(datei, Pruefsumme(tabelle), 4);
        HaengeZahlAn(datei, static_cast<std::uint32_t>(ort + inhalt.size()), 4);
        HaengeZahlAn(datei, static_cast<std::uint32_t>(tabelle.size()), 4);
        inhalt += tabelle;
        inhalt.resize((inhalt.size() + 3) / 4 * 4);
    }
    datei += inhalt;
    ErsetzeZahl(datei, head + kHeadPruefsumme, 0xB1B0AFBAU - Pruefsumme(datei), 4);
    return datei;
}

}  // namespace

std::optional<Einbettschrift> Einbettschrift::AusQuelle(Schriftquelle quelle) {
    Einbettschrift schrift;
    schrift.quelle_ = std::move(quelle);
    if (!schrift.LiesTafeln()) return std::nullopt;
    return schrift;
}

bool Einbettschrift::LiesTafeln() {
    auto& t = quelle_.tabellen;
    const std::string& head = t["head"];
    const std::string& hhea = t["hhea"];
    const std::string& loca = t["loca"];
    const std::size_t anzahl = Wort(t["maxp"], kMaxpAnzahl);
    breiten_ = Wort(hhea, kHheaBreiten);
    const double einheit = Wort(head, kHeadEinheiten) / 1000.0;
    const bool lang = Wort(head, kHeadOrtsformat) != 0;
    if (!Erlaubt(t["OS/2"]) || head.size() < kHeadLaenge || hhea.size() < kHheaLaenge || anzahl == 0 ||
        einheit == 0.0 || breiten_ == 0 || breiten_ > anzahl ||
        t["hmtx"].size() < 2 * breiten_ + 2 * anzahl || loca.size() < (anzahl + 1) * (lang ? 4 : 2))
        return false;
    for (std::size_t i = 0; i <= anzahl; ++i)
        orte_.push_back(lang ? Zahl(loca, 4 * i, 4) : 2U * Wort(loca, 2 * i));
    if (!std::is_sorted(orte_.begin(), orte_.end()) || orte_.back() > t["glyf"].size() || orte_.back() == 0)
        return false;
    for (std::size_t i = 0; i < kasten_.size(); ++i)
        kasten_[i] = Ganze(head, kHeadKasten + 2 * i) / einheit;
    masse_.anstieg = Ganze(hhea, kHheaAnstieg) / einheit / 1000;
    masse_.abstieg = -Ganze(hhea, kHheaAbstieg) / einheit / 1000;
    for (std::size_t z = 0; z < quelle_.glyphen.size(); ++z) {
        if (quelle_.glyphen[z] >= anzahl) quelle_.glyphen[z] = 0;
        if (IstSteuerzeichen(static_cast<char>(z))) continue;
        const std::size_t breite = std::min<std::size_t>(quelle_.glyphen[z], breiten_ - 1);
        masse_.breiten[z] = Wort(t["hmtx"], 4 * breite) / einheit;
    }
    return masse_.anstieg > 0.0;
}

std::string_view Einbettschrift::Umriss(std::size_t glyphe) const {
    const std::string_view alle = quelle_.tabellen.at("glyf");
    return alle.substr(orte_[glyphe], orte_[glyphe + 1] - orte_[glyphe]);
}

/// Glyphs of the characters, the one for missing characters, and all parts of these.
std::vector<bool> Einbettschrift::Benoetigt(const Zeichenmenge& zeichen) const {
    std::vector<bool> da(orte_.size() - 1);
    std::vector<std::size_t> offen;
    const auto nimm = [&](std::size_t glyphe) {
        if (glyphe >= da.size() || da[glyphe]) return;
        da[glyphe] = true;
        offen.push_back(glyphe);
    };
    nimm(0);
    for (std::size_t z = 0; z < zeichen.size(); ++z) {
        if (zeichen[z]) nimm(quelle_.glyphen[z]);
    }
    while (!offen.empty()) {
        const std::size_t glyphe = offen.back();
        offen.pop_back();
        FuerTeile(Umriss(glyphe), nimm);
    }
    return da;
}

/// Characters to glyphs: one table of format 4 for Unicode on Windows, a segment each.
std::string Einbettschrift::Zuordnung(const Zeichenmenge& zeichen) const {
    std::map<std::uint32_t, std::uint32_t> glyphen;
    for (std::size_t z = 0; z < zeichen.size(); ++z) {
        if (zeichen[z]) glyphen[Cp1252Zeichen(static_cast<char>(z))] = quelle_.glyphen[z];
    }
    glyphen[0xFFFF] = 0;  // ends the table
    const auto anzahl = static_cast<std::uint32_t>(glyphen.size());
    std::uint32_t potenz = 1;
    std::uint32_t exponent = 0;
    for (; potenz * 2 <= anzahl; potenz *= 2)
        ++exponent;
    std::string t;
    for (const std::uint32_t wert : {0U, 1U, 3U, 1U})  // version, tables, platform, encoding
        HaengeZahlAn(t, wert, 2);
    HaengeZahlAn(t, 12, 4);
    for (const std::uint32_t wert :
         {4U, 16 + 8 * anzahl, 0U, 2 * anzahl, 2 * potenz, exponent, 2 * (anzahl - potenz)})
        HaengeZahlAn(t, wert, 2);
    for (const auto& [c, g] : glyphen)
        HaengeZahlAn(t, c, 2);
    HaengeZahlAn(t, 0, 2);
    for (const auto& [c, g] : glyphen)
        HaengeZahlAn(t, c, 2);
    for (const auto& [c, g] : glyphen)
        HaengeZahlAn(t, c == 0xFFFF ? 1 : g - c, 2);  // modulo 65536
    for (std::uint32_t i = 0; i < anzahl; ++i)
        HaengeZahlAn(t, 0, 2);
    return t;
}

std::string Einbettschrift::Datei(const Zeichenmenge& zeichen) const {
    const std::vector<bool> da = Benoetigt(zeichen);
    std::map<std::string, std::string> neu;
    for (const char* name : {"head", "hhea", "hmtx", "maxp", "cvt ", "fpgm", "prep"}) {
        const auto t = quelle_.tabellen.find(name);
        if (t != quelle_.tabellen.end() && !t->second.empty()) neu.insert(*t);
    }
    ErsetzeZahl(neu["head"], kHeadOrtsformat, 1, 2);
    std::string& umrisse = neu["glyf"];
    std::string& orte = neu["loca"];
    for (std::size_t i = 0; i < da.size(); ++i) {
        HaengeZahlAn(orte, static_cast<std::uint32_t>(umrisse.size()), 4);
        if (da[i]) {
            umrisse += Umriss(i);
            umrisse.resize((umrisse.size() + 3) / 4 * 4);
        } else if (i + 1 < breiten_) {
            ErsetzeZahl(neu["hmtx"], 4 * i, 0, 4);  // what is all alike takes no room in the end
        }
    }
    HaengeZahlAn(orte, static_cast<std::uint32_t>(umrisse.size()), 4);
    neu["cmap"] = Zuordnung(zeichen);
    return Zusammen(std::move(neu));
}

std::string Einbettschrift::Name(const Zeichenmenge& zeichen) const {
    std::size_t streuwert = std::hash<Zeichenmenge>()(zeichen);
    std::string name;
    for (int i = 0; i < 6; ++i, streuwert /= 26)
        name += static_cast<char>('A' + streuwert % 26);
    name += '+';
    for (const char c : quelle_.name) {
        const bool erlaubt =
            (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '-';
        if (erlaubt) name += c;
    }
    return name;
}

}  // namespace zrw
