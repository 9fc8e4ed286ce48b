// What GNU Gama's adjustment writes: coordinates with their covariances and the observations as judged.
#include <algorithm>
#include <array>
#include <cmath>
#include <tuple>

#include "input/import/Gama.h"
#include "model/Zahlentext.h"

namespace zrw::fremd {
namespace {

struct Ergebniszeile {
    std::string_view element;
    Messart art;
    bool winkel = false;
    bool dreht = false;  ///< turned the other way by axes of the other hand
    int achse = -1;      ///< of components: x, y, z
};

constexpr auto kErgebnisse = std::to_array<Ergebniszeile>({
    {"direction", Messart::Richtung, true, true},
    {"distance", Messart::Strecke},
    {"slope-distance", Messart::Schraegstrecke},
    {"zenith-angle", Messart::Zenitdistanz, true},
    {"angle", Messart::Winkel, true, true},
    {"height-diff", Messart::Hoehenunterschied},
    {"azimuth", Messart::Azimut, true, true},
    {"dx", Messart::Vektor, false, false, 0},
    {"dy", Messart::Vektor, false, false, 1},
    {"dz", Messart::Vektor, false, false, 2},
    {"coordinate-x", Messart::Koordinate, false, false, 0},
    {"coordinate-y", Messart::Koordinate, false, false, 1},
    {"coordinate-z", Messart::Koordinate, false, false, 2},
});

/// The texts of one result, each looked at once.
struct Ergebnistexte {
    std::string_view von, nach, links, beobachtet, ausgeglichen, sigma, f, test, fehler, id;

    explicit Ergebnistexte(pugi::xml_node knoten) {
        static constexpr auto kFelder = std::to_array<Textfeld<Ergebnistexte>>({
            {"from", &Ergebnistexte::von},
            {"to", &Ergebnistexte::nach},
            {"left", &Ergebnistexte::links},
            {"id", &Ergebnistexte::id},
            {"obs", &Ergebnistexte::beobachtet},
            {"adj", &Ergebnistexte::ausgeglichen},
            {"stdev", &Ergebnistexte::sigma},
            {"f", &Ergebnistexte::f},
            {"std-residual", &Ergebnistexte::test},
            {"err-obs", &Ergebnistexte::fehler},
        });
        for (const pugi::xml_node kind : knoten.children())
            (void)NimmText(*this, kFelder, Elementname(kind), Inhalt(kind));
    }
};

double Oder(const std::optional<double>& zahl) {
    return zahl.value_or(kUnbekannt);
}

class Ergebnisleser {
  public:
    Ergebnisleser(const Xmldatei& xml, Fremdnetz& netz, Importbericht& bericht)
        : xml_(xml), netz_(netz), bericht_(bericht) {}

    void LiesErgebnisse() {
        const pugi::xml_node kopf = Kind(xml_.Wurzel(), "network-general-parameters");
        const auto achsen = LiesAchsen(Inhalt(kopf.attribute("axes-xy")), Inhalt(kopf.attribute("angles")));
        if (!achsen)
            xml_.WirfFehler("Die Achsen (axes-xy) oder der Drehsinn (angles) der Ergebnisse sind unbekannt.",
                            kopf);
        achsen_ = *achsen;
        for (const pugi::xml_attribute m : kopf.attributes()) {
            if (std::string_view(m.name()).starts_with("angular")) grad_ = Inhalt(m) == "360";
        }
        const pugi::xml_node koordinaten = Kind(xml_.Wurzel(), "coordinates");
        if (!koordinaten) xml_.WirfFehler("Das Element <coordinates> der Ergebnisse fehlt.", xml_.Wurzel());
        bekannte_ = netz_.punkte.size();
        netz_.mitErgebnissen = true;
        NimmPunkte(Kind(koordinaten, "fixed"), &Fremdlage::fest, false);
        NimmPunkte(Kind(koordinaten, "approximate"), &Fremdlage::naeherung, false);
        NimmPunkte(Kind(koordinaten, "adjusted"), &Fremdlage::ausgeglichen, true);
        if (fremde_ > 0 && bekannteDarin_ == 0) {
            xml_.WirfFehler("Kein Punkt der Ergebnisse kommt im Netz vor: Sie gehören zu einem anderen.",
                            koordinaten);
        }
        for (const pugi::xml_node o : Kind(koordinaten, "orientation-shifts").children())
            orientierungen_ += Elementname(o) == "orientation" ? 1 : 0;
        if (const pugi::xml_node matrix = Kind(koordinaten, "cov-mat")) NimmKovarianzen(matrix);
        for (const pugi::xml_node kind : Kind(xml_.Wurzel(), "observations").children())
            NimmErgebnis(kind);
        netz_.lagen.resize(netz_.punkte.size());
        for (std::size_t p = bekannte_; p < netz_.punkte.size(); ++p)
            netz_.punkte[p].nurErgebnis = true;
        OrdneSaetzeZu();
    }

  private:
    Fremdlage& Lage(Stelle p) {
        if (netz_.lagen.size() < netz_.punkte.size()) netz_.lagen.resize(netz_.punkte.size());
        return netz_.lagen[p];
    }

    void NimmPunkte(pugi::xml_node gruppe, Dreier Fremdlage::*ziel, bool unbekannte) {
        for (const pugi::xml_node knoten : gruppe.children()) {
            if (Elementname(knoten) != "point") continue;
            const std::string_view id = Inhalt(Kind(knoten, "id"));
            if (id.empty()) {
                xml_.WirfFehler("Ein Punkt der Ergebnisse hat keinen Namen (id).", knoten);
            }
            const Stelle p = netz_.Punkt(id);
            bekannteDarin_ += p < bekannte_ ? 1 : 0;
            if (p >= bekannte_ && fremde_ <= p - bekannte_) {
                fremde_ = p - bekannte_ + 1;
                bericht_.NimmAuf(Befundart::ErgebnispunktFremd, xml_, Xmldatei::Stelle(knoten));
            }
            NimmPunkt(knoten, Lage(p), ziel, unbekannte);
        }
    }

    void NimmPunkt(pugi::xml_node knoten, Fremdlage& lage, Dreier Fremdlage::*ziel, bool unbekannte) {
        std::array<double, 3> w{kUnbekannt, kUnbekannt, kUnbekannt};
        std::array<std::int64_t, 3> nummern{-1, -1, -1};
        for (const pugi::xml_node kind : knoten.children()) {
            const std::string_view name = Elementname(kind);
            if (name.size() != 1) continue;
            // Capital letters mark coordinates of the free datum.
            const std::size_t buchstabe = std::string_view("xyzXYZ").find(name.front());
            if (buchstabe == std::string_view::npos) continue;
            const std::size_t achse = buchstabe % 3;
            const auto zahl = LiesZahl(Inhalt(kind));
            if (!zahl) xml_.WirfFehler("Eine Koordinate der Ergebnisse ist nicht lesbar.", kind);
            w[achse] = *zahl;
            if (unbekannte) nummern[achse] = unbekannte_++;
        }
        lage.*ziel = achsen_.Gedreht(w[0], w[1], w[2]);
        if (!unbekannte) return;
        const std::size_t rechts = achsen_.xNachRechts ? 0 : 1;
        lage.unbekannte = {nummern[rechts], nummern[1 - rechts], nummern[2]};
        lage.vorzeichen = {rechts == 0 ? achsen_.vorzeichenX : achsen_.vorzeichenY,
                           rechts == 0 ? achsen_.vorzeichenY : achsen_.vorzeichenX, 1.0};
    }

    void NimmKovarianzen(pugi::xml_node matrix) {
        const auto dim = LiesGanz(Inhalt(Kind(matrix, "dim"))), band = LiesGanz(Inhalt(Kind(matrix, "band")));
        if (!dim || !band || *dim < unbekannte_ || *dim > unbekannte_ + orientierungen_ || *band < 0)
            xml_.WirfFehler("Die Kovarianzmatrix (cov-mat) passt nicht zu den ausgeglichenen Koordinaten.",
                            matrix);
        if (*dim == 0) return;
        const std::size_t anzahl =
            Kovarianzen::Anzahl(static_cast<std::size_t>(*dim), static_cast<std::size_t>(*band));
        std::vector<double> werte;
        for (const pugi::xml_node kind : matrix.children()) {
            if (Elementname(kind) != "flt") continue;
            const auto zahl = LiesZahl(Inhalt(kind), kGroessteVarianz);
            if (!zahl) xml_.WirfFehler("Ein Wert der Kovarianzmatrix (cov-mat) ist nicht lesbar.", kind);
            werte.push_back(*zahl);
        }
        if (werte.size() != anzahl) {
            xml_.WirfFehler("Die Kovarianzmatrix (cov-mat) hat " + std::to_string(werte.size()) +
                                " Werte statt " + std::to_string(anzahl) + ".",
                            matrix);
        }
        netz_.kovarianzen =
            Kovarianzen(static_cast<std::size_t>(*dim), static_cast<std::size_t>(*band), std::move(werte));
    }

    // Observations.

    void NimmErgebnis(pugi::xml_node knoten) {
        const std::string_view element = Elementname(knoten);
        const auto* art = std::find_if(kErgebnisse.begin(), kErgebnisse.end(),
                                       [&](const Ergebniszeile& z) { return z.element == element; });
        if (art == kErgebnisse.end()) {
            if (knoten.type() != pugi::node_element) return;
            xml_.PruefeTiefe(knoten);
            bericht_.NimmAuf(Befundart::Fremdelement, xml_, Xmldatei::Stelle(knoten));
            return;
        }
        const Ergebnistexte e(knoten);
        const bool koordinate = art->art == Messart::Koordinate;
        const std::string_view von = koordinate ? e.id : e.von;
        const std::string_view nach = koordinate ? e.id : art->art == Messart::Winkel ? e.links : e.nach;
        const Fremdwert wert = LiesWert(e, *art);
        if (von.empty() || nach.empty() || wert.verbesserung != wert.verbesserung) {
            bericht_.NimmAuf(Befundart::ErgebnisUnlesbar, xml_, Xmldatei::Stelle(knoten));
            return;
        }
        const Stelle p = netz_.Punkt(von), q = netz_.Punkt(nach);
        if (art->achse < 0) {
            netz_.ergebnisse.push_back({.art = art->art, .von = p, .nach = q, .wert = wert});
            return;
        }
        // The components of a vector follow one another; a second x begins another.
        const std::size_t teil = Teil(art->achse);
        auto& alle = netz_.ergebnisse;
        const bool weiter = !alle.empty() && alle.back().art == art->art && alle.back().von == p &&
                            alle.back().nach == q && art->achse > achse_;
        if (!weiter) alle.push_back({.art = art->art, .von = p, .nach = q});
        achse_ = art->achse;
        alle.back().teile[teil] = wert;
    }

    /// Easting, northing or height: what the axis x, y or z of the file is.
    std::size_t Teil(int achse) const {
        if (achse == 2) return 2;
        return (achse == 0) == achsen_.xNachRechts ? 0 : 1;
    }

    /// +1 or -1: of what is counted the other way here than in the file.
    double Vorzeichen(const Ergebniszeile& art) const {
        if (art.dreht) return achsen_.rechtsdrehend ? 1.0 : -1.0;
        if (art.achse == 0) return achsen_.vorzeichenX;
        return art.achse == 1 ? achsen_.vorzeichenY : 1.0;
    }

    double Groesse(std::string_view text, bool winkel) const {
        if (!winkel) return Oder(LiesZahl(text));
        const auto w = LiesGamaWinkel(text);
        if (!w) return kUnbekannt;
        return grad_ && !w->grad ? w->gon * kGonJeGrad : w->gon;
    }

    Fremdwert LiesWert(const Ergebnistexte& e, const Ergebniszeile& art) const {
        const double vorzeichen = Vorzeichen(art);
        const double klein = !art.winkel ? 1.0 : grad_ ? kMgonJeSekunde : kMgonJeCc;
        const double obs = Groesse(e.beobachtet, art.winkel), adj = Groesse(e.ausgeglichen, art.winkel);
        Fremdwert w;
        w.beobachtet = art.dreht ? Vollkreis(vorzeichen * obs) : vorzeichen * obs;
        w.ausgeglichen = art.dreht ? Vollkreis(vorzeichen * adj) : vorzeichen * adj;
        w.verbesserung = vorzeichen * (art.winkel ? UmNull(adj - obs) : adj - obs) * kTausend;
        w.sigma = Oder(LiesZahl(e.sigma)) * klein;
        if (const auto f = LiesZahl(e.f, kTausend)) {
            const double rest = 1.0 - *f / 100.0;
            w.redundanz = std::clamp(1.0 - rest * rest, 0.0, 1.0);
        }
        w.testgroesse = std::fabs(Oder(LiesZahl(e.test)));
        if (const auto fehler = LiesZahl(e.fehler)) {
            w.groberFehler = vorzeichen * *fehler * klein;
        } else if (w.redundanz >= kUnkontrolliert) {
            w.groberFehler = w.verbesserung / w.redundanz;
        }
        return w;
    }

    /// Results name no sets: the observations of a pair of points stand in the order of the network.
    void OrdneSaetzeZu() {
        using Eintrag = std::tuple<Stelle, Stelle, std::size_t>;
        std::vector<Eintrag> gemessen, gerechnet;
        for (std::size_t i = 0; i < netz_.messungen.size(); ++i) {
            const Fremdmessung& m = netz_.messungen[i];
            if (m.art == Messart::Richtung) gemessen.emplace_back(m.von, m.nach, i);
        }
        for (std::size_t i = 0; i < netz_.ergebnisse.size(); ++i) {
            const Fremdergebnis& e = netz_.ergebnisse[i];
            if (e.art == Messart::Richtung) gerechnet.emplace_back(e.von, e.nach, i);
        }
        std::sort(gemessen.begin(), gemessen.end());
        std::sort(gerechnet.begin(), gerechnet.end());
        auto m = gemessen.begin();
        for (const auto& [von, nach, stelle] : gerechnet) {
            while (m != gemessen.end() && std::pair(std::get<0>(*m), std::get<1>(*m)) < std::pair(von, nach))
                ++m;
            if (m == gemessen.end() || std::get<0>(*m) != von || std::get<1>(*m) != nach) continue;
            netz_.ergebnisse[stelle].satz = netz_.messungen[std::get<2>(*m)].satz;
            ++m;
        }
    }

    const Xmldatei& xml_;
    Fremdnetz& netz_;
    Importbericht& bericht_;
    Gamaachsen achsen_;
    bool grad_ = false;         ///< angles are in degrees, their accuracies in seconds of arc
    std::size_t bekannte_ = 0;  ///< points of the network
    std::size_t fremde_ = 0;    ///< further ones that the results have
    std::size_t bekannteDarin_ = 0;
    std::int64_t unbekannte_ = 0;  ///< coordinates so far
    std::int64_t orientierungen_ = 0;
    int achse_ = -1;  ///< of the last component
};

}  // namespace

void LiesGamaErgebnisse(const Xmldatei& xml, Fremdnetz& netz, Importbericht& bericht) {
    Ergebnisleser(xml, netz, bericht).LiesErgebnisse();
}

}  // namespace zrw::fremd
