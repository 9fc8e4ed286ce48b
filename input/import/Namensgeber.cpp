#include "input/import/Namensgeber.h"

#include <algorithm>
#include <cstddef>
#include <map>
#include <set>

#include "model/Cp1252.h"
#include "model/Werte.h"

namespace zrw::fremd {
namespace {

constexpr std::size_t kBreite = 14;

/// Blanks, the one that does not break among them, and control characters: they end a word or cannot be seen.
bool Trennt(char c) {
    const auto b = static_cast<unsigned char>(c);
    return b <= 0x20 || b == 0x7F || b == 0xA0 || b == 0xAD;
}

/// What would do, as far as nobody else has it; empty where the name itself is no number.
std::string Passend(const std::string& name) {
    if (name.size() > 4 * kBreite) return {};
    const bool schlicht = !name.empty() && name.size() <= kBreite &&
                          std::all_of(name.begin(), name.end(), [](char c) { return c > ' ' && c < '\x7F'; });
    if (schlicht) return name;
    std::string nummer = Utf8NachCp1252(name);
    const bool passt = !nummer.empty() && nummer.size() <= kBreite && Cp1252NachUtf8(nummer) == name &&
                       std::none_of(nummer.begin(), nummer.end(), Trennt);
    return passt ? nummer : std::string();
}

std::string Gekuerzt(const std::string& name) {
    std::string nummer = Utf8NachCp1252(name);
    std::replace_if(nummer.begin(), nummer.end(), Trennt, '_');
    nummer.resize(std::min(nummer.size(), kBreite));
    return nummer.empty() ? "_" : nummer;
}

}  // namespace

std::vector<std::string> GibNummern(std::span<const std::string> namen) {
    std::vector<std::string> nummern;
    nummern.reserve(namen.size());
    for (const std::string& name : namen)
        nummern.push_back(Passend(name));
    if (std::none_of(nummern.begin(), nummern.end(), [](const auto& n) { return n.empty(); })) return nummern;
    std::set<std::string> vergeben(nummern.begin(), nummern.end());
    vergeben.erase("");
    // Where counting has come to for names that are cut alike: thousands of them are no search.
    std::map<std::string, std::size_t> gezaehlt;
    for (std::size_t i = 0; i < nummern.size(); ++i) {
        if (!nummern[i].empty()) continue;
        const std::string kurz = Gekuerzt(namen[i]);
        nummern[i] = kurz;
        std::size_t& zahl = gezaehlt[kurz];
        while (!vergeben.insert(nummern[i]).second) {
            const std::string endung = '~' + std::to_string(++zahl + 1);
            nummern[i] = kurz.substr(0, kBreite - endung.size()) + endung;
        }
    }
    return nummern;
}

}  // namespace zrw::fremd
