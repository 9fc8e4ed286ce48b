// The fields for how sheets of paper are made up: shown wherever sheets are printed or written.
#pragma once

#include <QWidget>
#include <functional>

#include "output/blatt/Blattgestaltung.h"

class QCheckBox;
class QComboBox;
class QLineEdit;
class QSpinBox;

namespace zrw {

class Blattfelder final : public QWidget {
  public:
    std::function<void()> geaendert;

    Blattfelder(const Blattgestaltung& anfang, QWidget* eltern);
    [[nodiscard]] Blattgestaltung Gestaltung() const;

  private:
    [[nodiscard]] QLineEdit* NeueZeile(const char* name, const char* hinweis, const std::string& text);
    void MeldeAenderung() const {
        if (geaendert) geaendert();
    }

    QLineEdit* firma_;
    QLineEdit* projekt_;
    QLineEdit* bearbeiter_;
    QSpinBox* ueberlappung_;
    QComboBox* stift_;
    QCheckBox* schwarzweiss_;
};

}  // namespace zrw
