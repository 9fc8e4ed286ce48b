// A drawer without a device: it writes down every call as one line of text, so that a test compares what was
// drawn, and in which order, as strings. Figures are wiped in white, so a wiping line names no colour.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "model/Figuren.h"
#include "model/Zeichner.h"

namespace zrw {

using Zeilen = std::vector<std::string>;

/// "Leeren 100 80", "Punkt zeigen 0x0000FF Krei Fu 10 20", "Kante wischen AR1 ST+GPS 10 20 30 40",
/// "Text zeigen 0x000000 12W 20 15" (where the text stands), "Legende zeigen 2 2", "Gitter", "KMQ",
/// "Residuen", "Residuenmassstab". Bytes without an enumerator appear as "?9".
class MerkZeichner final : public Zeichner {
  public:
    Zeilen zeilen;

    /// What was drawn since the last call.
    [[nodiscard]] Zeilen NimmZeilen() { return std::exchange(zeilen, {}); }

    void ClearPicture(std::int32_t weite, std::int32_t hoehe) override {
        zeilen.push_back("Leeren" + Zahlen({weite, hoehe}));
    }
    void ZeichnePunkt(const Punkt& p, Bildpunkt ort, Gang gang) override {
        constexpr std::array kTyp{"Pkt", "Krei", "Kreu", "Qua", "Rau", "Drei"};
        constexpr std::array kAttr{"Em", "Fu"};
        zeilen.push_back("Punkt" + Art(gang, p.Farbe) + " " + Name(kTyp, p.PktTyp) + " " +
                         Name(kAttr, p.PktAttr) + Zahlen({ort.x, ort.y}));
    }
    void ZeichneKante(const Kante& k, Bildpunkt a, Bildpunkt e, Gang gang) override {
        constexpr std::array kAttr{"Null", "AR1", "AR2", "AST", "ARI1", "ARI2", "ASTI"};
        zeilen.push_back("Kante" + Art(gang, k.Farbe) + " " + Name(kAttr, k.LAttr) + " " + Menge(k.KAttr) +
                         Zahlen({a.x, a.y, e.x, e.y}));
    }
    void ZeichneText(const PktText& t, Bildpunkt ort, Gang gang) override {
        zeilen.push_back("Text" + Art(gang, t.Col) + " " + std::string(t.Aus.Text()) +
                         Zahlen({t.Textort(ort).x, t.Textort(ort).y}));
    }
    void ZeichneLegende(Legende& l, Gang gang) override {
        zeilen.push_back((gang == Gang::Zeigen ? "Legende zeigen" : "Legende wischen") +
                         Zahlen({l.XO, l.YO}));
    }
    void GitterShow(const Bildvorlage& /*v*/) override { zeilen.push_back("Gitter"); }
    void KMGitterShow(const Bildvorlage& /*v*/) override { zeilen.push_back("KMQ"); }
    void ZeichnePunktRes(const Bildvorlage& /*v*/) override { zeilen.push_back("Residuen"); }
    void DrawResMasstab(const Bildvorlage& /*v*/) override { zeilen.push_back("Residuenmassstab"); }

  private:
    static std::string Art(Gang gang, Farbe farbe) {
        if (gang == Gang::Wischen) return " wischen";
        std::array<char, 16> text{};
        std::snprintf(text.data(), text.size(), "0x%06X", static_cast<unsigned>(farbe.wert));
        return std::string(" zeigen ") + text.data();
    }
    template <std::size_t N, class Aufzaehlung>
    static std::string Name(const std::array<const char*, N>& namen, Aufzaehlung wert) {
        const auto i = static_cast<std::size_t>(wert);
        return i < N ? namen[i] : "?" + std::to_string(i);
    }
    static std::string Menge(KanteAttr attr) {
        constexpr std::array kNamen{"ST", "GPS", "DH1", "DH2"};
        std::string text;
        for (std::size_t i = 0; i < kNamen.size(); ++i) {
            if (!attr.HatArt(static_cast<KanteAttr::Art>(i))) continue;
            text += (text.empty() ? "" : "+") + std::string(kNamen[i]);
        }
        return text.empty() ? "-" : text;
    }
    static std::string Zahlen(std::initializer_list<std::int64_t> werte) {
        std::string text;
        for (const std::int64_t w : werte)
            text += " " + std::to_string(w);
        return text;
    }
};

}  // namespace zrw
