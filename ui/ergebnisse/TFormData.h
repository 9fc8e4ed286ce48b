// The results browser: what the adjustment found for a point or a line, one table a tab. Read only.
#pragma once

#include <QDialog>

#include "ui/ablage/Sitzung.h"

class QLabel;

namespace zrw {

class Ergebnisgitter;

class TFormData final : public QDialog {
  public:
    /// @param sitzung remembers the widths of the columns and the place of the window
    TFormData(Sitzung& sitzung, QWidget* eltern);
    ~TFormData() override;

    [[nodiscard]] Ergebnisgitter& Gitter() { return *gitter_; }
    /// What is listed. @param angaben a line about it
    void SetzeTitel(const QString& titel, const QString& angaben);
    /// Shows the window without taking the keyboard.
    void ZeigeFenster();

  protected:
    void showEvent(QShowEvent* ereignis) override;

  private:
    Sitzung& sitzung_;
    QLabel* angaben_;
    Ergebnisgitter* gitter_;
    bool gezeigt_ = false;
};

}  // namespace zrw
