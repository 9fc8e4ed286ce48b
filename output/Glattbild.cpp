#include "output/Glattbild.h"

#include <algorithm>
#include <cassert>
#include <cmath>
#include <cstdlib>
#include <utility>

namespace zrw {
namespace {

/// Shares of a pixel and positions across a stroke are counted in these.
constexpr std::int32_t kGanz = 256;
/// So many things wait before they are drawn: enough of them for each tile, and little memory.
constexpr std::size_t kMeisteWartende = std::size_t{1} << 16U;
/// Longer strokes are worked out step by step in floating point.
constexpr std::int64_t kLang = std::int64_t{1} << 20U;
/// What remains free of a pixel when nobody can tell it from a full one (of 255).
constexpr unsigned kSatt = 6;
constexpr unsigned kVoll = 255;

constexpr std::uint32_t kRotBlau = 0x00FF00FFU;
constexpr std::uint32_t kGruen = 0x0000FF00U;
constexpr std::uint32_t kDeckend = 0xFF000000U;

/// Two colour values at once times n / 255, rounded.
std::uint32_t MalAnteil(std::uint32_t werte, unsigned n) {
    const std::uint32_t mal = (werte & kRotBlau) * n + 0x00800080U;
    return ((mal + (mal >> 8U & kRotBlau)) >> 8U) & kRotBlau;
}

std::uint32_t FarbeMal(std::uint32_t farbe, unsigned n) {
    return MalAnteil(farbe, n) | MalAnteil(farbe >> 8U & 0xFFU, n) << 8U;
}

/// A colour over what is there. @param a its share, 1 to 256
inline std::uint32_t Gemischt(std::uint32_t unten, std::uint32_t farbe, std::int32_t a) {
    const auto oben = static_cast<std::uint32_t>(a);
    const auto rest = static_cast<std::uint32_t>(kGanz - a);
    const std::uint32_t rb =
        ((farbe & kRotBlau) * oben + (unten & kRotBlau) * rest + 0x00800080U) >> 8U & kRotBlau;
    const std::uint32_t g = ((farbe & kGruen) * oben + (unten & kGruen) * rest + 0x00008000U) >> 8U & kGruen;
    return kDeckend | rb | g;
}

/// From its corner.
Rechteck InKachel(const Rechteck& r, const Rechteck& kachel) {
    return {r.links - kachel.links, r.oben - kachel.oben, r.rechts - kachel.links, r.unten - kachel.oben};
}

/// Draws over what is there.
struct Darueber {
    std::uint32_t* pixel;  ///< first of the top row
    std::size_t zeile;
    void SetzePixel(std::uint32_t* p, std::uint32_t farbe, std::int32_t a) const {
        *p = Gemischt(*p, farbe, a);
    }
    [[nodiscard]] static bool Verdeckt(const Rechteck& /*r*/) { return false; }
};

/// Draws behind what is there.
struct Dahinter {
    std::uint32_t* pixel;
    std::size_t zeile;
    Deckung& deckung;
    const Rechteck& kachel;
    void SetzePixel(std::uint32_t* p, std::uint32_t farbe, std::int32_t a) const {
        const unsigned frei = kVoll - (*p >> 24U);
        if (frei == 0) return;
        unsigned n = (static_cast<unsigned>(a) * frei + kGanz / 2) / kGanz;
        if (frei - n <= kSatt) {
            n = frei;
            const auto ort = static_cast<std::size_t>(p - pixel);
            deckung.DeckePixel(ort % zeile - static_cast<std::size_t>(kachel.links),
                               ort / zeile - static_cast<std::size_t>(kachel.oben));
        }
        *p += FarbeMal(farbe & ~kDeckend, n) + (n << 24U);
    }
    [[nodiscard]] bool Verdeckt(const Rechteck& r) const {
        return deckung.Verdeckt(InKachel(Geschnitten(r, kachel), kachel));
    }
};

/// A stroke along its longer axis, from its smaller end.
struct Strich {
    std::int64_t anfang = 0;
    std::int64_t ende = 0;
    std::int64_t quer = 0;     ///< of the smaller end
    double steigung = 0.0;     ///< across, per pixel along
    std::int32_t dicke = 0;    ///< across [1/256 px]
    std::int32_t versatz = 0;  ///< of its upper edge from the middle of a pixel [1/256 px]
    bool umgekehrt = false;    ///< dashes count from the larger end
    std::int32_t gesetzt = 0;  ///< of a dash [1/256 px]; 0: solid
    std::int32_t periode = 1;  ///< from one dash to the next

    /// How much of a pixel along the stroke lies in dashes [1/256].
    [[nodiscard]] std::int32_t Strichanteil(std::int64_t m) const {
        const auto ort = static_cast<std::int32_t>((umgekehrt ? ende - m : m - anfang) * kGanz % periode);
        return std::clamp(gesetzt - ort, 0, kGanz) + std::clamp(ort + kGanz - periode, 0, gesetzt);
    }
};

/// One step along: the pixels that the stroke touches across. @param weit from one of them to the next
/// @param anteil of them all [1/256]
template <class Ziel>
inline void SetzeQuer(std::uint32_t* p, std::size_t weit, std::int32_t a, std::int32_t rest,
                      std::int32_t anteil, std::uint32_t farbe, const Ziel& ziel) {
    while (true) {
        const std::int32_t hier = a * anteil >> 8;
        if (hier != 0) ziel.SetzePixel(p, farbe, hier);
        rest -= a;
        if (rest <= 0) return;
        p += weit;
        a = std::min(kGanz, rest);
    }
}

/// The same near the border, pixel by pixel.
template <bool Senkrecht, class Ziel>
void SetzeQuerAmRand(const Strich& s, std::int64_t m, std::int64_t oben, const Rechteck& r,
                     std::uint32_t farbe, const Ziel& ziel) {
    const std::int64_t von = Senkrecht ? r.links : r.oben;
    const std::int64_t bis = Senkrecht ? r.rechts : r.unten;
    const std::int32_t anteil = s.gesetzt != 0 ? s.Strichanteil(m) : kGanz;
    std::int64_t q = oben >> 8;
    std::int32_t rest = s.dicke;
    std::int32_t a = std::min(kGanz - static_cast<std::int32_t>(oben & (kGanz - 1)), rest);
    for (; rest > 0; ++q, rest -= a, a = std::min(kGanz, rest)) {
        const std::int32_t hier = a * anteil >> 8;
        if (q < von || q > bis || hier == 0) continue;
        const auto x = static_cast<std::size_t>(Senkrecht ? q : m);
        const auto y = static_cast<std::size_t>(Senkrecht ? m : q);
        ziel.SetzePixel(ziel.pixel + y * ziel.zeile + x, farbe, hier);
    }
}

template <bool Senkrecht, class Ziel>
void ZieheStrich(const Strich& s, const Rechteck& r, std::uint32_t farbe, const Ziel& ziel) {
    const std::int64_t erster = std::max<std::int64_t>(s.anfang, Senkrecht ? r.oben : r.links);
    const std::int64_t letzter = std::min<std::int64_t>(s.ende, Senkrecht ? r.unten : r.rechts);
    if (s.ende - s.anfang > kLang) {
        for (std::int64_t m = erster; m <= letzter; ++m) {
            const double quer = static_cast<double>(s.quer) + s.steigung * static_cast<double>(m - s.anfang);
            const auto oben = static_cast<std::int64_t>(std::floor(quer * kGanz)) + s.versatz;
            SetzeQuerAmRand<Senkrecht>(s, m, oben, r, farbe, ziel);
        }
        return;
    }
    // Each place from the end of the stroke, so that it does not depend on where the picture begins.
    constexpr double kFein = 4294967296.0;
    const auto schritt = static_cast<std::int64_t>(s.steigung * kFein);
    std::int64_t v = (s.quer * (std::int64_t{1} << 32)) + (erster - s.anfang) * schritt;
    const std::int64_t von = Senkrecht ? r.links : r.oben;
    const std::int64_t bis = (Senkrecht ? r.rechts : r.unten) - (s.dicke + kGanz - 1) / kGanz;
    const std::size_t laengs = Senkrecht ? ziel.zeile : 1;
    const std::size_t quer = Senkrecht ? 1 : ziel.zeile;
    for (std::int64_t m = erster; m <= letzter; ++m, v += schritt) {
        const std::int64_t oben = (v >> 24) + s.versatz;
        const std::int64_t q = oben >> 8;
        if (q < von || q > bis) {
            SetzeQuerAmRand<Senkrecht>(s, m, oben, r, farbe, ziel);
            continue;
        }
        std::uint32_t* p =
            ziel.pixel + static_cast<std::size_t>(m) * laengs + static_cast<std::size_t>(q) * quer;
        const std::int32_t a = std::min(kGanz - static_cast<std::int32_t>(oben & (kGanz - 1)), s.dicke);
        SetzeQuer(p, quer, a, s.dicke, s.gesetzt != 0 ? s.Strichanteil(m) : kGanz, farbe, ziel);
    }
}

/// @param breite [px]
template <class Ziel>
void ZieheLinie(Flaechenpunkt von, Flaechenpunkt nach, double breite, double dash, const Rechteck& r,
                std::uint32_t farbe, const Ziel& ziel) {
    constexpr double kDash = kStrichlaenge + kStrichluecke;
    const std::int64_t dx = std::int64_t{nach.x} - von.x;
    const std::int64_t dy = std::int64_t{nach.y} - von.y;
    const bool senkrecht = std::llabs(dx) < std::llabs(dy);
    Strich s;
    s.anfang = senkrecht ? von.y : von.x;
    s.ende = senkrecht ? nach.y : nach.x;
    s.quer = senkrecht ? von.x : von.y;
    if (s.anfang > s.ende) {
        std::swap(s.anfang, s.ende);
        s.quer = senkrecht ? nach.x : nach.y;
        s.umgekehrt = true;
    }
    const std::int64_t laengs = senkrecht ? dy : dx;
    const std::int64_t quer = senkrecht ? dx : dy;
    const auto ganze = std::max<std::int32_t>(1, static_cast<std::int32_t>(std::lround(breite)));
    if (quer == 0) {
        s.dicke = ganze * kGanz;  // along the rows: sharp
    } else {
        s.steigung = static_cast<double>(quer) / static_cast<double>(laengs);
        s.dicke =
            static_cast<std::int32_t>(std::lround(breite * std::sqrt(1.0 + s.steigung * s.steigung) * kGanz));
    }
    // Pens of an even width lie between two pixels.
    s.versatz = (ganze % 2 == 0 ? 0 : kGanz / 2) - s.dicke / 2;
    if (dash > 0.0) {
        s.gesetzt = static_cast<std::int32_t>(std::lround(kStrichlaenge * dash * kGanz));
        s.periode = static_cast<std::int32_t>(std::lround(kDash * dash * kGanz));
    }
    if (senkrecht) {
        ZieheStrich<true>(s, r, farbe, ziel);
    } else {
        ZieheStrich<false>(s, r, farbe, ziel);
    }
}

template <class Ziel>
void SetzeMaske(const Deckmaske& m, Flaechenpunkt ort, const Rechteck& r, std::uint32_t farbe,
                const Ziel& ziel) {
    const std::int64_t links = std::int64_t{ort.x} + m.links;
    const std::int64_t oben = std::int64_t{ort.y} + m.oben;
    const std::int64_t vonX = std::max<std::int64_t>(r.links - links, 0);
    const std::int64_t bisX = std::min<std::int64_t>(r.rechts - links, m.weite - 1);
    const std::int64_t bisY = std::min<std::int64_t>(r.unten - oben, m.hoehe - 1);
    for (std::int64_t y = std::max<std::int64_t>(r.oben - oben, 0); y <= bisY; ++y) {
        const std::uint8_t* werte = m.werte.data() + static_cast<std::size_t>(y * m.weite);
        std::uint32_t* zeile = ziel.pixel + static_cast<std::size_t>(oben + y) * ziel.zeile + links;
        for (std::int64_t x = vonX; x <= bisX; ++x) {
            // From 0..255 to 0..256.
            if (werte[x] != 0) ziel.SetzePixel(zeile + x, farbe, werte[x] + (werte[x] >> 7));
        }
    }
}

Rechteck Maskenumfang(const Deckmaske& m, Flaechenpunkt ort) {
    return {ort.x + m.links, ort.y + m.oben, ort.x + m.links + m.weite - 1, ort.y + m.oben + m.hoehe - 1};
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
    if (wartende_ >= kMeisteWartende) SchliesseAb();
}

void Glattbild::FuelleRechteck(const Rechteck& r, std::uint32_t farbe) {
    VerteileAuftrag({nullptr, {r.links, r.oben}, {r.rechts, r.unten}, farbe, Art::Rechteck, 0}, r);
}

void Glattbild::Linie(Flaechenpunkt von, Flaechenpunkt nach, std::uint32_t farbe, std::int32_t breite,
                      bool gestrichelt) {
    constexpr std::int32_t kBreitester = 255;
    const auto stift = static_cast<std::uint8_t>(std::clamp(breite, 1, kBreitester));
    const Auftrag a{nullptr, von, nach, farbe, gestrichelt ? Art::Gestrichelt : Art::Strich, stift};
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
    VerteileAuftrag({&maske, ort, ort, farbe, Art::Maske, 0}, Maskenumfang(maske, ort));
}

Rechteck Glattbild::Strichumfang(const Auftrag& a) const {
    const auto rand = static_cast<std::int32_t>(dichte_ * a.breite) + 2;
    return {std::min(a.von.x, a.nach.x) - rand, std::min(a.von.y, a.nach.y) - rand,
            std::max(a.von.x, a.nach.x) + rand, std::max(a.von.y, a.nach.y) + rand};
}

template <class Ziel>
void Glattbild::ZeichneAuftraege(const Kachel& k, const Ziel& ziel) const {
    for (const Auftrag& a : k.auftraege) {
        switch (a.art) {
            case Art::Rechteck: {
                const Rechteck r = Geschnitten({a.von.x, a.von.y, a.nach.x, a.nach.y}, k.bereich);
                for (std::int64_t y = r.oben; y <= r.unten; ++y) {
                    for (std::int64_t x = r.links; x <= r.rechts; ++x)
                        ziel.SetzePixel(ziel.pixel + static_cast<std::size_t>(y) * ziel.zeile + x, a.farbe,
                                        kGanz);
                }
                break;
            }
            case Art::Strich:
            case Art::Gestrichelt:
                if (ziel.Verdeckt(Strichumfang(a))) break;
                ZieheLinie(a.von, a.nach, dichte_ * a.breite, a.art == Art::Strich ? 0.0 : dichte_, k.bereich,
                           a.farbe, ziel);
                break;
            case Art::Maske:
                if (ziel.Verdeckt(Maskenumfang(*a.maske, a.von))) break;
                SetzeMaske(*a.maske, a.von, k.bereich, a.farbe, ziel);
                break;
        }
    }
}

void Glattbild::ZeichneKachel(Kachel& k) {
    if (vonVorn_) {
        ZeichneAuftraege(k, Dahinter{vorn_.data(), static_cast<std::size_t>(weite_), k.deckung, k.bereich});
    } else {
        ZeichneAuftraege(k, Darueber{bild_, zeile_});
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
    vorn_.resize(static_cast<std::size_t>(weite_) * static_cast<std::size_t>(hoehe_));
    for (Kachel& k : kacheln_) {
        const Rechteck& r = k.bereich;
        k.deckung.BeginneDeckung(r.rechts - r.links + 1, r.unten - r.oben + 1,
                                 {0, 0, r.rechts - r.links, r.unten - r.oben});
    }
    helfer_->TueTeile(kacheln_.size(), [this](std::size_t i) {
        const Rechteck& r = kacheln_[i].bereich;
        for (std::int32_t y = r.oben; y <= r.unten; ++y) {
            const auto zeile = vorn_.begin() + std::ptrdiff_t{y} * weite_;
            std::fill(zeile + r.links, zeile + r.rechts + 1, 0U);
        }
    });
    return true;
}

/// Lays what is in front over the picture.
void Glattbild::MischeUnter(const Rechteck& r) {
    for (std::int32_t y = r.oben; y <= r.unten; ++y) {
        std::uint32_t* unten = bild_ + static_cast<std::size_t>(y) * zeile_;
        const std::uint32_t* vorn =
            vorn_.data() + static_cast<std::size_t>(y) * static_cast<std::size_t>(weite_);
        for (std::int32_t x = r.links; x <= r.rechts; ++x) {
            if (vorn[x] == 0) continue;
            unten[x] =
                kDeckend | ((vorn[x] & ~kDeckend) + FarbeMal(unten[x] & ~kDeckend, kVoll - (vorn[x] >> 24U)));
        }
    }
}

void Glattbild::BeendeVonVorn() {
    SchliesseAb();
    vonVorn_ = false;
    helfer_->TueTeile(kacheln_.size(), [this](std::size_t i) { MischeUnter(kacheln_[i].bereich); });
}

bool Glattbild::Verdeckt(const Rechteck& r) const {
    if (!vonVorn_) return false;
    bool verdeckt = true;
    FuerKacheln(kacheln_, r,
                [&](const Kachel& k) { verdeckt = verdeckt && k.deckung.Verdeckt(InKachel(r, k.bereich)); });
    return verdeckt;
}

}  // namespace zrw
