#include "model/Bildvorlage.h"

#include "model/Bildorte.h"
#include "model/Gezeigt.h"
#include "model/Zeichner.h"

namespace zrw {

void Auslassung::SetzeFiguren(const Figurenmenge& m) {
    figuren.clear();
    figuren.insert(m.punkte.begin(), m.punkte.end());
    figuren.insert(m.kanten.begin(), m.kanten.end());
    figuren.insert(m.texte.begin(), m.texte.end());
}

bool Dargestellt(const PunktKante& k, const Netz& netz, const Darstellung& d) {
    const PunktKnoten* a = netz.SuchPkt(k.ANr);
    const PunktKnoten* e = netz.SuchPkt(k.ENr);
    return a != nullptr && e != nullptr && d.Dargestellt(*a->Item) && d.Dargestellt(*e->Item);
}

void ZeichneKanten(const Bildvorlage& v, Zeichner& z) {
    Gezeigt gezeigt(v.netz, v.darstellung);
    Bildorte orte(v.netz, v.ansicht);
    for (const PunktKante* k = v.netz.KanteKnoten; k != nullptr; k = k->Next) {
        if (!v.Gezeichnet(*k) || !gezeigt(*k)) continue;
        z.SetzeStil(v.StilVon(*k));
        z.ZeichneKante(*k->Item, orte.Anfang(*k), orte.Ende(*k), Gang::Zeigen);
    }
    z.SetzeStil(nullptr);
}

void ZeichnePunkte(const Bildvorlage& v, Zeichner& z) {
    for (const PunktKnoten* p = v.netz.PunktKnoten; p != nullptr; p = p->Next) {
        if (!v.Gezeichnet(*p) || !v.darstellung.Dargestellt(*p->Item)) continue;
        z.SetzeStil(v.StilVon(*p));
        p->Item->ZeigeSymbolBei(BildortVon(*p, v.ansicht), z);
    }
    z.SetzeStil(nullptr);
}

void ZeichneTexte(const Bildvorlage& v, Zeichner& z) {
    if (!v.darstellung.ShowHilfP) return;
    Gezeigt gezeigt(v.netz, v.darstellung);
    Bildorte orte(v.netz, v.ansicht);
    for (const PunktString* t = v.netz.PktTextKnoten; t != nullptr; t = t->Next) {
        if (v.Gezeichnet(*t) && gezeigt(*t)) z.ZeichneText(*t->Item, orte.Text(*t), Gang::Zeigen);
    }
}

void ZeichneFiguren(const Bildvorlage& v, Zeichner& z) {
    const Darstellung& d = v.darstellung;
    if (d.ShowGitter) z.GitterShow(v);
    if (d.ShowKMQ) z.KMGitterShow(v);
    if (!z.ZeichneNetz(v)) {
        if (d.ShowBeob) ZeichneKanten(v, z);
        ZeichnePunkte(v, z);
        if (d.ShowPktText) ZeichneTexte(v, z);
    }
    if (d.ShowLegende && v.legende != nullptr && (v.ohne == nullptr || !v.ohne->legende)) v.legende->Show(z);
    z.ZeichnePunktRes(v);
    z.DrawResMasstab(v);
    if (d.ZeigtErklaerung() && (v.ohne == nullptr || !v.ohne->erklaerung)) z.ZeichneErklaerung(v);
    if (d.ShowMassbalken) z.ZeichneMassbalken(v);
}

void ZeichneBild(const Bildvorlage& v, Zeichner& z) {
    z.ClearPicture(v.ansicht.Weite, v.ansicht.Hoehe);
    ZeichneFiguren(v, z);
}

}  // namespace zrw
