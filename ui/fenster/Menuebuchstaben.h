// The letters that choose the entries of a menu with the keyboard: one of its own for each.
#pragma once

#include <QStringList>

namespace zrw {

/// The texts with "&" before the letter of each: beginnings of words first, then any letter that is left. One
/// that has its letter keeps it. Letters are told apart without case; a text for which none is left stays
/// without.
[[nodiscard]] QStringList MitBuchstaben(const QStringList& texte);

/// The letter of a text, in capitals; null where there is none.
[[nodiscard]] QChar Menuebuchstabe(const QString& text);

}  // namespace zrw
