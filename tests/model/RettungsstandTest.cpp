// An unsaved plot comes back as it was.
#include "model/Rettungsstand.h"

#include <gtest/gtest.h>

#include "model/Bytes.h"
#include "model/Fehler.h"
#include "tests/hilfe/Probenetz.h"

namespace zrw {
namespace {

std::string Bytes(const Liste& l, const Netzangaben& netz) {
    ByteSchreiber f;
    l.Store(f, netz);
    return std::string(f.Inhalt());
}

TEST(Rettungsstand, BringtAllesZurueck) {
    Probenetz n;
    for (PunktIndex i = 1; i <= 5; ++i) {
        n.P(i, i * 10.0, 7.0 * i, static_cast<PunktArt>(i % 4)).Item->Visible = i % 2 == 0;
        n.T(i, "P" + std::to_string(i)).Item->XBiO = i;
    }
    n.K(1, 2, LinieAttr::AR1);
    n.K(2, 5, LinieAttr::ASTI);
    n.l.WeltinBild();
    Netzangaben netz;
    netz.Netztyp = 3;
    const std::string rettung = SchreibeRettung(n.l, netz, "C:\\Netz Süd.EIN");
    const Rettungsstand stand = LiesRettung(rettung, n.e, "x");
    EXPECT_EQ(stand.name, "C:\\Netz Süd.EIN");
    EXPECT_TRUE(Bytes(*stand.liste, stand.netz) == Bytes(n.l, netz)) << "order, positions, visibility";
    const PunktKnoten* b = stand.liste->PunktKnoten;
    for (const PunktKnoten* a = n.l.PunktKnoten; a != nullptr; a = a->Next, b = b->Next)
        EXPECT_EQ(a->Item->PktArt, b->Item->PktArt) << "picture files do not know it";
    // Cut off anywhere it is refused.
    for (std::size_t laenge = 0; laenge < rettung.size(); laenge += 7)
        EXPECT_THROW((void)LiesRettung(rettung.substr(0, laenge), n.e, "x"), Fehler) << laenge;
}

TEST(Rettungsstand, MehrLinienAlsEineZarwikdateiZaehlt) {
    Probenetz n;
    n.P(1);
    n.P(2, 5, 5);
    n.T(1, "A");
    n.T(2, "B");
    for (int i = 0; i < 65536 + 40; ++i)
        n.K(1, 2, static_cast<LinieAttr>(i % 7));
    n.l.WeltinBild();
    const std::string rettung = SchreibeRettung(n.l, {}, "x");
    const Rettungsstand stand = LiesRettung(rettung, n.e, "x");
    EXPECT_TRUE(Bytes(*stand.liste, {}) == Bytes(n.l, {}));
}

}  // namespace
}  // namespace zrw
