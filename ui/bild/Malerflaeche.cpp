#include "ui/bild/Malerflaeche.h"

#include <QFontInfo>
#include <QPainterPath>
#include <QPen>
#include <QPolygon>
#include <algorithm>
#include <cmath>

#include "output/Pixelmaske.h"
#include "ui/Umwandlung.h"

namespace zrw {
namespace {

/// 8 pt on a screen of 96 dots per inch. In pixels, so that every screen and the batch mode give one picture.
constexpr int kSchrifthoehe = 11;
/// Screens are taken as 96 dots per inch, as printers' dots are scaled from them.
constexpr int kSchriftgradJeZoll = 72;
constexpr int kPixelJeZoll = 96;

QRect AlsQRect(const Rechteck& r) {
    return {QPoint(r.links, r.oben), QPoint(r.rechts, r.unten)};
}

}  // namespace

QFont Zeichenschrift() {
    QFont schrift(QStringLiteral("Arial"));
    schrift.setPixelSize(kSchrifthoehe);
    schrift.setStyleStrategy(
        static_cast<QFont::StyleStrategy>(QFont::NoAntialias | QFont::NoSubpixelAntialias));
    // Whole-pixel advances without kerning: a label's pixels then do not depend on its neighbours.
    schrift.setHintingPreference(QFont::PreferFullHinting);
    schrift.setKerning(false);
    return schrift;
}

QFont Bildschrift(const QFont& schrift, double dichte, bool glatt) {
    QFont f = schrift;
    if (dichte != 1.0)
        f.setPixelSize(std::max(1, static_cast<int>(std::lround(QFontInfo(schrift).pixelSize() * dichte))));
    if (glatt)
        f.setStyleStrategy(
            static_cast<QFont::StyleStrategy>(QFont::PreferAntialias | QFont::NoSubpixelAntialias));
    return f;
}

double Stiftmitte(double breite) {
    return std::lround(breite) % 2 == 0 ? 0.0 : 0.5;
}

Malerflaeche::Malerflaeche() : schrift_(Zeichenschrift()), masse_(schrift_), texthoehe_(masse_.height()) {}

Malerflaeche::Malerflaeche(QPainter& maler, const Rechteck& sichtbar, const QFont& schrift)
    : schrift_(schrift), masse_(schrift_), texthoehe_(masse_.height()) {
    BindeAn(maler, sichtbar);
}

void Malerflaeche::BindeAn(QPainter& maler, const Rechteck& sichtbar) {
    maler_ = &maler;
    sichtbar_ = sichtbar;
    SetzeGlatt(glatt_);
    maler_->setFont(schrift_);
    stift_.reset();
    pinsel_.reset();
}

void Malerflaeche::SetzeSchrift(const QFont& schrift) {
    schrift_ = schrift;
    masse_ = QFontMetrics(schrift_);
    texthoehe_ = masse_.height();
    maler_->setFont(schrift_);
}

void Malerflaeche::SetzeGlatt(bool glatt) {
    glatt_ = glatt;
    stift_.reset();
    maler_->setRenderHint(QPainter::Antialiasing, glatt);
    maler_->setRenderHint(QPainter::TextAntialiasing, glatt);
}

void Malerflaeche::SetzeMalerausschnitt(const Rechteck& r) {
    maler_->setClipRect(AlsQRect(r));
}

void Malerflaeche::BeginneFenster(const Rechteck& r) {
    maler_->save();
    maler_->setClipRect(AlsQRect(r), Qt::IntersectClip);
}

void Malerflaeche::BeendeFenster() {
    maler_->restore();
    stift_.reset();
    pinsel_.reset();
}

void Malerflaeche::SetzeStrichmass(double mm) {
    constexpr double kPixelJeMillimeter = kPixelJeZoll / 25.4;
    strichbreite_ = mm > 0.0 ? mm * kPixelJeMillimeter * pixel_ : ueblicherStrich_;
    stift_.reset();
}

void Malerflaeche::SetzeSchriftmass(std::int32_t dots) {
    if (!uebliche_) uebliche_ = schrift_;
    QFont schrift = *uebliche_;
    if (dots > 0) schrift.setPixelSize(dots);
    if (dots <= 0) uebliche_.reset();
    SetzeSchrift(schrift);
}

void Malerflaeche::WendeStiftAn(const Stift& stift) {
    if (stift_ == stift) return;
    QPen pen(AlsQColor(stift.farbe));
    if (glatt_) {
        pen.setWidthF(stift.breite * strichbreite_);
        pen.setJoinStyle(Qt::MiterJoin);
    } else {
        const auto breite = static_cast<int>(std::lround(stift.breite * strichbreite_));
        pen.setWidth(breite > 1 ? breite : 0);
        pen.setCosmetic(breite <= 1);
    }
    if (stift.art == Strichart::Gestrichelt) {
        pen.setStyle(Qt::DashLine);
        if (strichbreite_ > 1) {
            // Counted in widths of the pen; blunt, or wide ends would close the gaps.
            const double mass = pixel_ / strichbreite_;
            pen.setDashPattern({kStrichlaenge * mass, kStrichluecke * mass});
            pen.setCapStyle(Qt::FlatCap);
        }
    }
    maler_->setPen(pen);
    stift_ = stift;
}

void Malerflaeche::WendePinselAn(const Pinsel& pinsel) {
    if (pinsel_ == pinsel) return;
    maler_->setBrush(pinsel.leer ? QBrush(Qt::NoBrush) : QBrush(AlsQColor(pinsel.farbe)));
    pinsel_ = pinsel;
}

void Malerflaeche::Linie(Flaechenpunkt von, Flaechenpunkt nach) {
    VorDemMalen();
    WendeStiftAn(AktuellerStift());
    if (glatt_) {
        maler_->drawLine(QLineF(von.x, von.y, nach.x, nach.y).translated(Mitte()));
    } else {
        maler_->drawLine(von.x, von.y, nach.x, nach.y);
    }
}

void Malerflaeche::ZeichneRechteck(const Rechteck& r) {
    VorDemMalen();
    WendeStiftAn(AktuellerStift());
    WendePinselAn(AktuellerPinsel());
    const QRect q(r.links, r.oben, r.rechts - r.links, r.unten - r.oben);
    if (glatt_) {
        maler_->drawRect(QRectF(q).translated(Mitte()));
    } else {
        maler_->drawRect(q);
    }
}

void Malerflaeche::Ellipse(const Rechteck& u) {
    VorDemMalen();
    WendeStiftAn(AktuellerStift());
    WendePinselAn(AktuellerPinsel());
    const QRect q(u.links, u.oben, u.rechts - u.links, u.unten - u.oben);
    if (glatt_) {
        maler_->drawEllipse(QRectF(q).translated(Mitte()));
    } else {
        maler_->drawEllipse(q);
    }
}

void Malerflaeche::Vieleck(std::span<const Flaechenpunkt> ecken) {
    VorDemMalen();
    WendeStiftAn(AktuellerStift());
    WendePinselAn(AktuellerPinsel());
    QPolygon vieleck;
    for (const Flaechenpunkt& p : ecken)
        vieleck << QPoint(p.x, p.y);
    if (glatt_) {
        maler_->drawPolygon(QPolygonF(vieleck).translated(Mitte()));
    } else {
        maler_->drawPolygon(vieleck);
    }
}

void Malerflaeche::FuelleRechteck(const Rechteck& r, Farbe farbe) {
    VorDemMalen();
    // Cut to the picture first: a size from a file may be anything.
    maler_->fillRect(AlsQRect(Geschnitten(r, Sichtbar())), AlsQColor(farbe));
}

void Malerflaeche::FuelleDurchscheinend(std::span<const Flaechenpunkt> ecken, Farbe farbe, int prozent) {
    VorDemMalen();
    QPolygon vieleck;
    for (const Flaechenpunkt& p : ecken)
        vieleck << QPoint(p.x, p.y);
    QColor ton = AlsQColor(farbe);
    ton.setAlphaF(static_cast<float>(prozent) / 100.0F);
    maler_->setPen(Qt::NoPen);
    maler_->setBrush(ton);
    if (glatt_) {
        maler_->drawPolygon(QPolygonF(vieleck).translated(Mitte()));
    } else {
        maler_->drawPolygon(vieleck);
    }
    stift_.reset();
    pinsel_.reset();
}

void Malerflaeche::Text(Flaechenpunkt ort, std::string_view text, Farbe farbe) {
    VorDemMalen();
    WendeStiftAn({farbe, 1, Strichart::Voll});
    maler_->drawText(ort.x, ort.y + masse_.ascent(), AusNetz(text));
}

/// Copies all round on a screen, as its pixels are set one by one, too; strokes along the outlines where dots
/// are so fine that copies would leave gaps.
void Malerflaeche::TextMitRand(Flaechenpunkt ort, std::string_view text, Farbe farbe, Farbe randfarbe,
                               std::int32_t rand) {
    constexpr std::int32_t kGrob = 2;
    if (rand <= kGrob) {
        for (const Flaechenpunkt p : Umkreispixel(rand))
            Malerflaeche::Text({ort.x + p.x, ort.y + p.y}, text, randfarbe);
    } else {
        VorDemMalen();
        QPainterPath umriss;
        umriss.addText(ort.x, ort.y + masse_.ascent(), schrift_, AusNetz(text));
        const QPen stift(AlsQColor(randfarbe), 2.0 * rand, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
        maler_->strokePath(umriss, stift);
    }
    Malerflaeche::Text(ort, text, farbe);
}

std::int32_t Malerflaeche::Textbreite(std::string_view text) const {
    return masse_.horizontalAdvance(AusNetz(text));
}

std::int32_t Malerflaeche::Schriftgrad() const {
    return Schrifthoehe() * kSchriftgradJeZoll / kPixelJeZoll;
}

std::int32_t Malerflaeche::Schrifthoehe() const {
    return QFontInfo(schrift_).pixelSize();
}

}  // namespace zrw
