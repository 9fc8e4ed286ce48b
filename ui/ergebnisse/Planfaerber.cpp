#include "ui/ergebnisse/Planfaerber.h"

#include <utility>

#include "ui/Umwandlung.h"

namespace zrw {

Planfaerber::Planfaerber(const Programm& programm, Plan& plan, Listenquelle liste,
                         std::function<void()> zeichneNeu)
    : programm_(programm), plan_(plan), liste_(std::move(liste)), zeichneNeu_(std::move(zeichneNeu)) {}

void Planfaerber::BaueStileNeu() {
    unlesbar_.clear();
    std::shared_ptr<const Figurenstile> stile;
    if (Wahl().Wirkt()) {
        programm_.daten.ErneuereErgebnisse();
        const auto liste = liste_();
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
    TabellenGeaendert();
}

void Planfaerber::NetzGeaendert() {
    if (!Wahl().Wirkt()) return;
    BaueStileNeu();
    if (geaendert) geaendert();
}

void Planfaerber::TabellenGeaendert() {
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
