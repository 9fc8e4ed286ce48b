#include "ui/ausgabe/Nummernlauf.h"

#include "model/Fehler.h"
#include "output/beschriftung/Planbeschriftung.h"
#include "ui/bild/Bildflaeche.h"

namespace zrw {

void LegeMassstabFest(const Ausgabequelle& quelle, Ausgabeauftrag& auftrag) {
    if (auftrag.ordnen != Nummernziel::Druck || !auftrag.passend) return;
    auftrag.massstab = Dokumentmassstab(AusgabeVon(quelle, auftrag, {}));
    auftrag.passend = auftrag.gesucht = false;
    if (quelle.vorlage.legende != nullptr) quelle.vorlage.legende->Masstab = auftrag.massstab;
}

void OrdneNummern(const Ausgabequelle& quelle, Ausgabeauftrag& auftrag, Netz& netz, const Sprecher& sage) {
    if (!auftrag.ordnen) return;
    LegeMassstabFest(quelle, auftrag);
    const Bildpunkt anfang{quelle.einstellungen.PXOff, quelle.einstellungen.PYOff};
    const auto beweglich = [&](const PunktString& t) {
        return !quelle.ausBild || Bildpunkt{t.Item->XBiO, t.Item->YBiO} == anfang;
    };
    Bildflaeche schrift(1, 1);
    schrift.SetzeGlatt(!auftrag.kantig);  // smooth characters are wider
    const Systemuhr uhr;
    const auto ordnung = *auftrag.ordnen == Nummernziel::Druck
                             ? OrdneAufDokument(AusgabeVon(quelle, auftrag, sage), netz, beweglich, {})
                             : Planbeschriftung::FuerBild(
                                   quelle.vorlage, {quelle.zustand, quelle.einstellungen, quelle.netz, uhr},
                                   schrift, 1.0, beweglich)
                                   .OrdneNummern();
    for (const auto& l : ordnung->versetzt)
        netz.VersetzeText(*l.text, l.abstand);
    if (const std::size_t offen = ordnung->nachher.ueberlappt; offen != 0) {
        sage(Fehler::Meldung(std::to_string(offen) + " Punktnummern überlappen noch eine andere.",
                             PfadText(quelle.eingabe.filename()), 0));
    }
}

}  // namespace zrw
