#include "output/DXFUnit.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <utility>

#include "model/Zahlentext.h"

namespace zrw {
namespace {

constexpr std::string_view kZeilenende = "\r\n";
constexpr std::size_t kReallaenge = 23;
constexpr int kNachkommastellen = 14;
/// Largest amount that is written: what other programs still read as a number.
constexpr double kGroesste = 1e300;

/// The 23 characters of a real, see the head of DXFUnit.h.
std::string_view Realtext(double wert, std::array<char, 32>& puffer) {
    // Adding 0 turns minus zero into zero. Views of damaged files may lead to infinity or not-a-number.
    const double v = std::isnan(wert) ? 0.0 : std::clamp(wert, -kGroesste, kGroesste) + 0.0;
    char* anfang = puffer.data();
    if (v >= 0.0) *anfang++ = ' ';
    char* ende = std::to_chars(anfang, puffer.data() + puffer.size(), v, std::chars_format::scientific,
                               kNachkommastellen)
                     .ptr;
    // to_chars ends with "e+03", two or three digits.
    char* e = ende - 1;
    while (*e != 'e')
        --e;
    *e = 'E';
    char* ziffern = e + 2;
    const auto anzahl = ende - ziffern;
    std::copy_backward(ziffern, ende, ziffern + 4);
    std::fill(ziffern, ziffern + (4 - anzahl), '0');
    return {puffer.data(), kReallaenge};
}

}  // namespace

void DXFUnit::Paar(std::string_view code, std::string_view wert) {
    datei_->NimmText(code);
    datei_->NimmText(kZeilenende);
    datei_->NimmText(wert);
    datei_->NimmText(kZeilenende);
}

void DXFUnit::Paar(std::string_view code, double wert) {
    std::array<char, 32> puffer{};
    Paar(code, Realtext(wert, puffer));
}

void DXFUnit::Kopf(std::string_view name, const Dxfart& art) {
    Paar("  0", name);
    Paar("  8", art.layer);
    Paar("  6", art.linientyp);
}

void DXFUnit::Ort(Dxfpunkt p) {
    Paar(" 10", p.x);
    Paar(" 20", p.y);
    Paar(" 30", p.z);
}

void DXFUnit::DxfOpen() {
    fertig_.reset();
    datei_.emplace(dateien_.BeginneDatei(DxfFileName));
    Paar("  0", "SECTION");
    Paar("  2", "ENTITIES");
}

void DXFUnit::DxfClose() {
    if (!datei_) return;
    Paar("  0", "ENDSEC");
    Paar("  0", "EOF");
    // Closed for the callers, whatever the disk says now.
    fertig_ = std::exchange(datei_, std::nullopt);
    fertig_->SichereDatei();
}

void DXFUnit::ErsetzeZiel() {
    if (auto fertig = std::exchange(fertig_, std::nullopt)) fertig->ErsetzeZiel();
}

void DXFUnit::DxfLine(const Dxfart& art, Dxfpunkt von, Dxfpunkt nach) {
    Kopf("LINE", art);
    Ort(von);
    Paar(" 11", nach.x);
    Paar(" 21", nach.y);
    Paar(" 31", nach.z);
}

void DXFUnit::DxfPoint(const Dxfart& art, Dxfpunkt ort) {
    Kopf("POINT", art);
    Ort(ort);
}

void DXFUnit::DxfText(std::string_view text, const Dxfart& art, Dxfpunkt ort, double winkel, double hoehe) {
    Kopf("TEXT", art);
    Ort(ort);
    Paar(" 40", hoehe);
    datei_->NimmText("  1");
    datei_->NimmText(kZeilenende);
    datei_->NimmNetztext(text);
    datei_->NimmText(kZeilenende);
    Paar(" 50", Festkomma(winkel, 10, 4));
}

void DXFUnit::DxfCircle(const Dxfart& art, Dxfpunkt mitte, double radius) {
    Kopf("CIRCLE", art);
    Ort(mitte);
    Paar(" 40", radius);
}

}  // namespace zrw
