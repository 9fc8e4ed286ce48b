#include "model/Rettungsstand.h"

#include <cstdint>
#include <vector>

#include "model/Bilddatei.h"
#include "model/BilddateiFormat.h"
#include "model/Bytes.h"
#include "model/Fehler.h"

namespace zrw {
namespace {

constexpr std::string_view kKennung = "ZRWRETT1";

std::vector<PPunktKnoten> Punkte(const Liste& liste) {
    std::vector<PPunktKnoten> punkte;
    for (PPunktKnoten p = liste.PunktKnoten; p != nullptr; p = p->Next)
        punkte.push_back(p);
    return punkte;
}

/// The picture file's part. A picture file counts its lines in 16 bits only; here all of them follow.
std::unique_ptr<Liste> LadeGanz(ByteLeser& f, const Einstellungen& einstellungen, Netzangaben& netz,
                                const std::string& datei) {
    auto liste = Liste::Load(f, einstellungen, netz, datei);
    const bool weitere = f.Rest() >= bilddatei::kKantensatz;
    while (f.Rest() >= bilddatei::kKantensatz) {
        const PunktIndex a = f.U16();
        const PunktIndex e = f.U16();
        liste->AddKante(Kante::Load(f), a, e);
        ++liste->MaxKant;
    }
    if (weitere) liste->WeltinBild();
    return liste;
}

}  // namespace

std::string SchreibeRettung(Liste& liste, const Netzangaben& netz, const std::string& name) {
    ByteSchreiber f;
    f.Text(kKennung, kKennung.size());
    f.U32(static_cast<std::uint32_t>(name.size()));
    f.Text(name, name.size());
    const std::vector<PPunktKnoten> punkte = Punkte(liste);
    f.U32(static_cast<std::uint32_t>(punkte.size()));
    for (const PunktKnoten* p : punkte)
        f.U8(static_cast<std::uint8_t>(p->Item->PktArt));
    liste.WeltinBild();  // the picture file holds positions, too
    liste.StoreOhne(UeberzaehligeTexte(liste), f, netz);
    return std::string(f.Inhalt());
}

Rettungsstand LiesRettung(std::string_view bytes, const Einstellungen& einstellungen,
                          const std::string& datei) {
    const auto beschaedigt = [&] { return Fehler("Der gerettete Netzplan ist beschädigt.", datei); };
    ByteLeser f(bytes);
    if (f.Text(kKennung.size()) != kKennung) throw beschaedigt();
    const std::uint32_t laenge = f.U32();
    if (!f.Gut() || laenge > f.Rest()) throw beschaedigt();
    Rettungsstand stand;
    stand.name = std::string(f.Text(laenge));
    const std::uint32_t anzahl = f.U32();
    if (!f.Gut() || anzahl > f.Rest()) throw beschaedigt();
    const std::string_view arten = f.Text(anzahl);
    const auto geladen = LadeGanz(f, einstellungen, stand.netz, datei);
    if (Punkte(*geladen).size() != anzahl) throw beschaedigt();
    // Loading turns the order of the figures round; twice brings it back.
    ByteSchreiber g;
    geladen->Store(g, stand.netz);
    ByteLeser zurueck(g.Inhalt());
    stand.liste = LadeGanz(zurueck, einstellungen, stand.netz, datei);
    const std::vector<PPunktKnoten> punkte = Punkte(*stand.liste);
    for (std::size_t i = 0; i < punkte.size(); ++i) {
        const auto art = static_cast<std::uint8_t>(arten[i]);
        if (art > static_cast<std::uint8_t>(PunktArt::NP)) throw beschaedigt();
        punkte[i]->Item->PktArt = static_cast<PunktArt>(art);
    }
    return stand;
}

}  // namespace zrw
