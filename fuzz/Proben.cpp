#include "fuzz/Proben.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <initializer_list>
#include <limits>
#include <memory>

#include "model/Bytes.h"

namespace zrw::fuzz {
namespace {

/// Walks for comparison are quadratic; this many start points find every kind of fault all the same.
constexpr int kStichprobe = 48;

template <class Knoten>
std::int64_t Laenge(const Knoten* kopf) {
    std::int64_t n = 0;
    for (; kopf != nullptr; kopf = kopf->Next)
        ++n;
    return n;
}

/// First node from the head on that fits.
template <class Knoten, class Passt>
const Knoten* Erster(const Knoten* kopf, Passt passt) {
    while (kopf != nullptr && !passt(*kopf))
        kopf = kopf->Next;
    return kopf;
}

bool HatEnde(const PunktKante& k, PunktIndex nr) {
    return k.ANr == nr || k.ENr == nr;
}

bool VerbindetPunkte(const PunktKante& k, PunktIndex a, PunktIndex b) {
    return (k.ANr == a && k.ENr == b) || (k.ANr == b && k.ENr == a);
}

void PruefePunktsuche(const Liste& l) {
    int n = 0;
    for (const PunktKnoten* p = l.PunktKnoten; p != nullptr && n < kStichprobe; p = p->Next, ++n) {
        const auto gleich = [&](const PunktKnoten& x) { return x.PNr == p->PNr; };
        VerlangeBedingung(l.SuchPkt(p->PNr) == Erster(l.PunktKnoten, gleich),
                          "SuchPkt findet den ersten Punkt");
    }
}

void PruefeTextsuche(const Liste& l) {
    int n = 0;
    for (const PunktString* t = l.PktTextKnoten; t != nullptr && n < kStichprobe; t = t->Next, ++n) {
        const PunktNummernTyp& text = t->Item->Aus;
        const auto* ersterMitNr =
            Erster(l.PktTextKnoten, [&](const PunktString& x) { return x.TNr == t->TNr; });
        VerlangeBedingung(l.FindPktText(t->TNr) == ersterMitNr->Item, "FindPktText findet den ersten Text");
        const auto* ersterText =
            Erster(l.PktTextKnoten, [&](const PunktString& x) { return x.Item->Aus == text; });
        VerlangeBedingung(l.FindPunkt(text.Text()) == l.SuchPkt(ersterText->TNr),
                          "FindPunkt findet den ersten Text");
    }
}

void PruefeKantensuche(const Liste& l) {
    int n = 0;
    for (const PunktKante* k = l.KanteKnoten; k != nullptr && n < kStichprobe; k = k->Next, ++n) {
        const auto passt = [&](const PunktKante& x) { return VerbindetPunkte(x, k->ANr, k->ENr); };
        VerlangeBedingung(l.FindKante(k->ENr, k->ANr) == Erster(l.KanteKnoten, passt),
                          "FindKante findet die erste Linie");
    }
}

/// Saved and loaded again.
std::unique_ptr<Liste> Kopie(const Liste& liste, const Netzangaben& netz) {
    const std::string bytes = Gespeichert(liste, netz);
    ByteLeser leser(bytes);
    Netzangaben gelesen;
    std::unique_ptr<Liste> kopie = Liste::Load(leser, liste.Anzeige(), gelesen, "kopie.zrw");
    VerlangeBedingung(leser.Rest() == 0, "Laden liest, was gespeichert wurde");
    VerlangeBedingung(gelesen.Netztyp == netz.Netztyp, "der Netztyp bleibt");
    PruefeListe(*kopie);
    return kopie;
}

void ZeigeUndVerberge(Liste& l, Zeichner& z) {
    int n = 0;
    for (PPunktKnoten p = l.PunktKnoten; p != nullptr && n < 4; p = p->Next, ++n) {
        l.HidePunkt(*p, z);
        for (const PunktKante* k = l.KanteKnoten; k != nullptr; k = k->Next) {
            VerlangeBedingung(!HatEnde(*k, p->PNr) || !k->Item->Visible,
                              "HidePunkt verbirgt alle Linien des Punktes");
        }
        l.ShowPunkt(*p, z);
        for (const PunktKante* k = l.KanteKnoten; k != nullptr; k = k->Next) {
            VerlangeBedingung(!HatEnde(*k, p->PNr) || k->Item->Visible,
                              "ShowPunkt zeigt alle Linien des Punktes");
        }
    }
}

/// @param maus a position on the picture or far beyond it [px]
void KlickeMaus(Liste& l, Bildpunkt maus, Zeichner& z) {
    const PPunktKante kante = l.PickKante(maus);
    if (kante != nullptr) kante->Item->Hide(z);
    if (const PPunktString text = l.MausPktText(maus); text != nullptr) l.DragPktText(*text, z);
    PPunktKnoten punkt = nullptr;
    if (l.MausPunkt(maus, punkt, z)) {
        VerlangeBedingung(punkt == l.ClickPunkt(maus), "MausPunkt und ClickPunkt fangen denselben Punkt");
        l.MovePunkt(*punkt, 17, -5);
        l.ZentrierPunkt(*punkt, *l.PunktKnoten, z);
    }
    l.MausLegende(maus);
}

}  // namespace

void VerlangeBedingung(bool bedingung, const char* was) {
    if (bedingung) return;
    std::fprintf(stderr, "verletzt: %s\n", was);
    std::abort();
}

void PruefeListe(const Liste& liste) {
    VerlangeBedingung(Laenge(liste.PunktKnoten) == liste.MaxPkte, "MaxPkte ist die Zahl der Punkte");
    VerlangeBedingung(Laenge(liste.PktTextKnoten) == liste.MaxPkte, "MaxPkte ist die Zahl der Texte");
    VerlangeBedingung(Laenge(liste.KanteKnoten) == liste.MaxKant, "MaxKant ist die Zahl der Linien");
    PruefePunktsuche(liste);
    PruefeTextsuche(liste);
    PruefeKantensuche(liste);
}

void PruefeNetz(const Liste& liste) {
    for (const PunktString* t = liste.PktTextKnoten; t != nullptr; t = t->Next) {
        const PunktKnoten* p = liste.FindPunkt(t->Item->Aus.Text());
        VerlangeBedingung(p != nullptr && p->PNr == t->TNr, "jede Punktnummer gibt es einmal");
    }
    for (const PunktKnoten* p = liste.PunktKnoten; p != nullptr; p = p->Next) {
        VerlangeBedingung(liste.SuchPkt(p->PNr) == p, "jede innere Nummer gibt es einmal");
        VerlangeBedingung(liste.FindPktText(p->PNr) != nullptr, "jeder Punkt hat einen Text");
    }
    for (const PunktKante* k = liste.KanteKnoten; k != nullptr; k = k->Next) {
        VerlangeBedingung(liste.SuchPkt(k->ANr) != nullptr && liste.SuchPkt(k->ENr) != nullptr,
                          "beide Enden gibt es");
        VerlangeBedingung(k->ANr != k->ENr, "keine Linie von einem Punkt zu sich selbst");
        VerlangeBedingung(liste.FindKante(k->ANr, k->ENr) == k, "jedes Punktpaar hat eine Linie");
    }
}

std::string Gespeichert(const Liste& liste, const Netzangaben& netz) {
    ByteSchreiber f;
    liste.Store(f, netz);
    return std::string(f.Inhalt());
}

void PruefeSpeichern(const Liste& liste, const Netzangaben& netz) {
    const std::unique_ptr<Liste> zweimal = Kopie(*Kopie(liste, netz), netz);
    VerlangeBedingung(Gespeichert(*zweimal, netz) == Gespeichert(liste, netz),
                      "zweimal laden gibt dieselbe Datei");
}

void BedieneListe(Liste& liste, Zeichner& z) {
    liste.ShowFL = liste.ShowGitter = liste.ShowKMQ = liste.ShowLegende = true;
    liste.ShowPicture(z);
    for (const double stufe : {1.0, 1e-6, 1e-15, 1e12}) {
        liste.Faktor *= stufe;
        liste.ZoomUp(z);
        liste.ZoomDown(z);
    }
    liste.MoveMe(37, -11);
    liste.ShowPicture(z);
    liste.Alles(z);
    liste.DisplayHilfp(false);
    liste.ShowPicture(z);
    liste.DisplayHilfp(true);
    ZeigeUndVerberge(liste, z);
    constexpr auto kMax = std::numeric_limits<std::int64_t>::max();
    constexpr auto kMin = std::numeric_limits<std::int64_t>::min();
    for (const Bildpunkt maus :
         {Bildpunkt{400, 300}, Bildpunkt{2, 2}, Bildpunkt{kMax, kMin}, Bildpunkt{kMin, kMax}}) {
        KlickeMaus(liste, maus, z);
    }
    if (liste.PunktKnoten != nullptr) KlickeMaus(liste, liste.PunktKnoten->Item->Position(), z);
    if (liste.KanteKnoten != nullptr) KlickeMaus(liste, liste.KanteKnoten->Item->Ende(), z);
    for (const LinieAttr attr : {LinieAttr::AR2, LinieAttr::ARI1, LinieAttr::ARI2, LinieAttr::ASTI}) {
        liste.ChKante(attr, z);
    }
    liste.WeltinBild();  // dragging leaves the other figures at the moved position where they were
}

void BearbeiteListe(Liste& liste, Zeichner& z) {
    bool weg = false;
    for (PPunktKante k = liste.KanteKnoten; k != nullptr;) {
        const PPunktKante naechste = k->Next;
        liste.DreheKante(*k);
        if (weg) liste.DeleteKante(k, z);
        weg = !weg;
        k = naechste;
    }
    PruefeListe(liste);
    for (PPunktKnoten p = liste.PunktKnoten; p != nullptr;) {
        const PPunktKnoten naechste = p->Next;
        // A point without a label, which only a damaged file holds, stays: without it the one count that both
        // lists share would fit neither.
        if (weg && liste.FindPktText(p->PNr) != nullptr) liste.DeletePunkt(p, z);
        weg = !weg;
        p = naechste;
    }
    PruefeListe(liste);
    ZeigeUndVerberge(liste, z);
    liste.Done(z);
    VerlangeBedingung(liste.SuchPkt(1) == nullptr && liste.PunktKnoten == nullptr &&
                          liste.KanteKnoten == nullptr && liste.PktTextKnoten == nullptr,
                      "Done leert alles");
}

}  // namespace zrw::fuzz
