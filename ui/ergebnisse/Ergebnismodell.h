// Rows of a result table for a grid: shown by their formats, sorted by their values, never edited.
#pragma once

#include <QAbstractTableModel>

#include <vector>

#include "input/tabellen/Datenbank.h"
#include "input/tabellen/Ergebnistabellen.h"

namespace zrw {

class Ergebnismodell final : public QAbstractTableModel {
  public:
    using QAbstractTableModel::QAbstractTableModel;

    /// @param antwort its columns have the names of the fields; there may be others
    void SetzeTabelle(const Ergebnistabelle& tabelle, Antwort antwort);
    void LeereTabelle();
    /// How many columns say which row it is: the number of the row, those of its points.
    [[nodiscard]] int Kopfspalten() const;
    /// Raw text of a field, empty where it is none.
    [[nodiscard]] QString Text(int zeile, std::string_view feld) const;
    /// As the table names it; the heading may be another.
    [[nodiscard]] QString Feldname(int spalte) const;

    [[nodiscard]] int rowCount(const QModelIndex& eltern = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& eltern = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& stelle, int rolle) const override;
    [[nodiscard]] QVariant headerData(int abschnitt, Qt::Orientation richtung, int rolle) const override;
    void sort(int spalte, Qt::SortOrder ordnung) override;

  private:
    [[nodiscard]] const Tabellenfeld* Feld(int spalte) const;
    [[nodiscard]] const Zelle& Wert(int zeile, int spalte) const;
    [[nodiscard]] QString Anzeige(int zeile, int spalte) const;

    std::vector<const Tabellenfeld*> felder_;  ///< of each column; null where nobody describes it
    Antwort antwort_;
};

}  // namespace zrw
