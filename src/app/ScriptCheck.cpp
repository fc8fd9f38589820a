#include "app/ScriptCheck.h"

#include "base/Diagnostic.h"
#include "ttbasic/ttbasic.h"

#include <chrono>
#include <utility>

namespace {

constexpr int kPause = 400;  // ms
constexpr int kWait = 20;    // ms

ScriptCheck::Names namesIn(const std::string& script)
{
    ttbasic compiler;
    compiler.reportTo([](const Diagnostic& /*diagnostic*/) {});
    compiler.source = script;
    try {
        compiler.parse(false);
    } catch (const ttbasic::StackUnderflow&) {
        // The build tells of it; what was found before is known.
    }
    const std::vector<std::string> names = compiler.usedOidNames();
    return {names.begin(), names.end()};
}

}  // namespace

ScriptCheck::ScriptCheck(std::function<std::string()> scriptSource, QObject* parent)
    : QObject(parent), source(std::move(scriptSource))
{
    pause.setSingleShot(true);
    connect(&pause, &QTimer::timeout, this, &ScriptCheck::look);
    connect(&waiting, &QTimer::timeout, this, &ScriptCheck::look);
}

ScriptCheck::~ScriptCheck() = default;

void ScriptCheck::lookSoon()
{
    pause.start(kPause);
}

void ScriptCheck::look()
{
    if (compiling.valid()) {
        if (compiling.wait_for(std::chrono::seconds(0)) != std::future_status::ready) {
            waiting.start(kWait);
            return;
        }
        Names names = compiling.get();
        if (names != known) {
            known = std::move(names);
            emit found();
        }
    }
    waiting.stop();
    std::string script = source();
    if (script != seen) {
        seen = std::move(script);
        compiling = std::async(std::launch::async, [text = seen] { return namesIn(text); });
        waiting.start(kWait);
    }
}
