// The input of GNU Gama: points with what is fixed, and observations in clusters.
#include <algorithm>
#include <array>
#include <cmath>

#include "input/import/Gama.h"
#include "model/Aufzaehltafel.h"
#include "model/Zahlentext.h"

namespace zrw::fremd {
namespace {

constexpr std::size_t kMeisteAngaben = 100;

/// Attribute of the cluster's default for the standard deviation of an observation.
enum class Vorgabe : std::uint8_t { Strecke, Richtung, Winkel, Zenitwinkel, Azimut, Keine };
constexpr auto kVorgaben = std::to_array<std::string_view>(
    {"distance-stdev", "direction-stdev", "angle-stdev", "zenith-angle-stdev", "azimuth-stdev"});

struct Beobachtungszeile {
    std::string_view element;
    Messart art;
    Vorgabe vorgabe;
    bool winkel;
};

constexpr auto kBeobachtungen = std::to_array<Beobachtungszeile>({
    {"direction", Messart::Richtung, Vorgabe::Richtung, true},
    {"distance", Messart::Strecke, Vorgabe::Strecke, false},
    {"s-distance", Messart::Schraegstrecke, Vorgabe::Strecke, false},
    {"z-angle", Messart::Zenitdistanz, Vorgabe::Zenitwinkel, true},
    {"azimuth", Messart::Azimut, Vorgabe::Azimut, true},
    {"angle", Messart::Winkel, Vorgabe::Winkel, true},
    {"dh", Messart::Hoehenunterschied, Vorgabe::Keine, false},
});

const Beobachtungszeile* FindeBeobachtung(std::string_view element) {
    const auto* z = std::find_if(kBeobachtungen.begin(), kBeobachtungen.end(),
                                 [&](const Beobachtungszeile& b) { return b.element == element; });
    return z == kBeobachtungen.end() ? nullptr : z;
}

/// The attributes of an observation, each looked at once.
struct Merkmale {
    std::string_view von, nach, links, rechts, wert, sigma, laenge, dx, dy, dz;
    bool hoehenbezug = false, kennung = false;

    explicit Merkmale(pugi::xml_node knoten) {
        static constexpr auto kFelder = std::to_array<Textfeld<Merkmale>>({
            {"to", &Merkmale::nach},
            {"val", &Merkmale::wert},
            {"stdev", &Merkmale::sigma},
            {"from", &Merkmale::von},
            {"bs", &Merkmale::links},
            {"fs", &Merkmale::rechts},
            {"dist", &Merkmale::laenge},
            {"dx", &Merkmale::dx},
            {"dy", &Merkmale::dy},
            {"dz", &Merkmale::dz},
        });
        for (const pugi::xml_attribute m : knoten.attributes()) {
            const std::string_view name = m.name();
            if (NimmText(*this, kFelder, name, Inhalt(m))) continue;
            hoehenbezug = hoehenbezug || name.ends_with("_dh");
            kennung = kennung || name == "extern";
        }
    }
};

class Netzleser {
  public:
    Netzleser(const Xmldatei& xml, Fremdnetz& netz, Importbericht& bericht)
        : xml_(xml), netz_(netz), bericht_(bericht) {}

    void LiesNetz() {
        const pugi::xml_node netz = Kind(xml_.Wurzel(), "network");
        if (!netz)
            xml_.WirfFehler("Das Element <network> fehlt: Die Datei beschreibt kein Netz.", xml_.Wurzel());
        const auto achsen = LiesAchsen(Inhalt(netz.attribute("axes-xy")), Inhalt(netz.attribute("angles")));
        if (!achsen) {
            xml_.WirfFehler("Die Achsen (axes-xy) oder der Drehsinn (angles) des Netzes sind unbekannt.",
                            netz);
        }
        achsen_ = *achsen;
        netz_.ErwarteDatei(xml_.Groesse());
        if (const auto apriori = LiesZahl(Inhalt(Kind(netz, "parameters").attribute("sigma-apr"))))
            apriori_ = *apriori;
        for (const pugi::xml_node kind : netz.children()) {
            const std::string_view name = Elementname(kind);
            if (name == "description")
                NimmBeschreibung(kind);
            else if (name == "points-observations")
                NimmGruppe(kind);
            else if (name != "parameters")
                UebergeheElement(kind);
        }
        ErgaenzeBeobachtete();
    }

  private:
    void UebergeheElement(pugi::xml_node knoten) {
        if (knoten.type() != pugi::node_element) return;
        xml_.PruefeTiefe(knoten);
        bericht_.NimmAuf(Befundart::Fremdelement, xml_, Xmldatei::Stelle(knoten));
    }

    void UebergeheInhalt(pugi::xml_node knoten) {
        for (const pugi::xml_node kind : knoten.children())
            UebergeheElement(kind);
    }

    void NimmBeschreibung(pugi::xml_node knoten) {
        std::string_view text = knoten.child_value();
        while (!text.empty()) {
            const std::size_t ende = std::min(text.find('\n'), text.size());
            std::string zeile(text.substr(0, ende));
            std::replace_if(
                zeile.begin(), zeile.end(), [](char c) { return c >= 0 && c < ' '; }, ' ');
            text.remove_prefix(std::min(ende + 1, text.size()));
            const std::string_view inhalt = OhneRand(zeile);
            if (inhalt.empty()) continue;
            if (netz_.titel.empty())
                netz_.titel = inhalt;
            else if (netz_.angaben.size() < kMeisteAngaben)
                netz_.angaben.emplace_back(inhalt);
            else
                bericht_.NimmAuf(Befundart::Beschreibung, xml_, Xmldatei::Stelle(knoten));
        }
    }

    void NimmGruppe(pugi::xml_node gruppe) {
        for (std::size_t i = 0; i < kVorgaben.size(); ++i)
            vorgaben_[i] = Inhalt(gruppe.attribute(kVorgaben[i].data()));
        for (const pugi::xml_node kind : gruppe.children()) {
            const std::string_view name = Elementname(kind);
            if (name == "point")
                NimmPunkt(kind);
            else if (name == "obs" || name == "height-differences")
                NimmBuendel(kind);
            else if (name == "vectors")
                NimmVektoren(kind);
            else if (name == "coordinates")
                NimmKoordinaten(kind);
            else
                UebergeheElement(kind);
        }
    }

    // Points.

    /// Coordinates of an element; what is missing stays unknown. Nothing where one is there and unreadable.
    std::optional<Dreier> LiesOrt(pugi::xml_node knoten) const {
        std::array<double, 3> w{kUnbekannt, kUnbekannt, kUnbekannt};
        constexpr std::array kNamen{"x", "y", "z"};
        for (std::size_t i = 0; i < 3; ++i) {
            const pugi::xml_attribute m = knoten.attribute(kNamen[i]);
            if (!m) continue;
            const auto zahl = LiesZahl(Inhalt(m));
            if (!zahl) return std::nullopt;
            w[i] = *zahl;
        }
        return achsen_.Gedreht(w[0], w[1], w[2]);
    }

    void NimmPunkt(pugi::xml_node knoten) {
        if (knoten.first_child()) UebergeheInhalt(knoten);
        const std::string_view id = Inhalt(knoten.attribute("id"));
        const auto ort = LiesOrt(knoten);
        if (id.empty() || !ort) {
            bericht_.NimmAuf(Befundart::PunktUnlesbar, xml_, Xmldatei::Stelle(knoten));
            if (id.empty()) return;
        }
        Fremdpunkt& p = netz_.punkte[netz_.Punkt(id)];
        if (!p.genannt) p.herkunft = Xmldatei::Stelle(knoten);
        p.genannt = true;
        if (ort) {
            // One element may bring x and another y.
            for (double Dreier::*teil : {&Dreier::rechts, &Dreier::hoch, &Dreier::hoehe}) {
                if (double wert = (*ort).*teil; wert == wert) p.naeherung.*teil = wert;
            }
        }
        const std::string_view fest = Inhalt(knoten.attribute("fix"));
        p.lageFest = p.lageFest || fest.find_first_of("xyXY") != std::string_view::npos;
        p.hoeheFest = p.hoeheFest || fest.find_first_of("zZ") != std::string_view::npos;
        const std::string_view frei = Inhalt(knoten.attribute("adj"));
        const bool gebunden = frei.find_first_of("XYZ") != std::string_view::npos;
        if (gebunden && !p.gebunden) bericht_.NimmAuf(Befundart::Gebunden, xml_, Xmldatei::Stelle(knoten));
        p.gebunden = p.gebunden || gebunden;
    }

    // Observations.

    /// @return whether the observation has a place in the network
    bool NimmEnden(Fremdmessung& m, std::string_view von, std::string_view nach) {
        if (von.empty() || nach.empty()) {
            bericht_.NimmAuf(Befundart::Unlesbar, xml_, m.herkunft);
            return false;
        }
        // A standpoint has many observations.
        if (von.data() != zuletzt_) von_ = netz_.Punkt(von);
        zuletzt_ = von.data();
        m.von = von_;
        m.nach = netz_.Punkt(nach);
        if (m.von != m.nach) return true;
        bericht_.NimmAuf(Befundart::Selbst, xml_, m.herkunft);
        return false;
    }

    /// Standard deviation by the attribute, else as the group has it for its kind [mm] or [mgon].
    double Sigma(const Merkmale& e, const Beobachtungszeile& art, double wert, bool grad) const {
        const double einheit = !art.winkel ? 1.0 : grad ? kMgonJeSekunde : kMgonJeCc;
        if (const auto s = LiesZahl(e.sigma)) return *s * einheit;
        if (art.art == Messart::Hoehenunterschied) {
            const auto km = LiesZahl(e.laenge);
            return km && *km >= 0.0 ? apriori_ * std::sqrt(*km) : kUnbekannt;
        }
        if (art.vorgabe == Vorgabe::Keine) return kUnbekannt;
        std::string_view text = vorgaben_[static_cast<std::size_t>(art.vorgabe)];
        const auto zahl = [&] {
            const std::string_view ohne = OhneRand(text);
            const std::size_t ende = std::min(ohne.find_first_of(" \t"), ohne.size());
            text = ohne.substr(ende);
            return LiesZahl(ohne.substr(0, ende));
        };
        const auto a = zahl();
        if (!a) return kUnbekannt;
        if (art.winkel) return *a * einheit;
        const auto b = zahl(), c = zahl();
        return *a + b.value_or(0.0) * std::pow(std::fabs(wert) / 1000.0, c.value_or(1.0));
    }

    /// @return whether it was taken
    bool NimmBeobachtung(pugi::xml_node knoten, const Beobachtungszeile& art, std::string_view standpunkt,
                         std::uint32_t satz) {
        if (knoten.first_child()) UebergeheInhalt(knoten);
        const Merkmale e(knoten);
        Fremdmessung m{.art = art.art, .satz = satz, .herkunft = Xmldatei::Stelle(knoten)};
        if (!NimmEnden(m, e.von.empty() ? standpunkt : e.von, art.art == Messart::Winkel ? e.links : e.nach))
            return false;
        bool grad = false;
        if (art.winkel) {
            const auto winkel = LiesGamaWinkel(e.wert);
            if (winkel) {
                m.wert = art.art == Messart::Zenitdistanz ? winkel->gon : achsen_.Richtung(winkel->gon);
                grad = winkel->grad;
            }
        } else {
            m.wert = LiesZahl(e.wert).value_or(kUnbekannt);
        }
        if (m.wert != m.wert || (art.art == Messart::Winkel && e.rechts.empty())) {
            bericht_.NimmAuf(Befundart::Unlesbar, xml_, m.herkunft);
            return false;
        }
        if (art.art == Messart::Winkel) {
            m.zweites = netz_.Punkt(e.rechts);
            bericht_.NimmAuf(Befundart::Winkel);
        }
        if (e.kennung) bericht_.NimmAuf(Befundart::Kennung, xml_, m.herkunft);
        if (e.hoehenbezug) bericht_.NimmAuf(Befundart::Hoehenbezug, xml_, m.herkunft);
        m.sigma = Sigma(e, art, m.wert, grad);
        netz_.messungen.push_back(m);
        return true;
    }

    /// A standpoint with all that was observed there, or a set of height differences.
    void NimmBuendel(pugi::xml_node knoten) {
        const std::string_view standpunkt = Inhalt(knoten.attribute("from"));
        const bool hoehenbezug = !knoten.attribute("from_dh").empty();
        const std::size_t erste = netz_.messungen.size();
        std::vector<std::size_t> folge;  // place of each observation of the cluster, as its covariances count
        ++satz_;
        for (const pugi::xml_node kind : knoten.children()) {
            const std::string_view name = Elementname(kind);
            if (const Beobachtungszeile* art = FindeBeobachtung(name)) {
                const bool genommen = NimmBeobachtung(kind, *art, standpunkt, satz_);
                folge.push_back(genommen ? netz_.messungen.size() - 1 : kKeine);
            } else if (name != "cov-mat") {
                UebergeheElement(kind);
            }
        }
        if (hoehenbezug && netz_.messungen.size() > erste)
            bericht_.NimmAuf(Befundart::Hoehenbezug, xml_, Xmldatei::Stelle(knoten));
        if (const pugi::xml_node matrix = Kind(knoten, "cov-mat")) NimmKovarianzen(matrix, folge, 1);
    }

    void NimmVektoren(pugi::xml_node knoten) {
        ++satz_;
        std::vector<std::size_t> folge;
        for (const pugi::xml_node kind : knoten.children()) {
            const std::string_view name = Elementname(kind);
            if (name != "vec") {
                if (name != "cov-mat") UebergeheElement(kind);
                continue;
            }
            const Merkmale e(kind);
            Fremdmessung m{.art = Messart::Vektor, .satz = satz_, .herkunft = Xmldatei::Stelle(kind)};
            folge.push_back(kKeine);
            if (!NimmEnden(m, e.von, e.nach)) continue;
            const auto dx = LiesZahl(e.dx), dy = LiesZahl(e.dy), dz = LiesZahl(e.dz);
            if (!dx || !dy || !dz) {
                bericht_.NimmAuf(Befundart::Unlesbar, xml_, m.herkunft);
                continue;
            }
            m.vektor = static_cast<std::uint32_t>(netz_.vektoren.size());
            netz_.vektoren.push_back(achsen_.Gedreht(*dx, *dy, *dz));
            folge.back() = netz_.messungen.size();
            netz_.messungen.push_back(m);
        }
        if (const pugi::xml_node matrix = Kind(knoten, "cov-mat")) NimmKovarianzen(matrix, folge, 3);
    }

    void NimmKoordinaten(pugi::xml_node knoten) {
        for (const pugi::xml_node kind : knoten.children()) {
            const std::string_view name = Elementname(kind);
            if (name != "point") {
                if (name != "cov-mat") UebergeheElement(kind);
                continue;
            }
            const std::string_view id = Inhalt(kind.attribute("id"));
            const auto ort = LiesOrt(kind);
            if (id.empty() || !ort) {
                bericht_.NimmAuf(Befundart::Unlesbar, xml_, Xmldatei::Stelle(kind));
                continue;
            }
            bericht_.NimmAuf(Befundart::Koordinaten, xml_, Xmldatei::Stelle(kind));
            const Stelle p = netz_.Punkt(id);
            netz_.messungen.push_back({.art = Messart::Koordinate,
                                       .von = p,
                                       .nach = p,
                                       .vektor = static_cast<std::uint32_t>(netz_.vektoren.size()),
                                       .herkunft = Xmldatei::Stelle(kind)});
            netz_.vektoren.push_back(*ort);
        }
    }

    /// Points that have no other coordinates lie where they were observed.
    void ErgaenzeBeobachtete() {
        for (const Fremdmessung& m : netz_.messungen) {
            Fremdpunkt& p = netz_.punkte[m.von];
            if (m.art != Messart::Koordinate || p.naeherung.HatLage()) continue;
            if (const Dreier& ort = netz_.vektoren[m.vektor]; ort.HatLage()) p.naeherung = ort;
        }
    }

    /// The variances stand for standard deviations that the observations lack.
    /// @param teile unknowns of one observation: 3 for a vector
    void NimmKovarianzen(pugi::xml_node matrix, const std::vector<std::size_t>& folge, std::size_t teile) {
        const auto dim = LiesGanz(Inhalt(matrix.attribute("dim")));
        const auto band = LiesGanz(Inhalt(matrix.attribute("band")));
        if (!dim || !band || *dim < 0 || *band < 0 ||
            static_cast<std::size_t>(*dim) != folge.size() * teile) {
            xml_.WirfFehler(
                "Die Kovarianzmatrix (cov-mat) passt nicht zu den Beobachtungen, bei denen sie steht.",
                matrix);
        }
        if (*band > 0) bericht_.NimmAuf(Befundart::Kovarianzen, xml_, Xmldatei::Stelle(matrix));
        std::string_view text = matrix.child_value();
        const auto n = static_cast<std::size_t>(*dim);
        std::vector<double> summe(folge.size(), 0.0);
        for (std::size_t i = 0; i < n; ++i) {
            const std::size_t rest = std::min(static_cast<std::size_t>(*band), n - 1 - i);
            const auto varianz = LiesZahl(NaechsterWert(text, matrix), kGroessteVarianz);
            summe[i / teile] += varianz && *varianz >= 0.0 ? *varianz : kUnbekannt;
            for (std::size_t k = 0; k < rest; ++k)
                (void)NaechsterWert(text, matrix);
        }
        for (std::size_t i = 0; i < folge.size(); ++i) {
            if (folge[i] == kKeine) continue;
            Fremdmessung& m = netz_.messungen[folge[i]];
            const bool winkel = m.art != Messart::Strecke && m.art != Messart::Schraegstrecke &&
                                m.art != Messart::Hoehenunterschied && m.art != Messart::Vektor;
            const double sigma =
                std::sqrt(summe[i] / static_cast<double>(teile)) * (winkel ? kMgonJeCc : 1.0);
            if (m.sigma != m.sigma) m.sigma = sigma;
        }
    }

    std::string_view NaechsterWert(std::string_view& text, pugi::xml_node matrix) const {
        constexpr std::string_view kWeiss = " \t\r\n";
        text.remove_prefix(std::min(text.find_first_not_of(kWeiss), text.size()));
        const std::size_t ende = std::min(text.find_first_of(kWeiss), text.size());
        const std::string_view wort = text.substr(0, ende);
        text.remove_prefix(ende);
        if (wort.empty()) xml_.WirfFehler("Die Kovarianzmatrix (cov-mat) hat zu wenige Werte.", matrix);
        return wort;
    }

    static constexpr std::size_t kKeine = static_cast<std::size_t>(-1);

    const Xmldatei& xml_;
    Fremdnetz& netz_;
    Importbericht& bericht_;
    Gamaachsen achsen_;
    double apriori_ = 10.0;  ///< standard deviation of unit weight [mm]
    std::array<std::string_view, kVorgaben.size()> vorgaben_;
    std::uint32_t satz_ = 0;
    const char* zuletzt_ = nullptr;  ///< name of the point `von_` in the tree
    Stelle von_ = 0;
};

}  // namespace

void LiesGamaNetz(const Xmldatei& xml, Fremdnetz& netz, Importbericht& bericht) {
    Netzleser(xml, netz, bericht).LiesNetz();
}

}  // namespace zrw::fremd
