#include "model/Raumbaum.h"

#include <algorithm>
#include <bit>
#include <numeric>
#include <utility>

namespace zrw {
namespace {

/// Sorts numbers by keys; equal ones stay in their order.
/// @param bits no key has more
void SortiereNummern(std::vector<std::uint32_t>& nummern, std::span<const std::uint64_t> schluessel,
                     int bits) {
    constexpr std::size_t kFaecher = std::size_t{1} << 16U;
    if (nummern.size() < kFaecher / 16) {
        std::stable_sort(nummern.begin(), nummern.end(),
                         [&](std::uint32_t a, std::uint32_t b) { return schluessel[a] < schluessel[b]; });
        return;
    }
    // Many: 16 bits a pass from the lowest on (counting sort).
    std::vector<std::uint32_t> danach(nummern.size());
    std::vector<std::uint32_t> platz(kFaecher + 1);
    for (int schub = 0; schub < bits; schub += 16) {
        const auto fach = [&](std::uint32_t n) {
            return (schluessel[n] >> static_cast<unsigned>(schub)) % kFaecher;
        };
        std::fill(platz.begin(), platz.end(), 0);
        for (const std::uint32_t n : nummern)
            ++platz[fach(n) + 1];
        std::partial_sum(platz.begin(), platz.end(), platz.begin());
        for (const std::uint32_t n : nummern)
            danach[platz[fach(n)]++] = n;
        nummern.swap(danach);
    }
}

/// Order of a double as an unsigned number.
std::uint64_t Ordnung(double v) {
    const auto bits = std::bit_cast<std::uint64_t>(v);
    constexpr std::uint64_t kVorzeichen = std::uint64_t{1} << 63U;
    return (bits & kVorzeichen) != 0 ? ~bits : bits | kVorzeichen;
}

/// Spreads 32 bits to every second one of 64.
std::uint64_t SpreizeBits(std::uint64_t v) {
    v = (v | v << 16U) & 0x0000FFFF0000FFFFU;
    v = (v | v << 8U) & 0x00FF00FF00FF00FFU;
    v = (v | v << 4U) & 0x0F0F0F0F0F0F0F0FU;
    v = (v | v << 2U) & 0x3333333333333333U;
    return (v | v << 1U) & 0x5555555555555555U;
}

}  // namespace

std::vector<std::uint32_t> SortiereNachOrt(std::span<const Ebenenort> orte) {
    std::vector<std::uint32_t> nummern(orte.size());
    std::iota(nummern.begin(), nummern.end(), 0U);
    std::vector<std::uint64_t> schluessel(orte.size());
    std::vector<std::uint64_t> kurve(orte.size());
    for (const bool hoch : {false, true}) {
        for (std::size_t i = 0; i < orte.size(); ++i)
            schluessel[i] = Ordnung(hoch ? orte[i].y : orte[i].x);
        SortiereNummern(nummern, schluessel, 64);
        for (std::size_t rang = 0; rang < nummern.size(); ++rang)
            kurve[nummern[rang]] |= SpreizeBits(rang) << (hoch ? 1U : 0U);
    }
    SortiereNummern(nummern, kurve, 48);
    return nummern;
}

void Raumbaum::StapeleEbenen() {
    while (ebenen_.back().size() > kFach) {
        const std::vector<Weltkasten>& darunter = ebenen_.back();
        std::vector<Weltkasten> ebene((darunter.size() + kFach - 1) / kFach);
        for (std::size_t i = 0; i < darunter.size(); ++i)
            ebene[i / kFach].NimmKasten(darunter[i]);
        ebenen_.push_back(std::move(ebene));
    }
}

}  // namespace zrw
