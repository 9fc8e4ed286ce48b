#include "ui/bild/Glattstempel.h"

#include <QFontInfo>
#include <QFontMetrics>
#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "output/Pixelmaske.h"
#include "ui/Umwandlung.h"

namespace zrw {
namespace {

/// Larger shapes are rare: the painter draws them.
constexpr int kGroessterStempel = 128;
constexpr int kGroessteSchrift = 80;  ///< [px]
constexpr std::size_t kMeisteFormen = 64;
constexpr int kRand = 4;  ///< round a shape, beside its pen

/// What a painter has covered of a picture that was empty. @param null where the shape stands in it
Deckmaske MaskeVon(const QImage& bild, QPoint null) {
    QRect grenzen;
    for (int y = 0; y < bild.height(); ++y) {
        for (int x = 0; x < bild.width(); ++x) {
            if (qAlpha(bild.pixel(x, y)) != 0) grenzen |= QRect(x, y, 1, 1);
        }
    }
    std::vector<std::uint8_t> werte;
    for (int y = 0; y < grenzen.height(); ++y) {
        for (int x = 0; x < grenzen.width(); ++x)
            werte.push_back(static_cast<std::uint8_t>(qAlpha(bild.pixel(grenzen.topLeft() + QPoint(x, y)))));
    }
    return {grenzen.x() - null.x(), grenzen.y() - null.y(), grenzen.width(), grenzen.height(), werte};
}

QImage LeeresBild(int weite, int hoehe) {
    QImage bild(weite, hoehe, QImage::Format_ARGB32_Premultiplied);
    bild.fill(Qt::transparent);
    return bild;
}

/// Each pixel covered as much as the one most covered round it.
QImage Verbreitert(const QImage& bild, int rand) {
    QImage breit = bild;
    const auto alpha = [&](int x, int y) { return bild.valid(x, y) ? qAlpha(bild.pixel(x, y)) : 0; };
    for (int y = 0; y < bild.height(); ++y) {
        for (int x = 0; x < bild.width(); ++x) {
            int a = 0;
            for (const Flaechenpunkt d : Umkreispixel(rand))
                a = std::max(a, alpha(x + d.x, y + d.y));
            breit.setPixel(x, y, qRgba(0, 0, 0, a));
        }
    }
    return breit;
}

void MaleForm(QPainter& maler, Stempelform form, const std::vector<QPointF>& ecken) {
    switch (form) {
        case Stempelform::Rechteck:
            maler.drawRect(QRectF(ecken.front(), ecken.back()));
            break;
        case Stempelform::Ellipse:
            maler.drawEllipse(QRectF(ecken.front(), ecken.back()));
            break;
        case Stempelform::Vieleck:
            maler.drawPolygon(ecken.data(), static_cast<int>(ecken.size()));
            break;
    }
}

}  // namespace

void Glattstempel::SetzeDichte(double dichte) {
    vergiss_();
    dichte_ = dichte;
    formen_.clear();
}

void Glattstempel::SetzeSchrift(const QFont& schrift, bool zeichenweise) {
    vergiss_();
    schrift_ = schrift;
    glyphen_.fill({});
    halos_.fill({});
    setztZeichen_ = zeichenweise && QFontInfo(schrift).pixelSize() <= kGroessteSchrift;
}

Glattform Glattstempel::PraegeForm(Stempelform form, std::span<const Flaechenpunkt> ecken, bool leer) const {
    const int rand = kRand + static_cast<int>(std::ceil(dichte_)) * 2;
    QRect umfang;
    for (const Flaechenpunkt& p : ecken)
        umfang |= QRect(p.x - ecken[0].x, p.y - ecken[0].y, 1, 1);
    const QPoint null(rand - umfang.x(), rand - umfang.y());
    Glattform f{form, leer, {}, {}, {}};
    // Pens of an even width lie between two pixels.
    const double mitte = Stiftmitte(dichte_);
    std::vector<QPointF> dort;
    for (const Flaechenpunkt& p : ecken) {
        f.ecken.push_back({p.x - ecken[0].x, p.y - ecken[0].y});
        dort.emplace_back(f.ecken.back().x + null.x() + mitte, f.ecken.back().y + null.y() + mitte);
    }
    const auto male = [&](const QPen& stift, const QBrush& pinsel) {
        QImage bild = LeeresBild(umfang.width() + 2 * rand, umfang.height() + 2 * rand);
        QPainter maler(&bild);
        maler.setRenderHint(QPainter::Antialiasing);
        maler.setPen(stift);
        maler.setBrush(pinsel);
        MaleForm(maler, form, dort);
        maler.end();
        return MaskeVon(bild, null);
    };
    f.rand = male(QPen(Qt::black, dichte_, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin), Qt::NoBrush);
    if (!leer) f.fuellung = male(Qt::NoPen, Qt::black);
    return f;
}

const Glattform* Glattstempel::SucheForm(Stempelform form, std::span<const Flaechenpunkt> ecken, bool leer) {
    if (ecken.empty()) return nullptr;
    for (const Flaechenpunkt& p : ecken) {
        if (std::abs(std::int64_t{p.x} - ecken[0].x) > kGroessterStempel ||
            std::abs(std::int64_t{p.y} - ecken[0].y) > kGroessterStempel)
            return nullptr;
    }
    for (const Glattform& f : formen_) {
        if (f.form != form || f.leer != leer || f.ecken.size() != ecken.size()) continue;
        const bool gleich = std::equal(ecken.begin(), ecken.end(), f.ecken.begin(), [&](auto a, auto b) {
            return a.x - ecken[0].x == b.x && a.y - ecken[0].y == b.y;
        });
        if (gleich) return &f;
    }
    if (formen_.size() == kMeisteFormen) {
        vergiss_();
        formen_.clear();
    }
    return &formen_.emplace_back(PraegeForm(form, ecken, leer));
}

Glattstempel::Zeichenbild Glattstempel::MaleZeichen(char c, int rand) const {
    const QFontMetrics masse(schrift_);
    const QString text = AusNetz(std::string_view(&c, 1));
    Zeichenbild z{{}, {}, masse.horizontalAdvance(text)};
    const int hoehe = masse.height() + 2 * rand;
    z.null = {rand + hoehe, rand};  // italics reach far beside their advance
    z.bild = LeeresBild(z.vorschub + 2 * z.null.x(), hoehe);
    QPainter maler(&z.bild);
    maler.setRenderHint(QPainter::TextAntialiasing);
    maler.setFont(schrift_);
    maler.setPen(Qt::black);
    maler.drawText(z.null.x(), z.null.y() + masse.ascent(), text);
    return z;
}

const Glattglyphe& Glattstempel::NeuesZeichen(char c) {
    auto& glyphe = glyphen_[static_cast<unsigned char>(c)];
    const Zeichenbild z = MaleZeichen(c, kRand);
    glyphe = Glattglyphe{MaskeVon(z.bild, z.null), z.vorschub};
    return *glyphe;
}

const Deckmaske& Glattstempel::Halo(char c, int rand) {
    if (halorand_ != rand) {
        vergiss_();
        halos_.fill({});
        halorand_ = rand;
    }
    auto& halo = halos_[static_cast<unsigned char>(c)];
    if (!halo) {
        const Zeichenbild z = MaleZeichen(c, kRand + rand);
        halo = MaskeVon(Verbreitert(z.bild, rand), z.null);
    }
    return *halo;
}

}  // namespace zrw
