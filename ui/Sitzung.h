// What the window remembers from one run to the next beside the settings: the last files, its size and its
// folder. Losing it costs nothing, so nothing here fails.
#pragma once

#include <QByteArray>
#include <QSettings>
#include <QString>
#include <QStringList>

namespace zrw {

class Sitzung {
  public:
    static constexpr int kLetzteDateien = 9;

    /// The user's own file.
    Sitzung();
    explicit Sitzung(const QString& inidatei);

    /// Newest first, at most `kLetzteDateien`.
    [[nodiscard]] QStringList LetzteDateien() const;
    void NimmDatei(const QString& datei);
    [[nodiscard]] QString Ordner() const;
    void MerkeOrdner(const QString& ordner);
    /// Place of a window, widths of columns: whatever a part of the window puts there under its name.
    [[nodiscard]] QByteArray Stand(const QString& name) const;
    void MerkeStand(const QString& name, const QByteArray& stand);

  private:
    QSettings ablage_;
};

}  // namespace zrw
