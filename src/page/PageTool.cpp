#include "page/PageTool.h"

const Oid::PICTURE* PageTool::page() const
{
    const int current = document.currentPage();
    return document.pageAt(current) != PageId::none
               ? &document.project().pictures[static_cast<std::size_t>(current)]
               : nullptr;
}
