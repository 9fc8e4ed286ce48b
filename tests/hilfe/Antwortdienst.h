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
    std::optional<bool> antwort;  ///< to questions that can be cancelled
    std::optional<QFont> schrift;
    QStringList auswahl;            ///< what was offered last
    std::optional<QString> datei;   ///< chosen in every file dialog; none: cancelled
    std::optional<QString> bitmap;  ///< for pictures in place of `datei`
    std::optional<Farbe> farbe;     ///< chosen in every colour dialog; none: cancelled

    void MeldeFehler(const QString& text) override { meldungen << text; }
    void SageErfolg(const QString& text) override { gesagt << text; }
    std::optional<bool> FrageMitAbbruch(const QString& text) override {
        fragen << text;
        return antwort;
    }
    std::optional<QFont> WaehleSchrift(const QFont& /*anfang*/) override { return schrift; }
    std::optional<QString> WaehleAus(const QStringList& texte) override {
        auswahl = texte;
        return datei;
    }
    bool FrageJaNein(const QString& text) override {
        fragen << text;
        return ja;
    }
    std::optional<QString> WaehleZumOeffnen(const Dateiwahl& wahl) override {
        wahlen << wahl;
        return datei;
    }
    std::optional<QString> WaehleZumSpeichern(const Dateiwahl& wahl) override {
        wahlen << wahl;
        if (bitmap && wahl.endung.startsWith("bmp")) return bitmap;
        return datei;
    }
    std::optional<QString> WaehleOrdner(const Dateiwahl& wahl) override {
        wahlen << wahl;
        return datei;
    }
    std::optional<Farbe> WaehleFarbe(Farbe /*anfang*/) override { return farbe; }
};

}  // namespace zrw
