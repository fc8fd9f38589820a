#include "hints/FindHints.h"

#include "hints/Book.h"

#include <algorithm>
#include <tuple>

namespace hints {

namespace {

// The script comes first, of which a line is known.
bool comesFirst(const Finding& one, const Finding& other)
{
    const auto place = [](const Diagnostic& d) {
        return std::make_tuple(d.line == 0, d.line, d.column, d.page, d.area);
    };
    return place(one.diagnostic) < place(other.diagnostic);
}

// The comment on each line that has one.
std::map<int, std::string_view> commentsOf(const Book& book)
{
    std::map<int, std::string_view> comments;
    for (const ScriptOutline::Place& place : book.script.comments) {
        const std::size_t begin = book.startOfLine(place.line) + place.column - 1;
        comments[place.line] =
            std::string_view(book.project.compiler.source).substr(begin, place.length);
    }
    return comments;
}

// The author has written its name behind the line that it is about: it is meant so.
void dropQuieted(const Book& book, std::vector<Finding>& findings)
{
    const std::map<int, std::string_view> comments = commentsOf(book);
    const auto isQuieted = [&](const Finding& finding) {
        const auto comment = comments.find(finding.diagnostic.line);
        return comment != comments.end() &&
               comment->second.find(finding.hint->name) != std::string_view::npos;
    };
    findings.erase(std::remove_if(findings.begin(), findings.end(), isQuieted), findings.end());
}

std::vector<Finding> find(std::optional<Subject> subject, const Oid::OidProject& project,
                          PagePictures& pictures, const Cancelled& isCancelled)
{
    std::vector<Finding> findings;
    Report report(findings, isCancelled);
    const Book book(project, pictures);
    for (const Hint& hint : allHints()) {
        if (report.isCancelled()) {
            break;
        }
        if (hint.subject == subject.value_or(hint.subject)) {
            report.begin(hint);
            hint.find(book, report);
        }
    }
    dropQuieted(book, findings);
    std::stable_sort(findings.begin(), findings.end(), comesFirst);
    return findings;
}

}  // namespace

std::vector<Finding> findHints(const Oid::OidProject& project, PagePictures& pictures,
                               const Cancelled& isCancelled)
{
    return find(std::nullopt, project, pictures, isCancelled);
}

std::vector<Finding> findHints(Subject subject, const Oid::OidProject& project,
                               PagePictures& pictures, const Cancelled& isCancelled)
{
    return find(subject, project, pictures, isCancelled);
}

}  // namespace hints
