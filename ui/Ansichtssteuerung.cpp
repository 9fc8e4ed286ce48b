#include "ui/Ansichtssteuerung.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>

namespace zrw {
namespace {

/// Scales that zooming stays within [m/px]: from the hundredth of a millimetre to several earths in the
/// picture. Beyond them positions lose their last digit, and nobody finds back.
constexpr double kFeinster = 1e-5;
constexpr double kGroebster = 1e6;
/// Margin round fitted points, with room for their numbers [px].
constexpr int kRand = 40;
/// Scale for a single point [m/px].
constexpr double kEinzelpunkt = 0.5;

/// Whether fitting the extents would show all points. Those of a picture file may be anything.
bool AusdehnungUmfasstAlles(const Liste& l) {
    if (!(l.MaxXW > l.MinXW) || !(l.MaxYW > l.MinYW)) return false;
    for (const PunktKnoten* p = l.PunktKnoten; p != nullptr; p = p->Next) {
        if (p->XWPu < l.MinXW || p->XWPu > l.MaxXW || p->YWPu < l.MinYW || p->YWPu > l.MaxYW) return false;
    }
    return true;
}

}  // namespace

std::optional<Ansicht> Ansichtssteuerung::Eingepasst(const Liste& liste) {
    Welt min{};
    Welt max{};
    bool leer = true;
    for (const PunktKnoten* p = liste.PunktKnoten; p != nullptr; p = p->Next) {
        if (!p->Item->Visible || !liste.Dargestellt(*p->Item)) continue;
        const Welt ort{p->XWPu, p->YWPu};
        min = leer ? ort : Welt{std::min(min.rechts, ort.rechts), std::min(min.hoch, ort.hoch)};
        max = leer ? ort : Welt{std::max(max.rechts, ort.rechts), std::max(max.hoch, ort.hoch)};
        leer = false;
    }
    if (leer) return std::nullopt;
    const double dx = max.rechts - min.rechts;
    const double dy = max.hoch - min.hoch;
    const double weite = std::max(liste.Weite - 2 * kRand, 1);
    const double hoehe = std::max(liste.Hoehe - 2 * kRand, 1);
    // One point alone, or several at one place: a few hundred metres round it.
    const double faktor = dx > 0 || dy > 0 ? std::max(dx / weite, dy / hoehe) : kEinzelpunkt;
    return Ansicht{faktor,
                   {(min.rechts + max.rechts - liste.Weite * faktor) / 2,
                    (min.hoch + max.hoch + liste.Hoehe * faktor) / 2}};
}

Ansicht Ansichtssteuerung::Ausschnitt(const Liste& liste, Bildpunkt a, Bildpunkt b) {
    const auto weite = static_cast<double>(std::max<std::int64_t>(std::llabs(a.x - b.x), 1));
    const auto hoehe = static_cast<double>(std::max<std::int64_t>(std::llabs(a.y - b.y), 1));
    const Welt eckeA = liste.BildinWelt(a);
    const Welt eckeB = liste.BildinWelt(b);
    const double faktor = liste.Faktor * std::max(weite / liste.Weite, hoehe / liste.Hoehe);
    return {faktor,
            {(eckeA.rechts + eckeB.rechts - liste.Weite * faktor) / 2,
             (eckeA.hoch + eckeB.hoch + liste.Hoehe * faktor) / 2}};
}

bool Ansichtssteuerung::Erlaubt(const Ansicht& ansicht) {
    return ansicht.faktor >= kFeinster && ansicht.faktor <= kGroebster;
}

void Ansichtssteuerung::Setze(Liste& liste, const Ansicht& ansicht) {
    liste.Faktor = ansicht.faktor;
    liste.XOffset = ansicht.linksOben.rechts - liste.MinXW;
    liste.YOffset = ansicht.linksOben.hoch - liste.MaxYW;
}

void Ansichtssteuerung::SetzeMitte(Liste& liste, Welt mitte) {
    const double f = liste.Faktor;
    liste.XOffset = mitte.rechts - liste.MinXW - liste.Weite / 2.0 * f;
    liste.YOffset = mitte.hoch - liste.MaxYW + liste.Hoehe / 2.0 * f;
}

bool Ansichtssteuerung::Zoome(Liste& liste, double x, double y, bool groesser) const {
    const double z = einstellungen_.Zoomschritt;
    const double s = liste.Faktor;
    const double danach = groesser ? s * z : s / z;
    if (groesser ? danach < kFeinster : danach > kGroebster) return false;
    liste.XOffset += x * s;
    liste.YOffset -= y * s;
    liste.XOffset -= x * danach;
    liste.YOffset += y * danach;
    liste.Faktor = danach;
    return true;
}

bool Ansichtssteuerung::Rolle(Liste& liste, Bildpunkt ort, int schritte) const {
    const int anzahl = std::min(std::abs(schritte), 10);
    bool gezoomt = false;
    for (int i = 0; i < anzahl; ++i)
        gezoomt |= Zoome(liste, static_cast<double>(ort.x), static_cast<double>(ort.y), schritte < 0);
    return gezoomt;
}

void Ansichtssteuerung::NeuesNetz() {
    ansichten_.clear();
    ausdehnungAlt_ = false;
}

void Ansichtssteuerung::ZeigeAlles(Liste& liste) {
    if (std::exchange(ausdehnungAlt_, false) || !AusdehnungUmfasstAlles(liste)) liste.FindWorldMinMax();
    pflege_.Alles(liste);
}

void Ansichtssteuerung::Merke(const Ansicht& ansicht) {
    constexpr std::size_t kHoechstens = 50;
    if (ansichten_.size() == kHoechstens) ansichten_.erase(ansichten_.begin());
    ansichten_.push_back(ansicht);
}

std::optional<Ansicht> Ansichtssteuerung::NimmLetzte() {
    if (ansichten_.empty()) return std::nullopt;
    const Ansicht letzte = ansichten_.back();
    ansichten_.pop_back();
    return letzte;
}

void Ansichtssteuerung::Verschiebe(Liste& liste, Bildpunkt weg) {
    const double f = liste.Faktor;
    pflege_.Verschiebe(
        liste,
        {liste.XOffset - static_cast<double>(weg.x) * f, liste.YOffset + static_cast<double>(weg.y) * f},
        weg);
}

void Ansichtssteuerung::BeginneZug(const Liste& liste) {
    zuganfang_ = {liste.XOffset, liste.YOffset};
    gezogen_ = {};
    zugziel_ = {};
}

/// From where dragging began, so that many small moves do not add up their rounding.
bool Ansichtssteuerung::Folge(Liste& liste) {
    if (zugziel_ == gezogen_) return false;
    const double f = liste.Faktor;
    pflege_.Verschiebe(liste,
                       {zuganfang_.rechts - static_cast<double>(zugziel_.x) * f,
                        zuganfang_.hoch + static_cast<double>(zugziel_.y) * f},
                       Rueckstand());
    gezogen_ = zugziel_;
    return true;
}

}  // namespace zrw
