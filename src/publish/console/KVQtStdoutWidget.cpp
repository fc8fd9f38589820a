#include "publish/console/KVQtStdoutWidget.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QTextBlock>
#include <QTextCursor>

#include <algorithm>

KVQtStdoutWidget* KVQtStdoutWidget::m_pRedirectPrintf = nullptr;

KVQtStdoutWidget::KVQtStdoutWidget(QWidget* parent)
    : QPlainTextEdit(parent),
      m_sideBySide({[this](const QByteArray& chunk) { receiveOutput(chunk); },
                    [this](QProcess::ProcessError error) { processFailed(error); },
                    [this](int code, QProcess::ExitStatus status) { processEnded(code, status); }})
{
    setReadOnly(true);
    setMaximumBlockCount(GatheredOutput::kMostLines);
    m_pRedirectPrintf = this;
    m_showLater.setSingleShot(true);
    connect(&m_showLater, &QTimer::timeout, this, &KVQtStdoutWidget::showOutputWhenDue);
    m_program.setWhileWaiting([this] { whileWaiting(); });
    connectProcess();
    chooseFont();
}

KVQtStdoutWidget::~KVQtStdoutWidget()
{
    // Intended: also when another console is the target. The program has one console.
    m_pRedirectPrintf = nullptr;
    m_process.disconnect();  // nobody is left to be told
    if (m_process.state() != QProcess::NotRunning) {
        m_process.kill();
        m_process.waitForFinished(-1);
    }
}

void KVQtStdoutWidget::connectProcess()
{
    connect(&m_process, &QProcess::readyReadStandardOutput, &m_process, [this] {
        receiveOutput(OutsideProgram::takeOutput(m_process, QProcess::StandardOutput));
    });
    connect(&m_process, &QProcess::readyReadStandardError, &m_process, [this] {
        receiveOutput(OutsideProgram::takeOutput(m_process, QProcess::StandardError));
    });
    connect(&m_process, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), this,
            [this](int exitCode, QProcess::ExitStatus status) {
                processEnded(exitCode, status);
                takeSteps();
            });
    connect(&m_process, &QProcess::errorOccurred, this, &KVQtStdoutWidget::processFailed);
}

void KVQtStdoutWidget::chooseFont()
{
    QFont console = font();
    console.setPointSize(11);
    console.setStyleHint(QFont::Monospace, QFont::PreferDevice);
    console.setFamily("Consolas");
    if (!QFontInfo(console).fixedPitch()) {
        console.setFamily(QFontDatabase::systemFont(QFontDatabase::FixedFont).family());
    }
    setFont(console);
}

// --- Outside programs ----------------------------------------------------------------------------

bool KVQtStdoutWidget::start(const std::string& program, const std::vector<std::string>& arguments,
                             bool wait, const Surroundings& surroundings)
{
    m_running = true;
    return m_program.start(program, arguments, wait, surroundings);
}

void KVQtStdoutWidget::doAll(const std::vector<ProgramWork>& works,
                             const std::function<bool()>& mayBegin)
{
    m_sideBySide.run(works, mayBegin, [this] { whileWaiting(); });
    takeSteps();
}

void KVQtStdoutWidget::whileWaiting()
{
    showOutputWhenDue();
    if (m_whileWaiting) {
        m_whileWaiting();
    }
}

bool KVQtStdoutWidget::stopExecution()
{
    if (m_running) {
        m_process.kill();
    }
    m_sideBySide.kill();
    return true;
}

void KVQtStdoutWidget::setWhileWaiting(std::function<void()> step)
{
    m_whileWaiting = std::move(step);
}

void KVQtStdoutWidget::receiveOutput(const QByteArray& chunk)
{
    m_output.add(chunk);
    showOutputWhenDue();
}

void KVQtStdoutWidget::showOutputWhenDue()
{
    if (m_output.isEmpty()) {
        return;
    }
    const int pause = m_output.pause();
    if (pause == 0) {
        showOutput();
    } else if (!m_showLater.isActive()) {
        m_showLater.start(pause);
    }
}

// Intended: output that ends with a line feed is followed by an empty paragraph, the flush of
// nothing.
void KVQtStdoutWidget::showOutput()
{
    if (m_output.isEmpty()) {
        return;
    }
    echo(m_output.take());
    flush();
    m_output.shown();
}

void KVQtStdoutWidget::processEnded(int exitCode, QProcess::ExitStatus status)
{
    endWith(status == QProcess::NormalExit ? exitCode : -1);
}

void KVQtStdoutWidget::processFailed(QProcess::ProcessError error)
{
    showOutput();
    echo(OutsideProgram::errorText(error));
    endWith(-1);
}

void KVQtStdoutWidget::onExecutionFinished(int exitCode)
{
    endWith(exitCode);
}

void KVQtStdoutWidget::endWith(int exitCode)
{
    showOutput();
    m_running = false;
    m_exitCode = exitCode;
    emit executionFinished();
}

// --- Text ----------------------------------------------------------------------------------------

void KVQtStdoutWidget::echo(const KVString& text)
{
    appendEcho(text);
}

void KVQtStdoutWidget::echo(const char* text)
{
    appendEcho(KVString(text));
}

void KVQtStdoutWidget::echo(const QByteArray& bytes)
{
    const uint size = qstrnlen(bytes.constData(), uint(bytes.size()));
    appendEcho(QString::fromLatin1(bytes.constData(), int(size)));
}

void KVQtStdoutWidget::appendEcho(const QString& text)
{
    m_pending += text;
    if (m_pending.endsWith('\n')) {
        m_pending.chop(1);
        flush();
    }
}

// The view follows only while the author has not moved the cursor away from the end. Painted at
// once, so that text appears while the GUI thread waits for a program.
void KVQtStdoutWidget::flush()
{
    const QTextCursor cursor = textCursor();  // one at the end moves with the text
    appendPlainText(m_pending);
    m_pending.clear();
    forgetOldText();
    if (cursor.atEnd()) {
        ensureCursorVisible();
    }
    repaint();
}

// The number of lines is limited by the view itself; this limits long ones.
void KVQtStdoutWidget::forgetOldText()
{
    constexpr int kMostCharacters = 2 * GatheredOutput::kMostBytes;
    const int excess = document()->characterCount() - kMostCharacters;
    if (excess <= 0) {
        return;
    }
    const QTextBlock next = document()->findBlock(excess).next();
    QTextCursor old(document());
    old.setPosition(next.isValid() ? next.position() : excess, QTextCursor::KeepAnchor);
    old.removeSelectedText();
}

void KVQtStdoutWidget::echoBoxed(const KVString& text, int width)
{
    const QString bar(std::max(width, 0), '#');
    const QString line = text;
    const int blanks = std::max(width - 2 - line.size(), 0);
    const QString left(blanks / 2, ' ');
    const QString right(blanks - blanks / 2, ' ');
    appendEcho("\n" + bar + "\n#" + left + line + right + "#\n" + bar + "\n");
}

// --- The target of redirected printf output ------------------------------------------------------

int KVQtStdoutWidget::redirectPrintf(const char* format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    const int size = vaprintf(format, arguments);
    va_end(arguments);
    return size;
}

int KVQtStdoutWidget::vaprintf(const char* format, va_list arguments)
{
    KVString text;
    text.FormatV(format, arguments);
    if (m_pRedirectPrintf != nullptr) {
        m_pRedirectPrintf->echo(text.c_str());
    }
    return text.GetLength();
}

void KVQtStdoutWidget::useThisWidgetForRedirectedPrintf()
{
    m_pRedirectPrintf = this;
}

PrintFunction KVQtStdoutWidget::printFunction()
{
    useThisWidgetForRedirectedPrintf();
    return redirectPrintf;
}
