#include "ui/bild/Dateivorschau.h"

#include <QElapsedTimer>
#include <QThread>
#include <utility>

#include "input/Oeffnen.h"
#include "input/Systemdateien.h"
#include "model/Bildvorlage.h"
#include "model/Fehler.h"
#include "output/Figurenzeichner.h"
#include "output/Uhr.h"
#include "ui/Umwandlung.h"
#include "ui/bild/Ansichtssteuerung.h"
#include "ui/bild/Bildflaeche.h"

namespace zrw {
namespace {

QImage ZeichneAlles(Lesung& lesung, const Einstellungen& einstellungen, QSize groesse) {
    Liste& netz = *lesung.liste;
    netz.Weite = groesse.width();
    netz.Hoehe = groesse.height();
    netz.ShowFL = true;
    netz.ShowPktText = false;  // too small to be read
    const auto lage = Ansichtssteuerung::Eingepasst(netz, netz, netz);
    if (lage && ErlaubteLage(*lage)) netz.SetzeLage(*lage);
    Bildflaeche flaeche(groesse.width(), groesse.height());
    Zeichenzustand zustand;
    zustand.flaeche = &flaeche;
    const Systemuhr uhr;
    Figurenzeichner zeichner(zustand, einstellungen, lesung.netz, uhr);
    ZeichneBild(netz.Vorlage(), zeichner);
    return flaeche.Bild().copy();
}

}  // namespace

Dateivorschau ZeichneDateivorschau(const QString& datei, const Einstellungen& einstellungen, QSize groesse,
                                   const std::function<bool()>& weiter) {
    constexpr qint64 kGeduld = 2000;  // [ms] in which nine files of the usual size are read
    QElapsedTimer uhr;
    uhr.start();
    try {
        const std::filesystem::path pfad = NachPfad(datei);
        const Systemdateien dateien;
        if (!dateien.Stand(pfad)) return {{}, QStringLiteral("fehlt")};
        Lesung lesung = OeffneNetz(pfad, dateien, einstellungen, {}, {groesse.width(), groesse.height()}, {},
                                   [&](double /*anteil*/) { return weiter() && uhr.elapsed() < kGeduld; });
        if (lesung.ende == Leseende::Programmende) return {{}, QStringLiteral("unvollständig")};
        if (lesung.liste->PunktKnoten == nullptr) return {{}, QStringLiteral("ohne Punkte")};
        if (!weiter()) return {};
        return {ZeichneAlles(lesung, einstellungen, groesse), {}};
    } catch (const Leseabbruch&) {
        return {};
    } catch (const std::exception&) {
        return {{}, QStringLiteral("nicht lesbar")};
    }
}

Vorschaureihe::Vorschaureihe() = default;

Vorschaureihe::~Vorschaureihe() {
    BrichAb();
    if (faden_ != nullptr) faden_->wait();
}

void Vorschaureihe::BeginneReihe(const QStringList& dateien, const Einstellungen& einstellungen,
                                 QSize groesse, QObject& empfaenger,
                                 const std::function<void(int nummer, Dateivorschau)>& fertig) {
    // Everything by value: the window goes on meanwhile.
    faden_.reset(QThread::create([=, weiter = weiter_, ziel = &empfaenger] {
        for (int i = 0; i < dateien.size() && *weiter; ++i) {
            Dateivorschau v =
                ZeichneDateivorschau(dateien[i], einstellungen, groesse, [&] { return weiter->load(); });
            if (!*weiter) return;
            QMetaObject::invokeMethod(
                ziel, [fertig, i, v = std::move(v)] { fertig(i, v); }, Qt::QueuedConnection);
        }
    }));
    faden_->start(QThread::LowPriority);
}

}  // namespace zrw
