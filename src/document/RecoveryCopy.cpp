#include "document/RecoveryCopy.h"

#include "oid/ProjectWriter.h"

#include <QCryptographicHash>

namespace {

constexpr char kByteOrderMark[] = "\xEF\xBB\xBF";
constexpr char kTitle[] = "\xEF\xBB\xBF# Plinkett recovery copy 1 ";
constexpr char kLineEnd[] = "\r\n";
constexpr char kProject[] = "# project ";
constexpr char kName[] = "# name ";
constexpr char kPages[] = "# pages ";
constexpr char kSince[] = "# since ";
constexpr char kMoved[] = "# moved ";
constexpr char kMovedFrom[] = "# from ";
constexpr char kSaved[] = "# saved ";
// Long lines of a project file are read in pieces, and only the first would be a comment.
constexpr int kLongestValue = 500;

QByteArray hashOf(const QByteArray& bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha1).toHex();
}

void appendLine(QByteArray& text, const char* key, const QByteArray& value)
{
    text += key + value + kLineEnd;
}

// On as many lines as it needs, without any character that could end one.
void appendText(QByteArray& text, const char* key, const std::string& value)
{
    const QByteArray encoded = QByteArray::fromStdString(value).toPercentEncoding("/ ");
    for (int i = 0; i == 0 || i < encoded.size(); i += kLongestValue) {
        appendLine(text, key, encoded.mid(i, kLongestValue));
    }
}

// "# moved 3 0 2": of three pages the second is gone.
void appendMoved(QByteArray& text, const PagesMoved& moved)
{
    QByteArray value = QByteArray::number(moved.saved);
    for (const int picture : moved.pictures) {
        value += ' ' + QByteArray::number(picture);
        if (value.size() > kLongestValue) {
            appendLine(text, kMoved, value);
            value.clear();
        }
    }
    appendLine(text, kMoved, value);
}

// What the lines of this key hold, one behind the other. The head ends where the project begins.
QByteArray valueOf(const QByteArray& text, const char* key)
{
    QByteArray value;
    for (int i = 0; text.mid(i, 2) == "# ";) {
        const int end = text.indexOf(kLineEnd, i);
        const QByteArray line = text.mid(i, end - i);
        if (line.startsWith(key)) {
            value += line.mid(static_cast<int>(qstrlen(key)));
        }
        i = end + static_cast<int>(qstrlen(kLineEnd));
    }
    return value;
}

PagesMoved movedIn(const QByteArray& text)
{
    PagesMoved moved;
    for (const QByteArray& number : valueOf(text, kMoved).split(' ')) {
        if (!number.isEmpty()) {
            moved.pictures.push_back(number.toInt());
        }
    }
    if (!moved.pictures.empty()) {
        moved.saved = moved.pictures.front();
        moved.pictures.erase(moved.pictures.begin());
    }
    return moved;
}

std::string textOf(const QByteArray& text, const char* key)
{
    return QByteArray::fromPercentEncoding(valueOf(text, key)).toStdString();
}

QByteArray hashOfSavedText(const std::string& beforeScript, const std::string& script)
{
    return hashOf(QByteArray::fromStdString(beforeScript + Oid::scriptInFile(script)));
}

}  // namespace

QByteArray hashOfSaved(const Oid::OidProject& project)
{
    return hashOfSavedText(Oid::textBeforeScript(project), project.compiler.source);
}

QByteArray hashOfSavedFile(const QByteArray& bytes)
{
    return hashOf(bytes.startsWith(kByteOrderMark) ? bytes.mid(3) : bytes);
}

QByteArray recoveryCopy(const Oid::OidProject& project, const RecoveryHead& head,
                        const QByteArray& savedHash)
{
    const std::string beforeScript = Oid::textBeforeScript(project);
    const std::string& script = project.compiler.source;
    const QByteArray hash = hashOfSavedText(beforeScript, script);
    if (hash == savedHash && head.moved.empty()) {
        return {};
    }
    QByteArray text;
    appendText(text, kProject, head.projectPath);
    appendText(text, kName, project.productName);
    appendLine(text, kPages, QByteArray::number(static_cast<int>(project.pictures.size())));
    appendLine(text, kSince, head.since.toUTC().toString(Qt::ISODateWithMs).toLatin1());
    if (!head.moved.empty()) {
        appendMoved(text, head.moved);
        appendLine(text, kMovedFrom, savedHash);
    }
    appendLine(text, kSaved, hash);
    text += QByteArray::fromStdString(beforeScript) + QByteArray::fromStdString(script);
    return kTitle + hashOf(text) + kLineEnd + text;
}

std::optional<RecoveryHead> readRecoveryHead(const QByteArray& copy)
{
    const int titleEnd = copy.indexOf(kLineEnd);
    const QByteArray text = copy.mid(titleEnd + static_cast<int>(qstrlen(kLineEnd)));
    if (titleEnd < 0 || copy.left(titleEnd) != kTitle + hashOf(text)) {
        return std::nullopt;
    }
    RecoveryHead head;
    head.projectPath = textOf(text, kProject);
    head.productName = textOf(text, kName);
    head.pages = valueOf(text, kPages).toInt();
    head.since =
        QDateTime::fromString(QString::fromLatin1(valueOf(text, kSince)), Qt::ISODateWithMs);
    head.moved = movedIn(text);
    head.movedFrom = valueOf(text, kMovedFrom);
    head.savedHash = valueOf(text, kSaved);
    return head;
}
