#include "ui/ergebnisse/Planfaerber.h"

#include <utility>

#include "ui/Umwandlung.h"
#include "ui/ergebnisse/Ergebnisstand.h"

namespace zrw {

Planfaerber::Planfaerber(const Programm& programm, Plan& plan, Ergebnisstand& stand,
                         std::function<void()> zeichneNeu)
    : programm_(programm), plan_(plan), stand_(stand), zeichneNeu_(std::move(zeichneNeu)) {
    stand_.BeiAenderung(*this, [this] { ZeichneStile(); });
}

void Planfaerber::BaueStileNeu() {
    unlesbar_.clear();
    std::shared_ptr<const Figurenstile> stile;
    if (Wahl().Wirkt()) {
        programm_.daten.ErneuereErgebnisse();
        const auto liste = stand_.Liste();
        stile = BaueStile(*plan_.Daten(), Wahl(), *liste, &programm_.daten);
        for (const Tabellenlage& lage : liste->tabellen) {
            if (lage.zustand == Lesezustand::Unlesbar && unlesbar_.isEmpty()) unlesbar_ = AusUtf8(lage.grund);
        }
    }
    plan_.Daten()->Stile = std::move(stile);
}

void Planfaerber::WaehleFaerbung(const Planfaerbung& wahl) {
    if (!plan_.Offen()) return;
    plan_.SetzeFaerbung(wahl);
    ZeichneStile();
}

void Planfaerber::NetzGeaendert() {
    if (!Wahl().Wirkt()) return;
    BaueStileNeu();
    if (geaendert) geaendert();
}

void Planfaerber::ZeichneStile() {
    if (!plan_.Offen() || (!Wahl().Wirkt() && plan_.Daten()->Stile == nullptr)) return;
    BaueStileNeu();
    zeichneNeu_();
    if (geaendert) geaendert();
}

QString Planfaerber::Hinweis() const {
    if (!plan_.Offen() || plan_.Daten()->Stile == nullptr) return {};
    if (!unlesbar_.isEmpty()) return unlesbar_;
    if (Wahl().einfaerbung && !plan_.Daten()->Stile->HatWerte())
        return QStringLiteral("Zu diesem Ergebnis sagen die Tabellen beim Netz nichts.");
    return {};
}

}  // namespace zrw
