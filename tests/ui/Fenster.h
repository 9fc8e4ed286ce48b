// The main window in a test: with a folder, settings and answers of its own, driven by its buttons, the mouse
// and the keyboard.
#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QCheckBox>
#include <QCoreApplication>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>
#include <QWheelEvent>
#include <fstream>
#include <string>

#include "input/Systemdateien.h"
#include "model/Bildorte.h"
#include "model/Bytes.h"
#include "tests/hilfe/Antwortdienst.h"
#include "tests/hilfe/Festdrucker.h"
#include "tests/hilfe/Festuhr.h"
#include "tests/hilfe/Speicherdateien.h"
#include "ui/fenster/Hauptfenster.h"

namespace zrw {

/// Where a point lies in the picture.
inline QPoint Pixel(const Liste& l, const PunktKnoten& p) {
    const Bildpunkt b = BildortVon(p, l);
    return {static_cast<int>(b.x), static_cast<int>(b.y)};
}

class Fensterprobe : public testing::Test {
  protected:
    static constexpr const char* kBeispiel = ZRW_QUELLE "/beispiele/NETZ.EIN";

    Fensterprobe() {
        fenster.resize(1000, 700);
        fenster.show();
        bild = fenster.findChild<QWidget*>("ImageZarwik");
    }

    void LegeDateiAn(const QString& name, const std::string& inhalt) const {
        std::ofstream(ordner.filePath(name).toStdString(), std::ios::binary) << inhalt;
    }
    void OeffneDatei(const QString& name) { fenster.OeffneDatei(ordner.filePath(name).toStdString()); }
    template <class Teil>
    [[nodiscard]] Teil& Kind(const char* name) const {
        return *fenster.findChild<Teil*>(name);
    }
    [[nodiscard]] QToolButton& Knopf(const char* name) const { return Kind<QToolButton>(name); }
    [[nodiscard]] QCheckBox& Kasten(const char* name) const { return Kind<QCheckBox>(name); }
    void Modus(const char* knopf) const { Knopf(knopf).setChecked(true); }
    /// Saves as a picture file of that name, or not at all.
    void SpeichereDatei(const std::optional<QString>& name) {
        dialoge.datei = name ? std::optional(ordner.filePath(*name)) : std::nullopt;
        Knopf("SpeedButton9").click();
    }
    [[nodiscard]] QString Status() const { return fenster.statusBar()->currentMessage(); }
    void Taste(Qt::Key taste) const { QTest::keyClick(bild, taste); }
    void BewegeMaus(QPoint ort) const { QTest::mouseMove(bild, ort); }
    void DrueckeTaste(QPoint ort, Qt::MouseButton taste = Qt::LeftButton) const {
        QTest::mousePress(bild, taste, {}, ort);
    }
    void LassTasteLos(QPoint ort, Qt::MouseButton taste = Qt::LeftButton) const {
        QTest::mouseRelease(bild, taste, {}, ort);
    }
    void Klick(QPoint ort, Qt::MouseButton taste = Qt::LeftButton) const {
        DrueckeTaste(ort, taste);
        LassTasteLos(ort, taste);
    }
    void ZieheMaus(QPoint von, QPoint nach) const {
        DrueckeTaste(von);
        BewegeMaus((von + nach) / 2);
        BewegeMaus(nach);
        LassTasteLos(nach);
    }
    void Rad(QPoint ort, int schritte) const {
        QWheelEvent e(ort, bild->mapToGlobal(ort), {}, {0, schritte * 120}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(bild, &e);
    }
    /// What saving would write.
    [[nodiscard]] std::string Gespeichert() const {
        ByteSchreiber f;
        fenster.Netz()->Store(f, netz);
        return std::string(f.Inhalt());
    }
    /// What saving would write, and the picture.
    struct Stand {
        std::string bytes;
        QImage bild;
        bool operator==(const Stand&) const = default;
    };
    [[nodiscard]] Stand Jetzt() const { return {Gespeichert(), fenster.Bild().copy()}; }

    QTemporaryDir ordner;
    Einstellungen einstellungen;
    // Pictures are compared pixel by pixel: what lies over them comes from the painter, which has its own
    // idea of smooth edges.
    Speichereinstellungen ablage = [] {
        Speichereinstellungen eckig;
        eckig.werte["KantenGlaetten"] = "0";
        return eckig;
    }();
    Netzangaben netz;
    Zeichenzustand zustand;
    Systemdateien dateien;
    Festuhr uhr;
    TDM daten{dateien};
    Festdrucker drucker;
    Antwortdienst dialoge;
    Sitzung sitzung{ordner.filePath("sitzung.ini")};
    TZrwMainDlg fenster{
        {einstellungen, ablage, netz, zustand, dateien, uhr, daten, drucker, dialoge, sitzung, "1.2"}};
    QWidget* bild = nullptr;
};

}  // namespace zrw

// Readable in a failing comparison; found by the namespace of the Qt types.
inline void PrintTo(const QString& text, std::ostream* aus) {
    *aus << text.toStdString();
}
inline void PrintTo(const QPoint& p, std::ostream* aus) {
    *aus << "(" << p.x() << ", " << p.y() << ")";
}
inline void PrintTo(const QStringList& zeilen, std::ostream* aus) {
    *aus << "[" << zeilen.join(" | ").toStdString() << "]";
}
