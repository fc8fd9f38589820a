// Any file as a copy of unsaved work: it is whole or refused.
#include "fuzz/Fuzzing.h"

#include "document/RecoveryCopy.h"
#include "oid/OpenProject.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    fuzzing::keepQuiet();
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<int>(size));
    readRecoveryHead(bytes);

    // What a window keeps of any work is found again, and any byte that is another is noticed.
    fuzzing::Choices choices(data, size);
    const size_t place = choices.number();
    Oid::OidProject project;
    project.print = printNothing;
    project.productName = choices.text(60);
    RecoveryHead head;
    head.projectPath = choices.text(80);
    head.since = QDateTime::fromSecsSinceEpoch(choices.number(), Qt::UTC);
    project.compiler.source = choices.text(200);
    QByteArray copy = recoveryCopy(project, head);
    const auto read = readRecoveryHead(copy);
    fuzzing::require(read.has_value(), "a copy is whole");
    fuzzing::requireEqual(head.projectPath, read->projectPath, "the path");
    fuzzing::requireEqual(project.productName, read->productName, "the name");
    const int at = static_cast<int>(place % static_cast<size_t>(copy.size()));
    copy[at] = static_cast<char>(copy[at] ^ 1);
    fuzzing::require(!readRecoveryHead(copy).has_value(), "a damaged copy is noticed");
    return 0;
}
