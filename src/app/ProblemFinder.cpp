#include "app/ProblemFinder.h"

#include <algorithm>
#include <map>
#include <memory>
#include <new>
#include <tuple>

namespace {

// After the last key; with the search it has to stay below the 300 ms in which the list is there.
constexpr int kPause = 100;  // ms

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

ProblemFinder::ProblemFinder(Source usedSource, QObject* parent)
    : QObject(parent), source(std::move(usedSource))
{
    pause.setSingleShot(true);
    pause.setInterval(kPause);
    connect(&pause, &QTimer::timeout, this, &ProblemFinder::start);
}

ProblemFinder::~ProblemFinder()
{
    isCancelled = true;
    if (search.valid()) {
        search.wait();
    }
}

void ProblemFinder::lookSoon()
{
    upToDate = false;
    isCancelled = true;
    pause.start();
}

// A search that has just been cancelled is waited for without keeping anyone.
void ProblemFinder::start()
{
    isWaited = search.valid();
    if (isWaited) {
        return;
    }
    upToDate = true;
    isCancelled = false;
    auto request = std::make_shared<Request>();
    if (seen != source.revision()) {
        seen = source.revision();
        request->project = source.project();
    }
    request->script = source.script();
    search = std::async(std::launch::async, [this, request] {
        Problems problems;
        try {
            problems = look(*request);
        } catch (const std::bad_alloc&) {
            // the next search may have room again
        }
        QMetaObject::invokeMethod(this, &ProblemFinder::finish, Qt::QueuedConnection);
        return problems;
    });
}

Problems ProblemFinder::look(Request& request)
{
    if (request.project) {
        book.setProject(std::move(*request.project));
    }
    const auto tellNames = [this](ScriptNames names) {
        QMetaObject::invokeMethod(
            this, [this, names = std::move(names)] { takeNames(names); }, Qt::QueuedConnection);
    };
    return book.find(
        request.script.toStdString(), [this] { return isCancelled.load(); }, tellNames);
}

void ProblemFinder::takeNames(const ScriptNames& names)
{
    if (names != known) {
        known = names;
        emit scriptNamesFound(known);
    }
}

void ProblemFinder::finish()
{
    const Problems problems = search.get();
    if (isWaited) {
        start();
    } else if (upToDate) {
        emit found(problems);
    }
}
