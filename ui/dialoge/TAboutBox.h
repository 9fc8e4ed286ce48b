// What this program is, its version, and the licences of what it uses.
#pragma once

#include <QDialog>

namespace zrw {

class TAboutBox final : public QDialog {
  public:
    TAboutBox(const QString& version, QWidget* eltern);
};

}  // namespace zrw
