#include "ui/aenderungen/Punktartwahl.h"

#include <memory>
#include <string>

#include "model/Punktarten.h"
#include "model/Zahlentext.h"
#include "ui/Umwandlung.h"
#include "ui/aenderungen/Aenderungen.h"
#include "ui/dialoge/TFormPunktart.h"

namespace zrw {

Punktartwahl::Punktartwahl(Werkzeugumgebung& umgebung, Dialogdienst& dialoge, QWidget* eltern)
    : umgebung_(umgebung), dialoge_(dialoge), fenster_(new TFormPunktart(eltern)) {
    fenster_->zeichnen = [this] { ZeichnePunkt(); };
}

/// The window goes later, with its parent.
Punktartwahl::~Punktartwahl() {
    fenster_->zeichnen = {};
}

void Punktartwahl::WaehlePunkt(PunktKnoten& punkt) {
    const Liste& liste = *umgebung_.AktuelleListe();
    gewaehlt_ = &punkt;
    gezeigt_ = StandVon(punkt);
    fenster_->ZeigeEingabe({AusNetz(liste.GetPktText(punkt.PNr)),
                            ArtNachFarbe(punkt.Item->Farbe, umgebung_.Anzeige()), punkt.Item->PktTyp,
                            AusUtf8(Festkomma(punkt.XWPu, 0, 4)), AusUtf8(Festkomma(punkt.YWPu, 0, 4)),
                            false});
}

void Punktartwahl::NetzGeaendert() {
    if (gewaehlt_ == nullptr) return;
    if (!umgebung_.AktuelleListe()->EnthaeltPunkt(*gewaehlt_)) {
        gewaehlt_ = nullptr;
        fenster_->ZeigeEingabe({});
    } else if (StandVon(*gewaehlt_) != gezeigt_) {
        WaehlePunkt(*gewaehlt_);  // the window must not put back what was undone
    }
}

/// "Zeichnen": changes the picked point, or inserts a new one.
void Punktartwahl::ZeichnePunkt() {
    Liste* liste = umgebung_.AktuelleListe();
    if (liste == nullptr) return;
    const Punkteingabe e = fenster_->Eingabe();
    const auto rechts = LiesReal(NachUtf8(e.rechts));
    const auto hoch = LiesReal(NachUtf8(e.hoch));
    if (!rechts || !hoch) {
        dialoge_.MeldeFehler(
            QStringLiteral("Die Koordinaten sind keine Zahlen (Dezimaltrenner ist der Punkt)."));
        return;
    }
    const Welt ort{*rechts, *hoch};
    if (e.neu) {
        FuegeEin(e, ort);
        return;
    }
    if (gewaehlt_ == nullptr) {
        dialoge_.MeldeFehler(QStringLiteral("Bitte zuerst einen Punkt im Bild anklicken."));
        return;
    }
    if (e.nummer != AusNetz(liste->GetPktText(gewaehlt_->PNr))) {
        dialoge_.MeldeFehler(
            QStringLiteral("Die Nummer eines Punktes lässt sich nicht ändern. Für einen neuen Punkt "
                           "„Neupunkt“ ankreuzen."));
        return;
    }
    // What the dialog shows with four decimals is the place itself unless somebody changed it.
    const bool hier = e.rechts == AusUtf8(Festkomma(gewaehlt_->XWPu, 0, 4)) &&
                      e.hoch == AusUtf8(Festkomma(gewaehlt_->YWPu, 0, 4));
    const PunktGeaendert::Angaben neu{e.art, e.symbol, umgebung_.Anzeige().*ZurArt(e.art).farbe,
                                      hier ? Welt{gewaehlt_->XWPu, gewaehlt_->YWPu} : ort};
    const Punkt& p = *gewaehlt_->Item;
    const bool gleich = hier && p.PktArt == neu.art && p.PktTyp == neu.symbol && p.Farbe == neu.farbe;
    if (gleich) return umgebung_.ZeigeStatus(QStringLiteral("Punkt %1 ist schon so").arg(e.nummer));
    umgebung_.TueAenderung(std::make_unique<PunktGeaendert>(*liste, *gewaehlt_, neu));
}

void Punktartwahl::FuegeEin(const Punkteingabe& eingabe, Welt ort) {
    Liste& liste = *umgebung_.AktuelleListe();
    const std::string nummer(OhneRand(Utf8NachCp1252(NachUtf8(eingabe.nummer))));
    const auto lehneAb = [&](const QString& grund) { dialoge_.MeldeFehler(grund); };
    if (AusNetz(nummer) != AusUtf8(OhneRand(NachUtf8(eingabe.nummer))))
        return lehneAb(QStringLiteral("Die Punktnummer %1 hat ein Zeichen, das sich nicht speichern lässt. "
                                      "Möglich sind die Zeichen der Codeseite 1252.")
                           .arg(eingabe.nummer));
    if (nummer.empty()) return lehneAb(QStringLiteral("Der neue Punkt braucht eine Nummer."));
    if (nummer.size() > PunktNummernTyp::kLaenge)
        return lehneAb(QStringLiteral("Die Punktnummer ist zu lang (höchstens 14 Zeichen)."));
    if (liste.FindPunkt(nummer) != nullptr)
        return lehneAb(QStringLiteral("Den Punkt %1 gibt es schon.").arg(eingabe.nummer));
    std::size_t nr = 1;
    while (nr <= kMaxPunkte && liste.SuchPkt(static_cast<PunktIndex>(nr)) != nullptr)
        ++nr;
    if (nr > kMaxPunkte || liste.MaxPkte >= static_cast<std::int32_t>(kMaxPunkte))
        return lehneAb(QStringLiteral("Mehr als 65 535 Punkte fasst ein Netz nicht."));
    const Farbe farbe = umgebung_.Anzeige().*ZurArt(eingabe.art).farbe;
    Punkt punkt = Punkt::Create(eingabe.symbol, farbe, PunktAttr::Fu);
    punkt.PktArt = eingabe.art;
    umgebung_.TueAenderung(std::make_unique<PunktEingefuegt>(
        liste, punkt, PktText::Create(nummer, farbe, umgebung_.Anzeige()), ort, static_cast<PunktIndex>(nr)));
    const Bildpunkt b = liste.Bildort(ort);
    QString dazu;
    if (!liste.Dargestellt(punkt)) {
        dazu = QStringLiteral("; Punkte dieser Art sind gerade ausgeschaltet");
    } else if (b.x < 0 || b.y < 0 || b.x >= liste.Weite || b.y >= liste.Hoehe) {
        dazu = QStringLiteral("; er liegt außerhalb des Bildes („F“ passt ein)");
    }
    if (!dazu.isEmpty())
        umgebung_.MeldeErledigt(QStringLiteral("Punkt %1 eingefügt").arg(AusNetz(nummer)) + dazu);
}

}  // namespace zrw
