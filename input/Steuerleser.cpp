#include "input/Steuerdatei.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <utility>

#include "input/Punktfelder.h"
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
constexpr const char* kVerschoben =
    "Hinter den 14 Stellen der Punktnummer folgt ohne Leerzeichen Text, Nummer und Koordinaten können "
    "verschoben sein: Punkt ";

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

/// The file that an include record names, behind one separator.
std::string_view Dateiname(std::string_view rest) {
    Feldleser felder(rest);
    felder.UeberspringeZeichen(kTrenner);
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
    return Steuerleser(datei, dateien, einstellungen, meldung, fortschritt).LiesDatei();
}

// --- Record loop ------------------------------------------------------------------------------------------

Steuerleser::Steuerleser(const std::filesystem::path& datei, const Dateien& dateien,
                         const Einstellungen& einstellungen, const Meldungsempfaenger& meldung,
                         const Lesefortschritt& fortschritt)
    : einstellungen_(einstellungen),
      meldung_(meldung),
      fortschritt_(fortschritt),
      quelle_(datei, dateien),
      lesung_{std::make_unique<Liste>(einstellungen), {}, Leseende::Vollstaendig, {}, {}, {}},
      bauer_(*lesung_.liste, einstellungen),
      ellipsoid_(EllipsoidRadii(lesung_.netz.Ellipsoid, kMittlereBreite)) {}

Lesung Steuerleser::LiesDatei() {
    // A point or a line takes at least about so many bytes of a control file.
    bauer_.ErwarteFiguren(std::min<std::size_t>(quelle_.Groesse() / 64, kMaxPunkte),
                          std::min<std::size_t>(quelle_.Groesse() / 64, 200'000));
    try {
        BeginneText();
        constexpr unsigned kTakt = 8192;  // lines between two reports
        for (unsigned zeilen = 1; !fertig_ && quelle_.Naechste(zeile_); ++zeilen) {
            if (zeilen % kTakt == 0) MeldeBericht();
            const Satz* satz = LeseSchluessel(zeile_);
            const std::string_view rest = zeile_.substr(std::min<std::size_t>(3, zeile_.size()));
            if (vektorenOffen_ > 0) {
                LiesVektor(rest);
                continue;
            }
            if (satz == nullptr) {
                if (letzter_ == nullptr || NurLeer(rest)) continue;
                satz = letzter_;
            } else {
                schluesselSeitEinfuegung_ = true;
                if (!(IstPunktsatz(letzter_) && satz->imPunktblock)) letzter_ = satz;
            }
            (this->*satz->lesen)(rest);
        }
        bauer_.VollendeNetz();
        SchliesseLesung();
    } catch (const Leseabbruch&) {
        throw;
    } catch (const Fehler& f) {
        if (f.Zeile() > 0) throw;
        throw Fehler(f.Text(), quelle_.Name(quelle_.Hier()), quelle_.Hier().zeile);
    }
    return std::move(lesung_);
}

/// What can be told only when everything has been read.
void Steuerleser::SchliesseLesung() {
    if (vektorenOffen_ > 0 && meldung_) {
        meldung_({"Der GPS-Block kündigt " + std::to_string(vektoren_) +
                      " Vektoren ($SV) an, gefunden: " + std::to_string(vektoren_ - vektorenOffen_) +
                      ". Alles Weitere bis zum Ende der Datei gilt als Teil des Blocks.",
                  quelle_.Name(blockanfang_),
                  blockanfang_.zeile,
                  {},
                  true});
    }
    lesung_.bericht.schluessel = letzter_ != nullptr;
    lesung_.bericht.unbekannte = Befund(bauer_.Unbekannte());
    lesung_.bericht.wiederholte = Befund(bauer_.Wiederholte());
}

Lesebericht::Befund Steuerleser::Befund(const Netzbauer::Zahl& zahl) const {
    return {zahl.anzahl, quelle_.Name(zahl.erster), zahl.erster.zeile};
}

void Steuerleser::UebergeheSatz(std::string_view /*rest*/) {}

void Steuerleser::Ende(std::string_view /*rest*/) {
    fertig_ = true;
}

// --- Single values ----------------------------------------------------------------------------------------

void Steuerleser::FalscheZahl(const char* name) const {
    const std::string fremd = Fortsetzung();
    throw Fehler("Zahl fehlt oder ist nicht lesbar in \"" + Auszug(zeile_) + "\", erwartet: " + name +
                     (fremd.empty() ? "" : " " + fremd) + ". Es wurde nichts geladen.",
                 quelle_.Name(quelle_.Hier()), quelle_.Hier().zeile);
}

std::int32_t Steuerleser::Ganzzahl(Feldleser& felder, const char* name) const {
    const auto wert = felder.Ganz();
    if (!wert || *wert < std::numeric_limits<std::int32_t>::min() ||
        *wert > std::numeric_limits<std::int32_t>::max()) {
        FalscheZahl(name);
    }
    return static_cast<std::int32_t>(*wert);
}

double Steuerleser::Realzahl(Feldleser& felder, const char* name) const {
    const auto wert = felder.Real();
    if (!wert) FalscheZahl(name);
    return *wert;
}

/// Takes a value over. Where a line only continues the record, without looking like it, the change is told:
/// it moves the whole network.
template <class T>
void Steuerleser::SetzeAngabe(T& ziel, const T& wert, const char* name) const {
    if (ziel != wert && !Fortsetzung().empty())
        MeldeZeile("\"" + Auszug(zeile_) + "\" ändert: " + name, {}, true);
    ziel = wert;
}

void Steuerleser::LiesXVersatz(std::string_view rest) {
    constexpr const char* kName = "Zuschlag zum Hochwert";
    Feldleser felder(rest);
    SetzeAngabe(lesung_.netz.XVersatz, Realzahl(felder, kName), kName);
}

void Steuerleser::LiesYVersatz(std::string_view rest) {
    constexpr const char* kName = "Zuschlag zum Rechtswert";
    Feldleser felder(rest);
    SetzeAngabe(lesung_.netz.YVersatz, Realzahl(felder, kName), kName);
}

void Steuerleser::LiesNetztyp(std::string_view rest) {
    constexpr const char* kName = "Netztyp";
    Feldleser felder(rest);
    SetzeAngabe(lesung_.netz.Netztyp, Ganzzahl(felder, kName), kName);
    lesung_.bericht.netztyp = true;
}

void Steuerleser::LiesPunktformat(std::string_view rest) {
    constexpr const char* kName = "Punktformat";
    Feldleser felder(rest);
    SetzeAngabe(punktformat_, Ganzzahl(felder, kName), kName);
}

void Steuerleser::LiesEllipsoid(std::string_view rest) {
    constexpr const char* kName = "Ellipsoid";
    Feldleser felder(rest);
    SetzeAngabe(lesung_.netz.Ellipsoid, Ganzzahl(felder, kName), kName);
    lesung_.netz.EllipsoidGenannt = true;
    if (!EllipsoidBekannt(lesung_.netz.Ellipsoid)) MeldeZeile(std::string(kUnbekanntesEllipsoid));
    ellipsoid_ = EllipsoidRadii(lesung_.netz.Ellipsoid, kMittlereBreite);
}

void Steuerleser::LiesKoordinatensystem(std::string_view rest) {
    constexpr const char* kMeridian = "Hauptmeridian";
    constexpr const char* kModus = "Abbildung (0 bis 255)";
    Feldleser felder(rest);
    const std::int32_t meridian = Ganzzahl(felder, kMeridian);
    const std::int32_t modus = Ganzzahl(felder, kModus);
    if (modus < 0 || modus > 255) FalscheZahl(kModus);
    SetzeAngabe(lesung_.netz.Hauptmeridian, meridian, kMeridian);
    SetzeAngabe(lesung_.netz.Abbildungsmodus, static_cast<std::uint8_t>(modus), kModus);
    lesung_.netz.AbbildungGenannt = true;
}

void Steuerleser::LiesTitel(std::string_view rest) {
    Feldleser felder(rest);
    felder.UeberspringeZeichen(kTrenner);
    if (!lesung_.liste->Legend) lesung_.liste->Legend = Legende::Create();
    SetzeAngabe(lesung_.liste->Legend->Bez1, std::string(OhneRand(felder.Rest().substr(0, 255))),
                "Titel des Netzes");
}

// --- Include files ----------------------------------------------------------------------------------------

void Steuerleser::FuegeEin(std::string_view rest) {
    if (quelle_.EinfuegungOffen()) {
        if (schluesselSeitEinfuegung_) {
            MeldeZeile("Eine eingefügte Datei kann keine weitere einfügen; die Zeile wurde übergangen.");
        } else if (!std::exchange(schluessellosGemeldet_, true)) {
            MeldeZeile(
                "Die eingefügte Datei beginnt ohne Schlüssel: Ihre Zeilen werden bis zum ersten Schlüssel "
                "übergangen. Bitte den Schlüssel der ersten Zeile ergänzen, zum Beispiel $ST.");
        }
        return;
    }
    const std::string_view name = Dateiname(rest);
    const Einfuegung e = quelle_.OeffneEinfuegung(name);
    if (e.grund.empty()) {
        if (!e.ersatz.empty()) {
            MeldeZeile("Statt " + Auszug(name, kNamenslaenge) + " wurde " + e.ersatz +
                           " aus dem Ordner der Steuerdatei gelesen.",
                       {}, true);
        }
        BeginneText();
        schluesselSeitEinfuegung_ = false;
        schluessellosGemeldet_ = false;
        return;
    }
    lesung_.ende = Leseende::Abgebrochen;
    lesung_.endetext = "Kann Datei " + Auszug(name, kNamenslaenge) + " nicht öffenen!";
    const std::string fremd = Fortsetzung();
    lesung_.endegrund = Fehler::Meldung(e.grund + (fremd.empty() ? "" : "; erwartet: Dateiname " + fremd),
                                        quelle_.Name(quelle_.Hier()), quelle_.Hier().zeile);
    fertig_ = true;
}

/// A file whose characters could not all be kept is told of once.
void Steuerleser::BeginneText() {
    const Ersetzung& e = quelle_.Ersetzt();
    if (e.anzahl == 0 || !meldung_) return;
    meldung_({"Zeichen, die es in der Codepage 1252 nicht gibt, gelten als \"?\": " +
                  std::to_string(e.anzahl) + ", das erste in dieser Zeile.",
              e.datei,
              e.zeile,
              {},
              true});
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
    felder.UeberspringeZeichen(kTrenner);
    const std::string_view nummer = OhneRand(felder.Zeichen(PunktNummernTyp::kLaenge));
    const Koordinaten art = ZumTyp(lesung_.netz.Netztyp).koordinaten;
    if (art == Koordinaten::Keine) {
        if (lesung_.bericht.netztyp) lesung_.bericht.letzterFremder = lesung_.netz.Netztyp;
        ++(lesung_.bericht.netztyp ? lesung_.bericht.fremderTyp : lesung_.bericht.ohneTyp);
        return;
    }
    const std::string_view werte = felder.Rest();
    const auto code = felder.Ganz();
    Welt ort;
    if (!code || !LiesOrt(art, felder, ort) || !std::isfinite(ort.rechts) || !std::isfinite(ort.hoch)) {
        MeldePunkt(nummer, werte);
        return;
    }
    if (!werte.empty() && !IstLeerzeichen(werte.front())) MeldeZeile(kVerschoben + Auszug(nummer), {}, true);
    bauer_.Punkt(quelle_.Hier(), punktart, nummer, *code, ort);
}

void Steuerleser::MeldePunkt(std::string_view nummer, std::string_view werte) {
    ++lesung_.bericht.unlesbare;
    std::string text = "Lesefehler bei Punkt" + std::string(nummer);
    text.resize(std::min(text.size(), kMeldungslaenge));
    std::string grund = Lesegrund(werte, Punktfelder(ZumTyp(lesung_.netz.Netztyp).koordinaten, punktformat_));
    if (!werte.empty() && !IstLeerzeichen(werte.front())) grund += "; Text hinter den 14 Stellen der Nummer";
    MeldeZeile(Auszug(text), std::move(grund));
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
    bauer_.NimmBeobachtung(quelle_.Hier(), Netzbauer::Art::Richtung, {}, NaechstesWort(rest), farbe);
}

void Steuerleser::LiesRichtung(std::string_view rest) {
    Ziele(rest, einstellungen_.RICol);
}

void Steuerleser::LiesAzimut(std::string_view rest) {
    Ziele(rest, einstellungen_.AZCol);
}

void Steuerleser::LiesBeobachtung(std::string_view rest, Netzbauer::Art art) {
    const std::string_view von = NaechstesWort(rest);
    bauer_.NimmBeobachtung(quelle_.Hier(), art, von, NaechstesWort(rest));
}

void Steuerleser::LiesStrecke(std::string_view rest) {
    LiesBeobachtung(rest, Netzbauer::Art::Strecke);
}

void Steuerleser::LiesHoehenunterschied(std::string_view rest) {
    LiesBeobachtung(rest, Netzbauer::Art::Hoehenunterschied);
}

void Steuerleser::LeseGPSVektoren(std::string_view rest) {
    if (!ZumTyp(lesung_.netz.Netztyp).mitGPS) return;
    Feldleser felder(rest);
    felder.UeberspringeZeichen(kTrenner);
    (void)Ganzzahl(felder, "Zahl vor der Anzahl");
    vektoren_ = static_cast<std::uint64_t>(std::abs(std::int64_t{Ganzzahl(felder, "Anzahl der Vektoren")}));
    vektorenOffen_ = vektoren_;
    blockanfang_ = quelle_.Hier();
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
    (void)Ganzzahl(felder, "erste Zahl");
    (void)Ganzzahl(felder, "zweite Zahl");
    felder.UeberspringeZeichen(kTrenner);
    const std::string_view von = OhneRand(felder.Zeichen(PunktNummernTyp::kLaenge));
    felder.UeberspringeZeichen(kTrenner);
    const std::string_view nach = OhneRand(felder.Zeichen(PunktNummernTyp::kLaenge));
    bauer_.NimmBeobachtung(quelle_.Hier(), Netzbauer::Art::GPSVektor, von, nach);
}

// --- Messages ---------------------------------------------------------------------------------------------

void Steuerleser::MeldeBericht() const {
    if (fortschritt_ && !fortschritt_(quelle_.Anteil()))
        throw Leseabbruch("Das Lesen wurde abgebrochen.", quelle_.Name(quelle_.Hier()));
}

std::string Steuerleser::Fortsetzung() const {
    const bool fremd = !NurLeer(zeile_.substr(0, 3)) && LeseSchluessel(zeile_) == nullptr;
    if (!fremd || letzter_ == nullptr) return {};
    return "(unbekannter Schlüssel, gelesen als Fortsetzung von " + std::string(letzter_->schluessel) + ")";
}

void Steuerleser::MeldeZeile(std::string text, std::string grund, bool hinweis) const {
    if (!meldung_) return;
    if (const std::string fremd = Fortsetzung(); !fremd.empty()) grund += (grund.empty() ? "" : " ") + fremd;
    const Zeilenort hier = quelle_.Hier();
    meldung_({std::move(text), quelle_.Name(hier), hier.zeile, std::move(grund), hinweis});
}

}  // namespace zrw
