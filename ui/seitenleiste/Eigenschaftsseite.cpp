#include "ui/seitenleiste/Eigenschaftsseite.h"

#include <QSplitter>
#include <QTextBrowser>
#include <QVBoxLayout>

#include "ui/bild/Figurentext.h"
#include "ui/ergebnisse/Ergebnisanzeige.h"
#include "ui/ergebnisse/Ergebnisgitter.h"

namespace zrw {

Eigenschaftsseite::Eigenschaftsseite(Umfeld umfeld, QWidget* eltern)
    : QWidget(eltern),
      u_(std::move(umfeld)),
      text_(new QTextBrowser(this)),
      gitter_(new Ergebnisgitter(u_.programm.sitzung, this)),
      liste_(u_.programm, u_.vorlieben, *gitter_, Gegenrichtung::Auflisten,
             [this] { u_.ergebnisse.MeldeTabellen(); }) {
    text_->setObjectName(QStringLiteral("EigenschaftsText"));
    text_->setAccessibleName(QStringLiteral("Eigenschaften der ausgewählten Figur"));
    text_->setOpenLinks(false);
    connect(text_, &QTextBrowser::anchorClicked, this,
            [this](const QUrl& ziel) { u_.waehlePunkt(static_cast<PunktIndex>(ziel.path().toUInt())); });
    gitter_->SetzeNamen(QStringLiteral("ErgebnisGitter"), QStringLiteral("ErgebnisReiter"));
    gitter_->zeigePunkt = u_.zeigePunkt;
    gitter_->kopiert = u_.kopiert;
    auto* teiler = new QSplitter(Qt::Vertical, this);
    teiler->setChildrenCollapsible(false);
    teiler->addWidget(text_);
    teiler->addWidget(gitter_);
    auto* spalte = new QVBoxLayout(this);
    spalte->setContentsMargins(0, 0, 0, 0);
    spalte->addWidget(teiler);
}

void Eigenschaftsseite::showEvent(QShowEvent* ereignis) {
    QWidget::showEvent(ereignis);
    ZeigeAuswahl();
}

void Eigenschaftsseite::ZeigeAuswahl() {
    if (!isVisible()) return;
    const QString text = Auswahltext();
    if (text != gezeigt_) text_->setHtml(text);
    gezeigt_ = text;
    ListeErgebnisse();
}

QString Eigenschaftsseite::Auswahltext() {
    const auto& punkte = u_.auswahl.Punkte();
    const PunktKante* kante = u_.auswahl.Kante();
    if (!u_.plan.Offen() || u_.auswahl.Leer())
        return QStringLiteral(
            "<p>Punkt oder Linie im Bild anklicken, solange kein Werkzeug eingeschaltet ist. "
            "Umschalt nimmt Punkte dazu, ein gezogenes Rechteck wählt viele.</p>");
    Liste& netz = *u_.plan.Daten();
    const Einstellungen& e = u_.programm.einstellungen;
    const int typ = u_.programm.netz.Netztyp;
    Punktergebnisse* ergebnisse = u_.ergebnisse.Vorhanden() ? u_.programm.zustand.Ergebnisse : nullptr;
    if (kante != nullptr) {
        if (ergebnisse != nullptr) ergebnisse->ErneuereRelative();
        return Kantentext(netz, *kante, e, typ, u_.ergebnisse.Markiergrund(netz, *kante), ergebnisse) +
               Endentext(netz, *kante);
    }
    if (punkte.size() > 1) return Punktetext(punkte, e, typ);
    if (ergebnisse != nullptr) ergebnisse->ErneuereErgebnisse();
    return Punkttext(netz, *punkte.front(), e, typ, ergebnisse, u_.plan.Namen()) +
           Nachbarntext(netz, *punkte.front());
}

void Eigenschaftsseite::ListeErgebnisse() {
    const auto& punkte = u_.auswahl.Punkte();
    const bool eine = u_.auswahl.Kante() != nullptr || punkte.size() == 1;
    const bool zeigen = u_.plan.Offen() && eine && u_.ergebnisse.Vorhanden();
    gitter_->setVisible(zeigen);
    if (!zeigen) return liste_.LeereListe();
    if (u_.auswahl.Kante() != nullptr) {
        liste_.ListeAuf(*u_.plan.Daten(), *u_.auswahl.Kante());
    } else {
        liste_.ListeAuf(*u_.plan.Daten(), *punkte.front());
    }
}

}  // namespace zrw
