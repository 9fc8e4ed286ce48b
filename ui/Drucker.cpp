#include "ui/Druckauskunft.h"

#include <QPrinter>
#include <QPrinterInfo>

#include "output/Export.h"

namespace zrw {

int Systemdrucker::Aufloesung() const {
    const QPrinterInfo info = QPrinterInfo::defaultPrinter();
    if (info.isNull()) return kUeblicheAufloesung;
    // Drivers that scale for themselves accept any resolution and name none, or several.
    const QList<int> moegliche = QPrinter(info, QPrinter::HighResolution).supportedResolutions();
    if (moegliche.isEmpty() || moegliche.contains(kUeblicheAufloesung)) return kUeblicheAufloesung;
    return moegliche.last() > 0 ? moegliche.last() : kUeblicheAufloesung;
}

}  // namespace zrw
