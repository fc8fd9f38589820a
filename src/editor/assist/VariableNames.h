#pragma once

#include <QCoreApplication>
#include <QString>

#include "ttbasic/ScriptNames.h"

// New names for variables and voices.
class VariableNames
{
    Q_DECLARE_TR_FUNCTIONS(VariableNames)

public:
    // What speaks against the name, with the cure; empty when nothing does.
    static QString problemOf(const ScriptOutline& outline, NameKind kind, const QString& name);
};
