#include "output/Druck.h"

#include "model/Ganzzahl.h"
#include "output/Export.h"
#include "output/Figurenzeichner.h"

namespace zrw {
Einstellungen Geraetegroessen(Einstellungen& einstellungen, double geraetefaktor) {
    einstellungen.ScaleSizes(geraetefaktor);
    const Einstellungen groessen = einstellungen;
    einstellungen.ScaleSizes(1 / geraetefaktor);
    return groessen;
}

Zeichenzustand Geraetezustand(const Zeichenzustand& bildschirm, Zeichenflaeche& geraet,
                              double geraetefaktor) {
    Zeichenzustand zustand = bildschirm;
    zustand.modus = Zeichenmodus::Drucker;
    zustand.Geraetefaktor = geraetefaktor;
    zustand.flaeche = &geraet;
    return zustand;
}

/// The legend stands in the corner of the sheet where it stands in that of the picture.
static Legende LegendeAufBlatt(const Legende& legende, const Druckauftrag& auftrag, double geraetefaktor) {
    Legende l = legende;
    l.XO = RundeZuInt64(static_cast<double>(legende.XO) * geraetefaktor);
    l.YO = RundeZuInt64(static_cast<double>(legende.YO) * geraetefaktor);
    if (auftrag.legende) {
        l.XO = auftrag.legende->x;
        l.YO = auftrag.legende->y;
    }
    l.Masstab = auftrag.massstabtext;
    return l;
}

void DruckePlan(const Bildvorlage& v, const Zeichenmittel& mittel, const Einstellungen& groessen,
                Zeichenflaeche& drucker, const Druckauftrag& auftrag) {
    const double geraetefaktor = Geraetefaktor(auftrag.seite);
    Ansicht ansicht =
        v.ansicht.FuerGeraet(Druckfaktor(auftrag.massstab, auftrag.seite.aufloesung), auftrag.ecke);
    // The sheet is the picture: grids reach to its edges.
    ansicht.Weite = auftrag.seite.weite;
    ansicht.Hoehe = auftrag.seite.hoehe;
    std::optional<Legende> legende;
    if (v.legende != nullptr) legende = LegendeAufBlatt(*v.legende, auftrag, geraetefaktor);
    Bildvorlage blatt = v.InAnsicht(ansicht);
    blatt.legende = legende ? &*legende : nullptr;
    Zeichenzustand zustand = Geraetezustand(mittel.zustand, drucker, geraetefaktor);
    Figurenzeichner zeichner(zustand, groessen, mittel.netz, mittel.uhr);
    ZeichneBild(blatt, zeichner);
}

Bildpunkt Ausgabebereich(const Ansicht& ansicht, double massstab, const Druckseite& seite) {
    const double pixel = Druckfaktor(massstab, seite.aufloesung) / ansicht.Faktor;
    return {RundeZuInt64(seite.weite * pixel), RundeZuInt64(seite.hoehe * pixel)};
}

}  // namespace zrw
