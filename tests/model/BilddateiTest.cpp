// The picture file byte by byte, its round trips, and what damaged or foreign files do.
#include "model/Bilddatei.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <utility>
#include <vector>

#include "model/Rettungsstand.h"
#include "tests/hilfe/Probenetz.h"
#include "tests/hilfe/Speicherdateien.h"

namespace zrw {
namespace {

constexpr const char* kName = "Netz.ZRW";

/// Bytes of hexadecimal text; blanks separate the fields.
std::string Bytes(std::string_view hex) {
    std::string bytes;
    for (std::size_t i = 0; i + 1 < hex.size(); i += hex[i] == ' ' ? 1 : 2) {
        if (hex[i] != ' ') bytes += static_cast<char>(std::stoi(std::string(hex.substr(i, 2)), nullptr, 16));
    }
    return bytes;
}

// Three points, three labels, two lines; newest first, as the lists run.
const std::string kDatei = Bytes(
    // Faktor 0.5, MaxXW 1000, MinXW 0, MaxYW 2000, MinYW 0, XOffset 10, YOffset -4
    "000000000000E03F 0000000000408F40 0000000000000000 0000000000409F40 0000000000000000 0000000000002440"
    "00000000000010C0"
    // 3 points, 2 lines, 640 x 480, two empty words, network type 51
    "03000000 02000000 80020000 E0010000 00000000 00000000 33000000"
    // (-1, 1700) number 65535, grey outlined dot; (200.5, 1800) number 2, hidden; (100, 1900) number 1
    "000000000000F0BF 0000000000909A40 FFFF 80808000 00 00 01 EAFFFFFFFFFFFFFF 5002000000000000"
    "0000000000106940 0000000000209C40 0200 FF000000 01 05 00 7D01000000000000 8801000000000000"
    "0000000000005940 0000000000B09D40 0100 00000000 01 01 01 B400000000000000 C000000000000000"
    // "A\xF6 4567890123" of 14 characters at 65535, "12W" hidden and moved, "1"
    "FFFF 0E 41F62034353637383930313233 34 00000000 0A00000000000000 FBFFFFFFFFFFFFFF 01 EAFFFFFFFFFFFFFF"
    "5002000000000000"
    "0200 03 313257 0000000000000000000000 0000FF00 F9FFFFFFFFFFFFFF 0300000000000000 00 7D01000000000000"
    "8801000000000000"
    "0100 01 31 00000000000000000000000000 00000000 0A00000000000000 FBFFFFFFFFFFFFFF 01 B400000000000000"
    "C000000000000000"
    // 2 -> 65535 ASTI {GPS}, hidden; 1 -> 2 AR1 {ST, DH2}
    "0200 FFFF EAFFFFFFFFFFFFFF 5002000000000000 FF00FF00 02 06 00 7D01000000000000 8801000000000000"
    "0100 0200 7D01000000000000 8801000000000000 80008000 09 01 01 B400000000000000 C000000000000000");

/// The network of the bytes above.
struct Dateinetz : Probenetz {
    Speicherdateien d;
    Netzangaben netz;

    Dateinetz() {
        l.Faktor = 0.5;
        l.MaxXW = 1000;
        l.MaxYW = 2000;
        l.XOffset = 10;
        l.YOffset = -4;
        l.MaxPkte = 3;
        l.MaxKant = 2;
        l.Weite = 640;
        l.Hoehe = 480;
        l.Legend->Bez1 = "geht nicht mit";
        netz.Netztyp = 51;
        l.AddPunkt(Punkt::Create(PunktTyp::Krei, kSchwarz, PunktAttr::Fu), {100, 1900}, 1);
        Punkt& p = *l.AddPunkt(Punkt::Create(PunktTyp::Drei, e.NPCol, PunktAttr::Fu), {200.5, 1800}, 2).Item;
        p.PktArt = PunktArt::NP;
        l.AddPunkt(Punkt::Create(PunktTyp::Pkt, e.FLCol, PunktAttr::Em), {-1, 1700}, 65535);
        T(1, "1");
        PktText& t = *l.AddPktText(PktText::Create("12W", e.TKCol, e), 2).Item;
        t.XBiO = -7;
        t.YBiO = 3;
        T(65535, "A\xF6 45678901234");
        KanteAttr attr = KanteAttr::ST;
        attr.SetzeArt(KanteAttr::DH2);
        l.AddKante(Kante::Create(e.AZCol, attr, LinieAttr::AR1), 1, 2);
        Kante& k = *l.AddKante(Kante::Create(e.GPSCol, KanteAttr::GPS, LinieAttr::ASTI), 2, 65535).Item;
        p.Visible = t.Visible = k.Visible = false;
        l.WeltinBild();
    }

    std::unique_ptr<Liste> LiesListe(const std::string& inhalt) {
        d.dateien[kName] = inhalt;
        return LiesBilddatei(kName, d, e, netz);
    }
    std::string SchreibeListe(Liste& liste) {
        SchreibeBilddatei(liste, netz, kName, d);
        return d.dateien[kName];
    }
};

TEST(Bilddatei, SchreibtDiesesByteFuerByte) {
    Dateinetz n;
    const std::string inhalt = n.SchreibeListe(n.l);
    ASSERT_EQ(inhalt.size(), 455U);
    const auto [ist, soll] = std::mismatch(inhalt.begin(), inhalt.end(), kDatei.begin(), kDatei.end());
    EXPECT_EQ(ist, inhalt.end()) << "offset " << ist - inhalt.begin();
}

TEST(Bilddatei, LadenKehrtDieListenUmUndVergisstArtUndLegende) {
    Dateinetz n;
    n.netz.Netztyp = 0;
    const auto l =
        n.LiesListe(std::string(kDatei).replace(109, 2, "xy") + "Anhang");  // stored place of a point
    EXPECT_EQ(n.netz.Netztyp, 51);
    EXPECT_EQ(l->PktTextKnoten->TNr, 1);
    EXPECT_EQ(l->KanteKnoten->ANr, 1);
    EXPECT_EQ(l->Legend->Bez1, "");
    l->SuchPkt(2)->Item->Visible = true;
    l->ShowNP = l->ShowFH = false;  // every loaded point counts as FP
    l->DisplayPunkte(n.z);
    EXPECT_EQ(n.z.NimmZeilen(),
              (Zeilen{"Punkt zeigen 0x000000 Krei Fu 180 192", "Punkt zeigen 0x0000FF Drei Fu 381 392",
                      "Punkt zeigen 0x808080 Pkt Em -22 592"}));
    l->SuchPkt(2)->Item->Visible = false;
    const std::string umgekehrt = n.SchreibeListe(*l);
    EXPECT_NE(umgekehrt, kDatei);
    EXPECT_EQ(n.SchreibeListe(*n.LiesListe(umgekehrt)), kDatei);
}

// Records with odd values come back through the corpus of the fuzz target.
TEST(Bilddatei, UnbrauchbareAnsichtenUndTexteUeberIhremFeld) {
    for (const auto& [stelle, bytes] : {std::pair{0U, "0000000000000000"},
                                        {0U, "000000000000F87F"},
                                        {0U, "000000000000F07F"},
                                        {0U, "000000000000E0BF"},
                                        {24U, "000000000000F07F"},
                                        {48U, "000000000000F8FF"},
                                        {84U, "000000000000F07F"}}) {  // the first point is no part of it
        Dateinetz n;
        const auto l = n.LiesListe(std::string(kDatei).replace(stelle, 8, Bytes(bytes)));
        EXPECT_EQ(l->Brauchbar(), stelle == 84) << stelle << " " << bytes;
    }
    Dateinetz n;
    std::string inhalt = kDatei;
    inhalt[84 + 3 * 41 + 2] = '\xFF';  // a label longer than its field
    EXPECT_EQ(n.LiesListe(inhalt)->GetPktText(65535), "A\xF6 45678901234");
    inhalt.replace(369, 2, Bytes("0900"));  // a line without its start keeps what was stored
    EXPECT_EQ(n.LiesListe(inhalt)->KanteKnoten->Next->Item->Position(), (Bildpunkt{381, 392}));
}

TEST(Bilddatei, JedeKuerzungUndJedeZuGrosseZahlWirdGemeldet) {
    Dateinetz n;
    n.netz.Netztyp = 7;
    std::vector<std::string> inhalte;
    for (std::size_t laenge = 0; laenge < kDatei.size(); ++laenge)
        inhalte.push_back(kDatei.substr(0, laenge));
    for (const char* zahlen :
         {"FFFFFFFF 02000000", "03000000 FFFFFFFF", "04000000 02000000", "FF7F0000 FFFF0000"}) {
        inhalte.push_back(std::string(kDatei).replace(56, 8, Bytes(zahlen)));
    }
    inhalte.emplace_back(std::size_t{17} << 20U, '\0');
    for (const std::string& inhalt : inhalte) {
        try {
            (void)n.LiesListe(inhalt);
            ADD_FAILURE() << inhalt.size();
        } catch (const Fehler& f) {
            EXPECT_EQ(f.Datei(), kName);
        }
        ASSERT_EQ(n.netz.Netztyp, 7) << inhalt.size();
    }
    // Only the low 16 bits count.
    const auto l = n.LiesListe(std::string(kDatei).replace(56, 8, Bytes("0300FF7F 02000080")));
    EXPECT_EQ(n.SchreibeListe(*n.LiesListe(n.SchreibeListe(*l))), kDatei);
}

TEST(Bilddatei, WasNichtPasstLaesstDieAlteDateiStehen) {
    for (const auto& [punkte, kanten] : {std::pair{65536, 2}, {3, 65536}, {4, 2}, {3, 1}, {3, 2}}) {
        Dateinetz n;
        n.d.dateien[kName] = "alt";
        n.d.platz = kanten == punkte - 1 ? 0 : SIZE_MAX;
        n.l.MaxPkte = punkte;
        n.l.MaxKant = kanten;
        EXPECT_THROW(n.SchreibeListe(n.l), Fehler) << punkte << " " << kanten;
        EXPECT_EQ(n.d.dateien[kName], "alt");
    }
}

// What could be saved before keeps its bytes; where a point goes, labels of no point go too, and only they.
TEST(Bilddatei, HerrenloseNummernBleibenNachDemLoeschenWeg) {
    struct {
        PunktIndex statt;  ///< number that the labels of point 1 and 65535 get
        bool beide;
        PunktIndex geloescht;
        std::size_t weg;
    } constexpr kFaelle[] = {{9, false, 2, 0}, {9, false, 1, 1}, {9, true, 1, 1}, {2, false, 1, 1}};
    for (const auto& f : kFaelle) {
        Dateinetz n;
        std::string inhalt = kDatei;
        const std::string nr{static_cast<char>(f.statt), 0};
        inhalt.replace(84 + 3 * 41 + 2 * 54, 2, nr);
        if (f.beide) inhalt.replace(84 + 3 * 41, 2, nr);
        const auto l = n.LiesListe(inhalt);
        EXPECT_EQ(SchreibeBilddatei(*l, n.netz, kName, n.d), 0U);
        (void)l->NimmHeraus(*l->SuchPkt(f.geloescht));
        EXPECT_EQ(SchreibeBilddatei(*l, n.netz, kName, n.d), f.weg) << f.geloescht;
        const auto wieder = n.LiesListe(n.d.dateien[kName]);
        EXPECT_EQ(wieder->MaxPkte, 2);
        EXPECT_EQ(wieder->FindPktText(f.geloescht), nullptr);
        EXPECT_EQ(SchreibeRettung(*l, n.netz, "").substr(18), n.d.dateien[kName]) << "kept plot";
    }
}

}  // namespace
}  // namespace zrw
