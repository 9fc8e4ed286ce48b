// Main window: results of the adjustment, listed and marked.
#include <QToolButton>
#include <cmath>

#include "input/tabellen/MarkiereFehler.h"
#include "model/Fehler.h"
#include "model/Punktarten.h"
#include "model/Zahlentext.h"
#include "ui/Einstellungsablage.h"
#include "ui/Hauptfenster.h"
#include "ui/Umwandlung.h"
#include "ui/dialoge/Beobachtungstyp.h"
#include "ui/dialoge/TFormData.h"

namespace zrw {
namespace {

/// "Richtung zweiseitig, Strecke, Höhenunterschied einseitig".
QString Beobachtungen(const Kante& k) {
    constexpr std::array kSeiten{"", " einseitig", " zweiseitig"};
    const auto seitig = [&](int n) { return QString::fromUtf8(kSeiten[static_cast<std::size_t>(n)]); };
    const Beobachtungswahl w = AlsWahl({k.LAttr, k.KAttr});
    QStringList teile;
    if (w.richtung > 0) teile << QStringLiteral("Richtung") + seitig(w.richtung);
    if (w.strecke) teile << QStringLiteral("Strecke");
    if (w.gps) teile << QStringLiteral("GPS-Vektor");
    if (w.hoehe > 0) teile << QStringLiteral("Höhenunterschied") + seitig(w.hoehe);
    if (w.indirekt) teile << QStringLiteral("indirekt");
    return teile.isEmpty() ? QStringLiteral("keine Beobachtung") : teile.join(QStringLiteral(", "));
}

QString Angaben(const PunktKnoten& p) {
    return QStringLiteral("%1   Rechtswert %2   Hochwert %3")
        .arg(AusUtf8(ZurArt(p.Item->PktArt).bezeichnung), AusUtf8(Festkomma(p.XWPu, 0, 3)),
             AusUtf8(Festkomma(p.YWPu, 0, 3)));
}

QString Angaben(const Liste& netz, const PunktKante& k) {
    const PunktKnoten* a = netz.SuchPkt(k.ANr);
    const PunktKnoten* e = netz.SuchPkt(k.ENr);
    QString text = Beobachtungen(*k.Item);
    if (a != nullptr && e != nullptr) {
        const double laenge = std::hypot(e->XWPu - a->XWPu, e->YWPu - a->YWPu);
        text += QStringLiteral("   Länge in der Ebene %1 m").arg(AusUtf8(Festkomma(laenge, 0, 3)));
    }
    return text;
}

}  // namespace

void TZrwMainDlg::ZeigeErgebnis(const PunktKnoten* punkt, const PunktKante* kante) {
    if (punkt != nullptr) {
        DisplayPunkt(*punkt);
    } else if (kante != nullptr) {
        DisplayKante(*kante);
    }
}

void TZrwMainDlg::DisplayPunkt(const PunktKnoten& punkt) {
    const QString n = AusNetz(liste_->GetPktText(punkt.PNr));
    ergebnisse_->Betitle(QStringLiteral("Abriss nach der Ausgleichung Punkt ") + n, Angaben(punkt), n);
    aufgelistet_ = n;
    zweiterAufgelisteter_.reset();
    ListeAuf();
    ergebnisse_->Zeige();
}

void TZrwMainDlg::DisplayKante(const PunktKante& kante) {
    const QString a = AusNetz(liste_->GetPktText(kante.ANr));
    const QString b = AusNetz(liste_->GetPktText(kante.ENr));
    ergebnisse_->Betitle(QStringLiteral("Abriss nach der Ausgleichung P1= %1  P2= %2").arg(a, b),
                         Angaben(*liste_, kante), a);
    aufgelistet_ = a;
    zweiterAufgelisteter_ = b;
    ListeAuf();
    ergebnisse_->Zeige();
}

/// The results of what was listed last on the tab that is open now.
void TZrwMainDlg::ListeAuf() {
    const QString& a = aufgelistet_;
    const auto& b = zweiterAufgelisteter_;
    if (a.isEmpty() || (b && b->isEmpty()))
        return ergebnisse_->Leere(QStringLiteral("Zu Punkten ohne Nummer gibt es keine Ergebnisse"));
    const Ergebnisreiter& reiter = ergebnisse_->Reiter();
    if (!programm_.daten.Vorhanden(reiter.datei)) {
        ergebnisse_->Leere(AusUtf8(reiter.datei) + QStringLiteral(" liegt nicht beim Netz"));
        return;
    }
    try {
        const std::string abfrage =
            b ? Abfragetext(reiter.kante, NachUtf8(a), NachUtf8(*b)) : Abfragetext(reiter.punkt, NachUtf8(a));
        ergebnisse_->Fuelle(programm_.daten.Frage(reiter.tabelle, abfrage));
    } catch (const std::exception& f) {
        ergebnisse_->Leere(AusUtf8(reiter.datei) + QStringLiteral(" ist nicht lesbar"));
        ZeigeFehler(f);
    }
    ZeigeTabellenmeldung();
}

/// What reading the tables had to say. Later, outside whatever goes on: a box would let the next drawing in.
void TZrwMainDlg::ZeigeTabellenmeldung() {
    const QString meldung = AusUtf8(programm_.daten.NimmMeldung());
    if (meldung.isEmpty()) return;
    QMetaObject::invokeMethod(
        this, [this, meldung] { programm_.dialoge.Melde(meldung); }, Qt::QueuedConnection);
}

/// Results lie beside the control file; for a picture file where the alias points to, if there is one.
void TZrwMainDlg::WaehleTabellenordner(const std::filesystem::path& datei) {
    std::error_code fehler;
    const std::filesystem::path eigener = std::filesystem::absolute(datei, fehler).parent_path();
    const auto alias = TavelinOrdner(programm_.ablage);
    programm_.daten.SetzeOrdner(IstBilddatei(datei) && alias ? *alias : eigener);
    programm_.zustand.Ergebnisse = &programm_.daten;
}

void TZrwMainDlg::MarkiereFehler() {
    QStringList texte;
    for (const std::string& text : zrw::MarkiereFehler(*liste_, programm_.daten, programm_.einstellungen))
        texte << AusUtf8(text);
    if (!texte.isEmpty()) programm_.dialoge.Melde(texte.join(QLatin1Char('\n')));
}

}  // namespace zrw
