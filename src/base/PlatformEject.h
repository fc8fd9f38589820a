#pragma once

#include <string>

// Letting go of a drive. Nothing else stands here: a test links a stand-in in its place.
namespace Platform {

// Writes out what the drive with that root (as penVolumes tells it) still waits for, and lets go of
// it, so that it can be unplugged: on Windows by the control of the volume, elsewhere by UDisks.
// Empty when that is done; else why not, in words for behind a colon.
std::string ejectVolume(const std::string& root);

}  // namespace Platform
