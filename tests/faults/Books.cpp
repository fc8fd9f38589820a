#include "tests/faults/Books.h"

namespace {

Oid::POLY area(const std::string& name)
{
    Oid::POLY made;
    made.name = name;
    made.points = {{10, 10}, {50, 10}, {50, 50}, {10, 50}};
    return made;
}

}  // namespace

Oid::OidProject bookOf(int number, int areas)
{
    const bool odd = number % 2 != 0;
    Oid::OidProject book;
    book.productName = "Zoo";
    book.pictures.resize(1);
    Oid::PICTURE& page = book.pictures[0];
    page.paperWidth = odd ? 40 : 60;
    page.paperHeight = 40;
    page.dpi = 600;
    for (int i = 0; i < (odd ? areas / 3 : areas); ++i) {
        const std::string name = (odd ? "odd" : "even") + std::to_string(i);
        page.polys.push_back(area(name));
        book.oids[name].oid = 1000 + i;
        book.compiler.source += "sub " + name + "\nx = " + std::to_string(i) + "\nend sub\n";
    }
    return book;
}

Oid::OidProject bookOfPages()
{
    Oid::OidProject book;
    book.productName = "Zoo";
    for (int picture = 0; picture < kPages; ++picture) {
        book.pictures.emplace_back();
        book.pictures.back().polys.push_back(area(areaOfPage(picture)));
        book.oids[areaOfPage(picture)].oid = 1000 + picture;
    }
    return book;
}

std::string areaOfPage(int picture)
{
    return "page" + std::to_string(picture);
}

std::string pictureOf(int picture)
{
    return std::string(static_cast<std::size_t>(20000 + picture), static_cast<char>('a' + picture));
}

std::string scriptOf(int number)
{
    const std::string line = "' " + std::to_string(number) + "\n";
    std::string script = line;
    for (int i = 0; i < number % 50 * 100; ++i) {
        script += "x = x + 1\n";
    }
    return script + line;
}
