#include "input/Steuerdatei.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <utility>

#include "input/Steuerleser.h"
#include "input/Steuersaetze.h"
#include "model/Cp1252.h"
#include "model/Fehler.h"

namespace zrw {
namespace {

/// Latitude for which the radii of the network's ellipsoid are kept.
constexpr Grad kMittlereBreite{50.0};
/// Longest file name in a message.
constexpr std::size_t kNamenslaenge = 255;
/// What fits into one message box line.
constexpr std::size_t kMeldungslaenge = 35;
/// Place of the number in a point line, behind the key and one separator.
constexpr std::size_t kTrenner = 1;

using Tafel = std::array<std::uint8_t, std::size_t{128} * 128>;

/// Row + 1 of the key with these second and third characters, 0 for none.
constexpr Tafel Schluesseltafel() {
    Tafel t{};
    for (std::size_t i = 0; i < kSaetze.size(); ++i) {
        const std::string_view k = kSaetze[i].schluessel;
        t[static_cast<std::size_t>(k[1]) * 128 + static_cast<std::size_t>(k[2])] =
            static_cast<std::uint8_t>(i + 1);
    }
    return t;
}

bool NurLeer(std::string_view text) {
    return OhneRand(text).empty();
}

/// How a network type gives its coordinates, and whether its GPS vectors belong to the plot.
struct Netzart {
    std::int32_t typ;
    Koordinaten koordinaten;
    bool mitGPS;
};
constexpr std::array<Netzart, 8> kNetzarten{{{1, Koordinaten::Gitter, false},
                                             {2, Koordinaten::Gitter, false},
                                             {3, Koordinaten::Gitter, true},
                                             {4, Koordinaten::Winkel, false},
                                             {6, Koordinaten::Kartesisch, true},
                                             {7, Koordinaten::Kartesisch, true},
                                             {50, Koordinaten::Winkel, true},
                                             {51, Koordinaten::Gitter, true}}};
constexpr Netzart kUnbekannt{0, Koordinaten::Keine, false};

const Netzart& ZumTyp(std::int32_t typ) {
    const auto* art =
        std::find_if(kNetzarten.begin(), kNetzarten.end(), [&](const Netzart& n) { return n.typ == typ; });
    return art != kNetzarten.end() ? *art : kUnbekannt;
}

/// A short, printable piece of a line for a message.
std::string Auszug(std::string_view zeile, std::size_t laenge = 40) {
    std::string text(zeile.substr(0, laenge));
    for (char& c : text) {
        if (static_cast<unsigned char>(c) < 0x20) c = ' ';
    }
    return Cp1252NachUtf8(text);
}

/// The file that an include record names, behind one separator.
std::string_view Dateiname(std::string_view rest) {
    Feldleser felder(rest);
    felder.Ueberspringe(kTrenner);
    return OhneRand(felder.Rest());
}

}  // namespace

const Satz* LeseSchluessel(std::string_view zeile) {
    static constexpr Tafel kTafel = Schluesseltafel();
    if (zeile.size() < 3 || zeile[0] != '$') return nullptr;
    const auto b = static_cast<unsigned char>(zeile[1]);
    const auto c = static_cast<unsigned char>(zeile[2]);
    if (b >= 128 || c >= 128) return nullptr;
    const std::uint8_t zeilennummer = kTafel[std::size_t{b} * 128 + c];
    return zeilennummer > 0 ? &kSaetze[zeilennummer - 1U] : nullptr;
}

double GradDezimal(double wert) {
    double ganz = 0.0;
    const double rest = std::modf(std::fabs(wert), &ganz) * 100;
    double minuten = 0.0;
    const double sekunden = std::modf(rest, &minuten) * 100;
    const double grad = ganz + minuten / 60 + sekunden / 3600;
    return wert < 0 ? -grad : grad;
}

Lesung LeseSteuerdatei(const std::filesystem::path& datei, const Dateien& dateien,
                       const Einstellungen& einstellungen, const Meldungsempfaenger& meldung,
                       const Lesefortschritt& fortschritt) {
    return Steuerleser(datei, dateien, einstellungen, meldung, fortschritt).Lies();
}

// --- Record loop ------------------------------------------------------------------------------------------

Steuerleser::Steuerleser(const std::filesystem::path& datei, const Dateien& dateien,
                         const Einstellungen& einstellungen, const Meldungsempfaenger& meldung,
                         const Lesefortschritt& fortschritt)
    : einstellungen_(einstellungen),
      meldung_(meldung),
      fortschritt_(fortschritt),
      quelle_(datei, dateien),
      lesung_{std::make_unique<Liste>(einstellungen), {}, Leseende::Vollstaendig, {}},
      bauer_(*lesung_.liste, einstellungen),
      ellipsoid_(EllipsoidRadii(lesung_.netz.Ellipsoid, kMittlereBreite)) {}

Lesung Steuerleser::Lies() {
    // A point or a line takes at least about so many bytes of a control file.
    bauer_.Erwarte(std::min<std::size_t>(quelle_.Groesse() / 64, kMaxPunkte),
                   std::min<std::size_t>(quelle_.Groesse() / 64, 200'000));
    try {
        constexpr unsigned kTakt = 8192;  // lines between two reports
        for (unsigned zeilen = 1; !fertig_ && quelle_.Naechste(zeile_); ++zeilen) {
            if (zeilen % kTakt == 0) Berichte();
            const Satz* satz = LeseSchluessel(zeile_);
            const std::string_view rest = zeile_.substr(std::min<std::size_t>(3, zeile_.size()));
            if (vektorenOffen_ > 0) {
                LiesVektor(rest);
                continue;
            }
            if (satz == nullptr) {
                if (letzter_ == nullptr || NurLeer(rest)) continue;
                satz = letzter_;
            } else if (!(IstPunktsatz(letzter_) && satz->imPunktblock)) {
                letzter_ = satz;
            }
            (this->*satz->lesen)(rest);
        }
        bauer_.Vollende();
    } catch (const Leseabbruch&) {
        throw;
    } catch (const Fehler& f) {
        if (f.Zeile() > 0) throw;
        throw Fehler(f.Text(), quelle_.Datei(), quelle_.Zeile());
    }
    return std::move(lesung_);
}

void Steuerleser::Uebergehe(std::string_view /*rest*/) {}

void Steuerleser::Ende(std::string_view /*rest*/) {
    fertig_ = true;
}

// --- Single values ----------------------------------------------------------------------------------------

void Steuerleser::FalscheZahl() const {
    throw Fehler("Zahl fehlt oder ist nicht lesbar in \"" + Auszug(zeile_) + "\". Es wurde nichts geladen.",
                 quelle_.Datei(), quelle_.Zeile());
}

std::int32_t Steuerleser::Ganzzahl(Feldleser& felder) const {
    const auto wert = felder.Ganz();
    if (!wert || *wert < std::numeric_limits<std::int32_t>::min() ||
        *wert > std::numeric_limits<std::int32_t>::max()) {
        FalscheZahl();
    }
    return static_cast<std::int32_t>(*wert);
}

double Steuerleser::Realzahl(Feldleser& felder) const {
    const auto wert = felder.Real();
    if (!wert) FalscheZahl();
    return *wert;
}

void Steuerleser::LiesXVersatz(std::string_view rest) {
    Feldleser felder(rest);
    lesung_.netz.XVersatz = Realzahl(felder);
}

void Steuerleser::LiesYVersatz(std::string_view rest) {
    Feldleser felder(rest);
    lesung_.netz.YVersatz = Realzahl(felder);
}

void Steuerleser::LiesNetztyp(std::string_view rest) {
    Feldleser felder(rest);
    lesung_.netz.Netztyp = Ganzzahl(felder);
}

void Steuerleser::LiesPunktformat(std::string_view rest) {
    Feldleser felder(rest);
    punktformat_ = Ganzzahl(felder);
}

void Steuerleser::LiesEllipsoid(std::string_view rest) {
    Feldleser felder(rest);
    lesung_.netz.Ellipsoid = Ganzzahl(felder);
    if (!EllipsoidBekannt(lesung_.netz.Ellipsoid)) Melde(std::string(kUnbekanntesEllipsoid));
    ellipsoid_ = EllipsoidRadii(lesung_.netz.Ellipsoid, kMittlereBreite);
}

void Steuerleser::LiesKoordinatensystem(std::string_view rest) {
    Feldleser felder(rest);
    const std::int32_t meridian = Ganzzahl(felder);
    const std::int32_t modus = Ganzzahl(felder);
    if (modus < 0 || modus > 255) FalscheZahl();
    lesung_.netz.Hauptmeridian = meridian;
    lesung_.netz.Abbildungsmodus = static_cast<std::uint8_t>(modus);
}

void Steuerleser::LiesTitel(std::string_view rest) {
    Feldleser felder(rest);
    felder.Ueberspringe(kTrenner);
    if (lesung_.liste->Legend == nullptr)
        lesung_.liste->Legend = std::make_unique<Legende>(Legende::Create());
    lesung_.liste->Legend->Bez1 = OhneRand(felder.Rest().substr(0, 255));
}

// --- Include files ----------------------------------------------------------------------------------------

void Steuerleser::FuegeEin(std::string_view rest) {
    if (quelle_.EinfuegungOffen()) {
        Melde("Eine eingefügte Datei kann keine weitere einfügen; die Zeile wurde übergangen.");
        return;
    }
    const std::string_view name = Dateiname(rest);
    if (quelle_.OeffneEinfuegung(name)) return;
    lesung_.ende = Leseende::Abgebrochen;
    lesung_.endetext = "Kann Datei " + Auszug(name, kNamenslaenge) + " nicht öffenen!";
    fertig_ = true;
}

void Steuerleser::FuegeKoordinatenEin(std::string_view rest) {
    const bool imBlock = IstPunktsatz(letzter_) && !quelle_.EinfuegungOffen();
    FuegeEin(rest);
    if (!imBlock || lesung_.ende == Leseende::Vollstaendig) return;
    // A network without its coordinates is worth nothing: here the program ends, and says so in other words.
    lesung_.ende = Leseende::Programmende;
    lesung_.endetext = "Kann Datei " + Auszug(Dateiname(rest), kNamenslaenge) + " nicht öffnen!";
}

// --- Points -----------------------------------------------------------------------------------------------

void Steuerleser::LesePunkt(PunktArt punktart, std::string_view rest) {
    if (NurLeer(rest)) return;
    Feldleser felder(rest);
    felder.Ueberspringe(kTrenner);
    const std::string_view nummer = OhneRand(felder.Zeichen(PunktNummernTyp::kLaenge));
    const Koordinaten art = ZumTyp(lesung_.netz.Netztyp).koordinaten;
    if (art == Koordinaten::Keine) return;
    const auto code = felder.Ganz();
    Welt ort;
    if (!code || !LiesOrt(art, felder, ort) || !std::isfinite(ort.rechts) || !std::isfinite(ort.hoch)) {
        std::string text = "Lesefehler bei Punkt" + std::string(nummer);
        text.resize(std::min(text.size(), kMeldungslaenge));
        Melde(Auszug(text));
        return;
    }
    bauer_.Punkt(punktart, nummer, *code, ort);
}

bool Steuerleser::LiesOrt(Koordinaten art, Feldleser& felder, Welt& ort) const {
    switch (art) {
        case Koordinaten::Keine:
            return false;
        case Koordinaten::Gitter:
            return LiesGitter(felder, ort);
        case Koordinaten::Winkel:
            return LiesWinkel(felder, ort);
        case Koordinaten::Kartesisch:
            return LiesKartesisch(felder, ort);
    }
    return false;
}

bool Steuerleser::LiesWinkel(Feldleser& felder, Welt& ort) {
    // Geographic positions stay unprojected. The sum is already decimal and is converted once more all the
    // same: plots arranged with this position must find their points again.
    std::array<double, 2> winkel{};
    for (double& w : winkel) {
        const auto grad = felder.Real();
        const auto minuten = felder.Real();
        const auto sekunden = felder.Real();
        if (!grad || !minuten || !sekunden) return false;
        w = GradDezimal(*grad + *minuten / 60 + *sekunden / 3600);
    }
    ort = {.rechts = winkel[1], .hoch = winkel[0]};
    return true;
}

bool Steuerleser::LiesGitter(Feldleser& felder, Welt& ort) const {
    const auto erste = felder.Real();
    const auto zweite = felder.Real();
    if (!erste || !zweite) return false;
    // A control file calls the northing X and the easting Y.
    const double x = punktformat_ == 0 ? *zweite : *erste;
    const double y = punktformat_ == 0 ? *erste : *zweite;
    ort = {.rechts = y + lesung_.netz.YVersatz, .hoch = x + lesung_.netz.XVersatz};
    return true;
}

bool Steuerleser::LiesKartesisch(Feldleser& felder, Welt& ort) const {
    const auto x = felder.Real();
    const auto y = felder.Real();
    const auto z = felder.Real();
    if (!x || !y || !z) return false;
    const GeographHoehe geo = CartesianToGeo(lesung_.netz.Ellipsoid, *x, *y, *z);
    // Whatever mode the network names, its plot is Gauss-Krüger.
    const Gitterpunkt gitter = GeoToGrid(Abbildung::GaussKrueger, lesung_.netz.Hauptmeridian, geo.laenge,
                                         geo.breite, ellipsoid_.f, ellipsoid_.a);
    ort = {.rechts = gitter.rechts, .hoch = gitter.hoch};
    return true;
}

// --- Observations -----------------------------------------------------------------------------------------

void Steuerleser::LiesStandpunkt(std::string_view rest) {
    bauer_.Standpunkt(NaechstesWort(rest));
}

void Steuerleser::Ziele(std::string_view rest, Farbe farbe) {
    bauer_.Beobachte(Netzbauer::Art::Richtung, {}, NaechstesWort(rest), farbe);
}

void Steuerleser::LiesRichtung(std::string_view rest) {
    Ziele(rest, einstellungen_.RICol);
}

void Steuerleser::LiesAzimut(std::string_view rest) {
    Ziele(rest, einstellungen_.AZCol);
}

void Steuerleser::Beobachte(std::string_view rest, Netzbauer::Art art) {
    const std::string_view von = NaechstesWort(rest);
    bauer_.Beobachte(art, von, NaechstesWort(rest));
}

void Steuerleser::LiesStrecke(std::string_view rest) {
    Beobachte(rest, Netzbauer::Art::Strecke);
}

void Steuerleser::LiesHoehenunterschied(std::string_view rest) {
    Beobachte(rest, Netzbauer::Art::Hoehenunterschied);
}

void Steuerleser::LeseGPSVektoren(std::string_view rest) {
    if (!ZumTyp(lesung_.netz.Netztyp).mitGPS) return;
    Feldleser felder(rest);
    felder.Ueberspringe(kTrenner);
    (void)Ganzzahl(felder);
    vektorenOffen_ = static_cast<std::uint64_t>(std::abs(std::int64_t{Ganzzahl(felder)}));
}

void Steuerleser::LiesVektor(std::string_view rest) {
    const Satz* satz = LeseSchluessel(zeile_);
    if (satz == nullptr) return;
    if (satz->lesen == &Steuerleser::Ende) {
        Ende(rest);
        return;
    }
    if (satz->schluessel != "$SV") return;
    letzter_ = satz;  // what follows the block without a key belongs to its last vector
    --vektorenOffen_;
    Feldleser felder(rest);
    (void)Ganzzahl(felder);
    (void)Ganzzahl(felder);
    felder.Ueberspringe(kTrenner);
    const std::string_view von = OhneRand(felder.Zeichen(PunktNummernTyp::kLaenge));
    felder.Ueberspringe(kTrenner);
    const std::string_view nach = OhneRand(felder.Zeichen(PunktNummernTyp::kLaenge));
    bauer_.Beobachte(Netzbauer::Art::GPSVektor, von, nach);
}

// --- Messages ---------------------------------------------------------------------------------------------

void Steuerleser::Berichte() const {
    if (fortschritt_ && !fortschritt_(quelle_.Anteil()))
        throw Leseabbruch("Das Lesen wurde abgebrochen.", quelle_.Datei());
}

void Steuerleser::Melde(std::string text) const {
    if (meldung_) meldung_({std::move(text), quelle_.Datei(), quelle_.Zeile()});
}

}  // namespace zrw
