// Look-ups beside the lists of a `Netz`, each in constant time: internal number -> point and label, point
// number text -> label, point pair -> line, internal number -> its lines. Every look-up answers what a walk
// from the head of the list would find first: the newest figure.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <vector>

#include "model/Arena.h"
#include "model/Knoten.h"
#include "model/Markentafel.h"
#include "model/Saat.h"
#include "model/Werte.h"

namespace zrw {

/// The indexes of one list. Told of every node that enters (already linked at the head) or leaves. Texts,
/// pairs and the lines of a point are entered when somebody first asks for one: reading a network never does.
class Figurenindex {
  public:
    /// @param kanten, texte where the nodes stand
    Figurenindex(const Arena<KantePlatz>& kanten, const Arena<TextPlatz>& texte)
        : kantenarena_(kanten), textarena_(texte) {}

    void TrageFigurEin(PunktKnoten& p);
    void TrageFigurEin(PunktString& t);
    void TrageFigurEin(PunktKante& k);
    /// An older figure of the same key takes the place of one that leaves. `TrageFigurAus` runs while a point
    /// or label still is in its list and after a line has left it; its `Next` is valid in either case.
    void TrageFigurAus(PunktKnoten& p);
    void TrageFigurAus(PunktString& t);
    void TrageFigurAus(PunktKante& k);
    /// A figure is back in its place, somewhere behind the head of its list.
    void SetzeFigurZurueck(PunktKnoten& p, PunktKnoten& kopf);
    void SetzeFigurZurueck(PunktString& t, PunktString& kopf);
    void SetzeFigurZurueck(PunktKante& k, PunktKante& kopf);
    /// The line is about to swap its ends: its places among the lines of both points swap with them.
    void DreheKante(const PunktKante& k);
    /// Announces so many points with their labels; saves growing on the way.
    void ErwartePunkte(std::size_t punkte);
    void LeerePunkte();
    void LeereTexte();
    void LeereKanten();

    [[nodiscard]] PunktKnoten* FindePunkt(PunktIndex nr) const {
        return nr < punkte_.size() ? punkte_[nr] : nullptr;
    }
    /// Where that point lies in the world; not-a-number where there is none. All in an array of their own:
    /// lines ask in any order, and would take a cache miss for each node.
    [[nodiscard]] Welt OrtVon(PunktIndex nr) const { return nr < orte_.size() ? orte_[nr] : kNirgends; }
    /// The point has other world coordinates.
    void VerlegePunkt(const PunktKnoten& p) {
        if (FindePunkt(p.PNr) == &p) orte_[p.PNr] = {p.XWPu, p.YWPu};
    }
    [[nodiscard]] PunktString* FindeText(PunktIndex nr) const;
    [[nodiscard]] PunktString* FindeText(const PunktNummernTyp& nummer) const;
    /// Internal number of the point with that label, 0 if there is none.
    [[nodiscard]] PunktIndex FindeNummer(const PunktNummernTyp& nummer) const {
        const PunktString* t = FindeText(nummer);
        return t != nullptr ? t->TNr : kKeinPunkt;
    }
    /// No two labels read the same: each then leads to its own number.
    [[nodiscard]] bool TexteEindeutig() const {
        if (!texteBekannt_) LerneTexte();
        return textanzahl_ == nachNummer_.Anzahl();
    }
    /// No two labels belong to one number.
    [[nodiscard]] bool NummernEindeutig() const { return textanzahl_ == textnummern_; }
    /// The newest line between two points, in either orientation.
    [[nodiscard]] PunktKante* FindeKante(PunktIndex a, PunktIndex b) const;
    /// The lines at a point, newest first: `for (k = ErsteKante(nr); k; k = NaechsteKante(*k, nr))`.
    [[nodiscard]] PunktKante* ErsteKante(PunktIndex nr);
    [[nodiscard]] PunktKante* NaechsteKante(const PunktKante& k, PunktIndex nr) const {
        return ZurNummer(naechste_[k.Folge][k.ANr == nr ? 0 : 1]);
    }

  private:
    // Nodes are named by the number after their `Folge`, so that 0 is none: half of a pointer.
    [[nodiscard]] static std::uint32_t Nummer(std::uint32_t folge) { return folge + 1; }
    [[nodiscard]] PunktKante* ZurNummer(std::uint32_t nr) const {
        return nr != 0 ? &kantenarena_[nr - 1].knoten : nullptr;
    }
    void LerneTexte() const;
    void LernePaare() const;
    [[nodiscard]] std::uint64_t Textstreuwert(std::uint32_t nr) const;
    [[nodiscard]] std::uint64_t Paarstreuwert(std::uint32_t nr) const;
    /// @param verdraengt the label counts before another one that reads the same
    void LerneText(const PunktString& t, bool verdraengt) const;
    void LerneKante(const PunktKante& k, bool verdraengt) const;
    void VerketteKanten();
    void KetteAn(const PunktKante& k);
    void HaengeAus(const PunktKante& k, PunktIndex nr);

    const Arena<KantePlatz>& kantenarena_;
    const Arena<TextPlatz>& textarena_;
    static constexpr Welt kNirgends{std::numeric_limits<double>::quiet_NaN(),
                                    std::numeric_limits<double>::quiet_NaN()};
    void SetzePunkt(PunktIndex nr, PunktKnoten* p);

    std::vector<PunktKnoten*> punkte_;
    std::vector<Welt> orte_;  ///< of those
    std::vector<PunktString*> texte_;
    std::size_t textanzahl_ = 0;
    std::size_t textnummern_ = 0;  ///< numbers that have a label
    PunktString* neuesterText_ = nullptr;
    PunktKante* neuesteKante_ = nullptr;  ///< head of the list of lines

    bool verkettet_ = false;
    std::vector<std::uint32_t> kantenAm_;                 ///< newest line by number of the point
    std::vector<std::array<std::uint32_t, 2>> naechste_;  ///< by `Folge`: next line at the start, at the end

    std::uint64_t saat_ = NeueSaat();
    mutable bool texteBekannt_ = false;
    mutable bool paareBekannt_ = false;
    mutable Markentafel nachNummer_;
    mutable Markentafel nachPaar_;
};

}  // namespace zrw
