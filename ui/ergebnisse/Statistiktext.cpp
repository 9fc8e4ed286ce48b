#include "ui/ergebnisse/Statistiktext.h"

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>
#include <QTextDocument>
#include <array>
#include <cmath>

#include "model/Zahlentext.h"
#include "ui/Umwandlung.h"
#include "ui/bild/Malerflaeche.h"
#include "ui/ergebnisse/Statistikbild.h"

namespace zrw {
namespace {

QString Zahl(const std::optional<double>& wert, int stellen) {
    return wert ? AusUtf8(Festkomma(*wert, 0, stellen)) : QStringLiteral("–");
}

QString Tabellenzelle(const QString& text) {
    return QStringLiteral("<td align=right style=\"white-space:nowrap\">%1</td>").arg(text);
}

QString Prozent(std::size_t teil, std::size_t ganz) {
    return ganz == 0 ? QStringLiteral("–")
                     : Zahl(100.0 * static_cast<double>(teil) / static_cast<double>(ganz), 1);
}

QString Tabellentext(const QString& kopf, const QString& zeilen) {
    return QStringLiteral("<table cellspacing=0 cellpadding=3 border=0>%1%2</table>").arg(kopf, zeilen);
}

QString Kopf(const QStringList& spalten) {
    QString zellen;
    for (const QString& s : spalten)
        zellen += QStringLiteral("<th align=%1 style=\"white-space:nowrap\">%2</th>")
                      .arg(zellen.isEmpty() ? "left" : "right", s);
    return QStringLiteral("<tr>%1</tr>").arg(zellen);
}

QString Anzahlen(const Beobachtungsliste& liste, const std::vector<Gattungsstatistik>& alle) {
    QString zeilen;
    for (const Gattungsstatistik& s : alle) {
        const Tabellenlage& lage = liste.Lage(s.tabelle);
        zeilen += QStringLiteral("<tr><td style=\"white-space:nowrap\">%1</td>")
                      .arg(AusUtf8(ZurGattung(s.tabelle).mehrzahl)) +
                  Tabellenzelle(QString::number(s.anzahl)) +
                  Tabellenzelle(lage.hatFF ? QString::number(s.markiert) : QStringLiteral("–")) +
                  Tabellenzelle(lage.hatNK ? QString::number(s.unkontrolliert) : QStringLiteral("–")) +
                  Tabellenzelle(Zahl(s.kleinsterEV, 2)) + Tabellenzelle(Zahl(s.mittlererEV, 2)) +
                  Tabellenzelle(Zahl(s.groessteV, 2)) + QStringLiteral("</tr>");
    }
    return Tabellentext(
        Kopf({QStringLiteral("Art"), QStringLiteral("Anzahl"), QStringLiteral("grob"), QStringLiteral("NK"),
              QStringLiteral("EV min"), QStringLiteral("EV Ø"), QStringLiteral("|V| max")}),
        zeilen);
}

QString Anteile(const std::vector<Gattungsstatistik>& alle, double grenze) {
    QString zeilen;
    for (const Gattungsstatistik& s : alle) {
        if (s.mitTG == 0) continue;
        zeilen += QStringLiteral("<tr><td style=\"white-space:nowrap\">%1</td>")
                      .arg(AusUtf8(ZurGattung(s.tabelle).mehrzahl)) +
                  Tabellenzelle(Prozent(s.tgUnter1, s.mitTG)) + Tabellenzelle(Prozent(s.tgUnter2, s.mitTG)) +
                  Tabellenzelle(Prozent(s.tgUnterGrenze, s.mitTG)) + Tabellenzelle(Zahl(s.groessteTG, 2)) +
                  QStringLiteral("</tr>");
    }
    zeilen += QStringLiteral("<tr><td><i>Normalverteilung</i></td>") +
              Tabellenzelle(Zahl(100 * NormalerAnteil(1), 1)) +
              Tabellenzelle(Zahl(100 * NormalerAnteil(2), 1)) +
              Tabellenzelle(Zahl(100 * NormalerAnteil(grenze), 1)) + QStringLiteral("<td></td></tr>");
    return Tabellentext(
        Kopf({QStringLiteral("Anteile in %"), QStringLiteral("|TG| &lt; 1"), QStringLiteral("&lt; 2"),
              QStringLiteral("&lt; %1").arg(AusUtf8(SchreibeReal(grenze))), QStringLiteral("größte")}),
        zeilen);
}

QString Auffaelligste(const Beobachtungsliste& liste, const std::vector<Gattungsstatistik>& alle) {
    QString text;
    for (const Gattungsstatistik& s : alle) {
        if (s.auffaelligste.empty()) continue;
        QString zeilen;
        for (const std::uint32_t i : s.auffaelligste) {
            const Beobachtung& b = liste.zeilen[i];
            const QString name =
                AusNetz(b.von.Text()).toHtmlEscaped() +
                (b.nach.Leer() ? QString() : QStringLiteral(" → ") + AusNetz(b.nach.Text()).toHtmlEscaped());
            const auto wert = [&](Messwert w) {
                return std::isnan(b.Wert(w)) ? std::nullopt : std::optional(b.Wert(w));
            };
            zeilen += QStringLiteral("<tr><td><a href=\"zeile:%1\">%2</a></td>").arg(i).arg(name) +
                      Tabellenzelle(Zahl(wert(Messwert::TG), 2)) + Tabellenzelle(Zahl(wert(Messwert::V), 2)) +
                      Tabellenzelle(Zahl(wert(Messwert::EV), 2)) +
                      Tabellenzelle(b.ff ? QStringLiteral("<b>grob</b>") : QString()) +
                      QStringLiteral("</tr>");
        }
        text += Tabellentext(Kopf({AusUtf8(ZurGattung(s.tabelle).mehrzahl), QStringLiteral("TG"),
                                   QStringLiteral("V"), QStringLiteral("EV"), QString()}),
                             zeilen) +
                QStringLiteral("<br>");
    }
    return text;
}

/// The points with the largest accuracies.
QString Punkte(const Liste& netz, const Punktergebnisse* ergebnisse) {
    if (ergebnisse == nullptr) return {};
    struct Groesste {
        const char* name;
        double Punktergebnis::*wert;
        double betrag = -1.0;
        const PunktKnoten* punkt = nullptr;
    };
    std::array<Groesste, 3> alle{{{"größte mL", &Punktergebnis::mL},
                                  {"größte Halbachse A", &Punktergebnis::A},
                                  {"größte mH", &Punktergebnis::mH}}};
    netz.FuerAllePunkte([&](const PunktKnoten& p) {
        const PktText* text = netz.FindPktText(p.PNr);
        const Punktergebnis* e = text != nullptr ? ergebnisse->ErgebnisZu(text->Aus.Text()) : nullptr;
        if (e == nullptr) return;
        for (Groesste& g : alle) {
            const double wert = e->*g.wert;
            if (std::isfinite(wert) && wert > g.betrag && (g.wert != &Punktergebnis::mL || e->mLBekannt)) {
                g.betrag = wert;
                g.punkt = &p;
            }
        }
    });
    QString zeilen;
    for (const Groesste& g : alle) {
        if (g.punkt == nullptr) continue;
        zeilen +=
            QStringLiteral("<tr><td style=\"white-space:nowrap\">%1</td>").arg(QString::fromUtf8(g.name)) +
            Tabellenzelle(Zahl(g.betrag, 1)) +
            Tabellenzelle(QStringLiteral("<a href=\"punkt:%1\">%2</a>")
                              .arg(g.punkt->PNr)
                              .arg(AusNetz(netz.GetPktText(g.punkt->PNr)).toHtmlEscaped())) +
            QStringLiteral("</tr>");
    }
    return zeilen.isEmpty()
               ? QString()
               : Tabellentext(
                     Kopf({QStringLiteral("Punkte"), QStringLiteral("Wert"), QStringLiteral("Punkt")}),
                     zeilen);
}

QString Unlesbare(const Beobachtungsliste& liste) {
    QString text;
    for (const Tabellenlage& lage : liste.tabellen) {
        if (lage.zustand == Lesezustand::Unlesbar)
            text += QStringLiteral("<p>%1</p>").arg(AusUtf8(lage.grund).toHtmlEscaped());
    }
    return text;
}

/// The text in its parts: one below the other, or side by side on paper.
struct Abschnitte {
    QString zahlen;
    QString auffaelligste;  ///< empty without any table
    QString punkte;
};

Abschnitte BaueAbschnitte(const Beobachtungsliste& liste, const Liste& netz,
                          const Punktergebnisse* ergebnisse, double grenze) {
    std::vector<Gattungsstatistik> alle;
    for (const Beobachtungsgattung& g : kBeobachtungsgattungen) {
        if (liste.Lage(g.tabelle).zustand == Lesezustand::Gelesen)
            alle.push_back(Zaehle(liste, g.tabelle, grenze));
    }
    if (alle.empty())
        return {
            QStringLiteral("<p>Beim Netz liegen keine Tabellen mit Beobachtungen.</p>") + Unlesbare(liste),
            {},
            {}};
    return {Unlesbare(liste) + Anzahlen(liste, alle) + QStringLiteral("<br>") + Anteile(alle, grenze),
            QStringLiteral("<h4>Die größten Testgrößen</h4>") + Auffaelligste(liste, alle),
            Punkte(netz, ergebnisse)};
}

}  // namespace

QString Statistiktext(const Beobachtungsliste& liste, const Liste& netz, const Punktergebnisse* ergebnisse,
                      double grenze) {
    const Abschnitte a = BaueAbschnitte(liste, netz, ergebnisse, grenze);
    return a.zahlen + a.auffaelligste + a.punkte;
}

std::string Statistikblatt(const QString& titel, const Beobachtungsliste& liste, const Liste& netz,
                           const Punktergebnisse* ergebnisse, double grenze) {
    QByteArray bytes;
    QBuffer puffer(&bytes);
    puffer.open(QIODevice::WriteOnly);
    {
        constexpr int kDpi = 300;
        constexpr double kPunktJeZoll = 72.0;
        QPdfWriter blatt(&puffer);
        blatt.setResolution(kDpi);
        blatt.setPageSize(QPageSize(QPageSize::A4));
        blatt.setPageMargins(QMarginsF(20, 15, 15, 15), QPageLayout::Millimeter);
        blatt.setTitle(titel);
        QPainter maler(&blatt);
        maler.scale(kDpi / kPunktJeZoll, kDpi / kPunktJeZoll);
        const QSizeF seite = QSizeF(blatt.width(), blatt.height()) * (kPunktJeZoll / kDpi);
        constexpr double kBildhoehe = 130;
        constexpr double kAbstand = 8;
        constexpr int kSchrift = 8;
        QTextDocument text;
        QFont schrift = Zeichenschrift();
        schrift.setPixelSize(kSchrift);
        text.setDefaultFont(schrift);
        text.setDefaultStyleSheet(QStringLiteral("a { color: black; text-decoration: none }"));
        const Abschnitte a = BaueAbschnitte(liste, netz, ergebnisse, grenze);
        text.setHtml(
            QStringLiteral("<h3>%1</h3><table width=100%><tr><td>%2<br>%3</td><td>%4</td></tr></table>")
                .arg(titel.toHtmlEscaped(), a.zahlen, a.punkte, a.auffaelligste));
        text.setTextWidth(seite.width());
        const double platz = seite.height() - kBildhoehe - kAbstand;
        // One page: a long text becomes smaller instead of running out of it.
        const double mass = std::min(1.0, platz / text.size().height());
        maler.save();
        maler.scale(mass, mass);
        text.drawContents(&maler);
        maler.restore();
        maler.setFont(schrift);
        maler.setPen(Qt::black);
        const double halb = (seite.width() - kAbstand) / 2;
        TestgroessenBild(liste, std::nullopt, grenze)
            .Zeichne(maler, {0, seite.height() - kBildhoehe, halb, kBildhoehe}, std::nullopt);
        RedundanzBild(liste, std::nullopt)
            .Zeichne(maler, {halb + kAbstand, seite.height() - kBildhoehe, halb, kBildhoehe}, std::nullopt);
    }
    return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

}  // namespace zrw
