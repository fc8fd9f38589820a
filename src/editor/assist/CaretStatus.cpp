#include "editor/assist/CaretStatus.h"

#include <QAction>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QSettings>
#include <QToolButton>

CaretStatus::CaretStatus(KVQtHighlightEditCtrlInlay& shown, ScriptHelp& help)
    : script(shown), place(new QLabel), mode(new QLabel), button(new QToolButton)
{
    place->setObjectName("lbCaret");
    mode->setObjectName("lbTypingMode");
    button->setObjectName("btScriptHelp");
    button->setText(tr("Help while writing"));
    button->setToolTip(tr("Switches on and off what comes by itself while you write the script: "
                          "names, indentation, explanations, marks"));
    button->setPopupMode(QToolButton::InstantPopup);
    button->setMenu(new QMenu(button));
    addSwitch("actionSuggestWhileTyping", tr("&Suggest names while typing"),
              [&help](bool on) { help.suggestsWhileTyping = on; });
    addSwitch("actionIndentNewLines", tr("&Indent new lines"),
              [&help](bool on) { help.indentsNewLines = on; });
    addSwitch("actionScriptToolTips", tr("&Explain words under the mouse"),
              [&help](bool on) { help.showsToolTips = on; });
    addSwitch("actionShowMarks", tr("&Mark problems in the text"),
              [this](bool on) { script.ShowMarks(on); });
    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    for (QWidget* const widget : std::initializer_list<QWidget*>{place, mode, button}) {
        row->addWidget(widget);
    }
    script.installEventFilter(this);
    constexpr int kSoon = 30;  // ms
    soon.setSingleShot(true);
    soon.setInterval(kSoon);
    connect(&soon, &QTimer::timeout, this, &CaretStatus::show);
    connect(&script, &KVQtHighlightEditCtrlInlay::ViewUpdated, &soon, [this] {
        if (!soon.isActive()) {
            soon.start();
        }
    });
    setVisible(script.isVisible());
    show();
}

// On in the beginning.
void CaretStatus::addSwitch(const char* name, const QString& text, std::function<void(bool)> set)
{
    QAction* const action = button->menu()->addAction(text);
    action->setObjectName(name);
    action->setCheckable(true);
    action->setChecked(true);
    connect(action, &QAction::toggled, this, std::move(set));
}

void CaretStatus::keepSettingsIn(QSettings& settings)
{
    for (QAction* const action : button->menu()->actions()) {
        const QString key = "script/" + action->objectName();
        action->setChecked(settings.value(key, true).toBool());
        connect(action, &QAction::toggled, this,
                [&settings, key](bool on) { settings.setValue(key, on); });
    }
}

// Lines and columns count from 1, columns in characters.
void CaretStatus::show()
{
    const KVTextEditor::CARET caret = script.editor.selection.end;
    const auto& line = std::as_const(script.buffer).line(caret.line);
    const int beyond = std::max(0, caret.column - line.length());
    const int column = line.characters_between(0, caret.column) + beyond + 1;
    place->setText(tr("Line %1, column %2").arg(caret.line + 1).arg(column));
    mode->setText(script.is_overwrite_mode() ? tr("OVR") : tr("INS"));
    mode->setToolTip(script.is_overwrite_mode() ? tr("Typing replaces what stands there (Insert)")
                                                : tr("Typing inserts (Insert)"));
}

bool CaretStatus::eventFilter(QObject* /*watched*/, QEvent* event)
{
    if (event->type() == QEvent::Show || event->type() == QEvent::Hide) {
        setVisible(event->type() == QEvent::Show);
    }
    return false;
}
