#pragma once

#include <string>

#include "base/Diagnostic.h"

namespace Oid {

class OidProject;

// What a project makes lies in its folder. A product name with ".." leads elsewhere, and so does a
// link in the place of a file.

// False, with a message, when writing the file would write outside of the project's folder.
bool staysInFolder(const OidProject& project, const std::string& path, PrintFunction print);

// Warns of a product name that leads into another folder, and of pictures that lie elsewhere
// because they are links.
void tellWhatLeadsOut(const OidProject& project, const DiagnosticSink& sink);

}  // namespace Oid
