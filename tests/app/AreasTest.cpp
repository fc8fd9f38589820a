// Drawing, picking, naming, numbering and deleting areas, and the way to their code.
#include "tests/app/WindowFixture.h"

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QSpinBox>

#include <random>

namespace {

std::string area(const char* name, int oid, double left, double top, double size)
{
    std::string text = "OID " + std::to_string(oid) + "\r\nPOLY " + name + "\r\n";
    const double corners[][2] = {
        {left, top}, {left + size, top}, {left + size, top + size}, {left, top + size}};
    for (const auto& corner : corners) {
        char line[64];
        snprintf(line, sizeof line, "    %8.2f %8.2f\r\n", corner[0], corner[1]);
        text += line;
    }
    return text + "END\r\n\r\n";
}

// The pixel of a point in percent.
QPoint at(WindowFixture& w, double x, double y)
{
    return w.get<PolyEditorWidget>("polyArea")->toPix({x, y});
}

void showAreas(WindowFixture& w)
{
    w.get<QTabWidget>("ribbonTab")->setCurrentIndex(1);
    QTest::qWait(1);
}

std::string lines(int count)
{
    std::string text;
    for (int i = 0; i < count; ++i) {
        text += "x = 1\r\n";
    }
    return text;
}

// Two pages of three areas, and the numbers that their names should have.
struct NamedPages
{
    struct Drawn
    {
        std::string name;
        double left;
    };

    // The name that no area has any more loses its number to the new one; where others still have
    // it, they get the next one.
    void rename(Drawn& drawn, const std::string& name)
    {
        if (name == drawn.name) {
            return;
        }
        int next = 1001;
        for (const auto& entry : numbers) {
            next = std::max(next, entry.second + 1);
        }
        const std::string old = std::exchange(drawn.name, name);
        numbers[name] = numbers[old];
        numbers.erase(old);
        for (const std::vector<Drawn>& page : pages) {
            for (const Drawn& other : page) {
                numbers.try_emplace(other.name, next);
            }
        }
    }

    std::string file() const
    {
        std::vector<std::string> texts;
        for (const std::vector<Drawn>& page : pages) {
            std::string& text = texts.emplace_back();
            for (const Drawn& drawn : page) {
                text += area(drawn.name.c_str(), numbers.at(drawn.name), drawn.left, 10, 10);
            }
        }
        return projectFile(texts);
    }

    std::vector<std::vector<Drawn>> pages = {{{"c", 10}, {"cow", 30}, {"x", 50}},
                                             {{"co", 10}, {"cow2", 30}, {"cow", 50}}};
    std::map<std::string, int> numbers = {
        {"c", 1001}, {"cow", 1002}, {"x", 1003}, {"co", 1004}, {"cow2", 1005}};
};

void pressRandomKey(QLineEdit& name, std::mt19937& random)
{
    const auto anyOf = [&](const QStringList& texts) {
        return texts[static_cast<int>(random() % static_cast<unsigned>(texts.size()))];
    };
    switch (random() % 6) {
    case 0:
        QTest::keyClick(&name, Qt::Key_Backspace);
        break;
    case 1:
        QApplication::clipboard()->setText(anyOf({"cow2", "co", "x", "a hen"}));
        QTest::keySequence(&name, QKeySequence::SelectAll);
        QTest::keySequence(&name, QKeySequence::Paste);
        break;
    case 2:
        QTest::keySequence(&name, QKeySequence::SelectAll);
        QTest::keyClicks(&name, anyOf({"c", "x", " "}));
        break;
    default:
        QTest::keyClicks(&name, name.text() == "c" ? "o" : name.text() == "co" ? "w" : "2");
    }
}

int selected(WindowFixture& w)
{
    return w.get<PolyEditorWidget>("polyArea")->selectedPoly();
}

}  // namespace

class AreasTest : public QObject
{
    Q_OBJECT

private slots:
    void aClickPicksTheFirstAreaThatHoldsThePoint()
    {
        WindowFixture w;
        w.open(projectFile({area("cow", 1001, 10, 10, 20) + area("hen", 1002, 20, 10, 20)}), 1);
        showAreas(w);
        w.clickAt(at(w, 25, 15));  // both
        QCOMPARE(selected(w), 0);
        QCOMPARE(w.field("txPolyName"), "cow");
        QCOMPARE(w.get<QSpinBox>("txOidOfArea")->value(), 1001);
        w.clickAt(at(w, 35, 15));
        QCOMPARE(selected(w), 1);
        QCOMPARE(w.field("txPolyName"), "hen");
    }

    void aClickPicksFromThePictureThatIsShown()
    {
        WindowFixture w;
        w.open(projectFile({area("cow", 1001, 10, 10, 20), area("hen", 1002, 30, 20, 20)}), 2);
        showAreas(w);
        w.click("btNextPicture");
        w.clickAt(at(w, 15, 15));
        QCOMPARE(selected(w), -1);
        w.clickAt(at(w, 40, 30));
        QCOMPARE(w.field("txPolyName"), "hen");
    }

    // What is done to it counts for the area of that number on the new picture.
    void theSelectionStaysWhenThePictureChanges()
    {
        WindowFixture w;
        w.open(projectFile({area("cow", 1001, 10, 10, 20), area("hen", 1002, 30, 20, 20), ""}), 3);
        showAreas(w);
        w.clickAt(at(w, 15, 15));
        w.click("btNextPicture");
        QCOMPARE(selected(w), 0);
        QCOMPARE(w.field("txPolyName"), "hen");
        QCOMPARE(w.get<QSpinBox>("txOidOfArea")->value(), 1002);
        w.type("txPolyName", "pig");
        QCOMPARE(w.saved(),
                 projectFile({area("cow", 1001, 10, 10, 20), area("pig", 1002, 30, 20, 20), ""}));
    }

    // On a picture without an area of that number nothing is selected, until one comes that has it.
    void withoutASelectedAreaTheFieldsKeepTheLastOneAndChangeNothing()
    {
        WindowFixture w;
        const std::string project =
            projectFile({area("cow", 1001, 10, 10, 10) + area("hen", 1002, 30, 10, 10),
                         area("pig", 1003, 10, 10, 10),
                         area("ape", 1004, 10, 10, 10) + area("ant", 1005, 30, 10, 10)});
        w.open(project, 3);
        showAreas(w);
        w.clickAt(at(w, 35, 15));
        w.click("btNextPicture");
        QCOMPARE(w.field("txPolyName"), "hen");
        QCOMPARE(w.get<QSpinBox>("txOidOfArea")->value(), 1002);
        w.type("txPolyName", "dog");
        w.get<QSpinBox>("txOidOfArea")->setValue(7);
        QCOMPARE(w.saved(), project);
        w.click("btPreviousPicture");
        QCOMPARE(w.field("txPolyName"), "hen");
        QCOMPARE(w.get<QSpinBox>("txOidOfArea")->value(), 1002);
        w.click("btPreviousPicture");
        QCOMPARE(w.field("txPolyName"), "ant");
        QCOMPARE(w.get<QSpinBox>("txOidOfArea")->value(), 1005);
        QCOMPARE(w.saved(), project);
    }

    void addingGoesOnOnAnotherPicture()
    {
        WindowFixture w;
        w.open(projectFile({area("cow", 1001, 10, 10, 20), area("hen", 1002, 30, 20, 20)}), 2);
        showAreas(w);
        w.click("btAddPoly");
        w.click("btNextPicture");
        QCOMPARE(w.get<PolyEditorWidget>("polyArea")->cursor().shape(), Qt::CrossCursor);
        w.clickAt({0, w.get<PolyEditorWidget>("polyArea")->width() / 2});
        QVERIFY(w.saved().find("       30.00    40.00\r\n        0.00    50.00\r\nEND") !=
                std::string::npos);
    }

    void aClickOutsideEveryAreaDeselectsAndLeavesTheFields()
    {
        WindowFixture w;
        w.open(projectFile({area("cow", 1001, 10, 10, 20)}), 1);
        showAreas(w);
        w.clickAt(at(w, 15, 15));
        w.clickAt(at(w, 45, 45));
        QCOMPARE(selected(w), -1);
        QCOMPARE(w.field("txPolyName"), "cow");
        QCOMPARE(w.get<QSpinBox>("txOidOfArea")->value(), 1001);
    }

    void cornersClickedInAddModeMakeAnArea()
    {
        WindowFixture w;
        w.open(projectFile({""}), 1);
        showAreas(w);
        w.click("btAddPoly");
        QCOMPARE(w.get<PolyEditorWidget>("polyArea")->cursor().shape(), Qt::CrossCursor);
        QCOMPARE(w.field("txPolyName"), "polygon1");
        QCOMPARE(w.get<QSpinBox>("txOidOfArea")->value(), 1001);
        QCOMPARE(w.console(), "OID  1001 assigned to 'polygon1'");
        const int width = w.get<PolyEditorWidget>("polyArea")->width();
        w.clickAt({width / 2, width / 4});
        w.clickAt({width / 4, width / 8});
        char points[128];
        snprintf(points, sizeof points, "    %8.2f %8.2f\r\n    %8.2f %8.2f\r\n",
                 width / 2 * 100.0 / width, width / 4 * 100.0 / width, width / 4 * 100.0 / width,
                 width / 8 * 100.0 / width);
        QCOMPARE(w.saved(), projectFile({std::string("OID 1001\r\nPOLY polygon1\r\n") + points +
                                         "END\r\n\r\n"}));
    }

    void pickingEndsAddingAndSelectsNothing()
    {
        WindowFixture w;
        w.open(projectFile({""}), 1);
        w.click("btAddPoly");
        w.click("btPickPoly");
        QCOMPARE(w.get<PolyEditorWidget>("polyArea")->cursor().shape(), Qt::ArrowCursor);
        QCOMPARE(selected(w), -1);
    }

    void afterPickingOrDeletingAClickAddsNoCorner()
    {
        for (const char* const tool : {"btPickPoly", "btDelPoly"}) {
            WindowFixture w;
            w.open(projectFile({area("cow", 1001, 10, 10, 20)}), 1);
            showAreas(w);
            w.click("btAddPoly");
            w.click(tool);
            const std::string before = w.saved();
            w.clickAt(at(w, 45, 45));
            QCOMPARE(w.saved(), before);
        }
    }

    void openingAProjectSelectsNothing()
    {
        WindowFixture w;
        w.open(projectFile({area("cow", 1001, 10, 10, 20)}), 1);
        showAreas(w);
        w.clickAt(at(w, 15, 15));
        w.open(projectFile({area("hen", 1002, 10, 10, 20)}), 1);
        QCOMPARE(selected(w), -1);
        w.type("txPolyName", "pig");
        QCOMPARE(w.saved(), projectFile({area("hen", 1002, 10, 10, 20)}));
    }

    void afterAFailedOpenThePictureWidgetStillKnowsItsArea()
    {
        WindowFixture w;
        w.open(projectFile({area("cow", 1001, 10, 10, 20)}), 1);
        showAreas(w);
        w.clickAt(at(w, 15, 15));
        w.window.openProject(w.path("none.oidpro"));
        QCOMPARE(selected(w), 0);
        w.type("txPolyName", "pig");
        w.open(projectFile({area("cow", 1001, 10, 10, 20)}), 1);
        QCOMPARE(selected(w), -1);
    }

    void aPickedAreaAndANewCornerArePaintedAtOnce()
    {
        WindowFixture w;
        w.open(projectFile({area("cow", 1001, 10, 10, 20)}), 1);
        showAreas(w);
        const auto painted = [&](const std::function<void()>& use) {
            QCoreApplication::processEvents();
            PaintCounter paints(*w.get<PolyEditorWidget>("polyArea"));
            use();
            return paints.count > 0;
        };
        QVERIFY(painted([&] { w.clickAt(at(w, 15, 15)); }));
        QVERIFY(painted([&] { w.clickAt(at(w, 45, 45)); }));
        w.click("btAddPoly");
        QVERIFY(painted([&] { w.clickAt(at(w, 45, 45)); }));
    }

    // Only the three tools end or begin adding.
    void addingGoesOnInAnotherProject()
    {
        WindowFixture w;
        w.open(projectFile({""}), 1);
        w.click("btAddPoly");
        w.open(projectFile({"OID 7\r\nPOLY hen\r\nEND\r\n\r\n"}), 1);
        QCOMPARE(w.get<PolyEditorWidget>("polyArea")->cursor().shape(), Qt::CrossCursor);
        showAreas(w);
        w.clickAt({0, w.get<PolyEditorWidget>("polyArea")->width() / 2});
        QVERIFY(w.saved().find("POLY hen\r\n        0.00    50.00\r\nEND") != std::string::npos);
    }

    void addingOnAPictureWithoutAreasIsIgnored()
    {
        WindowFixture w;
        w.open(projectFile({area("cow", 1001, 10, 10, 20), ""}), 2);
        showAreas(w);
        w.click("btAddPoly");
        w.click("btNextPicture");
        w.clickAt({20, 20});
        QCOMPARE(w.saved(), projectFile({area("cow", 1001, 10, 10, 20) +
                                             "OID 1002\r\nPOLY polygon2\r\nEND\r\n\r\n",
                                         ""}));
    }

    void theToolsDoNothingWithoutAPicture()
    {
        WindowFixture w;
        w.click("btAddPoly");
        w.click("btDelPoly");
        w.click("btPickPoly");
        w.clickAt({20, 20});
        QCOMPARE(w.get<PolyEditorWidget>("polyArea")->cursor().shape(), Qt::ArrowCursor);
        QCOMPARE(w.field("txPolyName"), "");
    }

    void deletingSelectsTheAreaBefore()
    {
        WindowFixture w;
        w.open(projectFile({area("cow", 1001, 10, 10, 10) + area("hen", 1002, 30, 10, 10)}), 1);
        showAreas(w);
        w.clickAt(at(w, 35, 15));
        w.click("btDelPoly");
        QCOMPARE(selected(w), 0);
        QCOMPARE(w.field("txPolyName"), "cow");
        QCOMPARE(w.saved(), projectFile({area("cow", 1001, 10, 10, 10)}));
    }

    void deletingWithoutASelectedAreaIsIgnored()
    {
        WindowFixture w;
        w.open(projectFile({area("cow", 1001, 10, 10, 20), ""}), 2);
        showAreas(w);
        w.click("btAddPoly");
        w.click("btNextPicture");  // which has no area of that number
        w.click("btDelPoly");
        QCOMPARE(w.get<PolyEditorWidget>("polyArea")->cursor().shape(), Qt::CrossCursor);
        w.click("btPreviousPicture");
        w.click("btPickPoly");
        w.click("btDelPoly");
        QCOMPARE(w.saved(), projectFile({area("cow", 1001, 10, 10, 20) +
                                             "OID 1002\r\nPOLY polygon2\r\nEND\r\n\r\n",
                                         ""}));
    }

    void nameAndNumberWithoutASelectedAreaAreIgnored()
    {
        WindowFixture w;
        w.open(projectFile({area("cow", 1001, 10, 10, 20)}), 1);
        showAreas(w);
        w.clickAt(at(w, 15, 15));
        w.clickAt(at(w, 45, 45));
        w.type("txPolyName", "hen");
        w.get<QSpinBox>("txOidOfArea")->setValue(77);
        QCOMPARE(w.saved(), projectFile({area("cow", 1001, 10, 10, 20)}));
    }

    void deletingTheOnlyAreaSelectsNothing()
    {
        WindowFixture w;
        w.open(projectFile({""}), 1);
        w.click("btAddPoly");
        w.click("btDelPoly");
        QCOMPARE(selected(w), -1);
        QCOMPARE(w.get<PolyEditorWidget>("polyArea")->cursor().shape(), Qt::ArrowCursor);
        QCOMPARE(w.saved(), projectFile({""}));
    }

    void aDeletedNameGetsItsNumberBack()
    {
        WindowFixture w;
        w.open(projectFile({""}), 1);
        w.click("btAddPoly");
        w.get<QSpinBox>("txOidOfArea")->setValue(1234);
        w.click("btDelPoly");
        w.click("btAddPoly");
        QCOMPARE(w.get<QSpinBox>("txOidOfArea")->value(), 1234);
    }

    void aNameTakesItsNumberAlongLetterByLetter()
    {
        WindowFixture w;
        w.open(projectFile({""}), 1);
        showAreas(w);
        w.click("btAddPoly");
        QLineEdit* const name = w.get<QLineEdit>("txPolyName");
        name->selectAll();
        for (const char letter : {'d', 'o', 'o', 'r'}) {
            QTest::keyClick(name, letter);
            QCOMPARE(w.saved(), projectFile({"OID 1001\r\nPOLY " + name->text().toStdString() +
                                             "\r\nEND\r\n\r\n"}));
        }
    }

    // All reaction to a name is to the change of its text.
    void theSlotForAnEditedNameDoesNothing()
    {
        WindowFixture w;
        w.open(projectFile({area("cow", 1001, 10, 10, 20)}), 1);
        showAreas(w);
        w.clickAt(at(w, 15, 15));
        QVERIFY(QMetaObject::invokeMethod(&w.window, "on_txPolyName_textEdited",
                                          Q_ARG(QString, "hen ")));
        QCOMPARE(w.field("txPolyName"), "cow");
        QCOMPARE(w.saved(), projectFile({area("cow", 1001, 10, 10, 20)}));
    }

    void aNameThatWasGivenUpHasNoNumberAnyMore()
    {
        WindowFixture w;
        w.open(projectFile({area("polygon1", 1001, 10, 10, 20), ""}), 2);
        showAreas(w);
        w.clickAt(at(w, 15, 15));
        w.type("txPolyName", "door");
        w.click("btNextPicture");
        w.click("btAddPoly");
        QCOMPARE(w.field("txPolyName"), "polygon1");
        QCOMPARE(w.get<QSpinBox>("txOidOfArea")->value(), 1002);
    }

    void aTypedNumberIsTheAreas()
    {
        WindowFixture w;
        w.open(projectFile({area("cow", 1001, 10, 10, 20)}), 1);
        showAreas(w);
        w.clickAt(at(w, 15, 15));
        QSpinBox* const oid = w.get<QSpinBox>("txOidOfArea");
        oid->setFocus();
        oid->selectAll();
        QTest::keyClicks(oid, "4321");
        QCOMPARE(w.saved(), projectFile({area("cow", 4321, 10, 10, 20)}));
    }

    void selectingAnAreaKeepsANumberThatTheFieldCannotShow()
    {
        WindowFixture w;
        const std::string project =
            projectFile({area("cow", 40000, 10, 10, 10) + area("hen", 1002, 30, 10, 10)});
        w.open(project, 1);
        showAreas(w);
        w.clickAt(at(w, 35, 15));
        w.clickAt(at(w, 15, 15));
        QCOMPARE(w.get<QSpinBox>("txOidOfArea")->value(), 32767);
        QCOMPARE(w.saved(), project);
    }

    // The new name's own number goes, on purpose: both are one area to the pen.
    void aNameThatAnotherAreaHasTakesTheNumberOfTheRenamedOne()
    {
        WindowFixture w;
        w.open(projectFile({area("cow", 1001, 10, 10, 10) + area("hen", 1002, 30, 10, 10)}), 1);
        showAreas(w);
        w.clickAt(at(w, 15, 15));
        w.get<QLineEdit>("txPolyName")->setText("hen");
        QCOMPARE(w.saved(),
                 projectFile({area("hen", 1001, 10, 10, 10) + area("hen", 1001, 30, 10, 10)}));
    }

    // As 0 would be in print; it can be typed on the way to another number.
    void aNumberOfZeroIsReplacedOnSaving()
    {
        WindowFixture w;
        w.open(projectFile({area("cow", 1001, 10, 10, 10) + area("hen", 1500, 30, 10, 10)}), 1);
        showAreas(w);
        w.clickAt(at(w, 15, 15));
        QSpinBox* const oid = w.get<QSpinBox>("txOidOfArea");
        oid->selectAll();
        QTest::keyClicks(oid, "0");
        QCOMPARE(w.saved(),
                 projectFile({area("cow", 1501, 10, 10, 10) + area("hen", 1500, 30, 10, 10)}));
        QCOMPARE(oid->value(), 1501);
        QCOMPARE(w.console(), "OID  1501 assigned to 'cow'");
    }

    void aZeroInTheFileIsReplacedOnSaving()
    {
        WindowFixture w;
        w.open(projectFile({area("cow", 1001, 10, 10, 10), area("hen", 0, 30, 10, 10)}), 2);
        QCOMPARE(w.saved(),
                 projectFile({area("cow", 1001, 10, 10, 10), area("hen", 1002, 30, 10, 10)}));
    }

    // Its number goes with the one that is renamed.
    void anAreaThatKeepsASharedNameGetsANewNumber()
    {
        WindowFixture w;
        w.open(projectFile({area("cow", 1001, 10, 10, 10) + area("cow", 1001, 30, 10, 10)}), 1);
        showAreas(w);
        w.clickAt(at(w, 15, 15));
        w.type("txPolyName", "hen");
        w.clickAt(at(w, 35, 15));
        QCOMPARE(w.field("txPolyName"), "cow");
        QCOMPARE(w.get<QSpinBox>("txOidOfArea")->value(), 1002);
        QCOMPARE(w.console(), "OID  1002 assigned to 'cow'");
        QCOMPARE(w.saved(),
                 projectFile({area("hen", 1001, 10, 10, 10) + area("cow", 1002, 30, 10, 10)}));
    }

    void anAreaWhoseNameIsPassedWhileTypingKeepsItsNumber()
    {
        WindowFixture w;
        w.open(projectFile({area("cow", 1001, 10, 10, 10) + area("pig", 1002, 30, 10, 10)}), 1);
        showAreas(w);
        w.clickAt(at(w, 35, 15));
        w.type("txPolyName", "cow");
        QCOMPARE(w.saved(),
                 projectFile({area("cow", 1002, 10, 10, 10) + area("cow", 1002, 30, 10, 10)}));
        QTest::keyClick(w.get<QLineEdit>("txPolyName"), '2');
        QCOMPARE(w.saved(),
                 projectFile({area("cow", 1001, 10, 10, 10) + area("cow2", 1002, 30, 10, 10)}));
    }

    void theNumberThatANameTookOverStaysWhenAnotherAreaIsSelected()
    {
        WindowFixture w;
        w.open(projectFile({area("cow", 1001, 10, 10, 10) + area("pig", 1002, 30, 10, 10)}), 1);
        showAreas(w);
        w.clickAt(at(w, 35, 15));
        w.type("txPolyName", "cow");
        w.clickAt(at(w, 15, 15));
        w.type("txPolyName", "dog");
        QCOMPARE(w.saved(),
                 projectFile({area("dog", 1002, 10, 10, 10) + area("cow", 1003, 30, 10, 10)}));
    }

    // Letters, deletions and pastes. Whatever comes on the way, only the first and the last
    // name count.
    void randomKeysGiveTheNumbersOfTheNamesThatComeOut()
    {
        NamedPages model;
        WindowFixture w;
        w.open(model.file(), 2);
        showAreas(w);
        QLineEdit* const name = w.get<QLineEdit>("txPolyName");
        std::mt19937 random(2);
        size_t page = 0;
        int passedNames = 0;
        for (int turn = 0; turn < 80; ++turn) {
            if (random() % 3 == 0) {
                w.click("btPreviousPicture");
                page = 1 - page;
            }
            NamedPages::Drawn& drawn = model.pages[page][random() % 3];
            w.clickAt(at(w, 45, 45));  // the model knows of no index that is kept
            w.clickAt(at(w, drawn.left + 1, 11));
            QCOMPARE(name->text().toStdString(), drawn.name);
            QCOMPARE(w.get<QSpinBox>("txOidOfArea")->value(), model.numbers[drawn.name]);
            const NamedPages before = model;
            const std::string nameBefore = drawn.name;
            for (unsigned key = random() % 8; key > 0; --key) {
                pressRandomKey(*name, random);
                model.numbers = before.numbers;
                drawn.name = nameBefore;
                model.rename(drawn, name->text().toStdString());
                QCOMPARE(w.saved(), model.file());
                passedNames += key > 1 && before.numbers.count(drawn.name) == 1 ? 1 : 0;
            }
        }
        QVERIFY2(passedNames > 50, qPrintable(QString::number(passedNames)));
    }

    void whatANameCannotHoldBecomesAnUnderscoreAsItIsTyped()
    {
        WindowFixture w;
        w.open(projectFile({area("cow", 1001, 10, 10, 20)}), 1);
        showAreas(w);
        w.clickAt(at(w, 15, 15));
        w.type("txPolyName", "my #1 \"cow's\"");
        QCOMPARE(w.field("txPolyName"), "my__1__cow_s_");
        QCOMPARE(w.saved(), projectFile({area("my__1__cow_s_", 1001, 10, 10, 20)}));
    }

    void anUnderscoreThatWasTypedAsABlankCanBeUndone()
    {
        WindowFixture w;
        w.open(projectFile({area("cow", 1001, 10, 10, 20)}), 1);
        showAreas(w);
        w.clickAt(at(w, 15, 15));
        QLineEdit* const name = w.get<QLineEdit>("txPolyName");
        name->setFocus();
        QTest::keyClick(name, Qt::Key_Home);
        QTest::keyClicks(name, "my ");
        QCOMPARE(name->text(), "my_cow");
        QTest::keyClick(name, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(name->text(), "cow");
        QCOMPARE(w.saved(), projectFile({area("cow", 1001, 10, 10, 20)}));
    }

    void whatANameCannotHoldBecomesAnUnderscoreAsItIsPasted()
    {
        WindowFixture w;
        w.open(projectFile({area("cow", 1001, 10, 10, 20)}), 1);
        showAreas(w);
        w.clickAt(at(w, 15, 15));
        QLineEdit* const name = w.get<QLineEdit>("txPolyName");
        name->selectAll();
        QApplication::clipboard()->setText("my\tcow\nand #hen");
        QTest::keyClick(name, Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(name->text(), "my_cow_and__hen");
        QCOMPARE(w.saved(), projectFile({area("my_cow_and__hen", 1001, 10, 10, 20)}));
    }

    void aNameThatNoLineOfTheFileHoldsIsRefused()
    {
        WindowFixture w;
        w.open(projectFile({area("cow", 1001, 10, 10, 20)}), 1);
        showAreas(w);
        w.clickAt(at(w, 15, 15));
        QLineEdit* const name = w.get<QLineEdit>("txPolyName");
        name->selectAll();
        name->insert(QString(1018, 'n'));
        QTest::keyClick(name, 'n');
        QCOMPARE(name->text(), QString(1018, 'n'));
        name->selectAll();
        name->insert(QString(510, QChar(0xE4)));  // two bytes each
        QCOMPARE(name->text(), QString(1018, 'n'));
        w.open(w.saved(), 1);
        w.clickAt(at(w, 15, 15));
        QCOMPARE(name->text(), QString(1018, 'n'));
    }

    // A book made by hand may have such a name and play well; looking at it changes nothing.
    void anAreaOfAHandWrittenNameIsShownAsItWouldBeStoredAndStaysUntilItIsEdited()
    {
        WindowFixture w;
        const std::string project =
            projectFile({area("\"cow\"", 1001, 10, 10, 10) + area("\"cow\"", 1001, 30, 10, 10)},
                        "sub \"cow\"\r\nend sub\r\n");
        w.open(project, 1);
        showAreas(w);
        w.clickAt(at(w, 15, 15));
        QCOMPARE(w.field("txPolyName"), "_cow_");
        w.click("btEditPolyCode");
        QCOMPARE(w.script(), "sub \"cow\"\r\nend sub\r\n");
        QCOMPARE(w.saved(), project);
        showAreas(w);
        QTest::keyClick(w.get<QLineEdit>("txPolyName"), '2');
        QCOMPARE(w.saved(),
                 projectFile({area("_cow_2", 1001, 10, 10, 10) + area("\"cow\"", 1002, 30, 10, 10)},
                             "sub \"cow\"\r\nend sub\r\n"));
    }

    void gotoCodeFindsTheSub()
    {
        WindowFixture w;
        w.open(projectFile({area("cow", 1001, 10, 10, 20)}, "x = 1\r\nsub cow\r\nend sub\r\n"), 1);
        showAreas(w);
        w.clickAt(at(w, 15, 15));
        w.click("btEditPolyCode");
        QCOMPARE(w.tab(), "Script");
        const auto& selection = w.get<KVQtHighlightEditCtrl>("codeEditor")->editor().selection;
        QCOMPARE(selection.end.line, 1);
        QCOMPARE(selection.end.column, 0);
        QVERIFY(!selection.has_range());
    }

    void gotoCodeSearchesFromTheTopAndScrollsToTheSub()
    {
        WindowFixture w;
        const std::string script = lines(300) + "sub cow\r\nend sub\r\n" + lines(300);
        w.open(projectFile({area("cow", 1001, 10, 10, 20)}, script), 1);
        showAreas(w);
        w.clickAt(at(w, 15, 15));
        w.window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&w.window));
        auto& surface = w.get<KVQtHighlightEditCtrl>("codeEditor")->surface();
        surface.OnEditSelectAll();
        w.click("btEditPolyCode");
        const auto& selection = surface.editor.selection;
        QCOMPARE(selection.end.line, 300);
        QCOMPARE(selection.end.column, 0);
        QVERIFY(!selection.has_range());
        QVERIFY(surface.rect().contains(surface.CellRectangle(selection.end)));
        QVERIFY(surface.hasFocus());
    }

    void gotoCodeScrollsToALineThatItAdds()
    {
        WindowFixture w;
        w.open(projectFile({area("cow", 1001, 10, 10, 20)}, lines(300)), 1);
        showAreas(w);
        w.clickAt(at(w, 15, 15));
        w.click("btEditPolyCode");
        auto& surface = w.get<KVQtHighlightEditCtrl>("codeEditor")->surface();
        QCOMPARE(w.script(), QString::fromStdString(lines(300)) + "\r\nsub cow\r\nendsub\r\n");
        QCOMPARE(surface.editor.selection.end.line, 303);
        QVERIFY(surface.rect().contains(surface.CellRectangle({303, 0})));
        QVERIFY(!surface.editor.is_dirty());  // coloured
        QVERIFY(!surface.editor.can_undo());  // a plain append
    }

    // Plain text search: no word boundaries, on purpose.
    void gotoCodeFindsALongerNameThatComesFirst()
    {
        WindowFixture w;
        w.open(projectFile({area("polygon1", 1001, 10, 10, 20)},
                           "sub polygon12\r\nend sub\r\nsub polygon1\r\nend sub\r\n"),
               1);
        showAreas(w);
        w.clickAt(at(w, 15, 15));
        w.click("btEditPolyCode");
        QCOMPARE(w.get<KVQtHighlightEditCtrl>("codeEditor")->editor().selection.end.line, 0);
    }

    void gotoCodeAddsASubThatIsMissing()
    {
        WindowFixture w;
        w.open(projectFile({area("kitchen", 1001, 10, 10, 20)}, "x = 1"), 1);
        showAreas(w);
        w.clickAt(at(w, 15, 15));
        w.click("btEditPolyCode");
        QCOMPARE(w.tab(), "Script");
        QCOMPARE(w.script(), "x = 1\r\nsub kitchen\r\nendsub\r\n");
        QCOMPARE(w.get<KVQtHighlightEditCtrl>("codeEditor")->editor().selection.end.line, 3);
    }
};

QTEST_MAIN(AreasTest)
#include "AreasTest.moc"
