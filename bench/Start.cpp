// The whole program on the largest network, each number from a process of its own: from the control file to
// the first picture, and what network and window hold in memory.
#include <QApplication>
#include <QMainWindow>
#include <QTemporaryDir>
#include <cstdio>
#include <string>
#include <vector>

#include "bench/Messung.h"
#include "bench/Netzgenerator.h"
#include "bench/Tabelle.h"
#include "input/Systemdateien.h"
#include "output/Figurenzeichner.h"
#include "output/Uhr.h"
#include "tests/hilfe/Antwortdienst.h"
#include "tests/hilfe/Festdrucker.h"
#include "tests/hilfe/Speicherdateien.h"
#include "ui/bild/Bildflaeche.h"
#include "ui/fenster/Hauptfenster.h"

namespace {

using namespace zrw::bench;
using Meldungen = zrw::Meldungsempfaenger;

constexpr int kWeite = 1920;
constexpr int kHoehe = 1080;

void DruckeZahl(double wert) {
    std::printf("%f\n", wert);
}

/// Time from the file to the picture [ms].
void ErstesBild(const std::string& datei) {
    DruckeZahl(MissZeit([&] {
        const zrw::Einstellungen e;
        const zrw::Systemdateien dateien;
        const zrw::Systemuhr uhr;
        const zrw::Lesung netz = zrw::OeffneNetz(datei, dateien, e, {}, {kWeite, kHoehe}, {});
        auto flaeche = std::make_unique<zrw::Bildflaeche>(kWeite, kHoehe);
        zrw::Zeichenzustand zustand{.flaeche = flaeche.get()};
        zrw::Figurenzeichner zeichner(zustand, e, netz.netz, uhr);
        netz.liste->ShowFL = true;
        netz.liste->ShowPicture(zeichner);
        flaeche->SchliesseAb();
        return flaeche;
    }));
}

/// Memory by which the process grows while the network is built [MB], its points and its lines.
void Netzspeicher(const std::string& datei) {
    const zrw::Einstellungen e;
    const zrw::Systemdateien dateien;
    const std::size_t vorher = Speicherbedarf();
    const zrw::Lesung netz = zrw::OeffneNetz(datei, dateien, e, {}, {kWeite, kHoehe}, {});
    const std::size_t nachher = Speicherbedarf();
    DruckeZahl(MB(nachher > vorher ? nachher - vorher : 0));
    DruckeZahl(netz.liste->MaxPkte);
    DruckeZahl(netz.liste->MaxKant);
}

/// Memory of an empty window of the same size [MB].
void LeeresFenster(const std::string& /*datei*/) {
    QMainWindow fenster;
    fenster.resize(kWeite, kHoehe);
    fenster.show();
    QApplication::processEvents();
    DruckeZahl(MB(Speicherbedarf()));
}

/// Memory of the program with the network in its window, without the picture [MB].
void VollesFenster(const std::string& datei) {
    const QTemporaryDir ordner;
    zrw::Einstellungen e;
    zrw::Speichereinstellungen ablage;
    zrw::Netzangaben netz;
    zrw::Zeichenzustand zustand;
    zrw::Systemdateien dateien;
    const zrw::Systemuhr uhr;
    zrw::TDM daten{dateien};
    zrw::Festdrucker drucker;
    zrw::Antwortdienst dialoge;
    zrw::Sitzung sitzung{ordner.filePath("sitzung.ini")};
    zrw::TZrwMainDlg fenster{{e, ablage, netz, zustand, dateien, uhr, daten, drucker, dialoge, sitzung, "1"}};
    fenster.resize(kWeite, kHoehe);
    fenster.show();
    fenster.OeffneDatei(zrw::TextPfad(datei));
    QApplication::processEvents();
    const QWidget& bild = *fenster.findChild<QWidget*>("ImageZarwik");
    const auto pixel = static_cast<std::size_t>(bild.width()) * static_cast<std::size_t>(bild.height());
    DruckeZahl(MB(Speicherbedarf() - 4 * pixel));
}

int Frisch(const Tabelle& tabelle) {
    if (tabelle.aufgabe == "netzspeicher") {
        Netzspeicher(tabelle.datei);
        return 0;
    }
    int worte = 1;
    char name[] = "bench_start";
    char* argumente[] = {name, nullptr};
    const QApplication anwendung(worte, argumente);
    if (tabelle.aufgabe == "bild") ErstesBild(tabelle.datei);
    if (tabelle.aufgabe == "leer") LeeresFenster(tabelle.datei);
    if (tabelle.aufgabe == "voll") VollesFenster(tabelle.datei);
    return 0;
}

int MissAlles(Tabelle& tabelle) {
    if (!tabelle.aufgabe.empty()) return Frisch(tabelle);
    const Zwischenordner ordner;
    const auto datei = ordner.Pfad() / "N.EIN";
    const auto punkte = ordner.Pfad() / "P.EIN";
    zrw::Systemdateien().ErsetzeDatei(datei, ErzeugeSteuerdatei({}));
    zrw::Systemdateien().ErsetzeDatei(punkte, ErzeugeSteuerdatei({.paare = 0, .beobachtungen = 0}));
    std::vector<double> bild;
    std::vector<double> netz;
    std::vector<double> jePunkt;
    std::vector<double> jeLinie;
    std::vector<double> programm;
    for (int i = 0; i < tabelle.runden; ++i) {
        bild.push_back(FrischerProzess("bild", datei)[0]);
        const std::vector<double> mit = FrischerProzess("netzspeicher", datei);
        const std::vector<double> ohne = FrischerProzess("netzspeicher", punkte);
        netz.push_back(mit[0]);
        jePunkt.push_back(ohne[0] * 1e6 / ohne[1]);
        jeLinie.push_back((mit[0] - ohne[0]) * 1e6 / mit[2]);
        programm.push_back(FrischerProzess("voll", datei)[0] - FrischerProzess("leer", datei)[0]);
    }
    tabelle.NimmZeile({"Steuerdatei bis zum ersten Bild, frischer Prozess", bild, {}, Hoechstwert(150)});
    tabelle.NimmZeile({"Speicher des Netzes", netz, {}, Hoechstwert(40), "MB"});
    tabelle.NimmZeile({"    je Punkt mit Nummer", jePunkt, {}, {}, "B"});
    tabelle.NimmZeile({"    je Linie", jeLinie, {}, {}, "B"});
    tabelle.NimmZeile({"Speicher über leerem Fenster, ohne Bild", programm, {}, Hoechstwert(64), "MB"});
    return 0;
}

}  // namespace

int main(int anzahl, char** worte) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    return FuehreMessungAus(anzahl, worte, 9, MissAlles);
}
