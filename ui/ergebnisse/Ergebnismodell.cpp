#include "ui/ergebnisse/Ergebnismodell.h"

#include <algorithm>
#include <array>

#include "input/tabellen/Anzeigetext.h"
#include "ui/Umwandlung.h"
#include "ui/ergebnisse/Spaltenhinweise.h"

namespace zrw {
namespace {

std::size_t S(int n) {
    return static_cast<std::size_t>(n);
}

bool Gesetzt(const Zelle& zelle) {
    const auto* wert = std::get_if<std::int64_t>(&zelle);
    return wert != nullptr && *wert != 0;
}

}  // namespace

void Ergebnismodell::SetzeTabelle(const Ergebnistabelle& tabelle, Antwort antwort) {
    beginResetModel();
    antwort_ = std::move(antwort);
    felder_.clear();
    for (const std::string& spalte : antwort_.spalten) {
        const auto feld = std::find_if(tabelle.felder.begin(), tabelle.felder.end(),
                                       [&](const Tabellenfeld& f) { return f.name == spalte; });
        felder_.push_back(feld != tabelle.felder.end() ? &*feld : nullptr);
    }
    endResetModel();
}

void Ergebnismodell::LeereTabelle() {
    beginResetModel();
    felder_ = {};
    antwort_ = {};
    endResetModel();
}

const Tabellenfeld* Ergebnismodell::Feld(int spalte) const {
    return S(spalte) < felder_.size() ? felder_[S(spalte)] : nullptr;
}

const Zelle& Ergebnismodell::Wert(int zeile, int spalte) const {
    return antwort_.zeilen[S(zeile)][S(spalte)];
}

QString Ergebnismodell::Text(int zeile, std::string_view feld) const {
    const auto stelle = std::find(antwort_.spalten.begin(), antwort_.spalten.end(), feld);
    if (stelle == antwort_.spalten.end() || zeile < 0 || zeile >= rowCount()) return {};
    const auto* text =
        std::get_if<std::string>(&Wert(zeile, static_cast<int>(stelle - antwort_.spalten.begin())));
    return text != nullptr ? AusUtf8(*text) : QString();
}

QString Ergebnismodell::Feldname(int spalte) const {
    return AusUtf8(antwort_.spalten[S(spalte)]);
}

int Ergebnismodell::Kopfspalten() const {
    constexpr auto kKopf = std::to_array<std::string_view>({"ID", "PKT", "P1", "P2", "PS", "PZ", "PA", "PE"});
    const auto erste = std::find_if(antwort_.spalten.begin(), antwort_.spalten.end(), [&](const auto& name) {
        return name != kGegenrichtung && std::count(kKopf.begin(), kKopf.end(), name) == 0;
    });
    return static_cast<int>(erste - antwort_.spalten.begin());
}

int Ergebnismodell::rowCount(const QModelIndex& eltern) const {
    return eltern.isValid() ? 0 : static_cast<int>(antwort_.zeilen.size());
}

int Ergebnismodell::columnCount(const QModelIndex& eltern) const {
    return eltern.isValid() ? 0 : static_cast<int>(antwort_.spalten.size());
}

QString Ergebnismodell::Anzeige(int zeile, int spalte) const {
    const Tabellenfeld* feld = Feld(spalte);
    const Zelle& wert = Wert(zeile, spalte);
    if (feld != nullptr && !feld->nkFlag.empty()) {
        const auto flag = std::find(antwort_.spalten.begin(), antwort_.spalten.end(), feld->nkFlag);
        if (flag != antwort_.spalten.end() &&
            Gesetzt(Wert(zeile, static_cast<int>(flag - antwort_.spalten.begin()))))
            return QStringLiteral("NK");
    }
    if (std::holds_alternative<std::monostate>(wert)) return {};
    if (const auto* text = std::get_if<std::string>(&wert)) return AusUtf8(*text);
    if (feld != nullptr && feld->typ == paradox::Feldtyp::Logisch)
        return Gesetzt(wert) ? QStringLiteral("ja") : QStringLiteral("nein");
    const auto* ganz = std::get_if<std::int64_t>(&wert);
    const double zahl = ganz != nullptr ? static_cast<double>(*ganz) : std::get<double>(wert);
    if (feld != nullptr && feld->typ == paradox::Feldtyp::Zeitpunkt) return AusUtf8(AnzeigeZeitpunkt(zahl));
    return AusUtf8(Anzeigetext(zahl, feld != nullptr ? feld->format : std::string_view()));
}

QVariant Ergebnismodell::data(const QModelIndex& stelle, int rolle) const {
    if (!stelle.isValid()) return {};
    if (rolle == Qt::DisplayRole) return Anzeige(stelle.row(), stelle.column());
    if (rolle == Qt::TextAlignmentRole) {
        const bool text = std::holds_alternative<std::string>(Wert(stelle.row(), stelle.column()));
        return QVariant(Qt::AlignVCenter | (text ? Qt::AlignLeft : Qt::AlignRight));
    }
    return {};
}

QVariant Ergebnismodell::headerData(int abschnitt, Qt::Orientation richtung, int rolle) const {
    if (rolle != Qt::DisplayRole && rolle != Qt::ToolTipRole) return {};
    if (richtung == Qt::Vertical) return rolle == Qt::DisplayRole ? QVariant(abschnitt + 1) : QVariant();
    if (abschnitt < 0 || abschnitt >= columnCount()) return {};
    const Tabellenfeld* feld = Feld(abschnitt);
    if (rolle == Qt::ToolTipRole) return AusUtf8(Hinweistext(antwort_.spalten[S(abschnitt)]));
    if (feld != nullptr && !feld->titel.empty()) return AusUtf8(feld->titel);
    return AusUtf8(antwort_.spalten[S(abschnitt)]);
}

void Ergebnismodell::sort(int spalte, Qt::SortOrder ordnung) {
    if (spalte < 0 || spalte >= columnCount()) return;
    const auto kleiner = [s = S(spalte)](const auto& a, const auto& b) { return a[s] < b[s]; };
    beginResetModel();
    if (ordnung == Qt::AscendingOrder) {
        std::stable_sort(antwort_.zeilen.begin(), antwort_.zeilen.end(), kleiner);
    } else {
        std::stable_sort(antwort_.zeilen.begin(), antwort_.zeilen.end(),
                         [&](const auto& a, const auto& b) { return kleiner(b, a); });
    }
    endResetModel();
}

}  // namespace zrw
