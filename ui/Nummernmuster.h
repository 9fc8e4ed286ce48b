// What users type to find a point number: a part of it, or a pattern of the whole in which * stands for any
// characters and ? for one. Case does not count.
#pragma once

#include <QRegularExpression>
#include <QString>
#include <QStringList>

namespace zrw {

class Nummernmuster {
  public:
    explicit Nummernmuster(const QString& eingabe);

    [[nodiscard]] bool Passt(const QString& nummer) const;
    /// It is the number itself.
    [[nodiscard]] bool IstNummer(const QString& nummer) const;
    /// Those that fit: the number itself, then those that begin with it, then all others, each as they stand.
    [[nodiscard]] QStringList Treffer(const QStringList& nummern, qsizetype hoechstens) const;

  private:
    QString eingabe_;
    QRegularExpression muster_;  ///< empty without a wildcard
};

}  // namespace zrw
