#include "ui/fenster/Bildtasten.h"
#include "ui/Systemart.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QWidget>
#include <array>
#include <utility>

namespace zrw {
namespace {

constexpr std::array<std::pair<int, Gehrichtung>, 4> kPfeile{{
    {Qt::Key_Left, Gehrichtung::Links},
    {Qt::Key_Right, Gehrichtung::Rechts},
    {Qt::Key_Up, Gehrichtung::Hinauf},
    {Qt::Key_Down, Gehrichtung::Hinunter},
}};

}  // namespace

Bildtasten::Bildtasten(QWidget& bild, Punktgang& gang) : QObject(&bild), gang_(gang) {
    setObjectName(QStringLiteral("BildTasten"));
    bild.installEventFilter(this);
}

bool Bildtasten::eventFilter(QObject* /*empfaenger*/, QEvent* ereignis) {
    if (ereignis->type() == QEvent::KeyPress) return HoertTaste(*static_cast<QKeyEvent*>(ereignis));
    // Who takes the mouse needs no ring.
    if (ereignis->type() == QEvent::MouseButtonPress) gang_.VergissPunkt();
    return ereignis->type() == QEvent::ContextMenu &&
           static_cast<QContextMenuEvent*>(ereignis)->reason() == QContextMenuEvent::Keyboard &&
           OeffneKontextmenue();
}

bool Bildtasten::HoertTaste(const QKeyEvent& taste) {
    const auto mit = taste.modifiers() & ~Qt::KeypadModifier;
    for (const auto& [pfeil, richtung] : kPfeile) {
        if (taste.key() != pfeil) continue;
        constexpr std::int64_t kWeit = 10;  // [px]
        if (mit == Qt::NoModifier) return gang_.ZieheHand(richtung, 1);
        if (mit == Qt::ShiftModifier) return gang_.ZieheHand(richtung, kWeit);
        if (mit == Qt::ControlModifier) gang_.GeheZumNaechsten(richtung);
        return mit == Qt::ControlModifier;
    }
    if (mit == Qt::NoModifier && (taste.key() == Qt::Key_Return || taste.key() == Qt::Key_Enter))
        return gang_.KlickePunkt();
    if (mit == Qt::NoModifier && taste.key() == Qt::Key_Escape) gang_.VergissPunkt();
    // Where the system makes no event of its own of it.
    if (!kWindows && mit == Qt::ShiftModifier && taste.key() == Qt::Key_F10) return OeffneKontextmenue();
    return false;
}

bool Bildtasten::OeffneKontextmenue() {
    if (!kontextmenue) return false;
    kontextmenue(gang_.Bildort());
    return true;
}

}  // namespace zrw
