#pragma once

#include "oid/OidProject.h"

// Entries of the OID table, as the loader and the numbering of new areas make them.
namespace Oid {

// The number with its raw code (0 for numbers that have no dot pattern).
OidProject::OID tableEntry(int oid);

// The number after this one; the largest int stays.
int numberAfter(int oid);

}  // namespace Oid
