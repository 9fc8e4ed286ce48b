// What the window remembers from one run to the next beside the settings: the last files, its size and its
// folder. Losing it costs nothing, so nothing here fails.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QTimer>
#include <optional>

#include "ui/ablage/Inidatei.h"

namespace zrw {

class Sitzung {
  public:
    static constexpr int kLetzteDateien = 9;

    /// The user's own file.
    Sitzung();
    explicit Sitzung(const QString& inidatei);
    ~Sitzung();
    Sitzung(const Sitzung&) = delete;
    Sitzung& operator=(const Sitzung&) = delete;

    /// Why the file that is there could not be read. It is left alone then; nothing is remembered.
    [[nodiscard]] const std::optional<Fehler>& Lesefehler() const { return ablage_.Lesefehler(); }

    /// Newest first, at most `kLetzteDateien`.
    [[nodiscard]] QStringList LetzteDateien() const;
    void NimmDatei(const QString& datei);
    [[nodiscard]] QString Ordner() const;
    void MerkeOrdner(const QString& ordner);
    /// Place of a window, widths of columns: whatever a part of the window puts there under its name.
    [[nodiscard]] QByteArray Stand(const QString& name) const;
    void MerkeStand(const QString& name, const QByteArray& stand);

  private:
    void SetzeTexte(std::string_view schluessel, const QStringList& texte);
    void SichereAblage();

    Inidatei ablage_;
    QTimer bald_;  ///< one action remembers several things: they are written together
};

}  // namespace zrw
