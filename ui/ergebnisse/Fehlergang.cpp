#include "ui/ergebnisse/Fehlergang.h"

#include <algorithm>

#include "model/ergebnisse/Listenordnung.h"
#include "ui/ergebnisse/Beobachtungstext.h"

namespace zrw {

std::optional<Fehlergang::Schritt> Fehlergang::GeheWeiter(
    const std::shared_ptr<const Beobachtungsliste>& liste, bool vor) {
    if (liste_ != liste) {
        liste_ = liste;
        Listenfilter filter;
        filter.nurMarkierte = true;
        zeilen_ = OrdneZeilen(*liste, filter, {});
    }
    const std::size_t anzahl = zeilen_.size();
    if (anzahl == 0) return std::nullopt;
    const auto ort =
        letzte_ ? std::find_if(zeilen_.begin(), zeilen_.end(),
                               [&](std::uint32_t z) { return SelbeBeobachtung(liste->zeilen[z], *letzte_); })
                : zeilen_.end();
    std::size_t stelle = vor ? 0 : anzahl - 1;
    if (ort != zeilen_.end()) {
        const auto jetzt = static_cast<std::size_t>(ort - zeilen_.begin());
        stelle = (jetzt + (vor ? 1 : anzahl - 1)) % anzahl;
    }
    letzte_ = liste->zeilen[zeilen_[stelle]];
    return Schritt{&liste->zeilen[zeilen_[stelle]], stelle + 1, anzahl};
}

}  // namespace zrw
