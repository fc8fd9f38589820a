#include "editor/core/EditorBackend.h"

namespace KVTextEditor {

namespace {

constexpr std::size_t kCodeUnits = 65536;

void enterKeywords(TextEditor::KEYWORD_TABLE& table, const std::set<std::u16string>& keywords,
                   COLORINDEX role)
{
    for (const std::u16string& keyword : keywords) {
        if (!keyword.empty()) {
            table[keyword.front()][keyword] = role;
        }
    }
}

std::set<std::u16string> wide(const std::vector<std::string>& words)
{
    std::set<std::u16string> all;
    for (const std::string& word : words) {
        all.emplace(word.begin(), word.end());
    }
    return all;
}

}  // namespace

void TextEditor::keywords_update_hashtable(bool clear)
{
    keyword_table.resize(kCodeUnits);
    if (clear) {
        for (auto& entry : keyword_table) {
            entry.clear();
        }
    }
    enterKeywords(keyword_table, keywords_class1, kKeywordRole);
    enterKeywords(keyword_table, keywords_class2, kSecondKeywordRole);
}

void TextEditor::init_keywords_cpp()
{
    keywords_class1 = {u"#include", u"#if",      u"#ifdef", u"#else",  u"#elif",  u"#endif",
                       u"defined",  u"for",      u"while",  u"do",     u"if",     u"goto",
                       u"select",   u"case",     u"int",    u"double", u"float",  u"short",
                       u"char",     u"unsigned", u"signed", u"bool",   u"wchar_t"};
    keywords_class2.clear();
    string_delimiters = {{u'"', u'"'}, {u'\'', u'\''}};
    line_comments = {u"//"};
    keywords_update_hashtable(true);
}

void set_new_editor_rules(TextEditor& editor)
{
    editor.init_keywords_cpp();
    editor.keywords_class2 = {u"foo", u"bar"};
    editor.keywords_update_hashtable(false);
}

void set_script_rules(TextEditor& editor, const std::vector<std::string>& keywords,
                      const std::vector<std::string>& options)
{
    editor.line_comments = {u"'", u"#"};
    editor.keywords_class1 = wide(keywords);
    editor.keywords_class2 = wide(options);
    editor.keywords_update_hashtable(false);
}

}  // namespace KVTextEditor
