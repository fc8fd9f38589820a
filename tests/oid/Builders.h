#pragma once

#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "oid/OidProject.h"
#include "tests/helpers/CapturedMessages.h"
#include "tests/helpers/TemporaryFolder.h"

// Projects as the tests describe them.

inline Oid::POLY area(const std::string& name, std::vector<Oid::PNT> points = {})
{
    Oid::POLY made;
    made.name = name;
    made.points = std::move(points);
    return made;
}

// The square from (left, top) with the given edge.
inline Oid::POLY square(const std::string& name, double left, double top, double edge)
{
    return area(name,
                {{left, top}, {left + edge, top}, {left + edge, top + edge}, {left, top + edge}});
}

inline Oid::PICTURE picture(std::vector<Oid::POLY> areas = {})
{
    Oid::PICTURE made;
    made.polys = std::move(areas);
    return made;
}

// One picture with these areas; without numbers.
inline Oid::OidProject projectWith(std::vector<Oid::POLY> areas)
{
    Oid::OidProject made;
    made.pictures.push_back(picture(std::move(areas)));
    return made;
}

// A project file read from text, and what the author saw meanwhile.
struct Loaded
{
    explicit Loaded(const std::string& text) : Loaded(text, openAlone) {}
    Loaded(const std::string& text, bool (*open)(Oid::OidProject&, const std::string&))
    {
        const TemporaryFolder folder;
        writeFile(folder.file("book.oidpro"), text);
        CapturedMessages captured;
        setDefaultPrintf(CapturedMessages::print);
        ok = open(project, folder.file("book.oidpro"));
        setDefaultPrintf(nullptr);
        messages = captured.take();
    }
    static bool openAlone(Oid::OidProject& opened, const std::string& path)
    {
        return opened.open(path);
    }

    Oid::OidProject project;
    bool ok = false;
    std::string messages;
};

// The bytes that a project is saved as.
inline std::string savedText(Oid::OidProject& project)
{
    const TemporaryFolder folder;
    const std::string pathBefore = project.projectPath;
    const bool saved = project.save(folder.file("saved.oidpro"));
    project.projectPath = pathBefore;
    return saved ? readFile(folder.file("saved.oidpro")) : "not saved";
}

// The areas of a project, one line each: "0: cow 10000 (1,2) (3.5,4)".
inline std::string areasOf(const Oid::OidProject& project)
{
    std::ostringstream text;
    for (std::size_t n = 0; n < project.pictures.size(); ++n) {
        for (const Oid::POLY& poly : project.pictures[n].polys) {
            text << n << ": " << poly.name << " " << project.oids.at(poly.name).oid;
            for (const Oid::PNT& point : poly.points) {
                text << " (" << point.x << "," << point.y << ")";
            }
            text << "\n";
        }
    }
    return text.str();
}
