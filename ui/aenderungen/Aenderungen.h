// Every change of the network that can be undone, one small class each. They change the network and draw
// nothing: the plan tells the window before and after. Nodes stay where they are in memory as long as their
// network lives, so a change keeps pointers to them; the stack is emptied with the network.
#pragma once

#include <QUndoCommand>
#include <functional>
#include <vector>

#include "model/FigListe.h"

namespace zrw {

/// Its text is a sentence about what was done, with the figure: "Punkt 1001 verschoben".
class Netzaenderung : public QUndoCommand {
  public:
    /// The figures that it is about, as far as they are in the list: asked before and after the change, so
    /// that the picture is drawn anew only where they were and are.
    [[nodiscard]] virtual Figurenmenge Betroffene() const = 0;
};

/// A point at another place in the world.
class PunktVersetzt final : public Netzaenderung {
  public:
    PunktVersetzt(Liste& liste, PunktKnoten& punkt, Welt nach);
    [[nodiscard]] Figurenmenge Betroffene() const override { return liste_.Umfeld(punkt_); }
    void redo() override { SetzeOrt(neu_); }
    void undo() override { SetzeOrt(alt_); }

  private:
    void SetzeOrt(Welt ort) { liste_.VersetzePunkt(punkt_, ort); }
    Liste& liste_;
    PunktKnoten& punkt_;
    Welt alt_, neu_;
};

/// A label at another offset from its point [px].
class NummerVersetzt final : public Netzaenderung {
  public:
    NummerVersetzt(Liste& liste, PunktString& text, Bildpunkt abstand);
    [[nodiscard]] Figurenmenge Betroffene() const override { return {{}, {}, {&text_}}; }
    void redo() override { SetzeAbstand(neu_); }
    void undo() override { SetzeAbstand(alt_); }

  private:
    void SetzeAbstand(Bildpunkt abstand) { liste_.VersetzeText(text_, abstand); }
    Liste& liste_;
    PunktString& text_;
    Bildpunkt alt_, neu_;
};

/// The visibility of figures: hidden and shown points and numbers.
class SichtbarkeitGeaendert final : public Netzaenderung {
  public:
    /// @param getan what is done with the figures: "versteckt", say
    explicit SichtbarkeitGeaendert(const QString& getan) : getan_(getan) {}
    /// Figures that are visible in that way already are left out.
    void NimmFigur(PunktKnoten& p, bool neu);
    void NimmFigur(PunktKante& k, bool neu);
    void NimmFigur(PunktString& t, bool neu);
    /// A point with its lines and its label, as hiding and showing points takes them.
    void NimmPunkt(Liste& liste, PunktKnoten& punkt, bool neu);
    [[nodiscard]] Figurenmenge Betroffene() const override { return figuren_; }
    [[nodiscard]] bool Leer() const { return schalter_.empty(); }
    /// All figures are taken: gives the change its text. Lines and labels go with their points.
    void NenneFiguren(const Netz& netz);
    /// Called after the change with true, after taking it back with false; may be empty.
    std::function<void(bool getan)> danach;
    void redo() override;
    void undo() override;

  private:
    [[nodiscard]] bool MerkeSchalter(bool& sichtbar, bool neu);
    QString getan_;
    std::vector<bool*> schalter_;
    std::vector<bool> neu_;
    Figurenmenge figuren_;
};

/// Other observations on a line.
class KanteGeaendert final : public Netzaenderung {
  public:
    /// @param drehen its ends change places, too
    KanteGeaendert(Liste& liste, PunktKante& kante, LinieAttr richtung, KanteAttr weitere,
                   bool drehen = false);
    [[nodiscard]] Figurenmenge Betroffene() const override { return {{}, {&kante_}, {}}; }
    void redo() override;
    void undo() override { redo(); }

  private:
    Liste& liste_;
    PunktKante& kante_;
    LinieAttr andereRichtung_;
    KanteAttr andereWeitere_;
    bool drehen_;
};

class KanteEingefuegt final : public Netzaenderung {
  public:
    KanteEingefuegt(Liste& liste, const Kante& kante, PunktIndex anfang, PunktIndex ende);
    [[nodiscard]] Figurenmenge Betroffene() const override;
    void redo() override;
    void undo() override;

  private:
    Liste& liste_;
    Kante kante_;
    PunktIndex anfang_, ende_;
    PunktKante* knoten_ = nullptr;  ///< from the first time on
    Herausnahme platz_;
};

class KanteGeloescht final : public Netzaenderung {
  public:
    KanteGeloescht(Liste& liste, PunktKante& kante);
    [[nodiscard]] Figurenmenge Betroffene() const override { return {{}, {&kante_}, {}}; }
    void redo() override { platz_ = liste_.NimmHeraus(kante_); }
    void undo() override { liste_.SetzeZurueck(platz_); }

  private:
    Liste& liste_;
    PunktKante& kante_;
    Herausnahme platz_;
};

/// A new point with its label.
class PunktEingefuegt final : public Netzaenderung {
  public:
    PunktEingefuegt(Liste& liste, const Punkt& punkt, const PktText& text, Welt ort, PunktIndex nr);
    [[nodiscard]] Figurenmenge Betroffene() const override;
    void redo() override;
    void undo() override { platz_ = liste_.NimmHeraus(*knoten_); }

  private:
    Liste& liste_;
    Punkt punkt_;
    PktText text_;
    Welt ort_;
    PunktIndex nr_;
    PunktKnoten* knoten_ = nullptr;
    Herausnahme platz_;
};

/// A point with its lines and its label.
class PunktGeloescht final : public Netzaenderung {
  public:
    PunktGeloescht(Liste& liste, PunktKnoten& punkt);
    [[nodiscard]] Figurenmenge Betroffene() const override { return liste_.Umfeld(punkt_); }
    void redo() override { platz_ = liste_.NimmHeraus(punkt_); }
    void undo() override { liste_.SetzeZurueck(platz_); }

  private:
    Liste& liste_;
    PunktKnoten& punkt_;
    Herausnahme platz_;
};

/// Another kind, with its colour for point and label, another symbol, another place.
class PunktGeaendert final : public Netzaenderung {
  public:
    struct Angaben {
        PunktArt art = PunktArt::FP;
        PunktTyp symbol = PunktTyp::Pkt;
        Farbe farbe;
        Welt ort;
    };
    PunktGeaendert(Liste& liste, PunktKnoten& punkt, const Angaben& neu);
    [[nodiscard]] Figurenmenge Betroffene() const override { return liste_.Umfeld(punkt_); }
    void redo() override;
    void undo() override { redo(); }

  private:
    Liste& liste_;
    PunktKnoten& punkt_;
    PktText* text_;  ///< null where the point has none
    Angaben andere_;
    Farbe andereTextfarbe_;
};

}  // namespace zrw
