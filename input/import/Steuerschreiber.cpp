#include "input/import/Steuerschreiber.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <string_view>

#include "model/Aufzaehltafel.h"
#include "model/Cp1252.h"
#include "model/Fehler.h"
#include "model/GrosserSpeicher.h"
#include "model/Zahlentext.h"

namespace zrw::fremd {
namespace {

constexpr std::size_t kNummernbreite = 14;
constexpr std::size_t kMeistePunkte = 65535;
constexpr double kMmJeM = 1000.0, kMgonJeGon = 1000.0;
/// Network types: vectors are read in the second only.
constexpr std::string_view kLagenetz = "1", kGpsNetz = "3";
constexpr std::size_t kJeZeile = 56;  ///< of a usual observation, for the memory [bytes]

constexpr std::array<std::string_view, static_cast<std::size_t>(PunktArt::Anzahl)> kPunktschluessel{
    "$FP", "$FL", "$FH", "$NP"};

/// How an observation is written; vectors and coordinates are not lines of their own.
struct Satzform {
    Messart art;
    std::string_view schluessel;
    bool mitStandpunkt;  ///< the point that it comes from stands on a line before
    double teile;        ///< of the standard deviation in one unit of the value
};

constexpr auto kSatzformen = std::to_array<Satzform>({
    {Messart::Richtung, "$RZ", true, kMgonJeGon},
    {Messart::Strecke, "$ST", false, kMmJeM},
    {Messart::Schraegstrecke, "$ST", false, kMmJeM},
    {Messart::Zenitdistanz, "$ZD", false, kMgonJeGon},
    {Messart::Azimut, "$AZ", true, kMgonJeGon},
    {Messart::Winkel, "$RZ", true, kMgonJeGon},
    {Messart::Hoehenunterschied, "$DH", false, kMmJeM},
    {Messart::Vektor, "$SV", false, kMmJeM},
    {Messart::Koordinate, {}, false, kMmJeM},
});
static_assert(InReihe(kSatzformen, &Satzform::art), "a row for each Messart, in its order");

/// Text that grows without being looked at: hundreds of thousands of lines.
class Steuertext {
  public:
    void Schluessel(std::string_view schluessel) { HaengeAn(schluessel, 0, {}); }
    void Wort(std::string_view wort) { HaengeAn(" ", 0, wort); }
    void Nummer(std::string_view nummer) { HaengeAn(" ", kNummernbreite - nummer.size(), nummer); }
    /// At most eight decimals, none that says nothing; an unknown number is left out.
    void Zahl(double wert) {
        if (wert != wert) return;
        constexpr double kSchnell = 4e7;  // below it the number and its decimals fit 53 bits
        constexpr std::int64_t kTeile = 100'000'000;
        if (std::fabs(wert) >= kSchnell) return Wort(SchreibeReal(wert));
        const std::int64_t teile = std::llround(std::fabs(wert) * static_cast<double>(kTeile));
        char* z = Platz(32);
        *z++ = ' ';
        if (wert < 0.0 && teile != 0) *z++ = '-';
        z = std::to_chars(z, z + 16, teile / kTeile).ptr;
        if (std::int64_t bruch = teile % kTeile; bruch != 0) {
            *z = '.';
            char* ende = z + 8;
            for (char* ziffer = ende; ziffer != z; --ziffer, bruch /= 10)
                *ziffer = static_cast<char>('0' + bruch % 10);
            while (*ende == '0')
                --ende;
            z = ende + 1;
        }
        lang_ = static_cast<std::size_t>(z - text_.data());
    }
    void Ende() { HaengeAn("\r\n", 0, {}); }
    void Zeile(std::string_view schluessel, std::string_view rest) {
        Schluessel(schluessel);
        if (!rest.empty()) Wort(rest);
        Ende();
    }
    /// Before anything is written.
    void Erwarte(std::size_t bytes) {
        text_.reserve(bytes);
        FasseInGrosseSeiten(text_.data(), bytes);
        text_.resize(bytes);
    }
    [[nodiscard]] std::string Nimm() {
        text_.resize(lang_);
        return std::move(text_);
    }

  private:
    /// Room for so many bytes behind the text.
    char* Platz(std::size_t bytes) {
        if (text_.size() - lang_ < bytes) text_.resize(2 * text_.size() + bytes);
        return text_.data() + lang_;
    }
    /// @param blanks behind the second
    void HaengeAn(std::string_view erster, std::size_t blanks, std::string_view zweiter) {
        char* z = Platz(erster.size() + zweiter.size() + blanks);
        z = std::copy(erster.begin(), erster.end(), z);
        z = std::copy(zweiter.begin(), zweiter.end(), z);
        std::fill_n(z, blanks, ' ');
        lang_ += erster.size() + zweiter.size() + blanks;
    }

    std::string text_;
    std::size_t lang_ = 0;  ///< of it is text
};

class Zeilenschreiber {
  public:
    Zeilenschreiber(const Fremdnetz& netz, std::span<const std::string> nummern, const Xmldatei& datei,
                    Importbericht& bericht)
        : netz_(netz), nummern_(nummern), datei_(datei), bericht_(bericht) {}

    std::string Text(const std::string& herkunft) {
        text_.Erwarte((netz_.punkte.size() + netz_.messungen.size()) * kJeZeile);
        Kopf(herkunft);
        Punkte();
        for (std::size_t i = 0; i < netz_.messungen.size();)
            i = Messung(i);
        text_.Zeile("$$$", {});
        return text_.Nimm();
    }

  private:
    void Kopf(const std::string& herkunft) {
        text_.Zeile("$CC", Utf8NachCp1252(herkunft));
        if (!netz_.titel.empty()) text_.Zeile("$AU", Utf8NachCp1252(netz_.titel));
        for (const std::string& zeile : netz_.angaben)
            text_.Zeile("$CC", Utf8NachCp1252(zeile));
        const bool mitVektoren = std::any_of(netz_.messungen.begin(), netz_.messungen.end(),
                                             [](const Fremdmessung& m) { return m.art == Messart::Vektor; });
        text_.Zeile("$NT", mitVektoren ? kGpsNetz : kLagenetz);
        text_.Zeile("$PF", "0");
    }

    void Punkte() {
        std::size_t punkte = 0;
        gezeichnet_.resize(netz_.punkte.size());
        for (Stelle p = 0; p < netz_.punkte.size(); ++p) {
            const Dreier ort = netz_.Ort(p);
            const Fremdpunkt& punkt = netz_.punkte[p];
            if (punkt.nurErgebnis) continue;
            gezeichnet_[p] = ort.HatLage();
            if (!ort.HatLage()) {
                if (punkt.genannt)
                    bericht_.NimmAuf(Befundart::OhneLage, datei_, punkt.herkunft);
                else
                    bericht_.NimmAuf(Befundart::OhneLage);
                continue;
            }
            if (++punkte > kMeistePunkte) {
                throw Fehler("Das Netz hat mehr als " + std::to_string(kMeistePunkte) +
                                 " Punkte; mehr kann Zarwik nicht darstellen.",
                             datei_.Name(), datei_.Zeile(netz_.punkte[p].herkunft));
            }
            text_.Schluessel(kPunktschluessel[static_cast<std::size_t>(netz_.Art(p))]);
            text_.Nummer(nummern_[p]);
            text_.Wort("0");
            text_.Zahl(ort.rechts);
            text_.Zahl(ort.hoch);
            text_.Zahl(ort.hoehe);
            text_.Ende();
        }
        if (punkte == 0) {
            throw Fehler(netz_.punkte.empty()
                             ? "Das Netz hat keinen Punkt."
                             : "Kein Punkt des Netzes hat Koordinaten x und y: Es gibt nichts zu zeichnen.",
                         datei_.Name(), datei_.Zeile(Xmldatei::Stelle(datei_.Wurzel())));
        }
    }

    [[nodiscard]] bool Gezeichnet(const Fremdmessung& m) const {
        return gezeichnet_[m.von] && gezeichnet_[m.nach] &&
               (m.art != Messart::Winkel || gezeichnet_[m.zweites]);
    }

    /// Writes an observation, or the vectors of a block. @return the first behind them
    std::size_t Messung(std::size_t i) {
        const Fremdmessung& m = netz_.messungen[i];
        if (m.art == Messart::Koordinate) return i + 1;
        if (m.art == Messart::Vektor) return Vektoren(i);
        if (!Gezeichnet(m)) {
            bericht_.NimmAuf(Befundart::OhneOrt, datei_, m.herkunft);
            return i + 1;
        }
        const Satzform& form = kSatzformen[static_cast<std::size_t>(m.art)];
        if (m.art == Messart::Winkel)
            Winkel(form, m);
        else if (form.mitStandpunkt)
            Richtung(form, m);
        else
            Paar(form, m);
        return i + 1;
    }

    /// A set begins with its standpoint.
    void Standpunkt(Stelle p, std::uint32_t satz) {
        if (standpunkt_ == p && satz_ == satz) return;
        standpunkt_ = p;
        satz_ = satz;
        text_.Schluessel("$RS");
        text_.Nummer(nummern_[p]);
        text_.Zahl(satz);
        text_.Ende();
    }

    void Ziel(const Satzform& form, Stelle p, double wert, double sigma) {
        text_.Schluessel(form.schluessel);
        text_.Nummer(nummern_[p]);
        text_.Zahl(wert);
        text_.Zahl(sigma / form.teile);
        text_.Ende();
    }

    void Richtung(const Satzform& form, const Fremdmessung& m) {
        Standpunkt(m.von, m.satz);
        Ziel(form, m.nach, m.wert, m.sigma);
    }

    /// Two directions of a set of their own; each has half the variance.
    void Winkel(const Satzform& form, const Fremdmessung& m) {
        Standpunkt(m.von, 0);
        const double sigma = m.sigma / std::sqrt(2.0);
        Ziel(form, m.nach, 0.0, sigma);
        Ziel(form, m.zweites, m.wert, sigma);
        standpunkt_ = static_cast<Stelle>(-1);
    }

    void Paar(const Satzform& form, const Fremdmessung& m) {
        text_.Schluessel(form.schluessel);
        text_.Nummer(nummern_[m.von]);
        text_.Nummer(nummern_[m.nach]);
        text_.Zahl(m.wert);
        text_.Zahl(m.sigma / form.teile);
        text_.Ende();
    }

    /// A block says first how many vectors it has.
    std::size_t Vektoren(std::size_t i) {
        const auto& alle = netz_.messungen;
        std::size_t ende = i;
        std::size_t anzahl = 0;
        for (; ende < alle.size() && alle[ende].art == Messart::Vektor && alle[ende].satz == alle[i].satz;
             ++ende) {
            if (Gezeichnet(alle[ende]))
                ++anzahl;
            else
                bericht_.NimmAuf(Befundart::OhneOrt, datei_, alle[ende].herkunft);
        }
        if (anzahl == 0) return ende;
        const double block = ++bloecke_;
        text_.Schluessel("$SH");
        text_.Zahl(block);
        text_.Zahl(static_cast<double>(anzahl));
        text_.Ende();
        double nummer = 0.0;
        for (; i < ende; ++i) {
            const Fremdmessung& m = alle[i];
            if (!Gezeichnet(m)) continue;
            text_.Schluessel("$SV");
            text_.Zahl(block);
            text_.Zahl(++nummer);
            text_.Nummer(nummern_[m.von]);
            text_.Nummer(nummern_[m.nach]);
            const Dreier& d = netz_.vektoren[m.vektor];
            text_.Zahl(d.hoch);
            text_.Zahl(d.rechts);
            text_.Zahl(d.hoehe);
            text_.Zahl(m.sigma / kMmJeM);
            text_.Ende();
        }
        return ende;
    }

    const Fremdnetz& netz_;
    std::span<const std::string> nummern_;
    const Xmldatei& datei_;
    Importbericht& bericht_;
    Steuertext text_;
    std::vector<bool> gezeichnet_;
    Stelle standpunkt_ = static_cast<Stelle>(-1);
    std::uint32_t satz_ = 0;
    double bloecke_ = 0.0;
};

}  // namespace

std::string Steuerdateitext(const Fremdnetz& netz, std::span<const std::string> nummern,
                            const std::string& herkunft, const Xmldatei& datei, Importbericht& bericht) {
    return Zeilenschreiber(netz, nummern, datei, bericht).Text(herkunft);
}

}  // namespace zrw::fremd
