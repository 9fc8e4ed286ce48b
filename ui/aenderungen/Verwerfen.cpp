#include "ui/aenderungen/Verwerfen.h"

#include <algorithm>

#include "ui/aenderungen/Aenderungen.h"

namespace zrw {
namespace {

std::set<PunktIndex> Punkte(const Netzaenderung& aenderung) {
    const Figurenmenge figuren = aenderung.Betroffene();
    std::set<PunktIndex> nummern;
    for (const PunktKnoten* p : figuren.punkte)
        nummern.insert(p->PNr);
    for (const PunktString* t : figuren.texte)
        nummern.insert(t->TNr);
    return nummern;
}

}  // namespace

void VerwirfSchritte(QUndoStack& stapel, std::set<PunktIndex> nummern) {
    for (int i = stapel.count(); i-- > 0;) {
        // The stack owns it and shows it as constant; all that is on it came through `TueAenderung`.
        auto& aenderung = const_cast<Netzaenderung&>(static_cast<const Netzaenderung&>(*stapel.command(i)));
        const std::set<PunktIndex> ihre = Punkte(aenderung);
        if (std::none_of(ihre.begin(), ihre.end(), [&](PunktIndex nr) { return nummern.count(nr) != 0; }))
            continue;
        aenderung.setObsolete(true);
        // An earlier step about the same numbers counts on this one being undone first.
        nummern.insert(ihre.begin(), ihre.end());
    }
    RaeumeStapel(stapel);
}

void RaeumeStapel(QUndoStack& stapel) {
    const auto leer = [&](int i) { return i >= 0 && i < stapel.count() && stapel.command(i)->isObsolete(); };
    while (leer(stapel.index() - 1))
        stapel.undo();
    while (leer(stapel.index()))
        stapel.redo();
}

}  // namespace zrw
