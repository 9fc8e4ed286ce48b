// Outputs of the open plan, the same as the batch mode makes of its file. Neither the plan nor the window's
// view and switches change.
#pragma once

#include <QSize>
#include <QString>
#include <QStringList>
#include <filesystem>

#include "ui/Plan.h"
#include "ui/Programm.h"
#include "ui/ausgabe/Ausgabelauf.h"
#include "ui/ausgabe/Ausgabevorschau.h"

namespace zrw {

struct Schalter;

class Planausgabe {
  public:
    /// Program and plan outlive it; a network is open all the time.
    /// @param beweglich numbers that may go elsewhere
    Planausgabe(const Programm& programm, Plan& plan, Planbeschriftung::Beweglich beweglich);

    /// Size of a picture that nobody asked another for.
    [[nodiscard]] Bildgroesse UeblicheGroesse() const;
    /// How it colours lines and points, and which lines it draws.
    [[nodiscard]] const Planfaerbung& Faerbung() const { return plan_.Faerbung(); }
    /// Whether the window shows what this switch is about.
    [[nodiscard]] bool IstAn(const Schalter& schalter) const;
    /// Magnification of the window's error ellipses; 0: that of residuals.
    [[nodiscard]] double Ellipsenmassstab() const { return plan_.Daten()->Ellipsenmassstab; }
    [[nodiscard]] const Netzangaben& Angaben() const { return programm_.netz; }

    /// Very many numbers stay as they are in it, whatever the order says.
    [[nodiscard]] Ausgabevorschau ZeichneVorschau(const Format& format, const Ausgabeauftrag& auftrag,
                                                  QSize platz);
    struct Ergebnis {
        bool ganz = false;         ///< everything was written and read
        bool abgebrochen = false;  ///< nothing was written
        QStringList meldungen;     ///< as the batch mode tells them
    };
    /// @param fenster shows how far it is
    [[nodiscard]] Ergebnis SchreibeDatei(const Format& format, const Ausgabeauftrag& auftrag,
                                         const std::filesystem::path& ziel, QWidget* fenster);

    /// Name of the file that the batch mode would write.
    [[nodiscard]] std::filesystem::path Zielname(const Format& format) const;
    /// The command that writes it.
    [[nodiscard]] QString Befehl(const Format& format, const Ausgabeauftrag& auftrag,
                                 const std::filesystem::path& ordner) const;
    /// Where that reads something other than what is open, or writes under another name; empty: nowhere.
    [[nodiscard]] QStringList Abweichungen(const Format& format, const Ausgabeauftrag& auftrag,
                                           const std::filesystem::path& name) const;

  private:
    class Kopie;

    [[nodiscard]] std::size_t Nummernzahl() const;
    [[nodiscard]] bool BefehlLaesstNummernStehen() const;
    [[nodiscard]] bool AusBild() const;
    [[nodiscard]] std::filesystem::path Tabellenordner() const;
    [[nodiscard]] QString Lesestand() const;

    const Programm& programm_;
    Plan& plan_;  ///< stays as it is
    Planbeschriftung::Beweglich beweglich_;
    TDM daten_;  ///< of its own, so that the window's keep their messages
};

}  // namespace zrw
