#include "output/Pixelbild.h"

#include <algorithm>
#include <atomic>
#include <bit>
#include <cassert>
#include <cstdlib>
#include <cstring>
#include <limits>

#include "output/Deckkarte.h"

namespace zrw {
namespace {

/// A stroke near the picture in one word.
std::uint64_t Gepackt(const Linienstueck& s) {
    const auto teil = [](std::int32_t v) { return std::uint64_t{static_cast<std::uint16_t>(v)}; };
    return teil(s.von.x) | teil(s.von.y) << 16U | teil(s.nach.x) << 32U | teil(s.nach.y) << 48U;
}

/// One of its ends.
Flaechenpunkt Entpackt(std::uint64_t wort, unsigned bit) {
    return Flaechenort(static_cast<std::int16_t>(wort >> bit), static_cast<std::int16_t>(wort >> (bit + 16)));
}

/// Whether places fit into 16 bits.
bool Kurz(const Rechteck& r) {
    constexpr std::int32_t kNah = std::numeric_limits<std::int16_t>::max();
    return std::min(r.links, r.oben) >= -kNah && std::max(r.rechts, r.unten) <= kNah;
}

/// Without the library call that compilers make of a copy: it takes longer than these few words.
void KopiereWorte(std::span<const std::uint64_t> worte, std::uint64_t* ziel) {
    for (const std::uint64_t& w : worte) {
        *ziel++ = w;
        std::atomic_signal_fence(std::memory_order_seq_cst);
    }
}

/// What the next word means.
template <class T>
T NimmAus(const std::uint64_t*& w) {
    return std::bit_cast<T>(*w++);
}

/// Words that a text takes.
constexpr std::size_t Textworte(std::size_t zeichen) {
    return (zeichen + sizeof(std::uint64_t) - 1) / sizeof(std::uint64_t);
}

}  // namespace

static_assert(std::endian::native == std::endian::little, "texts lie in words");
static_assert(kKachelhoehe == Deckung::kLaufhoehe && kKachelweite % 64 == 0,
              "several cores cover pixels at a time");

void Pixelbild::BindeAn(const Zielbild& bild) {
    SchliesseAb();
    bild_ = bild;
    kacheln_.TeileInKacheln(bild);
}

void Pixelbild::SetzeAusschnitt(const Rechteck& r) {
    kacheln_.SetzeAusschnitt(Geschnitten(r, Ganz()));
}

void Pixelbild::VerschiebeBild(int dx, int dy) {
    SchliesseAb();
    if (std::abs(dx) >= bild_.weite || std::abs(dy) >= bild_.hoehe) return;
    kacheln_.Grund().VergissAlles();
    const auto breite = static_cast<std::size_t>(bild_.weite - std::abs(dx)) * sizeof(std::uint32_t);
    for (int i = std::abs(dy); i < bild_.hoehe; ++i) {
        // Rows that are still to be copied must not be overwritten.
        const int nach = dy > 0 ? bild_.hoehe - 1 - (i - dy) : i + dy;
        std::memmove(bild_.pixel + static_cast<std::size_t>(nach) * bild_.zeile + std::max(dx, 0),
                     bild_.pixel + static_cast<std::size_t>(nach - dy) * bild_.zeile + std::max(-dx, 0),
                     breite);
    }
}

void Pixelbild::BeginneVonVorn() {
    SchliesseAb();
    deckung_.BeginneDeckung(bild_.weite, bild_.hoehe, Ausschnitt());
}

void Pixelbild::BeendeVonVorn() {
    SchliesseAb();
    deckung_.BeendeDeckung();
}

void Pixelbild::KartiereVerdecktes(Deckkarte& karte) {
    SchliesseAb();
    karte.VergissAlles();
    if (!VonVorn()) return;
    karte.BeginneKarte(bild_.weite, bild_.hoehe);
    karte.NimmTeil(deckung_, 0, 0);
}

// --- Orders -----------------------------------------------------------------------------------------------

/// One that is being put together.
class Pixelbild::Auftrag {
  public:
    /// A head and so many words.
    static constexpr std::size_t kMeisteWorte = 24;

    template <class T>
    void NimmWort(const T& wert) {
        worte_[anzahl_++] = std::bit_cast<Wort>(wert);
    }
    void NimmText(std::string_view text) {
        for (; text.size() >= sizeof(Wort); text.remove_prefix(sizeof(Wort)))
            NimmWort(LiesZeichen<Wort>(text, 0));
        if (!text.empty()) NimmWort(LetztesWort(text));
    }
    [[nodiscard]] std::span<const Wort> Mit(const Kopf& kopf) {
        worte_[0] = std::bit_cast<Wort>(kopf);
        return {worte_.data(), anzahl_};
    }

  private:
    template <class T>
    static T LiesZeichen(std::string_view text, std::size_t ab) {
        T wert;
        std::memcpy(&wert, text.data() + ab, sizeof wert);
        return wert;
    }
    /// Fewer characters than fill it, not one by one: in two parts, which may overlap.
    static Wort LetztesWort(std::string_view text) {
        const std::size_t n = text.size();
        const auto zusammen = [&](auto anfang) {
            const std::size_t rest = n - sizeof anfang;
            return Wort{anfang} | Wort{LiesZeichen<decltype(anfang)>(text, rest)} << (8 * rest);
        };
        if (n >= 4) return zusammen(LiesZeichen<std::uint32_t>(text, 0));
        if (n >= 2) return zusammen(LiesZeichen<std::uint16_t>(text, 0));
        return LiesZeichen<std::uint8_t>(text, 0);
    }

    std::array<Wort, 1 + kMeisteWorte> worte_;  // NOLINT(*-member-init): only those in use are set up
    std::size_t anzahl_ = 1;
};

/// At once, whatever tiles it touches.
void Pixelbild::ZeichneAllein(std::span<const Wort> auftrag) {
    kacheln_.Grund().VergissAlles();
    ZeichneAuftraege(Pinsel(Ausschnitt()), auftrag);
}

inline void Pixelbild::Gib(std::span<const Wort> auftrag, const Rechteck& umfang) {
    if (Allein()) return ZeichneAllein(auftrag);
    kacheln_.VerteileAuftrag(auftrag.size(), umfang, [&](Wort* ziel) { KopiereWorte(auftrag, ziel); });
}

void Pixelbild::FuelleRechteck(const Rechteck& r, std::uint32_t farbe) {
    assert(!VonVorn());
    const auto auftrag = [farbe](const Rechteck& teil) {
        return std::array{std::bit_cast<Wort>(Kopf{.farbe = farbe, .art = Art::Rechteck}),
                          std::bit_cast<Wort>(Flaechenpunkt{teil.links, teil.oben}),
                          std::bit_cast<Wort>(Flaechenpunkt{teil.rechts, teil.unten})};
    };
    if (Allein()) return ZeichneAllein(auftrag(r));
    kacheln_.VerteileFuellung(auftrag(r).size(), r, farbe,
                              [&](Wort* ziel, const Rechteck& teil) { KopiereWorte(auftrag(teil), ziel); });
}

void Pixelbild::Linie(Flaechenpunkt von, Flaechenpunkt nach, std::uint32_t farbe, bool gestrichelt) {
    const Linienstueck s{von, nach, gestrichelt};
    Linien({&s, 1}, farbe);
}

/// Strokes of one colour may change places.
void Pixelbild::Linien(std::span<const Linienstueck> stuecke, std::uint32_t farbe) {
    if (Allein()) {
        kacheln_.Grund().VergissAlles();
        const Pixelpinsel pinsel = Pinsel(Ausschnitt());
        for (const Linienstueck& s : stuecke)
            pinsel.Linie(s.von, s.nach, farbe, s.gestrichelt);
        return;
    }
    while (!stuecke.empty()) {
        const auto teil = stuecke.first(std::min(stuecke.size(), Auftrag::kMeisteWorte));
        stuecke = stuecke.subspan(teil.size());
        VerteileStriche(teil, farbe);
    }
}

/// In one order, solid ones first, if they lie beside each other.
void Pixelbild::VerteileStriche(std::span<const Linienstueck> stuecke, std::uint32_t farbe) {
    const Rechteck r = RahmenUm(stuecke);
    if (!Kurz(r) || !Beisammen(r)) {
        for (const Linienstueck& s : stuecke)
            VerteileLangen(s, farbe);
        return;
    }
    const auto dashes = static_cast<std::uint8_t>(
        std::count_if(stuecke.begin(), stuecke.end(), [](const Linienstueck& s) { return s.gestrichelt; }));
    const auto voll = static_cast<std::uint8_t>(stuecke.size() - dashes);
    kacheln_.VerteileAuftrag(1 + stuecke.size(), r, [&](Wort* ziel) {
        *ziel++ =
            std::bit_cast<Wort>(Kopf{.farbe = farbe, .art = Art::Striche, .anzahl = voll, .dashes = dashes});
        Wort* gestrichelte = ziel + voll;
        for (const Linienstueck& s : stuecke)
            *(s.gestrichelt ? gestrichelte : ziel)++ = Gepackt(s);
    });
}

void Pixelbild::VerteileLangen(const Linienstueck& s, std::uint32_t farbe) {
    Auftrag a;
    a.NimmWort(s.von);
    a.NimmWort(s.nach);
    const auto worte =
        a.Mit({.farbe = farbe, .art = Art::LangerStrich, .dashes = static_cast<std::uint8_t>(s.gestrichelt)});
    kacheln_.FuerStrich(s.von, s.nach, 0, [&](const Rechteck& r) { Gib(worte, r); });
}

void Pixelbild::Maske(const Pixelmaske& maske, Flaechenpunkt ort, std::uint32_t farbe) {
    Auftrag a;
    a.NimmWort(&maske);
    a.NimmWort(ort);
    Gib(a.Mit({.farbe = farbe, .art = Art::Maske}), maske.Umfang(ort));
}

void Pixelbild::Stempel(const Pixelmaske& rand, const Pixelmaske& fuellung, Flaechenpunkt ort,
                        std::uint32_t farbe, std::uint32_t fuellfarbe) {
    Auftrag a;
    a.NimmWort(&rand);
    a.NimmWort(&fuellung);
    a.NimmWort(Wort{fuellfarbe});
    a.NimmWort(ort);
    Gib(a.Mit({.farbe = farbe, .art = Art::Stempel}), rand.Umfang(ort));
}

bool Pixelbild::Text(Flaechenpunkt ort, std::string_view text, std::uint32_t farbe, Zeichenform form) {
    constexpr std::size_t kMeisteZeichen = Pixelpinsel::kMeisteZeichen;
    static_assert(Textworte(kMeisteZeichen) < Auftrag::kMeisteWorte);
    const Glyphensatz& schrift = Schrift(form);
    if (text.size() > kMeisteZeichen) {
        if (!schrift.Textbreite(text)) return false;
        for (; !text.empty(); text.remove_prefix(std::min(text.size(), kMeisteZeichen))) {
            const std::string_view teil = text.substr(0, kMeisteZeichen);
            Text(ort, teil, farbe, form);
            ort.x += *schrift.Textbreite(teil);
        }
        return true;
    }
    const std::optional<int> breite = schrift.Textbreite(text);
    if (!breite) return false;
    const Rechteck umfang = schrift.Umfang(ort, *breite);
    if (Verdeckt(umfang)) return true;
    Auftrag a;
    a.NimmWort(ort);
    a.NimmText(text);
    const auto anzahl = static_cast<std::uint8_t>(text.size());
    Gib(a.Mit({.farbe = farbe, .art = Art::Text, .anzahl = anzahl, .form = form}), umfang);
    return true;
}

void Pixelbild::NimmZeichen(Zeichenform form, char c, const Pixelmaske& maske, int vorschub) {
    SchliesseAb();
    schriften_[static_cast<std::size_t>(form)].NimmZeichen(c, maske, vorschub);
}

void Pixelbild::VergissZeichen(Zeichenform form) {
    SchliesseAb();
    schriften_[static_cast<std::size_t>(form)] = {};
}

// --- Drawing ----------------------------------------------------------------------------------------------

void Pixelbild::ZeichneAuftraege(const Pixelpinsel& pinsel, std::span<const Wort> auftraege) const {
    const Wort* w = auftraege.data();
    while (w != auftraege.data() + auftraege.size()) {
        const Kopf k = NimmAus<Kopf>(w);
        switch (k.art) {
            case Art::Rechteck: {
                const auto ecke = NimmAus<Flaechenpunkt>(w);
                const auto ende = NimmAus<Flaechenpunkt>(w);
                pinsel.FuelleRechteck({ecke.x, ecke.y, ende.x, ende.y}, k.farbe);
                break;
            }
            case Art::Striche:
                for (int i = 0; i < k.anzahl + k.dashes; ++i) {
                    const Wort wort = *w++;
                    pinsel.Linie(Entpackt(wort, 0), Entpackt(wort, 32), k.farbe, i >= k.anzahl);
                }
                break;
            case Art::LangerStrich: {
                const auto von = NimmAus<Flaechenpunkt>(w);
                pinsel.Linie(von, NimmAus<Flaechenpunkt>(w), k.farbe, k.dashes != 0);
                break;
            }
            case Art::Maske: {
                const auto* maske = NimmAus<const Pixelmaske*>(w);
                pinsel.Maske(*maske, NimmAus<Flaechenpunkt>(w), k.farbe);
                break;
            }
            case Art::Stempel: {
                const auto* rand = NimmAus<const Pixelmaske*>(w);
                const auto* fuellung = NimmAus<const Pixelmaske*>(w);
                const auto fuellfarbe = static_cast<std::uint32_t>(*w++);
                pinsel.Stempel(*rand, *fuellung, NimmAus<Flaechenpunkt>(w), k.farbe, fuellfarbe);
                break;
            }
            case Art::Text: {
                const auto ort = NimmAus<Flaechenpunkt>(w);
                const std::string_view text(reinterpret_cast<const char*>(w), k.anzahl);
                w += Textworte(k.anzahl);
                pinsel.Text(ort, text, k.farbe, Schrift(k.form));
                break;
            }
        }
    }
}

}  // namespace zrw
