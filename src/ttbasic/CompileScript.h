#pragma once

class ttbasic;

// Compiles the script as ttbasic::parse does; an expression without enough operands counts as an
// error of its line and ends the compilation. For everyone who builds a game.
bool compileScript(ttbasic& script, bool debugMode);
