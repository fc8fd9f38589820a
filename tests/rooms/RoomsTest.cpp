// Who may include whom: the link lists of the rooms are the whole table. What a compiler would find
// through another room, or through the system, is found here.
#include "tests/helpers/TemporaryFolder.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <regex>
#include <sstream>

namespace fs = std::filesystem;

namespace {

struct Room
{
    std::string name;
    std::string folder;  // below src
    std::vector<std::string> links;
};

// A line for each room: its name, its folder, what it links.
std::vector<Room> readRooms(std::istream& table)
{
    std::vector<Room> rooms;
    for (std::string line; std::getline(table, line);) {
        std::istringstream words(line);
        Room room;
        words >> room.name >> room.folder;
        for (std::string link; words >> link;) {
            room.links.push_back(link);
        }
        rooms.push_back(room);
    }
    return rooms;
}

bool links(const Room& room, const std::string& target)
{
    return std::find(room.links.begin(), room.links.end(), target) != room.links.end();
}

bool linksQt(const Room& room)
{
    return std::any_of(room.links.begin(), room.links.end(),
                       [](const std::string& link) { return link.rfind("Qt5::", 0) == 0; });
}

// The room of an include such as "publish/console/GatheredOutput.h"; null for what is in none.
const Room* roomOf(const std::string& include, const std::vector<Room>& rooms)
{
    const std::string folder = fs::path(include).parent_path().generic_string();
    const auto found = std::find_if(rooms.begin(), rooms.end(),
                                    [&](const Room& room) { return room.folder == folder; });
    return found != rooms.end() ? &*found : nullptr;
}

// "File.cpp includes oid/OidTable.h", a line for each include that the room may not have.
std::string forbiddenIncludes(const Room& room, const std::vector<Room>& rooms,
                              const fs::path& sources)
{
    static const std::regex ours("#\\s*include\\s*\"([^\"]+)\".*");
    static const std::regex qt("#\\s*include\\s*<(Q[A-Za-z/]+|q[a-z]+\\.h)>.*");
    std::vector<fs::path> files;
    for (const auto& entry : fs::directory_iterator(sources / room.folder)) {
        const std::string suffix = entry.path().extension().string();
        if (suffix == ".h" || suffix == ".cpp") {
            files.push_back(entry.path());
        }
    }
    std::sort(files.begin(), files.end());
    std::string found;
    for (const fs::path& file : files) {
        std::ifstream text(file);
        for (std::string line; std::getline(text, line);) {
            std::smatch include;
            const bool isOurs = std::regex_match(line, include, ours);
            const bool isQt = !isOurs && std::regex_match(line, include, qt);
            const Room* const other = isOurs ? roomOf(include[1], rooms) : nullptr;
            if ((other != nullptr && other->name != room.name && !links(room, other->name)) ||
                (isQt && !linksQt(room))) {
                found += file.filename().string() + " includes " + include[1].str() + "\n";
            }
        }
    }
    return found;
}

std::vector<Room> ourRooms()
{
    std::ifstream table(PLINKETT_ROOMS);
    return readRooms(table);
}

}  // namespace

TEST(Rooms, IncludeOnlyWhatTheyLink)
{
    const std::vector<Room> rooms = ourRooms();
    ASSERT_GT(rooms.size(), 10U);
    for (const Room& room : rooms) {
        EXPECT_EQ(forbiddenIncludes(room, rooms, PLINKETT_SOURCE_DIR "/src"), "") << room.name;
    }
}

TEST(Rooms, EveryFolderWithSourcesIsOne)
{
    const std::vector<Room> rooms = ourRooms();
    const fs::path sources = PLINKETT_SOURCE_DIR "/src";
    for (const auto& entry : fs::recursive_directory_iterator(sources)) {
        if (entry.path().extension() == ".cpp") {
            const std::string path = fs::relative(entry.path(), sources).generic_string();
            EXPECT_NE(roomOf(path, rooms), nullptr) << path;
        }
    }
}

TEST(Rooms, WithoutQtAreThoseThatAreToHaveNone)
{
    std::string without;
    for (const Room& room : ourRooms()) {
        without += linksQt(room) ? "" : room.name + " ";
    }
    EXPECT_EQ(without, "editor_core ttbasic gme quick pen ");
}

TEST(Rooms, AnIncludeOfARoomThatIsNotLinkedIsFound)
{
    const TemporaryFolder folder;
    const fs::path sources = folder.path();
    fs::create_directories(sources / "low");
    fs::create_directories(sources / "high/inner");
    writeFile(folder.file("low/Low.cpp"), "#include \"low/Low.h\"\n"
                                          "#include \"high/High.h\"\n"
                                          "#include \"high/inner/Inner.h\"\n"
                                          "#include <QString>\n"
                                          "#include <vector>\n");
    writeFile(folder.file("high/High.cpp"), "#include \"low/Low.h\"\n#include <QString>\n");
    std::istringstream table("low low OpenMP::OpenMP_CXX\n"
                             "high high low Qt5::Core\n"
                             "inner high/inner high\n");
    const std::vector<Room> rooms = readRooms(table);
    EXPECT_EQ(forbiddenIncludes(rooms[0], rooms, sources), "Low.cpp includes high/High.h\n"
                                                           "Low.cpp includes high/inner/Inner.h\n"
                                                           "Low.cpp includes QString\n");
    EXPECT_EQ(forbiddenIncludes(rooms[1], rooms, sources), "");
}
