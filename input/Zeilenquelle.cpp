#include "input/Zeilenquelle.h"

#include <algorithm>
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

}  // namespace

Zeilenquelle::Zeilenquelle(const std::filesystem::path& steuerdatei, const Dateien& dateien)
    : dateien_(dateien) {
    haupt_.pfad = steuerdatei;
    haupt_.inhalt = dateien.Lies(steuerdatei, kMaxDatei);
    haupt_.offen = true;
    // Editors put this mark before UTF-8 text; it must not hide the first key.
    if (haupt_.inhalt.starts_with("\xEF\xBB\xBF")) haupt_.stelle = 3;
}

bool Zeilenquelle::Naechste(std::string_view& zeile) {
    ausEinfuegung_ = eingefuegt_.offen && Lies(eingefuegt_, zeile);
    if (ausEinfuegung_) return true;
    eingefuegt_.offen = false;
    return Lies(haupt_, zeile);
}

bool Zeilenquelle::Lies(Text& text, std::string_view& zeile) {
    if (text.stelle >= text.inhalt.size()) return false;
    const std::string_view rest = std::string_view(text.inhalt).substr(text.stelle);
    const std::size_t ende = rest.find('\n');
    zeile = rest.substr(0, ende);
    text.stelle += ende == std::string_view::npos ? rest.size() : ende + 1;
    if (!zeile.empty() && zeile.back() == '\r') zeile.remove_suffix(1);
    ++text.nummer;
    return true;
}

bool Zeilenquelle::OeffneEinfuegung(std::string_view name) {
    std::string utf8 = Cp1252NachUtf8(OhneRand(name));
    std::replace(utf8.begin(), utf8.end(), '\\', '/');
    if (utf8.empty() || utf8.find('\0') != std::string::npos) return false;
    const auto pfad = dateien_.Finde(haupt_.pfad.parent_path(), utf8);
    if (!pfad) return false;
    Text neu;
    try {
        neu.inhalt = dateien_.Lies(*pfad, kMaxDatei);
    } catch (const Fehler&) {
        return false;
    }
    gelesen_ += neu.inhalt.size() + 4096;  // an empty file costs a look-up all the same
    if (gelesen_ > kMaxEinfuegungen) {
        throw Fehler("Die eingefügten Dateien sind zusammen zu groß. Es wurde nichts geladen.", Datei(),
                     Zeile());
    }
    neu.pfad = *pfad;
    neu.offen = true;
    eingefuegt_ = std::move(neu);
    return true;
}

}  // namespace zrw
