#include "ui/bild/Figurentext.h"

#include <QStringList>
#include <array>
#include <cmath>

#include "model/Linienarten.h"
#include "model/Messzug.h"
#include "model/Netzangaben.h"
#include "model/Netzarten.h"
#include "model/Punktarten.h"
#include "model/Zahlentext.h"
#include "ui/Umwandlung.h"
#include "ui/dialoge/TFormPunktart.h"

namespace zrw {
namespace {

/// A table with a heading; values that are not known are left out.
class Textzeilen {
  public:
    explicit Textzeilen(const QString& titel)
        : html_(QStringLiteral("<b>%1</b>").arg(titel.toHtmlEscaped())) {}

    void NimmZeile(const QString& name, const QString& wert) {
        html_ += QStringLiteral("<tr><td>%1&nbsp;&nbsp;</td><td align=\"right\">%2</td></tr>")
                     .arg(name.toHtmlEscaped(), wert.toHtmlEscaped());
    }
    void NimmZahl(const QString& name, double wert, int stellen, const char* einheit) {
        if (std::isfinite(wert))
            NimmZeile(name, AusUtf8(Festkomma(wert, 0, stellen)) + QString::fromUtf8(einheit));
    }
    [[nodiscard]] QString Text() const {
        const auto anfang = html_.indexOf(QStringLiteral("<tr>"));
        if (anfang < 0) return html_;
        QString text = html_;
        return text.insert(anfang, QStringLiteral("<table>")) + QStringLiteral("</table>");
    }

  private:
    QString html_;
};

void NimmErgebnis(Textzeilen& z, const Punktergebnis& e) {
    z.NimmZahl(QStringLiteral("ausgeglichen Y"), e.Y, 4, " m");
    z.NimmZahl(QStringLiteral("ausgeglichen X"), e.X, 4, " m");
    z.NimmZahl(QStringLiteral("ausgeglichen H"), e.H, 4, " m");
    z.NimmZahl(QStringLiteral("Ellipse A"), e.A, 1, " mm");
    z.NimmZahl(QStringLiteral("Ellipse B"), e.B, 1, " mm");
    z.NimmZahl(QStringLiteral("Ellipse Phi"), e.Phi, 1, " gon");
    z.NimmZahl(QStringLiteral("mH"), e.mH, 1, " mm");
}

void NimmErgebnis(Textzeilen& z, const Relativellipse& e) {
    z.NimmZahl(QStringLiteral("relative Ellipse A"), e.A, 1, " mm");
    z.NimmZahl(QStringLiteral("relative Ellipse B"), e.B, 1, " mm");
    z.NimmZahl(QStringLiteral("relative Ellipse Phi"), e.Phi, 1, " gon");
    z.NimmZahl(QStringLiteral("mS längs"), e.mS, 1, " mm");
    z.NimmZahl(QStringLiteral("mQ quer"), e.mQ, 1, " mm");
}

/// Names of other programs may be longer than the screen is wide.
QString Gekuerzt(const QString& name) {
    constexpr qsizetype kLaengster = 80;
    return name.size() <= kLaengster ? name : name.left(kLaengster) + QStringLiteral("…");
}

QString Beobachtungen(const Kante& kante) {
    QStringList arten;
    if (const Linienart& art = ZurLinie(kante.LAttr); !art.bezeichnung.empty())
        arten << AusUtf8(art.bezeichnung) + (art.indirekt ? QStringLiteral(" (indirekt)") : QString());
    for (const Beobachtungsart& b : kBeobachtungsarten) {
        if (kante.KAttr.HatArt(b.art)) arten << AusUtf8(b.bezeichnung);
    }
    return arten.isEmpty() ? QStringLiteral("keine") : arten.join(QStringLiteral(", "));
}

QString Verweis(const Netz& netz, PunktIndex nr) {
    return QStringLiteral("<a href=\"%1\">%2</a>").arg(nr).arg(Nummertext(netz, nr).toHtmlEscaped());
}

}  // namespace

QString Nummertext(const Netz& netz, PunktIndex nr) {
    const QString nummer = AusNetz(netz.GetPktText(nr));
    return nummer.isEmpty() ? QStringLiteral("ohne Nummer") : nummer;
}

QString Koordinatentext(const PunktKnoten& punkt) {
    return AusUtf8(Festkomma(punkt.XWPu, 0, 4)) + QLatin1Char('\t') + AusUtf8(Festkomma(punkt.YWPu, 0, 4));
}

QString Punkttext(const Liste& netz, const PunktKnoten& punkt, const Einstellungen& einstellungen,
                  int netztyp, const Punktergebnisse* ergebnisse, const Namensliste& namen) {
    const PunktArt art = ArtNachFarbe(punkt.Item->Farbe, einstellungen);
    Textzeilen z(
        QStringLiteral("Punkt %1, %2").arg(Nummertext(netz, punkt.PNr), AusUtf8(ZurArt(art).bezeichnung)));
    const std::string nummer = netz.GetPktText(punkt.PNr);
    if (const auto name = namen.find(nummer); name != namen.end())
        z.NimmZeile(QStringLiteral("Name"), Gekuerzt(AusUtf8(name->second)));
    const char* einheit = InMetern(netztyp) ? " m" : "";
    z.NimmZahl(QStringLiteral("Rechtswert"), punkt.XWPu, 3, einheit);
    z.NimmZahl(QStringLiteral("Hochwert"), punkt.YWPu, 3, einheit);
    if (ergebnisse == nullptr || nummer.empty()) return z.Text();
    if (const Punktergebnis* e = ergebnisse->ErgebnisZu(nummer)) NimmErgebnis(z, *e);
    return z.Text();
}

QString Kantentext(const Liste& netz, const PunktKante& kante, const Einstellungen& einstellungen,
                   int netztyp, const QString& markiergrund, const Punktergebnisse* ergebnisse) {
    Textzeilen z(QStringLiteral("%1 – %2").arg(Nummertext(netz, kante.ANr), Nummertext(netz, kante.ENr)));
    z.NimmZeile(QStringLiteral("Beobachtungen"), Beobachtungen(*kante.Item));
    const auto a = netz.Weltort(kante.ANr);
    const auto e = netz.Weltort(kante.ENr);
    if (a && e && InMetern(netztyp)) {
        const Messstrecke s = MissStrecke(*a, *e);
        z.NimmZeile(QStringLiteral("Länge"), AusUtf8(Metertext(s.laenge)) + QStringLiteral(" m"));
        z.NimmZeile(QStringLiteral("Richtungswinkel"),
                    AusUtf8(Richtungstext(s.richtung)) + QStringLiteral(" gon"));
    }
    if (kante.Item->Farbe == einstellungen.GFCol)
        z.NimmZeile(QStringLiteral("markiert"), markiergrund.isEmpty()
                                                    ? QStringLiteral("grober Fehler")
                                                    : QStringLiteral("grober Fehler: ") + markiergrund);
    if (ergebnisse == nullptr) return z.Text();
    const Relativellipse* r = ergebnisse->RelativeZu(netz.GetPktText(kante.ANr), netz.GetPktText(kante.ENr));
    if (r != nullptr) NimmErgebnis(z, *r);
    return z.Text();
}

QString Nachbarntext(Liste& netz, const PunktKnoten& punkt) {
    constexpr qsizetype kMeiste = 60;
    QStringList namen;
    qsizetype anzahl = 0;
    netz.FuerKantenAm(punkt.PNr, [&](const PunktKante& k) {
        if (++anzahl <= kMeiste) namen << Verweis(netz, k.ANr == punkt.PNr ? k.ENr : k.ANr);
    });
    if (anzahl == 0) return QStringLiteral("<p>Keine Linien</p>");
    const QString weitere =
        anzahl > kMeiste ? QStringLiteral(" und %1 weiteren").arg(anzahl - kMeiste) : QString();
    return QStringLiteral("<p>%1 zu %2%3</p>")
        .arg(anzahl == 1 ? QStringLiteral("1 Linie") : QStringLiteral("%1 Linien").arg(anzahl),
             namen.join(QStringLiteral(", ")), weitere);
}

QString Endentext(const Liste& netz, const PunktKante& kante) {
    return QStringLiteral("<p>von %1 nach %2</p>").arg(Verweis(netz, kante.ANr), Verweis(netz, kante.ENr));
}

QString Punktetext(std::span<const PPunktKnoten> punkte, const Einstellungen& einstellungen, int netztyp) {
    Textzeilen z(QStringLiteral("%1 Punkte").arg(punkte.size()));
    std::array<std::size_t, kPunktarten.size()> arten{};
    Weltkasten k;
    for (const PunktKnoten* p : punkte) {
        ++arten[static_cast<std::size_t>(ArtNachFarbe(p->Item->Farbe, einstellungen))];
        k.NimmOrt(p->XWPu, p->YWPu);
    }
    for (const Punktart& art : kPunktarten) {
        const std::size_t anzahl = arten[static_cast<std::size_t>(art.art)];
        if (anzahl != 0) z.NimmZeile(AusUtf8(art.bezeichnung), QString::number(anzahl));
    }
    if (InMetern(netztyp)) {
        z.NimmZahl(QStringLiteral("von West nach Ost"), k.rechts - k.links, 3, " m");
        z.NimmZahl(QStringLiteral("von Süd nach Nord"), k.oben - k.unten, 3, " m");
    }
    return z.Text();
}

}  // namespace zrw
