#include "ui/aenderungen/Punktversteck.h"

#include <utility>

#include "ui/Umwandlung.h"
#include "ui/aenderungen/Aenderungen.h"
#include "ui/dialoge/TFormHiddenPkt.h"
#include "ui/dialoge/TFormHidePunkte.h"

namespace zrw {
namespace {

/// All points of these numbers that the network has.
std::unique_ptr<SichtbarkeitGeaendert> Aenderung(Liste& liste, const QStringList& nummern, bool sichtbar) {
    auto aenderung = std::make_unique<SichtbarkeitGeaendert>(sichtbar ? QStringLiteral("wieder gezeigt")
                                                                      : QStringLiteral("versteckt"));
    for (const QString& nummer : nummern) {
        if (PunktKnoten* p = liste.FindPunkt(Utf8NachCp1252(NachUtf8(nummer))); p != nullptr)
            aenderung->NimmPunkt(liste, *p, sichtbar);
    }
    aenderung->NenneFiguren(liste);
    return aenderung;
}

}  // namespace

Punktversteck::Punktversteck(Werkzeugumgebung& umgebung, QWidget* eltern)
    : umgebung_(umgebung), auswahl_(new TFormHidePunkte(eltern)), versteckte_(new TFormHiddenPkt(eltern)) {
    versteckte_->zeige = [this](const QString& nummer) { zuZeigen_ << nummer; };
    versteckte_->fertig = [this] { ZeigePunkte(std::exchange(zuZeigen_, {})); };
    versteckte_->hindernis = [this](const QString& nummer) {
        const Liste* netz = umgebung_.AktuelleListe();
        if (netz == nullptr) return QString();
        const PunktKnoten* p = netz->FindPunkt(Utf8NachCp1252(NachUtf8(nummer)));
        if (p == nullptr) return QStringLiteral("nicht im geöffneten Netz");
        return p->Item->Visible ? QStringLiteral("ist schon zu sehen") : QString();
    };
    auswahl_->verstecken = [this](const QStringList& nummern) { VerbergePunkte(nummern); };
}

/// The windows go later, with their parent.
Punktversteck::~Punktversteck() {
    versteckte_->zeige = {};
    versteckte_->fertig = {};
    versteckte_->hindernis = {};
    auswahl_->verstecken = {};
}

void Punktversteck::VerbergePunkt(PunktKnoten& punkt) {
    Liste& liste = *umgebung_.AktuelleListe();
    auto aenderung = std::make_unique<SichtbarkeitGeaendert>(QStringLiteral("versteckt"));
    aenderung->NimmPunkt(liste, punkt, false);
    aenderung->NenneFiguren(liste);
    TueVerbergen(std::move(aenderung), {AusNetz(liste.GetPktText(punkt.PNr))});
}

void Punktversteck::VerbergePunkte(const QStringList& nummern) {
    Liste* liste = umgebung_.AktuelleListe();
    if (liste == nullptr) return;
    TueVerbergen(Aenderung(*liste, nummern, false), nummern);
}

void Punktversteck::TueVerbergen(std::unique_ptr<SichtbarkeitGeaendert> aenderung,
                                 const QStringList& nummern) {
    if (aenderung->Leer()) {
        // Hidden already: they stand in the list once more, but there is nothing to undo.
        versteckte_->NimmNummern(nummern);
        umgebung_.ZeichneNeu();
        umgebung_.ZeigeStatus(QStringLiteral("Nichts versteckt: Es war schon alles versteckt."));
        return;
    }
    // The list of hidden points goes with the change, there and back.
    aenderung->danach = [versteckte = versteckte_, nummern](bool getan) {
        if (getan) {
            versteckte->NimmNummern(nummern);
        } else {
            for (const QString& nummer : nummern)
                versteckte->EntferneNummer(nummer);
        }
    };
    umgebung_.TueAenderung(std::move(aenderung));
}

/// Numbers that this network does not have are passed over: the list of hidden points outlives a network.
void Punktversteck::ZeigePunkte(const QStringList& nummern) {
    Liste* liste = umgebung_.AktuelleListe();
    if (liste == nullptr) return;
    auto aenderung = Aenderung(*liste, nummern, true);
    if (nummern.isEmpty() || aenderung->Leer()) {
        umgebung_.ZeichneNeu();
        if (!nummern.isEmpty()) umgebung_.ZeigeStatus(QStringLiteral("Diese Punkte waren schon zu sehen."));
        return;
    }
    aenderung->danach = [versteckte = versteckte_, nummern, erstesMal = true](bool getan) mutable {
        if (!getan) versteckte->NimmNummern(nummern);
        if (getan && !erstesMal) {
            for (const QString& nummer : nummern)
                versteckte->EntferneNummer(nummer);
        }
        erstesMal = false;
    };
    umgebung_.TueAenderung(std::move(aenderung));
}

void Punktversteck::ZeigeNummern() {
    Liste* liste = umgebung_.AktuelleListe();
    if (liste == nullptr) return;
    auto aenderung = std::make_unique<SichtbarkeitGeaendert>(QStringLiteral("wieder gezeigt"));
    for (PPunktString t = liste->PktTextKnoten; t != nullptr; t = t->Next) {
        // The number of a hidden point stays with it.
        const PunktKnoten* p = liste->SuchPkt(t->TNr);
        if (p != nullptr && p->Item->Visible) aenderung->NimmFigur(*t, true);
    }
    if (aenderung->Leer())
        return umgebung_.ZeigeStatus(QStringLiteral("Es ist keine Punktnummer versteckt."));
    aenderung->NenneFiguren(*liste);
    umgebung_.TueAenderung(std::move(aenderung));
}

}  // namespace zrw
