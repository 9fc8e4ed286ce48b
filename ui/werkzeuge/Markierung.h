// Highlights over the picture: what a click would hit, and what a drag would do.
#pragma once

#include "ui/werkzeuge/Werkzeug.h"

namespace zrw {

[[nodiscard]] Vorschau MarkierePunkt(Bildpunkt ort);
[[nodiscard]] Vorschau MarkiereKante(Bildpunkt anfang, Bildpunkt ende);
/// Frame round a label.
[[nodiscard]] Vorschau MarkiereText(const PktText& text);
[[nodiscard]] Vorschau MarkiereRechteck(Bildpunkt a, Bildpunkt b);

// The same for what is under the mouse; nothing where there is nothing.
[[nodiscard]] Vorschau MarkiereTreffer(const PunktKnoten* punkt);
[[nodiscard]] Vorschau MarkiereTreffer(const PunktKante* kante);
[[nodiscard]] Vorschau MarkiereTreffer(const PunktString* text);

}  // namespace zrw
