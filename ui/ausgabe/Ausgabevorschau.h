// What an output will look like, in a small picture: drawn by the same routines, with fewer pixels.
#pragma once

#include <QImage>
#include <QSize>
#include <QString>

#include "ui/ausgabe/Formate.h"

namespace zrw {

struct Ausgabevorschau {
    QImage bild;   ///< null: there is none
    QString text;  ///< what stands below it: size, scale, sheets, or why there is no picture
};

/// @param platz the picture fits into it [px]
[[nodiscard]] Ausgabevorschau ZeichneAusgabe(const Format& format, const Ausgabe& ausgabe, QSize platz);

}  // namespace zrw
