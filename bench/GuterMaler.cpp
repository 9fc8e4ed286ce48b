#include "bench/GuterMaler.h"

#include <algorithm>

#include "output/Abschneiden.h"
#include "output/Figurenzeichner.h"
#include "output/Kantenbild.h"
#include "output/Uhr.h"
#include "ui/Umwandlung.h"
#include "ui/bild/Malerflaeche.h"

namespace zrw::bench {
namespace {

constexpr std::uint64_t kKeinStift = ~std::uint64_t{0};
constexpr int kStempelmitte = 32;

/// The part of an image that is not transparent.
QRect Sichtbares(const QImage& bild) {
    QRect grenzen;
    for (int y = 0; y < bild.height(); ++y) {
        for (int x = 0; x < bild.width(); ++x) {
            if (qAlpha(bild.pixel(x, y)) != 0) grenzen |= QRect(x, y, 1, 1);
        }
    }
    return grenzen;
}

}  // namespace

GuterMaler::GuterMaler(Liste& liste, const Einstellungen& einstellungen, int weite, int hoehe, bool glatt)
    : liste_(liste),
      einstellungen_(einstellungen),
      bild_(weite, hoehe, QImage::Format_RGB32),
      schrift_(Bildschrift(Zeichenschrift(), 1.0, glatt)) {
    for (const PunktString* t = liste.PktTextKnoten; t != nullptr; t = t->Next) {
        QStaticText& text = texte_.emplace_back(AusNetz(t->Item->Aus.Text()));
        text.setTextFormat(Qt::PlainText);
        text.setPerformanceHint(QStaticText::AggressiveCaching);
        text.prepare({}, schrift_);
    }
    maler_.begin(&bild_);
    maler_.setRenderHint(QPainter::Antialiasing, glatt);
    maler_.setRenderHint(QPainter::TextAntialiasing, glatt);
    maler_.setFont(schrift_);
}

void GuterMaler::ZeichneBild() {
    randstriche_.clear();
    bild_.fill(Qt::white);
    stift_ = kKeinStift;
    if (liste_.ShowBeob) Linien();
    Punkte();
    if (liste_.ShowPktText) Texte();
}

// --- Lines ------------------------------------------------------------------------------------------------

void GuterMaler::Linien() {
    const std::int64_t rand = 8 + einstellungen_.PTSize + 3 * einstellungen_.Querstrich +
                              2 * einstellungen_.GPSGroesse + einstellungen_.Umweggroesse;
    for (const PunktKante* k = liste_.KanteKnoten; k != nullptr; k = k->Next) {
        const Kante& kante = *k->Item;
        const Bildpunkt a = kante.Position();
        const Bildpunkt e = kante.Ende();
        if (!kante.Visible || std::max(a.x, e.x) < -rand || std::min(a.x, e.x) > bild_.width() + rand ||
            std::max(a.y, e.y) < -rand || std::min(a.y, e.y) > bild_.height() + rand)
            continue;
        Kantenstriche(kante);
    }
    GibBildAus();
}

void GuterMaler::Kantenstriche(const Kante& kante) {
    const Rechteck sichtbar{0, 0, bild_.width() - 1, bild_.height() - 1};
    const Farbe farbe = Kantenfarbe(kante.KAttr, kante.LAttr, kante.Farbe);
    const Kantenbild striche(kante.KAttr, kante.LAttr, kante.Position(), kante.Ende(), einstellungen_);
    for (const Zug& zug : striche.Zuege()) {
        for (const Strich& strich : Striche(zug.form)) {
            const auto teil = SchneideLinieAb(zug.punkte[strich.von], zug.punkte[strich.nach], sichtbar);
            if (!teil) continue;
            const std::uint64_t stift = farbe.wert | std::uint64_t{strich.gestrichelt} << 32U;
            if (stift != stift_) {
                GibBildAus();
                const auto [platz, neu] = stifte_.try_emplace(stift);
                if (neu)
                    platz->second =
                        QPen(AlsQColor(farbe), 0, strich.gestrichelt ? Qt::DashLine : Qt::SolidLine);
                maler_.setPen(platz->second);
                stift_ = stift;
            }
            linien_.emplace_back(teil->first.x, teil->first.y, teil->second.x, teil->second.y);
            const QRect bild = bild_.rect();
            if (!bild.contains(linien_.back().p1()) || !bild.contains(linien_.back().p2()))
                randstriche_.push_back({linien_.back(), strich.gestrichelt});
        }
    }
}

/// Hands over the lines of one pen.
void GuterMaler::GibBildAus() {
    if (!linien_.empty()) maler_.drawLines(linien_.data(), static_cast<int>(linien_.size()));
    linien_.clear();
}

// --- Symbols and labels -----------------------------------------------------------------------------------

void GuterMaler::Punkte() {
    const Rechteck sichtbar{0, 0, bild_.width() - 1, bild_.height() - 1};
    for (const PunktKnoten* p = liste_.PunktKnoten; p != nullptr; p = p->Next) {
        if (!p->Item->Visible || !InReichweite(p->Item->Position(), kStempelmitte, sichtbar)) continue;
        const Stempel& s = Symbol(*p->Item);
        maler_.drawImage(QPoint(static_cast<int>(p->Item->XO), static_cast<int>(p->Item->YO)) + s.ecke,
                         s.bild);
    }
}

const GuterMaler::Stempel& GuterMaler::Symbol(const Punkt& punkt) {
    const auto schluessel = punkt.Farbe.wert | std::uint64_t{static_cast<std::uint8_t>(punkt.PktTyp)} << 32U |
                            std::uint64_t{static_cast<std::uint8_t>(punkt.PktAttr)} << 40U;
    const auto [platz, neu] = stempel_.try_emplace(schluessel);
    if (!neu) return platz->second;
    // The routine that draws symbols everywhere draws this one, too.
    constexpr int kSeite = 2 * kStempelmitte + 1;
    QImage bild(kSeite, kSeite, QImage::Format_ARGB32_Premultiplied);
    bild.fill(Qt::transparent);
    QPainter maler(&bild);
    Malerflaeche flaeche(maler, {0, 0, kSeite - 1, kSeite - 1});
    Zeichenzustand zustand{.flaeche = &flaeche};
    const Systemuhr uhr;
    const Netzangaben netz;
    Punkt mitten = punkt;
    mitten.XO = mitten.YO = kStempelmitte;
    Figurenzeichner(zustand, einstellungen_, netz, uhr).ZeichnePunkt(mitten, mitten.Position(), Gang::Zeigen);
    maler.end();
    const QRect grenzen = Sichtbares(bild);
    platz->second = {bild.copy(grenzen), grenzen.topLeft() - QPoint(kStempelmitte, kStempelmitte)};
    return platz->second;
}

void GuterMaler::SetzeFarbe(Farbe farbe) {
    if (stift_ == farbe.wert) return;
    maler_.setPen(AlsQColor(farbe));
    stift_ = farbe.wert;
}

void GuterMaler::Texte() {
    const Rechteck sichtbar{0, 0, bild_.width() - 1, bild_.height() - 1};
    std::size_t nr = 0;
    for (const PunktString* t = liste_.PktTextKnoten; t != nullptr; t = t->Next, ++nr) {
        // No label is wider; asking each for its size would cost more than the few that are drawn in vain.
        constexpr std::int64_t kWeiteste = 160;
        const Bildpunkt ort = t->Item->Textort();
        if (!t->Item->Visible || !InReichweite(ort, kWeiteste, sichtbar) || ort.y < -kStempelmitte) continue;
        SetzeFarbe(t->Item->Col);
        maler_.drawStaticText(static_cast<int>(ort.x), static_cast<int>(ort.y), texte_[nr]);
    }
}

}  // namespace zrw::bench
