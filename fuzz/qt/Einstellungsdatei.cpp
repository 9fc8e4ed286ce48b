// Arbitrary bytes as the file of the settings and of the session: read as the start of the program reads
// them.
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QTemporaryDir>
#include <cstddef>
#include <cstdint>
#include <string>

#include "fuzz/Proben.h"
#include "model/Fehler.h"
#include "ui/Einstellungsablage.h"
#include "ui/Sitzung.h"

namespace {

using namespace zrw;

/// A stored value may be a picture, which only a program with graphics can read: the real one has them by
/// then.
void BrauchtGrafik() {
    static int anzahl = 1;
    static char name[] = "fuzz";
    static char* worte[] = {name, nullptr};
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static const QGuiApplication kAnwendung(anzahl, worte);
}

/// A name that was not used for a while: the store keeps the contents of the files that it has seen last.
QString Lege(const char* daten, std::size_t groesse) {
    static const QTemporaryDir kOrdner;
    static int laufend = 0;
    constexpr int kNamen = 64;
    const QString name = kOrdner.filePath(QString::number(laufend++ % kNamen) + QStringLiteral(".ini"));
    QFile datei(name);
    fuzz::Verlange(datei.open(QIODevice::WriteOnly) &&
                       datei.write(daten, static_cast<qint64>(groesse)) == static_cast<qint64>(groesse),
                   "die Eingabe liegt bereit");
    return name;
}

void Pruefe(const QString& name) {
    Einstellungen e;
    {
        const Einstellungsablage ablage(name);
        LoadSettings(e, ablage);
        (void)TavelinOrdner(ablage);
    }
    const Sitzung sitzung(name);
    fuzz::Verlange(sitzung.LetzteDateien().size() <= Sitzung::kLetzteDateien, "nicht zu viele Dateien");
    (void)sitzung.Ordner();
    (void)sitzung.Stand(QStringLiteral("Fensterlage"));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* daten, std::size_t groesse) {
    const std::string eingabe(daten, daten + groesse);
    BrauchtGrafik();
    const QString name = Lege(eingabe.data(), eingabe.size());
    try {
        Pruefe(name);
    } catch (const Fehler&) {  // refused with a message
    }
    QFile::remove(name);
    return 0;
}
