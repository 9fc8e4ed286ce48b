#include "ui/Symbol.h"

#include <QFile>

#include "ui/Umwandlung.h"

/// The pictures sit in a static library, whose resources register only when asked to.
static void MeldeBilderAn() {
    Q_INIT_RESOURCE(bilder);
}

namespace zrw {

QIcon Symbol(std::string_view name) {
    MeldeBilderAn();
    QIcon symbol;
    for (const int groesse : {16, 20, 24, 30, 32, 36, 48, 64, 128, 256}) {
        const QString bild = QStringLiteral(":/bilder/%1/%2.png").arg(groesse).arg(AusUtf8(name));
        // The icon of the program alone is there in large sizes, too.
        if (QFile::exists(bild)) symbol.addFile(bild, {groesse, groesse});
    }
    return symbol;
}

}  // namespace zrw
