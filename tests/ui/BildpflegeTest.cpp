// The quick ways to a picture against the plain one, through long random sequences of panning, zooming and
// editing: every pixel must be the same, and every byte after undoing and redoing it all.
#include "ui/bild/Bildpflege.h"

#include <gtest/gtest.h>

#include <QUndoStack>
#include <memory>

#include "model/Bytes.h"
#include "output/Uhr.h"
#include "tests/hilfe/Zeichentafel.h"
#include "tests/hilfe/Zufallsnetz.h"
#include "ui/aenderungen/Aenderungen.h"

namespace zrw {
namespace {

constexpr int kWeite = 400;
constexpr int kHoehe = 300;

std::unique_ptr<Netzaenderung> NeueAenderung(Zufallsnetz& n) {
    PunktKnoten& p = n.Punkt1();
    PPunktKante k = n.Kante1();
    auto sichtbar = std::make_unique<SichtbarkeitGeaendert>("s");
    switch (n.W(0, 8)) {
        case 0:
            return std::make_unique<PunktVersetzt>(
                n.liste, p,
                Welt{p.XWPu + n.W(-50, 50) * n.liste.Faktor, p.YWPu + n.W(-50, 50) * n.liste.Faktor});
        case 1:
            if (PPunktString t = n.liste.FindText(p.PNr); t != nullptr)
                return std::make_unique<NummerVersetzt>(n.liste, *t, Bildpunkt{n.W(-90, 90), n.W(-90, 90)});
            break;
        case 2:
            if (k != nullptr) return std::make_unique<KanteGeloescht>(n.liste, *k);
            break;
        case 3:
            if (k != nullptr)
                return std::make_unique<KanteGeaendert>(n.liste, *k, static_cast<LinieAttr>(n.W(0, 6)),
                                                        KanteAttr::GPS, n.W(0, 1) == 0);
            break;
        case 4:
            return std::make_unique<KanteEingefuegt>(n.liste, n.NeueKante(), p.PNr, n.Punkt1().PNr);
        case 5:
            if (n.liste.MaxPkte > 3) return std::make_unique<PunktGeloescht>(n.liste, p);
            break;
        case 6: {
            const auto nr = static_cast<PunktIndex>(n.W(5000, 60000));
            if (n.liste.SuchPkt(nr) == nullptr)
                return std::make_unique<PunktEingefuegt>(
                    n.liste, *p.Item, PktText::Create("N" + std::to_string(nr), kSchwarz, n.e),
                    n.liste.BildinWelt({n.W(0, kWeite), n.W(0, kHoehe)}), nr);
            break;
        }
        case 7:
            return std::make_unique<PunktGeaendert>(
                n.liste, p,
                PunktGeaendert::Angaben{
                    PunktArt::NP, static_cast<PunktTyp>(n.W(0, 5)), Farbe{0xFF}, {p.XWPu, p.YWPu}});
        default:
            break;
    }
    sichtbar->NimmPunkt(n.liste, p, !p.Item->Visible);
    return sichtbar;
}

/// A picture with all that drawing needs.
struct Tafel : Zeichentafel<Bildflaeche> {
    explicit Tafel(const Einstellungen& e, bool abkuerzungen = true)
        : Zeichentafel(kWeite, kHoehe, e, abkuerzungen) {}
};

/// Pixels that differ by more than that in a colour.
int Unterschied(const QImage& a, const QImage& b, int erlaubt = 0) {
    int anzahl = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QRgb p = a.pixel(x, y);
            const QRgb q = b.pixel(x, y);
            const int weit = std::max({std::abs(qRed(p) - qRed(q)), std::abs(qGreen(p) - qGreen(q)),
                                       std::abs(qBlue(p) - qBlue(q))});
            anzahl += weit > erlaubt ? 1 : 0;
        }
    }
    return anzahl;
}

TEST(Bildpflege, BleibtUeberTausendSchritteDasBildDesEinfachenWegs) {
    int verschoben = 0;
    for (unsigned saat = 40; saat < 52; ++saat) {
        Zufallsnetz n(saat, kWeite, kHoehe);
        Tafel tafel(n.e);
        Tafel einfach(n.e, false);
        // Plain, smooth, and smooth on a finer screen; the odd ones of these become smooth part by part while
        // other things happen. From the front smooth edges are rounded in another order.
        const bool glatt = saat >= 48;
        const int dichte = saat >= 50 ? 2 : 1;
        const bool nachher = glatt && saat % 2 == 1;
        const int erlaubt = glatt ? 12 : 0;
        for (Tafel* t : {&tafel, &einfach}) {
            t->flaeche.SetzeGroesse(kWeite, kHoehe, dichte);
            t->flaeche.SetzeGlatt(glatt);
            t->zustand.Pixeldichte = dichte;
        }
        Bildpflege pflege(tafel.zustand, tafel.flaeche, tafel.zeichner);
        pflege.SetzeGlatt(glatt);
        if (nachher) pflege.SetzeBildzeit(0);
        Ansicht ansicht;
        const auto vorlage = [&] {
            ansicht = n.liste.InDichte(dichte);
            return n.liste.Vorlage().InAnsicht(ansicht);
        };
        pflege.ZeichneNeu(vorlage());
        QUndoStack stapel;
        const auto gespeichert = [&] {
            ByteSchreiber f;
            n.liste.PasseEin();
            n.liste.Store(f, {});
            return std::string(f.Inhalt());
        };
        const std::string anfang = gespeichert();
        for (int i = 0; i < 130; ++i) {
            SCOPED_TRACE(std::to_string(saat) + "/" + std::to_string(i));
            const int wahl = n.W(0, 9);
            if (wahl == 0) {
                n.WuerfleAnsicht();
                n.WuerfleSchalter();
                pflege.ZeichneNeu(vorlage());
            } else if (wahl < 4) {
                Bildpunkt weg{n.W(-60, 60), n.W(-60, 60)};
                if (nachher && n.W(0, 3) != 0) weg.x = 0;  // else all becomes rough, not strips
                verschoben += pflege.Verschiebbar(vorlage()) ? 1 : 0;
                n.liste.SetzeVersatz(n.liste.Versatz(), weg);
                pflege.VerschiebeBild(vorlage(), {weg.x * dichte, weg.y * dichte});
            } else if (wahl < 8 || !stapel.canUndo()) {
                auto aenderung = NeueAenderung(n);
                Netzaenderung* a = aenderung.release();
                pflege.Vorher(vorlage(), a->Betroffene());
                stapel.push(a);
                pflege.Nachher(vorlage(), a->Betroffene());
            } else {
                const bool zurueck = !stapel.canRedo() || n.W(0, 1) == 0;
                const auto* a = static_cast<const Netzaenderung*>(
                    stapel.command(zurueck ? stapel.index() - 1 : stapel.index()));
                pflege.Vorher(vorlage(), a->Betroffene());
                zurueck ? stapel.undo() : stapel.redo();
                pflege.Nachher(vorlage(), a->Betroffene());
            }
            for (int teile = nachher ? n.W(0, 4) : 0; teile > 0; --teile)
                pflege.GlaetteZeilen(vorlage());
            if (nachher && n.W(0, 2) != 0) continue;
            // What a tool has in hand is left out, and comes back.
            if (n.W(0, 9) == 0) {
                const Figurenmenge figuren = n.liste.Umfeld(n.Punkt1());
                Auslassung ohne;
                ohne.SetzeFiguren(figuren);
                Bildvorlage v = vorlage();
                for (const Auslassung* aus : {&ohne, static_cast<Auslassung*>(nullptr)}) {
                    pflege.Vorher(v, figuren);
                    v.ohne = aus;
                    pflege.Nachher(v, figuren);
                    while (pflege.Rau())
                        pflege.GlaetteZeilen(v);
                    ZeichneBild(v, einfach.zeichner);
                    ASSERT_EQ(Unterschied(einfach.flaeche.Bild(), tafel.flaeche.Bild(), erlaubt), 0);
                }
            }
            while (pflege.Rau())
                pflege.GlaetteZeilen(vorlage());
            ZeichneBild(vorlage(), einfach.zeichner);
            ASSERT_EQ(Unterschied(einfach.flaeche.Bild(), tafel.flaeche.Bild(), erlaubt), 0);
        }
        const std::string ende = gespeichert();
        const int schritte = stapel.index();
        stapel.setIndex(0);
        EXPECT_EQ(gespeichert(), anfang);
        stapel.setIndex(schritte);
        EXPECT_EQ(gespeichert(), ende);
    }
    EXPECT_GT(verschoben, 100) << "too few pictures were moved to say anything";
}

}  // namespace
}  // namespace zrw
