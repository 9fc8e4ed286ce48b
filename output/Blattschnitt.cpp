#include "output/Blattschnitt.h"

#include <algorithm>
#include <cmath>
#include <set>
#include <string>
#include <utility>

#include "model/Fehler.h"
#include "output/Export.h"

namespace zrw {
namespace {

/// Sheets are counted from the first one; further away than this there is no paper.
constexpr double kWeitestes = 1e6;

class Schnitt {
  public:
    Schnitt(double breite, double hoehe, Welt ursprung)
        : breite_(breite), hoehe_(hoehe), ursprung_(ursprung) {}

    void Punkt(Welt w) {
        if (!Endlich(w)) return;
        const Lage l = LageVon(w);
        Belege(Unten(l.zeile), Unten(l.spalte));
    }

    /// Every sheet that the line crosses, column by column.
    void Linie(Welt von, Welt nach) {
        if (!Endlich(von) || !Endlich(nach)) return;
        Lage a = LageVon(von);
        Lage b = LageVon(nach);
        if (a.spalte > b.spalte) std::swap(a, b);
        const double steigung = b.spalte > a.spalte ? (b.zeile - a.zeile) / (b.spalte - a.spalte) : 0.0;
        const auto zeileBei = [&](double spalte) {
            return b.spalte > a.spalte ? a.zeile + (spalte - a.spalte) * steigung : b.zeile;
        };
        const int letzte = Unten(b.spalte);
        for (int s = Unten(a.spalte); s <= letzte; ++s) {
            const double links = s > a.spalte ? zeileBei(s) : a.zeile;
            const double rechts = s + 1 < b.spalte ? zeileBei(s + 1) : b.zeile;
            const int unten = Unten(std::max(links, rechts));
            for (int z = Unten(std::min(links, rechts)); z <= unten; ++z)
                Belege(z, s);
        }
    }

    [[nodiscard]] std::vector<Blatt> Blaetter() const {
        std::vector<Blatt> blaetter;
        for (const auto& [zeile, spalte] : belegt_) {
            blaetter.push_back(
                {zeile, spalte, {ursprung_.rechts + spalte * breite_, ursprung_.hoch - zeile * hoehe_}});
        }
        return blaetter;
    }

  private:
    struct Lage {
        double zeile;
        double spalte;
    };
    /// Positions that are no numbers lie nowhere.
    [[nodiscard]] static bool Endlich(Welt w) { return std::isfinite(w.rechts) && std::isfinite(w.hoch); }
    /// In sheets, downwards and to the right.
    [[nodiscard]] Lage LageVon(Welt w) const {
        const Lage l{(ursprung_.hoch - w.hoch) / hoehe_, (w.rechts - ursprung_.rechts) / breite_};
        if (!(std::abs(l.zeile) < kWeitestes && std::abs(l.spalte) < kWeitestes)) ZuViele();
        return l;
    }
    /// The next whole number below; far within its range by `kWeitestes`.
    [[nodiscard]] static int Unten(double v) { return static_cast<int>(std::floor(v)); }
    void Belege(int zeile, int spalte) {
        belegt_.emplace(zeile, spalte);
        if (belegt_.size() > kMeisteBlaetter) ZuViele();
    }
    [[noreturn]] static void ZuViele() {
        throw Fehler("Der ganze Plan bräuchte in diesem Maßstab mehr als " + std::to_string(kMeisteBlaetter) +
                     " Blätter. Bitte einen kleineren Maßstab oder größeres Papier wählen.");
    }

    double breite_;
    double hoehe_;
    Welt ursprung_;
    std::set<std::pair<int, int>> belegt_;
};

}  // namespace

std::vector<Blatt> Blattschnitt(const Liste& liste, double massstab, const Druckseite& seite, Welt ursprung) {
    const double faktor = Druckfaktor(massstab, seite.aufloesung);
    Schnitt schnitt(std::max(seite.weite, 1) * faktor, std::max(seite.hoehe, 1) * faktor, ursprung);
    for (const PunktKnoten* p = liste.PunktKnoten; p != nullptr; p = p->Next) {
        if (p->Item->Visible && liste.Dargestellt(*p->Item)) schnitt.Punkt({p->XWPu, p->YWPu});
    }
    for (const PunktKante* k = liste.KanteKnoten; liste.ShowBeob && k != nullptr; k = k->Next) {
        const PunktKnoten* a = liste.SuchPkt(k->ANr);
        const PunktKnoten* e = liste.SuchPkt(k->ENr);
        if (a == nullptr || e == nullptr || !k->Item->Visible || !liste.Dargestellt(*k)) continue;
        schnitt.Linie({a->XWPu, a->YWPu}, {e->XWPu, e->YWPu});
    }
    return schnitt.Blaetter();
}

}  // namespace zrw
