#pragma once

#include <QPlainTextEdit>
#include <QProcess>
#include <QTimer>

#include <cstdarg>
#include <functional>

#include "base/KVString.h"
#include "programs/OutsideProgram.h"
#include "programs/ProcessRunner.h"
#include "programs/SideBySide.h"
#include "publish/console/GatheredOutput.h"

// The console: shows text line by line, runs one outside program at a time and shows what it
// prints, and is where redirected printf output goes. It remembers a generous but limited number of
// lines. Only for the GUI thread.
class KVQtStdoutWidget : public QPlainTextEdit, public ProcessRunner
{
    Q_OBJECT

public:
    // The newest console is the target of redirected printf output.
    explicit KVQtStdoutWidget(QWidget* parent = nullptr);
    ~KVQtStdoutWidget() override;

    // --- Outside programs: run and exec start one ---
    // Kills the running programs, if any; their end is then reported as that of any other. Always
    // true.
    bool stopExecution();
    // After a read or write error the program may still be there.
    bool isRunning() const override
    {
        return m_running || m_process.state() != QProcess::NotRunning || m_sideBySide.isRunning();
    }
    int exitCode() const override { return m_exitCode; }
    bool readsLatin1() const override { return true; }
    // Called about ten times a second while a program is waited for; it may call stopExecution.
    void setWhileWaiting(std::function<void()> step);

    // --- Text ---
    // A text without a line feed at its end waits for the rest of its line, or for a flush.
    void echo(const KVString& text);
    void echo(const char* text) override;
    // Bytes as Latin-1, up to the first zero byte.
    void echo(const QByteArray& bytes);
    void appendEcho(const QString& text);
    // Shows what waits as a new paragraph (an empty one when nothing waits), at once.
    void flush();
    // The text, centred in a box of "#" of that many columns; a longer text widens its line.
    void echoBoxed(const KVString& text, int width);

    // --- The target of redirected printf output ---
    // As printf; without a console the text is dropped.
    static int redirectPrintf(const char* format, ...);
    static int vaprintf(const char* format, va_list arguments);
    void useThisWidgetForRedirectedPrintf();
    // Makes this console the target.
    PrintFunction printFunction() override;

signals:
    // Intended: a program that crashed gives two of them, one for the crash and one for its end.
    void executionFinished();

public slots:
    void onExecutionFinished(int exitCode);

private:
    bool start(const std::string& program, const std::vector<std::string>& arguments, bool wait,
               const Surroundings& surroundings) override;
    void doAll(const std::vector<ProgramWork>& works,
               const std::function<bool()>& mayBegin) override;
    void connectProcess();
    void chooseFont();
    void receiveOutput(const QByteArray& chunk);
    void showOutputWhenDue();
    void showOutput();
    void whileWaiting();
    void processFailed(QProcess::ProcessError error);
    void processEnded(int exitCode, QProcess::ExitStatus status);
    void endWith(int exitCode);
    void forgetOldText();

    QProcess m_process;
    QString m_pending;       // echoed, not shown yet
    int m_exitCode = 0;      // of the last program that has ended; -1 after an error
    bool m_running = false;  // from its start until the end or an error

    OutsideProgram m_program{m_process};
    SideBySide m_sideBySide;
    std::function<void()> m_whileWaiting;
    GatheredOutput m_output;
    QTimer m_showLater;

    static KVQtStdoutWidget* m_pRedirectPrintf;
};
