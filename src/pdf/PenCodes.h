#pragma once

namespace Oid {
class OidProject;
}

// The codes of a book beside those of its areas. 0 where there is none yet.
struct PenCodes
{
    int replay = 0;
    int stop = 0;
};

// As the last build gave them: from the codes file beside the project.
PenCodes penCodesOf(const Oid::OidProject& project);
