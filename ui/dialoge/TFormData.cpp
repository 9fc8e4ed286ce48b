#include "ui/dialoge/TFormData.h"

#include <QFontDatabase>
#include <QPlainTextEdit>
#include <QVBoxLayout>
#include <cmath>

#include "model/Punktarten.h"
#include "model/Zahlentext.h"
#include "ui/Umwandlung.h"
#include "ui/dialoge/Beobachtungstyp.h"

namespace zrw {
namespace {

QString Koordinaten(const PunktKnoten& p) {
    return QStringLiteral("Rechtswert %1\nHochwert   %2\n")
        .arg(AusUtf8(Festkomma(p.XWPu, 14, 4)), AusUtf8(Festkomma(p.YWPu, 14, 4)));
}

/// "Richtung zweiseitig, Strecke, Höhenunterschied einseitig".
QString Beobachtungen(const Kante& k) {
    constexpr std::array kSeiten{"", " einseitig", " zweiseitig"};
    const auto seitig = [&](int n) { return QString::fromUtf8(kSeiten[static_cast<std::size_t>(n)]); };
    const Beobachtungswahl w = AlsWahl({k.LAttr, k.KAttr});
    QStringList teile;
    if (w.richtung > 0) teile << QStringLiteral("Richtung") + seitig(w.richtung);
    if (w.strecke) teile << QStringLiteral("Strecke");
    if (w.gps) teile << QStringLiteral("GPS-Vektor");
    if (w.hoehe > 0) teile << QStringLiteral("Höhenunterschied") + seitig(w.hoehe);
    if (w.indirekt) teile << QStringLiteral("indirekt");
    return teile.isEmpty() ? QStringLiteral("keine Beobachtung") : teile.join(QStringLiteral(", "));
}

}  // namespace

TFormData::TFormData(QWidget* eltern) : QDialog(eltern), text_(new QPlainTextEdit(this)) {
    setObjectName(QStringLiteral("TFormData"));
    text_->setReadOnly(true);
    text_->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    auto* feld = new QVBoxLayout(this);
    feld->addWidget(text_);
    resize(460, 320);
}

void TFormData::Zeige(Liste& netz, const PunktKnoten& punkt) {
    QString text =
        AusUtf8(ZurArt(punkt.Item->PktArt).bezeichnung) + QStringLiteral("\n\n") + Koordinaten(punkt);
    text += QStringLiteral("\nLinien zu\n");
    netz.FuerKantenAm(punkt.PNr, [&](const PunktKante& k) {
        const PunktIndex ziel = k.ANr == punkt.PNr ? k.ENr : k.ANr;
        text +=
            QStringLiteral("%1 %2\n").arg(AusNetz(netz.GetPktText(ziel)), -15).arg(Beobachtungen(*k.Item));
    });
    ZeigeText(QStringLiteral("Punkt ") + AusNetz(netz.GetPktText(punkt.PNr)), text);
}

void TFormData::Zeige(Liste& netz, const PunktKante& kante) {
    const PunktKnoten* a = netz.SuchPkt(kante.ANr);
    const PunktKnoten* e = netz.SuchPkt(kante.ENr);
    QString text = Beobachtungen(*kante.Item) + QStringLiteral("\n\n");
    for (const PunktKnoten* p : {a, e}) {
        if (p != nullptr)
            text +=
                AusNetz(netz.GetPktText(p->PNr)) + QLatin1Char('\n') + Koordinaten(*p) + QLatin1Char('\n');
    }
    if (a != nullptr && e != nullptr) {
        const double laenge = std::hypot(e->XWPu - a->XWPu, e->YWPu - a->YWPu);
        text += QStringLiteral("Länge in der Ebene %1 m\n").arg(AusUtf8(Festkomma(laenge, 0, 3)));
    }
    ZeigeText(QStringLiteral("Linie ") + AusNetz(netz.GetPktText(kante.ANr)) + QStringLiteral(" – ") +
                  AusNetz(netz.GetPktText(kante.ENr)),
              text);
}

void TFormData::ZeigeText(const QString& titel, const QString& text) {
    setWindowTitle(titel);
    text_->setPlainText(text);
    show();
    raise();
}

}  // namespace zrw
