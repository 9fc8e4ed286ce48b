// The look-ups beside the lists against plain walks, while figures come, turn and go at random.
#include <gtest/gtest.h>

#include <random>
#include <set>

#include "tests/hilfe/Probenetz.h"

namespace zrw {
namespace {

template <class Knoten, class Bedingung>
Knoten* Erster(Knoten* kopf, Bedingung b) {
    while (kopf != nullptr && !b(*kopf))
        kopf = kopf->Next;
    return kopf;
}

template <class Knoten>
Knoten* Stelle(Knoten* kopf, std::size_t i) {
    return Erster(kopf, [&](const Knoten&) { return i-- == 0; });
}

PPunktKante Linie(Liste& l, PunktIndex a, PunktIndex b) {
    return Erster(l.KanteKnoten, [=](const PunktKante& k) {
        return (k.ANr == a && k.ENr == b) || (k.ANr == b && k.ENr == a);
    });
}

void VergleicheIndex(Probenetz& n, PunktIndex nummern, int texte) {
    Liste& l = n.l;
    for (PunktIndex nr = 0; nr <= nummern; ++nr) {
        PPunktKnoten p = Erster(l.PunktKnoten, [=](const PunktKnoten& k) { return k.PNr == nr; });
        PPunktString t = Erster(l.PktTextKnoten, [=](const PunktString& k) { return k.TNr == nr; });
        ASSERT_EQ(l.SuchPkt(nr), p) << nr;
        ASSERT_EQ(l.FindPktText(nr), t != nullptr ? t->Item : nullptr) << nr;
        for (const PunktIndex b : {PunktIndex{1}, nr, nummern})
            ASSERT_EQ(l.FindKante(nr, b), Linie(l, nr, b)) << nr;
        if (p == nullptr) continue;
        for (PPunktKante k = l.KanteKnoten; k != nullptr; k = k->Next) {
            if (k->ANr == nr || k->ENr == nr)
                n.z.ZeichneKante(*k->Item, k->Item->Position(), k->Item->Ende(), Gang::Wischen);
        }
        if (t != nullptr) n.z.ZeichneText(*t->Item, t->Item->Position(), Gang::Wischen);
        n.z.ZeichnePunkt(*p->Item, p->Item->Position(), Gang::Wischen);
        const Zeilen erwartet = n.z.NimmZeilen();
        l.HidePunkt(*p, n.z);
        ASSERT_EQ(n.z.NimmZeilen(), erwartet) << nr;
    }
    for (int i = 0; i <= texte; ++i) {
        const std::string text = "T" + std::to_string(i);
        PPunktString t =
            Erster(l.PktTextKnoten, [&](const PunktString& k) { return k.Item->Aus.Text() == text; });
        ASSERT_EQ(l.FindPunkt(text), t != nullptr ? l.SuchPkt(t->TNr) : nullptr) << text;
    }
    std::set<std::string_view> gelesen;
    std::size_t anzahl = 0;
    for (const PunktString* t = l.PktTextKnoten; t != nullptr; t = t->Next, ++anzahl)
        gelesen.insert(t->Item->Aus.Text());
    ASSERT_EQ(l.TexteEindeutig(), gelesen.size() == anzahl);
    std::int32_t kanten = 0;
    for (PPunktKante k = l.KanteKnoten; k != nullptr; k = k->Next, ++kanten) {
        ASSERT_EQ(l.FindKante(k->ENr, k->ANr), Linie(l, k->ANr, k->ENr));
    }
    ASSERT_EQ(l.MaxKant, kanten);
}

/// Every node in order, with what undoing must bring back.
std::vector<std::pair<const void*, bool>> Bestand(const Liste& l) {
    std::vector<std::pair<const void*, bool>> b{{nullptr, l.MaxPkte == l.MaxKant}};
    for (PPunktKnoten p = l.PunktKnoten; p != nullptr; p = p->Next)
        b.emplace_back(p, p->Item->Visible);
    for (PPunktString t = l.PktTextKnoten; t != nullptr; t = t->Next)
        b.emplace_back(t, t->Item->Visible);
    for (PPunktKante k = l.KanteKnoten; k != nullptr; k = k->Next)
        b.emplace_back(k, k->Item->Visible);
    return b;
}

/// A point and a line that are taken out, wiped and put back leave everything as it was.
void NimmUndSetzeZurueck(Probenetz& n, std::size_t a, std::size_t b) {
    const auto vorher = Bestand(n.l);
    PPunktKnoten p = Stelle(n.l.PunktKnoten, a % static_cast<std::size_t>(n.l.MaxPkte + 1));
    if (p == nullptr) return;
    const Herausnahme erste = n.l.NimmHeraus(*p);
    for (const auto& k : erste.kanten)
        k.knoten->Item->Hide(n.z);
    PPunktKante k = Stelle(n.l.KanteKnoten, b % static_cast<std::size_t>(n.l.MaxKant + 1));
    const Herausnahme zweite = k != nullptr ? n.l.NimmHeraus(*k) : Herausnahme{};
    n.l.SetzeZurueck(zweite);
    n.l.SetzeZurueck(erste);
    ASSERT_EQ(Bestand(n.l), vorher);
}

// Numbers, texts and pairs repeat, lines begin and end at one point, and keys vanish and come back.
TEST(Figurenindex, FindetWasEinGangVomKopfFaende) {
    struct {
        PunktIndex nummern;
        int texte, schritte, takt;
    } constexpr kFaelle[] = {{5, 4, 4000, 1}, {40, 300, 6000, 60}, {400, 1, 3000, 300}};
    for (const auto& f : kFaelle) {
        std::mt19937 zufall(4711);
        const auto nr = [&] { return static_cast<PunktIndex>(zufall() % f.nummern); };
        Probenetz n;
        for (int i = 0; i < f.schritte; ++i) {
            const auto was = zufall() % 100;
            PPunktKante k = Stelle(n.l.KanteKnoten, zufall() % static_cast<unsigned>(n.l.MaxKant + 1));
            if (was < 20) {
                n.P(nr());
            } else if (was < 45) {
                n.T(nr(), "T" + std::to_string(zufall() % static_cast<unsigned>(f.texte)));
            } else if (was < 75) {
                n.K(nr(), nr()).Item->XBiE = i;  // tells the lines apart in the record
            } else if (was < 85 && k != nullptr) {
                n.l.DreheKante(*k);
            } else if (was < 93) {
                n.l.DeleteKante(k, n.z);
            } else if (was < 96) {
                NimmUndSetzeZurueck(n, zufall(), zufall());
            } else if (was < 98) {
                n.l.DeletePunkt(Stelle(n.l.PunktKnoten, zufall() % static_cast<unsigned>(n.l.MaxPkte + 1)),
                                n.z);
            } else if (zufall() % 8 == 0) {
                n.l.PktTextDone(n.z);
                n.l.KanteDone(n.z);
                n.l.MaxKant = 0;
            }
            n.z.zeilen.clear();
            if (i % f.takt != 0) continue;
            VergleicheIndex(n, f.nummern, f.texte);
            if (HasFatalFailure()) FAIL() << "step " << i << " with " << f.nummern << " numbers";
        }
    }
}

// An older thing that takes a place may have a lower number than all the others when the table grows.
TEST(Markentafel, BehaeltHoheNummernBeimWachsen) {
    const auto streue = [](std::uint32_t nr) { return MischeBits(nr); };
    Markentafel tafel;
    std::vector<std::uint32_t> nummern;
    for (std::uint32_t i = 0; i < 500; ++i) {
        nummern.push_back(i % 2 == 0 ? i + 1 : 70'000 + i);
        tafel.ErwarteEintraege(tafel.Anzahl() + 1, nummern.back(), streue);
        tafel.TrageEin(streue(nummern.back()), nummern.back());
        for (const std::uint32_t nr : nummern)
            ASSERT_EQ(tafel.FindeNummer(streue(nr), [=](std::uint32_t n) { return n == nr; }), nr) << i;
    }
}

// Blocks of every length begin and end where they should, whatever was announced.
TEST(Figurenindex, ArenaFindetWasSieGab) {
    for (const std::size_t erwartet : {0U, 1U, 64U, 65U, 1000U, 30000U, 300000U}) {
        Arena<std::uint64_t> arena;
        arena.ErwarteKnoten(erwartet);
        std::vector<const std::uint64_t*> plaetze;
        for (std::uint64_t i = 0; i < 200'000; ++i)
            plaetze.push_back(arena.Neu(i));
        arena.ErwarteKnoten(erwartet);  // too late: changes nothing
        ASSERT_EQ(arena.Anzahl(), plaetze.size());
        for (std::size_t i = 0; i < plaetze.size(); ++i)
            ASSERT_TRUE(&arena[i] == plaetze[i] && arena[i] == i) << i << " of " << erwartet;
    }
}

}  // namespace
}  // namespace zrw
