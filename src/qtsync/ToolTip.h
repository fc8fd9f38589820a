#pragma once

class QAction;
class QKeySequence;
class QString;

// A tool tip with the key behind it, as the author's system writes keys: "Ends the sound (Esc)".
QString withKey(const QString& toolTip, const QKeySequence& key);

// The same for what an action says, from its first shortcut; it stays without one.
void tellKeyOf(QAction& action);
