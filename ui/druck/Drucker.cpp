#include "ui/druck/Drucker.h"

#include <QFile>
#include <QFontInfo>
#include <QPageSetupDialog>
#include <QPaintEngine>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QTemporaryDir>
#include <algorithm>
#include <cmath>
#include <optional>
#include <vector>

#include "model/Fehler.h"
#include "model/Zahlentext.h"
#include "output/Export.h"
#include "ui/Umwandlung.h"
#include "ui/ablage/Sitzung.h"
#include "ui/bild/Malerflaeche.h"
#include "ui/druck/Dateidruck.h"
#include "ui/druck/Druckvorschau.h"

namespace zrw {
namespace {

class Druckflaeche final : public Malerflaeche {
  public:
    Druckflaeche(QPainter& maler, const Druckseite& seite, const QFont& schrift)
        : Malerflaeche(maler, {0, 0, seite.weite - 1, seite.hoehe - 1}, schrift) {
        const int strich =
            std::max(1, static_cast<int>(std::lround(kStrichbreite / kMillimeterJeZoll * seite.aufloesung)));
        SetzeStrichbreite(strich, seite.aufloesung / kBildaufloesung);
        // Lines that leave the sheet end at its edge, not somewhere in the margin; those along it keep their
        // width.
        maler.setClipRect(QRect(-strich, -strich, seite.weite + 2 * strich, seite.hoehe + 2 * strich));
        // Printers have no pixels to keep free of grey, and a preview is unreadable without it.
        maler.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    }
};

/// A whole PDF ends like this; Qt does not tell when the disk is full.
constexpr const char* kPdfende = "%%EOF";

const QString kPapier = QStringLiteral("Papier");

}  // namespace

QFont Druckschrift(const QFont& schrift, double aufloesung) {
    QFont aufPapier = schrift;
    aufPapier.setPixelSize(
        static_cast<int>(std::lround(QFontInfo(schrift).pixelSize() * aufloesung / kBildaufloesung)));
    aufPapier.setHintingPreference(QFont::PreferNoHinting);
    aufPapier.setStyleStrategy(QFont::PreferAntialias);
    return aufPapier;
}

Systemdrucker::Systemdrucker(Dateien& dateien, Sitzung* sitzung) : dateien_(dateien), sitzung_(sitzung) {}
Systemdrucker::~Systemdrucker() = default;

QPrinter& Systemdrucker::Geraet() const {
    if (geraet_ == nullptr) {
        const QPrinterInfo info = QPrinterInfo::defaultPrinter();
        geraet_ = info.isNull() ? std::make_unique<QPrinter>(QPrinter::HighResolution)
                                : std::make_unique<QPrinter>(info, QPrinter::HighResolution);
        geraet_->setCreator(QStringLiteral("Zarwik"));
        NimmPapier(*geraet_);
    }
    // Whoever chooses another printer or a file in a dialog gets that one's own, which is a screen's for
    // files.
    constexpr int kGrob = 150;
    if (stand_ != geraet_->printerName() + geraet_->outputFileName() || geraet_->resolution() < kGrob) {
        // Drivers that scale for themselves accept any resolution and name none, or several.
        const QList<int> moegliche = geraet_->supportedResolutions();
        const bool ueblich = geraet_->outputFormat() == QPrinter::PdfFormat || moegliche.isEmpty() ||
                             moegliche.contains(kUeblicheAufloesung) || moegliche.last() <= 0;
        geraet_->setResolution(ueblich ? kUeblicheAufloesung : moegliche.last());
        stand_ = geraet_->printerName() + geraet_->outputFileName();
    }
    return *geraet_;
}

/// The paper of the last run: width, height, 1 for landscape, and the margins, all lengths in millimetres.
void Systemdrucker::NimmPapier(QPrinter& geraet) const {
    if (sitzung_ == nullptr) return;
    std::vector<double> werte;
    for (const QByteArray& text : sitzung_->Stand(kPapier).split(' ')) {
        const auto zahl = LiesReal(text.toStdString());
        constexpr double kGroesstes = 5000.0;
        if (!zahl || *zahl < 0.0 || *zahl > kGroesstes) return;
        werte.push_back(*zahl);
    }
    if (werte.size() != 7 || werte[0] < 1.0 || werte[1] < 1.0) return;
    const QPageSize papier(QSizeF(werte[0], werte[1]), QPageSize::Millimeter, QString(),
                           QPageSize::FuzzyMatch);
    geraet.setPageLayout(QPageLayout(papier, werte[2] > 0.0 ? QPageLayout::Landscape : QPageLayout::Portrait,
                                     QMarginsF(werte[3], werte[4], werte[5], werte[6]),
                                     QPageLayout::Millimeter));
}

void Systemdrucker::MerkePapier() const {
    if (sitzung_ == nullptr) return;
    const QPageLayout seite = Geraet().pageLayout();
    const QSizeF papier = seite.pageSize().size(QPageSize::Millimeter);
    const QMarginsF rand = seite.margins(QPageLayout::Millimeter);
    QByteArrayList texte;
    for (const double wert :
         {papier.width(), papier.height(), seite.orientation() == QPageLayout::Landscape ? 1.0 : 0.0,
          rand.left(), rand.top(), rand.right(), rand.bottom()})
        texte << QByteArray::fromStdString(Festkomma(wert, 0, 2));
    sitzung_->MerkeStand(kPapier, texte.join(' '));
}

int Systemdrucker::Aufloesung() const {
    return Geraet().resolution();
}

Druckseite Systemdrucker::Seite() const {
    const QRect bereich = Geraet().pageLayout().paintRectPixels(Aufloesung());
    return {bereich.width(), bereich.height(), static_cast<double>(Aufloesung())};
}

bool Systemdrucker::WaehleDrucker(QWidget* eltern) {
    const bool gewaehlt = BrauchtEigeneDialoge(Geraet())
                              ? FrageNachPdf(Geraet(), eltern)
                              : QPrintDialog(&Geraet(), eltern).exec() == QDialog::Accepted;
    if (!gewaehlt) return false;
    MerkePapier();
    return true;
}

bool Systemdrucker::RichteEin(QWidget* eltern) {
    const bool gewaehlt = BrauchtEigeneDialoge(Geraet())
                              ? FrageNachPapier(Geraet(), eltern)
                              : QPageSetupDialog(&Geraet(), eltern).exec() == QDialog::Accepted;
    if (!gewaehlt) return false;
    MerkePapier();
    return true;
}

void Systemdrucker::MaleBlaetter(QPrinter& geraet, const Druckwerk& werk) const {
    const Druckseite seite = Seite();
    int erstes = 0;
    int letztes = werk.blaetter;
    // A preview shows every sheet, whatever was chosen for the last print.
    const bool vorschau = geraet.paintEngine()->type() == QPaintEngine::Picture;
    if (!vorschau && geraet.printRange() == QPrinter::PageRange && geraet.fromPage() > 0) {
        erstes = geraet.fromPage() - 1;
        letztes = std::min(letztes, geraet.toPage());
        if (erstes >= letztes)
            throw Fehler("Diese Seiten gibt es nicht: Der Plan hat " + std::to_string(werk.blaetter) +
                         " Blätter.");
    }
    QPainter maler;
    const auto misslungen = [&] {
        const QString ziel = geraet.outputFileName();
        return ziel.isEmpty() ? Fehler("Der Drucker nimmt den Auftrag nicht an. Es wurde nichts gedruckt.",
                                       NachUtf8(geraet.printerName()))
                              : Fehler("Die Datei lässt sich nicht schreiben.", NachUtf8(ziel));
    };
    if (!maler.begin(&geraet)) throw misslungen();
    const QFont druckschrift = Druckschrift(werk.schrift, seite.aufloesung);
    try {
        for (int i = erstes; i < letztes; ++i) {
            if (i > erstes && !geraet.newPage()) throw misslungen();
            Druckflaeche flaeche(maler, seite, druckschrift);
            werk.zeichne(flaeche, i);
        }
    } catch (...) {
        // A preview keeps the pages that were drawn: freeing them now would leave it with none.
        if (!vorschau) geraet.abort();
        throw;
    }
    if (!maler.end() || geraet.printerState() == QPrinter::Error) throw misslungen();
}

void Systemdrucker::DruckeBlaetter(const Druckwerk& werk) {
    QPrinter& geraet = Geraet();
    geraet.setDocName(werk.titel);
    const QString ziel = geraet.outputFileName();
    if (ziel.isEmpty()) {
        MaleBlaetter(geraet, werk);
        return;
    }
    // Into a file of its own first: the one that the user named is replaced as a whole or not at all.
    const QTemporaryDir ordner;
    // Without a name of a file the job would go to the printer.
    if (!ordner.isValid())
        throw Fehler("Der Druck lässt sich nicht zwischenspeichern (kein Ordner für Zwischendateien).",
                     NachUtf8(ziel));
    const QString entwurf = ordner.filePath(QStringLiteral("druck.pdf"));
    geraet.setOutputFileName(entwurf);
    try {
        MaleBlaetter(geraet, werk);
    } catch (...) {
        geraet.setOutputFileName(ziel);
        throw;
    }
    geraet.setOutputFileName(ziel);
    QFile datei(entwurf);
    const QByteArray inhalt = datei.open(QIODevice::ReadOnly) ? datei.readAll() : QByteArray();
    if (!inhalt.trimmed().endsWith(kPdfende))
        throw Fehler("Der Druck lässt sich nicht zwischenspeichern (Datenträger voll).",
                     NachUtf8(ordner.path()));
    dateien_.ErsetzeDatei(NachPfad(ziel), {inhalt.constData(), static_cast<std::size_t>(inhalt.size())});
}

void Systemdrucker::DruckeInDatei(const QString& datei, const QPageLayout& seite) {
    Geraet().setOutputFileName(datei);
    Geraet().setPageLayout(seite);
}

bool Systemdrucker::ZeigeVorschau(QWidget* eltern, Vorschauplan& plan) {
    std::optional<Fehler> fehler;
    Druckvorschau dialog(Geraet(), plan, eltern);
    dialog.male = [&](QPrinter& geraet) {
        try {
            MaleBlaetter(geraet, plan.Werk());
        } catch (const std::exception& f) {
            fehler = Fehler(f.what());  // not through the widget that asked
        }
    };
    const bool drucken = dialog.exec() == QDialog::Accepted;
    MerkePapier();
    if (fehler) throw Fehler(*fehler);
    return drucken;
}

}  // namespace zrw
