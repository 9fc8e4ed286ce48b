// Dragging the boxes that stand over the plan. Not modes with a button: they are caught with no mode on and
// while point numbers are moved.
#pragma once

#include <optional>

#include "ui/werkzeuge/Werkzeug.h"

namespace zrw {

class KastenVerschieben : public Werkzeug {
  public:
    explicit KastenVerschieben(Werkzeugumgebung& umgebung) : umgebung_(umgebung) {}

    /// Whether a press here would take hold of the box; `Druecken` needs that.
    [[nodiscard]] virtual bool UeberGriff(Bildpunkt ort) const = 0;
    void Druecken(Bildpunkt ort) override;
    void Ziehen(Bildpunkt ort) override;
    void Loslassen(Bildpunkt ort) override;
    void Abbrechen() override;
    [[nodiscard]] Qt::CursorShape Zeiger() const override { return Qt::SizeAllCursor; }
    [[nodiscard]] QString Anleitung() const override { return {}; }

  protected:
    /// Its place in the plan [px], within 32 bits.
    [[nodiscard]] virtual Bildpunkt Ort() const = 0;
    virtual void SetzeOrt(Bildpunkt ort) = 0;
    [[nodiscard]] virtual Vorschau ZeigeBei(Bildpunkt ort) const = 0;
    virtual void NimmInDieHand(Bildpunkt maus) = 0;
    virtual void LassAusDerHand() = 0;
    /// What was done.
    [[nodiscard]] virtual QString Satz() const = 0;
    [[nodiscard]] Werkzeugumgebung& Umgebung() const { return umgebung_; }

  private:
    /// Where the box would come to lie.
    [[nodiscard]] Bildpunkt Ziel(Bildpunkt ort) const;

    Werkzeugumgebung& umgebung_;
    std::optional<Bildpunkt> anfang_;  ///< where the mouse went down
};

/// By its corner.
class LegendeVerschieben final : public KastenVerschieben {
  public:
    using KastenVerschieben::KastenVerschieben;
    [[nodiscard]] bool UeberGriff(Bildpunkt ort) const override;

  private:
    [[nodiscard]] Bildpunkt Ort() const override;
    void SetzeOrt(Bildpunkt ort) override;
    [[nodiscard]] Vorschau ZeigeBei(Bildpunkt ort) const override;
    void NimmInDieHand(Bildpunkt maus) override;
    void LassAusDerHand() override;
    [[nodiscard]] QString Satz() const override { return QStringLiteral("Legende verschoben"); }
};

/// The key, anywhere in its box.
class ErklaerungVerschieben final : public KastenVerschieben {
  public:
    using KastenVerschieben::KastenVerschieben;
    [[nodiscard]] bool UeberGriff(Bildpunkt ort) const override;

  private:
    [[nodiscard]] Bildpunkt Ort() const override;
    void SetzeOrt(Bildpunkt ort) override;
    [[nodiscard]] Vorschau ZeigeBei(Bildpunkt ort) const override;
    void NimmInDieHand(Bildpunkt maus) override;
    void LassAusDerHand() override;
    [[nodiscard]] QString Satz() const override { return QStringLiteral("Zeichenerklärung verschoben"); }
};

}  // namespace zrw
