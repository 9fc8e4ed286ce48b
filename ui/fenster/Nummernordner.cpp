#include "ui/fenster/Nummernordner.h"

#include <QImage>
#include <QPainter>
#include <memory>

#include "output/beschriftung/Blattordnung.h"
#include "ui/bild/Malerflaeche.h"
#include "ui/dialoge/Ordnungsfortschritt.h"

namespace zrw {
namespace {

QString Anzahltext(std::size_t n) {
    return n == 1 ? QStringLiteral("1 Punktnummer") : QStringLiteral("%1 Punktnummern").arg(n);
}

}  // namespace

Nummernordner::Nummernordner(const Umfeld& umfeld, QWidget* fenster)
    : u_(umfeld), fenster_(fenster), dialog_(new Ordnungsdialog(fenster)) {
    dialog_->ordne = [this](const Ordnungsdialog::Wahl& wahl) { OrdneNummern(wahl); };
}

bool Nummernordner::IstVerschoben(const PunktString& t) const {
    return stand_.IstVerschoben(t, NeuerAbstand());
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

Planbeschriftung Nummernordner::FuerBild(const Planbeschriftung::Beweglich& beweglich) const {
    // As wide as on this screen: smooth ones are wider, and those of other sizes not by the same factor.
    const double dichte = u_.bild.Dichte();
    Bildflaeche schrift(1, 1);
    schrift.SetzeGroesse(1, 1, dichte);
    schrift.SetzeGlatt(u_.vorlieben.KantenGlaetten);
    schrift.SetzePlanschrift(u_.bild.Planschrift());
    return Planbeschriftung::FuerBild(u_.umgebung.AktuelleListe()->Vorlage(), Mittel(), schrift, dichte,
                                      beweglich);
}

Planbeschriftung Nummernordner::FuerDruck(double massstab,
                                          const Planbeschriftung::Beweglich& beweglich) const {
    const Druckseite seite = u_.druck.Teilung().plan;
    QImage nichts(1, 1, QImage::Format_RGB32);
    QPainter maler(&nichts);
    const Malerflaeche schrift(maler, {}, Druckschrift(u_.bild.Planschrift(), seite.aufloesung));
    return Planbeschriftung::FuerDruck(u_.umgebung.AktuelleListe()->Vorlage(), Mittel(), schrift, massstab,
                                       seite, beweglich);
}

void Nummernordner::OrdneNummern(const Ordnungsdialog::Wahl& wahl) {
    if (u_.umgebung.AktuelleListe() == nullptr) return;
    Liste& liste = *u_.umgebung.AktuelleListe();
    const auto beweglich = [&](const PunktString& t) {
        return (nur_.empty() || nur_.count(t.TNr) != 0) && (wahl.auchVerschobene || !IstVerschoben(t));
    };
    const auto massstab = wahl.fuerDruck ? u_.druck.Massstab() : std::nullopt;
    if (wahl.fuerDruck && !massstab) return;
    Planbeschriftung plan = massstab ? FuerDruck(*massstab, beweglich) : FuerBild(beweglich);
    if (plan.Bewegliche() == 0) {
        return u_.umgebung.ZeigeStatus(QStringLiteral(
            "Keine Punktnummer zu ordnen: Es sind keine zu sehen, oder sie sind von Hand verschoben."));
    }
    auto ordnung = SucheMitFortschritt(plan.Bewegliche(), fenster_, [&](const Fortschritt& fortschritt) {
        if (!massstab) return plan.OrdneNummern(fortschritt);
        const auto schneide = [&] { return u_.druck.Planblaetter(liste, *massstab); };
        return OrdneAufBlaetter(plan, liste, schneide, fortschritt);
    });
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
