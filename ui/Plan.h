// The document: network, view and switches, what its control file says about it, the stack of changes, the
// file that it came from, and whether something of it is unsaved. Every change takes one path: before, do,
// after.
#pragma once

#include <QString>
#include <QUndoStack>
#include <filesystem>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include "input/import/Namensliste.h"
#include "model/Dateien.h"
#include "model/FigListe.h"
#include "model/ergebnisse/Einfaerbung.h"
#include "ui/aenderungen/Aenderungen.h"

namespace zrw {

class Plan {
  public:
    /// Hears of every change of the network: done, taken back or done again.
    class Beobachter {
      public:
        virtual ~Beobachter() = default;
        /// These figures are about to change. They are as they were.
        virtual void VorAenderung(const Figurenmenge& figuren) = 0;
        /// They have changed; others may have come.
        virtual void NachAenderung(const Figurenmenge& figuren) = 0;
        /// `Ungesichert` may say something else now.
        virtual void StandGeaendert() = 0;
        /// A change is complete. @param satz what was done, or undone, to which figure
        virtual void SchrittGetan(const QString& satz) = 0;
    };

    /// @param angaben what is said about the network as a whole outlives it; all must outlive the plan
    Plan(Netzangaben& angaben, Dateien& dateien, Beobachter& beobachter);
    ~Plan();
    Plan(const Plan&) = delete;
    Plan& operator=(const Plan&) = delete;

    /// Network, view and switches; null before a file is opened.
    [[nodiscard]] Liste* Daten() { return liste_.get(); }
    [[nodiscard]] const Liste* Daten() const { return liste_.get(); }
    [[nodiscard]] bool Offen() const { return liste_ != nullptr; }
    /// The file that was opened last.
    [[nodiscard]] const std::filesystem::path& Datei() const { return datei_; }
    /// What somebody finds who reads the file in which the plan is kept.
    struct Ablagestand {
        std::filesystem::path datei;  ///< the opened one until changes are saved in another
        Ansicht ansicht;
        std::optional<Legende> legende;
    };
    [[nodiscard]] const Ablagestand& Abgelegt() const { return abgelegt_; }
    [[nodiscard]] bool Ungesichert() const { return ungesichert_ || !schritte_.isClean(); }
    /// For buttons that follow it.
    [[nodiscard]] const QUndoStack& Schritte() const { return schritte_; }

    /// Takes over what was read; nothing of the plan before is left.
    void UebernimmListe(std::unique_ptr<Liste> liste, const Netzangaben& angaben,
                        const std::filesystem::path& datei);
    /// The names that shortened point numbers stand for.
    [[nodiscard]] const Namensliste& Namen() const { return namen_; }
    void SetzeNamen(Namensliste namen) { namen_ = std::move(namen); }
    /// There is something to save that no step tells of.
    void MerkeUngesichert();
    /// Saves it as picture file. @return how many labels were left out @throws Fehler: nothing is saved
    std::size_t SpeicherePlan(const std::filesystem::path& datei);

    /// How lines and points are coloured for the moment, and which lines are drawn: no part of what is saved.
    [[nodiscard]] const Planfaerbung& Faerbung() const { return faerbung_; }
    void SetzeFaerbung(Planfaerbung faerbung) { faerbung_ = std::move(faerbung); }

    /// Does the change and remembers it for undoing.
    void TueAenderung(std::unique_ptr<Netzaenderung> aenderung);
    // @return false: there is nothing to undo or to do again
    bool Rueckgaengig();
    bool WiederholeSchritt();
    /// Puts points onto another one, for good: that is no step, and steps about these points become void.
    void ZentrierePunkte(const std::vector<PPunktKnoten>& exzentren, const PunktKnoten& zentrum);

  private:
    template <class Tat>
    void FuehreAenderungAus(const Netzaenderung& aenderung, const QString& vorsatz, Tat tat);
    [[nodiscard]] const Netzaenderung& Schritt(int i) const;

    Netzangaben& angaben_;
    Dateien& dateien_;
    Beobachter& beobachter_;
    std::unique_ptr<Liste> liste_;
    QUndoStack schritte_;
    Planfaerbung faerbung_;
    Namensliste namen_;
    bool ungesichert_ = false;  ///< changes that cannot be undone
    std::filesystem::path datei_;
    Ablagestand abgelegt_;
};

}  // namespace zrw
