// The field of the print scale: accepts positive numbers only and falls back to the last one that was left
// in it.
#pragma once

#include <QLineEdit>
#include <optional>

namespace zrw {

class Massstabfeld final : public QLineEdit {
  public:
    explicit Massstabfeld(QWidget* eltern);

    /// The scale denominator, none while the field holds the beginning of a number ("", "0").
    [[nodiscard]] std::optional<double> Massstab() const;
};

}  // namespace zrw
