#include "ui/druck/Dateidruck.h"

#include <QFileDialog>
#include <QInputDialog>
#include <QPageLayout>
#include <QPrinter>
#include <QStandardPaths>

#include "output/Papier.h"
#include "ui/Systemart.h"
#include "ui/Umwandlung.h"

namespace zrw {

bool BrauchtEigeneDialoge(const QPrinter& geraet) {
    return kWindows && geraet.outputFormat() == QPrinter::PdfFormat;
}

bool FrageNachPdf(QPrinter& geraet, QWidget* eltern) {
    const QString vorher = geraet.outputFileName();
    const QString ordner = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    const QString name = QFileDialog::getSaveFileName(
        eltern, QStringLiteral("Kein Drucker eingerichtet: In eine PDF-Datei drucken"),
        vorher.isEmpty() ? ordner + QStringLiteral("/Zarwik.pdf") : vorher,
        QStringLiteral("PDF (*.pdf *.PDF)"));
    if (name.isEmpty()) return false;
    geraet.setOutputFileName(name);
    return true;
}

bool FrageNachPapier(QPrinter& geraet, QWidget* eltern) {
    QStringList namen;
    QList<QPageLayout> blaetter;
    int jetzt = 0;
    for (const Papierformat& f : kPapierformate) {
        for (const auto lage : {QPageLayout::Portrait, QPageLayout::Landscape}) {
            const QPageSize papier(QSizeF(f.hochkant.weite, f.hochkant.hoehe), QPageSize::Millimeter);
            const QPageLayout blatt(papier, lage,
                                    QMarginsF(kPapierrand, kPapierrand, kPapierrand, kPapierrand),
                                    QPageLayout::Millimeter);
            if (geraet.pageLayout().pageSize().isEquivalentTo(papier) &&
                geraet.pageLayout().orientation() == lage)
                jetzt = static_cast<int>(namen.size());
            namen << AusUtf8(f.name) +
                         (lage == QPageLayout::Portrait ? QStringLiteral(" hoch") : QStringLiteral(" quer"));
            blaetter << blatt;
        }
    }
    bool gewaehlt = false;
    const QString name = QInputDialog::getItem(
        eltern, QStringLiteral("Seite einrichten"),
        QStringLiteral("Papier der PDF-Datei (kein Drucker eingerichtet):"), namen, jetzt, false, &gewaehlt);
    if (gewaehlt) geraet.setPageLayout(blaetter[namen.indexOf(name)]);
    return gewaehlt;
}

}  // namespace zrw
