// Look-ups beside the lists of a `Liste`, each in constant time: internal number -> point and label, point
// number text -> label, point pair -> line, internal number -> its lines. Every look-up answers what a walk
// from the head of the list would find first: the newest figure.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "model/Werte.h"

namespace zrw {

struct PunktKnoten;
struct PunktString;
class PunktKante;

/// Open addressing from a key to a value that is false where there is none. The keys stand in the table
/// itself, so that a search touches no node: memory is what reading a large network waits for.
template <class Schluessel, class Wert>
class Streutafel {
  public:
    explicit Streutafel(std::uint64_t saat) : saat_(saat) {}

    [[nodiscard]] Wert Finde(const Schluessel& s) const {
        return faecher_.empty() ? Wert{} : faecher_[Suche(s)].wert;
    }
    /// Enters the value; one of the same key is displaced, as the head of a list hides what is behind it.
    void Setze(const Schluessel& s, Wert wert) {
        if ((belegt_ + 1) * 5 > faecher_.size() * 4) Wachse();
        Fach& fach = faecher_[Suche(s)];
        if (!fach.wert) ++belegt_;
        fach = {s, wert};
    }
    void Entferne(const Schluessel& s) {
        if (!Finde(s)) return;
        std::size_t i = Suche(s);
        // Close the gap, so that a search never has to step over removed entries.
        for (std::size_t j = Weiter(i); faecher_[j].wert; j = Weiter(j)) {
            const std::size_t heim = Platz(faecher_[j].schluessel);
            if (((j - heim) & (faecher_.size() - 1)) < ((j - i) & (faecher_.size() - 1))) continue;
            faecher_[i] = faecher_[j];
            i = j;
        }
        faecher_[i] = {};
        --belegt_;
    }
    /// Makes room for so many entries at once.
    void Erwarte(std::size_t anzahl) {
        while (anzahl * 5 > faecher_.size() * 4)
            Wachse();
    }
    [[nodiscard]] std::size_t Anzahl() const { return belegt_; }
    void Leere() {
        faecher_.clear();
        belegt_ = 0;
    }

  private:
    struct Fach {
        Schluessel schluessel{};
        Wert wert{};
    };
    [[nodiscard]] std::size_t Platz(const Schluessel& s) const {
        return s.Streuwert(saat_) & (faecher_.size() - 1);
    }
    [[nodiscard]] std::size_t Weiter(std::size_t i) const { return (i + 1) & (faecher_.size() - 1); }
    /// The place of the key, or the free one where it belongs.
    [[nodiscard]] std::size_t Suche(const Schluessel& s) const {
        std::size_t i = Platz(s);
        while (faecher_[i].wert && !(faecher_[i].schluessel == s))
            i = Weiter(i);
        return i;
    }
    void Wachse() {
        std::vector<Fach> alt(faecher_.empty() ? 64 : faecher_.size() * 2);
        alt.swap(faecher_);
        for (const Fach& f : alt) {
            if (f.wert) faecher_[Suche(f.schluessel)] = f;
        }
    }
    std::uint64_t saat_;
    std::vector<Fach> faecher_;
    std::size_t belegt_ = 0;
};

/// Two points, whichever is named first.
class Punktpaar {
  public:
    Punktpaar() = default;
    Punktpaar(PunktIndex a, PunktIndex b) : wert_(std::uint32_t{std::min(a, b)} << 16U | std::max(a, b)) {}
    friend bool operator==(Punktpaar, Punktpaar) = default;
    [[nodiscard]] std::uint64_t Streuwert(std::uint64_t saat) const { return Mische(wert_ ^ saat); }

  private:
    std::uint32_t wert_ = 0;
};

/// The indexes of one list. Told of every node that enters (already linked at the head) or leaves.
class Figurenindex {
  public:
    Figurenindex();

    void Auf(PunktKnoten& p);
    void Auf(PunktString& t);
    void Auf(PunktKante& k);
    /// An older figure of the same key takes the place of one that leaves. `Ab` runs while a point or label
    /// still is in its list and after a line has left it; its `Next` is valid in either case.
    void Ab(PunktKnoten& p);
    void Ab(PunktString& t);
    void Ab(PunktKante& k);
    /// A figure is back in its place, somewhere behind the head of its list.
    void Zurueck(PunktKnoten& p, PunktKnoten& kopf);
    void Zurueck(PunktString& t, PunktString& kopf);
    void Zurueck(PunktKante& k, PunktKante& kopf);
    /// The line is about to swap its ends: its places among the lines of both points swap with them.
    static void Drehe(PunktKante& k);
    /// Announces so many figures; saves growing on the way.
    void Erwarte(std::size_t punkte, std::size_t kanten);
    void LeerePunkte();
    void LeereTexte();
    void LeereKanten();

    [[nodiscard]] PunktKnoten* FindePunkt(PunktIndex nr) const {
        return nr < punkte_.size() ? punkte_[nr] : nullptr;
    }
    [[nodiscard]] PunktString* FindeText(PunktIndex nr) const;
    [[nodiscard]] PunktString* FindeText(const PunktNummernTyp& nummer) const {
        return nachNummer_.Finde(nummer).text;
    }
    /// Internal number of the point with that label, 0 if there is none.
    [[nodiscard]] PunktIndex FindeNummer(const PunktNummernTyp& nummer) const {
        return nachNummer_.Finde(nummer).nr;
    }
    /// No two labels read the same: each then leads to its own number.
    [[nodiscard]] bool TexteEindeutig() const { return textanzahl_ == nachNummer_.Anzahl(); }
    /// No two labels belong to one number.
    [[nodiscard]] bool NummernEindeutig() const { return textanzahl_ == textnummern_; }
    /// The newest line between two points, in either orientation.
    [[nodiscard]] PunktKante* FindeKante(PunktIndex a, PunktIndex b) const { return nachPaar_.Finde({a, b}); }
    /// The lines at a point, newest first: `for (k = ErsteKante(nr); k; k = NaechsteKante(*k, nr))`.
    [[nodiscard]] PunktKante* ErsteKante(PunktIndex nr);
    [[nodiscard]] static PunktKante* NaechsteKante(const PunktKante& k, PunktIndex nr);

  private:
    struct Texteintrag {
        PunktString* text = nullptr;
        PunktIndex nr = kKeinPunkt;
        explicit operator bool() const { return text != nullptr; }
    };
    std::vector<PunktKnoten*> punkte_;
    std::vector<PunktString*> texte_;
    /// The lines at each point are chained when somebody first asks for them: reading a network never does.
    void Verkette();
    void KetteAn(PunktKante& k);

    PunktKante* neuesteKante_ = nullptr;  ///< head of the list of lines
    bool verkettet_ = false;
    std::size_t textanzahl_ = 0;
    std::size_t textnummern_ = 0;  ///< numbers that have a label
    std::vector<PunktKante*> kantenAm_;
    Streutafel<PunktNummernTyp, Texteintrag> nachNummer_;
    Streutafel<Punktpaar, PunktKante*> nachPaar_;
};

}  // namespace zrw
