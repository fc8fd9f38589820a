#pragma once

#include <vector>

#include "hints/Hint.h"
#include "hints/PagePictures.h"
#include "oid/OidProject.h"

namespace hints {

// All hints about a project whose script is compiled, be it without success: those of the script in
// the order of its lines, then those of the product, then page by page. When it was cancelled, some
// of them.
//
// Only reads. It can be done on any thread as long as nobody changes the project.
std::vector<Finding> findHints(const Oid::OidProject& project, PagePictures& pictures,
                               const Cancelled& isCancelled = {});
// Those of one subject.
std::vector<Finding> findHints(Subject subject, const Oid::OidProject& project,
                               PagePictures& pictures, const Cancelled& isCancelled = {});

}  // namespace hints
