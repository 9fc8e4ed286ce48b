// What the result tables say about one point or one line, in the grid of a window or of the side bar.
#pragma once

#include <QString>
#include <cstdint>
#include <functional>
#include <optional>

#include "input/tabellen/Ergebnisabfragen.h"
#include "model/FigListe.h"
#include "ui/Programm.h"
#include "ui/ablage/Vorlieben.h"

namespace zrw {

class Ergebnisgitter;

/// What becomes of results of a line that lead from its second point to its first and are not listed with it.
enum class Gegenrichtung : std::uint8_t {
    Nennen,    ///< told below the grid
    Auflisten  ///< listed, too, and marked
};

class Ergebnisliste {
  public:
    /// All must outlive it. @param meldeTabellen the tables were read and may have something to say
    Ergebnisliste(const Programm& programm, const Vorlieben& vorlieben, Ergebnisgitter& gitter,
                  Gegenrichtung gegenrichtung, std::function<void()> meldeTabellen);
    ~Ergebnisliste();
    Ergebnisliste(const Ergebnisliste&) = delete;
    Ergebnisliste& operator=(const Ergebnisliste&) = delete;

    void ListeAuf(const Liste& netz, const PunktKnoten& punkt);
    void ListeAuf(const Liste& netz, const PunktKante& kante);
    /// Nothing is listed any more.
    void LeereListe();
    /// Reads what was listed last once more.
    void ErneuereListe();

  private:
    using Zahlen = std::vector<std::optional<TDM::Zeilenzahl>>;

    void ListeNummern(const QString& erster, const std::optional<QString>& zweiter, const QString& leergrund);
    [[nodiscard]] bool Leer() const { return erster_.isEmpty() || (zweiter_ && zweiter_->isEmpty()); }
    [[nodiscard]] std::string Abfrage(const Ergebnisreiter& reiter) const;
    /// That of the other direction, empty where there is none.
    [[nodiscard]] std::string Gegenabfrage(const Ergebnisreiter& reiter) const;
    [[nodiscard]] Zahlen ZaehleZeilen() const;
    void WechsleReiter(const Zahlen& zahlen);
    void FuelleReiter();
    void ListeReiter(const Ergebnisreiter& reiter);

    const Programm& programm_;
    const Vorlieben& vorlieben_;
    Ergebnisgitter& gitter_;
    Gegenrichtung gegenrichtung_;
    std::function<void()> meldeTabellen_;
    QString leergrund_;  ///< told below the empty grid
    QString erster_;     ///< number of what is listed, of a line its first point
    std::optional<QString> zweiter_;
};

}  // namespace zrw
