#include "ui/ergebnisse/Residuenwahl.h"

#include <algorithm>
#include <array>
#include <utility>

#include "model/Fehler.h"
#include "output/Residuenbild.h"
#include "output/Residuenmass.h"
#include "ui/Umwandlung.h"
#include "ui/ablage/Residuenablage.h"
#include "ui/fenster/Aktionen.h"
#include "ui/fenster/Fensterort.h"

namespace zrw {
namespace {

constexpr auto kGemerkte = std::to_array<std::pair<const char*, bool Residuendarstellung::*>>({
    {"CheckBoxResiduenPfeile", &Residuendarstellung::Residuenpfeile},
    {"CheckBoxEllipsenGefuellt", &Residuendarstellung::EllipsenGefuellt},
    {"CheckBoxEllipsenSicher", &Residuendarstellung::Ellipsen95},
});

}  // namespace

Residuenwahl::Residuenwahl(Umfeld umfeld, Aktionen& aktionen, QWidget* fenster)
    : u_(std::move(umfeld)), dialog_(new Residuendialog(fenster)) {
    LadeResiduendarstellung(wahl_, u_.programm.ablage);
    new Fensterort(*dialog_, Rand::RechtsOben);
    FolgeSchalter(aktionen);
    dialog_->geaendert = [this](const Residuendialog::Stand& stand) { StelleEin(stand); };
    dialog_->passeAn = [this] { PasseAn(); };
    QObject::connect(dialog_, &QDialog::finished, dialog_, [this] {
        SaveSettings(u_.programm.einstellungen, u_.programm.ablage);
        SichereWahl();
    });
}

void Residuenwahl::FolgeSchalter(Aktionen& aktionen) {
    for (const auto& [name, feld] : kGemerkte) {
        QAction& aktion = aktionen.NachName(name);
        aktion.setChecked(wahl_.*feld);
        QObject::connect(&aktion, &QAction::toggled, dialog_, [this, feld = feld](bool ein) {
            wahl_.*feld = ein;
            SichereWahl();
        });
    }
}

void Residuenwahl::OeffneDialog() {
    ZeigeDialog();
    dialog_->show();
    dialog_->raise();
    dialog_->activateWindow();
}

void Residuenwahl::ZeigeDialog() {
    dialog_->ZeigeStand({u_.programm.einstellungen.ResMF, wahl_.Ellipsenmassstab}, Hinweis());
}

QString Residuenwahl::Hinweis() {
    const double resMF = u_.programm.einstellungen.ResMF;
    if (const std::string text = Massstabhinweis(resMF); !text.empty()) return AusUtf8(text);
    Punktergebnisse* ergebnisse = u_.programm.zustand.Ergebnisse;
    if (!u_.plan.Offen() || ergebnisse == nullptr) return {};
    const Liste& netz = *u_.plan.Daten();
    return AusUtf8(Groessenhinweis(MissResiduen(u_.plan.Daten()->Vorlage(), *ergebnisse), netz, resMF,
                                   static_cast<double>(netz.Weite)));
}

void Residuenwahl::StelleEin(const Residuendialog::Stand& stand) {
    u_.programm.einstellungen.ResMF = stand.residuen;
    wahl_.Ellipsenmassstab = stand.ellipsen;
    if (u_.plan.Offen()) UebernimmIn(*u_.plan.Daten());
    u_.zeichneNeu();
    ZeigeDialog();
}

/// Ellipses with a magnification of their own take it for themselves; else the largest of all counts.
void Residuenwahl::PasseAn() {
    Punktergebnisse* ergebnisse = u_.programm.zustand.Ergebnisse;
    if (!u_.plan.Offen() || ergebnisse == nullptr) return;
    const Liste& netz = *u_.plan.Daten();
    const Residuenmass mass = MissResiduen(u_.plan.Daten()->Vorlage(), *ergebnisse);
    const double ellipse = mass.ellipse * (netz.Ellipsen95 ? Residuendarstellung::kVertrauen95 : 1.0);
    const auto weite = static_cast<double>(netz.Weite);
    const bool eigener = wahl_.EigenerEllipsenmassstab();
    const auto residuen =
        PassendeVergroesserung(eigener ? mass.vektor : std::max(mass.vektor, ellipse), weite);
    const auto ellipsen = eigener ? PassendeVergroesserung(ellipse, weite) : std::nullopt;
    if (!residuen && !ellipsen) {
        dialog_->ZeigeStand({u_.programm.einstellungen.ResMF, wahl_.Ellipsenmassstab},
                            QStringLiteral("Dazu muss etwas aus den Ergebnissen eingeschaltet sein, zum "
                                           "Beispiel „Lageverbesserungen“."));
        return;
    }
    StelleEin(
        {residuen.value_or(u_.programm.einstellungen.ResMF), ellipsen.value_or(wahl_.Ellipsenmassstab)});
}

void Residuenwahl::SichereWahl() {
    try {
        SchreibeResiduendarstellung(wahl_, u_.programm.ablage);
        u_.programm.ablage.SichereWerte();
    } catch (const std::exception& f) {
        u_.programm.dialoge.MeldeFehler(AusUtf8(Fehlertext(f)) +
                                        QStringLiteral("\nSie gelten weiter, bis Zarwik beendet wird."));
    }
}

}  // namespace zrw
