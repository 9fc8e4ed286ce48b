#include "input/Zeilenquelle.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <utility>

#include "model/Cp1252.h"
#include "model/Fehler.h"
#include "model/Zahlentext.h"

namespace zrw {
namespace {

/// Far above every real control file (a full network has about 14 MB), low enough for every machine.
constexpr std::size_t kMaxDatei = std::size_t{128} << 20U;
/// All include files of one reading together: continuation lines can name the same file again and again.
constexpr std::size_t kMaxEinfuegungen = std::size_t{128} << 20U;

/// By their mark, or by the dollar that a control file begins with.
bool IstUtf16(std::string_view bytes) {
    using namespace std::string_view_literals;
    return bytes.starts_with("\xFF\xFE"sv) || bytes.starts_with("\xFE\xFF"sv) || bytes.starts_with("$\0"sv) ||
           bytes.starts_with("\0$"sv);
}

/// Number of the line with this byte, counted as lines are read.
std::int64_t Zeilennummer(std::string_view text, std::size_t stelle) {
    std::int64_t nummer = 1;
    for (std::size_t i = 0; i < stelle; ++i) {
        if (text[i] == '\n' || (text[i] == '\r' && text[i + 1] != '\n')) ++nummer;
    }
    return nummer;
}

/// Why a file that was looked for in vain cannot be read.
std::string Grund(const Dateien& dateien, const std::filesystem::path& pfad) {
    try {
        (void)dateien.LiesDatei(pfad, 0);
    } catch (const Oeffnungsfehler& f) {
        return f.Grund();
    } catch (const Fehler&) {  // it came meanwhile
    }
    return "nicht vorhanden";
}

}  // namespace

Zeilenquelle::Zeilenquelle(const std::filesystem::path& steuerdatei, const Dateien& dateien)
    : dateien_(dateien), ordner_(steuerdatei.parent_path()) {
    UebernimmInhalt(haupt_, steuerdatei, dateien.LiesDatei(steuerdatei, kMaxDatei));
}

void Zeilenquelle::UebernimmInhalt(Text& text, const std::filesystem::path& pfad, std::string inhalt) {
    if (IstUtf16(inhalt)) {
        throw Fehler("Die Datei ist in UTF-16 geschrieben. Bitte in Codepage 1252 oder UTF-8 speichern.",
                     PfadText(pfad));
    }
    constexpr std::string_view kMarke = "\xEF\xBB\xBF";  // editors put it before UTF-8
    const bool marke = inhalt.starts_with(kMarke);
    Zeichenverlust verlust;
    if (marke || IstUtf8(inhalt)) verlust = WandleInCp1252(inhalt, marke ? kMarke.size() : 0);
    ersetzt_ = {};
    if (verlust.anzahl > 0)
        ersetzt_ = {verlust.anzahl, PfadText(pfad.filename()), Zeilennummer(inhalt, verlust.erstes)};
    namen_.push_back(PfadText(pfad.filename()));
    text = {
        .inhalt = std::move(inhalt), .datei = static_cast<std::uint32_t>(namen_.size() - 1), .offen = true};
    text.ruecklauf = text.inhalt.find('\r');
}

bool Zeilenquelle::Naechste(std::string_view& zeile) {
    ausEinfuegung_ = eingefuegt_.offen && LiesZeile(eingefuegt_, zeile);
    if (ausEinfuegung_) return true;
    eingefuegt_.offen = false;
    return LiesZeile(haupt_, zeile);
}

bool Zeilenquelle::LiesZeile(Text& text, std::string_view& zeile) {
    if (text.stelle >= text.inhalt.size()) return false;
    // Searched once for each CR, not once for each line: most files have none, others nothing else.
    if (text.ruecklauf < text.stelle) text.ruecklauf = text.inhalt.find('\r', text.stelle);
    const std::string_view rest = std::string_view(text.inhalt).substr(text.stelle);
    const bool ruecklauf = text.ruecklauf != std::string::npos;
    const std::size_t grenze = ruecklauf ? text.ruecklauf - text.stelle : rest.size();
    const std::size_t ende = std::min(rest.substr(0, grenze).find('\n'), grenze);
    zeile = rest.substr(0, ende);
    const bool paar = ruecklauf && ende == grenze && rest.substr(ende).starts_with("\r\n");
    text.stelle += std::min(ende + (paar ? 2 : 1), rest.size());
    ++text.nummer;
    return true;
}

Einfuegung Zeilenquelle::OeffneEinfuegung(std::string_view name) {
    std::string utf8 = Cp1252NachUtf8(OhneRand(name));
    std::replace(utf8.begin(), utf8.end(), '\\', '/');
    if (utf8.empty()) return {.grund = "der Name fehlt", .ersatz = {}};
    if (utf8.find('\0') != std::string::npos) return {.grund = "kein Dateiname", .ersatz = {}};
    Einfuegung ergebnis;
    auto pfad = dateien_.FindeDatei(ordner_, utf8);
    if (!pfad) {
        // Paths of another machine, with drive letters, name files that were copied here together.
        const std::size_t trenner = utf8.find_last_of("/:");
        if (trenner != std::string::npos && trenner + 1 < utf8.size())
            pfad = dateien_.FindeDatei(ordner_, utf8.substr(trenner + 1));
        if (!pfad) return {.grund = Grund(dateien_, ordner_ / TextPfad(utf8)), .ersatz = {}};
        ergebnis.ersatz = PfadText(pfad->filename());
    }
    Text neu;
    try {
        UebernimmInhalt(neu, *pfad, dateien_.LiesDatei(*pfad, kMaxDatei));
    } catch (const Oeffnungsfehler& f) {
        return {.grund = f.Grund(), .ersatz = {}};
    } catch (const Fehler& f) {
        return {.grund = f.Text(), .ersatz = {}};
    }
    gelesen_ += neu.inhalt.size() + 4096;  // an empty file costs a look-up all the same
    if (gelesen_ > kMaxEinfuegungen) {
        const Zeilenort hier = Hier();
        throw Fehler("Die eingefügten Dateien sind zusammen zu groß. Es wurde nichts geladen.", Name(hier),
                     hier.zeile);
    }
    eingefuegt_ = std::move(neu);
    return ergebnis;
}

}  // namespace zrw
