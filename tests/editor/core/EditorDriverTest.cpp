#include "dev/EditorDriver.h"

#include <gtest/gtest.h>

#include "dev/Json.h"

namespace {

std::string result(EditorDriver& driver, const std::string& line)
{
    return driver.carryOut(line).text;
}

std::string answer(EditorDriver& driver, const std::string& line)
{
    return driver.answer(driver.carryOut(line).text);
}

}  // namespace

TEST(EditorDriver, StartsWithOneEmptyLine)
{
    EditorDriver driver;
    EXPECT_EQ(answer(driver, "[\"move_cursor\", 0, 0]"),
              "{\"result\": null, \"lines\": [\"\"], \"start\": [0, 0], \"end\": [0, 0], "
              "\"active\": false, \"block\": false, \"dirty\": false, \"bookmarks\": [], "
              "\"undo\": 0, \"redo\": 0, \"bytes\": 0}");
}

TEST(EditorDriver, AnswersWithTheWholeState)
{
    EditorDriver driver;
    result(driver, "[\"set_text\", \"a\\tb\\nc\"]");
    result(driver, "[\"push_undo_state\"]");
    result(driver, "[\"bookmark\", 1]");
    EXPECT_EQ(answer(driver, "[\"key_any\", 120, false]"),
              "{\"result\": null, \"lines\": [\"xa\\u0009\\u0000b\", \"c\"], \"start\": [0, 1], "
              "\"end\": [0, 1], \"active\": false, \"block\": false, \"dirty\": true, "
              "\"bookmarks\": [1], \"undo\": 1, \"redo\": 0, \"bytes\": 66}");
}

TEST(EditorDriver, SettingATextForgetsTheHistoryButNotItsCharge)
{
    EditorDriver driver;
    result(driver, "[\"push_undo_state\"]");
    result(driver, "[\"select\", 0, 0, 1, 1, true, true]");
    EXPECT_EQ(answer(driver, "[\"set_text\", \"\"]"),
              "{\"result\": null, \"lines\": [\"\"], \"start\": [0, 0], \"end\": [0, 0], "
              "\"active\": false, \"block\": false, \"dirty\": false, \"bookmarks\": [], "
              "\"undo\": 0, \"redo\": 0, \"bytes\": 56}");
}

TEST(EditorDriver, AnswersQuestions)
{
    EditorDriver driver;
    result(driver, "[\"set_text\", \"(a 1.5)\"]");
    result(driver, "[\"select\", 0, 1, 0, 4, false, false]");
    const char* const expected[][2] = {
        {"[\"get_selected_text\"]", "[\"a 1\"]"},
        {"[\"get_all_text\", \"-\"]", "\"(a 1.5)\""},
        {"[\"find_next\", \"1\", 0, 0]", "[true, 0, 3]"},
        {"[\"find_next\", \"2\", 0, 0]", "[false]"},
        {"[\"find_matching_brace\", 0, 6]", "[true, 0, 0]"},
        {"[\"find_matching_brace\", 0, 1]", "[false]"},
        {"[\"start_of_word\", 0, 1]", "[0, 1]"},
        {"[\"end_of_word\", 0, 1]", "[0, 2]"},
        {"[\"snap\", 9, 9]", "[0, 7]"},
        {"[\"number_at\", 0, 4]", "[true, 3, 6]"},
        {"[\"number_at\", 0, 7]", "[false]"},
        {"[\"blocktype\", 0, 0]", "4"},
        {"[\"blocktype\", 7, 0]", "0"},
        {"[\"is_selected\", 0, 3]", "true"},
        {"[\"is_selected\", 0, 4]", "false"},
        {"[\"colorize\", 0, -1]", "[\"1111111\"]"},
    };
    for (const auto& [line, text] : expected) {
        EXPECT_EQ(result(driver, line), text) << line;
        EXPECT_TRUE(driver.carryOut(line).hasResult) << line;
    }
}

TEST(EditorDriver, ColoursByTheRulesOfANewEditorUntilOthersAreChosen)
{
    EditorDriver driver;
    result(driver, "[\"set_text\", \"foo say\"]");
    EXPECT_EQ(result(driver, "[\"colorize\", 0, -1]"), "[\"6661111\"]");
    result(driver, "[\"rules\", \"script\"]");
    EXPECT_EQ(result(driver, "[\"colorize\", 0, -1]"), "[\"6661111\"]");
    result(driver, "[\"set_text\", \"foo say\"]");
    EXPECT_EQ(result(driver, "[\"colorize\", 0, -1]"), "[\"6661444\"]");
    result(driver, "[\"rules\", \"cpp\"]");
    result(driver, "[\"set_text\", \"foo say\"]");
    EXPECT_EQ(result(driver, "[\"colorize\", 0, -1]"), "[\"1111111\"]");
}

TEST(EditorDriver, CarriesOutEveryOperation)
{
    EditorDriver driver;
    for (const char* line : {"[\"set_text\", \"a\"]",
                             "[\"key_any\", 65535, true]",
                             "[\"key_enter\"]",
                             "[\"key_delete\"]",
                             "[\"delete_selected_range\"]",
                             "[\"indent\"]",
                             "[\"indent_negative\"]",
                             "[\"move_cursor\", 1, -1]",
                             "[\"mouse_click\", 0, 0, true, true]",
                             "[\"mouse_doubleclick\", 0, 0]",
                             "[\"paste\", \"x\\ny\", true]",
                             "[\"upper\"]",
                             "[\"lower\"]",
                             "[\"select\", 0, 0, 0, 1, true, false]",
                             "[\"push_undo_state\"]",
                             "[\"undo\"]",
                             "[\"redo\"]",
                             "[\"bookmark\", 0]",
                             "[\"set_tab_width\", 8]",
                             "[\"set_undo_limit\", 0]",
                             "[\"rules\", \"cpp\"]",
                             "[\"insert_rows\", 0, 1]",
                             "[\"erase_lines\", 0, 1]",
                             "[\"insert_block\", \"x\", 0, 0]"}) {
        const EditorDriver::Reply reply = driver.carryOut(line);
        EXPECT_EQ(reply.text, "null") << line;
        EXPECT_FALSE(reply.isError || reply.hasResult) << line;
    }
}

TEST(EditorDriver, AWrongLineIsAnErrorAndChangesNothing)
{
    EditorDriver driver;
    result(driver, "[\"set_text\", \"ab\"]");
    const std::string before = driver.answer("null");
    for (const char* line : {"",
                             "x",
                             "[]",
                             "[1]",
                             "[\"fly\"]",
                             "[\"key_enter\", 1]",
                             "[\"key_any\", 120]",
                             "[\"key_any\", \"x\", false]",
                             "[\"key_any\", 65536, false]",
                             "[\"key_any\", -1, false]",
                             "[\"key_any\", 120.0, false]",
                             "[\"key_any\", 120, 0]",
                             "[\"bookmark\", 1]",
                             "[\"bookmark\", -1]",
                             "[\"rules\", \"fortran\"]",
                             "[\"paste\", null, true]",
                             "[\"paste\", [\"x\"], true]",
                             "[\"insert_rows\", 0, 2147483648]",
                             "[\"key_enter\"",
                             "[\"key_enter\"] x",
                             "{\"key_enter\": 1}",
                             "[\"key_enter\",]",
                             "[\"set_text\", \"x]"}) {
        const EditorDriver::Reply reply = driver.carryOut(line);
        EXPECT_TRUE(reply.isError) << line;
        EXPECT_EQ(reply.text.substr(0, 10), "{\"error\": ") << line;
        EXPECT_EQ(driver.answer("null"), before) << line;
    }
}

TEST(EditorDriver, HalvesOfSurrogatePairsGoInAndOutAsEscapes)
{
    EditorDriver driver;
    result(driver, "[\"set_text\", \"\\ud83d x \\ud83d\\ude00\"]");
    EXPECT_EQ(result(driver, "[\"get_all_text\", \"\"]"), "\"\\ud83d x \xF0\x9F\x98\x80\"");
}

TEST(Json, ReadsTextsNumbersAndBooleans)
{
    const auto values =
        Json::parseArray(" [ \"a\\\"\\\\\\/\\b\\f\\n\\r\\t\\u00e4\xC3\xA4\" , -12 , "
                         "true,false, 0 ] \r");
    ASSERT_TRUE(values);
    ASSERT_EQ(values->size(), 5U);
    EXPECT_EQ(std::get<std::u16string>((*values)[0]), u"a\"\\/\b\f\n\r\t\u00E4\u00E4");
    EXPECT_EQ(std::get<std::int32_t>((*values)[1]), -12);
    EXPECT_TRUE(std::get<bool>((*values)[2]));
    EXPECT_FALSE(std::get<bool>((*values)[3]));
    EXPECT_EQ(std::get<std::int32_t>((*values)[4]), 0);
}

TEST(Json, ReadsTheLimitsOfThe32BitIntegers)
{
    const auto values = Json::parseArray("[2147483647, -2147483648]");
    ASSERT_TRUE(values);
    EXPECT_EQ(std::get<std::int32_t>((*values)[0]), 2147483647);
    EXPECT_EQ(std::get<std::int32_t>((*values)[1]), -2147483647 - 1);
}

TEST(Json, RefusesWhatIsNoSuchArray)
{
    for (const char* line : {"[01]",
                             "[-]",
                             "[1.5]",
                             "[1e3]",
                             "[truex]",
                             "[tru]",
                             "[\"\\x\"]",
                             "[\"\\u12g4\"]",
                             "[\"\t\"]",
                             "[\"\xC3\"]",
                             "[\"\xC0\x80\"]",
                             "[\"\xED\xA0\x80\"]",
                             "[\"\xF5\x80\x80\x80\"]",
                             "[\"\xE0\x80\x80\"]",
                             "[\"\x80\"]",
                             "[1 2]",
                             "[2147483648]",
                             "[-2147483649]",
                             "[99999999999999999999]",
                             "[null]",
                             "\xEF\xBB\xBF[1]"}) {
        EXPECT_FALSE(Json::parseArray(line)) << line;
    }
}

TEST(Json, WritesUtf8AndEscapesControlCharactersAndQuotes)
{
    EXPECT_EQ(Json::quoted(u"a\"\\\n\u007F\u00E4\u20AC\U0001F600"),
              "\"a\\\"\\\\\\u000a\\u007f\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80\"");
    EXPECT_EQ(Json::quoted({0xDE00, 0xD83D}), "\"\\ude00\\ud83d\"");
    EXPECT_EQ(Json::quoted(std::u16string(1, 0)), "\"\\u0000\"");
}
