#include "ui/ergebnisse/Beobachtungsanzeige.h"

#include <QDialog>
#include <QScopedValueRollback>
#include <QVBoxLayout>
#include <unordered_set>

#include "ui/Umwandlung.h"
#include "ui/ergebnisse/Beobachtungstext.h"
#include "ui/ergebnisse/Fehlerhinweis.h"
#include "ui/fenster/Fensterort.h"

namespace zrw {
namespace {

const QString kFensterort = QStringLiteral("Beobachtungen/Fensterort");

}  // namespace

Beobachtungsanzeige::Beobachtungsanzeige(Umfeld umfeld, QWidget* eltern)
    : u_(std::move(umfeld)),
      zeiger_({u_.plan, u_.planbild, u_.auswahl, u_.loeseWerkzeuge}),
      eltern_(eltern),
      seite_(NeueSeite(eltern)),
      hinweis_(new Fehlerhinweis(&u_.bild)) {
    hinweis_->zeige = [this] { GeheZuFehler(true); };
    u_.stand.BeiAenderung(*hinweis_, [this] {
        if (hinweis_->isVisible()) hinweis_->ZeigeStand(*u_.stand.Liste());
    });
    u_.bild.SetzeHof([this](QPainter& maler) { zeiger_.ZeichneHof(maler); });
}

Beobachtungsanzeige::~Beobachtungsanzeige() {
    u_.bild.SetzeHof({});
    if (fenster_ != nullptr) u_.programm.sitzung.MerkeStand(kFensterort, fenster_->saveGeometry());
}

Beobachtungsseite* Beobachtungsanzeige::NeueSeite(QWidget* eltern) {
    return new Beobachtungsseite(
        {u_.programm, u_.stand, [this](const Beobachtung& b) { ZeigeBeobachtung(b, {}); },
         [this](Beobachtungsseite& seite) { FolgeAuswahl(seite); }, u_.melde,
         [this](const Beobachtung& b) { return Gegenrichtung(b); },
         [this] { return AusUtf8(PfadText(u_.plan.Datei())); }},
        eltern);
}

bool Beobachtungsanzeige::Gegenrichtung(const Beobachtung& b) const {
    if (b.tabelle != Beobachtungstabelle::Gps || !u_.plan.Offen()) return false;
    const Liste& netz = *u_.plan.Daten();
    const PunktIndex von = netz.FindPunktNr(b.von);
    const PunktKante* kante = netz.FindKante(von, netz.FindPunktNr(b.nach));
    return kante != nullptr && kante->ENr == von;
}

void Beobachtungsanzeige::ZeigeFenster() {
    if (fenster_ == nullptr) {
        fenster_ = new QDialog(eltern_);
        fenster_->setObjectName(QStringLiteral("BeobachtungsFenster"));
        fenster_->setWindowTitle(QStringLiteral("Beobachtungen"));
        fenster_->setAttribute(Qt::WA_AlwaysShowToolTips);
        fensterseite_ = NeueSeite(fenster_);
        auto* spalte = new QVBoxLayout(fenster_);
        spalte->setContentsMargins(6, 6, 6, 6);
        spalte->addWidget(fensterseite_);
        new Fensterort(*fenster_, Rand::RechtsUnten);
        if (!fenster_->restoreGeometry(u_.programm.sitzung.Stand(kFensterort))) fenster_->resize(1180, 420);
    }
    fenster_->show();
    fenster_->raise();
    fenster_->activateWindow();
}

void Beobachtungsanzeige::ZeigeBeobachtung(const Beobachtung& b, const QString& vorsatz) {
    if (!u_.plan.Offen()) return;
    const Beobachtung gemeint = b;  // the list may be read anew meanwhile
    const QScopedValueRollback zeigt(zeigt_, true);
    const QString mangel = zeiger_.ZeigeImBild(gemeint);
    u_.bild.update();
    if (gemeint.ff) gang_.MerkeOrt(gemeint);
    QString satz = vorsatz + Beobachtungssatz(gemeint);
    if (!mangel.isEmpty()) satz += QStringLiteral("   ") + mangel;
    u_.melde(satz);
}

void Beobachtungsanzeige::GeheZuFehler(bool vor) {
    const auto liste = u_.stand.Liste();
    const auto schritt = gang_.GeheWeiter(liste, vor);
    if (!schritt) {
        const QString satz = Fehlersatz(*liste);
        return u_.melde(
            satz.isEmpty()
                ? QStringLiteral("Beim Netz liegen keine Tabellen der Ausgleichung mit Beobachtungen.")
                : satz);
    }
    ZeigeBeobachtung(*schritt->beobachtung,
                     QStringLiteral("%1 von %2: ").arg(schritt->nummer).arg(schritt->anzahl));
    const auto gemeint = [&](const Beobachtung& b) { return SelbeBeobachtung(b, *schritt->beobachtung); };
    for (Beobachtungsseite* seite : {seite_, fensterseite_}) {
        if (seite != nullptr && seite->isVisible()) seite->WaehleZeilen(gemeint);
    }
}

void Beobachtungsanzeige::AuswahlGewechselt() {
    if (zeigt_) return;
    zeiger_.AuswahlGewechselt();
    for (Beobachtungsseite* seite : {seite_, fensterseite_}) {
        if (seite != nullptr && seite->isVisible()) FolgeAuswahl(*seite);
    }
}

/// Rows of the selected line, or of one of the selected points.
void Beobachtungsanzeige::FolgeAuswahl(Beobachtungsseite& seite) const {
    const auto nummer = [&](PunktIndex nr) { return PunktNummernTyp(u_.plan.Daten()->GetPktText(nr)); };
    if (!u_.plan.Offen() || u_.auswahl.Leer())
        return seite.WaehleZeilen([](const Beobachtung& /*b*/) { return false; });
    if (const PunktKante* kante = u_.auswahl.Kante(); kante != nullptr) {
        const PunktNummernTyp a = nummer(kante->ANr);
        const PunktNummernTyp e = nummer(kante->ENr);
        return seite.WaehleZeilen([&](const Beobachtung& b) {
            return !a.Leer() && !e.Leer() && ((b.von == a && b.nach == e) || (b.von == e && b.nach == a));
        });
    }
    std::unordered_set<std::string_view> nummern;
    std::vector<PunktNummernTyp> texte;
    texte.reserve(u_.auswahl.Punkte().size());
    for (const PunktKnoten* p : u_.auswahl.Punkte()) {
        texte.push_back(nummer(p->PNr));
        if (!texte.back().Leer()) nummern.insert(texte.back().Text());
    }
    seite.WaehleZeilen([&](const Beobachtung& b) {
        return nummern.contains(b.von.Text()) || (!b.nach.Leer() && nummern.contains(b.nach.Text()));
    });
}

QString Beobachtungsanzeige::NetzGeoeffnet(bool steuerdatei, const QString& lesung) {
    gang_.VergissOrt();
    zeiger_.VergissHof();
    hinweis_->hide();
    if (!steuerdatei) return {};
    const auto liste = u_.stand.Liste();
    hinweis_->SetzeLesung(lesung);
    hinweis_->ZeigeStand(*liste);
    return Fehlersatz(*liste);
}

}  // namespace zrw
