#include "speech/tab/WaveView.h"

#include "speech/tab/LevelMeter.h"
#include "speech/tab/WaveHandle.h"
#include "tests/recording/Voices.h"

#include <QAccessible>
#include <QSignalSpy>
#include <QTest>

using recording::Span;
using recording::Take;

// The wave of a recording and its ends, and the level of the microphone.
class WaveViewTest : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void withoutARecordingThereIsNoHandle();
    void theHandlesStandAtTheEndsOfWhatIsKept();
    void draggingAHandleMovesItsEndAsOneChange();
    void anEndCannotBeDraggedPastTheOther();
    void arrowsMoveAnEndBy10MillisecondsAndPageKeysBy100();
    void aKeyThatIsHeldIsOneChange();
    void aHandleIsASliderForScreenReaders();
    void whatIsCutLooksDifferent();
    void theLevelIsToldInWords();

private:
    // A wave of a second, of which all is kept: 1000 pixels for 1000 ms. What its handles do
    // happens.
    std::unique_ptr<WaveView> wave;
    Take take;
    QList<bool> changes;  // whether each went on

    WaveHandle* handle(const char* name) { return wave->findChild<WaveHandle*>(name); }
    int middleOf(const char* name) { return handle(name)->geometry().center().x() + 1; }
    void drag(const char* name, const QList<int>& places);
};

void WaveViewTest::init()
{
    wave = std::make_unique<WaveView>();
    wave->resize(1000 + WaveHandle::kWidth, 100);
    take.load(toneOf(1));
    changes.clear();
    connect(wave.get(), &WaveView::trimmed, this, [this](Span kept, bool goesOn) {
        take.trim(kept, goesOn);
        changes << goesOn;
        wave->showTake(take);
    });
    wave->showTake(take);
    wave->show();
    QVERIFY(QTest::qWaitForWindowActive(wave.get()));
}

// By real presses; the places are those of the wave.
void WaveViewTest::drag(const char* name, const QList<int>& places)
{
    WaveHandle* const dragged = handle(name);
    const QPoint middle = dragged->rect().center();
    QTest::mousePress(dragged, Qt::LeftButton, {}, middle);
    for (const int place : places) {
        const QPoint at = dragged->mapFromParent(QPoint(place, 50));
        QMouseEvent move(QEvent::MouseMove, at, dragged->mapToGlobal(at), Qt::NoButton,
                         Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(dragged, &move);
    }
    QTest::mouseRelease(dragged, Qt::LeftButton, {}, middle);
}

void WaveViewTest::withoutARecordingThereIsNoHandle()
{
    wave->showTake({});
    QVERIFY(!handle("waveBegin")->isVisible());
    QCOMPARE(wave->accessibleDescription(), QString("Nothing is recorded yet"));
}

void WaveViewTest::theHandlesStandAtTheEndsOfWhatIsKept()
{
    take.trim({11025, 33075});
    wave->showTake(take);
    QCOMPARE(middleOf("waveBegin"), 250 + WaveHandle::kWidth / 2);
    QCOMPARE(middleOf("waveEnd"), 750 + WaveHandle::kWidth / 2);
    QCOMPARE(handle("waveBegin")->value(), 250);
    QCOMPARE(handle("waveEnd")->value(), 750);
    QCOMPARE(wave->accessibleDescription(), QString("0.5 of 1.0 s are kept"));
}

void WaveViewTest::draggingAHandleMovesItsEndAsOneChange()
{
    drag("waveBegin", {50, 100, 200 + WaveHandle::kWidth / 2});
    QVERIFY2(std::abs(static_cast<int>(take.kept().begin) - 8820) < 100,
             qPrintable(QString::number(take.kept().begin)));
    drag("waveEnd", {900, 600 + WaveHandle::kWidth / 2});
    QVERIFY2(std::abs(static_cast<int>(take.kept().end) - 26460) < 100,
             qPrintable(QString::number(take.kept().end)));
    take.undo();
    QCOMPARE(take.kept().end, size_t(44100));
    take.undo();
    QVERIFY(take.kept() == (Span{0, 44100}));
    QVERIFY(!take.canUndo());
}

void WaveViewTest::anEndCannotBeDraggedPastTheOther()
{
    take.trim({22050, 44100});
    wave->showTake(take);
    drag("waveEnd", {100});
    QVERIFY(take.kept() == (Span{22050, 22050 + 2205}));
    drag("waveBegin", {-50});
    QVERIFY(take.kept() == (Span{0, 22050 + 2205}));
}

void WaveViewTest::arrowsMoveAnEndBy10MillisecondsAndPageKeysBy100()
{
    QTest::keyClick(handle("waveBegin"), Qt::Key_Right);
    QCOMPARE(take.kept().begin, size_t(441));
    QTest::keyClick(handle("waveBegin"), Qt::Key_PageUp);
    QCOMPARE(take.kept().begin, size_t(4851));
    QTest::keyClick(handle("waveEnd"), Qt::Key_Left);
    QCOMPARE(take.kept().end, size_t(44100 - 441));
    QTest::keyClick(handle("waveEnd"), Qt::Key_End);
    QCOMPARE(take.kept().end, size_t(44100));
    QCOMPARE(changes, QList<bool>({false, false, false, false}));
}

void WaveViewTest::aKeyThatIsHeldIsOneChange()
{
    for (int i = 0; i < 5; ++i) {
        QKeyEvent held(QEvent::KeyPress, Qt::Key_Right, Qt::NoModifier, {}, i > 0);
        QCoreApplication::sendEvent(handle("waveBegin"), &held);
    }
    QCOMPARE(take.kept().begin, size_t(5 * 441));
    take.undo();
    QVERIFY(take.kept() == (Span{0, 44100}));
}

void WaveViewTest::aHandleIsASliderForScreenReaders()
{
    QAccessibleInterface* const slider = QAccessible::queryAccessibleInterface(handle("waveEnd"));
    QCOMPARE(slider->role(), QAccessible::Slider);
    QCOMPARE(slider->text(QAccessible::Name), QString("End of what is kept, in milliseconds"));
    QCOMPARE(slider->valueInterface()->currentValue().toInt(), 1000);
}

void WaveViewTest::whatIsCutLooksDifferent()
{
    const QColor before = wave->grab().toImage().pixelColor(200, 50);
    take.trim({22050, 44100});
    wave->showTake(take);
    const QImage picture = wave->grab().toImage();
    QVERIFY(picture.pixelColor(200, 50) != before);
    QCOMPARE(picture.pixelColor(800, 50), before);
}

void WaveViewTest::theLevelIsToldInWords()
{
    LevelMeter meter;
    QCOMPARE(meter.words(), QString("Nothing is heard"));
    meter.showPeak(0.01);
    QCOMPARE(meter.words(), QString("Quiet"));
    meter.showPeak(0.3);
    QCOMPARE(meter.words(), QString("Good"));
    meter.showPeak(0.01);
    QCOMPARE(meter.words(), QString("Good"));  // for a while
    meter.showPeak(0.95);
    QCOMPARE(meter.words(), QString("Too loud"));
    QCOMPARE(meter.accessibleDescription(), QString("Too loud"));
    meter.showNothing();
    QCOMPARE(meter.accessibleDescription(), QString("Nothing is heard"));
}

QTEST_MAIN(WaveViewTest)
#include "WaveViewTest.moc"
