#include "ui/bild/Schriftquelle.h"

#include <QRawFont>

#include "ui/Umwandlung.h"

namespace zrw {

Schriftquelle LiesSchriftquelle(const QFont& schrift) {
    const QRawFont roh = QRawFont::fromFont(schrift);
    Schriftquelle quelle;
    // A system without fonts draws boxes, which have no tables and must not be asked for their name.
    if (!roh.isValid() || roh.fontTable("head").isEmpty()) return quelle;
    quelle.name = NachUtf8(roh.familyName());
    for (std::size_t z = 0; z < quelle.glyphen.size(); ++z) {
        const char byte = static_cast<char>(z);
        const QList<quint32> glyphen = roh.glyphIndexesForString(AusNetz({&byte, 1}));
        if (glyphen.size() == 1 && glyphen[0] <= 0xFFFF)
            quelle.glyphen[z] = static_cast<std::uint16_t>(glyphen[0]);
    }
    for (const char* name : {"head", "hhea", "hmtx", "maxp", "loca", "glyf", "cvt ", "fpgm", "prep", "OS/2"})
        quelle.tabellen[name] = roh.fontTable(name).toStdString();
    return quelle;
}

}  // namespace zrw
