// How long the list of 200,000 observations takes: from tables that are imported already to the first picture
// of the table, and sorting, filtering and scrolling it.
#include <QApplication>
#include <QHeaderView>
#include <QImage>
#include <QTableView>
#include <QTemporaryDir>
#include <cstdio>
#include <memory>
#include <string>
#include <vector>

#include "beispiele/Zufall.h"
#include "bench/Messung.h"
#include "bench/Tabelle.h"
#include "input/Systemdateien.h"
#include "input/tabellen/Beobachtungsleser.h"
#include "ui/ergebnisse/Beobachtungsmodell.h"

namespace {

using namespace zrw::bench;

constexpr std::size_t kZeilen = 200'000;

/// Distances between invented points, one in a hundred flagged.
void SchreibeStrecken(zrw::Dateien& dateien, const std::string& ordner) {
    using zrw::paradox::Wert;
    zrw::beispiel::Zufall zufall(1);
    std::vector<std::vector<Wert>> zeilen;
    std::vector<std::string> nummern;
    for (std::size_t i = 0; i < kZeilen; ++i)
        nummern.push_back("NB" + std::to_string(i / 4));
    for (std::size_t i = 0; i < kZeilen; ++i) {
        std::vector<Wert> zeile(17);
        zeile[0] = static_cast<std::int64_t>(i + 1);
        zeile[1] = std::string_view(nummern[i]);
        zeile[2] = std::string_view(nummern[(i * 7919) % kZeilen]);
        for (std::size_t s = 3; s < 15; ++s)
            zeile[s] = zufall.Gleich(-5.0, 5.0);
        zeile[15] = i % 50 == 0;
        zeile[16] = i % 100 == 0;
        zeilen.push_back(std::move(zeile));
    }
    zrw::ErzeugeTabelle(dateien, ordner, zrw::Tabelle::Strecken, zeilen, 0);
}

/// The table as it would be shown.
class Anzeige {
  public:
    Anzeige() {
        tabelle_.setModel(&modell_);
        tabelle_.setSortingEnabled(true);
        tabelle_.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
        tabelle_.resize(1000, 700);
    }
    zrw::Beobachtungsmodell& Modell() { return modell_; }
    QTableView& Tabelle() { return tabelle_; }
    QImage Male() { return tabelle_.grab().toImage(); }

  private:
    zrw::Beobachtungsmodell modell_;
    QTableView tabelle_;
};

std::vector<Schritt> BaueSchritte(zrw::TDM& daten, Anzeige& anzeige) {
    using zrw::Listenspalte;
    const auto sortiere = [&anzeige](Listenspalte spalte, Qt::SortOrder ordnung) {
        return MissZeit([&] {
            anzeige.Modell().sort(static_cast<int>(spalte), ordnung);
            return anzeige.Male();
        });
    };
    return {
        {"(a) öffnen: Tabellen fragen, ordnen, zeigen", 0,
         [&] {
             return MissZeit([&] {
                 anzeige.Modell().SetzeListe(
                     std::make_shared<const zrw::Beobachtungsliste>(zrw::LiesBeobachtungen(daten)));
                 return anzeige.Male();
             });
         }},
        {"(b) nach Von ordnen, zeigen", 0,
         [sortiere] { return sortiere(Listenspalte::Von, Qt::AscendingOrder); }},
        {"(c) nach |TG| ordnen, zeigen", 0,
         [sortiere] { return sortiere(Listenspalte::TG, Qt::DescendingOrder); }},
        {"(d) nur markierte, zeigen, und wieder alle", 0,
         [&] {
             return MissZeit([&] {
                 zrw::Listenfilter filter;
                 filter.nurMarkierte = true;
                 anzeige.Modell().SetzeFilter(filter);
                 QImage bild = anzeige.Male();
                 anzeige.Modell().SetzeFilter({});
                 return bild;
             });
         }},
        {"(e) ans Ende rollen, zeigen, zurück", 0,
         [&] {
             return MissZeit([&] {
                 anzeige.Tabelle().scrollToBottom();
                 QImage bild = anzeige.Male();
                 anzeige.Tabelle().scrollToTop();
                 return bild;
             });
         }},
    };
}

int MissAlles(Tabelle& tabelle) {
    int worte = 1;
    char name[] = "bench_liste";
    char* argumente[] = {name, nullptr};
    const QApplication anwendung(worte, argumente);
    const QTemporaryDir ordner;
    zrw::Systemdateien dateien;
    SchreibeStrecken(dateien, ordner.path().toStdString());
    zrw::TDM daten(dateien);
    daten.SetzeOrdner(ordner.path().toStdString());
    std::printf("%zu Beobachtungen\n", zrw::LiesBeobachtungen(daten).zeilen.size());
    Anzeige anzeige;
    std::vector<Schritt> schritte = BaueSchritte(daten, anzeige);
    LaufeSchritte(schritte, tabelle.runden);
    DruckeSchritte(schritte);
    tabelle.NimmZeile(
        {"Liste der Beobachtungen öffnen, Tabellen schon gelesen", schritte[0].zeiten, {}, Hoechstwert(500)});
    tabelle.NimmZeile(
        {"Liste der Beobachtungen nach Punkten ordnen", schritte[1].zeiten, {}, Hoechstwert(100)});
    tabelle.NimmZeile({"Liste der Beobachtungen nach |TG| ordnen", schritte[2].zeiten, {}, Hoechstwert(100)});
    return 0;
}

}  // namespace

int main(int anzahl, char** worte) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    return FuehreMessungAus(anzahl, worte, 5, MissAlles);
}
