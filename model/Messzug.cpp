#include "model/Messzug.h"

#include <cmath>
#include <numbers>

#include "model/Cp1252.h"
#include "model/Netz.h"
#include "model/Zahlentext.h"

namespace zrw {

Messstrecke MissStrecke(Welt von, Welt nach) {
    constexpr double kVollkreis = 400.0;
    Messstrecke s;
    s.dY = nach.rechts - von.rechts;
    s.dX = nach.hoch - von.hoch;
    s.laenge = std::hypot(s.dY, s.dX);
    s.richtung.wert = std::atan2(s.dY, s.dX) * (kVollkreis / 2) / std::numbers::pi;
    if (s.richtung.wert < 0) s.richtung.wert += kVollkreis;
    if (s.richtung.wert >= kVollkreis || s.laenge == 0) s.richtung.wert = 0;  // a hair west of north
    return s;
}

std::string Metertext(double meter) {
    constexpr int kStellen = 3;
    return Festkomma(meter, 0, kStellen);
}

std::string Richtungstext(Gon richtung) {
    constexpr int kStellen = 4;
    std::string text = Festkomma(richtung.wert, 0, kStellen);
    return text == "400.0000" ? "0.0000" : text;
}

void Messzug::PruefeNummern(const Netz& netz) {
    for (Ecke& e : ecken_) {
        const PunktKnoten* p = e.nummer.empty() ? nullptr : netz.FindPunkt(e.nummer);
        if (p == nullptr || p->XWPu != e.ort.rechts || p->YWPu != e.ort.hoch) e.nummer.clear();
    }
}

double Messzug::Summe() const {
    double summe = 0;
    for (std::size_t i = 1; i < ecken_.size(); ++i)
        summe += MissStrecke(ecken_[i - 1].ort, ecken_[i].ort).laenge;
    return summe;
}

std::string Messzug::Tabelle() const {
    constexpr int kStellen = 2;
    const auto name = [](const Ecke& e) {
        if (!e.nummer.empty()) return Cp1252NachUtf8(e.nummer);
        return Festkomma(e.ort.rechts, 0, kStellen) + " " + Festkomma(e.ort.hoch, 0, kStellen);
    };
    std::string text = "Von\tNach\tdY [m]\tdX [m]\tStrecke [m]\tRichtungswinkel [gon]\n";
    for (std::size_t i = 1; i < ecken_.size(); ++i) {
        const Messstrecke s = MissStrecke(ecken_[i - 1].ort, ecken_[i].ort);
        text += name(ecken_[i - 1]) + '\t' + name(ecken_[i]) + '\t' + Metertext(s.dY) + '\t' +
                Metertext(s.dX) + '\t' + Metertext(s.laenge) + '\t' + Richtungstext(s.richtung) + '\n';
    }
    return text + "Summe\t\t\t\t" + Metertext(Summe()) + "\t\n";
}

}  // namespace zrw
