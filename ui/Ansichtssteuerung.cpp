#include "ui/Ansichtssteuerung.h"

#include <algorithm>
#include <cstdlib>

namespace zrw {
namespace {

/// Whether fitting the extents would show all points. Those of a picture file may be anything.
bool AusdehnungUmfasstAlles(const Liste& l) {
    if (!(l.MaxXW > l.MinXW) || !(l.MaxYW > l.MinYW)) return false;
    for (const PunktKnoten* p = l.PunktKnoten; p != nullptr; p = p->Next) {
        if (p->XWPu < l.MinXW || p->XWPu > l.MaxXW || p->YWPu < l.MinYW || p->YWPu > l.MaxYW) return false;
    }
    return true;
}

}  // namespace

std::optional<Bildlage> Ansichtssteuerung::Eingepasst(const Liste& liste) {
    Weltkasten gezeigt;
    for (const PunktKnoten* p = liste.PunktKnoten; p != nullptr; p = p->Next) {
        if (p->Item->Visible && liste.Dargestellt(*p->Item)) gezeigt.Nimm(p->XWPu, p->YWPu);
    }
    if (gezeigt.Leer()) return std::nullopt;
    return liste.Eingepasst(gezeigt);
}

bool Ansichtssteuerung::Rolle(Ansicht& ansicht, Bildpunkt ort, int schritte) const {
    const int anzahl = std::min(std::abs(schritte), 10);
    bool gezoomt = false;
    for (int i = 0; i < anzahl; ++i)
        gezoomt |= ansicht.Zoome(static_cast<double>(ort.x), static_cast<double>(ort.y), schritte < 0,
                                 einstellungen_.Zoomschritt);
    return gezoomt;
}

void Ansichtssteuerung::NeuesNetz() {
    ansichten_.clear();
    ausdehnungAlt_ = false;
}

void Ansichtssteuerung::ZeigeAlles(Liste& liste) {
    if (std::exchange(ausdehnungAlt_, false) || !AusdehnungUmfasstAlles(liste)) liste.FindWorldMinMax();
    if (liste.PunktKnoten != nullptr) static_cast<Ansicht&>(liste).PasseEin();
    pflege_.ZeichneNeu(liste);
}

void Ansichtssteuerung::Merke(const Bildlage& lage) {
    constexpr std::size_t kHoechstens = 50;
    if (ansichten_.size() == kHoechstens) ansichten_.erase(ansichten_.begin());
    ansichten_.push_back(lage);
}

std::optional<Bildlage> Ansichtssteuerung::NimmLetzte() {
    if (ansichten_.empty()) return std::nullopt;
    const Bildlage letzte = ansichten_.back();
    ansichten_.pop_back();
    return letzte;
}

void Ansichtssteuerung::Verschiebe(Liste& liste, Bildpunkt weg) {
    liste.SetzeVersatz(liste.Versatz(), weg);
    pflege_.Verschiebe(liste, weg);
}

void Ansichtssteuerung::BeginneZug(const Ansicht& ansicht) {
    zuganfang_ = ansicht.Versatz();
    gezogen_ = {};
    zugziel_ = {};
}

/// From where dragging began, so that many small moves do not add up their rounding.
bool Ansichtssteuerung::Folge(Liste& liste) {
    if (zugziel_ == gezogen_) return false;
    liste.SetzeVersatz(zuganfang_, zugziel_);
    pflege_.Verschiebe(liste, Rueckstand());
    gezogen_ = zugziel_;
    return true;
}

}  // namespace zrw
