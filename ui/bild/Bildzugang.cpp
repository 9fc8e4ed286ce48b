#include "ui/bild/Bildzugang.h"

#include "ui/bild/ImageZarwik.h"

namespace zrw {
namespace {

/// The class has no name of its own for the toolkit, so the object is asked.
QAccessibleInterface* NeuerZugang(const QString& /*klasse*/, QObject* objekt) {
    auto* bild = dynamic_cast<ImageZarwik*>(objekt);
    return bild != nullptr ? new Bildzugang(*bild) : nullptr;
}

}  // namespace

Bildzugang::Bildzugang(ImageZarwik& bild) : QAccessibleWidget(&bild, QAccessible::Canvas), bild_(bild) {}

QString Bildzugang::text(QAccessible::Text art) const {
    if (art == QAccessible::Value || art == QAccessible::Description) return bild_.Figurtext();
    return QAccessibleWidget::text(art);
}

void Bildzugang::MeldeAn() {
    QAccessible::installFactory(&NeuerZugang);
}

}  // namespace zrw
