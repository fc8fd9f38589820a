#pragma once

#include <QLabel>
#include <QTimer>

// Tells assistive programs that a label says something new.
void alertScreenReaders(QLabel& label);

// A message in the lower right corner of its parent, which goes by itself.
class SearchNote : public QLabel
{
    Q_OBJECT

public:
    explicit SearchNote(QWidget* parent);

    // The empty message takes the last one away. Screen readers hear it as the parent's
    // description.
    void say(const QString& message);

private:
    QTimer end;
};
