#include "beispiele/Gamadatei.h"

#include <array>
#include <cmath>
#include <vector>

#include "beispiele/Normalgleichung.h"
#include "model/Cp1252.h"
#include "model/Zahlentext.h"

namespace zrw::beispiel {
namespace {

constexpr double kCc = 10000.0;  // [cc/gon]

std::string Zahl(double wert, int stellen) {
    return Festkomma(RundeZahl(wert, stellen), 0, stellen);
}

/// Text of an element or attribute, UTF-8.
std::string Xml(const std::string& cp1252) {
    std::string text;
    for (const char c : Cp1252NachUtf8(cp1252)) {
        if (c == '&')
            text += "&amp;";
        else if (c == '<')
            text += "&lt;";
        else if (c == '"')
            text += "&quot;";
        else
            text += c;
    }
    return text;
}

std::string Merkmal(const std::string& name, const std::string& wert) {
    return ' ' + name + "=\"" + wert + '"';
}
std::string Element(const std::string& name, const std::string& wert) {
    return '<' + name + '>' + wert + "</" + name + '>';
}

bool LageFest(const NetzPunkt& p) {
    return p.art == Art::FP || p.art == Art::FL;
}
bool HoeheFest(const NetzPunkt& p) {
    return p.art == Art::FP || p.art == Art::FH;
}

/// The observations of a network in the order of both files.
class Netztext {
  public:
    explicit Netztext(const Netz& netz) : netz_(netz) {}

    std::string Text() {
        text_ =
            "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
            "<gama-local xmlns=\"http://www.gnu.org/software/gama/gama-local\">\n"
            "<network axes-xy=\"ne\" angles=\"left-handed\">\n<description>\n" +
            Xml(netz_.titel) +
            "\n</description>\n<parameters sigma-apr=\"1\" conf-pr=\"0.95\" sigma-act=\"apriori\" />\n"
            "<points-observations>\n";
        for (const NetzPunkt& p : netz_.punkte)
            Punkt(p);
        for (const Richtungssatz& s : netz_.saetze)
            Satz(s);
        if (!netz_.strecken.empty()) {
            text_ += "<obs>\n";
            for (const Strecke& s : netz_.strecken)
                Paar("distance", s.von, s.nach, Zahl(s.wert, 4), s.sigma);
            text_ += "</obs>\n";
        }
        if (!netz_.hoehen.empty()) {
            text_ += "<height-differences>\n";
            for (const Hoehenunterschied& h : netz_.hoehen)
                Paar("dh", h.von, h.nach, Zahl(h.wert, 5), h.sigma);
            text_ += "</height-differences>\n";
        }
        for (const auto& block : netz_.gps)
            Vektoren(block);
        text_ += "</points-observations>\n</network>\n</gama-local>\n";
        return text_;
    }

  private:
    void Punkt(const NetzPunkt& p) {
        const bool mitHoehe = !netz_.hoehen.empty() || !netz_.gps.empty();
        const bool mitLage = netz_.hoehen.empty();
        const std::string fest = std::string(LageFest(p) ? "xy" : "") + (HoeheFest(p) ? "z" : "");
        const std::string neu =
            std::string(mitLage && !LageFest(p) ? "xy" : "") + (mitHoehe && !HoeheFest(p) ? "z" : "");
        text_ += "<point" + Merkmal("id", Xml(p.nummer)) + Merkmal("x", Zahl(p.hoch, 3)) +
                 Merkmal("y", Zahl(p.rechts, 3));
        if (mitHoehe) text_ += Merkmal("z", Zahl(p.hoehe, 4));
        if (!fest.empty()) text_ += Merkmal("fix", fest);
        if (!neu.empty()) text_ += Merkmal("adj", neu);
        text_ += " />\n";
    }
    void Satz(const Richtungssatz& s) {
        text_ += "<obs" + Merkmal("from", Xml(Nummer(s.stand))) + ">\n";
        for (const Ziel& z : s.ziele)
            text_ += "<direction" + Merkmal("to", Xml(Nummer(z.punkt))) + Merkmal("val", Zahl(z.wert, 5)) +
                     Merkmal("stdev", Zahl(z.sigma * kCc, 1)) + " />\n";
        text_ += "</obs>\n";
    }
    void Paar(const std::string& element, Stelle von, Stelle nach, const std::string& wert, double sigma) {
        text_ += '<' + element + Merkmal("from", Xml(Nummer(von))) + Merkmal("to", Xml(Nummer(nach))) +
                 Merkmal("val", wert) + Merkmal("stdev", Zahl(sigma * kMm, 2)) + " />\n";
    }
    void Vektoren(const std::vector<GpsVektor>& block) {
        text_ += "<vectors>\n";
        for (const GpsVektor& v : block)
            text_ += "<vec" + Merkmal("from", Xml(Nummer(v.von))) + Merkmal("to", Xml(Nummer(v.nach))) +
                     Merkmal("dx", Zahl(v.d[0], 4)) + Merkmal("dy", Zahl(v.d[1], 4)) +
                     Merkmal("dz", Zahl(v.d[2], 4)) + " />\n";
        text_ += "<cov-mat" + Merkmal("dim", std::to_string(3 * block.size())) + Merkmal("band", "0") + ">\n";
        for (const GpsVektor& v : block) {
            const std::string varianz = Zahl(v.sigma * v.sigma * kMm * kMm, 2);
            for (int k = 0; k < 3; ++k)
                text_ += varianz + (k < 2 ? " " : "\n");
        }
        text_ += "</cov-mat>\n</vectors>\n";
    }
    [[nodiscard]] const std::string& Nummer(Stelle p) const { return netz_.punkte[p].nummer; }

    const Netz& netz_;
    std::string text_;
};

class Ergebnistext {
  public:
    Ergebnistext(const Netz& netz, const Ausgleichung& a) : netz_(netz), a_(a) {}

    std::string Text() {
        text_ =
            "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
            "<gama-local-adjustment xmlns=\"http://www.gnu.org/software/gama/gama-local-adjustment\">\n"
            "<description>" +
            Xml(netz_.titel) +
            "</description>\n<network-general-parameters axes-xy=\"ne\" angles=\"left-handed\" />\n"
            "<coordinates>\n<fixed>\n";
        for (Stelle p = 0; p < netz_.punkte.size(); ++p)
            Punkt(p, true, false);
        text_ += "</fixed>\n<approximate>\n";
        for (Stelle p = 0; p < netz_.punkte.size(); ++p)
            Punkt(p, false, false);
        text_ += "</approximate>\n<adjusted>\n";
        for (Stelle p = 0; p < netz_.punkte.size(); ++p)
            Punkt(p, false, true);
        text_ += "</adjusted>\n";
        Orientierungen();
        Kovarianzen();
        text_ += "</coordinates>\n<observations>\n";
        Beobachtungen();
        text_ += "</observations>\n</gama-local-adjustment>\n";
        return text_;
    }

  private:
    /// A point with the coordinates that are held, or with those that are unknown.
    void Punkt(Stelle p, bool fest, bool ausgeglichen) {
        constexpr std::array<std::size_t, 3> kFolge{1, 0, 2};  // x is the northing
        constexpr std::array<const char*, 3> kNamen{"x", "y", "z"};
        const NetzPunkt& punkt = netz_.punkte[p];
        const std::array<double, 3> ort{punkt.rechts, punkt.hoch, punkt.hoehe};
        std::string teile;
        for (std::size_t k = 0; k < 3; ++k) {
            const std::size_t i = kFolge[k];
            const std::size_t u = a_.unbekannte.punkte[p][i];
            const bool gehalten = i == 2 ? HoeheFest(punkt) : LageFest(punkt);
            if (fest ? !gehalten : u == Unbekannte::kKeine) continue;
            const double wert = ort[i] + (ausgeglichen ? a_.unbekannte.korrekturen[u] : 0.0);
            teile += Element(kNamen[k], Zahl(wert, 8));
            if (ausgeglichen) folge_.push_back(u);
        }
        if (!teile.empty()) text_ += "<point>" + Element("id", Xml(punkt.nummer)) + teile + "</point>\n";
    }

    void Orientierungen() {
        text_ += "<orientation-shifts>\n";
        for (std::size_t s = 0; s < netz_.saetze.size(); ++s) {
            const std::size_t u = a_.unbekannte.saetze[s];
            const double vorher = a_.unbekannte.orientierungen[s];
            text_ += "<orientation>" + Element("id", Xml(netz_.punkte[netz_.saetze[s].stand].nummer)) +
                     Element("approx", Zahl(vorher, 7)) +
                     Element("adj", Zahl(vorher + a_.unbekannte.korrekturen[u], 7)) + "</orientation>\n";
            folge_.push_back(u);
        }
        text_ += "</orientation-shifts>\n";
    }

    void Kovarianzen() {
        const std::size_t dim = folge_.size();
        text_ += "<cov-mat>" + Element("dim", std::to_string(dim)) +
                 Element("band", std::to_string(dim - 1)) + '\n';
        const std::size_t orientierungen = dim - netz_.saetze.size();
        const auto einheit = [&](std::size_t i) { return i < orientierungen ? kMm : kCc; };
        for (std::size_t i = 0; i < dim; ++i) {
            for (std::size_t k = i; k < dim; ++k) {
                const double q = Produkt(a_.unbekannte.teiler[folge_[i]], a_.unbekannte.teiler[folge_[k]]);
                text_ += Element("flt", Zahl(q * einheit(i) * einheit(k), 9)) + '\n';
            }
        }
        text_ += "</cov-mat>\n";
    }

    void Beobachtung(const std::string& element, Stelle von, Stelle nach, const Pruefung& p, double klein) {
        text_ += '<' + element + '>' + Element("from", Xml(netz_.punkte[von].nummer)) +
                 Element("to", Xml(netz_.punkte[nach].nummer)) + Element("obs", Zahl(p.wert, 8)) +
                 Element("adj", Zahl(p.wert + p.v, 8)) + Element("stdev", Zahl(std::sqrt(p.q) * klein, 6)) +
                 Element("f", Zahl(100.0 * (1.0 - std::sqrt(p.q) / p.sigma), 6));
        if (p.Kontrolliert()) {
            text_ += Element("std-residual", Zahl(std::fabs(p.Testgroesse()), 6)) +
                     Element("err-obs", Zahl(p.v / p.Redundanz() * klein, 6));
        }
        text_ += "</" + element + ">\n";
    }

    void Beobachtungen() {
        for (std::size_t s = 0; s < netz_.saetze.size(); ++s) {
            for (std::size_t z = 0; z < netz_.saetze[s].ziele.size(); ++z)
                Beobachtung("direction", netz_.saetze[s].stand, netz_.saetze[s].ziele[z].punkt,
                            a_.richtungen[s][z], kCc);
        }
        for (std::size_t i = 0; i < netz_.strecken.size(); ++i)
            Beobachtung("distance", netz_.strecken[i].von, netz_.strecken[i].nach, a_.strecken[i], kMm);
        for (std::size_t i = 0; i < netz_.hoehen.size(); ++i)
            Beobachtung("height-diff", netz_.hoehen[i].von, netz_.hoehen[i].nach, a_.hoehen[i], kMm);
        constexpr std::array<const char*, 3> kTeile{"dx", "dy", "dz"};
        for (std::size_t b = 0; b < netz_.gps.size(); ++b) {
            for (std::size_t i = 0; i < netz_.gps[b].size(); ++i) {
                for (std::size_t k = 0; k < 3; ++k)
                    Beobachtung(kTeile[k], netz_.gps[b][i].von, netz_.gps[b][i].nach, a_.gps[b][i][k], kMm);
            }
        }
    }

    const Netz& netz_;
    const Ausgleichung& a_;
    std::string text_;
    std::vector<std::size_t> folge_;  ///< of the unknowns in the matrix
};

}  // namespace

std::string Gamanetz(const Netz& netz) {
    return Netztext(netz).Text();
}

std::string Gamaergebnisse(const Netz& netz, const Ausgleichung& a) {
    return Ergebnistext(netz, a).Text();
}

}  // namespace zrw::beispiel
