#include "Inspection/ControlDescription.h"

#include "Support/TestValues.h"

#include <QAction>
#include <QButtonGroup>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollArea>
#include <QToolBar>

#include <functional>
#include <memory>

using Json = nlohmann::ordered_json;

namespace QTest
{

template <>
inline char* toString(const Json& value)
{
    return vesk::test::ToShown(QString::fromStdString(value.dump()));
}

}

using namespace vesk;

using Maker = std::function<QObject*()>;

Q_DECLARE_METATYPE(Maker)

namespace
{

template <class Shown>
Maker WithText()
{
    return [] {
        auto* pShown = new Shown;
        pShown->setText(QStringLiteral("文字"));
        return pShown;
    };
}

Json PlaceOf(const QMenu& menu, QAction* pAction)
{
    const QRect place = menu.actionGeometry(pAction);
    const QPoint corner = menu.mapToGlobal(place.topLeft());
    return {corner.x(), corner.y(), place.width(), place.height()};
}

}

/// The description of a single control.
class ControlDescriptionTest final : public QObject
{
    Q_OBJECT

private slots:
    void textIsTheOneThatIsSeen_data()
    {
        QTest::addColumn<Maker>("make");

        QTest::newRow("button") << WithText<QPushButton>();
        QTest::newRow("label") << WithText<QLabel>();
        QTest::newRow("line edit") << WithText<QLineEdit>();
        QTest::newRow("action") << WithText<QAction>();
        QTest::newRow("box") << Maker([] {
            auto* pBox = new QComboBox;
            pBox->addItems({QStringLiteral("other"), QStringLiteral("文字")});
            pBox->setCurrentIndex(1);
            return pBox;
        });
        QTest::newRow("bar") << Maker([] {
            auto* pBar = new QProgressBar;
            pBar->setFormat(QStringLiteral("文字"));
            pBar->setValue(1);
            return pBar;
        });
        QTest::newRow("menu") << Maker([] { return new QMenu(QStringLiteral("文字")); });
    }

    void textIsTheOneThatIsSeen()
    {
        QFETCH(Maker, make);
        const std::unique_ptr<QObject> pObject(make());

        QCOMPARE(DescribeControl(*pObject)["text"], Json("文字"));
    }

    void anythingElseHasNoText()
    {
        QButtonGroup group;

        const Json told = DescribeControl(group);

        QCOMPARE(told["text"], Json(""));
        QCOMPARE(told["class"], Json("QButtonGroup"));
        QCOMPARE(told["visible"], Json(false));
        QCOMPARE(told["enabled"], Json(true));
        QCOMPARE(told["rect"], Json(nullptr));
        QCOMPARE(told["checked"], Json(nullptr));
    }

    void commandIsTheIdWhereThereIsOne()
    {
        QPushButton button;
        button.setObjectName("Name");
        QCOMPARE(DescribeControl(button)["id"], Json("Name"));

        button.setProperty("CommandId", QStringLiteral("Draw.Line"));

        QCOMPARE(DescribeControl(button)["id"], Json("Draw.Line"));
    }

    void onlyWhatCanBeCheckedIsCheckedOrNot()
    {
        QPushButton button;
        QAction action;
        QCOMPARE(DescribeControl(button)["checked"], Json(nullptr));
        QCOMPARE(DescribeControl(action)["checked"], Json(nullptr));

        button.setCheckable(true);
        action.setCheckable(true);
        QCOMPARE(DescribeControl(button)["checked"], Json(false));
        QCOMPARE(DescribeControl(action)["checked"], Json(false));

        button.setChecked(true);
        action.setChecked(true);
        QCOMPARE(DescribeControl(button)["checked"], Json(true));
        QCOMPARE(DescribeControl(action)["checked"], Json(true));
    }

    void aPartIsWhereItIsOnScreen()
    {
        QWidget window;
        window.move(30, 40);
        window.show();
        const QPoint corner = window.mapToGlobal(QPoint(5, 6));

        QCOMPARE(DescribeRect(window, QRect(5, 6, 70, 80)), Json({corner.x(), corner.y(), 70, 80}));
    }

    void whatIsScrolledAwayIsNotVisible()
    {
        QScrollArea area;
        auto* pPanel = new QWidget;
        pPanel->setFixedSize(100, 2000);
        auto* pButton = new QPushButton(pPanel);
        pButton->move(0, 1900);
        area.setWidget(pPanel);
        area.resize(200, 200);
        area.show();
        QVERIFY(pButton->isVisible());
        QCOMPARE(DescribeControl(*pButton)["visible"], Json(false));

        area.ensureWidgetVisible(pButton);

        QCOMPARE(DescribeControl(*pButton)["visible"], Json(true));
    }

    void anActionIsDisabledWithWhatHoldsIt()
    {
        QWidget window;
        auto* pPanel = new QWidget(&window);
        QAction action(pPanel);
        QCOMPARE(DescribeControl(action)["enabled"], Json(true));

        window.setEnabled(false);
        QCOMPARE(DescribeControl(action)["enabled"], Json(false));

        window.setEnabled(true);
        action.setEnabled(false);
        QCOMPARE(DescribeControl(action)["enabled"], Json(false));
    }

    void anOpenMenuIsAWindow()
    {
        QMenu menu;
        menu.addAction("entry");
        menu.popup(QPoint(10, 20));

        const Json told = DescribeControl(menu);

        QCOMPARE(told["visible"], Json(true));
        QCOMPARE(told["rect"], DescribeRect(menu, menu.rect()));
    }

    void aClosedMenuIsDisabledByItself()
    {
        QMenu menu;
        QCOMPARE(DescribeControl(menu)["enabled"], Json(true));

        menu.setEnabled(false);

        QCOMPARE(DescribeControl(menu)["enabled"], Json(false));
        QCOMPARE(DescribeControl(menu)["visible"], Json(false));
    }

    void anEntryThatIsNotShownHasNoPlace()
    {
        QMenu menu;
        menu.addAction("another");
        QAction* pEntry = menu.addAction("entry");
        menu.popup(QPoint(10, 20));
        QCOMPARE(DescribeControl(*pEntry)["rect"], PlaceOf(menu, pEntry));

        pEntry->setVisible(false);

        QCOMPARE(DescribeControl(*pEntry)["visible"], Json(false));
        QCOMPARE(DescribeControl(*pEntry)["rect"], Json(nullptr));
    }

    void anEntryOfTwoMenusIsWhereOneIsOpen()
    {
        QMenu closed;
        QMenu open;
        QAction entry("entry");
        closed.addAction(&entry);
        open.addAction("another");
        open.addAction(&entry);
        open.popup(QPoint(10, 20));

        QCOMPARE(DescribeControl(entry)["visible"], Json(true));
        QCOMPARE(DescribeControl(entry)["rect"], PlaceOf(open, &entry));
    }

    void anActionThatIsNoEntryIsSeenWithoutAPlace()
    {
        QToolBar bar;
        QAction* pAction = bar.addAction("action");
        bar.show();

        QCOMPARE(DescribeControl(*pAction)["visible"], Json(true));
        QCOMPARE(DescribeControl(*pAction)["rect"], Json(nullptr));
    }
};

VESK_TESTS(ControlDescriptionTest);
#include "ControlDescriptionTest.moc"
