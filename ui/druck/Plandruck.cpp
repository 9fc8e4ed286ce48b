#include "ui/druck/Plandruck.h"

#include <QCheckBox>
#include <QFileInfo>
#include <QInputDialog>
#include <QPainter>
#include <algorithm>
#include <cassert>
#include <cmath>
#include <utility>

#include "input/Oeffnen.h"
#include "model/Fehler.h"
#include "model/Ganzzahl.h"
#include "output/Export.h"
#include "ui/Umwandlung.h"
#include "ui/ablage/Blattablage.h"
#include "ui/druck/Blattdialog.h"

namespace zrw {

Plandruck::Plandruck(const Programm& programm, const Bildflaeche& flaeche)
    : programm_(programm), flaeche_(flaeche) {
    LadeBlattgestaltung(gestaltung_, programm.ablage);
}

Blattteilung Plandruck::Teilung() const {
    return TeileSeite(programm_.drucker.Seite(), programm_.zustand.Blattrahmen, gestaltung_);
}

bool Plandruck::BearbeiteBlaetter(QWidget* eltern) {
    Blattdialog dialog(programm_.zustand, gestaltung_, eltern);
    if (dialog.exec() != QDialog::Accepted) return false;
    gestaltung_ = dialog.Gestaltung();
    programm_.zustand.Blattrahmen = dialog.Blattrahmen();
    programm_.zustand.GitterSchlicht = dialog.GitterSchlicht();
    SchreibeBlattgestaltung(gestaltung_, programm_.ablage);
    programm_.ablage.SichereWerte();
    AktualisiereRahmen();
    return true;
}

// --- Scale and output area --------------------------------------------------------------------------------

std::optional<double> Plandruck::Massstab() {
    assert(felder_.massstab != nullptr);
    Massstabfeld& feld = *felder_.massstab;
    auto massstab = feld.Massstab();
    if (!massstab) {
        programm_.dialoge.MeldeFehler(QStringLiteral("Der Druckmaßstab muss eine Zahl größer als 0 sein."));
        feld.setFocus();
        feld.selectAll();
    }
    return massstab;
}

std::string Plandruck::Massstabtext() const {
    return Utf8NachCp1252(NachUtf8(felder_.massstab->text()));
}

void Plandruck::AktualisiereRahmen() {
    const bool ein = felder_.rahmen->isChecked();
    if (!ein) rahmen_.LoeseEcke();
    const auto massstab = felder_.massstab->Massstab();
    if (ein && massstab) {
        rahmen_.SetzeStand(Druckrahmen::Stand{*massstab, Teilung().plan});
    } else {
        rahmen_.SetzeStand({});
    }
    felder_.bild->update();
}

void Plandruck::ZeichneRahmen(const Liste& liste, Zeichenflaeche& flaeche) const {
    rahmen_.ZeichneRahmen(liste, flaeche, programm_.einstellungen.PPCol);
}

// --- Sheets -----------------------------------------------------------------------------------------------

template <class Tun>
auto Plandruck::Miss(Liste& liste, const Tun& tun) const {
    // Texts are as wide as on paper only in the font of the print.
    QImage nichts(1, 1, QImage::Format_RGB32);
    QPainter maler(&nichts);
    const Malerflaeche schrift(maler, {},
                               Druckschrift(flaeche_.Planschrift(), programm_.drucker.Seite().aufloesung));
    return tun(Druckplan{liste.Vorlage(), Mittel(), schrift});
}

/// Sheets of the plot at this scale: the one in the corner where it holds all of it, or where there would be
/// too many; else those that take the fewest, wherever the picture stands.
Plandruck::Wahl Plandruck::Blaetter(Liste& liste, double massstab) {
    const Welt ecke = rahmen_.Ecke(liste);
    const Blattteilung teilung = Teilung();
    return Miss(liste, [&](const Druckplan& plan) -> Wahl {
        try {
            const auto dort = Blattschnitt(plan, massstab, teilung.plan, ecke);
            const bool leer = std::find(dort.begin(), dort.end(), Blatt{}) == dort.end();
            if (dort.size() > 1 || (leer && !dort.empty()))
                return {TeileBlaetterAuf(plan, massstab, teilung), false, leer};
        } catch (const Fehler&) {
            // One sheet can be printed at any scale.
        }
        return {{{0, 0, ecke}}, true, false};
    });
}

bool Plandruck::PasseMassstabEin(QWidget* eltern, Liste& liste) {
    QInputDialog frage(eltern);
    frage.setObjectName(QStringLiteral("MassstabEinpassen"));
    frage.setWindowTitle(QStringLiteral("Maßstab einpassen"));
    frage.setLabelText(QStringLiteral("Größter runder Maßstab für so viele Blätter:"));
    frage.setInputMode(QInputDialog::IntInput);
    frage.setIntRange(1, static_cast<int>(kMeisteBlaetter));
    frage.setIntValue(blaetter_);
    frage.setOkButtonText(QStringLiteral("Einpassen"));
    frage.setCancelButtonText(QStringLiteral("Abbrechen"));
    if (frage.exec() != QDialog::Accepted) return false;
    blaetter_ = frage.intValue();
    const auto massstab = Miss(liste, [&](const Druckplan& plan) {
        return PassenderMassstab(plan, Teilung(), static_cast<std::size_t>(blaetter_));
    });
    if (!massstab) {
        programm_.dialoge.MeldeFehler(
            QStringLiteral("Der Plan passt in keinem Maßstab auf so viele Blätter dieses Papiers."));
        return false;
    }
    felder_.massstab->setText(AusUtf8(zrw::Massstabtext(*massstab)));
    return true;
}

std::vector<Blatt> Plandruck::SchneideAb(Liste& liste, double massstab, Welt ursprung) const {
    return Miss(liste,
                [&](const Druckplan& plan) { return TeileBlaetterAuf(plan, massstab, Teilung(), ursprung); });
}

std::vector<Blatt> Plandruck::Planblaetter(Liste& liste, double massstab) {
    return Blaetter(liste, massstab).blaetter;
}

std::optional<std::vector<Blatt>> Plandruck::WaehleBlaetter(Liste& liste, double massstab) {
    if (gewaehlt_ && gewaehlt_->massstab == massstab && gewaehlt_->Passt(programm_.drucker.Seite()))
        return gewaehlt_->blaetter;
    auto [blaetter, inDerEcke, eckeLeer] = Blaetter(liste, massstab);
    if (inDerEcke) return blaetter;
    // Also where the plan lies on one sheet, but beside the output area.
    const auto alle = programm_.dialoge.FrageMitAbbruch(
        QStringLiteral("In diesem Maßstab liegt der Plan auf %1. Alles drucken?\n"
                       "Nein druckt nur eines: %2.%3")
            .arg(blaetter.size() == 1 ? QStringLiteral("einem anderen Blatt")
                                      : QStringLiteral("%1 Blättern").arg(blaetter.size()))
            .arg(rahmen_.Ecke() ? QStringLiteral("das des Ausgabebereichs")
                                : QStringLiteral("das in der linken oberen Ecke des Bildes"),
                 eckeLeer ? QStringLiteral("\nAuf diesem liegt nichts vom Plan.") : QString()));
    if (!alle) return std::nullopt;
    if (!*alle) blaetter = {{0, 0, rahmen_.Ecke(liste)}};
    return blaetter;
}

Druckwerk Plandruck::Werk(Liste& liste, std::vector<Blatt> blaetter, double massstab,
                          const std::filesystem::path& datei) {
    Druckwerk werk;
    const QString name = QFileInfo(AusUtf8(PfadText(datei))).fileName();
    werk.titel = QStringLiteral("Zarwik ") + name;
    werk.schrift = flaeche_.Planschrift();
    werk.blaetter = static_cast<int>(blaetter.size());
    Blattauftrag auftrag{{massstab, Massstabtext(), programm_.drucker.Seite()},
                         gestaltung_,
                         std::move(blaetter),
                         Utf8NachCp1252(NachUtf8(name)),
                         !IstBilddatei(datei)};
    auftrag.druck.legende = Legendenort(liste, auftrag.druck);
    werk.zeichne = [this, &liste, auftrag](Zeichenflaeche& flaeche, int nummer) {
        const double geraetefaktor = Geraetefaktor(auftrag.druck.seite);
        // What is seen of a print: the legend keeps naming its scale, and the device factor stays at screen
        // to printer.
        if (liste.ShowLegende && liste.Legend) liste.Legend->Masstab = auftrag.druck.massstabtext;
        DruckeBlatt(liste.Vorlage(), Mittel(), Geraetegroessen(programm_.einstellungen, geraetefaktor),
                    flaeche, auftrag, static_cast<std::size_t>(nummer));
        programm_.zustand.Geraetefaktor = 1 / geraetefaktor;
    };
    return werk;
}

/// A legend that stands within the frame of the output area stands there on the sheet.
std::optional<Bildpunkt> Plandruck::Legendenort(const Liste& liste, const Druckauftrag& auftrag) const {
    if (!felder_.rahmen->isChecked() || !liste.Legend) return std::nullopt;
    const double dot = Druckfaktor(auftrag.massstab, auftrag.seite.aufloesung);
    const Welt ecke = rahmen_.Ecke(liste);
    const Welt w = liste.BildinWelt(liste.Legend->Position());
    const Bildpunkt ort{RundeZuInt64((w.rechts - ecke.rechts) / dot),
                        RundeZuInt64((ecke.hoch - w.hoch) / dot)};
    const bool darin = ort.x >= 0 && ort.y >= 0 && ort.x < auftrag.seite.weite && ort.y < auftrag.seite.hoehe;
    return darin ? std::optional(ort) : std::nullopt;
}

// --- Printing ---------------------------------------------------------------------------------------------

void Plandruck::DruckeBlaetter(Liste& liste, std::vector<Blatt> blaetter, double massstab,
                               const std::filesystem::path& datei) {
    programm_.drucker.DruckeBlaetter(Werk(liste, std::move(blaetter), massstab, datei));
}

}  // namespace zrw
