// A tool mode: what the mouse does to the picture while its button is down. One small class per mode, plain
// positions instead of Qt's events, registered in one row of Werkzeugtafel.h.
#pragma once

#include <QString>
#include <Qt>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string_view>

#include "model/FigListe.h"
#include "model/Netzangaben.h"
#include "model/Zeichner.h"
#include "output/Zeichenflaeche.h"

namespace zrw {

/// A hand trembles when it clicks: shorter ways are clicks [px].
inline constexpr std::int64_t kZittern = 3;

class Netzaenderung;
class TFormBeobTyp;

/// Draws over the picture without changing it; an empty one draws nothing.
using Vorschau = std::function<void(Zeichner&, Zeichenflaeche&)>;

/// Windows that some modes work with, shown while their button is down.
enum class Nebenfenster : std::uint8_t { Zentrierung, Punktart, Ergebnisse };

/// Keys that a tool may have a use for: backspace, and those that copy.
enum class Werkzeugtaste : std::uint8_t { Zuruecknehmen, Kopieren };

/// What a tool may do to the window.
class Werkzeugumgebung {
  public:
    virtual ~Werkzeugumgebung() = default;
    /// The current network, or null before one is opened.
    [[nodiscard]] virtual Liste* AktuelleListe() = 0;
    [[nodiscard]] virtual const Einstellungen& Anzeige() const = 0;
    /// What is known about the network as a whole.
    [[nodiscard]] virtual const Netzangaben& Angaben() const = 0;
    /// Shift is down.
    [[nodiscard]] virtual bool Umschalttaste() const = 0;
    /// Something that lies over the picture has changed.
    virtual void UeberlagerungGeaendert() = 0;
    /// Draws the whole picture anew.
    virtual void ZeichneNeu() = 0;
    /// Leaves figures that the tool has in hand out of the picture, and draws those left out before again.
    virtual void LasseAus(Figurenmenge figuren) = 0;
    virtual void LasseLegendeAus(bool aus) = 0;
    virtual void LasseErklaerungAus(bool aus) = 0;
    /// Where the key stands in the picture [px].
    [[nodiscard]] virtual Bildbereich Erklaerungsrahmen() const = 0;
    virtual void ZeigeVorschau(Vorschau vorschau) = 0;
    virtual void ZeigeStatus(const QString& text) = 0;
    /// A finished action that is no change of the network, in a sentence that names its object.
    virtual void MeldeErledigt(const QString& satz) = 0;
    /// Does the change, remembers it for undoing, redraws, and says what was done.
    virtual void TueAenderung(std::unique_ptr<Netzaenderung> aenderung) = 0;

    // Panning with the mouse: while it moves, the network lies `versatz` [px] from where it was at the
    // beginning.
    virtual void BeginneZug() = 0;
    virtual void ZieheBild(Bildpunkt versatz) = 0;
    virtual void BeendeZug() = 0;
    /// Fills the picture with a rectangle of it, given by two corners.
    virtual void ZoomeAuf(Bildpunkt a, Bildpunkt b) = 0;
    /// One step in about a position.
    virtual void ZoomeUm(Bildpunkt ort) = 0;
    /// The view before the last zoom.
    virtual void AnsichtZurueck() = 0;

    /// Puts the eccentre onto the centre, for good.
    virtual void ZentrierePunkt(PunktKnoten& exzentrum, PunktKnoten& zentrum) = 0;
    virtual void VerbergePunkt(PunktKnoten& punkt) = 0;
    /// Fills the dialog of the point kinds.
    virtual void WaehlePunkt(PunktKnoten& punkt) = 0;
    /// The point that it shows, null without one.
    [[nodiscard]] virtual const PunktKnoten* GewaehlterPunkt() const = 0;
    /// How much of the picture a label takes [px].
    [[nodiscard]] virtual Bildbereich Textrahmen(const PunktString& text) const = 0;
    /// Width and height of a text in the picture [px].
    [[nodiscard]] virtual Bildpunkt Textgroesse(std::string_view text) const = 0;
    /// Lists the results of a point or a line; one of them is null.
    virtual void ZeigeErgebnis(const PunktKnoten* punkt, const PunktKante* kante) = 0;
    [[nodiscard]] virtual TFormBeobTyp& Beobachtungsdialog() = 0;
    /// Shows nothing without a network.
    virtual void ZeigeNebenfenster(Nebenfenster welches, bool sichtbar) = 0;
};

class Werkzeug {
  public:
    virtual ~Werkzeug() = default;
    /// Its button goes down or up.
    virtual void BeginneWerkzeug() {}
    virtual void BeendeWerkzeug() { Abbrechen(); }
    virtual void Druecken(Bildpunkt ort) = 0;
    virtual void Ziehen(Bildpunkt ort) = 0;
    virtual void Loslassen(Bildpunkt ort) = 0;
    /// Where a drag of what belongs to this point begins; nothing where a click does all there is to do. For
    /// those who have no mouse.
    [[nodiscard]] virtual std::optional<Bildpunkt> Griff(const PunktKnoten& /*punkt*/) const {
        return std::nullopt;
    }
    /// One press does all there is to do; the second of a double click is not meant.
    [[nodiscard]] virtual bool EinKlickGenuegt() const { return false; }
    /// Legend and key can be caught while its mode is on.
    [[nodiscard]] virtual bool LaesstLegendeZu() const { return false; }
    /// The mouse moves with no button down, or has left the picture for a position far outside.
    virtual void Schweben(Bildpunkt /*ort*/) {}
    /// The right button without a drag under way.
    virtual void RechteTaste() { Abbrechen(); }
    /// @return false: it has no use for any key, others may have it
    [[nodiscard]] virtual bool BrauchtTasten() const { return false; }
    virtual void DrueckeTaste(Werkzeugtaste /*taste*/) {}
    /// Ends what is under way and leaves everything as before the press. Also when the network is about to be
    /// replaced: afterwards the tool holds nothing of it.
    virtual void Abbrechen() = 0;
    /// Figures may have left the network: drops those that did.
    virtual void NetzGeaendert() {}
    [[nodiscard]] virtual Qt::CursorShape Zeiger() const = 0;
    /// What to do with it, for the status line.
    [[nodiscard]] virtual QString Anleitung() const = 0;
};

}  // namespace zrw
