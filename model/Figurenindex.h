// Look-ups beside the lists of a `Liste`, each in constant time: internal number -> point and label, point
// number text -> label, point pair -> line, internal number -> its lines. Every look-up answers what a walk
// from the head of the list would find first: the newest figure.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "model/Werte.h"

namespace zrw {

struct PunktKnoten;
struct PunktString;
class PunktKante;

/// Open addressing from a 64-bit hash to a node. `gleich(knoten)` settles equal hashes.
template <class Knoten>
class Streutafel {
  public:
    template <class Gleich>
    [[nodiscard]] Knoten* Finde(std::uint64_t streu, Gleich gleich) const {
        if (faecher_.empty()) return nullptr;
        for (std::size_t i = Platz(streu); faecher_[i].knoten != nullptr; i = Weiter(i)) {
            if (faecher_[i].streu == streu && gleich(*faecher_[i].knoten)) return faecher_[i].knoten;
        }
        return nullptr;
    }
    /// Enters the node; a node that equals it is displaced, as the head of a list hides what is behind it.
    template <class Gleich>
    void Setze(std::uint64_t streu, Knoten* knoten, Gleich gleich) {
        if ((belegt_ + 1) * 5 > faecher_.size() * 4) Wachse();
        std::size_t i = Platz(streu);
        while (faecher_[i].knoten != nullptr &&
               !(faecher_[i].streu == streu && gleich(*faecher_[i].knoten))) {
            i = Weiter(i);
        }
        if (faecher_[i].knoten == nullptr) ++belegt_;
        faecher_[i] = {streu, knoten};
    }
    void Entferne(std::uint64_t streu, const Knoten* knoten) {
        if (faecher_.empty()) return;
        std::size_t i = Platz(streu);
        while (faecher_[i].knoten != knoten) {
            if (faecher_[i].knoten == nullptr) return;
            i = Weiter(i);
        }
        // Close the gap, so that a search never has to step over removed entries.
        for (std::size_t j = Weiter(i); faecher_[j].knoten != nullptr; j = Weiter(j)) {
            const std::size_t heim = Platz(faecher_[j].streu);
            if (((j - heim) & (faecher_.size() - 1)) < ((j - i) & (faecher_.size() - 1))) continue;
            faecher_[i] = faecher_[j];
            i = j;
        }
        faecher_[i] = {};
        --belegt_;
    }
    void Leere() {
        faecher_.clear();
        belegt_ = 0;
    }

  private:
    struct Fach {
        std::uint64_t streu = 0;
        Knoten* knoten = nullptr;
    };
    [[nodiscard]] std::size_t Platz(std::uint64_t streu) const { return streu & (faecher_.size() - 1); }
    [[nodiscard]] std::size_t Weiter(std::size_t i) const { return (i + 1) & (faecher_.size() - 1); }
    void Wachse() {
        std::vector<Fach> alt(faecher_.empty() ? 64 : faecher_.size() * 2);
        alt.swap(faecher_);
        for (const Fach& f : alt) {
            if (f.knoten == nullptr) continue;
            std::size_t i = Platz(f.streu);
            while (faecher_[i].knoten != nullptr)
                i = Weiter(i);
            faecher_[i] = f;
        }
    }
    std::vector<Fach> faecher_;
    std::size_t belegt_ = 0;
};

/// The indexes of one list. Told of every node that enters (already linked at the head) or leaves.
class Figurenindex {
  public:
    Figurenindex();

    void Auf(PunktKnoten& p);
    void Auf(PunktString& t);
    void Auf(PunktKante& k);
    /// `Ab` runs while the node still is in its list: an older figure of the same key takes its place.
    void Ab(PunktKnoten& p);
    void Ab(PunktString& t);
    void Ab(PunktKante& k);
    /// The line is about to swap its ends: its places among the lines of both points swap with them.
    static void Drehe(PunktKante& k);
    void LeerePunkte();
    void LeereTexte();
    void LeereKanten();

    [[nodiscard]] PunktKnoten* FindePunkt(PunktIndex nr) const;
    [[nodiscard]] PunktString* FindeText(PunktIndex nr) const;
    [[nodiscard]] PunktString* FindeText(const PunktNummernTyp& nummer) const;
    /// The newest line between two points, in either orientation.
    [[nodiscard]] PunktKante* FindeKante(PunktIndex a, PunktIndex b) const;
    /// The lines at a point, newest first: `for (k = ErsteKante(nr); k; k = NaechsteKante(*k, nr))`.
    [[nodiscard]] PunktKante* ErsteKante(PunktIndex nr) const;
    [[nodiscard]] static PunktKante* NaechsteKante(const PunktKante& k, PunktIndex nr);

  private:
    [[nodiscard]] std::uint64_t Paar(PunktIndex a, PunktIndex b) const;
    [[nodiscard]] std::uint64_t Streuwert(const PunktNummernTyp& nummer) const;

    std::uint64_t saat_;
    std::vector<PunktKnoten*> punkte_;
    std::vector<PunktString*> texte_;
    std::vector<PunktKante*> kantenAm_;
    Streutafel<PunktString> nachNummer_;
    Streutafel<PunktKante> nachPaar_;
};

}  // namespace zrw
