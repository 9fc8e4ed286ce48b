// Main window: mouse, keys and status line.
#include <QGuiApplication>
#include <QKeyEvent>
#include <string>

#include "model/Zahlentext.h"
#include "ui/Umwandlung.h"
#include "ui/aenderungen/Punktversteck.h"
#include "ui/bild/Figurentext.h"
#include "ui/bild/Schwebekarte.h"
#include "ui/ergebnisse/Beobachtungsanzeige.h"
#include "ui/ergebnisse/Ergebnisanzeige.h"
#include "ui/ergebnisse/Ergebnisgitter.h"
#include "ui/ergebnisse/Planfaerber.h"
#include "ui/ergebnisse/TFormData.h"
#include "ui/fenster/Aktionen.h"
#include "ui/fenster/Aussenhinweis.h"
#include "ui/fenster/Figurenmenue.h"
#include "ui/fenster/Hauptfenster.h"
#include "ui/fenster/Nummernordner.h"
#include "ui/fenster/Standfelder.h"
#include "ui/fenster/Statuszeile.h"
#include "ui/seitenleiste/Eigenschaftsseite.h"
#include "ui/seitenleiste/Farbseite.h"
#include "ui/seitenleiste/Seitenleiste.h"
#include "ui/seitenleiste/Statistikseite.h"
#include "ui/seitenleiste/Zeichenseite.h"
#include "ui/werkzeuge/Punktgang.h"

namespace zrw {

/// What lies under the mouse now: the picture has moved below it.
void TZrwMainDlg::BildGezeichnet() {
    punktgang_->PruefePunkt();
    werkzeuge_.Schwebe();
    ergebnisse_->MeldeTabellen();
    standfelder_->ZeigeMassstab(*plan_.Daten(), programm_.netz);
    zeichen_->NetzGezeichnet();
    if (aussenhinweis_->isVisible()) aussenhinweis_->ZeigeAnzahl(planbild_.ZaehlePunkte());
}

void TZrwMainDlg::BaueAuswahl() {
    karte_ = new Schwebekarte(bild_);
    karte_->text = [this](Bildpunkt ort) { return TextZu(ort); };
    std::vector<QAction*> ansichten;
    for (const char* name : {"EinpassenButton", "SpeedButton3", "FruehereAnsicht"})
        ansichten.push_back(&aktionen_->NachName(name));
    figurenmenue_ = std::make_unique<Figurenmenue>(
        Figurenmenue::Umfeld{*this, werkzeuge_.Ausgewaehlt(), [this](Welt ort) { planbild_.SetzeMitte(ort); },
                             [this](const QStringList& nummern) { versteck_->VerbergePunkte(nummern); },
                             [this] { nummern_->FrageNach(werkzeuge_.Ausgewaehlt().Punkte()); },
                             [this] { seitenleiste_->ZeigeSeite(*eigenschaften_); }, ansichten,
                             aktionen_->Werkzeuge(),
                             [this](QAction& werkzeug, Bildpunkt ort) {
                                 werkzeug.setChecked(true);
                                 werkzeuge_.DrueckeTaste(ort, Qt::LeftButton);
                                 werkzeuge_.LassTasteLos(ort, Qt::LeftButton);
                             }},
        this);
    werkzeuge_.rechteTaste = [this](Bildpunkt ort) {
        karte_->VerbirgKarte();
        if (!werkzeuge_.Ausgewaehlt().WaehleBei(ort)) werkzeuge_.Ausgewaehlt().LeereAuswahl();
        figurenmenue_->ZeigeMenue(
            ort, bild_->mapToGlobal(QPoint(static_cast<int>(ort.x), static_cast<int>(ort.y))));
    };
}

void TZrwMainDlg::BaueSeitenleiste() {
    seitenleiste_ = new Seitenleiste(*bildfach_);
    eigenschaften_ = new Eigenschaftsseite(
        {programm_, vorlieben_, plan_, werkzeuge_.Ausgewaehlt(), *ergebnisse_,
         [this](PunktIndex nr) { WaehleImBild(nr); }, ergebnisse_->Fenster().Gitter().zeigePunkt,
         ergebnisse_->Fenster().Gitter().kopiert},
        seitenleiste_);
    zeichen_ = new Zeichenseite(
        programm_, plan_, [this] { return vorlieben_.KantenGlaetten; }, seitenleiste_);
    faerber_ =
        std::make_unique<Planfaerber>(programm_, plan_, ergebnisse_->Stand(), [this] { ZeichneNeu(); });
    farbseite_ = new Farbseite(*faerber_, plan_, seitenleiste_);
    seitenleiste_->NimmSeite(*eigenschaften_, QStringLiteral("Eigenschaften"));
    seitenleiste_->NimmSeite(*zeichen_, QStringLiteral("Linien und Symbole"));
    beobachtungen_ = std::make_unique<Beobachtungsanzeige>(
        Beobachtungsanzeige::Umfeld{programm_, plan_, planbild_, werkzeuge_.Ausgewaehlt(),
                                    ergebnisse_->Stand(), *bild_, [this] { LoeseWerkzeuge(); },
                                    [this](const QString& satz) { MeldeErledigt(satz); }},
        this);
    constexpr int kBisTestgroesse = 720;  // [px]
    seitenleiste_->NimmSeite(beobachtungen_->Seite(), QStringLiteral("Beobachtungen"), kBisTestgroesse);
    statistik_ = new Statistikseite(
        {programm_, plan_, ergebnisse_->Stand(),
         [this](const Beobachtung& b) { beobachtungen_->ZeigeBeobachtung(b, {}); },
         [this](const Listenfilter& filter) {
             beobachtungen_->Seite().SchraenkeEin(filter);
             seitenleiste_->ZeigeSeite(beobachtungen_->Seite());
         },
         [this](PunktIndex nr) { WaehleImBild(nr); }, [this](const QString& satz) { MeldeErledigt(satz); }},
        seitenleiste_);
    seitenleiste_->NimmSeite(*farbseite_, QStringLiteral("Einfärben"));
    seitenleiste_->NimmSeite(*statistik_, QStringLiteral("Statistik"));
    werkzeuge_.Ausgewaehlt().gewechselt = [this] {
        eigenschaften_->ZeigeAuswahl();
        beobachtungen_->AuswahlGewechselt();
    };
    seitenleiste_->LadeStand(programm_.sitzung);
    QAction& aktion = aktionen_->NachName("SeitenLeiste");
    aktion.setChecked(!seitenleiste_->isHidden());
    connect(seitenleiste_->toggleViewAction(), &QAction::toggled, &aktion, &QAction::setChecked);
}

void TZrwMainDlg::SeitenleisteClick() {
    seitenleiste_->setVisible(aktionen_->NachName("SeitenLeiste").isChecked());
}

void TZrwMainDlg::BeobachtungenClick() {
    beobachtungen_->ZeigeFenster();
}

void TZrwMainDlg::NaechsterFehlerClick() {
    beobachtungen_->GeheZuFehler(true);
}

void TZrwMainDlg::VorigerFehlerClick() {
    beobachtungen_->GeheZuFehler(false);
}

void TZrwMainDlg::EinfaerbenClick() {
    seitenleiste_->ZeigeSeite(*farbseite_);
}

void TZrwMainDlg::StatistikClick() {
    seitenleiste_->ZeigeSeite(*statistik_);
}

/// A point that the side bar names.
void TZrwMainDlg::WaehleImBild(PunktIndex nr) {
    PPunktKnoten punkt = plan_.Offen() ? plan_.Daten()->SuchPkt(nr) : nullptr;
    if (punkt == nullptr) return;
    LoeseWerkzeuge();
    planbild_.HoleInsBild({punkt->XWPu, punkt->YWPu});
    werkzeuge_.Ausgewaehlt().WaehlePunkt(*punkt);
}

/// What the card beside the mouse says.
QString TZrwMainDlg::TextZu(Bildpunkt ort) {
    if (!plan_.Offen() || werkzeuge_.Zieht() || werkzeuge_.Aktiv() != nullptr) return {};
    const Liste& netz = *plan_.Daten();
    Punktergebnisse* ergebnisse = ergebnisse_->Vorhanden() ? programm_.zustand.Ergebnisse : nullptr;
    if (const PunktKnoten* p = netz.ClickGezeigten(ort); p != nullptr) {
        if (ergebnisse != nullptr) ergebnisse->ErneuereErgebnisse();
        return Punkttext(netz, *p, programm_.einstellungen, programm_.netz.Netztyp, ergebnisse,
                         plan_.Namen());
    }
    const PunktKante* k = netz.PickGezeigte(ort);
    if (k == nullptr) return {};
    if (ergebnisse != nullptr) ergebnisse->ErneuereRelative();
    return Kantentext(netz, *k, programm_.einstellungen, programm_.netz.Netztyp,
                      ergebnisse_->Markiergrund(netz, *k), ergebnisse);
}

bool TZrwMainDlg::Umschalttaste() const {
    return QGuiApplication::keyboardModifiers().testFlag(Qt::ShiftModifier);
}

void TZrwMainDlg::ZeigeStatus(const QString& text) {
    status_->ZeigeText(text);
}

void TZrwMainDlg::MeldeErledigt(const QString& satz) {
    status_->MeldeErledigt(satz);
}

/// Where the mouse is, if it is over the picture, and the scale.
void TZrwMainDlg::ZeigeStand() {
    std::string text;
    if (werkzeuge_.Maus()) {
        const Welt w = plan_.Daten()->BildinWelt(*werkzeuge_.Maus());
        text = Festkomma(w.rechts, 12, 2) + " " + Festkomma(w.hoch, 12, 2) + " ";
    }
    ortstext_ = AusUtf8(text + " M=1:" + Festkomma(plan_.Daten()->Faktor * 1000, 5, 0));
    // What the tool asks for stays legible while the mouse goes there.
    const Werkzeug* werkzeug = werkzeuge_.Aktiv();
    status_->ZeigeStand(ortstext_, werkzeug != nullptr ? werkzeug->Anleitung() : QString());
}

static std::optional<Werkzeugtaste> AlsWerkzeugtaste(const QKeyEvent& ereignis) {
    if (ereignis.matches(QKeySequence::Copy)) return Werkzeugtaste::Kopieren;
    const bool zurueck = ereignis.key() == Qt::Key_Backspace && ereignis.modifiers() == Qt::NoModifier;
    return zurueck ? std::optional(Werkzeugtaste::Zuruecknehmen) : std::nullopt;
}

/// A dialog that opens during a drag gets the release of its button. The keys of a tool come before shortcuts
/// of the window.
bool TZrwMainDlg::event(QEvent* ereignis) {
    if (ereignis->type() == QEvent::ShortcutOverride && werkzeuge_.BrauchtTasten() &&
        AlsWerkzeugtaste(static_cast<QKeyEvent&>(*ereignis))) {
        ereignis->accept();
        return true;
    }
    if (ereignis->type() == QEvent::WindowBlocked) werkzeuge_.BrichAb();
    return QMainWindow::event(ereignis);
}

void TZrwMainDlg::ImageZarwikMouseDown(Bildpunkt ort, Qt::MouseButton taste) {
    if (!plan_.Offen()) return;
    karte_->VerbirgKarte();
    planbild_.ZeichneNachRad();
    werkzeuge_.DrueckeTaste(ort, taste);
}

void TZrwMainDlg::ImageZarwikDoubleClick(Bildpunkt ort, Qt::MouseButton taste) {
    if (!plan_.Offen()) return;
    planbild_.ZeichneNachRad();
    werkzeuge_.DrueckeZweimal(ort, taste);
}

void TZrwMainDlg::ImageZarwikMouseLeave() {
    karte_->VerbirgKarte();
    if (!werkzeuge_.VergissMaus() || !plan_.Offen()) return;
    werkzeuge_.Schwebe();
    if (statusBar()->currentMessage() == ortstext_) ZeigeStand();
}

void TZrwMainDlg::ImageZarwikMouseMove(Bildpunkt ort) {
    werkzeuge_.MerkeMaus(ort);
    if (!plan_.Offen()) return;
    ZeigeStand();
    if (!werkzeuge_.Zieht()) ZeigeZeiger(ort);
    werkzeuge_.FolgeMaus(ort);
    if (werkzeuge_.Zieht() || werkzeuge_.Aktiv() != nullptr) {
        karte_->VerbirgKarte();
    } else {
        karte_->FolgeMaus(ort);
    }
    if (!aktionen_->NachName("DataButton").isChecked()) ergebnisse_->Fenster().hide();
}

/// The pointer tells what a press would do here.
void TZrwMainDlg::ZeigeZeiger(Bildpunkt ort) {
    const Qt::CursorShape zeiger = werkzeuge_.ZeigerBei(ort);
    if (bild_->cursor().shape() != zeiger) bild_->setCursor(zeiger);
}

void TZrwMainDlg::ImageZarwikMouseUp(Bildpunkt ort, Qt::MouseButton taste) {
    werkzeuge_.LassTasteLos(ort, taste);
}

void TZrwMainDlg::ImageZarwikWheel(Bildpunkt ort, int schritte) {
    if (!plan_.Offen() || werkzeuge_.Zieht()) return;
    karte_->VerbirgKarte();
    werkzeuge_.MerkeMaus(ort);
    planbild_.RolleUm(ort, vorlieben_.RadUmgekehrt ? -schritte : schritte);
}

void TZrwMainDlg::keyPressEvent(QKeyEvent* ereignis) {
    const bool nurTaste = (ereignis->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    if (ereignis->key() == Qt::Key_Escape) {
        if (werkzeuge_.Zieht()) {
            werkzeuge_.BrichAb();
        } else if (werkzeuge_.Aktiv() != nullptr) {
            werkzeuge_.Aktiv()->Abbrechen();
        } else {
            werkzeuge_.Ausgewaehlt().LeereAuswahl();
        }
        bild_->setFocus();  // out of the fields of the panel, whose keys are their own
        return;
    }
    if (const auto taste = AlsWerkzeugtaste(*ereignis); taste && werkzeuge_.BrauchtTasten())
        return werkzeuge_.Aktiv()->DrueckeTaste(*taste);
    // A tenth of the picture at a time.
    constexpr int kTeile = 10;
    if (nurTaste && plan_.Offen()) {
        const std::int64_t x = plan_.Daten()->Weite / kTeile;
        const std::int64_t y = plan_.Daten()->Hoehe / kTeile;
        switch (ereignis->key()) {
            case Qt::Key_Left:
                return planbild_.VerschiebeBild({x, 0});
            case Qt::Key_Right:
                return planbild_.VerschiebeBild({-x, 0});
            case Qt::Key_Up:
                return planbild_.VerschiebeBild({0, y});
            case Qt::Key_Down:
                return planbild_.VerschiebeBild({0, -y});
            default:
                break;
        }
    }
    if (const Befehl* befehl = aktionen_->AusgeschalteterBefehl(QKeySequence(ereignis->keyCombination())))
        return FuehreAus(*befehl);  // which says why it cannot
    QMainWindow::keyPressEvent(ereignis);
}

void TZrwMainDlg::FruehereAnsichtClick() {
    if (!planbild_.GeheZurueck()) ZeigeStatus(QStringLiteral("Eine frühere Ansicht gibt es nicht."));
}

void TZrwMainDlg::SpaetereAnsichtClick() {
    if (!planbild_.GeheVor()) ZeigeStatus(QStringLiteral("Eine spätere Ansicht gibt es nicht."));
}

}  // namespace zrw
