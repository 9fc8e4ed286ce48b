#include "model/Figuren.h"

#include "model/Bytes.h"
#include "model/Einstellungen.h"
#include "model/Ganzzahl.h"
#include "model/Zeichner.h"

namespace zrw {
namespace {

bool Zeichenbar(Bildpunkt ort) {
    return ImZeichenbereich(ort.x) && ImZeichenbereich(ort.y);
}

}  // namespace

// --- Ort --------------------------------------------------------------------------------------------------

void Ort::Store(ByteSchreiber& f) const {
    f.I64(XO);
    f.I64(YO);
}

void Ort::LoadOrt(ByteLeser& f) {
    XO = f.I64();
    YO = f.I64();
}

// --- Punkt ------------------------------------------------------------------------------------------------

Punkt Punkt::Create(PunktTyp iPTyp, zrw::Farbe iCol, PunktAttr iPAttr) {
    Punkt p;
    p.Farbe = iCol;
    p.PktAttr = iPAttr;
    p.PktTyp = iPTyp;
    return p;
}

Punkt Punkt::Load(ByteLeser& f) {
    Punkt p = Create(PunktTyp::Krei, kSchwarz, PunktAttr::Em);
    p.Farbe.wert = f.U32();
    p.PktAttr = static_cast<PunktAttr>(f.U8());
    p.PktTyp = static_cast<PunktTyp>(f.U8());
    p.Visible = f.Bool();
    p.LoadOrt(f);
    return p;
}

void Punkt::Store(ByteSchreiber& f) const {
    f.U32(Farbe.wert);
    f.U8(static_cast<std::uint8_t>(PktAttr));
    f.U8(static_cast<std::uint8_t>(PktTyp));
    f.U8(Visible ? 1 : 0);
    Ort::Store(f);
}

void Punkt::Done(Zeichner& z) {
    Hide(z);
}

void Punkt::Show(Zeichner& z) {
    if (Visible) ZeigeSymbolBei(Position(), z);
}

void Punkt::ZeigeSymbolBei(Bildpunkt ort, Zeichner& z) const {
    if (Zeichenbar(ort)) z.ZeichnePunkt(*this, ort, Gang::Zeigen);
}

void Punkt::Hide(Zeichner& z) {
    if (Zeichenbar(Position())) z.ZeichnePunkt(*this, Position(), Gang::Wischen);
    Visible = false;
}

void Punkt::MoveTo(std::int64_t newX, std::int64_t newY, Zeichner& z) {
    Hide(z);
    XO = newX;
    YO = newY;
    Show(z);
}

// --- Kante ------------------------------------------------------------------------------------------------

Kante Kante::Create(zrw::Farbe iCol, KanteAttr iKAttr, LinieAttr iLAttr) {
    Kante k;
    k.Farbe = iCol;
    k.KAttr = iKAttr;
    k.LAttr = iLAttr;
    return k;
}

Kante Kante::Load(ByteLeser& f) {
    Kante k;
    k.XBiE = f.I64();
    k.YBiE = f.I64();
    k.Farbe.wert = f.U32();
    k.KAttr = KanteAttr::AusMaske(f.U8());
    k.LAttr = static_cast<LinieAttr>(f.U8());
    k.Visible = f.Bool();
    k.LoadOrt(f);
    return k;
}

void Kante::Store(ByteSchreiber& f) const {
    f.I64(XBiE);
    f.I64(YBiE);
    f.U32(Farbe.wert);
    f.U8(KAttr.Maske());
    f.U8(static_cast<std::uint8_t>(LAttr));
    f.U8(Visible ? 1 : 0);
    Ort::Store(f);
}

void Kante::Show(Zeichner& z) {
    if (Visible) z.ZeichneKante(*this, Position(), Ende(), Gang::Zeigen);
}

void Kante::Done(Zeichner& z) {
    Hide(z);
}

void Kante::Hide(Zeichner& z) {
    z.ZeichneKante(*this, Position(), Ende(), Gang::Wischen);
    Visible = false;
}

void Kante::MoveTo(std::int64_t newXE, std::int64_t newYE, Zeichner& z) {
    Hide(z);
    Visible = true;
    XBiE = newXE;
    YBiE = newYE;
    Show(z);
}

void Kante::ChangeLAttr(LinieAttr newLAttr, Zeichner& z) {
    Hide(z);
    Visible = true;
    LAttr = newLAttr;
    Show(z);
}

// --- PktText ----------------------------------------------------------------------------------------------

PktText PktText::Create(std::string_view iAus, zrw::Farbe iCol, const Einstellungen& e) {
    PktText t;
    t.Aus = PunktNummernTyp(iAus);
    t.Col = iCol;
    t.XBiO = e.PXOff;
    t.YBiO = e.PYOff;
    return t;
}

PktText PktText::Load(ByteLeser& f) {
    PktText t;
    const std::size_t laenge = f.U8();
    // A length over 14 is damage; what stands in the 14 bytes is still the best guess at the number.
    t.Aus = PunktNummernTyp(f.Text(PunktNummernTyp::kLaenge).substr(0, laenge));
    t.Col.wert = f.U32();
    t.XBiO = f.I64();
    t.YBiO = f.I64();
    t.Visible = f.Bool();
    t.LoadOrt(f);
    return t;
}

Bildpunkt PktText::Textort(Bildpunkt ort) const {
    return {Summe(ort.x, XBiO), Summe(ort.y, YBiO)};
}

void PktText::Store(ByteSchreiber& f) const {
    f.U8(static_cast<std::uint8_t>(Aus.Text().size()));
    f.Text(Aus.Text(), PunktNummernTyp::kLaenge);
    f.U32(Col.wert);
    f.I64(XBiO);
    f.I64(YBiO);
    f.U8(Visible ? 1 : 0);
    Ort::Store(f);
}

void PktText::Done(Zeichner& z) {
    Hide(z);
}

void PktText::Show(Zeichner& z) {
    if (Visible) z.ZeichneText(*this, Position(), Gang::Zeigen);
}

void PktText::Hide(Zeichner& z) {
    z.ZeichneText(*this, Position(), Gang::Wischen);
    Visible = false;
}

void PktText::MoveTo(std::int64_t newX, std::int64_t newY, Zeichner& z) {
    Hide(z);
    XO = newX;
    YO = newY;
    Show(z);
}

Bildpunkt PktText::Drag(Zeichner& z) {
    const Bildpunkt vorher = Position();
    Show(z);
    const Bildpunkt weg{Differenz(XO, vorher.x), Differenz(YO, vorher.y)};
    XO = vorher.x;
    YO = vorher.y;
    return weg;
}

// --- Legende ----------------------------------------------------------------------------------------------

Legende Legende::Create() {
    Legende l;
    l.XO = 2;
    l.YO = 2;
    return l;
}

void Legende::Show(Zeichner& z) {
    if (Zeichenbar(Position())) z.ZeichneLegende(*this, Gang::Zeigen);
    Visible = true;
}

void Legende::Hide(Zeichner& z) {
    if (Zeichenbar(Position())) z.ZeichneLegende(*this, Gang::Wischen);
    Visible = false;
}

void Legende::Drag(std::int32_t newX, std::int32_t newY, Zeichner& z) {
    Hide(z);
    XO = newX;
    YO = newY;
    Show(z);
}

}  // namespace zrw
