#include "tests/oid/Builders.h"

#include <sstream>

std::string areasOf(const Oid::OidProject& project)
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
