#include "fuzz/fenster/Bedienung.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QCoreApplication>
#include <QLineEdit>
#include <QListView>
#include <QSpinBox>
#include <QTest>
#include <array>

#include "model/Bildorte.h"

namespace zrw {

QPoint Bedienung::Ort() {
    const QRect r = Bild().rect();
    const QPoint irgendwo(Kleinzahl(r.width()), Kleinzahl(r.height()));
    const Liste* netz = fenster_.Netz();
    if (netz == nullptr || netz->MaxPkte == 0 || WuerfleZahl(2) == 0) return irgendwo;
    const PunktKnoten* p = netz->PunktKnoten;
    for (std::size_t i = WuerfleZahl(static_cast<std::size_t>(netz->MaxPkte)); i > 0; --i)
        p = p->Next;
    const Bildpunkt b = BildortVon(*p, *netz);
    const QPoint ort(static_cast<int>(b.x % 100000), static_cast<int>(b.y % 100000));
    const QPoint daneben(Kleinzahl(3) * 10, -Kleinzahl(2) * 5);
    return r.contains(ort) ? ort + daneben : irgendwo;
}

Qt::MouseButton Bedienung::Maustaste() {
    static constexpr std::array kTasten{Qt::LeftButton, Qt::LeftButton, Qt::LeftButton, Qt::RightButton,
                                        Qt::MiddleButton};
    return kTasten[WuerfleZahl(kTasten.size())];
}

void Bedienung::SendeMaus(QEvent::Type art, QPoint ort, Qt::MouseButton taste, Qt::MouseButtons gedrueckt) {
    QMouseEvent e(art, ort, Bild().mapToGlobal(ort), taste, gedrueckt, Qt::NoModifier);
    QCoreApplication::sendEvent(&Bild(), &e);
}

void Bedienung::BedieneFenster(QWidget& fenster, bool schliesse) {
    QWidgetList felder;
    for (QWidget* w : fenster.findChildren<QWidget*>()) {
        if (w->isVisible() && w->isEnabled() && w->window() == &fenster) felder << w;
    }
    if (!felder.isEmpty()) BedieneFeld(felder[Stelle(felder.size())]);
    if (schliesse && WuerfleZahl(3) == 0) fenster.close();
}

void Bedienung::BedieneFeld(QWidget* w) {
    static const QStringList kTexte{"",   "0", "500", "12.5", "abc", "1", "HOHFELS", "99999999999999999",
                                    "-5", "Ü"};
    if (auto* knopf = qobject_cast<QAbstractButton*>(w)) {
        // Ending the program ends nothing here, but hides the window for a moment; now and then will do.
        if (knopf->objectName() == "SpeedButton7" && WuerfleZahl(20) != 0) return;
        knopf->click();
    } else if (auto* feld = qobject_cast<QLineEdit*>(w)) {
        feld->setText(kTexte[Stelle(kTexte.size())]);
        if (WuerfleZahl(2) == 0) QTest::keyClick(feld, Qt::Key_Return);
    } else if (auto* liste = qobject_cast<QListView*>(w); liste != nullptr && liste->model() != nullptr) {
        const int zeilen = liste->model()->rowCount();
        if (zeilen == 0) return;
        const QModelIndex zeile = liste->model()->index(Kleinzahl(zeilen), 0);
        liste->selectionModel()->select(zeile, QItemSelectionModel::Toggle);
        emit liste->clicked(zeile);
    } else if (auto* wahl = qobject_cast<QComboBox*>(w); wahl != nullptr && wahl->count() > 0) {
        wahl->setCurrentIndex(Kleinzahl(wahl->count()));
        emit wahl->activated(wahl->currentIndex());
    } else if (auto* zahl = qobject_cast<QSpinBox*>(w)) {
        zahl->setValue(Kleinzahl(3000));
    }
}

}  // namespace zrw
