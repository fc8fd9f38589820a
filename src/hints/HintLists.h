#pragma once

#include "hints/Book.h"
#include "hints/Hint.h"

// The hints of each file.
namespace hints {

std::vector<Hint> sayHints();
std::vector<Hint> expressionHints();
std::vector<Hint> nameHints();
std::vector<Hint> flowHints();
std::vector<Hint> areaNameHints();
std::vector<Hint> areaNumberHints();
std::vector<Hint> areaShapeHints();
std::vector<Hint> areaSubHints();
std::vector<Hint> productHints();
std::vector<Hint> pageHints();

}  // namespace hints
