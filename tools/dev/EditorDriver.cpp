#include "dev/EditorDriver.h"

#include <exception>
#include <map>
#include <vector>

#include "dev/Json.h"
#include "editor/core/CaseChange.h"
#include "ttbasic/ttbasic.h"

using namespace KVTextEditor;

namespace {

using TextBuffer = Buffer<EdChar>;
using Backend = EditorBackend<EdChar>;

constexpr int kLargestCode = 0xFFFF;
const std::string kNull = "null";

// The arguments of an operation, already known to be of the right kinds.
class Arguments
{
public:
    explicit Arguments(const std::vector<Json::Value>& line) : values(line) {}

    const std::u16string& text(int i) const { return std::get<std::u16string>(values[i + 1]); }
    int number(int i) const { return std::get<std::int32_t>(values[i + 1]); }
    bool flag(int i) const { return std::get<bool>(values[i + 1]); }
    CARET caret(int i) const { return {number(i), number(i + 1)}; }

private:
    const std::vector<Json::Value>& values;
};

// What is wrong with an argument of the right kind; nothing was changed.
struct WrongArgument
{
    std::string message;
};

std::string booleanJson(bool value)
{
    return value ? "true" : "false";
}

template <class ITEMS, class ITEM_JSON>
std::string arrayJson(const ITEMS& items, ITEM_JSON itemJson)
{
    std::string json = "[";
    for (const auto& item : items) {
        json += json.size() > 1 ? ", " : "";
        json += itemJson(item);
    }
    return json + "]";
}

std::string caretJson(CARET caret)
{
    return "[" + std::to_string(caret.line) + ", " + std::to_string(caret.column) + "]";
}

std::string foundJson(bool found, int first, int second)
{
    if (!found) {
        return "[false]";
    }
    return "[true, " + std::to_string(first) + ", " + std::to_string(second) + "]";
}

// One text per line: all its cells, each as the character that characterOf gives it.
template <class CHARACTER>
std::string linesJson(const TextBuffer& buffer, CHARACTER characterOf)
{
    std::vector<std::u16string> lines(buffer.line_count());
    for (int i = 0; i < buffer.line_count(); ++i) {
        for (const EdChar& cell : buffer.line(i)) {
            lines[i] += characterOf(cell);
        }
    }
    return arrayJson(lines, Json::quoted);
}

std::string cellsJson(const TextBuffer& buffer)
{
    return linesJson(buffer, [](const EdChar& cell) { return cell.ch; });
}

std::string rolesJson(const TextBuffer& buffer)
{
    return linesJson(buffer,
                     [](const EdChar& cell) { return static_cast<char16_t>(u'0' + cell.color); });
}

TextBuffer bufferWith(const std::u16string& text)
{
    TextBuffer buffer;
    buffer.set_text(text);
    return buffer;
}

void setText(Backend& editor, const std::u16string& text)
{
    editor.undo_states.clear();
    editor.redo_states.clear();
    editor.selection = SELECTION();
    editor.buffer->set_text(text);
    editor.buffer->tabs_insert(editor.tab_width);
}

void typeKey(Backend& editor, int code, bool overwrite)
{
    if (code < 0 || code > kLargestCode) {
        throw WrongArgument{"the code is not between 0 and 65535"};
    }
    editor.key_any(static_cast<char16_t>(code), overwrite);
}

void flipBookmark(Backend& editor, int line)
{
    if (line < 0 || line >= editor.buffer->line_count()) {
        throw WrongArgument{"the bookmark is outside the text"};
    }
    bool& bookmark = editor.buffer->line(line).bookmark;
    bookmark = !bookmark;
}

void useRules(Backend& editor, const std::u16string& name)
{
    if (name == u"cpp") {
        editor.init_keywords_cpp();
    } else if (name == u"script") {
        set_script_rules(editor, ttbasic::keywords(), ttbasic::voiceOptions());
    } else {
        throw WrongArgument{"the rules are neither \"cpp\" nor \"script\""};
    }
}

std::string findNext(const Backend& editor, const Arguments& arguments)
{
    CARET caret = arguments.caret(1);
    const bool found = editor.find_next(arguments.text(0), caret);
    return foundJson(found, caret.line, caret.column);
}

std::string findMatchingBrace(const Backend& editor, CARET caret)
{
    const bool found = editor.find_matching_brace(caret);
    return foundJson(found, caret.line, caret.column);
}

std::string numberAt(const TextBuffer& buffer, CARET caret)
{
    int first = 0;
    int last = 0;
    const bool found =
        buffer.line(caret.line).is_floating_point_number_at(caret.column, first, last);
    return foundJson(found, first, last);
}

struct Operation
{
    // The kinds of the arguments: t text, n number, b boolean.
    std::string kinds;
    // Returns the result as JSON.
    std::string (*run)(Backend& editor, const Arguments& arguments);
};

// Operations without a result.
template <void (Backend::*OPERATION)()>
std::string run(Backend& editor, const Arguments&)
{
    (editor.*OPERATION)();
    return kNull;
}

using A = const Arguments&;

const std::map<std::u16string, Operation>& changes()
{
    static const std::map<std::u16string, Operation> table = {
        {u"key_enter", {"", run<&Backend::key_enter>}},
        {u"key_delete", {"", run<&Backend::key_delete>}},
        {u"delete_selected_range", {"", run<&Backend::delete_selected_range>}},
        {u"indent", {"", run<&Backend::indent>}},
        {u"indent_negative", {"", run<&Backend::indent_negative>}},
        {u"push_undo_state", {"", run<&Backend::push_undo_state>}},
        {u"undo", {"", run<&Backend::undo>}},
        {u"redo", {"", run<&Backend::redo>}},
        {u"set_text", {"t", [](Backend& e, A a) { return setText(e, a.text(0)), kNull; }}},
        {u"key_any",
         {"nb", [](Backend& e, A a) { return typeKey(e, a.number(0), a.flag(1)), kNull; }}},
        {u"move_cursor",
         {"nn", [](Backend& e, A a) { return e.move_cursor(a.number(0), a.number(1)), kNull; }}},
        {u"mouse_click",
         {"nnbb",
          [](Backend& e, A a) { return e.mouse_click(a.caret(0), a.flag(2), a.flag(3)), kNull; }}},
        {u"mouse_doubleclick",
         {"nn", [](Backend& e, A a) { return e.mouse_doubleclick(a.caret(0)), kNull; }}},
        {u"paste",
         {"tb", [](Backend& e, A a) { return e.paste(bufferWith(a.text(0)), a.flag(1)), kNull; }}},
        {u"upper",
         {"", [](Backend& e, A) { return e.transform(e.selection, transform_to_upper), kNull; }}},
        {u"lower",
         {"", [](Backend& e, A) { return e.transform(e.selection, transform_to_lower), kNull; }}},
        {u"select",
         {"nnnnbb",
          [](Backend& e, A a) {
              e.selection = {a.caret(0), a.caret(2), a.flag(4), a.flag(5)};
              return kNull;
          }}},
        {u"bookmark", {"n", [](Backend& e, A a) { return flipBookmark(e, a.number(0)), kNull; }}},
        {u"set_tab_width", {"n", [](Backend& e, A a) { return e.tab_width = a.number(0), kNull; }}},
        {u"set_undo_limit",
         {"n", [](Backend& e, A a) { return e.undo_limit = a.number(0), kNull; }}},
        {u"rules", {"t", [](Backend& e, A a) { return useRules(e, a.text(0)), kNull; }}},
        {u"insert_rows",
         {"nn",
          [](Backend& e, A a) { return e.buffer->insert_rows(a.number(0), a.number(1)), kNull; }}},
        {u"erase_lines",
         {"nn",
          [](Backend& e, A a) { return e.buffer->erase_lines(a.number(0), a.number(1)), kNull; }}},
        {u"insert_block",
         {"tnn",
          [](Backend& e, A a) {
              e.buffer->insert_block(bufferWith(a.text(0)), a.number(1), a.number(2));
              return kNull;
          }}},
    };
    return table;
}

const std::map<std::u16string, Operation>& questions()
{
    static const std::map<std::u16string, Operation> table = {
        {u"colorize",
         {"nn",
          [](Backend& e, A a) {
              e.colorize(write_cell_color, a.number(0), a.number(1));
              return rolesJson(*e.buffer);
          }}},
        {u"get_selected_text",
         {"", [](Backend& e, A) { return cellsJson(e.get_selected_text()); }}},
        {u"get_all_text",
         {"t", [](Backend& e, A a) { return Json::quoted(e.buffer->get_all_text(a.text(0))); }}},
        {u"find_next", {"tnn", [](Backend& e, A a) { return findNext(e, a); }}},
        {u"find_matching_brace",
         {"nn", [](Backend& e, A a) { return findMatchingBrace(e, a.caret(0)); }}},
        {u"start_of_word",
         {"nn", [](Backend& e, A a) { return caretJson(e.start_of_word(a.caret(0))); }}},
        {u"end_of_word",
         {"nn", [](Backend& e, A a) { return caretJson(e.end_of_word(a.caret(0))); }}},
        {u"snap",
         {"nn", [](Backend& e, A a) { return caretJson(e.snap_to_position(a.caret(0))); }}},
        {u"number_at", {"nn", [](Backend& e, A a) { return numberAt(*e.buffer, a.caret(0)); }}},
        {u"blocktype",
         {"nn",
          [](Backend& e, A a) {
              const TextBuffer& buffer = *e.buffer;
              return std::to_string(buffer.line(a.number(0)).get_blocktype_at(a.number(1)));
          }}},
        {u"is_selected",
         {"nn", [](Backend& e, A a) { return booleanJson(e.selection.is_selected(a.caret(0))); }}},
    };
    return table;
}

bool isOfKind(const Json::Value& value, char kind)
{
    switch (kind) {
    case 't':
        return std::holds_alternative<std::u16string>(value);
    case 'n':
        return std::holds_alternative<std::int32_t>(value);
    default:
        return std::holds_alternative<bool>(value);
    }
}

bool argumentsFit(const std::vector<Json::Value>& line, const std::string& kinds)
{
    bool fit = line.size() == kinds.size() + 1;
    for (std::size_t i = 0; fit && i < kinds.size(); ++i) {
        fit = isOfKind(line[i + 1], kinds[i]);
    }
    return fit;
}

const Operation* findOperation(const Json::Value& name)
{
    if (!isOfKind(name, 't')) {
        return nullptr;
    }
    for (const auto* table : {&changes(), &questions()}) {
        const auto found = table->find(std::get<std::u16string>(name));
        if (found != table->end()) {
            return &found->second;
        }
    }
    return nullptr;
}

EditorDriver::Reply error(const std::string& message)
{
    const std::u16string text(message.begin(), message.end());
    return {"{\"error\": " + Json::quoted(text) + "}", true, false};
}

}  // namespace

EditorDriver::EditorDriver() : backend(&buffer)
{
    set_new_editor_rules(backend);
}

EditorDriver::Reply EditorDriver::carryOut(const std::string& line)
{
    const std::optional<std::vector<Json::Value>> values = Json::parseArray(line);
    if (!values || values->empty()) {
        return error("no JSON array of texts, 32-bit integers and booleans");
    }
    const Operation* operation = findOperation(values->front());
    if (operation == nullptr) {
        return error("unknown operation");
    }
    if (!argumentsFit(*values, operation->kinds)) {
        return error("wrong number or kind of arguments");
    }
    try {
        const std::string result = operation->run(backend, Arguments(*values));
        return {result, false, result != kNull};
    } catch (const WrongArgument& wrong) {
        return error(wrong.message);
    } catch (const std::exception&) {
        return error("the text would grow too large");
    }
}

std::string EditorDriver::answer(const std::string& result) const
{
    std::vector<int> bookmarks;
    for (int i = 0; i < buffer.line_count(); ++i) {
        if (buffer.line(i).bookmark) {
            bookmarks.push_back(i);
        }
    }
    const SELECTION& selection = backend.selection;
    const auto numberJson = [](int number) { return std::to_string(number); };
    return "{\"result\": " + result + ", \"lines\": " + cellsJson(buffer) +
           ", \"start\": " + caretJson(selection.start) + ", \"end\": " + caretJson(selection.end) +
           ", \"active\": " + booleanJson(selection.active) +
           ", \"block\": " + booleanJson(selection.block) +
           ", \"dirty\": " + booleanJson(backend.dirty) +
           ", \"bookmarks\": " + arrayJson(bookmarks, numberJson) +
           ", \"undo\": " + std::to_string(backend.undo_states.size()) +
           ", \"redo\": " + std::to_string(backend.redo_states.size()) +
           ", \"bytes\": " + std::to_string(backend.undo_bytes) + "}";
}
