#include "ui/ergebnisse/Ergebnisliste.h"

#include <algorithm>
#include <array>

#include "model/Fehler.h"
#include "ui/Umwandlung.h"
#include "ui/ergebnisse/Ergebnisgitter.h"
#include "ui/ergebnisse/Spaltenhinweise.h"

namespace zrw {
namespace {

const QString kOhneNummer = QStringLiteral("Zu Punkten ohne Nummer gibt es keine Ergebnisse");

bool Markiert(const std::optional<TDM::Zeilenzahl>& zahl) {
    return zahl && zahl->markiert > 0;
}

/// The rows of both in one list, in a column of its own those that lead back.
Antwort MitGegenrichtung(Antwort hin, Antwort her) {
    constexpr auto kPunkte = std::to_array<std::string_view>({"ID", "P1", "P2"});
    const auto stelle = [&](std::size_t laenge) {
        return static_cast<std::ptrdiff_t>(std::min(kPunkte.size(), laenge));
    };
    hin.spalten.emplace(hin.spalten.begin() + stelle(hin.spalten.size()), kGegenrichtung);
    for (auto& zeile : hin.zeilen)
        zeile.emplace(zeile.begin() + stelle(zeile.size()), std::string());
    for (auto& zeile : her.zeilen) {
        zeile.emplace(zeile.begin() + stelle(zeile.size()), std::string("Gegenrichtung"));
        hin.zeilen.push_back(std::move(zeile));
    }
    return hin;
}

}  // namespace

Ergebnisliste::Ergebnisliste(const Programm& programm, const Vorlieben& vorlieben, Ergebnisgitter& gitter,
                             Gegenrichtung gegenrichtung, std::function<void()> meldeTabellen)
    : programm_(programm),
      vorlieben_(vorlieben),
      gitter_(gitter),
      gegenrichtung_(gegenrichtung),
      meldeTabellen_(std::move(meldeTabellen)) {
    gitter_.reiterGewechselt = [this] {
        FuelleReiter();
        gitter_.ZeigeZeilenzahlen(ZaehleZeilen());  // its table may have been too large to be read for that
    };
}

Ergebnisliste::~Ergebnisliste() {
    gitter_.reiterGewechselt = {};  // its parent deletes it later
}

void Ergebnisliste::ListeAuf(const Liste& netz, const PunktKnoten& punkt) {
    ListeNummern(AusNetz(netz.GetPktText(punkt.PNr)), std::nullopt, kOhneNummer);
}

void Ergebnisliste::ListeAuf(const Liste& netz, const PunktKante& kante) {
    ListeNummern(AusNetz(netz.GetPktText(kante.ANr)), AusNetz(netz.GetPktText(kante.ENr)), kOhneNummer);
}

void Ergebnisliste::LeereListe() {
    ListeNummern({}, std::nullopt, {});
}

void Ergebnisliste::ListeNummern(const QString& erster, const std::optional<QString>& zweiter,
                                 const QString& leergrund) {
    const bool anderes = erster != erster_ || zweiter != zweiter_;
    erster_ = erster;
    zweiter_ = zweiter;
    leergrund_ = leergrund;
    const Zahlen zahlen = ZaehleZeilen();
    if (anderes) WechsleReiter(zahlen);
    gitter_.ZeigeZeilenzahlen(zahlen);
    FuelleReiter();
}

void Ergebnisliste::ErneuereListe() {
    ListeNummern(QString(erster_), std::optional(zweiter_), QString(leergrund_));
}

std::string Ergebnisliste::Abfrage(const Ergebnisreiter& reiter) const {
    return zweiter_ ? Abfragetext(reiter.kante, NachUtf8(erster_), NachUtf8(*zweiter_))
                    : Abfragetext(reiter.punkt, NachUtf8(erster_));
}

std::string Ergebnisliste::Gegenabfrage(const Ergebnisreiter& reiter) const {
    if (!zweiter_ || reiter.gegen.empty()) return {};
    return Abfragetext(reiter.gegen, NachUtf8(erster_), NachUtf8(*zweiter_));
}

/// One question a tab; tabs whose large tables nobody has read yet stay unknown. What is wrong with a table
/// is told when its own tab is up.
Ergebnisliste::Zahlen Ergebnisliste::ZaehleZeilen() const {
    Zahlen zahlen;
    if (Leer()) return zahlen;
    for (const Ergebnisreiter& r : kErgebnisreiter) {
        auto& zahl = zahlen.emplace_back();
        try {
            if (!programm_.daten.Vorhanden(r.datei)) {
                zahl.emplace();
                continue;
            }
            // The one that is up is read anyway.
            if (&r != &gitter_.Reiter() && !programm_.daten.RaschGefragt(r.tabelle)) continue;
            TDM::Zeilenzahl z = programm_.daten.ZaehleZeilen(r.tabelle, Abfrage(r), r.flag);
            const std::string gegen = Gegenabfrage(r);
            if (gegenrichtung_ == Gegenrichtung::Auflisten && !gegen.empty()) {
                const TDM::Zeilenzahl her = programm_.daten.ZaehleZeilen(r.tabelle, gegen, r.flag);
                z.zeilen += her.zeilen;
                z.markiert += her.markiert;
            }
            zahl = z;
        } catch (const std::exception&) {
            zahl.reset();
        }
    }
    return zahlen;
}

/// To the first tab with a gross error, for those who want that.
void Ergebnisliste::WechsleReiter(const Zahlen& zahlen) {
    if (!vorlieben_.ZumAuffaelligenReiter) return;
    const auto jetzt = static_cast<std::size_t>(&gitter_.Reiter() - kErgebnisreiter.data());
    const auto erster = std::find_if(zahlen.begin(), zahlen.end(), &Markiert);
    if (erster == zahlen.end() || Markiert(zahlen[jetzt])) return;
    gitter_.WaehleReiter(static_cast<int>(erster - zahlen.begin()));
}

void Ergebnisliste::FuelleReiter() {
    gitter_.SetzeNummer(erster_);
    if (Leer()) return gitter_.LeereGitter(leergrund_);
    const Ergebnisreiter& reiter = gitter_.Reiter();
    if (!programm_.daten.Vorhanden(reiter.datei))
        return gitter_.LeereGitter(AusUtf8(reiter.datei) + QStringLiteral(" liegt nicht beim Netz"));
    try {
        ListeReiter(reiter);
    } catch (const std::exception& f) {
        gitter_.LeereGitter(AusUtf8(Fehlertext(f)));
    }
    meldeTabellen_();
}

void Ergebnisliste::ListeReiter(const Ergebnisreiter& reiter) {
    Antwort antwort = programm_.daten.FrageTabelle(reiter.tabelle, Abfrage(reiter));
    const std::string gegen = Gegenabfrage(reiter);
    if (gegen.empty()) return gitter_.FuelleGitter(std::move(antwort));
    Antwort her = programm_.daten.FrageTabelle(reiter.tabelle, gegen);
    const std::size_t anzahl = her.zeilen.size();
    if (anzahl == 0) return gitter_.FuelleGitter(std::move(antwort));
    if (gegenrichtung_ == Gegenrichtung::Auflisten)
        return gitter_.FuelleGitter(MitGegenrichtung(std::move(antwort), std::move(her)));
    gitter_.FuelleGitter(
        std::move(antwort),
        QStringLiteral(
            "In der Gegenrichtung, von %1 nach %2, gibt es %3; die Seitenleiste listet sie mit auf.")
            .arg(*zweiter_, erster_,
                 anzahl == 1 ? QStringLiteral("einen Vektor") : QStringLiteral("%1 Vektoren").arg(anzahl)));
}

}  // namespace zrw
