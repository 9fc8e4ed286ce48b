// Answers the window's questions in tests and keeps what it said.
#pragma once

#include <QStringList>

#include "ui/Dialogdienst.h"

namespace zrw {

class Antwortdienst final : public Dialogdienst {
  public:
    QStringList meldungen;
    QStringList gesagt;
    QStringList fragen;
    QList<Dateiwahl> wahlen;
    bool ja = false;
    std::optional<QString> datei;  ///< chosen in every file dialog; none: cancelled

    void Melde(const QString& text) override { meldungen << text; }
    void Sage(const QString& text) override { gesagt << text; }
    bool Frage(const QString& text) override {
        fragen << text;
        return ja;
    }
    std::optional<QString> WaehleZumOeffnen(const Dateiwahl& wahl) override {
        wahlen << wahl;
        return datei;
    }
    std::optional<QString> WaehleZumSpeichern(const Dateiwahl& wahl) override {
        wahlen << wahl;
        return datei;
    }
};

}  // namespace zrw
