#include "output/Plotdatei.h"

#include <algorithm>

#include "model/Ganzzahl.h"

namespace zrw {
namespace {

/// In the order of `Zugform`.
constexpr auto kLinien = std::to_array<std::string_view>({
    " PA %d,%d; PD %d,%d;PU;",
    " PA %d,%d; PD %d,%d; PD %d,%d; PD %d,%d; PD %d,%d; PU;",
    " PA %d,%d; PD %d,%d; PD %d,%d;PD %d,%d;PD %d,%d; PD %d,%d; PD %d,%d; PU;",
    " PA %d,%d; PD %d,%d; PD %d,%d;PD %d,%d;LT;LT-2; PD %d,%d; PD %d,%d; PD %d,%d; PU; LT;",
    " PA %d,%d; PD %d,%d;PU %d,%d PD %d,%d;PU;",
    " PA %d,%d; LT; LT-2; PD %d,%d; PU %d,%d PD %d,%d;LT;PU;",
    "PA %d,%d; PD %d,%d; PU %d,%d; LT; LT-2; PD %d,%d;LT;PU;",
    " PA %d,%d; PD %d,%d; PU %d,%d; LT; LT-2;PD %d,%d;LT;PU;",
    " PA %d,%d; LT; LT-2; PD %d,%d; PU;LT;PU;",
    " PA %d,%d;PD %d,%d; PU;",
    " PA %d,%d; PD %d,%d; PU;",
});
static_assert(kLinien.size() == kZugformen, "a line of the plotter file for each Zugform");

constexpr std::string_view kPunkt = " PA %d,%d; PD;PU;";
constexpr std::string_view kKreis = " PA %d,%d;CI %d;PU;";
constexpr std::string_view kPlotkreuz = " PA %d,%d;PD %d,%d;PU %d,%d;PD%d,%d;PU;";
constexpr std::string_view kDreieck = " PA %d,%d;PD %d,%d;PD %d,%d;PD %d,%d;PU;";
constexpr std::string_view kViereck = " PA %d,%d;PR %d,%d;PR %d,%d;PR %d,%d;PR %d,%d;PU;";
constexpr std::string_view kText = "PA %d,%d;PD;SI0.2,0.4;LB %s\x03;PU;";  // 3 is ETX, the end of a label

/// y upwards, as the plot has it.
constexpr std::int64_t Hoch(std::int64_t y) {
    return Differenz(0, y);
}

/// The pairs of positions, one behind the other.
template <std::size_t N>
std::array<std::int64_t, 2 * N> Paare(const std::array<Bildpunkt, N>& punkte) {
    std::array<std::int64_t, 2 * N> zahlen{};
    for (std::size_t i = 0; i < N; ++i) {
        zahlen[2 * i] = punkte[i].x;
        zahlen[2 * i + 1] = Hoch(punkte[i].y);
    }
    return zahlen;
}

}  // namespace

/// Fills the fields of a template in order; numbers left over are not written.
void Plotdatei::Zeile(std::string_view vorlage, std::span<const std::int64_t> zahlen, std::string_view text) {
    for (std::size_t feld = vorlage.find('%'); feld != std::string_view::npos; feld = vorlage.find('%')) {
        datei_.NimmText(vorlage.substr(0, feld));
        if (vorlage[feld + 1] == 's') {
            datei_.NimmNetztext(text);
        } else {
            datei_.NimmZahl(zahlen.front());
            zahlen = zahlen.subspan(1);
        }
        vorlage.remove_prefix(feld + 2);
    }
    datei_.NimmText(vorlage);
    datei_.NimmText("\r\n");
}

void Plotdatei::Linienzug(const Zug& zug) {
    std::array<Bildpunkt, kMeistePunkte> punkte{};
    std::copy(zug.punkte.begin(), zug.punkte.end(), punkte.begin());
    Zeile(kLinien[static_cast<std::size_t>(zug.form)], Paare(punkte));
}

void Plotdatei::Punkt(Bildpunkt ort) {
    Zeile(kPunkt, Paare(std::array{ort}));
}

void Plotdatei::Kreis(Bildpunkt mitte, std::int64_t radius) {
    Zeile(kKreis, std::array{mitte.x, Hoch(mitte.y), radius});
}

void Plotdatei::Kreuz(const std::array<Bildpunkt, 4>& enden) {
    Zeile(kPlotkreuz, Paare(enden));
}

void Plotdatei::Dreieck(const std::array<Bildpunkt, 3>& ecken) {
    Zeile(kDreieck, Paare(std::array{ecken[0], ecken[1], ecken[2], ecken[0]}));
}

void Plotdatei::Viereck(const std::array<Bildpunkt, 4>& ecken) {
    std::array<std::int64_t, 10> zahlen{ecken[0].x, Hoch(ecken[0].y)};
    for (std::size_t i = 0; i < ecken.size(); ++i) {
        const Bildpunkt& von = ecken[i];
        const Bildpunkt& nach = ecken[(i + 1) % ecken.size()];
        zahlen[2 * i + 2] = Differenz(nach.x, von.x);
        zahlen[2 * i + 3] = Differenz(von.y, nach.y);  // upwards, as the absolute pairs
    }
    Zeile(kViereck, zahlen);
}

void Plotdatei::Text(Bildpunkt ort, std::int64_t abstand, std::string_view text) {
    const Bildpunkt platz{Summe(ort.x, abstand), Differenz(ort.y, abstand)};
    Zeile(kText, Paare(std::array{platz}), text);
}

}  // namespace zrw
