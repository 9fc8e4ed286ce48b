#include "output/Druck.h"

#include "model/Ganzzahl.h"
#include "output/Export.h"
#include "output/Geraeteansicht.h"

namespace zrw {
namespace {

/// The sizes of the printer, for the duration of a job: scaled forth and back, not kept.
class Druckgroessen {
  public:
    Druckgroessen(Einstellungen& einstellungen, double geraetefaktor)
        : einstellungen_(einstellungen), geraetefaktor_(geraetefaktor) {
        einstellungen_.ScaleSizes(geraetefaktor_);
    }
    ~Druckgroessen() { einstellungen_.ScaleSizes(1 / geraetefaktor_); }
    Druckgroessen(const Druckgroessen&) = delete;
    Druckgroessen& operator=(const Druckgroessen&) = delete;

  private:
    Einstellungen& einstellungen_;
    double geraetefaktor_;
};

/// The legend stands in the corner of the sheet where it stands in that of the picture.
class Legendenort {
  public:
    Legendenort(Legende* legende, double geraetefaktor, const std::optional<Bildpunkt>& ort)
        : legende_(legende) {
        if (legende_ == nullptr) return;
        vorher_ = legende_->Position();
        legende_->XO = RundeZuInt64(static_cast<double>(vorher_.x) * geraetefaktor);
        legende_->YO = RundeZuInt64(static_cast<double>(vorher_.y) * geraetefaktor);
        if (ort) {
            legende_->XO = ort->x;
            legende_->YO = ort->y;
        }
    }
    ~Legendenort() {
        if (legende_ == nullptr) return;
        legende_->XO = vorher_.x;
        legende_->YO = vorher_.y;
    }
    Legendenort(const Legendenort&) = delete;
    Legendenort& operator=(const Legendenort&) = delete;

  private:
    Legende* legende_;
    Bildpunkt vorher_;
};

}  // namespace

void Drucke(Liste& liste, Zeichner& zeichner, Zeichenzustand& zustand, Einstellungen& einstellungen,
            Zeichenflaeche& drucker, const Druckauftrag& auftrag) {
    const double geraetefaktor = auftrag.seite.aufloesung / kBildaufloesung;
    if (liste.ShowLegende && liste.Legend != nullptr) liste.Legend->Masstab = auftrag.massstabtext;
    {
        const Geraeteansicht ansicht(liste, zustand, Druckfaktor(auftrag.massstab, auftrag.seite.aufloesung),
                                     auftrag.ecke);
        const Druckgroessen groessen(einstellungen, geraetefaktor);
        const Legendenort legendenort(liste.Legend.get(), geraetefaktor, auftrag.legende);
        // The sheet is the picture: grids reach to its edges.
        liste.Weite = auftrag.seite.weite;
        liste.Hoehe = auftrag.seite.hoehe;
        zustand.modus = Zeichenmodus::Drucker;
        zustand.Geraetefaktor = geraetefaktor;
        zustand.flaeche = &drucker;
        liste.ShowPicture(zeichner);
    }
    zustand.Geraetefaktor = 1 / geraetefaktor;
}

Bildpunkt Ausgabebereich(const Liste& liste, double massstab, const Druckseite& seite) {
    const double pixel = Druckfaktor(massstab, seite.aufloesung) / liste.Faktor;
    return {RundeZuInt64(seite.weite * pixel), RundeZuInt64(seite.hoehe * pixel)};
}

}  // namespace zrw
