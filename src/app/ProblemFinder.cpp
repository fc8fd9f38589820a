#include "app/ProblemFinder.h"

#include <algorithm>
#include <map>
#include <tuple>

namespace {

Problem problemOf(const Diagnostic& message)
{
    return {message, QString::fromStdString(message.text), std::nullopt, {}};
}

Problem problemOf(hints::Finding& hint)
{
    Problem problem{
        hint.diagnostic, QString::fromStdString(hints::translatedWords(hint)), std::nullopt, {}};
    if (hint.fix) {
        problem.fixWords = QString::fromStdString(hints::translatedFix(hint));
        problem.fix = std::move(hint.fix);
    }
    return problem;
}

// The compiler says of a line what is wrong, and then that it is wrong.
bool repeatsTheOneBefore(const Problem& problem, const Problems& problems)
{
    return problem.diagnostic.kind == "syntax" && !problems.empty() &&
           problems.back().diagnostic.line == problem.diagnostic.line;
}

// What says of a name what this hint says, too.
std::string sameAs(const std::string& kind)
{
    if (kind == "area-without-sub") {
        return "sub-missing";
    }
    return kind == "sub-without-area" ? "area-missing" : "";
}

void addMessages(Oid::OidProject& book, Problems& problems)
{
    const DiagnosticSink sink = [&](const Diagnostic& message) {
        const Problem problem = problemOf(message);
        if (!repeatsTheOneBefore(problem, problems)) {
            problems.push_back(problem);
        }
    };
    book.compiler.reportTo(sink);
    if (compileScript(book.compiler, false)) {
        book.checkSanity(sink);
    }
    book.compiler.reportTo({});
}

// Of what a message has said already only the quick fix is added.
void addHints(std::vector<hints::Finding> found, Problems& problems)
{
    std::map<std::pair<std::string, std::string>, std::size_t> said;
    for (std::size_t i = 0; i < problems.size(); ++i) {
        said.emplace(std::make_pair(problems[i].diagnostic.kind, problems[i].diagnostic.subject),
                     i);
    }
    for (hints::Finding& hint : found) {
        Problem problem = problemOf(hint);
        const auto message = said.find({sameAs(hint.hint->name), hint.diagnostic.subject});
        if (message == said.end()) {
            problems.push_back(std::move(problem));
        } else {
            problems[message->second].fix = std::move(problem.fix);
            problems[message->second].fixWords = problem.fixWords;
        }
    }
}

bool comesFirst(const Problem& one, const Problem& other)
{
    const auto place = [](const Diagnostic& d) {
        return std::make_tuple(d.severity, d.line == 0, d.line, d.column, d.page, d.area);
    };
    return place(one.diagnostic) < place(other.diagnostic);
}

}  // namespace

void ProblemSearch::setProject(Oid::OidProject project)
{
    book = std::move(project);
    book.print = printNothing;
    book.updateUsedOIDs();
    hintsOnPages.reset();
}

Problems ProblemSearch::find(const std::string& script, const hints::Cancelled& isCancelled,
                             const std::function<void(ScriptNames names)>& tellNames)
{
    using hints::Subject;
    Problems problems;
    book.compiler = ttbasic();
    book.compiler.source = script;
    addMessages(book, problems);
    if (tellNames) {
        const std::vector<std::string> names = book.compiler.usedOidNames();
        tellNames({names.begin(), names.end()});
    }
    addHints(hints::findHints(Subject::book, book, pictures, isCancelled), problems);
    if (!hintsOnPages) {
        hintsOnPages = hints::findHints(Subject::pages, book, pictures, isCancelled);
    }
    addHints(*hintsOnPages, problems);
    if (isCancelled && isCancelled()) {
        hintsOnPages.reset();  // there may be more
    }
    std::stable_sort(problems.begin(), problems.end(), comesFirst);
    return problems;
}

ProblemFinder::ProblemFinder(BookSource source, QObject* parent)
    : QObject(parent),
      watch(
          std::move(source),
          [this](BookState& state, const std::atomic<bool>& isCancelled) {
              return look(state, isCancelled);
          },
          [this](const Problems& problems) { emit found(problems); })
{}

Problems ProblemFinder::look(BookState& state, const std::atomic<bool>& isCancelled)
{
    if (state.project) {
        book.setProject(std::move(*state.project));
    }
    const auto tellNames = [this](ScriptNames names) {
        QMetaObject::invokeMethod(
            this, [this, names = std::move(names)] { takeNames(names); }, Qt::QueuedConnection);
    };
    return book.find(
        state.script.toStdString(), [&] { return isCancelled.load(); }, tellNames);
}

void ProblemFinder::takeNames(const ScriptNames& names)
{
    if (names != known) {
        known = names;
        emit scriptNamesFound(known);
    }
}
