#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include <QDateTime>

namespace Oid {
class OidProject;
}

// Game files that lie on a disk.

// When a file was last changed; not valid when it is not there.
QDateTime timeOfChange(const std::string& path);
// "2024-05-31 14:05", in local time.
std::string dayAndMinute(const QDateTime& time);

// Whether a build would now make another game than the one that lies beside the project: the
// script, the areas or the speech have changed after it. The script is given by itself, since an
// editor may hold a newer one than the project. What is not there has not changed.
bool isGameOutdated(const Oid::OidProject& project, const std::string& script);

// The product id that the header of a game file tells; none when it cannot be read.
std::optional<std::uint32_t> productIdOfGame(const std::string& path);
// The names of the game files in a folder that have this product id, in ascending order.
std::vector<std::string> gamesWithId(const std::string& folder, std::uint32_t productId);
