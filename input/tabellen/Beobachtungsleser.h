// The observations of all result tables in one list, as the files now are.
#pragma once

#include <array>
#include <optional>

#include "input/tabellen/UnitZRWData.h"
#include "model/ergebnisse/Beobachtungsliste.h"

namespace zrw {

/// Reads those tables that have changed. A table that cannot be read has no row in the list, and its lot says
/// why: nothing of an earlier state is left over. Never throws for what is in the files.
[[nodiscard]] Beobachtungsliste LiesBeobachtungen(TDM& daten);

/// Tells one state of the tables from a later one; the last are those of points and of relative ellipses.
using Beobachtungsstand = std::array<std::optional<Dateistand>, kGattungen + 2>;
[[nodiscard]] Beobachtungsstand StandDerBeobachtungen(const TDM& daten);

}  // namespace zrw
