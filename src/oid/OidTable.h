#pragma once

#include "oid/OidProject.h"

// Entries of the OID table, as the loader and the numbering of new areas make them.
namespace Oid {

// The number with its raw code (0 for numbers that have no dot pattern).
OidProject::OID tableEntry(int oid);

// The number after this one; the largest int stays.
int numberAfter(int oid);

// The name has the number behind all others from now on, which is printed.
void giveNewNumber(OidProject& project, const std::string& name);

// As updateUsedOIDs, but 0 counts as no number: it may have been typed, or stand in a file, and the
// pen would know no area by it. True when a name got a number.
bool numberAllAreas(OidProject& project);

}  // namespace Oid
