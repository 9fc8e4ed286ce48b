// The quick ways to a picture against the plain one: on random networks, views and switches, and through long
// random sequences of panning, zooming and editing, every pixel must be the same. The hit-tests by trees must
// find what a walk through the lists finds.
#include "ui/Bildpflege.h"

#include <gtest/gtest.h>

#include <QUndoStack>
#include <memory>
#include <random>

#include "output/Uhr.h"
#include "tests/hilfe/Festuhr.h"
#include "ui/aenderungen/Aenderungen.h"

namespace zrw {
namespace {

constexpr int kWeite = 400;
constexpr int kHoehe = 300;

/// A network with everything that a file may bring: clusters, doubles, missing points, far labels.
class Zufallsnetz {
  public:
    explicit Zufallsnetz(unsigned saat) : zufall_(saat) {
        const int punkte = std::array{3, 40, 400, 3000}[saat % 4];
        for (int i = 1; i <= punkte; ++i)
            NeuerPunkt(static_cast<PunktIndex>(i), Welt{Ort(), Ort()});
        if (saat % 5 == 0) NeuerPunkt(2, {Ort(), Ort()});  // a number twice
        const int kanten = punkte * W(0, 4);
        for (int i = 0; i < kanten; ++i) {
            const int a = W(1, punkte);
            // Mostly to a near number; some leave the picture, a few lead to no point.
            const int z =
                W(0, 20) == 0 ? W(1, punkte + (saat % 3 == 0 ? 5 : 0)) : std::min(a + W(0, 9), punkte);
            liste.AddKante(NeueKante(), static_cast<PunktIndex>(a), static_cast<PunktIndex>(z));
            ++liste.MaxKant;
        }
        liste.Weite = kWeite;
        liste.Hoehe = kHoehe;
        liste.FindWorldMinMax();
        liste.PasseEin();
    }

    int W(int von, int bis) { return std::uniform_int_distribution(von, bis)(zufall_); }
    double Ort() { return 5000.0 + (W(0, 2) == 0 ? W(0, 60000) : W(20000, 26000)) / 10.0; }
    Kante NeueKante() {
        Kante k = Kante::Create(Farbe{static_cast<std::uint32_t>(W(0, 0xFFFFFF))},
                                KanteAttr::AusMaske(static_cast<std::uint8_t>(W(0, 15))),
                                static_cast<LinieAttr>(W(0, indirekte_ ? 6 : 3)));
        k.Visible = W(0, 9) != 0;
        return k;
    }
    PunktKnoten& NeuerPunkt(PunktIndex nr, Welt ort) {
        Punkt p =
            Punkt::Create(static_cast<PunktTyp>(W(0, 5)), Farbe{static_cast<std::uint32_t>(W(0, 0xFFFFFF))},
                          static_cast<PunktAttr>(W(0, 1)));
        p.PktArt = static_cast<PunktArt>(W(0, 3));
        p.Visible = W(0, 9) != 0;
        PktText t = PktText::Create("P" + std::to_string(nr % 2900), Farbe{0x700070}, e);
        t.Visible = W(0, 9) != 0;
        if (W(0, 19) == 0) t.XBiO = W(-300, 300);
        ++liste.MaxPkte;
        liste.AddPktText(t, nr);
        return liste.AddPunkt(p, ort, nr);
    }
    void WuerfleSchalter() {
        for (bool Liste::*s : {&Liste::ShowPktText, &Liste::ShowBeob, &Liste::ShowFP, &Liste::ShowFL,
                               &Liste::ShowFH, &Liste::ShowNP, &Liste::ShowHilfP})
            liste.*s = W(0, 4) != 0;
        for (bool Liste::*s : {&Liste::ShowKMQ, &Liste::ShowLegende})
            liste.*s = W(0, 4) == 0;
    }
    /// From the whole network to a few metres in the picture.
    void WuerfleAnsicht() {
        liste.PasseEin();
        const PunktKnoten& p = Punkt1();
        liste.Faktor *= std::pow(10.0, -W(-5, 50) / 10.0);
        liste.XOffset = p.XWPu - liste.MinXW - W(0, kWeite) * liste.Faktor;
        liste.YOffset = p.YWPu - liste.MaxYW + W(0, kHoehe) * liste.Faktor;
    }
    PunktKnoten& Punkt1() {
        PPunktKnoten p = liste.PunktKnoten;
        for (int i = W(0, std::min(liste.MaxPkte - 1, 500)); i > 0 && p->Next != nullptr; --i)
            p = p->Next;
        return *p;
    }
    PPunktKante Kante1() {
        PPunktKante k = liste.KanteKnoten;
        for (int i = W(0, std::max(std::min(liste.MaxKant - 1, 500), 0)); i > 0 && k->Next != nullptr; --i)
            k = k->Next;
        return k;
    }
    std::unique_ptr<Netzaenderung> NeueAenderung() {
        PunktKnoten& p = Punkt1();
        PPunktKante k = Kante1();
        auto sichtbar = std::make_unique<SichtbarkeitGeaendert>("s");
        switch (W(0, 8)) {
            case 0:
                return std::make_unique<PunktVersetzt>(
                    liste, p, Welt{p.XWPu + W(-50, 50) * liste.Faktor, p.YWPu + W(-50, 50) * liste.Faktor});
            case 1:
                if (PPunktString t = liste.FindText(p.PNr); t != nullptr)
                    return std::make_unique<NummerVersetzt>(liste, *t, Bildpunkt{W(-90, 90), W(-90, 90)});
                break;
            case 2:
                if (k != nullptr) return std::make_unique<KanteGeloescht>(liste, *k);
                break;
            case 3:
                if (k != nullptr)
                    return std::make_unique<KanteGeaendert>(liste, *k, static_cast<LinieAttr>(W(0, 6)),
                                                            KanteAttr::GPS, W(0, 1) == 0);
                break;
            case 4:
                return std::make_unique<KanteEingefuegt>(liste, NeueKante(), p.PNr, Punkt1().PNr);
            case 5:
                if (liste.MaxPkte > 3) return std::make_unique<PunktGeloescht>(liste, p);
                break;
            case 6: {
                const auto nr = static_cast<PunktIndex>(W(5000, 60000));
                if (liste.SuchPkt(nr) == nullptr)
                    return std::make_unique<PunktEingefuegt>(
                        liste, *p.Item, PktText::Create("N" + std::to_string(nr), kSchwarz, e),
                        liste.BildinWelt({W(0, kWeite), W(0, kHoehe)}), nr);
                break;
            }
            case 7:
                return std::make_unique<PunktGeaendert>(
                    liste, p,
                    PunktGeaendert::Angaben{
                        PunktArt::NP, static_cast<PunktTyp>(W(0, 5)), Farbe{0xFF}, {p.XWPu, p.YWPu}});
            default:
                break;
        }
        sichtbar->NimmPunkt(liste, p, !p.Item->Visible);
        return sichtbar;
    }

    Einstellungen e;
    Liste liste{e};

  private:
    std::mt19937 zufall_;
    bool indirekte_ = W(0, 1) == 0;  ///< lines with detours, which do not move by odd ways
};

/// A picture with all that drawing needs.
struct Tafel {
    explicit Tafel(const Einstellungen& e, bool abkuerzungen = true) : zeichner(zustand, e, netz, uhr) {
        zustand.flaeche = &flaeche;
        zustand.Abkuerzungen = abkuerzungen;
    }
    Bildflaeche flaeche{kWeite, kHoehe};
    Netzangaben netz;
    Zeichenzustand zustand;
    Festuhr uhr;
    Figurenzeichner zeichner;
};

int Unterschied(const QImage& a, const QImage& b) {
    int anzahl = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x)
            anzahl += a.pixel(x, y) != b.pixel(x, y) ? 1 : 0;
    }
    return anzahl;
}

void PruefeTreffer(Zufallsnetz& n) {
    const Bildpunkt maus{n.W(-20, kWeite + 20), n.W(-20, kHoehe + 20)};
    const Liste& l = n.liste;
    const auto erster = [&](auto* kopf, auto passt) {
        while (kopf != nullptr && !passt(*kopf))
            kopf = kopf->Next;
        return kopf;
    };
    EXPECT_EQ(l.ClickPunkt(maus),
              erster(l.PunktKnoten, [&](auto& p) { return l.Gefangen(maus, p.Item->Position()); }));
    EXPECT_EQ(l.MausPktText(maus),
              erster(l.PktTextKnoten, [&](auto& t) { return l.Gefangen(maus, t.Item->Textort()); }));
    // A list that was never told where its figures are asks all of them.
    Liste kopie(n.e);
    std::vector<PPunktKante> kanten;
    for (PPunktKante k = l.KanteKnoten; k != nullptr; k = k->Next)
        kanten.push_back(k);
    for (std::size_t i = kanten.size(); i-- > 0;)
        kopie.AddKante(*kanten[i]->Item, kanten[i]->ANr, kanten[i]->ENr);
    const PunktKante* gefunden = kopie.PickKante(maus);
    EXPECT_EQ(l.PickKante(maus), gefunden != nullptr ? kanten[kanten.size() - 1 - gefunden->Folge] : nullptr);
}

TEST(Bildaufbau, ZeigtDasBildDesEinfachenWegs) {
    for (unsigned saat = 1; saat <= 24; ++saat) {
        Zufallsnetz n(saat);
        Tafel schnell(n.e);
        Tafel einfach(n.e, false);
        for (int ansicht = 0; ansicht < 10; ++ansicht) {
            SCOPED_TRACE(std::to_string(saat) + "/" + std::to_string(ansicht));
            if (ansicht > 0) n.WuerfleAnsicht();
            n.WuerfleSchalter();
            schnell.zustand.KurzeNummern = einfach.zustand.KurzeNummern = n.W(0, 3) == 0;
            n.liste.WeltinBild();
            n.liste.ShowPicture(einfach.zeichner);
            n.liste.ShowPicture(schnell.zeichner);
            ASSERT_EQ(Unterschied(einfach.flaeche.Bild(), schnell.flaeche.Bild()), 0);
            // Any part of it drawn alone is that part.
            schnell.flaeche.Fuelle({0, 0, kWeite, kHoehe}, kSchwarz);
            for (const Rechteck& teil : {Rechteck{0, 0, 130, kHoehe}, Rechteck{131, 0, kWeite, 77},
                                         Rechteck{131, 78, 132, kHoehe}, Rechteck{133, 78, kWeite, kHoehe}}) {
                schnell.flaeche.SetzeAusschnitt(teil);
                n.liste.ShowPicture(schnell.zeichner);
            }
            schnell.flaeche.SetzeAusschnitt(schnell.flaeche.Sichtbar());
            ASSERT_EQ(Unterschied(einfach.flaeche.Bild(), schnell.flaeche.Bild()), 0) << "in parts";
            PruefeTreffer(n);
        }
    }
}

TEST(Bildpflege, BleibtUeberTausendSchritteDasBildDesEinfachenWegs) {
    int verschoben = 0;
    for (unsigned saat = 40; saat < 48; ++saat) {
        Zufallsnetz n(saat);
        Tafel tafel(n.e);
        Tafel einfach(n.e, false);
        Bildpflege pflege(tafel.zustand, tafel.flaeche, tafel.zeichner);
        pflege.Alles(n.liste);
        QUndoStack stapel;
        for (int i = 0; i < 130; ++i) {
            SCOPED_TRACE(std::to_string(saat) + "/" + std::to_string(i));
            const int wahl = n.W(0, 9);
            if (wahl == 0) {
                n.WuerfleAnsicht();
                n.WuerfleSchalter();
                pflege.ZeichneNeu(n.liste);
            } else if (wahl < 4) {
                const Bildpunkt weg{n.W(-60, 60), n.W(-60, 60)};
                verschoben += pflege.Verschiebbar(n.liste) ? 1 : 0;
                pflege.Verschiebe(n.liste,
                                  {n.liste.XOffset - static_cast<double>(weg.x) * n.liste.Faktor,
                                   n.liste.YOffset + static_cast<double>(weg.y) * n.liste.Faktor},
                                  weg);
            } else if (wahl < 8 || !stapel.canUndo()) {
                auto aenderung = n.NeueAenderung();
                Netzaenderung* a = aenderung.release();
                pflege.Vorher(n.liste, a->Betroffene());
                stapel.push(a);
                pflege.Nachher(n.liste, a->Betroffene());
            } else {
                const bool zurueck = !stapel.canRedo() || n.W(0, 1) == 0;
                const auto* a = static_cast<const Netzaenderung*>(
                    stapel.command(zurueck ? stapel.index() - 1 : stapel.index()));
                pflege.Vorher(n.liste, a->Betroffene());
                zurueck ? stapel.undo() : stapel.redo();
                pflege.Nachher(n.liste, a->Betroffene());
            }
            // What wiping leaves behind is healed.
            if (n.W(0, 9) == 0) {
                Punkt& p = *n.Punkt1().Item;
                const bool sichtbar = p.Visible;
                p.Hide(tafel.zeichner);
                p.Visible = sichtbar;
                pflege.Heile(n.liste);
            }
            n.liste.WeltinBild();
            n.liste.ShowPicture(einfach.zeichner);
            ASSERT_EQ(Unterschied(einfach.flaeche.Bild(), tafel.flaeche.Bild()), 0);
            PruefeTreffer(n);
        }
    }
    EXPECT_GT(verschoben, 100) << "too few pictures were moved to say anything";
}

}  // namespace
}  // namespace zrw
