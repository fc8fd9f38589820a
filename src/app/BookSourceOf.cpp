#include "app/BookSourceOf.h"

#include "document/Document.h"
#include "editor/widget/KVQtHighlightEditCtrl.h"

#include <functional>

BookSource bookSourceOf(Document& document, KVQtHighlightEditCtrl& editor)
{
    const auto revision = [&document] {
        const std::string path = document.project().projectPath;
        return document.revision() ^ (std::hash<std::string>()(path) << 1);
    };
    const auto project = [&document] {
        Oid::OidProject copy = document.projectToSave();
        copy.projectPath = document.project().projectPath;
        return copy;
    };
    return {revision, project, [&editor] { return editor.text(); }};
}
