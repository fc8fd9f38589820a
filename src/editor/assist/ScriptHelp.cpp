#include "editor/assist/ScriptHelp.h"

#include "editor/assist/CompletionList.h"
#include "editor/assist/JumpList.h"
#include "editor/assist/KeywordToolTips.h"
#include "editor/assist/LineTools.h"
#include "editor/assist/RenameDialog.h"
#include "editor/assist/VariableNames.h"

#include <QApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QToolTip>

#include <algorithm>
#include <utility>

namespace {

using Part = KVQtHighlightEditCtrlInlay::Part;

Part partOf(const ScriptOutline::Place& place)
{
    return {place.line, place.column, place.length};
}

}  // namespace

ScriptHelp::ScriptHelp(KVQtHighlightEditCtrlInlay& helped, BookAreas bookAreas)
    : QObject(&helped),
      script(helped),
      areas(std::move(bookAreas)),
      watch(helped),
      completion(new CompletionList(helped, watch, areas))
{
    script.installEventFilter(this);
    connect(&script, &KVQtHighlightEditCtrlInlay::ViewUpdated, this, &ScriptHelp::followKey);
}

ScriptHelp::~ScriptHelp() = default;

bool ScriptHelp::eventFilter(QObject* /*watched*/, QEvent* event)
{
    switch (event->type()) {
    case QEvent::KeyPress:
        return takeKey(*static_cast<QKeyEvent*>(event));
    case QEvent::ToolTip: {
        const auto* const help = static_cast<QHelpEvent*>(event);
        return showsToolTips && showToolTip(help->pos(), help->globalPos());
    }
    case QEvent::MouseButtonPress:
        completion->dismiss();
        pressed = static_cast<QMouseEvent*>(event)->pos();
        return false;
    case QEvent::MouseButtonRelease:
        releaseMouse(*static_cast<QMouseEvent*>(event));
        return false;
    case QEvent::FocusOut:
        completion->dismiss();
        return false;
    default:
        return false;
    }
}

// True when the editor is not to have the key.
bool ScriptHelp::takeKey(const QKeyEvent& event)
{
    const bool control = event.modifiers().testFlag(Qt::ControlModifier);
    const bool shift = event.modifiers().testFlag(Qt::ShiftModifier);
    const bool alt = event.modifiers().testFlag(Qt::AltModifier);
    lastKey = Key::other;
    if (alt) {
        return false;  // with Control it types, on some systems
    }
    if (control) {
        return takeControlKey(event.key(), shift);
    }
    if (!shift && completion->takeKey(event.key())) {
        return true;
    }
    switch (event.key()) {
    case Qt::Key_F12:
        shift ? listUses() : goToDefinition();
        return true;
    case Qt::Key_F2:
        if (shift || hasBookmarks()) {
            return false;  // to the next bookmark
        }
        rename();
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        lastKey = Key::enter;
        return false;
    default:
        if (!event.text().isEmpty() && event.text()[0].isPrint()) {
            lastKey = Key::letter;
        }
        return false;
    }
}

bool ScriptHelp::takeControlKey(int key, bool shift)
{
    switch (key) {
    case Qt::Key_Space:
        suggest();
        return true;
    case Qt::Key_R:
        rename();
        return true;
    case Qt::Key_I:
        indentLines();
        return true;
    case Qt::Key_Slash:
    case Qt::Key_NumberSign:  // with which a comment begins
        toggleComment();
        return true;
    case Qt::Key_O:
        if (shift) {
            listSubs();
        }
        return shift;
    default:
        return false;
    }
}

// The command of a key has ended.
void ScriptHelp::followKey(bool textChanged)
{
    const Key key = std::exchange(lastKey, Key::other);
    if (key == Key::enter && textChanged && indentsNewLines) {
        completion->dismiss();
        LineTools::indentAfterEnter(script);
    } else if (key == Key::letter && textChanged && suggestsWhileTyping) {
        completion->typed();
    } else {
        completion->follow();
    }
}

void ScriptHelp::suggest()
{
    completion->ask();
}

std::optional<NameUse> ScriptHelp::nameAtCaret()
{
    const Part at = script.PartAt(script.editor.selection.end);
    return nameAt(watch.now(), at.line, at.column);
}

void ScriptHelp::select(const Part& part)
{
    const KVTextEditor::SELECTION cells = script.CellsOf(part);
    script.editor.selection.set(cells.end.line, cells.end.column);
    script.editor.selection.start = cells.start;
    script.EnsureVisible(cells.end, true);
    script.UpdateAllViews();
    script.setFocus();
}

void ScriptHelp::goToDefinition()
{
    if (const std::optional<NameUse> name = nameAtCaret()) {
        goTo(*name);
    } else {
        emit told(tr("There is no name of a sub, variable or voice here."));
    }
}

// From a sub to its area; from everything else to where it is made what it is.
void ScriptHelp::goTo(const NameUse& name)
{
    const bool isOnSub = name.kind == NameKind::sub && name.isDefinition;
    if (isOnSub && areas.show && areas.show(name.name)) {
        return;
    }
    const QString shown = QString::fromStdString(name.name);
    const std::vector<NameUse> uses = usesOf(watch.now(), name.kind, name.name);
    const auto definition =
        std::find_if(uses.begin(), uses.end(), [](const NameUse& use) { return use.isDefinition; });
    if (isOnSub) {
        emit told(tr("No area has the name \"%1\".").arg(shown));
    } else if (definition != uses.end()) {
        select(partOf(definition->word.place));
    } else if (name.kind == NameKind::sub) {
        if (!areas.show || !areas.show(name.name)) {
            emit told(tr("There is no sub and no area \"%1\".").arg(shown));
        }
    } else if (name.kind == NameKind::variable) {
        emit told(tr("\"%1\" is never set.").arg(shown));
    } else {
        emit told(tr("The voice \"%1\" is built in.").arg(shown));
    }
}

void ScriptHelp::listUses()
{
    const std::optional<NameUse> name = nameAtCaret();
    if (!name) {
        emit told(tr("There is no name of a sub, variable or voice here."));
        return;
    }
    std::vector<JumpList::Place> places;
    for (const NameUse& use : usesOf(watch.now(), name->kind, name->name)) {
        const ScriptOutline::Place& place = use.word.place;
        const QString text = script.LineText(place.line - 1).trimmed();
        places.push_back({QString::number(place.line) + ": " + text, partOf(place)});
    }
    auto* const list = new JumpList(
        &script, tr("Uses of \"%1\"").arg(QString::fromStdString(name->name)), std::move(places));
    connect(list, &JumpList::chosen, this, &ScriptHelp::select);
    list->open();
}

void ScriptHelp::listSubs()
{
    std::vector<JumpList::Place> places;
    for (const ScriptOutline::Sub& sub : watch.now().subs) {
        const QString name =
            QString::fromUtf8(sub.name.text.data(), static_cast<int>(sub.name.text.size()));
        places.push_back({name, partOf(sub.name.place)});
    }
    auto* const list = new JumpList(&script, tr("Subs"), std::move(places));
    connect(list, &JumpList::chosen, this, &ScriptHelp::select);
    list->open();
}

bool ScriptHelp::hasBookmarks() const
{
    for (int line = 0; line < script.buffer.line_count(); ++line) {
        if (std::as_const(script.buffer).line(line).bookmark) {
            return true;
        }
    }
    return false;
}

void ScriptHelp::rename()
{
    const std::optional<NameUse> name = nameAtCaret();
    if (!name) {
        emit told(tr("There is no name of a sub, variable or voice here."));
    } else if (name->kind == NameKind::sub && areas.rename) {
        areas.rename(name->name);
    } else {
        renameInScript(*name);
    }
}

void ScriptHelp::renameInScript(const NameUse& name)
{
    const std::vector<NameUse> uses = usesOf(watch.now(), name.kind, name.name);
    const bool isBuiltIn =
        name.kind == NameKind::voice &&
        std::none_of(uses.begin(), uses.end(), [](const NameUse& use) { return use.isDefinition; });
    const QString before = QString::fromStdString(name.name);
    if (isBuiltIn) {
        emit told(tr("The voice \"%1\" is built in.").arg(before));
        return;
    }
    const ScriptOutline outline = watch.now();
    RenameDialog dialog(script.window(), before, tr("Places in the script: %1").arg(uses.size()),
                        [&](const QString& wanted) {
                            const QString note =
                                VariableNames::problemOf(outline, name.kind, wanted);
                            return RenameDialog::Verdict{note.isEmpty() || wanted == before,
                                                         wanted == before ? QString() : note};
                        });
    if (dialog.exec() != QDialog::Accepted) {
        return;
    }
    std::vector<Part> parts;
    parts.reserve(uses.size());
    for (const NameUse& use : uses) {
        parts.push_back(partOf(use.word.place));
    }
    script.ReplaceParts(parts, dialog.name());
    emit told(tr("\"%1\" is \"%2\" everywhere now.").arg(before, dialog.name()));
}

void ScriptHelp::indentLines()
{
    LineTools::indent(script);
}

void ScriptHelp::toggleComment()
{
    LineTools::toggleComment(script);
}

// A click with Control that neither selects nor drags.
void ScriptHelp::releaseMouse(const QMouseEvent& event)
{
    const bool isClick =
        event.button() == Qt::LeftButton && event.modifiers() == Qt::ControlModifier &&
        (event.pos() - pressed).manhattanLength() < QApplication::startDragDistance();
    if (!isClick || event.pos().x() < script.gutter_width()) {
        return;
    }
    const Part at = script.PartAt(script.FromPoint(event.pos()));
    if (const std::optional<NameUse> name = nameAt(watch.now(), at.line, at.column)) {
        // Behind the editor's own release.
        QMetaObject::invokeMethod(
            this, [this, use = *name, kept = watch.now().source] { goTo(use); },
            Qt::QueuedConnection);
    }
}

bool ScriptHelp::showToolTip(QPoint point, QPoint global)
{
    if (point.x() < script.gutter_width() || !script.WordsAt(point).isEmpty()) {
        return false;  // what is wrong there is told first
    }
    const KVTextEditor::CARET caret = script.FromPoint(point);
    const Part at = script.PartAt(caret);
    const std::optional<NameUse> name = nameAt(watch.recent(), at.line, at.column);
    const QString text =
        name ? toolTipOf(*name) : keywordToolTip(watch.recent(), at.line, at.column);
    if (text.isEmpty()) {
        return false;
    }
    QToolTip::showText(global, text, &script, script.CellRectangle(caret));
    return true;
}

QString ScriptHelp::toolTipOf(const NameUse& name) const
{
    switch (name.kind) {
    case NameKind::sub:
        return areas.toolTip ? areas.toolTip(name.name) : QString();
    case NameKind::variable:
        return variableToolTip(name.name);
    case NameKind::voice:
        return voiceToolTip(name.name);
    }
    return {};
}

QString ScriptHelp::variableToolTip(const std::string& name) const
{
    constexpr int kMost = 12;
    QStringList lines;
    for (const NameUse& use : usesOf(watch.recent(), NameKind::variable, name)) {
        if (use.isDefinition && lines.size() < kMost) {
            lines << QString::number(use.word.place.line);
        }
    }
    lines.removeDuplicates();
    const QString shown = QString::fromStdString(name).toHtmlEscaped();
    return lines.isEmpty() ? tr("Variable %1, never set: always 0").arg(shown)
                           : tr("Variable %1, set in lines %2").arg(shown, lines.join(", "));
}

QString ScriptHelp::voiceToolTip(const std::string& name) const
{
    const QString shown = QString::fromStdString(name).toHtmlEscaped();
    for (const ScriptOutline::Voice& voice : watch.recent().voices) {
        if (voice.name.text != name) {
            continue;
        }
        const QString line = script.LineText(voice.name.place.line - 1).trimmed();
        return tr("Voice %1, line %2").arg(shown).arg(voice.name.place.line) + "<br>" +
               line.toHtmlEscaped();
    }
    const std::vector<const char*>& builtIn = ScriptLanguage::builtInVoices();
    const bool isBuiltIn = std::find(builtIn.begin(), builtIn.end(), name) != builtIn.end();
    return isBuiltIn ? tr("Voice %1, built in").arg(shown) : QString();
}
