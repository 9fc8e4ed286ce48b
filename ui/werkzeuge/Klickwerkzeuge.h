// The modes of one click: the figure under the mouse is highlighted, a press takes it.
#pragma once

#include "ui/werkzeuge/Werkzeug.h"

namespace zrw {

class Klickwerkzeug : public Werkzeug {
  public:
    explicit Klickwerkzeug(Werkzeugumgebung& umgebung) : umgebung_(umgebung) {}

    void Druecken(Bildpunkt ort) final;
    void Ziehen(Bildpunkt /*ort*/) final {}
    void Loslassen(Bildpunkt /*ort*/) final {}
    [[nodiscard]] bool EinKlickGenuegt() const final { return true; }
    void Schweben(Bildpunkt ort) final;
    void Abbrechen() final { umgebung_.ZeigeVorschau({}); }
    [[nodiscard]] Qt::CursorShape Zeiger() const override { return Qt::PointingHandCursor; }

  protected:
    [[nodiscard]] virtual Vorschau Treffer(Liste& netz, Bildpunkt ort) const = 0;
    virtual void Klick(Liste& netz, Bildpunkt ort) = 0;
    [[nodiscard]] Werkzeugumgebung& Umgebung() const { return umgebung_; }

  private:
    Werkzeugumgebung& umgebung_;
};

/// A mode that takes a point.
class Punktwerkzeug : public Klickwerkzeug {
  public:
    using Klickwerkzeug::Klickwerkzeug;

  protected:
    [[nodiscard]] Vorschau Treffer(Liste& netz, Bildpunkt ort) const override;
    void Klick(Liste& netz, Bildpunkt ort) final;
    virtual void NimmPunkt(Liste& netz, PunktKnoten& punkt) = 0;
};

class PunktLoeschen final : public Punktwerkzeug {
  public:
    using Punktwerkzeug::Punktwerkzeug;
    [[nodiscard]] QString Anleitung() const override;

  protected:
    void NimmPunkt(Liste& netz, PunktKnoten& punkt) override;
};

class PunktVerstecken final : public Punktwerkzeug {
  public:
    using Punktwerkzeug::Punktwerkzeug;
    [[nodiscard]] QString Anleitung() const override;

  protected:
    void NimmPunkt(Liste& netz, PunktKnoten& punkt) override;
};

class PunktartWaehlen final : public Punktwerkzeug {
  public:
    using Punktwerkzeug::Punktwerkzeug;
    void BeginneWerkzeug() override { Umgebung().ZeigeNebenfenster(Nebenfenster::Punktart, true); }
    void BeendeWerkzeug() override;
    [[nodiscard]] QString Anleitung() const override;

  protected:
    [[nodiscard]] Vorschau Treffer(Liste& netz, Bildpunkt ort) const override;
    void NimmPunkt(Liste& netz, PunktKnoten& punkt) override;
};

/// Takes a number by itself or by its point.
class NummerVerstecken final : public Klickwerkzeug {
  public:
    using Klickwerkzeug::Klickwerkzeug;
    [[nodiscard]] QString Anleitung() const override;

  protected:
    [[nodiscard]] Vorschau Treffer(Liste& netz, Bildpunkt ort) const override;
    void Klick(Liste& netz, Bildpunkt ort) override;
};

class BeobachtungLoeschen final : public Klickwerkzeug {
  public:
    using Klickwerkzeug::Klickwerkzeug;
    [[nodiscard]] QString Anleitung() const override;

  protected:
    [[nodiscard]] Vorschau Treffer(Liste& netz, Bildpunkt ort) const override;
    void Klick(Liste& netz, Bildpunkt ort) override;
};

/// Takes a point, else a line.
class ErgebnisZeigen final : public Klickwerkzeug {
  public:
    using Klickwerkzeug::Klickwerkzeug;
    void BeendeWerkzeug() override;
    [[nodiscard]] QString Anleitung() const override;

  protected:
    [[nodiscard]] Vorschau Treffer(Liste& netz, Bildpunkt ort) const override;
    void Klick(Liste& netz, Bildpunkt ort) override;
};

/// Centring by the lists of the group box: the mouse has nothing to do.
class Punktzentrierung final : public Klickwerkzeug {
  public:
    using Klickwerkzeug::Klickwerkzeug;
    void BeginneWerkzeug() override { Umgebung().ZeigeNebenfenster(Nebenfenster::Zentrierung, true); }
    void BeendeWerkzeug() override;
    [[nodiscard]] Qt::CursorShape Zeiger() const override { return Qt::ArrowCursor; }
    [[nodiscard]] QString Anleitung() const override;

  protected:
    [[nodiscard]] Vorschau Treffer(Liste& /*netz*/, Bildpunkt /*ort*/) const override { return {}; }
    void Klick(Liste& /*netz*/, Bildpunkt /*ort*/) override {}
};

}  // namespace zrw
