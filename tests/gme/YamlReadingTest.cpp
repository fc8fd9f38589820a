// The YAML that a game may be written in: which forms are read and as what, and which are refused.
#include "gme/Yaml.h"
#include "tests/gme/GameFolder.h"
#include "tests/helpers/CapturedMessages.h"

#include <filesystem>
#include <gtest/gtest.h>

using gme::YamlNode;

namespace {

std::string shown(const YamlNode& node)
{
    if (node.isScalar()) {
        return node.kind == YamlNode::Kind::Quoted ? "'" + node.text + "'" : "<" + node.text + ">";
    }
    std::string text;
    for (const YamlNode& child : node.children) {
        text += text.empty() ? "" : " ";
        if (node.kind == YamlNode::Kind::Mapping) {
            text += child.key + "@" + std::to_string(child.keyPlace.line) + ":";
        }
        text += shown(child);
    }
    return node.kind == YamlNode::Kind::List ? "[" + text + "]" : "{" + text + "}";
}

// The tree of a file as text: {key@line:<plain> key@line:'quoted' key@line:[<entry>]}, or what is
// wrong with it.
std::string read(const std::string& source)
{
    CapturedMessages captured;
    gme::Messages messages("x.yaml", printWith(CapturedMessages::print));
    YamlNode root;
    const bool ok = gme::readYaml(source, root, messages);
    return ok ? shown(root) : captured.take();
}

}  // namespace

TEST(YamlReading, MappingsListsAndScalarsKeepTheirLines)
{
    EXPECT_EQ(read("a: 5\n"
                   "b:\n"
                   "  c:\n"
                   "  - x y\n"
                   "  - 'z'\n"
                   "d: {}\n"
                   "e: []\n"
                   "f:\n"),
              "{a@1:<5> b@2:{c@3:[<x y> 'z']} d@6:{} e@7:[] f@8:<>}");
}

TEST(YamlReading, AByteOrderMarkAndAllLineEndsAreFine)
{
    EXPECT_EQ(read("\xEF\xBB\xBF"
                   "a: 1\r\n"
                   "b: 2\r"
                   "c: 3\n"
                   "\r\n"
                   "d: 4"),
              "{a@1:<1> b@2:<2> c@3:<3> d@5:<4>}");
}

TEST(YamlReading, CommentsBeginAtTheLineStartOrBehindABlank)
{
    EXPECT_EQ(read("# one\n"
                   "a: x # two\n"
                   "            # three: [\n"
                   "b: x#y\t# four\n"
                   "\t# five\n"
                   "c:\n"
                   "  - d\n"
                   "# six\n"
                   "  - e\n"
                   "f: 'x # y'# seven\n"),
              "{a@2:<x> b@4:<x#y> c@6:[<d> <e>] f@10:'x # y'}");
}

TEST(YamlReading, PlainTextsKeepInnerBlanksAndLoseTrailingOnes)
{
    EXPECT_EQ(read("my area:   two  words \t\n"), "{my area@1:<two  words>}");
}

TEST(YamlReading, AKeyEndsAtTheFirstColonBeforeWhiteSpace)
{
    EXPECT_EQ(read("a:b: 1\n"
                   "a::\n"
                   "a[1]{2}: 2\n"
                   "?x: 3\n"
                   "-x: 4\n"
                   "=: 5\n"
                   "k \t: 6\n"
                   "it's \"here\"#5: 7\n"),
              "{a:b@1:<1> a:@2:<> a[1]{2}@3:<2> ?x@4:<3> -x@5:<4> =@6:<5> k@7:<6> "
              "it's \"here\"#5@8:<7>}");
}

TEST(YamlReading, KeysAreTextAsTheyAreWritten)
{
    EXPECT_EQ(read("null: 1\n"
                   "Null: 2\n"
                   "NULL: 3\n"
                   "~: 4\n"
                   "007: 5\n"
                   "true: 6\n"
                   "'': 7\n"),
              "{null@1:<1> Null@2:<2> NULL@3:<3> ~@4:<4> 007@5:<5> true@6:<6> @7:<7>}");
}

TEST(YamlReading, SingleQuotesKnowOnlyTheDoubledQuote)
{
    EXPECT_EQ(read("a: 'it''s \\n \"'\n"), "{a@1:'it's \\n \"'}");
}

TEST(YamlReading, DoubleQuotesKnowTheEscapes)
{
    EXPECT_EQ(read("a: \"\\a\\b\\t\\n\\v\\f\\r\\e\\\"\\/\\\\\\ \\\t\"\n"
                   "b: \"\\N\\_\\L\\P\\x41\\xFC\\u00fc\\U0001F600\"\n"),
              "{a@1:'\a\b\t\n\v\f\r\x1B\"/\\ \t' "
              "b@2:'\xC2\x85\xC2\xA0\xE2\x80\xA8\xE2\x80\xA9"
              "Aüü😀'}");
    EXPECT_EQ(read("a: \"\\0\"\n"), std::string("{a@1:'\0'}", 9));
}

TEST(YamlReading, ExplicitKeysAreRead)
{
    EXPECT_EQ(read("a:\n"
                   "  ? long name\n"
                   "  : 5\n"
                   "  b: 6\n"),
              "{a@1:{long name@2:<5> b@4:<6>}}");
}

TEST(YamlReading, DuplicateKeysAllStay)
{
    EXPECT_EQ(read("a: 1\n"
                   "a: 2\n"),
              "{a@1:<1> a@2:<2>}");
}

TEST(YamlReading, AKeyMayHave1024Characters)
{
    const std::string ascii(1024, 'k');
    std::string umlauts;
    for (int i = 0; i < 1024; ++i) {
        umlauts += "ü";
    }
    EXPECT_EQ(read("a:\n  " + ascii + ": 1\n  " + umlauts + ": 2\nb: 3\n"),
              "{a@1:{" + ascii + "@2:<1> " + umlauts + "@3:<2>} b@4:<3>}");
    EXPECT_EQ(read(ascii + "k: 1\n"),
              "Error: x.yaml line 1: a name is longer than 1024 characters: \"" +
                  std::string(80, 'k') + "...\"\n");
}

TEST(YamlReading, AFileWithoutAnythingIsRefused)
{
    const std::string expected = "Error: x.yaml: the file is empty\n";
    EXPECT_EQ(read(""), expected);
    EXPECT_EQ(read("\xEF\xBB\xBF"), expected);
    EXPECT_EQ(read("# only a comment\r\n"), expected);
}

TEST(YamlReading, AByteOrderMarkInsideATextBelongsToIt)
{
    EXPECT_EQ(read("a: x\xEF\xBB\xBFy # \xEF\xBB\xBF\n"), "{a@1:<x\xEF\xBB\xBFy>}");
}

TEST(YamlReading, BytesThatAreNoUtf8AreRefusedWithTheirLine)
{
    const std::string expected = "Error: x.yaml line 2: the text is not valid UTF-8\n";
    EXPECT_EQ(read("a: 1\n# \xFC\n"), expected);
    EXPECT_EQ(read("a: 1\n\xC3"), expected);
    EXPECT_EQ(read("a: 1\n\xC0\x80"), expected);
}

TEST(YamlReading, CharactersThatYamlForbidsAreRefusedEvenInComments)
{
    const auto refused = [](const std::string& kind) {
        return "Error: x.yaml line 1: " + kind + " is not allowed\n";
    };
    EXPECT_EQ(read("# \x01\n"), refused("control character U+0001"));
    EXPECT_EQ(read(std::string("# \0\n", 4)), refused("control character U+0000"));
    EXPECT_EQ(read("# \x0B\n"), refused("control character U+000B"));
    EXPECT_EQ(read("# \x1F\n"), refused("control character U+001F"));
    EXPECT_EQ(read("# \x7F\n"), refused("control character U+007F"));
    EXPECT_EQ(read("# \xC2\x9F\n"), refused("control character U+009F"));
    EXPECT_EQ(read("# \xED\xA0\x80\n"), refused("character U+D800"));
    EXPECT_EQ(read("# \xEF\xBF\xBE\n"), refused("character U+FFFE"));
    EXPECT_EQ(read("# \xEF\xBF\xBF\n"), refused("character U+FFFF"));
    EXPECT_EQ(read("# \xC2\x85\n"), refused("line separator U+0085"));
    EXPECT_EQ(read("# \xE2\x80\xA8\n"), refused("line separator U+2028"));
    EXPECT_EQ(read("# \xE2\x80\xA9\n"), refused("line separator U+2029"));
}

TEST(YamlReading, FormsThatNoGameNeedsAreRefusedByTheirFirstCharacter)
{
    for (const std::string text :
         {"&a 5", "*a", "!!str 5", "|x", ">x", "%x", "@x", "`x", ",x", "]x", "}x", "? x"}) {
        EXPECT_EQ(read("a: " + text + "\n"),
                  "Error: x.yaml line 1: this form of YAML is not supported: a name or text "
                  "without quotes cannot begin with " +
                      text.substr(0, 1) + ": \"a: " + text + "\"\n");
    }
}

TEST(YamlReading, ListsAndMappingsMayStandInBrackets)
{
    EXPECT_EQ(read("a: [1, 'two', x y]\n"), "{a@1:[<1> 'two' <x y>]}");
    EXPECT_EQ(read("a: {b: 1, \"c\":2}\n"), "{a@1:{b@1:<1> c@1:<2>}}");
    EXPECT_EQ(read("a: [\n"
                   "  [], # none\n"
                   "  {b: [1]},\n"
                   "]\n"),
              "{a@1:[[] {b@3:[<1>]}]}");
    EXPECT_EQ(read("a: [ ] # none\n"), "{a@1:[]}");
}

TEST(YamlReading, BracketsWithoutTheirEndAreToldWhereTheyBegin)
{
    const std::string missing = "a comma or the closing bracket is missing in this list: ";
    EXPECT_EQ(read("a: [1, 2\nb: 3\n"), "Error: x.yaml line 1: " + missing + "\"a: [1, 2\"\n");
    EXPECT_EQ(read("a: {b: 1\n"), "Error: x.yaml line 1: " + missing + "\"a: {b: 1\"\n");
    EXPECT_EQ(read("a:\n  [lion: 5\n  cow: 6\n"),
              "Error: x.yaml line 2: a: " + missing + "\"[lion: 5\"\n");
    EXPECT_EQ(read("a: [b,\n"), "Error: x.yaml line 2: the closing bracket of a list is missing\n");
}

TEST(YamlReading, DocumentMarkersAreRefused)
{
    EXPECT_EQ(read("---\n"
                   "a: 1\n"
                   "... # end\n"),
              "Error: x.yaml line 1: document markers are not supported: \"---\"\n");
    EXPECT_EQ(read("a: 1\n"
                   "... # end\n"),
              "Error: x.yaml line 2: document markers are not supported: \"... # end\"\n");
    EXPECT_EQ(read("...x: 1\n"), "{...x@1:<1>}");
}

TEST(YamlReading, TextsMayGoOverSeveralLines)
{
    EXPECT_EQ(read("a: x\n"
                   "  y # cut\n"
                   "b: 'one\n"
                   "  two\n"
                   "\n"
                   "  three'\n"
                   "c: \"one\\\n"
                   "  two\"\n"
                   "d: 5\n"),
              "{a@1:<x y> b@3:'one two\nthree' c@7:'onetwo' d@9:<5>}");
}

TEST(YamlReading, BlockTextsKeepOrJoinTheirLines)
{
    EXPECT_EQ(read("a: |\n"
                   "  one # in the text\n"
                   "    two\n"
                   "b: >-\n"
                   "  one\n"
                   "  two\n"
                   "c:\n"
                   "- |2+\n"
                   "  5\n"
                   "\n"),
              "{a@1:'one # in the text\n  two\n' b@4:'one two' c@7:['5\n\n']}");
}

TEST(YamlReading, QuotesThatAreNeverClosedAreToldWhereTheyBegin)
{
    const std::string refused = "Error: x.yaml line 1: the quotes of this text are not closed: ";
    EXPECT_EQ(read("a: 'x\nb: 5\n"), refused + "\"a: 'x\"\n");
    EXPECT_EQ(read("a: \"x\\\n"), refused + "\"a: \"x\\\"\n");
}

TEST(YamlReading, QuotesThatCloseOnlyWhereTheNextTextBeginsAreToldWhereTheyBegin)
{
    EXPECT_EQ(
        read("comment: \"Zoo\\\"\n"
             "media-path: \"950-audio/%s\"\n"),
        "Error: x.yaml line 1: the text in quotes ends in line 2, and there is text behind the "
        "closing quote: \"comment: \"Zoo\\\"\"\n");
}

TEST(YamlReading, TabsCannotIndent)
{
    EXPECT_EQ(read("a:\n\tb: 1\n"), "Error: x.yaml line 2: a tab cannot indent a line: \"b: 1\"\n");
}

TEST(YamlReading, TabsMayIndentLinesWithoutAnythingButAComment)
{
    EXPECT_EQ(read("a: x\n"
                   "\t\n"
                   " \t # one\n"
                   "b:\n"
                   "\t# two\n"
                   "  - y\n"
                   "\t\t\n"),
              "{a@1:<x> b@4:[<y>]}");
}

TEST(YamlReading, ATabBehindADashIsRefused)
{
    EXPECT_EQ(read("a:\n-\tx\n"),
              "Error: x.yaml line 2: a tab cannot stand before a text: \"-?x\"\n");
}

TEST(YamlReading, UnknownEscapesAreRefused)
{
    const std::string refused =
        "Error: x.yaml line 1: an unknown character follows a backslash in double quotes: ";
    EXPECT_EQ(read("a: \"\\q\"\n"), refused + "\"a: \"\\q\"\"\n");
    EXPECT_EQ(read("a: \"\\'\"\n"), refused + "\"a: \"\\'\"\"\n");
    EXPECT_EQ(
        read("a: \"\\xZZ\"\n"),
        "Error: x.yaml line 1: hexadecimal digits must follow the backslash in double quotes: "
        "\"a: \"\\xZZ\"\"\n");
    EXPECT_EQ(read("a: \"\\uD800\"\n"),
              "Error: x.yaml line 1: there is no character with the number behind the backslash: "
              "\"a: \"\\uD800\"\"\n");
}

TEST(YamlReading, NothingMayFollowAClosingQuote)
{
    const std::string refused =
        "Error: x.yaml line 1: there is text behind the closing quote or bracket: ";
    EXPECT_EQ(read("a: \"x\"y\n"), refused + "\"a: \"x\"y\"\n");
    EXPECT_EQ(read("\"a\":1\n"), refused + "\"\"a\":1\"\n");
    EXPECT_EQ(read("a: [] x\n"), refused + "\"a: [] x\"\n");
}

TEST(YamlReading, EmptyNamesAreRefusedWithTheirSection)
{
    EXPECT_EQ(read("codes:\n"
                   "  : 5\n"),
              "Error: x.yaml line 2: codes: a name is empty: \": 5\"\n");
    EXPECT_EQ(read("codes:\n"
                   "  ?\n"
                   "  : 5\n"),
              "Error: x.yaml line 2: codes: a name is empty: \"?\"\n");
}

TEST(YamlReading, ASecondColonInALineIsRefused)
{
    EXPECT_EQ(read("x: y: 1\n"), "Error: x.yaml line 1: a name without quotes cannot hold a colon "
                                 "before a blank: \"x: y: 1\"\n");
}

TEST(YamlReading, TheMergeKeyIsRefused)
{
    const std::string refused =
        "Error: x.yaml line 1: the name << has a special meaning in YAML and is not supported\n";
    EXPECT_EQ(read("<<: 1\n"), refused);
    EXPECT_EQ(read("'<<': 1\n"), refused);
}

TEST(YamlReading, OnlyTextsCanBeNames)
{
    const std::string refused = "Error: x.yaml line 1: a list or mapping cannot be a name\n";
    EXPECT_EQ(read("? - a\n: b\n"), refused);
    EXPECT_EQ(read("? a: b\n: c\n"), refused);
    EXPECT_EQ(read("[]: a\n"), refused);
}

TEST(YamlReading, ListsMayStandInLists)
{
    EXPECT_EQ(read("a:\n"
                   "  - one # cut\n"
                   "  - - two\n"
                   "    - three\n"),
              "{a@1:[<one> [<two> <three>]]}");
}

TEST(YamlReading, KeysOfOneMappingShareAColumn)
{
    EXPECT_EQ(read("a:\n"
                   "    b: 1\n"
                   "  c: 2\n"),
              "Error: x.yaml line 3: a: the names of one mapping begin in the same column: "
              "\"c: 2\"\n");
}

TEST(YamlReading, ALineOfAMappingIsANameWithAColon)
{
    const std::string refused = "Error: x.yaml line 2: a name with a colon is expected: ";
    EXPECT_EQ(read("a: 1\n- b\n"), refused + "\"- b\"\n");
    EXPECT_EQ(read("a: 1\nb #: 2\nc: 3\n"), refused + "\"b #: 2\"\n");
    EXPECT_EQ(read("a: 1\nb\n"), refused + "\"b\"\n");
}

TEST(YamlReading, EntriesOfAListBeginWithADash)
{
    EXPECT_EQ(read("- a\nb: 1\n"),
              "Error: x.yaml line 2: an entry that begins with a dash is expected: \"b: 1\"\n");
    EXPECT_EQ(read("a: - b\n"),
              "Error: x.yaml line 1: a list with dashes begins on a line of its own: \"a: - b\"\n");
}

TEST(YamlReading, WhatHasNoWordsOfOursIsToldInThoseOfTheParser)
{
    EXPECT_EQ(read("a: [x:[1]]\n"),
              "Error: x.yaml line 1: not valid YAML (found unexpected ':'): \"a: [x:[1]]\"\n");
}

TEST(YamlReading, DeepNestingIsRefused)
{
    std::string dashes = "a:\n  ";
    for (int i = 0; i < 100000; ++i) {
        dashes += "- ";
    }
    EXPECT_EQ(read(dashes + "x\n"),
              "Error: x.yaml line 2: lists and mappings are nested too deeply\n");
}

TEST(YamlReading, AHundredMegabytesOfCommentsAreNoHindrance)
{
    std::string comments;
    const std::string line = "# " + std::string(97, 'x') + "\n";
    for (int i = 0; i < 1000000; ++i) {
        comments += line;
    }
    EXPECT_EQ(read(comments + "a: 1\n"), "{a@1000001:<1>}");
}

TEST(YamlReading, AGapThatWouldTakeTheParserLongIsRefused)
{
    const std::string gap(4096, ' ');
    EXPECT_EQ(read("a: x" + gap + "y\n"), "{a@1:<x" + gap + "y>}");
    EXPECT_EQ(read("a: x" + gap + " y\n"),
              "Error: x.yaml line 1: more than 4096 blanks or line ends follow each other\n");
    EXPECT_EQ(read("a: x\n" + std::string(10000, '\n') + "b: 5\n"),
              "Error: x.yaml line 4097: more than 4096 blanks or line ends follow each other\n");
}

TEST(YamlReading, AHundredMegabytesOfTextAreRefused)
{
    std::string lines = "a:\n";
    for (int i = 0; i < 1000000; ++i) {
        lines += "- ten times ten characters of text, as often as it takes to be far beyond what a "
                 "game ever needs.....\n";
    }
    EXPECT_EQ(read(lines), "Error: x.yaml: more than 16 MiB of YAML besides its comments\n");
}

TEST(YamlReading, MillionsOfEntriesAreRefused)
{
    std::string lines = "a:\n";
    for (int i = 0; i < 2000001; ++i) {
        lines += "-\n";
    }
    EXPECT_EQ(read(lines),
              "Error: x.yaml line 2000000: the file has more than 2 million entries\n");
}

TEST(YamlReading, ABracketThatNeverClosesIsRefusedAtOnce)
{
    std::string brackets = "a: ";
    brackets.resize(10'000'000, '[');
    EXPECT_EQ(read(brackets), "Error: x.yaml line 1: lists and mappings are nested too deeply\n");
}

TEST(YamlReading, FilesBeyond256MebibytesAreRefused)
{
    const TemporaryFolder folder;
    writeFile(folder.file("x.yaml"), "");
    std::filesystem::resize_file(folder.file("x.yaml"), gme::kLargestSource + 1);
    CapturedMessages captured;
    gme::Messages messages(folder.file("x.yaml"), printWith(CapturedMessages::print));
    std::string bytes;

    EXPECT_FALSE(gme::readBytes(folder.file("x.yaml"), bytes, messages));

    EXPECT_EQ(captured.text(), "Error: x.yaml: the file is larger than 256 MiB\n");
}
