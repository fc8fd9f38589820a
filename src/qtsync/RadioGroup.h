#pragma once

#include <vector>

class QRadioButton;

// The radio buttons of one parent widget, among which the user checks one.
namespace RadioGroup {

// In the order of the focus chain, the given button first. It must have a parent.
std::vector<QRadioButton*> collect(QRadioButton* first);
// -1 when none is checked.
int checkedIndex(const std::vector<QRadioButton*>& group);
// Checks the one with that number and no other; no signal is sent.
void check(const std::vector<QRadioButton*>& group, int index);

}  // namespace RadioGroup
