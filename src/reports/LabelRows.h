#pragma once

#include <optional>

#include "store/StoreContext.h"

/// Fills tblTempFamilyLabels: of players in the order of last name and first address line, whatever they are marked
/// as, each whose last name or address differs from the one before, upper and lower case told apart.
void fillFamilyLabels(StoreContext& store, std::optional<int> divisionId);
