#include "ui/ergebnisse/Beobachtungstext.h"

#include <algorithm>
#include <cmath>

#include "model/Zahlentext.h"
#include "ui/Umwandlung.h"

namespace zrw {
namespace {

constexpr int kWertstellen = 4;
constexpr int kMeisteStellen = 3;
/// Longer numbers than these belong to no survey and would fill the screen.
constexpr double kGroessteZahl = 1e12;

QString Tabellenname(const Beobachtungsgattung& g) {
    return AusUtf8(g.name) + QStringLiteral(".DB");
}

}  // namespace

QString Zahltext(const Beobachtung& b, Messwert wert) {
    const double zahl = b.Wert(wert);
    if (std::isnan(zahl)) return {};
    if (!(std::fabs(zahl) < kGroessteZahl)) return AusUtf8(SchreibeReal(zahl));
    if (wert == Messwert::Wert) return AusUtf8(Festkomma(zahl, 0, kWertstellen));
    if (wert == Messwert::TG || wert == Messwert::EV) return AusUtf8(Festkomma(zahl, 0, 2));
    std::string text = Festkomma(zahl, 0, kMeisteStellen);
    text.erase(text.find_last_not_of('0') + 1);
    if (text.back() == '.') text.pop_back();
    return text == "-0" ? QStringLiteral("0") : AusUtf8(text);
}

QString Zellentext(const Beobachtung& b, Listenspalte spalte) {
    if (const auto& wert = kListenspalten[static_cast<std::size_t>(spalte)].wert) return Zahltext(b, *wert);
    if (spalte == Listenspalte::Tabelle) return AusUtf8(ZurGattung(b.tabelle).einzahl);
    if (spalte == Listenspalte::ID) return b.idBekannt ? QString::number(b.id) : QString();
    if (spalte == Listenspalte::Von) return AusNetz(b.von.Text());
    if (spalte == Listenspalte::Nach) return AusNetz(b.nach.Text());
    if (spalte == Listenspalte::FF) return b.ff ? QStringLiteral("● FF") : QString();
    return b.nk ? QStringLiteral("NK") : QString();
}

QString Beobachtungssatz(const Beobachtung& b) {
    QString satz = AusUtf8(ZurGattung(b.tabelle).einzahl) + QLatin1Char(' ') + AusNetz(b.von.Text());
    if (!b.nach.Leer()) satz += QStringLiteral(" → ") + AusNetz(b.nach.Text());
    for (const Messwert wert : {Messwert::TG, Messwert::V}) {
        const QString zahl = Zahltext(b, wert);
        if (!zahl.isEmpty())
            satz += QStringLiteral(", ") + AusUtf8(ZurSpalte(wert).name) + QLatin1Char(' ') + zahl;
    }
    return satz;
}

bool SelbeBeobachtung(const Beobachtung& a, const Beobachtung& b) {
    return a.tabelle == b.tabelle && a.idBekannt == b.idBekannt && a.id == b.id && a.von == b.von &&
           a.nach == b.nach;
}

QString UnlesbareTabellen(const Beobachtungsliste& liste) {
    QStringList zeilen;
    for (const Beobachtungsgattung& g : kBeobachtungsgattungen) {
        const Tabellenlage& lage = liste.Lage(g.tabelle);
        if (lage.zustand != Lesezustand::Unlesbar) continue;
        const QString grund = AusUtf8(lage.grund);
        const bool genannt = grund.contains(AusUtf8(g.name), Qt::CaseInsensitive);
        zeilen << (genannt ? grund : Tabellenname(g) + QStringLiteral(": ") + grund);
    }
    return zeilen.join(QLatin1Char('\n'));
}

bool OhneTabellen(const Beobachtungsliste& liste) {
    return std::all_of(liste.tabellen.begin(), liste.tabellen.end(),
                       [](const Tabellenlage& lage) { return lage.zustand == Lesezustand::Fehlt; });
}

std::size_t ZaehleMarkierte(const Beobachtungsliste& liste) {
    return static_cast<std::size_t>(
        std::count_if(liste.zeilen.begin(), liste.zeilen.end(), [](const Beobachtung& b) { return b.ff; }));
}

QString Fehlersatz(const Beobachtungsliste& liste) {
    QStringList unlesbare;
    bool hatFF = false;
    for (const Beobachtungsgattung& g : kBeobachtungsgattungen) {
        const Tabellenlage& lage = liste.Lage(g.tabelle);
        hatFF = hatFF || lage.hatFF;
        if (lage.zustand == Lesezustand::Unlesbar) unlesbare << Tabellenname(g);
    }
    if (OhneTabellen(liste)) return {};
    const std::size_t anzahl = ZaehleMarkierte(liste);
    QStringList saetze;
    if (anzahl > 0) {
        saetze << (anzahl == 1
                       ? QStringLiteral("1 grober Fehler markiert (F4 zeigt ihn)")
                       : QStringLiteral("%1 grobe Fehler markiert (F4 zeigt den ersten)").arg(anzahl));
    } else if (hatFF) {
        saetze << (unlesbare.isEmpty()
                       ? QStringLiteral("Kein grober Fehler markiert")
                       : QStringLiteral("Kein grober Fehler in den übrigen Tabellen markiert"));
    } else if (unlesbare.isEmpty()) {
        saetze << QStringLiteral("Grobe Fehler unbekannt: Den Tabellen fehlt das Feld FF");
    }
    if (!unlesbare.isEmpty())
        saetze << QStringLiteral("nicht lesbar: ") + unlesbare.join(QStringLiteral(", "));
    return saetze.join(QStringLiteral("; "));
}

}  // namespace zrw
