// Main window: what becomes of an unsaved plot when the program ends without a word.
#include <QDateTime>
#include <QFileInfo>
#include <QLocale>
#include <utility>

#include "model/Rettungsstand.h"
#include "ui/Hauptfenster.h"
#include "ui/Rettung.h"
#include "ui/Umwandlung.h"

namespace zrw {

/// Every minute, and before work that other programs take part in.
void TZrwMainDlg::BewahreNetz() {
    if (programm_.rettung == nullptr || liste_ == nullptr) return;
    if (!Ungesichert()) return VergissRettung();
    if (gedrueckt_ != nullptr) return;  // figures that are being dragged are marked invisible
    try {
        // The next run may start in another folder.
        const QString name = QFileInfo(titel_.mid(QStringLiteral("Zarwik ").size())).absoluteFilePath();
        programm_.rettung->Bewahre(SchreibeRettung(*liste_, programm_.netz, NachUtf8(name)));
        rettungGestoert_ = false;
    } catch (const std::exception& f) {
        // Nothing is lost yet: no message box once a minute.
        if (!std::exchange(rettungGestoert_, true))
            ZeigeStatus(QStringLiteral("Der Netzplan kann nicht für den Notfall bewahrt werden: ") +
                        AusUtf8(f.what()));
    }
}

void TZrwMainDlg::VergissRettung() {
    if (programm_.rettung != nullptr) programm_.rettung->Vergiss();
}

bool TZrwMainDlg::BieteRettungAn() {
    if (programm_.rettung == nullptr) return false;
    Rettung& rettung = *programm_.rettung;
    for (const QString& datei : rettung.Hinterlassene()) {
        try {
            std::optional<Rettungsstand> stand = LiesHinterlassenes(datei);
            if (!stand) continue;
            const QString name = AusUtf8(stand->name);
            const QString zeit =
                QLocale(QLocale::German)
                    .toString(QFileInfo(datei).lastModified(), QStringLiteral("dd.MM.yyyy HH:mm"));
            if (!programm_.dialoge.Frage(
                    QStringLiteral("Zarwik wurde nicht ordentlich beendet. Der Netzplan\n%1\nwar nicht "
                                   "gespeichert und ist vom Stand %2 Uhr noch da.\n\nWiederherstellen?")
                        .arg(QFileInfo(name).fileName(), zeit))) {
                rettung.LegeAb(datei);
                continue;
            }
            Lesung lesung;
            lesung.liste = std::move(stand->liste);
            lesung.netz = stand->netz;
            Uebernimm(std::move(lesung), NachPfad(name));
            ungesichert_ = true;
            ZeigeTitel();
            BewahreNetz();
            rettung.Entferne(datei);
            return true;
        } catch (const std::exception& f) {
            ZeigeFehler(f);  // the file stays: the next start may have more luck
        }
    }
    return false;
}

/// @return nothing for a damaged file, which is put aside
/// @throws std::exception where the plot may be read another time
std::optional<Rettungsstand> TZrwMainDlg::LiesHinterlassenes(const QString& datei) {
    const std::string bytes = programm_.rettung->Lies(datei);
    try {
        return LiesRettung(bytes, programm_.einstellungen, NachUtf8(datei));
    } catch (const Fehler& f) {
        ZeigeFehler(f);
        programm_.rettung->LegeAb(datei);
        return std::nullopt;
    }
}

}  // namespace zrw
