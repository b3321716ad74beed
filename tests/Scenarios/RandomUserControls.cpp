#include "PaneDriver.h"
#include "Panes/LayerModel.h"
#include "RandomTables.h"
#include "RandomUser.h"
#include "ScriptedUser.h"
#include "SketcherWindow.h"
#include "Support/TestValues.h"
#include "View/SketchView.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QLineEdit>

#include <cstddef>
#include <vector>

using namespace RandomTables;

namespace
{

void ClickIfPossible(const QString& id)
{
    QAbstractButton* pButton = ScriptedUser::FindButton(id);
    if (pButton != nullptr && pButton->isEnabled() && pButton->isVisible())
        QTest::mouseClick(pButton, Qt::LeftButton);
}

/// Choosing a disabled entry leaves its menu open.
void CloseMenus()
{
    while (QWidget* pMenu = QApplication::activePopupWidget())
        pMenu->close();
}

/// The fields common to the selected entities.
std::vector<QLineEdit*> ShownProperties()
{
    std::vector<QLineEdit*> shown;
    for (QLineEdit* pField : ScriptedUser::FindWindow()->findChildren<QLineEdit*>())
    {
        if (pField->isVisible() && pField->objectName().startsWith("Sketcher.Property."))
            shown.push_back(pField);
    }
    return shown;
}

/// The list of a pane, in front of other panes; null while the pane is hidden.
QAbstractItemView* RaiseList(const QString& name)
{
    if (PaneDriver::Dock(name).IsHidden())
        return nullptr;
    PaneDriver::Dock(name).Raise();
    return PaneDriver::Widget(name).findChild<QAbstractItemView*>(name);
}

/// In the list of entities.
void ClickListed(int number)
{
    QAbstractItemView* pList = RaiseList("Entities");
    const int count = pList != nullptr ? pList->model()->rowCount() : 0;
    if (count == 0)
        return;
    const QModelIndex index = pList->model()->index(number % count, 1);
    pList->scrollTo(index);
    QTest::mouseClick(pList->viewport(), Qt::LeftButton, {}, pList->visualRect(index).center());
}

void TypeProperty(std::size_t number, const QString& text)
{
    const std::vector<QLineEdit*> shown = ShownProperties();
    if (shown.empty())
        return;
    QLineEdit* pField = shown[number % shown.size()];
    QTest::mouseClick(pField, Qt::LeftButton);
    pField->selectAll();
    QTest::keyClicks(pField, text);
}

/// Toggles a box of a layer with the keyboard.
void ToggleLayer(int number, int column)
{
    QAbstractItemView* pList = RaiseList("Layers");
    if (pList == nullptr)
        return;
    const int row = number % pList->model()->rowCount();
    pList->setCurrentIndex(pList->model()->index(row, column));
    QTest::keyClick(pList, Qt::Key_Space);
}

/// Clicks a button of the pane with a layer selected; the name of a new one is typed at once.
void ClickLayerButton(const char* name, int number)
{
    QAbstractItemView* pList = RaiseList("Layers");
    if (pList == nullptr)
        return;
    // Often the newest, which can mostly be removed.
    const int count = pList->model()->rowCount();
    const int row = qMin(number % (2 * count), count - 1);
    pList->setCurrentIndex(pList->model()->index(row, LayerModel::NameColumn));
    auto* pButton = PaneDriver::Widget("Layers").findChild<QAbstractButton*>(QLatin1String(name));
    if (!pButton->isEnabled())
        return;
    QTest::mouseClick(pButton, Qt::LeftButton);
    auto* pEditor = pList->viewport()->findChild<QLineEdit*>();
    if (pEditor == nullptr)
        return;
    QTest::keyClicks(pEditor, QStringLiteral("wall %1").arg(number));
    QTest::keyClick(pEditor, Qt::Key_Return);
}

void DeleteAllIfCrowded()
{
    constexpr int Crowded = 300;
    auto* pList = PaneDriver::Widget("Entities").findChild<QAbstractItemView*>("Entities");
    if (pList->model()->rowCount() < Crowded)
        return;
    ScriptedUser::FindView()->setFocus();
    ScriptedUser::PressNow(Qt::Key_Escape);
    ScriptedUser::PressNow(Qt::Key_Escape);
    ScriptedUser::PressNow(Qt::Key_A, Qt::ControlModifier);
    ScriptedUser::PressNow(Qt::Key_Delete);
}

void TypeName(const QString& name)
{
    auto* pField = ScriptedUser::FindWindow()->findChild<QLineEdit*>("Sketcher.DrawingName");
    if (!pField->isVisible())
        return;
    QTest::mouseClick(pField, Qt::LeftButton);
    pField->selectAll();
    QTest::keyClicks(pField, name);
    QTest::keyClick(pField, Qt::Key_Return);
}

}

void RandomUser::ChooseEntry(const QString& menu, const QString& command)
{
    EndBurst();
    Do("choose " + command, Act::Button, [] {});
    m_user.Choose(menu, command).Do(&CloseMenus);
}

void RandomUser::BeginTool(int tool)
{
    if (Tools[tool].key != Qt::Key_unknown && IsOneIn(4))
        Press(Tools[tool].id, Tools[tool].key, Qt::ControlModifier);
    else
        ClickButton(Tools[tool].id);
}

void RandomUser::ClickButton(const QString& id, Act act)
{
    Do("button " + id, act, [id] { ClickIfPossible(id); });
}

void RandomUser::ChangeSetting()
{
    if (IsOneIn(4))
        return ClickButton("Sketcher.KeyStrip");
    if (!IsOneIn(4))
        return ClickButton(Pick(SettingButtons));
    const QString box = Pick(Pens);
    EndBurst();
    Do("box " + box, Act::Other, [] {});
    m_user.ChooseItem(box, Choose(3)).Do(&CloseMenus);
}

void RandomUser::ClickRow()
{
    const int number = Choose(100);
    Do(QStringLiteral("row %1").arg(number), Act::Other, [number] { ClickListed(number); });
}

void RandomUser::EnterProperty(const QString& text)
{
    const auto number = static_cast<std::size_t>(Choose(100));
    Do("property " + text, Act::Other, [number, text] { TypeProperty(number, text); });
}

/// What is added, hidden or locked is often removed, shown or unlocked at once.
void RandomUser::UseLayers()
{
    if (IsOneIn(2))
    {
        ClickLayer("NewLayer");
        return ClickLayer(Pick(LayerButtons));
    }
    const int number = Choose(100);
    const int column = Pick(LayerBoxes);
    for (int i = IsOneIn(4) ? 1 : 2; i > 0; --i)
        Do(QStringLiteral("layer %1, box %2").arg(number).arg(column), Act::Other,
           [number, column] { ToggleLayer(number, column); });
}

void RandomUser::ClickLayer(const char* button)
{
    const int number = Choose(100);
    Do(QStringLiteral("layer %1 %2").arg(button).arg(number), Act::Other,
       [button, number] { ClickLayerButton(button, number); });
}

void RandomUser::NameDrawing()
{
    const QString name = QStringLiteral("Plan %1").arg(Choose(10));
    Do("name " + name, Act::Other, [name] { TypeName(name); });
}

/// A drawing that doubles with each copy would soon be too large.
void RandomUser::ClearIfCrowded()
{
    Do("clear if crowded", Act::Other, &DeleteAllIfCrowded);
}
