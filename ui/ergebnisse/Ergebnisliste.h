// What the result tables say about one point or one line, in the grid of a window or of the side bar.
#pragma once

#include <QString>
#include <functional>
#include <optional>

#include "model/FigListe.h"
#include "ui/Programm.h"

namespace zrw {

class Ergebnisgitter;

class Ergebnisliste {
  public:
    /// Both must outlive it. @param meldeTabellen the tables were read and may have something to say
    Ergebnisliste(const Programm& programm, Ergebnisgitter& gitter, std::function<void()> meldeTabellen);
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
    void ListeNummern(const QString& erster, const std::optional<QString>& zweiter, const QString& leergrund);

    const Programm& programm_;
    Ergebnisgitter& gitter_;
    std::function<void()> meldeTabellen_;
    QString leergrund_;  ///< told below the empty grid
    QString erster_;     ///< number of what is listed, of a line its first point
    std::optional<QString> zweiter_;
};

}  // namespace zrw
