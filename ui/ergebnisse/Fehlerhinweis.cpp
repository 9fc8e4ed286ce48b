#include "ui/ergebnisse/Fehlerhinweis.h"

#include "ui/ergebnisse/Beobachtungstext.h"

namespace zrw {

Fehlerhinweis::Fehlerhinweis(QWidget* bild)
    : Bildhinweis(bild,
                  {QStringLiteral("FehlerHinweis"), QStringLiteral("FehlerZeigen"),
                   QStringLiteral("FehlerSchliessen")},
                  QStringLiteral("Zeigen (F4)"), QStringLiteral("Nächster grober Fehler")) {
    gedrueckt_ = [this] {
        if (zeige) zeige();
    };
}

void Fehlerhinweis::ZeigeStand(const Beobachtungsliste& liste) {
    const QString satz = Fehlersatz(liste);
    if (satz.isEmpty()) return hide();
    ZeigeKnopf(ZaehleMarkierte(liste) > 0);
    ZeigeText(lesung_.isEmpty() ? satz : satz + QStringLiteral("; ") + lesung_);
}

}  // namespace zrw
