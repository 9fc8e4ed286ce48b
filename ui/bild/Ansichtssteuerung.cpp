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
    fruehere_.clear();
    spaetere_.clear();
    inBewegung_ = false;
    ausdehnungAlt_ = false;
}

void Ansichtssteuerung::PasseEin(const Netz& netz, Ansicht& ansicht) {
    if (netz.PunktKnoten == nullptr) return;
    if (std::exchange(ausdehnungAlt_, false) || !AusdehnungUmfasstAlles(ansicht, netz))
        ansicht.SetzeAusdehnung(netz.Ausdehnung());
    ansicht.PasseEin();
}

void Ansichtssteuerung::MerkeLage(const Bildlage& lage, Wechsel wechsel) {
    constexpr std::size_t kHoechstens = 50;
    const bool weiter = inBewegung_ && wechsel == Wechsel::Bewegung;
    inBewegung_ = wechsel == Wechsel::Bewegung;
    spaetere_.clear();
    if (weiter) return;
    if (fruehere_.size() == kHoechstens) fruehere_.erase(fruehere_.begin());
    fruehere_.push_back(lage);
}

/// The last of one row, where the present view goes to the end of the other.
static std::optional<Bildlage> TauscheLage(std::vector<Bildlage>& von, std::vector<Bildlage>& nach,
                                           const Bildlage& jetzt) {
    if (von.empty()) return std::nullopt;
    nach.push_back(jetzt);
    const Bildlage lage = von.back();
    von.pop_back();
    return lage;
}

std::optional<Bildlage> Ansichtssteuerung::NimmFruehere(const Bildlage& jetzt) {
    inBewegung_ = false;
    return TauscheLage(fruehere_, spaetere_, jetzt);
}

std::optional<Bildlage> Ansichtssteuerung::NimmSpaetere(const Bildlage& jetzt) {
    inBewegung_ = false;
    return TauscheLage(spaetere_, fruehere_, jetzt);
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
