// The main window: tool panel, picture and status line. Owns the plan and the classes that do the work, and
// forwards to them. By topic: building and switches in Hauptfenster.cpp, files in
// HauptfensterDateien.cpp, mouse, keys and status line in HauptfensterAnsicht.cpp, points and what follows a
// change in HauptfensterPunkte.cpp, legend, export and dialogs in HauptfensterAusgabe.cpp, printing and
// bitmaps in HauptfensterDruck.cpp.
#pragma once

#include <QMainWindow>
#include <QStatusBar>
#include <filesystem>
#include <memory>
#include <optional>

#include "ui/Plan.h"
#include "ui/Programm.h"
#include "ui/ablage/Netzbewahrung.h"
#include "ui/ablage/Vorlieben.h"
#include "ui/aenderungen/Farbuebernahme.h"
#include "ui/bild/Ansichtssteuerung.h"
#include "ui/bild/ImageZarwik.h"
#include "ui/bild/Planbild.h"
#include "ui/druck/Plandruck.h"
#include "ui/fenster/Massstabfeld.h"
#include "ui/fenster/Schalter.h"
#include "ui/werkzeuge/Werkzeugkasten.h"

namespace zrw {

class Aktionen;
class Aussenhinweis;
class Beobachtungsanzeige;
struct Befehl;
class Bildfach;
class Eigenschaftsseite;
class Ergebnisanzeige;
class Farbseite;
class Figurenmenue;
class Hilfefenster;
class Nummernfeld;
class Nummernordner;
class Planfaerber;
class Punktartwahl;
class Punktgang;
class Punktversteck;
class Residuenwahl;
class Schwebekarte;
class Seitenleiste;
class Standfelder;
class Statistikseite;
class Startseite;
class Statuszeile;
class TFormBeobTyp;
class TZRWLBLForm;
class Werkzeugleiste;
class Zeichenseite;
class Zentrierkasten;

class TZrwMainDlg final : public QMainWindow,
                          private Bildempfaenger,
                          private Werkzeugumgebung,
                          private Plan::Beobachter,
                          private Planbild::Beobachter {
  public:
    explicit TZrwMainDlg(const Programm& programm);
    ~TZrwMainDlg() override;

    /// Opens a control file or, by its extension, a picture file; a file of another program is imported
    /// first. Messages go to the dialog service; the previous network stays where the new one cannot be read,
    /// and where the user would lose changes.
    void OeffneDatei(const std::filesystem::path& datei);
    /// The current network, or null before one is opened.
    [[nodiscard]] const Liste* Netz() const { return plan_.Daten(); }
    [[nodiscard]] const QImage& Bild() const { return planbild_.Flaeche().Bild(); }
    /// Offers plots that an earlier run could not save. @return whether one is shown now
    bool BieteRettungAn() { return bewahrung_.BieteAn(); }
    [[nodiscard]] bool Ungesichert() const { return plan_.Ungesichert(); }

    // Click handlers, by component.
    void SpeedButton1Click();                           ///< open a control file
    void SpeedButton2Click();                           ///< "Zarwik lesen"
    void SpeedButton9Click();                           ///< "Zarwik speichern"
    void SpeedButton7Click();                           ///< "Zarwik beenden"
    void SpeedButton3Click() { planbild_.PasseEin(); }  ///< "Alles darstellen"
    void SpeedButton4Click();                           ///< "Programminfo"
    void SpeedButton5Click();                           ///< "Zarwik drucken"
    void SpeedButton6Click();                           ///< "Hilfe"
    void SpeedButton8Click();                           ///< "Zeichenfont wählen"
    void SpeedButton10Click();                          ///< "Punkt anzeigen"
    void SpeedButton11Click();                          ///< "Druckereinstellungen"
    void SpeedButton12Click();                          ///< "Legendentexte"
    void SpeedButton14Click();                          ///< "Punkte verstecken"
    void SpeedButton15Click();                          ///< "Versteckte Punkte"
    void SpeedButton16Click();                          ///< "DXF und HPGL Format ausgeben"
    void AusgebenClick();                               ///< "Ausgeben ..."
    void VorschauClick();                               ///< "Druckvorschau"
    void BlattrahmenClick();
    void MassstabEinpassenClick();
    void SpeedButtonClipbrdClick();  ///< "Grafik als Bitmap speichern"
    void ColorButtonClick();
    void ButtonGroesserClick() { planbild_.ZoomeUmMitte(true); }
    void ButtonKleinerClick() { planbild_.ZoomeUmMitte(false); }
    void EinpassenClick() { planbild_.PasseGezeigtesEin(); }  ///< fits the visible points
    void NummernZeigenClick();                                ///< shows all hidden numbers
    void ErgebnisMassstabClick();
    void NummernOrdnenClick();  ///< finds places for numbers
    void LetzteDateienClick();
    void NetzImportierenClick() { BeginneImport({}); }
    void FruehereAnsichtClick();
    void SpaetereAnsichtClick();
    void PunktSucheClick();
    void SeitenleisteClick();
    void EinfaerbenClick();  ///< lines and points in classes of a result
    void StatistikClick();
    void BeobachtungenClick();
    void NaechsterFehlerClick();
    void VorigerFehlerClick();
    void LoeseWerkzeuge();
    void Rueckgaengig();
    void WiederholeSchritt();

    /// Help keys work in every window of the program.
    bool eventFilter(QObject* empfaenger, QEvent* ereignis) override;

  protected:
    bool event(QEvent* ereignis) override;
    void keyPressEvent(QKeyEvent* ereignis) override;
    void closeEvent(QCloseEvent* ereignis) override;
    void dragEnterEvent(QDragEnterEvent* ereignis) override;
    void dropEvent(QDropEvent* ereignis) override;

  private:
    // Hauptfenster.cpp
    void BaueFenster();
    void BaueAktionen();
    void BaueBild();
    void BaueFelder(Werkzeugleiste& leiste);
    void BaueDialoge();
    void FuehreAus(const Befehl& befehl);
    void WerkzeugGewaehlt(std::size_t nummer, bool unten);
    void SchalterGewaehlt(const Schalter& schalter, bool ein);

    // HauptfensterDateien.cpp
    void BaueStartseite();
    void UebernimmLesung(Lesung&& lesung, const std::filesystem::path& datei);
    void StelleSchalter(bool ausBild);
    [[nodiscard]] bool SpeicherePlan();
    [[nodiscard]] bool WirdImportiert(const std::filesystem::path& datei) const;
    void BeginneImport(const QStringList& dateien);
    [[nodiscard]] bool DarfVerwerfen();
    [[nodiscard]] bool BereitZumEnde();
    void ZeigeTitel();
    [[nodiscard]] Netzbewahrung::Plan JetzigerPlan();

    // HauptfensterAnsicht.cpp
    void BaueAuswahl();
    void BaueSeitenleiste();
    void WaehleImBild(PunktIndex nr);
    [[nodiscard]] QString TextZu(Bildpunkt ort);
    void ZeigeStand();
    void ZeigeZeiger(Bildpunkt ort);
    void VorAnsichtswechsel() override { werkzeuge_.BrichAb(); }
    void NachAnsichtswechsel() override { ZeigeStand(); }
    void BildGezeichnet() override;
    void MeldeStatus(const QString& text) override { ZeigeStatus(text); }
    void ImageZarwikMouseDown(Bildpunkt ort, Qt::MouseButton taste) override;
    void ImageZarwikDoubleClick(Bildpunkt ort, Qt::MouseButton taste) override;
    void ImageZarwikMouseLeave() override;
    void ImageZarwikMouseMove(Bildpunkt ort) override;
    void ImageZarwikMouseUp(Bildpunkt ort, Qt::MouseButton taste) override;
    void ImageZarwikWheel(Bildpunkt ort, int schritte) override;
    void ImageZarwikResize(int weite, int hoehe, double dichte) override {
        planbild_.SetzeGroesse(weite, hoehe, dichte);
    }

    // What tools may do.
    [[nodiscard]] Liste* AktuelleListe() override { return plan_.Daten(); }
    [[nodiscard]] const Einstellungen& Anzeige() const override { return programm_.einstellungen; }
    [[nodiscard]] const Netzangaben& Angaben() const override { return programm_.netz; }
    [[nodiscard]] bool Umschalttaste() const override;
    void UeberlagerungGeaendert() override { bild_->update(); }
    void ZeichneNeu() override { planbild_.ZeichneNeu(); }
    void LasseAus(Figurenmenge figuren) override { planbild_.LasseAus(std::move(figuren)); }
    void LasseLegendeAus(bool aus) override { planbild_.LasseLegendeAus(aus); }
    void LasseErklaerungAus(bool aus) override { planbild_.LasseErklaerungAus(aus); }
    [[nodiscard]] Bildbereich Erklaerungsrahmen() const override { return planbild_.Erklaerungsrahmen(); }
    void ZeigeVorschau(Vorschau vorschau) override { planbild_.ZeigeVorschau(std::move(vorschau)); }
    void ZeigeStatus(const QString& text) override;
    void MeldeErledigt(const QString& satz) override;
    void TueAenderung(std::unique_ptr<Netzaenderung> aenderung) override {
        plan_.TueAenderung(std::move(aenderung));
    }
    void BeginneZug() override { planbild_.BeginneZug(); }
    void ZieheBild(Bildpunkt versatz) override { planbild_.ZieheBild(versatz); }
    void BeendeZug() override { planbild_.BeendeZug(); }
    void ZoomeAuf(Bildpunkt a, Bildpunkt b) override { planbild_.ZoomeAuf(a, b); }
    void ZoomeUm(Bildpunkt ort) override { planbild_.ZoomeUm(ort); }
    void AnsichtZurueck() override { (void)planbild_.GeheZurueck(); }
    [[nodiscard]] Bildbereich Textrahmen(const PunktString& text) const override {
        return planbild_.Textrahmen(text);
    }
    [[nodiscard]] Bildpunkt Textgroesse(std::string_view text) const override {
        return planbild_.Textgroesse(text);
    }

    // HauptfensterPunkte.cpp
    void VorAenderung(const Figurenmenge& figuren) override { planbild_.VorAenderung(figuren); }
    void NachAenderung(const Figurenmenge& figuren) override;
    void StandGeaendert() override { ZeigeTitel(); }
    void SchrittGetan(const QString& satz) override { MeldeErledigt(satz); }
    void FuelleNummern();
    void ZeigePunkt(const QString& nummer);
    const PunktKnoten* MarkierePunkt(const QString& nummer);
    void ZentriereListe(const std::optional<QString>& zentrum, const QStringList& exzentren);
    void ZentrierePunkt(PunktKnoten& exzentrum, PunktKnoten& zentrum) override;
    void VerbergePunkt(PunktKnoten& punkt) override;
    void WaehlePunkt(PunktKnoten& punkt) override;
    [[nodiscard]] const PunktKnoten* GewaehlterPunkt() const override;
    void ZeigeErgebnis(const PunktKnoten* punkt, const PunktKante* kante) override;
    void ZeigeNebenfenster(Nebenfenster welches, bool sichtbar) override;
    [[nodiscard]] TFormBeobTyp& Beobachtungsdialog() override { return *beobachtungstyp_; }

    // HauptfensterAusgabe.cpp
    void ZeigeFehler(const std::exception& fehler);
    void ZeigeHilfe(int kontext);
    void SchliesseEinstellungen();

    Programm programm_;
    Vorlieben vorlieben_;
    Plan plan_;
    bool beendet_ = false;     ///< closing has been asked about
    bool planBleibt_ = false;  ///< at the end the unsaved plot is kept for the next start
    Planbild planbild_;
    Plandruck druck_;
    Werkzeugkasten werkzeuge_;
    Farbuebernahme farben_{*this};
    QString ortstext_;  ///< what the status line said about that
    Aktionen* aktionen_ = nullptr;
    ImageZarwik* bild_ = nullptr;
    Aussenhinweis* aussenhinweis_ = nullptr;
    Schwebekarte* karte_ = nullptr;
    std::unique_ptr<Figurenmenue> figurenmenue_;
    Startseite* startseite_ = nullptr;  ///< over the picture, until a network is open
    Bildfach* bildfach_ = nullptr;
    Seitenleiste* seitenleiste_ = nullptr;
    Eigenschaftsseite* eigenschaften_ = nullptr;
    Zeichenseite* zeichen_ = nullptr;
    Farbseite* farbseite_ = nullptr;
    Statistikseite* statistik_ = nullptr;
    Standfelder* standfelder_ = nullptr;
    Statuszeile* status_ = nullptr;
    Massstabfeld* EditMasstab_ = nullptr;
    Nummernfeld* ComboBox1_ = nullptr;
    Zentrierkasten* zentrierkasten_ = nullptr;
    TZRWLBLForm* legendentexte_ = nullptr;
    TFormBeobTyp* beobachtungstyp_ = nullptr;
    std::unique_ptr<Punktartwahl> punktart_;
    std::unique_ptr<Punktversteck> versteck_;
    std::unique_ptr<Nummernordner> nummern_;
    std::unique_ptr<Punktgang> punktgang_;
    std::unique_ptr<Ergebnisanzeige> ergebnisse_;
    std::unique_ptr<Planfaerber> faerber_;
    std::unique_ptr<Residuenwahl> residuen_;
    std::unique_ptr<Beobachtungsanzeige> beobachtungen_;
    std::unique_ptr<Hilfefenster> hilfe_;  ///< made when it is first needed
    QString titel_;
    QString ordner_;           ///< of the last file
    Netzbewahrung bewahrung_;  ///< goes first: it asks the members above
};

}  // namespace zrw
