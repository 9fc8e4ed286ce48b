// Main window: legend and export.
#include <QDir>
#include <QFileInfo>
#include <algorithm>
#include <limits>

#include "model/Fehler.h"
#include "output/Export.h"
#include "ui/Hauptfenster.h"
#include "ui/Sanduhr.h"
#include "ui/Umwandlung.h"

namespace zrw {
namespace {

std::int32_t Auf32(std::int64_t v) {
    using Grenze = std::numeric_limits<std::int32_t>;
    return static_cast<std::int32_t>(std::clamp<std::int64_t>(v, Grenze::min(), Grenze::max()));
}

}  // namespace

/// The one place that tells what an action could not do; its scopes have put everything back by then.
void TZrwMainDlg::ZeigeFehler(const std::exception& fehler) {
    const bool eigener = dynamic_cast<const Fehler*>(&fehler) != nullptr;
    programm_.dialoge.Melde(eigener ? AusUtf8(fehler.what()) : QStringLiteral("Der Speicher reicht nicht."));
}

void TZrwMainDlg::SpeedButton12Click() {
    if (liste_ == nullptr) return;
    legendentexte_->Bearbeite(*liste_);
    liste_->Legend->Masstab = Utf8NachCp1252(NachUtf8(EditMasstab_->text()));
    ZeichneNeu();
}

void TZrwMainDlg::SpeedButton16Click() {
    if (liste_ == nullptr) return;
    const auto massstab = EditMasstab_->Massstab();
    if (!massstab) {
        programm_.dialoge.Melde(QStringLiteral("Der Druckmaßstab muss eine Zahl größer als 0 sein."));
        EditMasstab_->setFocus();
        EditMasstab_->selectAll();
        return;
    }
    try {
        const Sanduhr sanduhr;
        const double faktor = Druckfaktor(*massstab, programm_.drucker.Aufloesung());
        Exportiere(*liste_, zeichner_, programm_.zustand, programm_.dateien, {faktor, kPlotname, kDxfname});
        if (liste_->ShowLegende) liste_->Legend->Masstab = Utf8NachCp1252(NachUtf8(EditMasstab_->text()));
        ZeichneNeu();
    } catch (const std::exception& f) {
        ZeigeFehler(f);
        return;
    }
    statusBar()->showMessage(QStringLiteral("Geschrieben nach ") +
                             QDir::toNativeSeparators(QDir::currentPath()));
    // "ZRP.PLT" is not the file's name, but what users have always read here.
    programm_.dialoge.Sage(
        QStringLiteral("Dateien ZRW.DXF (DXF-Format) und ZRP.PLT (HPGL/2-Format) erzeugt."));
}

// --- Dragging the legend ----------------------------------------------------------------------------------

/// Where a press would take hold of the legend: with a tool mode on, the press is the tool's.
bool TZrwMainDlg::UeberLegendenecke(Bildpunkt ort) const {
    return liste_ != nullptr && liste_->ShowLegende && Aktiv() == nullptr &&
           liste_->Gefangen(ort, liste_->Legend->Position());
}

Bildpunkt TZrwMainDlg::Legendenort() const {
    return liste_->Legend->Position();
}

void TZrwMainDlg::FasseLegende(Bildpunkt ort) {
    liste_->MausLegende(ort);
}

void TZrwMainDlg::ZieheLegende(Bildpunkt ort) {
    liste_->Legend->Drag(Auf32(ort.x), Auf32(ort.y), zeichner_);
    bild_->update();
}

void TZrwMainDlg::LegendeLosgelassen() {
    liste_->Legend->Move = false;
    ZeichneNeu();
}

}  // namespace zrw
