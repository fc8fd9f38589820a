#include "document/Fingerprint.h"

#include <gtest/gtest.h>

#include <QStringList>

#include <functional>
#include <set>

namespace {

Oid::POLY area(const std::string& name, const std::vector<Oid::PNT>& corners = {})
{
    Oid::POLY made;
    made.name = name;
    made.points = corners;
    return made;
}

using Change = std::function<void(Oid::OidProject&)>;

std::uint64_t fingerprintAfter(const Change& change)
{
    Oid::OidProject project;
    project.pictures.resize(1);
    project.pictures[0].polys.push_back(area("cow", {{1, 2}, {3, 4}}));
    project.oids["cow"] = {1001, 0};
    change(project);
    Fingerprint fingerprint;
    fingerprint.add(project);
    return fingerprint.value();
}

std::uint64_t ofTexts(const QStringList& texts)
{
    Fingerprint fingerprint;
    for (const QString& text : texts) {
        fingerprint.add(text);
    }
    return fingerprint.value();
}

}  // namespace

TEST(Fingerprint, OfTheSameProjectIsTheSame)
{
    EXPECT_EQ(fingerprintAfter([](Oid::OidProject&) {}), fingerprintAfter([](Oid::OidProject&) {}));
}

TEST(Fingerprint, EveryChangeGivesAnother)
{
    using Project = Oid::OidProject;
    const std::vector<Change> changes = {
        [](Project&) {},
        [](Project& p) { p.productName = "Zoo"; },
        [](Project& p) { p.productId = 7; },
        [](Project& p) { p.pictures.emplace_back(); },
        [](Project& p) { p.pictures.clear(); },
        [](Project& p) { p.pictures[0].paperWidth = 100; },
        [](Project& p) { p.pictures[0].paperHeight = 100; },
        [](Project& p) { p.pictures[0].dpi = 600; },
        [](Project& p) { p.pictures[0].polys.clear(); },
        [](Project& p) { p.pictures[0].polys.push_back(area("cow")); },
        [](Project& p) { p.pictures[0].polys[0].name = "hen"; },
        [](Project& p) { p.pictures[0].polys[0].points[1].y = 4.01; },
        [](Project& p) { p.pictures[0].polys[0].points.pop_back(); },
        [](Project& p) {
            std::swap(p.pictures[0].polys[0].points[0].x, p.pictures[0].polys[0].points[0].y);
        },
        [](Project& p) { p.oids["cow"].oid = 1002; },
        [](Project& p) { p.oids["hen"].oid = 1002; },
        [](Project& p) { p.oids.clear(); },
    };
    std::set<std::uint64_t> seen;
    for (const Change& change : changes) {
        seen.insert(fingerprintAfter(change));
    }
    EXPECT_EQ(seen.size(), changes.size());
}

TEST(Fingerprint, TextsAreKeptApart)
{
    EXPECT_NE(ofTexts({"ab", "c"}), ofTexts({"a", "bc"}));
    EXPECT_NE(ofTexts({"a", "b"}), ofTexts({"b", "a"}));
    EXPECT_NE(ofTexts({""}), ofTexts({}));
    EXPECT_NE(ofTexts({"a"}), ofTexts({"a", ""}));
}
