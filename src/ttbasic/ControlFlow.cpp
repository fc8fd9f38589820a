#include "base/TextHelpers.h"
#include "ttbasic/ttbasic.h"

bool ttbasic::doIf(const std::string& condition)
{
    if (!parseExpression(condition)) {
        return false;
    }
    const std::string value = asmPop();
    increase(ifDepth);
    const std::string flag = "$ifexp" + itostr(ifDepth);
    conditions.push_back(flag + " == 1");
    asmOperator(flag, ":=", value);  // still under the conditions of the enclosing blocks
    updateIfPrefix();
    return true;
}

bool ttbasic::doElse()
{
    if (ifDepth == 0) {
        return error("else-without-if", keyword, "else without if");
    }
    conditions.back().back() = '0';  // "$ifexp1 == 1" becomes "$ifexp1 == 0"
    updateIfPrefix();
    emitLine({"        # (", conditions.back(), ")"});
    return true;
}

bool ttbasic::doEndif()
{
    if (ifDepth <= 0) {
        return error("end-without-if", keyword, "end if without if");
    }
    conditions.pop_back();
    --ifDepth;
    updateIfPrefix();
    return true;
}

// Intended: this closes the open case; the select itself stays, and a later case still belongs to
// it.
bool ttbasic::doEndselect()
{
    return doEndif();
}

bool ttbasic::doSelect(const std::string& word)
{
    selects.push_back({"$" + word, {}});
    return true;
}

bool ttbasic::doCase(int value)
{
    if (selects.empty()) {
        return error("case-without-select", keyword, "case without select");
    }
    SELECTCASE& select = selects.back();
    if (select.cases.count(value) != 0) {
        return error("case-repeated", argument(0), "case " + itostr(value) + " is already defined");
    }
    if (!select.cases.empty() && !doEndif()) {
        return false;
    }
    const bool compiled = doIf(select.name.substr(1) + " == " + itostr(value));
    select.cases[value] = lineNumber;
    return compiled;
}

bool ttbasic::doDefaultCase()
{
    if (selects.empty()) {
        return error("case-without-select", keyword, "case without select");
    }
    if (selects.back().cases.empty()) {
        return doIf("_zero==0");
    }
    // Intended: without an open case this reports its error and the statement goes on all the same.
    doEndif();
    const std::string condition = conditionOfDefault(selects.back());
    emitLine({"        # default -> if ", condition});
    return doIf(condition);
}

// For the cases 1 and 2 of x: (x!=1) & (x!=2).
std::string ttbasic::conditionOfDefault(const SELECTCASE& select)
{
    const std::string name = select.name.substr(1);
    std::string condition;
    for (const auto& [value, line] : select.cases) {
        condition += condition.empty() ? "(" : ") & (";
        condition += name + "!=" + itostr(value);
    }
    return condition + ")";
}

bool ttbasic::doSub(const std::string& name)
{
    if (!currentSub.empty()) {
        return error("sub-not-ended", keyword, "No 'end sub' for " + currentSub, currentSub);
    }
    if (name.empty()) {
        return error("sub-without-name", keyword, "sub has no name");
    }
    asmLabel(name);
    updateIfPrefix();
    currentSub = name;
    increase(labels[name]);
    definitions.push_back({name, firstArgument(name)});
    return true;
}

bool ttbasic::doEndSub()
{
    if (currentSub.empty()) {
        return error("end-without-sub", keyword, "Not in a sub");
    }
    currentSub.clear();
    // Intended: the sub's name is gone by now, so the comment ends with a blank.
    emitLine({kCommandStart, "$rnd += ", randomSummand(), " # end sub ", currentSub});
    if (!conditions.empty()) {
        return error("if-not-ended", keyword, "if without endif in this sub");
    }
    updateIfPrefix();
    return true;
}

bool ttbasic::doGoto(const std::string& name)
{
    gotos[lineNumber] = name;
    jumps.push_back({name, firstArgument(name)});
    asmGoto(name);
    return true;
}

void ttbasic::asmGoto(const std::string& name)
{
    const std::string label = nextLabel();
    emitCommand({"J(", name, ")   $rnd += ", randomSummand()});
    emitFallThrough("", label);
    asmLabel(label);
}
