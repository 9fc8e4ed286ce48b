// What the status line says: one text on the left, and beside the fields on the right what the tool asks for.
// What was just done is read while the mouse moves on: it takes the tool's place there for a few seconds.
#pragma once

#include <QLabel>
#include <QStatusBar>
#include <QString>
#include <QTimer>

namespace zrw {

class Statuszeile final : public QLabel {
  public:
    /// Becomes the first of the fields on the right of the line, which must outlive it.
    explicit Statuszeile(QStatusBar& zeile);

    void ZeigeText(const QString& text);
    /// What an action brought about that is under way: that stays, and the action is named beside it.
    void ZeigeFolge(const QString& text);
    /// A finished action, in a sentence that names its object.
    void MeldeErledigt(const QString& satz);
    /// Where the mouse is, with what the tool asks for, if there is one.
    void ZeigeStand(const QString& stand, const QString& anleitung);
    /// The tool that asked for this is off; other texts stay.
    void VergissAnleitung(const QString& anleitung);

  private:
    void ZeigeDaneben(const QString& anleitung);

    QStatusBar& zeile_;
    QTimer lesezeit_;
    QString erledigt_;   ///< while it is being read
    QString folge_;      ///< of the action under way
    QString anleitung_;  ///< what stands beside the text after that
};

}  // namespace zrw
