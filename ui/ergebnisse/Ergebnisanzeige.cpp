#include "ui/ergebnisse/Ergebnisanzeige.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "input/Oeffnen.h"
#include "input/Systemdateien.h"
#include "input/tabellen/Ergebnisabfragen.h"
#include "input/tabellen/MarkiereFehler.h"
#include "model/Fehler.h"
#include "model/Linienarten.h"
#include "model/Punktarten.h"
#include "model/Zahlentext.h"
#include "ui/Umwandlung.h"
#include "ui/ablage/Einstellungsablage.h"
#include "ui/dialoge/Beobachtungstyp.h"
#include "ui/ergebnisse/TFormData.h"

namespace zrw {
namespace {

/// "Richtung zweiseitig, Strecke, Höhenunterschied einseitig".
QString Messungen(const Kante& k) {
    const Linienart& linie = ZurLinie(k.LAttr);
    // As the dialog sees it: what was measured from both ends is not named for one of them again.
    const KanteAttr weitere = AlsTyp(AlsWahl({k.LAttr, k.KAttr})).weitere;
    QStringList teile;
    if (!linie.bezeichnung.empty()) teile << AusUtf8(linie.bezeichnung);
    for (const Beobachtungsart& art : kBeobachtungsarten) {
        if (weitere.HatArt(art.art)) teile << AusUtf8(art.bezeichnung);
    }
    if (linie.indirekt) teile << QStringLiteral("indirekt");
    return teile.isEmpty() ? QStringLiteral("keine Beobachtung") : teile.join(QStringLiteral(", "));
}

/// "Rechtswert 1000.000, Hochwert 2000.000".
QString Lagetext(double rechts, double hoch) {
    return QStringLiteral("Rechtswert %1, Hochwert %2")
        .arg(AusUtf8(Festkomma(rechts, 0, 3)), AusUtf8(Festkomma(hoch, 0, 3)));
}

/// Whether the adjustment is given the position of the point, and not to find it.
bool LageGegeben(PunktArt art) {
    return art == PunktArt::FP || art == PunktArt::FL;
}

}  // namespace

Ergebnisanzeige::Ergebnisanzeige(const Programm& programm, const Vorlieben& vorlieben, QWidget* eltern)
    : programm_(programm),
      stand_(programm.daten),
      fenster_(new TFormData(programm.sitzung, eltern)),
      liste_(programm, vorlieben, fenster_->Gitter(), Gegenrichtung::Nennen, [this] { MeldeTabellen(); }) {
    // Until a file is opened, beside which they are looked for.
    if (const auto alias = TavelinOrdner(programm_.ablage)) programm_.daten.SetzeOrdner(*alias);
}

void Ergebnisanzeige::VergissNetz() {
    fenster_->hide();
    liste_.LeereListe();
    stand_.VergissNetz();
}

bool Ergebnisanzeige::WaehleOrdner(const std::filesystem::path& datei) {
    const std::filesystem::path vorher = programm_.daten.Ordner();
    programm_.daten.SetzeOrdner(VollerName(datei).parent_path());
    programm_.zustand.Ergebnisse = &programm_.daten;
    stand_.OrdnerGewaehlt();
    if (programm_.daten.Ordner() == vorher) return false;
    if (fenster_->isVisible()) liste_.ErneuereListe();
    return true;
}

bool Ergebnisanzeige::Vorhanden() const {
    const auto liegtBei = [this](const Ergebnisreiter& r) { return programm_.daten.Vorhanden(r.datei); };
    return std::any_of(kErgebnisreiter.begin(), kErgebnisreiter.end(), liegtBei);
}

QString Ergebnisanzeige::Angaben(const Liste& netz, const PunktKnoten& punkt) const {
    const PunktArt art = punkt.Item->PktArt;
    QString text = AusUtf8(ZurArt(art).bezeichnung) +
                   (LageGegeben(art) ? QStringLiteral("   gegeben: ") : QStringLiteral("   Näherung: ")) +
                   Lagetext(punkt.XWPu, punkt.YWPu);
    Punktergebnisse* ergebnisse = programm_.zustand.Ergebnisse;
    if (ergebnisse == nullptr) return text;
    ergebnisse->ErneuereErgebnisse();
    const Punktergebnis* e = ergebnisse->ErgebnisZu(netz.GetPktText(punkt.PNr));
    if (e != nullptr && std::isfinite(e->Y) && std::isfinite(e->X))
        text += QStringLiteral("   ausgeglichen: ") + Lagetext(e->Y, e->X);
    return text;
}

QString Ergebnisanzeige::Angaben(const Liste& netz, const PunktKante& kante) const {
    const PunktKnoten* a = netz.SuchPkt(kante.ANr);
    const PunktKnoten* e = netz.SuchPkt(kante.ENr);
    QString text = Messungen(*kante.Item);
    if (a != nullptr && e != nullptr) {
        const double laenge = std::hypot(e->XWPu - a->XWPu, e->YWPu - a->YWPu);
        text += QStringLiteral("   Länge in der Ebene %1 m").arg(AusUtf8(Festkomma(laenge, 0, 3)));
    }
    const QString grund = Markiergrund(netz, kante);
    return grund.isEmpty() ? text : text + QStringLiteral("   als grob falsch bezeichnet: ") + grund;
}

QString Ergebnisanzeige::Markiergrund(const Liste& netz, const PunktKante& kante) const {
    const std::string a = netz.GetPktText(kante.ANr);
    const std::string b = netz.GetPktText(kante.ENr);
    if (kante.Item->Farbe != programm_.einstellungen.GFCol || a.empty() || b.empty()) return {};
    QStringList gruende;
    for (const std::string_view titel :
         Markiergruende(programm_.daten, NachUtf8(AusNetz(a)), NachUtf8(AusNetz(b))))
        gruende << AusUtf8(titel);
    return gruende.join(QStringLiteral(", "));
}

void Ergebnisanzeige::ListeAuf(const Liste& netz, const PunktKnoten& punkt) {
    fenster_->SetzeTitel(
        QStringLiteral("Abriss nach der Ausgleichung Punkt ") + AusNetz(netz.GetPktText(punkt.PNr)),
        Angaben(netz, punkt));
    liste_.ListeAuf(netz, punkt);
    fenster_->ZeigeFenster();
}

void Ergebnisanzeige::ListeAuf(const Liste& netz, const PunktKante& kante) {
    fenster_->SetzeTitel(QStringLiteral("Abriss nach der Ausgleichung P1= %1  P2= %2")
                             .arg(AusNetz(netz.GetPktText(kante.ANr)), AusNetz(netz.GetPktText(kante.ENr))),
                         Angaben(netz, kante));
    liste_.ListeAuf(netz, kante);
    fenster_->ZeigeFenster();
}

void Ergebnisanzeige::MarkiereFehler(Liste& netz) {
    MeldeTabellenfehler(zrw::MarkiereFehler(netz, programm_.daten, programm_.einstellungen));
}

/// Later, outside whatever goes on: a box would let the next drawing in.
void Ergebnisanzeige::MeldeTabellenfehler(const std::vector<Tabellenmeldung>& meldungen) {
    if (meldungen.empty()) return;
    QStringList texte;
    for (const Tabellenmeldung& m : meldungen)
        texte << AusUtf8(m.text);
    // The dialog service outlives the window of the results, with which the call goes.
    QMetaObject::invokeMethod(
        fenster_,
        [&dialoge = programm_.dialoge, text = texte.join(QLatin1Char('\n'))] { dialoge.MeldeFehler(text); },
        Qt::QueuedConnection);
}

void Ergebnisanzeige::MeldeTabellen() {
    MeldeTabellenfehler(programm_.daten.NimmMeldungen());
}

}  // namespace zrw
