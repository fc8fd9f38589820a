// The numbers that registers get, and the table of their first values.
#include "gme/Registers.h"

#include <gtest/gtest.h>

namespace {

// Notes the registers of script lines and of an "init" text.
class Numbering
{
public:
    Numbering(const std::string& scriptLine, const std::string& init)
    {
        gme::ScriptLine line;
        gme::parseScriptLine(scriptLine, line);
        registers.noteUseIn(line);
        std::vector<gme::InitialValue> values;
        gme::parseInit(init, values);
        for (const gme::InitialValue& value : values) {
            registers.noteInitialValue(value);
        }
        succeeded = registers.assignNumbers();
    }

    int numberOf(const std::string& name) const
    {
        gme::Register reg;
        reg.name = name;
        return registers.numberOf(reg);
    }
    std::vector<uint16_t> table() const { return registers.initialTable(); }

    bool succeeded = false;

private:
    gme::Registers registers;
};

using Table = std::vector<uint16_t>;

}  // namespace

TEST(Registers, AreNumberedInTheOrderOfTheirNames)
{
    const Numbering numbering("$a := 1 $B := 1 $_c := 1 $Ä := 1 $9 := 1 $a1 := $B", "");
    EXPECT_EQ(numbering.numberOf("B"), 0);
    EXPECT_EQ(numbering.numberOf("_c"), 1);
    EXPECT_EQ(numbering.numberOf("a"), 2);
    EXPECT_EQ(numbering.numberOf("a1"), 3);
    EXPECT_EQ(numbering.numberOf("Ä"), 4);
}

TEST(Registers, NumberedOnesKeepTheirNumberAndTheOthersSkipIt)
{
    const Numbering numbering("$a := $0 $b := $1 $c := $3", "$5 := 9");
    EXPECT_EQ(numbering.numberOf("a"), 2);
    EXPECT_EQ(numbering.numberOf("b"), 4);
    EXPECT_EQ(numbering.numberOf("c"), 6);
    EXPECT_EQ(numbering.table(), (Table{0, 0, 0, 0, 0, 9, 0}));
}

TEST(Registers, ConditionsAndCommandsBothUseThem)
{
    const Numbering numbering("$a == $b ? Neg($c) T($d, $e) J($f) SP(1, $g) PA*(x)($h)", "");
    EXPECT_EQ(numbering.table().size(), 8U);
}

TEST(Registers, TheLastFirstValueCounts)
{
    EXPECT_EQ(Numbering("$a := 1", "$a := 3 $a := 4").table(), Table{4});
}

TEST(Registers, ThoseThatOnlyInitNamesCountButDoNotLengthenTheTable)
{
    const Numbering numbering("$b := 1", "$a := 7 $c := 8 $b := 9");
    EXPECT_EQ(numbering.numberOf("b"), 1);
    EXPECT_EQ(numbering.table(), (Table{7, 9}));
}

TEST(Registers, TheTableHasAtLeastOneEntry)
{
    EXPECT_EQ(Numbering("C", "").table(), Table{0});
    EXPECT_EQ(Numbering("C", "$a := 5 $b := 6").table(), Table{5});
}

TEST(Registers, TheTableHasAtMost65535Entries)
{
    EXPECT_TRUE(Numbering("$65534 := 1", "").succeeded);
    EXPECT_FALSE(Numbering("$65535 := 1", "").succeeded);
    EXPECT_TRUE(Numbering("$0 := 1", "$65535 := 1").succeeded);
}

TEST(Registers, MoreNamesThanNumbersAreTooMany)
{
    std::string init;
    for (int i = 0; i < 65536; ++i) {
        init += "$r" + std::to_string(i) + " := 1 ";
    }
    EXPECT_FALSE(Numbering("C", init).succeeded);
}
