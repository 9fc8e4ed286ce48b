// Main window: point numbers, centring, hidden points, point kinds, and what follows a change.
#include <QComboBox>
#include <QScopedValueRollback>
#include <QStringListModel>
#include <algorithm>
#include <iterator>

#include "model/Punktarten.h"
#include "model/Zahlentext.h"
#include "output/Abschneiden.h"
#include "ui/Hauptfenster.h"
#include "ui/Sanduhr.h"
#include "ui/Umwandlung.h"
#include "ui/Zentrierkasten.h"
#include "ui/aenderungen/Aenderungen.h"
#include "ui/dialoge/TFormData.h"
#include "ui/dialoge/TFormHiddenPkt.h"
#include "ui/dialoge/TFormHidePunkte.h"
#include "ui/dialoge/TFormPunktart.h"

namespace zrw {
namespace {

constexpr Farbe kSuchfarbe{0xFF0000};

std::string AlsNummer(const QString& text) {
    return Utf8NachCp1252(NachUtf8(text));
}

}  // namespace

// A drag under way ends first: its figures are out of the picture, and what is changed may be one of them.
void TZrwMainDlg::Rueckgaengig() {
    BrichAb();
    if (!aenderungen_.canUndo()) return;
    const QString text = aenderungen_.undoText();
    Fuehre(Aenderung(aenderungen_.index() - 1), [this] { aenderungen_.undo(); });
    ZeigeStatus(QStringLiteral("Rückgängig: ") + text);
}

void TZrwMainDlg::Wiederhole() {
    BrichAb();
    if (!aenderungen_.canRedo()) return;
    const QString text = aenderungen_.redoText();
    Fuehre(Aenderung(aenderungen_.index()), [this] { aenderungen_.redo(); });
    ZeigeStatus(QStringLiteral("Wiederholt: ") + text);
}

/// All that is on the stack came through `Tue`.
const Netzaenderung& TZrwMainDlg::Aenderung(int i) const {
    return static_cast<const Netzaenderung&>(*aenderungen_.command(i));
}

void TZrwMainDlg::Tue(std::unique_ptr<Netzaenderung> aenderung) {
    const Netzaenderung& neu = *aenderung;
    Fuehre(neu, [&] { aenderungen_.push(aenderung.release()); });
}

/// Makes a change or takes it back, and draws the picture where it shows.
template <class Tat>
void TZrwMainDlg::Fuehre(const Netzaenderung& aenderung, Tat tat) {
    if (liste_ != nullptr) pflege_.Vorher(*liste_, aenderung.Betroffene());
    const QScopedValueRollback laufend(laufende_, &aenderung);
    tat();
}

/// A change was made, undone or made again.
void TZrwMainDlg::NetzGeaendert() {
    if (liste_ == nullptr) return;
    ausdehnungAlt_ = true;
    if (gewaehlt_ != nullptr && !liste_->Enthaelt(*gewaehlt_)) gewaehlt_ = nullptr;
    // The dialog must not put the point back to where it was.
    if (gewaehlt_ != nullptr &&
        (gewaehlt_->XWPu != gewaehltOrt_.rechts || gewaehlt_->YWPu != gewaehltOrt_.hoch))
        WaehlePunkt(*gewaehlt_);
    if (nummernstand_ != liste_->MaxPkte) FuelleNummern();
    if (laufende_ != nullptr) {
        pflege_.Nachher(*liste_, laufende_->Betroffene());
        ZeigeBild();
    } else {
        ZeichneNeu();
    }
    for (const auto& werkzeug : werkzeuge_)
        werkzeug->NetzGeaendert();
}

/// The numbers of all points in the order in which they were read, those of a picture file sorted.
void TZrwMainDlg::FuelleNummern() {
    QStringList nummern;
    for (const PunktString* t = liste_->PktTextKnoten; t != nullptr; t = t->Next)
        nummern << AusNetz(t->Item->Aus.Text());
    std::reverse(nummern.begin(), nummern.end());
    if (nummernSortiert_) nummern.sort(Qt::CaseInsensitive);
    nummern_->setStringList(nummern);
    ComboBox1_->setEditText(QStringLiteral("Punktnummern"));
    QStringList exzentren;
    std::copy_if(nummern.begin(), nummern.end(), std::back_inserter(exzentren),
                 [this](const QString& nummer) { return !zentriert_.contains(nummer); });
    zentrierkasten_->Fuelle(exzentren);
    if (zentrierkasten_->isVisible()) zentrierkasten_->Zeige();
    if (punkteVerstecken_->isVisible()) punkteVerstecken_->Fuelle(nummern);
    nummernstand_ = liste_->MaxPkte;
}

// --- Finding a point --------------------------------------------------------------------------------------

void TZrwMainDlg::SpeedButton10Click() {
    ZeigePunkt(ComboBox1_->currentText());
}

/// Brings a point into view and marks it. A part of a number finds the first that holds it.
void TZrwMainDlg::ZeigePunkt(const QString& nummer) {
    const PunktKnoten* punkt = MarkierePunkt(nummer);
    if (punkt == nullptr) return;
    // A window without any results would only be in the way.
    const auto liegtBei = [this](const Ergebnisreiter& r) { return programm_.daten.Vorhanden(r.datei); };
    if (Knopf("DataButton").isChecked() ||
        std::any_of(kErgebnisreiter.begin(), kErgebnisreiter.end(), liegtBei))
        DisplayPunkt(*punkt);
}

/// Brings the point into view and marks it. @return null where there is none of this number
const PunktKnoten* TZrwMainDlg::MarkierePunkt(const QString& nummer) {
    if (liste_ == nullptr || nummer.isEmpty()) return nullptr;
    PPunktKnoten punkt = liste_->FindPunkt(AlsNummer(nummer));
    if (punkt == nullptr) {
        const QStringList treffer = nummern_->stringList().filter(nummer, Qt::CaseInsensitive);
        if (!treffer.isEmpty()) punkt = liste_->FindPunkt(AlsNummer(treffer.front()));
    }
    if (punkt == nullptr) {
        ZeigeStatus(QStringLiteral("Einen Punkt %1 gibt es nicht.").arg(nummer));
        return nullptr;
    }
    BrichAb();
    const QString gefunden = AusNetz(liste_->GetPktText(punkt->PNr));
    ComboBox1_->setEditText(gefunden);
    const Rechteck bild = flaeche_.Sichtbar();
    if (!InReichweite(punkt->Item->Position(), 0, bild)) {
        const double f = liste_->Faktor;
        liste_->XOffset = punkt->XWPu - liste_->MinXW - liste_->Weite / 2.0 * f;
        liste_->YOffset = punkt->YWPu - liste_->MaxYW + liste_->Hoehe / 2.0 * f;
    }
    ZeichneNeu();
    if (!InReichweite(punkt->Item->Position(), 0, bild)) return punkt;
    const Flaechenpunkt m = Aufflaeche(punkt->Item->Position());
    {
        const Stiftwechsel stift(flaeche_, {kSuchfarbe, 2, Strichart::Voll}, {kWeiss, true});
        for (const std::int32_t r : {50, 25})
            flaeche_.Ellipse({m.x - r, m.y - r, m.x + r, m.y + r});
    }
    pflege_.Beschmutze();
    bild_->update();
    ZeigeStatus(QStringLiteral("Punkt ") + gefunden);
    return punkt;
}

// --- Centring ---------------------------------------------------------------------------------------------

/// Not undone by any command, so what came before cannot be undone either.
void TZrwMainDlg::Zentriere(PunktKnoten& exzentrum, PunktKnoten& zentrum) {
    liste_->ZentrierPunkt(exzentrum, zentrum, zeichner_);
    ungesichert_ = true;
    aenderungen_.clear();
    ZeigeTitel();
    ZeichneNeu();
}

void TZrwMainDlg::ZentriereListe(const std::optional<QString>& zentrum, const QStringList& exzentren) {
    if (liste_ == nullptr) return;
    const Sanduhr sanduhr;
    PPunktKnoten ziel = zentrum ? liste_->FindPunkt(AlsNummer(*zentrum)) : nullptr;
    if (ziel == nullptr || exzentren.isEmpty()) {
        ZeigeStatus(QStringLiteral("Nichts zentriert: links Exzentren wählen, rechts ein Zentrum."));
    } else {
        for (const QString& nummer : exzentren) {
            if (PPunktKnoten p = liste_->FindPunkt(AlsNummer(nummer)); p != nullptr)
                liste_->ZentrierPunkt(*p, *ziel, zeichner_);
            zentriert_ << nummer;
        }
        ungesichert_ = true;
        aenderungen_.clear();
        ZeigeTitel();
        ZeigeStatus(
            QStringLiteral("%1 auf %2 zentriert").arg(exzentren.join(QStringLiteral(", ")), *zentrum));
    }
    ZeichneNeu();
}

// --- Hiding -----------------------------------------------------------------------------------------------

void TZrwMainDlg::SpeedButton14Click() {
    if (!Knopf("SpeedButton14").isChecked()) {
        punkteVerstecken_->hide();
        return;
    }
    punkteVerstecken_->Fuelle(nummern_->stringList());
    punkteVerstecken_->show();
}

void TZrwMainDlg::SpeedButton15Click() {
    versteckte_->show();
    versteckte_->raise();
}

void TZrwMainDlg::VerbergePunkt(PunktKnoten& punkt) {
    const Sanduhr sanduhr;
    auto aenderung = std::make_unique<SichtbarkeitGeaendert>(QStringLiteral("Punkt verstecken"));
    aenderung->NimmPunkt(*liste_, punkt, false);
    Verberge(std::move(aenderung), {AusNetz(liste_->GetPktText(punkt.PNr))});
}

void TZrwMainDlg::VerbergePunkte(const QStringList& nummern) {
    if (liste_ == nullptr) return;
    auto aenderung = std::make_unique<SichtbarkeitGeaendert>(QStringLiteral("Punkt verstecken"));
    for (const QString& nummer : nummern) {
        if (PunktKnoten* p = liste_->FindPunkt(AlsNummer(nummer)); p != nullptr)
            aenderung->NimmPunkt(*liste_, *p, false);
    }
    Verberge(std::move(aenderung), nummern);
}

void TZrwMainDlg::Verberge(std::unique_ptr<SichtbarkeitGeaendert> aenderung, const QStringList& nummern) {
    if (aenderung->Leer()) {
        // Hidden already: they stand in the list once more, but there is nothing to undo.
        versteckte_->Nimm(nummern);
        ZeichneNeu();
        return;
    }
    // The list of hidden points goes with the change, there and back.
    aenderung->danach = [this, nummern](bool getan) {
        if (getan) {
            versteckte_->Nimm(nummern);
        } else {
            for (const QString& nummer : nummern)
                versteckte_->Entferne(nummer);
        }
    };
    Tue(std::move(aenderung));
}

/// Numbers that this network does not have are passed over: the list of hidden points outlives a network.
void TZrwMainDlg::ZeigeVerborgene(const QStringList& nummern) {
    if (liste_ == nullptr) return;
    auto aenderung = std::make_unique<SichtbarkeitGeaendert>(QStringLiteral("Punkt anzeigen"));
    for (const QString& nummer : nummern) {
        if (PunktKnoten* p = liste_->FindPunkt(AlsNummer(nummer)); p != nullptr)
            aenderung->NimmPunkt(*liste_, *p, true);
    }
    if (nummern.isEmpty() || aenderung->Leer()) {
        ZeichneNeu();
        return;
    }
    aenderung->danach = [this, nummern, erstesMal = true](bool getan) mutable {
        if (!getan) versteckte_->Nimm(nummern);
        if (getan && !erstesMal) {
            for (const QString& nummer : nummern)
                versteckte_->Entferne(nummer);
        }
        erstesMal = false;
    };
    Tue(std::move(aenderung));
}

void TZrwMainDlg::NummernZeigenClick() {
    if (liste_ == nullptr) return;
    BrichAb();
    auto aenderung =
        std::make_unique<SichtbarkeitGeaendert>(QStringLiteral("Versteckte Punktnummern zeigen"));
    for (PPunktString t = liste_->PktTextKnoten; t != nullptr; t = t->Next) {
        // The number of a hidden point stays with it.
        const PunktKnoten* p = liste_->SuchPkt(t->TNr);
        if (p != nullptr && p->Item->Visible) aenderung->Nimm(*t, true);
    }
    if (!aenderung->Leer()) Tue(std::move(aenderung));
}

// --- Point kinds ------------------------------------------------------------------------------------------

void TZrwMainDlg::WaehlePunkt(PunktKnoten& punkt) {
    gewaehlt_ = &punkt;
    gewaehltOrt_ = {punkt.XWPu, punkt.YWPu};
    punktart_->Zeige({AusNetz(liste_->GetPktText(punkt.PNr)),
                      ArtNachFarbe(punkt.Item->Farbe, programm_.einstellungen), punkt.Item->PktTyp,
                      AusUtf8(Festkomma(punkt.XWPu, 0, 4)), AusUtf8(Festkomma(punkt.YWPu, 0, 4)), false});
}

/// "Zeichnen": changes the picked point, or inserts a new one.
void TZrwMainDlg::ZeichnePunktart() {
    if (liste_ == nullptr) return;
    const Punkteingabe e = punktart_->Eingabe();
    const auto rechts = LiesReal(NachUtf8(e.rechts));
    const auto hoch = LiesReal(NachUtf8(e.hoch));
    if (!rechts || !hoch) {
        programm_.dialoge.Melde(
            QStringLiteral("Die Koordinaten sind keine Zahlen (Dezimaltrenner ist der Punkt)."));
        return;
    }
    const Welt ort{*rechts, *hoch};
    if (e.neu) {
        FuegePunktEin(e, ort);
        return;
    }
    if (gewaehlt_ == nullptr) {
        programm_.dialoge.Melde(QStringLiteral("Bitte zuerst einen Punkt im Bild anklicken."));
        return;
    }
    if (e.nummer != AusNetz(liste_->GetPktText(gewaehlt_->PNr))) {
        programm_.dialoge.Melde(
            QStringLiteral("Die Nummer eines Punktes lässt sich nicht ändern. Für einen neuen Punkt "
                           "„Neupunkt“ ankreuzen."));
        return;
    }
    // What the dialog shows with four decimals is the place itself unless somebody changed it.
    const bool hier = e.rechts == AusUtf8(Festkomma(gewaehlt_->XWPu, 0, 4)) &&
                      e.hoch == AusUtf8(Festkomma(gewaehlt_->YWPu, 0, 4));
    const PunktGeaendert::Angaben neu{e.art, e.symbol, programm_.einstellungen.*ZurArt(e.art).farbe,
                                      hier ? Welt{gewaehlt_->XWPu, gewaehlt_->YWPu} : ort};
    const Punkt& p = *gewaehlt_->Item;
    const bool gleich = hier && p.PktArt == neu.art && p.PktTyp == neu.symbol && p.Farbe == neu.farbe;
    if (!gleich) Tue(std::make_unique<PunktGeaendert>(*liste_, *gewaehlt_, neu));
}

void TZrwMainDlg::FuegePunktEin(const Punkteingabe& eingabe, Welt ort) {
    const std::string nummer(OhneRand(AlsNummer(eingabe.nummer)));
    const auto lehneAb = [&](const QString& grund) { programm_.dialoge.Melde(grund); };
    if (nummer.empty()) return lehneAb(QStringLiteral("Der neue Punkt braucht eine Nummer."));
    if (nummer.size() > PunktNummernTyp::kLaenge)
        return lehneAb(QStringLiteral("Die Punktnummer ist zu lang (höchstens 14 Zeichen)."));
    if (liste_->FindPunkt(nummer) != nullptr)
        return lehneAb(QStringLiteral("Den Punkt %1 gibt es schon.").arg(eingabe.nummer));
    std::size_t nr = 1;
    while (nr <= kMaxPunkte && liste_->SuchPkt(static_cast<PunktIndex>(nr)) != nullptr)
        ++nr;
    if (nr > kMaxPunkte || liste_->MaxPkte >= static_cast<std::int32_t>(kMaxPunkte))
        return lehneAb(QStringLiteral("Mehr als 65 535 Punkte fasst ein Netz nicht."));
    const Farbe farbe = programm_.einstellungen.*ZurArt(eingabe.art).farbe;
    Punkt punkt = Punkt::Create(eingabe.symbol, farbe, PunktAttr::Fu);
    punkt.PktArt = eingabe.art;
    Tue(std::make_unique<PunktEingefuegt>(*liste_, punkt,
                                          PktText::Create(nummer, farbe, programm_.einstellungen), ort,
                                          static_cast<PunktIndex>(nr)));
}

}  // namespace zrw
