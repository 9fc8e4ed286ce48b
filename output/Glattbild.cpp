#include "output/Glattbild.h"

#include <algorithm>

namespace zrw {
namespace {

/// So many things of each tile wait before they are drawn: enough to pay for fetching its pixels, and few
/// enough to lie beside them in the cache.
constexpr std::size_t kWartendeJeKachel = 2048;

/// From the corner of a tile.
Rechteck InKachel(const Rechteck& r, const Rechteck& kachel) {
    return {r.links - kachel.links, r.oben - kachel.oben, r.rechts - kachel.links, r.unten - kachel.oben};
}

}  // namespace

Glattbild::Glattbild(std::uint32_t* bild, int weite, int hoehe, std::size_t zeile, double dichte,
                     unsigned helfer)
    : bild_(bild),
      weite_(weite),
      hoehe_(hoehe),
      zeile_(zeile),
      dichte_(dichte),
      helfer_(std::make_unique<Zeilenhelfer>(helfer)) {
    SetzeAusschnitt({0, 0, weite - 1, hoehe - 1});
}

void Glattbild::SetzeAusschnitt(const Rechteck& r) {
    SchliesseAb();
    ausschnitt_ = r;
    TeileInKacheln();
}

void Glattbild::TeileInKacheln() {
    kacheln_.clear();
    spalten_ = 0;
    if (Leer(ausschnitt_)) return;
    const Rechteck& a = ausschnitt_;
    for (std::int32_t y = a.oben; y <= a.unten; y += kKachelhoehe) {
        spalten_ = 0;
        for (std::int32_t x = a.links; x <= a.rechts; x += kKachelweite, ++spalten_) {
            kacheln_.emplace_back().bereich = {x, y, std::min(x + kKachelweite - 1, a.rechts),
                                               std::min(y + kKachelhoehe - 1, a.unten)};
        }
    }
}

/// Calls `tun(tile)` for those that touch the rectangle.
template <class Kacheln, class Tun>
void Glattbild::FuerKacheln(Kacheln& kacheln, const Rechteck& r, Tun tun) const {
    const Rechteck teil = Geschnitten(r, ausschnitt_);
    if (Leer(teil)) return;
    const auto spalte = [&](std::int32_t x) {
        return static_cast<std::size_t>((x - ausschnitt_.links) / kKachelweite);
    };
    const auto reihe = [&](std::int32_t y) {
        return static_cast<std::size_t>((y - ausschnitt_.oben) / kKachelhoehe);
    };
    for (std::size_t y = reihe(teil.oben); y <= reihe(teil.unten); ++y) {
        for (std::size_t x = spalte(teil.links); x <= spalte(teil.rechts); ++x)
            tun(kacheln[y * spalten_ + x]);
    }
}

void Glattbild::VerteileAuftrag(const Auftrag& a, const Rechteck& umfang) {
    FuerKacheln(kacheln_, umfang, [&](Kachel& k) {
        k.auftraege.push_back(a);
        ++wartende_;
    });
    if (wartende_ >= kWartendeJeKachel * kacheln_.size()) SchliesseAb();
}

void Glattbild::FuelleRechteck(const Rechteck& r, std::uint32_t farbe) {
    VerteileAuftrag({{r.links, r.oben}, {.nach = {r.rechts, r.unten}}, farbe, Art::Rechteck, 0}, r);
}

void Glattbild::Linie(Flaechenpunkt von, Flaechenpunkt nach, std::uint32_t farbe, std::int32_t breite,
                      bool gestrichelt) {
    constexpr std::int32_t kBreitester = 255;
    const auto stift = static_cast<std::uint8_t>(std::clamp(breite, 1, kBreitester));
    const Auftrag a{von, {.nach = nach}, farbe, gestrichelt ? Art::Gestrichelt : Art::Strich, stift};
    const Rechteck umfang = Strichumfang(a);
    if (umfang.rechts - umfang.links <= kKachelweite || umfang.unten - umfang.oben <= kKachelhoehe)
        return VerteileAuftrag(a, umfang);
    VerteileLangen(a, umfang);
}

/// A long stroke goes to the tiles that it runs through, not to all that its rectangle covers.
void Glattbild::VerteileLangen(const Auftrag& a, const Rechteck& umfang) {
    const double steigung =
        (static_cast<double>(a.nach.x) - a.von.x) / (static_cast<double>(a.nach.y) - a.von.y);
    const auto rand = static_cast<std::int32_t>(dichte_ * a.breite) + 2;
    const Rechteck sicht = Geschnitten(umfang, ausschnitt_);
    if (Leer(sicht)) return;
    // Its place in each row of tiles, from a little above to a little below.
    for (std::int32_t y = sicht.oben - (sicht.oben - ausschnitt_.oben) % kKachelhoehe; y <= sicht.unten;
         y += kKachelhoehe) {
        const auto stelle = [&](std::int32_t zeile) {
            const std::int32_t dort = std::clamp(zeile, umfang.oben, umfang.unten);
            return a.von.x + steigung * (static_cast<double>(dort) - a.von.y);
        };
        const auto [links, rechts] = std::minmax({stelle(y - rand), stelle(y + kKachelhoehe + rand)});
        const Rechteck zeile{
            static_cast<std::int32_t>(std::clamp<double>(links - rand, sicht.links, sicht.rechts)),
            std::max(y, sicht.oben),
            static_cast<std::int32_t>(std::clamp<double>(rechts + rand, sicht.links, sicht.rechts)),
            std::min(y + kKachelhoehe - 1, sicht.unten)};
        if (links - rand <= sicht.rechts && rechts + rand >= sicht.links) VerteileAuftrag(a, zeile);
    }
}

void Glattbild::Maske(const Deckmaske& maske, Flaechenpunkt ort, std::uint32_t farbe) {
    VerteileAuftrag({ort, {.maske = &maske}, farbe, Art::Maske, 0}, maske.Umfang(ort));
}

Rechteck Glattbild::Strichumfang(const Auftrag& a) const {
    const auto rand = static_cast<std::int32_t>(dichte_ * a.breite) + 2;
    return {std::min(a.von.x, a.nach.x) - rand, std::min(a.von.y, a.nach.y) - rand,
            std::max(a.von.x, a.nach.x) + rand, std::max(a.von.y, a.nach.y) + rand};
}

/// @param ecke of the surface where the target has its first pixel
template <class Ziel>
void Glattbild::ZeichneAuftraege(const Kachel& k, Flaechenpunkt ecke, const Ziel& ziel) const {
    for (Auftrag a : k.auftraege) {
        a.von = {a.von.x - ecke.x, a.von.y - ecke.y};
        if (a.art < Art::Maske) a.nach = {a.nach.x - ecke.x, a.nach.y - ecke.y};
        switch (a.art) {
            case Art::Rechteck:
                FuellePixel({a.von.x, a.von.y, a.nach.x, a.nach.y}, a.farbe, ziel);
                break;
            case Art::Strich:
            case Art::Gestrichelt:
                if (ziel.Verdeckt(Strichumfang(a))) break;
                ZieheLinie(a.von, a.nach, dichte_ * a.breite, a.art == Art::Strich ? 0.0 : dichte_, a.farbe,
                           ziel);
                break;
            case Art::Maske:
                if (ziel.Verdeckt(a.maske->Umfang(a.von))) break;
                SetzeMaske(*a.maske, a.von, a.farbe, ziel);
                break;
        }
    }
}

void Glattbild::ZeichneKachel(Kachel& k) {
    const Rechteck& r = k.bereich;
    if (vonVorn_) {
        ZeichneAuftraege(
            k, {r.links, r.oben},
            Dahinter{k.vorn, kKachelweite, {0, 0, r.rechts - r.links, r.unten - r.oben}, k.deckung});
    } else {
        ZeichneAuftraege(k, {}, Darueber{bild_, zeile_, r});
    }
    k.auftraege.clear();
}

void Glattbild::SchliesseAb() {
    if (wartende_ == 0) return;
    wartende_ = 0;
    helfer_->TueTeile(kacheln_.size(), [this](std::size_t i) { ZeichneKachel(kacheln_[i]); });
}

// --- From the front ---------------------------------------------------------------------------------------

bool Glattbild::BeginneVonVorn() {
    constexpr std::int64_t kGroesstes = std::int64_t{1} << 25U;  ///< [px]
    if (std::int64_t{weite_} * hoehe_ > kGroesstes) return false;
    SchliesseAb();
    vonVorn_ = true;
    if (vorn_ == nullptr) {
        // As many tiles as any part of the picture has. Memory that is not written to costs nothing.
        const auto jeReihe = static_cast<std::size_t>((weite_ + kKachelweite - 1) / kKachelweite);
        const auto reihen = static_cast<std::size_t>((hoehe_ + kKachelhoehe - 1) / kKachelhoehe);
        const std::size_t bytes = jeReihe * reihen * kKachelpixel * sizeof(std::uint32_t);
        vorn_.reset(static_cast<std::uint32_t*>(NimmSpeicher(bytes, bytes)));
    }
    helfer_->TueTeile(kacheln_.size(), [this](std::size_t i) {
        Kachel& k = kacheln_[i];
        const Rechteck ganz{0, 0, k.bereich.rechts - k.bereich.links, k.bereich.unten - k.bereich.oben};
        k.deckung.BeginneDeckung(ganz.rechts + 1, ganz.unten + 1, ganz);
        k.vorn = vorn_.get() + i * kKachelpixel;
        std::fill_n(k.vorn, static_cast<std::size_t>(ganz.unten + 1) * kKachelweite, 0U);
    });
    return true;
}

void Glattbild::BeendeVonVorn() {
    SchliesseAb();
    vonVorn_ = false;
    helfer_->TueTeile(kacheln_.size(), [this](std::size_t i) {
        const Rechteck& r = kacheln_[i].bereich;
        const std::int32_t weite = r.rechts - r.links + 1;
        const std::uint32_t* vorn = kacheln_[i].vorn;
        for (std::int32_t y = r.oben; y <= r.unten; ++y, vorn += kKachelweite)
            MischeUnter(vorn, bild_ + static_cast<std::size_t>(y) * zeile_ + r.links,
                        static_cast<std::size_t>(weite));
    });
}

bool Glattbild::Verdeckt(const Rechteck& r) const {
    if (!vonVorn_) return false;
    bool verdeckt = true;
    FuerKacheln(kacheln_, r,
                [&](const Kachel& k) { verdeckt = verdeckt && k.deckung.Verdeckt(InKachel(r, k.bereich)); });
    return verdeckt;
}

}  // namespace zrw
