#include "input/import/Fremdnetz.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace zrw::fremd {
namespace {

/// What one file could hold at most.
constexpr std::size_t kMaxDim = 4U << 20U;

/// The parts of the first that are known, else those of the second.
Dreier Ergaenzt(Dreier a, const Dreier& b) {
    if (!a.HatLage()) {
        a.rechts = b.rechts;
        a.hoch = b.hoch;
    }
    if (!a.HatHoehe()) a.hoehe = b.hoehe;
    return a;
}

}  // namespace

Kovarianzen::Kovarianzen(std::size_t dim, std::size_t band, std::vector<double> werte)
    : band_(std::min(band, dim == 0 ? 0 : dim - 1)), werte_(std::move(werte)) {
    anfang_.reserve(dim);
    std::size_t stelle = 0;
    for (std::size_t i = 0; i < dim; ++i) {
        anfang_.push_back(stelle);
        stelle += std::min(band_, dim - 1 - i) + 1;
    }
}

std::size_t Kovarianzen::Anzahl(std::size_t dim, std::size_t band) {
    if (dim == 0 || dim > kMaxDim) return 0;
    const std::size_t b = std::min(band, dim - 1);
    return (dim - b) * (b + 1) + b * (b + 1) / 2;
}

double Kovarianzen::Wert(std::size_t i, std::size_t j) const {
    const auto [oben, rechts] = std::minmax(i, j);
    if (rechts >= Dim() || rechts - oben > band_) return kUnbekannt;
    return werte_[anfang_[oben] + (rechts - oben)];
}

std::uint64_t Namenstafel::Streuwert(std::string_view text) const {
    std::uint64_t h = saat_ ^ text.size();
    for (std::size_t i = 0; i < text.size(); i += sizeof h) {
        std::uint64_t wort = 0;
        std::memcpy(&wort, text.data() + i, std::min(sizeof wort, text.size() - i));
        h = MischeBits(h ^ wort);
    }
    return h;
}

std::uint64_t Namenstafel::Anfang(std::string_view text) {
    std::uint64_t wort = 0;
    std::memcpy(&wort, text.data(), std::min(sizeof wort, text.size()));
    return wort;
}

void Fremdnetz::ErwarteDatei(std::size_t bytes) {
    constexpr std::size_t kJeMessung = 60, kJePunkt = 200, kHoechstens = 1U << 20U;
    messungen.reserve(std::min(bytes / kJeMessung, kHoechstens));
    punkte.reserve(std::min(bytes / kJePunkt, kHoechstens));
}

Stelle Fremdnetz::Punkt(std::string_view name) {
    Stelle& fach = zuName_.FindeFach(name, [&](Stelle p) { return std::string_view(punkte[p].name); });
    if (fach == Namenstafel::kFrei) {
        fach = static_cast<Stelle>(punkte.size());
        punkte.emplace_back().name = name;
    }
    return fach;
}

Dreier Fremdnetz::Ort(Stelle p) const {
    const Dreier& ort = punkte[p].naeherung;
    if (p >= lagen.size()) return ort;
    const Fremdlage& l = lagen[p];
    return Ergaenzt(Ergaenzt(Ergaenzt(ort, l.naeherung), l.fest), l.ausgeglichen);
}

Dreier Fremdnetz::Endort(Stelle p) const {
    if (p >= lagen.size()) return {};
    return Ergaenzt(lagen[p].ausgeglichen, lagen[p].fest);
}

PunktArt Fremdnetz::Art(Stelle p) const {
    const Fremdpunkt& punkt = punkte[p];
    if (punkt.lageFest) return punkt.hoeheFest ? PunktArt::FP : PunktArt::FL;
    return punkt.hoeheFest ? PunktArt::FH : PunktArt::NP;
}

double Vollkreis(double gon) {
    const double rest = std::fmod(gon, 400.0);
    if (!(rest < 0.0)) return rest;
    // Something tiny below zero would round to 400.
    return rest + 400.0 < 400.0 ? rest + 400.0 : 0.0;
}

double UmNull(double gon) {
    const double w = Vollkreis(gon);
    return w >= 200.0 ? w - 400.0 : w;
}

}  // namespace zrw::fremd
