// The type of an observation as the network keeps it, and as the dialog offers it.
#pragma once

#include <algorithm>

#include "model/Figuren.h"
#include "model/Linienarten.h"

namespace zrw {

struct Beobachtungstyp {
    LinieAttr richtung = LinieAttr::AST;
    KanteAttr weitere;
    friend bool operator==(const Beobachtungstyp&, const Beobachtungstyp&) = default;
};

struct Beobachtungswahl {
    int richtung = 0;  ///< 0 none, 1 one-sided, 2 two-sided
    bool strecke = false;
    bool gps = false;
    bool indirekt = false;
    int hoehe = 0;  ///< as `richtung`
    friend bool operator==(const Beobachtungswahl&, const Beobachtungswahl&) = default;
};

/// @param vorher bits without a member are taken over from here: a picture file keeps them
[[nodiscard]] constexpr Beobachtungstyp AlsTyp(const Beobachtungswahl& w, KanteAttr vorher = {}) {
    Beobachtungstyp t;
    t.weitere = KanteAttr::AusMaske(vorher.Maske() & kUnbenannteBits);
    if (w.strecke) t.weitere.SetzeArt(KanteAttr::ST);
    if (w.gps) t.weitere.SetzeArt(KanteAttr::GPS);
    if (w.hoehe == 1) t.weitere.SetzeArt(KanteAttr::DH1);
    if (w.hoehe == 2) t.weitere.SetzeArt(KanteAttr::DH2);

    // A GPS vector is drawn by its own symbol and has no line of sight.
    const bool nurGps = w.gps && !w.strecke && w.hoehe == 0 && w.richtung == 0 && !w.indirekt;
    for (const Linienart& art : kLinienarten) {
        if (art.richtungen == w.richtung && art.indirekt == w.indirekt &&
            nurGps == (art.attr == LinieAttr::Null))
            t.richtung = art.attr;
    }
    return t;
}

/// Bytes of a picture file that name no kind of direction count as none.
[[nodiscard]] constexpr Beobachtungswahl AlsWahl(const Beobachtungstyp& t) {
    Beobachtungswahl w;
    w.richtung = ZurLinie(t.richtung).richtungen;
    w.indirekt = ZurLinie(t.richtung).indirekt;
    w.strecke = t.weitere.HatArt(KanteAttr::ST);
    w.gps = t.weitere.HatArt(KanteAttr::GPS);
    if (t.weitere.HatArt(KanteAttr::DH2)) {
        w.hoehe = 2;
    } else if (t.weitere.HatArt(KanteAttr::DH1)) {
        w.hoehe = 1;
    }
    return w;
}

// What the choice cannot say is lost with the first change of a line.
static_assert(std::all_of(kBeobachtungsarten.begin(), kBeobachtungsarten.end(),
                          [](const Beobachtungsart& b) {
                              return AlsTyp(AlsWahl({LinieAttr::AST, b.art})).weitere.HatArt(b.art);
                          }),
              "the choice, AlsTyp and AlsWahl know each observation");
static_assert(
    std::all_of(
        kLinienarten.begin(), kLinienarten.end(),
        [](const Linienart& a) {
            const bool nurGps = a.attr == LinieAttr::Null;
            return AlsTyp(AlsWahl({a.attr, nurGps ? KanteAttr::GPS : KanteAttr::ST})).richtung == a.attr;
        }),
    "the choice tells each kind of line from the others");

}  // namespace zrw
