// The painter of Qt used as well as its interface allows, as a peer for the picture: the same strokes,
// symbols and labels in the same order, but nothing handed over that cannot be seen, pens changed only where
// they change and lines of one pen in one go, symbols as ready-made images, labels laid out beforehand.
#pragma once

#include <QFont>
#include <QImage>
#include <QLine>
#include <QPainter>
#include <QPen>
#include <QStaticText>
#include <cstdint>
#include <optional>
#include <unordered_map>
#include <vector>

#include "model/FigListe.h"

namespace zrw::bench {

class GuterMaler {
  public:
    /// Lays out the labels of the list; the list and its labels must stay as they are.
    GuterMaler(Liste& liste, const Einstellungen& einstellungen, int weite, int hoehe, bool glatt = false);

    /// The whole picture with its current switches for lines and labels, without overlays.
    void ZeichneBild();
    [[nodiscard]] const QImage& Bild() const { return bild_; }
    /// Strokes of the last picture that reach over its border.
    struct Randstrich {
        QLine linie;
        bool gestrichelt = false;
    };
    [[nodiscard]] const std::vector<Randstrich>& Randstriche() const { return randstriche_; }

  private:
    struct Stempel {
        QImage bild;
        QPoint ecke;  ///< from the point
    };
    void Linien();
    void Kantenstriche(const Kante& kante);
    void GibBildAus();
    void Punkte();
    void Texte();
    const Stempel& Symbol(const Punkt& punkt);
    void SetzeFarbe(Farbe farbe);

    Liste& liste_;
    const Einstellungen& einstellungen_;
    QImage bild_;
    QPainter maler_;
    QFont schrift_;
    std::vector<QStaticText> texte_;  ///< in the order of the list
    std::unordered_map<std::uint64_t, Stempel> stempel_;
    std::unordered_map<std::uint64_t, QPen> stifte_;
    std::uint64_t stift_ = 0;  ///< key of the pen that is set
    std::vector<QLine> linien_;
    std::vector<Randstrich> randstriche_;
};

}  // namespace zrw::bench
