#include "ui/fenster/Aussenhinweis.h"

namespace zrw {

Aussenhinweis::Aussenhinweis(QWidget* bild)
    : Bildhinweis(bild,
                  {QStringLiteral("AussenHinweis"), QStringLiteral("AussenhinweisEinpassen"),
                   QStringLiteral("AussenhinweisSchliessen")},
                  QStringLiteral("Einpassen (F)"), QStringLiteral("Sichtbare Punkte einpassen")) {
    gedrueckt_ = [this] {
        if (einpassen) einpassen();
    };
}

void Aussenhinweis::ZeigeAnzahl(const Planbild::Punktzahl& zahl) {
    if (zahl.draussen == 0) return hide();
    ZeigeText(zahl.gezeigt == 1
                  ? QStringLiteral("Der einzige Punkt liegt außerhalb des Bildes.")
                  : QStringLiteral("%1 von %2 Punkten %3 außerhalb des Bildes.")
                        .arg(zahl.draussen)
                        .arg(zahl.gezeigt)
                        .arg(zahl.draussen == 1 ? QStringLiteral("liegt") : QStringLiteral("liegen")));
}

}  // namespace zrw
