// The network as a control file with its include file and its coordinate file: lines that end in CR LF, code
// page 1252, numbers with a point.
#include <array>
#include <charconv>
#include <fstream>
#include <string>
#include <string_view>

#include "beispiele/Netz.h"

namespace zrw::beispiel {
namespace {

constexpr std::string_view kRichtungsdatei = "RICHT.SF";
constexpr std::string_view kKoordinatendatei = "KOORD.KF";
constexpr std::string_view kFortsetzung = "   ";

// Local origin of the points of the old trigonometric field book [m].
constexpr double kUrsprungHoch = 5500000.0;
constexpr double kUrsprungRechts = 3500000.0;

class Blatt {
  public:
    /// A line: the key and what follows it.
    void Zeile(std::string_view schluessel, std::string_view rest = {}) {
        text_.append(schluessel).append(rest).append("\r\n");
    }
    [[nodiscard]] const std::string& Text() const { return text_; }

  private:
    std::string text_;
};

// A number right-aligned in `breite` characters with a blank before it.
std::string Zahl(double wert, int nachkomma, std::size_t breite) {
    std::array<char, 64> puffer{};
    const auto ende = std::to_chars(puffer.data(), puffer.data() + puffer.size(), wert,
                                    std::chars_format::fixed, nachkomma);
    const std::string ziffern(puffer.data(), ende.ptr);
    return std::string(ziffern.size() < breite ? breite - ziffern.size() + 1 : 1, ' ') + ziffern;
}

std::string MitBlank(std::string_view text) {
    return std::string(1, ' ').append(text);
}

// A point number with a blank before it, filled up to 14 characters.
std::string Nummer(const NetzPunkt& p) {
    std::string text = MitBlank(p.nummer);
    text.resize(15, ' ');
    return text;
}

std::string_view Schluessel(Art art) {
    switch (art) {
        case Art::FP:
            return "$FP";
        case Art::FL:
            return "$FL";
        case Art::FH:
            return "$FH";
        case Art::NP:
            return "$NP";
    }
    return "$NP";
}

void Kopf(Blatt& b, const Netz& netz) {
    b.Zeile("$CC", " Frei erfundenes Netz. Kein Punkt dieser Datei steht irgendwo im Gel\xE4nde.");
    b.Zeile("$AU", MitBlank(netz.titel));
    b.Zeile("$NT", " 3");
    b.Zeile("$PF", " 0");
    b.Zeile("$KS", " 9 0");
    b.Zeile("$EL", " 1");
    b.Zeile("$MR", " 0.0010");
    b.Zeile("$MS", " 0.0030 2.0");
    b.Zeile("$MH", " 0.0012");
    b.Zeile("$MA", " 0.0030");
    b.Zeile("$S0", " 0.0030");
    b.Zeile("$R0", " 0.0003");
    b.Zeile("$H0", " 0.0010");
    b.Zeile("$G0", " 0.0050");
}

// Point number, code, easting, northing, height.
std::string Punktzeile(const NetzPunkt& p, double ursprungRechts, double ursprungHoch) {
    return Nummer(p) + Zahl(p.niveau, 0, 2) + Zahl(p.rechts - ursprungRechts, 3, 12) +
           Zahl(p.hoch - ursprungHoch, 3, 12) + Zahl(p.hoehe, 3, 8);
}

// The key stands on the first line of a block, the others continue it.
void Block(Blatt& b, const Netz& netz, Art art, bool grosse, bool kleine) {
    bool erste = true;
    for (const NetzPunkt& p : netz.punkte) {
        if (p.art != art || !(p.niveau > 0 ? grosse : kleine)) continue;
        b.Zeile(erste ? Schluessel(art) : kFortsetzung, Punktzeile(p, 0.0, 0.0));
        erste = false;
    }
}

void Punkte(Blatt& b, const Netz& netz) {
    b.Zeile("$CC", " Anschlusspunkte 2D/3D");
    Block(b, netz, Art::FP, true, true);
    b.Zeile("$CC", " Lagefestpunkte, gegen einen \xF6rtlichen Ursprung");
    b.Zeile("$XO", Zahl(kUrsprungHoch, 1, 0));
    b.Zeile("$YO", Zahl(kUrsprungRechts, 1, 0));
    for (const NetzPunkt& p : netz.punkte) {
        if (p.art == Art::FL) b.Zeile("$FL", Punktzeile(p, kUrsprungRechts, kUrsprungHoch));
    }
    b.Zeile("$XO", " 0.0");
    b.Zeile("$YO", " 0.0");
    b.Zeile("$CC", " Nivellementschleife");
    Block(b, netz, Art::FH, true, true);
    b.Zeile("$CC",
            " Neupunkte: hier die trigonometrischen, die \xFC"
            "brigen in der Koordinatendatei");
    Block(b, netz, Art::NP, true, false);
    b.Zeile("$KF", MitBlank(kKoordinatendatei));
}

void Richtungen(Blatt& b, const Netz& netz, bool eigeneDatei) {
    for (const Richtungssatz& satz : netz.saetze) {
        if (satz.eigeneDatei != eigeneDatei) continue;
        b.Zeile("$RS", Nummer(netz.punkte[satz.stand]) + " 1");
        bool fortsetzbar = false;  // the line before was a direction of this set
        for (const Ziel& z : satz.ziele) {
            const std::string_view schluessel = z.azimut ? "$AZ" : fortsetzbar ? kFortsetzung : "$RZ";
            b.Zeile(schluessel, Nummer(netz.punkte[z.punkt]) + Zahl(z.wert, 4, 9) + Zahl(z.sigma, 4, 7));
            fortsetzbar = !z.azimut;
        }
    }
}

// Lines of one kind between two points: the key on the first, the others continue it.
template <typename Messung>
void SchreibePaare(Blatt& b, const Netz& netz, std::string_view schluessel,
                   const std::vector<Messung>& messungen) {
    for (const Messung& m : messungen) {
        b.Zeile(&m == messungen.data() ? schluessel : kFortsetzung,
                Nummer(netz.punkte[m.von]) + Nummer(netz.punkte[m.nach]) + Zahl(m.wert, 4, 11) +
                    Zahl(m.sigma, 4, 7));
    }
}

void Gps(Blatt& b, const Netz& netz) {
    std::size_t nummer = 0;
    for (const std::vector<GpsVektor>& block : netz.gps) {
        ++nummer;
        // A negative count means the same number of vectors, weighted by the lengths.
        const double anzahl = static_cast<double>(block.size()) * (nummer == 1 ? 1.0 : -1.0);
        b.Zeile("$SH", Zahl(static_cast<double>(nummer), 0, 3) + Zahl(anzahl, 0, 3));
        b.Zeile("$SK", " 1.0 0.0 0.0 0.0");
        double zeile = 0.0;
        for (const GpsVektor& v : block) {
            std::string text = Zahl(static_cast<double>(nummer), 0, 3) + Zahl(++zeile, 0, 3) +
                               Nummer(netz.punkte[v.von]) + Nummer(netz.punkte[v.nach]);
            for (const double d : v.d)
                text += Zahl(d, 4, 11);
            b.Zeile("$SV", text + Zahl(v.sigma, 4, 7));
        }
    }
}

bool SchreibeBlatt(const std::filesystem::path& pfad, const Blatt& b) {
    std::ofstream datei(pfad, std::ios::binary | std::ios::trunc);
    datei << b.Text();
    datei.close();
    return datei.good();
}

}  // namespace

bool SchreibeSteuerdatei(const Netz& netz, const std::filesystem::path& ordner) {
    Blatt haupt, richtungen, koordinaten;
    Kopf(haupt, netz);
    Punkte(haupt, netz);
    Block(koordinaten, netz, Art::NP, false, true);
    haupt.Zeile("$CC", " Richtungen erster und zweiter Ordnung, die weiteren in der Richtungsdatei");
    Richtungen(haupt, netz, false);
    haupt.Zeile("$SF", MitBlank(kRichtungsdatei));
    Richtungen(richtungen, netz, true);
    SchreibePaare(haupt, netz, "$ST", netz.strecken);
    SchreibePaare(haupt, netz, "$DH", netz.hoehen);
    SchreibePaare(haupt, netz, "$ZD", netz.zenite);
    Gps(haupt, netz);
    haupt.Zeile("$$$");
    return SchreibeBlatt(ordner / "NETZ.EIN", haupt) && SchreibeBlatt(ordner / kRichtungsdatei, richtungen) &&
           SchreibeBlatt(ordner / kKoordinatendatei, koordinaten);
}

}  // namespace zrw::beispiel
