#pragma once

#include <string>

#include "editor/core/EditorBackend.h"

// One backend on one buffer, driven by operations in JSON. editor_driver.cpp lists them.
class EditorDriver
{
public:
    EditorDriver();

    struct Reply
    {
        std::string text;  // JSON: the result, or the error message
        bool isError;
        bool hasResult;  // the operation answers with something else than null
    };

    // Carries out one line. A line that is no valid operation changes nothing.
    Reply carryOut(const std::string& line);

    // The full answer to an operation with this result.
    std::string answer(const std::string& result) const;

private:
    KVTextEditor::Buffer<KVTextEditor::EdChar> buffer;
    KVTextEditor::EditorBackend<KVTextEditor::EdChar> backend;
};
