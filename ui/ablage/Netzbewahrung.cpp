#include "ui/ablage/Netzbewahrung.h"

#include <QDateTime>
#include <QFileInfo>
#include <QLocale>
#include <utility>

#include "model/Fehler.h"
#include "model/Rettungsstand.h"
#include "ui/Umwandlung.h"
#include "ui/ablage/Rettung.h"

namespace zrw {

Netzbewahrung::Netzbewahrung(const Programm& programm, Fenster fenster)
    : programm_(programm), fenster_(std::move(fenster)) {
    constexpr int kMinute = 60000;
    QObject::connect(&uhr_, &QTimer::timeout, &uhr_, [this] { BewahrePlan(); });
    uhr_.start(kMinute);
}

void Netzbewahrung::BewahrePlan() {
    if (programm_.rettung == nullptr) return;
    const Plan plan = fenster_.plan();
    if (plan.liste == nullptr) return;
    if (!plan.ungesichert) return VergissPlan();
    try {
        // The next run may start in another folder.
        const QString name = QFileInfo(plan.datei).absoluteFilePath();
        programm_.rettung->BewahreBytes(SchreibeRettung(*plan.liste, programm_.netz, NachUtf8(name)));
        gestoert_ = false;
    } catch (const std::exception& f) {
        // Nothing is lost yet: no message box once a minute.
        if (!std::exchange(gestoert_, true))
            fenster_.zeigeStatus(QStringLiteral("Der Netzplan kann nicht für den Notfall bewahrt werden: ") +
                                 AusUtf8(f.what()));
    }
}

void Netzbewahrung::VergissPlan() {
    if (programm_.rettung != nullptr) programm_.rettung->VergissDatei();
}

void Netzbewahrung::BeendeBewahrung(bool planBleibt) {
    uhr_.stop();
    planBleibt ? BewahrePlan() : VergissPlan();
}

bool Netzbewahrung::BieteAn() {
    if (programm_.rettung == nullptr) return false;
    Rettung& rettung = *programm_.rettung;
    for (const QString& datei : rettung.Hinterlassene()) {
        try {
            std::optional<Rettungsstand> stand = LiesStand(datei);
            if (!stand) continue;
            const QString name = AusUtf8(stand->name);
            if (!Gewollt(name, datei)) {
                rettung.LegeAb(datei);
                continue;
            }
            Lesung lesung;
            lesung.liste = std::move(stand->liste);
            lesung.netz = stand->netz;
            fenster_.uebernimm(std::move(lesung), NachPfad(name));
            BewahrePlan();
            rettung.EntferneDatei(datei);
            return true;
        } catch (const std::exception& f) {
            fenster_.zeigeFehler(f);  // the file stays: the next start may have more luck
        }
    }
    return false;
}

bool Netzbewahrung::Gewollt(const QString& name, const QString& datei) const {
    const QString zeit = QLocale(QLocale::German)
                             .toString(QFileInfo(datei).lastModified(), QStringLiteral("dd.MM.yyyy HH:mm"));
    return programm_.dialoge.FrageJaNein(
        QStringLiteral("Beim letzten Ende von Zarwik war der Netzplan\n%1\nnicht gespeichert. Er ist "
                       "vom Stand %2 Uhr noch da.\n\nWiederherstellen?")
            .arg(QFileInfo(name).fileName(), zeit));
}

/// @return nothing for a damaged file, which is put aside
/// @throws std::exception where the plot may be read another time
std::optional<Rettungsstand> Netzbewahrung::LiesStand(const QString& datei) {
    const std::string bytes = programm_.rettung->LiesDatei(datei);
    try {
        return LiesRettung(bytes, programm_.einstellungen, NachUtf8(datei));
    } catch (const Fehler& f) {
        fenster_.zeigeFehler(f);
        programm_.rettung->LegeAb(datei);
        return std::nullopt;
    }
}

}  // namespace zrw
