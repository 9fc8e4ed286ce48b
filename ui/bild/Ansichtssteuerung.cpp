#include "ui/bild/Ansichtssteuerung.h"

#include <algorithm>
#include <cstdlib>

namespace zrw {
namespace {

/// Whether fitting the extents would show all points. Those of a picture file may be anything.
bool AusdehnungUmfasstAlles(const Ansicht& a, const Netz& netz) {
    if (!(a.MaxXW > a.MinXW) || !(a.MaxYW > a.MinYW)) return false;
    bool alle = true;
    netz.FuerAllePunkte([&](const PunktKnoten& p) {
        alle = alle && !(p.XWPu < a.MinXW || p.XWPu > a.MaxXW || p.YWPu < a.MinYW || p.YWPu > a.MaxYW);
    });
    return alle;
}

}  // namespace

std::optional<Bildlage> Ansichtssteuerung::Eingepasst(const Netz& netz, const Ansicht& ansicht,
                                                      const Darstellung& darstellung) {
    Weltkasten gezeigt;
    netz.FuerAllePunkte([&](const PunktKnoten& p) {
        if (p.Item->Visible && darstellung.Dargestellt(*p.Item)) gezeigt.NimmOrt(p.XWPu, p.YWPu);
    });
    if (gezeigt.Leer()) return std::nullopt;
    return ansicht.Eingepasst(gezeigt);
}

bool Ansichtssteuerung::Rolle(Ansicht& ansicht, Bildpunkt ort, int schritte, double zoomschritt) {
    const int anzahl = std::min(std::abs(schritte), 10);
    bool gezoomt = false;
    for (int i = 0; i < anzahl; ++i)
        gezoomt |= ansicht.ZoomeSchritt(static_cast<double>(ort.x), static_cast<double>(ort.y), schritte < 0,
                                        zoomschritt);
    return gezoomt;
}

void Ansichtssteuerung::NeuesNetz() {
    ansichten_.clear();
    ausdehnungAlt_ = false;
}

void Ansichtssteuerung::PasseEin(const Netz& netz, Ansicht& ansicht) {
    if (netz.PunktKnoten == nullptr) return;
    if (std::exchange(ausdehnungAlt_, false) || !AusdehnungUmfasstAlles(ansicht, netz))
        ansicht.SetzeAusdehnung(netz.Ausdehnung());
    ansicht.PasseEin();
}

void Ansichtssteuerung::MerkeLage(const Bildlage& lage) {
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

void Ansichtssteuerung::BeginneZug(const Ansicht& ansicht) {
    zuganfang_ = ansicht.Versatz();
    gezogen_ = {};
    zugziel_ = {};
}

/// From where dragging began, so that many small moves do not add up their rounding.
std::optional<Bildpunkt> Ansichtssteuerung::Folge(Ansicht& ansicht) {
    if (zugziel_ == gezogen_) return std::nullopt;
    const Bildpunkt weg = Rueckstand();
    ansicht.SetzeVersatz(zuganfang_, zugziel_);
    gezogen_ = zugziel_;
    return weg;
}

}  // namespace zrw
