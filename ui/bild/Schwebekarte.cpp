#include "ui/bild/Schwebekarte.h"

#include <algorithm>
#include <cstdlib>

namespace zrw {
namespace {

constexpr int kSchwebezeit = 300;   ///< [ms]
constexpr int kZeigerabstand = 14;  ///< from the mouse [px]
constexpr int kBleibtBei = 4;       ///< a card stays while the mouse moves no farther [px]

}  // namespace

Schwebekarte::Schwebekarte(QWidget* bild) : QLabel(bild) {
    setObjectName(QStringLiteral("SchwebeKarte"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::ToolTipBase);
    setForegroundRole(QPalette::ToolTipText);
    setFrameShape(QFrame::Box);
    setMargin(5);
    setTextFormat(Qt::RichText);
    hide();
    ruhe_.setSingleShot(true);
    connect(&ruhe_, &QTimer::timeout, this, [this] { ZeigeKarte(); });
}

void Schwebekarte::FolgeMaus(Bildpunkt ort) {
    const bool weg = std::max(std::llabs(ort.x - ort_.x), std::llabs(ort.y - ort_.y)) > kBleibtBei;
    if (isVisible() && !weg) return;
    hide();
    ort_ = ort;
    ruhe_.start(kSchwebezeit);
}

void Schwebekarte::VerbirgKarte() {
    ruhe_.stop();
    hide();
}

/// Right below the mouse, or where there is room.
void Schwebekarte::ZeigeKarte() {
    const QString inhalt = text ? text(ort_) : QString();
    if (inhalt.isEmpty()) return;
    setText(inhalt);
    adjustSize();
    const QSize platz = parentWidget()->size();
    const int mausX = static_cast<int>(ort_.x);
    const int mausY = static_cast<int>(ort_.y);
    const auto stelle = [](int maus, int laenge, int alles) {
        const int danach = maus + kZeigerabstand;
        return danach + laenge <= alles ? danach : std::max(maus - kZeigerabstand - laenge, 0);
    };
    move(stelle(mausX, width(), platz.width()), stelle(mausY, height(), platz.height()));
    show();
    raise();
}

}  // namespace zrw
