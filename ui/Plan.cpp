#include "ui/Plan.h"

#include <cassert>
#include <set>
#include <utility>

#include "input/Systemdateien.h"
#include "model/Bilddatei.h"
#include "ui/aenderungen/Verwerfen.h"
#include "ui/bild/Figurentext.h"

namespace zrw {

Plan::Plan(Netzangaben& angaben, Dateien& dateien, Beobachter& beobachter)
    : angaben_(angaben), dateien_(dateien), beobachter_(beobachter) {
    constexpr int kSchritte = 500;
    schritte_.setUndoLimit(kSchritte);
    QObject::connect(&schritte_, &QUndoStack::cleanChanged, &schritte_,
                     [this] { beobachter_.StandGeaendert(); });
}

Plan::~Plan() {
    // Its signals would reach a window that is half gone.
    schritte_.disconnect();
}

void Plan::UebernimmListe(std::unique_ptr<Liste> liste, const Netzangaben& angaben,
                          const std::filesystem::path& datei) {
    faerbung_ = {};
    assert(liste != nullptr);
    schritte_.clear();
    ungesichert_ = false;
    liste_ = std::move(liste);
    angaben_ = angaben;
    datei_ = datei;
    abgelegt_ = {datei, *liste_, liste_->Legend};
    beobachter_.StandGeaendert();
}

void Plan::MerkeUngesichert() {
    ungesichert_ = true;
    beobachter_.StandGeaendert();
}

std::size_t Plan::SpeicherePlan(const std::filesystem::path& datei) {
    assert(Offen());
    const std::size_t weggelassen = SchreibeBilddatei(*liste_, angaben_, datei, dateien_);
    // Unchanged it is still what was opened, with more than a picture file holds.
    if (Ungesichert() || DieselbeDatei(datei, abgelegt_.datei))
        abgelegt_ = {datei, *liste_, Legende::Create()};
    ungesichert_ = false;
    schritte_.setClean();
    beobachter_.StandGeaendert();
    return weggelassen;
}

/// The numbers of a few points, how many there are of more.
static QString Punktliste(const Netz& netz, const std::vector<PPunktKnoten>& punkte) {
    constexpr std::size_t kWenige = 5;
    if (punkte.size() > kWenige) return QStringLiteral("%1 Punkte").arg(punkte.size());
    QStringList nummern;
    for (const PunktKnoten* p : punkte)
        nummern << Nummertext(netz, p->PNr);
    return nummern.join(QStringLiteral(", "));
}

/// All steps came through `TueAenderung`.
const Netzaenderung& Plan::Schritt(int i) const {
    return static_cast<const Netzaenderung&>(*schritte_.command(i));
}

template <class Tat>
void Plan::FuehreAenderungAus(const Netzaenderung& aenderung, const QString& vorsatz, Tat tat) {
    beobachter_.VorAenderung(aenderung.Betroffene());
    tat();
    beobachter_.NachAenderung(aenderung.Betroffene());
    const QString satz = vorsatz + aenderung.text();
    RaeumeStapel(schritte_);
    beobachter_.SchrittGetan(satz);
}

void Plan::TueAenderung(std::unique_ptr<Netzaenderung> aenderung) {
    assert(Offen() && aenderung != nullptr);
    const Netzaenderung& neu = *aenderung;
    FuehreAenderungAus(neu, {}, [&] { schritte_.push(aenderung.release()); });
}

bool Plan::Rueckgaengig() {
    if (!schritte_.canUndo()) return false;
    FuehreAenderungAus(Schritt(schritte_.index() - 1), QStringLiteral("Zurückgenommen: "),
                       [this] { schritte_.undo(); });
    return true;
}

bool Plan::WiederholeSchritt() {
    if (!schritte_.canRedo()) return false;
    FuehreAenderungAus(Schritt(schritte_.index()), QStringLiteral("Wiederholt: "),
                       [this] { schritte_.redo(); });
    return true;
}

void Plan::ZentrierePunkte(const std::vector<PPunktKnoten>& exzentren, const PunktKnoten& zentrum) {
    assert(Offen());
    Figurenmenge figuren;
    std::set<PunktIndex> nummern;
    for (PunktKnoten* p : exzentren) {
        figuren.NimmFiguren(liste_->Umfeld(*p));
        nummern.insert(p->PNr);
    }
    beobachter_.VorAenderung(figuren);
    for (PunktKnoten* p : exzentren)
        liste_->ZentrierePunkt(*p, zentrum);
    // What came before cannot be undone at these points either.
    VerwirfSchritte(schritte_, nummern);
    MerkeUngesichert();
    beobachter_.NachAenderung(figuren);
    beobachter_.SchrittGetan(QStringLiteral("%1 auf %2 zentriert")
                                 .arg(Punktliste(*liste_, exzentren), Nummertext(*liste_, zentrum.PNr)));
}

}  // namespace zrw
