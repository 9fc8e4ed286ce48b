// Highlights over the picture: what a click would hit, and what a drag would do.
#pragma once

#include "ui/werkzeuge/Werkzeug.h"

namespace zrw {

/// Stands out from every colour that figures have by default.
inline constexpr Farbe kMarkierfarbe{0x00A5FF};

[[nodiscard]] Vorschau MarkierePunkt(Bildpunkt ort);
[[nodiscard]] Vorschau MarkiereKante(Bildpunkt anfang, Bildpunkt ende);
/// Frame round a label; nothing for null.
[[nodiscard]] Vorschau MarkiereText(const Werkzeugumgebung& umgebung, const PunktString* text);
[[nodiscard]] Vorschau MarkiereRechteck(Bildpunkt a, Bildpunkt b);

/// A line as the network would have it, while it is being drawn.
[[nodiscard]] Vorschau ZeigeEntwurf(const Kante& kante, Bildpunkt anfang, Bildpunkt ende);

/// Both, the second above the first; either may be empty.
[[nodiscard]] Vorschau Zusammen(Vorschau unten, Vorschau oben);

// The same for what is under the mouse; nothing where there is nothing.
[[nodiscard]] Vorschau MarkiereTreffer(const Liste& netz, const PunktKnoten* punkt);
[[nodiscard]] Vorschau MarkiereTreffer(const Liste& netz, const PunktKante* kante);

/// Whether the mouse is over the picture.
[[nodiscard]] bool ImBild(const Ansicht& ansicht, Bildpunkt ort);

}  // namespace zrw
