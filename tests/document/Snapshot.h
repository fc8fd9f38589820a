#pragma once

#include "document/Document.h"

#include <string>

// All that an undo has to give back: every field of pages and areas to the last bit, the numbers,
// the selection, and what the picture files hold.
std::string snapshot(const Document& document);

// The project file that Save would write now.
std::string savedBytes(Document& document);
std::string savedBytes(Oid::OidProject& project);
