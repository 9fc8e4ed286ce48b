#include "ui/ergebnisse/Beobachtungszeiger.h"

#include <QPainter>
#include <array>
#include <utility>

#include "model/Bildorte.h"
#include "output/Abschneiden.h"
#include "ui/Umwandlung.h"

namespace zrw {
namespace {

/// From the outside in, one over the other: soft edges. They darken, so that what lies there stays readable.
constexpr std::array<int, 3> kBreiten{22, 16, 10};  // [px]
const QColor kHoffarbe(255, 196, 0, 70);

bool WirdGezeigt(const Liste& netz, const PunktKnoten& p) {
    return p.Item->Visible && netz.Dargestellt(*p.Item);
}

}  // namespace

QString Beobachtungszeiger::ZeigeImBild(const Beobachtung& b) {
    hof_.reset();
    Liste& netz = *u_.plan.Daten();
    u_.loeseWerkzeuge();
    PPunktKnoten von = netz.FindPunkt(b.von.Text());
    PPunktKnoten nach = b.nach.Leer() ? nullptr : netz.FindPunkt(b.nach.Text());
    QStringList fehlende;
    if (von == nullptr) fehlende << AusNetz(b.von.Text());
    if (nach == nullptr && !b.nach.Leer()) fehlende << AusNetz(b.nach.Text());
    if (!fehlende.isEmpty()) {
        u_.auswahl.LeereAuswahl();
        return fehlende.size() == 1 ? QStringLiteral("Punkt %1 ist nicht im Plan.").arg(fehlende.front())
                                    : QStringLiteral("Die Punkte %1 sind nicht im Plan.")
                                          .arg(fehlende.join(QStringLiteral(" und ")));
    }
    QString mangel;
    if (nach != nullptr) {
        ZeigeLinie(*von, *nach, mangel);
    } else {
        u_.bild.SetzeMitte({von->XWPu, von->YWPu});
        u_.auswahl.WaehlePunkt(*von);
        hof_ = Hof{von->PNr, kKeinPunkt};
        if (!WirdGezeigt(netz, *von)) mangel = QStringLiteral("Der Punkt ist ausgeblendet.");
    }
    return mangel;
}

void Beobachtungszeiger::ZeigeLinie(PunktKnoten& von, PunktKnoten& nach, QString& mangel) {
    u_.bild.ZoomeAufOrte({von.XWPu, von.YWPu}, {nach.XWPu, nach.YWPu});
    PPunktKante kante = u_.plan.Daten()->FindKante(von.PNr, nach.PNr);
    if (kante != nullptr && kante->Item->Visible) {
        u_.auswahl.WaehleKante(*kante);
    } else {
        u_.auswahl.LeereAuswahl();
        mangel = kante != nullptr ? QStringLiteral("Die Linie ist ausgeblendet.")
                                  : QStringLiteral("Im Plan ist dort keine Linie.");
    }
    hof_ = Hof{von.PNr, nach.PNr};
}

void Beobachtungszeiger::AuswahlGewechselt() {
    if (!hof_) return;
    const PunktKante* kante = u_.auswahl.Kante();
    const auto& punkte = u_.auswahl.Punkte();
    const bool linie = kante != nullptr && ((kante->ANr == hof_->von && kante->ENr == hof_->nach) ||
                                            (kante->ANr == hof_->nach && kante->ENr == hof_->von));
    const bool punkt = hof_->nach == kKeinPunkt && punkte.size() == 1 && punkte.front()->PNr == hof_->von;
    if (!linie && !punkt) hof_.reset();
}

void Beobachtungszeiger::ZeichneHof(QPainter& maler) {
    if (!hof_ || !u_.plan.Offen()) return;
    Liste& netz = *u_.plan.Daten();
    const PunktKnoten* von = netz.SuchPkt(hof_->von);
    const PunktKnoten* nach = hof_->nach == kKeinPunkt ? von : netz.SuchPkt(hof_->nach);
    if (von == nullptr || nach == nullptr) return;
    constexpr std::int32_t kRand = 30;
    const Rechteck sichtbar{-kRand, -kRand, netz.Weite + kRand, netz.Hoehe + kRand};
    const auto teil = SchneideLinieAb(BildortVon(*von, netz), BildortVon(*nach, netz), sichtbar);
    if (!teil) return;
    maler.save();
    maler.setRenderHint(QPainter::Antialiasing);
    maler.setCompositionMode(QPainter::CompositionMode_Multiply);
    const QPoint a(teil->first.x, teil->first.y);
    const QPoint e(teil->second.x, teil->second.y);
    for (const int breite : kBreiten) {
        // A point has a disc, as wide as a line and its symbol.
        const int weite = a == e ? breite + kRand : breite;
        maler.setPen(QPen(kHoffarbe, weite, Qt::SolidLine, Qt::RoundCap));
        a == e ? maler.drawPoint(a) : maler.drawLine(a, e);
    }
    maler.restore();
}

}  // namespace zrw
