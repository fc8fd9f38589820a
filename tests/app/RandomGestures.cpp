#include "tests/app/RandomGestures.h"

#include <QPushButton>
#include <QTest>
#include <QWheelEvent>

RandomGestures::RandomGestures(MainWindow& shown, unsigned seed)
    : window(shown), page(*shown.findChild<PolyEditorWidget*>("polyArea")), random(seed)
{}

void RandomGestures::doAnything()
{
    switch (below(8)) {
    case 0:
        chooseTool();
        break;
    case 1:
    case 2:
        QTest::mouseClick(&page, Qt::LeftButton, modifiers(), anywhere());
        break;
    case 3:
    case 4:
        drag();
        break;
    case 5:
        wheel();
        break;
    case 6:
        drawingKey();
        break;
    default:
        command();
    }
}

Qt::KeyboardModifiers RandomGestures::modifiers()
{
    const Qt::KeyboardModifiers any[] = {Qt::NoModifier, Qt::NoModifier, Qt::ShiftModifier,
                                         Qt::ControlModifier, Qt::AltModifier};
    return any[below(5)];
}

void RandomGestures::key(int key, Qt::KeyboardModifiers with)
{
    page.setFocus();
    QTest::keyClick(&page, Qt::Key(key), with);
}

void RandomGestures::click(const char* button)
{
    QTest::mouseClick(window.findChild<QPushButton*>(button), Qt::LeftButton);
}

void RandomGestures::chooseTool()
{
    const int keys[] = {Qt::Key_R, Qt::Key_E, Qt::Key_M};
    if (const int tool = below(5); tool < 3) {
        key(keys[tool]);
    } else {
        click(tool == 3 ? "btAddPoly" : "btPickPoly");
    }
}

void RandomGestures::drag()
{
    const QPoint from = anywhere();
    const QPoint to = anywhere();
    const Qt::KeyboardModifiers with = modifiers();
    QTest::mousePress(&page, Qt::LeftButton, with, from);
    for (const QPoint place : {(from + to) / 2, to}) {
        QMouseEvent move(QEvent::MouseMove, place, page.mapToGlobal(place), Qt::NoButton,
                         Qt::LeftButton, with);
        QCoreApplication::sendEvent(&page, &move);
    }
    if (below(4) == 0) {
        key(below(2) == 0 ? Qt::Key_Escape : Qt::Key_Left);
    }
    QTest::mouseRelease(&page, Qt::LeftButton, with, to);
}

void RandomGestures::wheel()
{
    const QPoint place = anywhere();
    QWheelEvent event(place, page.mapToGlobal(place), {}, {0, below(2) == 0 ? 120 : -120},
                      Qt::NoButton, below(2) == 0 ? Qt::ControlModifier : Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&page, &event);
}

void RandomGestures::drawingKey()
{
    const int keys[] = {Qt::Key_Left,  Qt::Key_Down,      Qt::Key_Up,     Qt::Key_Right,
                        Qt::Key_Space, Qt::Key_Backspace, Qt::Key_Return, Qt::Key_Escape,
                        Qt::Key_Space, Qt::Key_Return,    Qt::Key_Plus,   Qt::Key_Delete};
    const int which = below(13);
    if (which == 12) {
        QTest::mouseClick(&page, Qt::RightButton, Qt::NoModifier, anywhere());
    } else {
        key(keys[which], which < 4 ? modifiers() & ~Qt::AltModifier : Qt::NoModifier);
    }
}

void RandomGestures::command()
{
    const int keys[] = {Qt::Key_C, Qt::Key_X, Qt::Key_V,      Qt::Key_D,        Qt::Key_V,
                        Qt::Key_A, Qt::Key_Z, Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Y};
    if (const int which = below(12); which < 10) {
        key(keys[which], Qt::ControlModifier);
    } else {
        click(which == 10 ? "btDelPoly" : "btPreviousPicture");
    }
}
