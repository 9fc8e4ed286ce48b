#include "ui/ergebnisse/Beobachtungsmodell.h"

#include <QBrush>
#include <QColor>
#include <QFont>
#include <utility>

#include "ui/Umwandlung.h"
#include "ui/ergebnisse/Beobachtungstext.h"

namespace zrw {
namespace {

/// Over whatever background there is, light or dark.
const QColor kFehlergrund(224, 62, 45, 70);

/// Flagged rows are told from others without colours, too, wherever the table is scrolled to.
QFont Fett() {
    QFont schrift;
    schrift.setBold(true);
    return schrift;
}

Listenspalte Spalte(int nummer) {
    return static_cast<Listenspalte>(nummer);
}

/// What a column is, by its name in the file.
QString Listenhinweis(Listenspalte spalte) {
    if (const auto& wert = kListenspalten[static_cast<std::size_t>(spalte)].wert)
        return AusUtf8(ZurSpalte(*wert).bezeichnung);
    if (spalte == Listenspalte::Tabelle) return QStringLiteral("Art der Beobachtung");
    if (spalte == Listenspalte::ID) return QStringLiteral("Nummer in ihrer Tabelle");
    if (spalte == Listenspalte::Von) return QStringLiteral("Anfangspunkt oder Standpunkt");
    if (spalte == Listenspalte::Nach) return QStringLiteral("Endpunkt oder Zielpunkt");
    if (spalte == Listenspalte::FF)
        return QStringLiteral("von der Ausgleichung als grober Fehler gekennzeichnet");
    return QStringLiteral("nicht durch andere Beobachtungen kontrolliert");
}

Qt::Alignment Ausrichtung(Listenspalte spalte) {
    if (spalte == Listenspalte::FF || spalte == Listenspalte::NK) return Qt::AlignCenter;
    const bool zahl =
        spalte == Listenspalte::ID || kListenspalten[static_cast<std::size_t>(spalte)].wert.has_value();
    return Qt::AlignVCenter | (zahl ? Qt::AlignRight : Qt::AlignLeft);
}

}  // namespace

void Beobachtungsmodell::SetzeListe(std::shared_ptr<const Beobachtungsliste> liste) {
    if (liste == liste_) return;
    beginResetModel();
    liste_ = std::move(liste);
    OrdneNeu();
    endResetModel();
}

void Beobachtungsmodell::SetzeFilter(Listenfilter filter) {
    beginResetModel();
    filter_ = std::move(filter);
    OrdneNeu();
    endResetModel();
}

void Beobachtungsmodell::sort(int spalte, Qt::SortOrder ordnung) {
    if (spalte < 0 || spalte >= columnCount()) return;
    beginResetModel();
    ordnung_ = {.spalte = Spalte(spalte), .fallend = ordnung == Qt::DescendingOrder};
    OrdneNeu();
    endResetModel();
}

void Beobachtungsmodell::OrdneNeu() {
    zeilen_ = OrdneZeilen(*liste_, filter_, ordnung_);
}

int Beobachtungsmodell::rowCount(const QModelIndex& eltern) const {
    return eltern.isValid() ? 0 : static_cast<int>(zeilen_.size());
}

int Beobachtungsmodell::columnCount(const QModelIndex& eltern) const {
    return eltern.isValid() ? 0 : static_cast<int>(SpaltenVon(*liste_).size());
}

QVariant Beobachtungsmodell::data(const QModelIndex& stelle, int rolle) const {
    if (!stelle.isValid()) return {};
    const Beobachtung& b = Zeile(stelle.row());
    const Listenspalte spalte = Spalte(stelle.column());
    const bool gegen = spalte == Listenspalte::Tabelle && gegenrichtung && gegenrichtung(b);
    if (rolle == Qt::DisplayRole && gegen) return Zellentext(b, spalte) + QStringLiteral(" ⇄");
    if (rolle == Qt::DisplayRole) return Zellentext(b, spalte);
    if (rolle == Qt::ToolTipRole && gegen)
        return QStringLiteral("Gegenrichtung: Die Linie im Netz führt vom Endpunkt zum Anfangspunkt");
    if (rolle == Qt::TextAlignmentRole) return QVariant(Ausrichtung(spalte));
    if (rolle == Qt::BackgroundRole && b.ff) return QBrush(kFehlergrund);
    if (rolle == Qt::FontRole && b.ff) return Fett();
    const bool zeichen = (spalte == Listenspalte::FF && b.ff) || (spalte == Listenspalte::NK && b.nk);
    if (rolle == Qt::ToolTipRole && zeichen) return Listenhinweis(spalte);
    return {};
}

QVariant Beobachtungsmodell::headerData(int abschnitt, Qt::Orientation richtung, int rolle) const {
    if (richtung == Qt::Vertical || abschnitt < 0 || abschnitt >= columnCount()) return {};
    const Listenspalte spalte = Spalte(abschnitt);
    if (rolle == Qt::ToolTipRole) return Listenhinweis(spalte);
    if (rolle != Qt::DisplayRole) return {};
    return spalte == Listenspalte::Tabelle ? QStringLiteral("Art")
                                           : AusUtf8(kListenspalten[static_cast<std::size_t>(spalte)].name);
}

}  // namespace zrw
