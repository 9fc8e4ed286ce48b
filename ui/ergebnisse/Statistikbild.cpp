#include "ui/ergebnisse/Statistikbild.h"

#include <QFontMetricsF>
#include <QPalette>
#include <QPolygonF>
#include <algorithm>
#include <cmath>

#include "ui/Umwandlung.h"

namespace zrw {
namespace {

constexpr double kGroessteTG = 5.0;
constexpr std::size_t kKlassenTG = 20;
constexpr std::size_t kKlassenEV = 20;
constexpr int kBeschriftet = 4;  ///< every so many classes a number below them

const QColor kBalkenfarbe(0x7F, 0xA8, 0xD8);
const QColor kWahlfarbe(0xE0, 0x7B, 0x1A);
const QColor kKurvenfarbe(0xB7, 0x37, 0x79);

QString Zahl(double wert) {
    return QString::number(wert, 'g', 3);
}

}  // namespace

double Statistikbild::Erwartet(std::size_t klasse) const {
    const double von = histogramm.Anfang(klasse);
    return static_cast<double>(histogramm.gesamt) *
           (NormalerAnteil(von + histogramm.breite) - NormalerAnteil(von));
}

double Statistikbild::Hoechste() const {
    double hoechste = 1.0;
    for (std::size_t k = 0; k < histogramm.anzahlen.size(); ++k) {
        hoechste = std::max(hoechste, static_cast<double>(histogramm.anzahlen[k]));
        if (mitKurve) hoechste = std::max(hoechste, Erwartet(k));
    }
    return hoechste;
}

/// The place of the bars: below the title, above the numbers.
QRectF Statistikbild::Feld(const QRectF& platz, const QFont& schrift) {
    const double zeile = QFontMetricsF(schrift).height();
    return platz.adjusted(zeile / 2, 1.5 * zeile, -zeile / 2, -1.4 * zeile);
}

QRectF Statistikbild::Balken(const QRectF& platz, const QFont& schrift, std::size_t klasse) const {
    const QRectF feld = Feld(platz, schrift);
    const double weite = feld.width() / static_cast<double>(histogramm.anzahlen.size());
    const double hoehe = feld.height() * static_cast<double>(histogramm.anzahlen[klasse]) / Hoechste();
    return {feld.left() + weite * static_cast<double>(klasse), feld.bottom() - hoehe, weite, hoehe};
}

void Statistikbild::ZeichneKurve(QPainter& maler, const QRectF& feld) const {
    QPolygonF kurve;
    const double weite = feld.width() / static_cast<double>(histogramm.anzahlen.size());
    for (std::size_t k = 0; k < histogramm.anzahlen.size(); ++k) {
        kurve << QPointF(feld.left() + weite * (static_cast<double>(k) + 0.5),
                         feld.bottom() - feld.height() * Erwartet(k) / Hoechste());
    }
    maler.setPen(QPen(kKurvenfarbe, 1.6));
    maler.setRenderHint(QPainter::Antialiasing);
    maler.drawPolyline(kurve);
    maler.setRenderHint(QPainter::Antialiasing, false);
}

void Statistikbild::Zeichne(QPainter& maler, const QRectF& platz, std::optional<std::size_t> gewaehlt) const {
    const QPen text = maler.pen();
    const QRectF feld = Feld(platz, maler.font());
    maler.drawText(platz, Qt::AlignTop | Qt::AlignHCenter, titel);
    for (std::size_t k = 0; k < histogramm.anzahlen.size(); ++k) {
        maler.setPen(QPen(text.color(), 0.5));
        maler.setBrush(k == gewaehlt ? kWahlfarbe : kBalkenfarbe);
        if (histogramm.anzahlen[k] > 0) maler.drawRect(Balken(platz, maler.font(), k));
    }
    maler.setBrush(Qt::NoBrush);
    if (mitKurve) ZeichneKurve(maler, feld);
    const double ende = histogramm.Anfang(histogramm.anzahlen.size());
    const auto stelle = [&](double ort) { return feld.left() + feld.width() * ort / ende; };
    if (grenze && *grenze < ende) {
        maler.setPen(QPen(kKurvenfarbe, 1, Qt::DashLine));
        maler.drawLine(QPointF(stelle(*grenze), feld.top()), QPointF(stelle(*grenze), feld.bottom()));
    }
    maler.setPen(text);
    maler.drawLine(feld.bottomLeft(), feld.bottomRight());
    for (std::size_t k = 0; k <= histogramm.anzahlen.size(); k += kBeschriftet) {
        const double x = stelle(histogramm.Anfang(k));
        maler.drawText(
            QRectF(x - feld.width(), feld.bottom() + 2, 2 * feld.width(), platz.bottom() - feld.bottom()),
            Qt::AlignTop | Qt::AlignHCenter, Zahl(histogramm.Anfang(k)));
    }
    if (histogramm.darueber > 0) {
        maler.drawText(feld, Qt::AlignTop | Qt::AlignRight,
                       QStringLiteral("%1 über %2").arg(histogramm.darueber).arg(Zahl(ende)));
    }
}

QString Statistikbild::Klassensatz(std::size_t klasse) const {
    return QStringLiteral("%1 von %2 bis %3: %4 Beobachtungen")
        .arg(AusUtf8(ZurSpalte(wert).name), Zahl(histogramm.Anfang(klasse)),
             Zahl(histogramm.Anfang(klasse + 1)))
        .arg(histogramm.anzahlen[klasse]);
}

Statistikbild TestgroessenBild(const Beobachtungsliste& liste, std::optional<Beobachtungstabelle> gattung,
                               double grenze) {
    return {.titel = QStringLiteral("Testgrößen |TG| und Normalverteilung"),
            .wert = Messwert::TG,
            .gattung = gattung,
            .histogramm = ZaehleKlassen(liste, Messwert::TG, gattung, kGroessteTG, kKlassenTG),
            .mitKurve = true,
            .grenze = grenze};
}

Statistikbild RedundanzBild(const Beobachtungsliste& liste, std::optional<Beobachtungstabelle> gattung) {
    return {.titel = QStringLiteral("Redundanzanteile EV"),
            .wert = Messwert::EV,
            .gattung = gattung,
            .histogramm = ZaehleKlassen(liste, Messwert::EV, gattung, 1.0, kKlassenEV)};
}

}  // namespace zrw
