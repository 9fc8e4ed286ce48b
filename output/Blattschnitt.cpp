#include "output/Blattschnitt.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <string>
#include <unordered_set>
#include <utility>

#include "model/Bildorte.h"
#include "model/Fehler.h"
#include "model/Raumbaum.h"
#include "model/Zahlentext.h"
#include "output/Abschneiden.h"
#include "output/Export.h"
#include "output/Figurenzeichner.h"
#include "output/Messflaeche.h"

namespace zrw {

void Bandmesser::Linie(Flaechenpunkt von, Flaechenpunkt nach) {
    if (von.y > nach.y) std::swap(von, nach);
    if (von.y >= unten_) return;
    links_ = std::min(links_, von.x);
    if (nach.y < unten_) {
        links_ = std::min(links_, nach.x);
        return;
    }
    const double hoehe = nach.y - static_cast<double>(von.y);
    const double teil = (unten_ - 1.0 - von.y) / hoehe;
    const double x = von.x + teil * (nach.x - static_cast<double>(von.x));
    links_ = std::min(links_, static_cast<std::int32_t>(std::floor(x)));
}

namespace {

/// Parts of a sheet, to each side, by which the origin is shifted to find the best one.
constexpr int kFeinste = 16;
/// No more of them along the plan: long lines would take too long.
constexpr double kMeisteTeile = 256;

[[noreturn]] void ZuViele() {
    throw Fehler("Der ganze Plan bräuchte in diesem Maßstab mehr als " + std::to_string(kMeisteBlaetter) +
                 " Blätter. Bitte einen kleineren Maßstab oder größeres Papier wählen.");
}

struct Feld {
    int zeile = 0;
    int spalte = 0;
};

/// Ticks off the fields of a grid that something is drawn on.
class Belegung final : public Messflaeche {
  public:
    struct Raster {
        double x0 = 0;  ///< top-left corner of the field of row and column 0 [dots]
        double y0 = 0;
        double weite = 1;  ///< of a field [dots]
        double hoehe = 1;
    };
    /// @param hoechstens so many fields; with more than that it is `Voll` and listens no longer
    Belegung(const Zeichenflaeche& geraet, const Raster& raster, std::size_t hoechstens)
        : Messflaeche(geraet), raster_(raster), hoechstens_(hoechstens) {}

    [[nodiscard]] bool Voll() const { return felder_.size() > hoechstens_; }
    /// Row by row from the top left.
    [[nodiscard]] std::vector<Feld> Felder() const {
        std::vector<std::uint64_t> schluessel(felder_.begin(), felder_.end());
        std::sort(schluessel.begin(), schluessel.end());
        std::vector<Feld> felder;
        felder.reserve(schluessel.size());
        for (const std::uint64_t s : schluessel)
            felder.push_back({Teil(s >> 32U), Teil(s & 0xFFFFFFFFU)});
        return felder;
    }

    /// Every field that the line crosses, column by column.
    void Linie(Flaechenpunkt von, Flaechenpunkt nach) override {
        if (von.x > nach.x) std::swap(von, nach);
        const double ax = Spalte(von.x);
        const double ay = Zeile(von.y);
        const double bx = Spalte(nach.x);
        const double by = Zeile(nach.y);
        const double steigung = bx > ax ? (by - ay) / (bx - ax) : 0.0;
        const int letzte = Unten(bx);
        for (int s = Unten(ax); s <= letzte && !Voll(); ++s) {
            const double links = s > ax ? ay + (s - ax) * steigung : ay;
            const double rechts = s + 1 < bx ? ay + (s + 1 - ax) * steigung : by;
            BelegeSpalte(Unten(std::min(links, rechts)), Unten(std::max(links, rechts)), s);
        }
    }

  protected:
    void Kasten(const Rechteck& r) override {
        const int letzte = Unten(Spalte(r.rechts));
        for (int s = Unten(Spalte(r.links)); s <= letzte && !Voll(); ++s)
            BelegeSpalte(Unten(Zeile(r.oben)), Unten(Zeile(r.unten)), s);
    }

  private:
    // Far within 32 bits: fields are larger than dots or as large.
    [[nodiscard]] double Spalte(std::int32_t x) const { return (x - raster_.x0) / raster_.weite; }
    [[nodiscard]] double Zeile(std::int32_t y) const { return (y - raster_.y0) / raster_.hoehe; }
    [[nodiscard]] static int Unten(double v) { return static_cast<int>(std::floor(v)); }

    // Fields as keys that are in order as the fields are.
    static constexpr std::int64_t kVersatz = std::int64_t{1} << 31U;
    [[nodiscard]] static std::uint64_t Schluessel(int v) { return static_cast<std::uint64_t>(v + kVersatz); }
    [[nodiscard]] static int Teil(std::uint64_t s) {
        return static_cast<int>(static_cast<std::int64_t>(s) - kVersatz);
    }
    void BelegeSpalte(int von, int bis, int spalte) {
        for (int z = von; z <= bis && !Voll(); ++z) {
            const std::uint64_t feld = Schluessel(z) << 32U | Schluessel(spalte);
            if (feld == letztes_) continue;
            felder_.insert(feld);
            letztes_ = feld;
        }
    }

    Raster raster_;
    std::size_t hoechstens_;
    std::unordered_set<std::uint64_t> felder_;
    std::uint64_t letztes_ = ~std::uint64_t{0};
};

/// Whether the plan shows the point, at a place that there is.
bool ZaehltPunkt(const PunktKnoten& p, const Bildvorlage& v) {
    return std::isfinite(p.XWPu) && std::isfinite(p.YWPu) && v.Gezeichnet(p) &&
           v.darstellung.Dargestellt(*p.Item);
}

/// A place within the plan that positions are measured from: the digits of far ones end somewhere.
std::optional<Welt> Bezug(const Bildvorlage& v) {
    for (const PunktKnoten* p = v.netz.PunktKnoten; p != nullptr; p = p->Next) {
        if (ZaehltPunkt(*p, v)) return Welt{p->XWPu, p->YWPu};
    }
    return std::nullopt;
}

/// Rectangle round a plan [dots]; its last row and column belong to it.
struct Umfang {
    double links, oben, rechts, unten;
    [[nodiscard]] double Weite() const { return rechts - links + 1; }
    [[nodiscard]] double Hoehe() const { return unten - oben + 1; }
};

/// A plan at the scale of its print, drawn onto surfaces that measure.
class Messung {
  public:
    Messung(const Druckplan& plan, double massstab, const Druckseite& seite, Welt bezug)
        : plan_(plan),
          groessen_(plan.mittel.einstellungen),
          geraetefaktor_(Geraetefaktor(seite)),
          bezug_(bezug),
          dot_(Druckfaktor(massstab, seite.aufloesung)),
          weite_(std::max(seite.weite, 1)),
          hoehe_(std::max(seite.hoehe, 1)),
          ansicht_(plan.vorlage.ansicht.FuerGeraet(dot_, bezug)),
          vorlage_(plan.vorlage.InAnsicht(ansicht_)) {
        groessen_.ScaleSizes(geraetefaktor_);
    }
    Messung(const Messung&) = delete;
    Messung& operator=(const Messung&) = delete;

    [[nodiscard]] double Weite() const { return weite_; }
    [[nodiscard]] double Hoehe() const { return hoehe_; }
    [[nodiscard]] const Zeichenflaeche& Geraet() const { return plan_.geraet; }

    void ZeichnePlan(Messflaeche& ziel) const {
        const Darstellung& d = vorlage_.darstellung;
        Zeichenzustand zustand = Geraetezustand(plan_.mittel.zustand, ziel, geraetefaktor_);
        Figurenzeichner zeichner(zustand, groessen_, plan_.mittel.netz, plan_.mittel.uhr);
        if (d.ShowBeob) ZeichneKanten(vorlage_, zeichner);
        ZeichnePunkte(vorlage_, zeichner);
        if (d.ShowPktText) ZeichneTexte(vorlage_, zeichner);
        zeichner.ZeichnePunktRes(vorlage_);
    }
    /// None where nothing is drawn. @throws Fehler where points lie farther away than can be measured
    [[nodiscard]] std::optional<Umfang> MissUmfang() const {
        constexpr std::int64_t kFern = Messflaeche::kReichweite;
        for (const PunktKnoten* p = vorlage_.netz.PunktKnoten; p != nullptr; p = p->Next) {
            const Bildpunkt ort = BildortVon(*p, ansicht_);
            if (ZaehltPunkt(*p, vorlage_) && !InReichweite(ort, 0, {-kFern, -kFern, kFern, kFern})) ZuViele();
        }
        Umfangmesser messer(plan_.geraet);
        ZeichnePlan(messer);
        const Rechteck r = messer.Umfang();
        if (Leer(r)) return std::nullopt;
        return Umfang{static_cast<double>(r.links), static_cast<double>(r.oben),
                      static_cast<double>(r.rechts), static_cast<double>(r.unten)};
    }
    [[nodiscard]] bool PasstAufEines(const Umfang& u) const {
        return u.Weite() <= weite_ && u.Hoehe() <= hoehe_;
    }
    [[nodiscard]] Welt Weltort(double x, double y) const {
        return {bezug_.rechts + x * dot_, bezug_.hoch - y * dot_};
    }
    /// The sheets from an origin [dots]; none where they are too many.
    [[nodiscard]] std::optional<std::vector<Blatt>> Blaetter(double x0, double y0,
                                                             std::size_t hoechstens) const {
        Belegung belegung(plan_.geraet, {x0, y0, weite_, hoehe_}, hoechstens);
        ZeichnePlan(belegung);
        if (belegung.Voll()) return std::nullopt;
        std::vector<Blatt> blaetter;
        for (const Feld& f : belegung.Felder())
            blaetter.push_back({f.zeile, f.spalte, Weltort(x0 + f.spalte * weite_, y0 + f.zeile * hoehe_)});
        return blaetter;
    }

  private:
    const Druckplan& plan_;
    Einstellungen groessen_;  ///< of the device
    double geraetefaktor_;
    Welt bezug_;
    double dot_;
    double weite_;
    double hoehe_;
    Ansicht ansicht_;
    Bildvorlage vorlage_;
};

/// Quotient, rounded down.
int Boden(int zahl, int teiler) {
    return zahl / teiler - (zahl % teiler < 0 ? 1 : 0);
}

/// How many sheets it takes when they begin so many parts above and left of the plan, and which.
struct Probe {
    int oben = 0;
    int links = 0;
    std::vector<Feld> blaetter;  ///< row by row
};

/// Of all shifts by whole parts of a sheet, the first one with the fewest sheets.
/// @param teile where something lies, in parts of a sheet @param k parts of a sheet to each side
Probe BesteProbe(const std::vector<Feld>& teile, int k) {
    Probe beste;
    for (int links = 0; links < k; ++links) {
        // Rows of parts, but columns of sheets: far fewer to look at for each shift downwards.
        std::vector<std::pair<int, int>> streifen;
        streifen.reserve(teile.size());
        for (const Feld& f : teile)
            streifen.emplace_back(f.zeile, Boden(f.spalte + links, k));
        streifen.erase(std::unique(streifen.begin(), streifen.end()), streifen.end());
        for (int oben = 0; oben < k; ++oben) {
            std::vector<std::pair<int, int>> blaetter;
            blaetter.reserve(streifen.size());
            for (const auto& [zeile, spalte] : streifen)
                blaetter.emplace_back(Boden(zeile + oben, k), spalte);
            std::sort(blaetter.begin(), blaetter.end());
            blaetter.erase(std::unique(blaetter.begin(), blaetter.end()), blaetter.end());
            if (!beste.blaetter.empty() && blaetter.size() >= beste.blaetter.size()) continue;
            beste = {oben, links, {}};
            for (const auto& [zeile, spalte] : blaetter)
                beste.blaetter.push_back({zeile, spalte});
        }
    }
    return beste;
}

Probe SucheUrsprung(const Messung& m, const Umfang& umfang, int k) {
    const auto felder = static_cast<std::size_t>(k) * static_cast<std::size_t>(k) * kMeisteBlaetter;
    Belegung teile(m.Geraet(), {umfang.links, umfang.oben, m.Weite() / k, m.Hoehe() / k}, felder);
    m.ZeichnePlan(teile);
    if (teile.Voll()) ZuViele();
    Probe probe = BesteProbe(teile.Felder(), k);
    if (probe.blaetter.size() > kMeisteBlaetter) ZuViele();
    return probe;
}

/// Origin [dots] that puts the middle of a stretch into the middle of so many sheets.
double Mittig(double von, double bis, double blaetter, double seite) {
    return std::round((von + bis - blaetter * seite) / 2);
}

}  // namespace

std::vector<Blatt> Blattschnitt(const Druckplan& plan, double massstab, const Druckseite& seite,
                                Welt ursprung) {
    const auto bezug = Bezug(plan.vorlage);
    if (!bezug) return {};
    const Messung m(plan, massstab, seite, *bezug);
    if (!m.MissUmfang()) return {};
    const double dot = Druckfaktor(massstab, seite.aufloesung);
    const double x0 = (ursprung.rechts - bezug->rechts) / dot;
    const double y0 = (bezug->hoch - ursprung.hoch) / dot;
    constexpr double kFern = Messflaeche::kReichweite;
    if (!(std::abs(x0) < kFern && std::abs(y0) < kFern)) ZuViele();
    auto blaetter = m.Blaetter(x0, y0, kMeisteBlaetter);
    if (!blaetter) ZuViele();
    return std::move(*blaetter);
}

std::vector<Blatt> Blattaufteilung(const Druckplan& plan, double massstab, const Druckseite& seite) {
    const auto bezug = Bezug(plan.vorlage);
    if (!bezug) return {};
    const Messung m(plan, massstab, seite, *bezug);
    const auto umfang = m.MissUmfang();
    if (!umfang) return {};
    const Umfang& u = *umfang;
    if (m.PasstAufEines(u)) {
        const double x = Mittig(u.links, u.rechts, 1, m.Weite());
        return {{0, 0, m.Weltort(x, Mittig(u.oben, u.unten, 1, m.Hoehe()))}};
    }
    const double seiten = std::max(u.Weite() / m.Weite(), u.Hoehe() / m.Hoehe());
    const int k = static_cast<int>(std::clamp(kMeisteTeile / seiten, 1.0, double{kFeinste}));
    const Probe probe = SucheUrsprung(m, u, k);
    const auto [links, rechts] = std::minmax_element(probe.blaetter.begin(), probe.blaetter.end(),
                                                     [](Feld a, Feld b) { return a.spalte < b.spalte; });
    const int oben = probe.blaetter.front().zeile;
    const double x = u.links - std::round(probe.links * m.Weite() / k) + links->spalte * m.Weite();
    const double y = u.oben - std::round(probe.oben * m.Hoehe() / k) + oben * m.Hoehe();
    const double mx = Mittig(u.links, u.rechts, rechts->spalte - links->spalte + 1, m.Weite());
    const double my = Mittig(u.oben, u.unten, probe.blaetter.back().zeile - oben + 1, m.Hoehe());
    for (const auto& [x0, y0] : {std::pair{mx, my}, {mx, y}, {x, my}}) {
        if (auto blaetter = m.Blaetter(x0, y0, probe.blaetter.size())) return std::move(*blaetter);
    }
    auto blaetter = m.Blaetter(x, y, kMeisteBlaetter);
    if (!blaetter) ZuViele();
    return std::move(*blaetter);
}

std::optional<Blatt> ErstesBlatt(const Druckplan& plan, double massstab, const Druckseite& seite) {
    const auto bezug = Bezug(plan.vorlage);
    if (!bezug) return std::nullopt;
    const Messung m(plan, massstab, seite, *bezug);
    const auto umfang = m.MissUmfang();
    if (!umfang) return std::nullopt;
    const double unten = std::min(umfang->oben + m.Hoehe(), static_cast<double>(Messflaeche::kReichweite));
    Bandmesser band(plan.geraet, static_cast<std::int32_t>(unten));
    m.ZeichnePlan(band);
    return Blatt{0, 0, m.Weltort(band.Links(), umfang->oben)};
}

std::string Massstabtext(double massstab) {
    return massstab == std::floor(massstab) ? Festkomma(massstab, 0, 0) : SchreibeReal(massstab);
}

std::optional<double> GroessterMassstab(const Druckplan& plan, const Druckseite& seite, double blaetter,
                                        const std::function<bool(double massstab)>& passt) {
    Weltkasten orte;
    for (const PunktKnoten* p = plan.vorlage.netz.PunktKnoten; p != nullptr; p = p->Next) {
        if (ZaehltPunkt(*p, plan.vorlage)) orte.NimmOrt(p->XWPu, p->YWPu);
    }
    // The points alone need this one; whatever is drawn round them needs a little more.
    const double dot = Druckfaktor(1, seite.aufloesung);
    const double mindestens = std::max((orte.rechts - orte.links) / (std::max(seite.weite, 1) * dot),
                                       (orte.oben - orte.unten) / (std::max(seite.hoehe, 1) * dot)) /
                              blaetter;
    if (!(mindestens > 0.0) || !std::isfinite(mindestens)) return std::nullopt;
    constexpr std::array<double, 4> kZiffern{1, 2, 2.5, 5};
    constexpr int kStufen = 6;  // symbols that leave no room even then do so at every scale
    const int exponent = std::max(0, static_cast<int>(std::floor(std::log10(mindestens))));
    double zehner = std::pow(10.0, exponent);
    for (int i = 0; i < kStufen; ++i, zehner *= 10) {
        for (const double ziffer : kZiffern) {
            const double massstab = ziffer * zehner;
            if (massstab < mindestens || !LiesMassstab(SchreibeReal(massstab))) continue;
            if (passt(massstab)) return massstab;
        }
    }
    return std::nullopt;
}

std::optional<double> PassenderMassstab(const Druckplan& plan, const Druckseite& seite) {
    const auto bezug = Bezug(plan.vorlage);
    if (!bezug) return std::nullopt;
    return GroessterMassstab(plan, seite, 1.0, [&](double massstab) {
        const Messung m(plan, massstab, seite, *bezug);
        const auto u = m.MissUmfang();
        return u && m.PasstAufEines(*u);
    });
}

}  // namespace zrw
