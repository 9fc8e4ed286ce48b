#include "ui/fenster/Nummernordner.h"

#include <QImage>
#include <QPainter>
#include <QProgressDialog>
#include <memory>

#include "ui/bild/Malerflaeche.h"
#include "ui/fenster/Sanduhr.h"

namespace zrw {
namespace {

/// From so many on it takes long enough to show how far it is.
constexpr std::size_t kViele = 2000;

QString Anzahltext(std::size_t n) {
    return n == 1 ? QStringLiteral("1 Punktnummer") : QStringLiteral("%1 Punktnummern").arg(n);
}

std::optional<Planbeschriftung::Ordnung> Suche(const Planbeschriftung& plan, QWidget* fenster) {
    if (plan.Bewegliche() < kViele) {
        const Sanduhr sanduhr;
        return plan.OrdneNummern();
    }
    constexpr int kGanz = 1000;
    QProgressDialog fortschritt(QStringLiteral("Punktnummern werden geordnet …"), QStringLiteral("Abbrechen"),
                                0, kGanz, fenster);
    fortschritt.setObjectName(QStringLiteral("OrdnungsFortschritt"));
    fortschritt.setWindowTitle(QStringLiteral("Punktnummern ordnen"));
    fortschritt.setWindowModality(Qt::WindowModal);
    fortschritt.setMinimumDuration(0);
    return plan.OrdneNummern([&](int promille) {
        fortschritt.setValue(std::min(promille, kGanz - 1));
        return !fortschritt.wasCanceled();
    });
}

}  // namespace

Nummernordner::Nummernordner(const Umfeld& umfeld, QWidget* fenster)
    : u_(umfeld), fenster_(fenster), dialog_(new Ordnungsdialog(fenster)) {
    dialog_->ordne = [this](const Ordnungsdialog::Wahl& wahl) { OrdneNummern(wahl); };
}

Bildpunkt Nummernordner::NeuerAbstand() const {
    return {u_.umgebung.Anzeige().PXOff, u_.umgebung.Anzeige().PYOff};
}

void Nummernordner::BeginneNetz(bool ausBild) {
    stand_.BeginneNetz(NeuerAbstand());
    ausBild_ = ausBild;
}

void Nummernordner::FrageAlle() {
    nur_.clear();
    OeffneDialog();
}

void Nummernordner::FrageNach(const std::vector<PPunktKnoten>& punkte) {
    nur_.clear();
    for (const PunktKnoten* p : punkte)
        nur_.insert(p->PNr);
    if (!nur_.empty()) OeffneDialog();
}

void Nummernordner::OeffneDialog() {
    if (u_.umgebung.AktuelleListe() == nullptr) return;
    dialog_->Oeffne(nur_.empty() ? QStringLiteral("die Punktnummern")
                                 : QStringLiteral("die Nummern der ausgewählten Punkte"),
                    ausBild_);
}

/// @return nothing where the user has to choose something else first
std::optional<Planbeschriftung> Nummernordner::Plan(const Ordnungsdialog::Wahl& wahl) {
    Liste& liste = *u_.umgebung.AktuelleListe();
    const Zeichenmittel mittel{u_.programm.zustand, u_.programm.einstellungen, u_.programm.netz,
                               u_.programm.uhr};
    const auto beweglich = [&](const PunktString& t) {
        return (nur_.empty() || nur_.count(t.TNr) != 0) &&
               (wahl.auchVerschobene || !stand_.IstVerschoben(t, NeuerAbstand()));
    };
    if (!wahl.fuerDruck) {
        Bildflaeche schrift(1, 1);
        schrift.SetzePlanschrift(u_.bild.Planschrift());
        return Planbeschriftung::FuerBild(liste.Vorlage(), mittel, schrift, beweglich);
    }
    const auto massstab = u_.druck.Massstab();
    if (!massstab) return std::nullopt;
    const double aufloesung = u_.programm.drucker.Seite().aufloesung;
    QImage nichts(1, 1, QImage::Format_RGB32);
    QPainter maler(&nichts);
    const Malerflaeche schrift(maler, {}, Druckschrift(u_.bild.Planschrift(), aufloesung));
    return Planbeschriftung::FuerDruck(liste.Vorlage(), mittel, schrift, *massstab, aufloesung, beweglich);
}

void Nummernordner::OrdneNummern(const Ordnungsdialog::Wahl& wahl) {
    if (u_.umgebung.AktuelleListe() == nullptr) return;
    const auto plan = Plan(wahl);
    if (!plan) return;
    if (plan->Bewegliche() == 0) {
        return u_.umgebung.ZeigeStatus(QStringLiteral(
            "Keine Punktnummer zu ordnen: Es sind keine zu sehen, oder sie sind von Hand verschoben."));
    }
    auto ordnung = Suche(*plan, fenster_);
    if (!ordnung)
        return u_.umgebung.ZeigeStatus(QStringLiteral("Abgebrochen, alle Nummern stehen wie vorher."));
    TueOrdnung(std::move(*ordnung));
}

void Nummernordner::TueOrdnung(Planbeschriftung::Ordnung&& ordnung) {
    const std::size_t offen = ordnung.nachher.ueberlappt;
    const QString rest = offen == 0 ? QStringLiteral("keine überlappt eine andere")
                                    : QStringLiteral("%1 überlappen noch").arg(offen);
    if (ordnung.versetzt.empty())
        return u_.umgebung.ZeigeStatus(QStringLiteral("Alle Punktnummern stehen schon so; ") + rest);
    const QString satz = Anzahltext(ordnung.versetzt.size()) + QStringLiteral(" geordnet; ") + rest;
    auto aenderung =
        std::make_unique<NummernGeordnet>(*u_.umgebung.AktuelleListe(), stand_, std::move(ordnung.versetzt));
    aenderung->setText(satz);
    u_.umgebung.TueAenderung(std::move(aenderung));
}

}  // namespace zrw
