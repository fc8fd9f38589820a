#pragma once

#include "oid/OidProject.h"
#include "play/Book.h"

#include <stdexcept>
#include <string>
#include <vector>

// A project in memory; its areas are numbered from 1001 on in the order of their names.
inline Oid::OidProject projectWith(const std::string& script, const std::vector<std::string>& areas)
{
    Oid::OidProject project;
    project.productId = 900;
    project.productName = "Zoo";
    project.compiler.source = script;
    Oid::PICTURE& page = project.pictures.emplace_back();
    int number = 1000;
    for (const std::string& name : areas) {
        page.polys.emplace_back().name = name;
        project.oids[name].oid = ++number;
    }
    return project;
}

// Throws what is wrong with the script.
inline play::Book bookWith(const std::string& script, const std::vector<std::string>& areas)
{
    std::string errors;
    const std::optional<play::Book> book =
        play::bookOf(projectWith(script, areas), [&errors](const Diagnostic& finding) {
            errors += finding.severity == Severity::error ? consoleLine(finding) : std::string();
        });
    if (!book) {
        throw std::runtime_error(errors);
    }
    return *book;
}
