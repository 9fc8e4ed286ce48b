// The result tables of the adjustment beside the control file: found without regard to case, imported into a
// database in memory when they are first asked and whenever they have changed, and only ever read.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "input/tabellen/Datenbank.h"
#include "input/tabellen/Ergebnistabellen.h"
#include "model/Dateien.h"
#include "model/Punktergebnisse.h"
#include "model/Streutafel.h"
#include "model/Werte.h"

namespace zrw {

/// Something to tell the user about a table.
struct Tabellenmeldung {
    std::string text;
    bool unlesbar = false;  ///< the table is there and was asked for, but could not be read
};

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
    /// Where the table has become unreadable, what was read before answers, and `NimmMeldungen` tells it.
    /// @throws Fehler where the table is missing, was never readable or lacks a field of the query
    [[nodiscard]] Antwort FrageTabelle(Tabelle tabelle, std::string_view abfrage);

    /// How many rows a query over one table gives, and how many of them have a flag set; of a table without
    /// that field, none. @param flag name of the field, may be empty @throws Fehler as `FrageTabelle`
    struct Zeilenzahl {
        std::int64_t zeilen = 0;
        std::int64_t markiert = 0;
    };
    [[nodiscard]] Zeilenzahl ZaehleZeilen(Tabelle tabelle, std::string_view abfrage, std::string_view flag);

    /// Whether a query over a table takes no longer than it should beside another: its file has been read, or
    /// is small.
    [[nodiscard]] bool RaschGefragt(Tabelle tabelle) const;

    /// What is wrong with the fields that a purpose needs: those that are missing and those that hold
    /// something other than their description says. Empty: nothing. @throws Fehler as `FrageTabelle`
    struct Mangel {
        std::vector<std::string_view> fehlende;
        std::string text;
    };
    [[nodiscard]] Mangel PruefeFelder(Tabelle tabelle, std::span<const std::string_view> felder);

    /// Calls `tun` with these fields of each row, in the order of the file; those that the table has not are
    /// null. Only the table as it now is answers, not what was read before.
    /// @return which of the fields it has; nothing where there is no table
    /// @throws Fehler where it cannot be read
    std::optional<std::vector<bool>> LiesZeilen(Tabelle tabelle, std::span<const std::string_view> felder,
                                                const std::function<void(std::span<const Zelle>)>& tun);
    /// Of its file; nothing where there is none.
    [[nodiscard]] std::optional<Dateistand> StandVon(Tabelle tabelle) const;

    /// Failures are kept for `NimmMeldungen`, once for each state of the file; the old results then stay.
    void ErneuereErgebnisse() override;
    [[nodiscard]] const Punktergebnis* ErgebnisZu(std::string_view nummer) const override;
    void ErneuereVergleich() override;
    [[nodiscard]] const Vergleichslage* VergleichZu(std::string_view nummer) const override;
    void ErneuereRelative() override;
    [[nodiscard]] bool HatRelative() const override { return !relative_.werte.empty(); }
    [[nodiscard]] const Relativellipse* RelativeZu(std::string_view a, std::string_view b) const override;
    /// What there is to tell since the last call: tables that became unreadable, looked wrong or lack what
    /// drawing needs.
    [[nodiscard]] std::vector<Tabellenmeldung> NimmMeldungen();

  private:
    /// What has been imported of one table.
    struct Stand {
        std::filesystem::path datei;
        Dateistand stand;
        std::vector<paradox::Feld> felder;
        std::optional<Dateistand> gescheitert;  ///< later state that could not be read
        std::string grund;                      ///< why that, or the last try, failed

        /// There is nothing newer to be read.
        [[nodiscard]] bool Gilt(const std::filesystem::path& name, const Dateistand& jetzt) const {
            return datei == name && (stand == jetzt || gescheitert == jetzt);
        }
    };
    /// Results and the way to them: a picture asks once for every point.
    template <class Schluessel, class Wert>
    struct Tafel {
        std::vector<Wert> werte;
        Streutafel<Schluessel, const Wert*> zu;

        Tafel() = default;
        // A copy would point into the results of the other.
        Tafel(Tafel&&) noexcept = default;
        Tafel& operator=(Tafel&&) noexcept = default;
        Tafel(const Tafel&) = delete;
        Tafel& operator=(const Tafel&) = delete;
        ~Tafel() = default;
    };
    template <class Wert>
    using Punkttafel = Tafel<PunktNummernTyp, Wert>;
    /// Two point numbers in an order that does not depend on which is named first.
    struct Punktpaar {
        PunktNummernTyp a;
        PunktNummernTyp b;

        Punktpaar() = default;
        Punktpaar(const PunktNummernTyp& eine, const PunktNummernTyp& andere)
            : a(std::min(eine, andere, Vor)), b(std::max(eine, andere, Vor)) {}
        friend bool operator==(const Punktpaar&, const Punktpaar&) = default;
        [[nodiscard]] std::uint64_t Streuwert(std::uint64_t saat) const {
            return b.Streuwert(a.Streuwert(saat));
        }
        static bool Vor(const PunktNummernTyp& x, const PunktNummernTyp& y) { return x.Text() < y.Text(); }
    };

    [[nodiscard]] std::optional<std::filesystem::path> Datei(Tabelle tabelle) const;
    /// Brings the database to the state of the file. @return whether there is one
    bool AktualisiereTabelle(Tabelle tabelle);
    void ImportiereTabelle(Tabelle tabelle, const std::filesystem::path& datei, const Dateistand& stand);
    /// What has become of the file of such a table.
    struct Tafelstand {
        std::optional<Dateistand> gelesen;
        std::optional<Dateistand> gemeldet;  ///< state that failed and has been told
        bool vergeblich = false;             ///< that state would fail again
    };
    /// @param lies the table from the database
    template <class Ziel, class Lies>
    void ErneuereTafel(Tabelle tabelle, Tafelstand& stand, Ziel& tafel, Lies lies);
    /// @param nenne the key of a row, if it has one @param fuelle takes a row
    template <class Schluessel, class Wert, class Nenne, class Fuelle>
    [[nodiscard]] Tafel<Schluessel, Wert> LiesTafel(const std::string& abfrage, Nenne nenne,
                                                    Fuelle fuelle) const;
    [[nodiscard]] Punkttafel<Punktergebnis> LiesPunkte(const std::vector<std::string_view>& fehlende) const;
    [[nodiscard]] Tafel<Punktpaar, Relativellipse> LiesPaare(
        const std::vector<std::string_view>& fehlende) const;

    const Dateien& dateien_;
    std::filesystem::path ordner_;
    Datenbank datenbank_;
    std::array<std::optional<Stand>, kTabellen.size()> staende_;
    Punkttafel<Punktergebnis> punkte_;
    Tafelstand punktestand_;
    Punkttafel<Vergleichslage> vergleiche_;
    Tafelstand vergleichsstand_;
    Tafel<Punktpaar, Relativellipse> relative_;
    Tafelstand relativstand_;
    std::vector<Tabellenmeldung> meldungen_;
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
