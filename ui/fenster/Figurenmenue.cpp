#include "ui/fenster/Figurenmenue.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QMenu>
#include <memory>

#include "model/Punktarten.h"
#include "ui/Umwandlung.h"
#include "ui/aenderungen/Sammelaenderung.h"
#include "ui/bild/Figurentext.h"
#include "ui/werkzeuge/Werkzeugtafel.h"

namespace zrw {

void Figurenmenue::ZeigeMenue(Bildpunkt ort, const QPoint& stelle) {
    auto* menue = new QMenu(fenster_);
    menue->setObjectName(QStringLiteral("FigurenMenue"));
    menue->setAttribute(Qt::WA_DeleteOnClose);
    if (PPunktKante k = u_.auswahl.Kante(); k != nullptr) {
        NimmKante(*menue, *k);
        NimmWerkzeuge(*menue, kBeginntAnLinie, ort);
    } else if (!u_.auswahl.Punkte().empty()) {
        NimmPunkte(*menue);
        if (u_.auswahl.Punkte().size() == 1) NimmWerkzeuge(*menue, kBeginntAmPunkt, ort);
    } else {
        for (QAction* a : u_.ansichten)
            menue->addAction(a);
    }
    menue->addSeparator();
    if (!u_.auswahl.Leer()) {
        menue->addAction(QStringLiteral("Eigenschaften und &Ergebnisse"), fenster_,
                         [this] { u_.zeigeEigenschaften(); });
    }
    QMenu* werkzeuge = menue->addMenu(QStringLiteral("&Werkzeug einschalten"));
    for (QAction* a : u_.werkzeuge)
        werkzeuge->addAction(a);
    menue->popup(stelle);
}

void Figurenmenue::NimmPunkte(QMenu& menue) {
    const auto& punkte = u_.auswahl.Punkte();
    const bool einer = punkte.size() == 1;
    menue.addSection(Gewaehlte());
    if (einer) NimmEinenPunkt(menue, *punkte.front());
    QMenu* arten = menue.addMenu(QStringLiteral("Punkt&art ändern"));
    for (const Punktart& art : kPunktarten) {
        QAction* a =
            arten->addAction(QStringLiteral("%1, %2").arg(AusUtf8(art.kuerzel), AusUtf8(art.bezeichnung)));
        QObject::connect(a, &QAction::triggered, fenster_, [this, art = art.art] { AenderePunktart(art); });
    }
    menue.addAction(einer ? QStringLiteral("Punkt &verstecken") : QStringLiteral("Punkte &verstecken"),
                    fenster_, [this] { u_.verbergePunkte(Nummern()); });
    menue.addAction(einer ? QStringLiteral("Punktnummer &ordnen…") : QStringLiteral("Punktnummern &ordnen…"),
                    fenster_, [this] { u_.ordneNummern(); });
    menue.addSeparator();
    menue.addAction(
        einer ? QStringLiteral("&Nummer kopieren") : QStringLiteral("&Nummern kopieren"), fenster_, [this] {
            KopiereText(
                Nummern().join(QLatin1Char('\n')),
                Gewaehlte() + QStringLiteral(": ") +
                    (u_.auswahl.Punkte().size() == 1 ? QStringLiteral("Nummer") : QStringLiteral("Nummern")));
        });
    menue.addAction(QStringLiteral("&Koordinaten kopieren"), fenster_,
                    [this] { KopiereText(Koordinaten(), Gewaehlte() + QStringLiteral(": Koordinaten")); });
}

void Figurenmenue::NimmEinenPunkt(QMenu& menue, PunktKnoten& punkt) {
    menue.addAction(QStringLiteral("&Bild hier zentrieren"), fenster_,
                    [this, ort = Welt{punkt.XWPu, punkt.YWPu}] { u_.zentriereBild(ort); });
    menue.addAction(QStringLiteral("Punkt &löschen"), fenster_, [this, p = &punkt] {
        u_.umgebung.TueAenderung(std::make_unique<PunktGeloescht>(*u_.umgebung.AktuelleListe(), *p));
    });
}

void Figurenmenue::NimmKante(QMenu& menue, PunktKante& kante) {
    const Liste& netz = *u_.umgebung.AktuelleListe();
    const QString name =
        QStringLiteral("%1 – %2").arg(Nummertext(netz, kante.ANr), Nummertext(netz, kante.ENr));
    menue.addSection(QStringLiteral("Linie ") + name);
    menue.addAction(QStringLiteral("Beobachtung &löschen"), fenster_, [this, k = &kante] {
        u_.umgebung.TueAenderung(std::make_unique<KanteGeloescht>(*u_.umgebung.AktuelleListe(), *k));
    });
    menue.addAction(QStringLiteral("&Nummern kopieren"), fenster_,
                    [this, name] { KopiereText(name, QStringLiteral("Nummern %1").arg(name)); });
}

void Figurenmenue::NimmWerkzeuge(QMenu& menue, unsigned beginnt, Bildpunkt ort) {
    menue.addSeparator();
    for (std::size_t i = 0; i < kWerkzeuge.size(); ++i) {
        if ((kWerkzeuge[i].beginnt & beginnt) == 0) continue;
        QAction* werkzeug = u_.werkzeuge[i];
        menue.addAction(werkzeug->icon(), AusUtf8(kWerkzeuge[i].hinweis), fenster_,
                        [this, werkzeug, ort] { u_.klickeMit(*werkzeug, ort); });
    }
}

/// Kind and colour go together; symbol and place stay.
void Figurenmenue::AenderePunktart(PunktArt art) {
    Liste& netz = *u_.umgebung.AktuelleListe();
    const Farbe farbe = u_.umgebung.Anzeige().*ZurArt(art).farbe;
    auto alle = std::make_unique<Sammelaenderung>();
    for (PPunktKnoten p : u_.auswahl.Punkte()) {
        if (p->Item->PktArt == art && p->Item->Farbe == farbe) continue;
        alle->NimmAenderung(std::make_unique<PunktGeaendert>(
            netz, *p, PunktGeaendert::Angaben{art, p->Item->PktTyp, farbe, {p->XWPu, p->YWPu}}));
    }
    const QString neu = AusUtf8(ZurArt(art).kuerzel);
    if (alle->Anzahl() == 0)
        return u_.umgebung.ZeigeStatus(QStringLiteral("%1: schon Art %2").arg(Gewaehlte(), neu));
    alle->setText(QStringLiteral("%1 in Art %2 geändert").arg(Gewaehlte(), neu));
    u_.umgebung.TueAenderung(std::move(alle));
}

/// @param was for the status line
void Figurenmenue::KopiereText(const QString& text, const QString& was) {
    QGuiApplication::clipboard()->setText(text);
    u_.umgebung.MeldeErledigt(was + QStringLiteral(" kopiert"));
}

/// "Punkt 1001", "3 Punkte".
QString Figurenmenue::Gewaehlte() const {
    const auto& punkte = u_.auswahl.Punkte();
    return punkte.size() == 1
               ? QStringLiteral("Punkt ") + Nummertext(*u_.umgebung.AktuelleListe(), punkte.front()->PNr)
               : QStringLiteral("%1 Punkte").arg(punkte.size());
}

QStringList Figurenmenue::Nummern() const {
    QStringList nummern;
    for (const PunktKnoten* p : u_.auswahl.Punkte())
        nummern << AusNetz(u_.umgebung.AktuelleListe()->GetPktText(p->PNr));
    nummern.removeAll(QString());
    return nummern;
}

/// A line for each point: number, easting, northing.
QString Figurenmenue::Koordinaten() const {
    QString text;
    for (const PunktKnoten* p : u_.auswahl.Punkte())
        text += Nummertext(*u_.umgebung.AktuelleListe(), p->PNr) + QLatin1Char('\t') + Koordinatentext(*p) +
                QLatin1Char('\n');
    return text;
}

}  // namespace zrw
