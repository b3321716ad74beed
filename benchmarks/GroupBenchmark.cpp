// What a group of 10,000 check boxes costs beyond the Qt calls that anybody would write by hand.

#include "Harness/Question.h"

#include "Control/CheckBoxGroupDefinition.h"
#include "Control/RadioButtonGroupDefinition.h"
#include "VeskUiQtImpl/Control/ButtonGroupItems.h"
#include "VeskUiQtImpl/Control/QtCheckBoxGroup.h"
#include "VeskUiQtImpl/Control/QtRadioButtonGroup.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QRadioButton>
#include <QVBoxLayout>
#include <QWidget>

#include <string>
#include <vector>

using namespace vesk;

namespace
{

constexpr int BoxCount = 10000;

/// Added to a group that has all of the boxes.
constexpr int AddedCount = 1000;

/// In one measurement, because one is short.
constexpr int ChangeCount = 100;

template <class Item>
OwnerPtr<Item> MakeItem(int number)
{
    const std::wstring text = std::to_wstring(number);
    auto opItem = MakeOwner<Item>(L"Box." + text, L"box " + text);
    opItem->SetTooltip(L"tip " + text);
    return opItem;
}

/// What a program that does without definitions knows of a button; texts are wide in the host.
struct PlainItem
{
    explicit PlainItem(int number)
        : name(L"Box." + std::to_wstring(number)), caption(L"box " + std::to_wstring(number)),
          tip(L"tip " + std::to_wstring(number))
    {}

    std::wstring name;
    std::wstring caption;
    std::wstring tip;
    Qt::CheckState state = Qt::Unchecked;
    bool isVisible = true;
    bool isEnabled = true;
};

template <class Button>
Button* MakeButton(const PlainItem& item, QWidget& panel)
{
    auto* pButton = new Button(QString::fromStdWString(item.caption), &panel);
    pButton->setProperty("IsDefinition", true);
    pButton->setObjectName(QString::fromStdWString(item.name));
    pButton->setToolTip(QString::fromStdWString(item.tip));
    pButton->setVisible(item.isVisible);
    pButton->setEnabled(item.isEnabled);
    return pButton;
}

/// The group of the library, driven through its definition.
struct OurGroup
{
    explicit OurGroup(int count)
    {
        for (int i = 0; i < count; ++i)
            pDefinition->AddCheckBox(MakeItem<CheckBoxDefinition>(i));
    }

    void Create()
    {
        opGroup = MakeOwner<QtCheckBoxGroup>(std::move(opDefinition), &panel);
        for (QCheckBox* pBox : opGroup->GetAllControls())
            pLayout->addWidget(pBox);
    }

    QWidget panel;
    QVBoxLayout* pLayout = new QVBoxLayout(&panel);
    OwnerPtr<CheckBoxGroupDefinition> opDefinition = MakeOwner<CheckBoxGroupDefinition>(L"Group");
    CheckBoxGroupDefinition* pDefinition = opDefinition.Get();
    OwnerPtr<QtCheckBoxGroup> opGroup;
};

/// The same boxes, written by hand.
struct PlainGroup
{
    explicit PlainGroup(int count)
    {
        for (int i = 0; i < count; ++i)
            items.emplace_back(i);
        group.setExclusive(false);
    }

    void Create()
    {
        boxes.reserve(items.size());
        for (const PlainItem& item : items)
            Add(item);
    }

    void Add(const PlainItem& item)
    {
        auto* pBox = MakeButton<QCheckBox>(item, panel);
        group.addButton(pBox, -2 - int(boxes.size()));
        boxes.push_back(pBox);
        pLayout->addWidget(pBox);
    }

    /// The group lists its buttons in the order in which they came, so all leave and come again.
    /// The first one leaves first: then none has to be searched.
    void InsertFirst(const PlainItem& item)
    {
        for (QCheckBox* pBox : boxes)
            group.removeButton(pBox);
        auto* pInserted = MakeButton<QCheckBox>(item, panel);
        pLayout->insertWidget(0, pInserted);
        boxes.insert(boxes.begin(), pInserted);
        int id = -1;
        for (QCheckBox* pBox : boxes)
            group.addButton(pBox, --id);
    }

    void ApplyStates()
    {
        for (std::size_t i = 0; i < boxes.size(); ++i)
        {
            if (boxes[i]->checkState() != items[i].state)
                boxes[i]->setCheckState(items[i].state);
            if (boxes[i]->isVisible() != items[i].isVisible)
                boxes[i]->setVisible(items[i].isVisible);
            if (boxes[i]->isEnabled() != items[i].isEnabled)
                boxes[i]->setEnabled(items[i].isEnabled);
        }
    }

    QWidget panel;
    QVBoxLayout* pLayout = new QVBoxLayout(&panel);
    QButtonGroup group;
    std::vector<PlainItem> items;
    std::vector<QCheckBox*> boxes;
};

void AskAboutCreation()
{
    Ask("P9 group of 10,000 constructed and placed")
        .Ours([](Stopwatch& stopwatch) {
            OurGroup group(BoxCount);
            stopwatch.Time([&] { group.Create(); });
        })
        .Limit([](Stopwatch& stopwatch) {
            PlainGroup group(BoxCount);
            stopwatch.Time([&] { group.Create(); });
        })
        .TimeAtMost(1.05)
        .Rounds(21);
}

void AddAll(Stopwatch& stopwatch, long count)
{
    std::vector<OwnerPtr<CheckBoxDefinition>> items;
    for (int i = 0; i < count; ++i)
        items.push_back(MakeItem<CheckBoxDefinition>(i));
    OurGroup group(0);
    group.Create();
    stopwatch.Time([&] {
        for (OwnerPtr<CheckBoxDefinition>& opItem : items)
            group.pDefinition->AddCheckBox(std::move(opItem));
    });
}

void AskAboutAdding()
{
    Ask("P9 10,000 boxes added one by one")
        .Ours([](Stopwatch& stopwatch) { AddAll(stopwatch, BoxCount); })
        .Limit([](Stopwatch& stopwatch) {
            PlainGroup group(BoxCount);
            stopwatch.Time([&] { group.Create(); });
        })
        .TimeAtMost(1.05)
        .Rounds(21);
    Ask("P9 growth of adding one by one")
        .GrowsAtMost(1.05, {1000, 10000, 50000}, AddAll)
        .Rounds(11)
        .WithoutInstructions();
}

using AddButton = void (*)(QButtonGroup& group, const std::vector<QCheckBox*>& boxes);

void Group(Stopwatch& stopwatch, AddButton add)
{
    QWidget panel;
    QButtonGroup group;
    group.setExclusive(false);
    std::vector<QCheckBox*> boxes;
    for (int i = 0; i < BoxCount; ++i)
        boxes.push_back(new QCheckBox(&panel));
    stopwatch.Time([&] { add(group, boxes); });
}

void GroupAsItems(QButtonGroup& group, const std::vector<QCheckBox*>& boxes)
{
    std::vector<QCheckBox*> grouped;
    for (QCheckBox* pBox : boxes)
        ButtonGroupItems(group, pBox->parentWidget(), grouped).Append(pBox);
}

void GroupWithIds(QButtonGroup& group, const std::vector<QCheckBox*>& boxes)
{
    int id = -1;
    for (QCheckBox* pBox : boxes)
        group.addButton(pBox, --id);
}

void GroupWithAutomaticIds(QButtonGroup& group, const std::vector<QCheckBox*>& boxes)
{
    for (QCheckBox* pBox : boxes)
        group.addButton(pBox);
}

void AskAboutGrouping()
{
    Ask("P9 10,000 boxes grouped")
        .Ours([](Stopwatch& stopwatch) { Group(stopwatch, GroupAsItems); })
        .Limit([](Stopwatch& stopwatch) { Group(stopwatch, GroupWithIds); })
        .Peer("QButtonGroup with automatic ids",
              [](Stopwatch& stopwatch) { Group(stopwatch, GroupWithAutomaticIds); })
        .AheadOfPeer(50)
        .Rounds(11)
        .WithoutInstructions();
}

void AskAboutInsertion()
{
    Ask("P10 box inserted first into 10,000")
        .Ours([](Stopwatch& stopwatch) {
            OurGroup group(BoxCount);
            group.Create();
            auto opItem = MakeItem<CheckBoxDefinition>(BoxCount);
            stopwatch.Time([&] { group.pDefinition->InsertCheckBox(0, std::move(opItem)); });
        })
        .Limit([](Stopwatch& stopwatch) {
            PlainGroup group(BoxCount);
            group.Create();
            const PlainItem item(BoxCount);
            stopwatch.Time([&] { group.InsertFirst(item); });
        })
        .TimeAtMost(1.05)
        .Rounds(21);
}

void AskAboutPlacing()
{
    Ask("P11 1,000 boxes added to 10,000 placed ones")
        .Ours([](Stopwatch& stopwatch) {
            OurGroup group(BoxCount);
            group.Create();
            std::vector<OwnerPtr<CheckBoxDefinition>> items;
            for (int i = 0; i < AddedCount; ++i)
                items.push_back(MakeItem<CheckBoxDefinition>(BoxCount + i));
            stopwatch.Time([&] {
                for (OwnerPtr<CheckBoxDefinition>& opItem : items)
                    group.pDefinition->AddCheckBox(std::move(opItem));
            });
        })
        .Limit([](Stopwatch& stopwatch) {
            PlainGroup group(BoxCount);
            group.Create();
            std::vector<PlainItem> items;
            for (int i = 0; i < AddedCount; ++i)
                items.emplace_back(BoxCount + i);
            stopwatch.Time([&] {
                for (const PlainItem& item : items)
                    group.Add(item);
            });
        })
        .TimeAtMost(1.3)
        .Rounds(21);
}

void AskAboutOneBox()
{
    Ask("P11 one box of 10,000 changes")
        .Ours([](Stopwatch& stopwatch) {
            OurGroup group(BoxCount);
            group.Create();
            group.panel.show();
            CheckBoxDefinition& item =
                *group.pDefinition->Find(L"Box." + std::to_wstring(BoxCount / 2));
            stopwatch.Time([&] {
                for (int i = 0; i < ChangeCount; ++i)
                    item.SetCheckState(2 - item.GetCheckState());
            });
        })
        .Limit([](Stopwatch& stopwatch) {
            PlainGroup group(BoxCount);
            group.Create();
            group.panel.show();
            PlainItem& item = group.items[BoxCount / 2];
            stopwatch.Time([&] {
                for (int i = 0; i < ChangeCount; ++i)
                {
                    item.state = item.state == Qt::Unchecked ? Qt::Checked : Qt::Unchecked;
                    group.ApplyStates();
                }
            });
        })
        .TimeAtMost(1.3)
        .AllocationsAtMost(0)
        .Rounds(11);
    Ask("P11 one box of 10,000 is clicked")
        .Ours([](Stopwatch& stopwatch) {
            OurGroup group(BoxCount);
            group.Create();
            group.panel.show();
            QCheckBox* pBox = group.opGroup->GetAllControls()[BoxCount / 2];
            pBox->click();
            stopwatch.Time([&] {
                for (int i = 0; i < ChangeCount; ++i)
                    pBox->click();
            });
        })
        .Limit([](Stopwatch& stopwatch) {
            PlainGroup group(BoxCount);
            group.Create();
            group.panel.show();
            QCheckBox* pBox = group.boxes[BoxCount / 2];
            pBox->click();
            stopwatch.Time([&] {
                for (int i = 0; i < ChangeCount; ++i)
                {
                    pBox->click();
                    group.items[BoxCount / 2].state = pBox->checkState();
                    group.ApplyStates();
                }
            });
        })
        .TimeAtMost(1.3)
        .Rounds(11);
}

/// The radio buttons of the library.
struct OurRadioButtons
{
    OurRadioButtons()
    {
        auto opDefinition = MakeOwner<RadioButtonGroupDefinition>(L"Group");
        pDefinition = opDefinition.Get();
        for (int i = 0; i < BoxCount; ++i)
            opDefinition->AddRadioButton(MakeItem<RadioButtonDefinition>(i));
        opGroup = MakeOwner<QtRadioButtonGroup>(std::move(opDefinition), &panel);
        panel.show();
    }

    QWidget panel;
    RadioButtonGroupDefinition* pDefinition;
    OwnerPtr<QtRadioButtonGroup> opGroup;
};

/// The same, written by hand.
struct PlainRadioButtons
{
    PlainRadioButtons()
    {
        int id = -1;
        for (int i = 0; i < BoxCount; ++i)
        {
            items.emplace_back(i);
            buttons.push_back(MakeButton<QRadioButton>(items.back(), panel));
            group.addButton(buttons.back(), --id);
        }
        panel.show();
    }

    /// A button is known by its name, which others may change.
    void ApplyStates(const QString& current)
    {
        for (std::size_t i = 0; i < buttons.size(); ++i)
        {
            if (buttons[i]->objectName() == current && !buttons[i]->isChecked())
                buttons[i]->setChecked(true);
            if (buttons[i]->isVisible() != items[i].isVisible)
                buttons[i]->setVisible(items[i].isVisible);
            if (buttons[i]->isEnabled() != items[i].isEnabled)
                buttons[i]->setEnabled(items[i].isEnabled);
        }
    }

    QWidget panel;
    QButtonGroup group;
    std::vector<PlainItem> items;
    std::vector<QRadioButton*> buttons;
};

void AskAboutOneRadioButton()
{
    Ask("P11 another of 10,000 radio buttons becomes current")
        .Ours([](Stopwatch& stopwatch) {
            OurRadioButtons buttons;
            stopwatch.Time([&] {
                for (int i = 0; i < ChangeCount; ++i)
                    buttons.pDefinition->SetCurrentRadioButtonId(L"Box." + std::to_wstring(77 * i));
            });
        })
        .Limit([](Stopwatch& stopwatch) {
            PlainRadioButtons buttons;
            stopwatch.Time([&] {
                for (int i = 0; i < ChangeCount; ++i)
                    buttons.ApplyStates("Box." + QString::number(77 * i));
            });
        })
        .TimeAtMost(1.3)
        .Rounds(11);
}

}

void AskQuestions()
{
    AskAboutCreation();
    AskAboutAdding();
    AskAboutGrouping();
    AskAboutInsertion();
    AskAboutPlacing();
    AskAboutOneBox();
    AskAboutOneRadioButton();
}
