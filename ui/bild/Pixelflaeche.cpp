#include "ui/bild/Pixelflaeche.h"

#include <QFontInfo>
#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "output/Abschneiden.h"
#include "ui/Umwandlung.h"

namespace zrw {
namespace {

/// Larger shapes are rare: the painter draws them.
constexpr int kGroessterPixelstempel = 64;
constexpr int kGroesstePixelschrift = 40;  ///< [px]
constexpr std::size_t kMeisteStempel = 64;
constexpr int kMaskenrand = 4;  ///< round a shape that is made into a mask

std::uint32_t Pixelfarbe(Farbe f) {
    return 0xFF000000U | (f.wert & 0xFFU) << 16U | (f.wert & 0xFF00U) | (f.wert >> 16U & 0xFFU);
}

/// What is not white in a picture.
QRect Gemaltes(const QImage& bild) {
    QRect grenzen;
    for (int y = 0; y < bild.height(); ++y) {
        for (int x = 0; x < bild.width(); ++x) {
            if (bild.pixel(x, y) != qRgb(255, 255, 255)) grenzen |= QRect(x, y, 1, 1);
        }
    }
    return grenzen;
}

/// The pixels of one colour, in the frame of all that are painted.
Pixelmaske MaskeVon(const QImage& bild, QRgb farbe, QPoint null) {
    const QRect grenzen = Gemaltes(bild);
    Pixelmaske maske(grenzen.x() - null.x(), grenzen.y() - null.y(), grenzen.width(), grenzen.height());
    for (int y = 0; y < grenzen.height(); ++y) {
        for (int x = 0; x < grenzen.width(); ++x) {
            if (bild.pixel(grenzen.topLeft() + QPoint(x, y)) == farbe) maske.SetzePixel(x, y);
        }
    }
    return maske;
}

/// Characters small enough for masks of their font.
bool ZeichenPassen(const QFont& schrift) {
    constexpr int kSicher = 16;  ///< [px]
    constexpr int kGroesstes = Glyphensatz::kGroesste - 2 * kMaskenrand;
    if (QFontInfo(schrift).pixelSize() <= kSicher) return true;
    const QFontMetrics masse(schrift);
    for (int c = 0; c < 256; ++c) {
        const char zeichen = static_cast<char>(c);
        const QRect r = masse.boundingRect(AusNetz({&zeichen, 1}));
        if (r.width() > kGroesstes || r.height() > kGroesstes) return false;
    }
    return true;
}

}  // namespace

void Pixelflaeche::BindeAnBild(QPainter& maler, QImage& bild, double dichte) {
    dichte_ = dichte;
    // The rows belong to the picture alone here, so that asking for them copies nothing.
    const Zielbild ziel{reinterpret_cast<std::uint32_t*>(bild.bits()),
                        bild.width(),
                        bild.height(),
                        static_cast<std::size_t>(bild.bytesPerLine()) / sizeof(std::uint32_t),
                        &grund_,
                        helfer_};
    pixel_.BindeAn(ziel);
    glattstempel_.SetzeDichte(dichte);
    glattbild_.BindeAn(ziel, dichte);
    stempel_.clear();
    breite_.clear();
    schrifthoehe_ = Schrifthoehe();
    maler.begin(&bild);
    SetzeStrichbreite(dichte, dichte);
    BindeAn(maler, {0, 0, bild.width() - 1, bild.height() - 1});
}

void Pixelflaeche::SetzeKanten(bool glatt) {
    SchliesseAb();
    glatt_ = glatt;
    SetzeGlatt(glatt);
    Malerflaeche::SetzeSchrift(glatt ? glatteSchrift_ : eckigeSchrift_);
    schrifthoehe_ = Schrifthoehe();
}

void Pixelflaeche::SetzeAusschnitt(const Rechteck& r) {
    pixel_.SetzeAusschnitt(r);
    glattbild_.SetzeAusschnitt(pixel_.Ausschnitt());
    SetzeMalerausschnitt(pixel_.Ausschnitt());
}

Rechteck Pixelflaeche::Grenzen() const {
    constexpr std::int32_t kWeit = (1 << 30) - 2 * kGrosszuegig;
    return {-kWeit, -kWeit, kWeit, kWeit};
}

bool Pixelflaeche::SetztZeichen() const {
    return schnell_ && zeichenweise_ && schrifthoehe_ <= kGroesstePixelschrift;
}

bool Pixelflaeche::BeginneVonVorn() {
    if (Glaettet()) return glattstempel_.SetztZeichen() && glattbild_.BeginneVonVorn();
    if (!SetztZeichen()) return false;
    pixel_.BeginneVonVorn();
    return true;
}

void Pixelflaeche::BeendeVonVorn() {
    if (Glaettet()) return glattbild_.BeendeVonVorn();
    pixel_.BeendeVonVorn();
}

void Pixelflaeche::SetzeSchriften(const QFont& eckige, const QFont& glatte) {
    for (const Zeichenform form : {Zeichenform::Blank, Zeichenform::MitRand})
        pixel_.VergissZeichen(form);
    zeichenweise_ =
        !eckige.kerning() && eckige.hintingPreference() == QFont::PreferFullHinting && ZeichenPassen(eckige);
    eckigeSchrift_ = eckige;
    glatteSchrift_ = glatte;
    glattstempel_.SetzeSchrift(glatte, zeichenweise_);
    Malerflaeche::SetzeSchrift(glatt_ ? glatte : eckige);
    schrifthoehe_ = Schrifthoehe();
}

/// It draws over what waits, and nobody knows where.
void Pixelflaeche::VorDemMalen() {
    SchliesseAb();
    grund_.VergissAlles();
}

void Pixelflaeche::FuelleRechteck(const Rechteck& r, Farbe farbe) {
    if (!schnell_) return Malerflaeche::FuelleRechteck(r, farbe);
    if (glatt_) return glattbild_.FuelleRechteck(r, Pixelfarbe(farbe));
    pixel_.FuelleRechteck(r, Pixelfarbe(farbe));
}

void Pixelflaeche::Linie(Flaechenpunkt von, Flaechenpunkt nach) {
    const Stift& stift = AktuellerStift();
    if (!schnell_) return MaleLinie(von, nach);
    if (glatt_) {
        return glattbild_.Linie(von, nach, Pixelfarbe(stift.farbe), stift.breite,
                                stift.art == Strichart::Gestrichelt);
    }
    const auto breite = static_cast<int>(std::lround(stift.breite * dichte_));
    if (breite <= 1) {
        pixel_.Linie(von, nach, Pixelfarbe(stift.farbe), stift.art == Strichart::Gestrichelt);
    } else if (dichte_ != 1.0) {
        BreiteLinie(von, nach, breite, stift.farbe, stift.art == Strichart::Gestrichelt);
    } else if (const Pixelmaske* maske = BreiterStrich(von, nach)) {
        pixel_.Maske(*maske, von, Pixelfarbe(stift.farbe));
    } else {
        MaleLinie(von, nach);
    }
}

void Pixelflaeche::Linien(std::span<const Linienstueck> stuecke, Farbe farbe, std::int32_t breite) {
    if (!schnell_) return Malerflaeche::Linien(stuecke, farbe, breite);
    if (glatt_) return glattbild_.Linien(stuecke, Pixelfarbe(farbe), breite);
    const int dots = dichte_ == 1.0 ? breite : static_cast<int>(std::lround(breite * dichte_));
    if (dots <= 1) return pixel_.Linien(stuecke, Pixelfarbe(farbe));
    for (const Linienstueck& s : stuecke)
        BreiteLinie(s.von, s.nach, dots, farbe, s.gestrichelt);
}

/// Beside each other across the longer axis, as the thin ones are set.
void Pixelflaeche::BreiteLinie(Flaechenpunkt von, Flaechenpunkt nach, int breite, Farbe farbe,
                               bool gestrichelt) {
    const bool senkrecht =
        std::llabs(std::int64_t{nach.x} - von.x) < std::llabs(std::int64_t{nach.y} - von.y);
    for (int i = -(breite / 2); i < breite - breite / 2; ++i) {
        const Flaechenpunkt weg = senkrecht ? Flaechenpunkt{i, 0} : Flaechenpunkt{0, i};
        pixel_.Linie({von.x + weg.x, von.y + weg.y}, {nach.x + weg.x, nach.y + weg.y}, Pixelfarbe(farbe),
                     gestrichelt);
    }
}

/// The painter computes exactly only near its picture.
void Pixelflaeche::MaleLinie(Flaechenpunkt von, Flaechenpunkt nach) {
    const auto teil = SchneideLinieAb({von.x, von.y}, {nach.x, nach.y}, Sichtbar());
    if (!teil) return;
    Malerflaeche::Linie(teil->first, teil->second);
}

/// Short strokes of double width, of which large ellipses consist; null for others.
const Pixelmaske* Pixelflaeche::BreiterStrich(Flaechenpunkt von, Flaechenpunkt nach) {
    constexpr int kReichweite = 8;
    constexpr std::size_t kSeite = 2 * kReichweite + 1;
    const std::int64_t dx = std::int64_t{nach.x} - von.x;
    const std::int64_t dy = std::int64_t{nach.y} - von.y;
    if (AktuellerStift() != Stift{AktuellerStift().farbe, 2, Strichart::Voll} || std::abs(dx) > kReichweite ||
        std::abs(dy) > kReichweite)
        return nullptr;
    breite_.resize(kSeite * kSeite);
    auto& maske = breite_[static_cast<std::size_t>(dy + kReichweite) * kSeite +
                          static_cast<std::size_t>(dx + kReichweite)];
    if (!maske) {
        constexpr int kMitte = kReichweite + kMaskenrand;
        QImage bild(2 * kMitte + 1, 2 * kMitte + 1, QImage::Format_RGB32);
        bild.fill(Qt::white);
        QPainter maler(&bild);
        Malerflaeche flaeche(maler, {0, 0, 2 * kMitte, 2 * kMitte});
        flaeche.SetzeStift({kSchwarz, 2, Strichart::Voll});
        flaeche.Linie({kMitte, kMitte}, {kMitte + static_cast<int>(dx), kMitte + static_cast<int>(dy)});
        maler.end();
        maske = MaskeVon(bild, qRgb(0, 0, 0), {kMitte, kMitte});
    }
    return &*maske;
}

Pixelflaeche::Stempel Pixelflaeche::PraegeStempel(Form form, std::span<const Flaechenpunkt> ecken) const {
    int links = 0;
    int oben = 0;
    int rechts = 0;
    int unten = 0;
    for (const Flaechenpunkt& p : ecken) {
        links = std::min(links, p.x - ecken[0].x);
        oben = std::min(oben, p.y - ecken[0].y);
        rechts = std::max(rechts, p.x - ecken[0].x);
        unten = std::max(unten, p.y - ecken[0].y);
    }
    const QPoint null(kMaskenrand - links, kMaskenrand - oben);
    QImage bild(rechts - links + 2 * kMaskenrand + 1, unten - oben + 2 * kMaskenrand + 1,
                QImage::Format_RGB32);
    bild.fill(Qt::white);
    QPainter maler(&bild);
    Malerflaeche flaeche(maler, {0, 0, bild.width() - 1, bild.height() - 1});
    flaeche.SetzeStrichbreite(dichte_, dichte_);
    const bool leer = AktuellerPinsel().leer;
    flaeche.SetzeStift({Farbe{0x0000FF}, 1, Strichart::Voll});
    flaeche.SetzePinsel({Farbe{0xFF0000}, leer});
    Stempel stempel{form, leer, {}, {}, {}};
    std::vector<Flaechenpunkt> verlegt;
    for (const Flaechenpunkt& p : ecken) {
        stempel.ecken.push_back({p.x - ecken[0].x, p.y - ecken[0].y});
        verlegt.push_back({p.x - ecken[0].x + null.x(), p.y - ecken[0].y + null.y()});
    }
    const Rechteck r{verlegt[0].x, verlegt[0].y, verlegt.back().x, verlegt.back().y};
    switch (form) {
        case Form::Rechteck:
            flaeche.ZeichneRechteck(r);
            break;
        case Form::Ellipse:
            flaeche.Ellipse(r);
            break;
        case Form::Vieleck:
            flaeche.Vieleck(verlegt);
            break;
    }
    maler.end();
    stempel.rand = MaskeVon(bild, qRgb(255, 0, 0), null);
    if (!leer) stempel.fuellung = MaskeVon(bild, qRgb(0, 0, 255), null);
    return stempel;
}

const Pixelflaeche::Stempel& Pixelflaeche::SucheStempel(Form form, std::span<const Flaechenpunkt> ecken) {
    const bool leer = AktuellerPinsel().leer;
    for (const Stempel& s : stempel_) {
        if (s.form != form || s.leer != leer || s.ecken.size() != ecken.size()) continue;
        const bool gleich = std::equal(ecken.begin(), ecken.end(), s.ecken.begin(), [&](auto a, auto b) {
            return a.x - ecken[0].x == b.x && a.y - ecken[0].y == b.y;
        });
        if (gleich) return s;
    }
    if (stempel_.size() == kMeisteStempel) {
        SchliesseAb();
        stempel_.clear();
    }
    return stempel_.emplace_back(PraegeStempel(form, ecken));
}

bool Pixelflaeche::StempeleGlatt(Form form, std::span<const Flaechenpunkt> ecken) {
    const Glattform* f = glattstempel_.SucheForm(form, ecken, AktuellerPinsel().leer);
    if (f == nullptr) return false;
    const auto fuelle = [&] { glattbild_.Maske(f->fuellung, ecken[0], Pixelfarbe(AktuellerPinsel().farbe)); };
    if (!glattbild_.VonVorn()) fuelle();
    glattbild_.Maske(f->rand, ecken[0], Pixelfarbe(AktuellerStift().farbe));
    if (glattbild_.VonVorn()) fuelle();
    return true;
}

/// @return false: too large, or not of width 1
bool Pixelflaeche::StempeleForm(Form form, std::span<const Flaechenpunkt> ecken) {
    if (Glaettet() && AktuellerStift() == Stift{AktuellerStift().farbe, 1, Strichart::Voll} &&
        StempeleGlatt(form, ecken))
        return true;
    const auto klein = [&](Flaechenpunkt p) {
        return std::abs(std::int64_t{p.x} - ecken[0].x) <= kGroessterPixelstempel &&
               std::abs(std::int64_t{p.y} - ecken[0].y) <= kGroessterPixelstempel;
    };
    if (!schnell_ || glatt_ || ecken.empty() ||
        AktuellerStift() != Stift{AktuellerStift().farbe, 1, Strichart::Voll} ||
        !std::all_of(ecken.begin(), ecken.end(), klein))
        return false;
    const Stempel& s = SucheStempel(form, ecken);
    const std::uint32_t farbe = Pixelfarbe(AktuellerStift().farbe);
    if (s.leer) {
        pixel_.Maske(s.rand, ecken[0], farbe);
    } else {
        pixel_.Stempel(s.rand, s.fuellung, ecken[0], farbe, Pixelfarbe(AktuellerPinsel().farbe));
    }
    return true;
}

void Pixelflaeche::ZeichneRechteck(const Rechteck& r) {
    const std::array<Flaechenpunkt, 2> ecken{{{r.links, r.oben}, {r.rechts, r.unten}}};
    if (!StempeleForm(Form::Rechteck, ecken)) Malerflaeche::ZeichneRechteck(r);
}

void Pixelflaeche::Ellipse(const Rechteck& u) {
    const std::array<Flaechenpunkt, 2> ecken{{{u.links, u.oben}, {u.rechts, u.unten}}};
    if (!StempeleForm(Form::Ellipse, ecken)) Malerflaeche::Ellipse(u);
}

void Pixelflaeche::Vieleck(std::span<const Flaechenpunkt> ecken) {
    if (!StempeleForm(Form::Vieleck, ecken)) Malerflaeche::Vieleck(ecken);
}

void Pixelflaeche::PraegeZeichen(char c, Zeichenform form) {
    const std::string_view text(&c, 1);
    const int vorschub = Malerflaeche::Textbreite(text);
    const int hoehe = Texthoehe() + 2 * kMaskenrand;
    const QPoint null(kMaskenrand + hoehe, kMaskenrand);  // italics reach far beside their advance
    QImage bild(vorschub + 2 * null.x(), hoehe, QImage::Format_RGB32);
    bild.fill(Qt::white);
    QPainter maler(&bild);
    Malerflaeche(maler, {0, 0, bild.width() - 1, bild.height() - 1}, Schrift())
        .Text({null.x(), null.y()}, text, kSchwarz);
    maler.end();
    const Pixelmaske maske = MaskeVon(bild, qRgb(0, 0, 0), null);
    pixel_.NimmZeichen(form, c, form == Zeichenform::Blank ? maske : Verbreitert(maske, halorand_), vorschub);
}

void Pixelflaeche::Text(Flaechenpunkt ort, std::string_view text, Farbe farbe) {
    if (Glaettet()) return GlatterText(ort, text, farbe);
    if (SetztZeichen()) return SetzeZeile(ort, text, farbe, Zeichenform::Blank);
    Malerflaeche::Text(ort, text, farbe);
}

void Pixelflaeche::TextMitRand(Flaechenpunkt ort, std::string_view text, Farbe farbe, Farbe randfarbe,
                               std::int32_t rand) {
    if (!(Glaettet() ? glattstempel_.SetztZeichen() : SetztZeichen()))
        return Malerflaeche::TextMitRand(ort, text, farbe, randfarbe, rand);
    const bool vonVorn = VonVorn();
    if (vonVorn) Text(ort, text, farbe);
    if (Glaettet()) {
        SetzeGlatteZeile(ort, text, randfarbe,
                         [&](char c) -> const Deckmaske& { return glattstempel_.Halo(c, rand); });
    } else {
        if (std::exchange(halorand_, rand) != rand) pixel_.VergissZeichen(Zeichenform::MitRand);
        SetzeZeile(ort, text, randfarbe, Zeichenform::MitRand);
    }
    if (!vonVorn) Text(ort, text, farbe);
}

void Pixelflaeche::SetzeZeile(Flaechenpunkt ort, std::string_view text, Farbe farbe, Zeichenform form) {
    if (pixel_.Text(ort, text, Pixelfarbe(farbe), form)) return;
    for (const char c : text) {
        if (!pixel_.Schrift(form).Kennt(c)) PraegeZeichen(c, form);
    }
    pixel_.Text(ort, text, Pixelfarbe(farbe), form);
}

void Pixelflaeche::GlatterText(Flaechenpunkt ort, std::string_view text, Farbe farbe) {
    if (!glattstempel_.SetztZeichen()) return Malerflaeche::Text(ort, text, farbe);
    SetzeGlatteZeile(ort, text, farbe,
                     [this](char c) -> const Deckmaske& { return glattstempel_.Zeichen(c).maske; });
}

/// @param maske mask of a character
template <class Masken>
void Pixelflaeche::SetzeGlatteZeile(Flaechenpunkt ort, std::string_view text, Farbe farbe, Masken maske) {
    if (glattbild_.VonVorn()) {
        // Glyphs may stand out of their line.
        constexpr std::int32_t kUeberstand = 4;
        std::int32_t breite = 0;
        for (const char c : text)
            breite += glattstempel_.Zeichen(c).vorschub;
        if (glattbild_.Verdeckt({ort.x - kUeberstand, ort.y - kUeberstand, ort.x + breite + kUeberstand,
                                 ort.y + Texthoehe() + kUeberstand}))
            return;
    }
    std::array<Maskenort, Glattbild::kMeisteMasken> masken;
    while (!text.empty()) {
        const std::string_view teil = text.substr(0, masken.size());
        text.remove_prefix(teil.size());
        std::size_t anzahl = 0;
        for (const char c : teil) {
            masken[anzahl++] = {&maske(c), ort};
            ort.x += glattstempel_.Zeichen(c).vorschub;
        }
        glattbild_.Masken({masken.data(), anzahl}, Pixelfarbe(farbe));
    }
}

}  // namespace zrw
