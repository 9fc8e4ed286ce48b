// The network: points, observation lines and labels in three singly linked lists, newest first, in the world.
// Look-ups by index, editing, taking out and putting back. Not in here: where a figure lies in a picture
// (Ansicht.h, Bildorte.h), what is shown (Darstellung.h), how it is drawn.
#pragma once

#include <algorithm>
#include <cassert>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "model/Ansicht.h"
#include "model/Arena.h"
#include "model/Figuren.h"
#include "model/Figurenindex.h"
#include "model/Knoten.h"
#include "model/Netzsuche.h"
#include "model/Werte.h"

namespace zrw {

class Netz {
  public:
    std::int32_t MaxPkte = 0;  ///< number of points; every adder of points and labels keeps it
    std::int32_t MaxKant = 0;  ///< number of lines
    // Heads of the lists.
    PPunktKnoten PunktKnoten = nullptr;
    PPunktKante KanteKnoten = nullptr;
    PPunktString PktTextKnoten = nullptr;

    Netz() = default;
    Netz(const Netz&) = delete;
    Netz& operator=(const Netz&) = delete;
    ~Netz() = default;

    /// Announces about so many points and lines to come; saves time, changes nothing else.
    void ErwarteFiguren(std::size_t punkte, std::size_t kanten);
    // Put a copy of the figure at the head of its list. Counts and duplicates are the caller's business.
    zrw::PunktKnoten& AddPunkt(const Punkt& item, Welt ort, PunktIndex iNr);
    PunktKante& AddKante(const Kante& item, PunktIndex iANr, PunktIndex iENr);
    PunktString& AddPktText(const PktText& item, PunktIndex iNr);
    // Empty a list; the count stays.
    void LeerePunkte();
    void LeereKanten();
    void LeereTexte();

    // --- Looking up
    [[nodiscard]] PPunktKnoten SuchPkt(PunktIndex nr) const { return index_.FindePunkt(nr); }
    /// Where the newest point of a number lies; nothing where there is none.
    [[nodiscard]] std::optional<Welt> Weltort(PunktIndex nr) const {
        return SuchPkt(nr) != nullptr ? std::optional(index_.OrtVon(nr)) : std::nullopt;
    }
    /// Whether a line may run through a part of the world; also one without its points, or with points
    /// nowhere.
    [[nodiscard]] bool BeruehrtVielleicht(Punktenden enden, const Weltkasten& dort) const {
        const Welt a = index_.OrtVon(enden.a);
        const Welt e = index_.OrtVon(enden.e);
        // A missing point is nowhere, and its line stays where it was stored.
        if (std::isnan(a.rechts + e.rechts + a.hoch + e.hoch)) return true;
        return !(std::max(a.rechts, e.rechts) < dort.links || std::min(a.rechts, e.rechts) > dort.rechts ||
                 std::max(a.hoch, e.hoch) < dort.unten || std::min(a.hoch, e.hoch) > dort.oben);
    }
    /// The same for the place where a label begins, in a view of this scale [m/px].
    [[nodiscard]] bool BeruehrtVielleicht(const PunktString& t, const Weltkasten& dort, double faktor) const {
        const Welt ort = index_.OrtVon(t.TNr);
        const double rechts = ort.rechts + static_cast<double>(t.Item->XBiO) * faktor;
        const double hoch = ort.hoch - static_cast<double>(t.Item->YBiO) * faktor;
        return !(rechts < dort.links || rechts > dort.rechts || hoch < dort.unten || hoch > dort.oben);
    }
    /// Whether the node is in its list: figures that were taken out are not.
    [[nodiscard]] bool EnthaeltPunkt(const zrw::PunktKnoten& p) const {
        return suche_.punkte.HatFigur(p.Folge) && &punktArena_[p.Folge].knoten == &p;
    }
    [[nodiscard]] bool EnthaeltKante(const PunktKante& k) const {
        return suche_.kanten.HatFigur(k.Folge) && &kanteArena_[k.Folge].knoten == &k;
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
    /// Calls `tun(PunktKante&)` for every line at a point, newest first.
    template <class Tun>
    void FuerKantenAm(PunktIndex nr, Tun tun) {
        for (PPunktKante k = index_.ErsteKante(nr); k != nullptr; k = index_.NaechsteKante(*k, nr))
            tun(*k);
    }
    /// The point with its lines and its label.
    [[nodiscard]] Figurenmenge Umfeld(zrw::PunktKnoten& p);
    /// No two labels read the same: each then belongs to its own point.
    [[nodiscard]] bool TexteEindeutig() const { return index_.TexteEindeutig(); }
    /// No two labels belong to one internal number.
    [[nodiscard]] bool NummernEindeutig() const { return index_.NummernEindeutig(); }
    /// Every line has both its points, every label the point of its number.
    [[nodiscard]] bool Lueckenlos() const;
    /// Some line may make a detour: its marks are rounded otherwise after an odd move.
    [[nodiscard]] bool MitUmwegen() const { return mitUmwegen_; }
    /// Where all points lie; from the newest on, so that not-a-number there stays. Needs at least one point.
    [[nodiscard]] Weltkasten Ausdehnung() const;

    // --- Editing
    /// Moves a point in the world, or a label [px].
    void VersetzePunkt(zrw::PunktKnoten& p, Welt ort);
    void VersetzeText(PunktString& t, Bildpunkt abstand);
    /// Puts a point onto another one and hides its label.
    void ZentrierePunkt(zrw::PunktKnoten& p, const zrw::PunktKnoten& zentrum);
    /// Gives a line other observations.
    void SetzeBeobachtungen(PunktKante& k, LinieAttr richtung, KanteAttr weitere);
    /// Swaps start and end of a line.
    void DreheKante(PunktKante& pk);
    /// Takes a line, or a point with its lines and its label, out of the lists and counts down. The figures
    /// live on in the arena, so `SetzeZurueck` can put them back in their places. A figure that is in no list
    /// is not taken.
    Herausnahme NimmHeraus(PunktKante& pk);
    Herausnahme NimmHeraus(zrw::PunktKnoten& pp);
    void SetzeZurueck(const Herausnahme& h);

    // --- Figures that may touch a part of a picture, newest first: all that do, and some more. Visible or
    // not.
    /// Points whose position may lie in it.
    void SammlePunkte(const Ansicht& a, const Bildbereich& b, std::vector<PPunktKnoten>& aus) const;
    /// Lines that may run through it.
    void SammleKanten(const Ansicht& a, const Bildbereich& b, std::vector<PPunktKante>& aus) const;
    /// The same by `Folge`.
    void SammleKanten(const Ansicht& a, const Bildbereich& b, std::vector<std::uint32_t>& aus) const;
    /// Labels whose corner or whose point may lie in it.
    void SammleTexte(const Ansicht& a, const Bildbereich& b, std::vector<PPunktString>& aus) const;
    [[nodiscard]] PunktKante& KanteNach(std::uint32_t folge) const { return kanteArena_[folge].knoten; }
    [[nodiscard]] Punktenden Enden(std::uint32_t folge) const {
        assert(folge < suche_.enden.size());
        return suche_.enden[folge];
    }
    /// How often the trees behind these answers were built; a question that builds them takes long.
    [[nodiscard]] std::size_t Suchbauten() const { return suche_.bauten; }
    /// Calls `tun(const PunktKnoten&)` for all points by their order in memory, newest first: following the
    /// list would wait for each node before it knows the next.
    template <class Tun>
    void FuerAllePunkte(Tun tun) const {
        suche_.punkte.FuerAlle([&](std::uint32_t f) { tun(punktArena_[f].knoten); });
    }
    template <class Tun>
    void FuerAlleKanten(Tun tun) const {
        suche_.kanten.FuerAlle([&](std::uint32_t f) { tun(kanteArena_[f].knoten); });
    }
    template <class Tun>
    void FuerAlleTexte(Tun tun) const {
        suche_.texte.FuerAlle([&](std::uint32_t f) { tun(textArena_[f].knoten); });
    }

  private:
    [[nodiscard]] bool Suchbereit(const Bildlage& lage, const Bildbereich& b) const;
    void BaueSuche() const;
    void MeldePunkt(const zrw::PunktKnoten& p);
    void VerdraengeText(PunktIndex nr);

    Arena<PunktPlatz> punktArena_;
    Arena<KantePlatz> kanteArena_;
    Arena<TextPlatz> textArena_;
    Figurenindex index_{kanteArena_, textArena_};
    mutable Netzsuche suche_;  ///< its trees are built when somebody first asks
    mutable std::optional<bool> lueckenlos_;
    bool mitUmwegen_ = false;
};

}  // namespace zrw
