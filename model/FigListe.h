// The plan as its vocabulary describes it, in one: network, view and display switches, with the operations
// that draw, wipe, zoom and hit. A thin face: it keeps the positions that figures were drawn at, and
// forwards.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "model/Ansicht.h"
#include "model/Bildvorlage.h"
#include "model/Darstellung.h"
#include "model/Einstellungen.h"
#include "model/Netz.h"
#include "model/Netzangaben.h"
#include "model/Treffer.h"

namespace zrw {

class Liste : public Netz, public Ansicht, public Darstellung {
  public:
    /// An empty list. The settings give the zoom step and the catch radius; they must outlive the list.
    explicit Liste(const Einstellungen& einstellungen) : einstellungen_(einstellungen) {}
    explicit Liste(const Einstellungen&&) = delete;
    Liste(const Liste&) = delete;
    Liste& operator=(const Liste&) = delete;
    virtual ~Liste() = default;  // frees, never draws: `Done` is what wipes

    /// Wipes and drops every figure; the counts stay.
    virtual void Done(Zeichner& z);
    virtual void Store(ByteSchreiber& f, const Netzangaben& netz) const;  // Bilddatei.cpp
    /// The same without some labels.
    void StoreOhne(const Textmenge& texte, ByteSchreiber& f, const Netzangaben& netz) const;
    virtual void PunktDone(Zeichner& z);
    virtual void KanteDone(Zeichner& z);
    virtual void PktTextDone(Zeichner& z);

    // Put a copy of the figure at the head of its list. Counts and duplicates are the caller's business.
    virtual zrw::PunktKnoten& AddPunkt(const Punkt& item, Welt ort, PunktIndex iNr) {
        return Netz::AddPunkt(item, ort, iNr);
    }
    virtual PunktKante& AddKante(const Kante& item, PunktIndex iANr, PunktIndex iENr) {
        return Netz::AddKante(item, iANr, iENr);
    }
    virtual PunktString& AddPktText(const PktText& item, PunktIndex iNr) {
        return Netz::AddPktText(item, iNr);
    }

    /// World extents, widened to whole kilometres with one to spare. Needs at least one point.
    virtual void FindWorldMinMax();
    /// Puts all figures where they lie in the view: what is stored, wiped and hidden by position is there.
    virtual void WeltinBild();
    /// Scale that fits the extents: horizontal extent / (`Hoehe` - 30), vertical extent / `Weite`.
    virtual void Findfaktor() { Ansicht::Findfaktor(); }

    virtual void DisplayPunkte(Zeichner& z) { ZeichnePunkte(Vorlage(), z); }
    virtual void DisplayKante(Zeichner& z) { ZeichneKanten(Vorlage(), z); }
    virtual void DisplayPktText(Zeichner& z) { ZeichneTexte(Vorlage(), z); }

    /// Moves a point by a mouse delta [px]; its world coordinates follow at the current scale.
    virtual void MovePunkt(zrw::PunktKnoten& u, std::int64_t dx, std::int64_t dy);
    virtual void DragPktText(PunktString& u, Zeichner& z);

    /// Start of dragging: on a hit, hides the lines and labels at the point's position and sets `u`; on a
    /// miss `u` stays as it was.
    virtual bool MausPunkt(Bildpunkt maus, PPunktKnoten& u, Zeichner& z);
    [[nodiscard]] virtual PPunktString MausPktText(Bildpunkt maus) const { return SucheTreffer().Text(maus); }

    /// One zoom step out. Does not clear the picture, unlike `ZoomUp`: the caller does, and counts on it.
    virtual void ZoomDown(Zeichner& z);
    /// One zoom step in.
    virtual void ZoomUp(Zeichner& z);
    /// Pans by a picture delta [px]; draws nothing.
    virtual void MoveMe(std::int64_t dx, std::int64_t dy);
    /// Fits the extents into the picture and draws it. Does not recompute the extents.
    virtual void Alles(Zeichner& z);
    /// Draws the whole picture: background, grids, lines, points, labels, legend, results.
    virtual void ShowPicture(Zeichner& z) { ZeichneBild(Vorlage(), z); }

    /// Reads a picture file. @param datei name for messages
    /// @throws Fehler where the file is shorter than its counts say; `netz` then is unchanged
    [[nodiscard]] static std::unique_ptr<Liste> Load(ByteLeser& f, const Einstellungen& einstellungen,
                                                     Netzangaben& netz, const std::string& datei);

    /// Wipes the line, takes it out of the list and counts down. Nothing for null.
    void DeleteKante(PPunktKante pk, Zeichner& z);
    /// Deletes the lines at the point, its label and the point.
    void DeletePunkt(PPunktKnoten pp, Zeichner& z);
    void ShowPunkt(zrw::PunktKnoten& pp, Zeichner& z);
    void HidePunkt(zrw::PunktKnoten& pp, Zeichner& z);
    void ChKante(LinieAttr newAttr, Zeichner& z);
    void DruckBildschirm() {}  // stays in the interface, has never done anything
    void ClearPicture(Zeichner& z) const;
    /// Marks points and labels visible; with `show` false those of auxiliary points (number ending in W, K or
    /// H) invisible. Draws nothing.
    void DisplayHilfp(bool show);
    /// Makes the legend if there is none and shows it.
    void SetLegende(Zeichner& z);

    // Hit-tests, of everything and of what the picture shows: neither hidden figures nor kinds that are off.
    [[nodiscard]] PPunktKnoten ClickPunkt(Bildpunkt maus) const { return SucheTreffer().Punkt(maus); }
    [[nodiscard]] PPunktKante PickKante(Bildpunkt maus) const { return SucheTreffer().Kante(maus); }
    [[nodiscard]] PPunktKnoten ClickGezeigten(Bildpunkt maus) const { return SucheTreffer(this).Punkt(maus); }
    [[nodiscard]] PPunktString ClickGezeigtenText(Bildpunkt maus) const {
        return SucheTreffer(this).Text(maus);
    }
    [[nodiscard]] PPunktKante PickGezeigte(Bildpunkt maus) const { return SucheTreffer(this).Kante(maus); }
    /// Hides the lines and labels at the position of a point.
    void LoesePunkt(const zrw::PunktKnoten& punkt, Zeichner& z);
    /// Whether a position lies within the catch radius of the mouse.
    [[nodiscard]] bool Gefangen(Bildpunkt maus, Bildpunkt ort) const {
        return zrw::Gefangen(maus, ort, einstellungen_.Fang);
    }
    /// Marks the legend as being dragged if its corner is caught.
    void MausLegende(Bildpunkt maus);
    /// The part of `Alles` that draws nothing. Leaves the view of an empty list alone: there is nothing to
    /// fit, and a scale of 0 would help nobody.
    void PasseEin();
    /// Puts `p1` onto `p2` and hides the label of `p1`.
    void ZentrierPunkt(zrw::PunktKnoten& p1, const zrw::PunktKnoten& p2, Zeichner& z);

    /// What drawing the list draws. Makes the legend where there is none and it is shown.
    [[nodiscard]] Bildvorlage Vorlage() {
        if (ShowLegende && !Legend) Legend = Legende::Create();
        return {*this, *this, *this, Legend ? &*Legend : nullptr};
    }
    [[nodiscard]] const Einstellungen& Anzeige() const { return einstellungen_; }

  private:
    [[nodiscard]] Treffersuche SucheTreffer(const Darstellung* gezeigt = nullptr) const {
        return {*this, *this, einstellungen_.Fang, gezeigt};
    }

    const Einstellungen& einstellungen_;
};

}  // namespace zrw
