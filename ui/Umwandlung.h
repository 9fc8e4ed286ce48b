// The one conversion each way between the texts of the core and Qt's.
#pragma once

#include <QColor>
#include <QString>
#include <filesystem>
#include <string>
#include <string_view>

#include "model/Cp1252.h"
#include "model/Dateien.h"
#include "model/Werte.h"

namespace zrw {

[[nodiscard]] inline QString AusUtf8(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}
[[nodiscard]] inline QString AusNetz(std::string_view cp1252) {
    return AusUtf8(Cp1252NachUtf8(cp1252));
}
[[nodiscard]] inline std::string NachUtf8(const QString& text) {
    return text.toStdString();
}
[[nodiscard]] inline std::filesystem::path NachPfad(const QString& text) {
    return TextPfad(text.toStdString());
}
/// Colour value 0x00BBGGRR; what stands in the high byte has no meaning for a screen.
[[nodiscard]] inline QColor AlsQColor(Farbe f) {
    return QColor::fromRgb(static_cast<int>(f.wert & 0xFFU), static_cast<int>((f.wert >> 8U) & 0xFFU),
                           static_cast<int>((f.wert >> 16U) & 0xFFU));
}

}  // namespace zrw
