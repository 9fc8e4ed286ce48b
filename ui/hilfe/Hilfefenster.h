// The manual: contents and search on the left, a page on the right. Reads the resources of the program only:
// no link leads out of it, no page comes from a file or the network.
#pragma once

#include <QString>
#include <QStringList>
#include <QWidget>
#include <array>
#include <vector>

#include "ui/hilfe/Hilfethemen.h"

class QLabel;
class QLineEdit;
class QToolButton;
class QTreeWidget;

namespace zrw {

class Hilfeseite;

class Hilfefenster final : public QWidget {
  public:
    /// A window of its own. @param eltern closes and frees it with itself; may be null
    explicit Hilfefenster(QWidget* eltern = nullptr);

    /// Opens the window, brings it to the front and shows the page of a help context; the first page where
    /// the number has none.
    void ZeigeSeite(int kontext);
    /// Help context of the page shown.
    [[nodiscard]] int Kontext() const { return kontext_; }
    /// Help contexts of the pages in which every word stands, in the order of the contents; all pages for an
    /// empty text.
    [[nodiscard]] std::vector<int> SucheSeiten(const QString& worte) const;

  protected:
    void keyPressEvent(QKeyEvent* ereignis) override;

  private:
    QWidget* NeueKopfzeile();
    void FuelleInhalt();
    void SucheGeaendert();
    void ZeigeNaechstenTreffer();
    void SeiteGewechselt(const QUrl& seite);
    [[nodiscard]] QStringList Worte() const;

    QToolButton* zurueck_ = nullptr;
    QToolButton* vor_ = nullptr;
    QLineEdit* suchfeld_ = nullptr;
    QLabel* trefferzahl_ = nullptr;
    QTreeWidget* inhalt_ = nullptr;
    Hilfeseite* seite_ = nullptr;
    std::array<QString, kHilfethemen.size()> texte_;  ///< of the pages, to search in
    int kontext_ = kErsteSeite;
};

}  // namespace zrw
