#include "input/tabellen/Anzeigetext.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <cmath>
#include <cstdio>

#include "model/Zahlentext.h"

namespace zrw {
namespace {

/// A positive number as its shortest decimal digits: 0.d1d2d3... times ten to the power.
struct Dezimal {
    std::string ziffern;
    int stellenVorKomma = 0;
};

Dezimal ZerlegeZahl(double wert) {
    std::array<char, 32> text{};
    const auto ende =
        std::to_chars(text.data(), text.data() + text.size(), wert, std::chars_format::scientific).ptr;
    const std::string_view t(text.data(), static_cast<std::size_t>(ende - text.data()));
    const std::size_t e = t.find('e');
    Dezimal d;
    for (const char c : t.substr(0, e)) {
        if (c != '.') d.ziffern += c;
    }
    std::string_view potenz = t.substr(e + 1);
    if (potenz.front() == '+') potenz.remove_prefix(1);
    std::from_chars(potenz.data(), potenz.data() + potenz.size(), d.stellenVorKomma);
    ++d.stellenVorKomma;
    return d;
}

/// Digits up to `stellen` decimals, halves upwards.
void RundeDezimal(Dezimal& d, int stellen) {
    const int behalten = d.stellenVorKomma + stellen;
    if (behalten < 0) {
        d.ziffern.clear();
        return;
    }
    const auto n = static_cast<std::size_t>(behalten);
    if (n >= d.ziffern.size()) return;
    const bool auf = d.ziffern[n] >= '5';
    d.ziffern.resize(n);
    if (!auf) return;
    std::size_t i = n;
    while (i > 0 && d.ziffern[i - 1] == '9')
        d.ziffern[--i] = '0';
    if (i > 0) {
        ++d.ziffern[i - 1];
    } else {
        d.ziffern.insert(d.ziffern.begin(), '1');
        ++d.stellenVorKomma;
    }
}

}  // namespace

std::string Anzeigetext(double wert, std::string_view muster) {
    if (!std::isfinite(wert)) return {};
    if (muster.empty()) return SchreibeReal(wert);
    const std::size_t punkt = std::min(muster.find('.'), muster.size());
    const bool fuehrendeNull = muster.substr(0, punkt).find('0') != std::string_view::npos;
    const int stellen = punkt < muster.size() ? static_cast<int>(muster.size() - punkt - 1) : 0;
    Dezimal d = ZerlegeZahl(std::abs(wert));
    RundeDezimal(d, stellen);
    const bool null = d.ziffern.find_first_not_of('0') == std::string::npos;
    const auto ziffer = [&](int stelle) {  // counted from the first digit before the point
        const bool da = stelle >= 0 && static_cast<std::size_t>(stelle) < d.ziffern.size();
        return da ? d.ziffern[static_cast<std::size_t>(stelle)] : '0';
    };
    std::string text = wert < 0 && !null ? "-" : "";
    if (!null && d.stellenVorKomma > 0) {
        for (int i = 0; i < d.stellenVorKomma; ++i)
            text += ziffer(i);
    } else if (fuehrendeNull) {
        text += '0';
    }
    if (stellen > 0) text += '.';
    for (int i = 0; i < stellen; ++i)
        text += null ? '0' : ziffer(d.stellenVorKomma + i);
    return text;
}

std::string AnzeigeZeitpunkt(double millisekunden) {
    constexpr double kTag = 86400000.0;
    constexpr double kErster = kTag;             // 1 January of year 1
    constexpr double kLetzter = 3652060 * kTag;  // the day after 31 December 9999
    if (!(millisekunden >= kErster && millisekunden < kLetzter)) return {};
    constexpr int kTagVor1970 = 719163;
    const auto tag = static_cast<int>(std::floor(millisekunden / kTag));
    const auto sekunden = static_cast<int>((millisekunden - tag * kTag) / 1000);
    const std::chrono::year_month_day datum{std::chrono::sys_days{std::chrono::days{tag - kTagVor1970}}};
    std::array<char, 40> text{};
    std::snprintf(text.data(), text.size(), "%02u.%02u.%04d %02d:%02d:%02d", unsigned{datum.day()},
                  unsigned{datum.month()}, int{datum.year()}, sekunden / 3600, sekunden / 60 % 60,
                  sekunden % 60);
    return text.data();
}

}  // namespace zrw
