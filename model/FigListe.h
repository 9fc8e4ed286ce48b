// The network of one plot: points, observation lines and labels in three singly linked lists, newest first,
// with the view (scale, extents, offsets) and the display switches. Draws through a `Zeichner`, knows no
// device. Not in here: what a figure looks like, and where a network comes from.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "model/Ansicht.h"
#include "model/Arena.h"
#include "model/Bildsuche.h"
#include "model/Einstellungen.h"
#include "model/Figuren.h"
#include "model/Figurenindex.h"
#include "model/Knoten.h"
#include "model/Netzangaben.h"
#include "model/Werte.h"

namespace zrw {

class Liste : public Ansicht {
  public:
    std::int32_t MaxPkte = 0;  ///< number of points; every adder of points and labels keeps it
    std::int32_t MaxKant = 0;  ///< number of lines
    // Heads of the lists.
    PPunktKnoten PunktKnoten = nullptr;
    PPunktKante KanteKnoten = nullptr;
    PPunktString PktTextKnoten = nullptr;
    // Display switches. A new list does not show `FL` points: the window sets the switches it needs.
    bool ShowPktText = true;
    bool ShowBeob = true;
    bool ShowGitter = false;
    bool ShowKMQ = false;
    bool ShowLegende = false;
    bool ShowLgRes = false;
    bool ShowHRes = false;
    bool ShowLGGen = false;
    bool LGGenOn = false;
    bool ShowHGen = false;
    bool ShowFP = true;
    bool ShowFL = false;
    bool ShowFH = true;
    bool ShowNP = true;
    bool ShowHilfP = true;
    std::unique_ptr<Legende> Legend;

    /// An empty list. The settings give the zoom step and the catch radius; they must outlive the list.
    explicit Liste(const Einstellungen& einstellungen);
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

    /// Announces about so many points and lines to come; saves time, changes nothing else.
    void Erwarte(std::size_t punkte, std::size_t kanten);
    /// Put a copy of the figure at the head of its list. Counts and duplicates are the caller's business.
    virtual zrw::PunktKnoten& AddPunkt(const Punkt& item, Welt ort, PunktIndex iNr);
    virtual PunktKante& AddKante(const Kante& item, PunktIndex iANr, PunktIndex iENr);
    virtual PunktString& AddPktText(const PktText& item, PunktIndex iNr);

    // View: Listenansicht.cpp, on the value in Ansicht.h
    /// World extents, widened to whole kilometres with one to spare. Needs at least one point.
    virtual void FindWorldMinMax();
    /// Picture positions of all figures from their world coordinates.
    virtual void WeltinBild();
    /// The same for some figures, where all else is in its place; those that left the list are passed over.
    void WeltinBild(const Figurenmenge& figuren);
    /// The positions are those of the view as it is now.
    [[nodiscard]] bool PositionenAktuell() const;
    // For whoever puts all positions back by hand: the view that they came from goes with them.
    [[nodiscard]] const Bildstand& Positionen() const { return suche_.stand; }
    void SetzePositionen(const Bildstand& stand) { suche_.stand = stand; }
    /// `WeltinBild` after new pan offsets. @param weg how far the figures should move by that [px]
    /// @return whether all did, so that the picture can be moved as it is
    bool BewegeBild(Bildpunkt weg);
    /// Scale that fits the extents: horizontal extent / (`Hoehe` - 30), vertical extent / `Weite`.
    virtual void Findfaktor() { Ansicht::Findfaktor(); }

    virtual void DisplayPunkte(Zeichner& z);
    virtual void DisplayKante(Zeichner& z);
    virtual void DisplayPktText(Zeichner& z);

    /// Moves a point by a mouse delta [px]; its world coordinates follow at the current scale.
    virtual void MovePunkt(zrw::PunktKnoten& u, std::int64_t dx, std::int64_t dy);
    virtual void DragPktText(PunktString& u, Zeichner& z);

    // Hit-tests: Treffer.cpp. A square of half-width "Fang" round the mouse; the newest figure wins.
    /// Start of dragging: on a hit, hides the lines and labels at the point's position and sets `u`; on a
    /// miss `u` stays as it was.
    virtual bool MausPunkt(Bildpunkt maus, PPunktKnoten& u, Zeichner& z);
    [[nodiscard]] virtual PPunktString MausPktText(Bildpunkt maus) const;

    /// One zoom step out. Does not clear the picture, unlike `ZoomUp`: the caller does, and counts on it.
    virtual void ZoomDown(Zeichner& z);
    /// One zoom step in.
    virtual void ZoomUp(Zeichner& z);
    /// Pans by a picture delta [px]; draws nothing.
    virtual void MoveMe(std::int64_t dx, std::int64_t dy);
    /// Fits the extents into the picture and draws it. Does not recompute the extents.
    virtual void Alles(Zeichner& z);
    /// Draws the whole picture: background, grids, lines, points, labels, legend, results.
    virtual void ShowPicture(Zeichner& z);

    /// Reads a picture file. @param datei name for messages
    /// @throws Fehler where the file is shorter than its counts say; `netz` then is unchanged
    [[nodiscard]] static std::unique_ptr<Liste> Load(ByteLeser& f, const Einstellungen& einstellungen,
                                                     Netzangaben& netz, const std::string& datei);

    [[nodiscard]] PPunktKnoten SuchPkt(PunktIndex nr) const { return index_.FindePunkt(nr); }
    /// Whether the node is in its list: figures that were taken out are not.
    [[nodiscard]] bool Enthaelt(const zrw::PunktKnoten& p) const {
        return suche_.punkte.Hat(p.Folge) && &punktArena_[p.Folge].knoten == &p;
    }
    [[nodiscard]] bool Enthaelt(const PunktKante& k) const {
        return suche_.kanten.Hat(k.Folge) && &kanteArena_[k.Folge].knoten == &k;
    }
    [[nodiscard]] PPunktString FindText(PunktIndex n) const { return index_.FindeText(n); }
    [[nodiscard]] PktText* FindPktText(PunktIndex n) const;
    [[nodiscard]] std::string GetPktText(PunktIndex n) const;
    /// The point whose label reads `p`, cut to 14 bytes.
    [[nodiscard]] PPunktKnoten FindPunkt(std::string_view p) const;
    /// Internal number of that point, 0 if there is none.
    [[nodiscard]] PunktIndex FindPunktNr(const PunktNummernTyp& p) const {
        const PunktIndex nr = index_.FindeNummer(p);
        return SuchPkt(nr) != nullptr ? nr : kKeinPunkt;
    }
    /// The line between two points, in either orientation.
    [[nodiscard]] PPunktKante FindKante(PunktIndex a, PunktIndex b) const { return index_.FindeKante(a, b); }

    // Bearbeiten.cpp
    /// Moves a point in the world, or a label [px]. Picture positions follow with `WeltinBild` or
    /// `PunktinBild`.
    void Versetze(zrw::PunktKnoten& p, Welt ort);
    void Versetze(PunktString& t, Bildpunkt abstand);
    /// Takes a line, or a point with its lines and its label, out of the lists and counts down. Draws
    /// nothing. The figures live on in the arena, so `SetzeZurueck` can put them back in their places. A
    /// figure that is in no list is not taken.
    Herausnahme NimmHeraus(PunktKante& pk);
    Herausnahme NimmHeraus(zrw::PunktKnoten& pp);
    void SetzeZurueck(const Herausnahme& h);
    /// Wipes the line, takes it out of the list and counts down. Nothing for null.
    void DeleteKante(PPunktKante pk, Zeichner& z);
    /// Calls `tun(PunktKante&)` for every line at a point, newest first.
    template <class Tun>
    void FuerKantenAm(PunktIndex nr, Tun tun) {
        for (PPunktKante k = index_.ErsteKante(nr); k != nullptr; k = index_.NaechsteKante(*k, nr))
            tun(*k);
    }
    /// The point with its lines and its label.
    [[nodiscard]] Figurenmenge Umfeld(zrw::PunktKnoten& p);
    /// Deletes the lines at the point, its label and the point.
    void DeletePunkt(PPunktKnoten pp, Zeichner& z);
    /// Swaps start and end of a line.
    void DreheKante(PunktKante& pk);
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

    // Figures that may touch a part of the picture, newest first: all that do, and some more. Visible or not.
    // Suche.cpp
    /// Points whose position may lie in it.
    void SammlePunkte(const Bildbereich& b, std::vector<PPunktKnoten>& aus) const;
    /// Lines that may run through it.
    void SammleKanten(const Bildbereich& b, std::vector<PPunktKante>& aus) const;
    /// The same by `Folge`.
    void SammleKanten(const Bildbereich& b, std::vector<std::uint32_t>& aus) const;
    [[nodiscard]] PunktKante& KanteNach(std::uint32_t folge) const { return kanteArena_[folge].knoten; }
    [[nodiscard]] Punktenden Enden(std::uint32_t folge) const { return suche_.enden[folge]; }
    /// Labels whose corner or whose point may lie in it.
    void SammleTexte(const Bildbereich& b, std::vector<PPunktString>& aus) const;
    /// How often the trees behind these answers were built; a question that builds them takes long.
    [[nodiscard]] std::size_t Suchbauten() const { return suche_.bauten; }

    [[nodiscard]] PPunktKnoten ClickPunkt(Bildpunkt maus) const;
    // The same for what the picture shows: neither hidden figures nor kinds that are switched off.
    [[nodiscard]] PPunktKnoten ClickGezeigten(Bildpunkt maus) const;
    [[nodiscard]] PPunktString ClickGezeigtenText(Bildpunkt maus) const;
    [[nodiscard]] PPunktKante PickGezeigte(Bildpunkt maus) const;
    /// Hides the lines and labels at the position of a point.
    void LoesePunkt(const zrw::PunktKnoten& punkt, Zeichner& z);
    /// The line whose segment passes within the catch radius of the mouse; the distance counts in whole
    /// pixels, so that 5.9 px is caught with a radius of 5.
    [[nodiscard]] PPunktKante PickKante(Bildpunkt maus) const;
    /// Whether a position lies within the catch radius of the mouse.
    [[nodiscard]] bool Gefangen(Bildpunkt maus, Bildpunkt ort) const;
    /// Marks the legend as being dragged if its corner is caught.
    void MausLegende(Bildpunkt maus);
    /// The part of `Alles` that draws nothing. Leaves the view of an empty list alone: there is nothing to
    /// fit, and a scale of 0 would help nobody.
    void PasseEin();
    /// Puts `p1` onto `p2` and hides the label of `p1`.
    void ZentrierPunkt(zrw::PunktKnoten& p1, const zrw::PunktKnoten& p2, Zeichner& z);

    /// The point's kind is switched on.
    [[nodiscard]] bool Dargestellt(const Punkt& p) const;
    /// The kinds of both its points are switched on.
    [[nodiscard]] bool Dargestellt(const PunktKante& k) const;
    /// No two labels read the same: each then belongs to its own point.
    [[nodiscard]] bool TexteEindeutig() const { return index_.TexteEindeutig(); }
    /// No two labels belong to one internal number.
    [[nodiscard]] bool NummernEindeutig() const { return index_.NummernEindeutig(); }
    [[nodiscard]] const Einstellungen& Anzeige() const { return einstellungen_; }

  private:
    void ZeichneFiguren(Zeichner& z);
    template <bool Prueft>
    bool RechneBild(Bildpunkt weg);
    [[nodiscard]] bool Suchbereit(const Bildbereich& b) const;
    void BaueSuche() const;
    void MeldePunkt(const zrw::PunktKnoten& p);
    void VerdraengeText(PunktIndex nr);

    const Einstellungen& einstellungen_;
    Arena<PunktPlatz> punktArena_;
    Arena<KantePlatz> kanteArena_;
    Arena<TextPlatz> textArena_;
    Figurenindex index_{kanteArena_, textArena_};
    mutable Bildsuche suche_;  ///< built when somebody first asks
};

}  // namespace zrw
