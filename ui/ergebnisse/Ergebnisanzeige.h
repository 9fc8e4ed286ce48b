// Results of the adjustment: finds the tables of a network, lists what they say about a point or a line in
// the window "TFormData", and marks gross errors. Not in here: the tables (input/tabellen).
#pragma once

#include <filesystem>
#include <vector>

#include "model/FigListe.h"
#include "ui/Programm.h"
#include "ui/ablage/Vorlieben.h"
#include "ui/ergebnisse/Ergebnisliste.h"
#include "ui/ergebnisse/Ergebnisstand.h"

class QWidget;

namespace zrw {

class TFormData;

class Ergebnisanzeige {
  public:
    /// @param programm must outlive it, and so must the preferences
    /// @param eltern owns the window of the results
    Ergebnisanzeige(const Programm& programm, const Vorlieben& vorlieben, QWidget* eltern);
    ~Ergebnisanzeige() = default;
    Ergebnisanzeige(const Ergebnisanzeige&) = delete;
    Ergebnisanzeige& operator=(const Ergebnisanzeige&) = delete;

    [[nodiscard]] TFormData& Fenster() { return *fenster_; }
    /// The observations beside the network.
    [[nodiscard]] Ergebnisstand& Stand() { return stand_; }
    /// The network is about to be replaced.
    void VergissNetz();
    /// Results lie beside the file that was opened or saved last. @return whether that is another folder now
    bool WaehleOrdner(const std::filesystem::path& datei);
    /// Whether any table lies beside the network.
    [[nodiscard]] bool Vorhanden() const;

    void ListeAuf(const Liste& netz, const PunktKnoten& punkt);
    void ListeAuf(const Liste& netz, const PunktKante& kante);
    /// Marks in the network what the tables say about errors.
    void MarkiereFehler(Liste& netz);
    /// What the tables flag a line of the network for: "Strecken, Linienprüfungen"; empty where it is not
    /// marked, or nobody knows.
    [[nodiscard]] QString Markiergrund(const Liste& netz, const PunktKante& kante) const;
    /// What reading the tables had to say.
    void MeldeTabellen();

  private:
    void MeldeTabellenfehler(const std::vector<Tabellenmeldung>& meldungen);

    [[nodiscard]] QString Angaben(const Liste& netz, const PunktKnoten& punkt) const;
    [[nodiscard]] QString Angaben(const Liste& netz, const PunktKante& kante) const;

    const Programm& programm_;
    Ergebnisstand stand_;
    TFormData* fenster_;
    Ergebnisliste liste_;
};

}  // namespace zrw
