// Small pictures of files: what a network looks like that nobody has opened. Drawn in the background, with
// nothing of the program but a copy of its settings.
#pragma once

#include <QImage>
#include <QObject>
#include <QSize>
#include <QString>
#include <QStringList>
#include <atomic>
#include <functional>
#include <memory>

#include "model/Einstellungen.h"

class QThread;

namespace zrw {

struct Dateivorschau {
    QImage bild;     ///< null: there is none, as of a file that takes too long
    QString mangel;  ///< why the file cannot be opened, in a few words; empty: it can
};

/// Reads the file and draws all its points, without their numbers.
/// @param groesse of the picture [px] @param weiter asked now and then; false: it is not wanted any more
[[nodiscard]] Dateivorschau ZeichneDateivorschau(const QString& datei, const Einstellungen& einstellungen,
                                                 QSize groesse, const std::function<bool()>& weiter);

class Vorschaureihe {
  public:
    Vorschaureihe();
    /// Waits for the file that is being read, which is left at the next occasion.
    ~Vorschaureihe();
    Vorschaureihe(const Vorschaureihe&) = delete;
    Vorschaureihe& operator=(const Vorschaureihe&) = delete;

    /// Once. @param fertig called in the thread of `empfaenger` for each file, as long as that lives
    void BeginneReihe(const QStringList& dateien, const Einstellungen& einstellungen, QSize groesse,
                      QObject& empfaenger, const std::function<void(int nummer, Dateivorschau)>& fertig);
    /// The rest is not wanted any more.
    void BrichAb() { *weiter_ = false; }

  private:
    std::shared_ptr<std::atomic<bool>> weiter_ = std::make_shared<std::atomic<bool>>(true);
    std::unique_ptr<QThread> faden_;
};

}  // namespace zrw
