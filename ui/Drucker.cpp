#include "ui/Drucker.h"

#include <QFontInfo>
#include <QPageSetupDialog>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <cmath>
#include <optional>

#include "model/Fehler.h"
#include "output/Export.h"
#include "ui/Malerflaeche.h"
#include "ui/Umwandlung.h"
#include "ui/dialoge/Druckvorschau.h"

namespace zrw {
namespace {

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

void Systemdrucker::Male(QPrinter& geraet, const Druckwerk& werk) const {
    QPainter maler;
    const auto misslungen = [&] {
        const QString ziel = geraet.outputFileName();
        return ziel.isEmpty() ? Fehler("Der Drucker nimmt den Auftrag nicht an. Es wurde nichts gedruckt.",
                                       NachUtf8(geraet.printerName()))
                              : Fehler("Die Datei lässt sich nicht schreiben.", NachUtf8(ziel));
    };
    if (!maler.begin(&geraet)) throw misslungen();
    const Druckseite seite = Seite();
    QFont druckschrift = werk.schrift;
    druckschrift.setPixelSize(static_cast<int>(
        std::lround(QFontInfo(werk.schrift).pixelSize() * seite.aufloesung / kBildaufloesung)));
    druckschrift.setHintingPreference(QFont::PreferNoHinting);
    try {
        for (int i = 0; i < werk.blaetter; ++i) {
            if (i > 0 && !geraet.newPage()) throw misslungen();
            Druckflaeche flaeche(maler, seite, druckschrift);
            werk.zeichne(flaeche, i);
        }
    } catch (...) {
        geraet.abort();
        throw;
    }
    if (!maler.end() || geraet.printerState() == QPrinter::Error) throw misslungen();
}

void Systemdrucker::Drucke(const Druckwerk& werk) {
    Geraet().setDocName(werk.titel);
    Male(Geraet(), werk);
}

bool Systemdrucker::ZeigeVorschau(QWidget* eltern, const Druckwerk& werk, const QImage& uebersicht) {
    std::optional<Fehler> fehler;
    Druckvorschau dialog(Geraet(), uebersicht, eltern);
    dialog.male = [&](QPrinter& geraet) {
        try {
            Male(geraet, werk);
        } catch (const Fehler& f) {
            fehler = f;  // not through the widget that asked
        }
    };
    const bool drucken = dialog.exec() == QDialog::Accepted;
    if (fehler) throw Fehler(*fehler);
    return drucken;
}

}  // namespace zrw
