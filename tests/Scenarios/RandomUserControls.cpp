#include "RandomTables.h"
#include "RandomUser.h"
#include "ScriptedUser.h"
#include "SketcherWindow.h"
#include "Support/TestValues.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLineEdit>
#include <QTreeView>

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

/// In the list of entities.
void ClickListed(int number)
{
    auto* pList = ScriptedUser::FindWindow()->findChild<QTreeView*>("Entities");
    const int count = pList->model()->rowCount();
    if (count == 0 || !pList->isVisible())
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

}

void RandomUser::ChooseEntry(const QString& menu, const QString& command)
{
    EndBurst();
    Do("choose " + command, Act::Button, [] {});
    m_user.Choose(menu, command).Do(&CloseMenus);
}

void RandomUser::BeginTool(int tool)
{
    if (IsOneIn(4))
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
        return ClickButton(Pick(RandomTables::Settings));
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
