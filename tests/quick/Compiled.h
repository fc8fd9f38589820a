#pragma once

#include "gme/Game.h"
#include "oid/OidProject.h"

#include <cstdint>
#include <map>
#include <set>
#include <string>

// A game as it is assembled, without its audio.
struct Compiled
{
    gme::Game game;
    std::set<uint16_t> inner;
    std::map<std::string, uint16_t> areas;
};

// Both throw what is wrong.
Compiled compiled(const Oid::OidProject& project, bool debugMode = false);
Compiled compiled(const std::string& yaml);
