// The result tables of the adjustment beside the control file: found without regard to case, imported into a
// database in memory when they are first asked and whenever they have changed, and only ever read.
#pragma once

#include <array>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "input/tabellen/Datenbank.h"
#include "input/tabellen/Ergebnistabellen.h"
#include "input/tabellen/Punktergebnisse.h"
#include "model/Dateien.h"
#include "model/Streutafel.h"
#include "model/Werte.h"

namespace zrw {

class TDM final : public Punktergebnisse {
  public:
    /// @param dateien must outlive the module
    explicit TDM(const Dateien& dateien) : dateien_(dateien) {}

    /// Where the tables lie.
    void SetzeOrdner(std::filesystem::path ordner);
    [[nodiscard]] const std::filesystem::path& Ordner() const { return ordner_; }
    /// Whether a file of this name lies there.
    [[nodiscard]] bool Vorhanden(std::string_view datei) const;

    /// Rows of a query over one table, its fields first and in their order, further ones of the file behind
    /// them; missing fields are null.
    /// Where the table has become unreadable, what was read before answers, and `NimmMeldung` tells it.
    /// @throws Fehler where the table is missing, was never readable or lacks a field of the query
    [[nodiscard]] Antwort Frage(Tabelle tabelle, std::string_view abfrage);

    /// Failures are kept for `NimmMeldung`, once for each state of the file; the old results then stay.
    void Erneuere() override;
    [[nodiscard]] const Punktergebnis* Zu(std::string_view nummer) const override;
    /// What went wrong with a table that had been read before, or looked wrong in one, since the last call;
    /// else empty.
    [[nodiscard]] std::string NimmMeldung();

  private:
    /// What has been imported of one table.
    struct Stand {
        std::filesystem::path datei;
        Dateistand stand;
        std::vector<std::string> spalten;
        std::optional<Dateistand> gescheitert;  ///< later state that could not be read
    };
    /// Results and the way to them: a picture asks once for every point.
    struct Punkttafel {
        std::vector<Punktergebnis> werte;
        Streutafel<PunktNummernTyp, const Punktergebnis*> zu;

        Punkttafel() = default;
        // A copy would point into the results of the other.
        Punkttafel(Punkttafel&&) = default;
        Punkttafel& operator=(Punkttafel&&) = default;
        Punkttafel(const Punkttafel&) = delete;
        Punkttafel& operator=(const Punkttafel&) = delete;
        ~Punkttafel() = default;
    };

    [[nodiscard]] std::optional<std::filesystem::path> Datei(Tabelle tabelle) const;
    /// Brings the database to the state of the file. @return whether there is one
    bool Aktualisiere(Tabelle tabelle);
    void Importiere(Tabelle tabelle, const std::filesystem::path& datei, const Dateistand& stand);
    [[nodiscard]] Punkttafel LiesPunkte() const;

    const Dateien& dateien_;
    std::filesystem::path ordner_;
    Datenbank datenbank_;
    std::array<std::optional<Stand>, kErgebnistabellen.size()> staende_;
    Punkttafel punkte_;
    std::optional<Dateistand> punktestand_;  ///< of the coordinates that `punkte_` came from
    std::optional<Dateistand> gemeldet_;     ///< state that failed and has been told
    std::string meldung_;
};

/// Makes one table with its index; what was there under its name is replaced. @param zeilen one value per
/// field each @param zeit [s since 1970]
/// @throws Fehler where the files cannot be written
void ErzeugeTabelle(Dateien& dateien, const std::filesystem::path& ordner, Tabelle tabelle,
                    std::span<const std::vector<paradox::Wert>> zeilen, std::time_t zeit);

/// Makes all ten tables empty, in their order. Nothing in the program as delivered does: the adjustment makes
/// them.
void ErzeugeTabellen(Dateien& dateien, const std::filesystem::path& ordner, std::time_t zeit);

}  // namespace zrw
