#include "ui/druck/Blattbild.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPixmap>
#include <algorithm>
#include <cstdlib>
#include <map>
#include <utility>

namespace zrw {
namespace {

/// The way of an arrow key; none for others.
QPoint Richtung(int taste) {
    static const std::map<int, QPoint> richtungen{
        {Qt::Key_Left, {-1, 0}}, {Qt::Key_Right, {1, 0}}, {Qt::Key_Up, {0, -1}}, {Qt::Key_Down, {0, 1}}};
    const auto r = richtungen.find(taste);
    return r == richtungen.end() ? QPoint() : r->second;
}

}  // namespace

Blattbild::Blattbild(QWidget* eltern) : QLabel(eltern) {
    setFocusPolicy(Qt::StrongFocus);
    setAlignment(Qt::AlignTop | Qt::AlignLeft);
    setToolTip(QStringLiteral(
        "Ziehen verschiebt die Blätter; ein Klick lässt eines weg. Mit den Tasten: Pfeile wählen "
        "ein Blatt, die Leertaste lässt es weg, Umschalt und Pfeile verschieben alle"));
    setAccessibleDescription(toolTip());
    NenneBlatt();
}

void Blattbild::ZeigeUebersicht(const QImage& bild, std::vector<Vorschaublatt> blaetter) {
    std::size_t stelle = std::min(aktuell_, std::max<std::size_t>(blaetter.size(), 1) - 1);
    if (aktuell_ < blaetter_.size()) {
        const Vorschaublatt& a = blaetter_[aktuell_];
        const auto b = std::find_if(blaetter.begin(), blaetter.end(), [&](const Vorschaublatt& x) {
            return x.zeile == a.zeile && x.spalte == a.spalte;
        });
        if (b != blaetter.end()) stelle = static_cast<std::size_t>(b - blaetter.begin());
    }
    blaetter_ = std::move(blaetter);
    setPixmap(QPixmap::fromImage(bild));
    WaehleBlatt(stelle);
}

void Blattbild::WaehleBlatt(std::size_t stelle) {
    aktuell_ = stelle;
    NenneBlatt();
    update();
}

/// For those who do not see the picture.
void Blattbild::NenneBlatt() {
    const QString was = QStringLiteral("Übersicht der Blätter");
    if (aktuell_ >= blaetter_.size()) return setAccessibleName(was);
    const Vorschaublatt& b = blaetter_[aktuell_];
    const auto gedruckt = std::count_if(blaetter_.begin(), blaetter_.end(),
                                        [](const Vorschaublatt& x) { return x.nummer > 0; });
    const QString wie = b.nummer > 0
                            ? QStringLiteral("wird gedruckt, Blatt %1 von %2").arg(b.nummer).arg(gedruckt)
                            : QStringLiteral("weggelassen");
    const Vorschaublatt& erstes = blaetter_.front();
    int spalte = b.spalte;
    for (const Vorschaublatt& x : blaetter_)
        spalte = std::min(spalte, x.spalte);
    setAccessibleName(was + QStringLiteral(": Zeile %1, Spalte %2, %3")
                                .arg(b.zeile - erstes.zeile + 1)
                                .arg(b.spalte - spalte + 1)
                                .arg(wie));
}

void Blattbild::GeheWeiter(int schritt) {
    const auto anzahl = static_cast<int>(blaetter_.size());
    WaehleBlatt(static_cast<std::size_t>((static_cast<int>(aktuell_) + schritt + anzahl) % anzahl));
}

void Blattbild::GeheUmZeile(int schritt) {
    const int zeile = blaetter_[aktuell_].zeile;
    const int spalte = blaetter_[aktuell_].spalte;
    // How many rows it is to go to a sheet: forth, or from the other end on when there is none.
    const auto weg = [&](const Vorschaublatt& b) {
        const int zeilen = blaetter_.back().zeile - blaetter_.front().zeile + 1;
        const int w = (b.zeile - zeile) * schritt;
        return w > 0 ? w : w + zeilen;
    };
    const auto ziel = std::min_element(blaetter_.begin(), blaetter_.end(),
                                       [&](const Vorschaublatt& a, const Vorschaublatt& b) {
                                           return std::pair(weg(a), std::abs(a.spalte - spalte)) <
                                                  std::pair(weg(b), std::abs(b.spalte - spalte));
                                       });
    WaehleBlatt(static_cast<std::size_t>(ziel - blaetter_.begin()));
}

void Blattbild::VerschiebeUmZehntel(QPoint richtung) {
    constexpr int kTeile = 10;
    const QSize blatt = blaetter_[aktuell_].ort.size();
    const QPoint weg(richtung.x() * std::max(blatt.width() / kTeile, 1),
                     richtung.y() * std::max(blatt.height() / kTeile, 1));
    if (gezogen) gezogen(weg);
}

void Blattbild::keyPressEvent(QKeyEvent* e) {
    const QPoint richtung = Richtung(e->key());
    const auto tasten = e->modifiers() & ~Qt::KeypadModifier;
    if (aktuell_ >= blaetter_.size() || (tasten != Qt::NoModifier && tasten != Qt::ShiftModifier))
        return QLabel::keyPressEvent(e);
    if (!richtung.isNull() && tasten == Qt::ShiftModifier) return VerschiebeUmZehntel(richtung);
    if (richtung.x() != 0) return GeheWeiter(richtung.x());
    if (richtung.y() != 0) return GeheUmZeile(richtung.y());
    if (e->key() != Qt::Key_Space || tasten != Qt::NoModifier) return QLabel::keyPressEvent(e);
    if (geklickt && !e->isAutoRepeat()) geklickt(blaetter_[aktuell_].ort.center());
}

void Blattbild::mousePressEvent(QMouseEvent* e) {
    anfang_ = e->position().toPoint();
}

void Blattbild::mouseReleaseEvent(QMouseEvent* e) {
    const QPoint weg = e->position().toPoint() - anfang_;
    if (weg.manhattanLength() >= QApplication::startDragDistance()) {
        if (gezogen) gezogen(weg);
        return;
    }
    const auto b = std::find_if(blaetter_.begin(), blaetter_.end(),
                                [&](const Vorschaublatt& x) { return x.ort.contains(anfang_); });
    if (b != blaetter_.end()) WaehleBlatt(static_cast<std::size_t>(b - blaetter_.begin()));
    if (geklickt) geklickt(anfang_);
}

/// Round the sheet that has the keyboard a frame, visible on every ground.
void Blattbild::paintEvent(QPaintEvent* e) {
    QLabel::paintEvent(e);
    if (!hasFocus() || aktuell_ >= blaetter_.size()) return;
    constexpr int kEinzug = 3;
    QPainter maler(this);
    maler.setBrush(Qt::NoBrush);
    const QRect rahmen = blaetter_[aktuell_].ort.adjusted(kEinzug, kEinzug, -kEinzug, -kEinzug);
    for (const auto& [farbe, breite] : {std::pair(palette().color(QPalette::Base), 5),
                                        std::pair(palette().color(QPalette::Highlight), 3)}) {
        maler.setPen(QPen(farbe, breite));
        maler.drawRect(rahmen);
    }
}

void Blattbild::focusInEvent(QFocusEvent* e) {
    QLabel::focusInEvent(e);
    update();
}

void Blattbild::focusOutEvent(QFocusEvent* e) {
    QLabel::focusOutEvent(e);
    update();
}

}  // namespace zrw
