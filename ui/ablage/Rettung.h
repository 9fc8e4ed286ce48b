// Keeps the unsaved plot of this program in a file of its own, and finds those that other programs left
// behind when they ended without a word. Every program locks its file, so that two of them do not disturb
// each other.
#pragma once

#include <QDateTime>
#include <QLockFile>
#include <QString>
#include <QStringList>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "model/Dateien.h"

namespace zrw {

class Rettung {
  public:
    /// @param ordner where the files are kept; empty: nothing is kept
    Rettung(QString ordner, Dateien& dateien) : ordner_(std::move(ordner)), dateien_(dateien) {}

    /// Keeps the bytes in place of those before. What is kept already is not written again.
    /// @throws Fehler where they cannot be written
    void BewahreBytes(const std::string& bytes);
    /// Nothing needs to be kept any more.
    void VergissDatei();

    /// Files that were left behind, oldest first. Each is this program's from now on, until it is done with.
    [[nodiscard]] QStringList Hinterlassene();
    [[nodiscard]] std::string LiesDatei(const QString& datei) const;
    /// The file is not wanted: it is put aside for some days, in case that was an error.
    void LegeAb(const QString& datei);
    /// Its plot is kept elsewhere.
    void EntferneDatei(const QString& datei);

  private:
    [[nodiscard]] bool BelegeDatei();

    QString ordner_;
    Dateien& dateien_;
    QString datei_;  ///< of this program; empty before the first time
    std::unique_ptr<QLockFile> sperre_;
    std::vector<std::unique_ptr<QLockFile>> fremde_;
    std::size_t stand_ = 0;  ///< hash of what is kept
    bool bewahrt_ = false;
};

}  // namespace zrw
