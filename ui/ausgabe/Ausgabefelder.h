// The fields of an output: format, and what applies to that one. Where it goes is not in here.
#pragma once

#include <QString>
#include <QWidget>
#include <functional>
#include <optional>
#include <utility>
#include <vector>

#include "ui/ausgabe/Planausgabe.h"

class QCheckBox;
class QComboBox;
class QFormLayout;
class QSpinBox;

namespace zrw {

class Blattfelder;
class Massstabfeld;
struct Schalter;

/// What the fields begin with.
struct Ausgabeanfang {
    QString massstab;   ///< of the print, as in the field of the window
    bool glatt = true;  ///< edges of pictures
    Blattgestaltung gestaltung{};
};

class Ausgabefelder final : public QWidget {
  public:
    std::function<void()> geaendert;

    /// @param plan gives what the window shows, and is asked nothing afterwards
    Ausgabefelder(const Planausgabe& plan, const Ausgabeanfang& anfang, QWidget* eltern);

    [[nodiscard]] const Format& GewaehltesFormat() const;
    /// None while a scale is needed and its field holds none.
    [[nodiscard]] std::optional<Ausgabeauftrag> Auftrag() const;

  private:
    void BaueFormat(QFormLayout& form);
    void BaueNummern(QFormLayout& form);
    void BaueBild(QFormLayout& form, Bildgroesse groesse, bool glatt);
    void BaueBlatt(QFormLayout& form, const QString& massstab);
    void BaueGestaltung(QFormLayout& form, const Blattgestaltung& anfang);
    void BaueSchalter(QFormLayout& form, const Planausgabe& plan);
    template <class Teil>
    Teil& NeuesTeil(const char* name, const char* hinweis, Teil* teil);
    QCheckBox& NeuerKasten(const char* name, const char* text, const char* hinweis);
    /// Shown for formats with one of these marks.
    void NurBei(unsigned merkmale, QWidget& teil);
    void ZeigeFelder();
    void MeldeAenderung();
    /// None: numbers stay, or the format does not care.
    [[nodiscard]] std::optional<Nummernziel> Ordnen() const;
    /// Whether this applies to format and numbers.
    [[nodiscard]] bool Gilt(unsigned merkmal) const;
    [[nodiscard]] bool Wirkt(const Schalter& schalter) const;
    void NimmSchalter(Ausgabeauftrag& auftrag) const;

    QFormLayout* form_ = nullptr;
    Planfaerbung faerbung_;    ///< that of the window
    double ellipsenmassstab_;  ///< of the window
    QComboBox* format_ = nullptr;
    QComboBox* nummern_ = nullptr;
    QSpinBox* weite_ = nullptr;
    QSpinBox* hoehe_ = nullptr;
    QCheckBox* glatt_ = nullptr;
    QComboBox* papier_ = nullptr;
    QCheckBox* quer_ = nullptr;
    QCheckBox* alle_ = nullptr;
    QCheckBox* passend_ = nullptr;
    Massstabfeld* massstab_ = nullptr;
    QSpinBox* blaetter_ = nullptr;
    QSpinBox* dpi_ = nullptr;
    Blattfelder* gestaltung_ = nullptr;
    std::vector<std::pair<const Schalter*, QCheckBox*>> schalter_;
    std::vector<std::pair<unsigned, QWidget*>> bedingte_;
};

}  // namespace zrw
