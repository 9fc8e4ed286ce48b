// The main window in a test: with a folder, settings and answers of its own, driven by its buttons, the mouse
// and the keyboard.
#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QCoreApplication>
#include <QListView>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>
#include <QWheelEvent>
#include <fstream>
#include <string>

#include "input/Systemdateien.h"
#include "model/Bytes.h"
#include "tests/hilfe/Antwortdienst.h"
#include "tests/hilfe/Festdrucker.h"
#include "tests/hilfe/Festuhr.h"
#include "tests/hilfe/Speicherdateien.h"
#include "ui/Hauptfenster.h"

namespace zrw {

class Fensterprobe : public testing::Test {
  protected:
    static constexpr const char* kBeispiel = ZRW_QUELLE "/beispiele/NETZ.EIN";

    Fensterprobe() {
        fenster.resize(1000, 700);
        fenster.show();
        bild = fenster.findChild<QWidget*>("ImageZarwik");
    }

    void Lege(const QString& name, const std::string& inhalt) const {
        std::ofstream(ordner.filePath(name).toStdString(), std::ios::binary) << inhalt;
    }
    void Oeffne(const QString& name) { fenster.Oeffne(ordner.filePath(name).toStdString()); }
    [[nodiscard]] QToolButton& Knopf(const char* name) const {
        return *fenster.findChild<QToolButton*>(name);
    }
    [[nodiscard]] QString Status() const { return fenster.statusBar()->currentMessage(); }
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

    QTemporaryDir ordner;
    Einstellungen einstellungen;
    Speichereinstellungen ablage;
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

/// The window with a small invented network at known picture positions:
///
///     C+D ---- E      A (125, 250), B (375, 250), C and D (250, 125), E (375, 125), a metre is an eighth
///    /   \\              of a pixel
///   A --- B
class Netzprobe : public Fensterprobe {
  protected:
    static constexpr QPoint A{125, 250}, B{375, 250}, C{250, 125}, E{375, 125};
    static constexpr const char* kNetz =
        "$NT 3\n"
        "$FP A              1         1000         1000\n"
        "    B              1         3000         1000\n"
        "$NP C              1         2000         2000\n"
        "    D              1         2000         2000\n"
        "    E              1         3000         2000\n"
        "$RS A\n$RZ C\n    B\n"
        "$RS B\n$RZ D\n"
        "$ST C E\n"
        "$$$\n";
    static constexpr const char* kAnderes =
        "$NT 3\n$FP A              1         1000         1000\n"
        "    Z              1         3000         2000\n$$$\n";

    Netzprobe() {
        Bildgroesse({800, 530});
        Lege("n.EIN", kNetz);
        Lege("a.EIN", kAnderes);
        Oeffne("n.EIN");
    }

    void Bildgroesse(QSize groesse) {
        // The panel wraps with the width and takes another height then.
        for (int i = 0; i < 3; ++i) {
            fenster.resize(fenster.size() + groesse - bild->size());
            QCoreApplication::processEvents();
        }
    }
    [[nodiscard]] static QString Text(std::string_view bytes) { return QString::fromLatin1(bytes); }
    [[nodiscard]] QString Name(PunktIndex nr) const { return Text(fenster.Netz()->GetPktText(nr)); }
    [[nodiscard]] const PunktKnoten* Punkt(std::string_view nummer) const {
        return fenster.Netz()->FindPunkt(nummer);
    }
    [[nodiscard]] QPoint Ort(std::string_view nummer) const {
        const zrw::Punkt& p = *Punkt(nummer)->Item;
        return {static_cast<int>(p.XO), static_cast<int>(p.YO)};
    }
    /// Where the number of a point begins.
    [[nodiscard]] QPoint Textort(std::string_view nummer) const {
        const Bildpunkt b = fenster.Netz()->FindPktText(Punkt(nummer)->PNr)->Textort();
        return {static_cast<int>(b.x), static_cast<int>(b.y)};
    }

    /// Every figure in a line of text: "P A 125 250 FP Krei", "N A 5 5", "L A-C AR1 0"; "-" behind it when
    /// it is hidden.
    [[nodiscard]] QStringList Figuren() const {
        const auto verborgen = [](bool sichtbar) { return QString(sichtbar ? "" : " -"); };
        QStringList zeilen;
        const Liste& l = *fenster.Netz();
        for (const PunktKnoten* p = l.PunktKnoten; p != nullptr; p = p->Next) {
            const zrw::Punkt& f = *p->Item;
            zeilen << QString("P %1 %2 %3 %4 %5")
                              .arg(Name(p->PNr))
                              .arg(f.XO)
                              .arg(f.YO)
                              .arg(QStringList{"FP", "FL", "FH", "NP"}.value(static_cast<int>(f.PktArt)))
                              .arg(QStringList{"Pkt", "Krei", "Kreu", "Qua", "Rau", "Drei"}.value(
                                  static_cast<int>(f.PktTyp))) +
                          verborgen(f.Visible);
        }
        for (const PunktString* t = l.PktTextKnoten; t != nullptr; t = t->Next) {
            zeilen << QString("N %1 %2 %3")
                              .arg(Text(t->Item->Aus.Text()))
                              .arg(t->Item->XBiO)
                              .arg(t->Item->YBiO) +
                          verborgen(t->Item->Visible);
        }
        for (const PunktKante* k = l.KanteKnoten; k != nullptr; k = k->Next) {
            const Kante& f = *k->Item;
            zeilen << QString("L %1-%2 %3 %4")
                              .arg(Name(k->ANr), Name(k->ENr))
                              .arg(QStringList{"Null", "AR1", "AR2", "AST", "ARI1", "ARI2", "ASTI"}.value(
                                  static_cast<int>(f.LAttr)))
                              .arg(f.KAttr.Maske()) +
                          verborgen(f.Visible);
        }
        return zeilen;
    }
    /// What went ("- ...") and what came ("+ ...") since the figures were `vorher`, sorted.
    [[nodiscard]] QStringList Aenderung(const QStringList& vorher) const {
        QStringList weg = vorher;
        QStringList neu;
        for (const QString& zeile : Figuren()) {
            if (!weg.removeOne(zeile)) neu << "+ " + zeile;
        }
        for (QString& zeile : weg)
            zeile.prepend("- ");
        neu << weg;
        neu.sort();
        return neu;
    }

    /// Lines and numbers hang on points that exist and stand where those are, and the counts are right.
    void PruefeNetz() const {
        const Liste& l = *fenster.Netz();
        std::int32_t punkte = 0;
        for (const PunktKnoten* p = l.PunktKnoten; p != nullptr; p = p->Next, ++punkte)
            ASSERT_EQ(l.SuchPkt(p->PNr), p);
        ASSERT_EQ(l.MaxPkte, punkte);
        std::int32_t kanten = 0;
        for (const PunktKante* k = l.KanteKnoten; k != nullptr; k = k->Next, ++kanten) {
            ASSERT_TRUE(l.SuchPkt(k->ANr) != nullptr && l.SuchPkt(k->ENr) != nullptr);
            ASSERT_EQ(k->Item->Position(), l.SuchPkt(k->ANr)->Item->Position());
            ASSERT_EQ(k->Item->Ende(), l.SuchPkt(k->ENr)->Item->Position());
            ASSERT_NE(l.FindKante(k->ENr, k->ANr), nullptr);
        }
        ASSERT_EQ(l.MaxKant, kanten);
        for (const PunktString* t = l.PktTextKnoten; t != nullptr; t = t->Next) {
            ASSERT_EQ(l.FindPktText(t->TNr), t->Item);
            ASSERT_EQ(t->Item->Position(), l.SuchPkt(t->TNr)->Item->Position());
        }
    }

    void Druecke(QPoint ort, Qt::MouseButton taste = Qt::LeftButton) const {
        QTest::mousePress(bild, taste, {}, ort);
    }
    void Lass(QPoint ort, Qt::MouseButton taste = Qt::LeftButton) const {
        QTest::mouseRelease(bild, taste, {}, ort);
    }
    void Klick(QPoint ort, Qt::MouseButton taste = Qt::LeftButton) const {
        Druecke(ort, taste);
        Lass(ort, taste);
    }
    void Ziehe(QPoint von, QPoint nach) const {
        Druecke(von);
        QTest::mouseMove(bild, (von + nach) / 2);
        QTest::mouseMove(bild, nach);
        Lass(nach);
    }
    void Modus(const char* knopf) const { Knopf(knopf).setChecked(true); }
    template <class Teil = QAbstractButton>
    [[nodiscard]] Teil& Finde(const char* dialog, const char* name) const {
        auto* teil = fenster.findChild<QWidget*>(dialog)->findChild<Teil*>(name);
        if (teil == nullptr) throw std::runtime_error(std::string("no component ") + name);
        return *teil;
    }
    [[nodiscard]] QStringList Eintraege(const char* kasten, const char* liste) const {
        const QAbstractItemModel& modell = *Finde<QListView>(kasten, liste).model();
        QStringList texte;
        for (int i = 0; i < modell.rowCount(); ++i)
            texte << modell.index(i, 0).data().toString();
        return texte;
    }
    /// Selects exactly these entries.
    void Waehle(const char* kasten, const char* liste, const QStringList& texte) const {
        auto& ansicht = Finde<QListView>(kasten, liste);
        ansicht.clearSelection();
        for (int i = 0; i < ansicht.model()->rowCount(); ++i) {
            const QModelIndex stelle = ansicht.model()->index(i, 0);
            if (texte.contains(stelle.data().toString()))
                ansicht.selectionModel()->select(stelle, QItemSelectionModel::Select);
        }
    }
    /// The network as read, without asking.
    void Neu() {
        dialoge.antwort = false;
        Oeffne("n.EIN");
        Bildgroesse({800, 530});
    }
    void Verbirg(const char* nummer) {
        Modus("HidePktButton");
        Klick(Ort(nummer));
    }
    void NimmAllesZurueck() {
        for (int i = 0; i < 1000 && Knopf("RueckgaengigButton").isEnabled(); ++i)
            fenster.Rueckgaengig();
    }
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
