// Which points are switched on, by internal number. Asking the points of every line would wait for memory
// each time, so each point is asked once.
#pragma once

#include <cstdint>
#include <memory>

#include "model/Darstellung.h"
#include "model/Netz.h"

namespace zrw {

class Gezeigt {
  public:
    Gezeigt(const Netz& netz, const Darstellung& darstellung)
        : netz_(netz), darstellung_(darstellung), antworten_(std::make_unique<Antwort[]>(kMaxPunkte + 1)) {}

    /// What is known already, of the newest point of the number.
    void NimmAntwort(PunktIndex nr, bool gezeigt) { antworten_[nr] = gezeigt ? Antwort::Ja : Antwort::Nein; }
    /// There is such a point, and its kind is switched on.
    [[nodiscard]] bool operator()(PunktIndex nr) {
        Antwort& a = antworten_[nr];
        if (a == Antwort::Offen) {
            const PunktKnoten* p = netz_.SuchPkt(nr);
            a = p != nullptr && darstellung_.Dargestellt(*p->Item) ? Antwort::Ja : Antwort::Nein;
        }
        return a == Antwort::Ja;
    }
    [[nodiscard]] bool operator()(const PunktKante& k) { return (*this)(k.ANr) && (*this)(k.ENr); }
    /// A label belongs to the point that its text names.
    [[nodiscard]] bool operator()(const PunktString& t) {
        if (netz_.TexteEindeutig()) return (*this)(t.TNr);
        const PunktKnoten* p = netz_.FindPunkt(t.Item->Aus.Text());
        return p != nullptr && darstellung_.Dargestellt(*p->Item);
    }

  private:
    enum class Antwort : std::uint8_t { Offen, Ja, Nein };

    const Netz& netz_;
    const Darstellung& darstellung_;
    std::unique_ptr<Antwort[]> antworten_;  ///< all of them open: plain zeros
};

}  // namespace zrw
