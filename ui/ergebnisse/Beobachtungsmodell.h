// The list of observations for a table: filtered and sorted places in it, never edited. The texts are made
// when they are shown.
#pragma once

#include <QAbstractTableModel>
#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

#include "model/ergebnisse/Listenordnung.h"

namespace zrw {

class Beobachtungsmodell final : public QAbstractTableModel {
  public:
    using QAbstractTableModel::QAbstractTableModel;

    /// Empty, or whether the line of an observation leads the other way in the network.
    std::function<bool(const Beobachtung&)> gegenrichtung;

    /// @param liste not null
    void SetzeListe(std::shared_ptr<const Beobachtungsliste> liste);
    void SetzeFilter(Listenfilter filter);
    [[nodiscard]] const Beobachtungsliste& Liste() const { return *liste_; }
    [[nodiscard]] const Beobachtung& Zeile(int zeile) const { return liste_->zeilen[Stelle(zeile)]; }
    /// Its place in the list.
    [[nodiscard]] std::uint32_t Stelle(int zeile) const { return zeilen_[static_cast<std::size_t>(zeile)]; }

    [[nodiscard]] int rowCount(const QModelIndex& eltern = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& eltern = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& stelle, int rolle) const override;
    [[nodiscard]] QVariant headerData(int abschnitt, Qt::Orientation richtung, int rolle) const override;
    void sort(int spalte, Qt::SortOrder ordnung) override;

  private:
    void OrdneNeu();

    std::shared_ptr<const Beobachtungsliste> liste_ = std::make_shared<const Beobachtungsliste>();
    Listenfilter filter_;
    Listenordnung ordnung_;
    std::vector<std::uint32_t> zeilen_;
};

}  // namespace zrw
