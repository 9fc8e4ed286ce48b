// What the program makes once and hands on to its window.
#pragma once

#include <QString>

#include "input/tabellen/UnitZRWData.h"
#include "model/Dateien.h"
#include "model/Einstellungen.h"
#include "model/Netzangaben.h"
#include "output/Uhr.h"
#include "output/Zeichenzustand.h"
#include "ui/Dialogdienst.h"
#include "ui/ablage/Rettung.h"
#include "ui/ablage/Sitzung.h"
#include "ui/druck/Drucker.h"

namespace zrw {

/// All of it outlives the window.
struct Programm {
    Einstellungen& einstellungen;
    EinstellungsSpeicher& ablage;
    Netzangaben& netz;
    Zeichenzustand& zustand;
    Dateien& dateien;
    const Uhr& uhr;
    TDM& daten;
    Drucker& drucker;
    Dialogdienst& dialoge;
    Sitzung& sitzung;
    QString version;
    Rettung* rettung = nullptr;  ///< null: unsaved plots are not kept
};

}  // namespace zrw
