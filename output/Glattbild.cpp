#include "output/Glattbild.h"

#include <algorithm>
#include <array>

#include "output/Breitpinsel.h"
#include "output/Deckkarte.h"

namespace zrw {
namespace {

/// From the corner of a tile.
Rechteck InKachel(const Rechteck& r, const Rechteck& kachel) {
    return {r.links - kachel.links, r.oben - kachel.oben, r.rechts - kachel.links, r.unten - kachel.oben};
}

}  // namespace

void Glattbild::BindeAn(const Zielbild& bild, double dichte) {
    SchliesseAb();
    bild_ = bild;
    dichte_ = dichte;
    stempel_.FertigeStempel(dichte);
    vorn_.reset();
    vorderseiten_.clear();
    kacheln_.TeileInKacheln(bild);
}

void Glattbild::FuelleRechteck(const Rechteck& r, std::uint32_t farbe) {
    const auto schreibe = [&](Auftrag* ziel, const Rechteck& teil) {
        *ziel = {{teil.links, teil.oben}, {.nach = {teil.rechts, teil.unten}}, farbe, Art::Rechteck, 0};
    };
    if (!vonVorn_) return kacheln_.VerteileFuellung(1, r, farbe, schreibe);
    kacheln_.VerteileAuftrag(1, r, [&](Auftrag* ziel) { schreibe(ziel, r); });
}

/// Field by field: an order that is put together first and copied as a whole takes several times as long.
inline void Glattbild::SchreibeStrich(Auftrag& a, const Linienstueck& s, std::uint32_t farbe,
                                      std::uint8_t breite) {
    a.von = s.von;
    a.nach = s.nach;
    a.farbe = farbe;
    a.art = s.gestrichelt ? Art::Gestrichelt : Art::Strich;
    a.breite = breite;
}

std::uint8_t Glattbild::Stiftbreite(std::int32_t breite) {
    constexpr std::int32_t kBreitester = 255;
    return static_cast<std::uint8_t>(std::clamp(breite, 1, kBreitester));
}

void Glattbild::Linie(Flaechenpunkt von, Flaechenpunkt nach, std::uint32_t farbe, std::int32_t breite,
                      bool gestrichelt) {
    const std::uint8_t stift = Stiftbreite(breite);
    kacheln_.FuerStrich(von, nach, Strichrand(stift), [&](const Rechteck& r) {
        kacheln_.VerteileAuftrag(1, r, [&](Auftrag* ziel) {
            SchreibeStrich(*ziel, {von, nach, gestrichelt}, farbe, stift);
        });
    });
}

void Glattbild::Linien(std::span<const Linienstueck> stuecke, std::uint32_t farbe, std::int32_t breite) {
    const Rechteck r = RahmenUm(stuecke);
    if (!Beisammen(r)) {
        for (const Linienstueck& s : stuecke)
            Linie(s.von, s.nach, farbe, breite, s.gestrichelt);
        return;
    }
    const std::uint8_t stift = Stiftbreite(breite);
    const std::int32_t rand = Strichrand(stift);
    const auto schreibe = [&](Auftrag* ziel) {
        for (const Linienstueck& s : stuecke)
            SchreibeStrich(*ziel++, s, farbe, stift);
    };
    kacheln_.VerteileAuftrag(stuecke.size(), {r.links - rand, r.oben - rand, r.rechts + rand, r.unten + rand},
                             schreibe);
}

void Glattbild::Maske(const Deckmaske& maske, Flaechenpunkt ort, std::uint32_t farbe) {
    const Maskenort m{&maske, ort};
    Masken({&m, 1}, farbe);
}

void Glattbild::Masken(std::span<const Maskenort> masken, std::uint32_t farbe) {
    for (; masken.size() > kMeisteMasken; masken = masken.subspan(kMeisteMasken))
        Masken(masken.first(kMeisteMasken), farbe);
    Rechteck r = kKeinRechteck;
    for (const Maskenort& m : masken)
        r = Vereint(r, m.maske->Umfang(m.ort));
    kacheln_.VerteileAuftrag(masken.size(), r, [&](Auftrag* ziel) {
        for (const Maskenort& m : masken) {
            ziel->von = m.ort;
            ziel->maske = m.maske;
            ziel->farbe = farbe;
            ziel->art = Art::Maske;
            ziel->breite = static_cast<std::uint8_t>(masken.size());
            ++ziel;
        }
    });
}

Rechteck Glattbild::Strichumfang(Flaechenpunkt von, Flaechenpunkt nach, int breite) const {
    const std::int32_t rand = Strichrand(breite);
    return {std::min(von.x, nach.x) - rand, std::min(von.y, nach.y) - rand, std::max(von.x, nach.x) + rand,
            std::max(von.y, nach.y) + rand};
}

/// Those that belong together.
template <class Ziel>
inline void Glattbild::ZeichneMasken(std::span<const Auftrag> auftraege, Flaechenpunkt ecke,
                                     const Ziel& ziel) {
    std::array<Maskenort, kMeisteMasken> masken;  // NOLINT(*-member-init): only those in use are set up
    for (std::size_t i = 0; i < auftraege.size(); ++i) {
        const Auftrag& a = auftraege[i];
        masken[i] = {a.maske, Flaechenort(a.von.x - ecke.x, a.von.y - ecke.y)};
    }
    SetzeMasken({masken.data(), auftraege.size()}, auftraege.front().farbe, ziel);
}

/// Draws a short stroke from its stamp. @return false: there is none, or it reaches beyond the target
template <class Ziel>
inline bool Glattbild::Stempele(const Auftrag& a, Flaechenpunkt von, Flaechenpunkt nach,
                                const Ziel& ziel) const {
    if (a.breite != 1) return false;
    const auto dx = static_cast<std::int64_t>(nach.x) - von.x;
    const auto dy = static_cast<std::int64_t>(nach.y) - von.y;
    const Stempel* s = stempel_.FindeStempel(dx, dy, a.art == Art::Gestrichelt);
    if (s == nullptr) return false;
    const Rechteck r = s->Umfang(von);
    if (!Enthaelt(ziel.bereich, r)) return false;
    if (!ziel.Verdeckt(r)) SetzeStempelAcht(*s, {r.links, r.oben}, a.farbe, ziel);
    return true;
}

/// @param ecke of the surface where the target has its first pixel
template <class Ziel>
void Glattbild::ZeichneAuftraege(std::span<const Auftrag> auftraege, Flaechenpunkt ecke,
                                 const Ziel& ziel) const {
    for (std::size_t i = 0; i < auftraege.size(); ++i) {
        const Auftrag& a = auftraege[i];
        if (a.art == Art::Maske) {
            ZeichneMasken(auftraege.subspan(i, a.breite), ecke, ziel);
            i += a.breite - std::size_t{1};
            continue;
        }
        const Flaechenpunkt von = Flaechenort(a.von.x - ecke.x, a.von.y - ecke.y);
        const Flaechenpunkt nach = Flaechenort(a.nach.x - ecke.x, a.nach.y - ecke.y);
        if (a.art == Art::Rechteck) {
            FuellePixel({von.x, von.y, nach.x, nach.y}, a.farbe, ziel);
        } else if (!Stempele(a, von, nach, ziel) && !Unsichtbar(Strichumfang(von, nach, a.breite), ziel)) {
            ZieheLinie(von, nach, dichte_ * a.breite, a.art == Art::Strich ? 0.0 : dichte_, a.farbe, ziel);
        }
    }
}

void Glattbild::ZeichneKachel(std::size_t kachel, std::span<const Auftrag> auftraege) {
    const Rechteck r = kacheln_.Bereich(kachel);
    if (!vonVorn_) return ZeichneAuftraege(auftraege, {}, Darueber{bild_.pixel, bild_.zeile, r});
    const Rechteck ganz = kacheln_.GanzeKachel(kachel);
    Vorderseite& vorn = vorderseiten_[kachel];
    ZeichneAuftraege(auftraege, {ganz.links, ganz.oben},
                     Dahinter{vorn.pixel, kKachelweite, InKachel(r, ganz), vorn.deckung});
}

// --- From the front ---------------------------------------------------------------------------------------

bool Glattbild::BeginneVonVorn() {
    constexpr std::int64_t kGroesstes = std::int64_t{1} << 25U;  ///< [px]
    if (std::int64_t{bild_.weite} * bild_.hoehe > kGroesstes) return false;
    SchliesseAb();
    vonVorn_ = true;
    if (vorn_ == nullptr) {
        // Memory that is not written to costs nothing.
        const std::size_t bytes = kacheln_.Anzahl() * kKachelpixel * sizeof(std::uint32_t);
        vorn_.reset(static_cast<std::uint32_t*>(NimmSpeicher(bytes, bytes)));
        vorderseiten_.resize(kacheln_.Anzahl());
    }
    kacheln_.FuerAlleZugleich([this](std::size_t i) {
        Vorderseite& v = vorderseiten_[i];
        v.deckung.BeginneDeckung(kKachelweite, kKachelhoehe,
                                 InKachel(kacheln_.Bereich(i), kacheln_.GanzeKachel(i)));
        v.pixel = vorn_.get() + i * kKachelpixel;
        const Rechteck& r = v.benutzt;
        for (std::int32_t y = r.oben; y <= r.unten; ++y)
            std::fill_n(v.pixel + std::ptrdiff_t{y} * kKachelweite + r.links, r.rechts - r.links + 1, 0U);
    });
    kacheln_.FuerKacheln(kacheln_.Ausschnitt(), [this](std::size_t i) {
        vorderseiten_[i].davor = kacheln_.Grund().Bemalt(i);
        kacheln_.Grund().SetzeBemalt(i, kKeinRechteck);
    });
    return true;
}

void Glattbild::BeendeVonVorn() {
    SchliesseAb();
    vonVorn_ = false;
    kacheln_.FuerAlleZugleich([this](std::size_t i) {
        Vorderseite& v = vorderseiten_[i];
        const Rechteck r = Geschnitten(kacheln_.Grund().Bemalt(i), kacheln_.Bereich(i));
        v.benutzt = InKachel(r, kacheln_.GanzeKachel(i));
        if (Leer(r)) return;
        const std::uint32_t* vorn = v.pixel + std::ptrdiff_t{v.benutzt.oben} * kKachelweite + v.benutzt.links;
        const std::int32_t weite = r.rechts - r.links + 1;
        for (std::int32_t y = r.oben; y <= r.unten; ++y, vorn += kKachelweite)
            MischeUnter(vorn, bild_.pixel + static_cast<std::size_t>(y) * bild_.zeile + r.links,
                        static_cast<std::size_t>(weite));
    });
    kacheln_.FuerKacheln(kacheln_.Ausschnitt(), [this](std::size_t i) {
        Bildgrund& grund = kacheln_.Grund();
        grund.SetzeBemalt(i, Vereint(grund.Bemalt(i), vorderseiten_[i].davor));
    });
}

bool Glattbild::Verdeckt(const Rechteck& r) const {
    if (!vonVorn_) return false;
    bool verdeckt = true;
    kacheln_.FuerKacheln(r, [&](std::size_t i) {
        verdeckt = verdeckt && vorderseiten_[i].deckung.Verdeckt(InKachel(r, kacheln_.GanzeKachel(i)));
    });
    return verdeckt;
}

void Glattbild::KartiereVerdecktes(Deckkarte& karte) {
    SchliesseAb();
    karte.VergissAlles();
    if (!vonVorn_) return;
    karte.BeginneKarte(bild_.weite, bild_.hoehe);
    kacheln_.FuerKacheln(kacheln_.Ausschnitt(), [&](std::size_t i) {
        const Rechteck kachel = kacheln_.GanzeKachel(i);
        karte.NimmTeil(vorderseiten_[i].deckung, kachel.links, kachel.oben);
    });
}

}  // namespace zrw
