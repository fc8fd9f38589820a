#pragma once

#include <QObject>
#include <QTimer>

#include <functional>
#include <future>
#include <string>
#include <unordered_set>

// Which areas the script knows, as its compiler finds them: on another thread, a short while after
// the last change, so that typing never waits.
class ScriptCheck : public QObject
{
    Q_OBJECT

public:
    using Names = std::unordered_set<std::string>;

    // The source gives the script as it stands in the editor, in UTF-8.
    ScriptCheck(std::function<std::string()> source, QObject* parent);
    ~ScriptCheck() override;

    // The script may have changed.
    void lookSoon();
    const Names& names() const { return known; }

signals:
    // Other names than before.
    void found();

private:
    void look();

    std::function<std::string()> source;
    QTimer pause;
    QTimer waiting;
    std::string seen;
    Names known;
    std::future<Names> compiling;
};
