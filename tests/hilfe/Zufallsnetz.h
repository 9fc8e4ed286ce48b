// A random network with everything that a file may bring, in random views and with random switches.
#pragma once

#include <array>
#include <cmath>
#include <random>
#include <string>

#include "model/FigListe.h"

namespace zrw {

/// A network with everything that a file may bring: clusters, doubles, missing points, far labels.
class Zufallsnetz {
  public:
    Zufallsnetz(unsigned saat, int w, int h) : weite(w), hoehe(h), zufall_(saat) {
        const int punkte = std::array{3, 40, 270, 3000}[saat % 4];  // 17 leaves of a tree, too
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
        liste.Weite = weite;
        liste.Hoehe = hoehe;
        liste.FindWorldMinMax();
        liste.PasseEin();
    }

    int W(int von, int bis) { return std::uniform_int_distribution(von, bis)(zufall_); }
    template <class Glied>
    Glied Eines() {
        return static_cast<Glied>(W(0, static_cast<int>(Glied::Anzahl) - 1));
    }
    double Ort() { return 5000.0 + (W(0, 2) == 0 ? W(0, 60000) : W(20000, 26000)) / 10.0; }
    Kante NeueKante() {
        Kante k =
            Kante::Create(Farbe{static_cast<std::uint32_t>(W(0, 0xFFFFFF))},
                          KanteAttr::AusMaske(static_cast<std::uint8_t>(W(0, (1 << KanteAttr::Anzahl) - 1))),
                          indirekte_ ? Eines<LinieAttr>() : static_cast<LinieAttr>(W(0, 3)));
        k.Visible = W(0, 9) != 0;
        return k;
    }
    PunktKnoten& NeuerPunkt(PunktIndex nr, Welt ort) {
        Punkt p = Punkt::Create(Eines<PunktTyp>(), Farbe{static_cast<std::uint32_t>(W(0, 0xFFFFFF))},
                                static_cast<PunktAttr>(W(0, 1)));
        p.PktArt = Eines<PunktArt>();
        p.Visible = W(0, 9) != 0;
        PktText t = PktText::Create("P" + std::to_string(nr % 2900), Farbe{0x700070}, e);
        t.Visible = W(0, 9) != 0;
        if (W(0, 19) == 0) t.XBiO = W(-300, 300);
        ++liste.MaxPkte;
        liste.AddPktText(t, nr);
        return liste.AddPunkt(p, ort, nr);
    }
    void WuerfleSchalter() {
        for (bool Darstellung::*s : {&Liste::ShowPktText, &Liste::ShowBeob, &Liste::ShowFP, &Liste::ShowFL,
                                     &Liste::ShowFH, &Liste::ShowNP, &Liste::ShowHilfP})
            liste.*s = W(0, 4) != 0;
        for (bool Darstellung::*s : {&Liste::ShowKMQ, &Liste::ShowLegende})
            liste.*s = W(0, 4) == 0;
        liste.ShowMassbalken = liste.ShowKMQ;
        liste.ShowKooVergleich = liste.ShowRelEllipsen = liste.ShowLegende;
    }
    /// From the whole network to a few metres in the picture.
    void WuerfleAnsicht() {
        liste.PasseEin();
        const PunktKnoten& p = Punkt1();
        liste.Faktor *= std::pow(10.0, -W(-5, 50) / 10.0);
        liste.XOffset = p.XWPu - liste.MinXW - W(0, weite) * liste.Faktor;
        liste.YOffset = p.YWPu - liste.MaxYW + W(0, hoehe) * liste.Faktor;
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
    int weite;
    int hoehe;
    Einstellungen e;
    Liste liste{e};

  private:
    std::mt19937 zufall_;
    bool indirekte_ = W(0, 1) == 0;  ///< lines with detours, which do not move by odd ways
};

}  // namespace zrw
