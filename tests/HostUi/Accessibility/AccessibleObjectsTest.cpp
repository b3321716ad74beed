#include "Accessibility/AccessibleObjects.h"

#include "Accessibility/AccessibleTexts.h"
#include "Support/TestValues.h"

#include <QAccessible>
#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QToolButton>

#include <memory>

using namespace vesk;

namespace
{

QAccessibleInterface* Seen(QObject& object)
{
    return QAccessible::queryAccessibleInterface(&object);
}

std::unique_ptr<QAbstractButton> MakeButton(const QString& kind)
{
    if (kind == "tool button")
        return std::make_unique<QToolButton>();
    if (kind == "check box")
        return std::make_unique<QCheckBox>();
    return std::make_unique<QRadioButton>();
}

}

/// What screen readers are told of widgets, and what they can do with them.
class AccessibleObjectsTest final : public QObject
{
    Q_OBJECT

private slots:
    void widgetHasTheRoleThatItWasGiven()
    {
        const AccessibleObjects objects;
        QLabel label;
        SetAccessibleRole(label, QAccessible::AlertMessage);

        QCOMPARE(Seen(label)->role(), QAccessible::AlertMessage);
    }

    void otherWidgetsAreTheToolkits()
    {
        const AccessibleObjects objects;
        QLabel label("text");
        QPushButton button("press");

        QCOMPARE(Seen(label)->role(), QAccessible::StaticText);
        QCOMPARE(Seen(label)->text(QAccessible::Name), QString("text"));
        QCOMPARE(Seen(button)->role(), QAccessible::PushButton);
    }

    void actionOfACheckableButtonClicksIt_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<int>("role");
        QTest::addColumn<QString>("action");

        QTest::newRow("tool button") << "tool button" << int(QAccessible::Button) << "Press";
        QTest::newRow("check box") << "check box" << int(QAccessible::CheckBox) << "Toggle";
        QTest::newRow("radio button")
            << "radio button" << int(QAccessible::RadioButton) << "Toggle";
    }

    void actionOfACheckableButtonClicksIt()
    {
        QFETCH(QString, kind);
        QFETCH(int, role);
        QFETCH(QString, action);
        const AccessibleObjects objects;
        const std::unique_ptr<QAbstractButton> pButton = MakeButton(kind);
        pButton->setCheckable(true);
        pButton->setText("A&nd && so");
        const QSignalSpy clicks(pButton.get(), &QAbstractButton::clicked);

        QAccessibleInterface* pSeen = Seen(*pButton);
        pSeen->actionInterface()->doAction(action);
        QVERIFY(clicks.isEmpty()); // The caller waits for the answer.
        QCoreApplication::processEvents();

        QCOMPARE(clicks.size(), 1);
        QCOMPARE(int(pSeen->role()), role);
        QCOMPARE(pSeen->actionInterface()->actionNames().value(0), action);
        QCOMPARE(pSeen->text(QAccessible::Name), QString("And & so"));
        QVERIFY(pSeen->state().checkable);
        QVERIFY(pSeen->state().checked);
    }

    void disabledButtonHasNoAction()
    {
        const AccessibleObjects objects;
        QCheckBox box;
        box.setEnabled(false);

        QVERIFY(!Seen(box)->actionInterface()->actionNames().contains("Toggle"));
        QVERIFY(Seen(box)->state().disabled);
    }

    void nameThatWasGivenIsTheName()
    {
        const AccessibleObjects objects;
        QCheckBox box("text");
        box.setAccessibleName("name");

        QCOMPARE(Seen(box)->text(QAccessible::Name), QString("name"));
    }

    void nothingIsAnsweredAfterItsEnd()
    {
        {
            const AccessibleObjects objects;
        }
        QLabel label;
        SetAccessibleRole(label, QAccessible::AlertMessage);

        QCOMPARE(Seen(label)->role(), QAccessible::StaticText);
    }
};

VESK_TESTS(AccessibleObjectsTest);
#include "AccessibleObjectsTest.moc"
