// Arbitrary bytes as the file of the settings and of the session: read as the start of the program reads
// them.
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <cstddef>
#include <cstdint>
#include <string>

#include "fuzz/Proben.h"
#include "model/Fehler.h"
#include "ui/ablage/Einstellungsablage.h"
#include "ui/ablage/Inidatei.h"
#include "ui/ablage/Sitzung.h"

namespace {

using namespace zrw;

QString LegeDateiAn(const char* daten, std::size_t groesse) {
    static const QTemporaryDir kOrdner;
    const QString name = kOrdner.filePath(QStringLiteral("x.ini"));
    QFile datei(name);
    fuzz::VerlangeBedingung(
        datei.open(QIODevice::WriteOnly) &&
            datei.write(daten, static_cast<qint64>(groesse)) == static_cast<qint64>(groesse),
        "die Eingabe liegt bereit");
    return name;
}

void PruefeDatei(const QString& name) {
    Einstellungen e;
    {
        const Einstellungsablage ablage(name);
        LoadSettings(e, ablage);
        (void)TavelinOrdner(ablage);
    }
    const Sitzung sitzung(name);
    fuzz::VerlangeBedingung(sitzung.LetzteDateien().size() <= Sitzung::kLetzteDateien,
                            "nicht zu viele Dateien");
    (void)sitzung.Ordner();
    (void)sitzung.Stand(QStringLiteral("Fensterlage"));
    // What was read is what is written, whatever stands around it.
    Inidatei ini(name, "Sitzung");
    const QStringList texte = ini.LiesTexte("Dateien");
    ini.SetzeTexte("Dateien", texte);
    fuzz::VerlangeBedingung(ini.LiesTexte("Dateien") == texte || texte.isEmpty(),
                            "Setzen und Lesen sind eins");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* daten, std::size_t groesse) {
    const std::string eingabe(daten, daten + groesse);
    const QString name = LegeDateiAn(eingabe.data(), eingabe.size());
    try {
        PruefeDatei(name);
    } catch (const Fehler&) {  // refused with a message
    }
    QFile::remove(name);
    return 0;
}
