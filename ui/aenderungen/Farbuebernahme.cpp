#include "ui/aenderungen/Farbuebernahme.h"

#include <algorithm>
#include <memory>
#include <utility>

namespace zrw {
namespace {

using Farben = std::array<Farbe, 4>;

/// The colour that takes the place of another; the same where that is not among them. Of two settings with
/// one colour the first counts.
Farbe Ersatz(Farbe alt, const Farben& von, const Farben& nach) {
    const auto stelle = static_cast<std::size_t>(std::find(von.begin(), von.end(), alt) - von.begin());
    return stelle < nach.size() ? nach[stelle] : alt;
}

std::size_t ZaehleFiguren(const Liste& netz, const Figurenfarben& farben) {
    std::size_t anzahl = 0;
    const auto zaehle = [&](const Farben& f, Farbe eine) {
        anzahl += std::find(f.begin(), f.end(), eine) != f.end() ? 1U : 0U;
    };
    netz.FuerAllePunkte([&](const PunktKnoten& p) { zaehle(farben.punkte, p.Item->Farbe); });
    netz.FuerAlleKanten([&](const PunktKante& k) { zaehle(farben.linien, k.Item->Farbe); });
    return anzahl;
}

}  // namespace

FarbenGeaendert::FarbenGeaendert(const Liste& liste, const Figurenfarben& von, const Figurenfarben& nach) {
    const auto merke = [this](auto& menge, auto& figur, Farbe jetzt, Farbe neu) {
        if (jetzt == neu) return;
        menge.push_back(&figur);
        andere_.push_back(neu);
    };
    for (PPunktKnoten p = liste.PunktKnoten; p != nullptr; p = p->Next)
        merke(figuren_.punkte, *p, p->Item->Farbe, Ersatz(p->Item->Farbe, von.punkte, nach.punkte));
    for (PPunktKante k = liste.KanteKnoten; k != nullptr; k = k->Next)
        merke(figuren_.kanten, *k, k->Item->Farbe, Ersatz(k->Item->Farbe, von.linien, nach.linien));
    for (PPunktString t = liste.PktTextKnoten; t != nullptr; t = t->Next)
        merke(figuren_.texte, *t, t->Item->Col, Ersatz(t->Item->Col, von.punkte, nach.punkte));
    setText(QStringLiteral("%1 Punkte, Linien und Nummern umgefärbt").arg(Anzahl()));
}

void FarbenGeaendert::redo() {
    auto andere = andere_.begin();
    for (PunktKnoten* p : figuren_.punkte)
        std::swap(p->Item->Farbe, *andere++);
    for (PunktKante* k : figuren_.kanten)
        std::swap(k->Item->Farbe, *andere++);
    for (PunktString* t : figuren_.texte)
        std::swap(t->Item->Col, *andere++);
}

void Farbuebernahme::BeginneNetz() {
    fruehere_.clear();
    MerkeFarben(FigurenfarbenAus(umgebung_.Anzeige()));
}

void Farbuebernahme::MerkeFarben(const Figurenfarben& farben) {
    std::erase(fruehere_, farben);
    fruehere_.insert(fruehere_.begin(), farben);
}

/// Those that most figures have. Steps may have been undone, and a picture file was coloured by somebody's
/// settings, which may be one of the palettes.
Figurenfarben Farbuebernahme::Bisherige(const Liste& netz) const {
    std::vector<Figurenfarben> moegliche = fruehere_;
    for (const Farbpalette& p : kFarbpaletten) {
        Einstellungen e;
        SetzeFarben(e, p.farben);
        moegliche.push_back(FigurenfarbenAus(e));
    }
    std::vector<std::size_t> anzahl;
    anzahl.reserve(moegliche.size());
    for (const Figurenfarben& f : moegliche)
        anzahl.push_back(ZaehleFiguren(netz, f));
    return moegliche[static_cast<std::size_t>(std::max_element(anzahl.begin(), anzahl.end()) -
                                              anzahl.begin())];
}

void Farbuebernahme::FaerbeNetz() {
    const Liste* netz = umgebung_.AktuelleListe();
    if (netz == nullptr) return umgebung_.ZeigeStatus(QStringLiteral("Es ist kein Netz geöffnet."));
    const Figurenfarben neu = FigurenfarbenAus(umgebung_.Anzeige());
    auto aenderung = std::make_unique<FarbenGeaendert>(*netz, Bisherige(*netz), neu);
    if (aenderung->Anzahl() == 0)
        return umgebung_.ZeigeStatus(QStringLiteral("Das Netz hat diese Farben schon."));
    MerkeFarben(neu);
    const QString satz = aenderung->text();
    umgebung_.TueAenderung(std::move(aenderung));
    if (!Unterscheidbar(neu))
        umgebung_.MeldeErledigt(satz +
                                QStringLiteral("; Arten mit gleicher Farbe sind in einer Zarwikdatei eine"));
}

}  // namespace zrw
