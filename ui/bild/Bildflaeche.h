// The screen picture as a drawing surface: a kept image that the window copies and the batch mode writes. It
// may have more pixels than the plan's sizes count, as fine screens do.
#pragma once

#include <QImage>

#include "ui/bild/Pixelflaeche.h"

namespace zrw {

class Bildflaeche final : public Pixelflaeche {
  public:
    Bildflaeche(int weite, int hoehe);
    /// Helpers may still be drawing into the picture.
    ~Bildflaeche() override { SchliesseAb(); }
    Bildflaeche(const Bildflaeche&) = delete;
    Bildflaeche& operator=(const Bildflaeche&) = delete;

    /// The picture as it stands.
    [[nodiscard]] const QImage& Bild() const {
        const_cast<Bildflaeche*>(this)->SchliesseAb();  // NOLINT: what was drawn is in the picture
        return bild_;
    }
    /// Moves what is drawn; the border that it comes from keeps its old pixels. [px of the picture]
    void VerschiebeBild(int dx, int dy);
    /// A new white picture. @param weite, hoehe [px of the plan's sizes] @param dichte pixels of the picture
    /// for each of them
    void SetzeGroesse(int weite, int hoehe, double dichte = 1.0);
    [[nodiscard]] double Dichte() const { return dichte_; }
    /// With smooth edges, from now on.
    void SetzeGlatt(bool glatt);
    using Pixelflaeche::Glatt;
    using Pixelflaeche::SchliesseAb;

    /// The font in the plan's sizes; that of the picture follows.
    void SetzePlanschrift(const QFont& schrift);
    [[nodiscard]] const QFont& Planschrift() const { return planschrift_; }
    /// Width and height of a text in the plan's sizes [px].
    [[nodiscard]] Bildpunkt Textgroesse(std::string_view text) const;

  private:
    QImage bild_;
    QPainter maler_;
    double dichte_ = 1.0;
    QFont planschrift_ = Zeichenschrift();
};

}  // namespace zrw
