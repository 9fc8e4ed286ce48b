// Start of the program: command line, then either the batch mode or the window.
#include <QApplication>
#include <QLibraryInfo>
#include <QStandardPaths>
#include <QTranslator>
#include <cstdio>

#include "app/Aufruf.h"
#include "app/Stapel.h"
#include "app/Systemstart.h"
#include "input/Systemdateien.h"
#include "ui/Systemart.h"
#include "ui/Umwandlung.h"
#include "ui/ablage/Einstellungsablage.h"
#include "ui/fenster/Hauptfenster.h"

namespace {

using namespace zrw;

/// What was kept and could not be read. The program runs with its defaults.
void MeldeLesefehler(const Einstellungsablage& ablage, const Sitzung& sitzung, Dialogdienst& dialoge) {
    if (const auto f = ablage.Lesefehler()) {
        dialoge.MeldeFehler(
            AusUtf8(f->what()) +
            QStringLiteral("\nEs gelten die üblichen Einstellungen. Die Datei bleibt, wie sie ist, bis "
                           "Einstellungen gespeichert werden."));
    }
    if (const auto& f = sitzung.Lesefehler()) {
        dialoge.MeldeFehler(
            AusUtf8(f->what()) +
            QStringLiteral("\nDie letzten Dateien und die Lage des Fensters werden nicht gemerkt."));
    }
}

int Fenster(const Aufruf& aufruf) {
    QApplication::setApplicationName(QStringLiteral("Zarwik"));
    QGuiApplication::setDesktopFileName(QStringLiteral("zarwik"));
    // Zarwik speaks German on every system; Qt's own dialogs do too where its translations are installed.
    QTranslator deutsch;
    if (deutsch.load(QStringLiteral("qtbase_de"), QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QApplication::installTranslator(&deutsch);
    }
    Einstellungen einstellungen;
    Einstellungsablage ablage;
    LoadSettings(einstellungen, ablage);
    Netzangaben netz;
    Zeichenzustand zustand;
    Systemdateien dateien;
    const Systemuhr uhr;
    TDM daten(dateien);
    QtDialogdienst dialoge;
    Sitzung sitzung;
    Systemdrucker drucker(dateien, &sitzung);
    Rettung rettung(
        QStandardPaths::writableLocation(QStandardPaths::CacheLocation) + QStringLiteral("/rettung"),
        dateien);
    TZrwMainDlg fenster({einstellungen, ablage, netz, zustand, dateien, uhr, daten, drucker, dialoge, sitzung,
                         QStringLiteral(ZRW_VERSION), &rettung});
    dialoge.SetzeEltern(&fenster);
    fenster.show();
    // When the window stands and has its size, as the network is fitted into it.
    QMetaObject::invokeMethod(
        &fenster,
        [&] {
            MeldeLesefehler(ablage, sitzung, dialoge);
            if (fenster.BieteRettungAn()) return;
            if (!aufruf.datei.empty()) fenster.OeffneDatei(TextPfad(aufruf.datei));
        },
        Qt::QueuedConnection);
    return QApplication::exec();
}

/// Batch output is our own lines only; what Qt says about a missing desktop helps nobody there.
void VerschweigeMeldung(QtMsgType /*art*/, const QMessageLogContext& /*stelle*/, const QString& /*text*/) {}

}  // namespace

int main(int argc, char** argv) {
    Aufruf aufruf;
    VerbindeKonsole();
    try {
        aufruf = LiesAufruf(Aufrufworte(argc, argv));
    } catch (const Falschaufruf& f) {
        DruckeZeile(f.text + ". Hilfe mit --help.");
        return 2;
    }
    if (aufruf.auftrag == Auftrag::Hilfe) return std::fputs(Hilfetext().c_str(), stdout) < 0 ? 1 : 0;
    if (aufruf.auftrag == Auftrag::Version) return std::puts("Zarwik " ZRW_VERSION) < 0 ? 1 : 0;
    if (aufruf.auftrag == Auftrag::Stapel) {
        // No display is needed to draw. Windows always has one, and knows its fonts only there.
        if constexpr (!kWindows) qputenv("QT_QPA_PLATFORM", "offscreen");
        qInstallMessageHandler(VerschweigeMeldung);
    }
    int ohneArgumente = 1;  // all options are ours; Qt would take some of them for its own
    const QApplication anwendung(ohneArgumente, argv);
    return aufruf.auftrag == Auftrag::Stapel ? FuehreStapelAus(aufruf) : Fenster(aufruf);
}
