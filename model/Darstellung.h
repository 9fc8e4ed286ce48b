// What of a network is shown, and the texts that stand beside it: a value.
#pragma once

#include <memory>
#include <optional>

#include "model/Figuren.h"
#include "model/Residuendarstellung.h"
#include "model/ergebnisse/Figurenstile.h"

namespace zrw {

struct Darstellung : Residuendarstellung {
    // Display switches. A new one does not show `FL` points: whoever opens a network sets what it needs.
    bool ShowPktText = true;
    bool ShowBeob = true;
    bool ShowGitter = false;
    bool ShowKMQ = false;
    bool ShowLegende = false;
    bool ShowLgRes = false;
    bool ShowHRes = false;
    bool ShowLGGen = false;
    bool LGGenOn = false;
    bool ShowHGen = false;
    bool ShowFP = true;
    bool ShowFL = false;
    bool ShowFH = true;
    bool ShowNP = true;
    bool ShowHilfP = true;
    bool ShowMassbalken = false;
    bool ShowErklaerung = false;
    /// From the picture's top-right corner to that of the key [px]; none: where the drawing puts it.
    std::optional<Bildpunkt> Erklaerungsort{};
    /// Figures in classes of a result, or left out, of the network that is shown; null: all as they are.
    std::shared_ptr<const Figurenstile> Stile{};
    std::optional<Legende> Legend{Legende::Create()};

    /// The point's kind is switched on.
    [[nodiscard]] bool Dargestellt(const Punkt& p) const;
    /// Point numbers are. Switching the auxiliary points off hides every label, not only theirs: users know
    /// it that way.
    [[nodiscard]] bool ZeigtNummern() const { return ShowPktText && ShowHilfP; }
    /// The line is not among those that are left out.
    [[nodiscard]] bool Gewaehlt(const PunktKante& k) const {
        return Stile == nullptr || !Stile->Weggelassen(k);
    }
    /// There is a key: that of the plan, or of classes alone.
    [[nodiscard]] bool ZeigtErklaerung() const {
        return ShowErklaerung || (Stile != nullptr && !Stile->zeilen.empty());
    }
    /// Whether any of the overlays with results is on, with the scale bar that comes with them.
    [[nodiscard]] bool ZeigtErgebnisse() const {
        return ZeigtPunktergebnisse() || LGGenOn || ShowRelEllipsen;
    }
    /// Those of points.
    [[nodiscard]] bool ZeigtPunktergebnisse() const {
        return ShowLgRes || ShowHRes || ShowLGGen || ShowHGen || ShowKooVergleich;
    }
    [[nodiscard]] bool ZeigtEllipsen() const { return ShowLGGen || ShowRelEllipsen; }
};

}  // namespace zrw
