#include "qtsync/RadioGroup.h"

#include <QButtonGroup>
#include <QRadioButton>
#include <QSignalBlocker>

#include <algorithm>

namespace RadioGroup {

namespace {

bool isRadioButton(const QObject* object)
{
    return qobject_cast<const QRadioButton*>(object) != nullptr;
}

// Without its exclusiveness a button can be unchecked, and checking it touches no other one.
void checkAlone(QRadioButton* button, bool checked)
{
    const QSignalBlocker quiet(button);
    QButtonGroup* const buttonGroup = button->group();
    const QSignalBlocker quietGroup(buttonGroup);
    const bool groupExclusive = buttonGroup != nullptr && buttonGroup->exclusive();
    const bool autoExclusive = button->autoExclusive();
    button->setAutoExclusive(false);
    if (groupExclusive) {
        buttonGroup->setExclusive(false);
    }
    button->setChecked(checked);
    button->setAutoExclusive(autoExclusive);
    if (groupExclusive) {
        buttonGroup->setExclusive(true);
    }
}

}  // namespace

std::vector<QRadioButton*> collect(QRadioButton* first)
{
    const QWidget* const parent = first->parentWidget();
    const QObjectList& siblings = parent->children();
    const auto expected = std::count_if(siblings.begin(), siblings.end(), isRadioButton);
    std::vector<QRadioButton*> group;
    // Once around at most; in a large form, the group is complete long before.
    QWidget* widget = first;
    do {
        auto* const button = qobject_cast<QRadioButton*>(widget);
        if (button != nullptr && button->parentWidget() == parent) {
            group.push_back(button);
        }
        widget = widget->nextInFocusChain();
    } while (widget != nullptr && widget != first &&
             static_cast<std::ptrdiff_t>(group.size()) < expected);
    return group;
}

int checkedIndex(const std::vector<QRadioButton*>& group)
{
    const auto checked = std::find_if(group.begin(), group.end(),
                                      [](const auto* button) { return button->isChecked(); });
    return checked == group.end() ? -1 : static_cast<int>(checked - group.begin());
}

void check(const std::vector<QRadioButton*>& group, int index)
{
    for (size_t i = 0; i < group.size(); ++i) {
        checkAlone(group[i], index >= 0 && i == static_cast<size_t>(index));
    }
}

}  // namespace RadioGroup
