#include "ui/Drucker.h"

#include <QFontInfo>
#include <QPageSetupDialog>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <cmath>

#include "model/Fehler.h"
#include "output/Export.h"
#include "ui/Malerflaeche.h"
#include "ui/Umwandlung.h"

namespace zrw {
namespace {

/// Thinner lines than this are lost on paper [mm].
constexpr double kStrichbreite = 0.15;
constexpr double kMillimeterJeZoll = 25.4;

class Druckflaeche final : public Malerflaeche {
  public:
    Druckflaeche(QPainter& maler, const Druckseite& seite, const QFont& schrift)
        : Malerflaeche(maler, {0, 0, seite.weite - 1, seite.hoehe - 1}, schrift) {
        SetzeStrichbreite(
            std::max(1, static_cast<int>(std::lround(kStrichbreite / kMillimeterJeZoll * seite.aufloesung))));
    }
};

}  // namespace

Systemdrucker::Systemdrucker() = default;
Systemdrucker::~Systemdrucker() = default;

QPrinter& Systemdrucker::Geraet() const {
    if (geraet_ != nullptr) return *geraet_;
    const QPrinterInfo info = QPrinterInfo::defaultPrinter();
    geraet_ = info.isNull() ? std::make_unique<QPrinter>(QPrinter::HighResolution)
                            : std::make_unique<QPrinter>(info, QPrinter::HighResolution);
    geraet_->setCreator(QStringLiteral("Zarwik"));
    // Drivers that scale for themselves accept any resolution and name none, or several.
    const QList<int> moegliche = geraet_->supportedResolutions();
    const bool ueblich =
        moegliche.isEmpty() || moegliche.contains(kUeblicheAufloesung) || moegliche.last() <= 0;
    geraet_->setResolution(ueblich ? kUeblicheAufloesung : moegliche.last());
    return *geraet_;
}

int Systemdrucker::Aufloesung() const {
    return Geraet().resolution();
}

Druckseite Systemdrucker::Seite() const {
    const QRect bereich = Geraet().pageLayout().paintRectPixels(Aufloesung());
    return {bereich.width(), bereich.height(), static_cast<double>(Aufloesung())};
}

bool Systemdrucker::Waehle(QWidget* eltern) {
    QPrintDialog dialog(&Geraet(), eltern);
    // The plot is one sheet: there are no pages to choose from.
    dialog.setOption(QAbstractPrintDialog::PrintPageRange, false);
    return dialog.exec() == QDialog::Accepted;
}

bool Systemdrucker::RichteEin(QWidget* eltern) {
    QPageSetupDialog dialog(&Geraet(), eltern);
    return dialog.exec() == QDialog::Accepted;
}

void Systemdrucker::Drucke(const QString& titel, const QFont& schrift,
                           const std::function<void(Zeichenflaeche&)>& zeichne) {
    QPrinter& geraet = Geraet();
    geraet.setDocName(titel);
    QPainter maler;
    const auto misslungen = [&] {
        const QString ziel = geraet.outputFileName();
        return ziel.isEmpty() ? Fehler("Der Drucker nimmt den Auftrag nicht an. Es wurde nichts gedruckt.",
                                       NachUtf8(geraet.printerName()))
                              : Fehler("Die Datei lässt sich nicht schreiben.", NachUtf8(ziel));
    };
    if (!maler.begin(&geraet)) throw misslungen();
    const Druckseite seite = Seite();
    QFont druckschrift = schrift;
    druckschrift.setPixelSize(
        static_cast<int>(std::lround(QFontInfo(schrift).pixelSize() * seite.aufloesung / kBildaufloesung)));
    druckschrift.setHintingPreference(QFont::PreferNoHinting);
    Druckflaeche flaeche(maler, seite, druckschrift);
    try {
        zeichne(flaeche);
    } catch (...) {
        geraet.abort();
        throw;
    }
    if (!maler.end() || geraet.printerState() == QPrinter::Error) throw misslungen();
}

}  // namespace zrw
