// The field "Punktnummern": the numbers of all points, to choose one or to type what it is like. It knows
// numbers only; whoever owns it shows the point.
#pragma once

#include <QComboBox>
#include <QString>
#include <QStringList>
#include <cstdint>
#include <functional>
#include <optional>

#include "input/import/Namensliste.h"
#include "model/FigListe.h"

class QStringListModel;

namespace zrw {

class Nummernfeld final : public QComboBox {
  public:
    explicit Nummernfeld(QWidget* eltern);

    /// How the numbers of the next network stand: sorted, or in the order in which they were read. A picture
    /// file has them backwards.
    void SetzeSortiert(bool sortiert) { sortiert_ = sortiert; }
    /// @param namen that shortened numbers stand for: they are found by these, too
    void FuelleListe(const Liste& liste, const Namensliste& namen);
    /// Whether points have come or gone since.
    [[nodiscard]] bool Veraltet(const Liste& liste) const { return stand_ != liste.MaxPkte; }
    [[nodiscard]] QStringList Nummern() const;
    /// The number that stands for a name; what was typed where it is none.
    [[nodiscard]] QString NummerZu(const QString& eingabe) const;
    /// The number that fits best what was typed.
    [[nodiscard]] std::optional<QString> FindeNummer(const QString& teil) const;

    /// A number was chosen, or something typed.
    std::function<void(const QString& nummer)> gewaehlt;

  private:
    /// Numbers that fit, or whose name fits, best first.
    [[nodiscard]] QStringList Treffer(const QString& teil, qsizetype hoechstens) const;

    QStringListModel* nummern_;
    QStringListModel* treffer_;  ///< those that fit what is typed
    QStringList benannte_;       ///< numbers that stand for a name
    QStringList namen_;          ///< theirs
    bool sortiert_ = false;
    std::int32_t stand_ = 0;  ///< number of points that they were made from
};

}  // namespace zrw
