#include "input/import/Ergebnisschreiber.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>

#include "geo/Fehlerellipse.h"
#include "geo/Winkel.h"
#include "input/tabellen/Ergebnistabellen.h"
#include "input/tabellen/Paradoxschreiber.h"
#include "model/Cp1252.h"

namespace zrw::fremd {
namespace {

using namespace tabellen;

constexpr std::array<std::string_view, static_cast<std::size_t>(PunktArt::Anzahl)> kArtkuerzel{"FP", "FL",
                                                                                               "FH", "NP"};

/// Place of a field in its table, found by the compiler.
consteval std::size_t Feld(std::span<const Tabellenfeld> felder, std::string_view name) {
    std::size_t i = 0;
    while (felder[i].name != name)
        ++i;
    return i;
}

/// Places of the fields of three components.
struct Feldertripel {
    std::array<std::size_t, 3> stellen;  ///< easting, northing, height
    constexpr std::size_t operator[](std::size_t i) const { return stellen[i]; }
};
consteval Feldertripel Felder(std::span<const Tabellenfeld> felder, std::string_view rechts,
                              std::string_view hoch, std::string_view hoehe) {
    return {{Feld(felder, rechts), Feld(felder, hoch), Feld(felder, hoehe)}};
}

/// A table while it is filled; fields stay null where nothing is known.
class Bogen {
  public:
    explicit Bogen(Tabelle tabelle) : tabelle_(tabelle) {}

    void Zeile() {
        zeilen_.emplace_back(Beschreibung(tabelle_).felder.size());
        Ganz(0, static_cast<std::int64_t>(zeilen_.size()));
    }
    void Text(std::size_t feld, std::string_view utf8) { zeilen_.back()[feld] = utf8; }
    void Ganz(std::size_t feld, std::int64_t wert) { zeilen_.back()[feld] = wert; }
    void Flag(std::size_t feld, bool wert) { zeilen_.back()[feld] = wert; }
    /// Six decimals: the last bits of the arithmetic mean nothing.
    void Real(std::size_t feld, double wert) {
        constexpr double kStellen = 1e6;
        const double rund = std::round(wert * kStellen) / kStellen;
        if (std::isfinite(rund)) zeilen_.back()[feld] = rund;
    }
    [[nodiscard]] bool Leer() const { return zeilen_.empty(); }

    void GibDateien(std::vector<Dateiinhalt>& ziel, std::time_t zeit) const {
        const Ergebnistabelle& t = Beschreibung(tabelle_);
        std::vector<paradox::Feld> felder;
        for (const Tabellenfeld& f : t.felder)
            felder.push_back({std::string(f.name), f.typ, f.groesse});
        paradox::Dateipaar paar = paradox::SchreibeTabelle(t.name, felder, zeilen_, zeit);
        ziel.emplace_back(std::string(t.name) + ".DB", std::move(paar.db));
        ziel.emplace_back(std::string(t.name) + ".PX", std::move(paar.px));
    }

  private:
    Tabelle tabelle_;
    std::vector<std::vector<paradox::Wert>> zeilen_;
};

/// What all tables of single observations have, by the places of their fields.
struct Einzelfelder {
    std::size_t wert, v, tg, ev, gf, nmf, nk, ff;
};
consteval Einzelfelder FelderVon(std::span<const Tabellenfeld> f, std::string_view wert, std::string_view v) {
    return {Feld(f, wert), Feld(f, v),     Feld(f, "TG"), Feld(f, "EV"),
            Feld(f, "GF"), Feld(f, "NMF"), Feld(f, "NK"), Feld(f, "FF")};
}
constexpr Einzelfelder kStr = FelderVon(kStrecken, "ST", "VS");
constexpr Einzelfelder kDh = FelderVon(kHoehenunterschiede, "DH", "VH");
constexpr Einzelfelder kRtg = FelderVon(kRichtungen, "RI", "VR");

/// The fields of a satellite point. @param raum with a height; without, nobody asks for that place
struct GpsPunktfelder {
    Feldertripel wert, v, gf, nmf, tg, ev;
    std::size_t vP, ff;
};
consteval GpsPunktfelder GpsFelder(std::span<const Tabellenfeld> f, bool raum) {
    return {Felder(f, "Y", "X", raum ? "H" : "X"),
            Felder(f, "vY", "vX", raum ? "vH" : "vX"),
            Felder(f, "GFY", "GFX", raum ? "GFH" : "GFX"),
            Felder(f, "NMFY", "NMFX", raum ? "NMFH" : "NMFX"),
            Felder(f, "TGY", "TGX", raum ? "TGZ" : "TGX"),
            Felder(f, "EVY", "EVX", raum ? "EVZ" : "EVX"),
            Feld(f, "vP"),
            Feld(f, "FF")};
}
constexpr GpsPunktfelder kRaumpunkt = GpsFelder(kGpsPunkte3D, true);
constexpr GpsPunktfelder kLagepunkt = GpsFelder(kGpsPunkte2D, false);

bool Unkontrolliert(const Fremdwert& w) {
    // Without its share, an observation is controlled where the adjustment could test it.
    return w.redundanz == w.redundanz ? w.redundanz < kUnkontrolliert : w.testgroesse != w.testgroesse;
}

/// Covariance of the position of a point, or of the difference of two.
class Lagekovarianzen {
  public:
    explicit Lagekovarianzen(const Fremdnetz& netz) : netz_(netz) {}

    /// Whether the point is fixed or has its place in the matrix.
    [[nodiscard]] bool Kennt(Stelle p) const { return Fest(p) || Veraenderlich(p); }
    [[nodiscard]] bool Fest(Stelle p) const { return !Veraenderlich(p) && netz_.lagen[p].fest.HatLage(); }
    [[nodiscard]] Lagekovarianz Punkt(Stelle p) const {
        return {Wert(p, 0, p, 0), Wert(p, 1, p, 1), Wert(p, 0, p, 1)};
    }
    [[nodiscard]] Lagekovarianz Unterschied(Stelle p, Stelle q) const {
        const Lagekovarianz a = Punkt(p), b = Punkt(q);
        return {a.rechts + b.rechts - 2.0 * Wert(p, 0, q, 0), a.hoch + b.hoch - 2.0 * Wert(p, 1, q, 1),
                a.beide + b.beide - Wert(p, 0, q, 1) - Wert(p, 1, q, 0)};
    }
    [[nodiscard]] double Hoehe(Stelle p) const { return Wert(p, 2, p, 2); }

  private:
    [[nodiscard]] bool Veraenderlich(Stelle p) const {
        return netz_.lagen[p].unbekannte[0] >= 0 && netz_.lagen[p].unbekannte[1] >= 0;
    }
    /// Of two coordinates: 0 easting, 1 northing, 2 height. What is no unknown does not vary.
    [[nodiscard]] double Wert(Stelle p, std::size_t i, Stelle q, std::size_t k) const {
        const Fremdlage &a = netz_.lagen[p], &b = netz_.lagen[q];
        if (a.unbekannte[i] < 0 || b.unbekannte[k] < 0) return 0.0;
        return a.vorzeichen[i] * b.vorzeichen[k] *
               netz_.kovarianzen.Wert(static_cast<std::size_t>(a.unbekannte[i]),
                                      static_cast<std::size_t>(b.unbekannte[k]));
    }
    const Fremdnetz& netz_;
};

class Tabellensatz {
  public:
    Tabellensatz(const Fremdnetz& netz, std::span<const std::string> nummern, double grenze,
                 Importbericht& bericht)
        : netz_(netz), grenze_(grenze), bericht_(bericht), kovarianzen_(netz) {
        for (const std::string& n : nummern)
            nummern_.push_back(Cp1252NachUtf8(n));
    }

    std::vector<Dateiinhalt> Dateien(std::time_t zeit) {
        for (const Fremdergebnis& e : netz_.ergebnisse)
            NimmErgebnis(e);
        NimmPunkte();
        if (netz_.kovarianzen.Dim() > 0) NimmRelative();
        std::vector<Dateiinhalt> dateien;
        for (const Bogen* b : {&gps_, &strecken_, &hoehen_, &richtungen_, &koordinaten_, &punkte3D_,
                               &punkte2D_, &linien_, &kontrollen_, &weitere_})
            b->GibDateien(dateien, zeit);
        if (!relative_.Leer()) relative_.GibDateien(dateien, zeit);
        return dateien;
    }

  private:
    void NimmErgebnis(const Fremdergebnis& e) {
        switch (e.art) {
            case Messart::Richtung:
            case Messart::Azimut:
                return NimmRichtung(e);
            case Messart::Strecke:
            case Messart::Schraegstrecke:
                return NimmStrecke(e);
            case Messart::Hoehenunterschied:
                return NimmHoehenunterschied(e);
            case Messart::Vektor:
                return NimmVektor(e);
            case Messart::Koordinate:
                return NimmGpsPunkt(e);
            case Messart::Zenitdistanz:
            case Messart::Winkel:
            case Messart::Anzahl:
                bericht_.NimmAuf(Befundart::ErgebnisOhneTabelle);
        }
    }

    void Einzelwert(Bogen& b, const Einzelfelder& f, const Fremdwert& w) const {
        b.Real(f.wert, w.beobachtet);
        b.Real(f.v, w.verbesserung);
        b.Real(f.tg, w.testgroesse);
        b.Real(f.ev, w.redundanz);
        b.Real(f.gf, w.groberFehler);
        b.Real(f.nmf, w.sigma);
        b.Flag(f.nk, Unkontrolliert(w));
        b.Flag(f.ff, w.testgroesse > grenze_);
    }

    /// Bearing and length of a line after the adjustment, or as it is drawn; unknown without coordinates.
    struct Linie {
        double richtung = kUnbekannt;  ///< [gon]
        double laenge = kUnbekannt;    ///< [m]
    };
    [[nodiscard]] Linie LinieZwischen(Stelle p, Stelle q) const {
        const Dreier a = Endlage(p), b = Endlage(q);
        const double dr = b.rechts - a.rechts, dh = b.hoch - a.hoch;
        return {Vollkreis(std::atan2(dr, dh) * kGonJeRadiant), std::hypot(dr, dh)};
    }
    [[nodiscard]] Dreier Endlage(Stelle p) const {
        const Dreier ort = netz_.Endort(p);
        return ort.HatLage() ? ort : netz_.Ort(p);
    }

    void NimmRichtung(const Fremdergebnis& e) {
        Bogen& b = richtungen_;
        b.Zeile();
        b.Text(Feld(kRichtungen, "PS"), nummern_[e.von]);
        b.Text(Feld(kRichtungen, "PZ"), nummern_[e.nach]);
        b.Ganz(Feld(kRichtungen, "Satz"), e.art == Messart::Azimut ? 0 : e.satz);
        const double laenge = LinieZwischen(e.von, e.nach).laenge;
        b.Real(Feld(kRichtungen, "ST"), laenge);
        b.Real(Feld(kRichtungen, "QA"), e.wert.verbesserung / kGonJeRadiant * laenge);
        Einzelwert(b, kRtg, e.wert);
    }

    void NimmStrecke(const Fremdergebnis& e) {
        Bogen& b = strecken_;
        b.Zeile();
        b.Text(Feld(kStrecken, "P1"), nummern_[e.von]);
        b.Text(Feld(kStrecken, "P2"), nummern_[e.nach]);
        b.Real(Feld(kStrecken, "RI"), LinieZwischen(e.von, e.nach).richtung);
        Einzelwert(b, kStr, e.wert);
    }

    void NimmHoehenunterschied(const Fremdergebnis& e) {
        Bogen& b = hoehen_;
        b.Zeile();
        b.Text(Feld(kHoehenunterschiede, "P1"), nummern_[e.von]);
        b.Text(Feld(kHoehenunterschiede, "P2"), nummern_[e.nach]);
        b.Ganz(Feld(kHoehenunterschiede, "NIVP1"), 0);
        b.Ganz(Feld(kHoehenunterschiede, "NIVP2"), 0);
        b.Real(Feld(kHoehenunterschiede, "ST"), LinieZwischen(e.von, e.nach).laenge);
        Einzelwert(b, kDh, e.wert);
    }

    /// The largest of the test values that there are.
    [[nodiscard]] static double GroessterTest(const Fremdergebnis& e) {
        double groesster = kUnbekannt;
        for (const Fremdwert& w : e.teile)
            groesster = std::fmax(groesster, w.testgroesse);
        return groesster;
    }

    void NimmVektor(const Fremdergebnis& e) {
        // X is the northing and Y the easting, as everywhere in the tables.
        constexpr Feldertripel kWert = Felder(kGps, "DY", "DX", "DZ"), kV = Felder(kGps, "VY", "VX", "VZ");
        constexpr Feldertripel kEv = Felder(kGps, "EVY", "EVX", "EVZ"),
                               kNk = Felder(kGps, "NKDY", "NKDX", "NKDZ");
        constexpr Feldertripel kNmf = Felder(kGps, "NMFY", "NMFX", "NMFZ");
        Bogen& b = gps_;
        b.Zeile();
        b.Text(Feld(kGps, "P1"), nummern_[e.von]);
        b.Text(Feld(kGps, "P2"), nummern_[e.nach]);
        b.Ganz(Feld(kGps, "NIVP1"), 0);
        b.Ganz(Feld(kGps, "NIVP2"), 0);
        for (std::size_t i = 0; i < 3; ++i) {
            const Fremdwert& w = e.teile[i];
            b.Real(kWert[i], w.beobachtet);
            b.Real(kV[i], w.verbesserung);
            b.Real(kEv[i], w.redundanz);
            b.Real(kNmf[i], w.sigma);
            b.Flag(kNk[i], Unkontrolliert(w));
        }
        const double tg = GroessterTest(e);
        b.Real(Feld(kGps, "TG"), tg);
        b.Flag(Feld(kGps, "FF"), tg > grenze_);
        const double richtung = LinieZwischen(e.von, e.nach).richtung / kGonJeRadiant;
        const auto laengsQuer = [&](std::size_t laengs, std::size_t quer, std::size_t hoehe,
                                    double Fremdwert::*welcher) {
            const double r = e.teile[0].*welcher, h = e.teile[1].*welcher;
            b.Real(laengs, r * std::sin(richtung) + h * std::cos(richtung));
            b.Real(quer, r * std::cos(richtung) - h * std::sin(richtung));
            b.Real(hoehe, e.teile[2].*welcher);
        };
        laengsQuer(Feld(kGps, "VL"), Feld(kGps, "VQ"), Feld(kGps, "VH"), &Fremdwert::verbesserung);
        laengsQuer(Feld(kGps, "GFL"), Feld(kGps, "GFQ"), Feld(kGps, "GFH"), &Fremdwert::groberFehler);
    }

    /// Observed coordinates are satellite points where position and, in space, height are there.
    void NimmGpsPunkt(const Fremdergebnis& e) {
        const auto da = [](const Fremdwert& w) { return w.verbesserung == w.verbesserung; };
        if (!da(e.teile[0]) || !da(e.teile[1])) {
            bericht_.NimmAuf(Befundart::ErgebnisOhneTabelle);
            return;
        }
        if (da(e.teile[2]))
            GpsPunktzeile(punkte3D_, e, 3, kRaumpunkt);
        else
            GpsPunktzeile(punkte2D_, e, 2, kLagepunkt);
    }

    void GpsPunktzeile(Bogen& b, const Fremdergebnis& e, std::size_t anzahl, const GpsPunktfelder& f) {
        b.Zeile();
        b.Text(1, nummern_[e.von]);
        b.Ganz(2, 0);
        for (std::size_t i = 0; i < anzahl; ++i) {
            const Fremdwert& w = e.teile[i];
            b.Real(f.wert[i], w.ausgeglichen);
            b.Real(f.v[i], w.verbesserung);
            b.Real(f.gf[i], w.groberFehler);
            b.Real(f.nmf[i], w.sigma);
            b.Real(f.tg[i], w.testgroesse);
            b.Real(f.ev[i], w.redundanz);
        }
        b.Real(f.vP, std::hypot(e.teile[0].verbesserung, e.teile[1].verbesserung));
        b.Flag(f.ff, GroessterTest(e) > grenze_);
    }

    // Points.

    void NimmPunkte() {
        for (Stelle p = 0; p < netz_.punkte.size(); ++p) {
            const Dreier ort = netz_.Endort(p);
            if (!ort.HatLage() && !ort.HatHoehe()) continue;
            Bogen& b = koordinaten_;
            b.Zeile();
            b.Text(Feld(kKoordinaten, "PKT"), nummern_[p]);
            b.Ganz(Feld(kKoordinaten, "NIV"), 0);
            b.Real(Feld(kKoordinaten, "X"), ort.hoch);
            b.Real(Feld(kKoordinaten, "Y"), ort.rechts);
            b.Real(Feld(kKoordinaten, "H"), ort.hoehe);
            b.Text(Feld(kKoordinaten, "ST"), kArtkuerzel[static_cast<std::size_t>(netz_.Art(p))]);
            if (ort.HatLage()) NimmLage(p);
            if (ort.HatHoehe()) NimmHoehe(p);
        }
    }

    void NimmLage(Stelle p) {
        Bogen& b = koordinaten_;
        const Fremdlage& l = netz_.lagen[p];
        const Dreier vorher = l.naeherung.HatLage() ? l.naeherung : netz_.punkte[p].naeherung;
        const bool fest = kovarianzen_.Fest(p);
        const double dY = fest ? 0.0 : (l.ausgeglichen.rechts - vorher.rechts) * kTausend;
        const double dX = fest ? 0.0 : (l.ausgeglichen.hoch - vorher.hoch) * kTausend;
        b.Real(Feld(kKoordinaten, "dY"), dY);
        b.Real(Feld(kKoordinaten, "dX"), dX);
        b.Real(Feld(kKoordinaten, "dP"), std::hypot(dY, dX));
        const Lagekovarianz k = kovarianzen_.Punkt(p);
        if (!fest && k.rechts != k.rechts) return;  // no covariances at all
        const auto ellipse = ErmittleFehlerellipse(k);
        if (!ellipse) {
            bericht_.NimmAuf(Befundart::OhneEllipse);
            return;
        }
        b.Real(Feld(kKoordinaten, "mY"), std::sqrt(k.rechts));
        b.Real(Feld(kKoordinaten, "mX"), std::sqrt(k.hoch));
        b.Real(Feld(kKoordinaten, "mL"), std::sqrt(k.rechts + k.hoch));
        b.Real(Feld(kKoordinaten, "A"), ellipse->a);
        b.Real(Feld(kKoordinaten, "B"), ellipse->b);
        b.Real(Feld(kKoordinaten, "Phi"), ellipse->phi);
    }

    void NimmHoehe(Stelle p) {
        const Fremdlage& l = netz_.lagen[p];
        const bool fest = l.unbekannte[2] < 0;
        const double vorher = l.naeherung.HatHoehe() ? l.naeherung.hoehe : netz_.punkte[p].naeherung.hoehe;
        koordinaten_.Real(Feld(kKoordinaten, "dH"), fest ? 0.0 : (l.ausgeglichen.hoehe - vorher) * kTausend);
        koordinaten_.Real(Feld(kKoordinaten, "mH"), std::sqrt(kovarianzen_.Hoehe(p)));
    }

    /// Of every pair of points with an observation between them.
    void NimmRelative() {
        std::vector<std::pair<Stelle, Stelle>> paare;
        const auto paar = [&](Stelle p, Stelle q) {
            if (p != q && kovarianzen_.Kennt(p) && kovarianzen_.Kennt(q) &&
                !(kovarianzen_.Fest(p) && kovarianzen_.Fest(q)))
                paare.emplace_back(std::min(p, q), std::max(p, q));
        };
        for (const Fremdmessung& m : netz_.messungen) {
            paar(m.von, m.nach);
            if (m.art == Messart::Winkel) paar(m.von, m.zweites);
        }
        std::sort(paare.begin(), paare.end());
        paare.erase(std::unique(paare.begin(), paare.end()), paare.end());
        for (const auto& [p, q] : paare)
            NimmPaar(p, q);
    }

    void NimmPaar(Stelle p, Stelle q) {
        const Lagekovarianz k = kovarianzen_.Unterschied(p, q);
        const auto ellipse = ErmittleFehlerellipse(k);
        if (!ellipse) {
            bericht_.NimmAuf(Befundart::OhneRelative);
            return;
        }
        const double richtung = LinieZwischen(p, q).richtung;
        Bogen& b = relative_;
        b.Zeile();
        b.Text(Feld(kRelativeEllipsen, "P1"), nummern_[p]);
        b.Text(Feld(kRelativeEllipsen, "P2"), nummern_[q]);
        b.Real(Feld(kRelativeEllipsen, "A"), ellipse->a);
        b.Real(Feld(kRelativeEllipsen, "B"), ellipse->b);
        b.Real(Feld(kRelativeEllipsen, "Phi"), ellipse->phi);
        b.Real(Feld(kRelativeEllipsen, "mS"), std::sqrt(std::max(0.0, k.InRichtung(richtung))));
        b.Real(Feld(kRelativeEllipsen, "mQ"), std::sqrt(std::max(0.0, k.InRichtung(richtung + 100.0))));
    }

    const Fremdnetz& netz_;
    std::vector<std::string> nummern_;  ///< UTF-8
    double grenze_;
    Importbericht& bericht_;
    Lagekovarianzen kovarianzen_;
    Bogen gps_{Tabelle::Gps}, strecken_{Tabelle::Strecken}, hoehen_{Tabelle::Hoehenunterschiede},
        richtungen_{Tabelle::Richtungen}, koordinaten_{Tabelle::Koordinaten}, punkte3D_{Tabelle::GpsPunkte3D},
        punkte2D_{Tabelle::GpsPunkte2D}, linien_{Tabelle::Linien}, kontrollen_{Tabelle::Streckenkontrollen},
        weitere_{Tabelle::WeitereKoordinaten}, relative_{Tabelle::RelativeEllipsen};
};

}  // namespace

std::vector<Dateiinhalt> Ergebnistabellen(const Fremdnetz& netz, std::span<const std::string> nummern,
                                          double grenze, std::time_t zeit, Importbericht& bericht) {
    return Tabellensatz(netz, nummern, grenze, bericht).Dateien(zeit);
}

std::vector<std::string> Tabellendateien() {
    std::vector<std::string> namen;
    for (const Ergebnistabelle& t : kTabellen) {
        namen.push_back(std::string(t.name) + ".DB");
        namen.push_back(std::string(t.name) + ".PX");
    }
    return namen;
}

}  // namespace zrw::fremd
