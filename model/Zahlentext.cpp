#include "model/Zahlentext.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <system_error>

#include "model/Ganzzahl.h"

namespace zrw {
namespace {

constexpr bool IstZiffer(char c) {
    return c >= '0' && c <= '9';
}

/// Skips one leading plus sign, which from_chars refuses; a second sign behind it stays an error.
std::string_view OhnePlus(std::string_view t) {
    if (t.size() > 1 && t.front() == '+' && t[1] != '-' && t[1] != '+') t.remove_prefix(1);
    return t;
}

/// Whether a well-formed number out of range is too small rather than too large: by the power of ten of its
/// first digit that counts.
bool IstUnterlauf(std::string_view t) {
    const std::size_t e = std::min(t.find_first_of("eE"), t.size());
    const std::string_view mantisse = t.substr(0, e);
    const std::size_t erste = mantisse.find_first_of("123456789");
    if (erste == std::string_view::npos) return true;
    const auto punkt = static_cast<std::int64_t>(std::min(mantisse.find('.'), mantisse.size()));
    std::int64_t zehner = punkt - static_cast<std::int64_t>(erste);
    if (e < t.size()) {
        std::int64_t exponent = 0;
        const std::string_view ziffern = t.substr(e + 1);
        const auto [ende, fehler] = std::from_chars(ziffern.data() + (ziffern.starts_with('+') ? 1 : 0),
                                                    ziffern.data() + ziffern.size(), exponent);
        if (fehler == std::errc::result_out_of_range) return ziffern.starts_with('-');
        zehner = Summe(zehner, exponent);
    }
    return zehner < 0;
}

}  // namespace

std::string_view OhneRand(std::string_view text) {
    while (!text.empty() && IstLeerzeichen(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && IstLeerzeichen(text.back()))
        text.remove_suffix(1);
    return text;
}

std::optional<double> LiesReal(std::string_view text) {
    std::string_view t = OhnePlus(OhneRand(text));
    // "inf" and "nan" would pass from_chars; a decimal real begins with a digit or a point.
    const std::size_t anfang = !t.empty() && t.front() == '-' ? 1 : 0;
    if (t.size() <= anfang || !(IstZiffer(t[anfang]) || t[anfang] == '.')) return std::nullopt;
    double wert = 0.0;
    std::from_chars_result gelesen = std::from_chars(t.data(), t.data() + t.size(), wert);
    std::string mitE;
    if (const auto d = static_cast<std::size_t>(gelesen.ptr - t.data());
        d < t.size() && (t[d] == 'd' || t[d] == 'D')) {
        mitE = t;
        mitE[d] = 'E';
        t = mitE;
        gelesen = std::from_chars(t.data(), t.data() + t.size(), wert);
    }
    if (gelesen.ptr != t.data() + t.size()) return std::nullopt;
    if (gelesen.ec == std::errc::result_out_of_range) {
        return IstUnterlauf(t) ? std::optional<double>(0.0) : std::nullopt;
    }
    if (gelesen.ec != std::errc()) return std::nullopt;
    return wert;
}

std::optional<std::int64_t> LiesGanz(std::string_view text) {
    const std::string_view t = OhnePlus(OhneRand(text));
    std::int64_t wert = 0;
    const auto [ende, fehler] = std::from_chars(t.data(), t.data() + t.size(), wert);
    if (t.empty() || fehler != std::errc() || ende != t.data() + t.size()) return std::nullopt;
    return wert;
}

std::string SchreibeReal(double wert) {
    std::array<char, 64> puffer{};
    // Plain digits as long as people read them; to_chars alone would write 100000 as 1e+05.
    const double betrag = std::fabs(wert);
    const bool schlicht = betrag == 0.0 || (betrag >= 1e-5 && betrag < 1e15);
    const auto ergebnis = std::to_chars(puffer.data(), puffer.data() + puffer.size(), wert,
                                        schlicht ? std::chars_format::fixed : std::chars_format::scientific);
    return {puffer.data(), ergebnis.ptr};
}

std::string Festkomma(double wert, int breite, int stellen) {
    std::array<char, 400> puffer{};  // the largest double has 309 digits before the point
    const auto ergebnis = std::to_chars(puffer.data(), puffer.data() + puffer.size(), wert,
                                        std::chars_format::fixed, std::clamp(stellen, 0, 60));
    std::string text(puffer.data(), ergebnis.ec == std::errc() ? ergebnis.ptr : puffer.data());
    if (text.size() < static_cast<std::size_t>(std::max(breite, 0))) {
        text.insert(0, static_cast<std::size_t>(breite) - text.size(), ' ');
    }
    return text;
}

}  // namespace zrw
