// One action for every command, every tool and every display switch of the window. Its menu entry, its button
// or check box and its key are all this one action, so that none can be on or enabled where another is not.
#pragma once

#include <QAction>
#include <QObject>
#include <functional>
#include <string_view>
#include <vector>

#include "ui/fenster/Befehle.h"
#include "ui/fenster/Schalter.h"
#include "ui/werkzeuge/Werkzeugkasten.h"

class QCheckBox;
class QToolButton;
class QUndoStack;

namespace zrw {

class Aktionen final : public QObject {
  public:
    struct Empfaenger {
        std::function<void(const Befehl&)> befehl;
        std::function<void(std::size_t nummer, bool unten)> werkzeug;
        std::function<void(const Schalter&, bool ein)> schalter;
    };
    /// @param fenster hears the keys, and owns it
    Aktionen(QWidget& fenster, const QUndoStack& schritte, Empfaenger empfaenger);

    /// By the object name of the button or check box, which must be in one of the tables.
    [[nodiscard]] QAction& NachName(std::string_view komponente) const;
    // In the order of their tables.
    [[nodiscard]] const std::vector<QAction*>& Befehle() const { return befehle_; }
    [[nodiscard]] const std::vector<QAction*>& Werkzeuge() const { return werkzeuge_; }
    /// Null for switches without a check box.
    [[nodiscard]] const std::vector<QAction*>& Schalterliste() const { return schalter_; }

    /// Help context of an action from the tables; the first page for another one and for null.
    [[nodiscard]] static int Thema(const QAction* aktion);

    /// What is to be done with each tool, as the second line of its hint.
    void ErklaereWerkzeuge(const Werkzeugkasten& werkzeuge);
    /// The command of a shortcut that is off now, null without one: pressing its key says why.
    [[nodiscard]] const Befehl* AusgeschalteterBefehl(const QKeySequence& taste) const;

  private:
    QAction* NeueAktion(std::string_view komponente, std::string_view text);
    void BaueBefehle(const QUndoStack& schritte);
    void BaueWerkzeuge();
    void BaueSchalter();

    QWidget& fenster_;
    Empfaenger empfaenger_;
    std::vector<QAction*> befehle_;
    std::vector<QAction*> werkzeuge_;
    std::vector<QAction*> schalter_;
};

/// A button of the tool panel that shows an action.
[[nodiscard]] QToolButton* NeuerKnopf(QAction& aktion, std::string_view komponente, std::string_view hinweis,
                                      QWidget* eltern);
/// The check box of a display switch.
[[nodiscard]] QCheckBox* NeuerSchaltkasten(QAction& aktion, const Schalter& schalter, QWidget* eltern);

}  // namespace zrw
