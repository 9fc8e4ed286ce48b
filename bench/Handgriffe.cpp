// What the hand waits for in the largest network: a pan step, the redraw after a change of one figure, a
// wheel step, a look at what lies under the mouse. The pictures must be those of a plain redraw. usage:
// bench_handgriffe [ROUNDS]
#include <QApplication>
#include <cstdio>
#include <string>
#include <vector>

#include "bench/Ansichten.h"
#include "bench/Messung.h"
#include "bench/Netzgenerator.h"
#include "bench/Tabelle.h"
#include "input/Oeffnen.h"
#include "model/Bildorte.h"
#include "output/Uhr.h"
#include "ui/bild/Bildpflege.h"

namespace {

using namespace zrw::bench;

class Handgriffe {
  public:
    explicit Handgriffe(Tabelle& tabelle)
        : tabelle_(tabelle), netz_(BaueNetz({}, einstellungen_, {kWeite, kHoehe})), liste_(*netz_.liste) {
        zustand_.flaeche = &bild_;
        einfach_.Abkuerzungen = false;
        einfach_.flaeche = &vergleich_;
    }

    void MissHandgriffe(const Ansicht& a) {
        ansicht_ = std::string("Bild ") + a.name + ": ";
        SetzeAnsicht(liste_, a);
        pflege_.ZeichneNeu(liste_.Vorlage());
        Lauf("schieben um (37, 11)", 5, [&](int i) {
            const zrw::Bildpunkt weg = i % 2 == 0 ? zrw::Bildpunkt{37, 11} : zrw::Bildpunkt{-37, -11};
            liste_.SetzeVersatz(liste_.Versatz(), weg);
            pflege_.VerschiebeBild(liste_.Vorlage(), weg);
        });
        // A point in the middle of the picture disappears with all that is at it, and comes again.
        zrw::PunktKnoten* punkt = Mitte();
        const zrw::Figurenmenge umfeld = liste_.Umfeld(*punkt);
        Lauf("einen Punkt verstecken", 2, [&](int i) {
            pflege_.Vorher(liste_.Vorlage(), umfeld);
            for (zrw::PunktKante* k : umfeld.kanten)
                k->Item->Visible = i % 2 != 0;
            for (zrw::PunktString* t : umfeld.texte)
                t->Item->Visible = i % 2 != 0;
            punkt->Item->Visible = i % 2 != 0;
            pflege_.Nachher(liste_.Vorlage(), umfeld);
        });
        Lauf("Radschritt", 25, [&](int i) {
            const double vorher = liste_.Faktor;
            liste_.Faktor = i % 2 == 0 ? vorher / 1.25 : vorher * 1.25;
            liste_.XOffset += kWeite / 2.0 * (vorher - liste_.Faktor);
            liste_.YOffset -= kHoehe / 2.0 * (vorher - liste_.Faktor);
            pflege_.ZeichneNeu(liste_.Vorlage());
        });
        MissTreffer();
    }

  private:
    /// @param grenze [ms]; 0: none
    template <class Tat>
    void Lauf(const std::string& was, double grenze, Tat tat) {
        std::vector<double> zeiten;
        int anders = 0;
        // An even number of times, so that the view is as before.
        for (int i = 0; i < 2 * tabelle_.runden + 2; ++i) {
            const double ms = zrw::bench::MissZeit([&] {
                tat(i);
                return 0;
            });
            if (i >= 2) zeiten.push_back(ms);
            liste_.ShowPicture(einfacher_);
            anders += bild_.Bild() == vergleich_.Bild() ? 0 : 1;
        }
        std::printf("%s%s: %.2f ms, %d Bilder anders\n", ansicht_.c_str(), was.c_str(), Median(zeiten),
                    anders);
        tabelle_.NimmZeile({ansicht_ + was, zeiten, {}, Hoechstwert(grenze)});
        tabelle_.NimmZeile(
            {ansicht_ + was + ", andere Bilder", {static_cast<double>(anders)}, {}, Hoechstwert(0), ""});
    }

    void MissTreffer() {
        constexpr int kOrte = 200;
        std::vector<double> zeiten;
        for (int runde = 0; runde < tabelle_.runden; ++runde) {
            zeiten.push_back(zrw::bench::MissZeit([&] {
                                 std::size_t treffer = 0;
                                 for (int i = 0; i < kOrte; ++i) {
                                     const zrw::Bildpunkt maus{i * 37 % kWeite, i * 91 % kHoehe};
                                     treffer += liste_.ClickGezeigten(maus) != nullptr ? 1U : 0U;
                                     treffer += liste_.ClickGezeigtenText(maus) != nullptr ? 1U : 0U;
                                     treffer += liste_.PickGezeigte(maus) != nullptr ? 1U : 0U;
                                 }
                                 return treffer;
                             }) /
                             kOrte);
        }
        std::printf("%sPunkt, Nummer und Linie unter der Maus: %.4f ms\n", ansicht_.c_str(), Median(zeiten));
        tabelle_.NimmZeile({ansicht_ + "was unter der Maus liegt", zeiten, {}, Hoechstwert(0.1)});
    }

    zrw::PunktKnoten* Mitte() {
        zrw::PunktKnoten* p = liste_.PunktKnoten;
        while (p->Next != nullptr && !InDerMitte(BildortVon(*p, liste_)))
            p = p->Next;
        return p;
    }
    static bool InDerMitte(zrw::Bildpunkt ort) {
        return ort.x > kWeite / 3 && ort.x < kWeite / 2 && ort.y > kHoehe / 3 && ort.y < kHoehe / 2;
    }

    Tabelle& tabelle_;
    const zrw::Einstellungen einstellungen_;
    const zrw::Systemuhr uhr_;
    zrw::Lesung netz_;
    zrw::Liste& liste_;
    std::string ansicht_;
    zrw::Bildflaeche bild_{kWeite, kHoehe};
    zrw::Bildflaeche vergleich_{kWeite, kHoehe};
    zrw::Zeichenzustand zustand_;
    zrw::Zeichenzustand einfach_;
    zrw::Figurenzeichner zeichner_{zustand_, einstellungen_, netz_.netz, uhr_};
    zrw::Figurenzeichner einfacher_{einfach_, einstellungen_, netz_.netz, uhr_};
    zrw::Bildpflege pflege_{zustand_, bild_, zeichner_};
};

int MissAlles(Tabelle& tabelle) {
    Handgriffe handgriffe(tabelle);
    for (const Ansicht& a : kAnsichten) {
        if (!tabelle.kurz || a.name[0] != 'b') handgriffe.MissHandgriffe(a);
    }
    return 0;
}

}  // namespace

int main(int anzahl, char** argumente) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication anwendung(anzahl, argumente);
    return FuehreMessungAus(anzahl, argumente, 9, MissAlles);
}
