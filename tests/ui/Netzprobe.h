// The main window with a small network in which every figure stands at a known position.
#pragma once

#include <QListView>
#include <string>

#include "tests/ui/Fenster.h"

namespace zrw {

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
        LegeDateiAn("n.EIN", kNetz);
        LegeDateiAn("a.EIN", kAnderes);
        OeffneDatei("n.EIN");
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
    [[nodiscard]] QPoint Ort(std::string_view nummer) const { return Pixel(*fenster.Netz(), *Punkt(nummer)); }
    /// Where the number of a point begins.
    [[nodiscard]] QPoint Textort(std::string_view nummer) const {
        const Liste& l = *fenster.Netz();
        const Bildpunkt b = l.FindPktText(Punkt(nummer)->PNr)->Textort(BildortVon(*Punkt(nummer), l));
        return {static_cast<int>(b.x), static_cast<int>(b.y)};
    }

    /// Every figure in a line of text: "P A 125 250 FP Krei", "N A 5 5", "L A-C AR1 0"; "-" behind it when
    /// it is hidden.
    [[nodiscard]] QStringList Figuren() const {
        const QStringList arten{"FP", "FL", "FH", "NP"};
        const QStringList symbole{"Pkt", "Krei", "Kreu", "Qua", "Rau", "Drei"};
        const QStringList stile{"Null", "AR1", "AR2", "AST", "ARI1", "ARI2", "ASTI"};
        const auto name = [](const QStringList& namen, auto wert) {
            return namen.value(static_cast<int>(wert));
        };
        QStringList zeilen;
        const auto nimm = [&](const QString& zeile, const auto& f) {
            zeilen << zeile + (f.Visible ? "" : " -");
        };
        const Liste& l = *fenster.Netz();
        for (const PunktKnoten* p = l.PunktKnoten; p != nullptr; p = p->Next) {
            const zrw::Punkt& f = *p->Item;
            const QString ort = QString("%1 %2").arg(Pixel(l, *p).x()).arg(Pixel(l, *p).y());
            nimm(
                "P " + Name(p->PNr) + " " + ort + " " + name(arten, f.PktArt) + " " + name(symbole, f.PktTyp),
                f);
        }
        for (const PunktString* t = l.PktTextKnoten; t != nullptr; t = t->Next) {
            const PktText& f = *t->Item;
            nimm(QString("N %1 %2 %3").arg(Text(f.Aus.Text())).arg(f.XBiO).arg(f.YBiO), f);
        }
        for (const PunktKante* k = l.KanteKnoten; k != nullptr; k = k->Next) {
            const Kante& f = *k->Item;
            const QString enden = Name(k->ANr) + "-" + Name(k->ENr);
            nimm(QString("L %1 %2 %3").arg(enden, name(stile, f.LAttr)).arg(f.KAttr.Maske()), f);
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

    /// Lines and numbers hang on points that exist, and the counts are right.
    void PruefeNetz() const {
        const Liste& l = *fenster.Netz();
        std::int32_t punkte = 0;
        for (const PunktKnoten* p = l.PunktKnoten; p != nullptr; p = p->Next, ++punkte)
            ASSERT_EQ(l.SuchPkt(p->PNr), p);
        ASSERT_EQ(l.MaxPkte, punkte);
        std::int32_t kanten = 0;
        for (const PunktKante* k = l.KanteKnoten; k != nullptr; k = k->Next, ++kanten) {
            ASSERT_TRUE(l.SuchPkt(k->ANr) != nullptr && l.SuchPkt(k->ENr) != nullptr);
            ASSERT_NE(l.FindKante(k->ENr, k->ANr), nullptr);
        }
        ASSERT_EQ(l.MaxKant, kanten);
        for (const PunktString* t = l.PktTextKnoten; t != nullptr; t = t->Next) {
            ASSERT_EQ(l.FindPktText(t->TNr), t->Item);
            ASSERT_NE(l.SuchPkt(t->TNr), nullptr);
        }
    }

    template <class Teil = QAbstractButton>
    [[nodiscard]] Teil& FindeTeil(const char* dialog, const char* name) const {
        auto* teil = fenster.findChild<QWidget*>(dialog)->findChild<Teil*>(name);
        if (teil == nullptr) throw std::runtime_error(std::string("no component ") + name);
        return *teil;
    }
    [[nodiscard]] QStringList Eintraege(const char* kasten, const char* liste) const {
        const QAbstractItemModel& modell = *FindeTeil<QListView>(kasten, liste).model();
        QStringList texte;
        for (int i = 0; i < modell.rowCount(); ++i)
            texte << modell.index(i, 0).data().toString();
        return texte;
    }
    /// Selects exactly these entries.
    void WaehleTexte(const char* kasten, const char* liste, const QStringList& texte) const {
        auto& ansicht = FindeTeil<QListView>(kasten, liste);
        ansicht.clearSelection();
        for (int i = 0; i < ansicht.model()->rowCount(); ++i) {
            const QModelIndex stelle = ansicht.model()->index(i, 0);
            if (texte.contains(stelle.data().toString()))
                ansicht.selectionModel()->select(stelle, QItemSelectionModel::Select);
        }
    }
    void ZeichnePunkt(const QString& nummer, const QString& rechts, const QString& hoch) const {
        FindeTeil<QLineEdit>("TFormPunktart", "PktNummer").setText(nummer);
        FindeTeil<QLineEdit>("TFormPunktart", "PktY").setText(rechts);
        FindeTeil<QLineEdit>("TFormPunktart", "PktX").setText(hoch);
        FindeTeil("TFormPunktart", "DrawButton").click();
    }
    void NeuerPunkt(const QString& nummer, const QString& rechts, const QString& hoch) const {
        Modus("PunktartButton");
        FindeTeil("TFormPunktart", "CheckBoxNeuPkt").setChecked(true);
        ZeichnePunkt(nummer, rechts, hoch);
    }
    /// A network that no control file gives, as a picture file may hold it.
    void OeffneAlsBilddatei(Liste& l) {
        l.FindWorldMinMax();
        l.Weite = 800;
        l.Hoehe = 530;
        l.PasseEin();
        ByteSchreiber f;
        l.Store(f, netz);
        LegeDateiAn("o.ZRW", std::string(f.Inhalt()));
        OeffneDatei("o.ZRW");
    }
    /// The network as read, without asking.
    void Neu() {
        dialoge.antwort = false;
        OeffneDatei("n.EIN");
        Bildgroesse({800, 530});
    }
    void VerbirgPunkt(const char* nummer) {
        Modus("HidePktButton");
        Klick(Ort(nummer));
    }
    void VerbirgNummer(const char* nummer) {
        Modus("HidePktNrButton");
        Klick(Textort(nummer));
    }
    void NimmAllesZurueck() {
        for (int i = 0; i < 1000 && Knopf("RueckgaengigButton").isEnabled(); ++i)
            fenster.Rueckgaengig();
    }
};

}  // namespace zrw
