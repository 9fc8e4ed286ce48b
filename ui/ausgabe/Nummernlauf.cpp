#include "ui/ausgabe/Nummernlauf.h"

#include "model/Fehler.h"
#include "output/Uhr.h"
#include "ui/bild/Bildflaeche.h"

namespace zrw {
namespace {

std::optional<Planbeschriftung::Ordnung> Suche(const Ausgabequelle& quelle, const Ausgabeauftrag& auftrag,
                                               Netz& netz, const Planbeschriftung::Beweglich& beweglich,
                                               const Fortschritt& fortschritt) {
    if (*auftrag.ordnen == Nummernziel::Druck)
        return OrdneAufDokument(AusgabeVon(quelle, auftrag, {}), netz, beweglich, fortschritt);
    Bildflaeche schrift(1, 1);
    schrift.SetzeGlatt(!auftrag.kantig);  // smooth characters are wider
    const Systemuhr uhr;
    return Planbeschriftung::FuerBild(quelle.vorlage,
                                      {quelle.zustand, quelle.einstellungen, quelle.netz, uhr}, schrift, 1.0,
                                      beweglich)
        .OrdneNummern(fortschritt);
}

}  // namespace

void LegeMassstabFest(const Ausgabequelle& quelle, Ausgabeauftrag& auftrag) {
    if (auftrag.ordnen != Nummernziel::Druck || !auftrag.passend) return;
    auftrag.massstab = Dokumentmassstab(AusgabeVon(quelle, auftrag, {}));
    auftrag.passend = auftrag.gesucht = false;
    if (quelle.vorlage.legende != nullptr) quelle.vorlage.legende->Masstab = auftrag.massstab;
}

std::optional<std::vector<Planbeschriftung::Nummernlage>> SucheNummernlagen(
    const Ausgabequelle& quelle, const Ausgabeauftrag& auftrag, Netz& netz,
    const Planbeschriftung::Beweglich& beweglich, const Sprecher& sage, const Fortschritt& fortschritt) {
    if (!auftrag.ordnen) return std::vector<Planbeschriftung::Nummernlage>();
    auto ordnung = Suche(quelle, auftrag, netz, beweglich, fortschritt);
    if (!ordnung) return std::nullopt;
    if (const std::size_t offen = ordnung->nachher.ueberlappt; offen != 0) {
        sage(Fehler::Meldung(std::to_string(offen) + " Punktnummern überlappen noch eine andere.",
                             PfadText(quelle.eingabe.filename()), 0));
    }
    return std::move(ordnung->versetzt);
}

void OrdneNummern(const Ausgabequelle& quelle, Ausgabeauftrag& auftrag, Netz& netz, const Sprecher& sage) {
    LegeMassstabFest(quelle, auftrag);
    const Bildpunkt anfang{quelle.einstellungen.PXOff, quelle.einstellungen.PYOff};
    const auto beweglich = [&](const PunktString& t) {
        return !quelle.ausBild || Bildpunkt{t.Item->XBiO, t.Item->YBiO} == anfang;
    };
    const auto lagen = SucheNummernlagen(quelle, auftrag, netz, beweglich, sage);
    for (const auto& l : lagen.value())
        netz.VersetzeText(*l.text, l.abstand);
}

}  // namespace zrw
