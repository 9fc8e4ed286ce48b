// The menus of the window, filled from the tables of commands, tools and switches, and the list of the last
// files below one of their entries.
#pragma once

#include <QString>
#include <QStringList>
#include <functional>

#include "ui/fenster/Aktionen.h"

class QMenuBar;
class QStatusBar;
class QWidget;

namespace zrw {

void BaueMenues(QMenuBar& leiste, const Aktionen& aktionen);

/// Puts a menu of files below an action; it asks for them when it opens.
void BaueDateimenue(QAction& aktion, QWidget& fenster, std::function<QStringList()> dateien,
                    std::function<void(const QString&)> oeffne);

/// Shows the status tips of a window without losing the message that stands there: it comes back when the
/// tip goes, unless another one has taken its place.
void BewahreMeldung(QWidget& fenster, QStatusBar& zeile);

}  // namespace zrw
