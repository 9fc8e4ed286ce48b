// The picture of the plan in the window: drawn anew, or only where the view or the network has changed,
// without what a tool has in hand. All ways in which the user moves the view end here.
#pragma once

#include <QString>
#include <QTimer>
#include <optional>
#include <string_view>

#include "model/Bildvorlage.h"
#include "output/Figurenzeichner.h"
#include "ui/Plan.h"
#include "ui/Programm.h"
#include "ui/bild/Ansichtssteuerung.h"
#include "ui/bild/Bildflaeche.h"
#include "ui/bild/Bildpflege.h"
#include "ui/bild/ImageZarwik.h"
#include "ui/werkzeuge/Werkzeug.h"

namespace zrw {

class Planbild {
  public:
    class Beobachter {
      public:
        virtual ~Beobachter() = default;
        /// The view is about to become another: positions in the picture will mean something else.
        virtual void VorAnsichtswechsel() = 0;
        /// It has.
        virtual void NachAnsichtswechsel() = 0;
        /// The network was drawn.
        virtual void BildGezeichnet() = 0;
        virtual void MeldeStatus(const QString& text) = 0;
    };

    /// All must outlive it.
    Planbild(const Programm& programm, Plan& plan, Beobachter& beobachter);
    ~Planbild();
    Planbild(const Planbild&) = delete;
    Planbild& operator=(const Planbild&) = delete;
    /// What shows it; before anything else but `Flaeche`.
    void SetzeAnzeige(ImageZarwik& bild) { bild_ = &bild; }

    [[nodiscard]] Bildflaeche& Flaeche() { return flaeche_; }
    [[nodiscard]] const Bildflaeche& Flaeche() const { return flaeche_; }
    /// Width and height of a text in the picture [px].
    [[nodiscard]] Bildpunkt Textgroesse(std::string_view text) const { return flaeche_.Textgroesse(text); }
    /// How much of the picture a label takes [px].
    [[nodiscard]] Bildbereich Textrahmen(const PunktString& text) const;

    // --- Drawing. Nothing happens before a file is opened.
    /// Smooth edges: at once where that is quick, else as soon as nothing moves any more.
    void SetzeGlatt(bool glatt);
    void ZeichneNeu();
    /// Before a change of figures, and after it.
    void VorAenderung(const Figurenmenge& figuren) { pflege_.Vorher(Vorlage(), figuren); }
    void NachAenderung(const Figurenmenge& figuren);
    /// Leaves figures out of the picture, and draws those left out before again.
    void LasseAus(Figurenmenge figuren);
    void LasseLegendeAus(bool aus);
    void LasseErklaerungAus(bool aus);
    /// Where the key was drawn [px].
    [[nodiscard]] Bildbereich Erklaerungsrahmen() const;
    void ZeigeVorschau(Vorschau vorschau);
    /// Circles round a point, until the next drawing. Brings it into the middle where it lies outside.
    /// @return false: not even there
    bool MarkierePunkt(const PunktKnoten& punkt);
    /// How many of the points that are shown lie outside the picture, and how many there are.
    struct Punktzahl {
        std::size_t draussen = 0;
        std::size_t gezeigt = 0;
    };
    [[nodiscard]] Punktzahl ZaehlePunkte() const;
    /// Legend and scale bar over a picture that is dragged without them.
    void ZeichneStehendes(Zeichenflaeche& flaeche);

    // --- The view
    void BeginneNetz();
    /// @param dichte pixels of the screen for each of them
    void SetzeGroesse(int weite, int hoehe, double dichte);
    /// Fits the whole kilometres round the network.
    void PasseEin();
    /// Fits exactly what is shown: networks that the whole-kilometre fit leaves tiny or cut off.
    void PasseGezeigtesEin();
    /// The same for a network that is being opened: draws nothing and keeps no view to go back to.
    void SetzeEingepasst();
    /// Brings a place into the middle, with a way back.
    void SetzeMitte(Welt ort);
    /// Both places in the picture with room round them, with a way back; one alone in the middle.
    void ZoomeAufOrte(Welt a, Welt b);
    /// Fills the picture with a rectangle of it, given by two corners.
    void ZoomeAuf(Bildpunkt a, Bildpunkt b);
    /// One step in about a position, with a way back.
    void ZoomeUm(Bildpunkt ort);
    /// One step about the middle.
    void ZoomeUmMitte(bool groesser);
    /// To the view before this one, or after it. @return false: there is none
    bool GeheZurueck();
    bool GeheVor();
    /// Steps of the wheel about a position; drawn when the events that wait have been heard.
    void RolleUm(Bildpunkt ort, int schritte);
    /// Draws what the wheel has left to be drawn.
    void ZeichneNachRad();
    void VerschiebeBild(Bildpunkt versatz);
    /// Into the middle where it lies outside; many of these in a row are one step back.
    void HoleInsBild(Welt ort);
    // Panning with the mouse.
    void BeginneZug();
    void ZieheBild(Bildpunkt versatz);
    void BeendeZug();

  private:
    [[nodiscard]] Bildvorlage Vorlage();
    void ZeigeBild();
    void GlaetteWeiter();
    void GlaetteAlles();
    [[nodiscard]] Rechteck Sicht() const;
    bool FolgeZug();
    void ZieheBildNach(Bildpunkt versatz);
    void ZoomeAuf(const Bildlage& lage);
    bool SetzeLage(const Bildlage& lage);
    bool ZoomeSchritt(double x, double y, bool groesser);
    [[nodiscard]] Zeichenzustand ZustandFuer(Zeichenflaeche& flaeche) const;

    const Programm& programm_;
    Plan& plan_;
    Beobachter& beobachter_;
    Bildflaeche flaeche_{1, 1};
    // What the plan is drawn with in the pixels of the screen, brought up to date before each drawing.
    Zeichenzustand bildzustand_;
    Einstellungen groessen_;
    Ansicht bildansicht_;
    std::optional<Legende> bildlegende_;
    Figurenzeichner zeichner_;
    Bildpflege pflege_;
    Ansichtssteuerung steuerung_;
    Figurenmenge ausgelassene_;   ///< what a tool has in hand
    Auslassung ohne_;             ///< the same for drawing
    Bildlage zuglage_;            ///< the view before the picture was dragged
    bool stehendesLose_ = false;  ///< legend and scale bar lie over the picture that is being dragged
    ImageZarwik* bild_ = nullptr;
    QTimer ruhe_;  ///< nothing has moved for a while
};

}  // namespace zrw
