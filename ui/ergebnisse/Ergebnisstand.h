// The one list of the observations that lie beside the open network. Everybody who shows some of it asks here
// whenever it is shown, and hears when to ask again:
//
//     stand.BeiAenderung(*this, [this] { if (isVisible()) ZeigeListe(); });  // and in showEvent, too
//     const auto liste = stand.Liste();  // a value: what somebody holds stays as it is
//
// Asking looks at the files, so it is done once for a picture or an action, not for every row. Not in here:
// how the tables are read (input/tabellen/Beobachtungsleser.h), what is shown of them.
#pragma once

#include <QFileSystemWatcher>
#include <QObject>
#include <QTimer>
#include <filesystem>
#include <functional>
#include <memory>

#include "input/tabellen/Beobachtungsleser.h"

namespace zrw {

class Ergebnisstand final : public QObject {
  public:
    /// @param daten must outlive it
    explicit Ergebnisstand(TDM& daten);

    /// As the files now are: read when they have changed. Empty without a network, never null. A table that
    /// cannot be read has no row in it.
    [[nodiscard]] std::shared_ptr<const Beobachtungsliste> Liste();
    /// Calls `tun` when `Liste` may give another list, later than that came to be known and never from within
    /// it; as long as there is `hoerer`.
    void BeiAenderung(const QObject& hoerer, std::function<void()> tun) const;

    /// The network is about to be replaced: its list goes.
    void VergissNetz();
    /// There is a network, and its tables lie where `daten` now looks for them.
    void OrdnerGewaehlt();
    /// Looks whether the files have changed. Done by itself when somebody writes them or comes back to the
    /// program.
    void PruefeDateien();

  private:
    void BeobachteDateien();

    TDM& daten_;
    bool offen_ = false;
    std::filesystem::path ordner_;
    bool nochmal_ = false;  ///< tables that could not be read are tried again
    std::shared_ptr<const Beobachtungsliste> liste_;
    Beobachtungsstand stand_;  ///< that it was read from
    QFileSystemWatcher waechter_;
    QTimer ruhe_;  ///< nobody has written for a while
    QTimer melden_;
};

}  // namespace zrw
