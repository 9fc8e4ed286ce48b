// Printing the plot at the scale of its field: sheets, preview and the output area in the picture. Not in
// here: the printer (Drucker.h) and drawing at scale (output/Druck.h).
#pragma once

#include <QString>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "model/FigListe.h"
#include "output/Blattschnitt.h"
#include "output/Druck.h"
#include "output/Figurenzeichner.h"
#include "output/blatt/Blattdruck.h"
#include "ui/Programm.h"
#include "ui/bild/Bildflaeche.h"
#include "ui/druck/Druckrahmen.h"
#include "ui/fenster/Massstabfeld.h"

class QCheckBox;

namespace zrw {

class Plandruck {
  public:
    /// What the user sets it with, and the picture that shows the output area.
    struct Felder {
        Massstabfeld* massstab = nullptr;
        const QCheckBox* rahmen = nullptr;
        QWidget* bild = nullptr;
    };
    /// All must outlive it.
    Plandruck(const Programm& programm, const Bildflaeche& flaeche);
    /// Before anything else but `Rahmen`.
    void SetzeFelder(const Felder& felder) { felder_ = felder; }

    [[nodiscard]] Druckrahmen& Rahmen() { return rahmen_; }
    /// The output area follows the scale, the paper and its box; switching it off puts it back into the
    /// corner.
    void AktualisiereRahmen();
    void ZeichneRahmen(const Liste& liste, Zeichenflaeche& flaeche) const;

    /// The scale denominator of the field; tells where it is none.
    [[nodiscard]] std::optional<double> Massstab();
    /// The same as the legend names it, code page 1252.
    [[nodiscard]] std::string Massstabtext() const;

    /// The sheets to be printed, by the user's choice where there is one. @return none: nothing is to be
    /// printed
    [[nodiscard]] std::optional<std::vector<Blatt>> WaehleBlaetter(Liste& liste, double massstab);
    /// All that the plan takes as it stands. Asks nobody.
    [[nodiscard]] std::vector<Blatt> Planblaetter(Liste& liste, double massstab);
    /// What of a sheet the plan gets.
    [[nodiscard]] Blattteilung Teilung() const;
    /// @param datei that the plan is from @throws Fehler where the printer does not take it or breaks it off
    void DruckeBlaetter(Liste& liste, std::vector<Blatt> blaetter, double massstab,
                        const std::filesystem::path& datei);
    /// @return whether the sheets are to be printed
    [[nodiscard]] bool ZeigeVorschau(QWidget* eltern, Liste& liste, double massstab,
                                     const std::filesystem::path& datei);

    /// What was chosen in the preview counts no longer.
    void VergissAuswahl() { gewaehlt_.reset(); }

    /// The dialog about frame, grid and pens of the sheets. @return whether it was confirmed
    bool BearbeiteBlaetter(QWidget* eltern);
    [[nodiscard]] const Blattgestaltung& Gestaltung() const { return gestaltung_; }
    /// Asks for a number of sheets and puts the largest round scale at which the plan fits them into its
    /// field; tells where there is none. @return whether it stands there
    bool PasseMassstabEin(QWidget* eltern, Liste& liste);

  private:
    [[nodiscard]] Zeichenmittel Mittel() const {
        return {programm_.zustand, programm_.einstellungen, programm_.netz, programm_.uhr};
    }
    struct Wahl {
        std::vector<Blatt> blaetter;
        bool inDerEcke = false;  ///< the one sheet of the output area
        bool eckeLeer = false;   ///< nothing would be on that one
    };
    [[nodiscard]] Wahl Blaetter(Liste& liste, double massstab);
    [[nodiscard]] Druckwerk Werk(Liste& liste, std::vector<Blatt> blaetter, double massstab,
                                 const std::filesystem::path& datei);
    /// Does something with the plan as it is measured for the printer.
    template <class Tun>
    auto Miss(Liste& liste, const Tun& tun) const;
    [[nodiscard]] std::optional<Bildpunkt> Legendenort(const Liste& liste, const Druckauftrag& auftrag) const;
    /// The sheets from a place in the world on. @throws Fehler where they are too many
    [[nodiscard]] std::vector<Blatt> SchneideAb(Liste& liste, double massstab, Welt ursprung) const;
    friend class Planvorschau;

    /// Sheets that were chosen in the preview, and what for.
    struct Auswahl {
        std::vector<Blatt> blaetter;
        double massstab = 0;
        Druckseite seite;
        [[nodiscard]] bool Passt(const Druckseite& s) const {
            return s.weite == seite.weite && s.hoehe == seite.hoehe && s.aufloesung == seite.aufloesung;
        }
    };

    const Programm& programm_;
    const Bildflaeche& flaeche_;
    Felder felder_;
    Druckrahmen rahmen_;
    Blattgestaltung gestaltung_;
    std::optional<Auswahl> gewaehlt_;  ///< until the print from the preview is done
    int blaetter_ = 1;                 ///< last wish for a fitting scale
};

}  // namespace zrw
