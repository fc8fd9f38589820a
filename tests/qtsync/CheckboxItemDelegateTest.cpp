#include "qtsync/KVQtCheckboxItemDelegate.h"

#include <QPainter>
#include <QStandardItemModel>
#include <QTableView>
#include <QtTest>

namespace {

// One row of two cells with the delegate.
struct Row
{
    QStandardItemModel model{1, 2};
    KVQtCheckboxItemDelegate delegate;
    QTableView view;
    QModelIndex index = model.index(0, 0);

    explicit Row(int role = Qt::CheckStateRole) : delegate(nullptr, role)
    {
        model.setItem(0, 0, new QStandardItem);
        model.item(0, 0)->setCheckable(true);
        model.item(0, 0)->setCheckState(Qt::Unchecked);
        view.setModel(&model);
        view.setItemDelegate(&delegate);
        view.show();
    }

    QStyleOptionViewItem option() const
    {
        QStyleOptionViewItem option;
        option.initFrom(&view);
        option.widget = &view;
        option.rect = view.visualRect(index);
        return option;
    }
    QRect box() const { return KVQtCheckboxItemDelegate::GetCheckboxRect(option()); }
    void click(const QPoint& position, Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mouseClick(view.viewport(), button, Qt::NoModifier, position);
    }
    QImage painted(QStyle::State state = QStyle::State_Enabled) const
    {
        QImage image(option().rect.size() + QSize(10, 10), QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        QStyleOptionViewItem painting = option();
        painting.state = state;
        painting.rect.moveTo(0, 0);
        delegate.paint(&painter, painting, index);
        return image;
    }
};

}  // namespace

class CheckboxItemDelegateTest : public QObject
{
    Q_OBJECT

private slots:
    void thereIsNoEditor()
    {
        const Row row;
        QWidget parent;
        QCOMPARE(row.delegate.createEditor(&parent, row.option(), row.index), nullptr);
    }

    void theBoxLiesInsideTheCell()
    {
        const Row row;
        QVERIFY(!row.box().isEmpty());
        QVERIFY(row.option().rect.contains(row.box()));
        QVERIFY(row.box().width() < row.option().rect.width());
    }

    void aClickOnTheBoxSwitchesIt()
    {
        Row row;
        row.click(row.box().center());
        QCOMPARE(row.model.item(0, 0)->checkState(), Qt::Checked);
        row.click(row.box().center());
        QCOMPARE(row.model.item(0, 0)->checkState(), Qt::Unchecked);
    }

    void aClickBesideTheBoxDoesNothing()
    {
        Row row;
        const QRect cell = row.option().rect;
        const int middle = row.box().center().y();
        for (int x = row.box().right() + 1; x <= cell.right(); ++x) {
            row.click({x, middle});
            QCOMPARE(row.model.item(0, 0)->checkState(), Qt::Unchecked);
        }
        row.click({row.box().center().x(), cell.top()});
        QCOMPARE(row.model.item(0, 0)->checkState(), Qt::Unchecked);
    }

    void otherButtonsDoNothing()
    {
        Row row;
        row.click(row.box().center(), Qt::RightButton);
        row.click(row.box().center(), Qt::MiddleButton);
        QCOMPARE(row.model.item(0, 0)->checkState(), Qt::Unchecked);
    }

    void onlyTheReleaseSwitches()
    {
        Row row;
        QTest::mousePress(row.view.viewport(), Qt::LeftButton, Qt::NoModifier, row.box().center());
        QCOMPARE(row.model.item(0, 0)->checkState(), Qt::Unchecked);
        QTest::mouseRelease(row.view.viewport(), Qt::LeftButton, Qt::NoModifier,
                            row.box().center());
        QCOMPARE(row.model.item(0, 0)->checkState(), Qt::Checked);
    }

    void theReleaseOnTheBoxIsConsumed()
    {
        Row row;
        QMouseEvent inside(QEvent::MouseButtonRelease, row.box().center(), Qt::LeftButton,
                           Qt::NoButton, Qt::NoModifier);
        QVERIFY(row.delegate.editorEvent(&inside, &row.model, row.option(), row.index));
        QMouseEvent beside(QEvent::MouseButtonRelease, row.option().rect.bottomRight(),
                           Qt::LeftButton, Qt::NoButton, Qt::NoModifier);
        QVERIFY(!row.delegate.editorEvent(&beside, &row.model, row.option(), row.index));
    }

    void theSpaceKeySwitchesACheckState()
    {
        Row row;
        row.view.setCurrentIndex(row.index);
        QTest::keyClick(&row.view, Qt::Key_Space);
        QCOMPARE(row.model.item(0, 0)->checkState(), Qt::Checked);
        QTest::keyClick(&row.view, Qt::Key_Space);
        QCOMPARE(row.model.item(0, 0)->checkState(), Qt::Unchecked);
    }

    void theBooleanMayLieInAnotherRole()
    {
        Row row(Qt::UserRole + 1);
        row.click(row.box().center());
        QCOMPARE(row.index.data(Qt::UserRole + 1), QVariant(true));
        QCOMPARE(row.model.item(0, 0)->checkState(), Qt::Unchecked);
        row.click(row.box().center());
        QCOMPARE(row.index.data(Qt::UserRole + 1), QVariant(false));
    }

    void checkedAndUncheckedCellsLookDifferent()
    {
        const Row row;
        const QImage unchecked = row.painted();
        row.model.item(0, 0)->setCheckState(Qt::Checked);
        QVERIFY(row.painted() != unchecked);
        row.model.item(0, 0)->setCheckState(Qt::Unchecked);
        QCOMPARE(row.painted(), unchecked);
    }

    void theBoxIsDrawnInItsPlaceOnly()
    {
        const Row row;
        const QRect box = row.box().translated(-row.option().rect.topLeft());
        QImage image = row.painted();
        QVERIFY(image.copy(box) != QImage(image.copy(box).size(), image.format()));
        QPainter(&image).fillRect(box, Qt::white);
        QImage white(image.size(), image.format());
        white.fill(Qt::white);
        QCOMPARE(image, white);
    }

    void aSelectedCellIsFilledWithTheHighlightColour()
    {
        const Row row;
        const QImage image = row.painted(QStyle::State_Enabled | QStyle::State_Selected);
        const QRect cell(QPoint(0, 0), row.option().rect.size());
        const QColor highlight = row.option().palette.highlight().color();
        QCOMPARE(image.pixelColor(cell.bottomRight()), highlight);
        QCOMPARE(image.pixelColor(cell.bottomRight() + QPoint(1, 0)), QColor(Qt::white));
        QCOMPARE(row.painted().pixelColor(cell.bottomRight()), QColor(Qt::white));
    }

    void aCellWhoseUserRoleIsFalseLooksDisabled()
    {
        const Row row;
        row.model.item(0, 0)->setCheckState(Qt::Checked);
        const QImage enabled = row.painted();
        row.model.item(0, 0)->setData(true, Qt::UserRole);
        QCOMPARE(row.painted(), enabled);
        row.model.item(0, 0)->setData(false, Qt::UserRole);
        QVERIFY(row.painted() != enabled);
    }
};

QTEST_MAIN(CheckboxItemDelegateTest)
#include "CheckboxItemDelegateTest.moc"
