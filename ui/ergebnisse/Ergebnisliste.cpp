#include "ui/ergebnisse/Ergebnisliste.h"

#include "model/Fehler.h"
#include "ui/Umwandlung.h"
#include "ui/ergebnisse/Ergebnisgitter.h"

namespace zrw {
namespace {

const QString kOhneNummer = QStringLiteral("Zu Punkten ohne Nummer gibt es keine Ergebnisse");

}  // namespace

Ergebnisliste::Ergebnisliste(const Programm& programm, Ergebnisgitter& gitter,
                             std::function<void()> meldeTabellen)
    : programm_(programm), gitter_(gitter), meldeTabellen_(std::move(meldeTabellen)) {
    gitter_.reiterGewechselt = [this] { ErneuereListe(); };
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
    erster_ = erster;
    zweiter_ = zweiter;
    leergrund_ = leergrund;
    ErneuereListe();
}

void Ergebnisliste::ErneuereListe() {
    gitter_.SetzeNummer(erster_);
    if (erster_.isEmpty() || (zweiter_ && zweiter_->isEmpty())) return gitter_.LeereGitter(leergrund_);
    const Ergebnisreiter& reiter = gitter_.Reiter();
    if (!programm_.daten.Vorhanden(reiter.datei))
        return gitter_.LeereGitter(AusUtf8(reiter.datei) + QStringLiteral(" liegt nicht beim Netz"));
    try {
        const std::string abfrage = zweiter_
                                        ? Abfragetext(reiter.kante, NachUtf8(erster_), NachUtf8(*zweiter_))
                                        : Abfragetext(reiter.punkt, NachUtf8(erster_));
        gitter_.FuelleGitter(programm_.daten.FrageTabelle(reiter.tabelle, abfrage));
    } catch (const std::exception& f) {
        gitter_.LeereGitter(AusUtf8(Fehlertext(f)));
    }
    meldeTabellen_();
}

}  // namespace zrw
