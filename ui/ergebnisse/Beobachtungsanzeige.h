// The list of observations and the picture, each following the other: the page of the side bar and its
// window, the way from one gross error to the next, and what is said about them when a network is opened.
#pragma once

#include <QString>
#include <functional>

#include "ui/ergebnisse/Beobachtungsseite.h"
#include "ui/ergebnisse/Beobachtungszeiger.h"
#include "ui/ergebnisse/Fehlergang.h"

class QDialog;
class QPainter;

namespace zrw {

class Fehlerhinweis;

class Beobachtungsanzeige {
  public:
    /// What it needs of its window. All must outlive it.
    struct Umfeld {
        const Programm& programm;
        Plan& plan;
        Planbild& planbild;
        Auswahl& auswahl;
        Ergebnisstand& stand;
        ImageZarwik& bild;
        std::function<void()> loeseWerkzeuge;
        /// Something was done that does not change the network.
        std::function<void(const QString&)> melde;
    };
    /// @param eltern owns page, window and bar
    Beobachtungsanzeige(Umfeld umfeld, QWidget* eltern);
    ~Beobachtungsanzeige();
    Beobachtungsanzeige(const Beobachtungsanzeige&) = delete;
    Beobachtungsanzeige& operator=(const Beobachtungsanzeige&) = delete;

    /// For the side bar.
    [[nodiscard]] Beobachtungsseite& Seite() { return *seite_; }
    /// The list in a window of its own.
    void ZeigeFenster();
    /// Brings an observation into the picture and selects it there. @param vorsatz said before what it is
    void ZeigeBeobachtung(const Beobachtung& b, const QString& vorsatz);
    /// Shows the next observation that is flagged as a gross error, or the one before.
    void GeheZuFehler(bool vor);
    /// Something else is selected in the picture.
    void AuswahlGewechselt();
    /// A network was opened. @param steuerdatei from a control file, whose errors are told
    /// @param lesung what else is said about it
    /// @return what the status line is to say about them, empty: nothing
    [[nodiscard]] QString NetzGeoeffnet(bool steuerdatei, const QString& lesung);

  private:
    [[nodiscard]] Beobachtungsseite* NeueSeite(QWidget* eltern);
    [[nodiscard]] bool Gegenrichtung(const Beobachtung& b) const;
    void FolgeAuswahl(Beobachtungsseite& seite) const;

    Umfeld u_;
    Beobachtungszeiger zeiger_;
    Fehlergang gang_;
    QWidget* eltern_;
    Beobachtungsseite* seite_;
    Fehlerhinweis* hinweis_;
    QDialog* fenster_ = nullptr;  ///< made when it is first asked for
    Beobachtungsseite* fensterseite_ = nullptr;
    bool zeigt_ = false;  ///< the selection changes because a row is shown
};

}  // namespace zrw
